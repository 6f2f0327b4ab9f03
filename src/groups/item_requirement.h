/// What the player must have before something can be used.
#pragma once

#include "groups/choices.h"
#include "groups/sound_spec.h"

namespace quorvel::groups {

/// An item, whether the player keeps it, and the sound that tells that it is missing. A pick of an
/// item, "Player keeps this item" and the choice of the sound tick the requirement; "(None)" clears
/// it.
class ItemRequirement : public QObject {
    Q_OBJECT
  public:
    struct Names {
        const char* frame = "Frame5";
        const char* needs = "Check1";
        ItemChoice::Names item = {};
        const char* keeps = "Check2";
        const char* failureFrame = "Frame7";
        int failure = 3;  ///< index of the sound
    };
    ItemRequirement(Sheet& sheet, const Names& names, QWidget* parent);

    QGroupBox* frame;
    QCheckBox* needs;
    ItemChoice* item;
    QCheckBox* keeps;
    SoundSpec* failure;
};

}  // namespace quorvel::groups
