/// The dictionary: every field of every record, one by one, for code that goes over all of them,
/// and the references that controls are bound by.
///
/// It is made from the lists under store/defs. What a field of an object slot is depends on the
/// object's type, so slots have a dictionary for each type.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "store/objects.h"
#include "store/records.h"
#include "store/scene.h"

namespace quorvel::store {

/// The types of record, in the order of `allRecords`.
enum class RecordKind : std::uint8_t {
    project,
    scene,
    slot,
    location,
    item,
    settings,
    card,
    skin,
};
inline constexpr int kRecordKinds = 8;

/// Name of a type of record, as `allRecords` has it.
std::string_view recordName(RecordKind kind);

/// A test of another number of the same record. Without a place it does not hold.
struct PlacedTest {
    int offset = -1;  ///< bytes from the start of the record
    int low = 0;
    int high = 0;
    bool inside = false;  ///< the number has to lie within the bounds, else outside
};

/// One field of a type of record, or one element of a run. It knows no record; the routines below
/// reach it in one. Entries of the dictionary live as long as the program.
struct FieldRef {
    RecordKind record = RecordKind::project;
    ObjectType type = ObjectType::free;  ///< of a field of a slot
    std::string_view name;               ///< of a run with its number: `ChoiceText3`
    bool isText = false;
    int offset = 0;  ///< bytes from the start of the record, in a slot from the start of the slot
    int width = 0;   ///< bytes; a text of so many characters fits
    FieldUse use = FieldUse::value;
    int file = -1;  ///< of a volume, pan or channel: offset of the field of the sound or movie
    SettingsSlice slice = SettingsSlice::none;
    /// The field has an effect only while one of them holds; always without any.
    std::array<PlacedTest, 2> when{};
};

/// All fields of a type of record in file order, without the slots of a scene. Of a slot those that
/// all types have; the others are those of `dictionary(type)`.
std::span<const FieldRef> dictionary(RecordKind kind);
/// The fields of an object: type, place, and what the type has; only the type of a free slot and of
/// an unknown type.
std::span<const FieldRef> dictionary(ObjectType type);

/// The field at `offset`. `std::out_of_range` when none begins there.
const FieldRef& fieldAt(std::span<const FieldRef> fields, std::size_t offset);

// Finding a field by the name that code knows it by.

template <class Record>
constexpr RecordKind kindOf();
template <>
constexpr RecordKind kindOf<ProjectRecord>() {
    return RecordKind::project;
}
template <>
constexpr RecordKind kindOf<SceneRecord>() {
    return RecordKind::scene;
}
template <>
constexpr RecordKind kindOf<LocationRecord>() {
    return RecordKind::location;
}
template <>
constexpr RecordKind kindOf<ItemRecord>() {
    return RecordKind::item;
}
template <>
constexpr RecordKind kindOf<GameSettingsRecord>() {
    return RecordKind::settings;
}
template <>
constexpr RecordKind kindOf<CueCardRecord>() {
    return RecordKind::card;
}
template <>
constexpr RecordKind kindOf<SkinRecord>() {
    return RecordKind::skin;
}

/// A field of a record, of a run its element `element`, from 0.
template <class Record, class Field>
const FieldRef& fieldRef(Field Record::*field, std::size_t element = 0) {
    static const Record probe{};
    const auto* at = reinterpret_cast<const char*>(&(probe.*field));
    std::size_t width = sizeof(Field);
    if constexpr (requires { typename Field::value_type; }) {
        width = sizeof(typename Field::value_type);
    }
    return fieldAt(dictionary(kindOf<Record>()),
                   static_cast<std::size_t>(at - bytesOf(probe).data()) + element * width);
}

/// A field of an object of `type`: `fieldRef(ObjectType::hotSpot, HotSpot::Pointer)`.
const FieldRef& fieldRef(ObjectType type, NumberField field);
const FieldRef& fieldRef(ObjectType type, WordField field);

/// A field of the scene's header; of a run of reserved ones the first.
const FieldRef& fieldRef(HeaderString field);
const FieldRef& fieldRef(HeaderInt field);

// Reaching a field in a record; `bytes` is the whole record, of a slot the whole slot.

/// The number of a field; of a text the number that it begins with.
std::int16_t readNumber(std::span<const char> bytes, const FieldRef& field);
/// Puts a number into a field; into a text as decimal number.
void writeNumber(std::span<char> bytes, const FieldRef& field, std::int16_t number);
/// The trimmed text in UTF-8; of a number the decimal number.
std::string readText(std::span<const char> bytes, const FieldRef& field);
/// Puts a text into a field, cut to its width. `field` must be a text.
void writeText(std::span<char> bytes, const FieldRef& field, std::string_view utf8);

/// Whether what the field holds has an effect: whether what switches it on is on. Bounds of the
/// record as a whole, such as a removed location, are not looked at.
bool hasEffect(std::span<const char> bytes, const FieldRef& field);

// Reaching a field in the scene that is in memory.

/// A number of the header or of an edge link. `std::out_of_range` for any other field.
std::int16_t& numberIn(Scene& scene, const FieldRef& field);
/// A text of the header. `std::out_of_range` for any other field.
std::string& textIn(Scene& scene, const FieldRef& field);
/// A number or a text of an object. `std::out_of_range` for any other field.
std::int16_t& numberIn(ObjectSlot& slot, const FieldRef& field);
std::string& textIn(ObjectSlot& slot, const FieldRef& field);

}  // namespace quorvel::store
