#include "store/references.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

#include "store/project_stage.h"
#include "store/scene_store.h"

namespace quorvel::store {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::Not;

std::string kindName(ReferenceKind kind) {
    static const std::map<ReferenceKind, std::string> names = {
        {ReferenceKind::gfxFile, "gfx"},       {ReferenceKind::mediaFile, "media"},
        {ReferenceKind::playerFile, "player"}, {ReferenceKind::scene, "scene"},
        {ReferenceKind::item, "item"},         {ReferenceKind::location, "location"},
        {ReferenceKind::card, "card"},         {ReferenceKind::flag, "flag"}};
    return names.at(kind);
}

/// "scene 7 TargetScene", with " off" behind what has no effect.
std::string line(const Reference& reference) {
    return kindName(reference.kind) + " " +
           (isFile(reference.kind) ? std::string(reference.file)
                                   : std::to_string(reference.number)) +
           " " + std::string(reference.field->name) + (reference.inEffect ? "" : " off");
}

using Lines = std::vector<std::string>;

template <class... Args>
Lines linesOf(const Args&... args) {
    Lines lines;
    forEachReference(args...,
                     [&](const Reference& reference) { lines.push_back(line(reference)); });
    return lines;
}

/// What an object names whose number k is 100 + k and whose text k is "s" k, but for `numbers`.
Lines linesOfObject(ObjectType type, const std::map<int, int>& numbers = {},
                    const std::map<int, std::string>& texts = {}) {
    ObjectSlotRecord slot{};
    for (std::size_t i = 0; i < slot.SlotStr.size(); ++i) {
        slot.SlotStr[i] = "s" + std::to_string(i + 1);
    }
    for (std::size_t i = 0; i < slot.SlotInt4To29.size(); ++i) {
        slot.SlotInt4To29[i] = static_cast<std::int16_t>(104 + i);
    }
    slot.SlotInt1 = static_cast<std::int16_t>(type);
    for (const auto& [number, value] : numbers) {
        slot.SlotInt4To29[static_cast<std::size_t>(number - 4)] = static_cast<std::int16_t>(value);
    }
    for (const auto& [number, text] : texts) {
        slot.SlotStr[static_cast<std::size_t>(number - 1)] = text;
    }
    SceneRecord scene{};
    for (ObjectSlotRecord& other : scene.Slots) {
        other.SlotInt1 = -1;
    }
    scene.Slots[6] = slot;
    Lines lines;
    forEachReference(scene, 3, [&](const Reference& reference) {
        EXPECT_EQ(reference.record, RecordKind::scene);
        EXPECT_EQ(reference.recordNumber, 3);
        EXPECT_EQ(reference.slot, 7);
        EXPECT_EQ(reference.field->type, type);
        lines.push_back(line(reference));
    });
    return lines;
}

TEST(References, OfEachTypeOfObject) {
    const std::map<ObjectType, Lines> expected = {
        {ObjectType::ambient,
         {"gfx s1 Image", "media s2 Sound", "flag 109 VisibleFlag off", "flag 113 SetFlag",
          "location 117 AddLocation"}},
        {ObjectType::hotSpot,
         {"gfx s1 Image", "media s2 Sound", "media s3 SuccessSound", "media s4 FailureSound",
          "item 111 NeededItem", "scene 116 TargetScene", "flag 118 VisibleFlag off",
          "flag 122 SetFlag"}},
        {ObjectType::goodie,
         {"gfx s1 Image", "media s2 Sound", "media s3 SuccessMedia", "media s4 FailureSound",
          "item 109 GivenItem", "item 111 NeededItem", "flag 116 VisibleFlag off",
          "flag 120 SetFlag"}},
        {ObjectType::switchObject,
         {"gfx s1 Image", "media s2 SoundA", "media s3 SoundB", "media s4 FailureSound",
          "flag 104 Flag", "item 112 NeededItem", "flag 117 VisibleFlag off"}},
        {ObjectType::reactor,
         {"gfx s1 Image", "media s2 Movie off", "media s3 Sound", "flag 109 VisibleFlag off",
          "flag 113 SetFlag", "location 117 AddLocation"}},
        {ObjectType::responder,
         {"media s1 TriggerSound off", "media s2 Soundtrack", "media s3 Media", "flag 105 TestFlag",
          "scene 115 TargetScene", "flag 117 SetFlag", "location 121 AddLocation",
          "item 123 AddItem"}},
        {ObjectType::delay, {"flag 105 TestFlag", "flag 109 SetFlag"}},
        {ObjectType::multiTrigger,
         {"flag 105 TestFlag1", "flag 109 SetFlag1", "scene 112 TargetScene1", "flag 113 TestFlag2",
          "flag 117 SetFlag2", "scene 120 TargetScene2", "flag 121 TestFlag3", "flag 125 SetFlag3",
          "scene 128 TargetScene3"}},
        {ObjectType::conversation, {"card 104 CueCard", "flag 106 VisibleFlag off"}},
    };
    for (const auto& [type, lines] : expected) {
        EXPECT_THAT(linesOfObject(type), ElementsAreArray(lines)) << typeName(type);
    }
    EXPECT_THAT(linesOfObject(ObjectType::flagConjunction, {{17, 0}}, {{1, "77"}}),
                ElementsAre("flag 77 SetFlag", "flag 106 TestFlagA", "flag 110 TestFlagB",
                            "flag 114 TestFlagC", "flag 118 TestFlagD off", "flag 122 TestFlagE",
                            "flag 126 TestFlagF"));
}

/// A switch of an object: number and value, and a line that must be there then.
struct SwitchCase {
    ObjectType type;
    int number;
    int value;
    std::string line;
};

TEST(References, SwitchedOffOnesAreToldApart) {
    using T = ObjectType;
    const std::vector<SwitchCase> cases = {
        {T::ambient, 8, 2, "flag 109 VisibleFlag"},
        {T::ambient, 8, 1, "flag 109 VisibleFlag off"},
        {T::ambient, 12, 0, "flag 113 SetFlag off"},
        {T::ambient, 16, 0, "location 117 AddLocation off"},
        {T::hotSpot, 10, 0, "media s4 FailureSound off"},
        {T::hotSpot, 10, 0, "item 111 NeededItem off"},
        {T::hotSpot, 15, 2, "scene 116 TargetScene off"},
        {T::hotSpot, 15, 0, "scene 116 TargetScene"},
        {T::hotSpot, 17, 2, "flag 118 VisibleFlag"},
        {T::hotSpot, 21, 0, "flag 122 SetFlag off"},
        {T::hotSpot, 29, 1, "gfx s1 Image off"},
        {T::goodie, 4, 3, "media s2 Sound off"},
        {T::goodie, 10, 0, "media s4 FailureSound off"},
        {T::goodie, 15, 2, "flag 116 VisibleFlag"},
        {T::goodie, 19, 0, "flag 120 SetFlag off"},
        {T::switchObject, 11, 0, "item 112 NeededItem off"},
        {T::switchObject, 16, 2, "flag 117 VisibleFlag"},
        {T::reactor, 4, 3, "media s2 Movie"},
        {T::reactor, 4, 4, "media s2 Movie"},
        {T::reactor, 4, 5, "media s2 Movie off"},
        {T::responder, 4, 2, "media s1 TriggerSound"},
        {T::responder, 4, 2, "flag 105 TestFlag off"},
        {T::responder, 9, 0, "media s2 Soundtrack off"},
        {T::responder, 11, 0, "media s3 Media off"},
        {T::responder, 14, 0, "scene 115 TargetScene off"},
        {T::responder, 16, 0, "flag 117 SetFlag off"},
        {T::responder, 20, 0, "location 121 AddLocation off"},
        {T::responder, 22, 0, "item 123 AddItem off"},
        {T::multiTrigger, 16, 0, "flag 117 SetFlag2 off"},
        {T::multiTrigger, 16, 0, "flag 113 TestFlag2"},
        {T::multiTrigger, 16, 0, "flag 109 SetFlag1"},
        {T::conversation, 5, 2, "flag 106 VisibleFlag"},
    };
    for (const SwitchCase& each : cases) {
        EXPECT_THAT(linesOfObject(each.type, {{each.number, each.value}}), Contains(each.line))
            << typeName(each.type) << " number " << each.number << " = " << each.value;
    }
}

TEST(References, OfFreeSlotsAndUnknownTypesNothingIsKnown) {
    for (const int type : {-1, 10, 99, -5}) {
        EXPECT_THAT(linesOfObject(static_cast<ObjectType>(type)), IsEmpty()) << type;
    }
}

TEST(References, NoneIsNoReference) {
    EXPECT_THAT(linesOfObject(ObjectType::hotSpot, {{11, 0}, {16, 0}, {18, 0}},
                              {{1, ""}, {2, ""}, {3, ""}, {4, "  "}}),
                ElementsAre("flag 122 SetFlag"));
    // A flag that takes part is told whatever it is.
    EXPECT_THAT(linesOfObject(ObjectType::delay, {{5, 0}, {9, -3}}),
                ElementsAre("flag 0 TestFlag", "flag -3 SetFlag"));
    EXPECT_THAT(linesOfObject(ObjectType::responder, {}, {{2, "(Stop Sndtrk)"}}),
                Not(Contains(testing::HasSubstr("Sndtrk"))));
    EXPECT_THAT(linesOf(SceneRecord{}, 1), IsEmpty());
}

TEST(References, OfASceneHeaderAndItsLinks) {
    auto scene = newRecord<SceneRecord>();
    scene.SceneName = "Name";
    scene.SceneCheckFlagId = 5;
    scene.SceneCheckFlagTarget = 6;
    scene.SceneImage = "hall.bmp";
    scene.SceneSoundtrack = "tune.mid";
    scene.SceneSound1File = "one.wav";
    scene.SceneSound2File = "two.wav";
    scene.SceneSound3File = "three.wav";
    scene.SceneEnterMovie = "in.avi";
    scene.SceneExitMovie = "out.avi";
    scene.SceneSetFlagOn = 1;
    scene.SceneSetFlagId = 9;
    scene.LinkUpTarget = 11;
    scene.LinkDownTarget = 12;
    scene.LinkLeftTarget = -13;
    scene.LinkRightTarget = 14;
    const Lines lines = {"flag 5 SceneCheckFlagId off",     "scene 6 SceneCheckFlagTarget off",
                         "gfx hall.bmp SceneImage",         "media tune.mid SceneSoundtrack",
                         "media one.wav SceneSound1File",   "media two.wav SceneSound2File",
                         "media three.wav SceneSound3File", "media in.avi SceneEnterMovie",
                         "media out.avi SceneExitMovie",    "flag 9 SceneSetFlagId",
                         "scene 11 LinkUpTarget",           "scene 12 LinkDownTarget",
                         "scene -13 LinkLeftTarget",        "scene 14 LinkRightTarget"};
    EXPECT_THAT(linesOf(scene, 1), ElementsAreArray(lines));
    scene.SceneCheckFlagOn = 1;
    scene.SceneSoundtrack = "(Stop Sndtrk)";
    EXPECT_THAT(linesOf(scene, 1), Contains("scene 6 SceneCheckFlagTarget"));
    EXPECT_THAT(linesOf(scene, 1), Contains("flag 5 SceneCheckFlagId"));
    EXPECT_THAT(linesOf(scene, 1), Not(Contains(testing::HasSubstr("SceneSoundtrack"))));
}

TEST(References, OfAnItem) {
    ItemRecord item{};
    item.ItemIcon = "i.ico";
    item.ItemCursorHi = "h.cur";
    item.ItemCursor = "n.cur";
    item.ItemCombines = 1;
    item.ItemOtherItem = 2;
    item.ItemNewItem = 3;
    item.ItemWrongSound = "w.wav";
    item.ItemExamineSound = "e.wav";
    item.ItemCloseupImage = "c.gif";
    item.ItemReplaceWith = 4;
    item.ItemAddMapOn = 1;
    item.ItemMapLocation = 5;
    item.ItemSetFlagOn = 1;
    item.ItemSetFlagId = 6;
    item.ItemCombineSound = "s.wav";
    EXPECT_THAT(linesOf(item, 1),
                ElementsAre("gfx i.ico ItemIcon", "gfx h.cur ItemCursorHi", "item 2 ItemOtherItem",
                            "item 3 ItemNewItem", "media w.wav ItemWrongSound",
                            "media e.wav ItemExamineSound", "gfx c.gif ItemCloseupImage off",
                            "item 4 ItemReplaceWith off", "location 5 ItemMapLocation",
                            "flag 6 ItemSetFlagId", "gfx n.cur ItemCursor",
                            "media s.wav ItemCombineSound"));
}

TEST(References, OfALocation) {
    LocationRecord location{};
    location.LocationImage = "inn.gif";
    location.LocationScene = 8;
    location.LocationPlayOn = 1;
    location.LocationMedia = "m.avi";
    location.MapImage = "map.bmp";
    EXPECT_THAT(linesOf(location, 1),
                ElementsAre("gfx inn.gif LocationImage", "scene 8 LocationScene",
                            "media m.avi LocationMedia", "gfx map.bmp MapImage"));
    EXPECT_THAT(linesOf(location, 2), Contains("gfx map.bmp MapImage off"));
    location.LocationPlayOn = 0;
    location.LocationImage = "(None)";
    EXPECT_THAT(linesOf(location, 1),
                ElementsAre("scene 8 LocationScene", "media m.avi LocationMedia off",
                            "gfx map.bmp MapImage"));
}

TEST(References, OfARemovedLocationOnlyTheMapIsLeft) {
    LocationRecord location{};
    location.LocationScene = 8;
    location.MapImage = "map.bmp";
    for (const char* image : {"Del", ""}) {
        location.LocationImage = image;
        EXPECT_THAT(linesOf(location, 1),
                    ElementsAre("scene 8 LocationScene off", "gfx map.bmp MapImage"))
            << image;
    }
}

TEST(References, OfACueCard) {
    CueCardRecord card{};
    for (std::size_t i = 0; i < 5; ++i) {
        card.ChoiceText[i] = "says nothing.wav";
        card.ChoiceFlagId[i] = static_cast<std::int16_t>(20 + i);
        card.ChoiceMedia[i] = "m" + std::to_string(i) + ".wav";
    }
    card.ChoiceSetFlagOn[4] = 1;
    card.ChoicePlayOn[0] = 1;
    EXPECT_THAT(linesOf(card, 1),
                ElementsAre("flag 20 ChoiceFlagId1 off", "flag 21 ChoiceFlagId2 off",
                            "flag 22 ChoiceFlagId3 off", "flag 23 ChoiceFlagId4 off",
                            "flag 24 ChoiceFlagId5", "media m0.wav ChoiceMedia1",
                            "media m1.wav ChoiceMedia2 off", "media m2.wav ChoiceMedia3 off",
                            "media m3.wav ChoiceMedia4 off", "media m4.wav ChoiceMedia5 off"));
}

GameSettingsRecord knownSettings() {
    auto settings = newRecord<GameSettingsRecord>();
    settings.ClickSoundFile = "c.wav";
    settings.InventoryFullSoundFile = "f.wav";
    settings.WrongTargetSoundFile = "w.wav";
    settings.NagImage = "nag.bmp";
    settings.PlayerExeName = "Castle";
    settings.DiscFromScene[0] = 1;
    settings.DiscToScene[3] = 9;
    settings.MenuMusicFile = "menu.mp3";
    settings.ButtonOverSoundFile = "o.wav";
    settings.ScoreOn = 1;
    settings.ScoreFlag = 44;
    settings.GamePointer[0] = "up.cur";
    settings.GamePointer[14] = "btn.cur";
    settings.OpeningLogo = "logo.GIF";
    settings.CreditsScene = 7;
    settings.IntroMovie = "intro.avi";
    return settings;
}

TEST(References, OfTheSettings) {
    EXPECT_THAT(linesOf(knownSettings()),
                ElementsAre("media c.wav ClickSoundFile", "media f.wav InventoryFullSoundFile",
                            "media w.wav WrongTargetSoundFile", "gfx nag.bmp NagImage off",
                            "player Castle.exe PlayerExeName", "scene 1 DiscFromScene1 off",
                            "scene 9 DiscToScene4 off", "media menu.mp3 MenuMusicFile",
                            "media o.wav ButtonOverSoundFile", "flag 44 ScoreFlag",
                            "gfx up.cur GamePointer1", "gfx btn.cur GamePointer15",
                            "gfx logo.GIF OpeningLogo", "scene 7 CreditsScene",
                            "media intro.avi IntroMovie"));
}

TEST(References, AnOpeningLogoIsAPictureOrAMovieByItsEnding) {
    auto settings = newRecord<GameSettingsRecord>();
    for (const auto& [name, kind] : std::map<std::string, std::string>{{"a.gif", "gfx"},
                                                                       {"a.Gif", "gfx"},
                                                                       {"gif", "gfx"},
                                                                       {"a.avi", "media"},
                                                                       {"a.mpg", "media"},
                                                                       {"if", "media"}}) {
        settings.OpeningLogo = name;
        EXPECT_THAT(linesOf(settings), Contains(kind + " " + name + " OpeningLogo"));
    }
}

TEST(References, OldSettingsNameFilesWherePlacesStandNow) {
    auto settings = newRecord<GameSettingsRecord>();
    settings.MenuButtonPos[1] = "start.gif";
    settings.LayoutPos9 = "score.gif";
    EXPECT_THAT(linesOf(settings),
                ElementsAre("player Game.exe PlayerExeName", "flag 255 ScoreFlag off"));
    settings.CustomLayoutFlag = 0;
    EXPECT_THAT(linesOf(settings),
                ElementsAre("player Game.exe PlayerExeName", "gfx start.gif MenuButtonPos1",
                            "flag 255 ScoreFlag off", "gfx score.gif LayoutPos9"));
}

TEST(References, OfTheProjectFile) {
    auto record = newRecord<ProjectRecord>();
    record.CurrentScene = 3;
    record.CurrentItem = 4;
    record.CurrentCueCard = 5;
    EXPECT_THAT(linesOf(record),
                ElementsAre("scene 3 CurrentScene", "item 4 CurrentItem", "card 5 CurrentCueCard"));
}

// A whole project.

class ProjectReferences : public ProjectStage {
  protected:
    /// "scene 300/2: gfx coin.gif Image" for each, or the parts without slot.
    Lines lines(const Scene* onCanvas = nullptr) {
        Lines found;
        forEachReference(project_, onCanvas, [&](const Reference& reference) {
            found.push_back(std::string(recordName(reference.record)) + " " +
                            std::to_string(reference.recordNumber) +
                            (reference.slot > 0 ? "/" + std::to_string(reference.slot) : "") +
                            ": " + line(reference));
        });
        return found;
    }
};

TEST_F(ProjectReferences, ComeFromAllFilesInOrder) {
    open(test::ProjectBuilder()
             .scenes(2)
             .scene(2, "Hall", "hall.bmp")
             .object(2, 20, 2, 0, 0, "coin.gif")
             .item(1, "Coin", "coin.ico")
             .location(2, "Inn", 2, "inn.gif")
             .mapImage("map.bmp")
             .card(1, "Talk")
             .editCard(1, [](CueCardRecord& card) { card.ChoiceMedia[4] = "bye.wav"; })
             .editSettings([](GameSettingsRecord& settings) { settings.CreditsScene = 2; }));
    const Lines expected = {"ProjectRecord 1: scene 1 CurrentScene",
                            "SceneRecord 2: gfx hall.bmp SceneImage",
                            "SceneRecord 2/20: gfx coin.gif Image",
                            "LocationRecord 1: gfx map.bmp MapImage",
                            "LocationRecord 2: gfx inn.gif LocationImage",
                            "LocationRecord 2: scene 2 LocationScene",
                            "ItemRecord 1: gfx coin.ico ItemIcon",
                            "GameSettingsRecord 1: player Game.exe PlayerExeName",
                            "GameSettingsRecord 1: scene 2 CreditsScene",
                            "CueCardRecord 1: media bye.wav ChoiceMedia5 off"};
    Lines found;
    std::ranges::copy_if(lines(), std::back_inserter(found), [](const std::string& each) {
        return each.find("flag") == std::string::npos && each.find("Current") != 15 &&
               !each.starts_with("ProjectRecord 1: item") &&
               !each.starts_with("ProjectRecord 1: card");
    });
    EXPECT_THAT(found, ElementsAreArray(expected));
}

TEST_F(ProjectReferences, ReachBeyondTheFirstBlock) {
    open(test::ProjectBuilder().scenes(300).scene(300, "Last", "last.bmp").object(300, 1, 6, 0, 0));
    const Lines found = lines();
    EXPECT_THAT(found, Contains("SceneRecord 300: gfx last.bmp SceneImage"));
    EXPECT_EQ(std::ranges::count_if(
                  found, [](const auto& each) { return each.starts_with("SceneRecord 300/1: "); }),
              2);
}

TEST_F(ProjectReferences, OfTheSceneOnTheCanvasTheOneInMemoryCounts) {
    open(test::ProjectBuilder().scenes(2).scene(1, "A", "a.bmp").scene(2, "B", "b.bmp"));
    Scene scene;
    LoadScene(project_, scene, 2);
    scene.header(HeaderString::SceneImage) = "new.bmp";
    EXPECT_THAT(lines(&scene), Contains("SceneRecord 2: gfx new.bmp SceneImage"));
    EXPECT_THAT(lines(&scene), Contains("SceneRecord 1: gfx a.bmp SceneImage"));
    EXPECT_THAT(lines(&scene), Not(Contains("SceneRecord 2: gfx b.bmp SceneImage")));
    EXPECT_THAT(lines(), Contains("SceneRecord 2: gfx b.bmp SceneImage"));
}

TEST_F(ProjectReferences, OfAClosedProjectThereAreNone) {
    EXPECT_THAT(lines(), IsEmpty());
}

}  // namespace
}  // namespace quorvel::store
