// New projects that cannot be made: which step failed and why, and a window that goes on.
#include <gmock/gmock.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "shell/new_project_stage.h"
#include "support/mounts.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

using NewProjectFailures = NewProjectStage;

TEST_F(NewProjectFailures, AFolderOfTheProjectInAnyLetterCaseIsInTheWay) {
    begin();
    for (const char* name : {"Resource", "resource", "RESOURCE"}) {
        SCOPED_TRACE(name);
        const fs::path folder = projects.makeFolder(std::string("in ") + name);
        fs::create_directory(folder / name);
        const auto before = snapshotOf(folder);
        createInVain(folder);
        EXPECT_EQ(differences(before, snapshotOf(folder)), "") << "nothing is written";
        EXPECT_EQ(step(),
                  QStringLiteral("The new project could not be created.\n\nStep: Making the "
                                 "folders\n%1\n\nError 75 (Path/File access error)\nIt is in the "
                                 "folder already.  Please choose an empty folder.\n\nWhat was made "
                                 "before remains in the folder.")
                      .arg(text(folder / name)));
        boxes.forget();
    }
}

TEST_F(NewProjectFailures, AMissingFileOfTheDefaultsIsNamed) {
    begin();
    fs::remove(install / "QuorvelDefaults/Manual.txt");
    createInVain(projects.path());
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Step: Copying 'Manual.txt'\n"));
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Error 53 (File not found)"));
    EXPECT_TRUE(fs::exists(projects / "Game.exe")) << "what was made before remains";
    EXPECT_FALSE(fs::exists(projects / "Project.qvl"));
}

TEST_F(NewProjectFailures, AMissingPlayerIsNamed) {
    begin();
    fs::remove(install / "QuorvelDefaults/Game.exe");
    createInVain(projects.path());
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Step: Copying 'Game.exe'\n"));
}

TEST_F(NewProjectFailures, AnEmptyFolderIsAskedForOnlyWhereItHelps) {
    begin();
    fs::remove(install / "QuorvelDefaults/Game.exe");
    fs::create_directory(install / "QuorvelDefaults/Game.exe");
    createInVain(projects.path());
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Error 75 "));
    EXPECT_THAT(step().toStdString(), ::testing::Not(::testing::HasSubstr("already")));
}

TEST_F(NewProjectFailures, AFullDiskIsToldAndTheNextTrySucceeds) {
    const SmallDisk disk(64);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    begin();
    writeBytes(install / "QuorvelDefaults/ReadMe.txt", std::string(100000, 'x'));
    createInVain(disk.path());
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Step: Copying 'ReadMe.txt'\n"));
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Error 61 (Disk full)"));
    EXPECT_FALSE(fs::exists(disk.path() / "ReadMe.txt")) << "no half file";
    boxes.forget();
    create(projects.path());
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(boxes.texts(), QStringList());
}

TEST_F(NewProjectFailures, AFolderWithoutTheRightToWriteIsTold) {
    const ReadOnlyMount disc(projects.path());
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    begin();
    createInVain(projects.path());
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Step: Making the folders\n"));
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Error 75 "));
    EXPECT_THAT(step().toStdString(), ::testing::Not(::testing::HasSubstr("already")));
}

TEST_F(NewProjectFailures, AFolderThatIsGoneIsTold) {
    begin();
    createInVain(projects / "gone");
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Error 76 (Path not found)"));
}

TEST_F(NewProjectFailures, ANameThatIsNoneIsTold) {
    begin();
    for (const char* name : {"", "  ", "a/b", "..\\x", "what?", "nul", "\xE2\x82\xAC\xCE\xB1"}) {
        SCOPED_TRACE(name);
        createInVain(projects.path(), name);
        EXPECT_THAT(step().toStdString(),
                    ::testing::HasSubstr("Step: Checking the project's file name\n"));
        EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Error 52 "));
        EXPECT_TRUE(fs::is_empty(projects.path()));
        boxes.forget();
    }
}

TEST_F(NewProjectFailures, AProjectFileThatLiesThereIsKept) {
    begin();
    writeBytes(projects / "PROJECT.QVL", "somebody's project");
    createInVain(projects.path());
    EXPECT_THAT(
        step().toStdString(),
        ::testing::HasSubstr("Error 58 (File already exists)\nIt is in the folder already."));
    EXPECT_EQ(readBytes(projects / "PROJECT.QVL"), "somebody's project");
    boxes.forget();
    create(projects.path(), "Another");
    EXPECT_TRUE(shell->project().ProjectOpen);
}

TEST_F(NewProjectFailures, AProjectThatTheAuthorKeepsStaysOpen) {
    files = ProjectBuilder().build(projects.makeFolder("old"));
    begin();
    EXPECT_TRUE(shell->openProject(text(files.projectPath())));
    const fs::path folder = projects.makeFolder("new");
    // The scene cannot be written any more, for a reason that is told and asked about.
    shell->project().sceneFile.close();
    const SmallDisk disk(64);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    fs::copy(files.storePath(1), disk.path() / "Quorvel1.dat");
    shell->project().sceneFile.open(disk.path() / "Quorvel1.dat");
    truncateFile(disk.path() / "Quorvel1.dat", 0);
    disk.fill();
    boxes.answer(forms::Answer::no);
    withNewProject([&](QWidget& window) {
        choose(window, folder);
        button(window, "Command2").click();
        EXPECT_TRUE(window.isVisible());
        EXPECT_TRUE(button(window, "Command2").isEnabled());
    });
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(shell->project().ProjectFileName, files.fileName);
    EXPECT_TRUE(fs::is_empty(folder));
}

TEST_F(NewProjectFailures, EscapeDoesNotInterruptTheWork) {
    begin();
    withNewProject([&](QWidget& window) {
        choose(window, projects.path());
        boxes.whileShown = [&](const forms::Box&) {
            EXPECT_FALSE(button(window, "Command2").isEnabled());
            EXPECT_FALSE(button(window, "Command3").isEnabled());
            EXPECT_TRUE(control<QLabel>(window, QStringLiteral("Label6")).isVisible());
            QTest::keyClick(&window, Qt::Key_Escape);
            window.close();
            EXPECT_TRUE(window.isVisible());
        };
        fs::create_directory(projects / "resource");
        button(window, "Command2").click();
        EXPECT_EQ(boxes.shown().size(), 1U);
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_F(NewProjectFailures, ADiskThatIsFullAtTheLastStepsIsTold) {
    struct Case {
        std::size_t pages;  ///< of the disk; each small file takes one, the scene store two
        const char* step;
        const char* file;
    };
    for (const Case& one : {Case{3, "Writing the project file", "Project.qvl"},
                            Case{4, "Writing the data files", "resource/Quorvel1.dat"},
                            Case{5, "Writing the data files", "resource/Quorvel1.dat"},
                            Case{6, "Writing the data files", "resource/Quorvel2.dat"},
                            Case{7, "Writing the data files", "resource/Quorvel4.dat"}}) {
        SCOPED_TRACE(one.pages);
        constexpr std::size_t kPageKilobytes = 4;
        const SmallDisk disk(one.pages * kPageKilobytes);
        if (!disk.isMounted()) {
            GTEST_SKIP() << disk.whyNot();
        }
        begin();
        createInVain(disk.path());
        EXPECT_EQ(step(), QStringLiteral("The new project could not be created.\n\nStep: %1\n%2\n\n"
                                         "Error 61 (Disk full)\n\nWhat was made before remains "
                                         "in the folder.")
                              .arg(QString::fromLatin1(one.step), text(disk.path() / one.file)));
        EXPECT_EQ(readBytes(disk.path() / "Manual.txt"), "the Manual.txt");
        // All files are closed, so the author can throw them away.
        for (const auto& entry : fs::directory_iterator(disk.path())) {
            fs::remove_all(entry.path());
        }
        EXPECT_EQ(fs::space(disk.path()).available, fs::space(disk.path()).capacity);
        boxes.forget();
        create(projects.makeFolder("with room " + std::to_string(one.pages)));
        EXPECT_TRUE(shell->project().ProjectOpen);
        EXPECT_EQ(boxes.texts(), QStringList());
        leave();
    }
}

TEST_F(NewProjectFailures, ASecondTryInTheSameFolderFindsTheRemainsOfTheFirst) {
    begin();
    fs::remove(install / "QuorvelDefaults/Manual.txt");
    writeBytes(projects / "notes.txt", "the author's own");
    withNewProject([&](QWidget& window) {
        choose(window, projects.path());
        button(window, "Command2").click();
        EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Step: Copying 'Manual.txt'\n"));
        boxes.forget();

        writeBytes(install / "QuorvelDefaults/Manual.txt", "found again");
        button(window, "Command2").click();
        EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Step: Making the folders\n"));
        EXPECT_THAT(step().toStdString(),
                    ::testing::HasSubstr((projects / "resource").string() + "\n"));
        boxes.forget();

        fs::remove_all(projects / "resource");
        button(window, "Command2").click();
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(boxes.texts(), QStringList());
    EXPECT_EQ(readBytes(projects / "Manual.txt"), "found again");
    EXPECT_EQ(readBytes(projects / "notes.txt"), "the author's own");
    EXPECT_EQ(reader->tips, std::vector<int>{7});
}

TEST_F(NewProjectFailures, TheProjectThatWasOpenIsClosedInOrderBefore) {
    files = ProjectBuilder().fileName("Old.qvl").scenes(3).build(projects.makeFolder("old"));
    begin();
    EXPECT_TRUE(shell->openProject(text(files.projectPath())));
    shell->scene().header(store::HeaderString::SceneName) = "Saved late";
    const fs::path folder = projects.makeFolder("new");
    fs::create_directory(folder / "resource");
    createInVain(folder);
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Step: Making the folders\n"));
    EXPECT_EQ(readBytes(files.storePath(1), 0, 10), "Saved late");
    EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel"));
    EXPECT_EQ(shell->settings().RecentProj[0], text(files.projectPath())) << "a click away";
    boxes.forget();
    action(QStringLiteral("Filemen(9)")).trigger();
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(shell->project().NumberOfScenes, 3);
    EXPECT_EQ(boxes.texts(), QStringList());
}

TEST_F(NewProjectFailures, AProjectWithoutItsStoresIsToldInOneBoxWhenItIsOpened) {
    const SmallDisk disk(16);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    begin();
    createInVain(disk.path());
    boxes.forget();
    EXPECT_FALSE(shell->openProject(text(disk.path() / "Project.qvl")));
    EXPECT_EQ(boxes.shown().size(), 1U) << boxes.texts().join(QLatin1Char('|')).toStdString();
    EXPECT_FALSE(shell->project().ProjectOpen);
    EXPECT_FALSE(shell->settings().hasRecent(1)) << "nothing to come back to";
}

}  // namespace
}  // namespace quorvel::test
