/// The dictionary of objects: what each field of a slot means for each type.
///
/// Each type is described once, in its list under store/defs/objects. From the list come the names
/// here (`HotSpot::Pointer` rather than a bare 4) and the table of `objectFields`, from which the
/// values of a fresh object are taken. Rows of equal fields are named by their index, from 0:
/// `MultiTrigger::trigger(2).TargetScene`.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "store/scene.h"

namespace quorvel::store {

/// The values of `SlotInt1`. Every other number is a type that a newer version made: it is counted
/// and kept, and nothing of it is known.
enum class ObjectType : std::int16_t {
    free = -1,
    ambient,
    hotSpot,
    goodie,
    switchObject,
    reactor,
    responder,
    delay,
    multiTrigger,
    conversation,
    flagConjunction,
};
inline constexpr int kObjectTypes = 10;

/// A number or a text of a slot.
struct NumberField {
    int number;  ///< k of `SlotInt`k
    FieldUse use = FieldUse::value;
};
struct WordField {
    int number;  ///< k of `SlotStr`k
    FieldUse use = FieldUse::text;
};

// Fields that all types have.
inline constexpr NumberField kType{1, FieldUse::objectType};
inline constexpr NumberField kLeft{2, FieldUse::pixels};  ///< on the canvas
inline constexpr NumberField kTop{3, FieldUse::pixels};   ///< on the canvas
/// Of the types that have a picture.
inline constexpr WordField kPicture{1, FieldUse::gfxFile};

// clang-format off
struct Ambient {
#include "store/defs/objects/begin_names.h"
#include "store/defs/objects/ambient.def"
#include "store/defs/objects/end.h"
};
struct HotSpot {
#include "store/defs/objects/begin_names.h"
#include "store/defs/objects/hotspot.def"
#include "store/defs/objects/end.h"
    /// The lowest height and width of a QuickSpot, in pixels.
    static constexpr int kLeastSide = 5;
};
struct Goodie {
#include "store/defs/objects/begin_names.h"
#include "store/defs/objects/goodie.def"
#include "store/defs/objects/end.h"
};
struct Switch {
#include "store/defs/objects/begin_names.h"
#include "store/defs/objects/switch.def"
#include "store/defs/objects/end.h"
};
struct Reactor {
#include "store/defs/objects/begin_names.h"
#include "store/defs/objects/reactor.def"
#include "store/defs/objects/end.h"
};
struct Responder {
#include "store/defs/objects/begin_names.h"
#include "store/defs/objects/responder.def"
#include "store/defs/objects/end.h"
};
struct Delay {
#include "store/defs/objects/begin_names.h"
#include "store/defs/objects/delay.def"
#include "store/defs/objects/end.h"
};
struct MultiTrigger {
#include "store/defs/objects/begin_names.h"
#include "store/defs/objects/multi_trigger.def"
#include "store/defs/objects/end.h"
};
struct Conversation {
#include "store/defs/objects/begin_names.h"
#include "store/defs/objects/conversation.def"
#include "store/defs/objects/end.h"
};
struct FlagConjunction {
#include "store/defs/objects/begin_names.h"
#include "store/defs/objects/flag_conjunction.def"
#include "store/defs/objects/end.h"
};
// clang-format on

/// Rows of equal fields: how many, and how many numbers lie from one to the next.
struct FieldRows {
    int count = 0;
    int stride = 0;
    char label = '1';  ///< what the names of the first row end in
};

/// One row of a type's list.
struct ObjectFieldInfo : FieldTraits {
    std::string_view name;
    bool isText = false;
    int number = 0;  ///< k of `SlotStr`k or `SlotInt`k
    std::string_view newText;
    std::int16_t newNumber = 0;
    std::string_view meaning;
    FieldRows rows;  ///< of an entry without a name: all that follow it are one of those rows
    int row = 0;     ///< which of them the field is in, from 1; 0 in none
};

/// The fields of a type beyond the common ones, one by one; none for a free slot and for an unknown
/// type. In rows of equal fields a name bears the label of its row: `TargetScene2`.
std::span<const ObjectFieldInfo> objectFields(ObjectType type);

/// The same as the type's list says it: rows of equal fields are said once.
std::span<const ObjectFieldInfo> describedFields(ObjectType type);

inline std::int16_t number(const ObjectSlot& slot, NumberField field) {
    return slot.SlotInt(field.number);
}
inline std::int16_t& number(ObjectSlot& slot, NumberField field) {
    return slot.SlotInt(field.number);
}
inline const std::string& word(const ObjectSlot& slot, WordField field) {
    return slot.SlotStr(field.number);
}
inline std::string& word(ObjectSlot& slot, WordField field) {
    return slot.SlotStr(field.number);
}

/// Type of the object in `slot`.
inline ObjectType typeOf(const ObjectSlot& slot) {
    return static_cast<ObjectType>(number(slot, kType));
}

/// Name of a type, as its elements on the canvas bear it; empty for a free slot.
std::string_view typeName(ObjectType type);

/// True for the types 0 to 9.
bool isKnownType(ObjectType type);
/// True for the types that have a picture of their own, Ambient to Reactor.
bool hasPicture(ObjectType type);

/// True when the object in `slot` is a HotSpot without a picture of its own.
bool isQuickSpot(const ObjectSlot& slot);
/// Makes a QuickSpot valid: its mark 1, its sides at least the lowest. Other objects stay.
void mendQuickSpot(ObjectSlot& slot);

/// Makes `slot` a fresh object of `type` at a place in canvas pixels. The reserved fields, numbers
/// 30 to 36, stay as they are.
void ResetSlot(ObjectSlot& slot, ObjectType type, std::int16_t left = 0, std::int16_t top = 0);

}  // namespace quorvel::store
