// The game as it is read out of its folder.
#include "player/game.h"

#include "player/player_fixture.h"

namespace quorvel::test {
namespace {

class Game : public PlayerFixture {};

TEST_F(Game, IsReadInAnyLetterCase) {
    build();
    std::filesystem::rename(folder / "resource", folder / "Resource");
    std::filesystem::rename(folder / "Resource/Quorvel1.dat", folder / "Resource/QUORVEL1.DAT");
    player::Game game(folder.path());
    EXPECT_EQ(game.fault(), QString());
    EXPECT_TRUE(game.scene(1));
    EXPECT_FALSE(game.scene(0));
    EXPECT_FALSE(game.scene(2));
    EXPECT_EQ(game.fault(), QString()) << "a scene that does not exist is no fault of the game";
}

TEST_F(Game, ReadingChangesNothing) {
    builder.scenes(3);
    build();
    const auto before = snapshotOf(folder.path());
    player::Game game(folder.path());
    for (const int number : {1, 2, 3, 4, -1, 32767}) {
        (void)game.scene(number);
    }
    EXPECT_EQ(differences(before, snapshotOf(folder.path())), "");
}

TEST_F(Game, FaultsNameTheFile) {
    const player::Game game(folder.path());
    EXPECT_EQ(game.fault(), QStringLiteral("There is no game in the folder of this player."));
    EXPECT_THAT(game.detail().toStdString(), ::testing::HasSubstr("Quorvel1.dat: "));
}

}  // namespace
}  // namespace quorvel::test
