#include "store/paths.h"

#include <gtest/gtest.h>

#include "support/file_bytes.h"
#include "support/temp_folder.h"

namespace quorvel::store {
namespace {

namespace fs = std::filesystem;
using test::differences;
using test::snapshotOf;
using test::TempFolder;
using test::writeBytes;

class Paths : public ::testing::Test {
  protected:
    TempFolder folder_;
};

TEST_F(Paths, WhatExistsIsFoundInAnyLetterCaseAndWithEitherSeparator) {
    const fs::path gfx = folder_.makeFolder("Resource/GFX");
    writeBytes(gfx / "Hall.BMP", "x");
    for (const char* spelt :
         {"Resource/GFX/Hall.BMP", "resource/gfx/hall.bmp", "resource\\gfx\\HALL.bmp",
          "RESOURCE\\gfx/Hall.bmp", "/resource//gfx\\\\hall.bmp/"}) {
        EXPECT_EQ(resolvePath(folder_.path(), spelt), gfx / "Hall.BMP") << spelt;
    }
}

TEST_F(Paths, TheExactSpellingWinsOverAnother) {
    writeBytes(folder_ / "HALL.bmp", "1");
    writeBytes(folder_ / "hall.bmp", "2");
    EXPECT_EQ(resolvePath(folder_.path(), "hall.bmp"), folder_ / "hall.bmp");
    EXPECT_EQ(resolvePath(folder_.path(), "HALL.bmp"), folder_ / "HALL.bmp");
}

TEST_F(Paths, ABackslashMaySeparateOrBeALetterOfANameInAnyLetterCase) {
    const fs::path odd = folder_.makeFolder("My\\Games");
    if (!fs::is_directory(folder_ / "My\\Games") || fs::exists(folder_ / "My")) {
        GTEST_SKIP() << "a backslash cannot be a letter of a name here";
    }
    const fs::path file = folder_.makeFolder("My\\Games/Resource/GFX") / "Hall\\Door.PNG";
    writeBytes(file, "x");
    for (const char* spelt :
         {"My\\Games/Resource/GFX/Hall\\Door.PNG", "my\\GAMES/resource/gfx/hall\\door.png",
          "my\\games\\RESOURCE\\gfx\\hall\\door.png", "My\\games\\resource/GFX//Hall\\DOOR.png"}) {
        EXPECT_EQ(resolvePath(folder_.path(), spelt), file) << spelt;
    }
    EXPECT_EQ(resolvePath(folder_.path(), "my\\games\\New\\a.dat"), odd / "New/a.dat");
    EXPECT_EQ(resolvePath(folder_.path(), "my\\other"), folder_ / "my/other");
}

TEST_F(Paths, WhatDoesNotExistKeepsItsSpellingBelowWhatDoes) {
    folder_.makeFolder("Resource");
    EXPECT_EQ(resolvePath(folder_.path(), "resource\\New.dat"), folder_ / "Resource/New.dat");
    EXPECT_EQ(resolvePath(folder_.path(), "nowhere/New.dat"), folder_ / "nowhere/New.dat");
    EXPECT_EQ(resolvePath(folder_.path(), ""), folder_.path());
}

TEST_F(Paths, LettersOfTheCodePageHaveTheirCasesToo) {
    writeBytes(folder_ / "\u00C4pfel\u0160\u0178.gif", "x");
    EXPECT_EQ(resolvePath(folder_.path(), "\u00E4PFEL\u0161\u00FF.GIF"),
              folder_ / "\u00C4pfel\u0160\u0178.gif");
    EXPECT_TRUE(sameName("\u00DE\u0152\u017D", "\u00FE\u0153\u017E"));
    EXPECT_FALSE(sameName("\u00D7", "\u00F7"));  // a times sign is no letter
    EXPECT_FALSE(sameName("\u00DF", "\u1E9E"));
}

TEST_F(Paths, NamesOutsideTheCodePageAreFoundToo) {
    writeBytes(folder_ / "\u4E2D.QVL", "x");
    EXPECT_EQ(resolvePath(folder_.path(), "\u4E2D.qvl"), folder_ / "\u4E2D.QVL");
    EXPECT_TRUE(sameName("\u4E2D.QVL", "\u4E2D.qvl"));
    EXPECT_FALSE(sameName("\u4E2D.qvl", "\u4E2E.qvl"));
    EXPECT_FALSE(sameName("\u4E2D.qvl", "?.qvl"));
    EXPECT_FALSE(sameName("\xC3", "\xC4"));
    EXPECT_TRUE(sameName("\xC3", "\xC3"));
}

TEST_F(Paths, NothingIsEverCreated) {
    folder_.makeFolder("resource/gfx");
    const auto before = snapshotOf(folder_.path());
    (void)resolvePath(folder_.path(), "resource/gfx/new/deeper.bmp");
    (void)resourceFolder(folder_.path(), ResourceFolder::mmedia);
    (void)findResource(folder_.path(), ResourceFolder::gfx, "a.bmp");
    EXPECT_EQ(differences(before, snapshotOf(folder_.path())), "");
}

TEST_F(Paths, BareNamesAreNamesOfFilesInTheirFolder) {
    for (const char* name : {"hall.bmp", "a", "...", "a b.gif", "\u00C4.wav", "-Choose", "..x"}) {
        EXPECT_TRUE(isBareName(name)) << name;
    }
    for (const std::string& name :
         {std::string(), std::string("."), std::string(".."), std::string("a/b"),
          std::string("a\\b"), std::string("/etc/passwd"), std::string("..\\x"), std::string("c:x"),
          std::string("a\0b", 3), std::string("a\nb"), std::string("\x7F"), std::string("\x01")}) {
        EXPECT_FALSE(isBareName(name)) << name;
    }
}

TEST_F(Paths, ResourcesAreFoundInTheFolderOfTheirKind) {
    writeBytes(folder_.makeFolder("Resource/Gfx") / "Hall.bmp", "x");
    writeBytes(folder_.makeFolder("Resource/MMedia") / "Bell.wav", "x");
    EXPECT_EQ(findResource(folder_.path(), ResourceFolder::gfx, "HALL.BMP"),
              folder_ / "Resource/Gfx/Hall.bmp");
    EXPECT_EQ(findResource(folder_.path(), ResourceFolder::mmedia, "bell.wav"),
              folder_ / "Resource/MMedia/Bell.wav");
    EXPECT_EQ(findResource(folder_.path(), ResourceFolder::gfx, "bell.wav"), std::nullopt);
    EXPECT_EQ(findResource(folder_ / "nowhere", ResourceFolder::gfx, "hall.bmp"), std::nullopt);
}

TEST_F(Paths, ResourcesOutsideTheirFolderAreNotFound) {
    writeBytes(folder_.makeFolder("resource/gfx") / "hall.bmp", "x");
    writeBytes(folder_ / "secret.bmp", "x");
    folder_.makeFolder("resource/gfx/folder.bmp");
    for (const char* name :
         {"../../secret.bmp", "..\\..\\secret.bmp", "./hall.bmp", ".", "..", "", "folder.bmp"}) {
        EXPECT_EQ(findResource(folder_.path(), ResourceFolder::gfx, name), std::nullopt) << name;
    }
    const std::string withNul("hall.bmp\0x", 10);
    EXPECT_EQ(findResource(folder_.path(), ResourceFolder::gfx, withNul), std::nullopt);
    EXPECT_EQ(findResource(folder_.path(), ResourceFolder::gfx, std::string(5000, 'a')),
              std::nullopt);
}

TEST_F(Paths, TextsAndPathsAreUtf8) {
    EXPECT_EQ(textOf(pathOf("caf\u00E9/\u4E2D")), "caf\u00E9/\u4E2D");
    EXPECT_EQ(textOf(pathOf("")), "");
}

}  // namespace
}  // namespace quorvel::store
