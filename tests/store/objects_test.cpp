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
        }
    }
}

TEST(Objects, NamesStandForTheFieldsOfTheFile) {
    EXPECT_EQ(HotSpot::Pointer.number, 4);
    EXPECT_EQ(HotSpot::QuickSpot.number, 29);
    EXPECT_EQ(Responder::TargetScene.number, 15);
    EXPECT_EQ(FlagConjunction::SetFlag.number, 1);
    EXPECT_EQ(Goodie::FailureChannel.number, 25);
}

TEST(Objects, NamesKnowWhatTheirFieldsHold) {
    EXPECT_EQ(HotSpot::Pointer.use, FieldUse::pointer);
    EXPECT_EQ(Goodie::SuccessVolume.use, FieldUse::mediaVolume);
    EXPECT_EQ(FlagConjunction::SetFlag.use, FieldUse::flag);
    EXPECT_EQ(FlagConjunction::condition(5).TestFlag.use, FieldUse::flag);
    EXPECT_EQ(MultiTrigger::trigger(2).TargetScene.use, FieldUse::scene);
    EXPECT_EQ(kPicture.use, FieldUse::gfxFile);
}

TEST(Objects, RowsOfEqualFieldsLieOneBehindTheOther) {
    static_assert(MultiTrigger::kTriggers == 3);
    static_assert(FlagConjunction::kConditions == 6);
    for (int t = 0; t < MultiTrigger::kTriggers; ++t) {
        const MultiTrigger::Trigger trigger = MultiTrigger::trigger(t);
        const int base = 5 + 8 * t;
        EXPECT_EQ(trigger.TestFlag.number, base);
        EXPECT_EQ(trigger.TestComparison.number, base + 1);
        EXPECT_EQ(trigger.TestValue.number, base + 2);
        EXPECT_EQ(trigger.SetFlagOn.number, base + 3);
        EXPECT_EQ(trigger.SetFlag.number, base + 4);
        EXPECT_EQ(trigger.SetValue.number, base + 5);
        EXPECT_EQ(trigger.SetAdd.number, base + 6);
        EXPECT_EQ(trigger.TargetScene.number, base + 7);
    }
    for (int c = 0; c < FlagConjunction::kConditions; ++c) {
        const FlagConjunction::Condition condition = FlagConjunction::condition(c);
        const int base = 5 + 4 * c;
        EXPECT_EQ(condition.On.number, base);
        EXPECT_EQ(condition.TestFlag.number, base + 1);
        EXPECT_EQ(condition.TestComparison.number, base + 2);
        EXPECT_EQ(condition.TestValue.number, base + 3);
    }
}

TEST(Objects, FieldsOfARowBearItsLabel) {
    std::map<int, std::string_view> names;
    for (const ObjectFieldInfo& field : objectFields(ObjectType::multiTrigger)) {
        names[field.number] = field.name;
        EXPECT_EQ(field.row, field.number < 5 ? 0 : (field.number - 5) / 8 + 1) << field.name;
    }
    EXPECT_EQ(names.size(), 25U);
    EXPECT_EQ(names[4], "OnlyInScene");
    EXPECT_EQ(names[12], "TargetScene1");
    EXPECT_EQ(names[28], "TargetScene3");
    const auto conditions = objectFields(ObjectType::flagConjunction);
    EXPECT_EQ(conditions.size(), 28U);
    EXPECT_EQ(conditions[4].name, "OnA");
    EXPECT_EQ(conditions.back().name, "TestValueF");
    EXPECT_EQ(conditions.back().number, 28);
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
