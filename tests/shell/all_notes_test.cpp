// Every window with lines below its boxes, each line as long as one ever has to be: nothing is cut,
// and the window grows no further than its screen lets it. Pictures are left in the folder
// window-pictures of the build.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>

#include "forms/events.h"
#include "forms/form.h"
#include "forms/look.h"
#include "forms/note_line.h"
#include "support/windows/shell_fixture.h"
#include "support/windows/window_checks.h"

namespace quorvel::test {
namespace {

using forms::Look;

class AllNotes : public ShellFixture, public ::testing::WithParamInterface<Look> {
  protected:
    AllNotes() { forms::applyLook(*qApp, GetParam()); }

    void openSample() {
        std::filesystem::copy(QUORVEL_SAMPLE_GAME, projects / "Lantern",
                              std::filesystem::copy_options::recursive);
        start({text(projects / "Lantern" / "Lantern.qvl")});
    }
    static void fill(QWidget& window) {
        int lines = 0;
        for (auto* note : window.findChildren<forms::NoteLine*>()) {
            note->tell(
                QStringLiteral("\"elevenchars.wav\" was taken, but it holds an MPG movie and not a "
                               "WAV sound.  Every player knows .wav, .avi and .mpg."));
            ++lines;
        }
        EXPECT_GT(lines, 0);
    }
    /// Fills the lines of the window that `routine` shows and checks each of its pages.
    void checkEditor(const QString& name, const std::function<void()>& routine) {
        withWindow(name, routine, [&](QWidget& window) {
            fill(window);
            auto& pages = control<QTabBar>(window, QStringLiteral("Pages"));
            for (int page = 0; page < pages.count(); ++page) {
                pages.setCurrentIndex(page);
                check(window, QStringLiteral("%1-notes-%2").arg(name).arg(page + 1));
            }
            window.close();
        });
    }
    static void check(QWidget& window, const QString& name) {
        SCOPED_TRACE(name.toStdString());
        forms::letEventsRun();
        const QDir folder(QCoreApplication::applicationDirPath() +
                          QStringLiteral("/../window-pictures"));
        QDir().mkpath(folder.path());
        const char* look = GetParam() == Look::dark ? "dark" : "light";
        const QString scale = qEnvironmentVariable("QUORVEL_SCALED");
        EXPECT_TRUE(window.grab().save(folder.filePath(
            QStringLiteral("%1-%2%3.png").arg(name, QString::fromLatin1(look), scale))));
        expectNames(window);
        const QRect screen = window.screen()->availableGeometry();
        EXPECT_LE(window.height(), screen.height() - forms::kFrameRoom.height());
        EXPECT_LE(window.width(), screen.width() - forms::kFrameRoom.width());
        expectNoCutText(window);
        expectTabReachesAll(window);
    }
};

TEST_P(AllNotes, OfAScene) {
    openSample();
    checkEditor(QStringLiteral("sceneimage"),
                [this] { action(QStringLiteral("scnmen(1)")).trigger(); });
}

TEST_P(AllNotes, OfAHotSpot) {
    openSample();
    store::ResetSlot(shell->scene().slot(20), store::ObjectType::hotSpot, 300, 200);
    shell->actions().PopupObject = 20;
    checkEditor(QStringLiteral("linkPropf"), [this] { shell->actions().ShowObjectProps(1); });
}

TEST_P(AllNotes, OfANewProject) {
    start();
    withWindow(
        QStringLiteral("NewProject"), [this] { action(QStringLiteral("Filemen(1)")).trigger(); },
        [&](QWidget& window) {
            dialogs.choice = text(projects.makeFolder(std::string(120, 'x'))) + QLatin1Char('/');
            control<QPushButton>(window, QStringLiteral("Command1")).click();
            control<QLineEdit>(window, QStringLiteral("Text2"))
                .setText(QStringLiteral("TwelveLetter"));
            check(window, QStringLiteral("NewProject-notes"));
            window.close();
        });
}

INSTANTIATE_TEST_SUITE_P(Looks, AllNotes, ::testing::Values(Look::light, Look::dark),
                         [](const auto& one) {
                             return one.param == Look::dark ? "Dark" : "Light";
                         });

}  // namespace
}  // namespace quorvel::test
