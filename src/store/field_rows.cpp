#include "store/field_rows.h"

#include <stdexcept>

namespace quorvel::store {
namespace {

/// `number` as an index from 0, when it lies between `first` and `first` + `count` - 1.
std::size_t indexOf(int number, int first, int count) {
    if (number < first || number >= first + count) {
        throw std::out_of_range("no row of that number");
    }
    return static_cast<std::size_t>(number - first);
}

}  // namespace

ChoiceFields choiceFields(int number) {
    using R = CueCardRecord;
    const std::size_t i = indexOf(number, 1, kChoices);
    return {fieldRef(&R::ChoiceText, i),    fieldRef(&R::ChoiceSetFlagOn, i),
            fieldRef(&R::ChoiceFlagId, i),  fieldRef(&R::ChoiceFlagValue, i),
            fieldRef(&R::ChoiceFlagAdd, i), fieldRef(&R::ChoicePlayOn, i),
            fieldRef(&R::ChoiceMedia, i),   fieldRef(&R::ChoiceVolume, i),
            fieldRef(&R::ChoicePan, i)};
}

DiscFields discFields(int number) {
    using R = GameSettingsRecord;
    const std::size_t i = indexOf(number, 1, kDiscs);
    return {fieldRef(&R::DiscLabel, i), fieldRef(&R::DiscFromScene, i),
            fieldRef(&R::DiscToScene, i)};
}

SceneSoundFields sceneSoundFields(int number) {
    constexpr std::size_t first = offsetof(SceneRecord, SceneSound1File);
    constexpr std::size_t volume = offsetof(SceneRecord, SceneSound1Volume);
    constexpr std::size_t pan = offsetof(SceneRecord, SceneSound1Pan);
    constexpr std::size_t stride = offsetof(SceneRecord, SceneSound2File) - first;
    static_assert(first + 2 * stride == offsetof(SceneRecord, SceneSound3File));
    const std::size_t step = indexOf(number, 1, kSceneSounds) * stride;
    const auto all = dictionary(RecordKind::scene);
    return {fieldAt(all, first + step), fieldAt(all, volume + step), fieldAt(all, pan + step)};
}

LinkFields linkFields(LinkSide side) {
    const LinkOffsets offsets = linkOffsets(side);
    const auto all = dictionary(RecordKind::scene);
    return {fieldAt(all, offsets.pointer), fieldAt(all, offsets.target),
            fieldAt(all, offsets.top),     fieldAt(all, offsets.left),
            fieldAt(all, offsets.width),   fieldAt(all, offsets.height)};
}

const FieldRef& layoutPlace(int index) {
    using R = GameSettingsRecord;
    const std::size_t i = indexOf(index, 0, kLayoutPlaces);
    if (i < static_cast<std::size_t>(kMenuButtons)) {
        return fieldRef(&R::MenuButtonPos, i);
    }
    constexpr std::array others = {&R::LayoutPos5, &R::LayoutPos6, &R::LayoutPos7,
                                   &R::LayoutPos8, &R::LayoutPos9, &R::LayoutPos10};
    return fieldRef(others[i - static_cast<std::size_t>(kMenuButtons)]);
}

const FieldRef& skinPlace(int index) {
    const std::size_t i = indexOf(index, 0, kLayoutPlaces);
    return index + 1 == kLayoutPlaces ? fieldRef(&SkinRecord::Coords10)
                                      : fieldRef(&SkinRecord::Coords, i);
}

}  // namespace quorvel::store
