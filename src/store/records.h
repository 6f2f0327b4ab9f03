/// The records of a project, byte for byte as they lie in its files.
///
/// Each record is described once, in its list under store/defs. From that list come the struct
/// here, whose layout is the file's, and the table of `fieldsOf`, from which new-record values,
/// the readable dump, the format page and the generic tests are made.
///
/// A value-initialised record is the zeroed record: texts of zero bytes, numbers 0.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "store/field_use.h"
#include "store/fields.h"

namespace quorvel::store {

// clang-format off
struct ProjectRecord {
#include "store/defs/begin_members.h"
#include "store/defs/project_record.def"
#include "store/defs/end.h"
};

struct ObjectSlotRecord {
#include "store/defs/begin_members.h"
#include "store/defs/object_slot_record.def"
#include "store/defs/end.h"
};

struct SceneRecord {
#include "store/defs/begin_members.h"
#include "store/defs/scene_record.def"
#include "store/defs/end.h"
};

struct GameSettingsRecord {
#include "store/defs/begin_members.h"
#include "store/defs/game_settings_record.def"
#include "store/defs/end.h"
};

struct ItemRecord {
#include "store/defs/begin_members.h"
#include "store/defs/item_record.def"
#include "store/defs/end.h"
};

struct LocationRecord {
#include "store/defs/begin_members.h"
#include "store/defs/location_record.def"
#include "store/defs/end.h"
};

struct CueCardRecord {
#include "store/defs/begin_members.h"
#include "store/defs/cue_card_record.def"
#include "store/defs/end.h"
};

struct SkinRecord {
#include "store/defs/begin_members.h"
#include "store/defs/skin_record.def"
#include "store/defs/end.h"
};
// clang-format on

// The lengths are the contract with the player.
static_assert(sizeof(ProjectRecord) == 342);
static_assert(sizeof(ObjectSlotRecord) == 207);
static_assert(sizeof(SceneRecord) == 4395);
static_assert(sizeof(GameSettingsRecord) == 908);
static_assert(sizeof(ItemRecord) == 209);
static_assert(sizeof(LocationRecord) == 112);
static_assert(sizeof(CueCardRecord) == 1712);
static_assert(sizeof(SkinRecord) == 612);

/// Objects in a scene.
inline constexpr int kSlotCount = 20;

/// One field of a record, or a run of equal fields.
struct FieldInfo : FieldTraits {
    enum class Kind : std::uint8_t { text, number, slots };

    std::string_view name;
    Kind kind;
    int offset;  ///< of the first element, in bytes
    int count;   ///< elements, 1 for a plain field
    int width;   ///< of one element, in bytes
    std::string_view meaning;
    /// New-record values: none leaves zero bytes, one holds for all elements.
    std::array<std::string_view, 5> newTexts;
    int newTextCount;
    std::int16_t newNumber;
};

/// The fields of record type `Record`, in file order.
template <class Record>
std::span<const FieldInfo> fieldsOf();

template <>
std::span<const FieldInfo> fieldsOf<ProjectRecord>();
template <>
std::span<const FieldInfo> fieldsOf<ObjectSlotRecord>();
template <>
std::span<const FieldInfo> fieldsOf<SceneRecord>();
template <>
std::span<const FieldInfo> fieldsOf<GameSettingsRecord>();
template <>
std::span<const FieldInfo> fieldsOf<ItemRecord>();
template <>
std::span<const FieldInfo> fieldsOf<LocationRecord>();
template <>
std::span<const FieldInfo> fieldsOf<CueCardRecord>();
template <>
std::span<const FieldInfo> fieldsOf<SkinRecord>();

/// A record type with its place, for code that goes over all of them.
struct RecordInfo {
    std::string_view name;
    std::string_view file;  ///< where such records lie, as the author knows it
    int length;             ///< in bytes
    std::span<const FieldInfo> fields;
    std::string_view about;  ///< what the record stands for, in a sentence or two
};

/// All record types that files are made of, and the object slot that the scene contains.
std::span<const RecordInfo> allRecords();

/// The bytes of element `element`, counted from 0, of a field; `bytes` is the whole record.
template <class Byte>
std::span<Byte> elementBytes(std::span<Byte> bytes, const FieldInfo& field, int element) {
    const auto width = static_cast<std::size_t>(field.width);
    return bytes.subspan(
        static_cast<std::size_t>(field.offset) + static_cast<std::size_t>(element) * width, width);
}

/// Fills `bytes`, a record of the given fields, with the values of a new record.
void fillNewRecord(std::span<char> bytes, std::span<const FieldInfo> fields);

/// Gives every text of `bytes`, a record of the given fields, that holds zero bytes alone the
/// blanks of an empty text. Texts whose new value is zero bytes are left as they are.
void blankUnsetTexts(std::span<char> bytes, std::span<const FieldInfo> fields);

/// The name of element `element`, counted from 0, of a field: `SlotInt5` is the second element of
/// `SlotInt4To29`, `DiscLabel2` of `DiscLabel`, `Reserved156(2)` of `Reserved156`. A plain field
/// has its own name.
std::string elementName(const FieldInfo& field, int element);

/// A readable dump of `bytes`, a whole record of the given fields: one line for each field element.
std::string dumpRecord(std::span<const char> bytes, std::span<const FieldInfo> fields);

/// The bytes of a record. The record must outlive the span.
template <class Record>
requires std::is_trivially_copyable_v<Record> std::span<char> bytesOf(Record& record) {
    return {reinterpret_cast<char*>(&record), sizeof(Record)};
}
template <class Record>
requires std::is_trivially_copyable_v<Record> std::span<const char> bytesOf(const Record& record) {
    return {reinterpret_cast<const char*>(&record), sizeof(Record)};
}

/// A record with the values of a new one.
template <class Record>
Record newRecord() {
    Record record{};
    fillNewRecord(bytesOf(record), fieldsOf<Record>());
    return record;
}

}  // namespace quorvel::store
