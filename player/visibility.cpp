#include "player/visibility.h"

#include <optional>

namespace quorvel::player {
namespace {

using store::number;
using store::NumberField;
using store::ObjectSlot;
using store::ObjectType;

/// The visibility group of a type.
struct Group {
    NumberField option;
    NumberField test;
    NumberField value;
};

template <class Type>
constexpr Group groupOf() {
    return {Type::Visibility, Type::VisibleTest, Type::VisibleValue};
}

std::optional<Group> groupOf(ObjectType type) {
    switch (type) {
        case ObjectType::ambient:
            return groupOf<store::Ambient>();
        case ObjectType::hotSpot:
            return groupOf<store::HotSpot>();
        case ObjectType::goodie:
            return groupOf<store::Goodie>();
        case ObjectType::switchObject:
            return groupOf<store::Switch>();
        case ObjectType::reactor:
            return groupOf<store::Reactor>();
        default:
            return std::nullopt;
    }
}

}  // namespace

bool holds(int flag, int comparison, int value) {
    switch (comparison) {
        case 0:
            return flag == value;
        case 1:
            return flag != value;
        case 2:
            return flag < value;
        case 3:
            return flag > value;
        default:
            return false;
    }
}

bool isVisibleAtStart(const ObjectSlot& slot) {
    const auto group = groupOf(store::typeOf(slot));
    if (!group) {
        return false;
    }
    constexpr int kWhenTestHolds = 2;
    return number(slot, group->option) != kWhenTestHolds ||
           holds(0, number(slot, group->test), number(slot, group->value));
}

bool movesByItself(const ObjectSlot& slot) {
    constexpr int kOnClick = 3;
    constexpr int kReactorOnClick = 5;
    switch (store::typeOf(slot)) {
        case ObjectType::hotSpot:
            return number(slot, store::HotSpot::Style) != kOnClick;
        case ObjectType::goodie:
            return number(slot, store::Goodie::Style) != kOnClick;
        case ObjectType::reactor:
            return number(slot, store::Reactor::Style) != kReactorOnClick;
        case ObjectType::switchObject:
            return false;
        default:
            return true;
    }
}

int sceneBehind(const ObjectSlot& slot) {
    constexpr int kToMap = 2;
    if (store::typeOf(slot) != ObjectType::hotSpot ||
        number(slot, store::HotSpot::TargetKind) == kToMap ||
        number(slot, store::HotSpot::NeedsItem) == 1) {
        return 0;
    }
    return number(slot, store::HotSpot::TargetScene);
}

int pointerOver(const ObjectSlot& slot) {
    constexpr int kHotSpot = 10;
    constexpr int kGoodie = 11;
    constexpr int kReactor = 12;
    switch (store::typeOf(slot)) {
        case ObjectType::hotSpot:
            return number(slot, store::HotSpot::Pointer);
        case ObjectType::goodie:
            return kGoodie;
        case ObjectType::switchObject:
            return kHotSpot;
        case ObjectType::reactor:
            return kReactor;
        default:
            return 0;
    }
}

}  // namespace quorvel::player
