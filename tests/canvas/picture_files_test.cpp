// Files of pictures that are replaced while the scene is on the canvas, and who owns what of it.
#include <gtest/gtest.h>
#include <memory>

#include "canvas/canvas_fixture.h"
#include "canvas/dragging.h"

namespace quorvel::canvas {
namespace {

using test::stillGif;
using test::writeBytes;

class PictureFiles : public CanvasTest {
  protected:
    /// Objects 1 and 2 share a picture, 3 has its own, 4 is a QuickSpot, 5 has none.
    void show() {
        builder_.gfx("a.gif", stillGif(40, 30)).gfx("b.gif", stillGif(20, 10));
        builder_.object(1, 1, 0, 100, 120, "a.gif").object(1, 2, 2, 300, 200, "a.gif");
        builder_.object(1, 3, 0, 50, 60, "b.gif").object(1, 5, 0, 400, 300);
        builder_.object(1, 4, 1, 10, 20, "a.gif").editSlot(1, 4, [](store::ObjectSlotRecord& slot) {
            slot.SlotInt4To29[25] = 1;
            slot.SlotStr[4] = "60";
            slot.SlotStr[5] = "80";
        });
        open();
    }
    void replace(const char* name, int width, int height) const {
        writeBytes(files_.gfx(name), stillGif(width, height));
    }
};

TEST_F(PictureFiles, AReplacedFileIsShownByAllObjectsThatHaveIt) {
    show();
    view_.ToggleBorders(true);
    const store::Scene before = scene_;
    const forms::PicturePtr other = animation(3).picture();
    replace("a.gif", 90, 70);
    view_.followPictureFiles();
    for (const int k : {1, 2}) {
        EXPECT_EQ(animation(k).picture()->size(), QSize(90, 70)) << k;
        EXPECT_EQ(animation(k).size(), QSize(90, 70)) << k;
        EXPECT_EQ(border(k).size(), QSize(92, 72)) << k;
    }
    EXPECT_EQ(animation(1).pos(), QPoint(100, 120));
    EXPECT_EQ(animation(3).picture(), other);
    EXPECT_EQ(quickSpot(4).geometry(), QRect(10, 20, 80, 60));
    EXPECT_FALSE(animation(4).isShown()) << "a QuickSpot's picture is not seen";
    EXPECT_TRUE(showsStock(5, "new-object"));
    EXPECT_TRUE(scene_ == before);
}

TEST_F(PictureFiles, WhatHasNotChangedGoesOnPlaying) {
    builder_.gfx("run.gif", test::gifBytes(20, 10, {{0}, {1}, {2}})).gfx("a.gif", stillGif(40, 30));
    builder_.object(1, 1, 0, 100, 120, "run.gif").object(1, 2, 0, 300, 200, "a.gif");
    open();
    view_.ToggleAnimations(true);
    ASSERT_TRUE(animation(1).playhead().isPlaying());
    int loads = 0;
    QObject::connect(&animation(1), &PictureElement::loaded, [&loads] { ++loads; });
    writeBytes(files_.gfx("a.gif"), test::gifBytes(50, 40, {{3}, {4}}));
    view_.followPictureFiles();
    EXPECT_EQ(loads, 0);
    EXPECT_TRUE(animation(1).playhead().isPlaying());
    EXPECT_TRUE(animation(2).playhead().isPlaying()) << "the new one plays as all do";
}

TEST_F(PictureFiles, AFileThatGoesAndComesBackIsFollowed) {
    show();
    std::filesystem::remove(files_.gfx("a.gif"));
    view_.followPictureFiles();
    EXPECT_TRUE(showsStock(1, "file-not-found"));
    EXPECT_TRUE(showsStock(2, "file-not-found"));
    replace("a.gif", 30, 20);
    view_.followPictureFiles();
    EXPECT_EQ(animation(2).size(), QSize(30, 20));
}

TEST_F(PictureFiles, TheAlertFollowsTheNewSizes) {
    builder_.gfx("a.gif", stillGif(40, 30)).object(1, 1, 0, -15, 0, "a.gif");
    open();
    EXPECT_FALSE(view_.objectAlert());
    replace("a.gif", 20, 30);
    view_.followPictureFiles();
    EXPECT_TRUE(view_.objectAlert()) << "out by more than half";
    replace("a.gif", 60, 30);
    view_.followPictureFiles();
    EXPECT_FALSE(view_.objectAlert());
}

TEST_F(PictureFiles, ThePictureOfTheSceneIsFollowedToo) {
    builder_.gfx("hall.gif", stillGif(700, 475, 30));
    open();
    view_.GetSceneImage(files_.gfx("hall.gif"));
    ASSERT_FALSE(view_.sceneAlert());
    replace("hall.gif", 650, 400);
    view_.followPictureFiles();
    EXPECT_EQ(view_.sceneImageSize(), QSize(650, 400));
    EXPECT_TRUE(view_.sceneAlert());
    std::filesystem::remove(files_.gfx("hall.gif"));
    view_.followPictureFiles();
    EXPECT_EQ(view_.sceneImageSize(), QSize(650, 400)) << "what was seen stays";
    replace("hall.gif", 700, 475);
    view_.ClearSceneImage();
    view_.followPictureFiles();
    EXPECT_EQ(view_.sceneImageSize(), QSize(0, 0)) << "the scene has no picture any more";
}

TEST_F(PictureFiles, NothingIsShownWhileNoSceneIsOnTheCanvas) {
    show();
    view_.ClearCanvas();
    ASSERT_EQ(animation(1).picture(), nullptr);
    view_.followPictureFiles();
    EXPECT_EQ(animation(1).picture(), nullptr) << "though the scene is still in memory";
}

TEST_F(PictureFiles, DraggingOutlivesAViewThatGoesFirst) {
    auto view = std::make_unique<SceneView>(project_, scene_, pictures_, nullptr);
    const auto dragging = std::make_unique<Dragging>(*view, project_);
    EXPECT_EQ(dragging->parent(), nullptr) << "it has one owner";
    view.reset();
    EXPECT_FALSE(dragging->isDragging());
}

}  // namespace
}  // namespace quorvel::canvas
