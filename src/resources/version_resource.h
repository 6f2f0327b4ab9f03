/// The version resource of a Windows program, read out of the file's bytes.
#pragma once

#include <optional>

#include "resources/byte_source.h"
#include "resources/version_info.h"

namespace quorvel::resources {

/// True when the bytes begin as a Windows program does.
bool isWindowsProgram(const ByteSource& source);

/// The version block of the first version resource, its texts in the first language that the block
/// names. Nothing when the bytes are no Windows program or hold no version resource; of a damaged
/// resource, what stands before the damage.
std::optional<VersionInfo> readVersionResource(const ByteSource& source);

}  // namespace quorvel::resources
