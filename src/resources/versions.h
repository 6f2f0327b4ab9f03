/// Versions of program files, read by reading the file alone: nothing here ever runs one.
#pragma once

#include <filesystem>

#include "resources/version_info.h"

namespace quorvel::resources {

/// The version block of the program at `path`: its version resource, or the block that the system's
/// own player carries. Empty when there is none, when the file cannot be read, and when it is no
/// regular file.
VersionInfo GetFileVersionText(const std::filesystem::path& path);

/// Whether version `a` is older than `b`, both as texts of four numbers with points between them:
/// the first difference decides. Where a part is missing or is no number, neither is older.
bool isOlderVersion(const QString& a, const QString& b);

/// True when the player at `projectPlayer` is older than the one at `defaultPlayer`.
bool CompareVersions(const std::filesystem::path& projectPlayer,
                     const std::filesystem::path& defaultPlayer);

/// True when the file at `path` is a program for Windows.
bool isWindowsProgram(const std::filesystem::path& path);

}  // namespace quorvel::resources
