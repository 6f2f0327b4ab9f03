#include "forms/file_choice.h"

#include <system_error>

#include "resources/path_text.h"

namespace quorvel::forms {
namespace {

namespace fs = std::filesystem;
using store::ResourceFolder;

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

std::optional<QString> FileChoice::choose(const FileField& field) {
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
    const QString chosen =
        dialogs_.openFile({.title = field.title,
                           .filter = field.filter,
                           .folder = resources::pathText(folder) + QLatin1Char('/'),
                           .fileName = found ? resources::pathText(found->filename())
                                             : (empty ? QString() : field.current)});
    if (chosen.isEmpty()) {
        return std::nullopt;
    }
    const fs::path file = resources::pathOf(chosen);
    remember(field.folder, file.parent_path());
    const QString name = resources::pathText(file.filename());
    if (!intake_.CheckFileName(name) ||
        !intake_.CheckFileLoc(chosen, field.folderOf ? field.folderOf(name) : field.folder)) {
        return std::nullopt;
    }
    return name;
}

}  // namespace quorvel::forms
