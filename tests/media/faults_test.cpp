// Files that cannot be played, devices that are not there or hang, and the end of the engine.
#include <array>
#include <cstdio>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/media/media_fixture.h"

namespace quorvel::test {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::IsEmpty;

/// The four ways to play a file.
enum class Way { wav, midi, mp3, movie };

class Faults : public MediaTest, public testing::WithParamInterface<Way> {
  protected:
    void play(const std::filesystem::path& path) {
        switch (GetParam()) {
            case Way::wav:
                engine->PlayWav(path, 0, 0, 0);
                break;
            case Way::midi:
                engine->PlayMidi(path);
                break;
            case Way::mp3:
                engine->PlayMp3(path, 0, 0);
                break;
            case Way::movie:
                engine->PlayMovie(path, QStringLiteral("Scene"), 100);
                break;
        }
    }
    /// Plays what cannot be played: not one sample, a reason, one end.
    void expectSilence(const std::filesystem::path& path, const std::string& what) {
        ends.clear();
        play(path);
        ASSERT_TRUE(waitForEnds(1)) << what << " hangs";
        EXPECT_FALSE(engine->lastError().isEmpty()) << what;
        EXPECT_EQ(capture.takes(), 0U) << what;
        EXPECT_EQ(ends.size(), 1U) << what;
    }
    /// A good file of each kind.
    static std::string good(Way way) {
        switch (way) {
            case Way::wav:
                return wavBytes(4410, tone(441));
            case Way::midi:
                return midiBytes(200);
            case Way::mp3:
                return readBytes(data("tone441.mp3"));
            case Way::movie:
                return aviBytes({.frames = 4, .perSecond = 40, .sound = true});
        }
        return {};
    }
};

std::string nameOf(const testing::TestParamInfo<Way>& way) {
    constexpr std::array kNames{"Wav", "Midi", "Mp3", "Movie"};
    return kNames.at(static_cast<std::size_t>(way.param));
}

INSTANTIATE_TEST_SUITE_P(Every, Faults, testing::Values(Way::wav, Way::midi, Way::mp3, Way::movie),
                         nameOf);

TEST_P(Faults, AreSilentAndEnd) {
    begin();
    expectSilence(folder / "missing", "a missing file");
    EXPECT_EQ(engine->lastError(), QStringLiteral("The file is not there."));
    expectSilence({}, "no name");
    expectSilence(folder.path(), "a folder");
    expectSilence(file("empty", ""), "an empty file");
    expectSilence(file("random", randomBytes(20000, 7)), "noise");
    expectSilence(file("list", "#EXTM3U\nhttp://127.0.0.1:9/a.mp3\n"), "a play list");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    expectSilence(folder / "pipe", "a pipe");
    expectSilence("/dev/zero", "a device");
    for (const Way other : {Way::wav, Way::midi, Way::mp3, Way::movie}) {
        if (other != GetParam()) {
            expectSilence(file("other", good(other)), "a file of another kind");
            EXPECT_THAT(engine->lastError().toStdString(), HasSubstr("The file is not a"));
        }
    }
}

TEST_P(Faults, TornOffFilesEnd) {
    begin();
    const std::string bytes = good(GetParam());
    ends.clear();
    std::size_t count = 0;
    for (const std::size_t part : {5U, 13U, 22U, 40U, 44U, 45U, 60U, 100U, 300U, 2000U}) {
        if (part < bytes.size()) {
            play(file("torn" + std::to_string(part), bytes.substr(0, part)));
            ASSERT_TRUE(waitForEnds(++count)) << "the first " << part << " bytes hang";
        }
    }
    EXPECT_TRUE(waitForSilence());
}

TEST_P(Faults, DamagedFilesEnd) {
    begin();
    const std::string bytes = good(GetParam());
    std::size_t count = 0;
    for (std::uint32_t seed = 0; seed < 25; ++seed) {
        std::string damaged = bytes;
        const std::string noise = randomBytes(24, seed);
        // Mostly in the head, where lengths and numbers stand.
        for (std::size_t i = 0; i + 2 < noise.size(); i += 3) {
            const std::size_t reach =
                i % 2 == 0 ? std::min<std::size_t>(300, bytes.size()) : bytes.size();
            const auto at = static_cast<unsigned char>(noise[i]) * std::size_t{256} +
                            static_cast<unsigned char>(noise[i + 1]);
            damaged[4 + at % (reach - 4)] = noise[i + 2];
        }
        play(file("damaged" + std::to_string(seed), damaged));
        // A damaged length can make a file long, but it may not hang.
        if (!waitUntil([&] { return ends.size() > count; }, 3s)) {
            const auto before = capture.takes() == 0 ? 0 : capture.frames(capture.takes() - 1);
            stopAll();
            ASSERT_TRUE(waitForSilence()) << "seed " << seed << " hangs after " << before;
        } else {
            ++count;
        }
    }
    play(file("good", bytes));
    ASSERT_TRUE(waitForEnds(count + 1)) << "and a good one plays afterwards";
    EXPECT_TRUE(engine->lastError().isEmpty()) << engine->lastError().toStdString();
}

TEST_P(Faults, WithoutADeviceItIsSilentInRealTime) {
    begin(Device::absent);
    const auto begun = std::chrono::steady_clock::now();
    play(file("good", good(GetParam())));
    ASSERT_TRUE(waitForEnds(1));
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begun;
    EXPECT_TRUE(engine->lastError().isEmpty()) << engine->lastError().toStdString();
    EXPECT_GE(took.count(), 0.08);
    EXPECT_LT(took.count(), 4.0);
    EXPECT_EQ(capture.takes(), 0U);
}

TEST_P(Faults, ADeviceThatHangsHoldsNobody) {
    media::PreviewOptions options;
    options.patience = 1ms;
    begin(Device::wedged, options);
    play(file("good", good(GetParam())));
    capture.waitForHanging();
    EXPECT_FALSE(engine->CloseMediaEngine()) << "it could not be closed, and says so";
    engine.reset();
    EXPECT_THAT(ends, IsEmpty());
    // What was left behind comes to its end when the device does.
    capture.release();
    EXPECT_TRUE(waitUntil([this] { return capture.closes() == 1; }));
}

TEST_P(Faults, TheEngineMayGoWhilePlaying) {
    begin(Device::realTime);
    play(file("good", good(GetParam())));
    waitUntil([this] { return capture.takes() > 0; }, 3s);
    engine.reset();
    EXPECT_EQ(capture.open(), 0);
    const std::size_t frames = capture.takes() > 0 ? capture.frames(0) : 0;
    letTimePass(100ms);
    EXPECT_EQ(capture.takes() > 0 ? capture.frames(0) : 0, frames);
}

class Devices : public MediaTest {};

TEST_F(Devices, TheSystemsOwnEndsInTimeAlsoWhereThereIsNone) {
    listen({});
    const auto begun = std::chrono::steady_clock::now();
    // As good as silent, should there be a device.
    engine->PlayWav(file("a.wav", wavBytes(kSecond, tone(441, 0.001))), 0, 0, 0);
    ASSERT_TRUE(waitForEnds(1));
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begun;
    std::printf("a second of sound took %.2f s\n", took.count());
    EXPECT_GE(took.count(), 0.9);
    EXPECT_LT(took.count(), 4.0);
    EXPECT_TRUE(engine->lastError().isEmpty()) << engine->lastError().toStdString();
}

TEST_F(Devices, ADescriptionThatIsWrongIsToldAndSilent) {
    media::PreviewOptions options;
    options.sink = "nosuchsink";
    listen(options);
    engine->PlayWav(file("a.wav", wavBytes(100, tone(441))), 0, 0, 0);
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_THAT(engine->lastError().toStdString(), HasSubstr("\"nosuchsink\""));
}

TEST_F(Devices, AnOrderEmptiesTheLastError) {
    begin();
    engine->PlayMidi(folder / "missing");
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_FALSE(engine->lastError().isEmpty());
    engine->PlayWav(file("a.wav", wavBytes(100, tone(441))), 0, 0, 0);
    EXPECT_TRUE(engine->lastError().isEmpty());
    ASSERT_TRUE(waitForEnds(2));
    EXPECT_TRUE(engine->lastError().isEmpty());
}

TEST_F(Devices, AnEngineThatIsNeverUsedStartsNothing) {
    begin();
    stopAll();
    engine->SetWavVolume(0, -100);
    engine->SetMp3Balance(100);
    EXPECT_TRUE(engine->CloseMediaEngine());
    engine.reset();
    EXPECT_EQ(capture.takes(), 0U);
}

}  // namespace
}  // namespace quorvel::test
