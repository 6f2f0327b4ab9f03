/// Opening a project: the gates, the list readers, the first scene.
#pragma once

#include <QString>

#include "canvas/scene_keeper.h"
#include "forms/record_lists.h"
#include "forms/traps.h"
#include "shell/main_window.h"

namespace quorvel::shell {

/// What watches an open: the progress window, or nobody for a new project.
class LoadProgress {
  public:
    LoadProgress() = default;
    LoadProgress(const LoadProgress&) = delete;
    LoadProgress& operator=(const LoadProgress&) = delete;
    virtual ~LoadProgress() = default;

    /// The operation that begins now.
    virtual void showStatus(const QString& text) = 0;
    /// One of the five list readers has finished.
    virtual void step() = 0;
    /// The open was given up; the window leaves before the author is told why.
    virtual void unload() = 0;
};

/// Owned by the shell; all references must outlive it.
class ProjectLoader {
  public:
    struct House {
        store::Project& project;
        forms::Boxes& boxes;
        forms::Traps& traps;
        forms::ProjectListModels& models;
        canvas::SceneKeeper& keeper;
        Main& main;
    };
    explicit ProjectLoader(const House& house) : house_(house) {}

    /// Opens the project that `ProjectFolder` and `ProjectFileName` name. True when it is open and
    /// its scene is on the canvas; otherwise the author knows why, all files are closed and no
    /// project is open.
    bool GetProjData(LoadProgress& progress);

    /// Opens the five stores for the project's life and fills all lists. True when all could be
    /// read. Also the way in for a project that was just created.
    bool ReadProjectLists(LoadProgress& progress);

    /// Takes the "Read only" attribute off the project file, or with an empty path off the fixed
    /// set of stores and folders. False when that failed, which the author has been told.
    bool ClearReadOnly(const std::filesystem::path& path);

    int StepsDone = 0;  ///< list readers finished, 0 to 5

  private:
    bool passVersionGate(std::int16_t version, LoadProgress& progress);
    bool passSecurity(LoadProgress& progress);
    /// Tells the author that the project is open elsewhere, who may look on or go on.
    void askAboutOtherEditor();
    bool load(LoadProgress& progress);
    void showFirstScene();
    void applyToggles();
    void clearFixedSet(QString& step);
    template <class Reader>
    bool runReader(const QString& procedure, const QString& status, LoadProgress& progress,
                   Reader reader);
    void giveUp();

    House house_;
    QString gateMessage_;
    int sceneToShow_ = 1;
    bool readOnlySeen_ = false;
};

}  // namespace quorvel::shell
