#include "store/dictionary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <stdexcept>

#include "store/field_rows.h"
#include "store/golden_records.h"

namespace quorvel::store {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

std::vector<std::span<const FieldRef>> allDictionaries() {
    std::vector<std::span<const FieldRef>> all;
    for (int kind = 0; kind < kRecordKinds; ++kind) {
        all.push_back(dictionary(static_cast<RecordKind>(kind)));
    }
    for (int type = 0; type < kObjectTypes; ++type) {
        all.push_back(dictionary(static_cast<ObjectType>(type)));
    }
    return all;
}

std::string nameOf(const FieldRef& field) {
    return std::string(recordName(field.record)) + "/" +
           std::to_string(static_cast<int>(field.type)) + "::" + std::string(field.name);
}

/// The names of the fields of a dictionary that hold `use`.
std::vector<std::string> namesOf(std::span<const FieldRef> fields, FieldUse use) {
    std::vector<std::string> names;
    for (const FieldRef& field : fields) {
        if (field.use == use) {
            names.emplace_back(field.name);
        }
    }
    return names;
}

// Every byte of a record belongs to one field: the dictionary forgets none.

template <class Record>
class RecordDictionary : public testing::Test {};
using FileRecords = testing::Types<ProjectRecord, SceneRecord, GameSettingsRecord, ItemRecord,
                                   LocationRecord, CueCardRecord, SkinRecord>;
TYPED_TEST_SUITE(RecordDictionary, FileRecords);

TYPED_TEST(RecordDictionary, NamesEachElementAtItsPlace) {
    std::vector<std::pair<int, int>> expected;
    for (const auto& row : golden::rows<TypeParam>()) {
        for (int i = 0; i < row.count; ++i) {
            expected.emplace_back(static_cast<int>(row.at(i)), row.isText ? row.width : -2);
        }
    }
    std::vector<std::pair<int, int>> found;
    for (const FieldRef& field : dictionary(kindOf<TypeParam>())) {
        EXPECT_EQ(field.record, kindOf<TypeParam>());
        found.emplace_back(field.offset, field.isText ? field.width : -field.width);
    }
    EXPECT_EQ(found, expected);
}

TYPED_TEST(RecordDictionary, ReadsAndWritesEachElementAlone) {
    for (const auto& row : golden::rows<TypeParam>()) {
        for (int i = 0; i < row.count; ++i) {
            const FieldRef& field = fieldAt(dictionary(kindOf<TypeParam>()), row.at(i));
            TypeParam expected{};
            TypeParam record{};
            if (row.isText) {
                row.setText(expected, i, "Ab" + std::to_string(i));
                writeText(bytesOf(record), field, "Ab" + std::to_string(i));
                EXPECT_EQ(readText(bytesOf(record), field), "Ab" + std::to_string(i));
            } else {
                row.setNumber(expected, i, static_cast<std::int16_t>(-7 - i));
                writeNumber(bytesOf(record), field, static_cast<std::int16_t>(-7 - i));
                EXPECT_EQ(readNumber(bytesOf(record), field), -7 - i);
            }
            EXPECT_TRUE(std::ranges::equal(bytesOf(record), bytesOf(expected))) << field.name;
        }
    }
}

TEST(Dictionary, ObjectsHaveTheFieldsOfTheirType) {
    const auto fields = dictionary(ObjectType::hotSpot);
    EXPECT_EQ(fields.size(), 3U + 7U + 26U);
    for (const FieldRef& field : fields) {
        EXPECT_EQ(field.record, RecordKind::slot);
        EXPECT_EQ(field.type, ObjectType::hotSpot) << field.name;
    }
    EXPECT_EQ(fields[1].name, "SlotInt2");
    const FieldRef& pointer = fieldRef(ObjectType::hotSpot, HotSpot::Pointer);
    EXPECT_EQ(pointer.name, "Pointer");
    EXPECT_EQ(pointer.offset, 141);
    EXPECT_EQ(fieldRef(ObjectType::hotSpot, HotSpot::Group).offset, 6 + 15 * 6);
    EXPECT_EQ(fieldRef(ObjectType::hotSpot, HotSpot::Group).width, 15);
    EXPECT_EQ(fieldRef(ObjectType::hotSpot, kTop).offset, 4);
    for (const ObjectType unknown : {ObjectType::free, static_cast<ObjectType>(77)}) {
        ASSERT_EQ(dictionary(unknown).size(), 1U);
        EXPECT_EQ(dictionary(unknown)[0].use, FieldUse::objectType);
    }
}

TEST(Dictionary, ANameIsThereOnceInARecord) {
    for (const auto& fields : allDictionaries()) {
        std::set<std::string_view> names;
        std::set<int> places;
        for (const FieldRef& field : fields) {
            EXPECT_TRUE(names.insert(field.name).second) << nameOf(field);
            EXPECT_TRUE(places.insert(field.offset).second) << nameOf(field);
        }
    }
}

TEST(Dictionary, TextsAndNumbersHaveUsesOfTheirOwn) {
    const std::set<FieldUse> texts = {
        FieldUse::text,           FieldUse::place,       FieldUse::placeOrFile,
        FieldUse::gfxFile,        FieldUse::mapIconFile, FieldUse::mediaFile,
        FieldUse::soundtrackFile, FieldUse::logoFile,    FieldUse::playerName};
    std::set<std::string> numbersInTexts;
    for (const auto& fields : allDictionaries()) {
        for (const FieldRef& field : fields) {
            if (!field.isText) {
                EXPECT_FALSE(texts.contains(field.use)) << nameOf(field);
            } else if (!texts.contains(field.use) && field.use != FieldUse::reserved) {
                numbersInTexts.insert(std::string(field.name));
            }
        }
    }
    EXPECT_THAT(numbersInTexts, UnorderedElementsAre("LogoSuppressed", "QuickHeight", "QuickWidth",
                                                     "Group", "SetFlag", "SetValue", "SetAdd"));
}

TEST(Dictionary, AReservedFieldIsCalledSo) {
    for (const auto& fields : allDictionaries()) {
        for (const FieldRef& field : fields) {
            const bool isSlotRest =
                field.record == RecordKind::slot && field.offset >= 193;  // the numbers 30 to 36
            EXPECT_EQ(field.use == FieldUse::reserved,
                      field.name.starts_with("Reserved") || isSlotRest)
                << nameOf(field);
        }
    }
}

TEST(Dictionary, VolumesAreOnTheirScales) {
    const auto byEnding = [](auto key) { return namesOf(dictionary(key), FieldUse::mediaVolume); };
    const auto ofMovies = [](auto key) { return namesOf(dictionary(key), FieldUse::movieVolume); };
    EXPECT_THAT(byEnding(RecordKind::location), ElementsAre("LocationVolume"));
    EXPECT_THAT(byEnding(RecordKind::card),
                ElementsAre("ChoiceVolume1", "ChoiceVolume2", "ChoiceVolume3", "ChoiceVolume4",
                            "ChoiceVolume5"));
    EXPECT_THAT(byEnding(RecordKind::settings), ElementsAre("MenuMusicVolume"));
    EXPECT_THAT(byEnding(RecordKind::scene), ElementsAre());
    EXPECT_THAT(byEnding(RecordKind::item), ElementsAre());
    EXPECT_THAT(byEnding(ObjectType::goodie), ElementsAre("SuccessVolume"));
    EXPECT_THAT(byEnding(ObjectType::responder), ElementsAre("MediaVolume"));
    EXPECT_THAT(ofMovies(RecordKind::scene),
                ElementsAre("SceneEnterMovieVolume", "SceneExitMovieVolume"));
    EXPECT_THAT(ofMovies(RecordKind::settings), ElementsAre("IntroVolume"));
    EXPECT_THAT(ofMovies(ObjectType::reactor), ElementsAre("MovieVolume"));
}

TEST(Dictionary, EachVolumeBelongsToAFile) {
    for (const auto& fields : allDictionaries()) {
        for (const FieldRef& field : fields) {
            const bool isLevel = field.use == FieldUse::volume ||
                                 field.use == FieldUse::movieVolume ||
                                 field.use == FieldUse::mediaVolume || field.use == FieldUse::pan;
            if (isLevel) {
                const FieldRef& file = fieldAt(fields, static_cast<std::size_t>(field.file));
                EXPECT_TRUE(file.use == FieldUse::mediaFile || file.use == FieldUse::soundtrackFile)
                    << nameOf(field);
                // Both bear the same beginning or the same end: ChoiceVolume3 and ChoiceMedia3.
                const auto stem = field.name.substr(0, 5);
                EXPECT_TRUE(file.name.starts_with(stem) || file.name.back() == field.name.back())
                    << nameOf(field) << " of " << file.name;
            }
        }
    }
    const FieldRef& third = fieldRef(&CueCardRecord::ChoiceVolume, 2);
    EXPECT_EQ(third.file, fieldRef(&CueCardRecord::ChoiceMedia, 2).offset);
}

TEST(Dictionary, WhatSwitchesAFieldOnIsANumberOfTheRecord) {
    int switched = 0;
    for (const auto& fields : allDictionaries()) {
        for (const FieldRef& field : fields) {
            for (const PlacedTest& test : field.when) {
                if (test.low != test.high || test.inside || test.offset >= 0) {
                    ASSERT_GE(test.offset, 0) << nameOf(field) << " names no field";
                    const FieldRef& other = fieldAt(fields, static_cast<std::size_t>(test.offset));
                    EXPECT_FALSE(other.isText) << nameOf(field);
                    EXPECT_NE(other.offset, field.offset) << nameOf(field);
                    ++switched;
                }
            }
        }
    }
    EXPECT_GT(switched, 150);
}

TEST(Dictionary, EachNameInAListIsThatOfAField) {
    const auto check = [](const FieldTraits& traits, const auto& has, std::string_view of) {
        for (const std::string_view name :
             {traits.file, traits.when.either.field, traits.when.other.field}) {
            EXPECT_TRUE(name.empty() || has(name)) << of << " speaks of " << name;
        }
    };
    for (const RecordInfo& record : allRecords()) {
        for (const FieldInfo& field : record.fields) {
            const auto has = [&](std::string_view name) {
                return std::ranges::count(record.fields, name, &FieldInfo::name) == 1;
            };
            check(field, has, field.name);
        }
    }
    for (int type = 0; type < kObjectTypes; ++type) {
        const auto fields = describedFields(static_cast<ObjectType>(type));
        for (const ObjectFieldInfo& field : fields) {
            const auto has = [&](std::string_view name) {
                return std::ranges::count(fields, name, &ObjectFieldInfo::name) == 1;
            };
            check(field, has, field.name);
        }
    }
}

TEST(Dictionary, AFieldHasAnEffectWhileItsSwitchIsOn) {
    ItemRecord item{};
    const FieldRef& flag = fieldRef(&ItemRecord::ItemSetFlagId);
    EXPECT_FALSE(hasEffect(bytesOf(item), flag));
    item.ItemSetFlagOn = 1;
    EXPECT_TRUE(hasEffect(bytesOf(item), flag));
    EXPECT_TRUE(hasEffect(bytesOf(item), fieldRef(&ItemRecord::ItemIcon)));

    CueCardRecord card{};
    card.ChoicePlayOn[3] = 1;
    EXPECT_FALSE(hasEffect(bytesOf(card), fieldRef(&CueCardRecord::ChoiceMedia, 2)));
    EXPECT_TRUE(hasEffect(bytesOf(card), fieldRef(&CueCardRecord::ChoiceMedia, 3)));

    GameSettingsRecord settings{};
    settings.PlayFromCd = 1;
    EXPECT_TRUE(hasEffect(bytesOf(settings), fieldRef(&GameSettingsRecord::DiscToScene, 3)));
}

TEST(Dictionary, EachOfSeveralSwitchesIsEnough) {
    const FieldRef& flag = fieldRef(ObjectType::multiTrigger, MultiTrigger::trigger(1).TestFlag);
    ObjectSlotRecord slot{};
    const auto put = [&](NumberField field, std::int16_t number) {
        writeNumber(bytesOf(slot), fieldRef(ObjectType::multiTrigger, field), number);
    };
    put(MultiTrigger::trigger(0).SetFlagOn, 1);
    put(MultiTrigger::trigger(2).TargetScene, 4);
    EXPECT_FALSE(hasEffect(bytesOf(slot), flag));
    put(MultiTrigger::trigger(1).TargetScene, 4);
    EXPECT_TRUE(hasEffect(bytesOf(slot), flag));
    put(MultiTrigger::trigger(1).TargetScene, 0);
    put(MultiTrigger::trigger(1).SetFlagOn, 1);
    EXPECT_TRUE(hasEffect(bytesOf(slot), flag));
}

TEST(Dictionary, ANumberInATextIsReadAndWritten) {
    GameSettingsRecord settings{};
    const FieldRef& logo = fieldRef(&GameSettingsRecord::LogoSuppressed);
    EXPECT_EQ(readNumber(bytesOf(settings), logo), 0);
    writeNumber(bytesOf(settings), logo, 1);
    EXPECT_EQ(settings.LogoSuppressed.text(), "1");
    settings.LogoSuppressed = "99999999";
    EXPECT_EQ(readNumber(bytesOf(settings), logo), 32767);
    EXPECT_EQ(readText(bytesOf(settings), fieldRef(&GameSettingsRecord::MaxScore)), "0");
}

TEST(Dictionary, ATextIsCutToItsWidthAndANumberTakesNone) {
    ItemRecord item{};
    const FieldRef& caption = fieldRef(&ItemRecord::ItemCloseupCaption);
    EXPECT_EQ(caption.width, 30);
    writeText(bytesOf(item), caption, std::string(31, 'x'));
    EXPECT_EQ(item.ItemCloseupCaption.text(), std::string(30, 'x'));
    EXPECT_THROW(writeText(bytesOf(item), fieldRef(&ItemRecord::ItemAtStart), "1"),
                 std::out_of_range);
    EXPECT_THROW((void)fieldRef(&CueCardRecord::ChoiceText, 100), std::out_of_range);
    EXPECT_THROW((void)fieldRef(ObjectType::delay, HotSpot::QuickSpot), std::out_of_range);
}

// The scene in memory.

TEST(Dictionary, TheSceneInMemoryIsReachedByTheSameFields) {
    SceneRecord record{};
    Scene scene;
    std::int16_t next = 1;
    for (const FieldRef& field : dictionary(RecordKind::scene)) {
        ++next;
        if (field.isText) {
            textIn(scene, field) = "t" + std::to_string(next);
            writeText(bytesOf(record), field, "t" + std::to_string(next));
        } else {
            numberIn(scene, field) = next;
            writeNumber(bytesOf(record), field, next);
        }
    }
    for (int slot = 1; slot <= kSlotCount; ++slot) {
        auto& bytes = record.Slots[static_cast<std::size_t>(slot - 1)];
        const auto type = static_cast<ObjectType>(slot % kObjectTypes);
        for (const FieldRef& field : dictionary(type)) {
            ++next;
            if (field.isText) {
                textIn(scene.slot(slot), field) = "t" + std::to_string(next);
                writeText(bytesOf(bytes), field, "t" + std::to_string(next));
            } else {
                numberIn(scene.slot(slot), field) = next;
                writeNumber(bytesOf(bytes), field, next);
            }
        }
    }
    Scene taken;
    taken.take(record);
    EXPECT_EQ(taken, scene);
}

TEST(Dictionary, HeaderFieldsAreFoundByTheirNames) {
    EXPECT_EQ(fieldRef(HeaderString::SceneExitMovie).name, "SceneExitMovie");
    EXPECT_EQ(fieldRef(HeaderInt::SceneSetFlagAdd).name, "SceneSetFlagAdd");
    EXPECT_EQ(fieldRef(HeaderInt::SecurityCode).offset, 205);
    Scene scene;
    scene.header(HeaderInt::SceneSound3Pan) = 33;
    EXPECT_EQ(numberIn(scene, fieldRef(HeaderInt::SceneSound3Pan)), 33);
    EXPECT_THROW(numberIn(scene, fieldRef(&ItemRecord::ItemAtStart)), std::out_of_range);
    EXPECT_THROW(textIn(scene, fieldRef(HeaderInt::SceneSound3Pan)), std::out_of_range);
    EXPECT_THROW(textIn(scene.slot(1), fieldRef(HeaderString::SceneName)), std::out_of_range);
}

// Rows.

TEST(FieldRows, AChoiceHasItsNineFields) {
    const auto offsets = [](const ChoiceFields& choice) {
        return std::vector{choice.Text.offset,      choice.SetFlagOn.offset, choice.FlagId.offset,
                           choice.FlagValue.offset, choice.FlagAdd.offset,   choice.PlayOn.offset,
                           choice.Media.offset,     choice.Volume.offset,    choice.Pan.offset};
    };
    EXPECT_THAT(offsets(choiceFields(1)), ElementsAre(17, 267, 277, 287, 297, 307, 317, 392, 402));
    EXPECT_THAT(offsets(choiceFields(5)), ElementsAre(217, 275, 285, 295, 305, 315, 377, 400, 410));
    EXPECT_THROW(choiceFields(0), std::out_of_range);
    EXPECT_THROW(choiceFields(6), std::out_of_range);
}

TEST(FieldRows, DiscsAndSceneSounds) {
    EXPECT_EQ(discFields(4).Label.offset, 173);
    EXPECT_EQ(discFields(4).Label.width, 20);
    EXPECT_EQ(discFields(1).FromScene.offset, 193);
    EXPECT_EQ(discFields(3).ToScene.offset, 205);
    EXPECT_THROW(discFields(5), std::out_of_range);
    for (int sound = 1; sound <= kSceneSounds; ++sound) {
        const std::string stem = "SceneSound" + std::to_string(sound);
        EXPECT_EQ(sceneSoundFields(sound).File.name, stem + "File");
        EXPECT_EQ(sceneSoundFields(sound).Volume.name, stem + "Volume");
        EXPECT_EQ(sceneSoundFields(sound).Pan.name, stem + "Pan");
    }
    EXPECT_THROW(sceneSoundFields(4), std::out_of_range);
}

TEST(FieldRows, LinksByTheirSide) {
    const std::map<LinkSide, std::string> sides = {{LinkSide::up, "LinkUp"},
                                                   {LinkSide::down, "LinkDown"},
                                                   {LinkSide::left, "LinkLeft"},
                                                   {LinkSide::right, "LinkRight"}};
    for (const auto& [side, stem] : sides) {
        const LinkFields link = linkFields(side);
        EXPECT_EQ(link.Pointer.name, stem + "Pointer");
        EXPECT_EQ(link.Target.name, stem + "Target");
        EXPECT_EQ(link.Top.name, stem + "Top");
        EXPECT_EQ(link.Left.name, stem + "Left");
        EXPECT_EQ(link.Width.name, stem + "Width");
        EXPECT_EQ(link.Height.name, stem + "Height");
        EXPECT_EQ(link.Target.use, FieldUse::scene);
    }
}

TEST(FieldRows, LayoutPlacesAreCountedLikeTheElements) {
    for (int index = 0; index < kLayoutPlaces; ++index) {
        const std::string number = std::to_string(index);
        EXPECT_EQ(layoutPlace(index).name,
                  index < 5 ? "MenuButtonPos" + number : "LayoutPos" + number);
        EXPECT_EQ(skinPlace(index).name, "Coords" + number);
        EXPECT_EQ(skinPlace(index).offset, 2 + 15 * index);
    }
    EXPECT_THROW((void)layoutPlace(11), std::out_of_range);
    EXPECT_THROW((void)skinPlace(-1), std::out_of_range);
}

}  // namespace
}  // namespace quorvel::store
