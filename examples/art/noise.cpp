#include "art/noise.h"

#include <cmath>

namespace quorvel::sample {
namespace {

std::uint64_t scramble(std::uint64_t value) {
    value = (value ^ (value >> 30U)) * 0xBF58476D1CE4E5B9ULL;
    value = (value ^ (value >> 27U)) * 0x94D049BB133111EBULL;
    return value ^ (value >> 31U);
}

double toUnit(std::uint64_t bits) {
    return static_cast<double>(bits >> 11U) / 9007199254740992.0;
}

double lattice(std::int64_t x, std::int64_t y, unsigned seed) {
    const auto ux = static_cast<std::uint64_t>(x) * 0x8DA6B343ULL;
    const auto uy = static_cast<std::uint64_t>(y) * 0xD8163841ULL;
    return toUnit(scramble(ux ^ (uy << 17U) ^ (std::uint64_t{seed} * 0xCB1AB31FULL)));
}

double ease(double t) {
    return t * t * (3.0 - 2.0 * t);
}

}  // namespace

double Random::unit() {
    state_ += 0x9E3779B97F4A7C15ULL;
    return toUnit(scramble(state_));
}

double noise(double x, double y, unsigned seed) {
    const double fx = std::floor(x);
    const double fy = std::floor(y);
    const auto ix = static_cast<std::int64_t>(fx);
    const auto iy = static_cast<std::int64_t>(fy);
    const double tx = ease(x - fx);
    const double ty = ease(y - fy);
    const double top = std::lerp(lattice(ix, iy, seed), lattice(ix + 1, iy, seed), tx);
    const double bottom = std::lerp(lattice(ix, iy + 1, seed), lattice(ix + 1, iy + 1, seed), tx);
    return std::lerp(top, bottom, ty);
}

double cloudNoise(double x, double y, int octaves, unsigned seed) {
    double sum = 0;
    double weight = 0.5;
    double total = 0;
    for (int i = 0; i < octaves; ++i) {
        sum += weight * noise(x, y, seed + static_cast<unsigned>(i) * 101U);
        total += weight;
        weight *= 0.5;
        x *= 2.03;
        y *= 2.03;
    }
    return sum / total;
}

}  // namespace quorvel::sample
