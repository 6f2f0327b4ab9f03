#include "shell/project_creator.h"

#include <span>
#include <utility>

#include "forms/events.h"
#include "resources/file_names.h"
#include "resources/path_text.h"
#include "resources/player_file.h"
#include "resources/safe_copy.h"
#include "shell/project_place.h"
#include "store/creation.h"
#include "store/paths.h"
#include "store/security.h"

namespace quorvel::shell {

namespace fs = std::filesystem;
using forms::Box;
using store::ErrorNumber;
using store::RuntimeError;

namespace {

/// A new project opens without a progress window.
class NoProgress : public LoadProgress {
  public:
    void showStatus(const QString& /*text*/) override {}
    void step() override {}
    void unload() override {}
};

}  // namespace

ProjectCreator::ProjectCreator(House house) : house_(std::move(house)) {}

bool ProjectCreator::CreateProject(const QString& folder, const QString& name) {
    store::Project& project = house_.project;
    project.clear();
    // An end that the system asks for waits until the project can be closed in order.
    project.ProjectLoading = true;
    told_ = false;
    try {
        project.ProjectFolder = resources::pathBytes(fullFolder(folder));
        project.ProjectFileName = (name + QStringLiteral(".qvl")).toStdString();
        house_.main.showProjectFolder(resources::bytesText(project.ProjectFolder));
        checkName(name);
        step_ = QStringLiteral("Making the folders");
        store::makeProjectFolders(project);
        copyDelivered();
        makeFiles();
        open();
        return true;
    } catch (const RuntimeError& error) {
        if (!told_) {
            tell(error);
        }
    }
    try {
        project.closeFiles();
    } catch (const RuntimeError&) {
        // The first failure has been told, and there is nothing in these files to lose.
    }
    return false;
}

void ProjectCreator::tell(const RuntimeError& error) {
    // The system's words for a folder that is not empty do not say so.
    std::error_code ignored;
    const bool isInTheWay =
        (error.code() == ErrorNumber::accessError || error.code() == ErrorNumber::fileExists) &&
        store::textOf(error.file()).starts_with(house_.project.ProjectFolder) &&
        fs::exists(fs::symlink_status(error.file(), ignored));
    const QString hint =
        isInTheWay
            ? QStringLiteral("\nIt is in the folder already.  Please choose an empty folder.")
            : QString();
    house_.boxes.show(
        {.text = QStringLiteral("The new project could not be created.\n\nStep: %1\n%2\n\n"
                                "Error %3 (%4)%5\n\nWhat was made before remains in the folder.")
                     .arg(step_, resources::pathText(error.file()), QString::number(error.number()),
                          QString::fromStdString(error.description()), hint),
         .title = QStringLiteral("New Project"),
         .icon = Box::Icon::exclamation});
}

/// The name must be a file of that folder.
void ProjectCreator::checkName(const QString& name) {
    step_ = QStringLiteral("Checking the project's file name");
    const std::string& file = house_.project.ProjectFileName;
    if (name.trimmed().isEmpty() ||
        resources::nameFault(QString::fromStdString(file)) != resources::NameFault::none) {
        throw RuntimeError(ErrorNumber::badFileName, store::pathOf(file));
    }
}

/// A file of that name is replaced, the author agreed to it; what a link leads to stays.
void ProjectCreator::clearProjectFile() {
    std::error_code error;
    const fs::path path = house_.project.projectPath();
    if (fs::is_directory(fs::symlink_status(path, error))) {
        throw RuntimeError(ErrorNumber::accessError, path);
    }
    fs::remove(path, error);
    if (error) {
        throw RuntimeError(store::errorNumberOf(error), path);
    }
}

void ProjectCreator::copyDelivered() {
    const fs::path master = resources::defaultPlayerPath(house_.installPath());
    const auto target = [this](const char* name) {
        step_ = QStringLiteral("Copying '%1'").arg(QString::fromLatin1(name));
        return store::resolvePath(house_.project.folder(), name);
    };
    resources::copyPlayer(master, target(kDelivered.front()));
    for (const char* name : std::span(kDelivered).subspan(1)) {
        resources::copySafely(store::resolvePath(master.parent_path(), name), target(name));
    }
}

void ProjectCreator::makeFiles() {
    store::Project& project = house_.project;
    step_ = QStringLiteral("Writing the project file");
    clearProjectFile();
    project.WriteNewProjectFile();
    project.takeProjectRecord(store::newRecord<store::ProjectRecord>());
    // The file holds 1 until the first close, which drops the code since security is off.
    project.SecurityOn = false;
    project.SecurityCode = static_cast<std::int16_t>(
        static_cast<int>(house_.random() * store::kHighestSecurityCode) + 1);
    step_ = QStringLiteral("Writing the data files");
    store::WriteNewStores(project);
}

void ProjectCreator::open() {
    store::Project& project = house_.project;
    step_ = QStringLiteral("Opening the new project");
    forms::letEventsRun();
    NoProgress progress;
    if (!house_.loader.ReadProjectLists(progress)) {
        told_ = true;
        throw RuntimeError(ErrorNumber::deviceError);
    }
    project.ProjectOpen = true;
    project.ProjectLoading = false;
    house_.keeper.LoadScene(1);
    house_.keeper.showScene();
}

}  // namespace quorvel::shell
