#include "store/records.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>

namespace quorvel::store {
namespace {

FieldInfo textRow(std::string_view name, std::size_t offset, int count, int width,
                  std::string_view meaning, std::initializer_list<std::string_view> values) {
    FieldInfo info{};
    info.name = name;
    info.kind = FieldInfo::Kind::text;
    info.offset = static_cast<int>(offset);
    info.count = count;
    info.width = width;
    info.meaning = meaning;
    std::copy(values.begin(), values.end(), info.newTexts.begin());
    info.newTextCount = static_cast<int>(values.size());
    return info;
}

FieldInfo intRow(std::string_view name, std::size_t offset, int count, std::string_view meaning,
                 std::initializer_list<std::int16_t> values) {
    FieldInfo info{};
    info.name = name;
    info.kind = FieldInfo::Kind::number;
    info.offset = static_cast<int>(offset);
    info.count = count;
    info.width = 2;
    info.meaning = meaning;
    info.newNumber = *values.begin();
    return info;
}

FieldInfo slotRow(std::string_view name, std::size_t offset, int count, std::string_view meaning) {
    FieldInfo info{};
    info.name = name;
    info.kind = FieldInfo::Kind::slots;
    info.offset = static_cast<int>(offset);
    info.count = count;
    info.width = sizeof(ObjectSlotRecord);
    info.meaning = meaning;
    return info;
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
RecordInfo infoOf(std::string_view name, std::string_view file) {
    return {name, file, static_cast<int>(sizeof(Record)), fieldsOf<Record>()};
}
}  // namespace

std::span<const RecordInfo> allRecords() {
    static const std::array all = {
        infoOf<ProjectRecord>("ProjectRecord", "<name>.qvl"),
        infoOf<SceneRecord>("SceneRecord", "resource/Quorvel1.dat"),
        infoOf<ObjectSlotRecord>("ObjectSlot", "inside SceneRecord"),
        infoOf<LocationRecord>("LocationRecord", "resource/Quorvel2.dat"),
        infoOf<ItemRecord>("ItemRecord", "resource/Quorvel3.dat"),
        infoOf<GameSettingsRecord>("GameSettingsRecord", "resource/Quorvel4.dat"),
        infoOf<CueCardRecord>("CueCardRecord", "resource/Quorvel5.dat"),
        infoOf<SkinRecord>("SkinRecord", "skindata.ias"),
    };
    return all;
}

void fillNewRecord(std::span<char> bytes, std::span<const FieldInfo> fields) {
    for (const FieldInfo& field : fields) {
        for (int i = 0; i < field.count; ++i) {
            const auto element =
                bytes.subspan(static_cast<std::size_t>(field.offset + i * field.width),
                              static_cast<std::size_t>(field.width));
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
            const auto element =
                bytes.subspan(static_cast<std::size_t>(field.offset + i * field.width),
                              static_cast<std::size_t>(field.width));
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
    int first = 1;
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
            const auto element =
                bytes.subspan(static_cast<std::size_t>(field.offset + i * field.width),
                              static_cast<std::size_t>(field.width));
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
