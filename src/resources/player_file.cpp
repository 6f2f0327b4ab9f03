#include "resources/player_file.h"

#include "resources/file_names.h"
#include "resources/path_text.h"
#include "resources/safe_copy.h"
#include "store/paths.h"
#include "store/runtime_error.h"

namespace quorvel::resources {

namespace fs = std::filesystem;

bool hasPlayerName(const store::Project& project) {
    return !project.PlayerName.empty() && !store::sameName(project.PlayerName, ".exe");
}

fs::path playerPath(const store::Project& project) {
    const QString name = QString::fromStdString(project.PlayerName);
    if (!hasPlayerName(project) || !store::isBareName(project.PlayerName) ||
        nameFault(name) != NameFault::none) {
        throw store::RuntimeError(store::ErrorNumber::badFileName,
                                  store::pathOf(project.PlayerName));
    }
    return store::resolvePath(project.folder(), project.PlayerName);
}

fs::path defaultPlayerPath(const QString& installPath) {
    return store::resolvePath(pathOf(installPath),
                              "QuorvelDefaults/" + kDefaultPlayerName.toStdString());
}

void copyPlayer(const fs::path& source, const fs::path& target) {
    copySafely(source, target, {}, CopyAs::program);
}

}  // namespace quorvel::resources
