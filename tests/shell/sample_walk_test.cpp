// The sample game in the hands of an author: walked through, changed, closed, opened again.
#include <filesystem>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>

#include "shell/scene_fixture.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

class SampleWalk : public SceneFixture {
  protected:
    SampleWalk() {
        fs::copy(QUORVEL_SAMPLE_GAME, projects / "Lantern", fs::copy_options::recursive);
        files = {.folder = projects / "Lantern", .fileName = "Lantern.qvl"};
    }
    void openIt() { start({text(files.projectPath())}); }
    void back() { control<QPushButton>(main(), QStringLiteral("Command5")).click(); }
    void goTo(int scene) {
        while (shell->project().CurrentScene > scene) {
            back();
        }
        while (shell->project().CurrentScene < scene) {
            next();
        }
    }
    /// An object of the scene that can be taken hold of at a point of its own, and that point.
    std::pair<int, QPoint> something() {
        for (int k = 20; k >= 1; --k) {
            QWidget& object = main().view().objectElement(k);
            const QPoint at = object.geometry().center();
            if (object.isVisible() && main().view().canvas().childAt(at) == &object) {
                return {k, at};
            }
        }
        return {0, {}};
    }
};

TEST_F(SampleWalk, LookingAtEverySceneChangesNoByte) {
    const FolderSnapshot before = snapshotOf(files.folder / "resource");
    openIt();
    goTo(1);
    const int scenes = shell->project().NumberOfScenes;
    for (int scene = 1; scene < scenes; ++scene) {
        EXPECT_EQ(shell->project().CurrentScene, scene);
        EXPECT_FALSE(main().view().sceneAlert()) << scene;
        EXPECT_FALSE(main().view().objectAlert()) << scene;
        next();
    }
    goTo(1);
    EXPECT_TRUE(shell->CloseProject());
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(differences(before, snapshotOf(files.folder / "resource")), "");
}

TEST_F(SampleWalk, WhatIsChangedHoldsAndTheRestStaysByteForByte) {
    const std::string before = readBytes(files.storePath(1));
    openIt();
    const int scenes = shell->project().NumberOfScenes;
    std::map<int, std::pair<int, QPoint>> moved;  // by scene: object, its place
    for (int scene = 2; scene <= scenes; scene += 2) {
        goTo(scene);
        const auto [k, at] = something();
        if (k == 0) {
            continue;
        }
        QWidget& object = main().view().objectElement(k);
        const QPoint target(at.x() > 350 ? at.x() - 101 : at.x() + 99, 237);
        const QPoint place = object.pos() + target - at;
        carry(at, target);
        EXPECT_EQ(object.pos(), place) << "scene " << scene;
        moved[scene] = {k, place};
    }
    EXPECT_GE(moved.size(), 3U);
    goTo(1);
    int inserted = 0;
    withWindow(
        QStringLiteral("newlink"), [this] { action(QStringLiteral("scnmen(3)")).trigger(); },
        [&inserted](QWidget& window) {
            control<QRadioButton>(window, QStringLiteral("Option1(6)")).click();
            inserted = control<QComboBox>(window, QStringLiteral("Combo1")).currentText().toInt();
            control<QPushButton>(window, QStringLiteral("Command3")).click();
        });
    withWindow(
        QStringLiteral("NewScenefrm"), [this] { action(QStringLiteral("projmen(1)")).trigger(); },
        [](QWidget& window) {
            control<QRadioButton>(window, QStringLiteral("Option1(1)")).click();
            control<QPushButton>(window, QStringLiteral("Command3")).click();
        });
    EXPECT_EQ(shell->project().CurrentScene, scenes + 1);
    EXPECT_TRUE(shell->CloseProject());
    leave();

    openIt();
    EXPECT_EQ(shell->project().CurrentScene, scenes + 1);
    EXPECT_EQ(shell->scene().LinkDown.target, 1);
    for (const auto& [scene, what] : moved) {
        goTo(scene);
        EXPECT_EQ(main().view().objectElement(what.first).pos(), what.second) << scene;
    }
    goTo(1);
    EXPECT_EQ(slot(inserted).SlotInt(1), 6);
    EXPECT_TRUE(animation(inserted).isVisible());
    EXPECT_TRUE(shell->CloseProject());

    const std::string after = readBytes(files.storePath(1));
    constexpr std::size_t kRecord = sizeof(store::SceneRecord);
    ASSERT_EQ(after.size(), before.size() + kRecord);
    for (int scene = 2; scene <= scenes; ++scene) {
        const std::size_t at = static_cast<std::size_t>(scene - 1) * kRecord;
        std::string expected = before.substr(at, kRecord);
        if (moved.contains(scene)) {
            const auto& [k, place] = moved[scene];
            const std::size_t inSlot = 255 + 207 * static_cast<std::size_t>(k - 1) + 2;
            expected.replace(inSlot, 4, after.substr(at + inSlot, 4));
        }
        EXPECT_EQ(after.substr(at, kRecord) == expected, true) << "scene " << scene;
    }
}

}  // namespace
}  // namespace quorvel::test
