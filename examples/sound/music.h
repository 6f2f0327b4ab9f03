/// The music of the game.
#pragma once

#include <filesystem>

namespace quorvel::sample {

/// Writes the tunes into `folder`. Throws `std::runtime_error`.
void writeMusic(const std::filesystem::path& folder);

}  // namespace quorvel::sample
