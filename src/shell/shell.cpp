#include "shell/shell.h"

#include <utility>

#include <QPushButton>

#include "forms/events.h"
#include "resources/path_text.h"
#include "shell/install_path.h"
#include "shell/leftovers.h"
#include "shell/open_project.h"
#include "shell/path_text.h"
#include "store/security.h"

namespace quorvel::shell {

using forms::Answer;
using forms::Box;

namespace {

/// The same surroundings with other boxes.
Surroundings withBoxes(Surroundings given, forms::Boxes& boxes) {
    return {.boxes = boxes,
            .dialogs = given.dialogs,
            .programs = given.programs,
            .screens = std::move(given.screens),
            .random = std::move(given.random),
            .quit = std::move(given.quit),
            .beep = std::move(given.beep),
            .complain = std::move(given.complain),
            .makePreview = std::move(given.makePreview),
            .machineValue = std::move(given.machineValue),
            .programFolder = std::move(given.programFolder),
            .userFolder = std::move(given.userFolder),
            .arguments = std::move(given.arguments)};
}

}  // namespace

Shell::Shell(Surroundings surroundings)
    : boxes_(surroundings.boxes, surroundings.complain),
      surroundings_(withBoxes(std::move(surroundings), boxes_)),
      traps_(surroundings_.boxes, project_),
      models_(project_.lists),
      intakeBoxes_(surroundings_.boxes),
      intake_(
          project_,
          [this] {
              return resources::IntakeRules{.DefaultFolder = settings_.DefaultFolder,
                                            .WrongFolder = settings_.WrongFolder,
                                            .InstallPath = InstallPath};
          },
          intakeBoxes_),
      fileChoice_(surroundings_.dialogs, intake_) {
    connect(&askAgain_, &QTimer::timeout, this, &Shell::openWaiting);
}

Shell::~Shell() = default;

bool Shell::CheckRes() {
    const QSize screen = surroundings_.screens().front().devicePixels();
    if (screen.width() >= 800 && screen.height() >= 600) {
        return true;
    }
    const QString text =
        QStringLiteral(
            "This application requires a MINIMUM screen resolution of 800x600.\n\nYour current "
            "screen resolution is %1x%2.\n\nClick 'OK' to change your screen resolution and "
            "continue running this application (your current screen resolution will be restored "
            "when this application finishes).  Click 'Cancel' to exit the application without "
            "making any changes.")
            .arg(QString::number(screen.width()), QString::number(screen.height()));
    return surroundings_.boxes.show({.text = text,
                                     .title = QStringLiteral("Incorrect Screen Resolution"),
                                     .icon = Box::Icon::exclamation,
                                     .buttons = Box::Buttons::okCancel}) == Answer::ok;
}

std::vector<std::function<void()>> Shell::loadForms() {
    return {[this] {
        if (!shuttingDown_) {  // the system's request came while the splash painted
            loadMain();
        }
    }};
}

void Shell::loadMain() {
    main_ = std::make_unique<Main>(project_, scene_, pictures_, models_);
    keeper_ = std::make_unique<canvas::SceneKeeper>(project_, scene_, main_->view(),
                                                    surroundings_.boxes, traps_);
    connect(keeper_.get(), &canvas::SceneKeeper::sceneAdded, &models_.scenes,
            &forms::RecordListModel::append);
    connect(keeper_.get(), &canvas::SceneKeeper::scenesRead, &models_.scenes,
            &forms::RecordListModel::refresh);
    connect(keeper_.get(), &canvas::SceneKeeper::savingPossible, &main_->side(),
            &SidePanel::showSavingPossible);
    connect(keeper_.get(), &canvas::SceneKeeper::sceneLoading, &main_->status(),
            [this] { main_->status().setCount(QStringLiteral("Objects: ...")); });
    connect(keeper_.get(), &canvas::SceneKeeper::sceneShown, this, [this] { showNotice(); });
    loadPreview();
    loadGuide();
    loadActions();
    navigation_ = std::make_unique<Navigation>(
        Navigation::House{project_, *keeper_, surroundings_.boxes, main_->side(), main_->lists()});
    loader_ = std::make_unique<ProjectLoader>(
        ProjectLoader::House{project_, surroundings_.boxes, traps_, models_, *keeper_, *main_});
    loadCreator();
    connect(main_.get(), &Main::commandChosen, this, &Shell::runCommand);
    connect(main_.get(), &Main::closeAsked, this, &Shell::ExitProgram);
    connect(&main_->view(), &canvas::SceneView::objectCountChanged, this, [this](int count) {
        objectCount_ = count;
        refreshCommands();
    });
    answerCommands();
    refreshCommands();
}

void Shell::loadPreview() {
    PreviewParts parts = surroundings_.makePreview(project_, &main_->movieArea());
    preview_ = std::move(parts.preview);
    if (parts.moviePlayer != nullptr) {
        parts.moviePlayer->setObjectName(QStringLiteral("MoviePlayer1"));
    }
    connect(preview_.get(), &forms::Preview::unavailable, this, [this](const QString& reason) {
        surroundings_.boxes.tell(
            QStringLiteral("Error intializing DirectSound for WAV audio (form_Main)\n\n") + reason);
    });
}

void Shell::stopPreviews() {
    preview_->StopMp3();
    preview_->StopAllWavs();
    preview_->StopMidi();
}

void Shell::loadCreator() {
    const auto installPath = [this] { return InstallPath; };
    creator_ =
        std::make_unique<ProjectCreator>(ProjectCreator::House{.project = project_,
                                                               .boxes = surroundings_.boxes,
                                                               .keeper = *keeper_,
                                                               .loader = *loader_,
                                                               .main = *main_,
                                                               .random = surroundings_.random,
                                                               .installPath = installPath});
    player_ = std::make_unique<PlayerKeeper>(PlayerKeeper::House{.project = project_,
                                                                 .keeper = *keeper_,
                                                                 .boxes = surroundings_.boxes,
                                                                 .programs = surroundings_.programs,
                                                                 .installPath = installPath,
                                                                 .guide = *guide_});
}

void Shell::loadGuide() {
    guide_ = std::make_unique<AuthorGuide>(AuthorGuide::House{settings_, surroundings_.boxes,
                                                              surroundings_.programs, HelpFile,
                                                              *main_, surroundings_.machineValue});
}

void Shell::loadActions() {
    actions_ = std::make_unique<canvas::ObjectActions>(canvas::ObjectActions::House{
        project_, scene_, main_->view(), *keeper_, surroundings_.boxes, *guide_});
    editors_ = std::make_unique<SceneEditors>(groups::Tools{.project = project_,
                                                            .scene = scene_,
                                                            .boxes = surroundings_.boxes,
                                                            .files = fileChoice_,
                                                            .preview = *preview_,
                                                            .pictures = pictures_,
                                                            .lists = models_,
                                                            .beep = surroundings_.beep},
                                              scene_, main_->view(), *keeper_, *actions_, *guide_);
    const SidePanel& side = main_->side();
    connect(side.ObjAlert, &QPushButton::clicked, this, [this] { actions_->ObjAlert_Click(); });
    connect(side.ScnAlert, &QPushButton::clicked, this, [this] { actions_->ScnAlert_Click(); });
    connect(side.RestoreObjs, &QPushButton::clicked, this,
            [this] { actions_->RestoreObjs_Click(); });
    connect(keeper_.get(), &canvas::SceneKeeper::sceneShown, side.RestoreObjs,
            [button = side.RestoreObjs] { button->setEnabled(true); });
    // What cannot be saved is not to be moved, by the alert's questions either.
    connect(keeper_.get(), &canvas::SceneKeeper::sceneShown, side.ObjAlert,
            [this, button = side.ObjAlert] {
                button->setVisible(main_->view().objectAlert() && keeper_->isSceneStored());
            });
}

void Shell::InitializeEditor() {
    if (shuttingDown_ || isUnattended_) {
        return;
    }
    isStarting_ = true;
    initialize();
    isStarting_ = false;
    openWaiting();
}

void Shell::initialize() {
    settings_.whenNotWritten = [this](const QString& file) {
        surroundings_.boxes.show(
            {.text =
                 QStringLiteral("The settings of the editor could not be saved:\n\n%1\n\nPlease "
                                "check whether this file and its folder can be written.")
                     .arg(file),
             .icon = Box::Icon::exclamation});
    };
    settings_.GetEditorSettings();
    InstallPath = ResolveInstallPath(surroundings_.programFolder, surroundings_.userFolder);
    forms::letEventsRun();
    if (shuttingDown_) {
        return;
    }
    HelpFile = InstallPath + QStringLiteral("help/index.html");
    if (settings_.isFirstRun()) {
        settings_.setFirstRunDefaults();
        settings_.SaveEditorSettings();
    }
    main_->showRecentProjects(settings_);
    refreshCommands();
    EditorRunning = true;
    main_->showAt(
        placeToOpen(surroundings_.screens(), settings_.lastMainWindow(), main_->usualSize()));
    openCommandLine();
    if (surroundings_.arguments.isEmpty() && settings_.TipsAtStart == QStringLiteral("Yes")) {
        guide_->showTipAtStart();
    }
}

void Shell::openCommandLine() {
    for (const QString& argument : surroundings_.arguments) {
        if (isUnattended_) {
            return;
        }
        const SplitPath split = fullPath(argument);
        if (isMissing(split.folder + split.name)) {
            surroundings_.complain(QStringLiteral("File not found: ") + split.folder + split.name);
        }
        if (settings_.TipsAtStart == QStringLiteral("Yes")) {
            settings_.TipsAtStart = QStringLiteral("YesNow");
        }
        openProject(argument);
    }
}

void Shell::ChooseProject() {
    const QString recent = settings_.hasRecent(1) ? settings_.RecentProj.front() : QString();
    const QString path = surroundings_.dialogs
                             .openFile({.title = QStringLiteral("Choose a project to open"),
                                        .filter = QStringLiteral("Quorvel Projects (*.qvl)|*.qvl|"),
                                        .folder = splitPath(recent).folder,
                                        .fileName = QString()})
                             .path;
    if (!path.isEmpty()) {
        openProject(path);
    }
}

void Shell::openRecent(int number) {
    const QString path = settings_.RecentProj.at(static_cast<std::size_t>(number - 1));
    const SplitPath split = splitPath(path);
    if (!resources::FileExists(split.folder + split.name)) {
        surroundings_.boxes.show(
            {.text = QStringLiteral("Could not locate:\n\n%1\n\nIf this is on a removable disk, "
                                    "please\nmake sure the disk is inserted in the drive.")
                         .arg(path),
             .title = QStringLiteral("File not found"),
             .icon = Box::Icon::exclamation});
        return;
    }
    openProject(path);
}

bool Shell::openProject(const QString& path) {
    const SplitPath split = fullPath(path);
    if (isMissing(split.folder + split.name)) {
        traps_.tellReadFailure(QStringLiteral("GetProjData"), store::ErrorNumber::fileNotFound,
                               split.folder + split.name);
        return false;
    }
    if (project_.ProjectOpen && !CloseProject()) {
        return false;
    }
    project_.ProjectFolder = resources::pathBytes(split.folder);
    project_.ProjectFileName = resources::pathBytes(split.name);
    showRequestedProject();
    return project_.ProjectOpen;
}

void Shell::showRequestedProject() {
    OpenProj window(
        project_,
        {.load = [this](LoadProgress& progress) { return loader_->GetProjData(progress); },
         .afterLoad = [this] { afterLoad(); }},
        main_.get());
    main_->showProjectFolder(resources::bytesText(project_.ProjectFolder));
    window.exec();
    if (!project_.ProjectOpen) {
        closeShellHalf();
        ResetShell();
        return;
    }
    project_.OldSettings = false;
}

void Shell::afterLoad() {
    activate();
    rememberOpenProject();
    showNotice(removeUnfinishedCopies(project_));
    player_->VerifyPlayer();
    if (project_.OldSettings) {
        tellOldSettings();
    }
    if (settings_.TipsAtStart == QStringLiteral("YesNow")) {
        settings_.TipsAtStart = QStringLiteral("Yes");
        guide_->showTipAtStart();
    }
}

void Shell::showNotice(const QString& passing) {
    const bool lasts = passing.isEmpty() && project_.LookingOn;
    main_->status().showNotice(
        lasts ? QStringLiteral("You only look at this project, which is open in another Quorvel.  "
                               "Nothing is saved.")
              : passing);
}

void Shell::rememberOpenProject() {
    settings_.rememberProject(
        resources::bytesText(project_.ProjectFolder + project_.ProjectFileName));
    settings_.SaveEditorSettings();
    main_->showRecentProjects(settings_);
    refreshCommands();
}

void Shell::tellOldSettings() {
    const QString common = QStringLiteral(
        "Quorvel has detected that this project was originally created with a previous version.  "
        "Until this project is updated, you will not be able to take advantage of some new "
        "features that are available.  ");
    const QString rest =
        project_.ReadOnlyProject
            ? QStringLiteral(
                  "Because the project files are 'Read Only' however, it is impossible to update "
                  "the project at this time.  If this project is located on a CD-ROM or other "
                  "non-writable media, please copy it to your hard drive so that the project can "
                  "be updated.")
            : QStringLiteral(
                  "To automatically update this project, click on the 'Project|Customize Player' "
                  "menu at your earliest convenience.  You will be guided through the simple, "
                  "one-time update process!");
    surroundings_.boxes.show(
        {.text = common + rest,
         .title = QStringLiteral("Old Settings Detected"),
         .icon = project_.ReadOnlyProject ? Box::Icon::exclamation : Box::Icon::information});
}

bool Shell::CloseProject() {
    const canvas::SaveOutcome outcome = keeper_->SaveScene();
    const bool loses = outcome == canvas::SaveOutcome::failed ||
                       (outcome == canvas::SaveOutcome::readOnly && keeper_->holdsUnsaved());
    if (loses && isUnattended_) {
        surroundings_.complain(
            QStringLiteral("The current scene could not be saved; its changes are lost."));
    }
    if (loses && !isUnattended_ &&
        surroundings_.boxes.show(
            {.text = QStringLiteral("The current scene could not be saved.\n\nDo you want to close "
                                    "the project anyway and lose the changes to this scene?"),
             .icon = Box::Icon::exclamation,
             .buttons = Box::Buttons::yesNo,
             .destroys = true}) != Answer::yes) {
        return false;
    }
    project_.ViewBorders = main_->view().bordersOn() ? 1 : 0;
    project_.ViewAnimations = main_->view().animationsOn() ? 1 : 0;
    traps_.writing([this] { store::WriteSecurity(project_); });
    traps_.writing([this] { project_.SaveProjectFile(); });
    traps_.writing([this] { project_.closeFiles(); });
    closeShellHalf();
    ResetShell();
    return true;
}

void Shell::closeShellHalf() {
    stopPreviews();
    preview_->StopMovie();
    main_->side().ObjAlert->hide();
    main_->side().ScnAlert->hide();
    main_->side().RestoreObjs->setEnabled(false);
    keeper_->projectClosed();
    main_->showProgramTitle();
    main_->side().showSceneNumber(0);
    main_->status().setCount(QStringLiteral("Objects:"));
    main_->view().ResetCanvas();
    project_.clear();
    scene_ = store::Scene{};
    models_.refresh();
    main_->lists().clear();
    showNotice();
    main_->showProjectFolder(QString());
    main_->ToggleAnimations(false);
    main_->ToggleBorders(false);
    main_->raise();
}

void Shell::ResetShell() {
    objectCount_ = 0;
    main_->status().show(canvas::emptyStatus());
    main_->side().disableNavigation();
    refreshCommands();
}

void Shell::rememberMainWindow() {
    const WindowPlace place = main_->place();
    const std::vector<ScreenPlace> screens = surroundings_.screens();
    const ScreenPlace* screen = screenOf(place.normal, screens);
    // A small screen gives the window its size; that of the author's larger one is kept.
    if (EditorRunning && screen != nullptr && screen->isLarge()) {
        settings_.rememberMainWindow(place);
    }
}

void Shell::ExitProgram() {
    if (shuttingDown_) {
        return;
    }
    shuttingDown_ = true;
    if (main_) {
        stopPreviews();
        if (project_.ProjectOpen && !CloseProject()) {
            shuttingDown_ = false;
            return;
        }
        guide_->closeWindows();
        rememberMainWindow();
        main_->showShutdown();
        preview_->StopMovie();
        forms::letEventsRun();
        EditorRunning = false;
        main_->hide();
        if (!preview_->CloseMediaEngine()) {
            surroundings_.boxes.show(
                {.text = QStringLiteral("Unable to Terminate DirectShow Engine Successfully."),
                 .title = QStringLiteral("Warning")});
        }
    }
    surroundings_.quit();
}

}  // namespace quorvel::shell
