// Projects that another start of the editor hands over: when they are opened.
#include <gtest/gtest.h>

#include <QTimer>

#include "forms/events.h"
#include "shell/scene_fixture.h"
#include "support/gif_bytes.h"

namespace quorvel::test {
namespace {

class HandedOver : public ShellFixture {};
class HandedOverWhileDragging : public SceneFixture {};

TEST_F(HandedOver, ProjectsThatAreHandedOverAreOpenedInOrder) {
    const TestProject one = ProjectBuilder().title("One").build(projects.makeFolder("one"));
    const TestProject two = ProjectBuilder().title("Two").build(projects.makeFolder("two"));
    start();
    shell->openWhenFree({text(one.projectPath()), text(two.projectPath())});
    ASSERT_TRUE(waitUntil(
        [this] { return main().windowTitle() == QStringLiteral("Quorvel - Two"); }, 20000));
    EXPECT_EQ(shell->settings().RecentProj[1], text(one.projectPath()));
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(HandedOver, ProjectsThatAreHandedOverWaitForTheAuthor) {
    const TestProject one = ProjectBuilder().title("One").build(projects.makeFolder("one"));
    const TestProject two = ProjectBuilder().title("Two").build(projects.makeFolder("two"));
    start({text(one.projectPath())});
    // Whoever wants to open them is asked later than any timer that opens them.
    const auto expectWaiting = [&] {
        bool later = false;
        QTimer::singleShot(350, [&later] { later = true; });
        ASSERT_TRUE(waitUntil([&later] { return later; }, 20000));
        EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel - One"));
    };
    withWindow(
        QStringLiteral("EdOptions"), [this] { action(QStringLiteral("options(1)")).trigger(); },
        [&](QWidget& window) {
            shell->openWhenFree({text(two.projectPath())});
            expectWaiting();
            window.close();
        });
    ASSERT_TRUE(waitUntil(
        [this] { return main().windowTitle() == QStringLiteral("Quorvel - Two"); }, 20000));
}

TEST_F(HandedOver, AProjectThatIsHandedOverDuringAnOpeningComesAfterIt) {
    const TestProject one = ProjectBuilder().title("One").build(projects.makeFolder("one"));
    const TestProject two = ProjectBuilder().title("Two").build(projects.makeFolder("two"));
    start();
    dialogs.choice = text(one.projectPath());
    withWindow(
        QStringLiteral("OpenProj"), [this] { action(QStringLiteral("Filemen(2)")).trigger(); },
        [&](QWidget& /*window*/) { shell->openWhenFree({text(two.projectPath())}); });
    EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel - One"));
    ASSERT_TRUE(waitUntil(
        [this] { return main().windowTitle() == QStringLiteral("Quorvel - Two"); }, 20000));
    EXPECT_EQ(shell->settings().RecentProj[1], text(one.projectPath()));
}

TEST_F(HandedOver, AProjectWaitsForTheRoutineThatLetsEventsRun) {
    const TestProject one = ProjectBuilder().title("One").build(projects.makeFolder("one"));
    const TestProject two = ProjectBuilder().title("Two").build(projects.makeFolder("two"));
    start({text(one.projectPath())});
    bool asked = false;
    QTimer::singleShot(0, shell.get(), [&] {
        asked = true;
        shell->openWhenFree({text(two.projectPath())});
    });
    while (!asked) {
        forms::letEventsRun();
    }
    EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel - One")) << "it would be half-way";
    ASSERT_TRUE(waitUntil(
        [this] { return main().windowTitle() == QStringLiteral("Quorvel - Two"); }, 20000));
}

TEST_F(HandedOverWhileDragging, AProjectWaitsUntilTheObjectIsLetGo) {
    open(ProjectBuilder()
             .title("One")
             .gfx("a.gif", stillGif(40, 30))
             .object(1, 3, 0, 100, 120, "a.gif"));
    const TempFolder elsewhere;
    const TestProject two = ProjectBuilder().title("Two").build(elsewhere.path());
    press({110, 130});
    shell->openWhenFree({text(two.projectPath())});
    ASSERT_TRUE(shell->actions().dragging().isDragging());
    // Whoever wants to open it is asked later than any timer that opens it.
    bool later = false;
    QTimer::singleShot(350, [&later] { later = true; });
    ASSERT_TRUE(waitUntil([&later] { return later; }, 20000));
    EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel - One"));
    EXPECT_TRUE(shell->actions().dragging().isDragging());
    release({210, 230});
    ASSERT_TRUE(waitUntil(
        [this] { return main().windowTitle() == QStringLiteral("Quorvel - Two"); }, 20000));
}

TEST_F(HandedOver, AProjectThatIsHandedOverAndOpenStaysAsItIs) {
    const TestProject one = ProjectBuilder().title("One").build(projects.path());
    start({text(one.projectPath())});
    shell->scene().header(store::HeaderString::SceneName) = "Edited";
    main().showMinimized();
    shell->openWhenFree({text(projects / "." / "Test.qvl")});
    EXPECT_FALSE(main().isMinimized());
    EXPECT_EQ(shell->scene().header(store::HeaderString::SceneName), "Edited");
    EXPECT_NE(readBytes(one.storePath(1), 0, 6), "Edited") << "it was not closed for that";
    EXPECT_TRUE(shell->project().ProjectOpen);
}

}  // namespace
}  // namespace quorvel::test
