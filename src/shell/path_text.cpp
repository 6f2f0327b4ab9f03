#include "shell/path_text.h"

#include <algorithm>

#include <QFileInfo>

namespace quorvel::shell {

QString ShrinkPath(const QString& path) {
    constexpr int kLongest = 50;
    if (path.size() <= kLongest) {
        return path;
    }
    return path.left(24) + QStringLiteral("...") + path.right(23);
}

QString GetLongFileName(const QString& path) {
    return QFileInfo(path).canonicalFilePath();
}

SplitPath splitPath(const QString& path) {
#ifdef _WIN32
    const auto last =
        std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
#else
    // Elsewhere a backslash is an ordinary character of a name.
    const auto last = path.lastIndexOf(QLatin1Char('/'));
#endif
    return {path.left(last + 1), path.mid(last + 1)};
}

}  // namespace quorvel::shell
