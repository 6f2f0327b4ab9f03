// What is said of files that a field takes though something about them is odd.
#include "forms/file_remark.h"

#include <gtest/gtest.h>
#include <string>

#include "forms/file_choice.h"
#include "support/file_bytes.h"
#include "support/temp_folder.h"
#include "support/windows/played_author.h"

namespace quorvel::forms {
namespace {

using namespace std::string_literals;

const std::string kGif = "GIF89a....";
const std::string kJpg = "\xFF\xD8\xFF\xE0....";
const std::string kBmp = "BM........";
const std::string kIcon = "\0\0\1\0\1\0"s;
const std::string kCursor = "\0\0\2\0\1\0"s;
const std::string kWav = "RIFF....WAVEfmt ";
const std::string kAvi = "RIFF....AVI LIST";
const std::string kMidi = "MThd....";
const std::string kMpg = "\0\0\1\xBA"s + std::string(20, '.');

class Remarks : public testing::Test {
  protected:
    QString on(const char* name, const std::string& bytes, const QString& filter) {
        test::writeBytes(folder / name, bytes);
        return remarkOn(folder / name, filter);
    }
    test::TempFolder folder;
};

TEST_F(Remarks, AFileThatIsWhatItsEndingSaysHasNone) {
    EXPECT_EQ(on("a.gif", kGif, filters::kImages), QString());
    EXPECT_EQ(on("a.JPG", kJpg, filters::kImages), QString());
    EXPECT_EQ(on("a.bmp", kBmp, filters::kBackgrounds), QString());
    EXPECT_EQ(on("a.wav", kWav, filters::kSounds), QString());
    EXPECT_EQ(on("a.mid", kMidi, filters::kSoundtracks), QString());
    EXPECT_EQ(on("a.avi", kAvi, filters::kMovies), QString());
    EXPECT_EQ(on("a.mpg", kMpg, filters::kSoundsAndMovies), QString());
    EXPECT_EQ(on("a.ico", kIcon, filters::kIcons), QString());
    EXPECT_EQ(on("a.cur", kCursor, filters::kCursors), QString());
}

TEST_F(Remarks, AnEndingThatStandsInNoFilterIsNamedWithTheKindsThatDo) {
    EXPECT_EQ(on("a.jpeg", kJpg, filters::kImages),
              QStringLiteral("\"a.jpeg\" was taken, but a player may not know its ending.  Every "
                             "player knows .gif, .jpg and .bmp."));
    EXPECT_EQ(on("a.ogg", "OggS", filters::kSounds),
              QStringLiteral("\"a.ogg\" was taken, but a player may not know its ending.  Every "
                             "player knows .wav."));
    EXPECT_EQ(on("wav", kWav, filters::kSounds),
              QStringLiteral("\"wav\" was taken, but a player may not know its ending.  Every "
                             "player knows .wav."));
    EXPECT_EQ(on("a.gif", kGif, filters::kMovies),
              QStringLiteral("\"a.gif\" was taken, but a player may not know its ending.  Every "
                             "player knows .avi and .mpg."));
}

TEST_F(Remarks, ContentsThatDoNotFitTheEndingAreNamed) {
    EXPECT_EQ(on("a.wav", kMidi, filters::kSoundtracks),
              QStringLiteral("\"a.wav\" was taken, but it holds MIDI music and not a WAV sound.  "
                             "Every player knows .mp3, .wav and .mid."));
    EXPECT_EQ(on("a.avi", kMpg, filters::kMovies),
              QStringLiteral("\"a.avi\" was taken, but it holds an MPG movie and not an AVI movie. "
                             " Every player knows .avi and .mpg."));
    EXPECT_EQ(on("a.cur", kIcon, filters::kCursors),
              QStringLiteral("\"a.cur\" was taken, but it holds an icon and not a cursor.  Every "
                             "player knows .cur and .ico."));
}

TEST_F(Remarks, ContentsThatNobodyKnowsAreNotWhatTheEndingSays) {
    const QString text = QStringLiteral(
        "\"a.jpg\" was taken, but it does not hold a JPG picture.  "
        "Every player knows .gif, .jpg and .bmp.");
    for (const std::string& bytes : {""s, "x"s, "\x89PNG"s, std::string(200000, '\0')}) {
        EXPECT_EQ(on("a.jpg", bytes, filters::kImages), text) << bytes.size();
    }
}

TEST_F(Remarks, WhatThePreviewCannotPlayIsToldWithTheReasonAndTheKinds) {
    EXPECT_EQ(previewRemark(QStringLiteral("play"), QStringLiteral("a.wav"),
                            QStringLiteral("There is no sound in it."), filters::kSounds),
              QStringLiteral("The preview cannot play \"a.wav\".  There is no sound in it.  Every "
                             "player knows .wav."));
}

}  // namespace
}  // namespace quorvel::forms
