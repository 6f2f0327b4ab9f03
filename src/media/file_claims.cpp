#include "media/file_claims.h"

#include <algorithm>

#include "media/bounds.h"
#include "media/mpeg_audio.h"

namespace quorvel::media {
namespace {

using namespace std::string_view_literals;

/// How far the first picture of MPEG video may lie behind sound.
constexpr std::size_t kVideoLooked = std::size_t{1024} * 1024;
constexpr std::size_t kAudioLooked = std::size_t{64} * 1024;

/// The bits of MPEG-2 that make a size larger than its 12 bits.
struct SizeExtension {
    unsigned width = 0;
    unsigned height = 0;
};

SizeExtension extensionBehind(std::string_view bytes, std::size_t sequence) {
    // The header itself has up to two tables of 64 bytes.
    constexpr std::size_t kLongestHeader = 4 + 8 + 2 * 64;
    const std::size_t at = bytes.find("\0\0\1\xB5"sv, sequence + 4);
    if (at == std::string_view::npos || at > sequence + kLongestHeader ||
        byteAt(bytes, at + 4) >> 4 != 1) {
        return {};
    }
    const unsigned low = byteAt(bytes, at + 6);
    return {(byteAt(bytes, at + 5) & 1) << 1 | low >> 7, low >> 5 & 3};
}

/// The note of an encoder about the whole file, in its first frame.
double secondsOfNote(std::string_view bytes, std::size_t at, const AudioFrame& frame) {
    constexpr std::size_t kFixedPlace = 36;
    std::uint32_t frames = 0;
    const std::string_view note = bytes.substr(std::min(at + frame.side, bytes.size()), 12);
    if ((note.substr(0, 4) == "Xing"sv || note.substr(0, 4) == "Info"sv) &&
        (big32(note, 4) & 1) != 0) {
        frames = big32(note, 8);
    } else if (bytes.substr(std::min(at + kFixedPlace, bytes.size()), 4) == "VBRI"sv) {
        frames = big32(bytes, at + kFixedPlace + 14);
    }
    return static_cast<double>(frames) * frame.samples / frame.rate;
}

}  // namespace

std::string mpegRefusal(FileBytes& file) {
    const std::string bytes = file.at(0, kVideoLooked);
    const std::size_t at = bytes.find("\0\0\1\xB3"sv);
    if (at == std::string::npos) {
        return {};
    }
    const std::uint32_t sides = big32(bytes, at + 4) >> 8;
    const SizeExtension more = extensionBehind(bytes, at);
    return pictureRefusal(sides >> 12 | more.width << 12, (sides & 0xFFF) | more.height << 12);
}

/// Channels and rates of MPEG audio are from a table, which the kind of the file has been told by.
std::string mp3Refusal(FileBytes& file) {
    const std::size_t tag = tagLength(file.at(0, 10));
    const std::string bytes = file.at(tag, kAudioLooked);
    const auto at = firstAudioFrame(bytes, bytes.size() < kAudioLooked);
    if (!at) {
        return sizeRefusal(std::min<std::uint64_t>(tag, file.size()));
    }
    const auto frame = audioFrameAt(bytes, *at);
    const double ofBytes = static_cast<double>(file.size()) * 8.0 / frame->bitRate;
    return durationRefusal(std::max(ofBytes, secondsOfNote(bytes, *at, *frame)));
}

std::string refusalOf(const std::filesystem::path& file, FileKind kind) {
    FileBytes bytes(file);
    switch (kind) {
        case FileKind::wav:
            return wavRefusal(bytes);
        case FileKind::midi:
            return midiRefusal(bytes);
        case FileKind::mp3:
            return mp3Refusal(bytes);
        case FileKind::movie:
            return bytes.at(8, 4) == "AVI "sv && bytes.at(0, 4) == "RIFF"sv ? aviRefusal(bytes)
                                                                            : mpegRefusal(bytes);
        case FileKind::none:
            break;
    }
    return {};
}

}  // namespace quorvel::media
