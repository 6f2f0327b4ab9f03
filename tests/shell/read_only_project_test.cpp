// Projects that refuse to be written: attributes, a disc, a full disk.
#include <gtest/gtest.h>

#include "support/mounts.h"
#include "support/other_user.h"
#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;
using forms::Answer;
using forms::Box;

const QString kWarningTitle = QStringLiteral("WARNING: 'Read Only' attribute detected");
const QString kWarning = QStringLiteral(
    "One or more of your project's files have the 'Read Only' attribute set.  This prevents "
    "changes you make to your project from being be saved, and can cause Project Security failures "
    "(if on).\n\nIf this project is on a CD-ROM or other non-writable media, you may browse the "
    "project.  However, you must copy it to your hard drive if you wish to make any changes.\n");
QString refused(const char* step) {
    return QStringLiteral("Error 75 :Path/File access error / Line = ") + QLatin1String(step);
}
const QString kProjectFile = refused("Project File");
const QString kDiskFull = QStringLiteral("An unexpected error has occured:\n61 / Disk full");

class ReadOnlyProject : public ShellFixture {
  protected:
    static ProjectBuilder full() {
        return ProjectBuilder()
            .scenes(2)
            .locations(1)
            .items(1)
            .cards(1)
            .currentItem(1)
            .currentCueCard(1)
            .securityCode(12);
    }
    static void makeReadOnly(const fs::path& path) {
        fs::permissions(path,
                        fs::perms::owner_read | fs::perms::group_read |
                            (fs::is_directory(path) ? fs::perms::owner_exec : fs::perms::none));
    }
    static bool isReadOnly(const fs::path& path) {
        return (fs::status(path).permissions() & fs::perms::owner_write) == fs::perms::none;
    }
};

TEST_F(ReadOnlyProject, AttributesAreTakenOffAndNothingIsSaid) {
    const TestProject files = full().build(projects.path());
    std::vector<fs::path> all = {files.projectPath(), projects / "resource",
                                 projects / "resource/gfx", projects / "resource/mmedia"};
    for (int store = 1; store <= 5; ++store) {
        all.push_back(files.storePath(store));
    }
    for (const fs::path& path : all) {
        makeReadOnly(path);
    }
    start({text(files.projectPath())});
    EXPECT_TRUE(boxes.shown().empty()) << boxes.texts().join(u'|').toStdString();
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_FALSE(shell->project().ReadOnlyProject);
    for (const fs::path& path : all) {
        EXPECT_FALSE(isReadOnly(path)) << path;
    }
    leave();
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(ReadOnlyProject, TheSavedFolderIsToldEachTime) {
    const TestProject files = full().build(projects.path());
    const auto saved = projects.makeFolder("SAVED");
    makeReadOnly(saved);
    start({text(files.projectPath())});
    EXPECT_EQ(boxes.texts(), QStringList{QStringLiteral("Saved folder exists")});
    EXPECT_EQ(boxes.shown()[0].icon, Box::Icon::none);
    EXPECT_FALSE(isReadOnly(saved));
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_FALSE(shell->project().ReadOnlyProject);
}

TEST_F(ReadOnlyProject, ADiscOpensWithItsWarningAndClosesAsItWas) {
    const TestProject files = full().build(projects.path());
    const FolderSnapshot before = snapshotOf(projects.path());
    const ReadOnlyMount disc(projects.path());
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    start({text(files.projectPath())});
    EXPECT_EQ(boxes.texts(), (QStringList{kProjectFile, refused("Quorvel1.dat"), kWarning}))
        << "the box of attributes once for each call";
    EXPECT_EQ(boxes.shown()[2].title, kWarningTitle);
    EXPECT_EQ(boxes.shown()[2].icon, Box::Icon::exclamation);
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(shell->project().ReadOnlyProject);
    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_EQ(boxes.shown().size(), 3U) << "that nothing was saved is known";
    EXPECT_FALSE(shell->project().ProjectOpen);
    EXPECT_FALSE(shell->project().ReadOnlyProject);
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
}

TEST_F(ReadOnlyProject, ADiscInOneFolderIsNamedByItsFolder) {
    const TestProject files = full().build(projects.path());
    const ReadOnlyMount disc(projects / "resource/mmedia");
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    start({text(files.projectPath())});
    EXPECT_EQ(boxes.texts(), (QStringList{refused("Resource/MMedia Folder"), kWarning}));
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(shell->project().ReadOnlyProject);
}

// Rights and owners, which count for a user without the administrator's powers

class ReadOnlyForAUser : public ReadOnlyProject {
  protected:
    /// The editor as a user who owns the whole project; `change` then changes it.
    void openAfter(const std::function<void(const TestProject&)>& change) {
        const TestProject files = full().build(projects.path());
        OtherUser::own(home.path());
        OtherUser::own(projects.path());
        change(files);
        before = snapshotOf(projects.path());
        author.emplace();
        if (author->isPlayed()) {
            start({text(files.projectPath())});
        }
    }
    void TearDown() override {
        if (shell && author && author->isPlayed()) {
            leave();
            EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
        }
        author.reset();
    }
    FolderSnapshot before;
    std::optional<OtherUser> author;
};

TEST_F(ReadOnlyForAUser, HisOwnRightsAreGivenBack) {
    openAfter([](const TestProject& files) {
        makeReadOnly(files.projectPath());
        makeReadOnly(files.storePath(1));
        makeReadOnly(files.folder / "resource/gfx");
    });
    if (!author->isPlayed()) {
        GTEST_SKIP() << author->whyNot();
    }
    EXPECT_TRUE(boxes.shown().empty()) << boxes.texts().join(u'|').toStdString();
    EXPECT_FALSE(shell->project().ReadOnlyProject);
}

TEST_F(ReadOnlyForAUser, AnothersFolderIsReadOnly) {
    openAfter([](const TestProject& files) {
        OtherUser::leave(files.folder / "resource/gfx");
        OtherUser::leave(files.projectPath());
    });
    if (!author->isPlayed()) {
        GTEST_SKIP() << author->whyNot();
    }
    EXPECT_EQ(boxes.texts(), (QStringList{kProjectFile, refused("Resource/GFX Folder"), kWarning}));
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(shell->project().ReadOnlyProject);
}

TEST_F(ReadOnlyForAUser, ModesThatLetEverybodyWriteAreEnough) {
    openAfter([](const TestProject& files) {
        for (const fs::path& path : {files.storePath(3), files.folder / "resource/mmedia"}) {
            OtherUser::leave(path);
            fs::permissions(path, fs::perms::others_write, fs::perm_options::add);
        }
    });
    if (!author->isPlayed()) {
        GTEST_SKIP() << author->whyNot();
    }
    EXPECT_TRUE(boxes.shown().empty()) << boxes.texts().join(u'|').toStdString();
    EXPECT_FALSE(shell->project().ReadOnlyProject);
}

// Links out of the project

TEST_F(ReadOnlyProject, OpeningChangesNoRightsBehindLinks) {
    const TempFolder elsewhere;
    const TestProject files = full().build(projects.path());
    const fs::path store = elsewhere / "store.dat";
    fs::rename(files.storePath(2), store);
    fs::create_symlink(store, projects / "resource/Quorvel2.dat");
    const fs::path media = elsewhere.makeFolder("media");
    fs::remove(projects / "resource/mmedia");
    fs::create_directory_symlink(media, projects / "resource/mmedia");
    makeReadOnly(store);
    makeReadOnly(media);
    start({text(files.projectPath())});
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(isReadOnly(store));
    EXPECT_TRUE(isReadOnly(media));
}

TEST_F(ReadOnlyProject, ASavedFolderThatStaysReadOnlyIsToldButDoesNotCount) {
    const TestProject files = full().build(projects.path());
    const auto saved = projects.makeFolder("Saved");
    makeReadOnly(saved);
    const ReadOnlyMount disc(saved);
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    start({text(files.projectPath())});
    EXPECT_EQ(
        boxes.texts(),
        (QStringList{QStringLiteral("Saved folder exists"),
                     QStringLiteral("Error 75 :Path/File access error / Line = Saved Folder")}));
    EXPECT_FALSE(shell->project().ReadOnlyProject);
}

TEST_F(ReadOnlyProject, TheNextProjectIsNotReadOnly) {
    const TestProject disc = full().build(projects.makeFolder("disc"));
    const TestProject usual = full().build(projects.makeFolder("usual"));
    const ReadOnlyMount mount(disc.folder);
    if (!mount.isMounted()) {
        GTEST_SKIP() << mount.whyNot();
    }
    start({text(disc.projectPath()), text(usual.projectPath())});
    EXPECT_EQ(boxes.texts(), (QStringList{kProjectFile, refused("Quorvel1.dat"), kWarning}));
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_FALSE(shell->project().ReadOnlyProject);
}

// A full disk. Records that are there can be written in place; the last record of a store that was
// cut cannot be made whole.
class FullDisk : public ReadOnlyProject {
  protected:
    /// A project on the disk whose second, current scene is cut, with no room left; opened.
    void openOn(const SmallDisk& disk) {
        files = full().currentScene(2).build(disk.path());
        // Inside the second page of the disk, where the 16th slot of the second scene begins.
        truncateFile(files.storePath(1), 4395 + 255 + 15 * 207);
        disk.fill();
        before = snapshotOf(disk.path());
        start({text(files.projectPath())});
        ASSERT_TRUE(shell->project().ProjectOpen);
        ASSERT_TRUE(boxes.shown().empty());
    }
    void expectQuestion(std::size_t at) {
        ASSERT_GT(boxes.shown().size(), at);
        const Box& box = boxes.shown()[at];
        EXPECT_EQ(box.text, QStringLiteral("The current scene could not be saved.\n\nDo you want "
                                           "to close the project anyway and lose the changes to "
                                           "this scene?"));
        EXPECT_EQ(box.buttons, Box::Buttons::yesNo);
        EXPECT_TRUE(box.destroys);
    }
    TestProject files;
    FolderSnapshot before;
};

TEST_F(FullDisk, ASceneThatCannotBeSavedKeepsTheProjectOpen) {
    const SmallDisk disk(64);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    openOn(disk);
    boxes.answer(Answer::no);
    action(QStringLiteral("Filemen(3)")).trigger();
    ASSERT_EQ(boxes.shown().size(), 2U);
    EXPECT_EQ(boxes.texts()[0], kDiskFull);
    expectQuestion(1);
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(action(QStringLiteral("Filemen(3)")).isEnabled());
    EXPECT_EQ(differences(before, snapshotOf(disk.path())), "");

    // With room again the same close goes through.
    disk.makeRoom();
    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_EQ(boxes.shown().size(), 2U);
    EXPECT_FALSE(shell->project().ProjectOpen);
    EXPECT_EQ(fs::file_size(files.storePath(1)), 2U * 4395U);
}

TEST_F(FullDisk, OrIsGivenUpWhenTheAuthorSaysSo) {
    const SmallDisk disk(64);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    openOn(disk);
    boxes.answer(Answer::yes);
    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_EQ(boxes.shown().size(), 2U);
    EXPECT_FALSE(shell->project().ProjectOpen);
    EXPECT_EQ(differences(before, snapshotOf(disk.path())), "");
}

TEST_F(FullDisk, LeavingTheEditorAsksTheSameQuestion) {
    const SmallDisk disk(64);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    openOn(disk);
    boxes.answer(Answer::no);
    main().close();
    EXPECT_EQ(quits, 0);
    EXPECT_TRUE(main().isVisible());
    EXPECT_TRUE(shell->EditorRunning);
    EXPECT_TRUE(shell->project().ProjectOpen);
    boxes.answer(Answer::yes);
    main().close();
    EXPECT_EQ(quits, 1);
    EXPECT_FALSE(main().isVisible());
    EXPECT_FALSE(shell->project().ProjectOpen);
}

TEST_F(FullDisk, AnotherProjectIsNotOpenedWhileTheFirstStays) {
    const SmallDisk disk(64);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    openOn(disk);
    const TestProject other = full().build(projects.makeFolder("other"));
    boxes.answer(Answer::no);
    dialogs.choice = text(other.projectPath());
    action(QStringLiteral("Toolbar1(1)")).trigger();
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(shell->project().ProjectFolder, store::textOf(disk.path()) + "/");
}

TEST_F(FullDisk, AWholeProjectIsWrittenInPlace) {
    const SmallDisk disk(64);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    files = full().build(disk.path());
    disk.fill();
    before = snapshotOf(disk.path());
    start({text(files.projectPath())});
    leave();
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(differences(before, snapshotOf(disk.path())), "");
}

}  // namespace
}  // namespace quorvel::test
