#include "store/file_identity.h"

#include <gtest/gtest.h>
#include <memory>

#include "support/file_bytes.h"
#include "support/temp_folder.h"

namespace quorvel::store {
namespace {

namespace fs = std::filesystem;
using test::TempFolder;
using test::writeBytes;

class FileIdentityTest : public ::testing::Test {
  protected:
    FileIdentityTest() { writeBytes(path_, "0123456789"); }
    const TempFolder folder_;
    const fs::path path_ = folder_ / "f";
};

#ifndef _WIN32
TEST_F(FileIdentityTest, TheSystemsNumbersDecideWhereItHasThem) {
    const test::OpenFile file = test::openFile(path_, "rb");
    const FileIdentity identity(file.get(), path_);
    EXPECT_EQ(identity.find(file.get(), path_, 10), FoundFile::same);
    EXPECT_EQ(identity.find(file.get(), path_, 11), FoundFile::same) << "whatever its length";
    fs::rename(path_, folder_ / "g");
    EXPECT_EQ(identity.find(file.get(), path_, 10), FoundFile::nothing);
    fs::copy_file(folder_ / "g", path_);
    EXPECT_EQ(identity.find(file.get(), path_, 10), FoundFile::another);
    fs::remove(path_);
    fs::create_hard_link(folder_ / "g", path_);
    EXPECT_EQ(identity.find(file.get(), path_, 10), FoundFile::same) << "by another name";
}
#endif

TEST_F(FileIdentityTest, NumbersThatDidNotHoldAtTheOpeningAreNotAskedLater) {
    // As on a disk that counts its files anew at each question.
    writeBytes(folder_ / "other", "0123456789");
    const test::OpenFile other = test::openFile(folder_ / "other", "rb");
    const FileIdentity identity(other.get(), path_);
    EXPECT_EQ(identity.find(other.get(), path_, 10), FoundFile::same);
    EXPECT_EQ(identity.find(other.get(), path_, 9), FoundFile::another);
    fs::remove(path_);
    EXPECT_EQ(identity.find(other.get(), path_, 10), FoundFile::nothing);
}

TEST_F(FileIdentityTest, WithoutNumbersTheLengthDecides) {
    EXPECT_EQ(findByLength(path_, 10), FoundFile::same);
    EXPECT_EQ(findByLength(path_, 9), FoundFile::another);
    EXPECT_EQ(findByLength(path_, 11), FoundFile::another);
    EXPECT_EQ(findByLength(folder_ / "missing", 10), FoundFile::nothing);
    EXPECT_EQ(findByLength(folder_ / "missing/f", 10), FoundFile::nothing);
    EXPECT_EQ(findByLength(path_ / "below", 10), FoundFile::nothing);
    EXPECT_EQ(findByLength(folder_.path(), 10), FoundFile::another) << "a folder is no file";
}

}  // namespace
}  // namespace quorvel::store
