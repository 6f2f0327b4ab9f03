// What a change of scene writes, reads and shows, and what happens when one of them fails.
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QTimer>

#include "shell/scene_fixture.h"
#include "support/gif_bytes.h"
#include "support/mounts.h"

namespace quorvel::test {
namespace {

using store::HeaderString;

const QString kNoRoom = QStringLiteral("An unexpected error has occured:\n61 / Disk full");

using SceneChanges = SceneFixture;

TEST_F(SceneChanges, OneRecordIsWrittenAndOneIsRead) {
    open(ProjectBuilder().scenes(5).object(1, 1, 5, 10, 10));
    // What somebody else does to the other records meanwhile is neither read nor written over.
    for (int scene = 2; scene <= 5; ++scene) {
        patchBytes(files.storePath(1), recordAt(scene) + 156, "mark " + std::to_string(scene));
    }
    const std::string first = recordBytes(1);
    slot(1).SlotInt(2) = 321;
    next();
    EXPECT_EQ(shell->scene().header(HeaderString::Reserved156), "mark 2");
    EXPECT_EQ(stored(1, 1, 2), 321);
    EXPECT_NE(recordBytes(1), first);
    for (int scene = 2; scene <= 5; ++scene) {
        EXPECT_EQ(readBytes(files.storePath(1), recordAt(scene) + 156, 6),
                  "mark " + std::to_string(scene));
    }
    EXPECT_EQ(std::filesystem::file_size(files.storePath(1)), 5 * sizeof(store::SceneRecord));
}

/// What this process has handed to the system for writing so far, in bytes.
std::uintmax_t bytesWritten() {
    std::ifstream io("/proc/self/io");
    std::string word;
    std::uintmax_t number = 0;
    while (io >> word >> number && word != "wchar:") {
    }
    return number;
}

TEST_F(SceneChanges, NoMoreBytesThanOneRecordLeaveTheProcess) {
    if (!std::filesystem::exists("/proc/self/io")) {
        GTEST_SKIP() << "the system does not count";
    }
    open(ProjectBuilder().scenes(3));
    const std::uintmax_t before = bytesWritten();
    next();
    const std::uintmax_t written = bytesWritten() - before;
    EXPECT_GE(written, sizeof(store::SceneRecord));
    EXPECT_LT(written, sizeof(store::SceneRecord) + 1000) << "event loops wake themselves";
}

/// Counts how often a widget is painted.
class Paints : public QObject {
  public:
    explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

TEST_F(SceneChanges, HalfOfTwoScenesIsNeverPainted) {
    ProjectBuilder builder;
    builder.scene(1, "Hall", "hall.bmp")
        .scene(2, "Yard", "yard.bmp")
        .gfx("hall.bmp", bmpBytes(700, 475, 0x112233))
        .gfx("yard.bmp", bmpBytes(700, 475, 0x445566));
    for (int k = 1; k <= 20; ++k) {
        builder.object(1, k, 5, static_cast<std::int16_t>(30 * k), 100);
        builder.object(2, k, 8, static_cast<std::int16_t>(30 * k), 300);
    }
    open(builder);
    QCoreApplication::processEvents();
    Paints image(element(QStringLiteral("Image1")));
    int whileShown = -1;
    QObject::connect(&main().view(), &canvas::SceneView::objectCountChanged,
                     [&] { whileShown = image.count; });
    next();
    EXPECT_EQ(whileShown, 0) << "until the objects stand there the first scene is what is seen";
    QCoreApplication::processEvents();
    EXPECT_GE(image.count, 1);
    EXPECT_TRUE(main().isVisible());
}

TEST_F(SceneChanges, EventsRunBetweenTheSaveAndTheLoad) {
    open(ProjectBuilder().scenes(2));
    slot(1).SlotInt(36) = 77;
    int scene = 0;
    int written = 0;
    QTimer::singleShot(0, &main(), [&] {
        scene = current();
        written = stored(1, 1, 36);
    });
    next();
    EXPECT_EQ(scene, 1);
    EXPECT_EQ(written, 77);
}

TEST_F(SceneChanges, TheCountIsOpenWhileASceneLoads) {
    open(ProjectBuilder().scenes(2).object(2, 3, 5, 10, 10));
    const auto count = [this] {
        return control<QLabel>(main(), QStringLiteral("StatusBar2(1)")).text();
    };
    QString meanwhile;
    QObject::connect(&main().view(), &canvas::SceneView::leaving, &main(),
                     [&] { QTimer::singleShot(0, &main(), [&] { meanwhile = count(); }); });
    next();
    EXPECT_EQ(meanwhile, QStringLiteral("Objects: ..."));
    EXPECT_EQ(count(), QStringLiteral("Objects: 1 / 20"));
}

TEST_F(SceneChanges, APictureThatIsGoneIsToldOverTheWholeScene) {
    open(ProjectBuilder().scenes(2).scene(2, "Yard", "gone.bmp").object(2, 3, 5, 10, 10));
    bool whole = false;
    boxes.whileShown = [&](const forms::Box&) { whole = animation(3).isVisible(); };
    next();
    EXPECT_EQ(boxes.texts(), QStringList{QStringLiteral("Error 53 (File not found) in procedure "
                                                        "GetSceneImage of Module SceneData")});
    EXPECT_TRUE(whole);
    EXPECT_EQ(current(), 2);
}

TEST_F(SceneChanges, ASceneThatCannotBeReadKeepsTheAuthorWhereHeIs) {
    open(ProjectBuilder().scenes(3).object(1, 4, 5, 100, 100));
    carry({110, 110}, {210, 210});
    shell->project().sceneFile.close();
    QString canvasWhile;
    boxes.whileShown = [&](const forms::Box&) {
        canvasWhile += animation(4).isVisible() ? QLatin1Char('+') : QLatin1Char('-');
    };
    next();
    EXPECT_EQ(current(), 1);
    EXPECT_EQ(number().text(), QStringLiteral("1"));
    EXPECT_EQ(slot(4).SlotInt(2), 200);
    EXPECT_TRUE(animation(4).isVisible());
    EXPECT_FALSE(canvasWhile.contains(QLatin1Char('-'))) << "nothing was taken off the canvas";
    EXPECT_FALSE(boxes.shown().empty());
    shell->project().sceneFile.open(files.storePath(1));
    next();
    EXPECT_EQ(current(), 2);
    EXPECT_EQ(stored(1, 4, 2), 200);
}

TEST_F(SceneChanges, AFullDiskKeepsTheAuthorAndHisWork) {
    const SmallDisk disk(64);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    files = ProjectBuilder().object(1, 4, 5, 100, 100).build(disk.path());
    // One record that ends where the file does, the other not there yet: it needs a block more.
    truncateFile(files.storePath(1), 4000);
    start({text(files.projectPath())});
    shell->project().NumberOfScenes = 2;
    shell->project().lists.scenes.push_back({2, "Later", 0});
    button("Command6").setEnabled(true);
    carry({110, 110}, {210, 210});
    disk.fill();
    next();
    EXPECT_EQ(boxes.texts(), QStringList{kNoRoom});
    EXPECT_EQ(current(), 1);
    EXPECT_EQ(slot(4).SlotInt(2), 200);
    EXPECT_EQ(animation(4).pos(), QPoint(200, 200));
    EXPECT_EQ(std::filesystem::file_size(files.storePath(1)), 4000U);

    boxes.forget();
    addScene(0);
    EXPECT_EQ(boxes.texts(), QStringList{kNoRoom});
    EXPECT_EQ(shell->project().NumberOfScenes, 2) << "no scene was added";
    EXPECT_EQ(current(), 1);

    disk.makeRoom();
    next();
    EXPECT_EQ(current(), 2);
    EXPECT_EQ(stored(1, 4, 2), 200);
}

TEST_F(SceneChanges, AStoreThatWasDeletedKeepsTheAuthorAndHisWork) {
    open(ProjectBuilder().scenes(2).object(1, 4, 5, 100, 100));
    carry({110, 110}, {210, 210});
    std::filesystem::remove(files.storePath(1));
    boxes.answer(forms::Answer::no);
    next();
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_TRUE(boxes.texts().front().startsWith(
        QStringLiteral("An unexpected error has occured:\n53 / File not found")));
    EXPECT_EQ(current(), 1);
    EXPECT_EQ(slot(4).SlotInt(2), 200);
}

TEST_F(SceneChanges, AReadOnlyProjectIsToldOnceAndCanBeWalked) {
    files = ProjectBuilder().scenes(3).object(1, 4, 5, 100, 100).build(projects.path());
    const ReadOnlyMount disc(projects.path());
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    start({text(files.projectPath())});
    boxes.forget();
    carry({110, 110}, {210, 210});
    next();
    next();
    EXPECT_EQ(current(), 3);
    EXPECT_LE(boxes.shown().size(), 1U);
    previous();
    previous();
    EXPECT_EQ(slot(4).SlotInt(2), 100) << "what could not be written is not there";
    boxes.forget();
    addScene(0);
    EXPECT_EQ(boxes.texts(), QStringList{QStringLiteral("The scene could not be added.")})
        << "not silently, though that it is read-only was told before";
    EXPECT_EQ(shell->project().NumberOfScenes, 3);
    EXPECT_EQ(list("Combo1").count(), 4);
}

TEST_F(SceneChanges, PreviousFindsTheWayBackFromBeyondTheStore) {
    open(ProjectBuilder().scenes(3).currentScene(9));
    if (current() != 9) {
        GTEST_SKIP() << "opening leads to scene " << current();
    }
    EXPECT_FALSE(button("Command6").isEnabled());
    previous();
    EXPECT_EQ(current(), 3);
}

TEST_F(SceneChanges, AnErrorNobodyExpectedIsTold) {
    open(ProjectBuilder().scenes(2).scene(2, "Yard", "gone.bmp"));
    boxes.whileShown = [this](const forms::Box&) {
        boxes.whileShown = nullptr;
        throw std::runtime_error("nobody expected this");
    };
    next();
    EXPECT_EQ(boxes.texts().back(),
              QStringLiteral("Unexpected error in procedure: Command5_Click"));
}

TEST_F(SceneChanges, ANumberThatIsNotConfirmedIsGivenUp) {
    open(ProjectBuilder().scenes(9).object(1, 1, 5, 100, 100));
    main().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main()));
    number().setFocus();
    number().selectAll();
    QTest::keyClicks(&number(), QStringLiteral("7"));
    press({110, 110});
    EXPECT_EQ(current(), 1);
    EXPECT_TRUE(dragging().isDragging()) << "what was pressed is carried";
    release({110, 110});
    EXPECT_EQ(number().text(), QStringLiteral("1"));
}

TEST_F(SceneChanges, ACloseupLeadsBackAtOnce) {
    open(ProjectBuilder().scenes(2).currentScene(2));
    addScene(1);
    EXPECT_EQ(current(), 3);
    EXPECT_EQ(shell->scene().LinkDown.pointer, 9);
    QMenu* menu = menuAt(link(4).geometry().center());
    ASSERT_NE(menu, nullptr);
    const auto& jump = control<QAction>(*menu, QStringLiteral("JumpToDir"));
    EXPECT_EQ(jump.text(), QStringLiteral("Jump To <2 (Scene 2)>"));
}

class DropDowns : public SceneChanges {
  protected:
    /// Presses a button and returns the list that drops down from it.
    QWidget& drop(const char* pressed, const char* dropped) {
        button(pressed).click();
        QCoreApplication::processEvents();
        QWidget* box = list(dropped).view()->window();
        EXPECT_TRUE(box->isVisible());
        EXPECT_NE(box, &main());
        return *box;
    }
};

TEST_F(DropDowns, TheListsDropDownNextToTheirButtons) {
    open(ProjectBuilder().scene(1, "Hall").scene(2, "Yard").location(2, "Gate", 2));
    main().move(0, 0);  // all of it on the screen
    for (const auto& [pressed, dropped] :
         {std::pair{"Command8", "Combo1"}, {"Command7", "LocList"}}) {
        QWidget& box = drop(pressed, dropped);
        const QRect from(button(pressed).mapToGlobal(QPoint(0, 0)), button(pressed).size());
        EXPECT_LE(std::abs(box.geometry().top() - from.bottom()), 8) << pressed;
        EXPECT_LE(std::abs(box.geometry().right() - from.right()), 8) << pressed;
        list(dropped).hidePopup();
    }
    EXPECT_EQ(button("Command8").toolTip(), QStringLiteral("Drop-Down Scenes List"));
    EXPECT_EQ(button("Command7").toolTip(), QStringLiteral("Drop-Down Locations List"));
    EXPECT_EQ(button("Command5").toolTip(), QStringLiteral("Previous Scene"));
    EXPECT_EQ(button("Command6").toolTip(), QStringLiteral("Next Scene"));
}

TEST_F(DropDowns, AClickInTheListJumps) {
    open(ProjectBuilder().scenes(4));
    drop("Command8", "Combo1");
    QAbstractItemView& view = *list("Combo1").view();
    const QModelIndex row = view.model()->index(3, 0);
    QTest::mouseMove(view.viewport(), view.visualRect(row).center());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(row).center());
    EXPECT_TRUE(waitUntil([this] { return current() == 3; }));
    EXPECT_FALSE(view.window()->isVisible());
    drop("Command8", "Combo1");
    EXPECT_EQ(list("Combo1").currentIndex(), 3);
    QTest::keyClick(&view, Qt::Key_Home);
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(current(), 3) << "the first entry does nothing";
    EXPECT_EQ(list("Combo1").currentIndex(), 3);
}

TEST_F(DropDowns, AListOfAllTheScenesThatThereCanBeScrolls) {
    open(ProjectBuilder().scenes(32767).currentScene(19999));
    next();
    QWidget& box = drop("Command8", "Combo1");
    EXPECT_LE(box.height(), 500) << "it scrolls";
    const QModelIndex now = list("Combo1").view()->currentIndex();
    EXPECT_EQ(now.row(), 20000);
    list("Combo1").hidePopup();
}

}  // namespace
}  // namespace quorvel::test
