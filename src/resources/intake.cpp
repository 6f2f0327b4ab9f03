#include "resources/intake.h"

#include <string>
#include <system_error>
#include <utility>

#include "resources/path_text.h"
#include "resources/safe_copy.h"

namespace quorvel::resources {
namespace {

namespace fs = std::filesystem;
using store::ResourceFolder;
using What = IntakeNotice::What;

/// The same place, however it is written.
bool samePlace(const fs::path& a, const fs::path& b) {
    std::error_code error;
    return GetShortName(a) == GetShortName(b) || fs::equivalent(a, b, error);
}

/// A folder's path without a separator at its end.
fs::path withoutSeparator(const fs::path& folder) {
    return folder.has_filename() ? folder : folder.parent_path();
}

}  // namespace

bool FileExists(const QString& path) {
    const fs::path asked = pathOf(path);
    if (!asked.has_filename()) {
        return false;
    }
    std::error_code error;
    if (fs::is_regular_file(asked, error)) {
        return true;
    }
    const fs::path base = asked.has_root_path() ? asked.root_path() : fs::path(".");
    return fs::is_regular_file(store::resolvePath(base, store::textOf(asked.relative_path())),
                               error);
}

fs::path GetShortName(const fs::path& path) {
    std::error_code error;
    const fs::path canonical = fs::canonical(path, error);
    return error ? path : canonical;
}

Intake::Intake(const store::Project& project, std::function<IntakeRules()> rules,
               IntakeQuestions& questions)
    : project_(project), rules_(std::move(rules)), questions_(questions) {}

fs::path Intake::targetFolder(ResourceFolder kind) const {
    return store::resourceFolder(project_.folder(), kind);
}

fs::path Intake::incomingFolder() const {
    return store::resolvePath(pathOf(rules_().InstallPath), "incoming");
}

bool Intake::isIncoming(const fs::path& folder) const {
    if (samePlace(folder, incomingFolder())) {
        return true;
    }
    // Where letter case counts there may be two of them.
    const fs::path full = withoutSeparator(GetShortName(folder));
    return store::sameName(store::textOf(full.filename()), "incoming") &&
           samePlace(full.parent_path(), pathOf(rules_().InstallPath));
}

bool Intake::CheckFileName(const QString& name) {
    if (name.size() > kLongestFileName) {
        questions_.tell({.what = What::nameTooLong, .name = name});
        return false;
    }
    return checkFitness(name);
}

QString Intake::nameInField(const QString& name, ResourceFolder kind) {
    if (name.size() <= kLongestFileName) {
        return CheckFileName(name) ? name : QString();
    }
    const fs::path folder = targetFolder(kind);
    const QString shorter = shorterName(name, [&folder](const QString& one) {
        std::error_code error;
        const fs::path path = store::resolvePath(folder, one.toStdString());
        return !fs::exists(fs::symlink_status(path, error));
    });
    if (shorter.isEmpty()) {
        CheckFileName(name);
        return {};
    }
    return questions_.useShorter(name, shorter) ? shorter : QString();
}

bool Intake::checkFitness(const QString& name) {
    const NameFault fault = nameFault(name);
    if (fault != NameFault::none) {
        questions_.tell({.what = What::nameUnfit, .name = name, .fault = fault});
    }
    return fault == NameFault::none;
}

bool Intake::checkSource(const fs::path& source) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(source, error);
    switch (status.type()) {
        case fs::file_type::regular:
            return true;
        case fs::file_type::symlink:
            questions_.tell({.what = What::sourceIsLink, .file = source});
            return false;
        case fs::file_type::directory:
            questions_.tell({.what = What::sourceIsFolder, .file = source});
            return false;
        case fs::file_type::none:
        case fs::file_type::not_found:
        case fs::file_type::unknown:
            questions_.tell({.what = What::sourceMissing, .file = source});
            return false;
        default:
            questions_.tell({.what = What::sourceIsDevice, .file = source});
            return false;
    }
}

bool Intake::CheckFileLoc(const QString& fullPath, ResourceFolder kind, const QString& as) {
    const fs::path source = pathOf(fullPath);
    const QString own = pathText(source.filename());
    const QString name = as.isEmpty() ? own : as;
    if (!checkFitness(name) || !checkSource(source)) {
        return false;
    }
    const fs::path from = source.has_parent_path() ? source.parent_path() : fs::path(".");
    const fs::path to = targetFolder(kind);
    // Before all else: a file that is copied onto itself and then deleted would be lost.
    const bool isThere = samePlace(from, to);
    if (isThere && name == own) {
        if (rules_().DebugMessages) {
            questions_.tell({.what = What::correctFolder, .folder = kind});
        }
        return true;
    }
    if (project_.LookingOn) {
        questions_.tell({.what = What::onlyLooking, .name = name});
        return false;
    }
    const Way way{source, store::resolvePath(to, pathBytes(name)), name};
    std::error_code error;
    if (fs::is_directory(fs::symlink_status(way.target, error))) {
        questions_.tell({.what = What::targetIsFolder, .name = name, .file = way.target});
        return false;
    }
    if (isThere) {
        return takeAsChosen(way, Pick::copy);
    }
    if (!isIncoming(from)) {
        return takeByRules(way);
    }
    return name == own ? move(way) : takeAsChosen(way, Pick::move);
}

bool Intake::takeByRules(const Way& way) {
    switch (rules_().WrongFolder) {
        case 1:
            return takeAsChosen(way, Pick::copy);
        case 2:
            return takeAsChosen(way, Pick::move);
        case 3:
            return takeAsChosen(way, questions_.copyOrMove());
        default:
            questions_.tell({.what = What::wrongFolderUnknown});
            return false;
    }
}

bool Intake::takeAsChosen(const Way& way, Pick pick) {
    if (pick == Pick::none || !CheckReplace(way.target.parent_path() / pathOf(way.name))) {
        return false;
    }
    return pick == Pick::copy ? copy(way) : move(way);
}

bool Intake::CheckReplace(const fs::path& target) {
    std::error_code error;
    const std::string name = store::textOf(target.filename());
    const fs::path found = store::resolvePath(target.parent_path(), name);
    return !fs::exists(fs::symlink_status(found, error)) || questions_.mayReplace(bytesText(name));
}

bool Intake::copy(const Way& way) {
    try {
        copySafely(way.source, way.target, [&](std::uintmax_t done, std::uintmax_t total) {
            questions_.working(way.name, done, total);
        });
        return true;
    } catch (const store::RuntimeError& error) {
        questions_.tell({.what = What::notCopied,
                         .name = way.name,
                         .file = error.file(),
                         .error = error.code()});
        return false;
    }
}

bool Intake::move(const Way& way) {
    if (!copy(way)) {
        return false;
    }
    questions_.working(way.name, 0, 0);
    const auto keepSource = [&](store::ErrorNumber why) {
        questions_.tell(
            {.what = What::sourceNotDeleted, .name = way.name, .file = way.source, .error = why});
    };
    try {
        settleNames(way.target.parent_path());
    } catch (const store::RuntimeError& error) {
        // The source may be all that is left of the file when the machine stops now.
        keepSource(error.code());
        return true;
    }
    std::error_code error;
    fs::remove(way.source, error);
    if (error) {
        keepSource(store::errorNumberOf(error));
    }
    return true;
}

}  // namespace quorvel::resources
