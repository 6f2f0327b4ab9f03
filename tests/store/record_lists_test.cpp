#include "store/record_lists.h"

#include <gtest/gtest.h>
#include <limits>

#include "store/project_stage.h"
#include "support/file_bytes.h"

namespace quorvel::store {
namespace {

using test::ProjectBuilder;

using RecordLists = ProjectStage;

TEST_F(RecordLists, ALineIsNumberBlankAndNameInParentheses) {
    EXPECT_EQ(listText(3, "Hall"), "3 (Hall)");
    EXPECT_EQ(listText(32767, ""), "32767 ()");
}

TEST_F(RecordLists, HaveBounds) {
    const std::vector<ListEntry> entries = {{1, "Hall", 0}, {2, "Attic", 0}};
    EXPECT_EQ(entryAt(entries, 0), &entries.front());
    EXPECT_EQ(entryAt(entries, 1), &entries.back());
    for (const int row :
         {-1, 2, 3, 32767, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(entryAt(entries, row), nullptr) << row;
    }
    EXPECT_EQ(entryAt({}, 0), nullptr);
}

TEST_F(RecordLists, HoldEveryRecordInOrder) {
    open(ProjectBuilder().scenes(3).scene(2, " Hall ").items(2).item(1, "Key").cards(2));
    EXPECT_EQ(project_.lists.scenes,
              (std::vector<ListEntry>{{1, "Scene 1", 0}, {2, "Hall", 0}, {3, "Scene 3", 0}}));
    EXPECT_EQ(project_.lists.items, (std::vector<ListEntry>{{1, "Key", 0}, {2, "Item 2", 0}}));
    EXPECT_EQ(project_.lists.cards, (std::vector<ListEntry>{{1, "Card 1", 0}, {2, "Card 2", 0}}));
}

TEST_F(RecordLists, OfANewProjectHaveOneSceneAndNothingElse) {
    open(ProjectBuilder());
    EXPECT_EQ(project_.lists.scenes, (std::vector<ListEntry>{{1, "", 0}}));
    EXPECT_TRUE(project_.lists.locations.empty());
    EXPECT_TRUE(project_.lists.items.empty());
    EXPECT_TRUE(project_.lists.cards.empty());
    EXPECT_EQ(project_.lists.MapImage, "");
}

TEST_F(RecordLists, NamesAreTextsOfTheCodePage) {
    open(ProjectBuilder().items(1));
    test::patchBytes(files_.storePath(3), 0, "\xC4pfel \x80  ");
    project_.ReadItemList();
    EXPECT_EQ(project_.lists.items[0].name, "\u00C4pfel \u20AC");
}

TEST_F(RecordLists, LocationsKnowTheirNumberTheirSceneAndTheirIcon) {
    open(ProjectBuilder()
             .location(1, "Harbour", 7, "ship.gif")
             .location(2, "Inn", -1)
             .editLocation(2,
                           [](LocationRecord& record) {
                               record.LocationX = 300;
                               record.LocationY = -5;
                           })
             .mapImage("map.bmp"));
    EXPECT_EQ(project_.lists.locations,
              (std::vector<ListEntry>{{1, "Harbour", 7}, {2, "Inn", -1}}));
    EXPECT_EQ(project_.lists.MapImage, "map.bmp");
    const auto& icons = project_.lists.mapIcons;
    ASSERT_EQ(icons.size(), 2U);
    EXPECT_EQ(icons[0].image, "ship.gif");
    EXPECT_EQ(icons[1].image, "");
    EXPECT_EQ(icons[1].x, 300);
    EXPECT_EQ(icons[1].y, -5);
    EXPECT_TRUE(icons[0].visible && icons[1].visible);
}

TEST_F(RecordLists, RemovedLocationsKeepTheirNumberAndHaveNoEntry) {
    open(ProjectBuilder().locations(4).location(2, "Gone", 1, "Del"));
    std::vector<int> numbers;
    for (const ListEntry& entry : project_.lists.locations) {
        numbers.push_back(entry.number);
    }
    EXPECT_EQ(numbers, (std::vector<int>{1, 3, 4}));
    EXPECT_FALSE(project_.lists.mapIcons[1].visible);
    EXPECT_EQ(project_.lists.mapIcons[1].number, 2);
    EXPECT_EQ(project_.LocationCount, 4);
}

TEST_F(RecordLists, AnEmptyIconMeansNoLocationInTheFirstRecordAlone) {
    open(ProjectBuilder().location(1, "A", 0, "").location(2, "B", 0, ""));
    ASSERT_EQ(project_.lists.locations.size(), 1U);
    EXPECT_EQ(project_.lists.locations[0].number, 2);
    EXPECT_FALSE(project_.lists.mapIcons[0].visible);
    EXPECT_TRUE(project_.lists.mapIcons[1].visible);
}

TEST_F(RecordLists, ALocationWithoutAnIconIsOneAndARemovedOneIsNot) {
    open(ProjectBuilder().location(1, "A", 0, "(None)").location(2, "B", 0, "Del"));
    ASSERT_EQ(project_.lists.locations.size(), 1U);
    EXPECT_EQ(project_.lists.locations[0].number, 1);
    EXPECT_TRUE(project_.lists.mapIcons[0].visible);
    EXPECT_FALSE(project_.lists.mapIcons[1].visible);
}

TEST_F(RecordLists, AMapLongerThanTwentyLocationsIsReadWhole) {
    open(ProjectBuilder().locations(21));
    EXPECT_EQ(project_.lists.mapIcons.size(), 21U);
}

TEST_F(RecordLists, AThousandScenesAreListed) {
    open(ProjectBuilder().scenes(1000));
    EXPECT_EQ(project_.NumberOfScenes, 1000);
    EXPECT_EQ(project_.lists.scenes[999], (ListEntry{1000, "Scene 1000", 0}));
}

TEST(SceneNames, HaveBoundsOfTheirOwn) {
    ProjectLists lists;
    EXPECT_EQ(lists.sceneName(1), "");
    EXPECT_FALSE(lists.renameScene(1, "Hall"));
    lists.scenes = {{1, "Hall", 0}, {2, "Yard", 0}};
    EXPECT_EQ(lists.sceneName(2), "Yard");
    EXPECT_TRUE(lists.renameScene(2, "Garden"));
    EXPECT_EQ(lists.sceneName(2), "Garden");
    for (const int number : {-32768, -1, 0, 3, 32767}) {
        EXPECT_EQ(lists.sceneName(number), "") << number;
        EXPECT_FALSE(lists.renameScene(number, "x")) << number;
    }
    EXPECT_EQ(lists.scenes.size(), 2U);
}

}  // namespace
}  // namespace quorvel::store
