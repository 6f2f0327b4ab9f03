// The player of a project: looked after when the project opens, started for a test run.
#include <gmock/gmock.h>

#include <QProcess>

#include "resources/player_marker.h"
#include "shell/scene_fixture.h"
#include "support/mounts.h"
#include "support/pe_bytes.h"
#include "support/windows/tip_reader.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;
using resources::FourPartVersion;

const QString kNotFoundTitle = QStringLiteral("Quorvel Player Not Found");
const QString kMasterTitle = QStringLiteral("Default Quorvel Player Not Found");

QString notFoundText(const QString& name) {
    return QStringLiteral(
               "The Quorvel Player (originally called 'Game.exe') could not be found in your "
               "project's folder.\n\nAccording to the 'General Game Settings', the filename "
               "should be '") +
           name +
           QStringLiteral(
               "', but it was not found.\n\nThe Player will be copied from the "
               "'Quorvel\\QuorvelDefaults\\' folder to your project's folder, and renamed if "
               "necessary.\n\nIf you have renamed the Player using Windows Explorer, that is "
               "probably why this problem has occured.\n\nThe only proper way to rename the "
               "Player's filename is through the 'General Game Settings'.");
}
const QString kRest = QStringLiteral(
    "The copy of the Player in the 'Quorvel\\QuorvelDefaults\\' folder MUST be named 'Game.exe'!  "
    "If you have changed the name, please change it back to 'Game.exe'.  Otherwise, please "
    "re-install Quorvel");

std::string player(const FourPartVersion& version, std::string_view text = {}) {
    const auto bytes = resources::makePlayerMarker(version, {"", "", text});
    return "a player " + std::string(bytes.begin(), bytes.end());
}

/// An editor whose master copy the test chooses.
class Players : public SceneFixture {
  protected:
    Players() { master(player({2, 0, 0, 0}, "2.0.0.0")); }

    void master(const std::string& bytes) {
        fs::create_directories(install / "QuorvelDefaults");
        writeBytes(masterPath(), bytes);
        fs::permissions(masterPath(), fs::perms::owner_exec, fs::perm_options::add);
    }
    [[nodiscard]] fs::path masterPath() const { return install / "QuorvelDefaults/Game.exe"; }

    void makeProject() { files = builder.withoutPlayer().build(projects.path()); }
    /// Opens the project, and forgets its boxes only where `start` shows some.
    bool openIt() {
        start();
        shell->InstallPath = text(install.path()) + QLatin1Char('/');
        return shell->openProject(text(files.projectPath()));
    }
    void nameThePlayer(const char* name) {
        builder.editSettings([name = std::string(name)](store::GameSettingsRecord& record) {
            record.PlayerExeName = name;
        });
    }
    /// Titles of all boxes so far.
    [[nodiscard]] QStringList titles() const {
        QStringList titles;
        for (const forms::Box& box : boxes.shown()) {
            titles << box.title;
        }
        return titles;
    }
    [[nodiscard]] fs::path playerFile(const char* name = "Game.exe") const {
        return projects / name;
    }

    TempFolder install;
    ProjectBuilder builder;
};

TEST_F(Players, AMissingPlayerIsCopied) {
    makeProject();
    EXPECT_TRUE(openIt());
    EXPECT_EQ(titles(), QStringList{kNotFoundTitle});
    EXPECT_EQ(boxes.shown().front().text, notFoundText(QStringLiteral("Game.exe")));
    EXPECT_EQ(readBytes(playerFile()), readBytes(masterPath()));
    EXPECT_NE(fs::status(playerFile()).permissions() & fs::perms::owner_exec, fs::perms::none);
}

TEST_F(Players, ARenamedPlayerWithoutAFileIsRecreatedUnderTheNewName) {
    nameThePlayer("Castle");
    makeProject();
    writeBytes(playerFile(), "under the old name");
    EXPECT_TRUE(openIt());
    EXPECT_EQ(boxes.texts(), QStringList{notFoundText(QStringLiteral("Castle.exe"))});
    EXPECT_EQ(readBytes(playerFile("Castle.exe")), readBytes(masterPath()));
    EXPECT_EQ(readBytes(playerFile()), "under the old name");
}

TEST_F(Players, NothingStopsTheProjectWhenTheMasterIsGone) {
    makeProject();
    fs::remove(masterPath());
    EXPECT_TRUE(openIt());
    EXPECT_EQ(titles(), (QStringList{kNotFoundTitle, kMasterTitle}));
    EXPECT_EQ(boxes.shown().back().text,
              QStringLiteral("Could not copy 'Game.exe' from the 'Quorvel\\QuorvelDefaults\\' "
                             "folder.  The file could not be found!  ") +
                  kRest);
    EXPECT_FALSE(fs::exists(playerFile()));
}

TEST_F(Players, AMasterThatIsGoneIsToldInTheComparisonToo) {
    makeProject();
    writeBytes(playerFile(), player({1, 0, 0, 0}));
    fs::remove(masterPath());
    EXPECT_TRUE(openIt());
    EXPECT_EQ(titles(), QStringList{kMasterTitle});
    EXPECT_EQ(boxes.shown().back().text,
              QStringLiteral("During a routine version comparison, the file 'Game.exe' could not "
                             "be found in the 'Quorvel\\QuorvelDefaults\\' folder.  ") +
                  kRest);
    EXPECT_EQ(readBytes(playerFile()), player({1, 0, 0, 0}));
}

TEST_F(Players, AnOldPlayerIsReplaced) {
    nameThePlayer("Castle");
    makeProject();
    writeBytes(playerFile("Castle.exe"), player({1, 9, 9, 9}, "1.9 of old"));
    EXPECT_TRUE(openIt());
    EXPECT_EQ(titles(), QStringList{QStringLiteral("Player Upgraded")});
    EXPECT_EQ(
        boxes.shown().front().text,
        QStringLiteral(
            "Quorvel detected that the Player (originally called 'Game.exe') in this project's "
            "folder was old, and that a newer version was in your 'Quorvel\\QuorvelDefaults\\' "
            "folder.  The newer version has been copied to this project's folder.\n\nQuorvel "
            "Player Filename: Castle.exe\nOLD Version: 1.9 of old\nNEW Version: 2.0.0.0"));
    EXPECT_EQ(readBytes(playerFile("Castle.exe")), readBytes(masterPath()));
    EXPECT_NE(fs::status(playerFile("Castle.exe")).permissions() & fs::perms::owner_exec,
              fs::perms::none);
}

TEST_F(Players, AnOldWindowsPlayerIsReplacedToo) {
    makeProject();
    writeBytes(playerFile(), peBytes({.version = {1, 2, 3, 4}}));
    EXPECT_TRUE(openIt());
    ASSERT_EQ(titles(), QStringList{QStringLiteral("Player Upgraded")});
    EXPECT_TRUE(boxes.shown().front().text.contains(QStringLiteral("OLD Version: 1.2.3.4\n")))
        << "without a text the four numbers";
}

TEST_F(Players, ANewerPlayerIsKept) {
    makeProject();
    for (const std::string& newer : {player({2, 0, 0, 1}), peBytes({.version = {3, 0, 0, 0}}),
                                     player({2, 0, 0, 0}), std::string("of no version")}) {
        writeBytes(playerFile(), newer);
        EXPECT_TRUE(openIt());
        EXPECT_EQ(boxes.texts(), QStringList());
        EXPECT_EQ(readBytes(playerFile()), newer);
        leave();
    }
}

TEST_F(Players, APlayerInAnyLetterCaseIsTheProjects) {
    makeProject();
    writeBytes(playerFile("GAME.EXE"), player({1, 0, 0, 0}));
    EXPECT_TRUE(openIt());
    EXPECT_EQ(titles(), QStringList{QStringLiteral("Player Upgraded")});
    EXPECT_EQ(readBytes(playerFile("GAME.EXE")), readBytes(masterPath()));
    EXPECT_FALSE(fs::exists(playerFile())) << "nothing is made beside another spelling";
}

TEST_F(Players, AnUnsetNameBecomesNoFile) {
    nameThePlayer("");
    makeProject();
    EXPECT_TRUE(openIt());
    EXPECT_EQ(boxes.texts(), QStringList());
    EXPECT_FALSE(fs::exists(playerFile(".exe")));
    EXPECT_FALSE(fs::exists(playerFile()));
    action(QStringLiteral("runmen(0)")).trigger();
    EXPECT_EQ(programs.started, QStringList());
    EXPECT_EQ(boxes.shown().size(), 1U);
}

TEST_F(Players, SettingsThatWereNotReadLeaveNoNameOfAnotherProject) {
    nameThePlayer("First");
    makeProject();
    writeBytes(playerFile("First.exe"), "its player");
    EXPECT_TRUE(openIt());
    const TestProject second =
        ProjectBuilder().withoutPlayer().build(projects.makeFolder("second"));
    cutTail(second.storePath(4), 1);
    EXPECT_TRUE(shell->openProject(text(second.projectPath())));
    EXPECT_EQ(shell->project().PlayerName, "");
    EXPECT_EQ(boxes.texts(), QStringList());
    for (const char* name : {"First.exe", "Game.exe", ".exe"}) {
        EXPECT_FALSE(fs::exists(second.folder / name)) << name;
    }
}

TEST_F(Players, ANameThatLeavesTheFolderIsRefused) {
    nameThePlayer("../outside");
    const fs::path inner = projects.makeFolder("inner");
    files = builder.withoutPlayer().build(inner);
    EXPECT_TRUE(openIt());
    EXPECT_EQ(titles(), (QStringList{kNotFoundTitle, QStringLiteral("Quorvel Player")}));
    EXPECT_TRUE(boxes.shown().back().text.contains(QStringLiteral("Error 52 ")));
    EXPECT_FALSE(fs::exists(projects / "outside.exe"));
    action(QStringLiteral("runmen(0)")).trigger();
    EXPECT_EQ(programs.started, QStringList());
}

TEST_F(Players, ACopyThatFailsIsToldAndTheProjectIsOpen) {
    makeProject();
    fs::create_directory(playerFile());
    writeBytes(playerFile() / "in the way", "");
    EXPECT_TRUE(openIt());
    EXPECT_EQ(titles(), (QStringList{kNotFoundTitle, QStringLiteral("Quorvel Player")}));
    EXPECT_TRUE(boxes.shown().back().text.startsWith(
        QStringLiteral("The Player could not be copied to your project's folder.\n\n") +
        text(playerFile())))
        << boxes.shown().back().text.toStdString();
}

TEST_F(Players, AReadOnlyProjectKeepsItsOldPlayer) {
    makeProject();
    writeBytes(playerFile(), player({1, 0, 0, 0}));
    const ReadOnlyMount disc(projects.path());
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    EXPECT_TRUE(openIt());
    EXPECT_EQ(readBytes(playerFile()), player({1, 0, 0, 0}));
    EXPECT_TRUE(titles().contains(QStringLiteral("Quorvel Player")));
    EXPECT_FALSE(titles().contains(QStringLiteral("Player Upgraded")));
}

TEST_F(Players, OpeningAProjectRunsNothing) {
    makeProject();
    writeBytes(playerFile(), "#!/bin/sh\ntouch \"$0.ran\"\n");
    fs::permissions(playerFile(), fs::perms::owner_all);
    EXPECT_TRUE(openIt());
    EXPECT_EQ(programs.started, QStringList());
    EXPECT_FALSE(fs::exists(playerFile("Game.exe.ran")));
}

/// A project with a player, open.
class TestRun : public Players {
  protected:
    void begin(const std::string& bytes = player({2, 0, 0, 0})) {
        makeProject();
        writeBytes(playerFile(), bytes);
        ASSERT_TRUE(openIt());
        reader = std::make_unique<TipReader>(*shell);
        reader->whileRead = [this] {
            startedBefore = programs.started;
            savedName = readBytes(files.storePath(1), 0, 15);
        };
    }
    std::unique_ptr<TipReader> reader;
    QStringList startedBefore;
    std::string savedName;
};

TEST_F(TestRun, SavesTheSceneShowsItsTipAndStartsThePlayer) {
    for (const char* entry : {"runmen(0)", "Toolbar1(25)"}) {
        SCOPED_TRACE(entry);
        if (shell == nullptr) {
            begin();
        }
        shell->scene().header(store::HeaderString::SceneName) = entry;
        reader->tips.clear();
        programs.started.clear();
        action(QString::fromLatin1(entry)).trigger();
        EXPECT_EQ(reader->tips, std::vector<int>{1});
        EXPECT_EQ(savedName.substr(0, 9), std::string(entry).substr(0, 9)) << "saved before";
        EXPECT_EQ(startedBefore, QStringList()) << "the tip comes before the game";
        EXPECT_EQ(programs.started, QStringList{text(playerFile())});
        EXPECT_EQ(programs.folders.back(), text(projects.path()) + QLatin1Char('/'));
        EXPECT_EQ(boxes.texts(), QStringList());
    }
}

TEST_F(TestRun, APlayerThatIsGoneIsToldInTheWordsOfItsCommand) {
    begin();
    fs::remove(playerFile());
    action(QStringLiteral("runmen(0)")).trigger();
    action(QStringLiteral("Toolbar1(25)")).trigger();
    EXPECT_EQ(
        boxes.texts(),
        (QStringList{
            QStringLiteral("Could not run the Player.  Please check the filename and try again."),
            QStringLiteral("Could not run the Player.  Please check the filename in "
                           "'General Game Settings' and try again.")}));
    EXPECT_EQ(reader->tips, (std::vector<int>{1, 1}));
}

TEST_F(TestRun, APlayerThatNobodyMayRunIsMended) {
    begin();
    fs::permissions(playerFile(), fs::perms::owner_read | fs::perms::owner_write);
    action(QStringLiteral("runmen(0)")).trigger();
    EXPECT_NE(fs::status(playerFile()).permissions() & fs::perms::owner_exec, fs::perms::none);
    EXPECT_EQ(programs.started.size(), 1);
}

TEST_F(TestRun, ALinkInThePlayersPlaceChangesNothingOutsideOfTheProject) {
    begin();
    const fs::path outside = install / "notes.txt";
    writeBytes(outside, "somebody's");
    fs::permissions(outside, fs::perms::owner_read | fs::perms::owner_write);
    fs::remove(playerFile());
    fs::create_symlink(outside, playerFile());
    action(QStringLiteral("runmen(0)")).trigger();
    EXPECT_EQ(fs::status(outside).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(readBytes(outside), "somebody's");
}

TEST_F(Players, ALinkInThePlayersPlaceIsReplacedNotFollowed) {
    makeProject();
    const fs::path outside = install / "old player";
    writeBytes(outside, player({1, 0, 0, 0}));
    fs::create_symlink(outside, playerFile());
    EXPECT_TRUE(openIt());
    EXPECT_EQ(titles(), QStringList{QStringLiteral("Player Upgraded")});
    EXPECT_FALSE(fs::is_symlink(playerFile()));
    EXPECT_EQ(readBytes(playerFile()), readBytes(masterPath()));
    EXPECT_EQ(readBytes(outside), player({1, 0, 0, 0}));
}

TEST_F(TestRun, APlayerThatDoesNotStartIsTold) {
    begin();
    programs.succeed = false;
    action(QStringLiteral("runmen(0)")).trigger();
    EXPECT_EQ(boxes.shown().size(), 1U);
}

#ifndef _WIN32
TEST_F(TestRun, AWindowsPlayerIsStartedThroughWine) {
    begin(peBytes({.version = {9, 0, 0, 0}}));
    programs.installed[QStringLiteral("wine")] = QStringLiteral("/usr/bin/wine");
    action(QStringLiteral("runmen(0)")).trigger();
    EXPECT_EQ(programs.started, QStringList{QStringLiteral("/usr/bin/wine|") + text(playerFile())});
    EXPECT_EQ(boxes.texts(), QStringList());
}

TEST_F(Players, AnOldPlayerThatRunsIsReplacedAndGoesOn) {
    makeProject();
    writeBytes(playerFile(), readBytes("/bin/sleep") + player({1, 0, 0, 0}));
    fs::permissions(playerFile(), fs::perms::owner_all);
    QProcess running;
    running.start(text(playerFile()), {QStringLiteral("60")});
    ASSERT_TRUE(running.waitForStarted());
    EXPECT_TRUE(openIt());
    EXPECT_EQ(titles(), QStringList{QStringLiteral("Player Upgraded")});
    EXPECT_EQ(readBytes(playerFile()), readBytes(masterPath()));
    EXPECT_EQ(running.state(), QProcess::Running);
    running.kill();
    running.waitForFinished();
}

/// What `PATH` is while it lives.
class SearchPath {
  public:
    explicit SearchPath(const fs::path& folder) : before_(qgetenv("PATH")) {
        qputenv("PATH", QByteArray::fromStdString(folder.string()) + ":/usr/bin:/bin");
    }
    ~SearchPath() { qputenv("PATH", before_); }
    SearchPath(const SearchPath&) = delete;
    SearchPath& operator=(const SearchPath&) = delete;

  private:
    QByteArray before_;
};

TEST_F(TestRun, TheWineOfTheSystemGetsThePlayerAsItsOnlyArgument) {
    begin(peBytes({.version = {9, 0, 0, 0}}));
    const fs::path folder = projects.makeFolder("my programs");
    writeBytes(folder / "wine",
               "#!/bin/sh\nprintf '%s\\n' \"$0\" \"$#\" \"$@\" \"$PWD\" > \"$0.tmp\"\n"
               "mv \"$0.tmp\" \"$0.out\"\n");
    fs::permissions(folder / "wine", fs::perms::owner_all);
    const SearchPath path(folder);
    resources::SystemPrograms real;
    programs.installed[QStringLiteral("wine")] = real.find(QStringLiteral("wine"));
    programs.whenRun = [&](const QString& program, const QStringList& arguments) {
        return real.run(program, arguments, programs.folders.back());
    };
    action(QStringLiteral("runmen(0)")).trigger();
    ASSERT_TRUE(waitUntil([&] { return fs::exists(folder / "wine.out"); }));
    EXPECT_EQ(readBytes(folder / "wine.out"), (folder / "wine").string() + "\n1\n" +
                                                  playerFile().string() + "\n" +
                                                  projects.path().string() + "\n");
    EXPECT_EQ(boxes.texts(), QStringList());
}

TEST_F(TestRun, AWindowsPlayerWithoutWineIsTold) {
    begin(peBytes({.version = {9, 0, 0, 0}}));
    action(QStringLiteral("runmen(0)")).trigger();
    EXPECT_EQ(programs.started, QStringList());
    action(QStringLiteral("Toolbar1(25)")).trigger();
    EXPECT_EQ(programs.started, QStringList());
    EXPECT_EQ(
        boxes.texts(),
        (QStringList{
            QStringLiteral("Could not run the Player.  Please check the filename and try again."),
            QStringLiteral("Could not run the Player.  Please check the filename in "
                           "'General Game Settings' and try again.")}));
}
#endif

TEST_F(TestRun, ASceneThatIsEditedMeanwhileIsSeenOnceItHasBeenLeft) {
    builder.scenes(2);
    begin();
    action(QStringLiteral("runmen(0)")).trigger();
    shell->scene().header(store::HeaderString::SceneName) = "Edited";
    const auto onDisk = [this] { return readBytes(files.storePath(1), 0, 6); };
    EXPECT_NE(onDisk(), "Edited") << "the game shows the old scene";
    control<QPushButton>(main(), QStringLiteral("Command6")).click();
    EXPECT_EQ(onDisk(), "Edited") << "the scene has been left";
}

}  // namespace
}  // namespace quorvel::test
