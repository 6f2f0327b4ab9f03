// Files of a few bytes that claim to be enormous: their headers are read before they are decoded.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>

#include "media/bounds.h"
#include "media/file_claims.h"
#include "support/media/media_fixture.h"

namespace quorvel::test {
namespace {

using media::FileKind;
using testing::HasSubstr;
using testing::IsEmpty;

std::string with16(std::string bytes, std::size_t at, std::uint32_t number) {
    bytes[at] = static_cast<char>(number & 0xFF);
    bytes[at + 1] = static_cast<char>(number >> 8 & 0xFF);
    return bytes;
}

std::string with32(std::string bytes, std::size_t at, std::uint32_t number) {
    return with16(with16(std::move(bytes), at, number & 0xFFFF), at + 2, number >> 16);
}

/// Where the contents of the first chunk of that name begin.
std::size_t chunk(const std::string& bytes, const char* name, std::size_t from = 0) {
    return bytes.find(name, from) + 8;
}

// Where a movie and a sound say what they are.
constexpr std::size_t kWidth = 4;
constexpr std::size_t kHeight = 8;
constexpr std::size_t kScale = 20;
constexpr std::size_t kRate = 24;
constexpr std::size_t kLength = 32;
constexpr std::size_t kChannels = 2;
constexpr std::size_t kSamples = 4;
constexpr std::size_t kBytes = 8;

std::string wideMovie(int width, int height) {
    const std::string movie = aviBytes({.frames = 1});
    const std::size_t format = chunk(movie, "strf");
    return with32(with32(movie, format + kWidth, static_cast<std::uint32_t>(width)),
                  format + kHeight, static_cast<std::uint32_t>(height));
}

/// The header that MPEG video of that size begins with.
std::string sequence(unsigned width, unsigned height) {
    std::string out("\0\0\1\xB3", 4);
    out += static_cast<char>(width >> 4);
    out += static_cast<char>((width & 15) << 4 | height >> 8);
    out += static_cast<char>(height & 0xFF);
    return out + std::string("\x13\xFF\xFF\xE0\x18", 5);
}

/// The continuation that MPEG-2 has: two more bits for each side.
std::string extension(unsigned width, unsigned height) {
    std::string out("\0\0\1\xB5\x14", 5);
    out += static_cast<char>(0x82 | width >> 1);
    out += static_cast<char>((width & 1) << 7 | height << 5);
    return out + std::string("\0\0\0\0", 4);
}

/// Music of one note that is held for `ticks`, at `tempo` microseconds to a quarter.
std::string heldNote(std::uint32_t ticks, std::uint32_t tempo, int division = 480) {
    std::string track("\0\xFF\x51\3", 4);
    for (int shift = 16; shift >= 0; shift -= 8) {
        track += static_cast<char>(tempo >> shift & 0xFF);
    }
    track += std::string("\0\x90\x45\x7F", 4);
    for (int shift = 21; shift > 0; shift -= 7) {
        track += static_cast<char>(0x80 | (ticks >> shift & 0x7F));
    }
    track += static_cast<char>(ticks & 0x7F);
    track += std::string("\x45\0\0\xFF\x2F\0", 6);  // as long as the status is not told anew
    std::string out("MThd\0\0\0\6\0\0\0\1", 12);
    out += static_cast<char>(division >> 8 & 0xFF);
    out += static_cast<char>(division & 0xFF);
    out += std::string("MTrk\0\0\0", 7) + static_cast<char>(track.size());
    return out + track;
}

class Claims : public MediaTest {
  protected:
    std::string refusal(const std::string& bytes) const {
        const auto path = file("file", bytes);
        return media::refusalOf(path, media::kindOf(path));
    }
    static std::string mp3() { return readBytes(data("tone441.mp3")); }
};

TEST_F(Claims, OrdinaryFilesAreNotRefused) {
    EXPECT_THAT(refusal(wavBytes(441, tone(441))), IsEmpty());
    EXPECT_THAT(refusal(adpcmBytes(4)), IsEmpty());
    EXPECT_THAT(refusal(aviBytes({.sound = true})), IsEmpty());
    EXPECT_THAT(refusal(midiBytes(1000)), IsEmpty());
    EXPECT_THAT(refusal(mp3()), IsEmpty());
    EXPECT_THAT(refusal(readBytes(data("movie.mpg"))), IsEmpty());
    EXPECT_THAT(refusal(wideMovie(3840, 2160)), IsEmpty());
    EXPECT_THAT(refusal(wideMovie(800, -600)), IsEmpty()) << "lines from top to bottom";
    EXPECT_THAT(refusal(sequence(720, 576)), IsEmpty());
    EXPECT_THAT(refusal(sequence(720, 576) + extension(0, 0)), IsEmpty());
    EXPECT_THAT(refusal(heldNote(480, 500000)), IsEmpty());
}

TEST_F(Claims, TheSizeOfAMovieIsBounded) {
    EXPECT_EQ(refusal(wideMovie(30000, 30000)),
              "Its pictures are 30000 by 30000 pixels large, more than a preview shows.");
    EXPECT_THAT(refusal(wideMovie(30000, -30000)), HasSubstr("30000 by 30000"));
    EXPECT_THAT(refusal(wideMovie(4097, 1)), HasSubstr("4097 by 1 "));
    EXPECT_THAT(refusal(wideMovie(4096, 4096)), HasSubstr("4096 by 4096"));
    EXPECT_THAT(refusal(wideMovie(1, std::numeric_limits<int>::min())), HasSubstr("2147483648"));
    EXPECT_THAT(refusal(sequence(4095, 4095)), HasSubstr("4095 by 4095"));
    EXPECT_THAT(refusal(sequence(320, 240) + extension(3, 3)), HasSubstr("12608 by 12528"));
}

TEST_F(Claims, TheSecondStreamOfAMovieIsReadToo) {
    const std::string movie = aviBytes({.frames = 1, .sound = true});
    const std::size_t sound = chunk(movie, "strf", chunk(movie, "strf"));
    EXPECT_THAT(refusal(with16(movie, sound + kChannels, 60000)), HasSubstr("60000 channels"));
    EXPECT_THAT(refusal(with32(movie, sound + kSamples, 4000000000)),
                HasSubstr("4000000000 samples"));
}

TEST_F(Claims, TheRateAndTheTimeOfAMovieAreBounded) {
    const std::string movie = aviBytes({.frames = 10});
    const std::size_t header = chunk(movie, "strh");
    EXPECT_THAT(refusal(with32(movie, header + kRate, 2000000)),
                HasSubstr("2000000 pictures in a second"));
    EXPECT_THAT(refusal(with32(movie, header + kLength, 0x7FFFFFFF)), HasSubstr("hours"));
    EXPECT_THAT(refusal(with32(movie, header + kScale, 20 * 3600 * 3)),
                HasSubstr("It would last for 30 hours; a preview plays up to 24."));
    EXPECT_THAT(refusal(with32(movie, chunk(movie, "avih"), 0xFFFFFFFF)), IsEmpty()) << "12 hours";
    EXPECT_THAT(refusal(with32(with32(movie, chunk(movie, "avih"), 0xFFFFFFFF),
                               chunk(movie, "avih") + 16, 100)),
                HasSubstr("119 hours"));
}

TEST_F(Claims, ChannelsRatesAndTimeOfAWavAreBounded) {
    const std::string wav = wavBytes(44100, tone(441));
    const std::size_t format = chunk(wav, "fmt ");
    for (const std::uint32_t channels : {0U, 9U, 65535U}) {
        EXPECT_THAT(refusal(with16(wav, format + kChannels, channels)),
                    HasSubstr(std::to_string(channels) + " channels"));
    }
    for (const std::uint32_t rate : {0U, 1U, 400000U, 4294967295U}) {
        EXPECT_THAT(refusal(with32(wav, format + kSamples, rate)),
                    HasSubstr(std::to_string(rate) + " samples"));
    }
    EXPECT_THAT(refusal(with32(wav, format + kBytes, 1)), HasSubstr("49 hours"));
    EXPECT_THAT(refusal(with32(wav, chunk(wav, "data") - 4, 0xFFFFFFFF)), IsEmpty())
        << "written by a program that did not know the length in advance";
}

TEST_F(Claims, TheTimeOfMusicIsBounded) {
    EXPECT_THAT(refusal(heldNote(0x0FFFFFFF, 500000, 1)), HasSubstr("hours"));
    EXPECT_THAT(refusal(heldNote(100000, 0xFFFFFF, 1)), HasSubstr("466 hours"));
    EXPECT_THAT(refusal(heldNote(100000, 100, 1)), IsEmpty()) << "the tempo counts";
    EXPECT_THAT(refusal(heldNote(0x0FFFFFFF, 500000, 0xE728)), HasSubstr("74 hours"))
        << "25 pictures of 40 ticks a second, whatever the tempo";
    EXPECT_EQ(refusal(heldNote(480, 500000, 0)), "It does not say how fast it is.");
    std::string note = mp3();
    const std::size_t at = 4 + (static_cast<unsigned char>(note[3]) >> 6 == 3 ? 17 : 32);
    note.replace(at, 12, std::string("Xing\0\0\0\1\x7F\xFF\xFF\xFF", 12));
    EXPECT_THAT(refusal(note), HasSubstr("hours"));
}

TEST_F(Claims, WhatHasToBeHeldAsAWholeIsBounded) {
    const auto longMusic = file("long.mid", midiBytes(100));
    std::filesystem::resize_file(longMusic, std::uintmax_t{4} << 30);
    EXPECT_THAT(media::refusalOf(longMusic, FileKind::midi), HasSubstr("4096 MB"));
    std::string headed = wavBytes(44, tone(441));
    headed.insert(12, std::string("note\xFF\xFF\xFF\x7F", 8));
    const auto longHeader = file("long.wav", headed);
    std::filesystem::resize_file(longHeader, std::uintmax_t{4} << 30);
    EXPECT_THAT(media::refusalOf(longHeader, FileKind::wav), HasSubstr("2047 MB"));
    const std::string movie = aviBytes({.frames = 1});
    const auto longList = file("long.avi", with32(movie, chunk(movie, "LIST") - 4, 0x7FFFFFFF));
    std::filesystem::resize_file(longList, std::uintmax_t{4} << 30);
    EXPECT_THAT(media::refusalOf(longList, FileKind::movie), HasSubstr("2047 MB"));
}

TEST_F(Claims, AHeaderCutOffAnywhereIsSurvived) {
    constexpr std::size_t kHeaders = 400;
    const std::vector<std::pair<FileKind, std::string>> files{
        {FileKind::wav, wavBytes(4, tone(441))},
        {FileKind::movie, aviBytes({.width = 4, .height = 4, .frames = 1, .sound = true})},
        {FileKind::midi, heldNote(480, 500000)},
        {FileKind::movie, sequence(720, 576) + extension(0, 0)}};
    for (const auto& [kind, whole] : files) {
        for (std::size_t length = 0; length < std::min(kHeaders, whole.size()); ++length) {
            static_cast<void>(media::refusalOf(file("cut", whole.substr(0, length)), kind));
        }
        EXPECT_THAT(refusal(whole), IsEmpty());
    }
}

/// A refused file is silent, and the engine says why.
class Refused : public Claims {
  protected:
    std::string played(const std::string& movie) {
        begin();
        engine->PlayMovie(file("a.avi", movie), QStringLiteral("Scene"), 100);
        EXPECT_TRUE(waitForEnds(1));
        EXPECT_THAT(ends, testing::ElementsAre("movie Scene"));
        return engine->lastError().toStdString();
    }
};

TEST_F(Refused, AMovieThatClaimsTooMuchEndsAtOnceAndSaysWhy) {
    const std::string movie = wideMovie(30000, 30000);
    EXPECT_LT(movie.size(), 4096U);
    EXPECT_EQ(played(movie),
              "Its pictures are 30000 by 30000 pixels large, more than a preview shows.");
}

TEST_F(Refused, ASoundThatClaimsTooMuchEndsAtOnceAndSaysWhy) {
    const std::string wav = wavBytes(441, tone(441));
    begin();
    engine->PlayWav(file("a.wav", with16(wav, chunk(wav, "fmt ") + kChannels, 5000)), 0, 0, 3);
    ASSERT_TRUE(waitForEnds(1));
    EXPECT_THAT(engine->lastError().toStdString(), HasSubstr("5000 channels"));
    EXPECT_EQ(capture.takes(), 0U);
}

/// The headers of the file are modest, those within its pictures are not.
TEST_F(Refused, APictureWithinTheMovieThatClaimsTooMuch) {
    QByteArray bytes;
    QBuffer out(&bytes);
    QImage image(32, 24, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    ASSERT_TRUE(image.save(&out, "JPG"));
    std::string picture = bytes.toStdString();
    const std::size_t frame = picture.find("\xFF\xC0");
    ASSERT_NE(frame, std::string::npos);
    picture.replace(frame + 5, 4, "\x75\x30\x75\x30");  // 30,000 by 30,000
    EXPECT_THAT(played(aviBytes({.frames = 3, .picture = picture, .coding = "MJPG"})),
                HasSubstr("30000 by 30000"));
}

TEST_F(Refused, AMovieThatGrowsWhileItPlays) {
    std::string movie = readBytes(data("movie.mpg"));
    const std::string header("\0\0\1\xB3", 4);
    const std::size_t first = movie.find(header);
    ASSERT_NE(first, std::string::npos);
    movie.insert(first, sequence(320, 240));
    movie.replace(movie.find(header, first + 4), 7, sequence(4095, 4095).substr(0, 7));
    EXPECT_THAT(media::refusalOf(file("a.mpg", movie), FileKind::movie), IsEmpty());
    EXPECT_THAT(played(movie), HasSubstr("4095 by 4095"));
}

}  // namespace
}  // namespace quorvel::test
