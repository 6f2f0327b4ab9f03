#include "resources/player_marker.h"

#include <algorithm>
#include <string>

namespace quorvel::resources {
namespace {

constexpr std::uintmax_t kLargestPlayer = std::uintmax_t{256} << 20;
constexpr std::size_t kSearchPiece = std::size_t{1} << 20;
/// A player has one block, and perhaps the bytes that begin it once more. A file that is full of
/// beginnings is there to keep its reader busy.
constexpr int kMostBeginnings = 1000;

std::optional<VersionInfo> readMarker(std::string_view bytes) {
    const BoundedBytes block(bytes);
    if (block.number32(kMarkerLength - 4) != markerChecksum(bytes.substr(0, kMarkerLength - 4))) {
        return std::nullopt;
    }
    VersionInfo info;
    std::size_t at = kMarkerBegin.size();
    FourPartVersion version{};
    for (std::uint16_t& part : version) {
        part = block.number16(at);
        at += sizeof(std::uint16_t);
    }
    info.version = version;
    for (QString& text : info.texts) {
        const std::string_view field = block.part(at, kMarkerText);
        const std::string_view used = field.substr(0, field.find('\0'));
        text = QString::fromUtf8(used.data(), static_cast<qsizetype>(used.size()));
        at += kMarkerText;
    }
    return info;
}

/// `beginnings` counts those that may still be looked at.
std::optional<VersionInfo> findIn(std::string_view bytes, int& beginnings) {
    for (std::size_t at = bytes.find(kMarkerBegin); at != std::string_view::npos && beginnings > 0;
         at = bytes.find(kMarkerBegin, at + 1)) {
        --beginnings;
        if (bytes.size() - at < kMarkerLength) {
            return std::nullopt;
        }
        if (auto info = readMarker(bytes.substr(at, kMarkerLength))) {
            return info;
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<VersionInfo> findPlayerMarker(const ByteSource& source) {
    if (source.size() > kLargestPlayer) {
        return std::nullopt;
    }
    int beginnings = kMostBeginnings;
    try {
        // The pieces overlap, so that a block across their border is whole in one of them.
        for (std::uintmax_t at = 0; source.size() - at >= kMarkerLength && beginnings > 0;
             at += kSearchPiece) {
            const auto count =
                std::min<std::uintmax_t>(source.size() - at, kSearchPiece + kMarkerLength - 1);
            const std::string piece = source.read(at, static_cast<std::size_t>(count));
            if (auto info = findIn(piece, beginnings)) {
                return info;
            }
            if (source.size() - at <= kSearchPiece) {
                break;
            }
        }
    } catch (const DamagedBytes&) {
        // The file became shorter meanwhile.
        return std::nullopt;
    }
    return std::nullopt;
}

}  // namespace quorvel::resources
