// The scenes of the town: harbour, lane, shop, inn and attic.
#include "art/item_art.h"
#include "game/scene_builder.h"
#include "game/story.h"

namespace quorvel::sample {
namespace {

using Type = store::ObjectType;
using store::Ambient;
using store::Conversation;
using store::Delay;
using store::FlagConjunction;
using store::Goodie;
using store::HotSpot;
using store::LinkSide;
using store::MultiTrigger;
using store::Reactor;
using store::Responder;
using store::Switch;

/// Goodies vanish for good once their flag is set.
void pickUpOnce(ObjectRef object, Item item, Flag taken) {
    object.number(Goodie::GivenItem, number(item))
        .visibleWhen(Goodie::Visibility, {taken, 0})
        .number(Goodie::SetFlagOn, 1)
        .set(Goodie::SetFlag, {taken, 1})
        .text(Goodie::SuccessMedia, "Chime.wav");
}

store::Scene harbour(const SceneArt& art) {
    SceneBuilder scene("Harbour Quay", art);
    scene.soundtrack("KeepWaltz.mid", -600);
    scene.sound("Waves.wav", -900, 0);
    scene.link(LinkSide::left, kCove);
    scene.link(LinkSide::up, kLane);
    scene.link(LinkSide::right, kCliff);
    scene.switchSceneWhen({kBeaconLit, 1}, kBoatsHome);
    scene.insert(1, Type::ambient, "Glints.gif");
    scene.insert(2, Type::ambient, "Smoke.gif");
    scene.insert(3, Type::reactor, "Gulls.gif")
        .number(Reactor::Style, kLooping)
        .text(Reactor::Sound, "Gull.wav")
        .number(Reactor::SoundVolume, -800);
    scene.insert(4, Type::ambient, "Rowboat.gif").number(Ambient::Style, kPingPong);
    scene.insert(5, Type::ambient, "QuayLamp.gif");
    scene.insert(6, Type::hotSpot, "ChartBoard.gif")
        .number(HotSpot::TargetKind, kToMap)
        .text(HotSpot::SuccessSound, "Click.wav")
        .text(HotSpot::Group, "0");
    pickUpOnce(scene.insert(7, Type::goodie, "Herring.gif"), Item::herring, kHerringTaken);
    scene.insert(8, Type::reactor, "Pilchard.gif")
        .number(Reactor::Style, kPingPong)
        .text(Reactor::Sound, "Purr.wav");
    scene.insert(9, Type::reactor, "Bell.gif")
        .number(Reactor::Style, kOnClick)
        .text(Reactor::Sound, "Bell.wav")
        .number(Reactor::SetFlagOn, 1)
        .set(Reactor::SetFlag, {kBellRung, 1});
    scene.insertQuickSpot(10, {556, 52, 72, 138})
        .number(HotSpot::Pointer, kPointerUp)
        .number(HotSpot::TargetScene, kCliff)
        .text(HotSpot::SuccessSound, "Click.wav");
    // A gull answers the bell, a little later.
    scene.insert(11, Type::delay, 12, 12)
        .test(Delay::TestFlag, {kBellRung, 1})
        .number(Delay::Seconds, 3)
        .set(Delay::SetFlag, {kBellAnswered, 1});
    scene.insert(12, Type::responder, 66, 12)
        .test(Responder::TestFlag, {kBellAnswered, 1})
        .number(Responder::OnlyInScene, 1)
        .number(Responder::MediaOn, 1)
        .text(Responder::Media, "Gull.wav")
        .number(Responder::SetFlagOn, 1)
        .set(Responder::SetFlag, {kBellRung, 0});
    return scene.scene();
}

store::Scene lane(const SceneArt& art) {
    SceneBuilder scene("Lantern Lane", art);
    scene.soundtrack("KeepWaltz.mid", -900);
    scene.link(LinkSide::down, kHarbour);
    scene.link(LinkSide::up, kAttic);
    scene.insert(1, Type::ambient, "Puddle.gif");
    scene.insertQuickSpot(2, {144, 240, 46, 108})
        .number(HotSpot::Pointer, kPointerExit)
        .number(HotSpot::TargetScene, kChandlery)
        .text(HotSpot::SuccessSound, "Creak.wav")
        .text(HotSpot::Group, "1");
    scene.insertQuickSpot(3, {606, 240, 80, 166})
        .number(HotSpot::Pointer, kPointerExit)
        .number(HotSpot::TargetScene, kInn)
        .text(HotSpot::SuccessSound, "Creak.wav")
        .text(HotSpot::Group, "2");
    scene.insert(4, Type::hotSpot, "AnchorSign.gif")
        .number(HotSpot::Style, kPingPong)
        .number(HotSpot::TargetScene, kChandlery)
        .text(HotSpot::SuccessSound, "ShopBell.wav")
        .text(HotSpot::Group, "1");
    scene.insert(5, Type::hotSpot, "MothSign.gif")
        .number(HotSpot::Style, kPingPong)
        .number(HotSpot::TargetScene, kInn)
        .text(HotSpot::SuccessSound, "Creak.wav")
        .text(HotSpot::Group, "2");
    scene.insert(6, Type::ambient, "Moths.gif");
    scene.insert(7, Type::reactor, "LaneCat.gif")
        .number(Reactor::Style, kPingPong)
        .text(Reactor::Sound, "Purr.wav");
    scene.insert(8, Type::switchObject, "LaneLamp.gif")
        .number(Switch::Flag, kLaneLampLit)
        .text(Switch::SoundA, "Click.wav")
        .text(Switch::SoundB, "Match.wav");
    scene.insert(9, Type::responder, 12, 415)
        .test(Responder::TestFlag, {kLaneLampLit, 1})
        .number(Responder::MediaOn, 1)
        .text(Responder::Media, "Chime.wav");
    // Lamp, oil and matches together are worth a score, once.
    scene.insert(10, Type::flagConjunction, 66, 415)
        .number(FlagConjunction::condition(0).On, 1)
        .test(FlagConjunction::condition(0).TestFlag, {kLampTaken, 1})
        .number(FlagConjunction::condition(1).On, 1)
        .test(FlagConjunction::condition(1).TestFlag, {kOilTaken, 1})
        .number(FlagConjunction::condition(2).On, 1)
        .test(FlagConjunction::condition(2).TestFlag, {kMatchesTaken, 1})
        .number(FlagConjunction::condition(3).On, 1)
        .test(FlagConjunction::condition(3).TestFlag, {kScore, 20, Compare::less})
        .text(FlagConjunction::SetFlag, std::to_string(kScore))
        .text(FlagConjunction::SetValue, "20")
        .text(FlagConjunction::SetAdd, "0");
    return scene.scene();
}

store::Scene chandlery(const SceneArt& art) {
    SceneBuilder scene("Chandlery", art);
    scene.soundtrack("MothJig.mid", -1400);
    scene.link(LinkSide::down, kLane);
    scene.setFlagOnEnter({kPuffinTalk, 1});
    scene.insert(1, Type::ambient, "ShopLamp.gif");
    scene.insert(2, Type::ambient, "Clock.gif").number(Ambient::Style, kPingPong);
    scene.insert(3, Type::reactor, "Puffin.gif")
        .number(Reactor::Style, kLooping)
        .text(Reactor::Sound, "Squawk.wav")
        .number(Reactor::SetFlagOn, 1)
        .set(Reactor::SetFlag, {kPuffinTalk, 1});
    // The puffin lets nobody near the oil without a herring.
    ObjectRef oil = scene.insert(4, Type::goodie, "OilCan.gif");
    pickUpOnce(oil, Item::oilCan, kOilTaken);
    oil.number(Goodie::NeedsItem, 1)
        .number(Goodie::NeededItem, number(Item::herring))
        .text(Goodie::FailureSound, "Squawk.wav");
    scene.insert(5, Type::conversation, 640, 12)
        .number(Conversation::CueCard, kCardPuffin)
        .visibleWhen(Conversation::Visibility, {kPuffinTalk, 1})
        .number(Conversation::Corner, kUpperRight);
    scene.insertQuickSpot(6, {28, 98, 96, 200})
        .number(HotSpot::Pointer, kPointerExit)
        .number(HotSpot::TargetScene, kLane)
        .text(HotSpot::SuccessSound, "ShopBell.wav");
    return scene.scene();
}

store::Scene inn(const SceneArt& art) {
    SceneBuilder scene("Moth & Candle", art);
    scene.soundtrack("MothJig.mid", -700);
    scene.link(LinkSide::down, kLane);
    scene.insert(1, Type::ambient, "Hearth.gif")
        .text(Ambient::Sound, "Fire.wav")
        .number(Ambient::SoundVolume, -700);
    scene.insert(2, Type::ambient, "Pipe.gif");
    scene.insert(3, Type::ambient, "InnMoth.gif");
    scene.insertQuickSpot(4, {388, 212, 168, 204})
        .visibleWhen(HotSpot::Visibility, {kTalk, 1, Compare::less})
        .number(HotSpot::SetFlagOn, 1)
        .set(HotSpot::SetFlag, {kTalk, 1})
        .text(HotSpot::SuccessSound, "Click.wav");
    scene.insert(5, Type::conversation, 640, 12)
        .number(Conversation::CueCard, kCardKeeper)
        .visibleWhen(Conversation::Visibility, {kTalk, 1})
        .number(Conversation::BlocksOthers, 1);
    scene.insert(6, Type::conversation, 586, 12)
        .number(Conversation::CueCard, kCardTale)
        .visibleWhen(Conversation::Visibility, {kTalk, 2})
        .number(Conversation::Corner, kLowerLeft);
    scene.insert(7, Type::responder, 12, 12)
        .test(Responder::TestFlag, {kTalk, 3})
        .number(Responder::MediaOn, 1)
        .text(Responder::Media, "Chime.wav")
        .number(Responder::AddLocationOn, 1)
        .number(Responder::AddLocation, kMapLighthouse);
    return scene.scene();
}

store::Scene attic(const SceneArt& art) {
    SceneBuilder scene("Wren's Attic", art);
    scene.soundtrack("KeepWaltz.mid", -1100);
    scene.link(LinkSide::down, kLane);
    scene.insert(1, Type::ambient, "Dust.gif");
    pickUpOnce(scene.insert(2, Type::goodie, "Lamp.gif"), Item::brassLamp, kLampTaken);
    pickUpOnce(scene.insert(3, Type::goodie, "Matches.gif"), Item::matches, kMatchesTaken);
    scene.insert(4, Type::reactor, "Telescope.gif")
        .number(Reactor::Style, kOnClick)
        .text(Reactor::Sound, "Clank.wav")
        .number(Reactor::OncePerView, 1);
    // The first thing found opens the score.
    scene.insert(5, Type::multiTrigger, 12, 12)
        .test(MultiTrigger::trigger(0).TestFlag, {kLampTaken, 1})
        .number(MultiTrigger::trigger(0).SetFlagOn, 1)
        .set(MultiTrigger::trigger(0).SetFlag, {kScore, 10});
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
