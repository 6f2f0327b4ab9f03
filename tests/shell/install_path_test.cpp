// Where the editor's own folders lie.
#include "shell/install_path.h"

#include <algorithm>
#include <gtest/gtest.h>

#include <QString>

#include "resources/path_text.h"
#include "resources/player_marker.h"
#include "store/paths.h"
#include "support/file_bytes.h"
#include "support/mounts.h"
#include "support/temp_folder.h"

namespace quorvel::test {
namespace {

TEST(InstallPath, IsTheProgramsFolderWhereItCanBeWritten) {
    const TempFolder folder;
    const auto program = folder.makeFolder("Program Files/bin");
    EXPECT_EQ(shell::ResolveInstallPath(resources::pathText(program),
                                        resources::pathText(folder / "user")),
              resources::pathText(program) + QLatin1Char('/'));
    EXPECT_FALSE(std::filesystem::exists(folder / "user"));
}

TEST(InstallPath, TakesDetoursOutOfTheProgramsFolder) {
    const TempFolder folder;
    const auto program = folder.makeFolder("bin");
    EXPECT_EQ(shell::ResolveInstallPath(resources::pathText(program) + QStringLiteral("/../bin/"),
                                        QString()),
              resources::pathText(program) + QLatin1Char('/'));
}

TEST(InstallPath, ElseIsTheAuthorsOwnFilledFromTheProgram) {
    const TempFolder folder;
    const auto program = folder.makeFolder("program");
    writeBytes(folder.makeFolder("program/QuorvelDefaults/resource/gfx") / "back.bmp", "picture");
    writeBytes(program / "QuorvelDefaults/Game.exe", "player 2");
    writeBytes(folder.makeFolder("program/help") / "index.html", "help");
    writeBytes(program / "other", "not copied");
    writeBytes(folder.makeFolder("user/QuorvelDefaults") / "Game.exe", "the author's own");
    writeBytes(folder.makeFolder("user/help") / "index.html", "help of an older program");
    const ReadOnlyMount disc(program);
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    const auto user = folder / "user";
    EXPECT_EQ(shell::ResolveInstallPath(resources::pathText(program), resources::pathText(user)),
              resources::pathText(user) + QLatin1Char('/'));
    EXPECT_EQ(readBytes(user / "QuorvelDefaults/resource/gfx/back.bmp"), "picture");
    EXPECT_EQ(readBytes(user / "QuorvelDefaults/Game.exe"), "the author's own");
    EXPECT_EQ(readBytes(user / "help/index.html"), "help");
    EXPECT_FALSE(std::filesystem::exists(user / "other"));
}

TEST(InstallPath, ANewerPlayerOfTheProgramReplacesTheAuthorsOwn) {
    const TempFolder folder;
    const auto program = folder.makeFolder("program");
    const auto player = [](std::uint16_t version) {
        const auto bytes = resources::makePlayerMarker({version, 0, 0, 0}, {});
        return std::string(bytes.begin(), bytes.end());
    };
    const auto own = folder.makeFolder("user/QuorvelDefaults") / "Game.exe";
    writeBytes(folder.makeFolder("program/QuorvelDefaults") / "Game.exe", player(2));
    const ReadOnlyMount disc(program);
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    for (std::uint16_t version = 1; version <= 3; ++version) {
        writeBytes(own, player(version));
        shell::ResolveInstallPath(resources::pathText(program),
                                  resources::pathText(folder / "user"));
        EXPECT_EQ(readBytes(own), player(std::max<std::uint16_t>(version, 2))) << version;
    }
}

}  // namespace
}  // namespace quorvel::test
