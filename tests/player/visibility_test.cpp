// What a scene begins with, type by type.
#include "player/visibility.h"

#include <gtest/gtest.h>
#include <vector>

namespace quorvel::player {
namespace {

using store::NumberField;
using store::ObjectSlot;
using store::ObjectType;

ObjectSlot objectOf(ObjectType type) {
    ObjectSlot slot;
    store::ResetSlot(slot, type);
    return slot;
}

struct Group {
    ObjectType type;
    NumberField option;
    NumberField flag;
    NumberField test;
    NumberField value;
};

template <class Type>
Group groupOf(ObjectType type) {
    return {type, Type::Visibility, Type::VisibleFlag, Type::VisibleTest, Type::VisibleValue};
}

std::vector<Group> groups() {
    return {groupOf<store::Ambient>(ObjectType::ambient),
            groupOf<store::HotSpot>(ObjectType::hotSpot),
            groupOf<store::Goodie>(ObjectType::goodie),
            groupOf<store::Switch>(ObjectType::switchObject),
            groupOf<store::Reactor>(ObjectType::reactor)};
}

TEST(Visibility, EachComparisonIsMadeAgainstFlagsOfZero) {
    struct Case {
        std::int16_t test;
        std::int16_t value;
        bool visible;
    };
    for (const Group& group : groups()) {
        for (const Case& c :
             {Case{0, 0, true}, Case{0, 1, false}, Case{1, 0, false}, Case{1, 1, true},
              Case{2, 0, false}, Case{2, 1, true}, Case{3, 0, false}, Case{3, -1, true},
              Case{4, 0, false}, Case{-1, 0, false}}) {
            ObjectSlot slot = objectOf(group.type);
            store::number(slot, group.option) = 2;
            store::number(slot, group.flag) = 77;
            store::number(slot, group.test) = c.test;
            store::number(slot, group.value) = c.value;
            EXPECT_EQ(isVisibleAtStart(slot), c.visible)
                << static_cast<int>(group.type) << " test " << c.test << " value " << c.value;
            store::number(slot, group.option) = 1;
            EXPECT_TRUE(isVisibleAtStart(slot));
            store::number(slot, group.option) = 0;
            EXPECT_TRUE(isVisibleAtStart(slot)) << "0 counts as always";
        }
    }
}

TEST(Visibility, FreshObjectsOfVisibleTypesAreSeen) {
    for (const Group& group : groups()) {
        EXPECT_TRUE(isVisibleAtStart(objectOf(group.type))) << static_cast<int>(group.type);
    }
}

TEST(Visibility, HiddenAndUnknownTypesAreNeverSeen) {
    for (const int type : {-32768, -2, -1, 5, 6, 7, 8, 9, 10, 32767}) {
        ObjectSlot slot;
        store::number(slot, store::kType) = static_cast<std::int16_t>(type);
        EXPECT_FALSE(isVisibleAtStart(slot)) << type;
    }
}

TEST(Movement, WhatWaitsForAClickRests) {
    const auto moves = [](ObjectType type, NumberField style, std::int16_t value) {
        ObjectSlot slot = objectOf(type);
        store::number(slot, style) = value;
        return movesByItself(slot);
    };
    EXPECT_TRUE(moves(ObjectType::ambient, store::Ambient::Style, 3)) << "once, but by itself";
    EXPECT_TRUE(moves(ObjectType::hotSpot, store::HotSpot::Style, 2));
    EXPECT_FALSE(moves(ObjectType::hotSpot, store::HotSpot::Style, 3));
    EXPECT_TRUE(moves(ObjectType::goodie, store::Goodie::Style, 1));
    EXPECT_FALSE(moves(ObjectType::goodie, store::Goodie::Style, 3));
    EXPECT_TRUE(moves(ObjectType::reactor, store::Reactor::Style, 4));
    EXPECT_FALSE(moves(ObjectType::reactor, store::Reactor::Style, 5));
    EXPECT_FALSE(movesByItself(objectOf(ObjectType::switchObject)));
}

TEST(WaysOut, OnlyAHotSpotThatNeedsNothingLeadsToAScene) {
    ObjectSlot slot = objectOf(ObjectType::hotSpot);
    EXPECT_EQ(sceneBehind(slot), 0);
    store::number(slot, store::HotSpot::TargetScene) = 7;
    EXPECT_EQ(sceneBehind(slot), 7);
    store::number(slot, store::HotSpot::TargetKind) = 2;
    EXPECT_EQ(sceneBehind(slot), 0) << "the map";
    store::number(slot, store::HotSpot::TargetKind) = 0;
    EXPECT_EQ(sceneBehind(slot), 7) << "0 counts as a scene";
    store::number(slot, store::HotSpot::NeedsItem) = 1;
    EXPECT_EQ(sceneBehind(slot), 0) << "nobody has the item";
    ObjectSlot other = objectOf(ObjectType::reactor);
    store::number(other, store::HotSpot::TargetScene) = 7;
    EXPECT_EQ(sceneBehind(other), 0);
}

TEST(PointersOver, ByType) {
    ObjectSlot slot = objectOf(ObjectType::hotSpot);
    EXPECT_EQ(pointerOver(slot), 10);
    store::number(slot, store::HotSpot::Pointer) = 3;
    EXPECT_EQ(pointerOver(slot), 3);
    EXPECT_EQ(pointerOver(objectOf(ObjectType::goodie)), 11);
    EXPECT_EQ(pointerOver(objectOf(ObjectType::reactor)), 12);
    EXPECT_EQ(pointerOver(objectOf(ObjectType::ambient)), 0);
}

}  // namespace
}  // namespace quorvel::player
