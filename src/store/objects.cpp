#include "store/objects.h"

#include <algorithm>
#include <array>
#include <deque>
#include <string>
#include <vector>

#include "store/numbers.h"

namespace quorvel::store {
namespace {

// clang-format off
constexpr std::array kAmbientList = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/ambient.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kHotSpotList = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/hotspot.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kGoodieList = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/goodie.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kSwitchList = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/switch.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kReactorList = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/reactor.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kResponderList = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/responder.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kDelayList = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/delay.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kMultiTriggerList = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/multi_trigger.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kConversationList = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/conversation.def"
#include "store/defs/objects/end.h"
};
constexpr std::array kFlagConjunctionList = {
#include "store/defs/objects/begin_table.h"
#include "store/defs/objects/flag_conjunction.def"
#include "store/defs/objects/end.h"
};
// clang-format on

struct TypeRow {
    std::string_view name;
    std::span<const ObjectFieldInfo> list;
};

/// Row n is type n.
constexpr std::array<TypeRow, kObjectTypes> kTypes = {{
    {"Ambient", kAmbientList},
    {"HotSpot", kHotSpotList},
    {"Goodie", kGoodieList},
    {"Switch", kSwitchList},
    {"Reactor", kReactorList},
    {"Responder", kResponderList},
    {"Delay", kDelayList},
    {"Multi-Trigger", kMultiTriggerList},
    {"Conversation", kConversationList},
    {"Flag Conjunction", kFlagConjunctionList},
}};

void mendSide(std::string& text) {
    if (val(text) < HotSpot::kLeastSide) {
        text = std::to_string(HotSpot::kLeastSide);
    }
}

const TypeRow* rowOf(ObjectType type) {
    return isKnownType(type) ? &kTypes[static_cast<std::size_t>(type)] : nullptr;
}

/// The fields of a list one by one.
class FieldTable {
  public:
    explicit FieldTable(std::span<const ObjectFieldInfo> list) {
        const auto rows = std::ranges::find(list, std::string_view(), &ObjectFieldInfo::name);
        fields_.assign(list.begin(), rows);
        if (rows != list.end()) {
            for (int row = 0; row < rows->rows.count; ++row) {
                addRow(rows->rows, row, {rows + 1, list.end()});
            }
        }
    }
    [[nodiscard]] std::span<const ObjectFieldInfo> fields() const { return fields_; }

  private:
    void addRow(const FieldRows& rows, int row, std::span<const ObjectFieldInfo> list) {
        for (ObjectFieldInfo field : list) {
            names_.push_back(std::string(field.name) + static_cast<char>(rows.label + row));
            field.name = names_.back();
            field.number += row * rows.stride;
            field.row = row + 1;
            fields_.push_back(field);
        }
    }

    std::deque<std::string> names_;  // none of them ever moves
    std::vector<ObjectFieldInfo> fields_;
};

}  // namespace

bool isKnownType(ObjectType type) {
    return type >= ObjectType::ambient && type <= ObjectType::flagConjunction;
}

bool hasPicture(ObjectType type) {
    return type >= ObjectType::ambient && type <= ObjectType::reactor;
}

std::span<const ObjectFieldInfo> describedFields(ObjectType type) {
    const TypeRow* row = rowOf(type);
    return row == nullptr ? std::span<const ObjectFieldInfo>() : row->list;
}

std::span<const ObjectFieldInfo> objectFields(ObjectType type) {
    static const std::vector<FieldTable> tables = [] {
        std::vector<FieldTable> all;
        all.reserve(kTypes.size());  // a name that is kept inside its string moves with the table
        for (const TypeRow& row : kTypes) {
            all.emplace_back(row.list);
        }
        return all;
    }();
    return isKnownType(type) ? tables[static_cast<std::size_t>(type)].fields()
                             : std::span<const ObjectFieldInfo>();
}

std::string_view typeName(ObjectType type) {
    if (type == ObjectType::free) {
        return {};
    }
    const TypeRow* row = rowOf(type);
    return row == nullptr ? ">>> Unknown <<<" : row->name;
}

bool isQuickSpot(const ObjectSlot& slot) {
    return typeOf(slot) == ObjectType::hotSpot && number(slot, HotSpot::QuickSpot) != 0;
}

void mendQuickSpot(ObjectSlot& slot) {
    if (isQuickSpot(slot)) {
        number(slot, HotSpot::QuickSpot) = 1;
        mendSide(word(slot, HotSpot::QuickHeight));
        mendSide(word(slot, HotSpot::QuickWidth));
    }
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
