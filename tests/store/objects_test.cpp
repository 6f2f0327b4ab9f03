#include "store/objects.h"

#include <gtest/gtest.h>
#include <map>
#include <set>

namespace quorvel::store {
namespace {

/// What an insertion leaves in a slot, fields that are not 0 alone.
const std::map<int, std::map<int, int>> kFresh = {
    {0, {{4, 1}, {5, 1}, {8, 1}, {9, 1}, {13, 1}}},
    {1, {{4, 10}, {5, 1}, {15, 1}, {17, 1}, {18, 1}, {22, 1}, {28, 15}}},
    {2, {{4, 1}, {15, 2}, {16, 1}, {19, 1}, {20, 1}, {25, 15}}},
    {3, {{4, 1}, {8, 1}, {16, 1}, {17, 1}, {21, 15}}},
    {4, {{4, 1}, {5, 10000}, {9, 1}, {13, 1}}},
    {5, {{4, 1}, {5, 1}, {17, 1}}},
    {6, {{4, 1}, {5, 1}, {9, 1}}},
    {7, {{5, 1}, {9, 1}, {13, 1}, {17, 1}, {21, 1}, {25, 1}}},
    {8, {{5, 1}, {6, 1}, {9, 4}}},
    {9, {{6, 1}, {10, 1}, {14, 1}, {18, 1}, {22, 1}, {26, 1}}},
};

TEST(Objects, AFreshOneHoldsTheValuesOfItsType) {
    for (const auto& [type, numbers] : kFresh) {
        ObjectSlot slot;
        for (int k = 1; k <= ObjectSlot::kInts; ++k) {
            slot.SlotInt(k) = static_cast<std::int16_t>(1000 + k);
        }
        for (int k = 1; k <= ObjectSlot::kStrs; ++k) {
            slot.SlotStr(k) = "old";
        }
        ResetSlot(slot, static_cast<ObjectType>(type), 12, -34);
        EXPECT_EQ(slot.SlotInt(1), type);
        EXPECT_EQ(slot.SlotInt(2), 12);
        EXPECT_EQ(slot.SlotInt(3), -34);
        for (int k = 4; k <= 29; ++k) {
            const auto row = numbers.find(k);
            EXPECT_EQ(slot.SlotInt(k), row == numbers.end() ? 0 : row->second)
                << "type " << type << " number " << k;
        }
        for (int k = 30; k <= 36; ++k) {
            EXPECT_EQ(slot.SlotInt(k), 1000 + k) << "reserved numbers stay";
        }
        for (int k = 1; k <= ObjectSlot::kStrs; ++k) {
            EXPECT_EQ(slot.SlotStr(k), type == 9 && k == 1 ? "1" : "") << "type " << type;
        }
    }
}

TEST(Objects, EachFieldOfATypeIsDescribedOnceAndWithinItsUse) {
    for (int type = 0; type < kObjectTypes; ++type) {
        std::set<std::pair<bool, int>> seen;
        std::set<std::string_view> names;
        for (const ObjectFieldInfo& field : objectFields(static_cast<ObjectType>(type))) {
            EXPECT_TRUE(seen.insert({field.isText, field.number}).second) << field.name;
            EXPECT_TRUE(names.insert(field.name).second) << field.name;
            EXPECT_GE(field.number, field.isText ? 1 : 4);
            EXPECT_LE(field.number, field.isText ? 7 : 29);
            const bool textUse = field.use == FieldUse::gfxFile ||
                                 field.use == FieldUse::mediaFile ||
                                 field.use == FieldUse::decimalText;
            EXPECT_EQ(textUse, field.isText) << field.name;
        }
    }
}

TEST(Objects, NamesStandForTheFieldsOfTheFile) {
    EXPECT_EQ(HotSpot::Pointer.number, 4);
    EXPECT_EQ(HotSpot::QuickSpot.number, 29);
    EXPECT_EQ(Responder::TargetScene.number, 15);
    EXPECT_EQ(MultiTrigger::TargetScene1.number, 12);
    EXPECT_EQ(MultiTrigger::TargetScene2.number, 20);
    EXPECT_EQ(MultiTrigger::TargetScene3.number, 28);
    EXPECT_EQ(FlagConjunction::TestValueF.number, 28);
    EXPECT_EQ(Goodie::FailureChannel.number, 25);
}

TEST(Objects, TypesBeyondTheKnownOnesAreNamedSo) {
    EXPECT_EQ(typeName(ObjectType::multiTrigger), "Multi-Trigger");
    EXPECT_EQ(typeName(ObjectType::free), "");
    for (const int type : {10, 99, -2, -7, 32767}) {
        EXPECT_EQ(typeName(static_cast<ObjectType>(type)), ">>> Unknown <<<") << type;
        EXPECT_FALSE(isKnownType(static_cast<ObjectType>(type)));
        EXPECT_TRUE(objectFields(static_cast<ObjectType>(type)).empty());
    }
}

}  // namespace
}  // namespace quorvel::store
