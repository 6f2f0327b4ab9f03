#pragma once

#include <numbers>

namespace quorvel::sample {

/// A full turn in radians: one round of a circle, one period of a wave.
inline constexpr double kTurn = 2 * std::numbers::pi;

}  // namespace quorvel::sample
