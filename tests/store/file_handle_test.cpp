#include "store/file_handle.h"

#include <fstream>
#include <gtest/gtest.h>
#include <optional>

#ifdef __linux__
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "store/runtime_error.h"
#include "support/file_bytes.h"
#include "support/mounts.h"
#include "support/temp_folder.h"

namespace quorvel::store {
namespace {

namespace fs = std::filesystem;
using test::readBytes;
using test::ReadOnlyMount;
using test::SmallDisk;
using test::TempFolder;
using test::writeBytes;

/// The number of the run-time error that `action` ends in, 0 when it ends well.
template <class Action>
int errorOf(Action action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

class FileHandleTest : public ::testing::Test {
  protected:
    TempFolder folder_;
};

TEST_F(FileHandleTest, ReadsByPositionAndNeverMakesTheFileLonger) {
    writeBytes(folder_ / "f", "0123456789");
    FileHandle file = FileHandle::open(folder_ / "f");
    EXPECT_TRUE(file.isOpen());
    EXPECT_TRUE(file.isWritable());
    EXPECT_EQ(file.path(), folder_ / "f");
    EXPECT_EQ(file.size(), 10U);
    std::string into(4, '#');
    EXPECT_EQ(file.readAt(3, into), 4U);
    EXPECT_EQ(into, "3456");
    EXPECT_EQ(file.readAt(8, into), 2U);
    EXPECT_EQ(file.readAt(10, into), 0U);
    EXPECT_EQ(file.readAt(1000000, into), 0U);
    EXPECT_EQ(file.size(), 10U);
    EXPECT_EQ(file.readAt(0, into), 4U);  // the end that was met is forgotten
    EXPECT_EQ(into, "0123");
}

TEST_F(FileHandleTest, WritesInPlaceAndAtTheEnd) {
    writeBytes(folder_ / "f", "0123456789");
    FileHandle file = FileHandle::open(folder_ / "f");
    file.writeAt(3, std::string("abc"));
    EXPECT_EQ(readBytes(folder_ / "f"), "012abc6789");  // at once, without a close
    file.writeAt(9, std::string("XYZ"));
    EXPECT_EQ(readBytes(folder_ / "f"), "012abc678XYZ");
    std::string into(2, '#');
    EXPECT_EQ(file.readAt(10, into), 2U);
    EXPECT_EQ(into, "YZ");
    EXPECT_EQ(file.size(), 12U);
}

TEST_F(FileHandleTest, AWriteBeyondTheEndFillsTheGapWithZeroBytes) {
    writeBytes(folder_ / "f", "01");
    FileHandle file = FileHandle::open(folder_ / "f");
    file.writeAt(4, std::string("x"));
    EXPECT_EQ(readBytes(folder_ / "f"), std::string("01\0\0x", 5));
}

TEST_F(FileHandleTest, AMissingFileIsNotCreatedByOpen) {
    EXPECT_EQ(errorOf([&] { FileHandle::open(folder_ / "missing"); }), 53);
    EXPECT_EQ(errorOf([&] { FileHandle::open(folder_ / "no folder/missing"); }), 76);
    writeBytes(folder_ / "file", "");
    EXPECT_EQ(errorOf([&] { FileHandle::open(folder_ / "file/missing"); }), 76);
    EXPECT_FALSE(fs::exists(folder_ / "missing"));
    EXPECT_FALSE(fs::exists(folder_ / "no folder"));
}

TEST_F(FileHandleTest, OpenOrCreateCreatesAnEmptyFileAndKeepsAFullOne) {
    EXPECT_EQ(FileHandle::openOrCreate(folder_ / "new").size(), 0U);
    writeBytes(folder_ / "old", "abc");
    EXPECT_EQ(FileHandle::openOrCreate(folder_ / "old").size(), 3U);
    EXPECT_EQ(readBytes(folder_ / "old"), "abc");
    EXPECT_EQ(errorOf([&] { FileHandle::openOrCreate(folder_ / "no folder/new"); }), 76);
}

TEST_F(FileHandleTest, NamesThatCannotBeFilesAreErrors) {
    EXPECT_EQ(errorOf([&] { FileHandle::open(folder_ / std::string(5000, 'x')); }), 52);
    EXPECT_NE(errorOf([&] { FileHandle::open(""); }), 0);
    // The system would stop reading at the zero byte and open another file.
    writeBytes(folder_ / "f", "abc");
    const fs::path withNul = folder_ / std::string("f\0.bmp", 6);
    EXPECT_EQ(errorOf([&] { FileHandle::open(withNul); }), 52);
    EXPECT_EQ(errorOf([&] { FileHandle::openOrCreate(withNul); }), 52);
}

TEST_F(FileHandleTest, AFolderIsRefused) {
    EXPECT_EQ(errorOf([&] { FileHandle::open(folder_.path()); }), 75);
    EXPECT_EQ(errorOf([&] { FileHandle::openOrCreate(folder_.path()); }), 75);
}

#ifdef __linux__
TEST_F(FileHandleTest, APipeIsRefusedWithoutWaiting) {
    const fs::path pipe = folder_ / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(errorOf([&] { FileHandle::open(pipe); }), 75);
    EXPECT_EQ(errorOf([&] { FileHandle::openOrCreate(pipe); }), 75);
}

TEST_F(FileHandleTest, ADeviceIsRefused) {
    EXPECT_EQ(errorOf([] { FileHandle::open("/dev/null"); }), 75);
    EXPECT_EQ(errorOf([] { FileHandle::open("/dev/zero"); }), 75);
}

std::uint64_t systemWrites() {
    std::ifstream counters("/proc/self/io");
    std::string name;
    std::uint64_t value = 0;
    while (counters >> name >> value) {
        if (name == "syscw:") {
            return value;
        }
    }
    return 0;
}

TEST_F(FileHandleTest, AWriteIsOneCallToTheSystem) {
    FileHandle file = FileHandle::openOrCreate(folder_ / "f");
    const std::string record(4395, 'x');
    const std::uint64_t before = systemWrites();
    if (before == 0 && systemWrites() == 0) {
        GTEST_SKIP() << "this system does not count the calls of a process";
    }
    constexpr std::uint64_t kWrites = 100;
    for (std::uint64_t i = 0; i < kWrites; ++i) {
        file.writeAt(i % 2 * record.size(), record);
    }
    file.close();
    const std::uint64_t calls = systemWrites() - before;
    EXPECT_GE(calls, kWrites);
    // A sanitizer makes a few calls of its own; a second call for each write would be a hundred.
    EXPECT_LT(calls, kWrites + kWrites / 2);
}

TEST_F(FileHandleTest, AProgramThatIsStartedDoesNotInheritTheFile) {
    const int probe = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    ASSERT_GE(probe, 0);
    ::close(probe);
    // The lowest free descriptor is the one that the handle gets.
    FileHandle file = FileHandle::openOrCreate(folder_ / "f");
    EXPECT_TRUE(file.isOpen());
    EXPECT_NE(::fcntl(probe, F_GETFD) & FD_CLOEXEC, 0);
}
#endif

TEST_F(FileHandleTest, TheSizeIsThatOfTheOpenFileWhateverHappensToItsName) {
    writeBytes(folder_ / "f", "0123456789");
    FileHandle file = FileHandle::open(folder_ / "f");
    fs::rename(folder_ / "f", folder_ / "g");
    EXPECT_EQ(file.size(), 10U);
    test::appendBytes(folder_ / "g", "x");
    EXPECT_EQ(file.size(), 11U);
}

#ifdef __linux__
/// What a write of one byte says of the file that is open.
std::optional<FileLoss> lossAtWrite(FileHandle& file) {
    try {
        file.writeAt(0, std::string("x"));
    } catch (const LostFileError& error) {
        EXPECT_EQ(error.file(), file.path());
        EXPECT_EQ(error.number(), error.loss() == FileLoss::shortened ? 63 : 53);
        return error.loss();
    }
    return std::nullopt;
}

TEST_F(FileHandleTest, AFileThatWasDeletedIsNotWritten) {
    writeBytes(folder_ / "f", "0123456789");
    FileHandle file = FileHandle::open(folder_ / "f");
    fs::remove(folder_ / "f");
    EXPECT_EQ(lossAtWrite(file), FileLoss::gone);
    EXPECT_FALSE(fs::exists(folder_ / "f"));
    std::string into(7, '#');
    EXPECT_EQ(file.readAt(0, into), 7U) << "it can still be read";
}

TEST_F(FileHandleTest, AFileThatWasMovedAwayIsNotWrittenAndIsKnownAgainWhenItIsBack) {
    fs::create_directory(folder_ / "resource");
    writeBytes(folder_ / "resource/f", "0123456789");
    FileHandle file = FileHandle::open(folder_ / "resource/f");
    fs::rename(folder_ / "resource/f", folder_ / "g");
    EXPECT_EQ(lossAtWrite(file), FileLoss::gone);
    fs::rename(folder_ / "g", folder_ / "resource/f");
    EXPECT_EQ(lossAtWrite(file), std::nullopt);
    fs::rename(folder_ / "resource", folder_ / "elsewhere");
    EXPECT_EQ(lossAtWrite(file), FileLoss::gone) << "with its folder";
    fs::rename(folder_ / "elsewhere", folder_ / "resource");
    EXPECT_EQ(lossAtWrite(file), std::nullopt);
}

TEST_F(FileHandleTest, AFileThatAnotherTookThePlaceOfIsNotWritten) {
    writeBytes(folder_ / "f", "0123456789");
    FileHandle file = FileHandle::open(folder_ / "f");
    // Of the same length and content, and the first one has a name left.
    fs::create_hard_link(folder_ / "f", folder_ / "kept");
    fs::copy_file(folder_ / "f", folder_ / "g");
    fs::rename(folder_ / "g", folder_ / "f");
    EXPECT_EQ(lossAtWrite(file), FileLoss::replaced);
    EXPECT_EQ(readBytes(folder_ / "f"), "0123456789");
    EXPECT_EQ(readBytes(folder_ / "kept"), "0123456789");
    file = FileHandle::open(folder_ / "f");
    EXPECT_EQ(lossAtWrite(file), std::nullopt);
}

TEST_F(FileHandleTest, ALinkThatLeadsElsewhereNowIsAnotherFile) {
    writeBytes(folder_ / "first", "0123456789");
    writeBytes(folder_ / "second", "abcdefghij");
    fs::create_symlink("first", folder_ / "f");
    FileHandle file = FileHandle::open(folder_ / "f");
    EXPECT_EQ(lossAtWrite(file), std::nullopt);
    fs::remove(folder_ / "f");
    fs::create_symlink("second", folder_ / "f");
    EXPECT_EQ(lossAtWrite(file), FileLoss::replaced);
    EXPECT_EQ(readBytes(folder_ / "second"), "abcdefghij");
}
#endif

TEST_F(FileHandleTest, WhatAFileHadAndHasNoMoreIsNeitherReadNorWritten) {
    writeBytes(folder_ / "f", "0123456789");
    FileHandle file = FileHandle::open(folder_ / "f");
    file.writeAt(10, std::string("ab"));
    test::truncateFile(folder_ / "f", 11);
    EXPECT_EQ(errorOf([&] { file.writeAt(0, std::string("x")); }), 63);
    EXPECT_EQ(errorOf([&] { file.writeAt(12, std::string("x")); }), 63);
    EXPECT_EQ(readBytes(folder_ / "f"), "0123456789a");
    std::string into(4, '#');
    EXPECT_EQ(file.readAt(7, into), 4U) << "what is still there can be read";
    EXPECT_EQ(errorOf([&] { file.readAt(8, into); }), 63);
    EXPECT_EQ(errorOf([&] { file.readAt(11, into); }), 63);
    EXPECT_EQ(file.readAt(12, into), 0U) << "was never there";
    test::appendBytes(folder_ / "f", "c");
    file.writeAt(0, std::string("x"));
    EXPECT_EQ(readBytes(folder_ / "f"), "x123456789ac");
}

TEST_F(FileHandleTest, AFileThatIsGoneCanBePutBack) {
    const std::string bytes = test::randomBytes((1U << 20U) + 77, 3);
    for (const std::string& content : {bytes, bytes.substr(0, 1U << 20U), std::string()}) {
        writeBytes(folder_ / "f", content);
        FileHandle file = FileHandle::open(folder_ / "f");
        fs::rename(folder_ / "f", folder_ / "aside");
        file.putBack();
        EXPECT_EQ(readBytes(folder_ / "f"), content);
        file.writeAt(0, std::string("x"));
        EXPECT_EQ(readBytes(folder_ / "f", 0, 1), "x");
        EXPECT_EQ(readBytes(folder_ / "aside"), content) << "what was moved stays as it was";
    }
}

TEST_F(FileHandleTest, PuttingBackTakesNoOtherFilesPlaceAndLeavesNoHalf) {
    writeBytes(folder_ / "f", "0123456789");
    FileHandle file = FileHandle::open(folder_ / "f");
    fs::rename(folder_ / "f", folder_ / "aside");
    writeBytes(folder_ / "f", "another");
    EXPECT_EQ(errorOf([&] { file.putBack(); }), 58);
    EXPECT_EQ(readBytes(folder_ / "f"), "another");
    std::string into(4, '#');
    EXPECT_EQ(file.readAt(0, into), 4U) << "the open file is still there";

    const SmallDisk disk(64);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    writeBytes(disk.path() / "f", std::string(20000, 'o'));
    FileHandle large = FileHandle::open(disk.path() / "f");
    fs::rename(disk.path() / "f", disk.path() / "aside");
    disk.fill();
    EXPECT_EQ(errorOf([&] { large.putBack(); }), 61);
    EXPECT_FALSE(fs::exists(disk.path() / "f"));
}

TEST_F(FileHandleTest, WhatOthersAppendIsReadAndKept) {
    writeBytes(folder_ / "f", "0123456789");
    FileHandle file = FileHandle::open(folder_ / "f");
    test::appendBytes(folder_ / "f", "abc");
    std::string into(3, '#');
    EXPECT_EQ(file.readAt(10, into), 3U);
    file.writeAt(0, std::string("x"));
    EXPECT_EQ(readBytes(folder_ / "f"), "x123456789abc");
}

TEST_F(FileHandleTest, AClosedHandleCannotBeUsed) {
    FileHandle file = FileHandle::openOrCreate(folder_ / "f");
    file.close();
    EXPECT_FALSE(file.isOpen());
    file.close();
    std::string into(1, '#');
    EXPECT_EQ(errorOf([&] { file.readAt(0, into); }), 52);
    EXPECT_EQ(errorOf([&] { file.writeAt(0, into); }), 52);
    EXPECT_EQ(errorOf([&] { (void)file.size(); }), 52);
    FileHandle never;
    EXPECT_EQ(errorOf([&] { never.readAt(0, into); }), 52);
    EXPECT_EQ(errorOf([&] { (void)never.size(); }), 52);
}

TEST_F(FileHandleTest, AFileOnAReadOnlyDiskIsReadAndNotWritten) {
    writeBytes(folder_ / "f", "abc");
    const ReadOnlyMount disk(folder_.path());
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    FileHandle file = FileHandle::open(folder_ / "f");
    EXPECT_FALSE(file.isWritable());
    std::string into(3, '#');
    EXPECT_EQ(file.readAt(0, into), 3U);
    EXPECT_EQ(into, "abc");
    EXPECT_EQ(errorOf([&] { file.writeAt(0, into); }), 75);
    EXPECT_EQ(errorOf([&] { FileHandle::openOrCreate(folder_ / "new"); }), 75);
}

TEST_F(FileHandleTest, AppendingToAFullDiskLeavesTheFileAsItWas) {
    const SmallDisk disk(64);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    const std::string old(4395, 'o');
    writeBytes(disk.path() / "f", old);
    disk.fill();
    FileHandle file = FileHandle::open(disk.path() / "f");
    // A part of the record still fits into the file's last block.
    EXPECT_EQ(errorOf([&] { file.writeAt(4395, std::string(4395, 'n')); }), 61);
    EXPECT_EQ(readBytes(disk.path() / "f"), old);
    EXPECT_EQ(file.size(), 4395U);
    disk.makeRoom();
    file.writeAt(4395, std::string(4395, 'n'));
    EXPECT_EQ(readBytes(disk.path() / "f"), old + std::string(4395, 'n'));
}

TEST_F(FileHandleTest, AWriteAcrossTheEndThatFailsPutsTheOldBytesBack) {
    const SmallDisk disk(64);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    const std::string old = test::randomBytes(5000, 1);
    writeBytes(disk.path() / "f", old);
    disk.fill();
    FileHandle file = FileHandle::open(disk.path() / "f");
    EXPECT_EQ(errorOf([&] { file.writeAt(4395, std::string(4395, 'n')); }), 61);
    EXPECT_EQ(readBytes(disk.path() / "f"), old);
}

TEST_F(FileHandleTest, OverwritingOnAFullDiskSucceeds) {
    const SmallDisk disk(64);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    writeBytes(disk.path() / "f", std::string(8790, 'o'));
    disk.fill();
    FileHandle file = FileHandle::open(disk.path() / "f");
    file.writeAt(4395, std::string(4395, 'n'));
    EXPECT_EQ(readBytes(disk.path() / "f"), std::string(4395, 'o') + std::string(4395, 'n'));
}

TEST_F(FileHandleTest, ALargeFileIsReadInOnePiece) {
    const std::string bytes = test::randomBytes(3000000, 7);
    writeBytes(folder_ / "f", bytes);
    FileHandle file = FileHandle::open(folder_ / "f");
    std::string read(bytes.size(), '\0');
    EXPECT_EQ(file.readAt(0, read), bytes.size());
    EXPECT_EQ(read, bytes);
    EXPECT_EQ(errorOf([&] { FileHandle::open(folder_ / "missing"); }), 53);
}

}  // namespace
}  // namespace quorvel::store
