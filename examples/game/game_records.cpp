// What belongs to the whole game: items, map, cue cards and settings.
#include <array>
#include <string>

#include "art/item_art.h"
#include "game/story.h"
#include "store/game_stores.h"
#include "store/settings.h"

namespace quorvel::sample {
namespace {

struct ItemPlan {
    const char* name;
    const char* files;  ///< beginning of the names of its pictures
    const char* caption;
};

constexpr std::array<ItemPlan, 8> kItems = {{
    {"Brass Lamp", "Lamp", "Grandmother's brass lamp"},
    {"Oil Can", "Oil", "Whale-free lamp oil"},
    {"Filled Lamp", "Full", "Filled to the brim"},
    {"Matches", "Match", "Storm matches, three left"},
    {"Lit Lamp", "Lit", "A small, brave light"},
    {"Iron Key", "Key", "The key of the lighthouse"},
    {"Herring", "Fish", "A herring, quite fresh"},
    {"Tam's Letter", "Letter", "A letter from Keeper Tam"},
}};

store::ItemRecord itemRecord(const ItemPlan& plan, Item item) {
    auto record = store::newRecord<store::ItemRecord>();
    const std::string files = plan.files;
    record.ItemName = plan.name;
    record.ItemIcon = files + "I.ico";
    record.ItemCursorHi = files + "H.cur";
    record.ItemCursor = files + "N.cur";
    record.ItemMultiple = 0;
    record.ItemCloseupOn = 1;
    record.ItemCloseupCaption = plan.caption;
    record.ItemCloseupImage = files + "C.gif";
    record.ItemExamineSound = "Click.wav";
    record.ItemCombineSound = "Wrong.wav";
    if (item == Item::letter) {
        record.ItemAtStart = 1;
        record.ItemAddMapOn = 1;
        record.ItemMapLocation = kMapLighthouse;
    }
    if (item == Item::litLamp) {
        record.ItemExamineSound = "Match.wav";
    }
    return record;
}

/// `item` and `other` make `result`; the store mirrors it on the other item.
void combine(store::Project& project, Item item, Item other, Item result, const char* sound) {
    for (const Item each : {other, item}) {
        store::ItemRecord record = store::LoadItem(project, static_cast<int>(each));
        record.ItemWrongSound = sound;  // the success sound
        if (each == item) {
            record.ItemCombines = 1;
            record.ItemOtherItem = small(static_cast<int>(other));
            record.ItemNewItem = small(static_cast<int>(result));
        }
        store::SaveItem(project, static_cast<int>(each), record);
    }
}

struct LocationPlan {
    const char* name;
    const char* image;
    int scene;
    bool atStart;
};

constexpr std::array<LocationPlan, 5> kLocations = {{
    {"Harbour", "MapHarb.gif", kHarbour, true},
    {"Lantern Lane", "MapLane.gif", kLane, true},
    {"Moonlit Cove", "MapCove.gif", kCove, true},
    {"Cliff Path", "MapCliff.gif", kCliff, false},
    {"Lighthouse", "MapLight.gif", kLighthouse, false},
}};

struct ChoicePlan {
    const char* text;
    int flag;  ///< 0 sets none
    int value;
    const char* sound;
};

store::CueCardRecord card(const char* name, std::initializer_list<ChoicePlan> choices) {
    auto record = store::newRecord<store::CueCardRecord>();
    record.CardName = name;
    std::size_t i = 0;
    for (const ChoicePlan& choice : choices) {
        record.ChoiceText[i] = choice.text;
        if (choice.flag > 0) {
            record.ChoiceSetFlagOn[i] = 1;
            record.ChoiceFlagId[i] = small(choice.flag);
            record.ChoiceFlagValue[i] = small(choice.value);
        }
        record.ChoicePlayOn[i] = 1;
        record.ChoiceMedia[i] = choice.sound;
        ++i;
    }
    return record;
}

}  // namespace

void writeItems(store::Project& project) {
    int number = 0;
    for (const ItemPlan& plan : kItems) {
        ++number;
        store::SaveItem(project, number, itemRecord(plan, static_cast<Item>(number)));
    }
    combine(project, Item::brassLamp, Item::oilCan, Item::filledLamp, "Chime.wav");
    combine(project, Item::filledLamp, Item::matches, Item::litLamp, "Match.wav");
    project.ItemCount = project.itemFile.count();
    project.CurrentItem = 1;
}

void writeLocations(store::Project& project, const SceneArt& map) {
    project.lists.MapImage = map.file;
    int number = 0;
    for (const LocationPlan& plan : kLocations) {
        auto record = store::newRecord<store::LocationRecord>();
        const Sprite& icon = map.sprites.at(static_cast<std::size_t>(number));
        record.LocationName = plan.name;
        record.LocationImage = plan.image;
        record.LocationX = small(icon.box.x());
        record.LocationY = small(icon.box.y());
        record.LocationScene = small(plan.scene);
        record.LocationAtStart = plan.atStart ? 1 : 0;
        record.LocationPlayOn = 1;
        record.LocationMedia = "Click.wav";
        store::SaveLocation(project, ++number, record);
    }
    project.LocationCount = project.locationFile.count();
}

void writeCards(store::Project& project) {
    store::SaveCard(
        project, kCardKeeper,
        card("Keeper Tam", {{"Why is the lighthouse dark, Mr. Tam?", kTalk, 2, "Click.wav"},
                            {"I could climb the stair for you.", kTalk, 3, "Chime.wav"},
                            {"That is a fine pipe you have there.", kTalk, 2, "Click.wav"},
                            {"Sleep well, Mr. Tam.", kTalk, 0, "Click.wav"}}));
    store::SaveCard(
        project, kCardTale,
        card("Tam's Tale", {{"Where did you lose the key?", kTalk, 3, "Chime.wav"},
                            {"Three hundred stairs? With that knee?", kTalk, 3, "Click.wav"},
                            {"The boats will need a light tonight.", kTalk, 3, "Chime.wav"}}));
    store::SaveCard(
        project, kCardPuffin,
        card("The Admiral",
             {{"Good evening, Admiral. Some oil, please.", 0, 0, "Squawk.wav"},
              {"Would you take a herring for it?", kPuffinTalk, 2, "Squawk.wav"},
              {"Never mind. Handsome beak, by the way.", kPuffinTalk, 0, "Squawk.wav"}}));
    project.CueCardCount = project.cardFile.count();
    project.CurrentCueCard = kCardKeeper;
}

void writeGameSettings(store::Project& project) {
    using store::SettingsSlice;
    store::GameSettingsRecord form = project.settingsFile.read(1);
    form.GameTitle = "The Last Lamplighter";
    form.ClickSoundFile = "Click.wav";
    form.InventoryFullSoundFile = "Wrong.wav";
    form.WrongTargetSoundFile = "Wrong.wav";
    form.MenuMusicFile = "KeepWaltz.mid";
    form.ButtonOverSoundFile = "Click.wav";
    form.ButtonOverSoundVolume = -1200;
    store::SaveSettings(project, SettingsSlice::genSettings, form);
    form.MenuButtonOn[0] = 0;  // there is no intro to view
    form.ScoreOn = 1;
    form.ScoreFlag = kScore;
    form.MaxScore = kMaxScore;
    form.LayoutPos9 = "552/24";  // where a small score with a maximum stands
    store::SaveSettings(project, SettingsSlice::edButtons, form);
    std::size_t i = 0;
    for (const PointerArt& pointer : pointerArt()) {
        form.GamePointer[i++] = pointer.file;
    }
    store::SaveSettings(project, SettingsSlice::edMousePoint, form);
    form.CreditsScene = kBoatsHome;
    store::SaveSettings(project, SettingsSlice::openCredits, form);
    form.IntroOnNewGame = 0;
    form.IntroOnStart = 0;
    store::SaveSettings(project, SettingsSlice::gameIntro, form);
}

}  // namespace quorvel::sample
