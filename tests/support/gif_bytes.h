/// Small animated pictures for tests, byte for byte.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quorvel::test {

/// One frame of a single colour.
struct GifFrame {
    int colour = 0;  ///< 0 to 99
    int delay = 2;   ///< in 1/100 s
};

/// What the reader makes of a colour, as 0xAARRGGBB.
std::uint32_t gifColour(int colour);

/// A GIF of the given frames. With `loops` it says how often it wants to be repeated, 0 for ever.
std::string gifBytes(int width, int height, const std::vector<GifFrame>& frames,
                     std::optional<int> loops = std::nullopt);

/// Where the first block of such a GIF begins, behind its header and its colours.
inline constexpr std::size_t kGifFirstBlock = 13 + 3 * 128;

/// A GIF of one frame.
std::string stillGif(int width, int height, int colour = 0);

/// A BMP of one colour.
std::string bmpBytes(int width, int height, std::uint32_t rgb = 0x336699);

}  // namespace quorvel::test
