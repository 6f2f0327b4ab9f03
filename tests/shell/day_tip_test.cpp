// The Tip of the Day: texts, their turn, at the start and from the menu.
#include "shell/day_tip.h"

#include <gtest/gtest.h>
#include <string>

#include <QCheckBox>
#include <QCryptographicHash>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QTest>

#include "support/mounts.h"
#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

class DayTips : public ShellFixture {
  protected:
    DayTips() { forgetSettings(); }

    static QString stored(const char* name) {
        const QSettings values(QStringLiteral("TessaroonWorks"), QStringLiteral("Quorvel"));
        return values.value(QString::fromLatin1(name)).toString();
    }
    /// Settings of an editor that ran before.
    static void store(const char* atStart, int lastTip) {
        QSettings values(QStringLiteral("TessaroonWorks"), QStringLiteral("Quorvel"));
        values.setValue(QStringLiteral("Default Folder"), QStringLiteral("1"));
        values.setValue(QStringLiteral("Wrong Folder"), QStringLiteral("3"));
        values.setValue(QStringLiteral("TOTD"), QString::fromLatin1(atStart));
        values.setValue(QStringLiteral("LastTip"), QString::number(lastTip));
    }
    static QWidget* window() { return visibleWindow(QStringLiteral("frmTip")); }
    /// The number of the tip that `window` shows.
    static int shownTip(const QWidget& window) {
        const QString text = control<QLabel>(window, QStringLiteral("lblTipText")).text();
        for (int tip = 1; tip <= shell::kDayTips; ++tip) {
            if (shell::dayTipText(tip) == text) {
                return tip;
            }
        }
        return 0;
    }
    static QCheckBox& atStartup(const QWidget& window) {
        return control<QCheckBox>(window, QStringLiteral("chkLoadTipsAtStartup"));
    }
    static void click(const QWidget& window, const char* name) {
        control<QPushButton>(window, QString::fromLatin1(name)).click();
    }
    void fromMenu(const std::function<void(QWidget&)>& author) {
        withWindow(
            QStringLiteral("frmTip"), [this] { action(QStringLiteral("helpmen(1)")).trigger(); },
            author);
    }
};

struct Noted {
    int length;
    const char* digest;
};

// Lengths and digests of the texts as they were handed over.
const std::vector<Noted> kNoted = {
    {106, "e89ea77bf90c2adf"}, {91, "e5d0447a1b4b24b8"},  {201, "f9b64d99d25c472b"},
    {61, "ccf4b035e032bacd"},  {129, "083f9c674e60ee19"}, {153, "499a7ce853344188"},
    {108, "c16b5ba4f4cd23b2"}, {121, "e6d09a4b888ab8d2"}, {130, "3bd5c267a34166fc"},
    {155, "1f4dd2d8674e33fb"}, {119, "a9b6d68079eb76f1"}, {123, "10390b721f363ef9"},
    {124, "168a33fd1a996e5c"}, {137, "0d802042b08608c6"}, {116, "68224053a99ce30b"},
    {194, "2537eada7ed8d63c"}, {203, "407171533b19f68b"}, {129, "2811d370f41f92d1"},
    {197, "bbc9ce56dee69545"}, {190, "44dcf0f22c767e55"}, {168, "25c404e477d3cde7"},
    {208, "eb27042387adb46c"}, {29, "cd4ec100bab31a18"},
};

TEST_F(DayTips, EachTextIsExactToTheLastBlank) {
    ASSERT_EQ(kNoted.size(), static_cast<std::size_t>(shell::kDayTips));
    for (int tip = 1; tip <= shell::kDayTips; ++tip) {
        const QString text = shell::dayTipText(tip);
        const Noted& noted = kNoted.at(static_cast<std::size_t>(tip - 1));
        EXPECT_EQ(text.size(), noted.length) << tip;
        const QByteArray digest =
            QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex().left(16);
        EXPECT_EQ(digest.toStdString(), noted.digest) << tip;
    }
    EXPECT_EQ(shell::dayTipText(23), QStringLiteral("*** This is the last tip! ***"));
}

TEST_F(DayTips, TheNextTipWrapsAfterTheLast) {
    EXPECT_EQ(shell::nextDayTip(0), 1);
    EXPECT_EQ(shell::nextDayTip(1), 2);
    EXPECT_EQ(shell::nextDayTip(22), 23);
    EXPECT_EQ(shell::nextDayTip(23), 1);
    EXPECT_EQ(shell::nextDayTip(99), 1) << "a number that no tip has";
    EXPECT_EQ(shell::nextDayTip(-7), 1);
}

TEST_F(DayTips, TheFirstStartShowsTipOne) {
    start();
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(window()->windowTitle(), QStringLiteral("Tip of the Day"));
    EXPECT_EQ(shownTip(*window()), 1);
    EXPECT_TRUE(atStartup(*window()).isChecked());
    EXPECT_EQ(control<QLabel>(*window(), QStringLiteral("Label1")).text(),
              QStringLiteral("Did you know..."));
    EXPECT_EQ(atStartup(*window()).text(), QStringLiteral("&Show Tips at Startup"));
    EXPECT_EQ(control<QPushButton>(*window(), QStringLiteral("cmdNextTip")).text(),
              QStringLiteral("&Next Tip"));
    EXPECT_EQ(control<QPushButton>(*window(), QStringLiteral("cmdOK")).text(),
              QStringLiteral("OK"));
    EXPECT_TRUE(waitUntil([] { return window()->isActiveWindow(); })) << "in front";
    EXPECT_FALSE(window()->isModal()) << "the editor can be used beside it";
}

TEST_F(DayTips, AfterTheLastTipTheFirstShowsAgain) {
    store("Yes", 23);
    start();
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(shownTip(*window()), 1);
}

TEST_F(DayTips, OnlyYesShowsATipAtTheStart) {
    for (const char* value : {"No", "YesNow", "", "yes"}) {
        store(value, 4);
        start();
        EXPECT_EQ(window(), nullptr) << value;
        leave();
    }
    store("Yes", 4);
    start();
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(shownTip(*window()), 5);
}

TEST_F(DayTips, OkStoresTheTipOnShow) {
    store("Yes", 20);
    start();
    EXPECT_EQ(shownTip(*window()), 21);
    click(*window(), "cmdNextTip");
    EXPECT_EQ(shownTip(*window()), 22);
    EXPECT_EQ(stored("LastTip"), QStringLiteral("20")) << "not before OK";
    click(*window(), "cmdNextTip");
    EXPECT_EQ(shownTip(*window()), 23);
    click(*window(), "cmdNextTip");
    EXPECT_EQ(shownTip(*window()), 1);
    click(*window(), "cmdNextTip");
    click(*window(), "cmdOK");
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(stored("LastTip"), QStringLiteral("2"));
    EXPECT_EQ(stored("Installed Version"), QStringLiteral("3.03.0001")) << "all is saved";
}

TEST_F(DayTips, LeavingTheWindowStoresNothing) {
    store("Yes", 7);
    start();
    QTest::keyClick(window(), Qt::Key_Escape);
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(stored("LastTip"), QStringLiteral("7"));
    EXPECT_EQ(stored("Installed Version"), QString());
}

TEST_F(DayTips, TheCheckBoxStoresAtOnce) {
    start();
    atStartup(*window()).click();
    EXPECT_EQ(stored("TOTD"), QStringLiteral("No"));
    EXPECT_EQ(shell->settings().TipsAtStart, QStringLiteral("No"));
    window()->close();
    leave();
    start();
    EXPECT_EQ(window(), nullptr);
    fromMenu([](QWidget& tip) {
        EXPECT_FALSE(atStartup(tip).isChecked());
        atStartup(tip).click();
        tip.close();
    });
    EXPECT_EQ(stored("TOTD"), QStringLiteral("Yes"));
}

TEST_F(DayTips, SettingsThatCannotBeWrittenAreToldAndTheTipsGoOn) {
    store("Yes", 3);
    start();
    const ReadOnlyMount disc(home.path());
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    click(*window(), "cmdNextTip");
    click(*window(), "cmdOK");
    EXPECT_EQ(window(), nullptr) << "the window closes all the same";
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_TRUE(boxes.texts().front().startsWith(
        QStringLiteral("The settings of the editor could not be saved:")));
    fromMenu([](QWidget& tip) {
        EXPECT_EQ(shownTip(tip), 6);
        atStartup(tip).click();
        tip.close();
    });
    EXPECT_EQ(boxes.shown().size(), 1U) << "told once";
    EXPECT_EQ(shell->settings().TipsAtStart, QStringLiteral("No"));
}

TEST_F(DayTips, TheMenuShowsItModally) {
    store("No", 11);
    start();
    EXPECT_TRUE(action(QStringLiteral("helpmen(1)")).isEnabled());
    fromMenu([](QWidget& tip) {
        EXPECT_TRUE(tip.isModal());
        EXPECT_EQ(shownTip(tip), 12);
        click(tip, "cmdOK");
    });
    fromMenu([](QWidget& tip) {
        EXPECT_EQ(shownTip(tip), 13) << "one further each time";
        tip.close();
    });
}

TEST_F(DayTips, TheMenuBringsTheOneOfTheStartToTheFront) {
    start();
    QWidget* first = window();
    ASSERT_NE(first, nullptr);
    action(QStringLiteral("helpmen(1)")).trigger();
    EXPECT_EQ(window(), first);
    EXPECT_EQ(shownTip(*first), 1);
    click(*first, "cmdOK");
    EXPECT_EQ(window(), nullptr);
}

TEST_F(DayTips, AProjectOfTheCommandLineShowsItAfterTheLoad) {
    const TestProject game = ProjectBuilder().build(projects.makeFolder("game"));
    store("Yes", 2);
    withWindow(
        QStringLiteral("OpenProj"), [&] { start({text(game.projectPath())}); },
        [&](QWidget&) {
            EXPECT_EQ(window(), nullptr) << "no tip at the start";
            EXPECT_EQ(shell->settings().TipsAtStart, QStringLiteral("YesNow"));
        });
    ASSERT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(shell->settings().TipsAtStart, QStringLiteral("Yes"));
    EXPECT_EQ(stored("TOTD"), QStringLiteral("YesNow")) << "until the value is changed";
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(shownTip(*window()), 3);
    EXPECT_TRUE(atStartup(*window()).isChecked());
    click(*window(), "cmdOK");
    EXPECT_EQ(stored("TOTD"), QStringLiteral("Yes"));
}

TEST_F(DayTips, AProjectThatDoesNotOpenShowsNone) {
    store("Yes", 2);
    start({text(projects.path()) + QStringLiteral("/none.qvl")});
    EXPECT_FALSE(shell->project().ProjectOpen);
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(shell->settings().TipsAtStart, QStringLiteral("YesNow"));
}

TEST_F(DayTips, ItGoesWithTheProgram) {
    start();
    ASSERT_NE(window(), nullptr);
    shell->ExitProgram();
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(quits, 1);
}

}  // namespace
}  // namespace quorvel::test
