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
    : project_(project),
      scene_(scene),
      view_(view),
      boxes_(boxes),
      traps_(traps),
      rescue_(project, scene, boxes) {}

SaveOutcome SceneKeeper::SaveScene() {
    if (!isSceneStored()) {
        return SaveOutcome::nothingToSave;
    }
    view_.StoreLinkPlaces();
    const SaveOutcome outcome = write();
    canSave_ = outcome == SaveOutcome::saved || outcome == SaveOutcome::nothingToSave;
    Q_EMIT savingPossible(canSave_);
    if (outcome == SaveOutcome::saved) {
        forms::letEventsRun();
    }
    return outcome;
}

SaveOutcome SceneKeeper::write() {
    if (project_.LookingOn) {
        return SaveOutcome::readOnly;  // the author chose so, whatever others do to the record
    }
    try {
        try {
            return writeOver();
        } catch (const store::LostFileError& loss) {
            return writeAfter(loss);
        }
    } catch (const store::RuntimeError& error) {
        traps_.tellWriteFailure(error);
        return error.code() == store::ErrorNumber::accessError ? SaveOutcome::readOnly
                                                               : SaveOutcome::failed;
    }
}

SaveOutcome SceneKeeper::writeOver() {
    if (store::isChangedByOthers(project_)) {
        if (!holdsUnsaved()) {
            return SaveOutcome::nothingToSave;
        }
        if (!rescue_.mayOverwrite()) {
            return SaveOutcome::failed;
        }
    }
    store::SaveScene(project_, scene_, project_.CurrentScene);
    return SaveOutcome::saved;
}

SaveOutcome SceneKeeper::writeAfter(const store::LostFileError& loss) {
    const SceneRescue::Way way = rescue_.takeStore(loss);
    if (way == SceneRescue::Way::stay) {
        return SaveOutcome::failed;
    }
    if (way == SceneRescue::Way::write) {
        store::SaveScene(project_, scene_, project_.CurrentScene);
        if (project_.CurrentScene > project_.NumberOfScenes) {
            project_.NumberOfScenes = project_.CurrentScene;
            project_.lists.scenes.push_back({project_.CurrentScene, {}, 0});
        }
        project_.lists.renameScene(project_.CurrentScene, scene_.header(HeaderString::SceneName));
    }
    Q_EMIT scenesRead();
    Q_EMIT sceneShown(project_.CurrentScene);
    return way == SceneRescue::Way::write ? SaveOutcome::saved : SaveOutcome::nothingToSave;
}

void SceneKeeper::LoadScene(int number) {
    store::LoadScene(project_, scene_, number);
    hold_.emplace(view_);
    view_.ClearCanvas();
    Q_EMIT sceneLoading();
}

std::optional<store::RuntimeError> SceneKeeper::loadPicture() {
    const std::string& image = scene_.header(HeaderString::SceneImage);
    if (image.empty()) {
        view_.ClearSceneImage();
        return std::nullopt;
    }
    const auto path = store::findResource(project_.folder(), store::ResourceFolder::gfx, image);
    if (!path) {
        view_.ClearSceneImage();
        return store::RuntimeError(store::ErrorNumber::fileNotFound, store::pathOf(image));
    }
    try {
        view_.GetSceneImage(*path);
        return std::nullopt;
    } catch (const store::RuntimeError& error) {
        return error;
    }
}

void SceneKeeper::showScene() {
    // A disk that refused one scene refuses the next, until a save succeeds.
    canSave_ = canSave_ && project_.sceneFile.isWritable();
    Q_EMIT savingPossible(canSave_);
    const auto failure = loadPicture();
    view_.ShowSceneObjects();
    hold_.reset();
    Q_EMIT sceneShown(project_.CurrentScene);
    tellPicture(failure);
}

void SceneKeeper::projectClosed() {
    canSave_ = true;
    Q_EMIT savingPossible(true);
}

void SceneKeeper::ShowPicture() {
    tellPicture(loadPicture());
}

void SceneKeeper::tellPicture(const std::optional<store::RuntimeError>& failure) {
    if (failure) {
        traps_.tellReadFailure(QStringLiteral("GetSceneImage"), *failure);
    }
}

bool SceneKeeper::leave() {
    return SaveScene() != SaveOutcome::failed;
}

bool SceneKeeper::arrive(int number, int wayBack) {
    if (!traps_.reading(QStringLiteral("LoadScene"), [this, number] { LoadScene(number); })) {
        // The canvas is as it was; what stands around it may have moved on already.
        Q_EMIT sceneShown(project_.CurrentScene);
        return false;
    }
    if (wayBack != 0) {
        scene_.LinkDown.pointer = kExitPointer;
        scene_.LinkDown.target = static_cast<std::int16_t>(wayBack);
    }
    showScene();
    return true;
}

bool SceneKeeper::GoToScene(int number) {
    if (!leave()) {
        return false;
    }
    if (number > project_.NumberOfScenes) {  // the store that was taken has fewer scenes
        Q_EMIT sceneShown(project_.CurrentScene);
        return false;
    }
    return arrive(number);
}

void SceneKeeper::takeScenesOfOthers() {
    if (project_.sceneFile.count() > project_.NumberOfScenes) {
        project_.ReadSceneList();
        Q_EMIT scenesRead();
    }
}

bool SceneKeeper::writeNewScene(int number, NewScene mode) {
    try {
        if (mode == NewScene::exactCopy) {
            store::SaveScene(project_, scene_, number);
        } else {
            store::WriteBlankScene(project_, number, "", "");
        }
        return true;
    } catch (const store::RuntimeError& error) {
        traps_.tellWriteFailure(error);
        return false;
    }
}

bool SceneKeeper::AddScene(NewScene mode) {
    if (mode != NewScene::empty && !isSceneStored()) {
        return false;
    }
    if (project_.NumberOfScenes >= kMostScenes) {
        boxes_.show({.text = QStringLiteral("A project cannot hold more than %1 scenes.")
                                 .arg(QString::number(kMostScenes)),
                     .icon = forms::Box::Icon::exclamation});
        return false;
    }
    // That a project is read-only is told once; a scene that is asked for is not left out silently.
    const bool knownReadOnly = project_.ReadOnlyProject;
    if (!leave()) {
        return false;
    }
    if (!traps_.reading(QStringLiteral("ReadSceneList"), [this] { takeScenesOfOthers(); })) {
        return false;
    }
    const int previous = project_.CurrentScene;
    const int number = project_.NumberOfScenes + 1;
    if (!writeNewScene(number, mode)) {
        if (knownReadOnly) {
            boxes_.show({.text = QStringLiteral("The scene could not be added."),
                         .icon = forms::Box::Icon::exclamation});
        }
        return false;
    }
    project_.NumberOfScenes = number;
    const std::string name =
        mode == NewScene::exactCopy ? scene_.header(HeaderString::SceneName) : std::string();
    project_.lists.scenes.push_back({number, name, 0});
    Q_EMIT sceneAdded();
    return arrive(number, mode == NewScene::closeup ? previous : 0);
}

}  // namespace quorvel::canvas
