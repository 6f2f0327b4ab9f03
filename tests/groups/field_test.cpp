// Bindings can be made from the fields of any record.
#include "groups/field.h"

#include <gtest/gtest.h>

#include "store/field_rows.h"

namespace quorvel::test {
namespace {

using groups::NumberRef;
using groups::TextRef;
using store::FieldUse;

TEST(Field, OfAnObjectInMemory) {
    store::ObjectSlot slot;
    const NumberRef scene(slot, store::MultiTrigger::trigger(1).TargetScene);
    scene.set(12);
    EXPECT_EQ(slot.SlotInt(20), 12);
    EXPECT_EQ(scene.get(), 12);
    EXPECT_EQ(scene.use, FieldUse::scene);
    const TextRef sound(slot, store::HotSpot::SuccessSound);
    sound.set(QStringLiteral("a.wav"));
    EXPECT_EQ(slot.SlotStr(3), "a.wav");
    EXPECT_EQ(sound.width, 15);
    EXPECT_EQ(sound.use, FieldUse::mediaFile);
    const TextRef same(slot, fieldRef(store::ObjectType::hotSpot, store::HotSpot::SuccessSound));
    EXPECT_EQ(same.get(), QStringLiteral("a.wav"));
    EXPECT_EQ(same.width, 15);
}

TEST(Field, OfASceneInMemory) {
    store::Scene scene;
    const NumberRef flag(scene, fieldRef(store::HeaderInt::SceneSetFlagId));
    flag.set(7);
    EXPECT_EQ(scene.header(store::HeaderInt::SceneSetFlagId), 7);
    EXPECT_EQ(flag.use, FieldUse::flag);
    const NumberRef target(scene, store::linkFields(store::LinkSide::left).Target);
    target.set(3);
    EXPECT_EQ(scene.LinkLeft.target, 3);
    EXPECT_EQ(target.use, FieldUse::scene);
    const TextRef track(scene, fieldRef(store::HeaderString::SceneSoundtrack));
    track.set(QStringLiteral("t.mid"));
    EXPECT_EQ(scene.header(store::HeaderString::SceneSoundtrack), "t.mid");
    EXPECT_EQ(track.use, FieldUse::soundtrackFile);
    EXPECT_EQ(track.width, 15);
}

TEST(Field, OfRecordsAsTheyLieInTheirFiles) {
    store::ItemRecord item{};
    const TextRef caption(item, fieldRef(&store::ItemRecord::ItemCloseupCaption));
    caption.set(QStringLiteral("Old \u20ac"));
    EXPECT_EQ(item.ItemCloseupCaption.text(), "Old \xe2\x82\xac");
    EXPECT_EQ(caption.get(), QStringLiteral("Old \u20ac"));
    EXPECT_EQ(caption.width, 30);

    store::CueCardRecord card{};
    const store::ChoiceFields choice = store::choiceFields(4);
    NumberRef(card, choice.Volume).set(-90);
    TextRef(card, choice.Text).set(QStringLiteral("Yes"));
    EXPECT_EQ(card.ChoiceVolume[3], -90);
    EXPECT_EQ(card.ChoiceText[3].text(), "Yes");
    EXPECT_EQ(TextRef(card, choice.Text).width, 50);
    EXPECT_EQ(NumberRef(card, choice.Volume).use, FieldUse::mediaVolume);

    store::LocationRecord location{};
    NumberRef(location, fieldRef(&store::LocationRecord::LocationScene)).set(5);
    EXPECT_EQ(location.LocationScene, 5);
    store::SkinRecord skin{};
    TextRef(skin, store::skinPlace(10)).set(QStringLiteral("1/2"));
    EXPECT_EQ(skin.Coords10.text(), "1/2");
}

TEST(Field, OfTheSettingsByDiscAndAsATextThatIsANumber) {
    store::GameSettingsRecord settings{};
    NumberRef(settings, store::discFields(2).ToScene).set(40);
    EXPECT_EQ(settings.DiscToScene[1], 40);
    const NumberRef logo(settings, fieldRef(&store::GameSettingsRecord::LogoSuppressed));
    EXPECT_EQ(logo.get(), 0);
    EXPECT_EQ(logo.use, FieldUse::check);
    logo.set(1);
    EXPECT_EQ(settings.LogoSuppressed.text(), "1");
    EXPECT_EQ(logo.get(), 1);
}

TEST(Field, ATextOfARecordKnowsItsWidthByItself) {
    store::ItemRecord item{};
    EXPECT_EQ(TextRef(item.ItemCloseupCaption).width, 30);
    std::string text;
    EXPECT_EQ(TextRef(text).width, 0);
}

}  // namespace
}  // namespace quorvel::test
