/// The stage of all other tests, checked once itself: a helper that does nothing would let every
/// test that relies on it pass.
#include <gtest/gtest.h>

#include "support/file_bytes.h"
#include "support/mounts.h"
#include "support/project_builder.h"
#include "support/temp_folder.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

TEST(TempFolder, IsGoneWithAllThatWasInIt) {
    fs::path path;
    {
        const TempFolder folder;
        path = folder.path();
        writeBytes(folder.makeFolder("a/b") / "f", "x");
        fs::permissions(folder / "a/b", fs::perms::owner_read);
        EXPECT_TRUE(fs::is_directory(path));
    }
    EXPECT_FALSE(fs::exists(path));
}

TEST(FileBytes, DamageIsWhatItSays) {
    const TempFolder folder;
    const fs::path file = folder / "f";
    writeBytes(file, "0123456789");
    patchBytes(file, 2, "ab");
    EXPECT_EQ(readBytes(file), "01ab456789");
    patchInt(file, 4, -2);
    EXPECT_EQ(readBytes(file, 4, 2), "\xFE\xFF");
    EXPECT_EQ(readInt(file, 4), -2);
    flipBits(file, 0);
    EXPECT_EQ(readBytes(file, 0, 1), "\xCF");
    flipBits(file, 0, 0x01);
    EXPECT_EQ(readBytes(file, 0, 1), "\xCE");
    appendBytes(file, "xyz");
    EXPECT_EQ(readBytes(file, 10, 3), "xyz");
    cutTail(file, 11);
    EXPECT_EQ(readBytes(file), "\xCE\x31");
    truncateFile(file, 5);
    EXPECT_EQ(readBytes(file).size(), 5U);
    EXPECT_THROW((void)readBytes(file, 3, 3), std::runtime_error);
    EXPECT_THROW((void)readBytes(folder / "missing"), std::runtime_error);
    EXPECT_THROW(patchBytes(folder / "missing", 0, "x"), std::runtime_error);
}

TEST(FileBytes, RandomBytesAreTheSameForTheSameSeedAlone) {
    EXPECT_EQ(randomBytes(100, 1), randomBytes(100, 1));
    EXPECT_NE(randomBytes(100, 1), randomBytes(100, 2));
}

TEST(FileBytes, SnapshotsSeeEveryChange) {
    const TempFolder folder;
    writeBytes(folder / "changed", "abc");
    writeBytes(folder / "gone", "abc");
    const auto before = snapshotOf(folder.path());
    EXPECT_EQ(differences(before, snapshotOf(folder.path())), "");
    patchBytes(folder / "changed", 1, "x");
    fs::remove(folder / "gone");
    folder.makeFolder("new");
    EXPECT_EQ(differences(before, snapshotOf(folder.path())),
              "changed differs at byte 1, lengths 3 and 3\ngone is gone\nnew/ is new\n");
}

TEST(SmallDisk, IsFullOnceItIsFilled) {
    const SmallDisk disk(32);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    EXPECT_TRUE(fs::is_empty(disk.path()));
    disk.fill();
    EXPECT_THROW(writeBytes(disk.path() / "f", "x"), std::runtime_error);
    disk.makeRoom();
    EXPECT_NO_THROW(writeBytes(disk.path() / "f", "x"));
}

TEST(ReadOnlyMount, KeepsItsFolderAsItIsWhileItLasts) {
    const TempFolder folder;
    writeBytes(folder / "f", "abc");
    {
        const ReadOnlyMount disk(folder.path());
        if (!disk.isMounted()) {
            GTEST_SKIP() << disk.whyNot();
        }
        EXPECT_THROW(writeBytes(folder / "f", "x"), std::runtime_error);
        EXPECT_THROW(writeBytes(folder / "new", "x"), std::runtime_error);
        EXPECT_EQ(readBytes(folder / "f"), "abc");
    }
    EXPECT_NO_THROW(writeBytes(folder / "f", "x"));
}

TEST(ReadOnlyMount, SaysWhyThereIsNone) {
    const ReadOnlyMount none("/nonexistent folder of a test");
    EXPECT_FALSE(none.isMounted());
    EXPECT_NE(none.whyNot(), "");
}

TEST(ProjectBuilder, CanBuildTheSameProjectTwice) {
    const TempFolder first;
    const TempFolder second;
    ProjectBuilder builder;
    builder.title("Castle")
        .scenes(2)
        .item(3, "Key")
        .object(2, 20, 4, 1, 2, "door.gif")
        .gfx("door.gif", "GIF89a");
    builder.build(first.path());
    const TestProject files = builder.build(second.path());
    EXPECT_EQ(differences(snapshotOf(first.path()), snapshotOf(second.path())), "");
    EXPECT_EQ(fs::file_size(files.storePath(3)), 3U * 209U);
    EXPECT_EQ(readBytes(files.gfx("door.gif")), "GIF89a");
    EXPECT_EQ(readInt(files.storePath(1), 4395 + 255 + 19 * 207), 4);
}

}  // namespace
}  // namespace quorvel::test
