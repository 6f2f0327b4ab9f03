// Texts of the desktop's own palettes are moved until they can be read.
#include "forms/legible.h"

#include <gtest/gtest.h>

#include "support/windows/text_contrast.h"

namespace quorvel::test {
namespace {

using P = QPalette;

/// A palette of one text colour on one ground, with what is off and selected in colours of its own.
QPalette flat(const QColor& ground, const QColor& text, const QColor& off,
              const QColor& selection) {
    QPalette palette(ground, ground);
    for (const auto role : {P::Base, P::AlternateBase, P::ToolTipBase}) {
        palette.setColor(role, ground);
    }
    for (const auto role : {P::WindowText, P::Text, P::ButtonText, P::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(P::Disabled, role, off);
    }
    palette.setColor(P::PlaceholderText, off);
    palette.setColor(P::Link, QColor(0x0000ff));
    palette.setColor(P::Highlight, selection);
    palette.setColor(P::HighlightedText, Qt::white);
    return palette;
}

void expectLegible(const QPalette& palette) {
    for (const auto group : {P::Active, P::Inactive, P::Disabled}) {
        for (const auto& [text, ground] : std::vector<std::pair<P::ColorRole, P::ColorRole>>{
                 {P::WindowText, P::Window},
                 {P::Text, P::Base},
                 {P::Text, P::AlternateBase},
                 {P::ButtonText, P::Button},
                 {P::ButtonText, P::Window},
                 {P::PlaceholderText, P::Base},
                 {P::ToolTipText, P::ToolTipBase},
                 {P::Link, P::Base},
                 {P::LinkVisited, P::Base},
                 {P::HighlightedText, P::Highlight}}) {
            EXPECT_GE(contrast(palette.color(group, text), palette.color(group, ground)), kReadable)
                << group << ": " << text << " on " << ground;
        }
    }
}

TEST(Legible, ContrastIsThatOfTheirLuminance) {
    EXPECT_NEAR(forms::contrastOf(Qt::black, Qt::white), 21.0, 1e-6);
    EXPECT_NEAR(forms::contrastOf(Qt::white, Qt::black), 21.0, 1e-6);
    EXPECT_NEAR(forms::contrastOf(QColor(0x777777), Qt::white), 4.48, 0.01);
    EXPECT_DOUBLE_EQ(forms::contrastOf(Qt::red, Qt::red), 1.0);
}

TEST(Legible, PaleTextsOfABrightDesktopGrowDark) {
    const QPalette pale =
        flat(QColor(0xefefef), QColor(0x909090), QColor(0xbebebe), QColor(0x308cc6));
    ASSERT_LT(contrast(pale.color(P::Disabled, P::Text), pale.color(P::Disabled, P::Base)), 2);
    expectLegible(forms::legible(pale));
}

TEST(Legible, DullTextsOfADarkDesktopGrowBright) {
    expectLegible(forms::legible(
        flat(QColor(0x303030), QColor(0x808080), QColor(0x606060), QColor(0x90b0ff))));
}

TEST(Legible, WhatCanBeReadStaysAsItIs) {
    const QPalette good = flat(Qt::white, Qt::black, QColor(0x606060), QColor(0x004080));
    const QPalette same = forms::legible(good);
    for (const auto role : {P::WindowText, P::Text, P::ButtonText, P::Highlight, P::Window}) {
        EXPECT_EQ(same.color(role), good.color(role)) << role;
    }
}

TEST(Legible, AllColoursAreSet) {
    const QPalette set = forms::legible(QPalette());
    for (const auto role : {P::Window, P::Text, P::Shadow, P::Mid, P::LinkVisited}) {
        EXPECT_TRUE(set.isBrushSet(P::Active, role)) << role;
    }
}

}  // namespace
}  // namespace quorvel::test
