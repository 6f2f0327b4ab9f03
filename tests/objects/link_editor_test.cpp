#include <gtest/gtest.h>

#include <QTextBrowser>

#include "objects/editor_author.h"
#include "support/windows/tip_reader.h"

namespace quorvel::test {
namespace {

using store::LinkSide;

class LinkEditor : public EditorAuthor {
  protected:
    /// Scene 1 has no picture, scene 2 one of 60 by 40, scene 3 names a file that is not there.
    static ProjectBuilder threeScenes() {
        return ProjectBuilder()
            .scenes(3)
            .scene(2, "Cellar", "cellar.gif")
            .scene(3, "Roof", "gone.gif")
            .gfx("cellar.gif", stillGif(60, 40));
    }
    store::EdgeLink& link(LinkSide side) { return scene().link(side); }
};

TEST_F(LinkEditor, SaysWhatItIsAndListsWhatThereIs) {
    open(threeScenes());
    editLink(1, [](const Hand& hand) {
        EXPECT_EQ(hand.window().windowTitle(), QStringLiteral("\"Link\" Object Properties"));
        QStringList tabs;
        for (int i = 0; i < hand.get<QTabBar>("TabStrip1").count(); ++i) {
            tabs << hand.get<QTabBar>("TabStrip1").tabText(i);
        }
        EXPECT_EQ(tabs.join(QLatin1Char(' ')), QStringLiteral("LEFT UP RIGHT DOWN"));
        const auto entries = [](const QComboBox& list) {
            QStringList texts;
            for (int i = 0; i < list.count(); ++i) {
                texts << list.itemText(i);
            }
            return texts;
        };
        EXPECT_EQ(entries(hand.list("Combo1")).join(QLatin1Char(' ')),
                  QStringLiteral("(NORMAL) UP DOWN LEFT RIGHT UP-LEFT UP-RIGHT DOWN-LEFT "
                                 "DOWN-RIGHT EXIT"));
        EXPECT_EQ(entries(hand.list("combo2")),
                  (QStringList{QStringLiteral("(None)"), QStringLiteral("1 (Scene 1)"),
                               QStringLiteral("2 (Cellar)"), QStringLiteral("3 (Roof)")}));
        EXPECT_EQ(hand.get<QLabel>("label3").text(), QStringLiteral("Scene >"));
        EXPECT_EQ(hand.button("Command1").text(), QStringLiteral("OK"));
        EXPECT_EQ(hand.button("Command3").text(), QStringLiteral("Help"));
    });
}

TEST_F(LinkEditor, AWheelTurnedOverAListInPassingChangesNothing) {
    open(threeScenes());
    const store::Scene before = scene();
    editLink(1, [&](const Hand& hand) {
        QComboBox& list = hand.list("combo2");
        EXPECT_EQ(list.focusPolicy(), Qt::StrongFocus) << "a wheel does not give it the keyboard";
        hand.get<QComboBox>("Combo1").setFocus();
        const auto turn = [&hand] { hand.turnWheel("combo2"); };
        turn();
        EXPECT_EQ(list.currentIndex(), 0);
        EXPECT_TRUE(scene() == before);
        list.setFocus();
        turn();
        EXPECT_EQ(list.currentIndex(), 1) << "a list that has the keyboard follows the wheel";
    });
}

TEST_F(LinkEditor, TheLinkOnTheCanvasIsClearerOnceItLeadsSomewhere) {
    open(threeScenes());
    auto& strip = control<QWidget>(main(), QStringLiteral("Directionl(1)"));
    const auto seen = [&strip] { return strip.grab().toImage(); };
    const QImage faint = seen();
    editLink(1, [&](const Hand& hand) {
        hand.pick("combo2", 2);
        EXPECT_NE(seen(), faint);
        hand.pick("combo2", 0);
        EXPECT_EQ(seen(), faint);
    });
}

TEST_F(LinkEditor, OpensOnTheDirectionOfTheLinkAndChangesNothing) {
    open(threeScenes());
    for (const LinkSide side : store::kLinkSides) {
        link(side).pointer = static_cast<std::int16_t>(static_cast<int>(side) + 4);
        link(side).target = static_cast<std::int16_t>(static_cast<int>(side) % 4);
    }
    const store::Scene before = scene();
    for (int n = 1; n <= 4; ++n) {
        editLink(n, [&](const Hand& hand) {
            EXPECT_EQ(shell->actions().CurObj, n);
            EXPECT_EQ(hand.get<QTabBar>("TabStrip1").currentIndex(), n - 1);
            EXPECT_EQ(hand.list("Combo1").currentIndex(), n + 4);
            EXPECT_EQ(hand.list("combo2").currentIndex(), n % 4);
            for (int tab = 0; tab < 4; ++tab) {
                hand.get<QTabBar>("TabStrip1").setCurrentIndex(tab);
                EXPECT_EQ(shell->actions().CurObj, tab + 1);
                EXPECT_EQ(hand.list("Combo1").currentIndex(), tab + 5);
            }
            hand.click("Command1");
            EXPECT_FALSE(hand.window().isVisible());
        });
        EXPECT_EQ(shell->actions().CurObj, 0) << "no editor is open";
    }
    EXPECT_TRUE(scene() == before);
}

TEST_F(LinkEditor, ASceneChosenWhileThePointerIsNormalPicksThePointerOfTheTab) {
    open(threeScenes());
    constexpr std::array kOwn = {3, 1, 4, 2};  // LEFT, UP, RIGHT, DOWN
    editLink(1, [&](const Hand& hand) {
        for (int tab = 0; tab < 4; ++tab) {
            hand.get<QTabBar>("TabStrip1").setCurrentIndex(tab);
            hand.pick("combo2", 2);
            const store::EdgeLink& now = link(static_cast<LinkSide>(tab + 1));
            EXPECT_EQ(now.target, 2);
            EXPECT_EQ(now.pointer, kOwn.at(static_cast<std::size_t>(tab)));
            EXPECT_EQ(hand.list("Combo1").currentIndex(), now.pointer);
        }
    });
}

TEST_F(LinkEditor, ASceneChosenWhileThePointerIsAnotherKeepsThatPointer) {
    open(threeScenes());
    editLink(2, [&](const Hand& hand) {
        hand.pick("Combo1", 9);
        EXPECT_EQ(link(LinkSide::up).pointer, 9);
        hand.pick("combo2", 3);
        EXPECT_EQ(link(LinkSide::up).target, 3);
        EXPECT_EQ(link(LinkSide::up).pointer, 9);
        EXPECT_EQ(hand.list("Combo1").currentText(), QStringLiteral("EXIT"));
    });
}

TEST_F(LinkEditor, NoSceneResetsThePointerToNormal) {
    open(threeScenes());
    link(LinkSide::down) = {.pointer = 9, .target = 2};
    editLink(4, [&](const Hand& hand) {
        EXPECT_NE(hand.picture("thumbnail").picture(), nullptr);
        hand.pick("combo2", 0);
        EXPECT_EQ(link(LinkSide::down).target, 0);
        EXPECT_EQ(link(LinkSide::down).pointer, 0);
        EXPECT_EQ(hand.list("Combo1").currentText(), QStringLiteral("(NORMAL)"));
        EXPECT_EQ(hand.picture("thumbnail").picture(), nullptr);
    });
}

TEST_F(LinkEditor, ThumbnailsShowThePictureOfTheScene) {
    open(threeScenes());
    // The canvas shows a picture that no save has brought to the store yet.
    scene().header(store::HeaderString::SceneImage) = "cellar.gif";
    editLink(1, [](const Hand& hand) {
        EXPECT_EQ(hand.picture("thumbnail").picture(), nullptr);
        hand.pick("combo2", 2);
        ASSERT_NE(hand.picture("thumbnail").picture(), nullptr);
        EXPECT_EQ(hand.picture("thumbnail").picture()->size(), QSize(60, 40));
        hand.pick("combo2", 3);
        EXPECT_EQ(hand.picture("thumbnail").picture(), nullptr) << "the file is not there";
        hand.pick("combo2", 1);
        EXPECT_NE(hand.picture("thumbnail").picture(), nullptr) << "as on the canvas";
    });
}

TEST_F(LinkEditor, PointersAreShownAndAGameHasItsOwn) {
    open(threeScenes()
             .gfx("mine.gif", stillGif(12, 14))
             .editSettings([](store::GameSettingsRecord& settings) {
                 settings.GamePointer[12] = "mine.gif";
                 settings.GamePointer[1] = "gone.cur";
             }));
    editLink(1, [](const Hand& hand) {
        ASSERT_NE(hand.picture("Picture1").picture(), nullptr);
        EXPECT_EQ(hand.picture("Picture1").picture()->size(), QSize(12, 14)) << "element 13";
        for (int pointer = 1; pointer <= 9; ++pointer) {
            hand.pick("Combo1", pointer);
            ASSERT_NE(hand.picture("Picture1").picture(), nullptr) << pointer;
            EXPECT_EQ(hand.picture("Picture1").picture()->size(), QSize(32, 32)) << pointer;
        }
    });
}

TEST_F(LinkEditor, ATargetThatIsNoSceneStaysUntilAnotherIsChosen) {
    open(threeScenes());
    link(LinkSide::left) = {.pointer = 77, .target = 500};
    const store::Scene before = scene();
    editLink(1, [](const Hand& hand) {
        EXPECT_EQ(hand.list("combo2").currentIndex(), -1);
        EXPECT_EQ(hand.list("Combo1").currentIndex(), -1);
        hand.get<QTabBar>("TabStrip1").setCurrentIndex(2);
        hand.get<QTabBar>("TabStrip1").setCurrentIndex(0);
        hand.click("Command1");
    });
    EXPECT_TRUE(scene() == before);
}

TEST_F(LinkEditor, TheFileHoldsTheLinkAndNothingElseHasChanged) {
    open(threeScenes());
    std::string expected = recordBytes(1);
    editLink(3, [](const Hand& hand) { hand.pick("combo2", 3); });
    ASSERT_TRUE(shell->CloseProject());
    store::SceneRecord after = record(1);
    EXPECT_EQ(after.LinkRightTarget, 3);
    EXPECT_EQ(after.LinkRightPointer, 4);
    after.LinkRightTarget = 0;
    after.LinkRightPointer = 0;
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(&after), sizeof after), expected);
}

TEST_F(LinkEditor, TheMenuOffersItAfterItsQuickTip) {
    open(threeScenes());
    TipReader reader(*shell);
    reader.whileRead = [] { EXPECT_EQ(visibleWindow(QStringLiteral("directionprop")), nullptr); };
    editLink(1, [](const Hand& hand) { hand.click("Command3"); });
    EXPECT_EQ(reader.tips, std::vector{5});
    QWidget* help = visibleWindow(QStringLiteral("HelpWindow"));
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(control<QTextBrowser>(*help, QStringLiteral("Page")).source().fileName(),
              QStringLiteral("link-properties.html"));
}

}  // namespace
}  // namespace quorvel::test
