/// What a project names: files, scenes, items, locations, cue cards and flags, each with the place
/// that names it. It is a loop over the dictionary, so a field that is added to a list is found.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "store/dictionary.h"
#include "store/project.h"

namespace quorvel::store {

enum class ReferenceKind : std::uint8_t {
    gfxFile,     ///< in resource/gfx
    mediaFile,   ///< in resource/mmedia
    playerFile,  ///< the player, in the project folder
    scene,
    item,
    location,
    card,
    flag,
};

/// True for the kinds that name a file.
constexpr bool isFile(ReferenceKind kind) {
    return kind <= ReferenceKind::playerFile;
}

/// One thing that a field names. What it points to must not be kept beyond the call.
struct Reference {
    ReferenceKind kind;
    std::string_view
        file;    ///< bare name in UTF-8, as the record spells it; of the other kinds empty
    int number;  ///< of a scene, item, location, card or flag, as it is stored
    /// The game makes use of it: what switches the field on is on. A number or a name that rests
    /// switched off in a record stays there and is handed over too.
    bool inEffect;

    RecordKind record;      ///< of an object that of its scene
    int recordNumber;       ///< from 1
    int slot;               ///< of an object 1 to 20, else 0
    const FieldRef* field;  ///< which says name, use and, of an object, type
};

using ReferenceVisitor = std::function<void(const Reference&)>;

/// Hands over what the open stores of `project` name, record by record: project file, scenes,
/// locations, items, settings, cards; of a scene first header and links, then the objects. Where a
/// scene is on the canvas, `onCanvas` counts instead of its record. Stores are read in large
/// blocks. Nothing is said whether it is there.
///
/// Not handed over: empty texts; scene, item, location and card 0, which mean none; flag 0 where it
/// has no effect; texts that are no file (`kStopSoundtrack`, `kNoIcon`, `kRemovedIcon`); objects of
/// unknown types, of which nothing is known.
void forEachReference(Project& project, const Scene* onCanvas, const ReferenceVisitor& visit);

/// The same for one record that is in memory.
void forEachReference(const SceneRecord& record, int number, const ReferenceVisitor& visit);
void forEachReference(const LocationRecord& record, int number, const ReferenceVisitor& visit);
void forEachReference(const ItemRecord& record, int number, const ReferenceVisitor& visit);
void forEachReference(const CueCardRecord& record, int number, const ReferenceVisitor& visit);
void forEachReference(const GameSettingsRecord& record, const ReferenceVisitor& visit);
void forEachReference(const ProjectRecord& record, const ReferenceVisitor& visit);

}  // namespace quorvel::store
