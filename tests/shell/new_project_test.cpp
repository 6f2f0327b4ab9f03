// Making a new project through its window.
#include <gmock/gmock.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "shell/scene_fixture.h"
#include "store/security.h"
#include "support/mounts.h"
#include "support/windows/tip_reader.h"
#include "support/windows/window_checks.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

class NewProject : public SceneFixture {
  protected:
    NewProject() {
        for (const char* name : {"Game.exe", "ReadMe.txt", "Manual.txt"}) {
            writeBytes(install.makeFolder("QuorvelDefaults") / name, std::string("the ") + name);
        }
        fs::permissions(install / "QuorvelDefaults/Game.exe", fs::perms::owner_exec,
                        fs::perm_options::add);
    }
    void begin() {
        start();
        shell->InstallPath = text(install.path()) + QLatin1Char('/');
        reader = std::make_unique<TipReader>(*shell);
    }
    /// Opens the window and lets the author use it. What the author leaves open is closed.
    void withNewProject(const std::function<void(QWidget&)>& author) {
        withWindow(
            QStringLiteral("NewProject"),
            [this] { action(QStringLiteral("Filemen(1)")).trigger(); },
            [&](QWidget& window) {
                author(window);
                if (window.isVisible()) {
                    button(window, "Command3").click();
                }
            });
    }
    static QPushButton& button(const QWidget& window, const char* name) {
        return control<QPushButton>(window, QString::fromLatin1(name));
    }
    static QLineEdit& field(const QWidget& window, const char* name) {
        return control<QLineEdit>(window, QString::fromLatin1(name));
    }
    void choose(const QWidget& window, const fs::path& folder) {
        dialogs.choice = text(folder) + QLatin1Char('/');
        button(window, "Command1").click();
    }
    /// Makes a project in the folder, as an author does who needs no other name.
    void create(const fs::path& folder, const char* name = nullptr) {
        withNewProject([&](QWidget& window) {
            choose(window, folder);
            if (name != nullptr) {
                field(window, "Text2").setText(QString::fromUtf8(name));
            }
            button(window, "Command2").click();
        });
    }
    /// Tries to make a project; the window must be usable afterwards, and no project open.
    void createInVain(const fs::path& folder, const char* name = nullptr) {
        withNewProject([&](QWidget& window) {
            choose(window, folder);
            if (name != nullptr) {
                field(window, "Text2").setText(QString::fromUtf8(name));
            }
            button(window, "Command2").click();
            EXPECT_TRUE(window.isVisible());
            EXPECT_TRUE(button(window, "Command2").isEnabled());
            EXPECT_TRUE(button(window, "Command3").isEnabled());
            EXPECT_FALSE(control<QLabel>(window, QStringLiteral("Label6")).isVisible());
        });
        EXPECT_FALSE(shell->project().ProjectOpen);
        EXPECT_EQ(control<QAction>(main(), QStringLiteral("projfolder")).text(),
                  QStringLiteral("(No Project Loaded)"));
        EXPECT_FALSE(action(QStringLiteral("runmen(0)")).isEnabled());
        EXPECT_EQ(reader->tips, std::vector<int>());
    }
    QString step() {
        EXPECT_EQ(boxes.shown().size(), 1U);
        const forms::Box& box = boxes.shown().back();
        EXPECT_EQ(box.title, QStringLiteral("New Project"));
        EXPECT_EQ(box.icon, forms::Box::Icon::exclamation);
        return box.text;
    }

    TempFolder install;
    std::unique_ptr<TipReader> reader;
};

TEST_F(NewProject, TheWindowSaysWhatToDo) {
    begin();
    withNewProject([&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("New Project"));
        QStringList texts;
        for (const QLabel* label : window.findChildren<QLabel*>()) {
            texts << label->text();
        }
        for (const char* expected :
             {"In order to begin creating a new game, you must choose an EMPTY FOLDER to place "
              "your "
              "Project and Game files into.",
              "Folder >",
              "After you choose your folder, click OK below to copy and create the necessary files "
              "and sub-folders in your new project's folder.  When finished, this window will "
              "disappear and you can begin editing your new game.",
              "Project FILENAME (11 Chars max - Do not include extension) >",
              "Please note that if you decide to cancel this \"new game\", that any NEW folder you "
              "created in the Dialog Box will remain.  You must delete this manually if you wish "
              "to remove it.",
              "TIP- You can create a new folder by clicking on the            button in the "
              "'Choose            Folder' Dialog Box.  After creating a new folder, be sure to "
              "double-click it to choose it!",
              "CREATING NEW PROJECT- PLEASE WAIT..."}) {
            EXPECT_TRUE(texts.contains(QString::fromLatin1(expected))) << expected;
        }
        EXPECT_FALSE(control<QLabel>(window, QStringLiteral("Label6")).isVisible());
        EXPECT_TRUE(field(window, "Text1").isReadOnly());
        EXPECT_EQ(field(window, "Text2").text(), QStringLiteral("Project"));
        EXPECT_EQ(field(window, "Text2").maxLength(), 11);
        EXPECT_EQ(button(window, "Command1").text(), QStringLiteral("Choose Folder"));
        EXPECT_EQ(button(window, "Command3").text(), QStringLiteral("Cancel"));
        EXPECT_EQ(button(window, "Command5").text(), QStringLiteral("Help"));
    });
}

TEST_F(NewProject, OkWaitsForAFolder) {
    begin();
    withNewProject([&](QWidget& window) {
        EXPECT_FALSE(button(window, "Command2").isEnabled());
        dialogs.choice.clear();
        button(window, "Command1").click();
        EXPECT_FALSE(button(window, "Command2").isEnabled()) << "the dialog was left";
        choose(window, projects.path());
        EXPECT_TRUE(button(window, "Command2").isEnabled());
        EXPECT_EQ(field(window, "Text1").text(), text(projects.path()) + QLatin1Char('/'));
        dialogs.choice.clear();
        button(window, "Command1").click();
        EXPECT_EQ(field(window, "Text1").text(), text(projects.path()) + QLatin1Char('/'))
            << "on cancel nothing changes";
        EXPECT_EQ(dialogs.asked.front().title,
                  QStringLiteral("Choose a folder for your new project"));
        EXPECT_EQ(dialogs.asked.front().fileName, QStringLiteral("-Choose an empty folder-"));
    });
    EXPECT_TRUE(fs::is_empty(projects.path())) << "cancelled: nothing has been created";
}

TEST_F(NewProject, EveryFileOfTheProjectIsThere) {
    begin();
    create(projects.path());
    EXPECT_EQ(boxes.texts(), QStringList());
    std::set<std::string> names;
    for (const auto& [name, bytes] : snapshotOf(projects.path())) {
        names.insert(name);
    }
    EXPECT_EQ(names, (std::set<std::string>{"Game.exe", "Manual.txt", "Project.qvl", "ReadMe.txt",
                                            "resource/", "resource/Quorvel1.dat",
                                            "resource/Quorvel2.dat", "resource/Quorvel3.dat",
                                            "resource/Quorvel4.dat", "resource/Quorvel5.dat",
                                            "resource/gfx/", "resource/mmedia/"}));
    for (const char* name : {"Game.exe", "ReadMe.txt", "Manual.txt"}) {
        EXPECT_EQ(readBytes(projects / name), std::string("the ") + name);
    }
    EXPECT_NE(fs::status(projects / "Game.exe").permissions() & fs::perms::owner_exec,
              fs::perms::none);
    EXPECT_EQ(fs::file_size(projects / "Project.qvl"), 342U);
    EXPECT_EQ(fs::file_size(projects / "resource/Quorvel1.dat"), 4395U);
    EXPECT_EQ(fs::file_size(projects / "resource/Quorvel2.dat"), 112U);
    EXPECT_EQ(fs::file_size(projects / "resource/Quorvel3.dat"), 0U);
    EXPECT_EQ(fs::file_size(projects / "resource/Quorvel4.dat"), 908U);
    EXPECT_EQ(fs::file_size(projects / "resource/Quorvel5.dat"), 0U);
    EXPECT_EQ(readInt(projects / "Project.qvl", 304), 1) << "SecurityCode, until the first close";
    EXPECT_EQ(readInt(projects / "Project.qvl", 308), 0) << "LocationCount, until then";
}

TEST_F(NewProject, TheProjectIsOpenAsEveryOther) {
    begin();
    create(projects.path());
    const store::Project& project = shell->project();
    EXPECT_TRUE(project.ProjectOpen);
    EXPECT_FALSE(project.ProjectLoading);
    EXPECT_EQ(project.CurrentScene, 1);
    EXPECT_EQ(project.NumberOfScenes, 1);
    EXPECT_EQ(project.LocationCount, 1);
    EXPECT_EQ(project.ItemCount, 0);
    EXPECT_EQ(project.CueCardCount, 0);
    EXPECT_EQ(project.PlayerName, "Game.exe");
    EXPECT_FALSE(project.SecurityOn);
    EXPECT_EQ(project.SecurityCode, 2501) << "half of 5000, and 1";
    EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel - Untitled"));
    EXPECT_EQ(control<QLineEdit>(main(), QStringLiteral("CurScene")).text(), QStringLiteral("1"));
    EXPECT_EQ(control<QAction>(main(), QStringLiteral("projfolder")).text(),
              QStringLiteral("Project Folder is ") + text(projects.path()) + QLatin1Char('/'));
    EXPECT_TRUE(action(QStringLiteral("runmen(0)")).isEnabled());
    EXPECT_TRUE(action(QStringLiteral("scnmen(3)")).isEnabled());
    EXPECT_TRUE(element(QStringLiteral("Image1")).isVisible());
    for (int n = 1; n <= 4; ++n) {
        EXPECT_TRUE(link(n).isVisible()) << n;
    }
    EXPECT_EQ(shell->settings().RecentProj[0], text(projects / "Project.qvl"));
    EXPECT_TRUE(action(QStringLiteral("Filemen(9)")).isEnabled());
    EXPECT_EQ(reader->tips, std::vector<int>{7});
}

TEST_F(NewProject, ItClosesAndOpensAgain) {
    begin();
    create(projects.path(), "Castle");
    EXPECT_TRUE(shell->CloseProject());
    EXPECT_EQ(readInt(projects / "Castle.qvl", 304), 0) << "security is off";
    EXPECT_EQ(readInt(projects / "Castle.qvl", 308), 1);
    EXPECT_EQ(readBytes(projects / "Castle.qvl", 0, 14), "Your Name Here");
    EXPECT_FALSE(fs::exists(projects / "Saved"));
    EXPECT_TRUE(shell->openProject(text(projects / "Castle.qvl")));
    EXPECT_EQ(boxes.texts(), QStringList());
}

TEST_F(NewProject, TheEmptyStoresPassTheSecurityPass) {
    begin();
    create(projects.path());
    const auto copy = projects.path().string() + "-killed";
    fs::copy(projects.path(), copy, fs::copy_options::recursive);
    store::Project project;
    project.ProjectFolder = copy + "/";
    project.ProjectFileName = "Project.qvl";
    project.takeProjectRecord(project.openProjectFile());
    EXPECT_EQ(store::checkSecurity(project).mismatches, (std::vector<int>{1, 2, 4}))
        << "a project that was killed before its first close";
    project.closeFiles();
    fs::remove_all(copy);
}

TEST_F(NewProject, AFolderOfTheProjectInAnyLetterCaseIsInTheWay) {
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
                                 "folders\n%1\n\nError 75 (Path/File access error)\n\nWhat "
                                 "was made before remains in the folder.")
                      .arg(text(folder / name)));
        boxes.forget();
    }
}

TEST_F(NewProject, AMissingFileOfTheDefaultsIsNamed) {
    begin();
    fs::remove(install / "QuorvelDefaults/Manual.txt");
    createInVain(projects.path());
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Step: Copying 'Manual.txt'\n"));
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Error 53 (File not found)"));
    EXPECT_TRUE(fs::exists(projects / "Game.exe")) << "what was made before remains";
    EXPECT_FALSE(fs::exists(projects / "Project.qvl"));
}

TEST_F(NewProject, AMissingPlayerIsNamed) {
    begin();
    fs::remove(install / "QuorvelDefaults/Game.exe");
    createInVain(projects.path());
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Step: Copying 'Game.exe'\n"));
}

TEST_F(NewProject, AFullDiskIsToldAndTheNextTrySucceeds) {
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

TEST_F(NewProject, AFolderWithoutTheRightToWriteIsTold) {
    const ReadOnlyMount disc(projects.path());
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    begin();
    createInVain(projects.path());
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Step: Making the folders\n"));
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Error 75 "));
}

TEST_F(NewProject, AFolderThatIsGoneIsTold) {
    begin();
    createInVain(projects / "gone");
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Error 76 (Path not found)"));
}

TEST_F(NewProject, ANameThatIsNoneIsTold) {
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

TEST_F(NewProject, AProjectFileThatLiesThereIsKept) {
    begin();
    writeBytes(projects / "PROJECT.QVL", "somebody's project");
    createInVain(projects.path());
    EXPECT_THAT(step().toStdString(), ::testing::HasSubstr("Error 58 (File already exists)"));
    EXPECT_EQ(readBytes(projects / "PROJECT.QVL"), "somebody's project");
    boxes.forget();
    create(projects.path(), "Another");
    EXPECT_TRUE(shell->project().ProjectOpen);
}

TEST_F(NewProject, TheOpenProjectIsClosedInOrderFirst) {
    files = ProjectBuilder()
                .fileName("Old.qvl")
                .author("Ann")
                .scenes(3)
                .items(2)
                .cards(2)
                .currentItem(2)
                .currentCueCard(2)
                .securityCode(77)
                .build(projects.makeFolder("old"));
    begin();
    EXPECT_TRUE(shell->openProject(text(files.projectPath())));
    shell->scene().header(store::HeaderString::SceneName) = "Saved late";
    create(projects.makeFolder("new"));
    EXPECT_EQ(readBytes(files.storePath(1), 0, 10), "Saved late");
    const store::Project& project = shell->project();
    EXPECT_EQ(project.ProjectFileName, "Project.qvl");
    EXPECT_EQ(project.CurrentItem, 0);
    EXPECT_EQ(project.CurrentCueCard, 0);
    EXPECT_EQ(project.Author, "Your Name Here");
    EXPECT_FALSE(project.SecurityOn);
    EXPECT_EQ(control<QComboBox>(main(), QStringLiteral("Combo1")).count(), 2);
    EXPECT_EQ(boxes.texts(), QStringList());
    EXPECT_EQ(text(projects.path()), dialogs.asked.back().folder) << "beside the last project";
}

TEST_F(NewProject, AProjectThatTheAuthorKeepsStaysOpen) {
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

TEST_F(NewProject, EscapeDoesNotInterruptTheWork) {
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

TEST_F(NewProject, TheCodeIsWithinItsRange) {
    begin();
    nextRandom = 0;
    create(projects.makeFolder("a"));
    EXPECT_EQ(shell->project().SecurityCode, 1);
    nextRandom = 0.99999999;
    create(projects.makeFolder("b"));
    EXPECT_EQ(shell->project().SecurityCode, 5000);
}

TEST_F(NewProject, TheSystemMayEndTheEditorInTheMiddle) {
    begin();
    const fs::path folder = projects.makeFolder("cut off");
    withNewProject([&](QWidget& window) {
        choose(window, folder);
        QTimer::singleShot(0, [this] { shell->endByRequest(); });
        button(window, "Command2").click();
    });
    ASSERT_TRUE(waitUntil([this] { return quits == 1; }));
    EXPECT_FALSE(shell->project().ProjectOpen);
    shell.reset();
    if (!fs::exists(folder / "Project.qvl")) {
        return;  // the request came first: nothing was begun
    }
    start({text(folder / "Project.qvl")});
    EXPECT_TRUE(shell->project().ProjectOpen) << boxes.texts().join(QLatin1Char('|')).toStdString();
}

}  // namespace
}  // namespace quorvel::test
