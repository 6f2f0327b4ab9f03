// The road of a newcomer, through the windows and with the real player on a virtual screen: a new
// project, a second scene, pictures, a link, a HotSpot, a test run, closing, opening.
#include <vector>

#include <QDir>

#include "objects/editor_author.h"
#include "store/objects.h"
#include "support/windows/virtual_screen.h"

#ifndef _WIN32

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t kRed = 0xC02020;
constexpr std::uint32_t kGreen = 0x20A040;
constexpr QSize kScreenSize(1000, 700);

class NewcomerRoad : public EditorAuthor {
  protected:
    ~NewcomerRoad() override { endPlayers(); }

    /// Starts the editor. The players that its test runs start are real ones on `screen`.
    void SetUp() override {
        if (!screen.whyNot().isEmpty()) {
            GTEST_SKIP() << screen.whyNot().toStdString();
        }
        programs.whenRun = [this](const QString& program, const QStringList& arguments) {
            players_.push_back(screen.start(program, arguments));
            return players_.back()->waitForStarted();
        };
        start();
        shell->settings().WrongFolder = 3;  // asks, as it does at first
    }

    // What the newcomer does, a step each.
    void makeProject(const char* name) {
        withWindow(
            QStringLiteral("NewProject"),
            [this] { action(QStringLiteral("Filemen(1)")).trigger(); },
            [&](QWidget& window) {
                const Hand hand(window);
                dialogs.choice = text(projects.path()) + QLatin1Char('/');
                hand.click("Command1");
                hand.box("Text2").setText(QString::fromLatin1(name));
                hand.click("Command2");
            });
    }
    void addScene() {
        withWindow(
            QStringLiteral("NewScenefrm"),
            [this] { action(QStringLiteral("projmen(1)")).trigger(); },
            [](QWidget& window) { Hand(window).click("Command3"); });
    }
    /// Gives the scene a picture that lies somewhere on the author's disk.
    void setPicture(const char* file, std::uint32_t colour) {
        writeBytes(pictures / file, bmpBytes(700, 475, colour));
        editScene([&](const Hand& hand) {
            dialogs.choice = text(pictures / file);
            bool isAsked = false;
            withWindow(
                QStringLiteral("PickCM"), [&] { hand.click("Command3"); },
                [&](QWidget& window) {
                    isAsked = true;
                    Hand(window).click("Command1(0)");
                });
            EXPECT_TRUE(isAsked) << "copy or move";
            EXPECT_TRUE(fs::exists(pictures / file)) << "copied";
            hand.click("Command4");
        });
    }
    void linkTo(int side, int scene) {
        editLink(side, [&](const Hand& hand) {
            hand.pick("combo2", scene);
            hand.click("Command1");
        });
    }
    /// Inserts a HotSpot in the upper left corner and makes it a rectangle that leads to a scene.
    void insertHotSpot(int width, int height, int scene) {
        withWindow(
            QStringLiteral("linkPropf"),
            [this] {
                withWindow(
                    QStringLiteral("newlink"),
                    [this] { action(QStringLiteral("scnmen(3)")).trigger(); },
                    [](QWidget& window) {
                        Hand(window).click("Option1(1)");
                        Hand(window).click("Command3");
                    });
            },
            [&](QWidget& window) {
                const Hand hand(window);
                hand.click("Option4(1)");
                hand.type("Text2(0)", QString::number(height));
                hand.type("Text2(1)", QString::number(width));
                hand.pick("LnkScn", scene);
                hand.click("Command6");
            });
    }
    void goTo(const char* arrow) {
        control<QPushButton>(main(), QString::fromLatin1(arrow)).click();
    }

    void endPlayers() {
        for (const auto& player : players_) {
            player->terminate();
            player->waitForFinished();
        }
        players_.clear();
    }
    /// Where a point of the scene is on the virtual screen: the player's window is in its middle.
    static QPoint onScreen(QPoint inScene) {
        return QPoint((kScreenSize.width() - 800) / 2 + 48, (kScreenSize.height() - 600) / 2 + 56) +
               inScene;
    }
    static void keep(const QImage& image, const char* name) {
        const QDir folder(QCoreApplication::applicationDirPath() +
                          QStringLiteral("/../window-pictures"));
        QDir().mkpath(folder.path());
        EXPECT_TRUE(image.save(folder.filePath(QString::fromLatin1(name))));
    }

    const VirtualScreen screen{kScreenSize};
    TempFolder pictures;
    std::vector<std::unique_ptr<QProcess>> players_;
};

TEST_F(NewcomerRoad, FromNothingToAGameThatRuns) {
    makeProject("First");
    ASSERT_TRUE(shell->project().ProjectOpen);
    setPicture("red.bmp", kRed);
    addScene();
    EXPECT_EQ(shell->project().CurrentScene, 2);
    setPicture("green.bmp", kGreen);
    insertHotSpot(100, 80, 1);
    EXPECT_EQ(control<QLabel>(main(), QStringLiteral("StatusBar2(1)")).text(),
              QStringLiteral("Objects: 1 / 20"));

    goTo("Command5");
    EXPECT_EQ(shell->project().CurrentScene, 1);
    linkTo(3, 2);

    action(QStringLiteral("runmen(0)")).trigger();
    ASSERT_EQ(players_.size(), 1U) << "the player was started";
    EXPECT_EQ(players_.front()->program(), text(projects / "Game.exe"));
    EXPECT_TRUE(screen.waitForColour(onScreen({350, 240}), QColor(kRed))) << "scene 1 is seen";
    keep(screen.picture(), "Road-scene-1.png");
    EXPECT_NE(screen.picture().pixelColor(onScreen({-20, 240})), QColor(kRed))
        << "beside the scene window lies the background";
    screen.click(onScreen({690, 200}));
    EXPECT_TRUE(screen.waitForColour(onScreen({350, 240}), QColor(kGreen))) << "the link leads on";
    keep(screen.picture(), "Road-scene-2.png");
    screen.click(onScreen({50, 40}));
    EXPECT_TRUE(screen.waitForColour(onScreen({350, 240}), QColor(kRed)))
        << "the HotSpot leads back";
    EXPECT_EQ(players_.front()->state(), QProcess::Running);
    endPlayers();

    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_FALSE(shell->project().ProjectOpen);
    dialogs.choice = text(projects / "First.qvl");
    action(QStringLiteral("Filemen(2)")).trigger();
    ASSERT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(shell->project().NumberOfScenes, 2);
    EXPECT_EQ(shell->project().CurrentScene, 1);
    EXPECT_EQ(shell->scene().header(store::HeaderString::SceneImage), "red.bmp");
    EXPECT_EQ(shell->scene().LinkRight.target, 2);
    EXPECT_EQ(shell->scene().LinkRight.pointer, 4) << "an arrow to the right";
    goTo("Command6");
    EXPECT_EQ(shell->scene().header(store::HeaderString::SceneImage), "green.bmp");
    EXPECT_EQ(store::number(slot(1), store::HotSpot::TargetScene), 1);
    EXPECT_EQ(boxes.texts(), QStringList()) << "nothing on the road had to be told";
}

TEST_F(NewcomerRoad, ARepeatedTestRunShowsWhatWasChanged) {
    makeProject("Again");
    setPicture("red.bmp", kRed);
    action(QStringLiteral("Toolbar1(25)")).trigger();
    EXPECT_TRUE(screen.waitForColour(onScreen({350, 240}), QColor(kRed)));

    setPicture("green.bmp", kGreen);
    EXPECT_EQ(screen.picture().pixelColor(onScreen({350, 240})), QColor(kRed))
        << "the game goes on with the old scene";
    action(QStringLiteral("Toolbar1(25)")).trigger();
    ASSERT_EQ(players_.size(), 2U);
    EXPECT_TRUE(screen.waitForColour(onScreen({350, 240}), QColor(kGreen)));
    for (const auto& player : players_) {
        EXPECT_EQ(player->state(), QProcess::Running) << "no player stands in the way of another";
    }
    endPlayers();
    EXPECT_EQ(boxes.texts(), QStringList());
}

}  // namespace
}  // namespace quorvel::test

#endif
