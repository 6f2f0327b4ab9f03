/// Chance that is the same on every run: random numbers from a seed and smooth noise.
#pragma once

#include <cstdint>

namespace quorvel::sample {

/// A sequence of random numbers that depends on its seed alone.
class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15ULL + 1) {}

    /// From 0 up to, but not reaching, 1.
    double unit();
    double between(double low, double high) { return low + (high - low) * unit(); }
    /// From 0 to `count` - 1.
    int below(int count) { return static_cast<int>(unit() * count); }

  private:
    std::uint64_t state_;
};

/// Smooth noise from 0 to 1; lattice distance 1.
double noise(double x, double y, unsigned seed);

/// Noise of several scales laid over each other, 0 to 1.
double cloudNoise(double x, double y, int octaves, unsigned seed);

}  // namespace quorvel::sample
