// The scene's picture and the alert on its size.

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "canvas/canvas_fixture.h"
#include "store/runtime_error.h"

namespace quorvel::canvas {
namespace {

class SceneImages : public CanvasTest {
  protected:
    std::filesystem::path picture(const std::string& bytes) const {
        test::writeBytes(folder_ / "scene.bmp", bytes);
        return folder_ / "scene.bmp";
    }
    /// The number of the error that the picture ends in, 0 for none.
    int errorOf(const std::filesystem::path& file) {
        try {
            view_.GetSceneImage(file);
        } catch (const store::RuntimeError& error) {
            EXPECT_EQ(error.file(), file);
            return error.number();
        }
        return 0;
    }
    [[nodiscard]] QRgb pixel(int x, int y) const {
        return child("Image1")->grab().toImage().pixel(x, y);
    }
};

TEST_F(SceneImages, TheRightSizeRaisesNoAlert) {
    QSignalSpy alerts(&view_, &SceneView::sceneAlertChanged);
    view_.GetSceneImage(picture(test::bmpBytes(700, 475)));
    EXPECT_FALSE(view_.sceneAlert());
    EXPECT_TRUE(alerts.isEmpty());
    EXPECT_EQ(view_.sceneImageSize(), QSize(700, 475));
    EXPECT_EQ(child("SceneSize")->size(), QSize(700, 475));
    EXPECT_EQ(child<SceneElement>("Image1")->tag(), QStringLiteral("scene.bmp"));
}

TEST_F(SceneImages, AnyOtherSizeDoes) {
    for (const QSize size : {QSize(699, 475), QSize(701, 475), QSize(700, 474), QSize(700, 476),
                             QSize(475, 700), QSize(1, 1)}) {
        view_.GetSceneImage(picture(test::bmpBytes(size.width(), size.height())));
        EXPECT_TRUE(view_.sceneAlert());
        EXPECT_EQ(view_.sceneImageSize(), size);
    }
    QSignalSpy alerts(&view_, &SceneView::sceneAlertChanged);
    view_.GetSceneImage(picture(test::bmpBytes(700, 475)));
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_FALSE(alerts.at(0).at(0).toBool());
}

TEST_F(SceneImages, ASmallPictureLeavesTheGround) {
    view_.GetSceneImage(picture(test::bmpBytes(100, 50, 0x010203)));
    EXPECT_EQ(pixel(0, 0), 0xFF010203U);
    EXPECT_EQ(pixel(99, 49), 0xFF010203U);
    EXPECT_NE(pixel(100, 49), 0xFF010203U);
    EXPECT_NE(pixel(99, 50), 0xFF010203U);
}

TEST_F(SceneImages, ALargePictureIsCut) {
    view_.GetSceneImage(picture(test::bmpBytes(1400, 950, 0x010203)));
    EXPECT_EQ(child("Image1")->size(), QSize(700, 475));
    EXPECT_EQ(pixel(699, 474), 0xFF010203U);
    EXPECT_EQ(view_.sceneImageSize(), QSize(1400, 950));
}

TEST_F(SceneImages, ABadPictureClearsAlertsAndThrows) {
    std::string huge = test::bmpBytes(8, 8);
    huge.replace(18, 8, std::string("\x30\x75\0\0\x30\x75\0\0", 8));
    for (const std::string& bytes :
         {std::string(), std::string("text"), huge, std::string("GIF89a")}) {
        view_.GetSceneImage(picture(test::bmpBytes(700, 475)));
        ASSERT_FALSE(view_.sceneAlert());
        EXPECT_EQ(errorOf(picture(bytes)), 481);
        EXPECT_TRUE(view_.sceneAlert());
        EXPECT_FALSE(child<SceneImage>("Image1")->hasImage());
        EXPECT_TRUE(child<SceneElement>("Image1")->tag().isEmpty());
        EXPECT_EQ(view_.sceneImageSize(), QSize(0, 0));
    }
}

TEST_F(SceneImages, AMissingPictureIsToldAsMissing) {
    EXPECT_EQ(errorOf(folder_ / "none.bmp"), 53);
    EXPECT_TRUE(view_.sceneAlert());
    EXPECT_EQ(errorOf(folder_.path()), 75);
}

TEST_F(SceneImages, WithoutAPictureThereIsNothingToAlertAbout) {
    view_.GetSceneImage(picture(test::bmpBytes(3, 3)));
    view_.ClearSceneImage();
    EXPECT_FALSE(view_.sceneAlert());
    EXPECT_FALSE(child<SceneImage>("Image1")->hasImage());
    EXPECT_EQ(view_.sceneImageSize(), QSize(0, 0));
}

TEST_F(SceneImages, LoadingASceneTakesTheAlertAway) {
    view_.GetSceneImage(picture(test::bmpBytes(3, 3)));
    project_.ProjectLoading = true;
    view_.ClearCanvas();
    EXPECT_FALSE(view_.sceneAlert());
}

TEST_F(SceneImages, AChangedPictureIsSeen) {
    view_.GetSceneImage(picture(test::bmpBytes(700, 475)));
    view_.GetSceneImage(picture(test::bmpBytes(640, 480)));
    EXPECT_TRUE(view_.sceneAlert());
}

TEST(SceneSizeAlert, SaysTheSize) {
    const forms::Box box = sceneSizeAlert(QSize(640, 480));
    EXPECT_EQ(box.title, QStringLiteral("Scene Size Alert"));
    EXPECT_EQ(box.buttons, forms::Box::Buttons::ok);
    EXPECT_EQ(box.text,
              QStringLiteral(
                  "The dimensions of the image file for this scene are incorrect.\n"
                  "As a result, it may not appear correctly in the game.\n\n"
                  "Scene images should be 700 wide X 475 high.\n\n"
                  "This scene image is 640 wide X 480 high.\n\n"
                  "A difference of a few pixels may not be too noticable, but a major difference "
                  "is."));
}

}  // namespace
}  // namespace quorvel::canvas
