/// The main window: menus, tool bar, the scene canvas, status lines.
///
/// Data flow: the shell fills project and scene and calls the routines here; what the author
/// chooses leaves as `commandChosen`. The window decides nothing.
#pragma once

#include <set>

#include <QMainWindow>

#include "canvas/scene_view.h"
#include "forms/record_lists.h"
#include "shell/commands.h"
#include "shell/editor_settings.h"
#include "shell/main_lists.h"
#include "shell/screens.h"
#include "shell/side_panel.h"
#include "shell/status_lines.h"

class QAction;
class QLabel;
class QMenu;
class QToolBar;

namespace quorvel::shell {

/// Windows and routines that the commands depend on.
struct CommandState {
    bool projectOpen = false;
    bool sceneStored = false;  ///< the scene that is shown has a record of its own
    bool roomForObject = false;
    std::set<Command> available;  ///< commands that somebody answers
};

class Main : public QMainWindow {
    Q_OBJECT
  public:
    /// All references must outlive the window.
    Main(store::Project& project, store::Scene& scene, forms::PictureStore& pictures,
         forms::ProjectListModels& models);

    [[nodiscard]] canvas::SceneView& view() { return *view_; }
    [[nodiscard]] SidePanel& side() { return *side_; }
    [[nodiscard]] StatusLines& status() { return *status_; }
    /// The widget over whose middle movies are shown.
    [[nodiscard]] QWidget& movieArea() { return *movieArea_; }
    [[nodiscard]] MainLists& lists() { return *lists_; }

    /// The size on a large screen when it opens for the first time, without the frame.
    [[nodiscard]] QSize usualSize() const;
    /// Shows the window there.
    void showAt(const WindowPlace& place);
    /// Where it stands.
    [[nodiscard]] WindowPlace place() const;

    /// Enables each entry whose time it is and that somebody answers.
    void applyCommandState(const CommandState& state, const EditorSettings& settings);

    /// Captions of the recent projects in the File menu.
    void showRecentProjects(const EditorSettings& settings);

    /// The top-level entry that names the project folder; empty for none.
    void showProjectFolder(const QString& folder);

    /// The title bar: the program alone, or with the title of a game, which may be empty.
    void showProgramTitle();
    void showGameTitle(const QString& gameTitle);

    /// The two toggles of the tool bar and what they do on the canvas.
    void ToggleAnimations(bool on);
    void ToggleBorders(bool on);

    /// Covers the window while the process ends.
    void showShutdown();

  Q_SIGNALS:
    void commandChosen(quorvel::shell::Command command);
    /// The author closes the window; the window itself stays.
    void closeAsked();

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    struct Entry {
        QAction* action;
        Command command;
        Availability availability;
    };
    void buildMenus();
    void buildToolBar();
    void buildCentre(store::Project& project, store::Scene& scene, forms::PictureStore& pictures);
    QAction* addEntry(const QString& name, const QString& text, Command command,
                      Availability availability, EntryKind kind);
    [[nodiscard]] bool isTime(const Entry& entry, const CommandState& state,
                              const EditorSettings& settings) const;
    /// What the status line says of an entry that is off: what the author can do, or that its
    /// window is still to come.
    [[nodiscard]] static QString whyOff(const Entry& entry, const CommandState& state);
    [[nodiscard]] QAction* action(const QString& name) const;

    std::vector<Entry> entries_;
    QToolBar* toolBar_ = nullptr;
    QAction* folder_ = nullptr;
    canvas::SceneView* view_ = nullptr;
    QWidget* movieArea_ = nullptr;
    SidePanel* side_ = nullptr;
    StatusLines* status_ = nullptr;
    MainLists* lists_ = nullptr;
    QLabel* shutDwn_ = nullptr;
};

}  // namespace quorvel::shell
