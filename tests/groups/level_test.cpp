// How a volume or a pan looks: what counts, what is off.
#include "groups/level.h"

#include <algorithm>
#include <gtest/gtest.h>

#include <QApplication>

#include "forms/look.h"
#include "support/windows/text_contrast.h"

namespace quorvel::test {
namespace {

using forms::Look;

class LevelLooks : public ::testing::TestWithParam<Look> {
  protected:
    LevelLooks() {
        forms::applyLook(*qApp, GetParam());
        // A window that is older takes its colours when it is shown first.
        window.setPalette(QApplication::palette());
    }
    ~LevelLooks() override { QApplication::setPalette(before); }

    /// The strongest contrast to the window in the columns from `left` to `right` of a slider.
    static double strongest(QSlider& slider, int left, int right) {
        const QImage image = slider.grab().toImage();
        const QColor ground = slider.palette().color(QPalette::Window);
        double most = 1;
        for (int x = left; x <= right; ++x) {
            for (int y = 0; y < image.height(); ++y) {
                most = std::max(most, contrast(image.pixelColor(x, y), ground));
            }
        }
        return most;
    }
    const QPalette before = QApplication::palette();
    QWidget window;
};

TEST_P(LevelLooks, ASliderThatIsOffLooksOff) {
    groups::Level level(QStringLiteral("slider"), QStringLiteral("box"), QStringLiteral("volume"),
                        groups::kWavVolume, &window);
    QSlider& slider = *level.slider();
    slider.resize(160, slider.sizeHint().height());
    level.setValue(0);  // full: the groove is filled to the handle
    level.setEnabled(true);
    const int middle = slider.width() / 2;
    const double filled = strongest(slider, 10, middle);
    const double handle = strongest(slider, slider.width() - 12, slider.width() - 1);
    level.setEnabled(false);
    EXPECT_LT(strongest(slider, 10, middle), filled * 0.7) << "no amount is shown";
    EXPECT_LT(strongest(slider, slider.width() - 12, slider.width() - 1), handle);
    EXPECT_GT(strongest(slider, 10, middle), 1.05) << "but it is seen";
}

TEST_P(LevelLooks, TheNumberThatCountsBearsTheFullColour) {
    groups::Level level(QStringLiteral("slider"), QStringLiteral("box"), QStringLiteral("volume"),
                        groups::kWavVolume, &window);
    level.setEnabled(false);
    window.resize(200, 60);
    level.slider()->hide();
    const QColor full = QApplication::palette().color(QPalette::Active, QPalette::Text);
    const QColor quiet = QApplication::palette().color(QPalette::Disabled, QPalette::Text);
    ASSERT_NE(full, quiet);
    for (const bool live : {true, false, true}) {
        level.setLive(live);
        const auto texts = paintedTexts(window);
        ASSERT_EQ(texts.size(), 1U);
        EXPECT_EQ(texts.front().text, QStringLiteral("0"));
        EXPECT_EQ(texts.front().pen, live ? full : quiet);
        EXPECT_FALSE(level.box()->isEnabled());
    }
}

std::string nameOfLook(const ::testing::TestParamInfo<Look>& one) {
    return one.param == Look::dark ? "Dark" : one.param == Look::light ? "Light" : "Desktop";
}
INSTANTIATE_TEST_SUITE_P(Looks, LevelLooks,
                         ::testing::Values(Look::light, Look::dark, Look::desktop), nameOfLook);

}  // namespace
}  // namespace quorvel::test
