/// The shell: owns the project, the scene, the settings and the windows, and ties them together.
///
/// States: starting (splash), no project, project open, shutting down. A project that opens moves
/// it from the second to the third, `CloseProject` back, `ExitProgram` from either to the last.
#pragma once

#include <functional>
#include <map>
#include <memory>

#include <QObject>
#include <QTimer>

#include "canvas/object_actions.h"
#include "canvas/scene_keeper.h"
#include "forms/file_choice.h"
#include "forms/intake_boxes.h"
#include "forms/pictures.h"
#include "forms/preview.h"
#include "forms/record_lists.h"
#include "forms/traps.h"
#include "shell/absence.h"
#include "shell/author_guide.h"
#include "shell/commands.h"
#include "shell/editor_settings.h"
#include "shell/main_window.h"
#include "shell/navigation.h"
#include "shell/player_keeper.h"
#include "shell/project_creator.h"
#include "shell/project_loader.h"
#include "shell/scene_editors.h"
#include "shell/surroundings.h"
#include "store/project.h"
#include "store/scene.h"

namespace quorvel::shell {

class Shell : public QObject {
    Q_OBJECT
  public:
    explicit Shell(Surroundings surroundings);
    ~Shell() override;

    /// False when the screen is too small and the author chose not to go on.
    bool CheckRes();

    /// Loads the heavy windows; the steps of the splash's bar.
    std::vector<std::function<void()>> loadForms();

    /// Reads the settings, shows the main window and opens the projects of the command line. Runs
    /// once, after the forms were loaded.
    void InitializeEditor();

    /// Lets the author choose a project and opens it.
    void ChooseProject();

    /// Opens the project file at `path`, after closing the one that is open. True when it is open.
    bool openProject(const QString& path);

    /// Saves and closes the project that is open. False when the author kept it open because its
    /// scene could not be saved.
    bool CloseProject();

    /// Ends the process in order.
    void ExitProgram();

    /// Ends the process as the system asks, with nobody there: a property window is left as by OK,
    /// other windows and boxes as by Escape, and what is lost by that is told in lines. A project
    /// that is being opened and a file that is being copied are waited for.
    void endByRequest();

    /// Saves what is in memory because the session ends, as far as that is known now: it may go on
    /// after all. With `mayAsk` the author is asked what becomes of the changes in an open property
    /// window. False when the author, or a failure that was told, wants the session to go on.
    bool saveForSession(bool mayAsk);

    /// Brings the main window to the front.
    void activate();

    /// Tells a line to whoever started the program.
    void complain(const QString& line) { surroundings_.complain(line); }

    /// Comes to the front and opens these projects, one after another, each as soon as no modal
    /// window, no menu, no opening and no drag is under way. The one that is open stays as it is.
    void openWhenFree(const QStringList& projects);

    void ToggleAnimations(bool on);
    void ToggleBorders(bool on);

    /// Shows the help on `topic`; Quick Tip `number`, 1 to 21, unless it is turned off.
    void ShowHelp(forms::HelpTopic topic) { guide_->ShowHelp(topic); }
    void ShowQuickTip(int number) { guide_->ShowQuickTip(number); }

    // What is owned here, for those who are handed the shell.
    [[nodiscard]] store::Project& project() { return project_; }
    [[nodiscard]] store::Scene& scene() { return scene_; }
    [[nodiscard]] EditorSettings& settings() { return settings_; }
    [[nodiscard]] Main& mainWindow() { return *main_; }
    [[nodiscard]] canvas::ObjectActions& actions() { return *actions_; }
    [[nodiscard]] forms::FileChoice& fileChoice() { return fileChoice_; }
    [[nodiscard]] forms::Guide& guide() { return *guide_; }
    [[nodiscard]] forms::Preview& preview() { return *preview_; }

    QString InstallPath;         ///< with a separator at its end
    QString HelpFile;            ///< the first page of the help
    bool EditorRunning = false;  ///< from the end of the start to the shutdown

  private:
    void initialize();
    void rememberMainWindow();
    [[nodiscard]] bool isFree() const;
    void openWaiting();
    [[nodiscard]] bool isOpen(const QString& path) const;
    void loadMain();
    void loadPreview();
    void loadGuide();
    void loadActions();
    void loadCreator();
    void stopPreviews();
    void answerCommands();
    void runCommand(Command command);
    void refreshCommands();
    void openCommandLine();
    void openRecent(int number);
    void showRequestedProject();
    void afterLoad();
    void tellOldSettings();
    /// A line below the canvas until the next scene is shown; without one, what lasts.
    void showNotice(const QString& passing = {});
    void ResetShell();
    void closeShellHalf();
    void RunTool(int number);
    void showNewProject();
    bool createProject(const QString& folder, const QString& name);
    void rememberOpenProject();
    void helpMenu(const std::function<void()>& routine);
    void showSecurity();
    void showAddScene();
    void showEditorOptions();
    void insertObject();

    AttendedBoxes boxes_;
    Surroundings surroundings_;
    EditorSettings settings_;
    store::Project project_;
    store::Scene scene_;
    forms::PictureStore pictures_;
    forms::Traps traps_;
    forms::ProjectListModels models_;
    forms::IntakeBoxes intakeBoxes_;
    resources::Intake intake_;
    forms::FileChoice fileChoice_;
    std::unique_ptr<Main> main_;
    std::unique_ptr<forms::Preview> preview_;
    std::unique_ptr<AuthorGuide> guide_;
    std::unique_ptr<canvas::SceneKeeper> keeper_;
    std::unique_ptr<canvas::ObjectActions> actions_;
    std::unique_ptr<SceneEditors> editors_;
    std::unique_ptr<Navigation> navigation_;
    std::unique_ptr<ProjectLoader> loader_;
    std::unique_ptr<ProjectCreator> creator_;
    std::unique_ptr<PlayerKeeper> player_;
    std::map<Command, std::function<void()>> answers_;
    int objectCount_ = 0;
    QStringList waiting_;  ///< projects that another start of the editor has sent
    QTimer askAgain_;      ///< runs while they wait
    bool isStarting_ = false;
    bool isOpening_ = false;  ///< one of those that waited
    bool shuttingDown_ = false;
    bool isUnattended_ = false;  ///< the system ends the editor, nobody answers any more
};

}  // namespace quorvel::shell
