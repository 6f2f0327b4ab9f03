/// Where the editor's own folders lie.
#pragma once

#include <QString>

namespace quorvel::shell {

/// The folder that holds QuorvelDefaults, incoming, Skins and the help pages, with a separator at
/// its end: `programFolder` where it can be written, else `userFolder`, which is filled from the
/// program's folder at first need.
QString ResolveInstallPath(const QString& programFolder, const QString& userFolder);

}  // namespace quorvel::shell
