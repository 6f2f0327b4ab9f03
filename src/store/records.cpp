#include "store/records.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>

namespace quorvel::store {
namespace {

FieldInfo row(const FieldTraits& traits, FieldInfo::Kind kind, std::string_view name,
              std::size_t offset, int count, int width, std::string_view meaning) {
    return {traits, name, kind, static_cast<int>(offset), count, width, meaning, {}, 0, 0};
}

FieldInfo textRow(const FieldTraits& traits, std::string_view name, std::size_t offset, int count,
                  int width, std::string_view meaning,
                  std::initializer_list<std::string_view> values) {
    FieldInfo info = row(traits, FieldInfo::Kind::text, name, offset, count, width, meaning);
    std::copy(values.begin(), values.end(), info.newTexts.begin());
    info.newTextCount = static_cast<int>(values.size());
    return info;
}

FieldInfo intRow(const FieldTraits& traits, std::string_view name, std::size_t offset, int count,
                 std::string_view meaning, std::int16_t value) {
    constexpr int width = sizeof(IntField);
    FieldInfo info = row(traits, FieldInfo::Kind::number, name, offset, count, width, meaning);
    info.newNumber = value;
    return info;
}

FieldInfo slotRow(const FieldTraits& traits, std::string_view name, std::size_t offset, int count,
                  std::string_view meaning) {
    constexpr int width = sizeof(ObjectSlotRecord);
    return row(traits, FieldInfo::Kind::slots, name, offset, count, width, meaning);
}

std::string_view newText(const FieldInfo& field, int element) {
    const int row = field.newTextCount == 1 ? 0 : element;
    return field.newTexts[static_cast<std::size_t>(row)];
}

/// The fields of the slot that follow the slot's own number.
void fillNewSlot(std::span<char> bytes, int slot) {
    fillNewRecord(bytes, fieldsOf<ObjectSlotRecord>());
    auto* record = reinterpret_cast<ObjectSlotRecord*>(bytes.data());
    record->SlotInt31To36.fill(IntField{});
    for (IntField& field : record->SlotInt31To36) {
        field = static_cast<std::int16_t>(slot);
    }
}

}  // namespace

// clang-format off
template <> std::span<const FieldInfo> fieldsOf<ProjectRecord>() {
    static const std::array table = {
#define RECORD ProjectRecord
#include "store/defs/begin_table.h"
#include "store/defs/project_record.def"
#include "store/defs/end.h"
#undef RECORD
    };
    return table;
}

template <> std::span<const FieldInfo> fieldsOf<ObjectSlotRecord>() {
    static const std::array table = {
#define RECORD ObjectSlotRecord
#include "store/defs/begin_table.h"
#include "store/defs/object_slot_record.def"
#include "store/defs/end.h"
#undef RECORD
    };
    return table;
}

template <> std::span<const FieldInfo> fieldsOf<SceneRecord>() {
    static const std::array table = {
#define RECORD SceneRecord
#include "store/defs/begin_table.h"
#include "store/defs/scene_record.def"
#include "store/defs/end.h"
#undef RECORD
    };
    return table;
}

template <> std::span<const FieldInfo> fieldsOf<GameSettingsRecord>() {
    static const std::array table = {
#define RECORD GameSettingsRecord
#include "store/defs/begin_table.h"
#include "store/defs/game_settings_record.def"
#include "store/defs/end.h"
#undef RECORD
    };
    return table;
}

template <> std::span<const FieldInfo> fieldsOf<ItemRecord>() {
    static const std::array table = {
#define RECORD ItemRecord
#include "store/defs/begin_table.h"
#include "store/defs/item_record.def"
#include "store/defs/end.h"
#undef RECORD
    };
    return table;
}

template <> std::span<const FieldInfo> fieldsOf<LocationRecord>() {
    static const std::array table = {
#define RECORD LocationRecord
#include "store/defs/begin_table.h"
#include "store/defs/location_record.def"
#include "store/defs/end.h"
#undef RECORD
    };
    return table;
}

template <> std::span<const FieldInfo> fieldsOf<CueCardRecord>() {
    static const std::array table = {
#define RECORD CueCardRecord
#include "store/defs/begin_table.h"
#include "store/defs/cue_card_record.def"
#include "store/defs/end.h"
#undef RECORD
    };
    return table;
}

template <> std::span<const FieldInfo> fieldsOf<SkinRecord>() {
    static const std::array table = {
#define RECORD SkinRecord
#include "store/defs/begin_table.h"
#include "store/defs/skin_record.def"
#include "store/defs/end.h"
#undef RECORD
    };
    return table;
}
// clang-format on

namespace {
template <class Record>
RecordInfo infoOf(std::string_view name, std::string_view file, std::string_view about) {
    return {name, file, static_cast<int>(sizeof(Record)), fieldsOf<Record>(), about};
}
}  // namespace

std::span<const RecordInfo> allRecords() {
    static const std::array all = {
        infoOf<ProjectRecord>(
            "ProjectRecord", "<name>.qvl",
            "The one record of the project file: who made the project, and where the author "
            "stood when it was last closed."),
        infoOf<SceneRecord>(
            "SceneRecord", "resource/Quorvel1.dat",
            "Record n is scene n: a picture of 700 by 475 pixels, what is heard, the four "
            "edge links and 20 object slots."),
        infoOf<ObjectSlotRecord>(
            "ObjectSlot", "inside SceneRecord",
            "One object of a scene. Slot n begins at byte 255 + 207 × (n - 1) of the scene's "
            "record; offsets here count from the slot. The type in the first field decides "
            "what the texts and numbers mean. An edit of an object never touches the last "
            "seven numbers."),
        infoOf<LocationRecord>(
            "LocationRecord", "resource/Quorvel2.dat",
            "Record n is location n of the map, at most 20. A removed location keeps its "
            "record. Record 1 is always there, since it carries the map's picture, even when "
            "no location 1 exists."),
        infoOf<ItemRecord>(
            "ItemRecord", "resource/Quorvel3.dat",
            "Record n is inventory item n. Items are never removed. A combination is stored "
            "in both of its items."),
        infoOf<GameSettingsRecord>(
            "GameSettingsRecord", "resource/Quorvel4.dat",
            "The one record of the settings store: everything that holds for the whole game. "
            "Places on the player's screen are texts x/y in pixels."),
        infoOf<CueCardRecord>(
            "CueCardRecord", "resource/Quorvel5.dat",
            "Record n is cue card n: up to five choices of a conversation. In each run the "
            "first field belongs to choice 1."),
        infoOf<SkinRecord>(
            "SkinRecord", "skindata.ias",
            "The one record of a skin, which carries the look of a player from one project to "
            "another. It lies in the skin's folder, beside its pictures."),
    };
    return all;
}

void fillNewRecord(std::span<char> bytes, std::span<const FieldInfo> fields) {
    for (const FieldInfo& field : fields) {
        for (int i = 0; i < field.count; ++i) {
            const auto element = elementBytes(bytes, field, i);
            if (field.kind == FieldInfo::Kind::slots) {
                fillNewSlot(element, i + 1);
            } else if (field.kind == FieldInfo::Kind::number) {
                *reinterpret_cast<IntField*>(element.data()) = field.newNumber;
            } else if (field.newTextCount > 0) {
                writeField(element, newText(field, i));
            }
        }
    }
}

void blankUnsetTexts(std::span<char> bytes, std::span<const FieldInfo> fields) {
    for (const FieldInfo& field : fields) {
        for (int i = 0; i < field.count; ++i) {
            const auto element = elementBytes(bytes, field, i);
            const bool isOurs = field.kind == FieldInfo::Kind::text && field.newTextCount > 0;
            if (isOurs && std::ranges::all_of(element, [](char c) { return c == '\0'; })) {
                std::ranges::fill(element, ' ');
            }
        }
    }
}

std::string elementName(const FieldInfo& field, int element) {
    if (field.count == 1) {
        return std::string(field.name);
    }
    // A run that does not begin at 1 says so in its name: SlotInt4To29.
    const auto digits = field.name.find_first_of("0123456789");
    const auto to = field.name.find("To", digits == std::string_view::npos ? 0 : digits);
    int first = field.first;
    std::string_view stem = field.name;
    if (digits != std::string_view::npos && to != std::string_view::npos) {
        std::from_chars(field.name.data() + digits, field.name.data() + to, first);
        stem = field.name.substr(0, digits);
    }
    const std::string number = std::to_string(first + element);
    const bool endsInOffset = stem == field.name && digits != std::string_view::npos;
    return std::string(stem) + (endsInOffset ? "(" + number + ")" : number);
}

std::string dumpRecord(std::span<const char> bytes, std::span<const FieldInfo> fields) {
    std::string out;
    for (const FieldInfo& field : fields) {
        for (int i = 0; i < field.count; ++i) {
            const auto element = elementBytes(bytes, field, i);
            const std::string label = elementName(field, i);
            if (field.kind == FieldInfo::Kind::slots) {
                out += label + ":\n" + dumpRecord(element, fieldsOf<ObjectSlotRecord>());
            } else if (field.kind == FieldInfo::Kind::number) {
                const std::int16_t number = *reinterpret_cast<const IntField*>(element.data());
                out += label + " = " + std::to_string(number) + "\n";
            } else {
                out += label + " = \"" + readField({element.data(), element.size()}) + "\"\n";
            }
        }
    }
    return out;
}

}  // namespace quorvel::store
