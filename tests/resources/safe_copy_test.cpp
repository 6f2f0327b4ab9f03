#include "resources/safe_copy.h"

#include <csignal>
#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>

#include "store/runtime_error.h"
#include "support/file_bytes.h"
#include "support/mounts.h"
#include "support/temp_folder.h"

namespace quorvel::resources {
namespace {

namespace fs = std::filesystem;
using store::ErrorNumber;
using test::FolderSnapshot;
using test::readBytes;
using test::snapshotOf;
using test::writeBytes;

/// The error of a copy, or nothing when it went well.
std::optional<ErrorNumber> errorOf(const fs::path& source, const fs::path& target,
                                   const CopyProgress& progress = {}) {
    try {
        copySafely(source, target, progress);
        return std::nullopt;
    } catch (const store::RuntimeError& error) {
        return error.code();
    }
}

class SafeCopy : public testing::Test {
  protected:
    test::TempFolder folder;
    fs::path source = folder / "from.gif";
    fs::path target = folder.makeFolder("to") / "to.gif";
};

TEST_F(SafeCopy, CopiesEveryByteAndNothingElse) {
    const std::string bytes = test::randomBytes((3U << 20U) + 17, 5);
    writeBytes(source, bytes);
    EXPECT_EQ(errorOf(source, target), std::nullopt);
    EXPECT_EQ(snapshotOf(target.parent_path()), (FolderSnapshot{{"to.gif", bytes}}));
    EXPECT_EQ(readBytes(source), bytes);
}

TEST_F(SafeCopy, AnEmptyFileIsAFile) {
    writeBytes(source, "");
    writeBytes(target, "old");
    EXPECT_EQ(errorOf(source, target), std::nullopt);
    EXPECT_EQ(readBytes(target), "");
}

TEST_F(SafeCopy, ACopyOfAProgramCanBeRunAsTheProgramCan) {
    writeBytes(source, "a program");
    fs::permissions(source, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::group_exec);
    copySafely(source, target, {}, CopyAs::program);
    const fs::perms permissions = fs::status(target).permissions();
    EXPECT_NE(permissions & fs::perms::owner_exec, fs::perms::none);
    EXPECT_NE(permissions & fs::perms::group_exec, fs::perms::none);
    EXPECT_EQ(permissions & fs::perms::others_exec, fs::perms::none);
    EXPECT_NE(permissions & fs::perms::owner_write, fs::perms::none);

    fs::permissions(source, fs::perms::owner_read);
    copySafely(source, target, {}, CopyAs::program);
    EXPECT_EQ(fs::status(target).permissions() & fs::perms::owner_exec, fs::perms::none);
}

TEST_F(SafeCopy, TheCopyIsWritableAndNotExecutable) {
    writeBytes(source, "new");
    fs::permissions(source, fs::perms::owner_read | fs::perms::owner_exec);
    writeBytes(target, "a longer old one");
    fs::permissions(target, fs::perms::owner_read);
    EXPECT_EQ(errorOf(source, target), std::nullopt);
    EXPECT_EQ(readBytes(target), "new");
    const fs::perms rights = fs::status(target).permissions();
    EXPECT_NE(rights & fs::perms::owner_write, fs::perms::none);
    EXPECT_EQ(rights & fs::perms::owner_exec, fs::perms::none);
}

TEST_F(SafeCopy, TheCopyIsNewEvenOfAnOldFile) {
    writeBytes(source, "old picture");
    const auto before = fs::file_time_type::clock::now() - std::chrono::hours(24);
    fs::last_write_time(source, before);
    EXPECT_EQ(errorOf(source, target), std::nullopt);
    EXPECT_GT(fs::last_write_time(target), before);
}

TEST_F(SafeCopy, TellsHowFarItIs) {
    writeBytes(source, std::string((2U << 20U) + 1, 'x'));
    std::vector<std::uintmax_t> told;
    EXPECT_EQ(errorOf(source, target,
                      [&](std::uintmax_t done, std::uintmax_t total) {
                          EXPECT_EQ(total, (2U << 20U) + 1);
                          EXPECT_FALSE(fs::exists(target)) << "not before the copy is whole";
                          told.push_back(done);
                      }),
              std::nullopt);
    EXPECT_EQ(told, (std::vector<std::uintmax_t>{1U << 20U, 2U << 20U, (2U << 20U) + 1}));
}

TEST_F(SafeCopy, WhatIsThrownInTheMiddleLeavesNothingBehind) {
    writeBytes(source, "new");
    writeBytes(target, "old");
    const auto before = snapshotOf(folder.path());
    EXPECT_THROW(copySafely(source, target, [](auto, auto) { throw std::logic_error("stop"); }),
                 std::logic_error);
    EXPECT_EQ(snapshotOf(folder.path()), before);
}

TEST_F(SafeCopy, WhatAKilledEditorLeftIsNotTouched) {
    writeBytes(source, "new");
    writeBytes(target.parent_path() / "~quorvel0.tmp", "half a file");
    writeBytes(target.parent_path() / "~quorvel1.tmp", "another");
    EXPECT_EQ(errorOf(source, target), std::nullopt);
    EXPECT_EQ(snapshotOf(target.parent_path()), (FolderSnapshot{{"to.gif", "new"},
                                                                {"~quorvel0.tmp", "half a file"},
                                                                {"~quorvel1.tmp", "another"}}));
}

TEST_F(SafeCopy, ALinkInThePlaceOfTheTargetIsReplacedAndNotFollowed) {
    writeBytes(source, "new");
    writeBytes(folder / "precious", "precious");
    fs::create_symlink(folder / "precious", target);
    EXPECT_EQ(errorOf(source, target), std::nullopt);
    EXPECT_EQ(readBytes(folder / "precious"), "precious");
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(target)));
    EXPECT_EQ(readBytes(target), "new");
}

TEST_F(SafeCopy, MissingThingsAreErrorsThatLeaveAllAsItWas) {
    const auto nothing = snapshotOf(folder.path());
    EXPECT_EQ(errorOf(source, target), ErrorNumber::fileNotFound);
    EXPECT_EQ(snapshotOf(folder.path()), nothing);
    writeBytes(source, "new");
    EXPECT_EQ(errorOf(source, folder / "nowhere/to.gif"), ErrorNumber::pathNotFound);
    EXPECT_EQ(errorOf(folder / "to", target), ErrorNumber::accessError) << "a folder as the source";
    fs::create_directory(target);
    const auto before = snapshotOf(folder.path());
    EXPECT_EQ(errorOf(source, target), ErrorNumber::accessError) << "a folder as the target";
    EXPECT_EQ(snapshotOf(folder.path()), before);
}

TEST_F(SafeCopy, AFullDiskLeavesTheOldFile) {
    const test::SmallDisk disk(256);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    writeBytes(source, std::string(100'000, 'n'));
    writeBytes(disk.path() / "to.gif", std::string(200'000, 'o'));
    const auto before = snapshotOf(disk.path());
    EXPECT_EQ(errorOf(source, disk.path() / "to.gif"), ErrorNumber::diskFull);
    EXPECT_EQ(test::differences(before, snapshotOf(disk.path())), "");
    EXPECT_EQ(readBytes(source).size(), 100'000U);
}

TEST_F(SafeCopy, AReadOnlyDiskLeavesTheOldFile) {
    writeBytes(source, "new");
    writeBytes(target, "old");
    const test::ReadOnlyMount disc(target.parent_path());
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    EXPECT_EQ(errorOf(source, target), ErrorNumber::accessError);
    EXPECT_EQ(snapshotOf(target.parent_path()), (FolderSnapshot{{"to.gif", "old"}}));
}

#ifdef __linux__
TEST_F(SafeCopy, AnUnreadableSourceLeavesTheOldFile) {
    writeBytes(target, "old");
    // A regular file that opens and then fails to be read, for the administrator too.
    EXPECT_EQ(errorOf("/proc/self/mem", target), ErrorNumber::deviceError);
    EXPECT_EQ(snapshotOf(target.parent_path()), (FolderSnapshot{{"to.gif", "old"}}));
}
#endif

TEST_F(SafeCopy, ASourceThatShrinksMeanwhileIsNotTakenForWhole) {
    writeBytes(source, std::string(3U << 20U, 'x'));
    writeBytes(target, "old");
    EXPECT_EQ(errorOf(source, target, [&](auto, auto) { test::truncateFile(source, 1U << 20U); }),
              ErrorNumber::badRecord);
    EXPECT_EQ(snapshotOf(target.parent_path()), (FolderSnapshot{{"to.gif", "old"}}));
}

// A kill in the middle

TEST_F(SafeCopy, WhatAKilledProgramLeftIsRemovedLater) {
    writeBytes(source, test::randomBytes(3U << 20U, 5));
    writeBytes(target, "old");
#ifndef _WIN32
    EXPECT_EXIT(copySafely(source, target, [](std::uintmax_t, std::uintmax_t) { raise(SIGKILL); }),
                testing::KilledBySignal(SIGKILL), "");
#else
    writeBytes(target.parent_path() / "~quorvel0.tmp", "x");
#endif
    const fs::path left = target.parent_path() / "~quorvel0.tmp";
    ASSERT_TRUE(fs::exists(left));
    EXPECT_EQ(removeLeftovers(target.parent_path()), std::vector<fs::path>{left});
    EXPECT_EQ(snapshotOf(target.parent_path()), (FolderSnapshot{{"to.gif", "old"}}));
    EXPECT_TRUE(removeLeftovers(target.parent_path()).empty());
    EXPECT_TRUE(removeLeftovers(folder / "missing").empty());
}

TEST_F(SafeCopy, WhatAnAuthorNamedAlikeStays) {
    const fs::path here = target.parent_path();
    for (const char* name :
         {"~quorvel.tmp", "~quorvel01.tmp", "~quorvel1000.tmp", "~quorvel-1.tmp",
          "~quorvel1.tmp.gif", "~quorvel1x.tmp", "a~quorvel1.tmp", "~Quorvel1.tmp"}) {
        writeBytes(here / name, "x");
    }
    fs::create_directory(here / "~quorvel2.tmp");
    fs::create_symlink(source, here / "~quorvel3.tmp");
    const FolderSnapshot before = snapshotOf(here);
    EXPECT_TRUE(removeLeftovers(here).empty());
    EXPECT_EQ(test::differences(before, snapshotOf(here)), "");
    EXPECT_TRUE(fs::is_symlink(here / "~quorvel3.tmp"));
    writeBytes(here / "~quorvel999.tmp", "x");
    EXPECT_EQ(removeLeftovers(here), std::vector<fs::path>{here / "~quorvel999.tmp"});
}

}  // namespace
}  // namespace quorvel::resources
