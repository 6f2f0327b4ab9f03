// The window of the scene: its texts, its rules, what is shown and stored at once.
#include <gtest/gtest.h>

#include <QSignalSpy>

#include "objects/editor_author.h"
#include "support/windows/tip_reader.h"

namespace quorvel::test {
namespace {

using store::HeaderInt;
using store::HeaderString;

constexpr const char* kSetFlag =
    "Set Flag (Occurs immediately when player enters this scene, unless the 'Check Flag' option "
    "above switches the scene)";

class SceneEditor : public EditorAuthor {
  protected:
    void openGame(const std::function<void(store::SceneRecord&)>& change = {}) {
        open(ProjectBuilder()
                 .scenes(3)
                 .scene(1, "Hall", "hall.gif")
                 .scene(2, "Cellar", "cellar.gif")
                 .gfx("hall.gif", stillGif(70, 50))
                 .gfx("cellar.gif", stillGif(60, 40))
                 .editScene(
                     1, change ? change : [](store::SceneRecord&) {}));
    }
    QString sceneEntry(int number) {
        return control<QComboBox>(main(), QStringLiteral("Combo1")).itemText(number);
    }
};

TEST_F(SceneEditor, ShowsTheSceneAndSaysTheWholeOfItsTexts) {
    openGame();
    editScene([](const Hand& hand) {
        EXPECT_EQ(hand.window().windowTitle(), QStringLiteral("Scene Properties"));
        EXPECT_EQ(hand.get<QLabel>("SceneIDX").text(), QStringLiteral("1"));
        EXPECT_EQ(hand.text("Text2"), QStringLiteral("Hall"));
        EXPECT_EQ(hand.text("Text1"), QStringLiteral("hall.gif"));
        ASSERT_NE(hand.picture("Image1").picture(), nullptr);
        EXPECT_EQ(hand.picture("Image1").picture()->size(), QSize(70, 50));
        EXPECT_FALSE(hand.button("Command1").isEnabled());
        EXPECT_FALSE(hand.button("RestoreIt").isVisible());
        hand.expectTexts({"Scene #",
                          "Internal Name >",
                          "Scene Image",
                          "...",
                          "Check Flag",
                          "If Flag",
                          "then switch to scene",
                          "Set Flag",
                          kSetFlag,
                          "Flag",
                          "Value",
                          "ADD value to flag",
                          "Movies",
                          "Enter >",
                          "Exit >",
                          "Vol >",
                          "Soundtrack",
                          "Sound Effects",
                          "Looping >",
                          "Pan >",
                          "Apply",
                          "Cancel",
                          "OK",
                          "Help",
                          "Restore Window",
                          ">"});
        EXPECT_EQ(hand.button("Playmov(4)").toolTip(), QStringLiteral("Play/ Stop"));
        EXPECT_EQ(hand.button("Playwav(1)").toolTip(), QStringLiteral("Play"));
        EXPECT_EQ(hand.button("Playwav(3)").toolTip(), QStringLiteral("Play/ Stop"));
        EXPECT_EQ(hand.box("SV(4)").toolTip(), QStringLiteral("0 to 100 (Full Volume)"));
        EXPECT_EQ(hand.box("SV(0)").toolTip(), QStringLiteral("-4000 to 0 (Full Volume)"));
        EXPECT_EQ(hand.window().findChild<QComboBox*>(QStringLiteral("sChannelNum(1)")), nullptr);
    });
    EXPECT_EQ(shell->actions().CurObj, 0);
}

TEST_F(SceneEditor, AnEmptyNameGivesAnEntryOfTheNumberAndEmptyParentheses) {
    openGame();
    editScene([this](const Hand& hand) {
        hand.box("Text2").selectAll();
        QTest::keyClick(&hand.box("Text2"), Qt::Key_Backspace);
        EXPECT_TRUE(hand.button("Command1").isEnabled());
        const QSignalSpy changed(hand.list("tags").model(), &QAbstractItemModel::dataChanged);
        hand.click("Command1");
        EXPECT_EQ(sceneEntry(1), QStringLiteral("1 ()"));
        EXPECT_GE(changed.count(), 1) << "lists that show it are told";
        EXPECT_EQ(hand.list("tags").itemText(1), QStringLiteral("1 ()")) << "in every list";
        hand.type("Text2", QStringLiteral("Great Hall of all Halls"));
        EXPECT_EQ(hand.text("Text2"), QStringLiteral("Great Hall of a")) << "what the file takes";
        hand.click("Command4");
    });
    EXPECT_EQ(sceneEntry(1), QStringLiteral("1 (Great Hall of a)"));
    EXPECT_EQ(scene().header(HeaderString::SceneName), "Great Hall of a");
}

TEST_F(SceneEditor, ASceneMayLeadToItself) {
    openGame();
    editScene([](const Hand& hand) {
        hand.pick("tags", 1);
        EXPECT_TRUE(hand.check("Check2").isChecked());
        hand.click("Command4");
    });
    EXPECT_EQ(scene().header(HeaderInt::SceneCheckFlagTarget), 1);
    EXPECT_EQ(scene().header(HeaderInt::SceneCheckFlagOn), 1);
}

TEST_F(SceneEditor, NoSceneClearsTheCheckAndKeepsTheTest) {
    openGame([](store::SceneRecord& record) {
        record.SceneCheckFlagOn = 1;
        record.SceneCheckFlagId = 40;
        record.SceneCheckFlagTest = 3;
        record.SceneCheckFlagValue = -7;
        record.SceneCheckFlagTarget = 2;
    });
    editScene([](const Hand& hand) {
        EXPECT_TRUE(hand.check("Check2").isChecked());
        EXPECT_NE(hand.picture("thumbnail").picture(), nullptr);
        hand.pick("tags", 0);
        EXPECT_FALSE(hand.check("Check2").isChecked());
        EXPECT_EQ(hand.picture("thumbnail").picture(), nullptr);
        hand.click("Command4");
    });
    EXPECT_EQ(scene().header(HeaderInt::SceneCheckFlagOn), 0);
    EXPECT_EQ(scene().header(HeaderInt::SceneCheckFlagId), 40);
    EXPECT_EQ(scene().header(HeaderInt::SceneCheckFlagTest), 3);
    EXPECT_EQ(scene().header(HeaderInt::SceneCheckFlagValue), -7);
    EXPECT_EQ(scene().header(HeaderInt::SceneCheckFlagTarget), 0);
}

TEST_F(SceneEditor, NumbersAndOperatorsTickTheirGroup) {
    openGame();
    editScene([](const Hand& hand) {
        const auto ticks = [&hand](const char* check) {
            const bool on = hand.check(check).isChecked();
            hand.check("Check1").setChecked(false);
            hand.check("Check2").setChecked(false);
            return on;
        };
        hand.type("FlagID(0)", QStringLiteral("5"));
        EXPECT_TRUE(ticks("Check2"));
        hand.type("Text3(0)", QStringLiteral("-5"));
        EXPECT_TRUE(ticks("Check2"));
        hand.pick("Combo2", 1);
        EXPECT_TRUE(ticks("Check2"));
        hand.type("FlagID(1)", QStringLiteral("5"));
        EXPECT_TRUE(ticks("Check1"));
        hand.type("Text3(1)", QStringLiteral("5"));
        EXPECT_TRUE(ticks("Check1"));
        hand.click("Check3");
        EXPECT_TRUE(ticks("Check1"));
    });
}

TEST_F(SceneEditor, ApplyDrawsTheCanvasAtOnceAndCancelKeepsIt) {
    openGame();
    editScene([this](const Hand& hand) {
        dialogs.choice = text(files.gfx("cellar.gif"));
        hand.click("Command3");
        EXPECT_EQ(dialogs.asked.back().title,
                  QStringLiteral("Locate background image for this scene"));
        EXPECT_EQ(dialogs.asked.back().filter,
                  QStringLiteral("Bitmap Files (*.bmp)|*.bmp|GIF Files (*.gif)|*.gif|JPG Files "
                                 "(*.jpg)|*.jpg|All supported Files (*.bmp;*.gif;*.jpg)|*.bmp;"
                                 "*.gif;*.jpg|"));
        EXPECT_EQ(hand.picture("Image1").picture()->size(), QSize(60, 40));
        EXPECT_EQ(main().view().sceneImageSize(), QSize(70, 50)) << "not applied yet";
        hand.click("Command1");
        EXPECT_EQ(main().view().sceneImageSize(), QSize(60, 40));
        hand.click("Command2");
    });
    EXPECT_EQ(main().view().sceneImageSize(), QSize(60, 40));
    EXPECT_EQ(scene().header(HeaderString::SceneImage), "cellar.gif");
    ASSERT_TRUE(shell->CloseProject());
    EXPECT_EQ(record(1).SceneImage.text(), "cellar.gif");
}

TEST_F(SceneEditor, APictureThatCannotBeShownIsToldAndTheRestIsSaved) {
    openGame([](store::SceneRecord& record) { record.SceneImage = "gone.gif"; });
    boxes.forget();
    editScene([](const Hand& hand) {
        EXPECT_EQ(hand.picture("Image1").picture(), nullptr);
        hand.type("FlagID(1)", QStringLiteral("9"));
        hand.click("Command4");
        EXPECT_FALSE(hand.window().isVisible());
    });
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.texts().front(),
              QStringLiteral("Error 53 (File not found) in procedure GetSceneImage of Module "
                             "SceneData"));
    EXPECT_EQ(scene().header(HeaderInt::SceneSetFlagId), 9);
    EXPECT_EQ(scene().header(HeaderString::SceneImage), "gone.gif");
}

TEST_F(SceneEditor, ANameThatNoListHasIsStoredAllTheSame) {
    openGame();
    shell->project().lists.scenes.clear();
    editScene([](const Hand& hand) {
        hand.type("Text2", QStringLiteral("Renamed"));
        hand.click("Command1");
        hand.click("Command4");
    });
    EXPECT_EQ(shell->scene().header(HeaderString::SceneName), "Renamed");
    EXPECT_TRUE(shell->project().lists.scenes.empty());
}

TEST_F(SceneEditor, NumbersBeyond16BitsAreToldAndNothingIsStored) {
    openGame();
    const store::Scene before = scene();
    editScene([&](const Hand& hand) {
        hand.type("Text3(1)", QStringLiteral("32768"));
        hand.click("Command4");
        EXPECT_TRUE(hand.window().isVisible());
        ASSERT_EQ(boxes.shown().size(), 1U);
        EXPECT_TRUE(boxes.texts().front().startsWith(QStringLiteral("The number 32768 ")));
        EXPECT_TRUE(scene() == before);
        hand.type("Text3(1)", QStringLiteral("32767"));
        hand.click("Command4");
        EXPECT_FALSE(hand.window().isVisible());
    });
    EXPECT_EQ(scene().header(HeaderInt::SceneSetFlagValue), 32767);
}

TEST_F(SceneEditor, IsOfferedByMenuToolBarAndCanvasWhileAProjectIsOpen) {
    openGame();
    const TipReader reader(*shell);
    const auto close = [](QWidget& window) { window.close(); };
    withWindow(
        QStringLiteral("sceneimage"), [this] { action(QStringLiteral("scnmen(1)")).trigger(); },
        close);
    withWindow(
        QStringLiteral("sceneimage"), [this] { action(QStringLiteral("Toolbar1(22)")).trigger(); },
        close);
    auto& popup = control<QAction>(shell->actions().popups(), QStringLiteral("scnimage"));
    EXPECT_TRUE(popup.isEnabled());
    withWindow(
        QStringLiteral("sceneimage"), [&popup] { popup.trigger(); }, close);
    EXPECT_EQ(reader.tips, (std::vector{6, 6, 6}));
    ASSERT_TRUE(shell->CloseProject());
    EXPECT_FALSE(action(QStringLiteral("scnmen(1)")).isEnabled());
    EXPECT_FALSE(popup.isEnabled());
}

}  // namespace
}  // namespace quorvel::test
