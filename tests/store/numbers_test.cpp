#include "store/numbers.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "support/file_bytes.h"

namespace quorvel::store {
namespace {

TEST(Val, TakesTheLongestLeadingNumber) {
    EXPECT_EQ(val("42"), 42);
    EXPECT_EQ(val("-7"), -7);
    EXPECT_EQ(val("+7"), 7);
    EXPECT_EQ(val("3.75kg"), 3.75);
    EXPECT_EQ(val(".5"), 0.5);
    EXPECT_EQ(val("5."), 5);
    EXPECT_EQ(val("1.2.3"), 1.2);
    EXPECT_EQ(val("240/272"), 240);
    EXPECT_EQ(val("007"), 7);
}

TEST(Val, SkipsBlanks) {
    EXPECT_EQ(val("  1 2 3 "), 123);
    EXPECT_EQ(val("- 5"), -5);
}

TEST(Val, IsZeroWithoutANumber) {
    for (const char* text : {"", " ", "x1", "-", "+", ".", "-.", "--5", "+-5", "/5", "\u0661"}) {
        EXPECT_EQ(val(text), 0) << text;
    }
    EXPECT_EQ(val(std::string_view("\0"
                                   "5",
                                   2)),
              0);
}

TEST(Val, OfMoreDigitsThanANumberHoldsIsHugeAndNotZero) {
    EXPECT_GT(val(std::string(400, '9')), 1e300);
    EXPECT_LT(val("-" + std::string(400, '9')), -1e300);
    EXPECT_EQ(val("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(val(std::string(400, '0') + "5"), 5);
}

TEST(ValInt, RoundsHalvesToTheEvenNumber) {
    EXPECT_EQ(valInt("0.5"), 0);
    EXPECT_EQ(valInt("1.5"), 2);
    EXPECT_EQ(valInt("2.5"), 2);
    EXPECT_EQ(valInt("2.51"), 3);
    EXPECT_EQ(valInt("-1.5"), -2);
    EXPECT_EQ(valInt("-2.5"), -2);
}

TEST(ValInt, StaysWithinAnInt) {
    EXPECT_EQ(valInt("99999999999999"), std::numeric_limits<int>::max());
    EXPECT_EQ(valInt("-99999999999999"), -std::numeric_limits<int>::max());
    EXPECT_EQ(valInt(std::string(400, '9')), std::numeric_limits<int>::max());
}

TEST(ValInt, TakesAnyBytes) {
    for (std::uint32_t seed = 0; seed < 500; ++seed) {
        EXPECT_LE(valInt(test::randomBytes(20, seed)), std::numeric_limits<int>::max());
    }
}

TEST(RecordCount, OfAWholeFileIsExact) {
    for (const int count : {0, 1, 2, 20, 32767}) {
        EXPECT_EQ(recordCount(static_cast<std::uintmax_t>(count) * 4395, 4395), count);
    }
}

TEST(RecordCount, OfACutFileIsTheNearestNumber) {
    EXPECT_EQ(recordCount(1, 209), 0);
    EXPECT_EQ(recordCount(104, 209), 0);
    EXPECT_EQ(recordCount(105, 209), 1);
    EXPECT_EQ(recordCount(208, 209), 1);
    EXPECT_EQ(recordCount(209 + 104, 209), 1);
    EXPECT_EQ(recordCount(209 + 105, 209), 2);
}

TEST(RecordCount, RoundsHalvesToTheEvenNumber) {
    EXPECT_EQ(recordCount(56, 112), 0);
    EXPECT_EQ(recordCount(112 + 56, 112), 2);
    EXPECT_EQ(recordCount(2 * 112 + 56, 112), 2);
    EXPECT_EQ(recordCount(856, 1712), 0);
}

TEST(RecordCount, NeverPassesTheLargestRecordNumber) {
    EXPECT_EQ(recordCount(32768ULL * 4395, 4395), 32767);
    EXPECT_EQ(recordCount(std::numeric_limits<std::uintmax_t>::max(), 112), 32767);
}

}  // namespace
}  // namespace quorvel::store
