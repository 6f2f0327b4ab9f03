#include "store/scene_store.h"

#include "store/paths.h"

namespace quorvel::store {

void LoadScene(Project& project, Scene& scene, int number) {
    scene.take(project.sceneFile.read(number));
    project.CurrentScene = number;
}

void SaveScene(Project& project, const Scene& scene, int number) {
    project.sceneFile.write(number, scene.toRecord());
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
