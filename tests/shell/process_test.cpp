// The real program in a process of its own: it opens the project of its command line, stays small,
// and a second one ends at once.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QSettings>

#include "resources/path_text.h"
#include "store/paths.h"
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
    TempFolder home;
    TempFolder projects;
    QProcess first;
};

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
