#include "media/gain.h"

#include <cmath>
#include <gtest/gtest.h>

namespace quorvel::media {
namespace {

double decibels(double factor) {
    return 20.0 * std::log10(factor);
}

TEST(Amplitude, FollowsHundredthsOfADecibel) {
    EXPECT_EQ(amplitude(0), 1.0);
    EXPECT_NEAR(decibels(amplitude(-600)), -6.0, 1e-9);
    EXPECT_NEAR(decibels(amplitude(-4000)), -40.0, 1e-9);
    EXPECT_NEAR(decibels(amplitude(-9999)), -99.99, 1e-9);
}

TEST(Amplitude, NeverIsMoreThanFull) {
    EXPECT_EQ(amplitude(500), 1.0);
}

TEST(Amplitude, IsSilentAtTheEnd) {
    EXPECT_EQ(amplitude(-10000), 0.0);
    EXPECT_EQ(amplitude(-32768), 0.0);
}

TEST(Panorama, TurnsDownTheOtherSide) {
    EXPECT_EQ(panorama(0), 0.0);
    EXPECT_NEAR(decibels(1.0 + panorama(-4000)), -40.0, 1e-9);
    EXPECT_NEAR(decibels(1.0 - panorama(4000)), -40.0, 1e-9);
    EXPECT_NEAR(decibels(1.0 - panorama(100)), -1.0, 1e-9);
}

TEST(Panorama, StaysWithinItsRange) {
    EXPECT_GE(panorama(-32768), -1.0);
    EXPECT_LE(panorama(32767), 1.0);
}

}  // namespace
}  // namespace quorvel::media
