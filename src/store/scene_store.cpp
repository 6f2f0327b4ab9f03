#include "store/scene_store.h"

#include <algorithm>

#include "store/objects.h"
#include "store/paths.h"
#include "store/runtime_error.h"

namespace quorvel::store {
namespace {

/// The scene that a record shows.
Scene sceneOf(const SceneRecord& record) {
    Scene scene;
    scene.take(record);
    scene.header(HeaderInt::SecurityCode) = 0;
    for (int k = 1; k <= kSlotCount; ++k) {
        mendQuickSpot(scene.slot(k));
    }
    return scene;
}

}  // namespace

void LoadScene(Project& project, Scene& scene, int number) {
    const SceneRecord record = project.sceneFile.read(number);
    scene.take(record);
    project.CurrentScene = number;
    project.CurrentRecord = record;
}

void SaveScene(Project& project, const Scene& scene, int number) {
    const SceneRecord record = scene.toRecord();
    project.sceneFile.write(number, record);
    if (number == project.CurrentScene) {
        project.CurrentRecord = record;
    }
}

bool isSameScene(const SceneRecord& first, const SceneRecord& second) {
    return sceneOf(first) == sceneOf(second);
}

bool isChangedByOthers(Project& project) {
    SceneRecord now = project.sceneFile.read(project.CurrentScene);
    now.SecurityCode = project.CurrentRecord.SecurityCode;
    return !std::ranges::equal(bytesOf(now), bytesOf(project.CurrentRecord));
}

bool holdsUnsaved(Project& project, const Scene& scene) {
    const SceneRecord mine = scene.toRecord();
    if (isSameScene(mine, project.CurrentRecord)) {
        return false;
    }
    try {
        return !isSameScene(mine, project.sceneFile.read(project.CurrentScene));
    } catch (const RuntimeError&) {
        return true;  // what cannot be read cannot hold it
    }
}

void WriteBlankScene(Project& project, int number, std::string_view name, std::string_view image) {
    auto record = newRecord<SceneRecord>();
    record.SceneName = name;
    record.SceneImage = image;
    project.sceneFile.write(number, record);
}

SceneImageLookup LookupSceneImage(Project& project, const Scene& scene, int number) {
    if (number < 1) {
        return {};
    }
    if (number == project.CurrentScene) {
        return {scene.header(HeaderString::SceneImage)};
    }
    const std::string image = project.sceneFile.read(number).SceneImage.text();
    if (image.empty()) {
        return {};
    }
    if (!findResource(project.folder(), ResourceFolder::gfx, image)) {
        return {"", true};
    }
    return {image};
}

}  // namespace quorvel::store
