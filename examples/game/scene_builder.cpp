#include "game/scene_builder.h"

#include <algorithm>
#include <stdexcept>

namespace quorvel::sample {
namespace {

std::int16_t small(int value) {
    return static_cast<std::int16_t>(value);
}

struct Default {
    int field;
    int value;
};

/// What a newly inserted object holds where that is not 0.
std::vector<Default> insertionDefaults(ObjectType type) {
    switch (type) {
        case ObjectType::ambient:
            return {{4, 1}, {5, 1}, {8, 1}, {9, 1}, {13, 1}};
        case ObjectType::hotSpot:
            return {{4, 10}, {5, 1}, {15, 1}, {17, 1}, {18, 1}, {22, 1}, {28, 15}};
        case ObjectType::goodie:
            return {{4, 1}, {15, 2}, {16, 1}, {19, 1}, {20, 1}, {25, 15}};
        case ObjectType::switcher:
            return {{4, 1}, {8, 1}, {16, 1}, {17, 1}, {21, 15}};
        case ObjectType::reactor:
            return {{4, 1}, {5, 10000}, {8, 1}, {9, 1}, {13, 1}};
        case ObjectType::responder:
            return {{4, 1}, {5, 1}, {17, 1}};
        case ObjectType::delay:
            return {{4, 1}, {5, 1}, {9, 1}};
        case ObjectType::multiTrigger:
            return {{5, 1}, {9, 1}, {13, 1}, {17, 1}, {21, 1}, {25, 1}};
        case ObjectType::conversation:
            return {{5, 1}, {6, 1}, {9, 4}};
        case ObjectType::flagConjunction:
            return {{6, 1}, {10, 1}, {14, 1}, {18, 1}, {22, 1}, {26, 1}};
    }
    return {};
}

}  // namespace

ObjectRef& ObjectRef::number(int field, int value) {
    slot_.SlotInt(field) = small(value);
    return *this;
}

ObjectRef& ObjectRef::text(int field, const std::string& value) {
    slot_.SlotStr(field) = value;
    return *this;
}

ObjectRef& ObjectRef::test(int field, const FlagValue& value) {
    return number(field, value.flag)
        .number(field + 1, static_cast<int>(value.compare))
        .number(field + 2, value.value);
}

ObjectRef& ObjectRef::set(int field, const FlagValue& value) {
    return number(field, value.flag).number(field + 1, value.value).number(field + 2, value.add);
}

ObjectRef& ObjectRef::visibleWhen(int visibilityField, const FlagValue& value) {
    return number(visibilityField, when).test(visibilityField + 1, value);
}

SceneBuilder::SceneBuilder(const std::string& name, const SceneArt& art) : art_(art) {
    scene_.take(store::newRecord<store::SceneRecord>());
    scene_.header(store::HeaderString::SceneName) = name;
    scene_.header(store::HeaderString::SceneImage) = art.file;
}

ObjectRef SceneBuilder::insert(int index, ObjectType type, int x, int y) {
    store::ObjectSlot& slot = scene_.slot(index);
    if (slot.SlotInt(1) != -1) {
        throw std::logic_error(art_.file + ": object " + std::to_string(index) + " twice");
    }
    slot.SlotInt(1) = small(static_cast<int>(type));
    slot.SlotInt(2) = small(x);
    slot.SlotInt(3) = small(y);
    for (const auto& [field, value] : insertionDefaults(type)) {
        slot.SlotInt(field) = small(value);
    }
    if (type == ObjectType::flagConjunction) {
        slot.SlotStr(FlagConjunction::flag) = "1";
    }
    return ObjectRef(slot);
}

ObjectRef SceneBuilder::insert(int index, ObjectType type, const std::string& sprite) {
    const auto found = std::ranges::find(art_.sprites, sprite, &Sprite::file);
    if (found == art_.sprites.end()) {
        throw std::logic_error(art_.file + " has no " + sprite);
    }
    ObjectRef object = insert(index, type, found->box.x(), found->box.y());
    object.text(1, sprite);
    return object;
}

ObjectRef SceneBuilder::insertQuickSpot(int index, const QRect& area) {
    ObjectRef object = insert(index, ObjectType::hotSpot, area.x(), area.y());
    object.number(HotSpot::style, HotSpot::quickSpot)
        .text(HotSpot::height, std::to_string(area.height()))
        .text(HotSpot::width, std::to_string(area.width()))
        .text(HotSpot::group, "0");
    return object;
}

void SceneBuilder::link(store::LinkSide side, int scene) {
    store::EdgeLink& link = scene_.link(side);
    link.target = small(scene);
    switch (side) {
        case store::LinkSide::up:
            link.pointer = up;
            break;
        case store::LinkSide::down:
            link.pointer = down;
            break;
        case store::LinkSide::left:
            link.pointer = left;
            break;
        case store::LinkSide::right:
            link.pointer = right;
            break;
    }
}

void SceneBuilder::soundtrack(const std::string& file, int volume) {
    scene_.header(store::HeaderString::SceneSoundtrack) = file;
    scene_.header(store::HeaderInt::SceneSoundtrackVolume) = small(volume);
}

void SceneBuilder::sound(const std::string& file, int volume, int pan) {
    // The third sound of a scene is the one that loops.
    scene_.header(store::HeaderString::SceneSound3File) = file;
    scene_.header(store::HeaderInt::SceneSound3Volume) = small(volume);
    scene_.header(store::HeaderInt::SceneSound3Pan) = small(pan);
}

void SceneBuilder::setFlagOnEnter(const FlagValue& value) {
    scene_.header(store::HeaderInt::SceneSetFlagOn) = 1;
    scene_.header(store::HeaderInt::SceneSetFlagId) = small(value.flag);
    scene_.header(store::HeaderInt::SceneSetFlagValue) = small(value.value);
    scene_.header(store::HeaderInt::SceneSetFlagAdd) = value.add ? 1 : 0;
}

void SceneBuilder::switchSceneWhen(const FlagValue& value, int scene) {
    scene_.header(store::HeaderInt::SceneCheckFlagOn) = 1;
    scene_.header(store::HeaderInt::SceneCheckFlagId) = small(value.flag);
    scene_.header(store::HeaderInt::SceneCheckFlagTest) = small(static_cast<int>(value.compare));
    scene_.header(store::HeaderInt::SceneCheckFlagValue) = small(value.value);
    scene_.header(store::HeaderInt::SceneCheckFlagTarget) = small(scene);
}

}  // namespace quorvel::sample
