/// The game settings, read and written in slices: a save of one slice leaves the others alone.
/// Which field belongs to which slice stands in the list of the record's fields.
#pragma once

#include "store/project.h"

namespace quorvel::store {

/// The settings as a form shows them: a score flag of 0 is 255, an intro volume above 100 is 100.
/// Only the fields of the slice are filled, the rest is zero.
GameSettingsRecord LoadSettings(Project& project, SettingsSlice slice);

/// Puts the slice's fields of `form` into the stored record, with the rules of the slice: bounds,
/// reserved words, and `CustomLayoutFlag` 1 once the player has been customised. Slice 1 also
/// renews `GameTitle` and `PlayerName` of the project. A text of the form that was never assigned
/// is written as an empty one; a slice that does not exist writes nothing.
void SaveSettings(Project& project, SettingsSlice slice, const GameSettingsRecord& form);

/// A score flag within 1 to 255; 0 means the default 255.
std::int16_t boundedScoreFlag(int typed);

}  // namespace quorvel::store
