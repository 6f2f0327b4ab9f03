// The canvas as the author sees it. With QUORVEL_SHOTS set to a folder, the pictures are left there
// to be looked at.

#include "forms/look.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLinearGradient>
#include <QPainter>

#include "canvas/canvas_fixture.h"

namespace quorvel::canvas {
namespace {

class Looks : public CanvasTest, public testing::WithParamInterface<forms::Look> {
  protected:
    void SetUp() override { forms::applyLook(application(), GetParam()); }
    void TearDown() override { forms::applyLook(application(), forms::Look::light); }

    static QApplication& application() { return *qobject_cast<QApplication*>(qApp); }

    QImage shot(const char* name) {
        view_.resize(740, 515);
        view_.show();
        QCoreApplication::processEvents();
        const QImage image = view_.grab().toImage();
        const QString folder = qEnvironmentVariable("QUORVEL_SHOTS");
        if (!folder.isEmpty()) {
            const QString look =
                GetParam() == forms::Look::dark ? QStringLiteral("dark") : QStringLiteral("light");
            EXPECT_TRUE(image.save(QStringLiteral("%1/canvas-%2-%3.png")
                                       .arg(folder, QString::fromLatin1(name), look)));
        }
        return image;
    }
    /// Where the canvas begins in a shot.
    static constexpr QPoint kOrigin{20, 20};
};

TEST_P(Looks, AnEmptyFrame) {
    const QImage image = shot("closed");
    const QColor ground = image.pixelColor(kOrigin + QPoint(300, 200));
    EXPECT_EQ(ground.lightness() < 128, GetParam() == forms::Look::dark);
}

TEST_P(Looks, AnEmptyScene) {
    open();
    view_.ToggleBorders(true);
    const QImage image = shot("empty");
    const QImage ground = image.copy(QRect(kOrigin + QPoint(100, 200), QSize(50, 50)));
    const QImage link = image.copy(QRect(kOrigin + QPoint(0, 225), QSize(50, 50)));
    EXPECT_NE(link, ground) << "a link can be found";
}

TEST_P(Looks, AFullScene) {
    QImage picture(700, 475, QImage::Format_RGB32);
    QLinearGradient sky(0, 0, 700, 475);
    sky.setColorAt(0, QColor(0xf7d9a0));
    sky.setColorAt(0.5, QColor(0x8fb8c9));
    sky.setColorAt(1, QColor(0x1b2838));
    QPainter(&picture).fillRect(picture.rect(), sky);
    builder_.gfx("a.gif", test::stillGif(90, 60, 30));
    for (int k = 1; k <= 10; ++k) {
        builder_.object(1, k, static_cast<std::int16_t>(k - 1),
                        static_cast<std::int16_t>(60 + (k - 1) % 5 * 120),
                        static_cast<std::int16_t>(70 + (k - 1) / 5 * 110), k == 1 ? "a.gif" : "");
    }
    builder_.object(1, 11, 99, 60, 300).object(1, 12, 0, 180, 300, "gone.gif");
    builder_.object(1, 13, 1, 300, 300).editSlot(1, 13, [](store::ObjectSlotRecord& slot) {
        slot.SlotInt4To29[25] = 1;
        slot.SlotStr[4] = "60";
        slot.SlotStr[5] = "120";
    });
    builder_.scenes(2).editScene(1, [](store::SceneRecord& scene) { scene.LinkRightTarget = 2; });
    open();
    const auto file = files_.gfx("scene.bmp");
    ASSERT_TRUE(picture.save(QString::fromStdString(file.string())));
    view_.GetSceneImage(file);
    ASSERT_FALSE(view_.sceneAlert());
    const QImage plain = shot("full");
    EXPECT_EQ(plain.pixelColor(kOrigin + QPoint(360, 330)), picture.pixelColor(360, 330))
        << "a QuickSpot is not seen";
    EXPECT_EQ(plain.pixel(kOrigin + QPoint(100, 100)), test::gifColour(30));

    EXPECT_EQ(plain.pixelColor(kOrigin + QPoint(10, 100)), picture.pixelColor(10, 100))
        << "a link does not spoil the scene";

    quickSpot(13).setAttribute(Qt::WA_UnderMouse);
    const QImage glowing = shot("quickspot");
    EXPECT_NE(glowing.pixelColor(kOrigin + QPoint(360, 330)), picture.pixelColor(360, 330));
    EXPECT_EQ(glowing.pixelColor(kOrigin + QPoint(430, 330)), picture.pixelColor(430, 330));
    quickSpot(13).setAttribute(Qt::WA_UnderMouse, false);

    link(2).setAttribute(Qt::WA_UnderMouse);
    const QImage hovered = shot("hovered");
    EXPECT_NE(hovered.pixelColor(kOrigin + QPoint(100, 10)), picture.pixelColor(100, 10));
    link(2).setAttribute(Qt::WA_UnderMouse, false);

    view_.ToggleBorders(true);
    const QImage bordered = shot("borders");
    EXPECT_NE(bordered.pixelColor(kOrigin + QPoint(299, 330)), picture.pixelColor(299, 330));
    EXPECT_NE(bordered.pixelColor(kOrigin + QPoint(420, 330)), picture.pixelColor(420, 330));
    EXPECT_EQ(bordered.pixelColor(kOrigin + QPoint(300, 330)), picture.pixelColor(300, 330));
    EXPECT_EQ(bordered.pixelColor(kOrigin + QPoint(298, 330)), picture.pixelColor(298, 330));
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, Looks,
                         testing::Values(forms::Look::light, forms::Look::dark),
                         [](const auto& instance) {
                             return instance.param == forms::Look::dark ? "Dark" : "Light";
                         });

}  // namespace
}  // namespace quorvel::canvas
