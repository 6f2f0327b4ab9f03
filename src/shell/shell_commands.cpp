// What the commands of the main window run.
#include <QDir>

#include "canvas/new_scene_form.h"
#include "game/security_editor.h"
#include "shell/editor_options.h"
#include "shell/new_project.h"
#include "shell/path_text.h"
#include "shell/shell.h"

namespace quorvel::shell {

using forms::Box;

void Shell::answerCommands() {
    answers_ = {
        {Command::newProject, [this] { showNewProject(); }},
        {Command::openProject, [this] { ChooseProject(); }},
        {Command::closeProject, [this] { CloseProject(); }},
        {Command::exitProgram, [this] { ExitProgram(); }},
        {Command::projectSecurity, [this] { showSecurity(); }},
        {Command::addScene, [this] { showAddScene(); }},
        {Command::sceneProperties, [this] { editors_->showSceneProperties(); }},
        {Command::insertObject, [this] { insertObject(); }},
        {Command::runPlayer, [this] { player_->RunPlayer(PlayerKeeper::AskedBy::menu); }},
        {Command::runPlayerByButton,
         [this] { player_->RunPlayer(PlayerKeeper::AskedBy::toolBar); }},
        {Command::editorOptions, [this] { showEditorOptions(); }},
        {Command::tipOfTheDay, [this] { helpMenu([this] { guide_->showTipOfTheDay(); }); }},
        {Command::helpContents,
         [this] { helpMenu([this] { ShowHelp(forms::HelpTopic::FirstPage); }); }},
        {Command::visitWebsite, [this] { helpMenu([this] { guide_->visitWebsite(); }); }},
        {Command::about, [this] { helpMenu([this] { guide_->showAbout(); }); }},
        {Command::toggleAnimations, [this] { ToggleAnimations(!main_->view().animationsOn()); }},
        {Command::toggleBorders, [this] { ToggleBorders(!main_->view().bordersOn()); }},
    };
    for (const Command command : {Command::recentProject1, Command::recentProject2,
                                  Command::recentProject3, Command::recentProject4}) {
        answers_[command] = [this, command] { openRecent(recentNumber(command)); };
    }
    for (const Command command : {Command::runTool1, Command::runTool2, Command::runTool3,
                                  Command::runTool4, Command::runTool5, Command::runTool6}) {
        answers_[command] = [this, command] { RunTool(toolNumber(command)); };
    }
}

void Shell::runCommand(Command command) {
    if (const auto answer = answers_.find(command); answer != answers_.end()) {
        answer->second();
    }
}

void Shell::refreshCommands() {
    CommandState state;
    state.projectOpen = project_.ProjectOpen && !project_.ProjectLoading;
    state.sceneStored = state.projectOpen && project_.currentSceneStored();
    state.roomForObject = objectCount_ < store::kSlotCount;
    for (const auto& [command, answer] : answers_) {
        state.available.insert(command);
    }
    main_->applyCommandState(state, settings_);
    actions_->setSceneEntries(state.sceneStored, state.roomForObject);
}

void Shell::ToggleAnimations(bool on) {
    main_->ToggleAnimations(on);
}

void Shell::ToggleBorders(bool on) {
    main_->ToggleBorders(on);
}

void Shell::showNewProject() {
    // Beside the project that the author worked on last.
    QDir start(settings_.hasRecent(1) ? splitPath(settings_.RecentProj.front()).folder
                                      : QDir::homePath());
    if (settings_.hasRecent(1) && !start.cdUp()) {
        start.setPath(QDir::homePath());
    }
    NewProject window(
        {.dialogs = surroundings_.dialogs,
         .boxes = surroundings_.boxes,
         .startFolder = start.path(),
         .create = [this](const QString& folder,
                          const QString& name) { return createProject(folder, name); },
         .help = forms::helpOn(*guide_, forms::HelpTopic::NewProject)},
        main_.get());
    if (window.exec() == QDialog::Accepted) {
        ShowQuickTip(forms::TipBefore::newProject);
    }
}

bool Shell::createProject(const QString& folder, const QString& name) {
    if (shuttingDown_) {  // the system's request came while the window painted its label
        return false;
    }
    if (!creator_->CreateProject(folder, name)) {
        closeShellHalf();
        ResetShell();
        return false;
    }
    if (project_.ProjectOpen) {  // the system may have ended the editor while the scene was shown
        rememberOpenProject();
    }
    return true;
}

void Shell::helpMenu(const std::function<void()>& routine) {
    try {
        routine();
    } catch (const store::RuntimeError& error) {
        surroundings_.boxes.tell(
            QStringLiteral("Error %1 (%2)")
                .arg(QString::number(error.number()), QString::fromStdString(error.description())));
    }
}

void Shell::showSecurity() {
    ShowQuickTip(forms::TipBefore::projectSecurity);
    game::ProjSecurity window(project_, surroundings_.boxes, surroundings_.random,
                              forms::helpOn(*guide_, forms::HelpTopic::ProjSecurity), main_.get());
    window.exec();
}

void Shell::showAddScene() {
    canvas::NewScenefrm window(*keeper_, forms::helpOn(*guide_, forms::HelpTopic::NewScenefrm),
                               main_.get());
    window.exec();
}

void Shell::showEditorOptions() {
    EdOptions window(settings_, forms::helpOn(*guide_, forms::HelpTopic::EdOptions), main_.get());
    window.exec();
}

void Shell::insertObject() {
    actions_->InsertX = 0;
    actions_->InsertY = 0;
    actions_->showNewLink();
}

void Shell::RunTool(int number) {
    const QString program = settings_.RunProgram.at(static_cast<std::size_t>(number - 1));
    if (!surroundings_.programs.start(program)) {
        surroundings_.boxes.show(
            {.text = QStringLiteral("Could not open \"%1\"\nPlease check the path and try again.")
                         .arg(program),
             .title = QStringLiteral("Error Opening File"),
             .icon = Box::Icon::critical});
    }
}

}  // namespace quorvel::shell
