// The scenes of the coast: cove, cliff, lighthouse and the end of the story.
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

store::Scene cove(const SceneArt& art) {
    SceneBuilder scene("Moonlit Cove", art);
    scene.soundtrack("KeepWaltz.mid", -1100);
    scene.sound("Waves.wav", -500, 0);
    scene.link(LinkSide::right, kHarbour);
    scene.insert(1, ambient, "MoonPath.gif");
    scene.insert(2, ambient, "Surf.gif");
    scene.insert(3, goodie, "Key.gif")
        .number(Goodie::item, number(Item::ironKey))
        .visibleWhen(Goodie::visibility, {kKeyTaken, 0})
        .set(Goodie::set, {kKeyTaken, 1})
        .text(Goodie::success, "Chime.wav");
    scene.insert(4, ambient, "Pool.gif");
    scene.insert(5, reactor, "Crab.gif")
        .number(Reactor::style, Reactor::pingPong)
        .text(Reactor::sound, "Click.wav");
    scene.insert(6, responder, 12, 12)
        .test(Responder::test, {kKeyTaken, 1})
        .number(Responder::onlyHere, 1)
        .number(Responder::mapOn, 1)
        .number(Responder::location, kMapLighthouse);
    return scene.scene();
}

store::Scene cliff(const SceneArt& art) {
    SceneBuilder scene("Cliff Path", art);
    scene.soundtrack("KeepWaltz.mid", -900);
    scene.sound("Wind.wav", -700, 0);
    scene.link(LinkSide::left, kHarbour);
    scene.link(LinkSide::up, kLighthouse);
    scene.setFlagOnEnter({kWalkedCliff, 1});
    scene.insert(1, ambient, "WindGrass.gif").number(Ambient::style, Ambient::looping);
    scene.insert(2, ambient, "Fireflies.gif");
    scene.insert(3, reactor, "CliffGulls.gif")
        .text(Reactor::sound, "Gull.wav")
        .number(Reactor::volume, -500);
    scene.insertQuickSpot(4, {560, 8, 100, 168})
        .number(HotSpot::pointer, up)
        .number(HotSpot::scene, kLighthouse)
        .text(HotSpot::success, "Click.wav");
    scene.insert(5, responder, 12, 12)
        .test(Responder::test, {kWalkedCliff, 1})
        .number(Responder::mapOn, 1)
        .number(Responder::location, kMapCliff);
    return scene.scene();
}

store::Scene lighthouse(const SceneArt& art) {
    SceneBuilder scene("Lighthouse", art);
    scene.soundtrack("KeepWaltz.mid", -1100);
    scene.sound("Waves.wav", -700, -900);
    scene.link(LinkSide::down, kCliff);
    scene.insert(1, ambient, "Chimney.gif");
    scene.insert(2, ambient, "Spray.gif")
        .text(Ambient::sound, "Waves.wav")
        .number(Ambient::pan, -2500);
    scene.insert(3, ambient, "Vane.gif").number(Ambient::style, Ambient::pingPong);
    scene.insertQuickSpot(4, {360, 288, 74, 98})
        .number(HotSpot::pointer, exitDoor)
        .number(HotSpot::needsItem, 1)
        .number(HotSpot::item, number(Item::ironKey))
        .number(HotSpot::keepsItem, 1)
        .number(HotSpot::scene, kStair)
        .number(HotSpot::setOn, 1)
        .set(HotSpot::set, {kDoorOpen, 1})
        .text(HotSpot::success, "Creak.wav")
        .text(HotSpot::failure, "Wrong.wav");
    scene.insert(5, ambient, "DoorLamp.gif");
    scene.insert(6, multiTrigger, 12, 12)
        .number(MultiTrigger::onlyHere, 1)
        .test(MultiTrigger::first, {kDoorOpen, 1})
        .number(MultiTrigger::first + MultiTrigger::setOn, 1)
        .set(MultiTrigger::first + MultiTrigger::set, {kScore, 40});
    return scene.scene();
}

store::Scene stair(const SceneArt& art) {
    SceneBuilder scene("Winding Stair", art);
    scene.soundtrack("KeepWaltz.mid", -1500);
    scene.sound("Wind.wav", -1600, 0);
    scene.link(LinkSide::down, kLighthouse);
    scene.link(LinkSide::up, kLampRoom);
    scene.insert(1, ambient, "StairDust.gif");
    scene.insert(2, reactor, "Spider.gif")
        .number(Reactor::style, Reactor::pingPong)
        .text(Reactor::sound, "Click.wav");
    scene.insert(3, ambient, "WallLamp.gif");
    scene.insertQuickSpot(4, {352, 140, 80, 74})
        .number(HotSpot::pointer, up)
        .number(HotSpot::scene, kLampRoom);
    return scene.scene();
}

store::Scene lampRoom(const SceneArt& art) {
    SceneBuilder scene("Lamp Room", art);
    scene.soundtrack("KeepWaltz.mid", -900);
    scene.sound("Wind.wav", -1200, 0);
    scene.link(LinkSide::down, kStair);
    scene.insert(1, ambient, "LensShine.gif");
    scene.insert(2, ambient, "Beacon.gif")
        .number(Ambient::style, Ambient::oneShot)
        .visibleWhen(Ambient::visibility, {kBeaconLit, 1});
    scene.insertQuickSpot(3, {262, 84, 176, 250})
        .number(HotSpot::needsItem, 1)
        .number(HotSpot::item, number(Item::litLamp))
        .visibleWhen(HotSpot::visibility, {kLampSet, 0})
        .number(HotSpot::setOn, 1)
        .set(HotSpot::set, {kLampSet, 1})
        .text(HotSpot::success, "Match.wav")
        .text(HotSpot::failure, "Wrong.wav");
    scene.insert(4, switcher, "Lever.gif")
        .number(Switcher::flag, kLeverPulled)
        .text(Switcher::soundA, "Clank.wav")
        .text(Switcher::soundB, "Clank.wav");
    scene.insert(5, ambient, "LampMoth.gif").number(Ambient::style, Ambient::looping);
    // Lamp and lever together light the beacon; the lens needs a moment to turn.
    scene.insert(6, flagConjunction, 12, 412)
        .number(5, 1)
        .test(6, {kLampSet, 1})
        .number(9, 1)
        .test(10, {kLeverPulled, 1})
        .text(FlagConjunction::flag, std::to_string(kBeaconLit))
        .text(FlagConjunction::value, "1")
        .text(FlagConjunction::add, "0");
    scene.insert(7, delay, 640, 60)
        .test(Delay::test, {kBeaconLit, 1})
        .number(Delay::seconds, 4)
        .set(Delay::set, {kBeaconLit, 2})
        .number(Delay::waitPointer, 1);
    scene.insert(8, multiTrigger, 640, 412)
        .number(MultiTrigger::onlyHere, 1)
        .test(MultiTrigger::first, {kBeaconLit, 2})
        .number(MultiTrigger::first + MultiTrigger::setOn, 1)
        .set(MultiTrigger::first + MultiTrigger::set, {kScore, kMaxScore})
        .number(MultiTrigger::first + MultiTrigger::scene, kBoatsHome);
    return scene.scene();
}

store::Scene boatsHome(const SceneArt& art) {
    SceneBuilder scene("Boats Home", art);
    scene.soundtrack("KeepWaltz.mid", 0);
    scene.sound("Waves.wav", -1100, 0);
    scene.setFlagOnEnter({kBeaconLit, 1});
    scene.insert(1, ambient, "Ripples.gif");
    scene.insert(2, ambient, "Lanterns.gif").number(Ambient::style, Ambient::pingPong);
    scene.insert(3, reactor, "EndCat.gif")
        .number(Reactor::style, Reactor::pingPong)
        .text(Reactor::sound, "Purr.wav");
    scene.insertQuickSpot(4, {470, 40, 100, 146})
        .text(HotSpot::success, "Bell.wav")
        .number(HotSpot::linkKind, HotSpot::toMap);
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
