#include "store/project.h"

#include <gtest/gtest.h>

#include "store/golden_records.h"
#include "store/project_stage.h"
#include "store/runtime_error.h"
#include "store/scene_store.h"
#include "store/security.h"
#include "support/file_bytes.h"
#include "support/mounts.h"

namespace quorvel::store {
namespace {

namespace fs = std::filesystem;
using test::differences;
using test::ProjectBuilder;
using test::readBytes;
using test::readInt;
using test::ReadOnlyMount;
using test::snapshotOf;
using test::TempFolder;
using test::TestProject;

class ProjectTest : public ProjectStage {
  protected:
    /// What the orderly close of a project does to its files.
    void close() {
        WriteSecurity(project_);
        project_.SaveProjectFile();
        project_.closeFiles();
    }
};

TEST_F(ProjectTest, OpensWithEverythingThatItsFilesHold) {
    open(ProjectBuilder()
             .title("Castle")
             .author("Ann", "ann@example.org", "First draft")
             .scenes(3)
             .items(2)
             .locations(4)
             .cards(1)
             .securityCode(1234));
    EXPECT_EQ(project_.Author, "Ann");
    EXPECT_EQ(project_.AuthorEmail, "ann@example.org");
    EXPECT_EQ(project_.ProjectNotes, "First draft");
    EXPECT_EQ(project_.ViewBorders, 1);
    EXPECT_EQ(project_.ViewAnimations, 0);
    EXPECT_EQ(project_.ViewLockObjects, 1);
    EXPECT_EQ(project_.ProjectVersion, 300);
    EXPECT_TRUE(project_.SecurityOn);
    EXPECT_EQ(project_.GameTitle, "Castle");
    EXPECT_EQ(project_.PlayerName, "Game.exe");
    EXPECT_EQ(project_.NumberOfScenes, 3);
    EXPECT_EQ(project_.ItemCount, 2);
    EXPECT_EQ(project_.LocationCount, 4);
    EXPECT_EQ(project_.CueCardCount, 1);
    EXPECT_FALSE(project_.hasUnwritableFile());
}

TEST_F(ProjectTest, TheVersionGateHasItsBounds) {
    EXPECT_EQ(versionGate(-32768), VersionGate::tooOld);
    EXPECT_EQ(versionGate(0), VersionGate::tooOld);
    EXPECT_EQ(versionGate(4), VersionGate::tooOld);
    EXPECT_EQ(versionGate(5), VersionGate::current);
    EXPECT_EQ(versionGate(299), VersionGate::current);
    EXPECT_EQ(versionGate(300), VersionGate::current);
    EXPECT_EQ(versionGate(301), VersionGate::newer);
    EXPECT_EQ(versionGate(32767), VersionGate::newer);
}

TEST_F(ProjectTest, OpeningAndClosingWithoutAnEditChangesNothing) {
    build(ProjectBuilder()
              .scenes(3)
              .items(2)
              .locations(2)
              .cards(2)
              .securityCode(77)
              .currentItem(2)
              .currentCueCard(2)
              .currentScene(2)
              .mapImage("map.bmp"));
    const auto before = snapshotOf(folder_.path());
    files_.openIn(project_);
    EXPECT_EQ(differences(before, snapshotOf(folder_.path())), "");
    Scene scene;
    LoadScene(project_, scene, 2);
    SaveScene(project_, scene, 2);
    close();
    EXPECT_EQ(differences(before, snapshotOf(folder_.path())), "");
}

TEST_F(ProjectTest, TheProjectFileIsWrittenFromTheState) {
    open(ProjectBuilder().scenes(2).items(3).locations(4).cards(5));
    project_.Author = std::string(50, 'a') + "cut";
    project_.AuthorEmail = "mail";
    project_.ProjectNotes = std::string(199, 'n') + "!";
    project_.CurrentScene = 2;
    project_.CurrentItem = 3;
    project_.SecurityCode = 44;
    project_.CurrentCueCard = 4;
    project_.ViewBorders = 0;
    project_.ViewAnimations = 1;
    project_.ViewLockObjects = 0;
    test::patchBytes(files_.projectPath(), 316, std::string(20, 'x'));
    project_.SaveProjectFile();
    EXPECT_FALSE(project_.projectFile.isOpen());
    std::string expected =
        std::string(50, 'a') + golden::padded("mail", 50) + std::string(199, 'n') + "!";
    for (const int number : {2, 3, 44, 3, 4, 300, 4, 5, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0}) {
        expected += golden::intBytes(static_cast<std::int16_t>(number));
    }
    EXPECT_EQ(readBytes(files_.projectPath()), expected);
}

TEST_F(ProjectTest, ANewerProjectKeepsItsNumberOnlyWhenOverridden) {
    open(ProjectBuilder().version(412));
    EXPECT_EQ(project_.ProjectVersion, 412);
    project_.ProjectVersionOverride = true;
    close();
    EXPECT_EQ(readInt(files_.projectPath(), 310), 412);
}

TEST_F(ProjectTest, EveryOtherProjectIsSavedAsThisRelease) {
    for (const int version : {5, 120, 300}) {
        const TempFolder folder;
        const TestProject files =
            ProjectBuilder().version(static_cast<std::int16_t>(version)).build(folder.path());
        Project project;
        files.openIn(project);
        project.SaveProjectFile();
        EXPECT_EQ(readInt(files.projectPath(), 310), 300) << version;
    }
}

TEST_F(ProjectTest, TheCountsOfTheFilesWinOverTheProjectFile) {
    open(ProjectBuilder().items(2).locations(3).cards(4).editProject([](ProjectRecord& record) {
        record.ItemCount = 99;
        record.LocationCount = -1;
        record.CueCardCount = 0;
    }));
    EXPECT_EQ(project_.ItemCount, 2);
    EXPECT_EQ(project_.LocationCount, 3);
    EXPECT_EQ(project_.CueCardCount, 4);
    close();
    EXPECT_EQ(readInt(files_.projectPath(), 306), 2);
    EXPECT_EQ(readInt(files_.projectPath(), 308), 3);
    EXPECT_EQ(readInt(files_.projectPath(), 314), 4);
}

TEST_F(ProjectTest, TheCurrentItemIsOneThatCanBeShown) {
    for (const auto& [items, stored, current] : {std::tuple{0, 0, 0},
                                                 {0, 5, 0},
                                                 {0, -3, 0},
                                                 {3, 0, 1},
                                                 {3, -32768, 1},
                                                 {3, 2, 2},
                                                 {3, 9, 9}}) {  // beyond the store it is kept
        const TempFolder folder;
        const TestProject files = ProjectBuilder()
                                      .items(items)
                                      .currentItem(static_cast<std::int16_t>(stored))
                                      .build(folder.path());
        Project project;
        files.openIn(project);
        EXPECT_EQ(project.CurrentItem, current) << items << " items, stored " << stored;
    }
}

TEST_F(ProjectTest, TheCurrentCardIsOneWhereThereAreCards) {
    for (const auto& [cards, stored, current] :
         {std::tuple{0, 0, 0}, {2, 0, 1}, {2, -1, 1}, {2, 2, 2}, {2, 7, 7}}) {
        const TempFolder folder;
        const TestProject files = ProjectBuilder()
                                      .cards(cards)
                                      .currentCueCard(static_cast<std::int16_t>(stored))
                                      .build(folder.path());
        Project project;
        files.openIn(project);
        EXPECT_EQ(project.CurrentCueCard, current) << cards << " cards, stored " << stored;
    }
}

TEST_F(ProjectTest, ACurrentCardOfZeroIsSavedAsOneWhereThereAreCards) {
    open(ProjectBuilder().cards(2));
    project_.CurrentCueCard = 0;
    project_.SaveProjectFile();
    EXPECT_EQ(project_.CurrentCueCard, 1);
    EXPECT_EQ(readInt(files_.projectPath(), 312), 1);
}

TEST_F(ProjectTest, ACurrentCardOfZeroStaysZeroWithoutCards) {
    open(ProjectBuilder());
    project_.SaveProjectFile();
    EXPECT_EQ(readInt(files_.projectPath(), 312), 0);
}

TEST_F(ProjectTest, AToggleIsOnAtOneAlone) {
    open(ProjectBuilder().editProject([](ProjectRecord& record) {
        record.ViewBorders = 2;
        record.ViewAnimations = -1;
        record.ViewLockObjects = 5;
    }));
    close();
    EXPECT_EQ(readInt(files_.projectPath(), 336), 0);
    EXPECT_EQ(readInt(files_.projectPath(), 338), 0);
    EXPECT_EQ(readInt(files_.projectPath(), 340), 0);
}

TEST_F(ProjectTest, NotesAndNamesAreTrimmed) {
    open(ProjectBuilder().author("  Ann  ", " mail ", "   "));
    EXPECT_EQ(project_.Author, "Ann");
    EXPECT_EQ(project_.AuthorEmail, "mail");
    EXPECT_EQ(project_.ProjectNotes, "");
}

TEST_F(ProjectTest, FoldersAndFilesInOtherLetterCaseAreFound) {
    build(ProjectBuilder().fileName("Game.QVL").items(2));
    fs::rename(folder_ / "resource", folder_ / "RESOURCE");
    fs::rename(folder_ / "RESOURCE/Quorvel3.dat", folder_ / "RESOURCE/QUORVEL3.DAT");
    files_.fileName = "game.qvl";
    const auto before = snapshotOf(folder_.path());
    files_.openIn(project_);
    EXPECT_EQ(project_.ItemCount, 2);
    EXPECT_EQ(project_.storePath(3), folder_ / "RESOURCE/QUORVEL3.DAT");
    EXPECT_EQ(project_.projectPath(), folder_ / "Game.QVL");
    close();
    EXPECT_EQ(snapshotOf(folder_.path()).size(), before.size());
}

TEST_F(ProjectTest, AMissingCardStoreIsCreatedEmpty) {
    build(ProjectBuilder().cards(2));
    fs::remove(files_.storePath(5));
    files_.openIn(project_);
    EXPECT_EQ(project_.CueCardCount, 0);
    EXPECT_EQ(fs::file_size(files_.storePath(5)), 0U);
    EXPECT_TRUE(project_.lists.cards.empty());
}

TEST_F(ProjectTest, AnotherMissingFileIsToldAndNotCreated) {
    build(ProjectBuilder());
    for (const int store : {1, 2, 3, 4}) {
        fs::rename(files_.storePath(store), folder_ / "aside");
        Project project;
        EXPECT_THROW(files_.openIn(project), RuntimeError) << store;
        EXPECT_FALSE(fs::exists(files_.storePath(store))) << store;
        fs::rename(folder_ / "aside", files_.storePath(store));
    }
    fs::remove(files_.projectPath());
    EXPECT_THROW(project_.openProjectFile(), RuntimeError);
    EXPECT_FALSE(fs::exists(files_.projectPath()));
}

TEST_F(ProjectTest, SettingsOfAnotherLengthStayUnread) {
    for (const std::uintmax_t length : {0U, 1U, 907U, 909U, 1816U}) {
        const TempFolder folder;
        const TestProject files = ProjectBuilder().title("Castle").build(folder.path());
        fs::resize_file(files.storePath(4), length);
        Project project;
        files.openIn(project);
        EXPECT_FALSE(project.ReadGameInfo()) << length;
        EXPECT_EQ(project.GameTitle, "") << length;
        EXPECT_EQ(project.PlayerName, "") << length;
        EXPECT_EQ(fs::file_size(files.storePath(4)), length);
    }
}

TEST_F(ProjectTest, AnOpenFileThatRefusesWritesIsSeen) {
    build(ProjectBuilder());
    const ReadOnlyMount disk(folder_.path());
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    files_.openIn(project_);
    EXPECT_TRUE(project_.hasUnwritableFile());
    try {
        project_.SaveProjectFile();
        ADD_FAILURE() << "a write on a read-only disk went well";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), 75);
    }
    project_.closeFiles();
    EXPECT_FALSE(project_.hasUnwritableFile());
}

TEST_F(ProjectTest, OnlyAStoredSceneCountsAsStored) {
    open(ProjectBuilder().scenes(2));
    for (const auto& [scene, stored] :
         {std::pair{0, false}, {-1, false}, {1, true}, {2, true}, {3, false}}) {
        project_.CurrentScene = scene;
        EXPECT_EQ(project_.currentSceneStored(), stored) << scene;
    }
    project_.closeFiles();
    project_.CurrentScene = 1;
    EXPECT_FALSE(project_.currentSceneStored());
}

TEST_F(ProjectTest, ClosingClosesAllSixFilesAndClearingForgetsThem) {
    open(ProjectBuilder().title("Castle").scenes(3));
    project_.closeFiles();
    project_.closeFiles();
    EXPECT_FALSE(project_.sceneFile.isOpen() || project_.locationFile.isOpen() ||
                 project_.itemFile.isOpen() || project_.settingsFile.isOpen() ||
                 project_.cardFile.isOpen() || project_.projectFile.isOpen());
    project_.ReadOnlyProject = true;
    project_.clear();
    EXPECT_FALSE(project_.ProjectOpen || project_.ReadOnlyProject);
    EXPECT_EQ(project_.GameTitle, "");
    EXPECT_EQ(project_.NumberOfScenes, 0);
    EXPECT_TRUE(project_.lists.scenes.empty());
    EXPECT_EQ(project_.ProjectFolder, "");
}

TEST_F(ProjectTest, ANewProjectAgreesAfterItsFirstClose) {
    project_.ProjectFolder = folder_.path().string() + "/";
    project_.ProjectFileName = "Project.qvl";
    build(ProjectBuilder().editProject([](ProjectRecord& record) { record.SecurityCode = 1; }));
    files_.openIn(project_);
    EXPECT_EQ(checkSecurity(project_).mismatches, (std::vector<int>{1, 2, 4}));
    project_.SecurityOn = false;
    project_.SecurityCode = 3210;
    close();
    project_.takeProjectRecord(project_.openProjectFile());
    EXPECT_TRUE(checkSecurity(project_).mismatches.empty());
    EXPECT_FALSE(project_.SecurityOn);
}

}  // namespace
}  // namespace quorvel::store
