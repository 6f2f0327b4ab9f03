// The Tab key in the three property windows: from left to right, from top to bottom.
#include <gtest/gtest.h>

#include "objects/editor_author.h"

namespace quorvel::test {
namespace {

using store::HeaderString;
using store::HotSpot;

class Keyboard : public EditorAuthor {
  protected:
    Keyboard() {
        open(ProjectBuilder()
                 .scenes(2)
                 .items(1)
                 .mmedia("a.wav", "a")
                 .mmedia("b.avi", "b")
                 .mmedia("c.mp3", "c"));
    }
    /// Where the Tab key stops, beginning with `first`.
    static QString stops(const Hand& hand, const char* first) {
        hand.get<QWidget>(first).setFocus();
        QStringList names;
        constexpr int kMostStops = 80;
        QWidget* now = hand.window().focusWidget();
        while (names.size() < kMostStops && now != nullptr && !names.contains(now->objectName())) {
            names << now->objectName();
            QTest::keyClick(now, Qt::Key_Tab);
            now = hand.window().focusWidget();
        }
        return names.join(QLatin1Char(' '));
    }
};

TEST_F(Keyboard, Link) {
    editLink(1, [](const Hand& hand) {
        EXPECT_EQ(stops(hand, "TabStrip1"),
                  QStringLiteral("TabStrip1 Combo1 combo2 Command1 Command3"));
    });
}

TEST_F(Keyboard, HotSpot) {
    store::ObjectSlot& hotSpot = slot(1);
    store::ResetSlot(hotSpot, store::ObjectType::hotSpot);
    store::number(hotSpot, HotSpot::QuickSpot) = 1;
    store::word(hotSpot, HotSpot::QuickHeight) = "9";
    store::word(hotSpot, HotSpot::QuickWidth) = "9";
    store::word(hotSpot, HotSpot::Sound) = "a.wav";
    store::word(hotSpot, HotSpot::FailureSound) = "a.wav";
    main().view().ShowObject(1);
    editObject(1, QStringLiteral("linkPropf"), [](const Hand& hand) {
        EXPECT_EQ(
            stops(hand, "Pages"),
            QStringLiteral("Pages Command7 Option4(1) Text2(0) Text2(1) Option1(1) Option3(1) "
                           "FlagID(0) Combo2 Text3(0) Option2(1) LnkScn Combo1(1) Check5 "
                           "Combo3 Check3 FlagID(1) Text3(1) Check4 Command6 Command3 "
                           "Command5"));
        hand.turnTo(1);
        EXPECT_EQ(stops(hand, "Pages"),
                  QStringLiteral("Pages LSE(1) Playwav(1) sChannelNum(1) Hscroll1(1) Hscroll2(1) "
                                 "HLeft(1) Centr(1) HRight(1) LSE(2) Check1 Combo Check2 LSE(3) "
                                 "Playwav(3) sChannelNum(3) Hscroll1(3) Hscroll2(3) HLeft(3) "
                                 "Centr(3) HRight(3) Command6 Command3 Command5"));
    });
}

TEST_F(Keyboard, Scene) {
    scene().header(HeaderString::SceneEnterMovie) = "b.avi";
    scene().header(HeaderString::SceneSoundtrack) = "c.mp3";
    scene().header(HeaderString::SceneSound3File) = "a.wav";
    editScene([](const Hand& hand) {
        EXPECT_EQ(
            stops(hand, "Pages"),
            QStringLiteral("Pages Text2 Command3 Check2 FlagID(0) Combo2 Text3(0) tags Check1 "
                           "FlagID(1) Text3(1) Check3 Command4 Command2 Command5"));
        hand.turnTo(1);
        EXPECT_EQ(stops(hand, "Pages"),
                  QStringLiteral("Pages LME(4) Playmov(4) Hscroll1(4) LME(5) locatebutton(1) "
                                 "PlayMidfile Hscroll1(0) LSE(1) LSE(2) LSE(3) Playwav(3) "
                                 "Hscroll1(3) Hscroll2(3) HLeft(3) Centr(3) HRight(3) Command4 "
                                 "Command2 Command5"));
    });
}

TEST_F(Keyboard, ControlAndTabTurnThePagesFromEverywhere) {
    const auto forth = [](const Hand& hand, const char* bar) {
        QTest::keyClick(hand.window().focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
        return hand.get<QTabBar>(bar).currentIndex();
    };
    const auto back = [](const Hand& hand, const char* bar, Qt::Key key = Qt::Key_Backtab) {
        QTest::keyClick(hand.window().focusWidget(), key, Qt::ControlModifier | Qt::ShiftModifier);
        return hand.get<QTabBar>(bar).currentIndex();
    };
    editScene([&](const Hand& hand) {
        hand.box("Text2").setFocus();
        EXPECT_EQ(forth(hand, "Pages"), 1);
        EXPECT_TRUE(hand.box("MEN(4)").isVisible());
        hand.button("Command4").setFocus();
        EXPECT_EQ(forth(hand, "Pages"), 0) << "round and round";
        EXPECT_EQ(back(hand, "Pages"), 1);
        EXPECT_FALSE(hand.button("Command1").isEnabled()) << "nothing has changed";
    });
    editLink(4, [&](const Hand& hand) {
        hand.list("combo2").setFocus();
        EXPECT_EQ(forth(hand, "TabStrip1"), 0);
        EXPECT_EQ(shell->actions().CurObj, 1);
        EXPECT_EQ(back(hand, "TabStrip1", Qt::Key_Tab), 3);
        EXPECT_EQ(shell->actions().CurObj, 4);
    });
}

TEST_F(Keyboard, OkIsTheButtonOfEnter) {
    const auto expectOk = [](const Hand& hand) {
        int defaults = 0;
        for (const QPushButton* button : hand.window().findChildren<QPushButton*>()) {
            if (button->isDefault()) {
                ++defaults;
                EXPECT_EQ(button->text(), QStringLiteral("OK"));
            }
        }
        EXPECT_EQ(defaults, 1);
    };
    store::ResetSlot(slot(1), store::ObjectType::hotSpot);
    editLink(1, expectOk);
    editScene(expectOk);
    editObject(1, QStringLiteral("linkPropf"), expectOk);
}

}  // namespace
}  // namespace quorvel::test
