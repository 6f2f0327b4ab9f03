#include "shell/project_place.h"

#include <algorithm>
#include <string>
#include <system_error>

#include "resources/path_text.h"
#include "shell/path_text.h"
#include "store/paths.h"

namespace quorvel::shell {
namespace {

namespace fs = std::filesystem;

const QString kEnding = QStringLiteral(".qvl");

bool endsWith(const QString& text, const QString& ending) {
    return text.endsWith(ending, Qt::CaseInsensitive);
}

}  // namespace

QString typedProjectName(const QString& text) {
    for (qsizetype typed = kEnding.size(); typed > 0; --typed) {
        const qsizetype stem = text.size() - typed;
        if (stem >= 0 && endsWith(text, kEnding.left(typed))) {
            return text.left(std::min<qsizetype>(stem, kLongestProjectName)) + text.mid(stem);
        }
    }
    return text.left(kLongestProjectName);
}

QString projectName(const QString& text) {
    const QString stem = endsWith(text, kEnding) ? text.chopped(kEnding.size()) : text;
    return stem.left(kLongestProjectName);
}

QString fullFolder(const QString& folder) {
    const QString full = GetLongFileName(folder);
    const QString path = full.isEmpty() ? folder : full;
    return path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/');
}

ProjectPlace lookInto(const fs::path& folder, const QString& fileName) {
    ProjectPlace place;
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        const std::string name = store::textOf(entries->path().filename());
        const auto is = [&name](const std::string& other) { return store::sameName(name, other); };
        if (is("resource")) {
            place.hasResource = true;
        } else if (is(fileName.toStdString()) || std::ranges::any_of(kDelivered, is)) {
            place.replaced.push_back(resources::bytesText(name));
        } else {
            ++place.others;
        }
    }
    std::error_code gone;
    place.isUnreadable = error && fs::exists(folder, gone);
    std::ranges::sort(place.replaced);
    return place;
}

}  // namespace quorvel::shell
