// MP3 and MIDI.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTimer>

#include "media/sound_font.h"
#include "support/media/media_fixture.h"

namespace quorvel::test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class Mp3 : public MediaTest {
  protected:
    [[nodiscard]] bool timerRuns() const {
        return engine->findChild<QTimer*>(QStringLiteral("MP3Timer")) != nullptr &&
               engine->findChild<QTimer*>(QStringLiteral("MP3Timer"))->isActive();
    }
    /// The middle second of a whole play.
    Levels middle(std::size_t take) const {
        return levels(capture.take(take).samples, kSecond / 2, 3 * kSecond / 2);
    }
};

TEST_F(Mp3, PlaysToItsEndAndSaysSo) {
    begin();
    engine->PlayMp3(data("tone441.mp3"), 0, 0);
    EXPECT_TRUE(engine->isMp3Playing());
    EXPECT_TRUE(timerRuns());
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_THAT(ends, ElementsAre("mp3"));
    EXPECT_FALSE(engine->isMp3Playing());
    EXPECT_FALSE(timerRuns());
    EXPECT_EQ(engine->mp3Position(), 0.0);
    EXPECT_NEAR(static_cast<double>(capture.frames(0)), 2.0 * kSecond, 3000.0);
    EXPECT_NEAR(pitch(capture.take(0).samples, kSecond / 2, 3 * kSecond / 2), 441.0, 2.0);
    EXPECT_NEAR(middle(0).left, -9.03, 0.5);
    EXPECT_TRUE(waitForSilence());
}

TEST_F(Mp3, VolumeAndBalanceAreThoseOfSounds) {
    begin();
    std::size_t number = 0;
    for (const auto& [volume, pan] : {std::pair(0, 0), {-600, 0}, {0, -4000}, {0, 4000}}) {
        engine->PlayMp3(data("tone441.mp3"), volume, pan);
        ASSERT_TRUE(waitForEnds(++number));
    }
    const Levels full = middle(0);
    EXPECT_NEAR(middle(1).left, full.left - 6.0, 0.01);
    EXPECT_NEAR(middle(1).right, full.right - 6.0, 0.01);
    EXPECT_NEAR(middle(2).left, full.left, 0.01);
    EXPECT_NEAR(middle(2).right, full.right - 40.0, 0.01);
    EXPECT_NEAR(middle(3).left, full.left - 40.0, 0.01);
    EXPECT_NEAR(middle(3).right, full.right, 0.01);
}

TEST_F(Mp3, FollowsWhileItPlays) {
    begin(Device::realTime);
    engine->PlayMp3(data("tone441.mp3"), 0, 0);
    ASSERT_TRUE(capture.waitForFrames(0, kSecond / 2));
    engine->SetMp3Volume(-600);
    engine->SetMp3Balance(-4000);
    const std::size_t from = capture.frames(0);
    ASSERT_TRUE(capture.waitForFrames(0, from + kSecond / 3));
    const auto samples = capture.take(0).samples;
    const Levels before = levels(samples, from - kSecond / 5, from);
    const Levels after = levels(samples, from + kSecond / 10, from + kSecond / 3);
    EXPECT_NEAR(after.left, before.left - 6.0, 0.3);
    EXPECT_NEAR(after.right, before.right - 46.0, 0.3);
}

TEST_F(Mp3, PositionGrowsTowardsTheDuration) {
    begin(Device::realTime);
    EXPECT_EQ(engine->mp3Duration(), 0.0);
    engine->PlayMp3(data("tone441.mp3"), 0, 0);
    ASSERT_TRUE(waitUntil([this] { return engine->mp3Position() > 0.3; }));
    EXPECT_NEAR(engine->mp3Duration(), 2.0, 0.1);
    EXPECT_LT(engine->mp3Position(), engine->mp3Duration());
    const double earlier = engine->mp3Position();
    ASSERT_TRUE(waitUntil([&] { return engine->mp3Position() > earlier + 0.3; }));
    EXPECT_NEAR(engine->mp3Position(), static_cast<double>(capture.frames(0)) / kSecond, 0.3);
    engine->StopMp3();
    EXPECT_EQ(engine->mp3Position(), 0.0);
}

TEST_F(Mp3, ASecondReplacesTheFirstWithoutAGapInTheTimer) {
    begin(Device::realTime);
    engine->PlayMp3(data("tone441.mp3"), 0, 0);
    ASSERT_TRUE(capture.waitForFrames(0, kSecond / 2));
    engine->PlayMp3(data("tone882.mp3"), 0, 0);
    EXPECT_TRUE(timerRuns());
    ASSERT_TRUE(capture.waitForFrames(1, kSecond / 2));
    EXPECT_TRUE(capture.take(0).closed);
    EXPECT_EQ(capture.open(), 1);
    EXPECT_NEAR(pitch(capture.take(1).samples, kSecond / 10, kSecond / 2), 882.0, 4.0);
    EXPECT_TRUE(timerRuns());
    ASSERT_TRUE(waitForEnds(1));
    letTimePass(200ms);
    EXPECT_THAT(ends, ElementsAre("mp3")) << "the first one's end is nobody's";
}

TEST_F(Mp3, StopMeansSilence) {
    begin(Device::realTime);
    engine->PlayMp3(data("tone441.mp3"), 0, 0);
    ASSERT_TRUE(capture.waitForFrames(0, 4410));
    engine->StopMp3();
    EXPECT_FALSE(timerRuns());
    ASSERT_TRUE(waitForSilence());
    const std::size_t frames = capture.frames(0);
    letTimePass(200ms);
    EXPECT_EQ(capture.frames(0), frames);
    EXPECT_THAT(ends, IsEmpty());
}

TEST_F(Mp3, AfterCloseMediaEngineAnotherCanBePlayed) {
    begin(Device::realTime);
    EXPECT_TRUE(engine->CloseMediaEngine()) << "nothing was open";
    engine->PlayMp3(data("tone441.mp3"), 0, 0);
    ASSERT_TRUE(capture.waitForFrames(0, 4410));
    EXPECT_TRUE(engine->CloseMediaEngine());
    EXPECT_EQ(capture.open(), 0) << "it has been given back already";
    EXPECT_FALSE(timerRuns());
    EXPECT_FALSE(engine->isMp3Playing());
    engine->PlayMp3(data("tone882.mp3"), 0, 0);
    ASSERT_TRUE(capture.waitForFrames(1, 4410));
    EXPECT_TRUE(engine->CloseMediaEngine());
}

TEST_F(Mp3, OtherPreviewsGoOn) {
    begin(Device::realTime);
    engine->PlayWav(file("a.wav", wavBytes(kSecond, tone(441))), 0, 0, 0, true);
    engine->PlayMidi(file("a.mid", midiBytes(3000)));
    engine->PlayMp3(data("tone441.mp3"), 0, 0);
    ASSERT_TRUE(waitUntil([this] { return capture.open() == 3; }));
    engine->StopMp3();
    ASSERT_TRUE(waitUntil([this] { return capture.open() == 2; }));
    EXPECT_TRUE(engine->isWavPlaying(0));
    EXPECT_TRUE(engine->isMidiPlaying());
    stopAll();
    EXPECT_TRUE(waitForSilence());
}

class Midi : public MediaTest {};

TEST_F(Midi, SoundsWithTheSoundFontAndEnds) {
    ASSERT_FALSE(media::systemSoundFont().empty()) << "the package timgm6mb-soundfont is missing";
    begin();
    engine->PlayMidi(file("a b#.mid", midiBytes(1000)));
    EXPECT_TRUE(engine->isMidiPlaying());
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_THAT(ends, ElementsAre("midi"));
    EXPECT_TRUE(engine->lastError().isEmpty()) << engine->lastError().toStdString();
    EXPECT_GE(capture.frames(0), 40000U);
    EXPECT_GT(levels(capture.take(0).samples, kSecond / 5, 4 * kSecond / 5).left, -45.0);
}

TEST_F(Midi, ItsVolumeIsThatOfSounds) {
    begin();
    const auto tune = file("a.mid", midiBytes(1000));
    std::size_t number = 0;
    for (const int volume : {0, -600}) {
        engine->PlayMidi(tune, volume);
        ASSERT_TRUE(waitForEnds(++number));
    }
    const auto loudness = [this](std::size_t take) {
        return levels(capture.take(take).samples, kSecond / 5, 4 * kSecond / 5).left;
    };
    EXPECT_NEAR(loudness(1), loudness(0) - 6.0, 0.1);
}

TEST_F(Midi, FollowsItsVolumeWhileItPlays) {
    begin(Device::realTime);
    engine->PlayMidi(file("a.mid", midiBytes(5000)));
    ASSERT_TRUE(capture.waitForFrames(0, kSecond / 2));
    engine->SetMidiVolume(-4000);
    const std::size_t from = capture.frames(0);
    ASSERT_TRUE(capture.waitForFrames(0, from + kSecond / 3));
    const auto samples = capture.take(0).samples;
    const Levels before = levels(samples, from - kSecond / 5, from);
    const Levels after = levels(samples, from + kSecond / 10, from + kSecond / 3);
    EXPECT_LT(after.left, before.left - 30.0);
}

TEST_F(Midi, ASecondReplacesTheFirst) {
    begin(Device::realTime);
    engine->PlayMidi(file("a.mid", midiBytes(5000)));
    ASSERT_TRUE(capture.waitForFrames(0, kSecond / 5));
    engine->PlayMidi(file("b.mid", midiBytes(300)));
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_TRUE(capture.take(0).closed);
    EXPECT_EQ(capture.takes(), 2U);
    EXPECT_THAT(ends, ElementsAre("midi"));
}

TEST_F(Midi, StopMeansSilence) {
    begin(Device::realTime);
    engine->PlayMidi(file("a.mid", midiBytes(5000)));
    ASSERT_TRUE(capture.waitForFrames(0, 4410));
    engine->StopMidi();
    EXPECT_FALSE(engine->isMidiPlaying());
    ASSERT_TRUE(waitForSilence());
    const std::size_t frames = capture.frames(0);
    letTimePass(200ms);
    EXPECT_EQ(capture.frames(0), frames);
    EXPECT_THAT(ends, IsEmpty());
}

TEST_F(Midi, WithoutASoundFontSaysSoInWords) {
    media::PreviewOptions options;
    options.soundFont = folder / "missing.sf2";
    begin(Device::fast, options);
    engine->PlayMidi(file("a.mid", midiBytes(300)));
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_EQ(engine->lastError(),
              QStringLiteral("There is no sound font, so MIDI music is silent; the package "
                             "timgm6mb-soundfont has one."));
    EXPECT_EQ(capture.takes(), 0U);
}

TEST_F(Midi, ASoundFontThatIsNoneIsSilent) {
    media::PreviewOptions options;
    options.soundFont = file("bad.sf2", randomBytes(10000, 1));
    begin(Device::fast, options);
    engine->PlayMidi(file("a.mid", midiBytes(300)));
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_FALSE(engine->lastError().isEmpty());
}

}  // namespace
}  // namespace quorvel::test
