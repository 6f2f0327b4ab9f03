/// Writes animated pictures.
#pragma once

#include <filesystem>
#include <vector>

#include <QImage>

namespace quorvel::sample {

/// Writes `frames` (all of one size, clear or solid in each pixel) as one picture that loops for
/// ever when it has more than one frame. `delay` is a frame's time in hundredths of a second.
/// Throws `std::runtime_error`.
void writeGif(const std::filesystem::path& path, const std::vector<QImage>& frames, int delay);

}  // namespace quorvel::sample
