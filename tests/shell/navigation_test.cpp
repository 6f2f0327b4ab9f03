// Moving between scenes and adding scenes, through the controls of the main window.
#include <gtest/gtest.h>

#include "shell/scene_fixture.h"

namespace quorvel::test {
namespace {

using store::HeaderString;

class Navigation : public SceneFixture {
  protected:
    QString shownNumber() { return number().text(); }
    static void choose(QComboBox& combo, int row) {
        combo.setCurrentIndex(row);
        Q_EMIT combo.activated(row);
    }
    void type(const QString& digits) {
        number().setFocus();
        number().selectAll();
        QTest::keyClicks(&number(), digits);
        QTest::keyClick(&number(), Qt::Key_Return);
    }
};

TEST_F(Navigation, StepsThroughTheScenesAndStopsAtBothEnds) {
    open(ProjectBuilder().scenes(3));
    EXPECT_FALSE(button("Command5").isEnabled());
    EXPECT_TRUE(button("Command6").isEnabled());
    next();
    EXPECT_EQ(shownNumber(), QStringLiteral("2"));
    EXPECT_EQ(list("Combo1").currentIndex(), 2);
    EXPECT_TRUE(button("Command5").isEnabled());
    next();
    EXPECT_EQ(current(), 3);
    EXPECT_FALSE(button("Command6").isEnabled());
    previous();
    EXPECT_EQ(shownNumber(), QStringLiteral("2"));
}

TEST_F(Navigation, HasNoWayOutOfTheOnlyScene) {
    open(ProjectBuilder());
    EXPECT_FALSE(button("Command5").isEnabled());
    EXPECT_FALSE(button("Command6").isEnabled());
}

TEST_F(Navigation, SavesWhatIsLeft) {
    open(ProjectBuilder().scenes(2));
    shell->scene().header(HeaderString::SceneName) = "Hall";
    slot(4).SlotInt(36) = 777;
    next();
    EXPECT_EQ(readBytes(files.storePath(1), 0, 15), "Hall           ");
    EXPECT_EQ(readInt(files.storePath(1), 255 + 3 * 207 + 205), 777);
    previous();
    EXPECT_EQ(shell->scene().header(HeaderString::SceneName), "Hall");
}

TEST_F(Navigation, TellsThatTheChosenSceneIsOnTheCanvasAndSavesNothing) {
    open(ProjectBuilder().scene(1, "Hall").scenes(2));
    const FolderSnapshot before = snapshotOf(projects.path());
    shell->scene().header(HeaderString::SceneImage) = "new.bmp";
    choose(list("Combo1"), 1);
    EXPECT_EQ(boxes.texts(),
              QStringList{QStringLiteral("Scene 'Hall' is the scene currently being displayed!")});
    EXPECT_EQ(boxes.shown().front().title, QStringLiteral("Quorvel"));
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
}

TEST_F(Navigation, JumpsFromTheListOfScenesAndIgnoresItsFirstEntry) {
    open(ProjectBuilder().scenes(3));
    choose(list("Combo1"), 3);
    EXPECT_EQ(shownNumber(), QStringLiteral("3"));
    choose(list("Combo1"), 0);
    EXPECT_EQ(shownNumber(), QStringLiteral("3"));
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(Navigation, JumpsToTheSceneOfALocation) {
    open(ProjectBuilder()
             .scenes(3)
             .location(1, "Gate")
             .location(2, "Yard", 1)
             .location(3, "Mill", 3));
    choose(list("LocList"), 1);
    choose(list("LocList"), 2);
    EXPECT_EQ(current(), 1);
    EXPECT_EQ(
        boxes.texts(),
        (QStringList{
            QStringLiteral("There is no scene linked to location 'Gate'!"),
            QStringLiteral("Location 'Yard' is linked to the scene currently being displayed!")}));
    choose(list("LocList"), 3);
    EXPECT_EQ(current(), 3);
}

TEST_F(Navigation, TakesATypedNumberWithinTheProject) {
    open(ProjectBuilder().scenes(12));
    type(QStringLiteral("12"));
    EXPECT_EQ(current(), 12);
    for (const char* refused : {"13", "0", "-1", "x", "99999999999"}) {
        type(QString::fromLatin1(refused));
        EXPECT_EQ(current(), 12) << refused;
        EXPECT_EQ(shownNumber(), QStringLiteral("12")) << refused;
    }
}

TEST_F(Navigation, AddsAnEmptyScene) {
    open(ProjectBuilder().scenes(2).object(1, 3, 2, 10, 20));
    addScene(0);
    EXPECT_EQ(current(), 3);
    EXPECT_EQ(shownNumber(), QStringLiteral("3"));
    EXPECT_EQ(list("Combo1").itemText(3), QStringLiteral("3 ()"));
    EXPECT_EQ(list("Combo1").currentIndex(), 3);
    const auto fresh = store::newRecord<store::SceneRecord>();
    const auto bytes = store::bytesOf(fresh);
    EXPECT_EQ(readBytes(files.storePath(1), 2 * bytes.size(), bytes.size()),
              std::string(bytes.begin(), bytes.end()));
    EXPECT_EQ(shell->scene().objectCount(), 0);
}

TEST_F(Navigation, AddsACloseupThatLeadsBack) {
    open(ProjectBuilder().scenes(2).currentScene(2));
    addScene(1);
    EXPECT_EQ(shell->scene().LinkDown.pointer, 9);
    EXPECT_EQ(shell->scene().LinkDown.target, 2);
    const std::uintmax_t record = 2 * sizeof(store::SceneRecord);
    EXPECT_EQ(readInt(files.storePath(1), record + 213), 0) << "only in memory yet";
    previous();
    EXPECT_EQ(readInt(files.storePath(1), record + 211), 9);
    EXPECT_EQ(readInt(files.storePath(1), record + 213), 2);
}

TEST_F(Navigation, AddsAnExactCopyOfWhatIsInMemory) {
    open(ProjectBuilder().scenes(1).object(1, 1, 5, 100, 120).object(1, 20, 8, 3, 4));
    slot(1).SlotInt(2) = 333;
    slot(20).SlotInt(30) = -7;
    shell->scene().header(HeaderString::SceneName) = "Twin";
    addScene(2);
    EXPECT_EQ(current(), 2);
    EXPECT_EQ(slot(1).SlotInt(2), 333);
    EXPECT_EQ(slot(20).SlotInt(30), -7);
    EXPECT_EQ(shell->scene().objectCount(), 2);
    EXPECT_EQ(list("Combo1").itemText(2), QStringLiteral("2 (Twin)"));
    EXPECT_EQ(
        readBytes(files.storePath(1), 0, sizeof(store::SceneRecord)),
        readBytes(files.storePath(1), sizeof(store::SceneRecord), sizeof(store::SceneRecord)));
}

TEST_F(Navigation, CancelAddsNothing) {
    open(ProjectBuilder());
    const FolderSnapshot before = snapshotOf(projects.path());
    withWindow(
        QStringLiteral("NewScenefrm"), [this] { action(QStringLiteral("Toolbar1(10)")).trigger(); },
        [](QWidget& window) { control<QPushButton>(window, QStringLiteral("Command2")).click(); });
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
    EXPECT_EQ(shell->project().NumberOfScenes, 1);
}

TEST_F(Navigation, RefusesMoreScenesThanNumbers) {
    open(ProjectBuilder().scenes(32767));
    addScene(0);
    EXPECT_EQ(shell->project().NumberOfScenes, 32767);
    EXPECT_EQ(std::filesystem::file_size(files.storePath(1)), 32767 * sizeof(store::SceneRecord));
    EXPECT_EQ(boxes.texts(),
              QStringList{QStringLiteral("A project cannot hold more than 32767 scenes.")});
}

}  // namespace
}  // namespace quorvel::test
