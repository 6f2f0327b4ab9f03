#include "canvas/scene_keeper.h"

#include "forms/events.h"
#include "store/paths.h"

namespace quorvel::canvas {

using store::HeaderString;

SaveOutcome SceneKeeper::SaveScene() {
    if (!project_.currentSceneStored()) {
        return SaveOutcome::saved;
    }
    view_.StoreLinkPlaces();
    try {
        store::SaveScene(project_, scene_, project_.CurrentScene);
        forms::letEventsRun();
        return SaveOutcome::saved;
    } catch (const store::RuntimeError& error) {
        traps_.tellWriteFailure(error);
        return error.code() == store::ErrorNumber::accessError ? SaveOutcome::readOnly
                                                               : SaveOutcome::failed;
    }
}

void SceneKeeper::LoadScene(int number) {
    view_.ClearCanvas();
    store::LoadScene(project_, scene_, number);
}

void SceneKeeper::showScene() {
    const std::string& image = scene_.header(HeaderString::SceneImage);
    if (image.empty()) {
        view_.ClearSceneImage();
    } else {
        traps_.reading(QStringLiteral("GetSceneImage"), [&] {
            const auto path =
                store::findResource(project_.folder(), store::ResourceFolder::gfx, image);
            if (!path) {
                view_.ClearSceneImage();
                throw store::RuntimeError(store::ErrorNumber::fileNotFound, store::pathOf(image));
            }
            view_.GetSceneImage(*path);
        });
    }
    view_.ShowSceneObjects();
}

}  // namespace quorvel::canvas
