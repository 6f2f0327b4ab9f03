#include "store/creation.h"

#include <gtest/gtest.h>

#include "store/golden_records.h"
#include "store/runtime_error.h"
#include "support/file_bytes.h"
#include "support/mounts.h"
#include "support/temp_folder.h"

namespace quorvel::store {
namespace {

using test::snapshotOf;
using test::TempFolder;

class Creation : public ::testing::Test {
  protected:
    Creation() {
        project_.ProjectFolder = folder_.path().string() + "/";
        project_.ProjectFileName = "Project.qvl";
    }
    int errorOfFolders() const {
        try {
            makeProjectFolders(project_);
        } catch (const RuntimeError& error) {
            return error.number();
        }
        return 0;
    }
    TempFolder folder_;
    Project project_;
};

TEST_F(Creation, MakesTheThreeFolders) {
    makeProjectFolders(project_);
    const test::FolderSnapshot expected = {
        {"resource/", ""}, {"resource/gfx/", ""}, {"resource/mmedia/", ""}};
    EXPECT_EQ(snapshotOf(folder_.path()), expected);
}

TEST_F(Creation, AFolderThatExistsInAnyCaseIsAnErrorAndNothingIsMade) {
    for (const char* name : {"resource", "Resource", "RESOURCE"}) {
        const auto made = folder_.makeFolder(name);
        EXPECT_EQ(errorOfFolders(), 75) << name;
        EXPECT_EQ(snapshotOf(folder_.path()).size(), 1U) << name;
        std::filesystem::remove(made);
    }
}

TEST_F(Creation, AMissingFolderOrAReadOnlyDiskIsTold) {
    project_.ProjectFolder = (folder_ / "nowhere").string() + "/";
    EXPECT_EQ(errorOfFolders(), 76);
    const test::ReadOnlyMount disk(folder_.path());
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    project_.ProjectFolder = folder_.path().string() + "/";
    EXPECT_EQ(errorOfFolders(), 75);
}

TEST_F(Creation, TheFilesOfANewProjectHaveTheGoldenBytes) {
    makeProjectFolders(project_);
    project_.WriteNewProjectFile();
    WriteNewStores(project_);
    auto files = snapshotOf(folder_.path());
    EXPECT_EQ(files.size(), 9U);
    EXPECT_EQ(files["Project.qvl"], golden::newBytes<ProjectRecord>());

    std::string scene = golden::newBytes<SceneRecord>();
    for (std::int16_t slot = 1; slot <= 20; ++slot) {
        std::string bytes = golden::newBytes<ObjectSlotRecord>().substr(0, 195);
        for (int i = 0; i < 6; ++i) {
            bytes += golden::intBytes(slot);
        }
        scene += bytes;
    }
    EXPECT_EQ(files["resource/Quorvel1.dat"], scene);

    std::string location = golden::newBytes<LocationRecord>();
    location.replace(15, 15, std::string(15, ' '));
    EXPECT_EQ(files["resource/Quorvel2.dat"], location);
    EXPECT_EQ(files["resource/Quorvel3.dat"], "");
    EXPECT_EQ(files["resource/Quorvel4.dat"], golden::newBytes<GameSettingsRecord>());
    EXPECT_EQ(files["resource/Quorvel5.dat"], "");
}

TEST_F(Creation, TheProjectFileStaysOpen) {
    project_.WriteNewProjectFile();
    EXPECT_TRUE(project_.projectFile.isOpen());
    EXPECT_EQ(project_.projectFile.count(), 1);
}

}  // namespace
}  // namespace quorvel::store
