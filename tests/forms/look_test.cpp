// Palettes, icons and stock pictures.
#include "forms/look.h"

#include <cmath>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QImageReader>
#include <QPalette>
#include <QRadioButton>

namespace quorvel::test {
namespace {

using forms::Look;

class LookOfTheProgram : public ::testing::Test {
  protected:
    void TearDown() override {
        qunsetenv("QUORVEL_LOOK");
        QApplication::setPalette(before);
    }
    static QPalette paletteOf(Look look) {
        forms::applyLook(*qApp, look);
        return QApplication::palette();
    }
    /// Relative luminance, 0 to 1.
    static double luminance(const QColor& color) {
        const auto linear = [](double c) {
            return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    }
    static double contrast(const QPalette& palette, QPalette::ColorRole text,
                           QPalette::ColorRole ground) {
        const double a = luminance(palette.color(text)) + 0.05;
        const double b = luminance(palette.color(ground)) + 0.05;
        return std::max(a, b) / std::min(a, b);
    }
    QPalette before = QApplication::palette();
};

TEST_F(LookOfTheProgram, FollowsTheEnvironment) {
    EXPECT_EQ(forms::lookFromEnvironment(), Look::desktop);
    qputenv("QUORVEL_LOOK", "Light");
    EXPECT_EQ(forms::lookFromEnvironment(), Look::light);
    qputenv("QUORVEL_LOOK", "dark");
    EXPECT_EQ(forms::lookFromEnvironment(), Look::dark);
    qputenv("QUORVEL_LOOK", "plaid");
    EXPECT_EQ(forms::lookFromEnvironment(), Look::desktop);
}

TEST_F(LookOfTheProgram, LightAndDarkDiffer) {
    const QPalette light = paletteOf(Look::light);
    const QPalette dark = paletteOf(Look::dark);
    EXPECT_GT(luminance(light.color(QPalette::Window)), 0.7);
    EXPECT_LT(luminance(dark.color(QPalette::Window)), 0.1);
    EXPECT_FALSE(QApplication::windowIcon().isNull());
}

TEST_F(LookOfTheProgram, TextCanBeRead) {
    for (const Look look : {Look::light, Look::dark}) {
        const QPalette palette = paletteOf(look);
        EXPECT_GE(contrast(palette, QPalette::WindowText, QPalette::Window), 7.0);
        EXPECT_GE(contrast(palette, QPalette::Text, QPalette::Base), 7.0);
        EXPECT_GE(contrast(palette, QPalette::ButtonText, QPalette::Button), 7.0);
        EXPECT_GE(contrast(palette, QPalette::ToolTipText, QPalette::ToolTipBase), 7.0);
        EXPECT_GE(contrast(palette, QPalette::HighlightedText, QPalette::Highlight), 3.0);
        EXPECT_NE(palette.color(QPalette::Disabled, QPalette::ButtonText),
                  palette.color(QPalette::Active, QPalette::ButtonText));
    }
}

TEST_F(LookOfTheProgram, ADisabledSliderIsQuieterThanItsText) {
    for (const Look look : {Look::light, Look::dark}) {
        const QPalette palette = paletteOf(look);
        const double ground = luminance(palette.color(QPalette::Window));
        const auto distance = [&](QPalette::ColorRole role) {
            return std::abs(luminance(palette.color(QPalette::Disabled, role)) - ground);
        };
        EXPECT_LT(distance(QPalette::Highlight), distance(QPalette::WindowText));
        EXPECT_GT(distance(QPalette::Highlight), 0.02) << "but it is seen";
    }
}

TEST_F(LookOfTheProgram, TheEdgesOfOptionsAndChecksStandOut) {
    for (const Look look : {Look::light, Look::dark}) {
        const QPalette palette = paletteOf(look);
        QRadioButton option;
        QCheckBox check;
        for (QAbstractButton* button :
             {static_cast<QAbstractButton*>(&option), static_cast<QAbstractButton*>(&check)}) {
            button->resize(button->sizeHint());
            const QImage image = button->grab().toImage();
            const double ground = luminance(palette.color(QPalette::Window)) + 0.05;
            double most = 1;
            for (int x = 0; x < image.width(); ++x) {
                const double seen = luminance(image.pixelColor(x, image.height() / 2)) + 0.05;
                most = std::max(most, std::max(seen, ground) / std::min(seen, ground));
            }
            EXPECT_GE(most, look == Look::dark ? 2.5 : 1.5) << button->metaObject()->className();
        }
    }
}

TEST_F(LookOfTheProgram, EveryIconOfTheMainWindowIsThere) {
    for (const char* name : {"open",
                             "close",
                             "project-info",
                             "security",
                             "toggle-animations",
                             "toggle-borders",
                             "scene-o-matic",
                             "add-scene",
                             "edit-locations",
                             "edit-items",
                             "edit-cue-cards",
                             "edit-pointers",
                             "edit-text",
                             "general-settings",
                             "customize-player",
                             "logo-credits",
                             "game-intro",
                             "project-reports",
                             "scene-properties",
                             "insert-object",
                             "run-player",
                             "run-anim",
                             "run-graphics",
                             "run-icon",
                             "run-wav",
                             "run-midi",
                             "run-video",
                             "help-pointer",
                             "previous-scene",
                             "next-scene",
                             "quorvel"}) {
        SCOPED_TRACE(name);
        EXPECT_TRUE(QFile::exists(QStringLiteral(":/icons/%1.svg").arg(QString::fromLatin1(name))));
        const QImage image = forms::icon(QString::fromLatin1(name)).pixmap(20, 20).toImage();
        ASSERT_FALSE(image.isNull());
        int drawn = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                drawn += qAlpha(image.pixel(x, y)) > 64 ? 1 : 0;
            }
        }
        EXPECT_GT(drawn, 20) << "something is drawn";
    }
}

TEST_F(LookOfTheProgram, EveryStockPictureCanBeRead) {
    for (const char* name : {"file-not-found", "new-object", "responder", "delay", "multi-trigger",
                             "conversation", "flag-conjunction", "unknown-object"}) {
        SCOPED_TRACE(name);
        const QImage image = QImageReader(forms::stockPicture(QString::fromLatin1(name))).read();
        EXPECT_GE(image.width(), 16);
        EXPECT_GE(image.height(), 16);
    }
}

}  // namespace
}  // namespace quorvel::test
