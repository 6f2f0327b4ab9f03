// The road of a newcomer, through the windows and with the real player on a virtual screen: a new
// project, a second scene, pictures, a link, a HotSpot, a test run, closing, opening.
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "shell/canvas_author.h"
#include "store/objects.h"
#include "support/gif_bytes.h"
#include "support/windows/virtual_screen.h"

#ifndef _WIN32

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t kRed = 0xC02020;
constexpr std::uint32_t kGreen = 0x20A040;
constexpr QSize kScreenSize(1000, 700);

class NewcomerRoad : public CanvasAuthor {
  protected:
    ~NewcomerRoad() override { endPlayer(); }

    static QPushButton& button(const QWidget& window, const char* name) {
        return control<QPushButton>(window, QString::fromLatin1(name));
    }

    // What the newcomer does, a step each.
    void makeProject(const char* name) {
        withWindow(
            QStringLiteral("NewProject"),
            [this] { action(QStringLiteral("Filemen(1)")).trigger(); },
            [&](QWidget& window) {
                dialogs.choice = text(projects.path()) + QLatin1Char('/');
                button(window, "Command1").click();
                control<QLineEdit>(window, QStringLiteral("Text2"))
                    .setText(QString::fromLatin1(name));
                button(window, "Command2").click();
            });
    }
    void addScene() {
        withWindow(
            QStringLiteral("NewScenefrm"),
            [this] { action(QStringLiteral("projmen(1)")).trigger(); },
            [&](QWidget& window) { button(window, "Command3").click(); });
    }
    void setPicture(const char* file, std::uint32_t colour) {
        writeBytes(projects / ("resource/gfx/" + std::string(file)), bmpBytes(700, 475, colour));
        shell->scene().header(store::HeaderString::SceneImage) = file;
    }
    void linkTo(store::LinkSide side, std::int16_t scene) {
        store::EdgeLink& link = shell->scene().link(side);
        link.target = scene;
        link.pointer = 1;
    }
    void insertHotSpot() {
        withWindow(
            QStringLiteral("newlink"), [this] { action(QStringLiteral("scnmen(3)")).trigger(); },
            [](QWidget& window) {
                control<QRadioButton>(window, QStringLiteral("Option1(1)")).click();
                button(window, "Command3").click();
            });
    }
    void makeQuickSpot(int k, int width, int height, std::int16_t scene) {
        store::ObjectSlot& spot = slot(k);
        store::number(spot, store::HotSpot::QuickSpot) = 1;
        store::word(spot, store::HotSpot::QuickWidth) = std::to_string(width);
        store::word(spot, store::HotSpot::QuickHeight) = std::to_string(height);
        store::number(spot, store::HotSpot::TargetScene) = scene;
        main().view().ShowObject(k);
    }
    void goBack() { button(main(), "Command5").click(); }

    /// The player that a test run starts is a real one on `screen`.
    void playOn(const VirtualScreen& screen) {
        programs.whenRun = [this, &screen](const QString& program, const QStringList& arguments) {
            player_ = screen.start(program, arguments);
            return player_->waitForStarted();
        };
    }
    void endPlayer() {
        if (player_ != nullptr) {
            player_->terminate();
            player_->waitForFinished();
            player_.reset();
        }
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

    std::unique_ptr<QProcess> player_;
};

TEST_F(NewcomerRoad, FromNothingToAGameThatRuns) {
    const VirtualScreen screen(kScreenSize);
    if (!screen.whyNot().isEmpty()) {
        GTEST_SKIP() << screen.whyNot().toStdString();
    }
    playOn(screen);
    start();

    makeProject("First");
    ASSERT_TRUE(shell->project().ProjectOpen);
    setPicture("red.bmp", kRed);
    linkTo(store::LinkSide::right, 2);
    addScene();
    EXPECT_EQ(shell->project().CurrentScene, 2);
    setPicture("green.bmp", kGreen);
    insertHotSpot();
    makeQuickSpot(1, 100, 80, 1);
    EXPECT_EQ(control<QLabel>(main(), QStringLiteral("StatusBar2(1)")).text(),
              QStringLiteral("Objects: 1 / 20"));

    action(QStringLiteral("runmen(0)")).trigger();
    ASSERT_NE(player_, nullptr) << "the player was started";
    EXPECT_EQ(player_->program(), text(projects / "Game.exe"));
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
    EXPECT_EQ(player_->state(), QProcess::Running);
    endPlayer();

    goBack();
    EXPECT_EQ(shell->project().CurrentScene, 1);
    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_FALSE(shell->project().ProjectOpen);
    dialogs.choice = text(projects / "First.qvl");
    action(QStringLiteral("Filemen(2)")).trigger();
    ASSERT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(shell->project().NumberOfScenes, 2);
    EXPECT_EQ(shell->project().CurrentScene, 1);
    EXPECT_EQ(shell->scene().header(store::HeaderString::SceneImage), "red.bmp");
    EXPECT_EQ(shell->scene().LinkRight.target, 2);
    button(main(), "Command6").click();
    EXPECT_EQ(store::number(slot(1), store::HotSpot::TargetScene), 1);
    EXPECT_EQ(boxes.texts(), QStringList()) << "nothing on the road had to be told";
}

}  // namespace
}  // namespace quorvel::test

#endif
