// The scenes of the coast: cove, cliff, lighthouse and the end of the story.
#include "art/item_art.h"
#include "game/scene_builder.h"
#include "game/story.h"

namespace quorvel::sample {
namespace {

using Type = store::ObjectType;
using store::Ambient;
using store::Delay;
using store::FlagConjunction;
using store::Goodie;
using store::HotSpot;
using store::LinkSide;
using store::MultiTrigger;
using store::Reactor;
using store::Responder;
using store::Switch;

store::Scene cove(const SceneArt& art) {
    SceneBuilder scene("Moonlit Cove", art);
    scene.soundtrack("KeepWaltz.mid", -1100);
    scene.sound("Waves.wav", -500, 0);
    scene.link(LinkSide::right, kHarbour);
    scene.insert(1, Type::ambient, "MoonPath.gif");
    scene.insert(2, Type::ambient, "Surf.gif");
    scene.insert(3, Type::goodie, "Key.gif")
        .number(Goodie::GivenItem, number(Item::ironKey))
        .visibleWhen(Goodie::Visibility, {kKeyTaken, 0})
        .set(Goodie::SetFlag, {kKeyTaken, 1})
        .text(Goodie::SuccessMedia, "Chime.wav");
    scene.insert(4, Type::ambient, "Pool.gif");
    scene.insert(5, Type::reactor, "Crab.gif")
        .number(Reactor::Style, kPingPong)
        .text(Reactor::Sound, "Click.wav");
    scene.insert(6, Type::responder, 12, 12)
        .test(Responder::TestFlag, {kKeyTaken, 1})
        .number(Responder::OnlyInScene, 1)
        .number(Responder::AddLocationOn, 1)
        .number(Responder::AddLocation, kMapLighthouse);
    return scene.scene();
}

store::Scene cliff(const SceneArt& art) {
    SceneBuilder scene("Cliff Path", art);
    scene.soundtrack("KeepWaltz.mid", -900);
    scene.sound("Wind.wav", -700, 0);
    scene.link(LinkSide::left, kHarbour);
    scene.link(LinkSide::up, kLighthouse);
    scene.setFlagOnEnter({kWalkedCliff, 1});
    scene.insert(1, Type::ambient, "WindGrass.gif").number(Ambient::Style, kLooping);
    scene.insert(2, Type::ambient, "Fireflies.gif");
    scene.insert(3, Type::reactor, "CliffGulls.gif")
        .text(Reactor::Sound, "Gull.wav")
        .number(Reactor::SoundVolume, -500);
    scene.insertQuickSpot(4, {560, 8, 100, 168})
        .number(HotSpot::Pointer, kPointerUp)
        .number(HotSpot::TargetScene, kLighthouse)
        .text(HotSpot::SuccessSound, "Click.wav");
    scene.insert(5, Type::responder, 12, 12)
        .test(Responder::TestFlag, {kWalkedCliff, 1})
        .number(Responder::AddLocationOn, 1)
        .number(Responder::AddLocation, kMapCliff);
    return scene.scene();
}

store::Scene lighthouse(const SceneArt& art) {
    SceneBuilder scene("Lighthouse", art);
    scene.soundtrack("KeepWaltz.mid", -1100);
    scene.sound("Waves.wav", -700, -900);
    scene.link(LinkSide::down, kCliff);
    scene.insert(1, Type::ambient, "Chimney.gif");
    scene.insert(2, Type::ambient, "Spray.gif")
        .text(Ambient::Sound, "Waves.wav")
        .number(Ambient::SoundPan, -2500);
    scene.insert(3, Type::ambient, "Vane.gif").number(Ambient::Style, kPingPong);
    scene.insertQuickSpot(4, {360, 288, 74, 98})
        .number(HotSpot::Pointer, kPointerExit)
        .number(HotSpot::NeedsItem, 1)
        .number(HotSpot::NeededItem, number(Item::ironKey))
        .number(HotSpot::KeepsItem, 1)
        .number(HotSpot::TargetScene, kStair)
        .number(HotSpot::SetFlagOn, 1)
        .set(HotSpot::SetFlag, {kDoorOpen, 1})
        .text(HotSpot::SuccessSound, "Creak.wav")
        .text(HotSpot::FailureSound, "Wrong.wav");
    scene.insert(5, Type::ambient, "DoorLamp.gif");
    scene.insert(6, Type::multiTrigger, 12, 12)
        .number(MultiTrigger::OnlyInScene, 1)
        .test(MultiTrigger::trigger(0).TestFlag, {kDoorOpen, 1})
        .number(MultiTrigger::trigger(0).SetFlagOn, 1)
        .set(MultiTrigger::trigger(0).SetFlag, {kScore, 40});
    return scene.scene();
}

store::Scene stair(const SceneArt& art) {
    SceneBuilder scene("Winding Stair", art);
    scene.soundtrack("KeepWaltz.mid", -1500);
    scene.sound("Wind.wav", -1600, 0);
    scene.link(LinkSide::down, kLighthouse);
    scene.link(LinkSide::up, kLampRoom);
    scene.insert(1, Type::ambient, "StairDust.gif");
    scene.insert(2, Type::reactor, "Spider.gif")
        .number(Reactor::Style, kPingPong)
        .text(Reactor::Sound, "Click.wav");
    scene.insert(3, Type::ambient, "WallLamp.gif");
    scene.insertQuickSpot(4, {352, 140, 80, 74})
        .number(HotSpot::Pointer, kPointerUp)
        .number(HotSpot::TargetScene, kLampRoom);
    return scene.scene();
}

store::Scene lampRoom(const SceneArt& art) {
    SceneBuilder scene("Lamp Room", art);
    scene.soundtrack("KeepWaltz.mid", -900);
    scene.sound("Wind.wav", -1200, 0);
    scene.link(LinkSide::down, kStair);
    scene.insert(1, Type::ambient, "LensShine.gif");
    scene.insert(2, Type::ambient, "Beacon.gif")
        .number(Ambient::Style, kOneShot)
        .visibleWhen(Ambient::Visibility, {kBeaconLit, 1});
    scene.insertQuickSpot(3, {262, 84, 176, 250})
        .number(HotSpot::NeedsItem, 1)
        .number(HotSpot::NeededItem, number(Item::litLamp))
        .visibleWhen(HotSpot::Visibility, {kLampSet, 0})
        .number(HotSpot::SetFlagOn, 1)
        .set(HotSpot::SetFlag, {kLampSet, 1})
        .text(HotSpot::SuccessSound, "Match.wav")
        .text(HotSpot::FailureSound, "Wrong.wav");
    scene.insert(4, Type::switchObject, "Lever.gif")
        .number(Switch::Flag, kLeverPulled)
        .text(Switch::SoundA, "Clank.wav")
        .text(Switch::SoundB, "Clank.wav");
    scene.insert(5, Type::ambient, "LampMoth.gif").number(Ambient::Style, kLooping);
    // Lamp and lever together light the beacon; the lens needs a moment to turn.
    scene.insert(6, Type::flagConjunction, 12, 412)
        .number(FlagConjunction::condition(0).On, 1)
        .test(FlagConjunction::condition(0).TestFlag, {kLampSet, 1})
        .number(FlagConjunction::condition(1).On, 1)
        .test(FlagConjunction::condition(1).TestFlag, {kLeverPulled, 1})
        .text(FlagConjunction::SetFlag, std::to_string(kBeaconLit))
        .text(FlagConjunction::SetValue, "1")
        .text(FlagConjunction::SetAdd, "0");
    scene.insert(7, Type::delay, 640, 60)
        .test(Delay::TestFlag, {kBeaconLit, 1})
        .number(Delay::Seconds, 4)
        .set(Delay::SetFlag, {kBeaconLit, 2})
        .number(Delay::ForceWait, 1);
    scene.insert(8, Type::multiTrigger, 640, 412)
        .number(MultiTrigger::OnlyInScene, 1)
        .test(MultiTrigger::trigger(0).TestFlag, {kBeaconLit, 2})
        .number(MultiTrigger::trigger(0).SetFlagOn, 1)
        .set(MultiTrigger::trigger(0).SetFlag, {kScore, kMaxScore})
        .number(MultiTrigger::trigger(0).TargetScene, kBoatsHome);
    return scene.scene();
}

store::Scene boatsHome(const SceneArt& art) {
    SceneBuilder scene("Boats Home", art);
    scene.soundtrack("KeepWaltz.mid", 0);
    scene.sound("Waves.wav", -1100, 0);
    scene.movieOnEnter("Beacon.avi", 90);
    scene.setFlagOnEnter({kBeaconLit, 1});
    scene.insert(1, Type::ambient, "Ripples.gif");
    scene.insert(2, Type::ambient, "Lanterns.gif").number(Ambient::Style, kPingPong);
    scene.insert(3, Type::reactor, "EndCat.gif")
        .number(Reactor::Style, kPingPong)
        .text(Reactor::Sound, "Purr.wav");
    scene.insertQuickSpot(4, {470, 40, 100, 146})
        .text(HotSpot::SuccessSound, "Bell.wav")
        .number(HotSpot::TargetKind, kToMap);
    return scene.scene();
}

}  // namespace

std::vector<ScenePlan> coastPlans() {
    return {
        {kCove, coveArt, cove},
        {kCliff, cliffArt, cliff},
        {kLighthouse, lighthouseArt, lighthouse},
        {kStair, stairArt, stair},
        {kLampRoom, lampRoomArt, lampRoom},
        {kBoatsHome, boatsHomeArt, boatsHome},
    };
}

std::vector<ScenePlan> scenePlans() {
    std::vector<ScenePlan> plans = townPlans();
    for (ScenePlan& plan : coastPlans()) {
        plans.push_back(std::move(plan));
    }
    return plans;
}

}  // namespace quorvel::sample
