#include "store/scene.h"

#include <algorithm>

namespace quorvel::store {
namespace {

/// Calls `text(field bytes, i)` and `number(field, i)` for the header fields before the edge links,
/// each counted on its own in the order of the file.
template <class Bytes, class OnText, class OnNumber>
void forEachHeaderField(Bytes bytes, OnText onText, OnNumber onNumber) {
    std::size_t texts = 0;
    std::size_t numbers = 0;
    for (const FieldInfo& field : fieldsOf<SceneRecord>()) {
        for (int i = 0; i < field.count; ++i) {
            const auto at = elementBytes(bytes, field, i);
            if (field.kind == FieldInfo::Kind::text) {
                onText(at, texts++);
            } else if (numbers < kHeaderInts) {
                onNumber(at, numbers++);
            } else {
                return;
            }
        }
    }
}

/// Calls `visit(record field, link field)` for the fields of the four edge links; works on const
/// and plain scenes.
template <class Field, class Bytes, class Scene, class Visit>
void forEachLinkField(Bytes bytes, Scene& scene, Visit visit) {
    const auto at = [bytes](std::size_t offset) -> Field& {
        return *reinterpret_cast<Field*>(bytes.data() + offset);
    };
    for (const LinkSide side : kLinkSides) {
        const LinkOffsets offsets = linkOffsets(side);
        auto& link = scene.link(side);
        visit(at(offsets.pointer), link.pointer);
        visit(at(offsets.target), link.target);
        visit(at(offsets.top), link.top);
        visit(at(offsets.left), link.left);
        visit(at(offsets.width), link.width);
        visit(at(offsets.height), link.height);
    }
}

/// The same for the fields of a slot and its record.
template <class Record, class Slot, class Visit>
void forEachSlotField(Record& record, Slot& slot, Visit visit) {
    visit(record.SlotInt1, slot.SlotInt(1));
    visit(record.SlotInt2, slot.SlotInt(2));
    visit(record.SlotInt3, slot.SlotInt(3));
    for (int i = 0; i < ObjectSlot::kStrs; ++i) {
        visit(record.SlotStr[static_cast<std::size_t>(i)], slot.SlotStr(i + 1));
    }
    for (std::size_t i = 0; i < record.SlotInt4To29.size(); ++i) {
        visit(record.SlotInt4To29[i], slot.SlotInt(4 + static_cast<int>(i)));
    }
    visit(record.SlotInt30, slot.SlotInt(30));
    for (std::size_t i = 0; i < record.SlotInt31To36.size(); ++i) {
        visit(record.SlotInt31To36[i], slot.SlotInt(31 + static_cast<int>(i)));
    }
}

struct TakeField {
    void operator()(const IntField& field, std::int16_t& value) const { value = field; }
    void operator()(const TextField<15>& field, std::string& value) const { value = field.text(); }
};

struct GiveField {
    void operator()(IntField& field, std::int16_t value) const { field = value; }
    void operator()(TextField<15>& field, const std::string& value) const { field = value; }
};

}  // namespace

LinkOffsets linkOffsets(LinkSide side) {
    constexpr std::size_t way = offsetof(SceneRecord, LinkUpPointer);
    constexpr std::size_t area = offsetof(SceneRecord, LinkUpTop);
    constexpr std::size_t number = sizeof(IntField);
    constexpr std::size_t wayStride = 2 * number;
    constexpr std::size_t areaStride = 4 * number;
    static_assert(way + 3 * wayStride == offsetof(SceneRecord, LinkRightPointer));
    static_assert(area + 3 * areaStride == offsetof(SceneRecord, LinkRightTop));
    constexpr std::array order = {LinkSide::up, LinkSide::down, LinkSide::left, LinkSide::right};
    const auto place =
        static_cast<std::size_t>(std::ranges::find(order, side) - order.begin()) % order.size();
    const std::size_t wayHere = way + place * wayStride;
    const std::size_t areaHere = area + place * areaStride;
    return {wayHere,           wayHere + number,      areaHere,
            areaHere + number, areaHere + 2 * number, areaHere + 3 * number};
}

EdgeLink defaultLink(LinkSide side) {
    static const Scene fresh = [] {
        Scene scene;
        scene.take(newRecord<SceneRecord>());
        return scene;
    }();
    return fresh.link(side);
}

void Scene::ResetScene() {
    *this = Scene{};
    for (const LinkSide side : kLinkSides) {
        link(side) = defaultLink(side);
    }
    for (ObjectSlot& slot : slots_) {
        slot.SlotInt(1) = -1;
    }
}

const EdgeLink& Scene::link(LinkSide side) const {
    switch (side) {
        case LinkSide::left:
            return LinkLeft;
        case LinkSide::up:
            return LinkUp;
        case LinkSide::right:
            return LinkRight;
        case LinkSide::down:
            break;
    }
    return LinkDown;
}

EdgeLink& Scene::link(LinkSide side) {
    return const_cast<EdgeLink&>(static_cast<const Scene*>(this)->link(side));
}

int Scene::objectCount() const {
    return static_cast<int>(std::ranges::count_if(
        slots_, [](const ObjectSlot& slot) { return slot.SlotInt(1) != -1; }));
}

void Scene::take(const SceneRecord& record) {
    forEachHeaderField(
        bytesOf(record),
        [this](auto at, std::size_t i) {
            HeaderStrings[i] = readField({at.data(), at.size()});
        },
        [this](auto at, std::size_t i) {
            HeaderInts[i] = *reinterpret_cast<const IntField*>(at.data());
        });
    forEachLinkField<const IntField>(bytesOf(record), *this, TakeField{});
    for (std::size_t i = 0; i < slots_.size(); ++i) {
        forEachSlotField(record.Slots[i], slots_[i], TakeField{});
    }
}

SceneRecord Scene::toRecord() const {
    SceneRecord record{};
    forEachHeaderField(
        bytesOf(record), [this](auto at, std::size_t i) { writeField(at, HeaderStrings[i]); },
        [this](auto at, std::size_t i) {
            *reinterpret_cast<IntField*>(at.data()) = HeaderInts[i];
        });
    record.SecurityCode = 0;
    forEachLinkField<IntField>(bytesOf(record), *this, GiveField{});
    for (std::size_t i = 0; i < slots_.size(); ++i) {
        forEachSlotField(record.Slots[i], slots_[i], GiveField{});
    }
    return record;
}

}  // namespace quorvel::store
