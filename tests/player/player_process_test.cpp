// The real player, started as a copy in the folder of a game.
#include <QFile>
#include <QProcess>

#include "player/marker.h"
#include "player/player_fixture.h"
#include "resources/path_text.h"
#include "resources/versions.h"
#include "store/paths.h"

namespace quorvel::test {
namespace {

class ThePlayer : public PlayerFixture {
  protected:
    static QString text(const std::filesystem::path& path) { return resources::pathText(path); }
    /// Starts a copy out of `in`; true when it is still there after a while.
    bool runsIn(const std::filesystem::path& in) {
        const QString copy = text(in / "My Game.exe");
        EXPECT_TRUE(QFile::copy(QStringLiteral(QUORVEL_PLAYER), copy));
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(copy, {});
        return process.waitForStarted() && !process.waitForFinished(1500);
    }
    ~ThePlayer() override {
        process.terminate();
        process.waitForFinished();
    }
    QProcess process;
};

TEST_F(ThePlayer, SaysByItsVersionWhatItIs) {
    const resources::VersionInfo info = resources::GetFileVersionText(QUORVEL_PLAYER);
    ASSERT_TRUE(info.version.has_value());
    EXPECT_EQ(info, player::playerInfo());
    EXPECT_EQ(info.text("FileVersion"), resources::versionText(*info.version));
    EXPECT_EQ(info.text("FileDescription"), QStringLiteral("Quorvel Player"));
    EXPECT_EQ(info.text("OriginalFilename"), QStringLiteral("Game.exe"));
}

TEST_F(ThePlayer, RunsFromTheFolderOfAGame) {
    builder.scenes(2);
    build();
    const auto before = snapshotOf(folder / "resource");
    EXPECT_TRUE(runsIn(folder.path()));
    EXPECT_EQ(differences(before, snapshotOf(folder / "resource")), "");
}

TEST_F(ThePlayer, RunsWhereThereIsNoGame) {
    EXPECT_TRUE(runsIn(folder.path())) << "it tells what is missing and waits to be closed";
}

TEST_F(ThePlayer, RunsOnADamagedGame) {
    build();
    writeBytes(files.storePath(1), randomBytes(5000, 1));
    writeBytes(files.storePath(4), randomBytes(908, 2));
    EXPECT_TRUE(runsIn(folder.path()));
}

}  // namespace
}  // namespace quorvel::test
