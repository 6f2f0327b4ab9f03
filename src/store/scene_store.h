/// Scenes between the store and the memory.
#pragma once

#include <string>
#include <string_view>

#include "store/project.h"
#include "store/scene.h"

namespace quorvel::store {

/// Reads scene `number` into `scene` and makes it the current one. Beyond the store it is the
/// zeroed record. When the read fails neither the scene nor the number changes.
void LoadScene(Project& project, Scene& scene, int number);

/// Writes `scene` as scene `number`; the security code of that record becomes 0. When the write
/// fails the record in the file stays as it was.
void SaveScene(Project& project, const Scene& scene, int number);

/// True when two records hold the same scene: whatever an author can make or see of it, and the
/// reserved fields. The security code does not count, nor how a text is padded.
bool isSameScene(const SceneRecord& first, const SceneRecord& second);

/// True when the record of the current scene is no longer the one that was read or written here
/// last, but for its security code: somebody else wrote it.
bool isChangedByOthers(Project& project);

/// True when `scene` holds what neither its record in the store nor the one that was read last
/// does, so that it would be lost.
bool holdsUnsaved(Project& project, const Scene& scene);

/// Writes a new scene with a name and a picture straight to the store.
void WriteBlankScene(Project& project, int number, std::string_view name, std::string_view image);

/// The picture of a scene, for a preview.
struct SceneImageLookup {
    std::string image;         ///< file in resource/gfx, empty when there is none to show
    bool fileMissing = false;  ///< the scene names a picture that is not on disk
};

/// Looks up the picture of scene `number`. Of the current scene the one in memory counts, saved or
/// not. Reads the store without touching `scene`.
SceneImageLookup LookupSceneImage(Project& project, const Scene& scene, int number);

}  // namespace quorvel::store
