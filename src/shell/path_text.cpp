#include "shell/path_text.h"

#include <filesystem>
#include <system_error>

#include <QDir>

#include "resources/path_text.h"
#include "store/paths.h"

namespace quorvel::shell {
namespace {

namespace fs = std::filesystem;

/// A path with "/" between its steps.
QString asText(const fs::path& path) {
    return QDir::fromNativeSeparators(resources::pathText(path));
}

}  // namespace

QString ShrinkPath(const QString& path) {
    constexpr int kLongest = 50;
    if (path.size() <= kLongest) {
        return path;
    }
    return path.left(24) + QStringLiteral("...") + path.right(23);
}

QString GetLongFileName(const QString& path) {
    std::error_code error;
    const fs::path full = fs::canonical(resources::pathOf(path), error);
    return error ? QString() : asText(full);
}

SplitPath splitPath(const QString& path) {
    QString spelt = QDir::fromNativeSeparators(path);
    // A backslash may be a letter of a name here, so what bears that very name comes first.
    const bool spellsFreely = QDir::separator() == QLatin1Char('/');
    std::error_code error;
    if (spellsFreely && !spelt.isEmpty() && !fs::exists(resources::pathOf(spelt), error)) {
        const auto isSeparator = [](QChar c) { return c == u'/' || c == u'\\'; };
        const bool fromRoot = isSeparator(spelt.front());
        const bool isFolder = isSeparator(spelt.back());
        const auto found = store::resolvePath(fromRoot ? "/" : ".", resources::pathBytes(spelt));
        spelt = resources::pathText(found);
        if (isFolder) {
            spelt += QLatin1Char('/');
        }
    }
    const auto last = spelt.lastIndexOf(QLatin1Char('/'));
    return {spelt.left(last + 1), spelt.mid(last + 1)};
}

SplitPath fullPath(const QString& path) {
    SplitPath split = splitPath(path);
    const QString folder = split.folder.isEmpty() ? QStringLiteral("./") : split.folder;
    split.folder = GetLongFileName(folder);
    if (split.folder.isEmpty()) {
        std::error_code error;
        const fs::path absolute = fs::absolute(resources::pathOf(folder), error);
        split.folder = error ? folder : asText(absolute.lexically_normal());
    }
    if (!split.folder.endsWith(QLatin1Char('/'))) {
        split.folder += QLatin1Char('/');
    }
    return split;
}

bool isMissing(const QString& path) {
    std::error_code error;
    return fs::symlink_status(resources::pathOf(path), error).type() == fs::file_type::not_found;
}

}  // namespace quorvel::shell
