#include "media/bounds.h"

#include <cmath>
#include <cstdlib>

namespace quorvel::media {
namespace {

std::string whole(double number) {
    return std::to_string(static_cast<long long>(std::floor(number)));
}

}  // namespace

std::string pictureRefusal(std::int64_t width, std::int64_t height) {
    const std::int64_t lines = std::abs(height);
    if (width <= kLongestSide && lines <= kLongestSide && width * lines <= kLargestPicture) {
        return {};
    }
    return "Its pictures are " + std::to_string(width) + " by " + std::to_string(lines) +
           " pixels large, more than a preview shows.";
}

std::string pictureRateRefusal(double perSecond) {
    if (perSecond <= kMostPictures) {
        return {};
    }
    return "It has " + whole(perSecond) + " pictures in a second, more than a preview shows.";
}

std::string soundRefusal(std::uint32_t channels, std::uint32_t rate) {
    if (channels < 1 || channels > kMostChannels) {
        return "Its sound has " + std::to_string(channels) + " channels; a preview plays 1 to " +
               std::to_string(kMostChannels) + ".";
    }
    if (rate < kLowestRate || rate > kHighestRate) {
        return "Its sound has " + std::to_string(rate) + " samples in a second; a preview plays " +
               std::to_string(kLowestRate) + " to " + std::to_string(kHighestRate) + ".";
    }
    return {};
}

std::string durationRefusal(double seconds) {
    if (seconds <= kLongestPlay) {
        return {};
    }
    return "It would last for " + whole(seconds / 3600.0) + " hours; a preview plays up to " +
           whole(kLongestPlay / 3600.0) + ".";
}

std::string sizeRefusal(std::uint64_t bytes) {
    if (bytes <= kMostHeld) {
        return {};
    }
    return "It is too large: " + std::to_string(bytes / 1024 / 1024) +
           " MB would have to be read before anything can be played.";
}

}  // namespace quorvel::media
