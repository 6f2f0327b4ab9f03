// The start of the process: the screen, the splash, one editor at a time, the main window's size.
#include "shell/start.h"

#include <atomic>
#include <barrier>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QLocalSocket>
#include <QMenuBar>
#include <QProgressBar>
#include <QRandomGenerator>
#include <QTest>

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

// The splash

class Splash : public ::testing::Test {
  protected:
    struct Event {
        std::string what;
        qint64 ms;
    };
    void note(const std::string& what) { events.push_back({what, clock.elapsed()}); }
    QElapsedTimer clock;
    std::vector<Event> events;
};

TEST_F(Splash, ShowsItsTexts) {
    shell::InitQV splash({});
    EXPECT_EQ(splash.objectName(), QStringLiteral("InitQV"));
    const auto label = [&](const char* name) {
        return control<QLabel>(splash, QString::fromLatin1(name)).text();
    };
    EXPECT_EQ(label("Label1"), QStringLiteral("Please wait while Quorvel initializes..."));
    EXPECT_EQ(label("Label2"), QStringLiteral("Tessaroon Works"));
    EXPECT_EQ(label("Label3"), QStringLiteral("This program is freeware!"));
    EXPECT_EQ(label("Label4"), QStringLiteral("Version 3.03.0001"));
    EXPECT_TRUE(splash.windowFlags().testFlag(Qt::SplashScreen));
    EXPECT_EQ(control<QProgressBar>(splash, QStringLiteral("ProgressBar1")).value(), 0);
}

TEST_F(Splash, LoadsTheFormsThenStartsTheEditor) {
    clock.start();
    int barAfterForms = 0;
    std::unique_ptr<shell::InitQV> splash;
    bool visibleWhileStarting = false;
    splash = std::make_unique<shell::InitQV>(
        shell::InitQV::Work{{[this] { note("first form"); }, [this] { note("second form"); }}, [&] {
                                note("editor");
                                visibleWhileStarting = splash->isVisible();
                            }});
    auto& bar = control<QProgressBar>(*splash, QStringLiteral("ProgressBar1"));
    auto& label = control<QLabel>(*splash, QStringLiteral("Label1"));
    QObject::connect(splash.get(), &shell::InitQV::finished, splash.get(),
                     [this] { note("finished"); });
    splash->show();
    ASSERT_TRUE(waitUntil([&] { return events.size() == 2; }));
    barAfterForms = bar.value();
    EXPECT_GE(barAfterForms, 2) << "a step for each form";
    ASSERT_TRUE(waitUntil([&] { return label.text() == QStringLiteral("Starting Quorvel"); }));
    EXPECT_GT(bar.value(), 19);
    EXPECT_EQ(events.size(), 2U);
    const int full = bar.value();
    ASSERT_TRUE(waitUntil([&] { return events.size() == 4; }));
    EXPECT_EQ(bar.value(), full) << "the bar's timer has stopped";

    EXPECT_EQ(events[0].what, "first form");
    EXPECT_EQ(events[1].what, "second form");
    EXPECT_EQ(events[2].what, "editor");
    EXPECT_EQ(events[3].what, "finished");
    EXPECT_GE(events[0].ms, 950);
    EXPECT_GE(events[2].ms - events[0].ms, 18 * 120 - 100 + 1900);
    EXPECT_TRUE(visibleWhileStarting);
    EXPECT_FALSE(splash->isVisible());
}

// One editor at a time

TEST_F(Start, ASecondEditorAsksTheFirstToComeForward) {
    shell::SingleInstance first(name);
    shell::SingleInstance second(name);
    int asked = 0;
    QObject::connect(&first, &shell::SingleInstance::activationAsked, [&] { ++asked; });
    EXPECT_TRUE(first.claim());
    EXPECT_FALSE(second.claim());
    EXPECT_TRUE(waitUntil([&] { return asked == 1; }));
}

TEST_F(Start, AnEditorThatEndedDoesNotCount) {
    {
        shell::SingleInstance gone(name);
        EXPECT_TRUE(gone.claim());
    }
    shell::SingleInstance next(name);
    EXPECT_TRUE(next.claim());
}

TEST_F(Start, OfEditorsThatStartAtTheSameMomentOneIsTheFirst) {
    for (int round = 0; round < 20; ++round) {
        constexpr int kEditors = 4;
        std::barrier together(kEditors);
        std::barrier answered(kEditors);
        std::atomic<int> firsts = 0;
        std::vector<std::thread> editors;
        for (int i = 0; i < kEditors; ++i) {
            editors.emplace_back([&] {
                shell::SingleInstance instance(name);
                together.arrive_and_wait();
                firsts += instance.claim() ? 1 : 0;
                answered.arrive_and_wait();
            });
        }
        for (std::thread& editor : editors) {
            editor.join();
        }
        ASSERT_EQ(firsts, 1) << round;
    }
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
                        .screenSize = [] { return QSize(640, 480); },
                        .random = [] { return 0.5; },
                        .quit = [] {},
                        .beep = [] {},
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
