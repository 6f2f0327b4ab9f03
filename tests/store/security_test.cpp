#include "store/security.h"

#include <gtest/gtest.h>

#include "store/creation.h"
#include "store/project_stage.h"
#include "store/runtime_error.h"
#include "support/file_bytes.h"
#include "support/mounts.h"

namespace quorvel::store {
namespace {

namespace fs = std::filesystem;
using test::differences;
using test::patchInt;
using test::ProjectBuilder;
using test::readInt;
using test::ReadOnlyMount;
using test::snapshotOf;
using test::TempFolder;
using test::TestProject;

/// Where the code lies in stores 1 to 5.
constexpr int kCodeOffset[] = {0, 205, 110, 207, 217, 0};

class Security : public ProjectStage {
  protected:
    /// Builds the project and takes what its project file says; the stores stay closed.
    void build(const ProjectBuilder& builder) {
        ProjectStage::build(builder);
        files_.nameIn(project_);
        project_.takeProjectRecord(project_.openProjectFile());
    }
    std::int16_t codeOf(int store) const {
        return readInt(files_.storePath(store), static_cast<std::uintmax_t>(kCodeOffset[store]));
    }
    void setCode(int store, std::int16_t code) const {
        patchInt(files_.storePath(store), static_cast<std::uintmax_t>(kCodeOffset[store]), code);
    }
    std::vector<int> mismatches() const { return checkSecurity(project_).mismatches; }

    ProjectBuilder full_ = ProjectBuilder().scenes(2).items(2).locations(2).cards(2);
};

TEST_F(Security, AllCodesZeroAgreeAndSecurityIsOff) {
    build(full_);
    EXPECT_EQ(mismatches(), std::vector<int>());
    EXPECT_FALSE(project_.SecurityOn);
}

TEST_F(Security, ACodeInAllSixPlacesAgreesAndSecurityIsOn) {
    build(full_.securityCode(1234));
    for (int store = 1; store <= 5; ++store) {
        EXPECT_EQ(codeOf(store), 1234) << store;
    }
    EXPECT_EQ(readInt(files_.projectPath(), 304), 1234);
    EXPECT_EQ(mismatches(), std::vector<int>());
    EXPECT_TRUE(project_.SecurityOn);
}

TEST_F(Security, EachStoreThatDiffersIsNamedInOrder) {
    build(full_.securityCode(1234));
    for (int store = 1; store <= 5; ++store) {
        setCode(store, 1235);
        EXPECT_EQ(mismatches(), std::vector<int>{store});
        setCode(store, 1234);
    }
    setCode(5, 0);
    setCode(2, -1);
    EXPECT_EQ(mismatches(), (std::vector<int>{2, 5}));
}

TEST_F(Security, OnlyTheFirstRecordCounts) {
    build(full_.securityCode(9));
    EXPECT_EQ(readInt(files_.storePath(1), 4395 + 205), 0);
    EXPECT_EQ(mismatches(), std::vector<int>());
}

TEST_F(Security, EmptyItemAndCardStoresAgreeWithAnyCode) {
    build(ProjectBuilder().securityCode(4999));
    EXPECT_EQ(fs::file_size(files_.storePath(3)), 0U);
    EXPECT_EQ(fs::file_size(files_.storePath(5)), 0U);
    EXPECT_EQ(mismatches(), std::vector<int>());
    // So do stores that hold less than half of a record.
    test::writeBytes(files_.storePath(3), std::string(100, 'x'));
    test::writeBytes(files_.storePath(5), std::string(800, 'x'));
    EXPECT_EQ(mismatches(), std::vector<int>());
    test::writeBytes(files_.storePath(3), std::string(200, 'x'));
    EXPECT_EQ(mismatches(), std::vector<int>{3});
}

TEST_F(Security, OtherEmptyStoresReadAsZero) {
    build(full_.securityCode(5));
    for (const int store : {1, 2, 4}) {
        test::truncateFile(files_.storePath(store), 0);
    }
    EXPECT_EQ(mismatches(), (std::vector<int>{1, 2, 4}));
    project_.SecurityCode = 0;
    EXPECT_EQ(mismatches(), (std::vector<int>{3, 5}));
}

TEST_F(Security, ANewProjectKilledBeforeItsFirstCloseIsReported) {
    const TempFolder folder;
    Project project;
    project.ProjectFolder = folder.path().string() + "/";
    project.ProjectFileName = "Project.qvl";
    makeProjectFolders(project);
    project.WriteNewProjectFile();
    WriteNewStores(project);
    project.closeFiles();
    project.takeProjectRecord(project.openProjectFile());
    EXPECT_EQ(project.SecurityCode, 1);
    EXPECT_EQ(checkSecurity(project).mismatches, (std::vector<int>{1, 2, 4}));
}

TEST_F(Security, OldSettingsAreSeenInTheSamePass) {
    build(full_);
    EXPECT_FALSE(checkSecurity(project_).oldSettings);
    patchInt(files_.storePath(4), 451, 0);
    EXPECT_TRUE(checkSecurity(project_).oldSettings);
    patchInt(files_.storePath(4), 451, 7);
    EXPECT_FALSE(checkSecurity(project_).oldSettings);
}

TEST_F(Security, TheCheckWritesAndCreatesNothing) {
    build(full_.securityCode(3));
    fs::remove(files_.storePath(5));
    const auto before = snapshotOf(folder_.path());
    EXPECT_EQ(mismatches(), std::vector<int>());
    EXPECT_EQ(differences(before, snapshotOf(folder_.path())), "");
}

TEST_F(Security, AMissingStoreIsToldUnlessItIsTheCards) {
    build(full_);
    for (const int store : {1, 2, 3, 4}) {
        fs::rename(files_.storePath(store), folder_ / "aside");
        const auto before = snapshotOf(folder_.path());
        try {
            (void)mismatches();
            ADD_FAILURE() << store;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), 53) << store;
        }
        EXPECT_EQ(differences(before, snapshotOf(folder_.path())), "");
        fs::rename(folder_ / "aside", files_.storePath(store));
    }
}

TEST_F(Security, WritingPutsTheCodeIntoTheFirstRecordsAndTouchesNothingElse) {
    full_.build(folder_.path()).openIn(project_);
    files_ = TestProject{folder_.path(), "Test.qvl"};
    auto expected = snapshotOf(folder_.path());
    for (int store = 1; store <= 5; ++store) {
        expected["resource/Quorvel" + std::to_string(store) + ".dat"].replace(
            static_cast<std::size_t>(kCodeOffset[store]), 2, std::string("\xD2\x04", 2));
    }
    project_.SecurityOn = true;
    project_.SecurityCode = 1234;
    WriteSecurity(project_);
    EXPECT_EQ(differences(expected, snapshotOf(folder_.path())), "");
    EXPECT_EQ(project_.SecurityCode, 1234);
}

TEST_F(Security, SwitchedOffTheCodeIsZeroEverywhere) {
    full_.securityCode(1234).build(folder_.path()).openIn(project_);
    files_ = TestProject{folder_.path(), "Test.qvl"};
    project_.SecurityOn = false;
    project_.SecurityCode = 4321;  // as made for a new project
    WriteSecurity(project_);
    EXPECT_EQ(project_.SecurityCode, 0);
    for (int store = 1; store <= 5; ++store) {
        EXPECT_EQ(codeOf(store), 0) << store;
    }
    project_.SaveProjectFile();
    EXPECT_EQ(readInt(files_.projectPath(), 304), 0);
}

TEST_F(Security, StoresWithoutARecordStayEmpty) {
    files_ = ProjectBuilder().build(folder_.path());
    test::truncateFile(files_.storePath(1), 0);
    files_.openIn(project_);
    project_.SecurityOn = true;
    project_.SecurityCode = 5;
    WriteSecurity(project_);
    for (const int store : {1, 3, 5}) {
        EXPECT_EQ(fs::file_size(files_.storePath(store)), 0U) << store;
    }
    EXPECT_EQ(codeOf(2), 5);
    EXPECT_EQ(codeOf(4), 5);
}

TEST_F(Security, OnAReadOnlyDiskTheOldCodesStayAndTheFailureIsTold) {
    full_.securityCode(1234).build(folder_.path());
    files_ = TestProject{folder_.path(), "Test.qvl"};
    const ReadOnlyMount disk(folder_.path());
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    files_.openIn(project_);
    project_.SecurityCode = 99;
    try {
        WriteSecurity(project_);
        ADD_FAILURE() << "a write on a read-only disk went well";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), 75);
    }
    EXPECT_EQ(codeOf(1), 1234);
}

TEST_F(Security, OneStoreThatFailsDoesNotKeepTheOthersFromTheirCode) {
    full_.build(folder_.path()).openIn(project_);
    files_ = TestProject{folder_.path(), "Test.qvl"};
    // The scene store alone refuses to be written.
    const fs::path copy = folder_.makeFolder("aside") / "Quorvel1.dat";
    fs::copy_file(files_.storePath(1), copy);
    const ReadOnlyMount disk(folder_ / "aside");
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    project_.sceneFile.open(copy);
    project_.SecurityOn = true;
    project_.SecurityCode = 7;
    EXPECT_THROW(WriteSecurity(project_), RuntimeError);
    for (int store = 2; store <= 5; ++store) {
        EXPECT_EQ(codeOf(store), 7) << store;
    }
}

}  // namespace
}  // namespace quorvel::store
