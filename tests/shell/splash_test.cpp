// The splash: its texts, the order of its stages, and an author who does not want to wait.
#include "shell/splash.h"

#include <gtest/gtest.h>
#include <vector>

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QTest>
#include <QTimer>

#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

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

/// What an author can do to a splash, at a named stage of it.
class ImpatientAuthor : public Splash {
  protected:
    ImpatientAuthor() {
        splash = std::make_unique<shell::InitQV>(
            shell::InitQV::Work{{[this] { done << QStringLiteral("form"); }}, [this] {
                                    done << QStringLiteral("editor");
                                    barAtStart = bar().value();
                                    textAtStart = label().text();
                                }});
        QObject::connect(splash.get(), &shell::InitQV::finished, splash.get(),
                         [this] { done << QStringLiteral("finished"); });
        splash->show();
    }
    QProgressBar& bar() { return control<QProgressBar>(*splash, QStringLiteral("ProgressBar1")); }
    QLabel& label() { return control<QLabel>(*splash, QStringLiteral("Label1")); }
    /// Everything was done once, in order, and the splash is gone.
    void expectStarted() {
        EXPECT_EQ(done, (QStringList{QStringLiteral("form"), QStringLiteral("editor"),
                                     QStringLiteral("finished")}));
        EXPECT_EQ(barAtStart, 20);
        EXPECT_EQ(textAtStart, QStringLiteral("Starting Quorvel"));
        EXPECT_FALSE(splash->isVisible());
        for (const QTimer* timer : splash->findChildren<QTimer*>()) {
            EXPECT_FALSE(timer->isActive());
        }
    }
    std::unique_ptr<shell::InitQV> splash;
    QStringList done;
    int barAtStart = 0;
    QString textAtStart;
};

TEST_F(ImpatientAuthor, EndsTheFirstWaitByAClick) {
    EXPECT_TRUE(done.isEmpty());
    QTest::mouseClick(splash.get(), Qt::LeftButton);
    expectStarted();
}

TEST_F(ImpatientAuthor, EndsTheBarsWayByAKey) {
    ASSERT_TRUE(waitUntil([this] { return bar().value() > 1; }));
    EXPECT_LT(bar().value(), 20);
    QTest::keyClick(splash.get(), Qt::Key_Space);
    expectStarted();
}

TEST_F(ImpatientAuthor, EndsTheLastWaitByAKey) {
    ASSERT_TRUE(
        waitUntil([this] { return label().text() == QStringLiteral("Starting Quorvel"); }, 20000));
    EXPECT_EQ(done, QStringList{QStringLiteral("form")});
    QTest::keyClick(splash.get(), Qt::Key_Escape);
    EXPECT_EQ(done.size(), 3);
    EXPECT_EQ(done[1], QStringLiteral("editor"));
    EXPECT_EQ(barAtStart, 20);
}

TEST_F(ImpatientAuthor, MayClickAgainAndAgain) {
    for (int click = 0; click < 3; ++click) {
        QTest::mouseClick(splash.get(), Qt::LeftButton);
    }
    expectStarted();
}

}  // namespace
}  // namespace quorvel::test
