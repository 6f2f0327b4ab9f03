// Makes the pictures of the help from the real windows: `ninja renew_help_pictures`. Not a test of
// CTest: what is on the pictures changes with the toolkit's fonts.
#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPushButton>
#include <QTabBar>

#include "canvas/elements.h"
#include "forms/events.h"
#include "forms/intake_boxes.h"
#include "forms/look.h"
#include "store/objects.h"
#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

/// As wide as the page in the help window, in its pixels; a picture has two for each.
constexpr int kWidest = 480;
constexpr int kPixels = 2;
/// The quality at which a PNG file is packed best.
constexpr int kSmallest = 0;
/// As many colours as an image with a table of them takes.
constexpr std::size_t kColours = 256;

/// `area` of `window`, whole where none is given, with its letters drawn in the size that they have
/// in the picture, which is sharper than letters that are made larger or smaller afterwards.
QImage pictureOf(QWidget& window, QRect area = {}) {
    area = area.isEmpty() ? window.rect() : area;
    const double scale = kPixels * std::min(1.0, static_cast<double>(kWidest) / area.width());
    // Even, so that half of it is whole.
    const QSize half = (QSizeF(area.size()) * scale / kPixels).toSize();
    QImage picture(half * kPixels, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    painter.scale(scale, scale);
    window.render(&painter, {}, area);
    return picture;
}

/// The same with fewer colours: the help is to be small.
QImage packed(const QImage& picture) {
    QImage image = picture.convertToFormat(QImage::Format_RGB32);
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colours.insert(image.pixel(x, y));
        }
    }
    if (colours.size() <= kColours) {
        return image.convertToFormat(QImage::Format_Indexed8,
                                     QList<QRgb>(colours.begin(), colours.end()), Qt::AvoidDither);
    }
    // What is nearly grey is part of a window, where the eye sees every difference.
    constexpr int kNearlyGrey = 12;
    const auto coarse = [](int part) { return (part & 0xF8) | (part >> 5); };
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb colour = image.pixel(x, y);
            const auto [least, most] = std::minmax({qRed(colour), qGreen(colour), qBlue(colour)});
            if (most - least > kNearlyGrey) {
                image.setPixel(
                    x, y,
                    qRgb(coarse(qRed(colour)), coarse(qGreen(colour)), coarse(qBlue(colour))));
            }
        }
    }
    return image.convertToFormat(QImage::Format_RGB888);
}

class HelpPictures : public ShellFixture {
  protected:
    HelpPictures() { forms::applyLook(*qApp, forms::Look::light); }

    static void keep(const QImage& picture, const QString& name) {
        const QDir folder(qEnvironmentVariable("QUORVEL_HELP_PICTURES"));
        EXPECT_TRUE(
            packed(picture).save(folder.filePath(name + QStringLiteral(".png")), "PNG", kSmallest))
            << name.toStdString();
    }
    static void keep(QWidget& window, const QString& name) {
        forms::letEventsRun();
        keep(pictureOf(window), name);
    }
    /// Takes each page of a window that has pages.
    static void take(const QString& window, const std::function<void()>& routine) {
        withWindow(window, routine, [&](QWidget& shown) {
            auto* pages = shown.findChild<QTabBar*>(QStringLiteral("Pages"));
            if (pages == nullptr) {
                keep(shown, window);
            }
            for (int page = 0; pages != nullptr && page < pages->count(); ++page) {
                pages->setCurrentIndex(page);
                keep(shown, QStringLiteral("%1-%2").arg(window).arg(page + 1));
            }
            shown.close();
        });
    }
    void takeByEntry(const char* window, const char* entry) {
        take(QString::fromLatin1(window),
             [this, entry] { action(QString::fromLatin1(entry)).trigger(); });
    }
    /// Takes `area` of the main window as it is, with `popup` where it stands.
    void takeWith(QWidget* popup, const QRect& area, const char* name) {
        ASSERT_NE(popup, nullptr) << name;
        forms::letEventsRun();
        QImage picture = pictureOf(main(), area);
        QPainter painter(&picture);
        painter.scale(kPixels, kPixels);
        const QRect place(main().mapFromGlobal(popup->mapToGlobal(QPoint(0, 0))) - area.topLeft(),
                          popup->size());
        const QImage over = pictureOf(*popup);
        painter.drawImage(place, over);
        painter.setPen(main().palette().color(QPalette::Mid));
        painter.drawRect(place.adjusted(0, 0, -1, -1));
        painter.end();
        popup->close();
        keep(picture, QString::fromLatin1(name));
    }
    /// The part of a scene with a HotSpot whose menu is open.
    void takeCanvas() {
        constexpr int kHeight = 280;
        main().ToggleBorders(true);
        const int object = findHotSpot([](const store::ObjectSlot& slot) {
            return store::number(slot, store::HotSpot::QuickSpot) == 1;
        });
        auto& element =
            control<canvas::SceneElement>(main(), QStringLiteral("NoGIF(%1)").arg(object));
        const QPoint at = element.geometry().center();
        QWidget& canvas = main().view().canvas();
        shell->actions().openMenu(element, canvas.mapToGlobal(at), at);
        const QPoint corner = canvas.mapTo(&main(), QPoint(0, 0));
        const int left = std::clamp(at.x() - kWidest / 3, 0, main().width() - corner.x() - kWidest);
        const int top = std::clamp(at.y() - kHeight / 2, 0, canvas.height() - kHeight);
        takeWith(QApplication::activePopupWidget(),
                 QRect(corner + QPoint(left, top), QSize(kWidest, kHeight)), "canvas");
    }
    /// The side of the main window with the list of scenes open.
    void takeSceneList() {
        constexpr QSize kSize(kWidest, 300);
        control<QPushButton>(main(), QStringLiteral("Command8")).click();
        const int top = main().view().canvas().mapTo(&main(), QPoint(0, 0)).y();
        takeWith(QApplication::activePopupWidget(),
                 QRect(QPoint(main().width() - kWidest, top), kSize), "moving");
    }
    /// The first HotSpot of the scene that satisfies `condition`, or 0.
    template <class Condition>
    int findHotSpot(const Condition& condition) {
        for (int k = 1; k <= store::kSlotCount; ++k) {
            const store::ObjectSlot& slot = shell->scene().slot(k);
            if (store::typeOf(slot) == store::ObjectType::hotSpot && condition(slot)) {
                return k;
            }
        }
        return 0;
    }
    /// Goes on to the next scene with a HotSpot that needs an item.
    int goToLockedDoor() {
        const auto isLocked = [](const store::ObjectSlot& slot) {
            return store::number(slot, store::HotSpot::NeedsItem) == 1;
        };
        while (findHotSpot(isLocked) == 0) {
            control<QPushButton>(main(), QStringLiteral("Command6")).click();
        }
        return findHotSpot(isLocked);
    }
};

TEST_F(HelpPictures, Renew) {
    const std::filesystem::path game = projects / "Lantern";
    std::filesystem::copy(QUORVEL_SAMPLE_GAME, game, std::filesystem::copy_options::recursive);
    QString project;
    for (const auto& file : std::filesystem::directory_iterator(game)) {
        project = file.path().extension() == ".qvl" ? text(file.path()) : project;
    }
    start();
    takeByEntry("NewProject", "Filemen(1)");
    leave();
    start({project});
    main().showProjectFolder(QStringLiteral("/games/Lantern/"));
    main().move(0, 0);  // room for what drops down
    keep(main(), QStringLiteral("main-window"));
    takeSceneList();
    takeByEntry("NewScenefrm", "projmen(1)");
    takeByEntry("ProjSecurity", "projmen(12)");
    takeByEntry("sceneimage", "scnmen(1)");
    takeByEntry("newlink", "scnmen(3)");
    takeByEntry("EdOptions", "options(1)");
    shell->settings().TipsAtStart = QStringLiteral("Yes");
    takeByEntry("frmTip", "helpmen(1)");
    take(QStringLiteral("ResizeD"), [this] {
        shell->actions().dragging().CurrentLink = 4;
        shell->actions().showResize();
    });
    take(QStringLiteral("directionprop"), [this] {
        shell->actions().PopupObject = 3;
        Q_EMIT shell->actions().popups().chosen(canvas::PopupMenu::link,
                                                canvas::PopupAction::properties);
    });
    takeCanvas();
    const int door = goToLockedDoor();
    take(QStringLiteral("linkPropf"), [&] {
        shell->actions().PopupObject = door;
        shell->actions().ShowObjectProps(shell->scene().slot(door).SlotInt(1));
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
