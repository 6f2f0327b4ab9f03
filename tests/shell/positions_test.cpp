// The alerts about what lies outside the scene, and the way back to where everything was.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>

#include "shell/canvas_author.h"
#include "support/gif_bytes.h"

namespace quorvel::test {
namespace {

using forms::Answer;
using forms::Box;

const QString kLost = QStringLiteral(
    "Object Index # %1 is out of the scene by more than 50%.\n\nIf transparent, it may be "
    "impossible to access it.\n\nWould you like to move it?");

class PositionsTest : public CanvasAuthor {};

// The way back.

TEST_F(PositionsTest, RestoreAsksAndPutsEverythingBack) {
    open(withQuickSpot().object(1, 3, 0, 100, 120, "a.gif"));
    EXPECT_TRUE(button("RestoreObjs").isEnabled());
    carry(animation(3), {0, 0}, {300, 300});
    carry(quickSpot(4), {0, 0}, {350, 350});
    carry(link(1), {0, 0}, {250, 60});
    boxes.answer(Answer::no).answer(Answer::yes);
    button("RestoreObjs").click();
    EXPECT_EQ(placeInSlot(3), QPoint(300, 300));
    ASSERT_EQ(boxes.shown().size(), 1U);
    const Box& box = boxes.shown().front();
    EXPECT_EQ(box.text, QStringLiteral("Restore the positions of all objects as they were when "
                                       "this scene was loaded?"));
    EXPECT_EQ(box.title, QStringLiteral("Restore Object Positions"));
    EXPECT_EQ(box.icon, Box::Icon::question);
    EXPECT_EQ(box.buttons, Box::Buttons::yesNo);
    EXPECT_TRUE(box.destroys) << "the places since then are lost";

    button("RestoreObjs").click();
    EXPECT_EQ(placeInSlot(3), QPoint(100, 120));
    EXPECT_EQ(placeInSlot(4), QPoint(200, 150));
    EXPECT_EQ(link(1).pos(), QPoint(0, 33));
    EXPECT_EQ(shell->scene().LinkLeft.left, 250) << "a link comes back with the next save";
    const std::string slotBefore = storedSlot(1, 3);
    leaveScene();
    EXPECT_EQ(storedLink(1, kLeft), (std::array{33, 0, 33, 410}));
    EXPECT_EQ(storedSlot(1, 3), slotBefore);
}

TEST_F(PositionsTest, AnObjectInsertedSinceMovesOnlyAfterTheSceneIsShownAgain) {
    open(scenes());
    shell->actions().InsertX = 60;
    shell->actions().InsertY = 70;
    shell->actions().InsertObject(store::ObjectType::delay, 2);
    carry(animation(2), {0, 0}, {300, 300});
    boxes.answer(Answer::yes).answer(Answer::yes);
    button("RestoreObjs").click();
    EXPECT_EQ(placeInSlot(2), QPoint(300, 300)) << "no place is remembered";
    leaveScene();
    button("Command5").click();
    carry(animation(2), {0, 0}, {400, 100});
    button("RestoreObjs").click();
    EXPECT_EQ(placeInSlot(2), QPoint(300, 300));
}

TEST_F(PositionsTest, TheMark999IsTakenLiterally) {
    open(scenes().object(1, 3, 0, 999, 120, "a.gif").object(1, 4, 0, 100, 120, "a.gif"));
    for (int k = 3; k <= 4; ++k) {
        animation(k).setFocus();
        QTest::keyClick(&animation(k), Qt::Key_Up);
    }
    boxes.answer(Answer::yes);
    button("RestoreObjs").click();
    EXPECT_EQ(placeInSlot(3), QPoint(999, 119));
    EXPECT_EQ(placeInSlot(4), QPoint(100, 120));
}

TEST_F(PositionsTest, TheObjectAlertAsksForEachObjectAndRestoreBringsItBackOutside) {
    open(scenes()
             .object(1, 3, 0, -21, 120, "a.gif")
             .object(1, 5, 0, 100, 100, "a.gif")
             .object(1, 20, 0, 100, 500, "a.gif"));
    EXPECT_TRUE(alertShown());
    EXPECT_EQ(button("ObjAlert").text(), QStringLiteral("Object Position"));
    EXPECT_EQ(button("ObjAlert").toolTip(), QStringLiteral("Click for details..."));
    main().view().ToggleBorders(true);
    boxes.answer(Answer::yes).answer(Answer::no);
    button("ObjAlert").click();
    EXPECT_EQ(boxes.texts(), (QStringList{kLost.arg(3), kLost.arg(20)}));
    for (const Box& box : boxes.shown()) {
        EXPECT_EQ(box.title, QStringLiteral("Object Position Alert"));
        EXPECT_EQ(box.icon, Box::Icon::exclamation);
        EXPECT_EQ(box.buttons, Box::Buttons::yesNo);
    }
    EXPECT_EQ(placeInSlot(3), QPoint(0, 0));
    EXPECT_EQ(animation(3).pos(), QPoint(0, 0));
    EXPECT_EQ(element("hilite", 3).pos(), QPoint(-1, -1));
    EXPECT_EQ(placeInSlot(20), QPoint(100, 500));
    EXPECT_TRUE(alertShown()) << "one is still out";

    boxes.answer(Answer::yes);
    button("ObjAlert").click();
    EXPECT_EQ(boxes.shown().size(), 3U) << "only the one that is out is asked for";
    EXPECT_FALSE(alertShown());

    boxes.answer(Answer::yes);
    button("RestoreObjs").click();
    EXPECT_EQ(placeInSlot(3), QPoint(-21, 120));
    EXPECT_EQ(placeInSlot(20), QPoint(100, 500));
    EXPECT_TRUE(alertShown());
    leaveScene();
    EXPECT_FALSE(alertShown());
    EXPECT_EQ(storedPlace(1, 3), QPoint(-21, 120));
}

TEST_F(PositionsTest, TheSceneAlertTellsTheSize) {
    open(scenes().scene(1, "Hall", "small.gif").gfx("small.gif", stillGif(320, 200)));
    ASSERT_TRUE(button("ScnAlert").isVisible());
    button("ScnAlert").click();
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].title, QStringLiteral("Scene Size Alert"));
    EXPECT_TRUE(boxes.texts()[0].contains(
        QStringLiteral("\n\nThis scene image is 320 wide X 200 high.\n\n")));
    EXPECT_TRUE(button("ScnAlert").isVisible());
    leaveScene();
    EXPECT_FALSE(button("ScnAlert").isVisible());
}

TEST_F(PositionsTest, RestoreIsForASceneOnTheCanvas) {
    open(scenes());
    EXPECT_EQ(button("RestoreObjs").toolTip(),
              QStringLiteral("Restore objects to their positions when scene was loaded"));
    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_FALSE(button("RestoreObjs").isEnabled());
}

}  // namespace
}  // namespace quorvel::test
