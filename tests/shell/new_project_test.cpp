// Making a new project through its window.
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <QTimer>

#include "shell/new_project_stage.h"
#include "store/objects.h"
#include "store/security.h"
#include "support/gif_bytes.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

using NewProject = NewProjectStage;

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
        EXPECT_EQ(button(window, "Command1").text(), QStringLiteral("Choose Folder"));
        EXPECT_EQ(button(window, "Command3").text(), QStringLiteral("Cancel"));
        EXPECT_EQ(button(window, "Command5").text(), QStringLiteral("Help"));
    });
}

/// The widest run of columns without ink between inked ones, over all lines of `picture`.
int widestGap(const QImage& picture, int line) {
    const QRgb paper = picture.pixel(picture.width() - 1, picture.height() - 1);
    int widest = 0;
    for (int top = 0; top + line <= picture.height(); top += line) {
        int last = -1;
        for (int x = 0; x < picture.width(); ++x) {
            bool ink = false;
            for (int y = top; y < top + line && !ink; ++y) {
                ink = picture.pixel(x, y) != paper;
            }
            if (ink) {
                widest = std::max(widest, last < 0 ? 0 : x - last - 1);
                last = x;
            }
        }
    }
    return widest;
}

TEST_F(NewProject, OnlyThePaintingClosesTheGapsOfTheTip) {
    begin();
    withNewProject([&](QWidget& window) {
        auto& tip = control<QLabel>(window, QStringLiteral("Label7"));
        const QString text = QStringLiteral(
            "TIP- You can create a new folder by clicking on the            button in the 'Choose "
            "           Folder' Dialog Box.  After creating a new folder, be sure to double-click "
            "it to choose it!");
        EXPECT_EQ(tip.text(), text);
        const QFontMetrics metrics = tip.fontMetrics();
        const int blank = metrics.horizontalAdvance(QLatin1Char(' '));
        const auto gapAt = [&](int width) {
            tip.setFixedWidth(width);
            tip.setFixedHeight(tip.heightForWidth(width));
            return widestGap(tip.grab().toImage(), metrics.height());
        };
        for (const int width : {tip.width(), 420, 2000}) {
            SCOPED_TRACE(width);
            EXPECT_LT(gapAt(width), 4 * blank) << "two blanks follow a sentence, twelve nothing";
        }
    });
}

TEST_F(NewProject, ThePictureOfTheButtonStandsInTheTipHoweverHighItIs) {
    begin();
    withNewProject([&](QWidget& window) {
        auto& tip = control<QLabel>(window, QStringLiteral("Label7"));
        const auto picture = [&tip](int height) {
            tip.setFixedHeight(height);
            tip.resize(tip.width(), height);
            return tip.grab().toImage();
        };
        const int usual = tip.height();
        const QImage asUsual = picture(usual);
        const QImage higher = picture(usual + 60);
        EXPECT_EQ(higher.copy(asUsual.rect()), asUsual) << "text and picture stay at the top";
        QSet<QRgb> colours;
        for (int x = 0; x < asUsual.width(); ++x) {
            for (int y = 0; y < asUsual.height(); ++y) {
                const QColor colour = asUsual.pixelColor(x, y);
                if (colour.saturation() > 60) {
                    colours.insert(colour.rgb());
                }
            }
        }
        EXPECT_FALSE(colours.isEmpty()) << "there is a picture";
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

TEST_F(NewProject, TheWholePathIsShownBeforeItIsMade) {
    begin();
    const fs::path game = projects.makeFolder("A Game");
    fs::create_symlink(game, projects / "link");
    withNewProject([&](QWidget& window) {
        auto& path = control<QLabel>(window, QStringLiteral("NoteOfPath"));
        EXPECT_FALSE(path.isVisible()) << "there is no folder yet";
        choose(window, projects / "link");
        EXPECT_TRUE(path.isVisible());
        EXPECT_EQ(path.text(),
                  QStringLiteral("Will be made:  ") + text(game) + QStringLiteral("/Project.qvl"));
        field(window, "Text2").setText(QStringLiteral("Castle.QVL"));
        EXPECT_EQ(path.text(),
                  QStringLiteral("Will be made:  ") + text(game) + QStringLiteral("/Castle.qvl"));
        field(window, "Text2").clear();
        EXPECT_FALSE(path.isVisible());
        field(window, "Text2").setText(QStringLiteral("Castle"));
        button(window, "Command2").click();
    });
    EXPECT_TRUE(fs::exists(game / "Castle.qvl"));
}

TEST_F(NewProject, TheEndingIsTakenOffBeforeTheCharactersAreCounted) {
    begin();
    withNewProject([&](QWidget& window) {
        QLineEdit& box = field(window, "Text2");
        auto& note = control<QLabel>(window, QStringLiteral("NoteOfText2"));
        const auto type = [&](const char* name) {
            box.setFocus();
            box.selectAll();
            QTest::keyClick(&box, Qt::Key_Backspace);
            QTest::keyClicks(&box, QString::fromLatin1(name));
            const bool isCut = note.isVisible();
            window.setFocus();  // leaves the box
            EXPECT_EQ(note.isVisible(), isCut);
            return std::pair(box.text().toStdString(), isCut);
        };
        const auto whole = [](const char* name) { return std::pair(std::string(name), false); };
        const auto cut = [](const char* name) { return std::pair(std::string(name), true); };
        EXPECT_EQ(type("Castle"), whole("Castle"));
        EXPECT_EQ(type("Castle.qvl"), whole("Castle"));
        EXPECT_EQ(type("Castle.Qvl"), whole("Castle"));
        EXPECT_EQ(type("ElevenChars"), whole("ElevenChars"));
        EXPECT_EQ(type("ElevenChars.qvl"), whole("ElevenChars"));
        EXPECT_EQ(type("Castle.qvx"), whole("Castle.qvx"));
        EXPECT_EQ(type("TwelveLetter"), cut("TwelveLette"));
        EXPECT_EQ(note.text(),
                  QStringLiteral("A project's filename has at most 11 characters.  The "
                                 "rest was cut off."));
        box.setText(QStringLiteral("TwelveLetter.qvl"));
        EXPECT_TRUE(note.isVisible()) << "pasted";
        EXPECT_EQ(box.text(), QStringLiteral("TwelveLette.qvl"));
        box.setText(QStringLiteral("Castle"));
        EXPECT_FALSE(note.isVisible()) << "nothing was cut";
    });
}

TEST_F(NewProject, AnEndingThatWasTypedIsNotGivenTwice) {
    begin();
    create(projects.path(), "ElevenChars.qvl");
    EXPECT_EQ(shell->project().ProjectFileName, "ElevenChars.qvl");
    EXPECT_TRUE(fs::exists(projects / "ElevenChars.qvl"));
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

/// Notes the names of all windows that are shown while it lives.
class ShownWindows : public QObject {
  public:
    ShownWindows() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show && watched->isWidgetType() &&
            static_cast<QWidget*>(watched)->isWindow()) {
            names.insert(watched->objectName());
        }
        return false;
    }
    QSet<QString> names;
};

TEST_F(NewProject, ItOpensWithoutTheProgressWindow) {
    begin();
    const ShownWindows shown;
    create(projects.path());
    EXPECT_TRUE(shown.names.contains(QStringLiteral("NewProject")));
    EXPECT_FALSE(shown.names.contains(QStringLiteral("OpenProj")));
    EXPECT_TRUE(shell->CloseProject());
    EXPECT_TRUE(shell->openProject(text(projects / "Project.qvl")));
    EXPECT_TRUE(shown.names.contains(QStringLiteral("OpenProj"))) << "as any other does";
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

TEST_F(NewProject, TheProjectBeforeLeavesNoNumbersInIt) {
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
    EXPECT_TRUE(shell->CloseProject());
    create(projects.makeFolder("new"));
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

TEST_F(NewProject, NothingOfTheProjectBeforeIsLeftInIt) {
    files = ProjectBuilder()
                .version(301)
                .scene(1, "Hall", "hall.bmp")
                .gfx("hall.bmp", bmpBytes(700, 475, 0x2040C0))
                .object(1, 3, 5, 10, 10)
                .build(projects.makeFolder("old"));
    begin();
    boxes.answer(forms::Answer::yes);
    EXPECT_TRUE(shell->openProject(text(files.projectPath())));
    boxes.forget();
    action(QStringLiteral("Toolbar1(7)")).trigger();
    EXPECT_TRUE(shell->CloseProject());
    create(projects.makeFolder("new"));
    EXPECT_EQ(shell->scene().header(store::HeaderString::SceneImage), "");
    EXPECT_EQ(store::number(shell->scene().slot(3), store::kType), -1) << "a free slot";
    const QImage canvas = element(QStringLiteral("Image1")).grab().toImage();
    EXPECT_NE(canvas.pixelColor(350, 240), QColor(0x2040C0)) << "the old picture is gone";
    EXPECT_FALSE(action(QStringLiteral("Toolbar1(7)")).isChecked()) << "its borders are off";
    EXPECT_TRUE(shell->CloseProject());
    EXPECT_EQ(readInt(projects / "new/Project.qvl", 310), 300) << "ProjectVersion, not the old 301";
    EXPECT_EQ(boxes.texts(), QStringList());
}

TEST_F(NewProject, TheCodeIsWithinItsRange) {
    begin();
    nextRandom = 0;
    create(projects.makeFolder("a"));
    EXPECT_EQ(shell->project().SecurityCode, 1);
    EXPECT_TRUE(shell->CloseProject());
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

class KilledNewProject : public NewProjectStage {
  protected:
    /// Leaves a project as it is when the computer fails before its first close.
    fs::path kill() {
        create(projects.makeFolder("first"));
        shell->scene().header(store::HeaderString::SceneName) = "The harbour";
        action(QStringLiteral("runmen(0)")).trigger();  // saves the scene
        const fs::path killed = projects / "killed";
        fs::copy(projects / "first", killed, fs::copy_options::recursive);
        EXPECT_TRUE(shell->CloseProject());
        return killed;
    }
};

TEST_F(KilledNewProject, IsReportedInOneBox) {
    begin();
    const fs::path killed = kill();
    EXPECT_FALSE(shell->openProject(text(killed / "Project.qvl")));
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown().front().title, QStringLiteral("Error loading project!"));
    EXPECT_EQ(boxes.texts().front(), QStringLiteral(" Project Security Failure: Quorvel1.dat\n"
                                                    " Project Security Failure: Quorvel2.dat\n"
                                                    " Project Security Failure: Quorvel4.dat\n"));
}

TEST_F(KilledNewProject, OpensWithTheProjectFileOfAnother) {
    begin();
    const fs::path killed = kill();
    create(projects.makeFolder("second"));
    EXPECT_TRUE(shell->CloseProject());
    fs::copy_file(projects / "second/Project.qvl", killed / "Project.qvl",
                  fs::copy_options::overwrite_existing);
    EXPECT_TRUE(shell->openProject(text(killed / "Project.qvl")));
    EXPECT_EQ(shell->scene().header(store::HeaderString::SceneName), "The harbour");
    EXPECT_EQ(boxes.texts(), QStringList());
}

}  // namespace
}  // namespace quorvel::test
