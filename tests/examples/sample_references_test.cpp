// What the sample game names, found by the loop over the dictionary and by hand.
#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "examples/sample_game.h"
#include "store/custom_files.h"
#include "store/references.h"

namespace quorvel {
namespace {

namespace fs = std::filesystem;
using namespace store;

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

class SampleReferences : public test::SampleGame {
  protected:
    /// The names of the files of a kind, as the records spell them.
    std::set<std::string> filesOf(ReferenceKind kind) {
        std::set<std::string> files;
        forEachReference(project_, nullptr, [&](const Reference& each) {
            if (each.kind == kind) {
                files.insert(std::string(each.file));
            }
        });
        return files;
    }

    /// The numbers of a kind that take part in the game.
    std::set<int> numbersOf(ReferenceKind kind) {
        std::set<int> numbers;
        forEachReference(project_, nullptr, [&](const Reference& each) {
            if (each.kind == kind && each.inEffect) {
                numbers.insert(each.number);
            }
        });
        return numbers;
    }

    std::set<std::string> filesIn(ResourceFolder folder) const {
        std::set<std::string> files;
        for (const auto& entry :
             fs::directory_iterator(resourceFolder(project_.folder(), folder))) {
            files.insert(entry.path().filename().string());
        }
        return files;
    }
};

/// Files of the folder that no record has to name: the player finds them by their own names.
bool isCustomFile(const std::string& name) {
    return std::ranges::count(kCustomButtonFiles, name) +
               std::ranges::count(kCustomBackgroundFiles, name) >
           0;
}

TEST_F(SampleReferences, NameAllFilesOfTheFoldersAndNoOthers) {
    std::set<std::string> pictures = filesIn(ResourceFolder::gfx);
    std::erase_if(pictures, isCustomFile);
    EXPECT_GE(pictures.size(), 50U);
    EXPECT_THAT(filesOf(ReferenceKind::gfxFile), UnorderedElementsAreArray(pictures));
    const std::set<std::string> media = filesIn(ResourceFolder::mmedia);
    EXPECT_GE(media.size(), 8U);
    EXPECT_THAT(filesOf(ReferenceKind::mediaFile), UnorderedElementsAreArray(media));
    EXPECT_THAT(filesOf(ReferenceKind::playerFile), ElementsAre("Game.exe"));
    EXPECT_TRUE(fs::exists(project_.folder() / "Game.exe"));
}

TEST_F(SampleReferences, EveryFileTakesPart) {
    std::set<std::string> resting = filesOf(ReferenceKind::gfxFile);
    resting.merge(filesOf(ReferenceKind::mediaFile));
    forEachReference(project_, nullptr, [&](const Reference& each) {
        if (each.inEffect) {
            resting.erase(std::string(each.file));
        }
    });
    EXPECT_THAT(resting, IsEmpty());
}

TEST_F(SampleReferences, NameAllLinkedScenes) {
    using Way = std::pair<int, int>;
    std::multiset<Way> expected;
    const auto add = [&](int from, int to) {
        if (to != 0) {
            expected.insert({from, to});
        }
    };
    for (int number = 1; number <= project_.NumberOfScenes; ++number) {
        const Scene& scene = scenes_[static_cast<std::size_t>(number - 1)];
        for (const LinkSide side : kLinkSides) {
            add(number, scene.link(side).target);
        }
        add(number, scene.header(HeaderInt::SceneCheckFlagTarget));
    }
    forEachObject([&](int from, int /*number*/, const ObjectSlot& slot) {
        if (typeOf(slot) == ObjectType::hotSpot) {
            add(from, slot.SlotInt(16));
        } else if (typeOf(slot) == ObjectType::responder) {
            add(from, slot.SlotInt(15));
        } else if (typeOf(slot) == ObjectType::multiTrigger) {
            for (const int trigger : {12, 20, 28}) {
                add(from, slot.SlotInt(trigger));
            }
        }
    });
    ASSERT_GE(expected.size(), 20U);
    std::multiset<Way> found;
    std::set<int> fromElsewhere;
    forEachReference(project_, nullptr, [&](const Reference& each) {
        if (each.kind != ReferenceKind::scene) {
            return;
        }
        EXPECT_TRUE(
            inRange(std::string(each.field->name), each.number, 1, project_.NumberOfScenes));
        if (each.record == RecordKind::scene) {
            found.insert({each.recordNumber, each.number});
        } else if (each.record != RecordKind::project) {
            fromElsewhere.insert(each.number);
        }
    });
    EXPECT_EQ(found, expected);
    std::set<int> byHand = {project_.settingsFile.read(1).CreditsScene};
    for (const ListEntry& location : project_.lists.locations) {
        byHand.insert(location.scene);
    }
    EXPECT_EQ(fromElsewhere, byHand);
}

TEST_F(SampleReferences, NameTheFlagsOfTheStory) {
    std::set<int> story = {255};  // the score
    for (int flag = 1; flag <= 15; ++flag) {
        story.insert(flag);
    }
    EXPECT_EQ(numbersOf(ReferenceKind::flag), story);
}

TEST_F(SampleReferences, NameItemsLocationsAndCardsThatAreThere) {
    const std::vector<std::pair<ReferenceKind, int>> counts = {
        {ReferenceKind::item, project_.ItemCount},
        {ReferenceKind::location, project_.LocationCount},
        {ReferenceKind::card, project_.CueCardCount}};
    for (const auto& [kind, count] : counts) {
        const std::set<int> numbers = numbersOf(kind);
        ASSERT_FALSE(numbers.empty());
        EXPECT_GE(*numbers.begin(), 1);
        EXPECT_LE(*numbers.rbegin(), count);
    }
    EXPECT_EQ(static_cast<int>(numbersOf(ReferenceKind::card).size()), project_.CueCardCount);
}

TEST_F(SampleReferences, SayWhereTheyStand) {
    std::string where;
    forEachReference(project_, nullptr, [&](const Reference& each) {
        if (each.file == "MapLane.gif") {
            where += std::string(recordName(each.record)) + " " +
                     std::to_string(each.recordNumber) + " " + std::string(each.field->name);
        }
    });
    EXPECT_EQ(where, "LocationRecord 2 LocationImage");
}

}  // namespace
}  // namespace quorvel
