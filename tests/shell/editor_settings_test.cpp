// What the editor remembers between runs, and the recent projects that come from it.
#include "shell/editor_settings.h"

#include <gtest/gtest.h>

#include <QSettings>

#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

class Settings : public ShellFixture {
  protected:
    Settings() { forgetSettings(); }
    /// What stands in the store of settings now, under its own names.
    static std::map<std::string, std::string> stored() {
        const QSettings values(QStringLiteral("TessaroonWorks"), QStringLiteral("Quorvel"));
        std::map<std::string, std::string> all;
        for (const QString& key : values.allKeys()) {
            all[key.toStdString()] = values.value(key).toString().toStdString();
        }
        return all;
    }
    static void store(const QString& name, const QString& value) {
        QSettings values(QStringLiteral("TessaroonWorks"), QStringLiteral("Quorvel"));
        values.setValue(name, value);
    }
    /// Settings of an editor that ran before.
    static void storeEarlierRun() {
        store(QStringLiteral("Default Folder"), QStringLiteral("2"));
        store(QStringLiteral("Wrong Folder"), QStringLiteral("1"));
        store(QStringLiteral("TOTD"), QStringLiteral("No"));
        store(QStringLiteral("LastTip"), QStringLiteral("17"));
        for (int n = 1; n <= 6; ++n) {
            store(QStringLiteral("Run-Menu/Program %1").arg(n), QStringLiteral("Undefined"));
        }
    }
    TestProject build(const char* folder) {
        return ProjectBuilder().build(projects.makeFolder(folder));
    }
    QString recent(int n) { return action(QStringLiteral("Filemen(%1)").arg(8 + n)).text(); }
};

TEST_F(Settings, TheFirstRunWritesAllDefaults) {
    start();
    const std::map<std::string, std::string> expected = {
        {"Installed Version", "3.03.0001"},
        {"Default Folder", "1"},
        {"Wrong Folder", "3"},
        {"TOTD", "Yes"},
        {"LastTip", "0"},
        {"RecentProj 1", ""},
        {"RecentProj 2", ""},
        {"RecentProj 3", ""},
        {"RecentProj 4", ""},
        {"Run-Menu/Program 1", "Undefined"},
        {"Run-Menu/Program 2", "Undefined"},
        {"Run-Menu/Program 3", "Undefined"},
        {"Run-Menu/Program 4", "Undefined"},
        {"Run-Menu/Program 5", "Undefined"},
        {"Run-Menu/Program 6", "Undefined"},
    };
    EXPECT_EQ(stored(), expected);
    EXPECT_EQ(shell->settings().DefaultFolder, 1);
    EXPECT_EQ(shell->settings().WrongFolder, 3);
    EXPECT_EQ(shell->settings().TipsAtStart, QStringLiteral("Yes"));
}

TEST_F(Settings, ThatCannotBeWrittenAreToldOnce) {
    const auto file = home.makeFolder("TessaroonWorks") / "Quorvel.conf";
    std::filesystem::create_directory(file);
    const TestProject files = build("game");
    start({text(files.projectPath())});
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.texts().front(),
              QStringLiteral("The settings of the editor could not be saved:\n\n") + text(file) +
                  QStringLiteral("\n\nPlease check whether this file and its folder can be "
                                 "written."));
    EXPECT_EQ(boxes.shown().front().icon, forms::Box::Icon::exclamation);
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(shell->settings().WrongFolder, 3) << "the editor works all the same";
    shell->settings().SaveEditorSettings();
    EXPECT_EQ(boxes.shown().size(), 1U);
}

TEST_F(Settings, TheSecondStartTakesTheNormalPath) {
    start();
    leave();
    store(QStringLiteral("LastTip"), QStringLiteral("5"));
    store(QStringLiteral("TOTD"), QStringLiteral("No"));
    store(QStringLiteral("Installed Version"), QStringLiteral("2.0.0"));
    start();
    EXPECT_EQ(shell->settings().LastTip, 5);
    EXPECT_EQ(shell->settings().TipsAtStart, QStringLiteral("No"));
    EXPECT_EQ(stored()["LastTip"], "5") << "a normal start resets nothing";
    EXPECT_EQ(stored()["Installed Version"], "2.0.0") << "written at a save only";
}

TEST_F(Settings, ThoseOfAnEarlierRunAreRead) {
    storeEarlierRun();
    store(QStringLiteral("RecentProj 2"), QStringLiteral("/games/two.qvl"));
    store(QStringLiteral("Run-Menu/Program 3"), QStringLiteral("/usr/bin/icons -x"));
    start();
    EXPECT_EQ(shell->settings().DefaultFolder, 2);
    EXPECT_EQ(shell->settings().WrongFolder, 1);
    EXPECT_EQ(shell->settings().LastTip, 17);
    EXPECT_EQ(shell->settings().RecentProj[1], QStringLiteral("/games/two.qvl"));
    EXPECT_EQ(shell->settings().RunProgram[2], QStringLiteral("/usr/bin/icons -x"));
}

TEST_F(Settings, OneFolderChoiceIsEnoughForANormalStart) {
    store(QStringLiteral("Wrong Folder"), QStringLiteral("2"));
    start();
    EXPECT_EQ(shell->settings().WrongFolder, 2);
    EXPECT_EQ(shell->settings().DefaultFolder, 0);
    EXPECT_EQ(stored().size(), 1U);
}

TEST_F(Settings, NumbersThatAreNoneReadAsZero) {
    storeEarlierRun();
    store(QStringLiteral("LastTip"), QStringLiteral("many"));
    store(QStringLiteral("Wrong Folder"), QStringLiteral(" 3 of them"));
    start();
    EXPECT_EQ(shell->settings().LastTip, 0);
    EXPECT_EQ(shell->settings().WrongFolder, 3);
}

TEST_F(Settings, RecentProjectsStandInTheFileMenu) {
    storeEarlierRun();
    const QString fifty = QLatin1Char('/') + QString(49, QLatin1Char('x'));
    const QString longer = QStringLiteral("/") + QString(30, QLatin1Char('a')) + QLatin1Char('&') +
                           QString(30, QLatin1Char('b'));
    store(QStringLiteral("RecentProj 1"), fifty);
    store(QStringLiteral("RecentProj 2"), longer);
    store(QStringLiteral("RecentProj 3"), QStringLiteral("(None)"));
    store(QStringLiteral("RecentProj 4"), QStringLiteral("   "));
    start();
    EXPECT_EQ(recent(1), QStringLiteral("1 ") + fifty);
    EXPECT_EQ(recent(2), QStringLiteral("2 /%1...%2")
                             .arg(QString(23, QLatin1Char('a')), QString(23, QLatin1Char('b'))));
    EXPECT_EQ(recent(3), QStringLiteral("3"));
    EXPECT_EQ(recent(4), QStringLiteral("4"));
    EXPECT_TRUE(action(QStringLiteral("Filemen(9)")).isEnabled());
    EXPECT_TRUE(action(QStringLiteral("Filemen(10)")).isEnabled());
    EXPECT_FALSE(action(QStringLiteral("Filemen(11)")).isEnabled());
    EXPECT_FALSE(action(QStringLiteral("Filemen(12)")).isEnabled());
}

TEST_F(Settings, AnAmpersandInARecentPathIsShownAsOne) {
    storeEarlierRun();
    store(QStringLiteral("RecentProj 1"), QStringLiteral("/Tom & Jerry.qvl"));
    start();
    EXPECT_EQ(recent(1), QStringLiteral("1 /Tom && Jerry.qvl"));
}

TEST_F(Settings, TheNewestProjectIsTheFirst) {
    const TestProject a = build("a");
    const TestProject b = build("b");
    const TestProject c = build("c");
    start({text(a.projectPath()), text(b.projectPath()), text(c.projectPath())});
    const auto& list = shell->settings().RecentProj;
    EXPECT_EQ(list[0], text(c.projectPath()));
    EXPECT_EQ(list[1], text(b.projectPath()));
    EXPECT_EQ(list[2], text(a.projectPath()));
    EXPECT_EQ(list[3], QString());
    EXPECT_EQ(QString::fromStdString(stored()["RecentProj 1"]), text(c.projectPath()));
    EXPECT_TRUE(recent(1).startsWith(QStringLiteral("1 /")));
    EXPECT_EQ(recent(4), QStringLiteral("4"));
}

TEST_F(Settings, OneThatIsOpenedAgainMovesUp) {
    const TestProject a = build("a");
    const TestProject b = build("b");
    start({text(a.projectPath()), text(b.projectPath())});
    action(QStringLiteral("Filemen(10)")).trigger();
    const auto& list = shell->settings().RecentProj;
    EXPECT_EQ(list[0], text(a.projectPath()));
    EXPECT_EQ(list[1], text(b.projectPath()));
    EXPECT_EQ(list[2], QString());
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(QString::fromStdString(shell->project().ProjectFolder),
              text(a.folder) + QLatin1Char('/'));
}

TEST_F(Settings, TheFifthProjectPushesTheOldestOut) {
    shell::EditorSettings settings;
    for (int n = 1; n <= 5; ++n) {
        settings.rememberProject(QStringLiteral("/p%1.qvl").arg(n));
    }
    EXPECT_EQ(settings.RecentProj,
              (std::array<QString, 4>{QStringLiteral("/p5.qvl"), QStringLiteral("/p4.qvl"),
                                      QStringLiteral("/p3.qvl"), QStringLiteral("/p2.qvl")}));
    settings.rememberProject(QStringLiteral("/p3.qvl"));
    EXPECT_EQ(settings.RecentProj,
              (std::array<QString, 4>{QStringLiteral("/p3.qvl"), QStringLiteral("/p5.qvl"),
                                      QStringLiteral("/p4.qvl"), QStringLiteral("/p2.qvl")}));
}

TEST_F(Settings, ARecentProjectThatIsGoneIsToldAndChangesNothing) {
    const TestProject a = build("a");
    storeEarlierRun();
    const QString gone = text(projects.path()) + QStringLiteral("/gone & <b>/x.qvl");
    store(QStringLiteral("RecentProj 3"), gone);
    start({text(a.projectPath())});
    const auto before = shell->settings().RecentProj;
    action(QStringLiteral("Filemen(12)")).trigger();
    ASSERT_EQ(boxes.shown().size(), 1U);
    const forms::Box& box = boxes.shown().front();
    EXPECT_EQ(box.title, QStringLiteral("File not found"));
    EXPECT_EQ(box.icon, forms::Box::Icon::exclamation);
    EXPECT_EQ(box.text, QStringLiteral("Could not locate:\n\n") + gone +
                            QStringLiteral("\n\nIf this is on a removable disk, please\nmake sure "
                                           "the disk is inserted in the drive."));
    EXPECT_TRUE(shell->project().ProjectOpen) << "the open project stays";
    EXPECT_EQ(QString::fromStdString(shell->project().ProjectFolder),
              text(a.folder) + QLatin1Char('/'));
    EXPECT_EQ(shell->settings().RecentProj, before);
}

TEST_F(Settings, ARecentPathIsFoundWithBackslashesAndInOtherLetterCase) {
    const TestProject a = build("Old Castle");
    storeEarlierRun();
    QString typed =
        text(a.folder).replace(QStringLiteral("Old Castle"), QStringLiteral("OLD castle")) +
        QStringLiteral("/TEST.QVL");
    typed.replace(QLatin1Char('/'), QLatin1Char('\\'));
    store(QStringLiteral("RecentProj 1"), typed);
    start();
    action(QStringLiteral("Filemen(9)")).trigger();
    EXPECT_TRUE(boxes.shown().empty()) << boxes.texts().join(QLatin1Char('|')).toStdString();
    ASSERT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(shell->project().ProjectFileName, "Test.qvl");
    EXPECT_EQ(shell->settings().RecentProj[0], text(a.projectPath()));
}

TEST_F(Settings, AProjectOfTheCommandLinePutsTheTipOff) {
    const TestProject a = build("a");
    start({text(a.projectPath())});
    EXPECT_EQ(stored()["TOTD"], "YesNow");
    EXPECT_EQ(shell->settings().TipsAtStart, QStringLiteral("Yes")) << "after the load";
}

TEST_F(Settings, TipsThatAreOffStayOff) {
    const TestProject a = build("a");
    storeEarlierRun();
    start({text(a.projectPath())});
    EXPECT_EQ(shell->settings().TipsAtStart, QStringLiteral("No"));
    EXPECT_EQ(stored()["TOTD"], "No");
}

TEST_F(Settings, YesNowOutlivesTheProcess) {
    storeEarlierRun();
    store(QStringLiteral("TOTD"), QStringLiteral("YesNow"));
    start();
    EXPECT_EQ(shell->settings().TipsAtStart, QStringLiteral("YesNow"));
}

}  // namespace
}  // namespace quorvel::test
