// Objects out of the scene, the snapshot and its return.

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "canvas/canvas_fixture.h"

namespace quorvel::canvas {
namespace {

class Positions : public CanvasTest {
  protected:
    /// One object with a picture of this size at this place.
    bool isOut(int width, int height, std::int16_t left, std::int16_t top) {
        if (project_.CurrentScene == 0) {
            builder_.object(1, 1, 0, 0, 0, "a.gif");
            builder_.gfx("a.gif", "");
            open();
        }
        test::writeBytes(files_.gfx("a.gif"), test::stillGif(width, height));
        scene_.slot(1).SlotInt(2) = left;
        scene_.slot(1).SlotInt(3) = top;
        view_.ClearCanvas();
        view_.ShowSceneObjects();
        EXPECT_EQ(view_.objectAlert(), view_.CheckObjectPositions());
        return view_.CheckObjectPositions();
    }
};

TEST_F(Positions, ExactlyHalfOutIsIn) {
    EXPECT_FALSE(isOut(40, 30, -20, 0));
    EXPECT_TRUE(isOut(40, 30, -21, 0));
    EXPECT_FALSE(isOut(40, 30, 0, -15));
    EXPECT_TRUE(isOut(40, 30, 0, -16));
    EXPECT_FALSE(isOut(40, 30, 680, 0));
    EXPECT_TRUE(isOut(40, 30, 681, 0));
    EXPECT_FALSE(isOut(40, 30, 0, 460));
    EXPECT_TRUE(isOut(40, 30, 0, 461));
}

TEST_F(Positions, HalvesOfOddSizesAreNotWhole) {
    EXPECT_FALSE(isOut(41, 31, -20, 0));
    EXPECT_TRUE(isOut(41, 31, -21, 0));
    EXPECT_FALSE(isOut(41, 31, 679, 0));
    EXPECT_TRUE(isOut(41, 31, 680, 0)) << "20 of 41 pixels are in";
    EXPECT_FALSE(isOut(41, 31, 0, 459));
    EXPECT_TRUE(isOut(41, 31, 0, 460));
}

TEST_F(Positions, OnePixelJustOutside) {
    EXPECT_TRUE(isOut(1, 1, -1, 0));
    EXPECT_FALSE(isOut(1, 1, 0, 0));
    EXPECT_FALSE(isOut(1, 1, 699, 474));
    EXPECT_TRUE(isOut(1, 1, 700, 0));
    EXPECT_TRUE(isOut(1, 1, 0, 475));
}

TEST_F(Positions, LargerThanTheScene) {
    EXPECT_FALSE(isOut(700, 475, 0, 0));
    EXPECT_FALSE(isOut(1400, 475, 0, 0)) << "half of it is in";
    EXPECT_TRUE(isOut(1402, 475, 0, 0));
}

TEST_F(Positions, TheEndsOfTheNumbers) {
    EXPECT_TRUE(isOut(40, 30, -32768, 0));
    EXPECT_TRUE(isOut(40, 30, 0, -32768));
    EXPECT_TRUE(isOut(40, 30, 32767, 0));
    EXPECT_TRUE(isOut(40, 30, 0, 32767));
}

TEST_F(Positions, AnyOfTheObjectsCounts) {
    builder_.object(1, 1, 0, 10, 10, "").object(1, 20, 5, 690, 10);
    open();
    EXPECT_TRUE(view_.CheckObjectPositions()) << "a symbol is 48 wide";
}

TEST_F(Positions, AQuickSpotNeverAlerts) {
    builder_.object(1, 1, 1, -500, -500);
    builder_.editSlot(1, 1, [](store::ObjectSlotRecord& slot) { slot.SlotInt4To29[25] = 1; });
    open();
    EXPECT_FALSE(view_.CheckObjectPositions());
    EXPECT_FALSE(view_.objectAlert());
}

TEST_F(Positions, AnElementWithoutAPictureNeverAlerts) {
    builder_.object(1, 1, 0, -500, 0, "");
    open();
    EXPECT_TRUE(view_.CheckObjectPositions());
    animation(1).setPicture(nullptr);
    EXPECT_FALSE(view_.CheckObjectPositions()) << "there is nothing to divide by";
}

TEST_F(Positions, AHiddenObjectNeverAlerts) {
    builder_.object(1, 1, 0, -500, 0, "");
    open();
    animation(1).setShown(false);
    EXPECT_FALSE(view_.CheckObjectPositions());
}

TEST_F(Positions, TheAlertGoesWithTheScene) {
    builder_.scenes(2).object(1, 1, 0, -500, 0, "");
    QSignalSpy alerts(&view_, &SceneView::objectAlertChanged);
    open();
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_TRUE(alerts.at(0).at(0).toBool());
    enter(2);
    ASSERT_EQ(alerts.size(), 2);
    EXPECT_FALSE(alerts.at(1).at(0).toBool());
}

TEST_F(Positions, ShowingDoesNotTakeTheAlertBack) {
    builder_.object(1, 1, 0, -500, 0, "");
    open();
    scene_.slot(1).SlotInt(2) = 0;
    view_.ShowSceneObjects();
    EXPECT_TRUE(view_.objectAlert()) << "entering a scene has cleared it before";
}

TEST_F(Positions, EverythingGoesBackToWhereItWas) {
    builder_.object(1, 1, 0, 10, 20, "").object(1, 2, 1, 30, 40, "");
    builder_.editSlot(1, 2, [](store::ObjectSlotRecord& slot) { slot.SlotInt4To29[25] = 1; });
    open();
    view_.ToggleBorders(true);
    animation(1).moveTo(300, 301);
    scene_.slot(1).SlotInt(2) = 300;
    scene_.slot(1).SlotInt(3) = 301;
    quickSpot(2).moveTo(310, 311);
    scene_.slot(2).SlotInt(2) = 310;
    link(3).setPlace({5, 6, 50, 60});
    const store::EdgeLink right = scene_.LinkRight;

    view_.RestoreObjectPositions(2);
    EXPECT_EQ(animation(1).geometry().topLeft(), QPoint(10, 20));
    EXPECT_EQ(quickSpot(2).geometry().topLeft(), QPoint(30, 40));
    EXPECT_EQ(scene_.slot(1).SlotInt(2), 10);
    EXPECT_EQ(scene_.slot(1).SlotInt(3), 20);
    EXPECT_EQ(scene_.slot(2).SlotInt(2), 30);
    EXPECT_EQ(scene_.slot(2).SlotInt(3), 40);
    EXPECT_EQ(link(3).place(), (Place{667, 33, 50, 60})) << "a link keeps its size";
    EXPECT_EQ(scene_.LinkRight, right) << "stored only with the next save";
    EXPECT_EQ(border(1).geometry().topLeft(), QPoint(9, 19));
    EXPECT_EQ(linkBorder(3).geometry().topLeft(), QPoint(666, 32));
    view_.StoreLinkPlaces();
    EXPECT_EQ(scene_.LinkRight.width, 50);
}

TEST_F(Positions, TheAlertFollowsWhatCameBack) {
    builder_.object(1, 1, 0, -500, 0, "").object(1, 2, 0, 5, 5, "");
    open();
    animation(1).moveTo(0, 0);  // as the alert's answer does
    view_.RestoreObjectPositions(2);
    EXPECT_EQ(animation(1).place().left, -500);
    EXPECT_TRUE(view_.objectAlert());

    QSignalSpy alerts(&view_, &SceneView::objectAlertChanged);
    scene_.slot(1).SlotInt(2) = 7;
    view_.ClearCanvas();
    view_.ShowSceneObjects();
    animation(1).moveTo(-500, 0);
    view_.RestoreObjectPositions(2);
    EXPECT_FALSE(view_.objectAlert());
}

TEST_F(Positions, AnObjectThatCameLaterStaysWhereItIs) {
    builder_.object(1, 1, 0, 10, 20, "");
    open();
    scene_.slot(2).SlotInt(1) = 0;
    animation(2).setPicture(pictures_.stock(QStringLiteral("new-object")));
    animation(2).moveTo(70, 80);
    animation(2).setShown(true);
    view_.RestoreObjectPositions(2);
    EXPECT_EQ(animation(2).geometry().topLeft(), QPoint(70, 80));
    EXPECT_EQ(scene_.slot(2).SlotInt(2), 0);
    view_.ShowSceneObjects();
    animation(2).moveTo(1, 1);
    view_.RestoreObjectPositions(2);
    EXPECT_EQ(animation(2).geometry().topLeft(), QPoint(0, 0)) << "now it has a place";
}

TEST_F(Positions, AnObjectThatIsGoneStaysGone) {
    builder_.object(1, 1, 0, 10, 20, "");
    open();
    animation(1).setShown(false);
    scene_.slot(1).SlotInt(2) = 99;
    view_.RestoreObjectPositions(2);
    EXPECT_EQ(scene_.slot(1).SlotInt(2), 99);
    EXPECT_FALSE(animation(1).isShown());
}

TEST_F(Positions, APlaceOf999IsNoPlace) {
    builder_.object(1, 1, 0, 999, 20, "");
    open();
    animation(1).moveTo(1, 2);
    view_.RestoreObjectPositions(2);
    EXPECT_EQ(animation(1).place().left, 1);
}

TEST_F(Positions, ModesThatDoNotExistDoNothing) {
    builder_.object(1, 1, 0, 10, 20, "");
    open();
    animation(1).moveTo(1, 2);
    view_.RestoreObjectPositions(3);
    EXPECT_EQ(animation(1).place().left, 1);
}

}  // namespace
}  // namespace quorvel::canvas
