// The drawings for mouse pointers.
#include "forms/stock_pointers.h"

#include <gtest/gtest.h>
#include <set>

#include "forms/pictures.h"

namespace quorvel::test {
namespace {

TEST(StockPointers, EachHasADrawingOfItsOwn) {
    forms::PictureStore pictures;
    std::set<QString> names;
    for (int number = 1; number <= 14; ++number) {
        const QString name = forms::stockPointer(number);
        EXPECT_TRUE(names.insert(name).second) << number;
        const forms::PicturePtr picture = pictures.stock(name);
        EXPECT_EQ(picture->size(), QSize(32, 32)) << number;
        EXPECT_GT(qAlpha(picture->firstFrame().pixel(picture->firstFrame().rect().center())), 0)
            << number << ": pressed in the middle, so there is something";
    }
    for (const int number : {-1, 0, 15, 32767}) {
        EXPECT_EQ(forms::stockPointer(number), QString()) << number;
    }
}

}  // namespace
}  // namespace quorvel::test
