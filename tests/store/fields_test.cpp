#include "store/fields.h"

#include <gtest/gtest.h>

namespace quorvel::store {
namespace {

static_assert(sizeof(IntField) == 2 && alignof(IntField) == 1);
static_assert(sizeof(TextField<15>) == 15 && alignof(TextField<15>) == 1);
static_assert(sizeof(TextFields<3, 15>) == 45);

TEST(IntField, EveryNumberComesBackLowByteFirst) {
    for (int number = -32768; number <= 32767; ++number) {
        IntField field;
        field = static_cast<std::int16_t>(number);
        ASSERT_EQ(field, number);
    }
    IntField field;
    field = 0x1234;
    EXPECT_EQ(reinterpret_cast<const unsigned char*>(&field)[0], 0x34);
    EXPECT_EQ(reinterpret_cast<const unsigned char*>(&field)[1], 0x12);
}

TEST(IntField, IsZeroBeforeItIsAssigned) {
    EXPECT_EQ(IntField{}, 0);
}

TEST(TextField, IsZeroBytesBeforeItIsAssignedAndReadsAsEmpty) {
    const TextField<4> field;
    EXPECT_EQ(field.bytes(), std::string_view("\0\0\0\0", 4));
    EXPECT_EQ(field.text(), "");
}

TEST(TextField, HoldsBlanksForAnEmptyText) {
    TextField<4> field;
    field = "";
    EXPECT_EQ(field.bytes(), "    ");
    EXPECT_EQ(field.text(), "");
}

TEST(TextField, CanBeUnsetAgain) {
    TextField<4> field;
    field = "abcd";
    field.unset();
    EXPECT_EQ(field, TextField<4>());
}

TEST(TextField, ComparesBytesNotTexts) {
    TextField<4> blank;
    blank = "";
    EXPECT_FALSE(blank == TextField<4>());
}

TEST(TextField, AnExactWidthComesBackAndOneMoreIsCut) {
    TextField<15> field;
    field = "123456789012345";
    EXPECT_EQ(field.text(), "123456789012345");
    field = "1234567890123456";
    EXPECT_EQ(field.text(), "123456789012345");
    field = "  padded  ";
    EXPECT_EQ(field.text(), "padded");
}

}  // namespace
}  // namespace quorvel::store
