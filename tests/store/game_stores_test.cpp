#include "store/game_stores.h"

#include <gtest/gtest.h>

#include "store/project_stage.h"
#include "store/runtime_error.h"
#include "support/file_bytes.h"

namespace quorvel::store {
namespace {

using test::ProjectBuilder;
using test::readBytes;
using test::readInt;

template <class Record>
std::string bytesAsText(const Record& record) {
    const auto bytes = bytesOf(record);
    return {bytes.begin(), bytes.end()};
}

class GameStores : public ProjectStage {
  protected:
    std::string itemBytes(int number) const {
        return readBytes(files_.storePath(3), static_cast<std::uintmax_t>(number - 1) * 209, 209);
    }
    std::string locationBytes(int number) const {
        return readBytes(files_.storePath(2), static_cast<std::uintmax_t>(number - 1) * 112, 112);
    }
};

using Items = GameStores;

TEST_F(Items, ASavedItemComesBack) {
    open(ProjectBuilder().items(2));
    ItemRecord form = LoadItem(project_, 2);
    form.ItemName = "Rusty Key";
    form.ItemCloseupCaption = "A key";
    form.ItemSetFlagId = 255;
    SaveItem(project_, 2, form);
    EXPECT_EQ(bytesAsText(LoadItem(project_, 2)), bytesAsText(form));
    EXPECT_EQ(itemBytes(2), bytesAsText(form));
}

TEST_F(Items, ANewNumberIsAppended) {
    open(ProjectBuilder().items(1));
    SaveItem(project_, 2, newRecord<ItemRecord>());
    EXPECT_EQ(project_.itemFile.count(), 2);
}

TEST_F(Items, BeyondTheStoreIsTheZeroedItem) {
    open(ProjectBuilder().items(1));
    EXPECT_EQ(bytesAsText(LoadItem(project_, 5)), std::string(209, '\0'));
    EXPECT_EQ(project_.itemFile.count(), 1);
}

TEST_F(Items, ReservedTextIsZeroBytesAndUnsetTextsAreBlank) {
    open(ProjectBuilder());
    ItemRecord form{};
    form.Reserved188 = "something";
    form.SecurityCode = 99;
    SaveItem(project_, 1, form);
    const std::string bytes = itemBytes(1);
    EXPECT_EQ(bytes.substr(188, 15), std::string(15, '\0'));
    EXPECT_EQ(bytes.substr(207, 2), std::string(2, '\0'));
    EXPECT_EQ(bytes.substr(0, 45), std::string(45, ' '));
    EXPECT_EQ(bytes.substr(93, 30), std::string(30, ' '));
    EXPECT_EQ(bytes.substr(158, 30), std::string(30, ' '));
}

TEST_F(Items, ACombinationIsStoredOnBothItems) {
    open(ProjectBuilder().items(4).securityCode(77));
    const std::string partnerBefore = itemBytes(1);
    ItemRecord form = LoadItem(project_, 3);
    form.ItemCombines = 1;
    form.ItemOtherItem = 1;
    form.ItemNewItem = 4;
    SaveItem(project_, 3, form);
    const ItemRecord partner = LoadItem(project_, 1);
    EXPECT_EQ(partner.ItemCombines, 1);
    EXPECT_EQ(partner.ItemOtherItem, 3);
    EXPECT_EQ(partner.ItemNewItem, 4);
    // The rest of the partner stays, its code too.
    std::string expected = partnerBefore;
    expected.replace(47, 6, bytesAsText(partner).substr(47, 6));
    EXPECT_EQ(itemBytes(1), expected);
    EXPECT_EQ(readInt(files_.storePath(3), 207), 77);
}

TEST_F(Items, WithoutAPartnerNoOtherItemIsTouched) {
    open(ProjectBuilder().items(3));
    const std::string before = itemBytes(1) + itemBytes(3);
    SaveItem(project_, 2, LoadItem(project_, 2));
    EXPECT_EQ(itemBytes(1) + itemBytes(3), before);
}

TEST_F(Items, TheOldPartnerOfAChangedCombinationIsNotCleaned) {
    open(ProjectBuilder().items(3));
    ItemRecord form = LoadItem(project_, 1);
    form.ItemOtherItem = 2;
    SaveItem(project_, 1, form);
    form.ItemOtherItem = 3;
    SaveItem(project_, 1, form);
    EXPECT_EQ(LoadItem(project_, 2).ItemOtherItem, 1);
    EXPECT_EQ(LoadItem(project_, 3).ItemOtherItem, 1);
}

TEST_F(Items, APartnerThatDoesNotExistIsKeptAndMakesNothing) {
    open(ProjectBuilder().items(2));
    for (const int partner : {3, 32767, -1, -32768}) {
        ItemRecord form = LoadItem(project_, 1);
        form.ItemOtherItem = static_cast<std::int16_t>(partner);
        SaveItem(project_, 1, form);
        EXPECT_EQ(LoadItem(project_, 1).ItemOtherItem, partner);
        EXPECT_EQ(project_.itemFile.size(), 418U);
    }
}

TEST_F(Items, AnItemMayBeItsOwnPartner) {
    open(ProjectBuilder().items(1));
    ItemRecord form = LoadItem(project_, 1);
    form.ItemOtherItem = 1;
    SaveItem(project_, 1, form);
    EXPECT_EQ(LoadItem(project_, 1).ItemOtherItem, 1);
}

TEST_F(Items, TheIconIsLookedUp) {
    open(ProjectBuilder().item(1, "Key", "key.gif").items(2));
    EXPECT_EQ(GetItemIcon(project_, 1), "key.gif");
    for (const int number : {2, 3, 0, -1}) {
        EXPECT_EQ(GetItemIcon(project_, number), "") << number;
    }
}

using Cards = GameStores;

TEST_F(Cards, ASavedCardComesBackAndItsReservedPartIsZero) {
    open(ProjectBuilder().cards(2).securityCode(50));
    CueCardRecord form = LoadCard(project_, 1);
    EXPECT_EQ(form.SecurityCode, 50);
    form.CardName = "Ask the guard";
    for (std::size_t i = 0; i < 5; ++i) {
        form.ChoiceText[i] = "Choice " + std::to_string(i + 1);
        form.ChoiceFlagId[i] = static_cast<std::int16_t>(i + 10);
        form.ChoiceVolume[i] = static_cast<std::int16_t>(-100 * static_cast<int>(i));
    }
    form.Reserved412[24] = "left over";
    form.Reserved1662[24] = 5;
    SaveCard(project_, 1, form);
    const std::string bytes = readBytes(files_.storePath(5), 0, 1712);
    EXPECT_EQ(bytes.substr(0, 2), std::string(2, '\0'));
    EXPECT_EQ(bytes.substr(412), std::string(1300, '\0'));
    EXPECT_EQ(bytes.substr(317, 75), std::string(75, ' '));
    const CueCardRecord back = LoadCard(project_, 1);
    EXPECT_EQ(back.CardName.text(), "Ask the guard");
    EXPECT_EQ(back.ChoiceText[4].text(), "Choice 5");
    EXPECT_EQ(back.ChoiceFlagId[4], 14);
    EXPECT_EQ(back.ChoiceVolume[4], -400);
}

TEST_F(Cards, AVolumeAboveZeroLoadsAsZero) {
    open(ProjectBuilder().editCard(1, [](CueCardRecord& record) {
        record.ChoiceVolume[0] = 5;
        record.ChoiceVolume[1] = 32767;
        record.ChoiceVolume[2] = -4000;
        record.ChoiceVolume[3] = -32768;
    }));
    const CueCardRecord card = LoadCard(project_, 1);
    EXPECT_EQ(card.ChoiceVolume[0], 0);
    EXPECT_EQ(card.ChoiceVolume[1], 0);
    EXPECT_EQ(card.ChoiceVolume[2], -4000);
    EXPECT_EQ(card.ChoiceVolume[3], -32768);
    EXPECT_EQ(readInt(files_.storePath(5), 392), 5);  // the file keeps it until a save
}

TEST_F(Cards, AnUnsetTextIsWrittenBlank) {
    open(ProjectBuilder());
    SaveCard(project_, 1, CueCardRecord{});
    const std::string bytes = readBytes(files_.storePath(5));
    EXPECT_EQ(bytes.substr(2, 265), std::string(265, ' '));
    EXPECT_EQ(bytes.substr(267, 50), std::string(50, '\0'));
}

using Locations = GameStores;

TEST_F(Locations, ASavedLocationIsActive) {
    open(ProjectBuilder().locations(3));
    LocationRecord form = LoadLocation(project_, 2);
    form.LocationName = "  Harbour ";
    form.LocationImage = "";
    form.LocationX = 12;
    form.LocationY = -3;
    form.LocationInUse = 0;
    form.MapImage = "stray.bmp";
    form.Reserved106[1] = 9;
    form.SecurityCode = 9;
    SaveLocation(project_, 2, form);
    const std::string bytes = locationBytes(2);
    EXPECT_EQ(bytes.substr(0, 15), "Harbour        ");
    EXPECT_EQ(bytes.substr(15, 15), "(None)         ");
    EXPECT_EQ(readInt(files_.storePath(2), 112 + 30), 12);
    EXPECT_EQ(readInt(files_.storePath(2), 112 + 32), -3);
    EXPECT_EQ(readInt(files_.storePath(2), 112 + 34), 1);
    EXPECT_EQ(bytes.substr(61, 45), std::string(45, ' '));
    EXPECT_EQ(bytes.substr(106, 6), std::string(6, '\0'));
}

TEST_F(Locations, TheFirstRecordCarriesTheMapsPicture) {
    open(ProjectBuilder().locations(2).mapImage("map.bmp"));
    EXPECT_EQ(project_.lists.MapImage, "map.bmp");
    LocationRecord form = LoadLocation(project_, 1);
    form.MapImage = "";
    SaveLocation(project_, 1, form);
    EXPECT_EQ(LoadLocation(project_, 1).MapImage.text(), "map.bmp");
    AddBlankLocation(project_, 1);
    EXPECT_EQ(LoadLocation(project_, 1).MapImage.text(), "map.bmp");
    AddBlankLocation(project_, 2);
    EXPECT_EQ(LoadLocation(project_, 2).MapImage.text(), "");
}

TEST_F(Locations, ABlankLocationIsActiveAndHasNothing) {
    open(ProjectBuilder().locations(1));
    AddBlankLocation(project_, 2);
    const std::string blank = std::string(15, ' ') + "(None)         " + std::string(4, '\0') +
                              std::string("\1\0", 2) + std::string(6, '\0') + std::string(15, ' ') +
                              std::string(4, '\0') + std::string(45, ' ') + std::string(6, '\0');
    EXPECT_EQ(locationBytes(2), blank);
}

TEST_F(Locations, ARemovedLocationKeepsItsPlace) {
    open(ProjectBuilder().locations(5));
    RemoveLocation(project_, 3);
    EXPECT_EQ(LoadLocation(project_, 3).LocationImage.text(), "Del");
    EXPECT_EQ(LoadLocation(project_, 3).LocationInUse, 0);
    EXPECT_EQ(project_.locationFile.count(), 5);
    AddBlankLocation(project_, project_.locationFile.count() + 1);
    project_.ReadLocationList();
    EXPECT_EQ(project_.LocationCount, 6);
    std::string numbers;
    for (const ListEntry& entry : project_.lists.locations) {
        numbers += std::to_string(entry.number);
    }
    EXPECT_EQ(numbers, "12456");
    EXPECT_FALSE(project_.lists.mapIcons[2].visible);
}

TEST_F(Locations, RemovingLocationOneKeepsTheMapsPicture) {
    open(ProjectBuilder().locations(2).mapImage("map.bmp"));
    RemoveLocation(project_, 1);
    EXPECT_EQ(LoadLocation(project_, 1).MapImage.text(), "map.bmp");
    project_.ReadLocationList();
    EXPECT_EQ(project_.lists.MapImage, "map.bmp");
    ASSERT_EQ(project_.lists.locations.size(), 1U);
    EXPECT_EQ(project_.lists.locations[0].number, 2);
}

TEST_F(Locations, PositionsOfVisibleIconsAreSaved) {
    open(ProjectBuilder().locations(4).securityCode(8));
    RemoveLocation(project_, 3);
    project_.ReadLocationList();
    project_.lists.MapImage = "new map.bmp";
    for (MapIcon& icon : project_.lists.mapIcons) {
        icon.x = static_cast<std::int16_t>(icon.number * 10);
        icon.y = static_cast<std::int16_t>(icon.number * 100);
    }
    std::vector<MapIcon> icons = project_.lists.mapIcons;
    icons.push_back({9, "", 1, 1, true});  // no such record
    SaveMapPositions(project_, icons);
    for (const int number : {1, 2, 4}) {
        EXPECT_EQ(LoadLocation(project_, number).LocationX, number * 10);
        EXPECT_EQ(LoadLocation(project_, number).LocationY, number * 100);
    }
    EXPECT_EQ(LoadLocation(project_, 3).LocationX, 0);
    EXPECT_EQ(LoadLocation(project_, 1).MapImage.text(), "new map.bmp");
    EXPECT_EQ(LoadLocation(project_, 2).MapImage.text(), "");
    EXPECT_EQ(LoadLocation(project_, 1).SecurityCode, 8);
    EXPECT_EQ(LoadLocation(project_, 1).LocationName.text(), "Location 1");
    EXPECT_EQ(project_.locationFile.count(), 4);
}

TEST_F(Locations, TheFirstPositionAndTheMapAreSavedWithoutALocationOne) {
    open(ProjectBuilder());
    ASSERT_EQ(project_.lists.mapIcons.size(), 1U);
    EXPECT_FALSE(project_.lists.mapIcons[0].visible);
    project_.lists.MapImage = "map.bmp";
    SaveMapPositions(project_, project_.lists.mapIcons);
    EXPECT_EQ(LoadLocation(project_, 1).MapImage.text(), "map.bmp");
    project_.lists.MapImage = "map2.bmp";
    SaveMapPositions(project_, {});
    EXPECT_EQ(LoadLocation(project_, 1).MapImage.text(), "map2.bmp");
    EXPECT_EQ(LoadLocation(project_, 1).LocationImage.text(), "");
}

TEST_F(GameStores, WritesToClosedOrBadRecordsAreTold) {
    open(ProjectBuilder().items(1).cards(1));
    EXPECT_THROW(SaveItem(project_, 0, ItemRecord{}), RuntimeError);
    EXPECT_THROW(SaveCard(project_, -1, CueCardRecord{}), RuntimeError);
    EXPECT_THROW(RemoveLocation(project_, 0), RuntimeError);
    EXPECT_THROW(LoadItem(project_, 0), RuntimeError);
    project_.closeFiles();
    EXPECT_THROW(SaveItem(project_, 1, ItemRecord{}), RuntimeError);
    EXPECT_THROW(SaveLocation(project_, 1, LocationRecord{}), RuntimeError);
    EXPECT_THROW(LoadCard(project_, 1), RuntimeError);
}

}  // namespace
}  // namespace quorvel::store
