/// The instruments of MIDI.
#pragma once

#include <filesystem>

namespace quorvel::media {

/// The first sound font that the system has in its usual places; empty when there is none.
std::filesystem::path systemSoundFont();

}  // namespace quorvel::media
