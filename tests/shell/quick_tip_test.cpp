// Quick Tips: texts, who shows them, how they are turned off and come back.
#include "shell/quick_tip.h"

#include <gtest/gtest.h>
#include <string>

#include <QCheckBox>
#include <QCryptographicHash>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>

#include "forms/guide.h"
#include "support/mounts.h"
#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

using forms::Answer;
using forms::TipBefore;

class QuickTips : public ShellFixture {
  protected:
    QuickTips() { forgetSettings(); }

    static QString stored(const QString& name) {
        const QSettings values(QStringLiteral("TessaroonWorks"), QStringLiteral("Quorvel"));
        return values.value(name).toString();
    }
    void startWithoutDayTip(const QStringList& arguments = {}) {
        start(arguments);
        if (QWidget* tip = visibleWindow(QStringLiteral("frmTip"))) {
            tip->close();
        }
    }
    /// Shows tip `number` and lets `author` use its window.
    void show(int number, const std::function<void(QWidget&)>& author) {
        withWindow(
            QStringLiteral("QuickTip"), [&] { shell->ShowQuickTip(number); }, author);
    }
    /// True when `routine` runs through without a Quick Tip.
    static bool isSilent(const std::function<void()>& routine) {
        bool seen = false;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&seen] {
            if (QWidget* window = visibleWindow(QStringLiteral("QuickTip"))) {
                seen = true;
                window->close();
            }
        });
        look.start(1);
        routine();
        return !seen;
    }
    static QCheckBox& box(const QWidget& window, const char* name) {
        return control<QCheckBox>(window, QString::fromLatin1(name));
    }
    static void ok(QWidget& window) {
        control<QPushButton>(window, QStringLiteral("Command1")).click();
    }
    TestProject build() { return ProjectBuilder().scenes(2).build(projects.makeFolder("game")); }
};

struct Noted {
    int length;
    const char* digest;
};

// Lengths and digests of the texts as they were handed over.
const std::vector<Noted> kNoted = {
    {503, "fbdd8a39380fa4a6"}, {347, "3da7c1e409d5fe77"}, {300, "988f91cd223337a2"},
    {471, "5840c52852d65b61"}, {393, "87f7f4a4ad22ba6d"}, {409, "c805a6197db0db7d"},
    {438, "27dd51f60500ae91"}, {479, "daa980b98dc58161"}, {345, "966852340ac52df0"},
    {514, "1db7a6e87506547a"}, {379, "49ea43dc635788da"}, {474, "bc2c3771cee346aa"},
    {498, "fd78296f48f600f6"}, {384, "d6283d7cb8a672f3"}, {491, "cc1245a4149820e9"},
    {434, "52232770245dabbf"}, {269, "6abdd5478b89ac5a"}, {363, "cc892c676912195c"},
    {453, "56d4dff85acf1472"}, {443, "e0c118f69730e3bc"}, {502, "fef653d5b6682153"},
};

TEST_F(QuickTips, EachTextIsExactToTheLastBlank) {
    ASSERT_EQ(kNoted.size(), static_cast<std::size_t>(shell::kQuickTips));
    for (int tip = 1; tip <= shell::kQuickTips; ++tip) {
        const QString text = shell::quickTipText(tip);
        const Noted& noted = kNoted.at(static_cast<std::size_t>(tip - 1));
        EXPECT_EQ(text.size(), noted.length) << tip;
        const QByteArray digest =
            QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex().left(16);
        EXPECT_EQ(digest.toStdString(), noted.digest) << tip;
    }
    EXPECT_THROW((void)shell::quickTipText(0), std::out_of_range);
    EXPECT_THROW((void)shell::quickTipText(22), std::out_of_range);
}

TEST_F(QuickTips, EachNumberBelongsToWhatItComesBefore) {
    const std::vector<std::pair<int, const char*>> beginnings = {
        {TipBefore::testRun, "When you run your game"},
        {TipBefore::projectSecurity, "Project Security is only"},
        {TipBefore::goodie, "Goodie Objects"},
        {TipBefore::conversation, "(HIDDEN OBJECT - NOT VISIBLE WHEN PLAYING THE GAME, BUT MAKES"},
        {TipBefore::link, "Link Objects"},
        {TipBefore::sceneProperties, "The most basic property for Scenes"},
        {TipBefore::newProject, "If you're new to Quorvel"},
        {TipBefore::map, "Having a map"},
        {TipBefore::customizePlayer, "Quorvel allows you to customize"},
        {TipBefore::sceneOMatic, "The Scene-O-Matic"},
        {TipBefore::cueCards, "If you would like to have multiple-choice conversations"},
        {TipBefore::items, "By creating inventory items"},
        {TipBefore::ambient, "Ambient objects"},
        {TipBefore::hotSpot, "HotSpot Objects"},
        {TipBefore::reactor, "Reactor Objects"},
        {TipBefore::switchObject, "The Switch Object"},
        {TipBefore::responder, "(HIDDEN OBJECT - NOT VISIBLE WHEN PLAYING THE GAME) Responder"},
        {TipBefore::restorePositions, "Clicking this button allows you to restore the positions"},
    };
    for (const auto& [number, beginning] : beginnings) {
        EXPECT_TRUE(shell::quickTipText(number).startsWith(QString::fromLatin1(beginning)))
            << number;
    }
    const auto names = [](int number, const char* what) {
        return shell::quickTipText(number).contains(QString::fromLatin1(what));
    };
    EXPECT_TRUE(names(TipBefore::flagConjunction, "Using the Flag Conjunction Object"));
    EXPECT_TRUE(names(TipBefore::delay, "Using the Delay Object"));
    EXPECT_TRUE(names(TipBefore::multiTrigger, "Using the Multi-Trigger Object"));
}

TEST_F(QuickTips, TheWindowShowsItsTexts) {
    startWithoutDayTip();
    for (int tip = 1; tip <= shell::kQuickTips; ++tip) {
        show(tip, [tip](QWidget& window) {
            EXPECT_EQ(window.windowTitle(), QStringLiteral("Quick Tip"));
            EXPECT_TRUE(window.isModal());
            EXPECT_EQ(control<QLabel>(window, QStringLiteral("TipText")).text(),
                      shell::quickTipText(tip));
            EXPECT_EQ(box(window, "NoMoreTip").text(),
                      QStringLiteral("Don't show me this Quick Tip again"));
            EXPECT_EQ(box(window, "TipsOFF").text(),
                      QStringLiteral("Don't show me ANY Quick Tips again"));
            EXPECT_FALSE(box(window, "NoMoreTip").isChecked());
            EXPECT_FALSE(box(window, "TipsOFF").isChecked());
            const auto& button = control<QPushButton>(window, QStringLiteral("Command1"));
            EXPECT_EQ(button.text(), QStringLiteral("OK"));
            EXPECT_TRUE(button.isDefault());
            window.close();
        });
    }
}

TEST_F(QuickTips, OneThatWasSeenComesAgain) {
    startWithoutDayTip();
    show(5, [](QWidget& window) { ok(window); });
    show(5, [](QWidget& window) { ok(window); });
    EXPECT_EQ(stored(QStringLiteral("NoTip5")), QString());
    EXPECT_EQ(stored(QStringLiteral("NoTipsAtAll")), QString());
}

TEST_F(QuickTips, OneThatIsTurnedOffStaysOffAfterARestartAndComesBack) {
    startWithoutDayTip();
    show(14, [](QWidget& window) {
        box(window, "NoMoreTip").click();
        ok(window);
    });
    EXPECT_EQ(stored(QStringLiteral("NoTip14")), QStringLiteral("1"));
    EXPECT_TRUE(isSilent([this] { shell->ShowQuickTip(14); }));
    show(1, [](QWidget& window) { ok(window); });

    leave();
    startWithoutDayTip();
    EXPECT_TRUE(isSilent([this] { shell->ShowQuickTip(14); }));
    shell->settings().RestoreQuickTips();
    show(14, [](QWidget& window) { ok(window); });
}

TEST_F(QuickTips, TurnedOffTogetherNoneShowsUntilTheyAreRestored) {
    startWithoutDayTip();
    show(3, [this](QWidget& window) {
        boxes.whileShown = [&window](const forms::Box&) { EXPECT_TRUE(window.isVisible()); };
        box(window, "TipsOFF").click();
        boxes.whileShown = nullptr;
        EXPECT_EQ(stored(QStringLiteral("NoTipsAtAll")), QString()) << "before the OK button";
        ok(window);
    });
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown().front().title, QStringLiteral("Quick Tips"));
    EXPECT_EQ(boxes.shown().front().buttons, forms::Box::Buttons::ok);
    EXPECT_EQ(boxes.shown().front().text,
              QStringLiteral("Choosing this option will turn off all Quick Tips.  If you are new "
                             "to Quorvel, it is recommended that you leave them on for a while.  "
                             "Should you decide to turn them back on later, you can do so in the "
                             "'Editor Options' window."));
    EXPECT_EQ(stored(QStringLiteral("NoTipsAtAll")), QStringLiteral("1"));
    EXPECT_EQ(stored(QStringLiteral("NoTip3")), QString());
    for (int tip = 1; tip <= shell::kQuickTips; ++tip) {
        EXPECT_TRUE(isSilent([&] { shell->ShowQuickTip(tip); })) << tip;
    }
    withWindow(
        QStringLiteral("EdOptions"), [this] { action(QStringLiteral("options(1)")).trigger(); },
        [](QWidget& window) {
            ok(window);
            window.close();
        });
    for (int tip = 1; tip <= shell::kQuickTips; ++tip) {
        EXPECT_FALSE(isSilent([&] { shell->ShowQuickTip(tip); })) << tip;
    }
}

TEST_F(QuickTips, TakingTheCheckAwayAgainTellsAndStoresNothing) {
    startWithoutDayTip();
    show(3, [this](QWidget& window) {
        box(window, "TipsOFF").click();
        box(window, "TipsOFF").click();
        EXPECT_EQ(boxes.shown().size(), 1U) << "only the check tells";
        ok(window);
    });
    EXPECT_EQ(stored(QStringLiteral("NoTipsAtAll")), QString());
}

TEST_F(QuickTips, LeavingTheWindowByItsFrameOrEscapeStoresNothing) {
    startWithoutDayTip();
    show(3, [](QWidget& window) {
        box(window, "NoMoreTip").click();
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    show(3, [](QWidget& window) {
        box(window, "TipsOFF").click();
        window.close();
    });
    EXPECT_EQ(stored(QStringLiteral("NoTip3")), QString());
    EXPECT_EQ(stored(QStringLiteral("NoTipsAtAll")), QString());
}

TEST_F(QuickTips, AValueThatIsNotOneCountsAsUnset) {
    QSettings values(QStringLiteral("TessaroonWorks"), QStringLiteral("Quorvel"));
    values.setValue(QStringLiteral("NoTipsAtAll"), QStringLiteral("yes"));
    values.setValue(QStringLiteral("NoTip7"), QStringLiteral("0"));
    values.setValue(QStringLiteral("NoTip8"), QStringList{QStringLiteral("1"), QString()});
    startWithoutDayTip();
    show(7, [](QWidget& window) { ok(window); });
    show(8, [](QWidget& window) { ok(window); });
}

TEST_F(QuickTips, SettingsThatCannotBeWrittenAreToldAndTheTipStaysOffForNow) {
    startWithoutDayTip();
    const ReadOnlyMount disc(home.path());
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    show(5, [this](QWidget& window) {
        box(window, "NoMoreTip").click();
        ok(window);
        EXPECT_FALSE(window.isVisible());
        EXPECT_EQ(boxes.shown().size(), 1U);
    });
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_TRUE(boxes.texts().front().startsWith(
        QStringLiteral("The settings of the editor could not be saved:\n\n") +
        text(home / "TessaroonWorks/Quorvel.conf")))
        << boxes.texts().front().toStdString();
    EXPECT_TRUE(isSilent([this] { shell->ShowQuickTip(5); }));
    show(6, [](QWidget& window) {
        box(window, "TipsOFF").click();
        ok(window);
    });
    EXPECT_TRUE(isSilent([this] { shell->ShowQuickTip(6); }));
    EXPECT_EQ(boxes.shown().size(), 2U) << "told once; the other is that of the check";
    shell->settings().RestoreQuickTips();
    show(5, [](QWidget& window) { ok(window); });
    EXPECT_EQ(boxes.shown().size(), 2U);
}

// Who shows them

TEST_F(QuickTips, ProjectSecurityComesAfterItsTip) {
    startWithoutDayTip({text(build().projectPath())});
    for (const char* entry : {"projmen(12)", "Toolbar1(5)"}) {
        bool tipSeen = false;
        withWindow(
            QStringLiteral("ProjSecurity"),
            [&] {
                withWindow(
                    QStringLiteral("QuickTip"),
                    [&] { action(QString::fromLatin1(entry)).trigger(); },
                    [&](QWidget& window) {
                        tipSeen = true;
                        EXPECT_EQ(control<QLabel>(window, QStringLiteral("TipText")).text(),
                                  shell::quickTipText(2));
                        EXPECT_EQ(visibleWindow(QStringLiteral("ProjSecurity")), nullptr);
                        ok(window);
                    });
            },
            [&](QWidget& window) {
                EXPECT_TRUE(tipSeen);
                window.close();
            });
    }
}

TEST_F(QuickTips, RestoringPositionsAsksAfterItsTip) {
    startWithoutDayTip({text(build().projectPath())});
    auto& button = control<QPushButton>(main(), QStringLiteral("RestoreObjs"));
    ASSERT_TRUE(button.isEnabled());
    boxes.answer(Answer::no);
    withWindow(
        QStringLiteral("QuickTip"), [&] { button.click(); },
        [this](QWidget& window) {
            EXPECT_EQ(control<QLabel>(window, QStringLiteral("TipText")).text(),
                      shell::quickTipText(21));
            EXPECT_TRUE(boxes.shown().empty());
            ok(window);
        });
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown().front().title, QStringLiteral("Restore Object Positions"));
}

}  // namespace
}  // namespace quorvel::test
