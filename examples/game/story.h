/// The story of the game: "The Last Lamplighter".
///
/// The evening the herring fleet is due home, the lamp of Emberwick's lighthouse stays dark. Old
/// Keeper Tam has a bad knee and three hundred stairs to climb, so Wren, the lamplighter's
/// apprentice, sets out: for the brass lamp in the attic, oil from the puffin who minds the
/// chandlery (his price is a herring), a match, and the key that Tam lost in the cove.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <vector>

#include "art/sprite.h"
#include "store/project.h"
#include "store/scene.h"

namespace quorvel::sample {

/// Numbers of the scenes.
enum SceneNumber {
    kHarbour = 1,
    kLane,
    kChandlery,
    kInn,
    kAttic,
    kCove,
    kCliff,
    kLighthouse,
    kStair,
    kLampRoom,
    kBoatsHome,
};

/// Game flags.
enum Flag {
    kLampTaken = 1,
    kOilTaken,
    kMatchesTaken,
    kKeyTaken,
    kHerringTaken,
    kDoorOpen,
    kLaneLampLit,
    kLampSet,
    kLeverPulled,
    kBeaconLit,
    kTalk,  ///< 1 the keeper listens, 2 he tells his tale, 3 he has told it
    kBellRung,
    kBellAnswered,
    kPuffinTalk,
    kWalkedCliff,
    kScore = 255,
};

/// Places on the map.
enum Location { kMapHarbour = 1, kMapLane, kMapCove, kMapCliff, kMapLighthouse };

/// Cue cards.
enum Card { kCardKeeper = 1, kCardTale, kCardPuffin };

/// `value` as the records hold it: -32768 to 32767, which the caller answers for.
constexpr std::int16_t small(int value) {
    return static_cast<std::int16_t>(value);
}

/// Highest score.
inline constexpr int kMaxScore = 60;

/// A scene of the game: who paints it, and how the painted picture becomes a scene.
struct ScenePlan {
    SceneNumber number;
    std::function<SceneArt()> paint;
    std::function<store::Scene(const SceneArt&)> build;
};
/// All scenes in the order of their numbers.
std::vector<ScenePlan> scenePlans();
std::vector<ScenePlan> townPlans();
std::vector<ScenePlan> coastPlans();

/// Write items, map, cards and settings into the open project; the counts of the project follow.
/// `map` is the art of the map. All throw `store::RuntimeError`.
void writeItems(store::Project& project);
void writeLocations(store::Project& project, const SceneArt& map);
void writeCards(store::Project& project);
void writeGameSettings(store::Project& project);

}  // namespace quorvel::sample
