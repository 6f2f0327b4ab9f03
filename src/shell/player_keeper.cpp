#include "shell/player_keeper.h"

#include <system_error>
#include <utility>

#include "forms/events.h"
#include "resources/intake.h"
#include "resources/path_text.h"
#include "resources/player_file.h"
#include "resources/versions.h"
#include "store/paths.h"
#include "store/runtime_error.h"

namespace quorvel::shell {

namespace fs = std::filesystem;
using forms::Box;
using resources::VersionInfo;

namespace {

/// The version of a player as its author wrote it.
QString shownVersion(const VersionInfo& info) {
    const QString text = info.text("FileVersion");
    return text.isEmpty() && info.version ? resources::versionText(*info.version) : text;
}

/// A project that came through an archive of another system has a player that nobody may run. Where
/// that cannot be mended, the start fails and is told. A link may lead out of the project, where
/// nothing is changed.
void letItRun(const fs::path& player) {
    std::error_code ignored;
    if (fs::is_regular_file(fs::symlink_status(player, ignored))) {
        fs::permissions(player, fs::perms::owner_exec, fs::perm_options::add, ignored);
    }
}

}  // namespace

PlayerKeeper::PlayerKeeper(House house) : house_(std::move(house)) {}

void PlayerKeeper::VerifyPlayer() {
    if (!resources::hasPlayerName(house_.project) || house_.project.LookingOn) {
        return;
    }
    const fs::path master = resources::defaultPlayerPath(house_.installPath());
    fs::path player;
    try {
        player = resources::playerPath(house_.project);
    } catch (const store::RuntimeError&) {
        // A name that no file can have: the copy tells so.
        player = store::pathOf(house_.project.PlayerName);
        replaceMissing(player, master);
        return;
    }
    if (!resources::FileExists(resources::pathText(player)) && !replaceMissing(player, master)) {
        return;
    }
    if (!resources::FileExists(resources::pathText(master))) {
        tellMasterMissing(
            QStringLiteral("During a routine version comparison, the file 'Game.exe' could not be "
                           "found in the 'Quorvel\\QuorvelDefaults\\' folder.  The copy of the "
                           "Player in the 'Quorvel\\QuorvelDefaults\\' folder MUST be named "
                           "'Game.exe'!  If you have changed the name, please change it back to "
                           "'Game.exe'.  Otherwise, please "));
        return;
    }
    if (resources::CompareVersions(player, master)) {
        upgrade(player, master);
    }
}

void PlayerKeeper::tellMasterMissing(const QString& occasion) {
    house_.boxes.show({.text = occasion + QStringLiteral("re-install Quorvel"),
                       .title = QStringLiteral("Default Quorvel Player Not Found")});
}

bool PlayerKeeper::replaceMissing(const fs::path& player, const fs::path& master) {
    house_.boxes.show(
        {.text = QStringLiteral(
                     "The Quorvel Player (originally called 'Game.exe') could not be found in your "
                     "project's folder.\n\nAccording to the 'General Game Settings', the filename "
                     "should be '%1', but it was not found.\n\nThe Player will be copied from the "
                     "'Quorvel\\QuorvelDefaults\\' folder to your project's folder, and renamed if "
                     "necessary.\n\nIf you have renamed the Player using Windows Explorer, that is "
                     "probably why this problem has occured.\n\nThe only proper way to rename the "
                     "Player's filename is through the 'General Game Settings'.")
                     .arg(QString::fromStdString(house_.project.PlayerName)),
         .title = QStringLiteral("Quorvel Player Not Found")});
    if (!resources::FileExists(resources::pathText(master))) {
        tellMasterMissing(
            QStringLiteral("Could not copy 'Game.exe' from the 'Quorvel\\QuorvelDefaults\\' "
                           "folder.  The file could not be found!  The copy of the Player in the "
                           "'Quorvel\\QuorvelDefaults\\' folder MUST be named 'Game.exe'!  If you "
                           "have changed the name, please change it back to 'Game.exe'.  "
                           "Otherwise, please "));
        return false;
    }
    return copyMaster(player, master);
}

bool PlayerKeeper::copyMaster(const fs::path& player, const fs::path& master) {
    try {
        (void)resources::playerPath(house_.project);
        resources::copyPlayer(master, player);
        return true;
    } catch (const store::RuntimeError& error) {
        house_.boxes.show(
            {.text = QStringLiteral("The Player could not be copied to your project's folder.\n\n"
                                    "%1\n\nError %2 (%3)")
                         .arg(resources::pathText(error.file()), QString::number(error.number()),
                              QString::fromStdString(error.description())),
             .title = QStringLiteral("Quorvel Player"),
             .icon = Box::Icon::exclamation});
        return false;
    }
}

void PlayerKeeper::upgrade(const fs::path& player, const fs::path& master) {
    const QString before = shownVersion(resources::GetFileVersionText(player));
    if (!copyMaster(player, master)) {
        return;
    }
    house_.boxes.show(
        {.text =
             QStringLiteral(
                 "Quorvel detected that the Player (originally called 'Game.exe') in this "
                 "project's folder was old, and that a newer version was in your "
                 "'Quorvel\\QuorvelDefaults\\' folder.  The newer version has been copied to this "
                 "project's folder.\n\nQuorvel Player Filename: %1\nOLD Version: %2\nNEW Version: "
                 "%3")
                 .arg(QString::fromStdString(house_.project.PlayerName), before,
                      shownVersion(resources::GetFileVersionText(master))),
         .title = QStringLiteral("Player Upgraded")});
}

void PlayerKeeper::RunPlayer(AskedBy asked) {
    // What failed has been told; the player then shows the scene as it was saved last.
    house_.keeper.SaveScene();
    forms::letEventsRun();
    house_.guide.ShowQuickTip(forms::TipBefore::testRun);
    if (!startPlayer()) {
        house_.boxes.tell(
            asked == AskedBy::menu
                ? QStringLiteral(
                      "Could not run the Player.  Please check the filename and try again.")
                : QStringLiteral("Could not run the Player.  Please check the filename in 'General "
                                 "Game Settings' and try again."));
    }
}

bool PlayerKeeper::startPlayer() {
    try {
        const fs::path player = resources::playerPath(house_.project);
        const QString path = resources::pathText(player);
        const QString folder = resources::bytesText(house_.project.ProjectFolder);
        if (!resources::FileExists(path)) {
            return false;
        }
#ifndef Q_OS_WIN
        if (resources::isWindowsProgram(player)) {
            const QString wine = house_.programs.find(QStringLiteral("wine"));
            return !wine.isEmpty() && house_.programs.run(wine, {path}, folder);
        }
#endif
        if (!house_.project.LookingOn) {
            letItRun(player);
        }
        return house_.programs.run(path, {}, folder);
    } catch (const store::RuntimeError&) {
        return false;
    }
}

}  // namespace quorvel::shell
