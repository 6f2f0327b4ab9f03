#include "objects/random_records.h"

namespace quorvel::test {

using store::FieldUse;
using store::ObjectFieldInfo;
using store::ObjectSlot;

int Dice::number(FieldUse use) {
    switch (use) {
        case FieldUse::check:
        case FieldUse::optionFrom0:
            return pick({0, 1});
        case FieldUse::option:
            return pick({0, 1, 2, 9, -3});
        case FieldUse::scene:
        case FieldUse::item:
        case FieldUse::location:
        case FieldUse::card:
            return pick({0, 1, 2, 3, 500, -1});
        case FieldUse::pointer:
            return pick({0, 5, 9, 10, 11, -1});
        case FieldUse::channel:
            return pick({0, 7, 15, 16, -1, 999});
        case FieldUse::comparison:
            return pick({0, 3, 4, -1});
        case FieldUse::flag:
            return pick({1, 100, 255, 0, 256, -5});
        case FieldUse::volume:
        case FieldUse::mediaVolume:
            return pick({0, -1, -4000, -4001, 60, 500});
        case FieldUse::pan:
            return pick({0, -4000, 4000, 9000, -32768});
        case FieldUse::movieVolume:
            return pick({0, 60, 100, -1, 10000});
        default:
            return pick({0, 1, -1, 32767, -32768});
    }
}

const char* Dice::text(FieldUse use) {
    using Name = const char*;
    switch (use) {
        case FieldUse::gfxFile:
            return pick<Name>({"", "one.gif", "gone.gif", "odd name"});
        case FieldUse::mediaFile:
        case FieldUse::soundtrackFile:
            return pick<Name>({"", "a.wav", "gone.WAV", "d.avi"});
        default:
            return pick<Name>({"", "0", "5", "10", "77", "32767", "x"});
    }
}

ObjectSlot randomSlot(store::ObjectType type, Dice& dice) {
    ObjectSlot slot;
    store::ResetSlot(slot, type, 10, 20);
    for (int k = 4; k <= ObjectSlot::kInts; ++k) {
        slot.SlotInt(k) = static_cast<std::int16_t>(dice.number(FieldUse::value));
    }
    for (int k = 1; k <= ObjectSlot::kStrs; ++k) {
        slot.SlotStr(k) = "text " + std::to_string(k);
    }
    for (const ObjectFieldInfo& field : store::objectFields(type)) {
        if (field.isText) {
            slot.SlotStr(field.number) = dice.text(field.use);
        } else {
            slot.SlotInt(field.number) = static_cast<std::int16_t>(dice.number(field.use));
        }
    }
    return slot;
}

Fields slotFields(const ObjectSlot& slot, store::ObjectType type) {
    std::map<std::string, std::string> names;
    for (const ObjectFieldInfo& field : store::objectFields(type)) {
        names[(field.isText ? "SlotStr" : "SlotInt") + std::to_string(field.number)] = field.name;
    }
    Fields fields;
    const auto put = [&](const std::string& place, const std::string& value) {
        fields[names.contains(place) ? names.at(place) : place] = value;
    };
    for (int k = 1; k <= ObjectSlot::kInts; ++k) {
        put("SlotInt" + std::to_string(k), std::to_string(slot.SlotInt(k)));
    }
    for (int k = 1; k <= ObjectSlot::kStrs; ++k) {
        put("SlotStr" + std::to_string(k), slot.SlotStr(k));
    }
    return fields;
}

Fields settledSlot(Fields fields, store::ObjectType type) {
    constexpr int kLastChannel = 15;
    for (const ObjectFieldInfo& field : store::objectFields(type)) {
        std::string& value = fields[std::string(field.name)];
        if (field.use == FieldUse::option && value == "0") {
            value = "1";
        } else if (field.use == FieldUse::channel &&
                   (std::stoi(value) < 0 || std::stoi(value) > kLastChannel)) {
            value = "0";
        }
    }
    return fields;
}

}  // namespace quorvel::test
