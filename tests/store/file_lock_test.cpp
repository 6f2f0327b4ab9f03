#include "store/file_lock.h"

#include <gtest/gtest.h>
#include <memory>

#ifdef __linux__
#include <fcntl.h>
#endif

#include "support/file_bytes.h"
#include "support/temp_folder.h"

namespace quorvel::store {
namespace {

namespace fs = std::filesystem;
using test::TempFolder;

class Locks : public ::testing::Test {
  protected:
    Locks() { test::writeBytes(path_, "abc"); }
    [[nodiscard]] test::OpenFile open(const char* mode) const {
        return test::openFile(path_, mode);
    }

    TempFolder folder_;
    fs::path path_ = folder_ / "f";
};

TEST_F(Locks, TheSecondIsToldUntilTheFirstIsClosed) {
    test::OpenFile first = open("r+b");
    const test::OpenFile second = open("r+b");
    EXPECT_EQ(tryLock(first.get()), FileLock::taken);
    EXPECT_EQ(tryLock(first.get()), FileLock::taken) << "asking again changes nothing";
    EXPECT_EQ(tryLock(second.get()), FileLock::heldByAnother);
    first.reset();
    EXPECT_EQ(tryLock(second.get()), FileLock::taken);
}

TEST_F(Locks, ALockOutlivesOtherOpeningsOfTheSameFile) {
    const test::OpenFile first = open("r+b");
    ASSERT_EQ(tryLock(first.get()), FileLock::taken);
    open("rb").reset();
    const test::OpenFile second = open("r+b");
    EXPECT_EQ(tryLock(second.get()), FileLock::heldByAnother);
}

TEST_F(Locks, AReaderIsToldToo) {
    const test::OpenFile first = open("r+b");
    const test::OpenFile second = open("rb");
    ASSERT_EQ(tryLock(first.get()), FileLock::taken);
    EXPECT_EQ(tryLock(second.get()), FileLock::heldByAnother);
}

TEST_F(Locks, WritesNothingAndHindersNobody) {
    const auto before = test::snapshotOf(folder_.path());
    const test::OpenFile first = open("r+b");
    ASSERT_EQ(tryLock(first.get()), FileLock::taken);
    EXPECT_EQ(test::differences(before, test::snapshotOf(folder_.path())), "");
    test::patchBytes(path_, 1, "x");
    EXPECT_EQ(test::readBytes(path_), "axc");
}

#ifdef __linux__
TEST_F(Locks, WhereThereAreNoneIsNoFailure) {
    // As on a file system without locks: this way of opening knows none.
    const test::OpenFile file(::fdopen(::open(path_.c_str(), O_PATH), "rb"));
    ASSERT_TRUE(file);
    EXPECT_EQ(tryLock(file.get()), FileLock::unavailable);
}
#endif

}  // namespace
}  // namespace quorvel::store
