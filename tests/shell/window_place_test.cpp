// A window that is to be read beside another: both on one screen, neither over the other.
#include "shell/window_place.h"

#include <gtest/gtest.h>

namespace quorvel::test {
namespace {

using shell::placeBeside;
using shell::Places;

constexpr QSize kWanted(800, 560);
constexpr QSize kLeast(540, 400);

QRect centred(QSize size, const QRect& screen) {
    QRect place({}, size);
    place.moveCenter(screen.center());
    return place;
}

void expectApart(const Places& places, const QRect& screen) {
    EXPECT_FALSE(places.other.intersects(places.beside));
    EXPECT_TRUE(screen.contains(places.other));
    EXPECT_TRUE(screen.contains(places.beside));
    EXPECT_GE(places.beside.width(), kLeast.width());
    EXPECT_GE(places.beside.height(), kLeast.height());
}

TEST(WindowPlace, ThereIsRoomAtTheSide) {
    const QRect screen(0, 0, 2560, 1440);
    const QRect other(100, 200, 800, 600);
    const Places places = placeBeside(other, kWanted, kLeast, screen, true);
    EXPECT_EQ(places.other, other);
    EXPECT_EQ(places.beside, QRect(QPoint(900, 200), kWanted));
    const QRect right(1700, 200, 800, 600);
    EXPECT_EQ(placeBeside(right, kWanted, kLeast, screen, true).beside,
              QRect(QPoint(900, 200), kWanted));
}

TEST(WindowPlace, ANarrowRoomMakesANarrowWindow) {
    const QRect screen(0, 0, 1920, 1080);
    const QRect other = centred({788, 580}, screen);
    const Places places = placeBeside(other, kWanted, kLeast, screen, true);
    EXPECT_EQ(places.other, other);
    EXPECT_EQ(places.beside.width(), 566);
    expectApart(places, screen);
}

TEST(WindowPlace, ATallScreenHasRoomBelowOrAbove) {
    const QRect screen(0, 0, 1080, 1920);
    const Places below = placeBeside({140, 0, 800, 600}, kWanted, kLeast, screen, false);
    EXPECT_EQ(below.beside, QRect(QPoint(140, 600), kWanted));
    const Places above = placeBeside({140, 1320, 800, 600}, kWanted, kLeast, screen, false);
    EXPECT_GT(above.beside.bottom(), 559);
    expectApart(above, screen);
}

TEST(WindowPlace, AWindowInTheMiddleMakesRoomAsFarAsItMust) {
    const QRect screen(0, 0, 1280, 800);
    const QRect other = centred({500, 400}, screen);
    const Places places = placeBeside(other, kWanted, kLeast, screen, true);
    expectApart(places, screen);
    EXPECT_EQ(places.other.left(), 240);
    EXPECT_EQ(places.other.top(), other.top());
}

TEST(WindowPlace, AWindowThatMayNotMoveIsCoveredAsLittleAsCanBe) {
    const QRect screen(0, 0, 1280, 800);
    const QRect other = centred({500, 400}, screen);
    const Places places = placeBeside(other, kWanted, kLeast, screen, false);
    EXPECT_EQ(places.other, other);
    EXPECT_EQ(places.beside, QRect(QPoint(480, 240), kWanted));
    const QRect left(0, 0, 500, 400);
    EXPECT_EQ(placeBeside(left, kWanted, QSize(790, 550), screen, false).beside.right(), 1279);
}

TEST(WindowPlace, ASmallScreenHoldsItWhole) {
    const QRect screen(0, 0, 800, 600);
    const Places places = placeBeside(screen, {900, 700}, kLeast, screen, true);
    EXPECT_EQ(places.other, screen);
    EXPECT_EQ(places.beside, screen);
}

TEST(WindowPlace, ASecondScreenIsNotTheFirst) {
    const QRect screen(1920, 100, 1920, 1080);
    const QRect other = centred({600, 500}, screen);
    expectApart(placeBeside(other, kWanted, kLeast, screen, true), screen);
}

}  // namespace
}  // namespace quorvel::test
