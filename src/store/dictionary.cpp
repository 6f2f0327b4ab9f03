#include "store/dictionary.h"

#include <algorithm>
#include <deque>
#include <limits>
#include <stdexcept>
#include <vector>

#include "store/numbers.h"

namespace quorvel::store {
namespace {

constexpr int kNumberWidth = sizeof(IntField);
constexpr int kSlotTextWidth = ObjectSlot::kStrWidth;
static_assert(static_cast<int>(sizeof(ObjectSlotRecord::SlotStr)) ==
              kSlotTextWidth * ObjectSlot::kStrs);

/// Where a number or a text of a slot lies.
int slotOffset(NumberField field) {
    constexpr int inFront = 3;  // type and place lie before the texts
    const bool first = field.number <= inFront;
    const auto base = first ? 0 : offsetof(ObjectSlotRecord, SlotInt4To29);
    return static_cast<int>(base) + (field.number - (first ? 1 : inFront + 1)) * kNumberWidth;
}
int slotOffset(WordField field) {
    return static_cast<int>(offsetof(ObjectSlotRecord, SlotStr)) +
           (field.number - 1) * kSlotTextWidth;
}

/// The entries of one dictionary and their names, of which none ever moves.
class Table {
  public:
    explicit Table(RecordKind kind) {
        const std::span<const FieldInfo> fields =
            allRecords()[static_cast<std::size_t>(kind)].fields;
        for (const FieldInfo& field : fields) {
            if (field.use == FieldUse::byType || field.kind == FieldInfo::Kind::slots) {
                continue;
            }
            for (int element = 0; element < field.count; ++element) {
                addElement(kind, fields, field, element);
            }
        }
    }
    explicit Table(ObjectType type) {
        const auto common = fieldsOf<ObjectSlotRecord>().first(isKnownType(type) ? 3 : 1);
        for (const FieldInfo& field : common) {
            addElement(RecordKind::slot, common, field, 0);
            entries_.back().type = type;
        }
        for (const ObjectFieldInfo& field : objectFields(type)) {
            addObjectField(type, field);
        }
    }
    [[nodiscard]] std::span<const FieldRef> entries() const { return entries_; }

  private:
    void addElement(RecordKind kind, std::span<const FieldInfo> all, const FieldInfo& field,
                    int element) {
        // Fields of one row are elements of one number; a switch without a run is for all of them.
        const auto place = [&](std::string_view name) {
            const auto found = std::ranges::find(all, name, &FieldInfo::name);
            if (found == all.end()) {
                return -1;
            }
            return found->offset + (found->count == field.count ? element : 0) * found->width;
        };
        FieldRef entry;
        entry.record = kind;
        entry.name = names_.emplace_back(elementName(field, element));
        entry.isText = field.kind == FieldInfo::Kind::text;
        entry.offset = field.offset + element * field.width;
        entry.width = field.width;
        take(entry, field, place);
    }

    void addObjectField(ObjectType type, const ObjectFieldInfo& field) {
        const auto place = [&](std::string_view name) {
            for (const ObjectFieldInfo& other : objectFields(type)) {
                // The names of a row end in its label.
                const bool sameRow = other.row == field.row && other.row > 0;
                const auto bare = other.name.substr(0, other.name.size() - (sameRow ? 1 : 0));
                if (bare == name && (sameRow || other.row == 0)) {
                    return offsetOf(other);
                }
            }
            return -1;
        };
        FieldRef entry;
        entry.record = RecordKind::slot;
        entry.type = type;
        entry.name = field.name;
        entry.isText = field.isText;
        entry.offset = offsetOf(field);
        entry.width = field.isText ? kSlotTextWidth : kNumberWidth;
        take(entry, field, place);
    }

    static int offsetOf(const ObjectFieldInfo& field) {
        return field.isText ? slotOffset(WordField{field.number})
                            : slotOffset(NumberField{field.number});
    }

    template <class Place>
    void take(FieldRef& entry, const FieldTraits& traits, Place place) {
        entry.use = traits.use;
        entry.slice = traits.slice;
        entry.file = traits.file.empty() ? -1 : place(traits.file);
        const auto placed = [&](const FieldTest& test) -> PlacedTest {
            return {test.field.empty() ? -1 : place(test.field), test.low, test.high, test.inside};
        };
        entry.when = {placed(traits.when.either), placed(traits.when.other)};
        entries_.push_back(entry);
    }

    std::deque<std::string> names_;
    std::vector<FieldRef> entries_;
};

template <class Key>
std::vector<Table> tables(int first, int count) {
    std::vector<Table> all;
    all.reserve(static_cast<std::size_t>(count));
    for (int key = first; key < first + count; ++key) {
        all.emplace_back(static_cast<Key>(key));
    }
    return all;
}

std::span<const char> bytesAt(std::span<const char> bytes, const FieldRef& field) {
    return bytes.subspan(static_cast<std::size_t>(field.offset),
                         static_cast<std::size_t>(field.width));
}
std::span<char> bytesAt(std::span<char> bytes, const FieldRef& field) {
    return bytes.subspan(static_cast<std::size_t>(field.offset),
                         static_cast<std::size_t>(field.width));
}

int numberAt(std::span<const char> bytes, int offset) {
    return *reinterpret_cast<const IntField*>(bytes.data() + offset);
}

/// The field number `place`, from 0, among the texts or the numbers of the scene's header.
const FieldRef& headerField(bool isText, std::size_t place) {
    for (const FieldRef& field : dictionary(RecordKind::scene)) {
        if (field.isText == isText && place-- == 0) {
            return field;
        }
    }
    throw std::out_of_range("no such field in the scene's header");
}

/// The place of `field` among the texts or the numbers of the scene's header.
std::size_t headerPlace(const FieldRef& field) {
    const auto all = dictionary(RecordKind::scene);
    const auto here = std::ranges::find(all, field.offset, &FieldRef::offset);
    return static_cast<std::size_t>(
        std::ranges::count(all.begin(), here, field.isText, &FieldRef::isText));
}

std::int16_t* linkNumber(EdgeLink& link, const LinkOffsets& offsets, std::size_t offset) {
    const std::array<std::pair<std::size_t, std::int16_t*>, 6> places = {
        {{offsets.pointer, &link.pointer},
         {offsets.target, &link.target},
         {offsets.top, &link.top},
         {offsets.left, &link.left},
         {offsets.width, &link.width},
         {offsets.height, &link.height}}};
    const auto found =
        std::ranges::find(places, offset, &std::pair<std::size_t, std::int16_t*>::first);
    return found == places.end() ? nullptr : found->second;
}

void require(bool holds) {
    if (!holds) {
        throw std::out_of_range("the field is not one of this record");
    }
}

}  // namespace

std::string_view recordName(RecordKind kind) {
    return allRecords()[static_cast<std::size_t>(kind)].name;
}

std::span<const FieldRef> dictionary(RecordKind kind) {
    static const std::vector<Table> all = tables<RecordKind>(0, kRecordKinds);
    return all.at(static_cast<std::size_t>(kind)).entries();
}

std::span<const FieldRef> dictionary(ObjectType type) {
    // The first table is that of the types of which nothing is known.
    static const std::vector<Table> all = tables<ObjectType>(-1, kObjectTypes + 1);
    return all[isKnownType(type) ? static_cast<std::size_t>(type) + 1 : 0].entries();
}

const FieldRef& fieldAt(std::span<const FieldRef> fields, std::size_t offset) {
    const auto found = std::ranges::find(fields, static_cast<int>(offset), &FieldRef::offset);
    if (found == fields.end()) {
        throw std::out_of_range("no field begins there");
    }
    return *found;
}

const FieldRef& fieldRef(ObjectType type, NumberField field) {
    return fieldAt(dictionary(type), static_cast<std::size_t>(slotOffset(field)));
}

const FieldRef& fieldRef(ObjectType type, WordField field) {
    return fieldAt(dictionary(type), static_cast<std::size_t>(slotOffset(field)));
}

const FieldRef& fieldRef(HeaderString field) {
    return headerField(true, static_cast<std::size_t>(field));
}

const FieldRef& fieldRef(HeaderInt field) {
    return headerField(false, static_cast<std::size_t>(field));
}

std::int16_t readNumber(std::span<const char> bytes, const FieldRef& field) {
    using Limits = std::numeric_limits<std::int16_t>;
    const int number =
        field.isText ? valInt(readText(bytes, field)) : numberAt(bytes, field.offset);
    return static_cast<std::int16_t>(std::clamp<int>(number, Limits::min(), Limits::max()));
}

void writeNumber(std::span<char> bytes, const FieldRef& field, std::int16_t number) {
    if (field.isText) {
        writeText(bytes, field, std::to_string(number));
    } else {
        *reinterpret_cast<IntField*>(bytesAt(bytes, field).data()) = number;
    }
}

std::string readText(std::span<const char> bytes, const FieldRef& field) {
    if (!field.isText) {
        return std::to_string(numberAt(bytes, field.offset));
    }
    const auto text = bytesAt(bytes, field);
    return readField({text.data(), text.size()});
}

void writeText(std::span<char> bytes, const FieldRef& field, std::string_view utf8) {
    require(field.isText);
    writeField(bytesAt(bytes, field), utf8);
}

bool hasEffect(std::span<const char> bytes, const FieldRef& field) {
    bool tested = false;
    for (const PlacedTest& test : field.when) {
        if (test.offset >= 0) {
            const int number = numberAt(bytes, test.offset);
            if ((number >= test.low && number <= test.high) == test.inside) {
                return true;
            }
            tested = true;
        }
    }
    return !tested;
}

std::int16_t& numberIn(Scene& scene, const FieldRef& field) {
    require(field.record == RecordKind::scene && !field.isText);
    for (const LinkSide side : kLinkSides) {
        const auto offset = static_cast<std::size_t>(field.offset);
        if (auto* number = linkNumber(scene.link(side), linkOffsets(side), offset)) {
            return *number;
        }
    }
    return scene.HeaderInts.at(headerPlace(field));
}

std::string& textIn(Scene& scene, const FieldRef& field) {
    require(field.record == RecordKind::scene && field.isText);
    return scene.HeaderStrings.at(headerPlace(field));
}

std::int16_t& numberIn(ObjectSlot& slot, const FieldRef& field) {
    require(field.record == RecordKind::slot && !field.isText);
    for (int number = 1; number <= ObjectSlot::kInts; ++number) {
        if (slotOffset(NumberField{number}) == field.offset) {
            return slot.SlotInt(number);
        }
    }
    throw std::out_of_range("no number of a slot begins there");
}

std::string& textIn(ObjectSlot& slot, const FieldRef& field) {
    require(field.record == RecordKind::slot && field.isText);
    return slot.SlotStr((field.offset - slotOffset(WordField{1})) / kSlotTextWidth + 1);
}

}  // namespace quorvel::store
