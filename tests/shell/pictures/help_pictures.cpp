// Makes the pictures of the help from the real windows: `ninja renew_help_pictures`. Not a test of
// CTest: what is on the pictures changes with the toolkit's fonts.
#include <filesystem>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QPushButton>

#include "forms/events.h"
#include "forms/intake_boxes.h"
#include "forms/look.h"
#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

/// As wide as the page in the help window.
constexpr int kWidest = 480;
/// The quality at which a PNG file is packed best.
constexpr int kSmallest = 0;

class HelpPictures : public ShellFixture {
  protected:
    HelpPictures() { forms::applyLook(*qApp, forms::Look::light); }

    static void keep(QWidget& window, const QString& name) {
        forms::letEventsRun();
        QImage picture = window.grab().toImage();
        if (picture.width() > kWidest) {
            picture = picture.scaledToWidth(kWidest, Qt::SmoothTransformation);
        }
        picture = picture.convertToFormat(QImage::Format_RGB888);
        const QDir folder(qEnvironmentVariable("QUORVEL_HELP_PICTURES"));
        EXPECT_TRUE(picture.save(folder.filePath(name + QStringLiteral(".png")), "PNG", kSmallest))
            << name.toStdString();
    }
    static void take(const QString& window, const std::function<void()>& routine) {
        withWindow(window, routine, [&](QWidget& shown) {
            keep(shown, window);
            shown.close();
        });
    }
    void takeByEntry(const char* window, const char* entry) {
        take(QString::fromLatin1(window),
             [this, entry] { action(QString::fromLatin1(entry)).trigger(); });
    }
};

TEST_F(HelpPictures, Renew) {
    const std::filesystem::path game = projects / "Lantern";
    std::filesystem::copy(QUORVEL_SAMPLE_GAME, game, std::filesystem::copy_options::recursive);
    QString project;
    for (const auto& file : std::filesystem::directory_iterator(game)) {
        project = file.path().extension() == ".qvl" ? text(file.path()) : project;
    }
    start({project});
    main().showProjectFolder(QStringLiteral("/games/Lantern/"));
    keep(main(), QStringLiteral("main-window"));
    takeByEntry("NewProject", "Filemen(1)");
    takeByEntry("NewScenefrm", "projmen(1)");
    takeByEntry("ProjSecurity", "projmen(12)");
    takeByEntry("newlink", "scnmen(3)");
    takeByEntry("EdOptions", "options(1)");
    takeByEntry("frmTip", "helpmen(1)");
    take(QStringLiteral("ResizeD"), [this] {
        shell->actions().dragging().CurrentLink = 4;
        shell->actions().showResize();
    });
    shell->settings().RestoreQuickTips();
    take(QStringLiteral("QuickTip"), [this] { shell->ShowQuickTip(5); });
    forms::IntakeBoxes questions(boxes);
    withWindow(
        QStringLiteral("PickCM"), [&] { questions.copyOrMove(); },
        [](QWidget& window) {
            keep(window, QStringLiteral("PickCM"));
            control<QPushButton>(window, QStringLiteral("Command1(0)")).click();
        });
}

}  // namespace
}  // namespace quorvel::test
