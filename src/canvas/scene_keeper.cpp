#include "canvas/scene_keeper.h"

#include <limits>

#include "forms/events.h"
#include "store/paths.h"

namespace quorvel::canvas {

using store::HeaderString;

namespace {

/// The highest number that a scene can have.
constexpr int kMostScenes = std::numeric_limits<std::int16_t>::max();
/// The mouse pointer "EXIT", which stands over the way back out of a closeup.
constexpr std::int16_t kExitPointer = 9;

}  // namespace

SceneKeeper::SceneKeeper(store::Project& project, store::Scene& scene, SceneView& view,
                         forms::Boxes& boxes, forms::Traps& traps)
    : project_(project), scene_(scene), view_(view), boxes_(boxes), traps_(traps) {}

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
    Q_EMIT sceneShown(project_.CurrentScene);
}

bool SceneKeeper::leave() {
    return SaveScene() != SaveOutcome::failed;
}

bool SceneKeeper::arrive(int number) {
    const bool loaded =
        traps_.reading(QStringLiteral("LoadScene"), [this, number] { LoadScene(number); });
    // When the read failed this shows again what is still in memory.
    showScene();
    return loaded;
}

bool SceneKeeper::GoToScene(int number) {
    return leave() && arrive(number);
}

bool SceneKeeper::writeNewScene(int number, NewScene mode) {
    return traps_.writing([&] {
        if (mode == NewScene::exactCopy) {
            store::SaveScene(project_, scene_, number);
        } else {
            store::WriteBlankScene(project_, number, "", "");
        }
    });
}

bool SceneKeeper::AddScene(NewScene mode) {
    if (!leave()) {
        return false;
    }
    if (project_.NumberOfScenes >= kMostScenes) {
        boxes_.show({.text = QStringLiteral("A project cannot hold more than %1 scenes.")
                                 .arg(QString::number(kMostScenes)),
                     .icon = forms::Box::Icon::exclamation});
        return false;
    }
    const int previous = project_.CurrentScene;
    const int number = project_.NumberOfScenes + 1;
    if (!writeNewScene(number, mode)) {
        return false;
    }
    project_.NumberOfScenes = number;
    const std::string name =
        mode == NewScene::exactCopy ? scene_.header(HeaderString::SceneName) : std::string();
    project_.lists.scenes.push_back({number, name, 0});
    Q_EMIT sceneAdded();
    const bool shown = arrive(number);
    if (shown && mode == NewScene::closeup) {
        scene_.LinkDown.pointer = kExitPointer;
        scene_.LinkDown.target = static_cast<std::int16_t>(previous);
    }
    return shown;
}

}  // namespace quorvel::canvas
