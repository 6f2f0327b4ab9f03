/// The frames that MP3 files are made of.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quorvel::media {

/// What the header of one frame says.
struct AudioFrame {
    std::size_t length = 0;  ///< with its header, in bytes
    int bitRate = 0;         ///< bits in a second
    int rate = 0;            ///< samples in a second
    int samples = 0;         ///< of each channel
    std::size_t side = 0;    ///< bytes from its beginning to where layer III has room for a note
};

/// The frame whose header stands at `at`; nothing when there is none.
std::optional<AudioFrame> audioFrameAt(std::string_view bytes, std::size_t at);

/// Where the first frame stands. A header proves little; a second one where the first frame ends
/// does, and so does the end of the file, if `whole` says that `bytes` are all of it.
std::optional<std::size_t> firstAudioFrame(std::string_view bytes, bool whole);

/// The length of the ID3 tag at the beginning, 0 without one.
std::size_t tagLength(std::string_view bytes);

}  // namespace quorvel::media
