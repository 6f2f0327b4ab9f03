// Where the editor's own folders lie.
#include "shell/install_path.h"

#include <gtest/gtest.h>

#include <QString>

#include "store/paths.h"
#include "support/file_bytes.h"
#include "support/mounts.h"
#include "support/temp_folder.h"

namespace quorvel::test {
namespace {

QString text(const std::filesystem::path& path) {
    return QString::fromStdString(store::textOf(path));
}

TEST(InstallPath, IsTheProgramsFolderWhereItCanBeWritten) {
    const TempFolder folder;
    const auto program = folder.makeFolder("Program Files/bin");
    EXPECT_EQ(shell::ResolveInstallPath(text(program), text(folder / "user")),
              text(program) + QLatin1Char('/'));
    EXPECT_FALSE(std::filesystem::exists(folder / "user"));
}

TEST(InstallPath, TakesDetoursOutOfTheProgramsFolder) {
    const TempFolder folder;
    const auto program = folder.makeFolder("bin");
    EXPECT_EQ(shell::ResolveInstallPath(text(program) + QStringLiteral("/../bin/"), QString()),
              text(program) + QLatin1Char('/'));
}

TEST(InstallPath, ElseIsTheAuthorsOwnFilledFromTheProgram) {
    const TempFolder folder;
    const auto program = folder.makeFolder("program");
    writeBytes(folder.makeFolder("program/QuorvelDefaults/resource/gfx") / "back.bmp", "picture");
    writeBytes(program / "QuorvelDefaults/Game.exe", "player 2");
    writeBytes(folder.makeFolder("program/help") / "index.html", "help");
    writeBytes(program / "other", "not copied");
    writeBytes(folder.makeFolder("user/QuorvelDefaults") / "Game.exe", "the author's own");
    const ReadOnlyMount disc(program);
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    const auto user = folder / "user";
    EXPECT_EQ(shell::ResolveInstallPath(text(program), text(user)), text(user) + QLatin1Char('/'));
    EXPECT_EQ(readBytes(user / "QuorvelDefaults/resource/gfx/back.bmp"), "picture");
    EXPECT_EQ(readBytes(user / "QuorvelDefaults/Game.exe"), "the author's own");
    EXPECT_EQ(readBytes(user / "help/index.html"), "help");
    EXPECT_FALSE(std::filesystem::exists(user / "other"));
}

}  // namespace
}  // namespace quorvel::test
