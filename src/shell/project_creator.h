/// Making a new project.
#pragma once

#include <filesystem>
#include <functional>

#include <QString>

#include "canvas/scene_keeper.h"
#include "forms/boxes.h"
#include "shell/project_loader.h"
#include "store/project.h"
#include "store/runtime_error.h"

namespace quorvel::shell {

/// Owned by the shell; all references must outlive it.
class ProjectCreator {
  public:
    struct House {
        store::Project& project;
        forms::Boxes& boxes;
        canvas::SceneKeeper& keeper;
        ProjectLoader& loader;
        Main& main;
        std::function<double()> random;        ///< from 0 up to but not including 1
        std::function<QString()> installPath;  ///< with a separator at its end
    };
    explicit ProjectCreator(House house);

    /// Makes the project `name`, without its ending, in `folder`, and opens it. No other project
    /// is open then. What stands in the way of its files is replaced, but for folders: whoever
    /// calls has asked the author. False when a step failed: the author has been told which and
    /// why, all files are closed, and what was made before stays on the disk.
    bool CreateProject(const QString& folder, const QString& name);

  private:
    void checkName(const QString& name);
    void clearProjectFile();
    void copyDelivered();
    void makeFiles();
    void open();
    void tell(const store::RuntimeError& error);

    House house_;
    QString step_;  // what is being done, for the author
    bool told_ = false;
};

}  // namespace quorvel::shell
