// Names and places of the two copies of the player.
#include "resources/player_file.h"

#include <gtest/gtest.h>
#include <optional>

#include "store/paths.h"
#include "store/runtime_error.h"
#include "support/file_bytes.h"
#include "support/temp_folder.h"

namespace quorvel::resources {
namespace {

namespace fs = std::filesystem;
using test::writeBytes;

class PlayerFile : public testing::Test {
  protected:
    PlayerFile() { project.ProjectFolder = store::textOf(folder.path()) + "/"; }
    /// The path of a player of that name; nothing when the name can be no file's.
    std::optional<fs::path> pathOf(const char* name) {
        project.PlayerName = name;
        try {
            return playerPath(project);
        } catch (const store::RuntimeError& error) {
            EXPECT_EQ(error.code(), store::ErrorNumber::badFileName);
            return std::nullopt;
        }
    }
    test::TempFolder folder;
    store::Project project;
};

TEST_F(PlayerFile, AnUnsetNameIsNone) {
    EXPECT_FALSE(hasPlayerName(project));
    for (const char* name : {"", ".exe", ".EXE"}) {
        EXPECT_FALSE(pathOf(name)) << name;
        EXPECT_FALSE(hasPlayerName(project)) << name;
    }
    project.PlayerName = "Game.exe";
    EXPECT_TRUE(hasPlayerName(project));
}

TEST_F(PlayerFile, ANameStaysInTheProjectsFolder) {
    EXPECT_EQ(pathOf("My Game.exe"), folder / "My Game.exe");
    for (const char* name : {"../Game.exe", "a/b.exe", "a\\b.exe", "..", "C:x.exe", "con.exe",
                             "what?.exe", " Game.exe", "Ga\nme.exe", "Game.exe "}) {
        EXPECT_FALSE(pathOf(name)) << name;
    }
}

TEST_F(PlayerFile, IsFoundInAnyLetterCase) {
    writeBytes(folder / "GAME.EXE", "player");
    EXPECT_EQ(pathOf("Game.exe"), folder / "GAME.EXE");
    writeBytes(folder.makeFolder("quorveldefaults") / "game.exe", "master");
    EXPECT_EQ(defaultPlayerPath(QString::fromStdString(project.ProjectFolder)),
              folder / "quorveldefaults/game.exe");
}

TEST_F(PlayerFile, ACopyKeepsWhatTheTargetWasWhenItFails) {
    writeBytes(folder / "Game.exe", "old");
    EXPECT_THROW(copyPlayer(folder / "nothing", folder / "Game.exe"), store::RuntimeError);
    EXPECT_EQ(test::readBytes(folder / "Game.exe"), "old");
    writeBytes(folder / "master", "new");
    fs::permissions(folder / "master", fs::perms::owner_all);
    copyPlayer(folder / "master", folder / "Game.exe");
    EXPECT_EQ(test::readBytes(folder / "Game.exe"), "new");
    EXPECT_NE(fs::status(folder / "Game.exe").permissions() & fs::perms::owner_exec,
              fs::perms::none);
}

}  // namespace
}  // namespace quorvel::resources
