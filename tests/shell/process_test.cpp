// The real program in a process of its own: what it does with its command line, without a display
// and on odd screens; it stays small, and a second one hands over what it was given.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QSettings>

#include "resources/path_text.h"
#include "store/paths.h"
#include "support/file_bytes.h"
#include "support/project_builder.h"
#include "support/temp_folder.h"
#include "support/windows/played_author.h"

#ifdef __linux__

namespace quorvel::test {
namespace {

constexpr int kMostMegabytes = 120;

class TheProgram : public ::testing::Test {
  protected:
    ~TheProgram() override {
        first.terminate();
        first.waitForFinished(5000);
    }
    void prepare(QProcess& process) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), resources::pathText(home.path()));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), resources::pathText(home.path()));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        process.setProcessEnvironment(environment);
        process.setProgram(QCoreApplication::applicationDirPath() + QStringLiteral("/quorvel"));
    }
    /// Value of a setting as the process left it on disk.
    [[nodiscard]] QString stored(const QString& name) const {
        return QSettings(resources::pathText(home / "TessaroonWorks/Quorvel.conf"),
                         QSettings::IniFormat)
            .value(name)
            .toString();
    }
    /// Memory that is in use, in megabytes; 0 when the process is gone.
    static int residentMegabytes(const QProcess& process) {
        QFile status(QStringLiteral("/proc/%1/status").arg(process.processId()));
        if (!status.open(QIODevice::ReadOnly)) {
            return 0;
        }
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmRSS:")) {
                return line.simplified().split(' ').at(1).toInt() / 1024;
            }
        }
        return 0;
    }
    struct Ended {
        int code;
        QByteArray out;
        QByteArray err;
    };
    /// Runs the program until it ends by itself.
    Ended run(const QStringList& arguments, const QProcessEnvironment& environment) {
        QProcess process;
        prepare(process);
        process.setProcessEnvironment(environment);
        process.setArguments(arguments);
        process.start();
        EXPECT_TRUE(process.waitForFinished(60000)) << "it does not end";
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }
    /// As on a machine where nobody has logged in: `display` is empty or answers to nobody.
    QProcessEnvironment withoutDisplay(const QString& display = {}) {
        QProcess process;
        prepare(process);
        QProcessEnvironment environment = process.processEnvironment();
        for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
            environment.remove(QString::fromLatin1(name));
        }
        if (!display.isEmpty()) {
            environment.insert(QStringLiteral("DISPLAY"), display);
        }
        return environment;
    }
    /// Starts the first editor on these screens of the offscreen platform.
    void startOn(const char* screens, const QStringList& arguments) {
        writeBytes(home / "screens.json", screens);
        prepare(first);
        QProcessEnvironment environment = first.processEnvironment();
        environment.insert(
            QStringLiteral("QT_QPA_PLATFORM"),
            QStringLiteral("offscreen:configfile=") + resources::pathText(home / "screens.json"));
        first.setProcessEnvironment(environment);
        first.setArguments(arguments);
        first.start();
        ASSERT_TRUE(first.waitForStarted());
    }
    /// Waits until the first editor has opened this project.
    bool hasOpened(const std::filesystem::path& project) {
        return waitUntil(
            [&] { return stored(QStringLiteral("RecentProj 1")) == resources::pathText(project); },
            60000);
    }
    /// Asks the first editor to end, and reads how it did.
    void endFirst() {
        first.terminate();
        ASSERT_TRUE(first.waitForFinished(60000));
        EXPECT_EQ(first.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(first.exitCode(), 0);
    }
    TempFolder home;
    TempFolder projects;
    QProcess first;
};

TEST_F(TheProgram, AnswersQuestionsWithoutADisplay) {
    const Ended help = run({QStringLiteral("--help")}, withoutDisplay());
    EXPECT_EQ(help.code, 0);
    EXPECT_TRUE(help.out.startsWith("usage: quorvel ")) << help.out.toStdString();
    EXPECT_EQ(help.err, "");
    const Ended version = run({QStringLiteral("--version")}, withoutDisplay());
    EXPECT_EQ(version.code, 0);
    EXPECT_EQ(version.out, "Quorvel 3.03.0001\n");
    EXPECT_EQ(version.err, "");
}

TEST_F(TheProgram, RefusesAnOptionThatNobodyKnows) {
    const Ended ended = run({QStringLiteral("--wrong")}, withoutDisplay());
    EXPECT_EQ(ended.code, 2);
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(ended.err, "quorvel: There is no option --wrong. See --help.\n");
}

TEST_F(TheProgram, SaysInOneLineThatThereIsNoDisplay) {
    for (const char* display : {"", ":59999"}) {
        const Ended ended = run({}, withoutDisplay(QString::fromLatin1(display)));
        EXPECT_EQ(ended.code, 1);
        EXPECT_EQ(ended.out, "");
        EXPECT_TRUE(ended.err.startsWith("quorvel: No window can be opened: "))
            << ended.err.toStdString();
        EXPECT_EQ(ended.err.count('\n'), 1) << ended.err.toStdString();
    }
}

TEST_F(TheProgram, TellsOfAMissingProjectAndStays) {
    prepare(first);
    first.setArguments({QStringLiteral("--"), QStringLiteral("--missing.qvl")});
    first.start();
    QByteArray told;
    ASSERT_TRUE(waitUntil(
        [&] {
            first.waitForReadyRead(10);
            told += first.readAllStandardError();
            return told.contains("--missing.qvl");
        },
        60000));
    EXPECT_TRUE(told.contains("quorvel: File not found: /")) << told.toStdString();
    EXPECT_TRUE(told.contains("/--missing.qvl\n")) << told.toStdString();
    EXPECT_EQ(first.state(), QProcess::Running);
    endFirst();
}

TEST_F(TheProgram, HandsItsProjectsToTheOneThatRuns) {
    const TestProject one = ProjectBuilder().build(projects.makeFolder("one"));
    const TestProject two =
        ProjectBuilder().fileName("-My Game.qvl").build(projects.makeFolder("two"));
    prepare(first);
    first.setArguments({resources::pathText(one.projectPath())});
    first.start();
    ASSERT_TRUE(hasOpened(one.projectPath()));

    QProcess second;
    prepare(second);
    second.setWorkingDirectory(resources::pathText(projects / "two"));
    second.setArguments({QStringLiteral("--"), QStringLiteral("-My Game.qvl")});
    second.start();
    ASSERT_TRUE(second.waitForFinished(60000));
    EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_FALSE(second.readAllStandardError().contains("quorvel:"));
    EXPECT_TRUE(hasOpened(two.projectPath()));
    endFirst();
}

TEST_F(TheProgram, OpensOnThePrimaryScreenAndRemembersWhere) {
    const TestProject files = ProjectBuilder().build(projects.path());
    // Neither begins where the desktop does, for the platform chooses which one is the primary one.
    startOn(R"({"screens": [
                {"name": "right", "x": 1300, "y": 100, "width": 1280, "height": 1024,
                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
                {"name": "left", "x": 300, "y": 100, "width": 1000, "height": 1000,
                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})",
            {resources::pathText(files.projectPath())});
    ASSERT_TRUE(hasOpened(files.projectPath()));
    endFirst();
    const QStringList place = stored(QStringLiteral("MainWindowPlace")).split(u' ');
    ASSERT_EQ(place.size(), 4);
    const QRect window(place[0].toInt(), place[1].toInt(), place[2].toInt(), place[3].toInt());
    EXPECT_TRUE(QRect(1300, 100, 1280, 1024).contains(window) ||
                QRect(300, 100, 1000, 1000).contains(window))
        << place.join(u' ').toStdString();
}

TEST_F(TheProgram, TakesTwoDevicePixelsForOneOnADenseScreen) {
    const TestProject files = ProjectBuilder().build(projects.path());
    startOn(R"({"screens": [
                {"name": "dense", "x": 0, "y": 0, "width": 960, "height": 540,
                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 2}]})",
            {resources::pathText(files.projectPath())});
    ASSERT_TRUE(hasOpened(files.projectPath())) << "nothing asks whether the screen is too small";
    endFirst();
}

TEST_F(TheProgram, OpensAProjectStaysSmallAndIsAlone) {
    const TestProject files =
        ProjectBuilder().fileName("My Game.qvl").scenes(3).build(projects.makeFolder("A Folder"));
    prepare(first);
    first.setWorkingDirectory(resources::pathText(projects.path()));
    first.setArguments({QStringLiteral("A Folder/My Game.qvl")});
    first.start();
    ASSERT_TRUE(first.waitForStarted());
    ASSERT_TRUE(waitUntil(
        [&] {
            return stored(QStringLiteral("RecentProj 1")) ==
                   resources::pathText(files.projectPath());
        },
        60000));
    const int megabytes = residentMegabytes(first);
    EXPECT_GT(megabytes, 5);
#ifndef __SANITIZE_ADDRESS__
    EXPECT_LT(megabytes, kMostMegabytes);
#endif

    QProcess second;
    prepare(second);
    second.start();
    EXPECT_TRUE(second.waitForFinished(20000)) << "the second one ends by itself";
    EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(first.state(), QProcess::Running);
}

}  // namespace
}  // namespace quorvel::test

#endif
