#include "forms/readable_folder.h"

#include <filesystem>
#include <system_error>

#include "resources/path_text.h"

namespace quorvel::forms {
namespace {

namespace fs = std::filesystem;

/// The last name of a path without a separator at its end, what cannot be read as a mark.
QString readableName(const QString& path) {
    QString name = path.section(QLatin1Char('/'), -1);
    for (QChar& letter : name) {
        letter = letter.isSurrogate() ? QChar(QChar::ReplacementCharacter) : letter;
    }
    return name;
}

}  // namespace

ReadableFolder::ReadableFolder(const QString& folder) : folder_(folder), path_(folder) {
    if (folder.isValidUtf16()) {
        return;
    }
    while (folder_.endsWith(QLatin1Char('/'))) {
        folder_.chop(1);
    }
    auto links = std::make_unique<QTemporaryDir>();
    if (!links->isValid()) {
        return;
    }
    const QString link = links->filePath(readableName(folder_));
    std::error_code error;
    fs::create_directory_symlink(resources::pathOf(folder_), resources::pathOf(link), error);
    if (!error) {
        path_ = link + QLatin1Char('/');
        linkFolder_ = std::move(links);
    }
}

QString ReadableFolder::real(const QString& chosen) const {
    const bool isBelow = linkFolder_ && (chosen + QLatin1Char('/')).startsWith(path_);
    return isBelow ? folder_ + chosen.mid(path_.size() - 1) : chosen;
}

}  // namespace quorvel::forms
