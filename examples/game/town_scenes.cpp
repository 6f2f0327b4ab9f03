// The scenes of the town: harbour, lane, shop, inn and attic.
#include "art/item_art.h"
#include "game/scene_builder.h"
#include "game/story.h"

namespace quorvel::sample {
namespace {

using enum ObjectType;
using store::LinkSide;

int number(Item item) {
    return static_cast<int>(item);
}

/// Goodies vanish for good once their flag is set.
void pickUpOnce(ObjectRef object, Item item, Flag taken) {
    object.number(Goodie::item, number(item))
        .visibleWhen(Goodie::visibility, {taken, 0})
        .number(Goodie::setOn, 1)
        .set(Goodie::set, {taken, 1})
        .text(Goodie::success, "Chime.wav");
}

store::Scene harbour(const SceneArt& art) {
    SceneBuilder scene("Harbour Quay", art);
    scene.soundtrack("KeepWaltz.mid", -600);
    scene.sound("Waves.wav", -900, 0);
    scene.link(LinkSide::left, kCove);
    scene.link(LinkSide::up, kLane);
    scene.link(LinkSide::right, kCliff);
    scene.switchSceneWhen({kBeaconLit, 1}, kBoatsHome);
    scene.insert(1, ambient, "Glints.gif");
    scene.insert(2, ambient, "Smoke.gif");
    scene.insert(3, reactor, "Gulls.gif")
        .number(Reactor::style, Reactor::loop)
        .text(Reactor::sound, "Gull.wav")
        .number(Reactor::volume, -800);
    scene.insert(4, ambient, "Rowboat.gif").number(Ambient::style, Ambient::pingPong);
    scene.insert(5, ambient, "QuayLamp.gif");
    scene.insert(6, hotSpot, "ChartBoard.gif")
        .number(HotSpot::linkKind, HotSpot::toMap)
        .text(HotSpot::success, "Click.wav")
        .text(HotSpot::group, "0");
    pickUpOnce(scene.insert(7, goodie, "Herring.gif"), Item::herring, kHerringTaken);
    scene.insert(8, reactor, "Pilchard.gif")
        .number(Reactor::style, Reactor::pingPong)
        .text(Reactor::sound, "Purr.wav");
    scene.insert(9, reactor, "Bell.gif")
        .number(Reactor::style, Reactor::onClick)
        .text(Reactor::sound, "Bell.wav")
        .number(Reactor::setOn, 1)
        .set(Reactor::set, {kBellRung, 1});
    scene.insertQuickSpot(10, {556, 52, 72, 138})
        .number(HotSpot::pointer, up)
        .number(HotSpot::scene, kCliff)
        .text(HotSpot::success, "Click.wav");
    // A gull answers the bell, a little later.
    scene.insert(11, delay, 12, 12)
        .test(Delay::test, {kBellRung, 1})
        .number(Delay::seconds, 3)
        .set(Delay::set, {kBellAnswered, 1});
    scene.insert(12, responder, 66, 12)
        .test(Responder::test, {kBellAnswered, 1})
        .number(Responder::onlyHere, 1)
        .number(Responder::playOn, 1)
        .text(Responder::media, "Gull.wav")
        .number(Responder::setOn, 1)
        .set(Responder::set, {kBellRung, 0});
    return scene.scene();
}

store::Scene lane(const SceneArt& art) {
    SceneBuilder scene("Lantern Lane", art);
    scene.soundtrack("KeepWaltz.mid", -900);
    scene.link(LinkSide::down, kHarbour);
    scene.link(LinkSide::up, kAttic);
    scene.insert(1, ambient, "Puddle.gif");
    scene.insertQuickSpot(2, {144, 240, 46, 108})
        .number(HotSpot::pointer, exitDoor)
        .number(HotSpot::scene, kChandlery)
        .text(HotSpot::success, "Creak.wav")
        .text(HotSpot::group, "1");
    scene.insertQuickSpot(3, {606, 240, 80, 166})
        .number(HotSpot::pointer, exitDoor)
        .number(HotSpot::scene, kInn)
        .text(HotSpot::success, "Creak.wav")
        .text(HotSpot::group, "2");
    scene.insert(4, hotSpot, "AnchorSign.gif")
        .number(HotSpot::animation, 2)
        .number(HotSpot::scene, kChandlery)
        .text(HotSpot::success, "ShopBell.wav")
        .text(HotSpot::group, "1");
    scene.insert(5, hotSpot, "MothSign.gif")
        .number(HotSpot::animation, 2)
        .number(HotSpot::scene, kInn)
        .text(HotSpot::success, "Creak.wav")
        .text(HotSpot::group, "2");
    scene.insert(6, ambient, "Moths.gif");
    scene.insert(7, reactor, "LaneCat.gif")
        .number(Reactor::style, Reactor::pingPong)
        .text(Reactor::sound, "Purr.wav");
    scene.insert(8, switcher, "LaneLamp.gif")
        .number(Switcher::flag, kLaneLampLit)
        .text(Switcher::soundA, "Click.wav")
        .text(Switcher::soundB, "Match.wav");
    scene.insert(9, responder, 12, 415)
        .test(Responder::test, {kLaneLampLit, 1})
        .number(Responder::playOn, 1)
        .text(Responder::media, "Chime.wav");
    // Lamp, oil and matches together are worth a score, once.
    scene.insert(10, flagConjunction, 66, 415)
        .number(5, 1)
        .test(6, {kLampTaken, 1})
        .number(9, 1)
        .test(10, {kOilTaken, 1})
        .number(13, 1)
        .test(14, {kMatchesTaken, 1})
        .number(17, 1)
        .test(18, {kScore, 20, Compare::less})
        .text(FlagConjunction::flag, std::to_string(kScore))
        .text(FlagConjunction::value, "20")
        .text(FlagConjunction::add, "0");
    return scene.scene();
}

store::Scene chandlery(const SceneArt& art) {
    SceneBuilder scene("Chandlery", art);
    scene.soundtrack("MothJig.mid", -1400);
    scene.link(LinkSide::down, kLane);
    scene.setFlagOnEnter({kPuffinTalk, 1});
    scene.insert(1, ambient, "ShopLamp.gif");
    scene.insert(2, ambient, "Clock.gif").number(Ambient::style, Ambient::pingPong);
    scene.insert(3, reactor, "Puffin.gif")
        .number(Reactor::style, Reactor::loop)
        .text(Reactor::sound, "Squawk.wav")
        .number(Reactor::setOn, 1)
        .set(Reactor::set, {kPuffinTalk, 1});
    // The puffin lets nobody near the oil without a herring.
    ObjectRef oil = scene.insert(4, goodie, "OilCan.gif");
    pickUpOnce(oil, Item::oilCan, kOilTaken);
    oil.number(Goodie::needsItem, 1)
        .number(Goodie::requiredItem, number(Item::herring))
        .text(Goodie::failure, "Squawk.wav");
    scene.insert(5, conversation, 640, 12)
        .number(Conversation::card, kCardPuffin)
        .visibleWhen(Conversation::visibility, {kPuffinTalk, 1})
        .number(Conversation::corner, Conversation::upperRight);
    scene.insertQuickSpot(6, {28, 98, 96, 200})
        .number(HotSpot::pointer, exitDoor)
        .number(HotSpot::scene, kLane)
        .text(HotSpot::success, "ShopBell.wav");
    return scene.scene();
}

store::Scene inn(const SceneArt& art) {
    SceneBuilder scene("Moth & Candle", art);
    scene.soundtrack("MothJig.mid", -700);
    scene.link(LinkSide::down, kLane);
    scene.insert(1, ambient, "Hearth.gif")
        .text(Ambient::sound, "Fire.wav")
        .number(Ambient::volume, -700);
    scene.insert(2, ambient, "Pipe.gif");
    scene.insert(3, ambient, "InnMoth.gif");
    scene.insertQuickSpot(4, {388, 212, 168, 204})
        .visibleWhen(HotSpot::visibility, {kTalk, 1, Compare::less})
        .number(HotSpot::setOn, 1)
        .set(HotSpot::set, {kTalk, 1})
        .text(HotSpot::success, "Click.wav");
    scene.insert(5, conversation, 640, 12)
        .number(Conversation::card, kCardKeeper)
        .visibleWhen(Conversation::visibility, {kTalk, 1})
        .number(Conversation::exclusive, 1);
    scene.insert(6, conversation, 586, 12)
        .number(Conversation::card, kCardTale)
        .visibleWhen(Conversation::visibility, {kTalk, 2})
        .number(Conversation::corner, Conversation::lowerLeft);
    scene.insert(7, responder, 12, 12)
        .test(Responder::test, {kTalk, 3})
        .number(Responder::playOn, 1)
        .text(Responder::media, "Chime.wav")
        .number(Responder::mapOn, 1)
        .number(Responder::location, kMapLighthouse);
    return scene.scene();
}

store::Scene attic(const SceneArt& art) {
    SceneBuilder scene("Wren's Attic", art);
    scene.soundtrack("KeepWaltz.mid", -1100);
    scene.link(LinkSide::down, kLane);
    scene.insert(1, ambient, "Dust.gif");
    pickUpOnce(scene.insert(2, goodie, "Lamp.gif"), Item::brassLamp, kLampTaken);
    pickUpOnce(scene.insert(3, goodie, "Matches.gif"), Item::matches, kMatchesTaken);
    scene.insert(4, reactor, "Telescope.gif")
        .number(Reactor::style, Reactor::onClick)
        .text(Reactor::sound, "Clank.wav")
        .number(Reactor::once, 1);
    // The first thing found opens the score.
    scene.insert(5, multiTrigger, 12, 12)
        .test(MultiTrigger::first, {kLampTaken, 1})
        .number(MultiTrigger::first + MultiTrigger::setOn, 1)
        .set(MultiTrigger::first + MultiTrigger::set, {kScore, 10});
    return scene.scene();
}

}  // namespace

std::vector<ScenePlan> townPlans() {
    return {
        {kHarbour, harbourArt, harbour},
        {kLane, laneArt, lane},
        {kChandlery, chandleryArt, chandlery},
        {kInn, innArt, inn},
        {kAttic, atticArt, attic},
    };
}

}  // namespace quorvel::sample
