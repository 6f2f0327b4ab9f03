// The window that turns Project Security on and off, as the author uses it.
#include "game/security_editor.h"

#include <array>
#include <gtest/gtest.h>
#include <utility>

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

using forms::Box;

class Security : public ShellFixture {
  protected:
    TestProject open(std::int16_t code) {
        const TestProject files =
            ProjectBuilder().scenes(1).locations(1).items(1).cards(1).securityCode(code).build(
                projects.path());
        start({text(files.projectPath())});
        return files;
    }
    void inWindow(const std::function<void(QWidget&)>& author) {
        withWindow(
            QStringLiteral("ProjSecurity"),
            [this] { action(QStringLiteral("projmen(12)")).trigger(); }, author);
    }
    static QRadioButton& option(QWidget& window, int index) {
        return control<QRadioButton>(window, QStringLiteral("Option1(%1)").arg(index));
    }
    static void press(QWidget& window, const char* button) {
        control<QPushButton>(window, QString::fromLatin1(button)).click();
    }
    /// The code in all six files, each at its place.
    static std::array<int, 6> codes(const TestProject& files) {
        return {readInt(files.projectPath(), 304), readInt(files.storePath(1), 205),
                readInt(files.storePath(2), 110),  readInt(files.storePath(3), 207),
                readInt(files.storePath(4), 217),  readInt(files.storePath(5), 0)};
    }
    static std::array<int, 6> all(int code) { return {code, code, code, code, code, code}; }
};

TEST_F(Security, TheWindowShowsItsTexts) {
    open(0);
    inWindow([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Project Security"));
        EXPECT_EQ(control<QGroupBox>(window, QStringLiteral("Frame1")).title(),
                  QStringLiteral("Project Security"));
        EXPECT_EQ(option(window, 0).text(), QStringLiteral("Project Security ON"));
        EXPECT_EQ(option(window, 1).text(), QStringLiteral("Project Security OFF"));
        EXPECT_EQ(control<QLabel>(window, QStringLiteral("Label1")).text(),
                  QStringLiteral("For details on what Project Security is, please consult the "
                                 "Help File."));
        EXPECT_TRUE(control<QPushButton>(window, QStringLiteral("Command1")).isDefault());
        EXPECT_TRUE(control<QPushButton>(window, QStringLiteral("Command2")).isEnabled());
        EXPECT_TRUE(window.isModal());
        window.close();
    });
}

TEST_F(Security, ShowsOffForAProjectWithoutACode) {
    open(0);
    inWindow([](QWidget& window) {
        EXPECT_FALSE(option(window, 0).isChecked());
        EXPECT_TRUE(option(window, 1).isChecked());
        press(window, "Command1");
    });
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_FALSE(shell->project().SecurityOn);
}

TEST_F(Security, ShowsOnForAProjectWithACode) {
    open(1234);
    inWindow([](QWidget& window) {
        EXPECT_TRUE(option(window, 0).isChecked());
        EXPECT_FALSE(option(window, 1).isChecked());
        window.close();
    });
    EXPECT_EQ(boxes.shown().size(), 1U) << "setting the button is a click on it";
    EXPECT_TRUE(shell->project().SecurityOn);
}

TEST_F(Security, ClickingOnExplainsAndDrawsACode) {
    const TestProject files = open(0);
    nextRandom = 0.25;
    inWindow([](QWidget& window) {
        option(window, 0).click();
        press(window, "Command1");
    });
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].title, QStringLiteral("Just so you know..."));
    EXPECT_EQ(boxes.shown()[0].icon, Box::Icon::exclamation);
    EXPECT_EQ(boxes.shown()[0].text,
              QStringLiteral("Project Security should only be turned on when you are ready to "
                             "distribute your game, and you wish to prevent other Quorvel users "
                             "from editing your game.  Leaving it on for no reason at all is not "
                             "recommended.  Please click the [Help] button for more information."));
    EXPECT_TRUE(shell->project().SecurityOn);
    EXPECT_EQ(codes(files), all(0)) << "nothing reaches the files before the close";
    leave();
    EXPECT_EQ(codes(files), all(1251));

    start({text(files.projectPath())});
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(shell->project().SecurityOn);
}

class CodeRange : public Security, public ::testing::WithParamInterface<std::pair<double, int>> {};

TEST_P(CodeRange, GoesFromOneToFiveThousand) {
    const TestProject files = open(0);
    nextRandom = GetParam().first;
    inWindow([](QWidget& window) {
        option(window, 0).click();
        press(window, "Command1");
    });
    leave();
    EXPECT_EQ(codes(files), all(GetParam().second));
}
INSTANTIATE_TEST_SUITE_P(Ends, CodeRange,
                         ::testing::Values(std::pair{0.0, 1}, std::pair{0.00019, 1},
                                           std::pair{0.0002, 2}, std::pair{0.99999, 5000},
                                           std::pair{0.9999999999, 5000}));

TEST_F(Security, EveryClickDrawsAnotherCode) {
    open(0);
    inWindow([this](QWidget& window) {
        nextRandom = 0.1;
        option(window, 0).click();
        EXPECT_EQ(shell->project().SecurityCode, 501);
        nextRandom = 0.2;
        option(window, 0).click();
        EXPECT_EQ(shell->project().SecurityCode, 1001);
        press(window, "Command1");
    });
    EXPECT_EQ(boxes.shown().size(), 2U);
}

TEST_F(Security, ClickingOffTakesTheCodeOutOfAllFiles) {
    const TestProject files = open(1234);
    inWindow([this](QWidget& window) {
        option(window, 1).click();
        EXPECT_EQ(shell->project().SecurityCode, 0);
        press(window, "Command1");
    });
    EXPECT_FALSE(shell->project().SecurityOn);
    leave();
    EXPECT_EQ(codes(files), all(0));
}

TEST_F(Security, ClosedWithoutOkItStaysOff) {
    const TestProject files = open(0);
    inWindow([](QWidget& window) {
        option(window, 0).click();
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    EXPECT_FALSE(shell->project().SecurityOn);
    leave();
    EXPECT_EQ(codes(files), all(0));
}

TEST_F(Security, AnyCodeIsHarmlessAsTheWindowOpensWithOnSelected) {
    const TestProject files = open(1234);
    nextRandom = 0.5;
    inWindow([](QWidget& window) { press(window, "Command1"); });
    leave();
    EXPECT_EQ(codes(files), all(2501));
    start({text(files.projectPath())});
    EXPECT_TRUE(shell->project().ProjectOpen);
}

TEST_F(Security, TheToolBarOpensTheSameWindow) {
    open(0);
    withWindow(
        QStringLiteral("ProjSecurity"), [this] { action(QStringLiteral("Toolbar1(5)")).trigger(); },
        [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Return); });
    EXPECT_EQ(visibleWindow(QStringLiteral("ProjSecurity")), nullptr) << "Enter is OK";
}

TEST_F(Security, TheArrowKeysChooseToo) {
    open(0);
    inWindow([this](QWidget& window) {
        option(window, 1).setFocus();
        QTest::keyClick(&option(window, 1), Qt::Key_Up);
        EXPECT_TRUE(option(window, 0).isChecked());
        EXPECT_EQ(boxes.shown().size(), 1U);
        press(window, "Command1");
    });
    EXPECT_TRUE(shell->project().SecurityOn);
}

TEST(SecurityHelp, OpensByItsButton) {
    store::Project project;
    PlayedBoxes boxes;
    int helped = 0;
    game::ProjSecurity window(
        project, boxes, [] { return 0.5; }, [&] { ++helped; }, nullptr);
    window.show();
    auto& button = control<QPushButton>(window, QStringLiteral("Command2"));
    EXPECT_TRUE(button.isEnabled());
    button.click();
    EXPECT_EQ(helped, 1);
}

}  // namespace
}  // namespace quorvel::test
