/// What the lists of the windows show: the names in the stores, read once when a project opens.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "store/record_file.h"

namespace quorvel::store {

/// A line of a list: the number of the record and its name.
struct ListEntry {
    int number = 0;
    std::string name;
    std::int16_t scene = 0;  ///< of a location: the scene it leads to

    friend bool operator==(const ListEntry&, const ListEntry&) = default;
};

/// The text of a list line: number, a blank, the name in parentheses.
std::string listText(int number, const std::string& name);

/// The entry in `row`, counted from 0, or null where the list has none.
const ListEntry* entryAt(const std::vector<ListEntry>& entries, int row);

/// An icon on the map. Coordinates are pixels of the map picture.
struct MapIcon {
    int number = 0;
    std::string image;  ///< file in resource/gfx; empty for the stock picture
    std::int16_t x = 0;
    std::int16_t y = 0;
    bool visible = false;
};

/// The four lists of a project. Entry i of scenes, items and cards is record i + 1; removed
/// locations are skipped, so a location is found by its number.
struct ProjectLists {
    std::vector<ListEntry> scenes;
    std::vector<ListEntry> locations;
    std::vector<ListEntry> items;
    std::vector<ListEntry> cards;
    std::vector<MapIcon> mapIcons;
    std::string MapImage;  ///< picture of the map, empty for none

    /// Name of scene `number`; empty where there is no such scene.
    [[nodiscard]] std::string sceneName(int number) const;
    /// Gives scene `number` another name. False where there is no such scene.
    bool renameScene(int number, const std::string& name);
};

/// True when record `number` stands for a location: it is not removed, and not the first record of
/// a map that has no location 1.
bool isLocation(int number, const LocationRecord& record);

std::vector<ListEntry> readSceneNames(RecordFile<SceneRecord>& file);
std::vector<ListEntry> readItemNames(RecordFile<ItemRecord>& file);
std::vector<ListEntry> readCardNames(RecordFile<CueCardRecord>& file);
/// Fills `locations`, `mapIcons` and `MapImage`.
void readLocations(RecordFile<LocationRecord>& file, ProjectLists& lists);

}  // namespace quorvel::store
