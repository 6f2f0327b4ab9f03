#include "store/file_attributes.h"

#include <gtest/gtest.h>

#include "store/runtime_error.h"
#include "support/file_bytes.h"
#include "support/mounts.h"
#include "support/temp_folder.h"

namespace quorvel::store {
namespace {

namespace fs = std::filesystem;
using test::ReadOnlyMount;
using test::TempFolder;

int errorOf(const fs::path& path) {
    try {
        clearReadOnlyAttribute(path);
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

fs::perms permissionsOf(const fs::path& path) {
    return fs::status(path).permissions();
}

class FileAttributes : public ::testing::Test {
  protected:
    FileAttributes() { test::writeBytes(file_, "abc"); }

    TempFolder folder_;
    fs::path file_ = folder_ / "f";
};

TEST_F(FileAttributes, TheOwnersRightToWriteComesBackAndNoOtherChanges) {
    fs::permissions(file_, fs::perms::owner_read | fs::perms::group_read);
    EXPECT_EQ(errorOf(file_), 0);
    EXPECT_EQ(permissionsOf(file_),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST_F(FileAttributes, AWritableFileIsLeftAlone) {
    fs::permissions(file_, fs::perms::owner_write);
    EXPECT_EQ(errorOf(file_), 0);
    EXPECT_EQ(permissionsOf(file_), fs::perms::owner_write);
}

TEST_F(FileAttributes, FoldersHaveItToo) {
    const fs::path inner = folder_.makeFolder("inner");
    fs::permissions(inner, fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_EQ(errorOf(inner), 0);
    EXPECT_NE(permissionsOf(inner) & fs::perms::owner_write, fs::perms::none);
}

TEST_F(FileAttributes, WhatIsMissingIsAnError) {
    EXPECT_EQ(errorOf(folder_ / "missing"), 53);
    EXPECT_FALSE(fs::exists(folder_ / "missing"));
}

TEST_F(FileAttributes, OnAReadOnlyDiskTheRightCannotBeGiven) {
    fs::permissions(file_, fs::perms::owner_read);
    const ReadOnlyMount disk(folder_.path());
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    EXPECT_EQ(errorOf(file_), 75);
    EXPECT_EQ(permissionsOf(file_), fs::perms::owner_read);
}

}  // namespace
}  // namespace quorvel::store
