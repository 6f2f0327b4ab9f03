// Closing a project and leaving the editor: the order, and how everything stands afterwards.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "canvas/texts.h"
#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

class Closing : public ShellFixture {
  protected:
    static ProjectBuilder full() {
        return ProjectBuilder().title("Castle").scenes(3).locations(2).items(2).cards(2);
    }
    QString label(const char* name) {
        return control<QWidget>(main(), QString::fromLatin1(name)).property("text").toString();
    }
    bool enabled(const char* name) {
        return control<QWidget>(main(), QString::fromLatin1(name)).isEnabled();
    }
    bool visible(const char* name) {
        return control<QWidget>(main(), QString::fromLatin1(name)).isVisible();
    }
    void expectClosed() {
        EXPECT_FALSE(visible("ObjAlert"));
        EXPECT_FALSE(visible("ScnAlert"));
        EXPECT_FALSE(enabled("RestoreObjs"));
        EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel"));
        EXPECT_EQ(label("CurScene"), QStringLiteral("---"));
        EXPECT_EQ(label("StatusBar2(1)"), QStringLiteral("Objects:"));
        EXPECT_EQ(label("StatusBar1(1)"), canvas::emptyStatus().object);
        for (int n = 1; n <= 20; ++n) {
            const QString element = QStringLiteral("(%1)").arg(n);
            EXPECT_FALSE(
                control<QWidget>(main(), QStringLiteral("Animation") + element).isVisible());
            EXPECT_FALSE(control<QWidget>(main(), QStringLiteral("NoGIF") + element).isVisible());
            EXPECT_FALSE(control<QWidget>(main(), QStringLiteral("hilite") + element).isVisible());
        }
        for (int n = 1; n <= 4; ++n) {
            EXPECT_FALSE(
                control<QWidget>(main(), QStringLiteral("Directionl(%1)").arg(n)).isVisible());
        }
        for (const char* list :
             {"Combo1", "LocList", "LocPointers", "MapList", "InvList", "CueList"}) {
            EXPECT_EQ(control<QComboBox>(main(), QString::fromLatin1(list)).count(), 0) << list;
        }
        EXPECT_EQ(action(QStringLiteral("projfolder")).text(),
                  QStringLiteral("(No Project Loaded)"));
        EXPECT_FALSE(action(QStringLiteral("Toolbar1(6)")).isChecked());
        EXPECT_FALSE(action(QStringLiteral("Toolbar1(7)")).isChecked());
        EXPECT_FALSE(main().view().bordersOn());
        EXPECT_FALSE(main().view().animationsOn());
        for (const char* button : {"Command5", "Command6", "Command7", "Command8"}) {
            EXPECT_FALSE(enabled(button)) << button;
        }
        const store::Project& project = shell->project();
        EXPECT_FALSE(project.ProjectOpen);
        EXPECT_FALSE(project.ReadOnlyProject);
        EXPECT_EQ(project.CurrentScene, 0);
        for (const store::RecordFileBase* file :
             std::initializer_list<const store::RecordFileBase*>{
                 &project.projectFile, &project.sceneFile, &project.locationFile, &project.itemFile,
                 &project.settingsFile, &project.cardFile}) {
            EXPECT_FALSE(file->isOpen());
        }
    }
};

TEST_F(Closing, BringsEverythingBack) {
    // Both alerts show: a symbol far outside of the scene, a picture that cannot be shown.
    const TestProject files = full()
                                  .scene(1, "Hall", "hall.bmp")
                                  .gfx("hall.bmp", "no picture")
                                  .object(1, 1, 5, 2000, 2000)
                                  .object(1, 2, 1, 10, 10)
                                  .editSlot(1, 2,
                                            [](store::ObjectSlotRecord& slot) {
                                                slot.SlotInt4To29[25] = 1;
                                                slot.SlotStr[4] = "50";
                                                slot.SlotStr[5] = "60";
                                            })
                                  .editProject([](store::ProjectRecord& record) {
                                      record.ViewBorders = 1;
                                      record.ViewAnimations = 1;
                                  })
                                  .build(projects.path());
    start({text(files.projectPath())});
    EXPECT_TRUE(visible("ObjAlert"));
    EXPECT_TRUE(visible("ScnAlert"));
    EXPECT_TRUE(visible("NoGIF(2)"));
    EXPECT_TRUE(visible("hilite(2)"));
    EXPECT_TRUE(action(QStringLiteral("Toolbar1(6)")).isChecked());
    EXPECT_TRUE(action(QStringLiteral("Toolbar1(7)")).isChecked());
    EXPECT_EQ(control<QComboBox>(main(), QStringLiteral("LocList")).count(), 3);
    EXPECT_EQ(control<QComboBox>(main(), QStringLiteral("InvList")).itemText(0),
              QStringLiteral("(None)"));
    EXPECT_EQ(control<QComboBox>(main(), QStringLiteral("CueList")).itemText(2),
              QStringLiteral("2 (Card 2)"));
    action(QStringLiteral("Filemen(3)")).trigger();
    expectClosed();
}

TEST_F(Closing, ByTheToolBarDoesTheSame) {
    const TestProject files = full().build(projects.path());
    start({text(files.projectPath())});
    action(QStringLiteral("Toolbar1(2)")).trigger();
    expectClosed();
}

TEST_F(Closing, SavesTheSceneOnTheCanvas) {
    const TestProject files = full().object(1, 1, 5, 100, 120).build(projects.path());
    start({text(files.projectPath())});
    shell->scene().header(store::HeaderString::SceneName) = "Edited";
    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_EQ(readBytes(files.storePath(1), 0, 15), "Edited         ");
}

class Toggles : public Closing, public ::testing::WithParamInterface<std::tuple<int, int, int>> {};

TEST_P(Toggles, AreAppliedAndWrittenAsTheyStand) {
    const int borders = std::get<0>(GetParam());
    const int animations = std::get<1>(GetParam());
    const int locked = std::get<2>(GetParam());
    const TestProject files = full()
                                  .editProject([=](store::ProjectRecord& record) {
                                      record.ViewBorders = static_cast<std::int16_t>(borders);
                                      record.ViewAnimations = static_cast<std::int16_t>(animations);
                                      record.ViewLockObjects = static_cast<std::int16_t>(locked);
                                  })
                                  .build(projects.path());
    start({text(files.projectPath())});
    EXPECT_EQ(main().view().bordersOn(), borders == 1);
    EXPECT_EQ(main().view().animationsOn(), animations == 1);
    leave();
    EXPECT_EQ(readInt(files.projectPath(), 336), borders == 1 ? 1 : 0);
    EXPECT_EQ(readInt(files.projectPath(), 338), animations == 1 ? 1 : 0);
    EXPECT_EQ(readInt(files.projectPath(), 340), locked == 1 ? 1 : 0) << "has no button";
}
INSTANTIATE_TEST_SUITE_P(Values, Toggles,
                         ::testing::Values(std::tuple{0, 0, 0}, std::tuple{1, 0, 1},
                                           std::tuple{0, 1, 0}, std::tuple{1, 1, 1},
                                           std::tuple{2, -1, 7}, std::tuple{1, 0, -1}));

TEST_F(Closing, AToggleThatWasPressedIsWritten) {
    const TestProject files = full().build(projects.path());
    start({text(files.projectPath())});
    const bool before = main().view().bordersOn();
    action(QStringLiteral("Toolbar1(7)")).trigger();
    leave();
    EXPECT_EQ(readInt(files.projectPath(), 336), before ? 0 : 1);
}

TEST_F(Closing, OddBytesSurviveWhereNothingWasEdited) {
    const auto byteText = [](int first) {
        std::string bytes;
        for (int i = 0; i < 15; ++i) {
            bytes += static_cast<char>((first + i) % 256);
        }
        return bytes;
    };
    const TestProject files = full()
                                  .title("\xC3\xA9t\xC3\xA9")
                                  .author("Zo\xC3\xAB", "a@b", "notes\twith\rcontrols")
                                  .object(1, 1, 10, -5, 32767)
                                  .object(1, 2, 99, 0, 0)
                                  .object(1, 3, -7, -32768, 12)
                                  .build(projects.path());
    // Every byte from 1 to 255 but the blank, in the names of the scenes, items and cards.
    patchBytes(files.storePath(1), 0, byteText(0x80));
    patchBytes(files.storePath(1), 4395, byteText(0x01));
    patchBytes(files.storePath(3), 0, byteText(0x90));
    patchBytes(files.storePath(5), 1712 + 2, byteText(0xF0));
    const FolderSnapshot before = snapshotOf(projects.path());
    start({text(files.projectPath())});
    EXPECT_TRUE(shell->project().ProjectOpen);
    leave();
    EXPECT_TRUE(boxes.shown().empty()) << boxes.texts().join(u'|').toStdString();
    FolderSnapshot after = snapshotOf(projects.path());
    // The first item and card are loaded on open, and their numbers are kept.
    const std::string project = "Test.qvl";
    for (const std::size_t at : {302U, 312U}) {
        EXPECT_EQ(after[project][at], 1) << at;
        after[project][at] = before.at(project)[at];
    }
    EXPECT_EQ(differences(before, after), "");
}

TEST_F(Closing, AQuickSpotThatIsTooSmallIsSavedAsFive) {
    const TestProject files = full()
                                  .object(1, 1, 1, 10, 10)
                                  .editSlot(1, 1,
                                            [](store::ObjectSlotRecord& slot) {
                                                slot.SlotInt4To29[25] = 7;
                                                slot.SlotStr[4] = "3";
                                                slot.SlotStr[5] = "";
                                            })
                                  .build(projects.path());
    start({text(files.projectPath())});
    EXPECT_EQ(control<QWidget>(main(), QStringLiteral("NoGIF(1)")).size(), QSize(5, 5));
    leave();
    // Slot 1 begins at 255: three numbers of 2 bytes, then nine texts of 15, then SlotInt4.
    EXPECT_EQ(readBytes(files.storePath(1), 255 + 6 + 4 * 15, 30),
              "5              5              ");
    EXPECT_EQ(readInt(files.storePath(1), 255 + 6 + 9 * 15 + 25 * 2), 1);
}

// Another project while one is open

TEST_F(Closing, AnotherProjectClosesTheFirstInOrder) {
    const TestProject first = full().build(projects.makeFolder("first"));
    const TestProject second = full().title("Second").build(projects.makeFolder("second"));
    start({text(first.projectPath())});
    shell->scene().header(store::HeaderString::SceneName) = "Edited";
    dialogs.choice = text(second.projectPath());
    action(QStringLiteral("Toolbar1(1)")).trigger();
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel - Second"));
    EXPECT_EQ(readBytes(first.storePath(1), 0, 6), "Edited");
    EXPECT_EQ(shell->scene().header(store::HeaderString::SceneName), "Scene 1");
}

TEST_F(Closing, AProjectThatFailsToOpenLeavesNoneOpen) {
    const TestProject first = full().build(projects.makeFolder("first"));
    const TestProject broken = full().build(projects.makeFolder("broken"));
    fs::remove(broken.storePath(2));
    start({text(first.projectPath())});
    shell->scene().header(store::HeaderString::SceneName) = "Edited";
    dialogs.choice = text(broken.projectPath());
    action(QStringLiteral("Toolbar1(1)")).trigger();
    EXPECT_EQ(boxes.shown().size(), 1U);
    expectClosed();
    EXPECT_EQ(readBytes(first.storePath(1), 0, 6), "Edited");
    EXPECT_EQ(shell->settings().RecentProj[0], text(first.projectPath()));
}

TEST_F(Closing, TheSameProjectCanBeOpenedAgain) {
    const TestProject files = full().build(projects.path());
    start({text(files.projectPath()), text(files.projectPath())});
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(shell->settings().RecentProj[1], QString());
}

// Leaving the editor

TEST_F(Closing, LeavingWithoutAProjectEndsTheProcess) {
    start();
    action(QStringLiteral("Filemen(14)")).trigger();
    EXPECT_EQ(quits, 1);
    EXPECT_FALSE(shell->EditorRunning);
    EXPECT_FALSE(main().isVisible());
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(Closing, LeavingWithAProjectClosesItFirst) {
    const TestProject files = full().securityCode(55).build(projects.path());
    start({text(files.projectPath())});
    shell->scene().header(store::HeaderString::SceneName) = "Edited";
    action(QStringLiteral("Filemen(14)")).trigger();
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(readBytes(files.storePath(1), 0, 6), "Edited");
    EXPECT_EQ(readInt(files.storePath(1), 205), 55);
    EXPECT_FALSE(action(QStringLiteral("Filemen(3)")).isEnabled());
    expectClosed();
}

TEST_F(Closing, TheWindowsCloseButtonLeavesTheEditor) {
    start();
    EXPECT_FALSE(visible("ShutDwn"));
    main().close();
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(label("ShutDwn"), QStringLiteral("Shutting down Quorvel.   Please wait..."));
    EXPECT_FALSE(control<QWidget>(main(), QStringLiteral("ShutDwn")).isHidden());
    main().close();
    EXPECT_EQ(quits, 1) << "once is enough";
}

TEST_F(Closing, WithoutLoadedWindowsItEndsAtOnce) {
    shell = std::make_unique<shell::Shell>(surroundings());
    shell->ExitProgram();
    EXPECT_EQ(quits, 1);
}

}  // namespace
}  // namespace quorvel::test
