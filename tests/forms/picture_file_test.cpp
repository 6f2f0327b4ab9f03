// Files that go on behind their picture: what lies there is not read.
#include "forms/picture_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImageReader>

#include "forms/pictures_playhead.h"
#include "support/file_bytes.h"
#include "support/gif_bytes.h"
#include "support/temp_folder.h"
#include "support/windows/played_author.h"

namespace quorvel::forms {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kFarAway = std::uintmax_t{4} << 30;
/// As much as a file's own buffer may read ahead.
constexpr std::int64_t kAhead = std::int64_t{64} * 1024;

std::string moving(std::optional<int> loops = std::nullopt) {
    return test::gifBytes(20, 10, {{.colour = 1}, {.colour = 2}, {.colour = 3}}, loops);
}

class PictureFiles : public testing::Test {
  protected:
    /// A file of those bytes, and behind them a hole up to four gigabytes.
    fs::path withHole(const std::string& bytes) const {
        test::writeBytes(folder_ / "a.gif", bytes);
        fs::resize_file(folder_ / "a.gif", kFarAway);
        return folder_ / "a.gif";
    }
    /// Reads all frames; how many there are.
    static int framesOf(PictureFile& file) {
        QImageReader reader(&file);
        int frames = 0;
        for (QImage image; reader.read(&image); ++frames) {
        }
        return frames;
    }
    test::TempFolder folder_;
};

TEST_F(PictureFiles, NothingBehindTheTrailerIsRead) {
    const std::string gif = moving();
    PictureFile file(withHole(gif));
    ASSERT_TRUE(file.openToRead());
    EXPECT_EQ(framesOf(file), 3);
    EXPECT_EQ(file.reached(), static_cast<qint64>(gif.size()));
    EXPECT_EQ(file.size(), static_cast<qint64>(gif.size())) << "and the file counts as ended";
    EXPECT_TRUE(file.atEnd());
}

TEST_F(PictureFiles, NothingIsReadBehindWhatIsNoBlock) {
    const std::string gif = moving().substr(0, moving().size() - 1);  // without its trailer
    PictureFile file(withHole(gif));
    ASSERT_TRUE(file.openToRead());
    EXPECT_EQ(framesOf(file), 3);
    EXPECT_EQ(file.reached(), static_cast<qint64>(gif.size()) + 1);
}

TEST_F(PictureFiles, AGifWithoutAFrameEndsAtItsTrailerToo) {
    const std::string gif = test::gifBytes(4, 4, {});
    PictureFile file(withHole(gif));
    ASSERT_TRUE(file.openToRead());
    EXPECT_EQ(framesOf(file), 0);
    EXPECT_EQ(file.reached(), static_cast<qint64>(gif.size()));
}

TEST_F(PictureFiles, NoFileIsReadFartherThanTheLargestPicture) {
    PictureFile file(withHole(test::bmpBytes(4, 4)));
    ASSERT_TRUE(file.openToRead());
    EXPECT_EQ(file.size(), PictureFile::kMostBytes);
    EXPECT_EQ(framesOf(file), 1);
    EXPECT_LE(file.reached(), kAhead);
}

TEST_F(PictureFiles, TheRoundsAreThoseThatTheReaderFinds) {
    std::vector<std::string> files{moving(), moving(0), moving(1), moving(7), moving(65535)};
    // Extensions of others, and rounds behind the first frame.
    const std::string rounds("\x21\xFF\x0BNETSCAPE2.0\x03\x01\x05\x00\x00", 19);
    const std::string other("\x21\xFF\x0BXMP DataXMP\x03\x01\x09\x00\x00", 19);
    const std::string comment("\x21\xFE\x05,!;\x01\x00\x00", 9);
    for (const std::string& extension : {rounds, other, comment + rounds, comment}) {
        std::string gif = moving();
        files.push_back(gif.insert(gif.size() - 1, extension));
        gif = moving();
        files.push_back(gif.insert(test::kGifFirstBlock, extension));
    }
    for (const std::string& bytes : files) {
        test::writeBytes(folder_ / "b.gif", bytes);
        PictureFile file(folder_ / "b.gif");
        ASSERT_TRUE(file.openToRead());
        EXPECT_EQ(framesOf(file), 3);
        QImageReader reader(QString::fromStdString((folder_ / "b.gif").string()));
        EXPECT_EQ(file.loopCount(), reader.loopCount()) << bytes.size();
        EXPECT_EQ(file.reached(), static_cast<qint64>(bytes.size()));
    }
}

TEST_F(PictureFiles, ATableOfColoursMayHoldAnyByte) {
    // A table of the frame's own, full of trailers.
    std::string gif = test::gifBytes(4, 4, {{.colour = 1}, {.colour = 2}});
    const std::size_t flags = gif.find(',', test::kGifFirstBlock) + 9;
    gif[flags] = '\x86';
    gif.insert(flags + 1, std::string(3 * 128, ';'));
    PictureFile file(withHole(gif));
    ASSERT_TRUE(file.openToRead());
    EXPECT_EQ(framesOf(file), 2);
    EXPECT_EQ(file.reached(), static_cast<qint64>(gif.size()));
}

#ifdef __linux__
/// Bytes that this process has read from files.
std::int64_t readSoFar() {
    QFile counters(QStringLiteral("/proc/self/io"));
    if (!counters.open(QIODevice::ReadOnly)) {
        return -1;
    }
    return counters.readLine().simplified().mid(7).toLongLong();  // "rchar: "
}

/// An animation with a long tail, as a window shows it.
class LongTails : public PictureFiles {
  protected:
    void play(const std::string& gif, DisplayMode mode) {
        PictureStore store;
        Playhead head(nullptr);
        const std::int64_t before = readSoFar();
        ASSERT_GE(before, 0);
        head.setPicture(store.load(withHole(gif)));
        ASSERT_TRUE(head.picture()->ok());
        head.setMode(mode);
        int changes = 0;
        QObject::connect(&head, &Playhead::frameChanged, &head, [&] { ++changes; });
        head.play();
        EXPECT_TRUE(test::waitUntil([&] { return changes >= 8 || !head.isPlaying(); }));
        EXPECT_GE(changes, 5);
        head.stop();
        EXPECT_LT(readSoFar() - before, std::int64_t{100} * 1024 * 1024);
    }
};

TEST_F(LongTails, CostNothingWhileAnAnimationPlays) {
    play(moving(), DisplayMode::loop);
    play(moving(1), DisplayMode::loop);
    play(moving(), DisplayMode::pingPong);
}

TEST_F(LongTails, CostNothingWhileAStreamPlays) {
    std::vector<test::GifFrame> frames(6);
    const std::string large = test::gifBytes(1024, 1024, frames, 1);
    ASSERT_LT(large.size(), std::size_t{8} * 1024 * 1024);
    play(large, DisplayMode::loop);
}
#endif

}  // namespace
}  // namespace quorvel::forms
