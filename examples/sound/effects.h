/// The sounds of the game.
#pragma once

#include <filesystem>

namespace quorvel::sample {

/// Writes all sound effects into `folder`. Throws `std::runtime_error`.
void writeEffects(const std::filesystem::path& folder);

}  // namespace quorvel::sample
