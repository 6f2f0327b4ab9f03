#include "store/objects.h"

#include <array>

namespace quorvel::store {
namespace {

// clang-format off
constexpr std::array kAmbientFields = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/ambient.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kHotSpotFields = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/hotspot.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kGoodieFields = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/goodie.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kSwitchFields = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/switch.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kReactorFields = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/reactor.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kResponderFields = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/responder.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kDelayFields = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/delay.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kMultiTriggerFields = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/multi_trigger.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kConversationFields = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/conversation.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kFlagConjunctionFields = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/flag_conjunction.def"
#include "store/defs/objects/end.h"
};
// clang-format on

struct TypeRow {
    std::string_view name;
    std::span<const ObjectFieldInfo> fields;
};

/// Row n is type n.
constexpr std::array<TypeRow, kObjectTypes> kTypes = {{
    {"Ambient", kAmbientFields},
    {"HotSpot", kHotSpotFields},
    {"Goodie", kGoodieFields},
    {"Switch", kSwitchFields},
    {"Reactor", kReactorFields},
    {"Responder", kResponderFields},
    {"Delay", kDelayFields},
    {"Multi-Trigger", kMultiTriggerFields},
    {"Conversation", kConversationFields},
    {"Flag Conjunction", kFlagConjunctionFields},
}};

const TypeRow* rowOf(ObjectType type) {
    return isKnownType(type) ? &kTypes[static_cast<std::size_t>(type)] : nullptr;
}

}  // namespace

bool isKnownType(ObjectType type) {
    return type >= ObjectType::ambient && type <= ObjectType::flagConjunction;
}

bool hasPicture(ObjectType type) {
    return type >= ObjectType::ambient && type <= ObjectType::reactor;
}

std::span<const ObjectFieldInfo> objectFields(ObjectType type) {
    const TypeRow* row = rowOf(type);
    return row == nullptr ? std::span<const ObjectFieldInfo>() : row->fields;
}

std::string_view typeName(ObjectType type) {
    if (type == ObjectType::free) {
        return {};
    }
    const TypeRow* row = rowOf(type);
    return row == nullptr ? ">>> Unknown <<<" : row->name;
}

void ResetSlot(ObjectSlot& slot, ObjectType type, std::int16_t left, std::int16_t top) {
    constexpr int kLastUsed = 29;
    for (int k = 1; k <= ObjectSlot::kStrs; ++k) {
        slot.SlotStr(k).clear();
    }
    for (int k = 4; k <= kLastUsed; ++k) {
        slot.SlotInt(k) = 0;
    }
    number(slot, kType) = static_cast<std::int16_t>(type);
    number(slot, kLeft) = left;
    number(slot, kTop) = top;
    for (const ObjectFieldInfo& field : objectFields(type)) {
        if (field.isText) {
            slot.SlotStr(field.number) = field.newText;
        } else {
            slot.SlotInt(field.number) = field.newNumber;
        }
    }
}

}  // namespace quorvel::store
