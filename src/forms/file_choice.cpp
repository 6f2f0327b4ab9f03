#include "forms/file_choice.h"

#include <algorithm>
#include <system_error>

#include "forms/file_remark.h"
#include "resources/path_text.h"

namespace quorvel::forms {
namespace {

namespace fs = std::filesystem;
using store::ResourceFolder;

/// The patterns of a kind, by which it is the same in another order.
QStringList sorted(const FileKind& kind) {
    QStringList patterns = kind.patterns;
    patterns.sort();
    return patterns;
}

}  // namespace

fs::path FileChoice::startingFolder(ResourceFolder kind, bool empty) const {
    const auto last = last_.find(kind);
    std::error_code error;
    if (!empty) {
        return intake_.targetFolder(kind);
    }
    if (last != last_.end() && !last->second.inProject &&
        fs::is_directory(last->second.folder, error)) {
        return last->second.folder;
    }
    const bool first = last == last_.end() || !last->second.inProject;
    return first && intake_.rules().DefaultFolder == 2 ? intake_.incomingFolder()
                                                       : intake_.targetFolder(kind);
}

void FileChoice::remember(ResourceFolder kind, const fs::path& folder) {
    const bool inProject =
        resources::GetShortName(folder) == resources::GetShortName(intake_.targetFolder(kind));
    last_[kind] = {inProject, folder};
}

/// `current` is empty or the name of a file.
int FileChoice::firstKind(const FileField& field, const QString& current) const {
    const std::vector<FileKind> kinds = kindsOf(field.filter);
    const auto isLast = [this](const FileKind& kind) { return sorted(kind) == lastKind_; };
    const auto isCurrent = [&current](const FileKind& kind) { return kind.matches(current); };
    const auto last = std::ranges::find_if(kinds, isLast);
    const auto own = current.isEmpty() ? kinds.end() : std::ranges::find_if(kinds, isCurrent);
    if (last != kinds.end() && (own == kinds.end() || isCurrent(*last))) {
        return static_cast<int>(last - kinds.begin());
    }
    return own == kinds.end() || !hasAsked_ ? 0 : static_cast<int>(own - kinds.begin());
}

std::optional<ChosenFile> FileChoice::choose(const FileField& field) {
    // A damaged record may hold anything; only a file of the folder can be the dialog's first
    // choice.
    const std::string current = field.current.toStdString();
    const bool empty = !store::isBareName(current);
    const auto found = store::findResource(intake_.projectFolder(), field.folder, current);
    const fs::path folder = startingFolder(field.folder, empty);
    // A dialog that was left counts too, but not one that only showed where the field's file lies.
    if (empty) {
        remember(field.folder, folder);
    }
    const QString name = found   ? resources::pathText(found->filename())
                         : empty ? QString()
                                 : field.current;
    const FileAnswer chosen =
        dialogs_.openFile({.title = field.title,
                           .filter = field.filter,
                           .folder = resources::pathText(folder) + QLatin1Char('/'),
                           .fileName = name,
                           .kind = firstKind(field, name)});
    hasAsked_ = true;
    if (chosen.path.isEmpty()) {
        return std::nullopt;
    }
    const std::vector<FileKind> kinds = kindsOf(field.filter);
    if (const auto kind = static_cast<std::size_t>(chosen.kind); kind < kinds.size()) {
        lastKind_ = sorted(kinds[kind]);
    }
    return take(field, chosen.path);
}

std::optional<ChosenFile> FileChoice::take(const FileField& field, const QString& path) {
    const fs::path file = resources::pathOf(path);
    remember(field.folder, file.parent_path());
    const QString own = resources::pathText(file.filename());
    const ResourceFolder folder = field.folderOf ? field.folderOf(own) : field.folder;
    const QString name = intake_.nameInField(own, folder);
    if (name.isEmpty() || !intake_.CheckFileLoc(path, folder, name == own ? QString() : name)) {
        return std::nullopt;
    }
    const auto taken = store::findResource(intake_.projectFolder(), folder, name.toStdString());
    return ChosenFile{name, taken ? remarkOn(*taken, field.filter) : QString()};
}

}  // namespace quorvel::forms
