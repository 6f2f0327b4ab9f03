/// The project that is open: its state, its six files, its lists.
///
/// The routines here do one step each and throw `RuntimeError`; the order of the steps, the boxes
/// and the windows belong to the shell.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "store/record_file.h"
#include "store/record_lists.h"
#include "store/records.h"

namespace quorvel::store {

/// Version of the file set that this release writes, and the lowest that it reads.
inline constexpr std::int16_t kProjectVersion = 300;
inline constexpr std::int16_t kLowestProjectVersion = 5;

/// What the version gate says of a project.
enum class VersionGate { tooOld, current, newer };
VersionGate versionGate(std::int16_t projectVersion);

/// Owned by the shell, one for the life of the process. All counts and numbers are those of the
/// project that is open, or that was open last.
class Project {
  public:
    // The state, under the names that the whole program uses.
    std::string ProjectFolder;    ///< UTF-8, with a separator at its end
    std::string ProjectFileName;  ///< without folder
    bool ProjectOpen = false;
    bool ProjectLoading = false;   ///< an open is under way
    bool ReadOnlyProject = false;  ///< the author is browsing; told once
    bool InUseElsewhere = false;   ///< another editor had the project open when it was opened
    bool LookingOn = false;        ///< the author only looks: every file refuses to be written
    bool OldSettings = false;      ///< the settings predate the custom-files scheme
    bool SecurityOn = false;
    std::int16_t SecurityCode = 0;  ///< 0 off, else 1 to 5000
    bool ProjectVersionOverride = false;
    std::int16_t ProjectVersion = kProjectVersion;  ///< as read; kept when overridden

    std::string Author;
    std::string AuthorEmail;
    std::string ProjectNotes;
    int CurrentScene = 0;         ///< 0 when no scene is on the canvas
    SceneRecord CurrentRecord{};  ///< of the current scene, as it was read or written last
    std::int16_t CurrentItem = 0;
    std::int16_t CurrentCueCard = 0;
    int NumberOfScenes = 0;
    int ItemCount = 0;
    int LocationCount = 0;
    int CueCardCount = 0;
    std::int16_t ViewBorders = 0;
    std::int16_t ViewAnimations = 0;
    std::int16_t ViewLockObjects = 0;

    std::string GameTitle;
    std::string PlayerName;  ///< with ".exe"

    ProjectLists lists;

    RecordFile<ProjectRecord> projectFile;
    RecordFile<SceneRecord> sceneFile;
    RecordFile<LocationRecord> locationFile;
    RecordFile<ItemRecord> itemFile;
    RecordFile<GameSettingsRecord> settingsFile;
    RecordFile<CueCardRecord> cardFile;

    /// The project folder as a path.
    [[nodiscard]] std::filesystem::path folder() const;
    /// Path of store `number`, 1 to 5, as spelt on disk.
    [[nodiscard]] std::filesystem::path storePath(int number) const;
    /// Path of the project file, as spelt on disk.
    [[nodiscard]] std::filesystem::path projectPath() const;

    /// Opens the project file and reads its record. The file stays open, and other editors are told
    /// so while it does; `InUseElsewhere` says whether one of them was there first.
    ProjectRecord openProjectFile();
    /// Lets the author look on: nothing of this project is written until it is closed. To be called
    /// before the lists are read.
    void lookOn();
    /// Takes the texts, the version, the security code, the current item and card and the view
    /// toggles of `record`. The current scene is not taken: it is the one that gets loaded.
    void takeProjectRecord(const ProjectRecord& record);

    // The list readers: each opens its store for the project's life and fills its list. Only
    // `ReadCueCardList` creates a missing store.
    void ReadSceneList();
    void ReadLocationList();
    void ReadItemList();
    /// Returns whether the settings were read: their file must have the exact length.
    bool ReadGameInfo();
    void ReadCueCardList();

    /// True when one of the open files refuses to be written.
    [[nodiscard]] bool hasUnwritableFile() const;

    /// True when the scene on the canvas has a record of its own in the store.
    [[nodiscard]] bool currentSceneStored() const;

    /// Creates the project file with the values of a new project and leaves it open.
    void WriteNewProjectFile();
    /// Writes the project record and closes the project file.
    void SaveProjectFile();

    /// Closes all six files, open or not. The first error is thrown when all are closed.
    void closeFiles();

    /// Back to the state without a project; the files must be closed.
    void clear();

  private:
    [[nodiscard]] ProjectRecord toRecord() const;
    [[nodiscard]] FileUse fileUse() const;
    void openCards();
};

}  // namespace quorvel::store
