// Projects that are damaged, incomplete or oddly named: what the author is told, and that nothing
// is lost, created or lengthened.
#include <array>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;
using forms::Box;

constexpr std::array<std::uintmax_t, 5> kLengths = {4395, 112, 209, 908, 1712};
constexpr std::array<std::uintmax_t, 5> kCodes = {205, 110, 207, 217, 0};

class Damage : public ShellFixture {
  protected:
    void open(const TestProject& files) { start({text(files.projectPath())}); }

    static ProjectBuilder full() {
        return ProjectBuilder()
            .scenes(3)
            .locations(2)
            .items(2)
            .cards(2)
            .currentItem(1)
            .currentCueCard(1);
    }
    void expectNoProject() {
        EXPECT_FALSE(shell->project().ProjectOpen);
        EXPECT_FALSE(shell->project().projectFile.isOpen());
        EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel"));
        EXPECT_EQ(action(QStringLiteral("projfolder")).text(),
                  QStringLiteral("(No Project Loaded)"));
        EXPECT_FALSE(action(QStringLiteral("Filemen(3)")).isEnabled());
        EXPECT_FALSE(action(QStringLiteral("Toolbar1(2)")).isEnabled());
        EXPECT_EQ(control<QComboBox>(main(), QStringLiteral("Combo1")).count(), 0);
        EXPECT_EQ(visibleWindow(QStringLiteral("OpenProj")), nullptr);
    }
    static QString trapText(const char* error) {
        return QStringLiteral("Error %1 in procedure GetProjData of Module SceneData")
            .arg(QString::fromLatin1(error));
    }
    QString sceneNumber() {
        return control<QWidget>(main(), QStringLiteral("CurScene")).property("text").toString();
    }
};

// What is missing

class MissingStore : public Damage, public ::testing::WithParamInterface<int> {};

TEST_P(MissingStore, EndsTheOpenAndIsNotCreated) {
    const TestProject files = full().build(projects.path());
    fs::remove(files.storePath(GetParam()));
    const FolderSnapshot before = snapshotOf(projects.path());
    open(files);
    EXPECT_EQ(boxes.texts(), QStringList{trapText("53 (File not found)")});
    EXPECT_EQ(boxes.shown()[0].icon, Box::Icon::information);
    expectNoProject();
    leave();
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
}
INSTANTIATE_TEST_SUITE_P(OneToFour, MissingStore, ::testing::Values(1, 2, 3, 4));

TEST_F(Damage, AMissingCardStoreIsCreated) {
    const TestProject files = full().build(projects.path());
    fs::remove(files.storePath(5));
    open(files);
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(shell->project().CueCardCount, 0);
    leave();
    EXPECT_EQ(fs::file_size(files.storePath(5)), 0U);
    EXPECT_EQ(readInt(files.projectPath(), 314), 0);
}

TEST_F(Damage, AMissingResourceFolderEndsTheOpen) {
    const TestProject files = full().build(projects.path());
    fs::remove_all(projects / "resource");
    open(files);
    EXPECT_EQ(boxes.shown().size(), 1U);
    expectNoProject();
    EXPECT_FALSE(fs::exists(projects / "resource"));
}

TEST_F(Damage, AMissingGraphicsFolderIsToldAndTheProjectOpens) {
    const TestProject files = full().build(projects.path());
    fs::remove(projects / "resource/gfx");
    open(files);
    ASSERT_EQ(boxes.shown().size(), 2U);
    EXPECT_EQ(boxes.shown()[0].text,
              QStringLiteral("Error 53 :File not found / Line = Resource/GFX Folder"));
    EXPECT_EQ(boxes.shown()[1].title, QStringLiteral("WARNING: 'Read Only' attribute detected"));
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(shell->project().ReadOnlyProject);
    EXPECT_FALSE(fs::exists(projects / "resource/gfx"));
}

// What is of another kind

TEST_F(Damage, AFolderIsNoProject) {
    const auto folder = projects.makeFolder("A Folder.qvl");
    start({text(folder), text(folder) + QLatin1Char('/')});
    EXPECT_EQ(boxes.texts(), (QStringList{trapText("75 (Path/File access error)"),
                                          trapText("75 (Path/File access error)")}));
    expectNoProject();
    EXPECT_TRUE(fs::is_empty(folder));
}

TEST_F(Damage, AFileThatIsNoProjectIsLeftAlone) {
    const auto letter = projects / "letter.txt";
    for (const std::string& bytes :
         {std::string(), std::string("Dear Sir"), std::string(341, '\0')}) {
        writeBytes(letter, bytes);
        boxes.forget();
        start({text(letter)});
        EXPECT_EQ(boxes.shown().size(), 1U);
        expectNoProject();
        leave();
        EXPECT_EQ(readBytes(letter), bytes);
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(projects.path()), fs::directory_iterator()), 1);
}

TEST_F(Damage, ALongLetterLooksLikeANewerProjectAndIsLeftAloneToo) {
    const auto letter = projects / "letter.txt";
    writeBytes(letter, std::string(1000, 'x'));
    boxes.answer(forms::Answer::yes);
    start({text(letter)});
    ASSERT_EQ(boxes.shown().size(), 2U);
    EXPECT_EQ(boxes.texts()[1], trapText("76 (Path not found)"));
    expectNoProject();
    leave();
    EXPECT_EQ(readBytes(letter), std::string(1000, 'x'));
    EXPECT_EQ(std::distance(fs::directory_iterator(projects.path()), fs::directory_iterator()), 1);
}

#ifndef _WIN32
TEST_F(Damage, APipeDoesNotHoldTheEditorUp) {
    const TestProject files = full().build(projects.path());
    for (const auto& path :
         {files.storePath(1), files.storePath(4), files.storePath(5), files.projectPath()}) {
        fs::remove(path);
        ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
        boxes.forget();
        open(files);
        EXPECT_EQ(boxes.texts(), QStringList{trapText("75 (Path/File access error)")}) << path;
        expectNoProject();
        leave();
    }
}
#endif

class StoreIsAFolder : public Damage, public ::testing::WithParamInterface<int> {};

TEST_P(StoreIsAFolder, EndsTheOpen) {
    const TestProject files = full().build(projects.path());
    fs::remove(files.storePath(GetParam()));
    fs::create_directory(files.storePath(GetParam()));
    open(files);
    EXPECT_EQ(boxes.texts(), QStringList{trapText("75 (Path/File access error)")});
    expectNoProject();
}
INSTANTIATE_TEST_SUITE_P(OneToFive, StoreIsAFolder, ::testing::Values(1, 2, 3, 4, 5));

// Lengths

TEST_F(Damage, ALongProjectFileKeepsItsTail) {
    const TestProject files = full().build(projects.path());
    appendBytes(files.projectPath(), "tail of odd bytes");
    open(files);
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(boxes.shown().empty());
    leave();
    EXPECT_EQ(readBytes(files.projectPath()).substr(342), "tail of odd bytes");
}

TEST_F(Damage, AProjectFileThatEndsAfterTheVersionOpens) {
    const TestProject files = full().build(projects.path());
    truncateFile(files.projectPath(), 312);
    open(files);
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_FALSE(main().view().bordersOn());
    EXPECT_EQ(fs::file_size(files.projectPath()), 312U) << "opening makes nothing longer";
}

class CutStore : public Damage,
                 public ::testing::WithParamInterface<std::tuple<int, std::uintmax_t>> {};

TEST_P(CutStore, OpensWithWhatIsThereAndIsNotMadeLonger) {
    const auto [store, kept] = GetParam();
    const TestProject files = full().build(projects.path());
    truncateFile(files.storePath(store), kept);
    open(files);
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(boxes.shown().empty()) << boxes.texts().join(u'|').toStdString();
    EXPECT_EQ(fs::file_size(files.storePath(store)), kept);
    leave();
    EXPECT_TRUE(boxes.shown().empty());
    const std::uintmax_t length = kLengths.at(static_cast<std::size_t>(store - 1));
    const std::uintmax_t whole = std::max<std::uintmax_t>((kept + length / 2) / length, 0) * length;
    EXPECT_LE(fs::file_size(files.storePath(store)), std::max(kept, whole));
}
INSTANTIATE_TEST_SUITE_P(InsideARecord, CutStore,
                         ::testing::Values(std::tuple{1, 0}, std::tuple{1, 100},
                                           std::tuple{1, 4394}, std::tuple{1, 4396},
                                           std::tuple{1, 3 * 4395 - 1}, std::tuple{2, 0},
                                           std::tuple{2, 55}, std::tuple{2, 150}, std::tuple{3, 0},
                                           std::tuple{3, 1}, std::tuple{3, 300}, std::tuple{4, 907},
                                           std::tuple{5, 0}, std::tuple{5, 855},
                                           std::tuple{5, 3000}));

TEST_F(Damage, SettingsOfAnotherLengthLeaveTheTitle) {
    const TestProject files = full().title("Castle").build(projects.path());
    cutTail(files.storePath(4), 1);
    open(files);
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel"));
}

TEST_F(Damage, EmptySettingsAreOldOnes) {
    const TestProject files = full().build(projects.path());
    truncateFile(files.storePath(4), 0);
    open(files);
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].title, QStringLiteral("Old Settings Detected"));
    EXPECT_TRUE(shell->project().ProjectOpen);
    leave();
    EXPECT_EQ(fs::file_size(files.storePath(4)), 0U);
}

TEST_F(Damage, LongerSettingsLeaveTheTitleToo) {
    const TestProject files = full().title("Castle").build(projects.path());
    appendBytes(files.storePath(4), "x");
    const FolderSnapshot before = snapshotOf(projects.path());
    open(files);
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel"));
    leave();
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
}

// Random bytes

class RandomProject : public Damage, public ::testing::WithParamInterface<std::uint32_t> {};

TEST_P(RandomProject, OpensAndClosesWithinItsFolder) {
    const std::uint32_t seed = GetParam();
    const auto game = projects.makeFolder("game");
    writeBytes(projects / "outside", "untouched");
    const TestProject files = full().build(game);
    for (int store = 1; store <= 5; ++store) {
        const auto at = static_cast<std::size_t>(store - 1);
        writeBytes(files.storePath(store), randomBytes(2 * kLengths[at] + kLengths[at] / 3,
                                                       seed + static_cast<std::uint32_t>(store)));
        patchInt(files.storePath(store), kCodes[at], 77);
    }
    writeBytes(files.projectPath(), randomBytes(342, seed));
    patchInt(files.projectPath(), 304, 77);
    patchInt(files.projectPath(), 310, 300);
    patchInt(files.projectPath(), 300, static_cast<std::int16_t>(1 + seed % 2));
    const FolderSnapshot before = snapshotOf(projects.path());
    open(files);
    EXPECT_TRUE(shell->project().ProjectOpen);
    const FolderSnapshot opened = snapshotOf(projects.path());
    EXPECT_EQ(differences(before, opened), "") << "opening writes nothing";
    leave();
    const FolderSnapshot after = snapshotOf(projects.path());
    EXPECT_EQ(after.at("outside"), "untouched");
    ASSERT_EQ(after.size(), before.size());
    for (int store = 2; store <= 5; ++store) {
        const std::string name = "game/resource/Quorvel" + std::to_string(store) + ".dat";
        EXPECT_EQ(after.at(name), before.at(name)) << name;
    }
    EXPECT_EQ(after.at("game/resource/Quorvel1.dat").size(),
              before.at("game/resource/Quorvel1.dat").size());
}
INSTANTIATE_TEST_SUITE_P(Seeds, RandomProject, ::testing::Values(1U, 2U, 3U, 4U, 5U, 6U));

TEST_F(Damage, RandomBytesOverEverythingAreRefused) {
    const TestProject files = full().build(projects.path());
    for (int store = 1; store <= 5; ++store) {
        writeBytes(files.storePath(store), randomBytes(5000, static_cast<std::uint32_t>(store)));
    }
    const FolderSnapshot before = snapshotOf(projects.path());
    open(files);
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_TRUE(
        boxes.texts()[0].startsWith(QStringLiteral(" Project Security Failure: Quorvel1.dat\n")));
    expectNoProject();
    leave();
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
}

// Scene numbers

class SceneNumbers : public Damage, public ::testing::WithParamInterface<std::pair<int, int>> {};

TEST_P(SceneNumbers, ThatNameNoSceneAreOpenedAllTheSame) {
    const auto [stored, shown] = GetParam();
    const TestProject files =
        full().currentScene(static_cast<std::int16_t>(stored)).build(projects.path());
    const std::string scenes = readBytes(files.storePath(1));
    open(files);
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(sceneNumber(), QString::number(shown));
    EXPECT_EQ(shell->project().CurrentScene, shown);
    leave();
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(readBytes(files.storePath(1)), scenes);
    EXPECT_EQ(readInt(files.projectPath(), 300), shown);
}
INSTANTIATE_TEST_SUITE_P(OddOnes, SceneNumbers,
                         ::testing::Values(std::pair{0, 1}, std::pair{-5, 1}, std::pair{-32768, 1},
                                           std::pair{3, 3}, std::pair{4, 4},
                                           std::pair{32767, 32767}));

TEST_F(Damage, ASceneBeyondTheStoreShowsAZeroedRecord) {
    const TestProject files = full().currentScene(99).build(projects.path());
    open(files);
    EXPECT_EQ(control<QLabel>(main(), QStringLiteral("StatusBar2(1)")).text(),
              QStringLiteral("Objects: 20 / 20"));
    EXPECT_TRUE(shell->project().ProjectOpen);
}

TEST_F(Damage, ItemAndCardNumbersBeyondTheirListsAreKept) {
    const TestProject files = full().currentItem(500).currentCueCard(-7).build(projects.path());
    open(files);
    EXPECT_TRUE(shell->project().ProjectOpen);
    leave();
    EXPECT_EQ(readInt(files.projectPath(), 302), 500);
    EXPECT_EQ(readInt(files.projectPath(), 312), 1) << "at 0 or below card 1 is loaded";
}

TEST_F(Damage, WrongCountsInTheProjectFileAreReplacedByTheStores) {
    const TestProject files = full().build(projects.path());
    patchInt(files.projectPath(), 306, 32767);
    patchInt(files.projectPath(), 308, -1);
    patchInt(files.projectPath(), 314, 0);
    open(files);
    leave();
    EXPECT_EQ(readInt(files.projectPath(), 306), 2);
    EXPECT_EQ(readInt(files.projectPath(), 308), 2);
    EXPECT_EQ(readInt(files.projectPath(), 314), 2);
}

// Names

TEST_F(Damage, FoldersAndFilesInOtherLetterCaseAreFound) {
    const TestProject files = full().fileName("GAME.QVL").build(projects.path());
    for (int store = 1; store <= 5; ++store) {
        fs::rename(files.storePath(store),
                   projects.path() / "resource" / ("QUORVEL" + std::to_string(store) + ".DAT"));
    }
    fs::rename(projects / "resource/gfx", projects / "resource/GFX");
    fs::rename(projects / "resource/mmedia", projects / "resource/MMedia");
    fs::rename(projects / "resource", projects / "RESOURCE");
    const FolderSnapshot before = snapshotOf(projects.path());
    start({text(projects / "game.qvl")});
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(boxes.shown().empty()) << boxes.texts().join(u'|').toStdString();
    leave();
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
}

TEST_F(Damage, MarkupAndMnemonicsInNamesAreShownAsTheyAre) {
    const auto folder = projects.makeFolder("Tom & <b>Jerry %1 [*]");
    const TestProject files = full().title("<b>Me & You [*] %1").build(folder);
    open(files);
    EXPECT_TRUE(shell->project().ProjectOpen);
    // The bar shows a doubled "&" once, and the title bar a doubled "[*]".
    EXPECT_EQ(action(QStringLiteral("projfolder")).text(),
              QStringLiteral("Project Folder is ") + text(projects.path()) +
                  QStringLiteral("/Tom && <b>Jerry %1 [*]/"));
    EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel - <b>Me & You [*][*] %1"));
    EXPECT_EQ(QString::fromStdString(shell->project().GameTitle),
              QStringLiteral("<b>Me & You [*] %1"));
}

// The command line

TEST_F(Damage, AnArgumentWithBlanksIsOnePath) {
    const TestProject files = full().fileName("My Game.qvl").build(projects.makeFolder("A Folder"));
    open(files);
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(shell->project().ProjectFileName, "My Game.qvl");
}

TEST_F(Damage, ARelativeArgumentIsFoundFromTheWorkingFolder) {
    const TestProject files = full().build(projects.makeFolder("here"));
    const auto back = fs::current_path();
    fs::current_path(projects.path());
    start({QStringLiteral("here/Test.qvl")});
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(QString::fromStdString(shell->project().ProjectFolder),
              text(files.folder) + QLatin1Char('/'));
    fs::current_path(files.folder);
    leave();
    start({QStringLiteral("TEST.qvl")});
    EXPECT_EQ(QString::fromStdString(shell->project().ProjectFolder),
              text(files.folder) + QLatin1Char('/'));
    EXPECT_TRUE(shell->project().ProjectOpen);
    fs::current_path(back);
}

}  // namespace
}  // namespace quorvel::test
