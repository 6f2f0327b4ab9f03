#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/gate.h"
#include "support/media/media_fixture.h"

namespace quorvel::test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

/// Level of a sine of peak 0.5.
const double kToneLevel = 20.0 * std::log10(0.5 / std::sqrt(2.0));

/// Number of a sample of counter().
int count(float sample) {
    return static_cast<int>(std::lround(sample * 32768.0F));
}

class Wavs : public MediaTest {};

TEST_F(Wavs, PlayEverySampleAsItIs) {
    begin();
    engine->PlayWav(file("a.wav", wavBytes(20000, counter())), 0, 0, 0);
    ASSERT_TRUE(waitForEnds(1));
    const Take take = capture.take(0);
    ASSERT_EQ(take.samples.size(), 40000U);
    for (int i = 0; i < 20000; ++i) {
        const auto at = static_cast<std::size_t>(i) * 2;
        ASSERT_EQ(count(take.samples[at]), i);
        ASSERT_EQ(count(take.samples[at + 1]), -i);
    }
}

TEST_F(Wavs, AtVolumeMinus600AreSixDecibelsDown) {
    begin();
    engine->PlayWav(file("a.wav", wavBytes(kSecond, tone(441))), -600, 0, 3);
    ASSERT_TRUE(waitForEnds(1));
    const Levels heard = levels(capture.take(0).samples, 0, kSecond);
    EXPECT_NEAR(heard.left, kToneLevel - 6.0, 0.01);
    EXPECT_NEAR(heard.right, kToneLevel - 6.0, 0.01);
}

TEST_F(Wavs, PanTurnsDownTheOtherSideAndLeavesThisOne) {
    begin();
    const auto sound = file("a.wav", wavBytes(kSecond, tone(441)));
    engine->PlayWav(sound, 0, -4000, 0);
    ASSERT_TRUE(waitForEnds(1));
    engine->PlayWav(sound, 0, 4000, 0);
    ASSERT_TRUE(waitForEnds(2));
    const Levels left = levels(capture.take(0).samples, 0, kSecond);
    EXPECT_NEAR(left.left, kToneLevel, 0.01);
    EXPECT_NEAR(left.right, kToneLevel - 40.0, 0.01);
    const Levels right = levels(capture.take(1).samples, 0, kSecond);
    EXPECT_NEAR(right.left, kToneLevel - 40.0, 0.01);
    EXPECT_NEAR(right.right, kToneLevel, 0.01);
}

TEST_F(Wavs, AtMinus4000AreFaintButNotMute) {
    begin();
    engine->PlayWav(file("a.wav", wavBytes(kSecond, tone(441))), -4000, 0, 0);
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_NEAR(levels(capture.take(0).samples, 0, kSecond).left, kToneLevel - 40.0, 0.01);
}

TEST_F(Wavs, FollowVolumeAndPanWhileTheyPlay) {
    begin(Device::realTime);
    engine->PlayWav(file("a.wav", wavBytes(kSecond / 10, tone(441))), 0, 0, 5, true);
    ASSERT_TRUE(capture.waitForFrames(0, kSecond / 5));
    engine->SetWavVolume(5, -600);
    std::size_t from = capture.frames(0);
    ASSERT_TRUE(capture.waitForFrames(0, from + kSecond / 5));
    engine->SetWavPan(5, -4000);
    const std::size_t then = capture.frames(0);
    ASSERT_TRUE(capture.waitForFrames(0, then + kSecond / 5));
    const auto samples = capture.take(0).samples;
    EXPECT_NEAR(levels(samples, 0, kSecond / 10).left, kToneLevel, 0.01);
    // A tenth of a second is time enough to follow.
    EXPECT_NEAR(levels(samples, from + kSecond / 10, then).left, kToneLevel - 6.0, 0.05);
    EXPECT_NEAR(levels(samples, from + kSecond / 10, then).right, kToneLevel - 6.0, 0.05);
    const std::size_t end = then + kSecond / 5;
    EXPECT_NEAR(levels(samples, end - kSecond / 10, end).left, kToneLevel - 6.0, 0.05);
    EXPECT_NEAR(levels(samples, end - kSecond / 10, end).right, kToneLevel - 46.0, 0.05);
    EXPECT_TRUE(engine->isWavPlaying(5));
}

TEST_F(Wavs, ALoopHasNoGapAndLosesNoSample) {
    begin(Device::realTime);
    constexpr int kFrames = 4411;  // not a multiple of any buffer
    const auto sound = file("a.wav", wavBytes(kFrames, counter()));
    for (const std::size_t round : {0U, 1U}) {  // decoding, then from memory
        engine->PlayWav(sound, 0, 0, 0, true);
        ASSERT_TRUE(capture.waitForFrames(round, 5 * kFrames));
        const auto samples = capture.take(round).samples;
        for (int i = 0; i < 5 * kFrames; ++i) {
            ASSERT_EQ(count(samples[static_cast<std::size_t>(i) * 2]), i % kFrames) << i;
        }
    }
    EXPECT_THAT(ends, IsEmpty());
}

TEST_F(Wavs, ALoopOfAFewSamplesIsALoop) {
    begin(Device::realTime);
    engine->PlayWav(file("a.wav", wavBytes(3, counter())), 0, 0, 0, true);
    ASSERT_TRUE(capture.waitForFrames(0, 3000));
    const auto samples = capture.take(0).samples;
    for (int i = 0; i < 3000; ++i) {
        ASSERT_EQ(count(samples[static_cast<std::size_t>(i) * 2]), i % 3) << i;
    }
}

TEST_F(Wavs, LongerThanAMinuteLoopWithoutAGapToo) {
    begin(Device::fast);
    constexpr int kFrames = 61 * kSecond;
    // The counter wraps, so a sample tells its place within 32768.
    engine->PlayWav(
        file("a.wav", wavBytes(kFrames, [](int frame, int) { return frame % 32768 / 32768.0; })), 0,
        0, 0, true);
    ASSERT_TRUE(capture.waitForFrames(0, kFrames + kSecond));
    engine->StopWav(0);
    const auto samples = capture.take(0).samples;
    for (int i = 0; i < kFrames + kSecond; ++i) {
        ASSERT_EQ(count(samples[static_cast<std::size_t>(i) * 2]), i % kFrames % 32768) << i;
    }
}

TEST_F(Wavs, AOneShotEndsAndSaysSo) {
    begin(Device::realTime);
    const auto begun = std::chrono::steady_clock::now();
    engine->PlayWav(file("a.wav", wavBytes(kSecond / 2, tone(441))), 0, 0, 7);
    EXPECT_TRUE(engine->isWavPlaying(7));
    ASSERT_TRUE(waitForEnds(1));
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begun;
    EXPECT_GE(took.count(), 0.45);
    EXPECT_LT(took.count(), 1.5);
    EXPECT_THAT(ends, ElementsAre("wav 7"));
    EXPECT_FALSE(engine->isWavPlaying(7));
    EXPECT_TRUE(engine->lastError().isEmpty());
    EXPECT_EQ(capture.frames(0), kSecond / 2);
    EXPECT_TRUE(waitForSilence());
}

TEST_F(Wavs, StopMeansSilence) {
    begin(Device::realTime);
    engine->PlayWav(file("a.wav", wavBytes(kSecond, tone(441))), 0, 0, 2, true);
    ASSERT_TRUE(capture.waitForFrames(0, 4410));
    engine->StopWav(2);
    EXPECT_FALSE(engine->isWavPlaying(2));
    ASSERT_TRUE(waitForSilence());
    const std::size_t frames = capture.frames(0);
    letTimePass(150ms);
    EXPECT_EQ(capture.frames(0), frames);
    EXPECT_THAT(ends, IsEmpty()) << "who stops it knows";
}

TEST_F(Wavs, StopOfOneChannelLeavesTheOthers) {
    begin(Device::realTime);
    const auto sound = file("a.wav", wavBytes(kSecond, tone(441)));
    engine->PlayWav(sound, 0, 0, 0, true);
    engine->PlayWav(sound, 0, 0, 1, true);
    ASSERT_TRUE(capture.waitForFrames(1, 441));
    engine->StopWav(0);
    ASSERT_TRUE(waitUntil([this] { return capture.open() == 1; }));
    EXPECT_TRUE(engine->isWavPlaying(1));
    engine->StopAllWavs();
    EXPECT_TRUE(waitForSilence());
    EXPECT_FALSE(engine->isWavPlaying(1));
}

TEST_F(Wavs, AnotherInTheSameChannelReplacesTheFirst) {
    begin(Device::realTime);
    engine->PlayWav(file("a.wav", wavBytes(kSecond, tone(441))), 0, 0, 4, true);
    ASSERT_TRUE(capture.waitForFrames(0, 4410));
    engine->PlayWav(file("b.wav", wavBytes(kSecond / 10, tone(882))), 0, 0, 4);
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_EQ(capture.takes(), 2U);
    EXPECT_TRUE(capture.take(0).closed);
    EXPECT_NEAR(pitch(capture.take(1).samples, 0, 4410), 882.0, 20.0);
    EXPECT_THAT(ends, ElementsAre("wav 4"));
}

TEST_F(Wavs, SixteenChannelsSoundAtOnce) {
    begin(Device::realTime);
    for (int channel = 0; channel < 16; ++channel) {
        const auto sound = file("t" + std::to_string(channel) + ".wav",
                                wavBytes(kSecond / 2, tone(210.0 * (channel + 1), 0.05)));
        engine->PlayWav(sound, -100 * channel, 0, channel, true);
    }
    ASSERT_TRUE(waitUntil([this] { return capture.takes() == 16; }));
    for (std::size_t i = 0; i < 16; ++i) {
        ASSERT_TRUE(capture.waitForFrames(i, kSecond / 4)) << i;
    }
    EXPECT_EQ(capture.open(), 16);
    std::vector<int> pitches;
    std::vector<int> wanted;
    for (std::size_t i = 0; i < 16; ++i) {
        const auto samples = capture.take(i).samples;
        const double heard = pitch(samples, 0, kSecond / 4);
        const int channel = static_cast<int>(std::lround(heard / 210.0)) - 1;
        pitches.push_back(channel);
        wanted.push_back(static_cast<int>(i));
        EXPECT_NEAR(levels(samples, 0, kSecond / 10).left, kToneLevel - 20.0 - channel, 0.1);
    }
    EXPECT_THAT(pitches, testing::UnorderedElementsAreArray(wanted)) << "each on its own channel";
    engine->StopAllWavs();
    EXPECT_TRUE(waitForSilence());
}

TEST_F(Wavs, ChannelsThatAreNoneAreIgnored) {
    begin();
    const auto sound = file("a.wav", wavBytes(100, tone(441)));
    for (const int channel : {-1, 16, 32767}) {
        engine->PlayWav(sound, 0, 0, channel);
        engine->SetWavVolume(channel, 0);
        engine->SetWavPan(channel, 0);
        engine->StopWav(channel);
        EXPECT_FALSE(engine->isWavPlaying(channel));
    }
    engine->PlayWav(sound, 0, 0, 15);
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_THAT(ends, ElementsAre("wav 15"));
    EXPECT_EQ(capture.takes(), 1U);
}

TEST_F(Wavs, OtherRatesAndCodingsPlay) {
    begin();
    engine->PlayWav(file("a.wav", wavBytes(11025, tone(441), 22050)), 0, 0, 0);
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_NEAR(static_cast<double>(capture.frames(0)), 22050.0, 2.0);
    EXPECT_NEAR(pitch(capture.take(0).samples, 0, 22050), 220.5, 5.0);
    engine->PlayWav(file("b.wav", adpcmBytes(40)), 0, 0, 1);
    ASSERT_TRUE(waitForEnds(2));
    EXPECT_NEAR(static_cast<double>(capture.frames(1)), 40.0 * 505 * 2, 1100.0);
    EXPECT_GT(levels(capture.take(1).samples, 0, kSecond / 2).left, -60.0);
}

TEST_F(Wavs, AFileThatChangedIsReadAgain) {
    begin();
    const auto sound = file("a.wav", wavBytes(1000, tone(441)));
    engine->PlayWav(sound, 0, 0, 0);
    ASSERT_TRUE(waitForEnds(1));
    file("a.wav", wavBytes(3000, tone(441)));
    engine->PlayWav(sound, 0, 0, 0);
    ASSERT_TRUE(waitForEnds(2));
    EXPECT_EQ(capture.frames(1), 3000U);
}

TEST_F(Wavs, OddNamesAreJustNames) {
    begin();
    const std::string bytes = wavBytes(1000, tone(441));
    std::size_t number = 0;
    for (const std::string name : {"a b.wav", "50%25 #1?.wav", "\"q\" 'x' ! y.wav",
                                   "gr\xC3\xBC\xC3\x9F.wav", "-x.wav", "no ending"}) {
        engine->PlayWav(file(name, bytes), 0, 0, 0);
        ASSERT_TRUE(waitForEnds(++number));
        ASSERT_EQ(capture.frames(number - 1), 1000U) << name;
    }
}

TEST_F(Wavs, WhoOrdersNeverWaits) {
    Gate gate;
    media::PreviewOptions options;
    options.startLibrary = [&gate] { gate.pass(); };
    begin(Device::realTime, std::move(options));
    engine->PlayWav(file("a.wav", wavBytes(441, tone(441))), 0, 0, 0);
    EXPECT_TRUE(engine->isWavPlaying(0)) << "and the library has not even started";
    gate.open();
    EXPECT_TRUE(waitForEnds(1));
}

}  // namespace
}  // namespace quorvel::test
