#include "media/file_kind.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/file_bytes.h"
#include "support/media/media_bytes.h"
#include "support/temp_folder.h"

namespace quorvel::media {
namespace {

class Kinds : public testing::Test {
  protected:
    FileKind kind(const std::string& bytes) const {
        test::writeBytes(folder_ / "file", bytes);
        return kindOf(folder_ / "file");
    }
    static std::string mp3() {
        return test::readBytes(std::filesystem::path(QUORVEL_MEDIA_DATA) / "tone441.mp3");
    }
    test::TempFolder folder_;
};

TEST_F(Kinds, EachIsKnownByItsBytes) {
    EXPECT_EQ(kind(test::wavBytes(10, test::tone(441))), FileKind::wav);
    EXPECT_EQ(kind(test::midiBytes(10)), FileKind::midi);
    EXPECT_EQ(kind(mp3()), FileKind::mp3);
    EXPECT_EQ(kind(test::aviBytes({})), FileKind::movie);
    EXPECT_EQ(kindOf(std::filesystem::path(QUORVEL_MEDIA_DATA) / "movie.mpg"), FileKind::movie);
}

TEST_F(Kinds, MidiAndVideoMayComeInAnotherWrapping) {
    EXPECT_EQ(kind(std::string("RIFF\x10\0\0\0RMID", 12) + test::midiBytes(10)), FileKind::midi);
    EXPECT_EQ(kind(std::string("\0\0\1\xB3", 4)), FileKind::movie);
    std::string packets;
    for (int i = 0; i < 4; ++i) {
        packets += 'G' + std::string(187, '\xFF');
    }
    EXPECT_EQ(kind(packets), FileKind::movie);
    EXPECT_EQ(kind(packets.substr(0, 400)), FileKind::none);
}

TEST_F(Kinds, Mp3MayComeBehindATagOrPadding) {
    std::string tag("ID3\3\0\0\0\0\x02\x00", 10);  // 256 bytes
    EXPECT_EQ(kind(tag + std::string(256, ' ') + mp3()), FileKind::mp3);
    // A picture of a cover can be larger than what is looked at.
    std::string large("ID3\3\0\0\0\x10\0\0", 10);
    EXPECT_EQ(kind(large + std::string(0x10 << 14, ' ') + mp3()), FileKind::mp3);
    EXPECT_EQ(kind(std::string(1000, '\0') + mp3()), FileKind::mp3);
    EXPECT_EQ(kind(tag), FileKind::none) << "nothing behind it";
}

TEST_F(Kinds, OneHeaderByChanceIsNoMp3) {
    EXPECT_EQ(kind("text \xFF\xFB\x90\x64 and text" + std::string(1000, 'x')), FileKind::none);
    EXPECT_EQ(kind(mp3().substr(0, 20)), FileKind::none);
}

TEST_F(Kinds, AllElseIsNone) {
    for (const std::string& bytes :
         {std::string(), std::string("R"), std::string("RIFF"), std::string("RIFF\0\0\0\0WAV", 11),
          std::string("RIFF\4\0\0\0WEBP", 12), std::string("#EXTM3U\nhttp://127.0.0.1/a\n"),
          std::string("MThx"), std::string("GIF89a")}) {
        EXPECT_EQ(kind(bytes), FileKind::none) << bytes;
    }
    for (std::uint32_t seed = 0; seed < 20; ++seed) {
        EXPECT_EQ(kind(test::randomBytes(50000, seed)), FileKind::none) << seed;
    }
}

TEST_F(Kinds, WhatIsNoFileIsNone) {
    EXPECT_EQ(kindOf(folder_ / "missing"), FileKind::none);
    EXPECT_EQ(kindOf(folder_.path()), FileKind::none);
    EXPECT_EQ(kindOf("/dev/zero"), FileKind::none);
    EXPECT_EQ(kindOf({}), FileKind::none);
    ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(kindOf(folder_ / "pipe"), FileKind::none) << "and nobody waits for a writer";
}

}  // namespace
}  // namespace quorvel::media
