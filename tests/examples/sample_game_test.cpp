// The sample game as an author would meet it: every number and name in its records leads somewhere.
#include "examples/sample_game.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <QImage>

#include "store/numbers.h"
#include "store/security.h"
#include "support/file_bytes.h"

namespace quorvel {
namespace {

namespace fs = std::filesystem;
using namespace store;

using test::kMostPointers;
using test::kSceneHeight;
using test::kSceneWidth;
using test::SampleGame;

TEST_F(SampleGame, ProjectFileAgreesWithItsStores) {
    EXPECT_EQ(project_.GameTitle, "The Last Lamplighter");
    EXPECT_GE(project_.NumberOfScenes, 10);
    EXPECT_EQ(record_.ItemCount, project_.itemFile.count());
    EXPECT_EQ(record_.LocationCount, project_.locationFile.count());
    EXPECT_EQ(record_.CueCardCount, project_.cardFile.count());
    EXPECT_GE(project_.LocationCount, 4);
    EXPECT_EQ(record_.ProjectVersion, kProjectVersion);
    EXPECT_TRUE(inRange("CurrentScene", record_.CurrentScene, 1, project_.NumberOfScenes));
    EXPECT_TRUE(inRange("CurrentItem", record_.CurrentItem, 1, project_.ItemCount));
    EXPECT_TRUE(inRange("CurrentCueCard", record_.CurrentCueCard, 1, project_.CueCardCount));
    EXPECT_EQ(record_.ViewBorders, 0);
    EXPECT_EQ(record_.ViewAnimations, 1);
}

TEST_F(SampleGame, SecurityIsOffInAllSixFiles) {
    EXPECT_EQ(record_.SecurityCode, 0);
    const SecurityCheck check = checkSecurity(project_);
    EXPECT_THAT(check.mismatches, testing::IsEmpty());
    EXPECT_FALSE(check.oldSettings);
}

TEST_F(SampleGame, ScenePicturesFillTheCanvas) {
    std::set<std::string> kinds;
    std::set<std::string> names;
    for (const Scene& scene : scenes_) {
        const std::string& image = scene.header(HeaderString::SceneImage);
        EXPECT_EQ(picture(image).read().size(), QSize(kSceneWidth, kSceneHeight)) << image;
        kinds.insert(fs::path(image).extension().string());
        EXPECT_FALSE(scene.header(HeaderString::SceneName).empty());
        EXPECT_TRUE(names.insert(scene.header(HeaderString::SceneName)).second);
    }
    EXPECT_THAT(kinds, testing::UnorderedElementsAre(".bmp", ".jpg"));
    EXPECT_EQ(picture(project_.lists.MapImage).read().size(), QSize(kSceneWidth, kSceneHeight));
}

TEST_F(SampleGame, SceneHeadersLeadSomewhere) {
    std::set<LinkSide> used;
    for (const Scene& scene : scenes_) {
        for (const LinkSide side : kLinkSides) {
            EXPECT_TRUE(inRange("target", scene.link(side).target, 0, project_.NumberOfScenes));
            EXPECT_TRUE(inRange("pointer", scene.link(side).pointer, 0, 9));
            if (scene.link(side).target > 0) {
                EXPECT_GT(scene.link(side).pointer, 0);
                used.insert(side);
            }
        }
        EXPECT_TRUE(inRange("switch target", scene.header(HeaderInt::SceneCheckFlagTarget), 0,
                            project_.NumberOfScenes));
        for (const HeaderString field :
             {HeaderString::SceneSoundtrack, HeaderString::SceneSound1File,
              HeaderString::SceneSound2File, HeaderString::SceneSound3File,
              HeaderString::SceneEnterMovie, HeaderString::SceneExitMovie}) {
            expectFile(ResourceFolder::mmedia, scene.header(field));
        }
    }
    EXPECT_EQ(used.size(), 4U);
}

TEST_F(SampleGame, EverySceneCanBeReached) {
    std::map<int, std::set<int>> ways;
    const auto add = [&](int from, int to) {
        if (to > 0) {
            ways[from].insert(to);
        }
    };
    for (int from = 1; from <= project_.NumberOfScenes; ++from) {
        const Scene& scene = scenes_[static_cast<std::size_t>(from - 1)];
        for (const LinkSide side : kLinkSides) {
            add(from, scene.link(side).target);
        }
    }
    forEachObject([&](int from, int /*number*/, const ObjectSlot& slot) {
        for (const ObjectFieldInfo& field : objectFields(typeOf(slot))) {
            if (field.use == FieldUse::scene) {
                add(from, slot.SlotInt(field.number));
            }
        }
    });
    std::set<int> seen{1};
    std::vector<int> open{1};
    while (!open.empty()) {
        const int from = open.back();
        open.pop_back();
        for (const int to : ways[from]) {
            if (seen.insert(to).second) {
                open.push_back(to);
            }
        }
    }
    EXPECT_EQ(static_cast<int>(seen.size()), project_.NumberOfScenes);
}

TEST_F(SampleGame, UsesAllTenTypesAndOneCrowdedScene) {
    std::set<ObjectType> types;
    forEachObject([&](int scene, int number, const ObjectSlot& slot) {
        EXPECT_TRUE(isKnownType(typeOf(slot))) << scene << "/" << number;
        types.insert(typeOf(slot));
    });
    EXPECT_EQ(types.size(), 10U);
    const auto busiest = std::ranges::max_element(scenes_, {}, &Scene::objectCount);
    EXPECT_GE(busiest->objectCount(), 10);
}

TEST_F(SampleGame, ObjectFieldsAreValid) {
    forEachObject([&](int scene, int number, const ObjectSlot& slot) {
        SCOPED_TRACE("scene " + std::to_string(scene) + ", object " + std::to_string(number));
        for (const ObjectFieldInfo& field : objectFields(typeOf(slot))) {
            if (!field.isText) {
                EXPECT_TRUE(validNumber(field, slot.SlotInt(field.number)));
            } else if (field.use == FieldUse::gfxFile) {
                expectFile(ResourceFolder::gfx, slot.SlotStr(field.number));
            } else if (field.use == FieldUse::mediaFile || field.use == FieldUse::soundtrackFile) {
                expectFile(ResourceFolder::mmedia, slot.SlotStr(field.number));
            }
        }
        EXPECT_EQ(slot.SlotInt(30), 1);
        for (int field = 31; field <= 36; ++field) {
            EXPECT_EQ(slot.SlotInt(field), number);
        }
    });
}

TEST_F(SampleGame, ObjectsStandWithinTheirScene) {
    forEachObject([&](int scene, int number, const ObjectSlot& slot) {
        SCOPED_TRACE("scene " + std::to_string(scene) + ", object " + std::to_string(number));
        QSize size(48, 48);
        if (typeOf(slot) == ObjectType::hotSpot && store::number(slot, HotSpot::QuickSpot) == 1) {
            size = {valInt(word(slot, HotSpot::QuickWidth)),
                    valInt(word(slot, HotSpot::QuickHeight))};
            EXPECT_GE(std::min(size.width(), size.height()), HotSpot::kLeastSide);
        } else if (hasPicture(typeOf(slot))) {
            size = picture(slot.SlotStr(1)).size();
        }
        EXPECT_TRUE(
            QRect(0, 0, kSceneWidth, kSceneHeight)
                .contains(QRect({store::number(slot, kLeft), store::number(slot, kTop)}, size)));
    });
}

TEST_F(SampleGame, MostPicturesMoveAndAllHaveClearPixels) {
    std::set<std::string> files;
    int moving = 0;
    forEachObject([&](int /*scene*/, int /*number*/, const ObjectSlot& slot) {
        if (!hasPicture(typeOf(slot)) || slot.SlotStr(1).empty()) {
            return;
        }
        QImageReader reader = picture(slot.SlotStr(1));
        const int frames = reader.imageCount();
        EXPECT_TRUE(inRange(slot.SlotStr(1), frames, 1, 16));
        EXPECT_TRUE(reader.read().hasAlphaChannel()) << slot.SlotStr(1);
        if (typeOf(slot) == ObjectType::switchObject) {
            EXPECT_GE(frames, 2);
        }
        moving += files.insert(slot.SlotStr(1)).second && frames >= 2 ? 1 : 0;
    });
    EXPECT_GT(moving * 2, static_cast<int>(files.size()));
}

TEST_F(SampleGame, HotSpotsOfBothStylesAndOneToTheMap) {
    std::set<int> styles;
    bool toMap = false;
    forEachObject([&](int /*scene*/, int /*number*/, const ObjectSlot& slot) {
        if (typeOf(slot) == ObjectType::hotSpot) {
            styles.insert(store::number(slot, HotSpot::QuickSpot));
            toMap = toMap || store::number(slot, HotSpot::TargetKind) == 2;
        }
    });
    EXPECT_THAT(styles, testing::UnorderedElementsAre(0, 1));
    EXPECT_TRUE(toMap);
}

TEST_F(SampleGame, ItemsHavePicturesAndMirroredCombinations) {
    int combinations = 0;
    for (int number = 1; number <= project_.ItemCount; ++number) {
        SCOPED_TRACE("item " + std::to_string(number));
        const ItemRecord item = project_.itemFile.read(number);
        EXPECT_FALSE(item.ItemName.text().empty());
        EXPECT_EQ(picture(item.ItemIcon.text()).read().size(), QSize(32, 32));
        EXPECT_FALSE(picture(item.ItemCloseupImage.text()).read().isNull());
        for (const std::string& cursor : {item.ItemCursor.text(), item.ItemCursorHi.text()}) {
            EXPECT_EQ(test::readBytes(find(ResourceFolder::gfx, cursor)).substr(0, 4),
                      std::string("\0\0\2\0", 4));
        }
        for (const std::string& sound : {item.ItemWrongSound.text(), item.ItemExamineSound.text(),
                                         item.ItemCombineSound.text()}) {
            expectFile(ResourceFolder::mmedia, sound);
        }
        EXPECT_TRUE(inRange("location", item.ItemMapLocation, 0, project_.LocationCount));
        const int partner = item.ItemOtherItem;
        ASSERT_TRUE(inRange("partner", partner, 0, project_.ItemCount));
        EXPECT_EQ(item.ItemCombines, partner > 0 ? 1 : 0);
        if (partner > 0) {
            const ItemRecord other = project_.itemFile.read(partner);
            EXPECT_EQ(other.ItemOtherItem, number);
            EXPECT_EQ(other.ItemCombines, 1);
            EXPECT_EQ(other.ItemNewItem, item.ItemNewItem);
            EXPECT_TRUE(inRange("result", item.ItemNewItem, 1, project_.ItemCount));
            ++combinations;
        }
    }
    EXPECT_GE(combinations, 2);
}

TEST_F(SampleGame, EveryNeededItemCanBeHad) {
    std::set<int> had;
    std::set<int> needed;
    forEachObject([&](int /*scene*/, int /*number*/, const ObjectSlot& slot) {
        if (typeOf(slot) == ObjectType::goodie) {
            had.insert(store::number(slot, Goodie::GivenItem));
            needed.insert(store::number(slot, Goodie::NeededItem));
        } else if (typeOf(slot) == ObjectType::hotSpot) {
            needed.insert(store::number(slot, HotSpot::NeededItem));
        }
    });
    for (int number = 1; number <= project_.ItemCount; ++number) {
        const ItemRecord item = project_.itemFile.read(number);
        if (item.ItemAtStart == 1) {
            had.insert(number);
        }
        had.insert(item.ItemNewItem);
    }
    needed.erase(0);
    EXPECT_GE(needed.size(), 2U);
    EXPECT_TRUE(std::ranges::includes(had, needed));
}

TEST_F(SampleGame, LocationsLieOnTheMapAndLeadToScenes) {
    for (int number = 1; number <= project_.LocationCount; ++number) {
        const LocationRecord location = project_.locationFile.read(number);
        EXPECT_FALSE(location.LocationName.text().empty());
        EXPECT_EQ(location.LocationInUse, 1);
        EXPECT_TRUE(inRange("scene", location.LocationScene, 1, project_.NumberOfScenes));
        const QSize size = picture(location.LocationImage.text()).size();
        EXPECT_TRUE(QRect(0, 0, kSceneWidth, kSceneHeight)
                        .contains(QRect({location.LocationX, location.LocationY}, size)));
        expectFile(ResourceFolder::mmedia, location.LocationMedia.text());
        EXPECT_EQ(location.MapImage.text(), number == 1 ? project_.lists.MapImage : "");
    }
}

TEST_F(SampleGame, CardsHaveChoices) {
    std::set<int> shown;
    forEachObject([&](int /*scene*/, int /*number*/, const ObjectSlot& slot) {
        if (typeOf(slot) == ObjectType::conversation) {
            shown.insert(store::number(slot, Conversation::CueCard));
        }
    });
    for (int number = 1; number <= project_.CueCardCount; ++number) {
        const CueCardRecord card = project_.cardFile.read(number);
        EXPECT_TRUE(shown.contains(number)) << number;
        EXPECT_FALSE(card.CardName.text().empty());
        EXPECT_FALSE(card.ChoiceText[0].text().empty());
        for (std::size_t i = 0; i < card.ChoiceText.size(); ++i) {
            EXPECT_TRUE(inRange("flag", card.ChoiceFlagId[i], 1, 255));
            expectFile(ResourceFolder::mmedia, card.ChoiceMedia[i].text());
        }
    }
}

TEST_F(SampleGame, SettingsNameTheirFiles) {
    const GameSettingsRecord settings = project_.settingsFile.read(1);
    EXPECT_EQ(settings.CustomLayoutFlag, 1);
    EXPECT_EQ(settings.ScoreOn, 1);
    EXPECT_TRUE(inRange("credits", settings.CreditsScene, 1, project_.NumberOfScenes));
    ASSERT_EQ(static_cast<int>(settings.GamePointer.size()), kMostPointers);
    for (const auto& pointer : settings.GamePointer) {
        EXPECT_EQ(test::readBytes(find(ResourceFolder::gfx, pointer.text())).substr(0, 4),
                  std::string("\0\0\2\0", 4));
    }
    for (const std::string& sound :
         {settings.ClickSoundFile.text(), settings.InventoryFullSoundFile.text(),
          settings.WrongTargetSoundFile.text(), settings.MenuMusicFile.text(),
          settings.ButtonOverSoundFile.text()}) {
        find(ResourceFolder::mmedia, sound);
    }
}

TEST_F(SampleGame, SoundsAreWavesTunesAndAMovie) {
    int waves = 0;
    int tunes = 0;
    int movies = 0;
    for (const auto& entry :
         fs::directory_iterator(resourceFolder(project_.folder(), ResourceFolder::mmedia))) {
        const std::string bytes = test::readBytes(entry.path());
        if (entry.path().extension() == ".wav") {
            EXPECT_EQ(bytes.substr(0, 4) + bytes.substr(8, 8), "RIFFWAVEfmt ") << entry.path();
            ++waves;
        } else if (entry.path().extension() == ".avi") {
            EXPECT_EQ(bytes.substr(0, 4) + bytes.substr(8, 4), "RIFFAVI ") << entry.path();
            ++movies;
        } else {
            EXPECT_EQ(entry.path().extension(), ".mid");
            EXPECT_EQ(bytes.substr(0, 4), "MThd") << entry.path();
            ++tunes;
        }
    }
    EXPECT_GE(waves, 6);
    EXPECT_GE(tunes, 1);
    EXPECT_EQ(movies, 1);
}

}  // namespace
}  // namespace quorvel
