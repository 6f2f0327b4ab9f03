/// Rows of equal fields of the records, by number: what belongs to one choice of a cue card, to one
/// disc, to one edge link. Those of objects stand with their type (`MultiTrigger::trigger`).
#pragma once

#include "store/dictionary.h"

namespace quorvel::store {

inline constexpr int kChoices = 5;
inline constexpr int kDiscs = 4;
inline constexpr int kMenuButtons = 5;
inline constexpr int kSceneSounds = 3;
inline constexpr int kLayoutPlaces = 11;

/// Choice `number`, 1 to 5, of a cue card.
struct ChoiceFields {
    const FieldRef &Text, &SetFlagOn, &FlagId, &FlagValue, &FlagAdd, &PlayOn, &Media, &Volume, &Pan;
};
ChoiceFields choiceFields(int number);

/// Disc `number`, 1 to 4, of the settings.
struct DiscFields {
    const FieldRef &Label, &FromScene, &ToScene;
};
DiscFields discFields(int number);

/// Sound effect `number`, 1 to 3, of a scene.
struct SceneSoundFields {
    const FieldRef &File, &Volume, &Pan;
};
SceneSoundFields sceneSoundFields(int number);

/// The edge link at a side of a scene.
struct LinkFields {
    const FieldRef &Pointer, &Target, &Top, &Left, &Width, &Height;
};
LinkFields linkFields(LinkSide side);

/// The place of layout element `index`, 0 to 10, in the settings: the buttons of the main menu 0 to
/// 4, then scene window, save, examine, quit, score and inventory bar.
const FieldRef& layoutPlace(int index);
/// The same in a skin.
const FieldRef& skinPlace(int index);

}  // namespace quorvel::store
