#include "store/project.h"

#include <algorithm>
#include <array>
#include <exception>
#include <system_error>

#include "store/paths.h"
#include "store/runtime_error.h"

namespace quorvel::store {

namespace fs = std::filesystem;

namespace {
/// A view toggle is on at 1 alone.
std::int16_t toggle(std::int16_t value) {
    return value == 1 ? 1 : 0;
}
}  // namespace

VersionGate versionGate(std::int16_t projectVersion) {
    if (projectVersion > kProjectVersion) {
        return VersionGate::newer;
    }
    return projectVersion < kLowestProjectVersion ? VersionGate::tooOld : VersionGate::current;
}

fs::path Project::folder() const {
    return pathOf(ProjectFolder);
}

fs::path Project::storePath(int number) const {
    return resolvePath(folder(), "resource/Quorvel" + std::to_string(number) + ".dat");
}

fs::path Project::projectPath() const {
    return resolvePath(folder(), ProjectFileName);
}

ProjectRecord Project::openProjectFile() {
    projectFile.open(projectPath());
    InUseElsewhere = projectFile.lock() == FileLock::heldByAnother;
    return projectFile.read(1);
}

void Project::lookOn() {
    LookingOn = true;
    ReadOnlyProject = true;
    projectFile.close();
    projectFile.open(projectPath(), FileUse::readAlone);
}

FileUse Project::fileUse() const {
    return LookingOn ? FileUse::readAlone : FileUse::readAndWrite;
}

void Project::takeProjectRecord(const ProjectRecord& record) {
    Author = record.Author.text();
    AuthorEmail = record.AuthorEmail.text();
    ProjectNotes = record.ProjectNotes.text();
    SecurityCode = record.SecurityCode;
    SecurityOn = SecurityCode != 0;
    ProjectVersion = record.ProjectVersion;
    CurrentItem = record.CurrentItem;
    CurrentCueCard = record.CurrentCueCard;
    ViewBorders = record.ViewBorders;
    ViewAnimations = record.ViewAnimations;
    ViewLockObjects = record.ViewLockObjects;
}

void Project::ReadSceneList() {
    sceneFile.open(storePath(1), fileUse());
    NumberOfScenes = sceneFile.count();
    lists.scenes = readSceneNames(sceneFile);
}

void Project::ReadLocationList() {
    locationFile.open(storePath(2), fileUse());
    LocationCount = locationFile.count();
    readLocations(locationFile, lists);
}

void Project::ReadItemList() {
    itemFile.open(storePath(3), fileUse());
    ItemCount = itemFile.count();
    lists.items = readItemNames(itemFile);
    // The item editor shows item 1 when the project names none, and nothing without items.
    CurrentItem = ItemCount == 0 ? std::int16_t{0} : std::max<std::int16_t>(CurrentItem, 1);
}

bool Project::ReadGameInfo() {
    settingsFile.open(storePath(4), fileUse());
    if (settingsFile.size() != sizeof(GameSettingsRecord)) {
        return false;
    }
    const GameSettingsRecord record = settingsFile.read(1);
    GameTitle = record.GameTitle.text();
    PlayerName = record.PlayerExeName.text() + ".exe";
    return true;
}

void Project::openCards() {
    if (LookingOn) {
        cardFile.open(storePath(5), FileUse::readAlone);
    } else {
        cardFile.openOrCreate(storePath(5));
    }
}

void Project::ReadCueCardList() {
    std::error_code error;
    if (LookingOn && !fs::exists(storePath(5), error)) {
        CueCardCount = 0;  // it is made by those who may write
        lists.cards.clear();
        return;
    }
    openCards();
    CueCardCount = cardFile.count();
    lists.cards = readCardNames(cardFile);
    if (CueCardCount > 0) {
        CurrentCueCard = std::max<std::int16_t>(CurrentCueCard, 1);
    }
}

bool Project::hasUnwritableFile() const {
    const std::array<const RecordFileBase*, 6> files = {&projectFile, &sceneFile,    &locationFile,
                                                        &itemFile,    &settingsFile, &cardFile};
    return std::ranges::any_of(
        files, [](const RecordFileBase* file) { return file->isOpen() && !file->isWritable(); });
}

bool Project::currentSceneStored() const {
    return sceneFile.isOpen() && CurrentScene >= 1 && CurrentScene <= NumberOfScenes;
}

ProjectRecord Project::toRecord() const {
    ProjectRecord record{};
    record.Author = Author;
    record.AuthorEmail = AuthorEmail;
    record.ProjectNotes = ProjectNotes;
    record.CurrentScene = static_cast<std::int16_t>(CurrentScene);
    record.CurrentItem = CurrentItem;
    record.SecurityCode = SecurityCode;
    record.ItemCount = static_cast<std::int16_t>(ItemCount);
    record.LocationCount = static_cast<std::int16_t>(LocationCount);
    record.ProjectVersion = ProjectVersionOverride ? ProjectVersion : kProjectVersion;
    record.CurrentCueCard = CurrentCueCard;
    record.CueCardCount = static_cast<std::int16_t>(CueCardCount);
    record.ViewBorders = toggle(ViewBorders);
    record.ViewAnimations = toggle(ViewAnimations);
    record.ViewLockObjects = toggle(ViewLockObjects);  // has no button, nothing else changes it
    return record;
}

void Project::WriteNewProjectFile() {
    projectFile.openOrCreate(projectPath());
    projectFile.lock();
    projectFile.write(1, newRecord<ProjectRecord>());
}

void Project::SaveProjectFile() {
    if (CueCardCount > 0 && CurrentCueCard == 0) {
        CurrentCueCard = 1;
    }
    projectFile.write(1, toRecord());
    projectFile.close();
}

void Project::closeFiles() {
    const std::array<RecordFileBase*, 6> files = {&sceneFile,    &locationFile, &itemFile,
                                                  &settingsFile, &cardFile,     &projectFile};
    std::exception_ptr first;
    for (RecordFileBase* file : files) {
        try {
            file->close();
        } catch (const RuntimeError&) {
            first = first ? first : std::current_exception();
        }
    }
    if (first) {
        std::rethrow_exception(first);
    }
}

void Project::clear() {
    *this = Project{};
}

}  // namespace quorvel::store
