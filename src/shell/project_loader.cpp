#include "shell/project_loader.h"

#include <algorithm>

#include <QComboBox>

#include "forms/events.h"
#include "resources/path_text.h"
#include "store/file_attributes.h"
#include "store/paths.h"
#include "store/security.h"

namespace quorvel::shell {

namespace fs = std::filesystem;
using forms::Answer;
using forms::Box;
using forms::letEventsRun;

namespace {
const QString kGateTitle = QStringLiteral("Error loading project!");
}

bool ProjectLoader::GetProjData(LoadProgress& progress) {
    store::Project& project = house_.project;
    project.ProjectOpen = false;
    project.ProjectVersionOverride = false;
    gateMessage_.clear();
    readOnlySeen_ = false;
    StepsDone = 0;
    bool loaded = false;
    const bool untrapped = house_.traps.reading(QStringLiteral("GetProjData"), [&] {
        readOnlySeen_ = !ClearReadOnly(project.projectPath());
        const store::ProjectRecord record = project.openProjectFile();
        if (!passVersionGate(record.ProjectVersion, progress)) {
            return;
        }
        project.takeProjectRecord(record);
        sceneToShow_ = std::max<int>(record.CurrentScene, 1);
        progress.showStatus(QStringLiteral("Verifying Project Files"));
        if (passSecurity(progress)) {
            askAboutOtherEditor();
            loaded = load(progress);
        }
    });
    if (!loaded || !untrapped) {
        giveUp();
    }
    return loaded && untrapped;
}

bool ProjectLoader::passVersionGate(std::int16_t version, LoadProgress& progress) {
    store::Project& project = house_.project;
    switch (store::versionGate(version)) {
        case store::VersionGate::current:
            return true;
        case store::VersionGate::newer:
            gateMessage_ = QStringLiteral(
                "This project was created with a newer version of Quorvel.\n"
                "Although it might load, some parts may not be available for you to edit,\n"
                "and attempting to edit the project could cause Quorvel to crash.\n"
                "Would you like to continue loading the project anyway?");
            if (house_.boxes.show({.text = gateMessage_,
                                   .title = kGateTitle,
                                   .icon = Box::Icon::critical,
                                   .buttons = Box::Buttons::yesNo}) == Answer::yes) {
                project.ProjectVersionOverride = true;
                project.ProjectVersion = version;
                return true;
            }
            project.projectFile.close();
            progress.unload();
            house_.main.update();
            return false;
        case store::VersionGate::tooOld:
            break;
    }
    project.projectFile.close();
    progress.unload();
    house_.main.update();
    house_.boxes.show(
        {.text = QStringLiteral("This project was created with an older version of Quorvel.\n"
                                "A project update is necessary in order to use this\n"
                                "project with this version of Quorvel."),
         .title = kGateTitle,
         .icon = Box::Icon::critical});
    return false;
}

bool ProjectLoader::passSecurity(LoadProgress& progress) {
    store::Project& project = house_.project;
    const store::SecurityCheck check = store::checkSecurity(project);
    project.OldSettings = check.oldSettings;
    if (check.mismatches.empty()) {
        return true;
    }
    for (const int store : check.mismatches) {
        gateMessage_ += QStringLiteral(" Project Security Failure: Quorvel%1.dat\n")
                            .arg(QString::number(store));
    }
    project.projectFile.close();
    progress.unload();
    letEventsRun();
    house_.boxes.show({.text = gateMessage_, .title = kGateTitle, .icon = Box::Icon::critical});
    return false;
}

void ProjectLoader::askAboutOtherEditor() {
    store::Project& project = house_.project;
    if (project.InUseElsewhere &&
        house_.boxes.show(
            {.text = QStringLiteral("This project is open in another Quorvel already, perhaps of "
                                    "another user or on another computer:\n\n%1\n\nIf both of "
                                    "you change it, each writes over what the other has changed."
                                    "\n\nDo you want to edit it all the same?  Click 'No' to "
                                    "look at it only; nothing is saved then.")
                         .arg(resources::pathText(project.projectPath())),
             .title = QStringLiteral("Project in use"),
             .icon = Box::Icon::exclamation,
             .buttons = Box::Buttons::yesNo,
             .destroys = true}) != Answer::yes) {
        project.lookOn();
    }
}

bool ProjectLoader::load(LoadProgress& progress) {
    store::Project& project = house_.project;
    project.ProjectOpen = true;
    letEventsRun();
    // Who only looks on changes no attributes either.
    readOnlySeen_ = (!project.LookingOn && !ClearReadOnly({})) || readOnlySeen_;
    if (!ReadProjectLists(progress)) {
        return false;
    }
    // What the system says of a file and what it does when the file is opened may differ.
    readOnlySeen_ = readOnlySeen_ || (!project.LookingOn && project.hasUnwritableFile());
    showFirstScene();
    applyToggles();
    if (readOnlySeen_) {
        project.ReadOnlyProject = true;
        house_.boxes.show(
            {.text = QStringLiteral(
                 "One or more of your project's files have the 'Read Only' attribute set.  This "
                 "prevents changes you make to your project from being be saved, and can cause "
                 "Project Security failures (if on).\n\nIf this project is on a CD-ROM or other "
                 "non-writable media, you may browse the project.  However, you must copy it to "
                 "your hard drive if you wish to make any changes.\n"),
             .title = QStringLiteral("WARNING: 'Read Only' attribute detected"),
             .icon = Box::Icon::exclamation});
    }
    return true;
}

void ProjectLoader::showFirstScene() {
    house_.main.lists().Combo1->setCurrentIndex(0);
    house_.main.side().showSceneNumber(sceneToShow_);
    house_.project.ProjectLoading = true;
    house_.keeper.LoadScene(sceneToShow_);
    house_.keeper.showScene();
}

void ProjectLoader::applyToggles() {
    // The third toggle has no button: its value is only carried from one close to the next.
    house_.main.ToggleBorders(house_.project.ViewBorders == 1);
    house_.main.ToggleAnimations(house_.project.ViewAnimations == 1);
}

template <class Reader>
bool ProjectLoader::runReader(const QString& procedure, const QString& status,
                              LoadProgress& progress, Reader reader) {
    progress.showStatus(status);
    const bool done = house_.traps.reading(procedure, reader);
    if (done) {
        ++StepsDone;
        progress.step();
    }
    return done;
}

bool ProjectLoader::ReadProjectLists(LoadProgress& progress) {
    store::Project& project = house_.project;
    house_.main.showProjectFolder(resources::bytesText(project.ProjectFolder));
    letEventsRun();
    const auto text = [](const char* latin) { return QString::fromLatin1(latin); };
    const bool all =
        runReader(text("ReadSceneList"), text("Reading Scene Information"), progress,
                  [&] { project.ReadSceneList(); }) &&
        runReader(text("ReadLocationList"), text("Reading Location Information"), progress,
                  [&] { project.ReadLocationList(); }) &&
        runReader(text("ReadItemList"), text("Reading Inventory Item Information"), progress,
                  [&] { project.ReadItemList(); }) &&
        runReader(text("ReadGameInfo"), text("Reading General Game Information"), progress,
                  [&] {
                      if (project.ReadGameInfo()) {
                          house_.main.showGameTitle(QString::fromStdString(project.GameTitle));
                      }
                  }) &&
        runReader(text("ReadCueCardList"), text("Reading Cue Card Information"), progress,
                  [&] { project.ReadCueCardList(); });
    house_.models.refresh();
    house_.main.lists().showProject();
    return all;
}

bool ProjectLoader::ClearReadOnly(const fs::path& path) {
    QString step = QStringLiteral("Project File");
    try {
        if (path.empty()) {
            clearFixedSet(step);
        } else {
            store::clearReadOnlyAttribute(path, house_.project.folder());
        }
        return true;
    } catch (const store::RuntimeError& error) {
        house_.boxes.tell(QStringLiteral("Error %1 :%2 / Line = %3")
                              .arg(QString::number(error.number()),
                                   QString::fromStdString(error.description()), step));
        return step == QStringLiteral("Saved Folder");
    }
}

void ProjectLoader::clearFixedSet(QString& step) {
    const store::Project& project = house_.project;
    for (int number = 1; number <= 5; ++number) {
        step = QStringLiteral("Quorvel%1.dat").arg(QString::number(number));
        const fs::path store = project.storePath(number);
        std::error_code error;
        // The card store alone may be missing; its reader makes it.
        if (number < 5 || fs::exists(store, error)) {
            store::clearReadOnlyAttribute(store, project.folder());
        }
    }
    const auto clearFolder = [&](const char* name, const char* folder) {
        step = QString::fromLatin1(name);
        store::clearReadOnlyAttribute(store::resolvePath(project.folder(), folder),
                                      project.folder());
    };
    clearFolder("Resource Folder", "resource");
    clearFolder("Resource/GFX Folder", "resource/gfx");
    clearFolder("Resource/MMedia Folder", "resource/mmedia");
    std::error_code error;
    if (fs::is_directory(store::resolvePath(project.folder(), "Saved"), error)) {
        house_.boxes.tell(QStringLiteral("Saved folder exists"));
        clearFolder("Saved Folder", "Saved");
    }
}

void ProjectLoader::giveUp() {
    house_.traps.reading(QStringLiteral("GetProjData"), [&] { house_.project.closeFiles(); });
    house_.project.ProjectOpen = false;
}

}  // namespace quorvel::shell
