/// What the player is, readable in its file without running it.
#pragma once

#include "resources/version_info.h"

namespace quorvel::player {

/// The version block of this player, as anybody finds it in its file.
resources::VersionInfo playerInfo();

}  // namespace quorvel::player
