// Carrying objects and edge links over the canvas of the real window, the alerts and the way back.
#include <algorithm>
#include <gtest/gtest.h>
#include <iostream>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMenu>

#include "shell/canvas_author.h"
#include "support/gif_bytes.h"

namespace quorvel::test {
namespace {

using canvas::Place;
using store::LinkSide;

class DraggingTest : public CanvasAuthor {};

struct Drop {
    const char* what;
    QPoint grip;
    QPoint to;
    QPoint place;
};

TEST_F(DraggingTest, TheDropIsThePointerLessTheGripWhateverLiesBelow) {
    open(scenes().object(1, 3, 5, 100, 120, "").object(1, 9, 0, 300, 200, "a.gif"));
    constexpr std::array kDrops = {
        Drop{"the canvas", {7, 9}, {250, 260}, {243, 251}},
        Drop{"another object", {1, 1}, {310, 210}, {309, 209}},
        Drop{"the link Up", {0, 0}, {400, 5}, {400, 5}},
        Drop{"the link Right, partly off the canvas", {3, 4}, {698, 300}, {695, 296}},
        Drop{"the first corner, partly off the canvas", {20, 18}, {2, 3}, {-18, -15}},
        Drop{"the last pixel", {0, 0}, {699, 474}, {699, 474}},
    };
    for (const Drop& drop : kDrops) {
        carry(animation(3), drop.grip, drop.to);
        EXPECT_EQ(placeInSlot(3), drop.place) << drop.what;
        EXPECT_EQ(animation(3).pos(), drop.place) << drop.what;
        EXPECT_TRUE(animation(3).isVisible()) << drop.what;
    }
    leaveScene();
    EXPECT_EQ(storedPlace(1, 3), QPoint(699, 474));
    EXPECT_EQ(storedPlace(1, 9), QPoint(300, 200)) << "what was below stayed";
}

TEST_F(DraggingTest, AnElementThatReachesOutOfTheCanvasCanBeTakenAtItsRest) {
    open(scenes().object(1, 3, 0, -20, 445, "a.gif"));
    carry(animation(3), {39, 0}, {139, 300});
    EXPECT_EQ(placeInSlot(3), QPoint(100, 300));
}

TEST_F(DraggingTest, QuickSpotsAndUnknownTypesAreCarriedToo) {
    open(withQuickSpot().object(1, 5, 42, 10, 20));
    ASSERT_TRUE(quickSpot(4).isVisible());
    carry(quickSpot(4), {5, 6}, {105, 206});
    carry(animation(5), {2, 2}, {312, 222});
    EXPECT_EQ(quickSpot(4).pos(), QPoint(100, 200));
    leaveScene();
    EXPECT_EQ(storedPlace(1, 4), QPoint(100, 200));
    EXPECT_EQ(storedPlace(1, 5), QPoint(310, 220));
    EXPECT_EQ(stored(1, 5, 0), 42);
}

TEST_F(DraggingTest, NothingIsWrittenWhileTheAuthorDrags) {
    open(scenes().object(1, 3, 0, 100, 120, "a.gif"));
    const FolderSnapshot before = snapshotOf(projects.path());
    carry(animation(3), {1, 1}, {300, 300});
    carry(link(2), {1, 1}, {300, 300});
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
}

TEST_F(DraggingTest, TheStateOfTheDragSaysWhatIsCarried) {
    open(scenes().object(1, 3, 0, 100, 120, "a.gif"));
    EXPECT_EQ(dragging().DraggingObject, 0);
    take(animation(3), {11, 12});
    EXPECT_EQ(dragging().DraggingObject, 1);
    EXPECT_EQ(dragging().DragIndex, 3);
    EXPECT_EQ(dragging().DragOffsetX, 11);
    EXPECT_EQ(dragging().DragOffsetY, 12);
    EXPECT_FALSE(animation(3).isVisible());
    moveTo({300, 200});
    EXPECT_EQ(ghost().pos(), QPoint(289, 188));
    letGo({300, 200});
    EXPECT_EQ(dragging().DraggingObject, 0);

    take(link(3), {4, 5});
    EXPECT_EQ(dragging().DraggingObject, 0) << "stays 0 for a link";
    EXPECT_EQ(dragging().DragIndex, 99);
    EXPECT_EQ(dragging().CurrentLink, 3);
    letGo({300, 200});
    EXPECT_FALSE(dragging().isDragging());
    EXPECT_FALSE(ghost().isVisible());
}

TEST_F(DraggingTest, AnotherButtonDoesNotDisturbTheDrag) {
    open(scenes().object(1, 3, 0, 100, 120, "a.gif").object(1, 4, 0, 300, 200, "a.gif"));
    take(animation(3), {5, 5});
    moveTo({310, 210});
    for (const Qt::MouseButton other : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mousePress(&ghost(), other, {}, underGhost({310, 210}));
        QTest::mouseRelease(&ghost(), other, {}, underGhost({310, 210}));
        EXPECT_TRUE(dragging().isDragging());
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    }
    EXPECT_EQ(placeInSlot(3), QPoint(100, 120));
    letGo({320, 220});
    EXPECT_EQ(placeInSlot(3), QPoint(315, 215));
}

TEST_F(DraggingTest, ASecondDragMayFollowAtOnce) {
    open(scenes().object(1, 3, 0, 100, 120, "a.gif"));
    take(animation(3), {5, 5});
    letGo({105, 125});
    EXPECT_EQ(placeInSlot(3), QPoint(100, 120)) << "a click moves nothing";
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(5, 5),
                       animation(3).mapToGlobal(QPointF(5, 5)), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(&animation(3), &second);
    EXPECT_TRUE(dragging().isDragging()) << "the press of a quick second drag";
    letGo({205, 205});
    EXPECT_EQ(placeInSlot(3), QPoint(200, 200));
}

TEST_F(DraggingTest, NothingIsLostWhenThePointerLeavesTheWindow) {
    open(scenes().object(1, 3, 0, 100, 120, "a.gif"));
    take(animation(3), {5, 5});
    moveTo({-2000, -2000});
    moveTo({4000, 3000});
    EXPECT_TRUE(dragging().isDragging());
    EXPECT_EQ(ghost().pos(), QPoint(3995, 2995));
    moveTo({405, 305});
    letGo({405, 305});
    EXPECT_EQ(placeInSlot(3), QPoint(400, 300));
}

TEST_F(DraggingTest, TheAlertFollowsEachDrop) {
    open(scenes().object(1, 3, 0, 100, 120, "a.gif"));
    EXPECT_FALSE(alertShown());
    const auto alertAfter = [this](QPoint place) {
        // Held where the pointer stays on the canvas.
        const QPoint grip(place.x() < 0 ? -place.x() : 0, place.y() < 0 ? -place.y() : 0);
        carry(animation(3), grip, place + grip);
        EXPECT_EQ(placeInSlot(3), place);
        return alertShown();
    };
    EXPECT_FALSE(alertAfter({-20, 100})) << "exactly half";
    EXPECT_TRUE(alertAfter({-21, 100}));
    EXPECT_FALSE(alertAfter({100, -15}));
    EXPECT_TRUE(alertAfter({100, -16}));
    EXPECT_FALSE(alertAfter({680, 100}));
    EXPECT_TRUE(alertAfter({681, 100}));
    EXPECT_FALSE(alertAfter({100, 460}));
    EXPECT_TRUE(alertAfter({100, 461}));
    EXPECT_FALSE(alertAfter({100, 100}));
}

TEST_F(DraggingTest, APictureOneWideIsOutAtOnePixel) {
    open(scenes().object(1, 3, 0, 5, 5, "dot.gif"));
    animation(3).setFocus();
    for (int i = 0; i < 5; ++i) {
        EXPECT_FALSE(alertShown());
        QTest::keyClick(&animation(3), Qt::Key_Left);
    }
    EXPECT_FALSE(alertShown());
    QTest::keyClick(&animation(3), Qt::Key_Left);
    EXPECT_EQ(placeInSlot(3), QPoint(-1, 5));
    EXPECT_TRUE(alertShown());
}

TEST_F(DraggingTest, AQuickSpotRaisesNoAlert) {
    open(withQuickSpot());
    carry(quickSpot(4), {0, 0}, {699, 474});
    EXPECT_EQ(placeInSlot(4), QPoint(699, 474));
    EXPECT_FALSE(alertShown());
}

TEST_F(DraggingTest, BordersAreDrawnAnewAfterADrop) {
    open(scenes().object(1, 3, 0, 100, 120, "a.gif"));
    main().view().ToggleBorders(true);
    take(animation(3), {0, 0});
    EXPECT_FALSE(element("hilite", 3).isVisible()) << "not where nothing is";
    letGo({200, 210});
    EXPECT_TRUE(element("hilite", 3).isVisible());
    EXPECT_EQ(element("hilite", 3).geometry(), QRect(199, 209, 42, 32));
    carry(link(1), {0, 0}, {300, 40});
    EXPECT_EQ(element("Shape2", 1).geometry(), QRect(299, 39, 35, 412));
    take(animation(3), {0, 0});
    QTest::keyClick(&main(), Qt::Key_Escape);
    EXPECT_TRUE(element("hilite", 3).isVisible()) << "back with what was put back";
    main().view().ToggleBorders(false);
    carry(animation(3), {0, 0}, {50, 50});
    EXPECT_FALSE(element("hilite", 3).isVisible());
}

TEST_F(DraggingTest, TheStatusLineSaysWhereTheDropWas) {
    open(withQuickSpot().object(1, 3, 0, 100, 120, "a.gif"));
    carry(animation(3), {10, 0}, {5, 70});
    EXPECT_EQ(status(), (QStringList{QStringLiteral("Object: Ambient"), QStringLiteral("Index: 3"),
                                     QStringLiteral("Pos: x=-5 , y= 70"),
                                     QStringLiteral("Size: 30h X 40w")}));
    carry(quickSpot(4), {0, 0}, {6, 7});
    EXPECT_EQ(status(), (QStringList{QStringLiteral("Object: HotSpot  (QuickSpot)"),
                                     QStringLiteral("Index: 4"), QStringLiteral("Pos: x= 6 , y= 7"),
                                     QStringLiteral("Size: 50h X 60w")}));
    carry(link(4), {0, 0}, {8, 9});
    EXPECT_EQ(status(), (QStringList{QStringLiteral("Object: Link(Down)"),
                                     QStringLiteral("Index: 4"), QStringLiteral("Pos: x= 8 , y= 9"),
                                     QStringLiteral("Size: 33h X 636w")}));
}

TEST_F(DraggingTest, TheButtonCommand4PutsTheElementInTheCornerAndKeepsItsSlot) {
    open(scenes().object(1, 3, 0, 100, 120, "a.gif"));
    dragging().DropOnCommand4();
    EXPECT_EQ(animation(3).pos(), QPoint(100, 120)) << "nothing was carried";
    take(animation(3), {5, 5});
    dragging().DropOnCommand4();
    EXPECT_EQ(dragging().DraggingObject, 0);
    EXPECT_TRUE(animation(3).isVisible());
    EXPECT_EQ(animation(3).pos(), QPoint(0, 0));
    EXPECT_EQ(placeInSlot(3), QPoint(100, 120));
    carry(animation(3), {5, 5}, {25, 35});
    EXPECT_EQ(placeInSlot(3), QPoint(20, 30));
}

TEST_F(DraggingTest, TheHandlesMoveOrSizeTheLinkLastPressed) {
    open(scenes());
    const Place kept{.left = 33, .top = 44, .width = 10, .height = 20};
    main().view().setLinkPlace(LinkSide::up, kept);
    dragging().DropSizer(0, {100, 200});
    EXPECT_EQ(main().view().linkPlace(LinkSide::up), kept) << "no link was pressed yet";
    QTest::mousePress(&link(2), Qt::RightButton, {}, {1, 1});
    shell->actions().popups().menu(canvas::PopupMenu::link).close();
    for (const int index : {0, 3}) {
        main().view().setLinkPlace(LinkSide::up, kept);
        dragging().DropSizer(index, {100, 200});
        EXPECT_EQ(main().view().linkPlace(LinkSide::up),
                  (Place{.left = 100, .top = 200, .width = 10, .height = 20}))
            << index;
        EXPECT_EQ(element("Shape2", 2).geometry(), QRect(99, 199, 12, 22));
    }
    for (const int index : {1, 2}) {
        main().view().setLinkPlace(LinkSide::up, kept);
        dragging().DropSizer(index, {100, 200});
        EXPECT_EQ(main().view().linkPlace(LinkSide::up),
                  (Place{.left = 33, .top = 44, .width = 67, .height = 156}))
            << index;
    }
    EXPECT_TRUE(element("Shape2", 2).isVisible()) << "shown though borders are off";
    leaveScene();
    EXPECT_EQ(storedLink(1, kUp), (std::array{44, 33, 67, 156}));
}

TEST_F(DraggingTest, EachLinkIsStoredInItsOwnGroup) {
    open(scenes());
    carry(link(1), {1, 2}, {101, 12});
    carry(link(2), {1, 2}, {102, 22});
    carry(link(3), {1, 2}, {103, 32});
    carry(link(4), {1, 2}, {104, 42});
    leaveScene();
    EXPECT_EQ(storedLink(1, kLeft), (std::array{10, 100, 33, 410}));
    EXPECT_EQ(storedLink(1, kUp), (std::array{20, 101, 636, 33}));
    EXPECT_EQ(storedLink(1, kRight), (std::array{30, 102, 33, 410}));
    EXPECT_EQ(storedLink(1, kDown), (std::array{40, 103, 636, 33}));
}

TEST_F(DraggingTest, AClosedProjectEndsTheDrag) {
    open(scenes().object(1, 3, 0, 100, 120, "a.gif"));
    take(animation(3), {5, 5});
    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_FALSE(shell->project().ProjectOpen);
    EXPECT_FALSE(dragging().isDragging());
    EXPECT_FALSE(ghost().isVisible());
    EXPECT_FALSE(animation(3).isVisible());
    EXPECT_EQ(storedPlace(1, 3), QPoint(100, 120));
}

// The keyboard.

TEST_F(DraggingTest, TabReachesLinksAndObjectsInTheOrderOfTheirIndexes) {
    open(withQuickSpot().object(1, 20, 0, 10, 10, "a.gif").object(1, 1, 0, 400, 400, "a.gif"));
    main().activateWindow();
    link(1).setFocus(Qt::TabFocusReason);
    QStringList visited;
    for (int i = 0; i < 7; ++i) {
        QWidget* focused = main().focusWidget();
        ASSERT_NE(focused, nullptr);
        visited << focused->objectName();
        QTest::keyClick(focused, Qt::Key_Tab);
    }
    EXPECT_EQ(visited,
              (QStringList{QStringLiteral("Directionl(1)"), QStringLiteral("Directionl(2)"),
                           QStringLiteral("Directionl(3)"), QStringLiteral("Directionl(4)"),
                           QStringLiteral("Animation(1)"), QStringLiteral("NoGIF(4)"),
                           QStringLiteral("Animation(20)")}));
}

TEST_F(DraggingTest, TheFocusOfTheKeyboardIsSeenOnTheCanvas) {
    open(scenes().object(1, 3, 0, 100, 120, "a.gif").object(1, 4, 0, -300, 200, "a.gif"));
    main().activateWindow();
    QApplication::setActiveWindow(&main());
    auto& outline = control<QWidget>(main(), QStringLiteral("FocusOutline"));
    EXPECT_FALSE(outline.isVisible());
    animation(3).setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(outline.isVisible());
    EXPECT_EQ(outline.geometry(), QRect(97, 117, 46, 36));
    EXPECT_TRUE(outline.testAttribute(Qt::WA_TransparentForMouseEvents));
    const QImage image = main().view().canvas().grab().toImage();
    const int ground = image.pixelColor(90, 130).lightness();
    int contrast = 0;
    for (int x = 97; x <= 99; ++x) {
        contrast = std::max(contrast, std::abs(image.pixelColor(x, 130).lightness() - ground));
    }
    EXPECT_GT(contrast, 100);

    QTest::keyClick(&animation(3), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(outline.geometry(), QRect(107, 117, 46, 36)) << "it goes along";
    animation(4).setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(main().view().canvas().rect().contains(outline.geometry()))
        << "what is off the canvas is marked at its edge";
    EXPECT_EQ(outline.x(), 0);
    carry(animation(3), {0, 0}, {300, 300});
    EXPECT_FALSE(outline.isVisible()) << "the mouse needs none";
    QTest::keyClick(&animation(3), Qt::Key_Right);
    EXPECT_TRUE(outline.isVisible()) << "until the keyboard goes on from there";
    take(animation(3), {0, 0});
    EXPECT_FALSE(outline.isVisible());
    QTest::keyClick(&main(), Qt::Key_Escape);
    animation(3).setFocus(Qt::TabFocusReason);
    leaveScene();
    EXPECT_FALSE(outline.isVisible() && !main().focusWidget()->isVisible());
    main().setFocus();
    EXPECT_FALSE(outline.isVisible());
}

// One frame at 60 a second.

TEST_F(DraggingTest, AMoveOfTheGhostOverTwentyAnimationsCostsLessThanAFrame) {
    ProjectBuilder full = scenes().gfx("run.gif", gifBytes(120, 100, {{10}, {20}, {30}, {40}}));
    for (int k = 1; k <= 20; ++k) {
        full.object(1, k, 0, static_cast<std::int16_t>(30 * k), static_cast<std::int16_t>(18 * k),
                    "run.gif");
    }
    open(full);
    main().view().ToggleBorders(true);
    main().view().ToggleAnimations(true);
    take(animation(20), {10, 10});
    constexpr int kMoves = 100;
    std::vector<qint64> costs;
    for (int i = 0; i < kMoves; ++i) {
        QElapsedTimer clock;
        clock.start();
        moveTo({20 + 6 * i, 20 + 4 * i});
        main().repaint();
        QApplication::processEvents();
        costs.push_back(clock.nsecsElapsed());
    }
    letGo({300, 300});
    std::ranges::sort(costs);
    const auto milliseconds = [&costs](std::size_t at) {
        return static_cast<double>(costs[at]) / 1e6;
    };
    std::cout << "one move of the ghost: median " << milliseconds(kMoves / 2) << " ms, 90% "
              << milliseconds(kMoves * 9 / 10) << " ms, worst " << milliseconds(kMoves - 1)
              << " ms\n";
    // The median: the machine that tests run on is shared.
    EXPECT_LT(milliseconds(kMoves / 2), 16.0);
}

}  // namespace
}  // namespace quorvel::test
