#include "store/file_attributes.h"

#include <gtest/gtest.h>

#include "store/runtime_error.h"
#include "support/file_bytes.h"
#include "support/mounts.h"
#include "support/other_user.h"
#include "support/temp_folder.h"

namespace quorvel::store {
namespace {

namespace fs = std::filesystem;
using test::OtherUser;
using test::ReadOnlyMount;
using test::TempFolder;

constexpr fs::perms kReadAll =
    fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;

int errorOf(const fs::path& path, const fs::path& project) {
    try {
        clearReadOnlyAttribute(path, project);
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

    [[nodiscard]] int errorOf(const fs::path& path) const {
        return store::errorOf(path, folder_.path());
    }

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

TEST_F(FileAttributes, AReadOnlyDiskRefusesWhateverTheRightsSay) {
    const ReadOnlyMount disk(folder_.path());
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    EXPECT_EQ(errorOf(file_), 75);
    EXPECT_EQ(errorOf(folder_.path()), 75);
}

TEST_F(FileAttributes, AnotherOwnersFileIsReadOnlyUnlessTheRightsLetUsWriteIt) {
    fs::permissions(file_, kReadAll | fs::perms::owner_write);
    const fs::path common = folder_ / "common";
    test::writeBytes(common, "abc");
    fs::permissions(common, kReadAll | fs::perms::others_write);
    fs::permissions(folder_.path(), fs::perms::others_exec, fs::perm_options::add);
    const OtherUser author;
    if (!author.isPlayed()) {
        GTEST_SKIP() << author.whyNot();
    }
    EXPECT_EQ(errorOf(file_), 75);
    EXPECT_EQ(errorOf(folder_.path()), 75);
    EXPECT_EQ(errorOf(common), 0) << "although the owner himself cannot";
}

TEST_F(FileAttributes, ARightThatOnlyItsOwnerCanGiveIsNotGiven) {
    fs::permissions(folder_.path(), fs::perms::others_exec, fs::perm_options::add);
    fs::permissions(file_, kReadAll);
    const OtherUser author;
    if (!author.isPlayed()) {
        GTEST_SKIP() << author.whyNot();
    }
    EXPECT_EQ(errorOf(file_), 75);
    EXPECT_EQ(permissionsOf(file_), kReadAll);
}

TEST_F(FileAttributes, AnOwnerWithoutOtherPowersGetsTheRightBack) {
    fs::permissions(file_, kReadAll);
    OtherUser::own(folder_.path());
    const OtherUser author;
    if (!author.isPlayed()) {
        GTEST_SKIP() << author.whyNot();
    }
    EXPECT_EQ(errorOf(file_), 0);
    EXPECT_EQ(permissionsOf(file_), kReadAll | fs::perms::owner_write);
}

// Links

TEST_F(FileAttributes, BehindALinkOutOfTheProjectNoRightChanges) {
    const TempFolder elsewhere;
    const fs::path far = elsewhere / "far";
    test::writeBytes(far, "abc");
    fs::permissions(far, kReadAll);
    const fs::path farFolder = elsewhere.makeFolder("folder");
    fs::permissions(farFolder, fs::perms::owner_read | fs::perms::owner_exec);
    fs::create_symlink(far, folder_ / "link");
    fs::create_directory_symlink(farFolder, folder_ / "folder");
    (void)errorOf(folder_ / "link");
    (void)errorOf(folder_ / "folder");
    EXPECT_EQ(permissionsOf(far), kReadAll);
    EXPECT_EQ(permissionsOf(farFolder), fs::perms::owner_read | fs::perms::owner_exec);
}

TEST_F(FileAttributes, WhatALinkLeadsToOutsideCountsAsItIs) {
    const TempFolder elsewhere;
    fs::permissions(elsewhere.path(), fs::perms::others_exec, fs::perm_options::add);
    for (const char* name : {"open", "closed"}) {
        test::writeBytes(elsewhere / name, "abc");
        fs::create_symlink(elsewhere / name, folder_ / name);
    }
    fs::permissions(elsewhere / "closed", kReadAll);
    OtherUser::own(elsewhere.path());
    OtherUser::own(folder_.path());
    const OtherUser author;
    if (!author.isPlayed()) {
        GTEST_SKIP() << author.whyNot();
    }
    EXPECT_EQ(errorOf(folder_ / "open"), 0);
    EXPECT_EQ(errorOf(folder_ / "closed"), 75) << "his own, but outside";
    EXPECT_EQ(permissionsOf(elsewhere / "closed"), kReadAll);
}

TEST_F(FileAttributes, ALinkWithinTheProjectIsFollowed) {
    fs::permissions(file_, kReadAll);
    fs::create_symlink(file_, folder_ / "link");
    EXPECT_EQ(errorOf(folder_ / "link"), 0);
    EXPECT_EQ(permissionsOf(file_), kReadAll | fs::perms::owner_write);
}

TEST_F(FileAttributes, AProjectThatIsReachedThroughALinkIsTheProject) {
    fs::permissions(file_, kReadAll);
    const TempFolder elsewhere;
    const fs::path link = elsewhere / "project";
    fs::create_directory_symlink(folder_.path(), link);
    EXPECT_EQ(store::errorOf(link / "f", link), 0);
    EXPECT_EQ(permissionsOf(file_), kReadAll | fs::perms::owner_write);
}

TEST_F(FileAttributes, AFolderWhoseNameBeginsAlikeIsAnotherFolder) {
    const fs::path project = folder_.makeFolder("game");
    const fs::path other = folder_.makeFolder("game2") / "f";
    test::writeBytes(other, "abc");
    EXPECT_FALSE(liesWithin(other, project));
    EXPECT_TRUE(liesWithin(other, other.parent_path()));
    EXPECT_TRUE(liesWithin(project, project));
    EXPECT_FALSE(liesWithin(folder_.path(), project));
    EXPECT_FALSE(liesWithin(project / "missing", project));
}

}  // namespace
}  // namespace quorvel::store
