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

TEST_F(NewProjectFailures, ANameThatCannotBeAFilesGetsWordsOnWhatCan) {
    begin();
    struct Case {
        const char* name;
        const char* reason;
    };
    for (const Case& one :
         {Case{"", "The filename is empty."}, Case{"  ", "The filename is empty."},
          Case{"a/b",
               "It has a character that a Windows filename cannot have:  < > : \" / \\ | ? "
               "*  or a control character."},
          Case{"what?",
               "It has a character that a Windows filename cannot have:  < > : \" / \\ | "
               "? *  or a control character."},
          Case{" a", "It begins or ends with a blank."},
          Case{"nul", "On Windows it is the name of a device."},
          Case{"\xCE\xB1",
               "It has a character that a game cannot keep: only those of the Windows character "
               "set for Western Europe (1252) are possible."}}) {
        SCOPED_TRACE(one.name);
        withNewProject([&](QWidget& window) {
            choose(window, projects.path());
            QLineEdit& box = field(window, "Text2");
            box.setText(QString::fromUtf8(one.name));
            button(window, "Command2").click();
            EXPECT_TRUE(window.isVisible());
            EXPECT_EQ(window.focusWidget(), &box);
            EXPECT_EQ(box.selectedText(), QString::fromUtf8(one.name));
        });
        EXPECT_EQ(step(), QStringLiteral("A project cannot have the filename \"%1\".\n\n%2\n\nA "
                                         "filename has 1 to 11 characters.  Letters, digits and "
                                         "blanks between them can be used, and marks such as - _ ! "
                                         "( ).")
                              .arg(QString::fromUtf8(one.name), QString::fromUtf8(one.reason)));
        EXPECT_TRUE(fs::is_empty(projects.path()));
        boxes.forget();
    }
}

TEST_F(NewProjectFailures, WhatWouldBeReplacedIsNamedFirst) {
    begin();
    for (const char* name : {"README.txt", "Manual.txt", "PROJECT.QVL", "notes.txt"}) {
        writeBytes(projects / name, "the author's own");
    }
    projects.makeFolder("pictures");
    const auto before = snapshotOf(projects.path());
    boxes.answer(forms::Answer::no);
    createInVain(projects.path());
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
    ASSERT_EQ(boxes.shown().size(), 1U) << "one question";
    const forms::Box& box = boxes.shown().front();
    EXPECT_EQ(box.text,
              QStringLiteral("The new project would replace:\n\nManual.txt\nPROJECT.QVL\n"
                             "README.txt\n\nin the folder:\n\n%1/\n\n2 other files and folders in "
                             "it would stay.\n\nDo you want to make the new project there all the "
                             "same?")
                  .arg(text(projects.path())));
    EXPECT_EQ(box.title, QStringLiteral("New Project"));
    EXPECT_EQ(box.buttons, forms::Box::Buttons::yesNo);
    EXPECT_TRUE(box.destroys);
    boxes.forget();

    boxes.answer(forms::Answer::yes);
    create(projects.path());
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(readBytes(projects / "README.txt"), "the ReadMe.txt");
    EXPECT_EQ(readBytes(projects / "Manual.txt"), "the Manual.txt");
    EXPECT_EQ(readBytes(projects / "notes.txt"), "the author's own");
    EXPECT_TRUE(shell->CloseProject());
    std::string names;
    for (const auto& [name, bytes] : snapshotOf(projects.path())) {
        names += name.ends_with(".qvl") || name.ends_with(".QVL") ? name + " " : "";
    }
    EXPECT_EQ(names, "Project.qvl ") << "no second one beside another spelling";
}

TEST_F(NewProjectFailures, AFolderWithOtherThingsAloneIsAskedForToo) {
    begin();
    writeBytes(projects / ".hidden", "x");
    boxes.answer(forms::Answer::no);
    createInVain(projects.path());
    EXPECT_EQ(boxes.texts(),
              QStringList{QStringLiteral("Nothing would be replaced, but the folder is not empty:"
                                         "\n\n%1/\n\nOne other file or folder in it would stay.\n\n"
                                         "Do you want to make the new project there all the same?")
                              .arg(text(projects.path()))});
}

TEST_F(NewProjectFailures, AProjectFileThatLeadsElsewhereIsReplacedAndNotFollowed) {
    begin();
    const fs::path elsewhere = home / "elsewhere.txt";
    writeBytes(elsewhere, "somebody's text");
    fs::create_symlink(elsewhere, projects / "Project.qvl");
    boxes.answer(forms::Answer::yes);
    create(projects.path());
    EXPECT_TRUE(shell->CloseProject());
    EXPECT_EQ(readBytes(elsewhere), "somebody's text");
    EXPECT_FALSE(fs::is_symlink(projects / "Project.qvl"));
}

TEST_F(NewProjectFailures, AFolderInTheWayOfTheProjectFileStays) {
    begin();
    fs::create_directory(projects / "Project.qvl");
    boxes.answer(forms::Answer::yes);
    withNewProject([&](QWidget& window) {
        choose(window, projects.path());
        button(window, "Command2").click();
        EXPECT_TRUE(window.isVisible());
    });
    ASSERT_EQ(boxes.shown().size(), 2U);
    EXPECT_THAT(boxes.texts().back().toStdString(),
                ::testing::HasSubstr("Step: Writing the project file\n"));
    EXPECT_TRUE(fs::is_directory(projects / "Project.qvl"));
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
        boxes.answer(forms::Answer::yes);
        button(window, "Command2").click();
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_TRUE(shell->project().ProjectOpen);
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_THAT(boxes.texts().front().toStdString(),
                ::testing::StartsWith("The new project would replace:\n\nGame.exe\nReadMe.txt\n"));
    EXPECT_EQ(readBytes(projects / "Manual.txt"), "found again");
    EXPECT_EQ(reader->tips, std::vector<int>{7});
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
