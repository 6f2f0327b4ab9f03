#include "media/file_kind.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

namespace quorvel::media {
namespace {

using namespace std::string_view_literals;

/// How far the first frame of MPEG audio may lie behind padding or a damaged tag.
constexpr std::size_t kLooked = std::size_t{64} * 1024;

unsigned byteAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}

/// The length of the MPEG audio frame whose header stands at `at`, in bytes; 0 when there is none.
std::size_t frameLength(std::string_view bytes, std::size_t at) {
    static constexpr std::array<std::array<int, 15>, 5> kBitRates{{
        {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448},  // 1, layer I
        {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384},     // 1, layer II
        {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320},      // 1, layer III
        {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256},     // 2, layer I
        {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160},          // 2, II and III
    }};
    static constexpr std::array<int, 3> kRates{44100, 48000, 32000};
    if (at + 4 > bytes.size() || byteAt(bytes, at) != 0xFF ||
        (byteAt(bytes, at + 1) & 0xE0) != 0xE0) {
        return 0;
    }
    const unsigned version = byteAt(bytes, at + 1) >> 3 & 3;  // 0 is 2.5, 2 is 2, 3 is 1
    const unsigned layer = 4 - (byteAt(bytes, at + 1) >> 1 & 3);
    const unsigned rateIndex = byteAt(bytes, at + 2) >> 4;
    const unsigned frequency = byteAt(bytes, at + 2) >> 2 & 3;
    const unsigned padding = byteAt(bytes, at + 2) >> 1 & 1;
    if (version == 1 || layer == 4 || rateIndex == 0 || rateIndex == 15 || frequency == 3) {
        return 0;
    }
    const bool first = version == 3;
    const std::size_t row = first ? layer - 1 : (layer == 1 ? 3 : 4);
    const int bits = kBitRates[row][rateIndex] * 1000;
    const int rate = kRates[frequency] / (first ? 1 : (version == 2 ? 2 : 4));
    if (layer == 1) {
        return (static_cast<std::size_t>(12 * bits / rate) + padding) * 4;
    }
    const int factor = layer == 3 && !first ? 72 : 144;
    return static_cast<std::size_t>(factor * bits / rate) + padding;
}

/// A header proves little; a second one where the first frame ends, or the end of the file, does.
bool hasFrames(std::string_view bytes, bool whole) {
    for (std::size_t at = 0; at + 4 <= bytes.size(); ++at) {
        const std::size_t length = frameLength(bytes, at);
        if (length == 0) {
            continue;
        }
        const std::size_t next = at + length;
        if (frameLength(bytes, next) != 0 || (whole && at == 0 && next == bytes.size())) {
            return true;
        }
    }
    return false;
}

/// The length of the ID3 tag at the beginning, 0 without one.
std::size_t tagLength(std::string_view bytes) {
    if (bytes.size() < 10 || bytes.substr(0, 3) != "ID3"sv) {
        return 0;
    }
    std::size_t length = 0;
    for (std::size_t i = 6; i < 10; ++i) {
        length = length << 7 | (byteAt(bytes, i) & 0x7F);
    }
    const bool footer = (byteAt(bytes, 5) & 0x10) != 0;
    return length + (footer ? 20 : 10);
}

std::string readAt(std::ifstream& in, std::size_t at) {
    std::string bytes(kLooked, '\0');
    in.clear();
    in.seekg(static_cast<std::streamoff>(at));
    in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(in.gcount(), 0)));
    return bytes;
}

FileKind riffKind(std::string_view form) {
    if (form == "WAVE"sv) {
        return FileKind::wav;
    }
    if (form == "RMID"sv) {
        return FileKind::midi;
    }
    return form == "AVI "sv || form == "CDXA"sv ? FileKind::movie : FileKind::none;
}

/// Packets of 188 bytes that each begin with a G.
bool isTransportStream(std::string_view bytes) {
    constexpr std::size_t kPacket = 188;
    for (std::size_t at = 0; at < 4 * kPacket; at += kPacket) {
        if (at >= bytes.size() || bytes[at] != 'G') {
            return false;
        }
    }
    return true;
}

FileKind kindOfStream(std::ifstream& in) {
    std::string bytes = readAt(in, 0);
    const std::string_view head = bytes;
    if (head.size() >= 12 && head.substr(0, 4) == "RIFF"sv) {
        return riffKind(head.substr(8, 4));
    }
    if (head.substr(0, 4) == "MThd"sv) {
        return FileKind::midi;
    }
    if (head.substr(0, 4) == "\0\0\1\xBA"sv || head.substr(0, 4) == "\0\0\1\xB3"sv ||
        isTransportStream(head)) {
        return FileKind::movie;
    }
    if (const std::size_t tag = tagLength(head); tag > 0) {
        bytes = readAt(in, tag);
    }
    return hasFrames(bytes, bytes.size() < kLooked) ? FileKind::mp3 : FileKind::none;
}

}  // namespace

FileKind kindOf(const std::filesystem::path& file) {
    std::error_code error;
    // Opening a pipe would wait for somebody to write into it.
    if (!std::filesystem::is_regular_file(file, error) || error) {
        return FileKind::none;
    }
    std::ifstream in(file, std::ios::binary);
    return in ? kindOfStream(in) : FileKind::none;
}

}  // namespace quorvel::media
