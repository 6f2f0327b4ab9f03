/// Paths as texts.
#pragma once

#include <QString>

namespace quorvel::shell {

/// A path for a menu, of at most 50 characters: a longer one keeps its first 24 and its last 23
/// around "...".
QString ShrinkPath(const QString& path);

/// The full form of an existing path, without links and detours; empty when there is none.
QString GetLongFileName(const QString& path);

/// A path split at its last separator.
struct SplitPath {
    QString folder;  ///< with its separator; empty when the path has none
    QString name;
};

/// Splits a path as an author writes it: separators may be "/" or "\", steps that exist may stand
/// in any letter case and come out as they are spelt on disk. What does not exist is kept as given.
SplitPath splitPath(const QString& path);

/// The same with the full form of the folder, where that exists; otherwise with its absolute form.
SplitPath fullPath(const QString& path);

/// True when nothing stands at `path`, not even something that cannot be asked for.
bool isMissing(const QString& path);

}  // namespace quorvel::shell
