// Sizing edge links through the real window, and scenes that cannot be saved.
#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>

#include "shell/canvas_author.h"
#include "support/mounts.h"

namespace quorvel::test {
namespace {

using canvas::Place;
using store::LinkSide;

const QString kTooSmall = QStringLiteral("Custom size is too small!  Minimum size is 5h X 5w.");

class ResizeTest : public CanvasAuthor {
  protected:
    /// Opens the window on link `n` as the author does, by its menu.
    void resize(int n, const std::function<void(QWidget&)>& author) {
        QTest::mousePress(&link(n), Qt::RightButton, {}, {1, 1});
        auto& popups = shell->actions().popups();
        popups.menu(canvas::PopupMenu::link).close();
        withWindow(
            QStringLiteral("ResizeD"),
            [&popups] { control<QAction>(popups, QStringLiteral("ResD")).trigger(); }, author);
    }
    static QPushButton& apply(QWidget& window) {
        return control<QPushButton>(window, QStringLiteral("Command1"));
    }
    static void press(QWidget& window, const char* name) {
        control<QPushButton>(window, QString::fromLatin1(name)).click();
    }
    static void choose(QWidget& window, int option) {
        control<QRadioButton>(window, QStringLiteral("Option1(%1)").arg(option)).click();
    }
    static void type(QWidget& window, int field, const QString& text) {
        auto& edit = control<QLineEdit>(window, QStringLiteral("Text1(%1)").arg(field));
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_Delete);
        QTest::keyClicks(&edit, text);
    }
    static QString label(QWidget& window, const char* name) {
        return control<QLabel>(window, QString::fromLatin1(name)).text();
    }
    Place place(LinkSide side) { return main().view().linkPlace(side); }
};

TEST_F(ResizeTest, NamesTheLinkAndShowsItsSize) {
    open(ProjectBuilder().scenes(2));
    const std::array kNames = {QStringLiteral("Left"), QStringLiteral("Up"),
                               QStringLiteral("Right"), QStringLiteral("Down")};
    for (int n = 1; n <= 4; ++n) {
        resize(n, [&](QWidget& window) {
            EXPECT_EQ(window.windowTitle(), QStringLiteral("Resize \"Link\" Object"));
            EXPECT_EQ(label(window, "Label1"), kNames.at(static_cast<std::size_t>(n - 1)));
            EXPECT_EQ(label(window, "HSInd"), QString::number(n));
            const bool upright = n % 2 == 1;
            EXPECT_EQ(label(window, "Label4(0)"),
                      upright ? QStringLiteral("33") : QStringLiteral("636"));
            EXPECT_EQ(label(window, "Label4(1)"),
                      upright ? QStringLiteral("410") : QStringLiteral("33"));
            EXPECT_FALSE(apply(window).isEnabled());
            press(window, "Command2");
        });
    }
}

TEST_F(ResizeTest, PresetsSizeAndLeaveThePlace) {
    open(ProjectBuilder().scenes(2));
    main().view().ToggleBorders(true);
    resize(1, [this](QWidget& window) {
        constexpr std::array kSides = {20, 60, 100};
        for (int option = 0; option < 3; ++option) {
            const int side = kSides.at(static_cast<std::size_t>(option));
            const Place before = place(LinkSide::left);
            choose(window, option);
            EXPECT_EQ(place(LinkSide::left), before) << "only proposed yet";
            EXPECT_EQ(label(window, "Label6(0)"), QString::number(side));
            EXPECT_EQ(label(window, "Label6(1)"), QString::number(side));
            EXPECT_TRUE(apply(window).isEnabled());
            apply(window).click();
            EXPECT_FALSE(apply(window).isEnabled()) << "until the next change";
            const auto pixels = static_cast<std::int16_t>(side);
            EXPECT_EQ(place(LinkSide::left),
                      (Place{.left = 0, .top = 33, .width = pixels, .height = pixels}));
            EXPECT_EQ(label(window, "Label4(0)"), QString::number(side));
            EXPECT_EQ(element("Shape2", 1).geometry(), QRect(-1, 32, side + 2, side + 2));
        }
        press(window, "Command3");
    });
    EXPECT_EQ(shell->scene().LinkLeft.height, 410) << "in the scene with the next save alone";
    leaveScene();
    EXPECT_EQ(storedLink(1, kLeft), (std::array{33, 0, 100, 100}));
}

TEST_F(ResizeTest, CustomSizesBeginAtFiveByFive) {
    open(ProjectBuilder().scenes(2));
    resize(2, [this](QWidget& window) {
        const Place before = place(LinkSide::up);
        int refused = 0;
        for (const auto& [height, width] :
             {std::pair{"4", "5"}, std::pair{"5", "4"}, std::pair{"", "5"}, std::pair{"0", "0"}}) {
            type(window, 0, QString::fromLatin1(height));
            type(window, 1, QString::fromLatin1(width));
            apply(window).click();
            press(window, "Command3");
            refused += 2;
            EXPECT_EQ(boxes.shown().size(), static_cast<std::size_t>(refused));
            EXPECT_EQ(boxes.texts().back(), kTooSmall);
            EXPECT_EQ(place(LinkSide::up), before);
            EXPECT_TRUE(window.isVisible()) << "OK does not close on a refusal";
        }
        type(window, 0, QStringLiteral("5x-"));
        type(window, 1, QStringLiteral("a5"));
        EXPECT_EQ(control<QLineEdit>(window, QStringLiteral("Text1(0)")).text(),
                  QStringLiteral("5"))
            << "digits only";
        press(window, "Command3");
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(place(LinkSide::up), (Place{.left = 32, .top = 0, .width = 5, .height = 5}));
    leaveScene();
    EXPECT_EQ(storedLink(1, kUp), (std::array{0, 32, 5, 5}));
}

TEST_F(ResizeTest, ANumberOfMoreThan16BitsIsToldAndChangesNothing) {
    open(ProjectBuilder().scenes(2));
    resize(3, [this](QWidget& window) {
        const Place before = place(LinkSide::right);
        int refused = 0;
        for (const auto& [height, width, wrong] :
             {std::tuple{"32768", "50", 0}, std::tuple{"50", "40000", 1},
              std::tuple{"50", "65536", 1}, std::tuple{"99999999999999999999", "50", 0}}) {
            SCOPED_TRACE(height);
            type(window, 0, QString::fromLatin1(height));
            type(window, 1, QString::fromLatin1(width));
            for (const char* button : {"Command1", "Command3"}) {
                press(window, button);
                ++refused;
                ASSERT_EQ(boxes.shown().size(), static_cast<std::size_t>(refused));
                EXPECT_EQ(boxes.texts().back(),
                          QStringLiteral("The number %1 cannot be saved.\n\nNumbers can be from 5 "
                                         "to 32767.  Please enter another one.")
                              .arg(QString::fromLatin1(wrong == 0 ? height : width)));
                EXPECT_EQ(place(LinkSide::right), before);
                EXPECT_TRUE(window.isVisible());
                EXPECT_TRUE(apply(window).isEnabled());
                auto& box = control<QLineEdit>(window, QStringLiteral("Text1(%1)").arg(wrong));
                EXPECT_EQ(window.focusWidget(), &box) << "the number to be corrected";
                EXPECT_EQ(box.selectedText(), box.text());
            }
        }
        EXPECT_EQ(label(window, "Label6(0)"), QStringLiteral("50"));
        EXPECT_NE(label(window, "Label6(1)"), QStringLiteral("32767"))
            << "no number that nobody typed";
        type(window, 0, QStringLiteral("32767"));
        press(window, "Command3");
        EXPECT_FALSE(window.isVisible());
    });
    leaveScene();
    EXPECT_EQ(storedLink(1, kRight), (std::array{33, 667, 50, 32767}));
}

TEST_F(ResizeTest, RestorePutsEachLinkWhereItsRowSays) {
    open(ProjectBuilder().scenes(2));
    for (const LinkSide side : store::kLinkSides) {
        main().view().setLinkPlace(side, {.left = 300, .top = 200, .width = 50, .height = 60});
    }
    for (int n = 1; n <= 4; ++n) {
        resize(n, [](QWidget& window) {
            auto& mark = control<QLabel>(window, QStringLiteral("RestoreIt"));
            EXPECT_FALSE(mark.isVisible());
            choose(window, 4);
            EXPECT_TRUE(mark.isVisible());
            EXPECT_EQ(mark.text(), QStringLiteral("* RESTORE POSITION *"));
            choose(window, 0);
            EXPECT_FALSE(mark.isVisible());
            choose(window, 4);
            press(window, "Command3");
        });
    }
    leaveScene();
    EXPECT_EQ(storedLink(1, kLeft), (std::array{33, 0, 33, 410}));
    EXPECT_EQ(storedLink(1, kUp), (std::array{0, 32, 636, 33}));
    EXPECT_EQ(storedLink(1, kRight), (std::array{33, 667, 33, 410}));
    EXPECT_EQ(storedLink(1, kDown), (std::array{32, 442, 636, 33}));
}

TEST_F(ResizeTest, CancelChangesNothing) {
    open(ProjectBuilder().scenes(2));
    const Place before = place(LinkSide::down);
    resize(4, [](QWidget& window) {
        choose(window, 2);
        press(window, "Command2");
    });
    resize(4, [](QWidget& window) {
        type(window, 0, QStringLiteral("50"));
        type(window, 1, QStringLiteral("50"));
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    resize(4, [](QWidget& window) { press(window, "Command3"); });
    EXPECT_EQ(place(LinkSide::down), before);
}

// Leaving a scene that cannot be written.

class UnsavedScene : public CanvasAuthor {
  protected:
    static ProjectBuilder scenes() {
        return ProjectBuilder().scenes(3).object(2, 20, 6, 100, 120).object(3, 1, 6, 10, 20);
    }
    int shownScene() const { return shell->project().CurrentScene; }
};

TEST_F(UnsavedScene, OnADiscTheAuthorIsToldOnceAndGoesOn) {
    files = scenes().build(projects.path());
    start({text(files.projectPath())});
    // The store was opened for writing; only a project opened on the disc cannot be written.
    action(QStringLiteral("Filemen(3)")).trigger();
    shell.reset();
    const FolderSnapshot closed = snapshotOf(projects.path());
    const ReadOnlyMount disc(projects.path());
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    start({text(files.projectPath())});
    const std::size_t opening = boxes.shown().size();
    ASSERT_EQ(opening, 3U) << "the project file, the first store, the warning";
    button("Command6").click();
    button("Command6").click();
    EXPECT_EQ(shownScene(), 3);
    EXPECT_TRUE(animation(1).isVisible());
    EXPECT_EQ(boxes.shown().size(), opening) << "once for each project";
    withWindow(
        QStringLiteral("NewScenefrm"), [this] { action(QStringLiteral("projmen(1)")).trigger(); },
        [](QWidget& window) { control<QPushButton>(window, QStringLiteral("Command3")).click(); });
    EXPECT_EQ(shell->project().NumberOfScenes, 3) << "nothing can be added";
    EXPECT_EQ(shownScene(), 3);
    EXPECT_EQ(differences(closed, snapshotOf(projects.path())), "");
}

TEST_F(UnsavedScene, OnAFullDiskTheAuthorStaysWithTheSceneAsItIs) {
    const SmallDisk disk(64);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    files = ProjectBuilder()
                .scenes(2)
                .locations(1)
                .items(1)
                .cards(1)
                .currentItem(1)
                .currentCueCard(1)
                .currentScene(2)
                .object(2, 3, 6, 100, 120)
                .build(disk.path());
    // Inside the second page of the disk, where the 16th slot of the second scene begins.
    truncateFile(files.storePath(1), 4395 + 255 + 15 * 207);
    disk.fill();
    const FolderSnapshot before = snapshotOf(disk.path());
    start({text(files.projectPath())});
    ASSERT_TRUE(shell->project().ProjectOpen);
    carry(animation(3), {0, 0}, {300, 310});
    const auto expectStayed = [&](std::size_t told) {
        EXPECT_EQ(shownScene(), 2);
        EXPECT_EQ(placeInSlot(3), QPoint(300, 310));
        EXPECT_EQ(animation(3).pos(), QPoint(300, 310));
        EXPECT_TRUE(animation(3).isVisible());
        EXPECT_EQ(boxes.shown().size(), told);
        EXPECT_EQ(boxes.texts().back(),
                  QStringLiteral("An unexpected error has occured:\n61 / Disk full"));
        EXPECT_EQ(differences(before, snapshotOf(disk.path())), "");
        EXPECT_EQ(control<QComboBox>(main(), QStringLiteral("Combo1")).currentIndex(), 2);
    };
    control<QComboBox>(main(), QStringLiteral("Combo1")).setCurrentIndex(2);
    button("Command5").click();
    expectStayed(1);
    auto& list = control<QComboBox>(main(), QStringLiteral("Combo1"));
    list.setCurrentIndex(1);
    Q_EMIT list.activated(1);
    expectStayed(2);
    withWindow(
        QStringLiteral("NewScenefrm"), [this] { action(QStringLiteral("projmen(1)")).trigger(); },
        [](QWidget& window) { control<QPushButton>(window, QStringLiteral("Command3")).click(); });
    EXPECT_EQ(shell->project().NumberOfScenes, 2);
    expectStayed(3);

    disk.makeRoom();
    button("Command5").click();
    EXPECT_EQ(shownScene(), 1);
    EXPECT_EQ(boxes.shown().size(), 3U);
    EXPECT_EQ(storedPlace(2, 3), QPoint(300, 310));
}

}  // namespace
}  // namespace quorvel::test
