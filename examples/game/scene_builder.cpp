#include "game/scene_builder.h"

#include <algorithm>
#include <stdexcept>

#include "game/story.h"

namespace quorvel::sample {

ObjectRef& ObjectRef::number(store::NumberField field, int value) {
    store::number(slot_, field) = small(value);
    return *this;
}

ObjectRef& ObjectRef::text(store::WordField field, const std::string& value) {
    store::word(slot_, field) = value;
    return *this;
}

ObjectRef& ObjectRef::test(store::NumberField field, const FlagValue& value) {
    return number(field, value.flag)
        .number({field.number + 1}, static_cast<int>(value.compare))
        .number({field.number + 2}, value.value);
}

ObjectRef& ObjectRef::set(store::NumberField field, const FlagValue& value) {
    return number(field, value.flag)
        .number({field.number + 1}, value.value)
        .number({field.number + 2}, value.add ? 1 : 0);
}

ObjectRef& ObjectRef::visibleWhen(store::NumberField visibility, const FlagValue& value) {
    constexpr int onlyWhen = 2;
    return number(visibility, onlyWhen).test({visibility.number + 1}, value);
}

SceneBuilder::SceneBuilder(const std::string& name, const SceneArt& art) : art_(art) {
    scene_.take(store::newRecord<store::SceneRecord>());
    scene_.header(store::HeaderString::SceneName) = name;
    scene_.header(store::HeaderString::SceneImage) = art.file;
}

ObjectRef SceneBuilder::insert(int index, store::ObjectType type, int x, int y) {
    store::ObjectSlot& slot = scene_.slot(index);
    if (store::typeOf(slot) != store::ObjectType::free) {
        throw std::logic_error(art_.file + ": object " + std::to_string(index) + " twice");
    }
    store::ResetSlot(slot, type, small(x), small(y));
    ObjectRef object(slot);
    // Two values as the editors leave them once they have saved the object.
    if (type == store::ObjectType::reactor) {
        object.number(store::Reactor::Visibility, 1);
    } else if (type == store::ObjectType::hotSpot) {
        object.text(store::HotSpot::Group, "0");
    }
    return object;
}

ObjectRef SceneBuilder::insert(int index, store::ObjectType type, const std::string& sprite) {
    const auto found = std::ranges::find(art_.sprites, sprite, &Sprite::file);
    if (found == art_.sprites.end()) {
        throw std::logic_error(art_.file + " has no " + sprite);
    }
    ObjectRef object = insert(index, type, found->box.x(), found->box.y());
    object.text(store::Ambient::Image, sprite);  // the same field in all types with a picture
    return object;
}

ObjectRef SceneBuilder::insertQuickSpot(int index, const QRect& area) {
    ObjectRef object = insert(index, store::ObjectType::hotSpot, area.x(), area.y());
    object.number(store::HotSpot::QuickSpot, 1)
        .text(store::HotSpot::QuickHeight, std::to_string(area.height()))
        .text(store::HotSpot::QuickWidth, std::to_string(area.width()))
        .text(store::HotSpot::Group, "0");
    return object;
}

void SceneBuilder::link(store::LinkSide side, int scene) {
    store::EdgeLink& link = scene_.link(side);
    link.target = small(scene);
    switch (side) {
        case store::LinkSide::up:
            link.pointer = kPointerUp;
            break;
        case store::LinkSide::down:
            link.pointer = kPointerDown;
            break;
        case store::LinkSide::left:
            link.pointer = kPointerLeft;
            break;
        case store::LinkSide::right:
            link.pointer = kPointerRight;
            break;
    }
}

void SceneBuilder::soundtrack(const std::string& file, int volume) {
    scene_.header(store::HeaderString::SceneSoundtrack) = file;
    scene_.header(store::HeaderInt::SceneSoundtrackVolume) = small(volume);
}

void SceneBuilder::movieOnEnter(const std::string& file, int volume) {
    scene_.header(store::HeaderString::SceneEnterMovie) = file;
    scene_.header(store::HeaderInt::SceneEnterMovieVolume) = small(volume);
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
