#include "player/marker.h"

#include "resources/player_marker.h"

namespace quorvel::player {
namespace {

/// Counted on its own, from 1: this player shows a part of what a game can hold, so it must never
/// count as newer than a complete one that an author has in a project.
constexpr resources::FourPartVersion kVersion = {1, 0, 0, 0};

constexpr resources::MarkerTexts kTexts = {
    "Tessaroon Works", "Quorvel Player", "1.0.0.0", "Game",
    "MIT License",     "Game.exe",       "Quorvel", QUORVEL_VERSION,
};

constexpr resources::MarkerBytes kMarker = resources::makePlayerMarker(kVersion, kTexts);

}  // namespace

resources::VersionInfo playerInfo() {
    // Read back rather than taken from the constants above: so the block is part of the program.
    return resources::findPlayerMarker(resources::sourceOf({kMarker.data(), kMarker.size()}))
        .value_or(resources::VersionInfo{});
}

}  // namespace quorvel::player
