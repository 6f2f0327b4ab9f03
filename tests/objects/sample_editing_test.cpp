// An author edits the sample game, closes it and finds everything again.
#include <filesystem>
#include <gtest/gtest.h>

#include "objects/editor_author.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;
using store::HotSpot;
using store::ObjectType;

class SampleEditing : public EditorAuthor {
  protected:
    SampleEditing() {
        fs::copy(QUORVEL_SAMPLE_GAME, projects / "Lantern", fs::copy_options::recursive);
        files = {.folder = projects / "Lantern", .fileName = "Lantern.qvl"};
        start({text(files.projectPath())});
    }
    void goTo(int number) {
        if (shell->project().CurrentScene == number) {
            return;
        }
        auto& scenes = control<QComboBox>(main(), QStringLiteral("Combo1"));
        scenes.setCurrentIndex(number);
        Q_EMIT scenes.activated(number);
        ASSERT_EQ(shell->project().CurrentScene, number);
    }
    /// The first HotSpot of the scene that has a success sound; 0 for none.
    int findHotSpot() {
        for (int k = 1; k <= store::kSlotCount; ++k) {
            if (store::typeOf(slot(k)) == ObjectType::hotSpot &&
                !store::word(slot(k), HotSpot::SuccessSound).empty()) {
                return k;
            }
        }
        return 0;
    }
};

TEST_F(SampleEditing, WhatIsEditedIsThereAfterClosingAndOpening) {
    int number = 1;
    int k = 0;
    for (; k == 0; ++number) {
        ASSERT_LE(number, shell->project().NumberOfScenes);
        goTo(number);
        k = findHotSpot();
    }
    --number;
    const store::SceneRecord before = record(number);
    const std::string sound = store::word(slot(k), HotSpot::SuccessSound);
    const std::string otherImage =
        scene().header(store::HeaderString::SceneImage) == "Attic.bmp" ? "Cove.bmp" : "Attic.bmp";
    const int target = store::number(slot(k), HotSpot::TargetScene) == 1 ? 2 : 1;

    editObject(k, QStringLiteral("linkPropf"), [&](const Hand& hand) {
        hand.turnTo(1);
        heard();
        hand.click("Playwav(2)");
        EXPECT_TRUE(
            heard().back().startsWith(QStringLiteral("PlayWav ") + QString::fromStdString(sound)));
        hand.turnTo(0);
        dialogs.choice = text(files.gfx("Telescope.gif"));
        hand.click("Command7");
        hand.pick("LnkScn", target);
        hand.click("Command6");
        EXPECT_FALSE(hand.window().isVisible());
    });
    editScene([&](const Hand& hand) {
        dialogs.choice = text(files.gfx(otherImage));
        hand.click("Command3");
        hand.click("Command4");
    });
    EXPECT_EQ(boxes.texts(), QStringList());
    ASSERT_TRUE(shell->CloseProject());
    leave();

    start({text(files.projectPath())});
    goTo(number);
    EXPECT_EQ(store::word(slot(k), HotSpot::Image), "Telescope.gif");
    EXPECT_EQ(store::number(slot(k), HotSpot::QuickSpot), 0);
    EXPECT_EQ(store::number(slot(k), HotSpot::TargetScene), target);
    EXPECT_EQ(store::word(slot(k), HotSpot::SuccessSound), sound);
    EXPECT_EQ(scene().header(store::HeaderString::SceneImage), otherImage);
    EXPECT_TRUE(main().view().objectElement(k).isVisible());
    ASSERT_TRUE(shell->CloseProject());

    // Byte for byte, but for what was edited.
    store::SceneRecord after = record(number);
    EXPECT_EQ(after.SceneImage.text(), otherImage);
    after.SceneImage = before.SceneImage.text();
    const auto slotIndex = static_cast<std::size_t>(k - 1);
    store::ObjectSlotRecord& now = after.Slots[slotIndex];
    const store::ObjectSlotRecord& was = before.Slots[slotIndex];
    for (const int field : {1, 5, 6, 7}) {  // picture, its height and width, "0" for no group
        const auto at = static_cast<std::size_t>(field - 1);
        now.SlotStr[at] = was.SlotStr[at];
    }
    for (const int field : {15, 16, 29}) {  // target, and no QuickSpot any more
        const auto at = static_cast<std::size_t>(field - 4);
        now.SlotInt4To29[at] = was.SlotInt4To29[at];
    }
    const auto bytes = [](const store::SceneRecord& record) {
        return std::string(reinterpret_cast<const char*>(&record), sizeof record);
    };
    EXPECT_EQ(bytes(after) == bytes(before), true);
}

TEST_F(SampleEditing, LookingThroughAllEditorsChangesNoByte) {
    const FolderSnapshot before = snapshotOf(files.folder / "resource");
    int windows = 0;
    for (int number = 1; number <= shell->project().NumberOfScenes; ++number) {
        goTo(number);
        const auto look = [&windows](const Hand& hand) {
            ++windows;
            hand.get<QPushButton>(hand.window().objectName() == QStringLiteral("sceneimage")
                                      ? "Command4"
                                      : "Command6")
                .click();
        };
        editScene(look);
        editLink(1, [](const Hand& hand) { hand.click("Command1"); });
        for (int k = 1; k <= store::kSlotCount; ++k) {
            if (store::typeOf(slot(k)) == ObjectType::hotSpot) {
                editObject(k, QStringLiteral("linkPropf"), look);
            }
        }
    }
    EXPECT_GE(windows, shell->project().NumberOfScenes + 5);
    ASSERT_TRUE(shell->CloseProject());
    EXPECT_EQ(differences(before, snapshotOf(files.folder / "resource")), "");
    EXPECT_EQ(boxes.texts(), QStringList());
}

}  // namespace
}  // namespace quorvel::test
