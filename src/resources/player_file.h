/// The player's files: the copy that a project holds and the master copy beside the editor.
#pragma once

#include <filesystem>

#include <QString>

#include "store/project.h"

namespace quorvel::resources {

/// The master copy's name, wherever it lies.
inline const QString kDefaultPlayerName = QStringLiteral("Game.exe");

/// True when the project names a player: settings that were not read leave the name unset, and an
/// empty one with its ending is ".exe".
bool hasPlayerName(const store::Project& project);

/// The project's player as spelt on disk; nothing there is asked for. Throws error 52 for a name
/// that can be no file of the project's folder.
std::filesystem::path playerPath(const store::Project& project);

/// The master copy as spelt on disk below the editor's folder `installPath`.
std::filesystem::path defaultPlayerPath(const QString& installPath);

/// Copies the player `source` to `target`, so that it can be run as `source` can. A copy that fails
/// leaves `target` as it was and throws `store::RuntimeError`.
void copyPlayer(const std::filesystem::path& source, const std::filesystem::path& target);

}  // namespace quorvel::resources
