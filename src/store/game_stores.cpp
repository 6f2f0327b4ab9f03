#include "store/game_stores.h"

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

void savePosition(LocationRecord& record, const MapIcon& icon) {
    record.LocationX = icon.x;
    record.LocationY = icon.y;
}

}  // namespace

ItemRecord LoadItem(Project& project, int number) {
    return project.itemFile.read(number);
}

void SaveItem(Project& project, int number, const ItemRecord& form) {
    ItemRecord record = form;
    record.Reserved188.unset();
    record.SecurityCode = 0;
    project.itemFile.write(number, record);
    mirrorCombination(project, number, record);
}

std::string GetItemIcon(Project& project, int number) {
    return project.itemFile.read(number).ItemIcon.text();
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
    project.cardFile.write(number, record);
}

LocationRecord LoadLocation(Project& project, int number) {
    return project.locationFile.read(number);
}

void SaveLocation(Project& project, int number, const LocationRecord& form) {
    LocationRecord record = form;
    record.LocationName = form.LocationName.text();
    if (form.LocationImage.text().empty()) {
        record.LocationImage = "(None)";
    }
    record.LocationInUse = 1;
    record.MapImage = mapImageOf(project, number);
    for (auto& text : record.Reserved76) {
        text = "";
    }
    record.Reserved106 = {};
    record.SecurityCode = 0;
    project.locationFile.write(number, record);
}

void AddBlankLocation(Project& project, int number) {
    auto record = newRecord<LocationRecord>();
    record.MapImage = mapImageOf(project, number);
    project.locationFile.write(number, record);
}

void RemoveLocation(Project& project, int number) {
    LocationRecord record = project.locationFile.read(number);
    record.LocationImage = "Del";
    record.LocationInUse = 0;
    project.locationFile.write(number, record);
}

void SaveMapPositions(Project& project, std::span<const MapIcon> icons) {
    for (const MapIcon& icon : icons) {
        if (icon.number != 1 && (!icon.visible || icon.number > project.LocationCount)) {
            continue;
        }
        LocationRecord record = project.locationFile.read(icon.number);
        savePosition(record, icon);
        if (icon.number == 1) {
            record.MapImage = project.lists.MapImage;
        }
        project.locationFile.write(icon.number, record);
    }
}

}  // namespace quorvel::store
