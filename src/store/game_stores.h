/// Items, map locations and cue cards: one record each, as their editors load and save them.
///
/// A form passes a record that holds its controls' values. Record n is number n; a new record is
/// appended at count + 1 and the caller raises the count. A text of the form that was never
/// assigned is written as an empty one.
#pragma once

#include <span>
#include <string>

#include "store/project.h"

namespace quorvel::store {

/// Item `number` as stored; the zeroed record when there is none.
ItemRecord LoadItem(Project& project, int number);
/// Writes every field of `form` that the editor knows; the reserved text becomes zero bytes and the
/// security code 0. A combination partner that exists gets the mirrored combination.
void SaveItem(Project& project, int number, const ItemRecord& form);
/// File name of the item's icon; empty for number 0 and below, which mean no item, and beyond the
/// store.
std::string GetItemIcon(Project& project, int number);

/// Card `number` as stored, with volumes above 0 set to 0.
CueCardRecord LoadCard(Project& project, int number);
/// Writes name and choices of `form`; everything else of the record becomes zero bytes.
void SaveCard(Project& project, int number, const CueCardRecord& form);

/// Location `number` as stored.
LocationRecord LoadLocation(Project& project, int number);
/// Writes `form` as an active location, an empty icon as "(None)"; the map picture goes into record
/// 1 alone.
void SaveLocation(Project& project, int number, const LocationRecord& form);
/// Writes a location without name, icon or scene.
void AddBlankLocation(Project& project, int number);
/// Marks the location as removed. Everything else of its record stays, the map picture too.
void RemoveLocation(Project& project, int number);
/// Writes the places of the icons: of record 1 always, with the map picture, of the others where
/// the icon is visible.
void SaveMapPositions(Project& project, std::span<const MapIcon> icons);

}  // namespace quorvel::store
