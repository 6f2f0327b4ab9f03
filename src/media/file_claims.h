/// What a media file says of itself, read from its headers before anything is decoded.
#pragma once

#include <filesystem>
#include <string>

#include "media/file_bytes.h"
#include "media/file_kind.h"

namespace quorvel::media {

/// Why a file of this kind is not given to the decoders, in words for an author: it claims larger
/// pictures, more channels, other rates or a longer time than a preview takes on. Empty when it may
/// be. Headers and notes alone are read, never samples and pictures. Never throws.
///
/// What only shows within the streams is left to guardStreams().
[[nodiscard]] std::string refusalOf(const std::filesystem::path& file, FileKind kind);

// Of each kind of file; these are parts of refusalOf().
[[nodiscard]] std::string wavRefusal(FileBytes& file);
[[nodiscard]] std::string aviRefusal(FileBytes& file);
[[nodiscard]] std::string mpegRefusal(FileBytes& file);
[[nodiscard]] std::string mp3Refusal(FileBytes& file);
[[nodiscard]] std::string midiRefusal(FileBytes& file);

}  // namespace quorvel::media
