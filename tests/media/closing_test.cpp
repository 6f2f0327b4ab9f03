// Closing the engine while it prepares: a scanner of plug-ins that sleeps, a sound server that
// hangs. What has to be let go stays blocked until the engine is gone, so a wait for it would hang
// the test; no clock decides.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/gate.h"
#include "support/media/media_fixture.h"

namespace quorvel::test {
namespace {

using namespace std::chrono_literals;
using testing::IsEmpty;

class Closing : public MediaTest {
  protected:
    /// An engine whose library does not start before the gate is opened.
    media::PreviewOptions asleep() {
        media::PreviewOptions options;
        options.patience = 24h;
        options.startLibrary = [this] {
            ++starts;
            gate.pass();
        };
        options.leftBehind = [this] { ++left; };
        return options;
    }
    /// Until the thread that was left behind has given back what it held.
    bool threadHasEnded() {
        return waitUntil([this] { return alive.expired(); });
    }
    /// Notes when the last copy of what the engine was given goes.
    void watchThread(media::PreviewOptions& options) {
        auto token = std::make_shared<int>(0);
        alive = token;
        options.startLibrary = [token, start = options.startLibrary] { start(); };
    }
    Gate gate;
    std::atomic<int> starts = 0;
    int left = 0;
    std::weak_ptr<int> alive;
};

TEST_F(Closing, IsTrueWhileTheLibraryStarts) {
    auto options = asleep();
    watchThread(options);
    begin(Device::fast, std::move(options));
    engine->prepare();
    gate.waitForGuest();
    EXPECT_TRUE(engine->CloseMediaEngine()) << "nothing plays that could not be stopped";
    engine.reset();
    EXPECT_EQ(left, 1) << "the process has to know that the thread still runs";
    gate.open();
    EXPECT_TRUE(threadHasEnded());
    EXPECT_EQ(capture.takes(), 0U);
}

TEST_F(Closing, IsTrueWhileTheLibraryStartsForTheFirstSound) {
    auto options = asleep();
    watchThread(options);
    begin(Device::fast, std::move(options));
    const auto sound = file("a.wav", wavBytes(441, tone(441)));
    engine->PlayWav(sound, 0, 0, 0);
    engine->PlayMp3(data("tone441.mp3"), 0, 0);
    gate.waitForGuest();
    stopAll();
    EXPECT_TRUE(engine->CloseMediaEngine());
    gate.open();
    // What was stopped before it began does not begin any more; what comes later does.
    engine->PlayWav(sound, 0, 0, 1);
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_THAT(ends, testing::ElementsAre("wav 1"));
    EXPECT_EQ(capture.takes(), 1U);
    engine.reset();
    EXPECT_EQ(left, 0);
    EXPECT_TRUE(threadHasEnded());
}

TEST_F(Closing, IsTrueWhilePreparingAtASoundServerThatHangs) {
    media::PreviewOptions options = asleep();
    options.startLibrary = {};
    begin(Device::wedged, std::move(options));
    engine->prepare();
    engine->PlayMp3(data("tone441.mp3"), 0, 0);  // waits behind it
    EXPECT_TRUE(engine->CloseMediaEngine());
    engine.reset();
    EXPECT_EQ(left, 1);
    EXPECT_EQ(capture.open(), 0) << "it still hangs";
    capture.waitForHanging();
    capture.release();
    EXPECT_TRUE(waitUntil([this] { return capture.closes() == 1; })) << "and is given back";
    EXPECT_THAT(ends, IsEmpty());
}

TEST_F(Closing, IsFalseWhenWhatPlaysCannotBeStopped) {
    media::PreviewOptions options = asleep();
    options.startLibrary = {};
    options.patience = 1ms;
    begin(Device::wedged, std::move(options));
    engine->PlayMp3(data("tone441.mp3"), 0, 0);
    capture.waitForHanging();
    EXPECT_FALSE(engine->CloseMediaEngine());
    engine.reset();
    EXPECT_EQ(left, 1);
    capture.release();
    EXPECT_TRUE(waitUntil([this] { return capture.closes() == 1; }));
}

TEST_F(Closing, WaitsForWhatPlaysAndLeavesNothing) {
    begin(Device::realTime, asleep());
    gate.open();
    engine->prepare();
    engine->PlayMp3(data("tone441.mp3"), 0, 0);
    ASSERT_TRUE(capture.waitForFrames(0, 1));
    EXPECT_TRUE(engine->CloseMediaEngine());
    EXPECT_EQ(capture.open(), 0);
    engine.reset();
    EXPECT_EQ(left, 0);
}

TEST_F(Closing, TheLibraryIsStartedOnceAndOnlyWhenItIsNeeded) {
    begin(Device::fast, asleep());
    gate.open();
    EXPECT_TRUE(engine->CloseMediaEngine());
    EXPECT_EQ(starts, 0);
    engine->prepare();
    engine->prepare();
    engine->PlayWav(file("a.wav", wavBytes(441, tone(441))), 0, 0, 0);
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_EQ(starts, 1);
}

TEST_F(Closing, WhatIsMissingIsToldOnce) {
    media::PreviewOptions options;
    options.sink = "nosuchsink";
    listen(options);
    int told = 0;
    QObject::connect(engine.get(), &media::PreviewEngine::unavailable, [&] { ++told; });
    engine->prepare();
    engine->prepare();
    engine->PlayWav(file("a.wav", wavBytes(441, tone(441))), 0, 0, 0);
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace quorvel::test
