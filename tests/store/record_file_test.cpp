#include "store/record_file.h"

#include <gtest/gtest.h>

#include "store/runtime_error.h"
#include "support/file_bytes.h"
#include "support/temp_folder.h"

namespace quorvel::store {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;

class RecordFileTest : public ::testing::Test {
  protected:
    std::filesystem::path path_() const { return folder_ / "items.dat"; }
    /// A store of items named "1", "2" and so on.
    void writeItems(int count) {
        RecordFile<ItemRecord> file;
        file.openOrCreate(path_());
        for (int number = 1; number <= count; ++number) {
            auto record = newRecord<ItemRecord>();
            record.ItemName = std::to_string(number);
            file.write(number, record);
        }
    }
    TempFolder folder_;
};

TEST_F(RecordFileTest, RecordNLiesAtNMinusOneLengths) {
    writeItems(3);
    EXPECT_EQ(readBytes(path_()).size(), 627U);
    EXPECT_EQ(readBytes(path_(), 0, 2), "1 ");
    EXPECT_EQ(readBytes(path_(), 209, 2), "2 ");
    EXPECT_EQ(readBytes(path_(), 418, 2), "3 ");
}

TEST_F(RecordFileTest, AWriteTouchesItsRecordAlone) {
    writeBytes(path_(), test::randomBytes(std::size_t{209} * 3, 5));
    std::string expected = readBytes(path_());
    RecordFile<ItemRecord> file;
    file.open(path_());
    const auto record = newRecord<ItemRecord>();
    file.write(2, record);
    const auto bytes = bytesOf(record);
    expected.replace(209, 209, std::string(bytes.begin(), bytes.end()));
    EXPECT_EQ(readBytes(path_()), expected);
}

TEST_F(RecordFileTest, BeyondTheEndIsTheZeroedRecord) {
    writeItems(2);
    RecordFile<ItemRecord> file;
    file.open(path_());
    const ItemRecord zeroed{};
    for (const int number : {3, 4, 32767}) {
        const ItemRecord record = file.read(number);
        EXPECT_TRUE(std::ranges::equal(bytesOf(record), bytesOf(zeroed))) << number;
    }
    EXPECT_EQ(file.size(), 418U);
}

TEST_F(RecordFileTest, OfACutRecordTheRestIsZero) {
    writeBytes(path_(), std::string(209 + 130, 'x'));
    RecordFile<ItemRecord> file;
    file.open(path_());
    EXPECT_EQ(file.count(), 2);
    const ItemRecord record = file.read(2);
    EXPECT_EQ(record.ItemName.text(), std::string(15, 'x'));
    EXPECT_EQ(record.ItemCloseupImage.bytes(), std::string(5, 'x') + std::string(10, '\0'));
    EXPECT_EQ(record.ItemCombinePan, 0);
    EXPECT_EQ(file.size(), 209U + 130U);
}

TEST_F(RecordFileTest, NumbersBelowOneAreBad) {
    writeItems(1);
    RecordFile<ItemRecord> file;
    file.open(path_());
    for (const int number : {0, -1, -32768}) {
        EXPECT_THROW(file.read(number), RuntimeError);
        try {
            file.write(number, ItemRecord{});
            ADD_FAILURE() << number;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), 63);
        }
    }
    EXPECT_EQ(file.size(), 209U);
}

TEST_F(RecordFileTest, TheCountFollowsTheFile) {
    writeItems(2);
    RecordFile<ItemRecord> file;
    file.open(path_());
    EXPECT_EQ(file.count(), 2);
    file.write(3, ItemRecord{});
    EXPECT_EQ(file.count(), 3);
    test::truncateFile(path_(), 209 + 104);
    EXPECT_EQ(file.count(), 1);
}

/// What `readAll` hands over, glued together.
std::string allBytes(RecordFile<ItemRecord>& file, std::vector<int>* blocks = nullptr) {
    std::string bytes;
    int next = 1;
    file.readAll([&](int number, int count, std::span<const char> block) {
        EXPECT_EQ(number, next);
        EXPECT_EQ(block.size(), static_cast<std::size_t>(count) * 209);
        next += count;
        bytes.append(block.begin(), block.end());
        if (blocks != nullptr) {
            blocks->push_back(count);
        }
    });
    return bytes;
}

TEST_F(RecordFileTest, ReadAllHandsEveryRecordOverOnceInLargeBlocks) {
    const std::string bytes = test::randomBytes(std::size_t{209} * 12000, 3);
    writeBytes(path_(), bytes);
    RecordFile<ItemRecord> file;
    file.open(path_());
    std::vector<int> blocks;
    EXPECT_EQ(allBytes(file, &blocks), bytes);
    EXPECT_EQ(blocks.size(), 3U);
}

TEST_F(RecordFileTest, ReadAllOfACutStoreFillsUpWithZeros) {
    for (const int rest : {1, 104, 105, 208}) {
        const std::string bytes =
            test::randomBytes(std::size_t{209} * 2 + static_cast<std::size_t>(rest), 4);
        writeBytes(path_(), bytes);
        RecordFile<ItemRecord> file;
        file.open(path_());
        std::string expected = bytes;
        expected.resize(rest >= 105 ? 627 : 418, '\0');
        EXPECT_EQ(allBytes(file), expected) << rest;
        EXPECT_EQ(readBytes(path_()), bytes);
    }
}

TEST_F(RecordFileTest, ReadAllOfAnEmptyStoreHandsNothingOver) {
    writeBytes(path_(), "");
    RecordFile<ItemRecord> file;
    file.open(path_());
    file.readAll([](int, int, std::span<const char>) { ADD_FAILURE(); });
}

}  // namespace
}  // namespace quorvel::store
