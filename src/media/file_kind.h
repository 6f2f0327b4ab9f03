/// What a media file is, told by its bytes and never by its name.
#pragma once

#include <cstdint>
#include <filesystem>

namespace quorvel::media {

enum class FileKind : std::uint8_t {
    none,   ///< missing, not a regular file, unreadable, empty, or nothing that is known here
    wav,    ///< RIFF WAVE, whatever its coding
    midi,   ///< Standard MIDI, also in RIFF
    mp3,    ///< MPEG audio, also behind an ID3 tag
    movie,  ///< AVI, or MPEG video or systems
};

/// Looks at the beginning of `file`, at most a few hundred kilobytes. Never throws, and never waits
/// for a pipe or a device. Only what is recognised here is given to the decoders: they would guess
/// the rest, and among what they guess are play lists that fetch from the network.
FileKind kindOf(const std::filesystem::path& file);

}  // namespace quorvel::media
