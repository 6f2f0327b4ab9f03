#include "forms/pictures.h"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

#include <QBuffer>

#include "forms/pictures_frames.h"
#include "support/file_bytes.h"
#include "support/gif_bytes.h"
#include "support/temp_folder.h"

namespace quorvel::forms {
namespace {

namespace fs = std::filesystem;
using Problem = Picture::Problem;
using test::gifBytes;
using test::gifColour;
using test::writeBytes;

/// A PNG with another size in its header, which has a check sum.
std::string pngOfSize(std::string png, const std::string& size) {
    constexpr std::size_t kHeader = 12;
    constexpr std::size_t kLength = 17;
    png.replace(16, 8, size);
    std::uint32_t sum = ~0U;
    for (std::size_t i = 0; i < kLength; ++i) {
        sum ^= static_cast<unsigned char>(png[kHeader + i]);
        for (int bit = 0; bit < 8; ++bit) {
            sum = sum >> 1 ^ ((sum & 1) != 0 ? 0xEDB88320U : 0);
        }
    }
    for (std::size_t i = 0; i < 4; ++i) {
        png[kHeader + kLength + i] = static_cast<char>(~sum >> (24 - 8 * i) & 0xFF);
    }
    return png;
}

class Pictures : public testing::Test {
  protected:
    fs::path file(const char* name, const std::string& bytes) const {
        writeBytes(folder_ / name, bytes);
        return folder_ / name;
    }
    Problem problemOf(const std::string& bytes) {
        return store_.load(file("a.gif", bytes))->problem();
    }

    test::TempFolder folder_;
    PictureStore store_;
};

TEST_F(Pictures, AnAnimationGivesItsFirstFrame) {
    const auto picture =
        store_.load(file("a.gif", gifBytes(40, 30, {{.colour = 7, .delay = 5}, {.colour = 8}})));
    ASSERT_TRUE(picture->ok());
    EXPECT_EQ(picture->size(), QSize(40, 30));
    EXPECT_EQ(picture->firstFrame().pixel(39, 29), gifColour(7));
    EXPECT_EQ(picture->firstDelay(), 50);
    EXPECT_TRUE(picture->mayMove());
}

TEST_F(Pictures, ABitmapDoesNotMove) {
    const auto picture = store_.load(file("a.bmp", test::bmpBytes(21, 11, 0x102030)));
    ASSERT_TRUE(picture->ok());
    EXPECT_EQ(picture->size(), QSize(21, 11));
    EXPECT_EQ(picture->firstFrame().pixel(20, 10), 0xFF102030U);
    EXPECT_FALSE(picture->mayMove());
}

TEST_F(Pictures, TheContentCountsAndNotTheNameOfTheFile) {
    EXPECT_TRUE(store_.load(file("a.gif", test::bmpBytes(4, 4)))->ok());
    EXPECT_TRUE(store_.load(file("a.bmp", test::stillGif(4, 4)))->mayMove());
}

TEST_F(Pictures, AFileIsDecodedOnceAndShared) {
    const fs::path a = file("a.gif", test::stillGif(8, 8));
    EXPECT_EQ(store_.load(a), store_.load(a));
}

TEST_F(Pictures, AFileOfAnotherSizeIsReadAnew) {
    const fs::path a = file("a.gif", test::stillGif(8, 8, 1));
    const auto old = store_.load(a);
    writeBytes(a, test::stillGif(9, 8, 2));
    EXPECT_EQ(store_.load(a)->size(), QSize(9, 8));
    EXPECT_EQ(old->size(), QSize(8, 8)) << "what is shown must not change behind its back";
}

TEST_F(Pictures, AFileOfAnotherTimeIsReadAnew) {
    const fs::path a = file("a.gif", test::stillGif(8, 8, 1));
    const auto old = store_.load(a);
    writeBytes(a, test::stillGif(8, 8, 2));
    fs::last_write_time(a, fs::file_time_type::clock::now() + std::chrono::seconds(5));
    EXPECT_EQ(store_.load(a)->firstFrame().pixel(0, 0), gifColour(2));
}

TEST_F(Pictures, WhatNobodyShowsIsKeptForAWhile) {
    const std::weak_ptr<const Picture> kept = store_.load(file("a.gif", test::stillGif(8, 8)));
    EXPECT_FALSE(kept.expired());
    store_.clear();
    EXPECT_TRUE(kept.expired());
}

TEST_F(Pictures, TheOldestIsForgottenFirst) {
    const fs::path a = file("a.gif", test::stillGif(8, 8));
    const fs::path b = file("b.gif", test::stillGif(8, 8));
    const std::weak_ptr<const Picture> first = store_.load(a);
    const std::weak_ptr<const Picture> second = store_.load(b);
    for (std::size_t i = 0; i + 2 < PictureStore::kKeptPictures; ++i) {
        ASSERT_TRUE(
            store_.load(file((std::to_string(i) + ".gif").c_str(), test::stillGif(2, 2)))->ok());
    }
    ASSERT_TRUE(store_.load(a)->ok());
    ASSERT_TRUE(store_.load(file("last.gif", test::stillGif(2, 2)))->ok());
    EXPECT_FALSE(first.expired()) << "it was asked for again";
    EXPECT_TRUE(second.expired());
}

TEST_F(Pictures, LargePicturesAreNotKept) {
    const std::weak_ptr<const Picture> large =
        store_.load(file("a.bmp", test::bmpBytes(3000, 2200)));  // 26 MB decoded
    EXPECT_TRUE(large.expired());
}

TEST_F(Pictures, AMissingFile) {
    EXPECT_EQ(store_.load(folder_ / "none.gif")->problem(), Problem::missing);
    EXPECT_EQ(store_.load(folder_ / "none/none.gif")->problem(), Problem::missing);
}

TEST_F(Pictures, WhatIsNoFileIsNotOpened) {
    EXPECT_EQ(store_.load(folder_.makeFolder("a.gif"))->problem(), Problem::refused);
    const fs::path pipe = folder_ / "pipe.gif";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(store_.load(pipe)->problem(), Problem::refused) << "a pipe would hang";
}

TEST_F(Pictures, WhatCannotBeShownIsNotReadAgainAndAgain) {
    writeBytes(folder_ / "a.gif", "no picture");
    const std::weak_ptr<const Picture> failed = store_.load(folder_ / "a.gif");
    EXPECT_FALSE(failed.expired()) << "though nobody shows it";
    EXPECT_EQ(store_.load(folder_ / "a.gif"), failed.lock());
    writeBytes(folder_ / "a.gif", test::stillGif(20, 10));
    EXPECT_TRUE(store_.load(folder_ / "a.gif")->ok()) << "a file that was changed is";
    EXPECT_TRUE(failed.expired());
    writeBytes(folder_ / "a.gif", "no picture");
    const std::weak_ptr<const Picture> again = store_.load(folder_ / "a.gif");
    store_.clear();
    EXPECT_TRUE(again.expired());
}

TEST_F(Pictures, AnEmptyFile) {
    EXPECT_EQ(problemOf(""), Problem::damaged);
}

TEST_F(Pictures, TextIsNoPicture) {
    EXPECT_EQ(problemOf("Dear diary, today I have drawn a castle."), Problem::damaged);
}

TEST_F(Pictures, ADrawingIsNoPicture) {
    EXPECT_EQ(problemOf("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"5\" height=\"5\"/>"),
              Problem::damaged);
}

TEST_F(Pictures, JunkBehindASignature) {
    EXPECT_EQ(problemOf("GIF89a" + std::string("\x10\0\x10\0", 4) + test::randomBytes(500, 1)),
              Problem::damaged);
    EXPECT_EQ(problemOf("GIF89a"), Problem::damaged);
    EXPECT_EQ(problemOf("BM" + test::randomBytes(500, 2)), Problem::damaged);
    EXPECT_EQ(problemOf("\xFF\xD8\xFF" + test::randomBytes(500, 3)), Problem::damaged);
}

TEST_F(Pictures, AHeaderThatPromisesTooMuch) {
    std::string gif = test::stillGif(8, 8);
    gif.replace(6, 4, "\x30\x75\x30\x75");  // 30,000 by 30,000
    EXPECT_EQ(problemOf(gif), Problem::tooLarge);
    std::string bmp = test::bmpBytes(8, 8);
    bmp.replace(18, 8, std::string("\x30\x75\0\0\x30\x75\0\0", 8));
    EXPECT_FALSE(store_.load(file("a.bmp", bmp))->ok());
    bmp.replace(22, 4, std::string("\x64\0\0\0", 4));
    EXPECT_FALSE(store_.load(file("b.bmp", bmp))->ok()) << "one side is enough";
}

TEST_F(Pictures, EveryFormatIsBoundedByItsHeader) {
    const auto saved = [](const char* format) {
        QByteArray bytes;
        QBuffer out(&bytes);
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        EXPECT_TRUE(image.save(&out, format)) << format;
        return bytes.toStdString();
    };
    std::string jpg = saved("JPG");
    jpg.replace(jpg.find("\xFF\xC0") + 5, 4, "\x75\x30\x75\x30");  // 30,000 by 30,000
    EXPECT_EQ(problemOf(jpg), Problem::tooLarge);
    std::string png = saved("PNG");
    EXPECT_TRUE(
        store_.load(file("a.png", pngOfSize(png, std::string("\0\0\0\x08\0\0\0\x08", 8))))->ok());
    png = pngOfSize(png, std::string("\0\0\x75\x30\0\0\x75\x30", 8));
    EXPECT_EQ(problemOf(png), Problem::tooLarge);
    // An icon whose list says 8 by 8 and whose picture says more.
    std::string icon("\0\0\1\0\1\0\x08\x08\0\0\1\0\x20\0", 14);
    icon += static_cast<char>(png.size());
    icon += std::string("\0\0\0\x16\0\0\0", 7) + png;
    EXPECT_FALSE(store_.load(file("a.ico", icon))->ok());
    std::string bmp = test::bmpBytes(8, 8);
    bmp.replace(18, 8, "\xFF\xFF\xFF\x7F\xFF\xFF\xFF\x7F");
    EXPECT_FALSE(store_.load(file("b.bmp", bmp))->ok());
    bmp.replace(18, 8, std::string("\x30\x75\0\0\xD0\x8A\xFF\xFF", 8));
    EXPECT_FALSE(store_.load(file("c.bmp", bmp))->ok()) << "lines from top to bottom";
}

TEST_F(Pictures, AScreenOfNoSizeBoundsNoFrame) {
    std::string gif = gifBytes(8, 8, {{.colour = 1}});
    gif.replace(gif.find(',', test::kGifFirstBlock) + 5, 4, "\xFF\xFF\xFF\xFF");
    gif.replace(6, 4, std::string(4, '\0'));
    EXPECT_FALSE(store_.load(file("a.gif", gif))->ok());
}

TEST_F(Pictures, AFrameThatPromisesMoreThanItsScreen) {
    std::string gif = gifBytes(8, 8, {{.colour = 1}});
    const auto frame = gif.find(',', test::kGifFirstBlock);
    ASSERT_NE(frame, std::string::npos);
    gif.replace(frame + 5, 4, "\x30\x75\x30\x75");
    const auto picture = store_.load(file("a.gif", gif));
    EXPECT_LE(picture->size().width(), 8);
}

TEST_F(Pictures, AnyCutOrFlippedByteIsSurvived) {
    const std::string whole = gifBytes(12, 9, {{.colour = 1}, {.colour = 2}}, 0);
    for (std::size_t length = 0; length < whole.size(); length += 3) {
        const auto picture = store_.load(file("a.gif", whole.substr(0, length)));
        EXPECT_EQ(picture->ok(), !picture->size().isEmpty());
    }
    for (std::size_t at = 0; at < whole.size(); at += 2) {
        std::string bytes = whole;
        bytes[at] = static_cast<char>(~bytes[at]);
        const auto picture = store_.load(file("a.gif", bytes));
        PictureFrames frames(folder_ / "a.gif");
        for (std::size_t i = 0; i < 5; ++i) {
            static_cast<void>(frames.at(i));
        }
        EXPECT_EQ(picture->ok(), !picture->size().isEmpty());
    }
}

TEST_F(Pictures, AFailureIsNotRemembered) {
    const fs::path a = file("a.gif", "no picture");
    EXPECT_FALSE(store_.load(a)->ok());
    writeBytes(a, test::stillGif(3, 3));
    EXPECT_TRUE(store_.load(a)->ok());
}

TEST_F(Pictures, StockPicturesAreDrawnOnce) {
    for (const char* name : {"conversation", "delay", "file-not-found", "flag-conjunction",
                             "multi-trigger", "new-object", "responder", "unknown-object"}) {
        const auto picture = store_.stock(QString::fromLatin1(name));
        ASSERT_TRUE(picture->ok()) << name;
        EXPECT_GE(picture->size().width(), 48) << name;
        EXPECT_EQ(picture->firstFrame().deviceIndependentSize().toSize(), picture->size());
        EXPECT_NE(qAlpha(picture->firstFrame().pixel(24, 24)), 0) << name << " is blank";
        EXPECT_EQ(qAlpha(picture->firstFrame().pixel(0, 0)), 0) << name << " has no round corner";
        EXPECT_EQ(picture, store_.stock(QString::fromLatin1(name)));
    }
}

}  // namespace
}  // namespace quorvel::forms
