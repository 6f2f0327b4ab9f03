// Opening a project and closing it again, through the real windows.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include "forms/form.h"
#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

class OpenProject : public ShellFixture {};

TEST_F(OpenProject, ShowsTheSceneThatWasShownLast) {
    const TestProject files = ProjectBuilder()
                                  .title("Castle")
                                  .scenes(3)
                                  .currentScene(2)
                                  .object(2, 1, 5, 100, 120)
                                  .build(projects.path());
    start({text(files.projectPath())});

    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel - Castle"));
    EXPECT_EQ(control<QLineEdit>(main(), QStringLiteral("CurScene")).text(), QStringLiteral("2"));
    EXPECT_EQ(control<QLabel>(main(), QStringLiteral("StatusBar2(1)")).text(),
              QStringLiteral("Objects: 1 / 20"));
    const auto& scenes = control<QComboBox>(main(), QStringLiteral("Combo1"));
    EXPECT_EQ(scenes.itemText(0), QStringLiteral("(Cancel)"));
    EXPECT_EQ(scenes.itemText(3), QStringLiteral("3 (Scene 3)"));
    EXPECT_TRUE(control<QWidget>(main(), QStringLiteral("Animation(1)")).isVisible());
    EXPECT_TRUE(action(QStringLiteral("Filemen(3)")).isEnabled());
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(OpenProject, AndClosingLeavesTheFilesAsTheyWere) {
    const TestProject files = ProjectBuilder()
                                  .scenes(3)
                                  .items(2)
                                  .locations(2)
                                  .cards(1)
                                  .currentItem(1)
                                  .currentCueCard(1)
                                  .build(projects.path());
    const FolderSnapshot before = snapshotOf(projects.path());
    start({text(files.projectPath())});
    action(QStringLiteral("Filemen(3)")).trigger();

    EXPECT_FALSE(shell->project().ProjectOpen);
    EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel"));
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
}

TEST_F(OpenProject, IsFinishedBeforeTheSystemMayEndTheEditor) {
    const TestProject files = ProjectBuilder().scenes(2).build(projects.path());
    const FolderSnapshot before = snapshotOf(projects.path());
    start();
    // The request arrives while the progress window stands.
    QTimer::singleShot(20, [this] { shell->endByRequest(); });
    shell->openProject(text(files.projectPath()));
    EXPECT_TRUE(waitUntil([this] { return quits == 1; }));
    EXPECT_FALSE(shell->project().ProjectOpen);
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
}

TEST_F(OpenProject, LeavesABoxUnansweredWhenTheSystemEndsTheEditor) {
    start();
    forms::MessageBoxes real;
    QTimer::singleShot(50, [this] { shell->endByRequest(); });
    EXPECT_EQ(real.show({.text = QStringLiteral("?"), .buttons = forms::Box::Buttons::yesNo}),
              forms::Answer::no);
    EXPECT_TRUE(waitUntil([this] { return quits == 1; }));
}

TEST_F(OpenProject, IsClosedAsFarAsItGoesWhenTheSystemEndsTheEditor) {
    const TestProject files = ProjectBuilder().securityCode(7).build(projects.path());
    start({text(files.projectPath())});
    std::filesystem::remove(files.storePath(1));
    patchBytes(files.storePath(2), 110, std::string(2, '\0'));
    shell->endByRequest();
    EXPECT_TRUE(waitUntil([this] { return quits == 1; }));
    EXPECT_TRUE(boxes.shown().empty()) << "nobody is there";
    ASSERT_FALSE(complaints.isEmpty());
    EXPECT_TRUE(complaints.front().startsWith(
        QStringLiteral("An unexpected error has occured: 53 / File not found")));
    EXPECT_TRUE(complaints.contains(
        QStringLiteral("The current scene could not be saved; its changes are lost.")));
    EXPECT_EQ(readInt(files.storePath(2), 110), 7) << "what can be written is";
}

}  // namespace
}  // namespace quorvel::test
