/// How the system's own player says what it is: a block of bytes in its file, which is found
/// without running it. A Windows program has its version resource for that, other formats have
/// nothing.
///
/// The block is 16 bytes that begin it, the version as four 16-bit numbers, eight texts of 64 bytes
/// in UTF-8, filled up with zeros, and a 32-bit checksum of everything before it. Numbers are
/// little-endian.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "resources/byte_source.h"
#include "resources/version_info.h"

namespace quorvel::resources {

inline constexpr std::string_view kMarkerBegin = "\x1AQuorvelPlayer\x1A\n";
inline constexpr std::size_t kMarkerText = 64;
inline constexpr std::size_t kMarkerLength = kMarkerBegin.size() + 4 * sizeof(std::uint16_t) +
                                             kVersionTexts.size() * kMarkerText +
                                             sizeof(std::uint32_t);
static_assert(kMarkerBegin.size() == 16 && kMarkerLength == 540);

using MarkerTexts = std::array<std::string_view, kVersionTexts.size()>;
using MarkerBytes = std::array<char, kMarkerLength>;

/// The checksum of the block, FNV-1a.
constexpr std::uint32_t markerChecksum(std::string_view bytes) {
    std::uint32_t sum = 2166136261U;
    for (const char c : bytes) {
        sum = (sum ^ static_cast<unsigned char>(c)) * 16777619U;
    }
    return sum;
}

/// The block for a program of that version; a text beyond 63 bytes is cut.
constexpr MarkerBytes makePlayerMarker(const FourPartVersion& version, const MarkerTexts& texts) {
    MarkerBytes bytes{};
    std::size_t at = 0;
    for (const char c : kMarkerBegin) {
        bytes[at++] = c;
    }
    for (const std::uint16_t part : version) {
        bytes[at++] = static_cast<char>(part & 0xFFU);
        bytes[at++] = static_cast<char>(part >> 8U);
    }
    for (const std::string_view text : texts) {
        for (std::size_t i = 0; i < text.size() && i + 1 < kMarkerText; ++i) {
            bytes[at + i] = text[i];
        }
        at += kMarkerText;
    }
    const std::uint32_t sum = markerChecksum({bytes.data(), at});
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes[at++] = static_cast<char>(sum >> shift & 0xFFU);
    }
    return bytes;
}

/// The block in the bytes of a file: the first whose checksum agrees. Files of more than 256
/// megabytes are no player, nor are those with more than 1000 beginnings of a block before it.
std::optional<VersionInfo> findPlayerMarker(const ByteSource& source);

}  // namespace quorvel::resources
