// The canvas as a set of widgets: names, stack, toggles, closing.

#include <gtest/gtest.h>

#include "canvas/canvas_fixture.h"
#include "canvas/object_kinds.h"

namespace quorvel::canvas {
namespace {

using Canvas = CanvasTest;

TEST_F(Canvas, EveryElementHasTheSystemsName) {
    EXPECT_EQ(view_.objectName(), QStringLiteral("Frame1"));
    EXPECT_NE(child("Image1"), nullptr);
    EXPECT_FALSE(child("SceneSize")->isVisibleTo(&view_));
    for (int n = 1; n <= 4; ++n) {
        EXPECT_EQ(link(n).index(), n);
        EXPECT_EQ(link(n).kind(), SceneElement::Kind::link);
        EXPECT_NE(child("Shape2", n), nullptr);
    }
    for (int k = 1; k <= 20; ++k) {
        EXPECT_EQ(animation(k).index(), k);
        EXPECT_EQ(animation(k).kind(), SceneElement::Kind::object);
        EXPECT_EQ(quickSpot(k).index(), k);
        EXPECT_EQ(quickSpot(k).kind(), SceneElement::Kind::quickSpot);
        EXPECT_NE(child("hilite", k), nullptr);
    }
    EXPECT_EQ(view_.findChild<QWidget*>(QStringLiteral("Animation(21)")), nullptr);
    EXPECT_EQ(view_.findChild<QWidget*>(QStringLiteral("Animation(0)")), nullptr);
}

TEST_F(Canvas, LinksAreNumberedLeftUpRightDown) {
    EXPECT_EQ(link(1).side(), store::LinkSide::left);
    EXPECT_EQ(link(2).side(), store::LinkSide::up);
    EXPECT_EQ(link(3).side(), store::LinkSide::right);
    EXPECT_EQ(link(4).side(), store::LinkSide::down);
}

TEST_F(Canvas, TheCanvasIsExactlyTheScene) {
    view_.resize(1280, 700);
    view_.show();
    EXPECT_EQ(child("Image1")->size(), QSize(700, 475));
    EXPECT_EQ(child("Image1")->parentWidget()->geometry(), QRect(290, 112, 700, 475));
    view_.resize(view_.minimumSize());
    EXPECT_EQ(child("Image1")->parentWidget()->geometry(), QRect(0, 0, 700, 475));
}

/// The topmost of the elements is the last among its siblings.
TEST_F(Canvas, ElementsAreStackedByIndex) {
    builder_.object(1, 2, 0, 10, 10, "").object(1, 5, 0, 10, 10, "").object(1, 3, 0, 10, 10, "");
    open();
    const QObjectList stack = animation(1).parentWidget()->children();
    const auto place = [&stack](const QWidget& widget) { return stack.indexOf(&widget); };
    for (int n = 1; n <= 4; ++n) {
        EXPECT_GT(place(link(n)), place(*child("Image1")));
        EXPECT_LT(place(link(n)), place(animation(1)));
        EXPECT_GT(place(linkBorder(n)), place(animation(20)));
    }
    for (int k = 2; k <= 20; ++k) {
        EXPECT_GT(place(animation(k)), place(animation(k - 1)));
        EXPECT_GT(place(animation(k)), place(quickSpot(k - 1)));
        EXPECT_GT(place(quickSpot(k)), place(animation(k - 1)));
        EXPECT_GT(place(border(k)), place(quickSpot(20)));
    }
    EXPECT_EQ(animation(1).parentWidget()->childAt(20, 20), &animation(5));
    enter(1);
    EXPECT_EQ(animation(1).parentWidget()->childAt(20, 20), &animation(5));
}

TEST_F(Canvas, BordersLetTheMouseThrough) {
    builder_.object(1, 1, 0, 100, 100, "");
    open();
    view_.ToggleBorders(true);
    view_.resize(700, 475);
    EXPECT_EQ(animation(1).parentWidget()->childAt(99, 99), child("Image1"));
    EXPECT_EQ(animation(1).parentWidget()->childAt(110, 110), &animation(1));
    EXPECT_EQ(animation(1).parentWidget()->childAt(1, 100), &link(1));
}

TEST_F(Canvas, BordersLieOnePixelAroundTheirOwners) {
    builder_.gfx("a.gif", test::stillGif(40, 30));
    builder_.object(1, 1, 0, 100, 120, "a.gif")
        .object(1, 2, 1, 200, 50, "")
        .object(1, 3, 5, -7, -8);
    builder_.editSlot(1, 2, [](store::ObjectSlotRecord& slot) {
        slot.SlotInt4To29[25] = 1;
        slot.SlotStr[4] = "33";
        slot.SlotStr[5] = "77";
    });
    open();
    EXPECT_FALSE(border(1).isVisibleTo(&view_));
    view_.ToggleBorders(true);
    EXPECT_TRUE(view_.bordersOn());
    EXPECT_EQ(border(1).geometry(), QRect(99, 119, 42, 32));
    EXPECT_EQ(border(2).geometry(), QRect(199, 49, 79, 35));
    EXPECT_EQ(border(3).geometry(), QRect(-8, -9, 50, 50));
    for (int k = 1; k <= 20; ++k) {
        EXPECT_EQ(border(k).isVisibleTo(&view_), k <= 3) << k;
    }
    EXPECT_EQ(linkBorder(1).geometry(), QRect(-1, 32, 35, 412));
    EXPECT_EQ(linkBorder(2).geometry(), QRect(31, -1, 638, 35));
    EXPECT_EQ(linkBorder(3).geometry(), QRect(666, 32, 35, 412));
    EXPECT_EQ(linkBorder(4).geometry(), QRect(31, 441, 638, 35));
    EXPECT_TRUE(linkBorder(4).isVisibleTo(&view_));

    view_.ToggleBorders(false);
    for (int k = 1; k <= 20; ++k) {
        EXPECT_FALSE(border(k).isVisibleTo(&view_));
    }
    for (int n = 1; n <= 4; ++n) {
        EXPECT_FALSE(linkBorder(n).isVisibleTo(&view_));
    }
}

TEST_F(Canvas, BordersOutliveASceneChange) {
    builder_.scenes(2).object(1, 1, 0, 0, 0, "").object(2, 2, 0, 60, 60, "");
    open();
    view_.ToggleBorders(true);
    enter(2);
    EXPECT_FALSE(border(1).isVisibleTo(&view_));
    EXPECT_TRUE(border(2).isVisibleTo(&view_));
    EXPECT_EQ(border(2).geometry(), QRect(59, 59, 66, 66));
    EXPECT_TRUE(linkBorder(1).isVisibleTo(&view_));
}

TEST_F(Canvas, ABorderFollowsAPictureThatChanges) {
    builder_.object(1, 1, 0, 10, 10, "");
    open();
    view_.ToggleBorders(true);
    animation(1).setPicture(pictures_.stock(QStringLiteral("delay")));
    EXPECT_EQ(border(1).geometry(), QRect(9, 9, 50, 50));
}

TEST_F(Canvas, WithoutASceneThereIsNothingToBorder) {
    view_.ToggleBorders(true);
    EXPECT_FALSE(linkBorder(1).isVisibleTo(&view_));
    EXPECT_FALSE(border(1).isVisibleTo(&view_));
}

TEST_F(Canvas, TogglesAreKept) {
    for (const bool on : {true, false}) {
        view_.ToggleBorders(on);
        view_.ToggleAnimations(on);
        EXPECT_EQ(view_.bordersOn(), on);
        EXPECT_EQ(view_.animationsOn(), on);
    }
}

class Moving : public CanvasTest {
  protected:
    void SetUp() override {
        const std::string film =
            test::gifBytes(20, 20, {{.colour = 1, .delay = 3000}, {.colour = 2, .delay = 3000}});
        builder_.gfx("a.gif", film).gfx("b.gif", film);
        builder_.scenes(2).object(1, 1, 0, 0, 0, "a.gif").object(1, 2, 1, 50, 50, "b.gif");
        builder_.object(1, 3, 5, 0, 0);
        builder_.editSlot(1, 2, [](store::ObjectSlotRecord& slot) { slot.SlotInt4To29[25] = 1; });
        builder_.object(2, 4, 0, 0, 0, "a.gif");
        view_.show();
    }
    [[nodiscard]] bool ticks(int k) const { return animation(k).playhead().isTicking(); }
};

TEST_F(Moving, OnlyVisiblePicturesPlayAndOnlyWhenAsked) {
    open();
    EXPECT_FALSE(ticks(1));
    view_.ToggleAnimations(true);
    EXPECT_TRUE(ticks(1));
    EXPECT_FALSE(ticks(2)) << "a QuickSpot's picture is not shown";
    EXPECT_FALSE(ticks(3)) << "a symbol does not move";
    view_.ToggleAnimations(false);
    EXPECT_FALSE(ticks(1));
}

TEST_F(Moving, ANewScenePlaysWhenAnimationsAreOn) {
    open();
    view_.ToggleAnimations(true);
    enter(2);
    EXPECT_FALSE(ticks(1));
    EXPECT_TRUE(ticks(4));
}

TEST_F(Moving, AHiddenWindowCostsNothing) {
    open();
    view_.ToggleAnimations(true);
    view_.hide();
    EXPECT_FALSE(ticks(1));
    EXPECT_TRUE(animation(1).playhead().isPlaying());
    view_.show();
    EXPECT_TRUE(ticks(1));
}

TEST_F(Moving, AHiddenElementCostsNothing) {
    open();
    view_.ToggleAnimations(true);
    animation(1).setShown(false);
    EXPECT_FALSE(ticks(1));
    animation(1).setShown(true);
    EXPECT_TRUE(ticks(1));
}

TEST_F(Moving, AClosedProjectLeavesNothing) {
    open();
    view_.ToggleAnimations(true);
    view_.ToggleBorders(true);
    test::writeBytes(files_.gfx("x.bmp"), test::bmpBytes(30, 30));
    view_.GetSceneImage(files_.gfx("x.bmp"));
    view_.ResetCanvas();
    EXPECT_FALSE(view_.bordersOn());
    EXPECT_FALSE(view_.animationsOn());
    EXPECT_FALSE(view_.sceneAlert());
    EXPECT_FALSE(view_.objectAlert());
    EXPECT_EQ(view_.objectCount(), 0);
    EXPECT_EQ(view_.sceneImageSize(), QSize(0, 0));
    EXPECT_FALSE(child<SceneImage>("Image1")->hasImage());
    EXPECT_TRUE(child<SceneImage>("Image1")->tag().isEmpty());
    for (int k = 1; k <= 20; ++k) {
        EXPECT_FALSE(animation(k).isShown());
        EXPECT_EQ(animation(k).picture(), nullptr);
        EXPECT_TRUE(animation(k).tag().isEmpty());
        EXPECT_FALSE(quickSpot(k).isShown());
        EXPECT_TRUE(quickSpot(k).tag().isEmpty());
        EXPECT_FALSE(border(k).isVisibleTo(&view_));
        EXPECT_FALSE(ticks(k));
    }
    for (int n = 1; n <= 4; ++n) {
        EXPECT_FALSE(link(n).isShown());
        EXPECT_FALSE(linkBorder(n).isVisibleTo(&view_));
    }
}

store::ObjectSlot slotOf(int type, std::int16_t four, std::int16_t five = 0) {
    store::ObjectSlot slot;
    slot.SlotInt(1) = static_cast<std::int16_t>(type);
    slot.SlotInt(4) = four;
    slot.SlotInt(5) = five;
    return slot;
}

TEST(DisplayModes, FollowTheStyleOfEachType) {
    using enum forms::DisplayMode;
    for (const int type : {0, 2}) {
        EXPECT_EQ(displayModeOf(slotOf(type, 1, 2)), loop) << type;
        EXPECT_EQ(displayModeOf(slotOf(type, 2, 1)), pingPong) << type;
        EXPECT_EQ(displayModeOf(slotOf(type, 3, 1)), once) << type;
    }
    EXPECT_EQ(displayModeOf(slotOf(1, 10, 1)), loop);
    EXPECT_EQ(displayModeOf(slotOf(1, 1, 2)), pingPong);
    EXPECT_EQ(displayModeOf(slotOf(1, 2, 3)), once);
    const std::array reactor = {loop, loop, pingPong, loop, pingPong, once, loop};
    for (std::size_t style = 0; style < reactor.size(); ++style) {
        EXPECT_EQ(displayModeOf(slotOf(4, static_cast<std::int16_t>(style))), reactor[style])
            << style;
    }
}

TEST(DisplayModes, TheFlagOfASwitchIsNoStyle) {
    for (std::int16_t flag = 0; flag < 10; ++flag) {
        EXPECT_EQ(displayModeOf(slotOf(3, flag, 2)), forms::DisplayMode::loop);
    }
}

TEST(DisplayModes, StylesThatDoNotExistLoop) {
    for (const int style : {-32768, -1, 0, 4, 99, 32767}) {
        EXPECT_EQ(displayModeOf(slotOf(0, static_cast<std::int16_t>(style))),
                  forms::DisplayMode::loop);
    }
}

}  // namespace
}  // namespace quorvel::canvas
