// A caption of several lines is shown whole at any width it is given.
#include "forms/wrap_button.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPixmap>

namespace quorvel::test {
namespace {

class WrapCaption : public ::testing::TestWithParam<std::tuple<const char*, double>> {};

TEST_P(WrapCaption, FitsAtEveryWidthFromTheSmallest) {
    const auto& [caption, scale] = GetParam();
    forms::WrapButton button(QString::fromLatin1(caption));
    QFont font = button.font();
    font.setPointSizeF(font.pointSizeF() * scale);
    button.setFont(font);
    constexpr int kFlags = Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;
    for (int width = button.minimumSizeHint().width(); width < 300; width += 7) {
        const int height = button.heightForWidth(width);
        const QRect room(0, 0, width - 12, 1000);
        const QRect text = button.fontMetrics().boundingRect(room, kFlags, button.text());
        EXPECT_LE(text.height(), height - 12) << width;
        EXPECT_LE(text.width(), room.width()) << width;
    }
    EXPECT_GE(button.heightForWidth(button.minimumSizeHint().width()), button.heightForWidth(400));
}
INSTANTIATE_TEST_SUITE_P(Captions, WrapCaption,
                         ::testing::Combine(::testing::Values("Jump To Location >",
                                                              "Restore Object Positions",
                                                              "Scene Size", ">"),
                                            ::testing::Values(1.0, 2.0)));

TEST(WrapButton, APictureTakesItsOwnRoom) {
    forms::WrapButton button(QStringLiteral("Scene Size"));
    const int bare = button.heightForWidth(80);
    QPixmap pixmap(20, 20);
    pixmap.fill(Qt::red);
    button.setIcon(QIcon(pixmap));
    button.setIconSize({20, 20});
    EXPECT_GE(button.heightForWidth(80), bare + 20);
}

TEST(WrapButton, IsPaintedInEveryState) {
    forms::WrapButton button(QStringLiteral("Restore Object Positions"));
    button.resize(80, button.heightForWidth(80));
    const QImage enabled = button.grab().toImage();
    button.setEnabled(false);
    const QImage disabled = button.grab().toImage();
    EXPECT_NE(enabled, disabled);
    button.setText(QString());
    EXPECT_NE(button.grab().toImage(), disabled);
}

}  // namespace
}  // namespace quorvel::test
