/// What a preview takes on: larger claims of a file are refused before anything is decoded.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace quorvel::media {

/// Pixels of a movie's pictures: either side, and all of them. The largest is 4K on a screen of any
/// shape; a game shows 800 by 600.
inline constexpr std::int64_t kLongestSide = 4096;
inline constexpr std::int64_t kLargestPicture = kLongestSide * 2304;
/// Pictures in a second.
inline constexpr double kMostPictures = 1000.0;
/// Channels of a sound, and its samples in a second.
inline constexpr std::uint32_t kMostChannels = 8;
inline constexpr std::uint32_t kLowestRate = 100;
inline constexpr std::uint32_t kHighestRate = 384000;
/// Seconds.
inline constexpr double kLongestPlay = 24.0 * 60.0 * 60.0;
/// Bytes that a player has to hold in memory as a whole: the notes of MIDI music, the headers of
/// other files.
inline constexpr std::uint64_t kMostHeld = std::uint64_t{32} * 1024 * 1024;

// Each of these has words for an author when the claim is beyond what is taken on, and an empty
// text otherwise. A negative number of lines tells their order.

[[nodiscard]] std::string pictureRefusal(std::int64_t width, std::int64_t height);
[[nodiscard]] std::string pictureRateRefusal(double perSecond);
[[nodiscard]] std::string soundRefusal(std::uint32_t channels, std::uint32_t rate);
[[nodiscard]] std::string durationRefusal(double seconds);
/// Of what has to be held as a whole, in bytes.
[[nodiscard]] std::string sizeRefusal(std::uint64_t bytes);

}  // namespace quorvel::media
