#include "media/file_kind.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <system_error>

#include "media/file_bytes.h"
#include "media/mpeg_audio.h"

namespace quorvel::media {
namespace {

using namespace std::string_view_literals;

/// How far the first frame of MPEG audio may lie behind padding or a damaged tag.
constexpr std::size_t kLooked = std::size_t{64} * 1024;

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

}  // namespace

FileKind kindOf(const std::filesystem::path& file) {
    std::error_code error;
    // Opening a pipe would wait for somebody to write into it.
    if (!std::filesystem::is_regular_file(file, error) || error) {
        return FileKind::none;
    }
    FileBytes in(file);
    std::string bytes = in.at(0, kLooked);
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
        bytes = in.at(tag, kLooked);
    }
    return firstAudioFrame(bytes, bytes.size() < kLooked) ? FileKind::mp3 : FileKind::none;
}

}  // namespace quorvel::media
