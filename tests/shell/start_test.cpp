// The start of the process: the screen, the main window's size, an end at each stage, a second
// start.
#include "shell/start.h"

#include <gtest/gtest.h>
#include <vector>

#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QRandomGenerator>
#include <QTest>
#include <QTimer>

#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

using forms::Answer;
using forms::Box;

class Start : public ShellFixture {
  protected:
    /// An editor that has not been started, for a screen of `screen` pixels.
    void makeShell(QSize screen, const QStringList& arguments = {}) {
        shell = std::make_unique<shell::Shell>(surroundings(arguments, screen));
    }
    const QString name =
        QStringLiteral("quorvel-test-%1").arg(QRandomGenerator::global()->generate());
};

TEST_F(Start, AScreenOf800By600IsLargeEnough) {
    makeShell({800, 600});
    EXPECT_TRUE(shell->CheckRes());
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(Start, ASmallerScreenAsks) {
    makeShell({799, 600});
    boxes.answer(Answer::ok);
    EXPECT_TRUE(shell->CheckRes()) << "OK goes on";
    ASSERT_EQ(boxes.shown().size(), 1U);
    const Box& box = boxes.shown().front();
    EXPECT_EQ(box.title, QStringLiteral("Incorrect Screen Resolution"));
    EXPECT_EQ(box.icon, Box::Icon::exclamation);
    EXPECT_EQ(box.buttons, Box::Buttons::okCancel);
    EXPECT_EQ(box.text,
              QStringLiteral(
                  "This application requires a MINIMUM screen resolution of 800x600.\n\nYour "
                  "current screen resolution is 799x600.\n\nClick 'OK' to change your screen "
                  "resolution and continue running this application (your current screen "
                  "resolution will be restored when this application finishes).  Click 'Cancel' "
                  "to exit the application without making any changes."));
}

TEST_F(Start, EitherSideOfTheScreenCounts) {
    makeShell({1920, 599});
    boxes.answer(Answer::cancel);
    EXPECT_FALSE(shell->CheckRes());
    EXPECT_EQ(boxes.shown().size(), 1U);
}

TEST_F(Start, CancelEndsBeforeAnyWindow) {
    makeShell({640, 480});
    boxes.answer(Answer::cancel);
    shell::SingleInstance instance(name);
    shell::StartForm form(*shell, instance);
    EXPECT_FALSE(form.begin());
    EXPECT_EQ(visibleWindow(QStringLiteral("InitQV")), nullptr);
    EXPECT_EQ(visibleWindow(QStringLiteral("Main")), nullptr);
}

TEST_F(Start, ALargerScreenGives800By540BelowTheMenuBar) {
    start({}, {1280, 800});
    EXPECT_EQ(main().width(), 800);
    EXPECT_EQ(main().height() - main().menuBar()->height(), 540);
    EXPECT_FALSE(main().isMaximized());
    EXPECT_TRUE(main().isVisible());
}

TEST_F(Start, AScreenOf800By600IsFilled) {
    start({}, {800, 600});
    EXPECT_TRUE(main().isMaximized());
    EXPECT_EQ(main().normalGeometry().size(), QSize(800, 600));
}

TEST_F(Start, AWideButLowScreenIsFilledToo) {
    start({}, {1024, 600});
    EXPECT_TRUE(main().isMaximized());
}

TEST_F(Start, TheEditorRunsFromTheEndOfTheStart) {
    makeShell({1280, 800});
    EXPECT_FALSE(shell->EditorRunning);
    for (const auto& loadForm : shell->loadForms()) {
        loadForm();
    }
    EXPECT_FALSE(shell->EditorRunning);
    EXPECT_FALSE(main().isVisible());
    EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel"));
    EXPECT_EQ(action(QStringLiteral("projfolder")).text(), QStringLiteral("(No Project Loaded)"));
    EXPECT_FALSE(main().view().animationsOn());
    EXPECT_FALSE(main().view().bordersOn());
    shell->InitializeEditor();
    EXPECT_TRUE(shell->EditorRunning);
    EXPECT_TRUE(shell->InstallPath.endsWith(QLatin1Char('/')));
    EXPECT_TRUE(shell->HelpFile.startsWith(shell->InstallPath));
}

// The system ends the editor at each stage of its start

class EndedStart : public Start {
  protected:
    /// Starts as the program does, with a splash; `atStage` is asked for as long as the editor
    /// lives and says that its stage is there.
    void endAt(const std::function<bool()>& atStage) {
        shell::SingleInstance instance(name);
        shell::StartForm form(*shell, instance);
        ASSERT_TRUE(form.begin());
        bool reached = false;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            if (!reached && atStage()) {
                reached = true;
                shell->endByRequest();
            }
        });
        look.start(1);
        ASSERT_TRUE(waitUntil([this] { return quits == 1; }, 60000));
        EXPECT_TRUE(reached);
        look.stop();
        EXPECT_TRUE(boxes.shown().empty()) << boxes.texts().join(u'|').toStdString();
        QWidget* splash = visibleWindow(QStringLiteral("InitQV"));
        if (splash != nullptr) {  // the end of the loop takes it away
            QTest::mouseClick(splash, Qt::LeftButton);
        }
        EXPECT_EQ(visibleWindow(QStringLiteral("Main")), nullptr);
        EXPECT_EQ(visibleWindow(QStringLiteral("InitQV")), nullptr);
        EXPECT_EQ(quits, 1);
        shell.reset();
    }
    static bool isShown(const char* window) {
        return visibleWindow(QString::fromLatin1(window)) != nullptr;
    }
    static QString splashText() {
        return control<QLabel>(*visibleWindow(QStringLiteral("InitQV")), QStringLiteral("Label1"))
            .text();
    }
    static int barValue() {
        return control<QProgressBar>(*visibleWindow(QStringLiteral("InitQV")),
                                     QStringLiteral("ProgressBar1"))
            .value();
    }
};

TEST_F(EndedStart, BeforeTheFormsAreLoaded) {
    makeShell({1280, 800});
    endAt([] { return isShown("InitQV"); });
}

TEST_F(EndedStart, WhileTheBarMoves) {
    makeShell({1280, 800});
    endAt([] { return isShown("InitQV") && barValue() > 2; });
}

TEST_F(EndedStart, WhileItSaysStartingQuorvel) {
    makeShell({1280, 800});
    endAt([] { return isShown("InitQV") && splashText() == QStringLiteral("Starting Quorvel"); });
}

TEST_F(EndedStart, BetweenTheStepsOfTheLastStage) {
    makeShell({1280, 800});
    for (const auto& loadForm : shell->loadForms()) {
        loadForm();
    }
    QTimer::singleShot(0, [this] { shell->endByRequest(); });
    shell->InitializeEditor();
    EXPECT_EQ(quits, 1);
    EXPECT_FALSE(main().isVisible());
    EXPECT_FALSE(shell->EditorRunning);
}

TEST_F(EndedStart, WhileAProjectOfTheCommandLineOpens) {
    const TestProject files = ProjectBuilder().scenes(3).build(projects.path());
    const FolderSnapshot before = snapshotOf(projects.path());
    makeShell({1280, 800}, {text(files.projectPath()), text(files.projectPath())});
    endAt([] { return isShown("OpenProj"); });
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
}

TEST_F(EndedStart, WhileTheTipOfTheDayStands) {
    forgetSettings();
    makeShell({1280, 800});
    endAt([] { return isShown("frmTip"); });
}

TEST_F(EndedStart, WhileTheSplashLetsEventsRun) {
    makeShell({1280, 800});
    std::vector<std::function<void()>> forms = shell->loadForms();
    forms.insert(forms.begin(),
                 [this] { QTimer::singleShot(0, [this] { shell->endByRequest(); }); });
    shell::InitQV splash({forms, [this] { shell->InitializeEditor(); }});
    splash.show();
    QTest::mouseClick(&splash, Qt::LeftButton);
    EXPECT_EQ(quits, 1);
    EXPECT_FALSE(splash.isVisible());
    EXPECT_EQ(visibleWindow(QStringLiteral("Main")), nullptr);
}

TEST_F(Start, AMissingProjectIsToldToWhoeverStartedTheProgramToo) {
    const QString missing = text(projects / "none.qvl");
    start({missing});
    EXPECT_EQ(complaints, QStringList{QStringLiteral("File not found: ") + missing});
    EXPECT_FALSE(boxes.shown().empty());
    EXPECT_TRUE(main().isVisible());
    EXPECT_EQ(quits, 0);
}

TEST_F(Start, ASecondEditorShowsNothingAndActivatesTheFirst) {
    shell::SingleInstance instance(name);
    makeShell({1280, 800});
    shell::StartForm form(*shell, instance);
    ASSERT_TRUE(form.begin());
    ASSERT_TRUE(waitUntil([&] { return visibleWindow(QStringLiteral("Main")) != nullptr; }, 15000));
    ASSERT_TRUE(waitUntil([&] { return visibleWindow(QStringLiteral("InitQV")) == nullptr; }));
    main().showMinimized();

    PlayedBoxes otherBoxes;
    shell::Shell other({.boxes = otherBoxes,
                        .dialogs = dialogs,
                        .programs = programs,
                        .screens =
                            [] {
                                const QRect small(0, 0, 640, 480);
                                return std::vector{shell::ScreenPlace{small, small}};
                            },
                        .random = [] { return 0.5; },
                        .quit = [] {},
                        .beep = [] {},
                        .complain = [](const QString& /*line*/) {},
                        .makePreview = {},
                        .machineValue = {},
                        .programFolder = QCoreApplication::applicationDirPath(),
                        .userFolder = text(home.path() / "data"),
                        .arguments = {}});
    shell::SingleInstance again(name);
    shell::StartForm second(other, again);
    EXPECT_FALSE(second.begin());
    EXPECT_TRUE(otherBoxes.shown().empty()) << "not even the screen is looked at";
    EXPECT_TRUE(waitUntil([&] { return !main().isMinimized(); }));
}

}  // namespace
}  // namespace quorvel::test
