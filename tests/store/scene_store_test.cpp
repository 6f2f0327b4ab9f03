#include "store/scene_store.h"

#include <gtest/gtest.h>

#include "store/project_stage.h"
#include "store/runtime_error.h"
#include "support/file_bytes.h"
#include "support/mounts.h"

namespace quorvel::store {
namespace {

using test::ProjectBuilder;
using test::readBytes;
using test::readInt;
using test::SmallDisk;
using test::TestProject;

class SceneStore : public ProjectStage {
  protected:
    Scene scene_;
};

TEST_F(SceneStore, LoadMakesTheSceneCurrent) {
    open(ProjectBuilder().scenes(3).object(2, 5, 2, 100, 120, "coin.gif"));
    LoadScene(project_, scene_, 2);
    EXPECT_EQ(project_.CurrentScene, 2);
    EXPECT_EQ(scene_.header(HeaderString::SceneName), "Scene 2");
    EXPECT_EQ(scene_.slot(5).SlotInt(2), 100);
    EXPECT_EQ(scene_.slot(5).SlotStr(1), "coin.gif");
    LoadScene(project_, scene_, 3);
    EXPECT_EQ(scene_.slot(5).SlotInt(1), -1);
}

TEST_F(SceneStore, BeyondTheStoreIsTheZeroedRecordAndNothingGrows) {
    open(ProjectBuilder().scenes(2));
    const std::string before = readBytes(files_.storePath(1));
    LoadScene(project_, scene_, 7);
    Scene zeroed;
    zeroed.take(SceneRecord{});
    EXPECT_EQ(scene_, zeroed);
    EXPECT_EQ(project_.CurrentScene, 7);
    EXPECT_FALSE(project_.currentSceneStored());
    EXPECT_EQ(readBytes(files_.storePath(1)), before);
}

TEST_F(SceneStore, AFailedLoadChangesNothing) {
    open(ProjectBuilder().scenes(2));
    LoadScene(project_, scene_, 2);
    const Scene before = scene_;
    EXPECT_THROW(LoadScene(project_, scene_, 0), RuntimeError);
    EXPECT_THROW(LoadScene(project_, scene_, -5), RuntimeError);
    project_.sceneFile.close();
    EXPECT_THROW(LoadScene(project_, scene_, 1), RuntimeError);
    EXPECT_EQ(scene_, before);
    EXPECT_EQ(project_.CurrentScene, 2);
}

TEST_F(SceneStore, SaveWritesTheOneRecordAndClearsItsCode) {
    open(ProjectBuilder().scenes(3).securityCode(1234));
    LoadScene(project_, scene_, 1);
    EXPECT_EQ(scene_.header(HeaderInt::SecurityCode), 1234);
    std::string expected = readBytes(files_.storePath(1));
    expected.replace(205, 2, std::string(2, '\0'));
    SaveScene(project_, scene_, 1);
    EXPECT_EQ(readBytes(files_.storePath(1)), expected);
    EXPECT_EQ(scene_.header(HeaderInt::SecurityCode), 1234);
}

TEST_F(SceneStore, ReservedFieldsGoThroughTheSceneUnchanged) {
    open(ProjectBuilder().scenes(2).editScene(2, [](SceneRecord& record) {
        record.Reserved156[0] = "kept 1";
        record.Reserved156[2] = "kept 3";
        record.Reserved201[0] = 77;
        record.Reserved201[1] = -78;
        record.Slots[3].SlotInt30 = 5;
        record.Slots[3].SlotInt31To36[5] = -9;
    }));
    const std::string before = readBytes(files_.storePath(1));
    LoadScene(project_, scene_, 2);
    SaveScene(project_, scene_, 2);
    EXPECT_EQ(readBytes(files_.storePath(1)), before);
}

TEST_F(SceneStore, ADraggedLinkAreaSurvivesASceneChange) {
    open(ProjectBuilder().scenes(2));
    LoadScene(project_, scene_, 1);
    const EdgeLink dragged{3, 2, 40, 600, 50, 300};
    scene_.LinkRight = dragged;
    SaveScene(project_, scene_, 1);
    LoadScene(project_, scene_, 2);
    EXPECT_EQ(scene_.LinkRight, defaultLink(LinkSide::right));
    LoadScene(project_, scene_, 1);
    EXPECT_EQ(scene_.LinkRight, dragged);
    EXPECT_EQ(readInt(files_.storePath(1), 247), 40);
}

TEST_F(SceneStore, AllSlotsFilledComeBack) {
    ProjectBuilder builder;
    for (int slot = 1; slot <= 20; ++slot) {
        builder.object(1, slot, static_cast<std::int16_t>(slot % 10),
                       static_cast<std::int16_t>(slot * 30), static_cast<std::int16_t>(-slot),
                       "pic" + std::to_string(slot) + ".gif");
    }
    open(builder);
    LoadScene(project_, scene_, 1);
    const Scene before = scene_;
    SaveScene(project_, scene_, 1);
    scene_.ResetScene();
    LoadScene(project_, scene_, 1);
    EXPECT_EQ(scene_, before);
    EXPECT_EQ(scene_.objectCount(), 20);
}

TEST_F(SceneStore, TwoRecordsOfOneSceneAreTheSameHoweverTheyArePadded) {
    auto first = newRecord<SceneRecord>();
    first.SceneName = "Hall";
    SceneRecord second = first;
    second.SecurityCode = 99;
    second.SceneSoundtrack.unset();
    EXPECT_TRUE(isSameScene(first, second));
    second = first;
    second.Reserved201[1] = 1;
    EXPECT_FALSE(isSameScene(first, second));
    second = first;
    second.Slots[19].SlotStr[8] = "x";
    EXPECT_FALSE(isSameScene(first, second));
    second = first;
    second.LinkRightHeight = 409;
    EXPECT_FALSE(isSameScene(first, second));
    // QuickSpots are compared as the canvas shows them.
    first.Slots[0].SlotInt1 = 1;
    first.Slots[0].SlotInt4To29[25] = 1;
    first.Slots[0].SlotStr[4] = "5";
    first.Slots[0].SlotStr[5] = "5";
    second = first;
    second.Slots[0].SlotInt4To29[25] = 7;
    second.Slots[0].SlotStr[4] = "3";
    EXPECT_TRUE(isSameScene(first, second));
    second.Slots[0].SlotStr[4] = "6";
    EXPECT_FALSE(isSameScene(first, second));
}

TEST_F(SceneStore, ARecordThatOthersWroteIsNoticed) {
    open(ProjectBuilder().scenes(3));
    LoadScene(project_, scene_, 2);
    EXPECT_FALSE(isChangedByOthers(project_));
    test::patchInt(files_.storePath(1), 4395 + 205, 77);
    EXPECT_FALSE(isChangedByOthers(project_)) << "a security code is no scene";
    test::patchBytes(files_.storePath(1), 0, "x");
    EXPECT_FALSE(isChangedByOthers(project_)) << "another record";
    for (const std::uintmax_t offset : {0U, 204U, 207U, 4394U}) {
        test::flipBits(files_.storePath(1), 4395 + offset);
        EXPECT_TRUE(isChangedByOthers(project_)) << offset;
        LoadScene(project_, scene_, 2);
        EXPECT_FALSE(isChangedByOthers(project_));
    }
    scene_.header(HeaderString::SceneName) = "Mine";
    EXPECT_FALSE(isChangedByOthers(project_));
    SaveScene(project_, scene_, 2);
    EXPECT_FALSE(isChangedByOthers(project_)) << "it was written here";
    SaveScene(project_, scene_, 3);
    EXPECT_FALSE(isChangedByOthers(project_)) << "a copy is no save";
}

TEST_F(SceneStore, WhatIsNowhereElseIsUnsaved) {
    open(ProjectBuilder().scenes(2));
    LoadScene(project_, scene_, 2);
    EXPECT_FALSE(holdsUnsaved(project_, scene_));
    scene_.header(HeaderString::SceneName) = "Mine";
    EXPECT_TRUE(holdsUnsaved(project_, scene_));
    SaveScene(project_, scene_, 2);
    EXPECT_FALSE(holdsUnsaved(project_, scene_));
    scene_.slot(3).SlotInt(36) = 12;
    EXPECT_TRUE(holdsUnsaved(project_, scene_));
    project_.sceneFile.close();
    EXPECT_TRUE(holdsUnsaved(project_, scene_));
}

TEST_F(SceneStore, BlankScenesAreNewRecordsWithNameAndPicture) {
    open(ProjectBuilder().scenes(1));
    WriteBlankScene(project_, 2, "Hall", "hall.bmp");
    auto expected = newRecord<SceneRecord>();
    expected.SceneName = "Hall";
    expected.SceneImage = "hall.bmp";
    const auto bytes = bytesOf(expected);
    EXPECT_EQ(readBytes(files_.storePath(1), 4395, 4395), std::string(bytes.begin(), bytes.end()));
    EXPECT_EQ(project_.sceneFile.count(), 2);
}

TEST_F(SceneStore, ThePictureOfAnotherSceneIsLookedUpInTheStore) {
    open(ProjectBuilder().scene(1, "A", "a.bmp").scene(2, "B", "B.BMP").gfx("b.bmp", "x"));
    LoadScene(project_, scene_, 1);
    const Scene before = scene_;
    EXPECT_EQ(LookupSceneImage(project_, scene_, 2).image, "B.BMP");
    EXPECT_FALSE(LookupSceneImage(project_, scene_, 2).fileMissing);
    EXPECT_EQ(scene_, before);
}

TEST_F(SceneStore, ThePictureOfTheCurrentSceneIsTheEditedOne) {
    open(ProjectBuilder().scene(1, "A", "a.bmp"));
    LoadScene(project_, scene_, 1);
    scene_.header(HeaderString::SceneImage) = "edited.bmp";
    EXPECT_EQ(LookupSceneImage(project_, scene_, 1).image, "edited.bmp");
    EXPECT_FALSE(LookupSceneImage(project_, scene_, 1).fileMissing);
}

TEST_F(SceneStore, ThereIsNoPictureWithoutASceneANameOrAFile) {
    open(ProjectBuilder().scenes(1).scene(2, "B").scene(3, "C", "gone.bmp").scene(4, "D", "../d"));
    LoadScene(project_, scene_, 1);
    for (const int number : {0, -1, 2, 99}) {
        EXPECT_EQ(LookupSceneImage(project_, scene_, number).image, "") << number;
        EXPECT_FALSE(LookupSceneImage(project_, scene_, number).fileMissing) << number;
    }
    for (const int number : {3, 4}) {
        EXPECT_EQ(LookupSceneImage(project_, scene_, number).image, "") << number;
        EXPECT_TRUE(LookupSceneImage(project_, scene_, number).fileMissing) << number;
    }
    EXPECT_EQ(project_.sceneFile.count(), 4);
}

TEST_F(SceneStore, SavingOnAFullDiskKeepsTheRecordAndTheScene) {
    const SmallDisk disk(128);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    const TestProject files = ProjectBuilder().scenes(2).build(disk.path());
    Project project;
    files.openIn(project);
    LoadScene(project, scene_, 1);
    disk.fill();
    const std::string before = readBytes(files.storePath(1));
    try {
        WriteBlankScene(project, 3, "New", "");
        ADD_FAILURE() << "a write on a full disk went well";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), 61);
    }
    EXPECT_EQ(readBytes(files.storePath(1)), before);
    EXPECT_EQ(project.sceneFile.count(), 2);
    scene_.header(HeaderString::SceneName) = "edited";
    SaveScene(project, scene_, 1);  // in place: needs no room
    EXPECT_EQ(readBytes(files.storePath(1), 0, 6), "edited");
}

}  // namespace
}  // namespace quorvel::store
