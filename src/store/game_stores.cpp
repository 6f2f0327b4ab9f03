#include "store/game_stores.h"

#include <algorithm>

namespace quorvel::store {
namespace {

/// The map picture's text as location `number` bears it.
std::string mapImageOf(const Project& project, int number) {
    return number == 1 ? project.lists.MapImage : std::string();
}

void mirrorCombination(Project& project, int number, const ItemRecord& item) {
    const int partner = item.ItemOtherItem;
    if (partner < 1 || partner > project.itemFile.count()) {
        return;
    }
    ItemRecord other = project.itemFile.read(partner);
    other.ItemCombines = item.ItemCombines;
    other.ItemOtherItem = static_cast<std::int16_t>(number);
    other.ItemNewItem = item.ItemNewItem;
    project.itemFile.write(partner, other);
}

template <class Record>
void blankUnsetTexts(Record& record) {
    store::blankUnsetTexts(bytesOf(record), fieldsOf<Record>());
}

/// The first record is written even without an icon: it carries the map's picture.
void saveFirstPosition(Project& project, const MapIcon* icon) {
    LocationRecord record = project.locationFile.read(1);
    if (icon != nullptr) {
        record.LocationX = icon->x;
        record.LocationY = icon->y;
    }
    record.MapImage = project.lists.MapImage;
    project.locationFile.write(1, record);
}

}  // namespace

ItemRecord LoadItem(Project& project, int number) {
    return project.itemFile.read(number);
}

void SaveItem(Project& project, int number, const ItemRecord& form) {
    ItemRecord record = form;
    record.Reserved188.unset();
    record.SecurityCode = 0;
    blankUnsetTexts(record);
    project.itemFile.write(number, record);
    mirrorCombination(project, number, record);
}

std::string GetItemIcon(Project& project, int number) {
    return number < 1 ? std::string() : project.itemFile.read(number).ItemIcon.text();
}

CueCardRecord LoadCard(Project& project, int number) {
    CueCardRecord record = project.cardFile.read(number);
    for (IntField& volume : record.ChoiceVolume) {
        if (volume > 0) {
            volume = 0;
        }
    }
    return record;
}

void SaveCard(Project& project, int number, const CueCardRecord& form) {
    CueCardRecord record = form;
    record.SecurityCode = 0;
    record.Reserved412 = {};
    record.Reserved1662 = {};
    blankUnsetTexts(record);
    project.cardFile.write(number, record);
}

LocationRecord LoadLocation(Project& project, int number) {
    return project.locationFile.read(number);
}

void SaveLocation(Project& project, int number, const LocationRecord& form) {
    LocationRecord record = form;
    record.LocationName = form.LocationName.text();
    if (form.LocationImage.text().empty()) {
        record.LocationImage = kNoIcon;
    }
    record.LocationInUse = 1;
    record.MapImage = mapImageOf(project, number);
    for (auto& text : record.Reserved76) {
        text = "";
    }
    record.Reserved106 = {};
    record.SecurityCode = 0;
    blankUnsetTexts(record);
    project.locationFile.write(number, record);
}

void AddBlankLocation(Project& project, int number) {
    auto record = newRecord<LocationRecord>();
    record.MapImage = mapImageOf(project, number);
    project.locationFile.write(number, record);
}

void RemoveLocation(Project& project, int number) {
    LocationRecord record = project.locationFile.read(number);
    record.LocationImage = kRemovedIcon;
    record.LocationInUse = 0;
    project.locationFile.write(number, record);
}

void SaveMapPositions(Project& project, std::span<const MapIcon> icons) {
    const auto first = std::ranges::find(icons, 1, &MapIcon::number);
    saveFirstPosition(project, first == icons.end() ? nullptr : &*first);
    for (const MapIcon& icon : icons) {
        if (icon.number < 2 || icon.number > project.LocationCount || !icon.visible) {
            continue;
        }
        LocationRecord record = project.locationFile.read(icon.number);
        record.LocationX = icon.x;
        record.LocationY = icon.y;
        project.locationFile.write(icon.number, record);
    }
}

}  // namespace quorvel::store
