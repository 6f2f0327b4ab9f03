// Paths as texts: every name that a disk may hold survives.
#include "resources/path_text.h"

#include <gtest/gtest.h>

#include "store/paths.h"
#include "support/file_bytes.h"
#include "support/temp_folder.h"
#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

using resources::bytesText;
using resources::fromStoredPath;
using resources::pathBytes;
using resources::storedPath;

std::string bytesOf(int from, int to) {
    std::string bytes;
    for (int byte = from; byte <= to; ++byte) {
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

TEST(PathText, ValidTextIsItself) {
    for (const char* text : {"", "/home/ann/My Game.qvl", "/\u00fc/\u6f22/\U0001F600.qvl",
                             "\ufeffmark", "C:\\Games\\a.qvl"}) {
        // The mark at the front would be taken off by the toolkit's own reading.
        const std::string bytes(text);
        if (!bytes.starts_with("\ufeff")) {
            EXPECT_EQ(bytesText(bytes), QString::fromStdString(bytes));
        }
        EXPECT_TRUE(bytesText(bytes).isValidUtf16());
        EXPECT_EQ(pathBytes(bytesText(bytes)), bytes);
        EXPECT_EQ(storedPath(bytesText(bytes)), bytesText(bytes));
        EXPECT_EQ(fromStoredPath(bytesText(bytes)), bytesText(bytes));
    }
}

TEST(PathText, EveryByteComesBack) {
    EXPECT_EQ(pathBytes(bytesText(bytesOf(0x01, 0xFF))), bytesOf(0x01, 0xFF));
    for (int byte = 0x80; byte <= 0xFF; ++byte) {
        const std::string name = "/a" + bytesOf(byte, byte) + "b";
        const QString text = bytesText(name);
        EXPECT_EQ(text.size(), 4);
        EXPECT_FALSE(text.isValidUtf16());
        EXPECT_EQ(pathBytes(text), name);
    }
}

TEST(PathText, RandomNamesComeBack) {
    for (std::uint32_t seed = 1; seed <= 500; ++seed) {
        const std::string name = randomBytes(40, seed) + "\U0001F600" + randomBytes(3, seed);
        EXPECT_EQ(pathBytes(bytesText(name)), name) << seed;
        EXPECT_EQ(pathBytes(fromStoredPath(storedPath(bytesText(name)))), name) << seed;
    }
}

TEST(PathText, BytesThatSpellAHalfOfAPairAreNotTakenForOne) {
    const std::string name = "\xED\xB2\x80";  // U+DC80 as it must not be written
    EXPECT_EQ(bytesText(name).size(), 3);
    EXPECT_EQ(pathBytes(bytesText(name)), name);
}

TEST(PathText, WhatIsStoredIsPlainText) {
    const QString stored = storedPath(bytesText("/home/caf\xE9 100%/a.qvl"));
    EXPECT_EQ(stored, QStringLiteral("file:///home/caf%E9%20100%25/a.qvl"));
    EXPECT_EQ(pathBytes(fromStoredPath(stored)), "/home/caf\xE9 100%/a.qvl");
}

TEST(PathText, AFileIsOpenedWhateverItsName) {
    const TempFolder folder;
    for (const char* name : {"plain", "caf\u00e9", "caf\xE9"}) {
        const std::filesystem::path path = folder / name;
        writeBytes(path, "abc");
        QFile file;
        ASSERT_TRUE(resources::openToRead(file, path)) << name;
        EXPECT_EQ(file.size(), 3);
        EXPECT_TRUE(file.seek(1));
        EXPECT_EQ(file.readAll(), QByteArray("bc"));
        EXPECT_FALSE(file.isWritable());
    }
    for (const char* name : {"none", "none\xE9"}) {
        QFile file;
        EXPECT_FALSE(resources::openToRead(file, folder / name)) << name;
        EXPECT_FALSE(file.isOpen());
    }
}

}  // namespace
}  // namespace quorvel::test
