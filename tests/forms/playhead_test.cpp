#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

#include <QDeadlineTimer>
#include <QEventLoop>

#include "forms/pictures_playhead.h"
#include "support/file_bytes.h"
#include "support/gif_bytes.h"
#include "support/temp_folder.h"

namespace quorvel::forms {
namespace {

using test::GifFrame;
using testing::ElementsAre;

/// Lets events run until `done` holds; false when it takes too long.
bool waitUntil(const std::function<bool()>& done) {
    QDeadlineTimer patience(10000);
    QEventLoop loop;
    while (!done() && !patience.hasExpired()) {
        loop.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
    }
    return done();
}

/// Frames 1, 2, 3... of the shortest delay.
std::vector<GifFrame> frames(int count) {
    std::vector<GifFrame> all;
    for (int i = 1; i <= count; ++i) {
        all.push_back({.colour = i});
    }
    return all;
}

class Playing : public testing::Test {
  protected:
    void open(const std::string& bytes, DisplayMode mode = DisplayMode::loop) {
        test::writeBytes(folder_ / "a.gif", bytes);
        head_.setPicture(store_.load(folder_ / "a.gif"));
        head_.setMode(mode);
        QObject::connect(&head_, &Playhead::frameChanged, &head_,
                         [this] { seen_.push_back(colour()); });
    }
    /// The number of the frame that is shown.
    [[nodiscard]] int colour() const {
        for (int i = 0; i < 100; ++i) {
            if (head_.frame().pixel(0, 0) == test::gifColour(i)) {
                return i;
            }
        }
        return -1;
    }
    /// The first `count` frames that come after the one that stood there.
    std::vector<int> play(std::size_t count) {
        head_.play();
        waitUntil([&] { return seen_.size() >= count || !head_.isPlaying(); });
        return seen_;
    }

    test::TempFolder folder_;
    PictureStore store_;
    Playhead head_{nullptr};
    std::vector<int> seen_;
};

TEST_F(Playing, NothingRunsBeforePlay) {
    open(test::gifBytes(4, 4, frames(3)));
    EXPECT_EQ(colour(), 1);
    EXPECT_FALSE(head_.isPlaying());
    EXPECT_FALSE(head_.isTicking());
}

TEST_F(Playing, ALoopBeginsAgainForEver) {
    open(test::gifBytes(4, 4, frames(3)));
    EXPECT_THAT(play(7), ElementsAre(2, 3, 1, 2, 3, 1, 2));
    EXPECT_TRUE(head_.isPlaying());
}

TEST_F(Playing, ALoopEndsWhereTheFileSays) {
    open(test::gifBytes(4, 4, frames(3), 1));
    EXPECT_THAT(play(20), ElementsAre(2, 3, 1, 2, 3)) << "one repetition, that is two rounds";
    EXPECT_FALSE(head_.isTicking());
}

TEST_F(Playing, ZeroRepetitionsMeanForEver) {
    open(test::gifBytes(4, 4, frames(2), 0));
    EXPECT_THAT(play(4), ElementsAre(2, 1, 2, 1));
    EXPECT_TRUE(head_.isPlaying());
}

TEST_F(Playing, PingPongTurnsAtBothEnds) {
    open(test::gifBytes(4, 4, frames(3)), DisplayMode::pingPong);
    EXPECT_THAT(play(8), ElementsAre(2, 3, 2, 1, 2, 3, 2, 1));
}

TEST_F(Playing, PingPongOfTwoFrames) {
    open(test::gifBytes(4, 4, frames(2), 1), DisplayMode::pingPong);
    EXPECT_THAT(play(5), ElementsAre(2, 1, 2, 1, 2));
}

TEST_F(Playing, OnceStopsOnTheLastFrame) {
    open(test::gifBytes(4, 4, frames(3), 0), DisplayMode::once);
    EXPECT_THAT(play(20), ElementsAre(2, 3));
    EXPECT_FALSE(head_.isTicking());
    EXPECT_EQ(colour(), 3);
    seen_.clear();
    EXPECT_THAT(play(20), ElementsAre(1, 2, 3)) << "played again it begins anew";
}

TEST_F(Playing, ASingleFrameSoonStopsTicking) {
    for (const auto mode : {DisplayMode::loop, DisplayMode::pingPong, DisplayMode::once}) {
        open(test::stillGif(4, 4, 1), mode);
        head_.play();
        EXPECT_TRUE(waitUntil([this] { return !head_.isTicking(); }));
        EXPECT_FALSE(head_.isPlaying());
        EXPECT_EQ(colour(), 1);
    }
}

TEST_F(Playing, AStillPictureNeverTicks) {
    test::writeBytes(folder_ / "a.bmp", test::bmpBytes(4, 4));
    head_.setPicture(store_.load(folder_ / "a.bmp"));
    head_.play();
    EXPECT_FALSE(head_.isPlaying());
    EXPECT_FALSE(head_.isTicking());
}

TEST_F(Playing, StopGoesBackToTheFirstFrame) {
    open(test::gifBytes(4, 4, frames(3)));
    play(1);
    head_.stop();
    EXPECT_EQ(colour(), 1);
    EXPECT_FALSE(head_.isTicking());
}

TEST_F(Playing, FramesAreKeptOnlyWhileSomebodyPlays) {
    open(test::gifBytes(4, 4, frames(3)));
    play(2);
    const std::weak_ptr<PictureFrames> kept = head_.picture()->frames();
    EXPECT_FALSE(kept.expired());
    head_.stop();
    EXPECT_TRUE(kept.expired());
}

TEST_F(Playing, TwoOfOnePictureShareItsFrames) {
    open(test::gifBytes(4, 4, frames(3)));
    Playhead other(nullptr);
    other.setPicture(head_.picture());
    other.play();
    play(3);
    EXPECT_GE(head_.picture()->frames().use_count(), 3);
}

TEST_F(Playing, WhoIsSuspendedDoesNotTick) {
    open(test::gifBytes(4, 4, frames(3)));
    head_.setSuspended(true);
    head_.play();
    EXPECT_TRUE(head_.isPlaying());
    EXPECT_FALSE(head_.isTicking());
    head_.setSuspended(false);
    EXPECT_TRUE(head_.isTicking());
    EXPECT_THAT(play(2), ElementsAre(2, 3));
    head_.setSuspended(true);
    EXPECT_FALSE(head_.isTicking());
}

TEST_F(Playing, DelaysThatNobodyMeansAreATenthOfASecond) {
    EXPECT_EQ(frameDelay(0), 100);
    EXPECT_EQ(frameDelay(10), 100);
    EXPECT_EQ(frameDelay(20), 20);
    EXPECT_EQ(frameDelay(70), 70);
    for (const int delay : {0, 1}) {
        open(test::gifBytes(4, 4, {{.colour = 1, .delay = delay}, {.colour = 2, .delay = delay}}));
        EXPECT_EQ(head_.picture()->firstDelay(), 100);
        EXPECT_EQ(head_.picture()->frames()->at(0)->delay, 100);
        EXPECT_EQ(head_.picture()->frames()->at(1)->delay, 100);
    }
}

TEST_F(Playing, EveryFrameHasItsOwnDelay) {
    open(test::gifBytes(4, 4, {{.colour = 1, .delay = 3}, {.colour = 2, .delay = 9}}));
    EXPECT_EQ(head_.picture()->firstDelay(), 30);
    EXPECT_EQ(head_.picture()->frames()->at(1)->delay, 90);
}

/// Six frames of 4 MB do not fit into what is kept.
class PlayingLarge : public Playing {
  protected:
    static constexpr int kSide = 1024;
    static_assert(qsizetype{6} * kSide * kSide * 4 > PictureFrames::kMostBytes);
    static std::string bytes(std::optional<int> loops = std::nullopt) {
        return test::gifBytes(kSide, kSide, frames(6), loops);
    }
};

TEST_F(PlayingLarge, WhatDoesNotFitIsStreamed) {
    open(bytes());
    EXPECT_THAT(play(8), ElementsAre(2, 3, 4, 5, 6, 1, 2, 3));
    EXPECT_TRUE(head_.picture()->frames()->tooMany());
    EXPECT_EQ(head_.picture()->frames()->at(0), nullptr) << "nothing is kept";
}

TEST_F(PlayingLarge, PingPongOfAStreamRunsForward) {
    open(bytes(1), DisplayMode::pingPong);
    EXPECT_THAT(play(13), ElementsAre(2, 3, 4, 5, 6, 1, 2, 3, 4, 5, 6, 1, 2));
}

TEST_F(PlayingLarge, OnceAndCountedLoopsEndAsEver) {
    open(bytes(), DisplayMode::once);
    EXPECT_THAT(play(20), ElementsAre(2, 3, 4, 5, 6));
    seen_.clear();
    head_.disconnect();
    open(bytes(1));
    seen_.clear();
    EXPECT_THAT(play(20), ElementsAre(2, 3, 4, 5, 6, 1, 2, 3, 4, 5, 6));
    EXPECT_FALSE(head_.isTicking());
}

TEST_F(PlayingLarge, AnotherPlayheadGoesOnWhereItIs) {
    open(bytes());
    Playhead other(nullptr);
    other.setPicture(head_.picture());
    play(2);
    other.play();
    play(6);
    EXPECT_TRUE(head_.picture()->frames()->tooMany());
    EXPECT_TRUE(waitUntil([&] { return other.frame().pixel(0, 0) == test::gifColour(6); }));
}

TEST_F(Playing, AFileThatGoesAwayEndsTheAnimation) {
    open(test::gifBytes(4, 4, frames(3)));
    std::filesystem::remove(folder_ / "a.gif");
    EXPECT_THAT(play(5), ElementsAre());
    EXPECT_FALSE(head_.isPlaying());
    EXPECT_EQ(colour(), 1);
}

}  // namespace
}  // namespace quorvel::forms
