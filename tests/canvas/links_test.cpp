// Where the links lie, and how that comes back into the scene.

#include <gtest/gtest.h>

#include "canvas/canvas_fixture.h"

namespace quorvel::canvas {
namespace {

using Links = CanvasTest;

TEST_F(Links, LinksLieWhereTheSceneSays) {
    open();
    EXPECT_EQ(link(1).geometry(), QRect(0, 33, 33, 410));
    EXPECT_EQ(link(2).geometry(), QRect(32, 0, 636, 33));
    EXPECT_EQ(link(3).geometry(), QRect(667, 33, 33, 410));
    EXPECT_EQ(link(4).geometry(), QRect(32, 442, 636, 33));
    EXPECT_TRUE(link(4).isShown());
}

TEST_F(Links, AnyGeometryOfALinkIsSavedUnchanged) {
    const std::array<std::int16_t, 6> extremes = {-32768, -1, 0, 1, 700, 32767};
    builder_.scenes(36);
    for (int i = 0; i < 36; ++i) {
        const auto a = extremes[static_cast<std::size_t>(i / 6)];
        const auto b = extremes[static_cast<std::size_t>(i % 6)];
        builder_.editScene(i + 1, [a, b](store::SceneRecord& scene) {
            scene.LinkUpTop = a;
            scene.LinkUpLeft = b;
            scene.LinkUpWidth = a;
            scene.LinkUpHeight = b;
            scene.LinkDownTop = b;
            scene.LinkDownWidth = b;
            scene.LinkLeftHeight = a;
            scene.LinkRightWidth = a;
        });
    }
    open();
    view_.show();
    view_.ToggleBorders(true);
    const auto before = test::readBytes(files_.storePath(1));
    for (int n = 1; n <= 36; ++n) {
        enter(n);
        QCoreApplication::processEvents();
        save();
    }
    EXPECT_EQ(
        test::differences({{"scenes", before}}, {{"scenes", test::readBytes(files_.storePath(1))}}),
        "");
}

TEST_F(Links, AMovedLinkIsSaved) {
    builder_.scenes(2);
    open();
    link(2).setPlace({-5, 7, 100, 50});
    save();
    enter(2);
    enter(1);
    EXPECT_EQ(link(2).place(), (Place{-5, 7, 100, 50}));
    EXPECT_EQ(scene_.LinkUp.left, -5);
    EXPECT_EQ(scene_.LinkUp.top, 7);
    EXPECT_EQ(scene_.LinkUp.width, 100);
    EXPECT_EQ(scene_.LinkUp.height, 50);
}

TEST_F(Links, LinksThatWereNotPlacedAreNotReadBack) {
    builder_.scenes(2);
    view_.StoreLinkPlaces();
    EXPECT_EQ(scene_, store::Scene());
    open();
    link(2).setPlace({1, 2, 3, 4});
    view_.ClearCanvas();
    store::LoadScene(project_, scene_, 2);
    const store::Scene loaded = scene_;
    view_.StoreLinkPlaces();
    EXPECT_EQ(scene_, loaded) << "those on the canvas belong to the scene before";
    view_.ShowSceneObjects();
    view_.ResetCanvas();
    scene_.LinkUp.left = 55;
    view_.StoreLinkPlaces();
    EXPECT_EQ(scene_.LinkUp.left, 55);
}

}  // namespace
}  // namespace quorvel::canvas
