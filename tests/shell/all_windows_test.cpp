// What holds for every window: its controls bear their names, can be read aloud, fit the screen,
// show their texts whole, can be read and are reached by the keyboard. A picture of each window in
// both palettes is left in the folder window-pictures of the build.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTextBrowser>

#include "forms/events.h"
#include "forms/intake_boxes.h"
#include "forms/look.h"
#include "shell/splash.h"
#include "support/windows/other_screen.h"
#include "support/windows/shell_fixture.h"
#include "support/windows/text_contrast.h"
#include "support/windows/window_checks.h"

namespace quorvel::test {
namespace {

using forms::Box;
using forms::Look;

class AllWindows : public ShellFixture, public ::testing::WithParamInterface<Look> {
  protected:
    AllWindows() {
        forms::applyLook(*qApp, GetParam());
        if (qEnvironmentVariableIsSet("QUORVEL_DOUBLE_LETTERS")) {
            QFont font = letters;
            font.setPointSizeF(2 * font.pointSizeF());
            QApplication::setFont(font);
        }
    }
    ~AllWindows() override { QApplication::setFont(letters); }
    const QFont letters = QApplication::font();

    /// Checks a window on each of its pages.
    void check(QWidget& window, const QString& name) {
        auto* pages = window.findChild<QTabBar*>(QStringLiteral("Pages"));
        if (pages == nullptr) {
            checkPage(window, name);
            return;
        }
        for (int page = 0; page < pages->count(); ++page) {
            pages->setCurrentIndex(page);
            checkPage(window, QStringLiteral("%1-%2").arg(name).arg(page + 1));
        }
    }
    void checkPage(QWidget& window, const QString& name) {
        SCOPED_TRACE(name.toStdString());
        forms::letEventsRun();
        picture(window, name);
        expectNames(window);
        expectFits(window);
        expectNoCutText(window);
        expectReadable(window);
        expectTabReachesAll(window);
    }
    /// Checks the window `name`, which the menu entry `entry` opens.
    void checkOpenedBy(const QString& entry, const QString& name) {
        checkShownBy([&] { action(entry).trigger(); }, name);
    }
    void checkShownBy(const std::function<void()>& routine, const QString& name) {
        start({text(someProject().projectPath())});
        withWindow(name, routine, [&](QWidget& window) {
            check(window, name);
            window.close();
        });
    }
    static void picture(QWidget& window, const QString& name) {
        const QDir folder(QCoreApplication::applicationDirPath() +
                          QStringLiteral("/../window-pictures"));
        QDir().mkpath(folder.path());
        const QString look =
            GetParam() == Look::dark ? QStringLiteral("dark") : QStringLiteral("light");
        QString scale;
        if (qEnvironmentVariableIsSet("QUORVEL_SCALED")) {
            scale = QLatin1Char('-') + qEnvironmentVariable("QUORVEL_SCALED");
        }
        const QString file = folder.filePath(QStringLiteral("%1-%2%3.png").arg(name, look, scale));
        EXPECT_TRUE(window.grab().save(file)) << file.toStdString();
    }
    TestProject someProject() {
        return ProjectBuilder()
            .title("The Lighthouse")
            .scenes(3)
            .locations(2)
            .items(2)
            .cards(1)
            .object(1, 1, 5, 40, 40)
            .object(1, 2, 8, 140, 40)
            .object(1, 3, 2, 240, 40)
            .object(1, 4, 7, 340, 40)
            .object(1, 5, 99, 2000, 40)
            .build(projects.makeFolder("The Lighthouse"));
    }
};

TEST_P(AllWindows, Splash) {
    shell::InitQV splash({});
    splash.show();
    forms::letEventsRun();
    picture(splash, QStringLiteral("InitQV"));
    expectFits(splash);
    expectNoCutText(splash);
    expectReadable(splash);
}

TEST_P(AllWindows, MainWithoutAProject) {
    start({}, {1280, 800});
    check(main(), QStringLiteral("Main-empty"));
}

TEST_P(AllWindows, MainWithAProject) {
    start({text(someProject().projectPath())}, {1280, 800});
    check(main(), QStringLiteral("Main"));
}

TEST_P(AllWindows, MainOnASmallScreen) {
    start({text(someProject().projectPath())}, {800, 600});
    main().showNormal();
    main().resize(kScreen - QSize(0, kFrame.height()));
    forms::letEventsRun();
    check(main(), QStringLiteral("Main-800x600"));
}

TEST_P(AllWindows, MainBearsTheNamesOfItsControls) {
    start();
    QStringList names;
    for (const char* one :
         {"Main",     "Toolbar1",    "Picture1", "StatusBar1", "StatusBar2", "Image1",
          "CurScene", "Command5",    "Command6", "Command7",   "Command8",   "Combo1",
          "LocList",  "LocPointers", "MapList",  "InvList",    "CueList",    "ObjAlert",
          "ScnAlert", "RestoreObjs", "ShutDwn",  "Frame1",     "SceneSize"}) {
        names << QString::fromLatin1(one);
    }
    for (int n = 1; n <= 20; ++n) {
        for (const char* array : {"Animation", "NoGIF", "hilite"}) {
            names << QStringLiteral("%1(%2)").arg(QString::fromLatin1(array)).arg(n);
        }
    }
    for (int n = 1; n <= 4; ++n) {
        names << QStringLiteral("Directionl(%1)").arg(n) << QStringLiteral("Shape2(%1)").arg(n);
    }
    for (const QString& name : names) {
        EXPECT_TRUE(main().objectName() == name || main().findChild<QWidget*>(name) != nullptr)
            << name.toStdString();
    }
}

TEST_P(AllWindows, NoNameIsGivenTwice) {
    start({text(someProject().projectPath())});
    std::map<QString, int> count;
    for (const QWidget* widget : main().findChildren<QWidget*>()) {
        if (!widget->objectName().isEmpty() && !isInside(*widget)) {
            ++count[widget->objectName()];
        }
    }
    for (const auto& [name, times] : count) {
        EXPECT_EQ(times, 1) << name.toStdString();
    }
}

TEST_P(AllWindows, OpeningAProject) {
    const TestProject files = someProject();
    start();
    dialogs.choice = text(files.projectPath());
    withWindow(
        QStringLiteral("OpenProj"), [this] { action(QStringLiteral("Filemen(2)")).trigger(); },
        [&](QWidget& window) {
            picture(window, QStringLiteral("OpenProj"));
            expectNames(window);
            expectFits(window);
            expectNoCutText(window);
            expectReadable(window);
        });
}

TEST_P(AllWindows, Menus) {
    start({text(someProject().projectPath())}, {1280, 800});
    for (QAction* head : main().menuBar()->actions()) {
        QMenu* menu = head->menu();
        if (menu == nullptr) {
            continue;
        }
        menu->popup(QPoint(0, 0));
        forms::letEventsRun();
        picture(*menu, QStringLiteral("Menu-") + menu->objectName());
        EXPECT_FALSE(paintedTexts(*menu).empty());
        expectReadable(*menu);
        menu->close();
    }
}

TEST_P(AllWindows, ProjectSecurity) {
    checkOpenedBy(QStringLiteral("projmen(12)"), QStringLiteral("ProjSecurity"));
}

TEST_P(AllWindows, NewProject) {
    start();
    withWindow(
        QStringLiteral("NewProject"), [this] { action(QStringLiteral("Filemen(1)")).trigger(); },
        [&](QWidget& window) {
            check(window, QStringLiteral("NewProject"));
            window.close();
        });
}

TEST_P(AllWindows, NewScene) {
    checkOpenedBy(QStringLiteral("projmen(1)"), QStringLiteral("NewScenefrm"));
}

TEST_P(AllWindows, NewObject) {
    checkOpenedBy(QStringLiteral("scnmen(3)"), QStringLiteral("newlink"));
}

TEST_P(AllWindows, EditorOptions) {
    checkOpenedBy(QStringLiteral("options(1)"), QStringLiteral("EdOptions"));
}

TEST_P(AllWindows, QuickTips) {
    forgetSettings();
    start();
    for (int tip = 1; tip <= shell::kQuickTips; ++tip) {
        withWindow(
            QStringLiteral("QuickTip"), [&] { shell->ShowQuickTip(tip); },
            [&](QWidget& window) {
                check(window, QStringLiteral("QuickTip-%1").arg(tip));
                window.close();
            });
    }
}

TEST_P(AllWindows, TipOfTheDay) {
    checkOpenedBy(QStringLiteral("helpmen(1)"), QStringLiteral("frmTip"));
}

TEST_P(AllWindows, About) {
    checkOpenedBy(QStringLiteral("helpmen(9)"), QStringLiteral("frmAbout"));
}

TEST_P(AllWindows, Help) {
    start();
    for (const forms::HelpPage& page : forms::helpPages()) {
        shell->ShowHelp(page.topic);
        QWidget* window = visibleWindow(QStringLiteral("HelpWindow"));
        ASSERT_NE(window, nullptr);
        // Within a page the Tab key goes from link to link.
        control<QLineEdit>(*window, QStringLiteral("Search")).setFocus();
        const auto* wider =
            control<QTextBrowser>(*window, QStringLiteral("Page")).horizontalScrollBar();
        EXPECT_TRUE(wider->maximum() == 0 || qEnvironmentVariableIsSet("QUORVEL_DOUBLE_LETTERS"))
            << page.file << " is wider than its window";
        check(*window, QStringLiteral("Help-") + QString::fromLatin1(page.file).chopped(5));
    }
    QWidget* window = visibleWindow(QStringLiteral("HelpWindow"));
    auto& search = control<QLineEdit>(*window, QStringLiteral("Search"));
    search.setText(QStringLiteral("scene"));
    search.setFocus();
    check(*window, QStringLiteral("Help-search"));
}

TEST_P(AllWindows, CopyOrMove) {
    forms::IntakeBoxes questions(boxes);
    withWindow(
        QStringLiteral("PickCM"), [&] { questions.copyOrMove(); },
        [&](QWidget& window) {
            check(window, QStringLiteral("PickCM"));
            control<QPushButton>(window, QStringLiteral("Command1(0)")).click();
        });
}

TEST_P(AllWindows, CopyingAFile) {
    forms::CopyingFile window(QStringLiteral("introduction.avi"), nullptr);
    window.show(40, 100);
    check(window, QStringLiteral("CopyingFile"));
}

TEST_P(AllWindows, SizingALink) {
    checkShownBy(
        [this] {
            shell->actions().dragging().CurrentLink = 4;
            shell->actions().showResize();
        },
        QStringLiteral("ResizeD"));
}

/// The windows of a scene with everything in it: that of the sample game.
class AllEditors : public AllWindows {
  protected:
    AllEditors() {
        std::filesystem::copy(QUORVEL_SAMPLE_GAME, projects / "Lantern",
                              std::filesystem::copy_options::recursive);
        start({text(projects / "Lantern" / "Lantern.qvl")});
    }
    void checkEditor(const QString& name, const std::function<void()>& routine) {
        withWindow(name, routine, [&](QWidget& window) {
            check(window, name);
            window.close();
        });
    }
};

TEST_P(AllEditors, Link) {
    shell->scene().LinkUp = {.pointer = 1, .target = 1};
    shell->actions().PopupObject = 2;
    checkEditor(QStringLiteral("directionprop"), [this] {
        Q_EMIT shell->actions().popups().chosen(canvas::PopupMenu::link,
                                                canvas::PopupAction::properties);
    });
}

/// A HotSpot in slot 20 with something in each of its fields.
void fillHotSpot(store::ObjectSlot& slot) {
    using store::HotSpot;
    store::ResetSlot(slot, store::ObjectType::hotSpot, 300, 200);
    store::word(slot, HotSpot::Image) = "Lever.gif";
    store::word(slot, HotSpot::Sound) = "Waves.wav";
    store::word(slot, HotSpot::SuccessSound) = "Click.wav";
    store::number(slot, HotSpot::SoundVolume) = -650;
    store::number(slot, HotSpot::SoundPan) = -1500;
    store::number(slot, HotSpot::TargetScene) = 2;
    store::number(slot, HotSpot::NeedsItem) = 1;
    store::number(slot, HotSpot::NeededItem) = 1;
    store::number(slot, HotSpot::Visibility) = 2;
    store::number(slot, HotSpot::VisibleValue) = -32768;
}

TEST_P(AllEditors, HotSpot) {
    fillHotSpot(shell->scene().slot(20));
    shell->actions().PopupObject = 20;
    checkEditor(QStringLiteral("linkPropf"), [this] { shell->actions().ShowObjectProps(1); });
}

TEST_P(AllEditors, FreshQuickSpot) {
    store::ObjectSlot& slot = shell->scene().slot(20);
    store::ResetSlot(slot, store::ObjectType::hotSpot, 300, 200);
    store::number(slot, store::HotSpot::QuickSpot) = 1;
    store::word(slot, store::HotSpot::QuickHeight) = "40";
    store::word(slot, store::HotSpot::QuickWidth) = "60";
    shell->actions().PopupObject = 20;
    withWindow(
        QStringLiteral("linkPropf"), [this] { shell->actions().ShowObjectProps(1); },
        [this](QWidget& window) {
            check(window, QStringLiteral("linkPropf-quick"));
            window.close();
        });
}

TEST_P(AllEditors, Scene) {
    using store::HeaderInt;
    using store::HeaderString;
    store::Scene& scene = shell->scene();
    scene.header(HeaderInt::SceneCheckFlagOn) = 1;
    scene.header(HeaderInt::SceneCheckFlagId) = 255;
    scene.header(HeaderInt::SceneCheckFlagTarget) = 2;
    scene.header(HeaderString::SceneSoundtrack) = "KeepWaltz.mid";
    scene.header(HeaderString::SceneEnterMovie) = "Beacon.avi";
    scene.header(HeaderInt::SceneEnterMovieVolume) = 60;
    scene.header(HeaderString::SceneSound1File) = "Bell.wav";
    scene.header(HeaderString::SceneSound3File) = "Waves.wav";
    scene.header(HeaderInt::SceneSound3Volume) = -900;
    checkEditor(QStringLiteral("sceneimage"),
                [this] { action(QStringLiteral("scnmen(1)")).trigger(); });
}

TEST_P(AllWindows, Boxes) {
    const std::vector<std::pair<const char*, Box>> boxesToShow = {
        {"Box-plain", {.text = QStringLiteral("Saved folder exists")}},
        {"Box-long",
         {.text = QStringLiteral(
              "One or more of your project's files have the 'Read Only' attribute set.  This "
              "prevents changes you make to your project from being be saved, and can cause "
              "Project Security failures (if on).\n\nIf this project is on a CD-ROM or other "
              "non-writable media, you may browse the project.  However, you must copy it to your "
              "hard drive if you wish to make any changes.\n"),
          .title = QStringLiteral("WARNING: 'Read Only' attribute detected"),
          .icon = Box::Icon::exclamation}},
        {"Box-question",
         {.text = QStringLiteral("Would you like to continue loading the project anyway?"),
          .title = QStringLiteral("Error loading project!"),
          .icon = Box::Icon::critical,
          .buttons = Box::Buttons::yesNo}},
        {"Box-other",
         {.text = QStringLiteral("Quorvel only supports filenames up to 11 characters long (15 "
                                 "including the .xxx extension).\n\nThe file you chose exceeds "
                                 "that limit.  Please rename the file and try again."),
          .other = QStringLiteral("Use \"twelve_char.gif\"")}},
        {"Box-path",
         {.text = QStringLiteral("Could not locate:\n\n/home/") + QString(150, QLatin1Char('x')),
          .title = QStringLiteral("File not found"),
          .icon = Box::Icon::exclamation}},
    };
    forms::MessageBoxes real;
    for (const auto& one : boxesToShow) {
        withWindow(
            QStringLiteral("Box"), [&] { real.show(one.second); },
            [&](QWidget& window) {
                check(window, QString::fromLatin1(one.first));
                window.close();
            });
    }
}

std::string nameOfLook(const ::testing::TestParamInfo<Look>& one) {
    return one.param == Look::dark ? "Dark" : "Light";
}
INSTANTIATE_TEST_SUITE_P(Looks, AllWindows, ::testing::Values(Look::light, Look::dark), nameOfLook);
INSTANTIATE_TEST_SUITE_P(Looks, AllEditors, ::testing::Values(Look::light, Look::dark), nameOfLook);

/// The same windows in a process of its own, with `variable` set, on a screen of `screen` logical
/// pixels, each of them `scale` device pixels wide.
void expectPassWith(const char* variable, const char* value, QSize screen = {1600, 1200},
                    int scale = 1, const char* filter = "Looks/All*") {
    expectTestsPass(QString::fromLatin1(filter), screen,
                    {{QString::fromLatin1(variable), QString::fromLatin1(value)},
                     {QStringLiteral("QUORVEL_SCALED"), QString::fromLatin1(variable)}},
                    scale);
}

TEST(AllWindowsScaled, PassAtDoubleScale) {
    expectPassWith("QT_SCALE_FACTOR", "2");
}

TEST(AllWindowsScaled, PassOnALowScreenOfDoubleScale) {
    // What 1920 by 1080 device pixels are at 200 per cent. The main window fills it: see Screens.
    expectPassWith("QUORVEL_LOW_SCREEN", "1", {960, 540}, 2,
                   "Looks/AllEditors.*:Looks/AllWindows.*-*.Main*");
}

TEST(AllWindowsScaled, PassWithLettersOfDoubleSize) {
    expectPassWith("QUORVEL_DOUBLE_LETTERS", "1");
}

}  // namespace
}  // namespace quorvel::test
