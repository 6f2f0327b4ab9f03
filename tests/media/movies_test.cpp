#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

#include "support/media/media_fixture.h"

namespace quorvel::test {
namespace {

using namespace std::chrono_literals;
using media::MovieFrames;
using testing::ElementsAre;
using testing::IsEmpty;

class Movies : public MediaTest {
  protected:
    void play(const std::filesystem::path& movie, const QString& owner, int volume = 100) {
        QObject::connect(&engine->movieFrames(), &MovieFrames::frameChanged, engine.get(), [this] {
            const QImage frame = engine->movieFrames().frame();
            ++changes;
            if (!frame.isNull()) {
                size = frame.size();
                colours.insert(frame.pixel(frame.width() / 2, frame.height() / 2) & 0xFFFFFF);
            }
        });
        engine->PlayMovie(movie, owner, volume);
    }
    std::set<std::uint32_t> colours;
    int changes = 0;
    QSize size;
};

TEST_F(Movies, ShowTheirFramesAndEndWithTheOwner) {
    begin(Device::realTime);
    play(file("a #1.avi", aviBytes({.sound = true})), QStringLiteral("Scene"));
    EXPECT_TRUE(engine->isMoviePlaying());
    EXPECT_EQ(engine->movieOwner(), QStringLiteral("Scene"));
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_THAT(ends, ElementsAre("movie Scene"));
    EXPECT_TRUE(engine->lastError().isEmpty()) << engine->lastError().toStdString();
    EXPECT_FALSE(engine->isMoviePlaying());
    EXPECT_TRUE(engine->movieOwner().isEmpty());
    EXPECT_EQ(size, QSize(32, 24));
    // A loaded machine may lose frames, so not each of the ten has to be seen.
    EXPECT_GE(colours.size(), 5U);
    for (const std::uint32_t colour : colours) {
        EXPECT_EQ(colour & 0xFFFF, 0x3060U);
        EXPECT_EQ((colour >> 16) % 8, 0U);
        EXPECT_LT(colour >> 16, 80U);
    }
    ASSERT_TRUE(waitUntil([this] { return engine->movieFrames().frame().isNull(); }));
}

TEST_F(Movies, TakeAsLongAsTheyAre) {
    begin(Device::realTime);
    const auto begun = std::chrono::steady_clock::now();
    play(file("a.avi", aviBytes({.frames = 20})), QStringLiteral("Intro"));
    ASSERT_TRUE(waitForEnds(1));
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begun;
    EXPECT_GE(took.count(), 0.9);
    EXPECT_LT(took.count(), 2.5);
}

TEST_F(Movies, VolumeIsAFactorOfTheAmplitude) {
    begin(Device::realTime);
    const auto movie = file("a.avi", aviBytes({.frames = 8, .sound = true}));
    std::size_t number = 0;
    for (const int volume : {100, 50, 10000, 0, -5}) {
        engine->PlayMovie(movie, QStringLiteral("Goodie"), volume);
        ASSERT_TRUE(waitForEnds(++number));
    }
    const auto level = [this](std::size_t take) {
        return levels(capture.take(take).samples, 1000, 15000).left;
    };
    const double full = 20.0 * std::log10(0.5 / std::sqrt(2.0));
    EXPECT_NEAR(level(0), full, 0.1);
    EXPECT_NEAR(level(1), full - 6.02, 0.1);
    EXPECT_NEAR(level(2), full, 0.1) << "more than 100 is 100";
    EXPECT_EQ(level(3), -200.0);
    EXPECT_EQ(level(4), -200.0);
}

TEST_F(Movies, VolumeFollowsWhileTheyPlay) {
    begin(Device::realTime);
    play(file("a.avi", aviBytes({.frames = 40, .sound = true})), QStringLiteral("Reactor"));
    ASSERT_TRUE(capture.waitForFrames(0, 8820));
    engine->SetMovieVolume(0);
    const std::size_t from = capture.frames(0) + 8820;
    ASSERT_TRUE(capture.waitForFrames(0, from + 4410));
    EXPECT_EQ(levels(capture.take(0).samples, from, from + 4410).left, -200.0);
}

TEST_F(Movies, StopTakesThePictureAwayAndIsNoEnd) {
    begin(Device::realTime);
    play(file("a.avi", aviBytes({.frames = 100, .sound = true})), QStringLiteral("Responder"));
    ASSERT_TRUE(waitUntil([this] { return !colours.empty() && capture.takes() == 1; }));
    engine->StopMovie();
    EXPECT_TRUE(engine->movieFrames().frame().isNull());
    EXPECT_TRUE(engine->movieOwner().isEmpty());
    EXPECT_FALSE(engine->isMoviePlaying());
    ASSERT_TRUE(waitForSilence());
    letTimePass(50ms);
    const int seen = changes;
    letTimePass(200ms);
    EXPECT_EQ(changes, seen);
    EXPECT_TRUE(engine->movieFrames().frame().isNull());
    EXPECT_THAT(ends, IsEmpty());
}

TEST_F(Movies, AnotherReplacesTheFirstWithItsOwner) {
    begin(Device::realTime);
    play(file("a.avi", aviBytes({.frames = 100})), QStringLiteral("Scene"));
    ASSERT_TRUE(waitUntil([this] { return !colours.empty(); }));
    engine->PlayMovie(file("b.avi", aviBytes({.width = 16, .height = 8})),
                      QStringLiteral("CueCards"), 100);
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_THAT(ends, ElementsAre("movie CueCards"));
    EXPECT_EQ(size, QSize(16, 8));
}

TEST_F(Movies, FramesThatNobodyTakesAreNotKept) {
    begin(Device::realTime);
    play(file("a.avi", aviBytes({.frames = 30, .perSecond = 60})), QStringLiteral("Scene"));
    std::this_thread::sleep_for(400ms);  // the event loop stands still
    QCoreApplication::processEvents();
    EXPECT_LE(changes, 2) << "one signal for all that has come";
    ASSERT_TRUE(waitForEnds(1));
}

TEST_F(Movies, MpegPlaysToo) {
    begin(Device::realTime);
    play(data("movie.mpg"), QStringLiteral("Scene"));
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_TRUE(engine->lastError().isEmpty()) << engine->lastError().toStdString();
    EXPECT_EQ(size, QSize(32, 32));
    ASSERT_FALSE(colours.empty());
    for (const std::uint32_t colour : colours) {
        EXPECT_GT(colour & 0xFF, 0xE0U) << "blue";
        EXPECT_LT(colour >> 8, 0x2020U);
    }
}

TEST_F(Movies, ThatNeverBeginAreGivenUp) {
    begin(Device::realTime);
    play(file("a.avi", aviBytes({.frames = 0, .sound = true})), QStringLiteral("Scene"));
    ASSERT_TRUE(waitForEnds(1)) << "there is nothing in it at all";
    EXPECT_FALSE(engine->lastError().isEmpty());
    EXPECT_EQ(changes, 0);
}

}  // namespace
}  // namespace quorvel::test
