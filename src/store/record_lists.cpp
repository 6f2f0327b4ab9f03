#include "store/record_lists.h"

namespace quorvel::store {
namespace {

/// One pass over a store for one text of each record.
template <class Record, class Name>
std::vector<ListEntry> readNames(RecordFile<Record>& file, Name name) {
    std::vector<ListEntry> entries;
    entries.reserve(static_cast<std::size_t>(file.count()));
    file.readAll([&](int first, int count, std::span<const char> block) {
        const auto* records = reinterpret_cast<const Record*>(block.data());
        for (int i = 0; i < count; ++i) {
            entries.push_back({first + i, (records[i].*name).text(), 0});
        }
    });
    return entries;
}

}  // namespace

std::string ProjectLists::sceneName(int number) const {
    const bool known = number >= 1 && number <= static_cast<int>(scenes.size());
    return known ? scenes[static_cast<std::size_t>(number - 1)].name : std::string();
}

bool ProjectLists::renameScene(int number, const std::string& name) {
    if (number < 1 || number > static_cast<int>(scenes.size())) {
        return false;
    }
    scenes[static_cast<std::size_t>(number - 1)].name = name;
    return true;
}

const ListEntry* entryAt(const std::vector<ListEntry>& entries, int row) {
    return row >= 0 && static_cast<std::size_t>(row) < entries.size()
               ? &entries[static_cast<std::size_t>(row)]
               : nullptr;
}

std::string listText(int number, const std::string& name) {
    return std::to_string(number) + " (" + name + ")";
}

bool isLocation(int number, const LocationRecord& record) {
    const std::string image = record.LocationImage.text();
    return image != kRemovedIcon && (number != 1 || !image.empty());
}

std::vector<ListEntry> readSceneNames(RecordFile<SceneRecord>& file) {
    return readNames(file, &SceneRecord::SceneName);
}

std::vector<ListEntry> readItemNames(RecordFile<ItemRecord>& file) {
    return readNames(file, &ItemRecord::ItemName);
}

std::vector<ListEntry> readCardNames(RecordFile<CueCardRecord>& file) {
    return readNames(file, &CueCardRecord::CardName);
}

void readLocations(RecordFile<LocationRecord>& file, ProjectLists& lists) {
    lists.locations.clear();
    lists.mapIcons.clear();
    lists.MapImage = file.read(1).MapImage.text();
    file.readAll([&](int first, int count, std::span<const char> block) {
        const auto* records = reinterpret_cast<const LocationRecord*>(block.data());
        for (int i = 0; i < count; ++i) {
            const LocationRecord& record = records[i];
            const bool there = isLocation(first + i, record);
            const std::string image = record.LocationImage.text();
            lists.mapIcons.push_back({first + i, image == kNoIcon || !there ? "" : image,
                                      record.LocationX, record.LocationY, there});
            if (there) {
                lists.locations.push_back(
                    {first + i, record.LocationName.text(), record.LocationScene});
            }
        }
    });
}

}  // namespace quorvel::store
