// The sounds and the movie of the sample game, as the editor plays them.
#include <filesystem>
#include <gtest/gtest.h>

#include <QImage>

#include "support/media/media_fixture.h"

namespace quorvel::test {
namespace {

class SampleMedia : public MediaTest {
  protected:
    const std::filesystem::path folder_ =
        std::filesystem::path(QUORVEL_SAMPLE_GAME) / "resource/mmedia";
};

TEST_F(SampleMedia, TheMovieShowsThePictureOfItsSceneAndEnds) {
    begin(Device::realTime);
    QSize size;
    QRgb last = 0;
    QObject::connect(&engine->movieFrames(), &media::MovieFrames::frameChanged, engine.get(), [&] {
        const QImage frame = engine->movieFrames().frame();
        if (!frame.isNull()) {
            size = frame.size();
            last = frame.pixel(frame.width() / 2, frame.height() / 2);
        }
    });
    const auto begun = std::chrono::steady_clock::now();
    engine->PlayMovie(folder_ / "Beacon.avi", QStringLiteral("Scene"), 90);
    ASSERT_TRUE(waitForEnds(1));
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begun;
    EXPECT_TRUE(engine->lastError().isEmpty()) << engine->lastError().toStdString();
    EXPECT_EQ(ends.front(), "movie Scene");
    EXPECT_EQ(size, QSize(350, 238));
    EXPECT_GE(took.count(), 4.0);
    EXPECT_LT(took.count(), 7.0);
    // It ends with the whole harbour, whose middle is the same at half the size.
    const QImage harbour(
        QString::fromStdString((folder_.parent_path() / "gfx/BoatsHome.jpg").string()));
    const QRgb middle = harbour.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                            .pixel(size.width() / 2, size.height() / 2);
    EXPECT_NEAR(qRed(last), qRed(middle), 30);
    EXPECT_NEAR(qGreen(last), qGreen(middle), 30);
    EXPECT_NEAR(qBlue(last), qBlue(middle), 30);
    EXPECT_GT(levels(capture.take(0).samples, 22050, 88200).left, -40.0) << "it is heard";
}

TEST_F(SampleMedia, EverySoundIsHeard) {
    begin(Device::fast);
    std::size_t played = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
        if (entry.path().extension() != ".wav") {
            continue;
        }
        engine->PlayWav(entry.path(), 0, 0, 0);
        ++played;
        ASSERT_TRUE(waitForEnds(played)) << entry.path();
        EXPECT_TRUE(engine->lastError().isEmpty()) << entry.path();
        const std::vector<float> samples = capture.take(played - 1).samples;
        EXPECT_GT(levels(samples, 0, samples.size() / 2).left, -50.0) << entry.path();
    }
    EXPECT_GE(played, 10U);
}

}  // namespace
}  // namespace quorvel::test
