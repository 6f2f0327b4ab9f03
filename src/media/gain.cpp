#include "media/gain.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace quorvel::media {
namespace {

constexpr int kSilent = 10000;

}  // namespace

double amplitude(int volume) {
    return volume <= -kSilent ? 0.0 : std::pow(10.0, std::min(volume, 0) / 2000.0);
}

double panorama(int pan) {
    const int aside = std::clamp(pan, -kSilent, kSilent);
    const double part = 1.0 - std::pow(10.0, -std::abs(aside) / 2000.0);
    return aside < 0 ? -part : part;
}

}  // namespace quorvel::media
