// The preview of a project: files found by their bare names, movies seen in their place.
#include "forms/project_preview.h"

#include <gtest/gtest.h>

#include "forms/movie_player.h"
#include "support/file_bytes.h"
#include "support/media/media_bytes.h"
#include "support/temp_folder.h"
#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

using forms::MoviePlayer;
using forms::ProjectPreview;

class Preview : public ::testing::Test {
  protected:
    Preview() {
        std::filesystem::create_directories(folder / "Resource/MMedia");
        project.ProjectFolder = folder.path().string() + "/";
        area.resize(200, 100);
        area.show();
        player = new MoviePlayer(preview.movieFrames(), &area);
        QObject::connect(&preview, &forms::Preview::wavEnded, &area,
                         [this](int channel) { wavs.push_back(channel); });
        QObject::connect(&preview, &forms::Preview::movieEnded, &area,
                         [this](const QString& owner) { owners << owner; });
    }
    void file(const std::string& name, const std::string& bytes) {
        writeBytes(folder / "Resource/MMedia" / name, bytes);
    }
    /// The size that a movie is shown in, or an empty one.
    QSize shownSize() const { return player->isVisible() ? player->size() : QSize(); }

    TempFolder folder;
    store::Project project;
    ProjectPreview preview{project, {.sink = "fakesink sync=true"}};
    QWidget area;
    MoviePlayer* player = nullptr;
    std::vector<int> wavs;
    QStringList owners;
};

TEST_F(Preview, ASoundIsFoundInAnyLetterCase) {
    file("Door.WAV", wavBytes(44100, tone(441)));
    const auto begun = std::chrono::steady_clock::now();
    preview.PlayWav(QStringLiteral("dOOR.wav"), 0, 0, 3);
    ASSERT_TRUE(waitUntil([this] { return !wavs.empty(); }));
    EXPECT_EQ(wavs, std::vector<int>{3});
    EXPECT_GE(std::chrono::steady_clock::now() - begun, std::chrono::milliseconds(900))
        << "it was not played";
}

#ifndef _WIN32
TEST_F(Preview, FilesAreFoundInAFolderWhoseNameIsNoText) {
    file("Door.wav", wavBytes(44100, tone(441)));
    file("a.avi", aviBytes({.width = 32, .height = 24, .frames = 12}));
    std::filesystem::create_directory(folder / "caf\xE9");
    std::filesystem::rename(folder / "Resource", folder / "caf\xE9/Resource");
    project.ProjectFolder += "caf\xE9/";
    const auto begun = std::chrono::steady_clock::now();
    preview.PlayWav(QStringLiteral("Door.wav"), 0, 0, 3);
    ASSERT_TRUE(waitUntil([this] { return !wavs.empty(); }));
    EXPECT_GE(std::chrono::steady_clock::now() - begun, std::chrono::milliseconds(900))
        << "it was not played";
    preview.PlayMovie(QStringLiteral("a.avi"), QStringLiteral("Scene"), 100);
    EXPECT_TRUE(waitUntil([this] { return player->isVisible(); }));
    ASSERT_TRUE(waitUntil([this] { return !owners.isEmpty(); }));
}
#endif

TEST_F(Preview, AMissingFileAndAPathAreSilentAndEnd) {
    file("Door.wav", wavBytes(441000, tone(441)));
    for (const char* name : {"Gong.wav", "", "../MMedia/Door.wav", "a/b.wav"}) {
        wavs.clear();
        preview.PlayWav(QString::fromLatin1(name), 0, 0, 1);
        ASSERT_TRUE(waitUntil([this] { return !wavs.empty(); }, 2000)) << name;
    }
}

TEST_F(Preview, AMovieIsSeenInTheMiddleAndLeavesAtItsEnd) {
    file("a.avi", aviBytes({.width = 32, .height = 24, .frames = 12}));
    EXPECT_FALSE(player->isVisible());
    preview.PlayMovie(QStringLiteral("a.avi"), QStringLiteral("Scene"), 100);
    ASSERT_TRUE(waitUntil([this] { return player->isVisible(); }));
    EXPECT_EQ(player->geometry(), QRect(84, 38, 32, 24));
    const QColor seen = player->grab().toImage().pixelColor(16, 12);
    EXPECT_EQ(seen.rgb() & 0xFFFF, 0x3060U) << "the colour of the movie's frames";
    ASSERT_TRUE(waitUntil([this] { return !owners.isEmpty(); }));
    EXPECT_EQ(owners, QStringList{QStringLiteral("Scene")});
    EXPECT_TRUE(waitUntil([this] { return !player->isVisible(); }));
}

TEST_F(Preview, AMovieLargerThanItsPlaceKeepsItsShape) {
    file("wide.avi", aviBytes({.width = 640, .height = 160, .frames = 100}));
    preview.PlayMovie(QStringLiteral("wide.avi"), QStringLiteral("Intro"), 0);
    ASSERT_TRUE(waitUntil([this] { return player->isVisible(); }));
    EXPECT_EQ(player->geometry(), QRect(0, 25, 200, 50));
    area.resize(100, 100);
    EXPECT_TRUE(waitUntil([this] { return player->geometry() == QRect(0, 37, 100, 25); }));
    preview.StopMovie();
    EXPECT_TRUE(waitUntil([this] { return !player->isVisible(); }));
    EXPECT_TRUE(owners.isEmpty()) << "stopping is no end";
}

TEST_F(Preview, AnEmptyNameClosesTheMovie) {
    file("a.avi", aviBytes({.frames = 100}));
    preview.PlayMovie(QStringLiteral("a.avi"), QStringLiteral("Scene"), 100);
    ASSERT_TRUE(waitUntil([this] { return player->isVisible(); }));
    preview.PlayMovie(QString(), QString(), 100);
    EXPECT_TRUE(waitUntil([this] { return !player->isVisible(); }));
    EXPECT_TRUE(owners.isEmpty());
}

TEST_F(Preview, ClosingTheEngineAndPlayingAgainWorks) {
    EXPECT_TRUE(preview.CloseMediaEngine());
    file("a.wav", wavBytes(441, tone(441)));
    preview.PlayWav(QStringLiteral("a.wav"), 0, 0, 0);
    EXPECT_TRUE(waitUntil([this] { return !wavs.empty(); }));
    EXPECT_TRUE(preview.CloseMediaEngine());
}

TEST(PreviewWithoutAPlugin, TellsWhatIsMissing) {
    const store::Project project;
    ProjectPreview preview(project, {.sink = "nosuchelement"});
    QString reason;
    QObject::connect(&preview, &forms::Preview::unavailable,
                     [&](const QString& words) { reason = words; });
    preview.prepare();
    ASSERT_TRUE(waitUntil([&] { return !reason.isEmpty(); }));
    EXPECT_TRUE(reason.contains(QStringLiteral("nosuchelement"))) << reason.toStdString();
}

TEST(PreviewWithoutADevice, IsNoFailure) {
    TempFolder folder;
    std::filesystem::create_directories(folder / "resource/mmedia");
    writeBytes(folder / "resource/mmedia/a.wav", wavBytes(4410, tone(441)));
    store::Project project;
    project.ProjectFolder = folder.path().string() + "/";
    // A device that cannot be opened.
    ProjectPreview preview(project, {.sink = "alsasink device=nosuchdevice"});
    bool told = false;
    bool ended = false;
    QObject::connect(&preview, &forms::Preview::unavailable, [&] { told = true; });
    QObject::connect(&preview, &forms::Preview::wavEnded, [&] { ended = true; });
    preview.prepare();
    preview.PlayWav(QStringLiteral("a.wav"), 0, 0, 0);
    ASSERT_TRUE(waitUntil([&] { return ended; }));
    EXPECT_FALSE(told);
}

}  // namespace
}  // namespace quorvel::test
