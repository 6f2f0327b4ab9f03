// Working on the canvas of the real window: carrying, inserting, removing, sizing.
#include <gtest/gtest.h>

#include "shell/scene_fixture.h"

namespace quorvel::test {
namespace {

class CanvasWork : public SceneFixture {
  protected:
    /// Takes `carried` at `grip` and lets go at a point of the canvas.
    void carry(QWidget& carried, QPoint grip, QPoint to) {
        QTest::mousePress(&carried, Qt::LeftButton, {}, grip);
        EXPECT_TRUE(ghost().isVisible());
        EXPECT_FALSE(carried.isVisible());
        QTest::mouseMove(&ghost(), ghost().mapFromGlobal(onScreen(to)));
        QTest::mouseRelease(&ghost(), Qt::LeftButton, {}, ghost().mapFromGlobal(onScreen(to)));
    }
};

TEST_F(CanvasWork, ADropPutsTheObjectWhereThePointerLetsItGo) {
    open(ProjectBuilder().object(1, 3, 5, 100, 120).object(1, 4, 6, 300, 200));
    carry(animation(3), {7, 9}, {250, 260});
    EXPECT_EQ(slot(3).SlotInt(2), 243);
    EXPECT_EQ(slot(3).SlotInt(3), 251);
    EXPECT_EQ(animation(3).pos(), QPoint(243, 251));

    carry(animation(3), {1, 1}, {310, 210});
    EXPECT_EQ(slot(3).SlotInt(2), 309) << "over another object the place counts on the canvas";
    EXPECT_EQ(slot(3).SlotInt(3), 209);
}

TEST_F(CanvasWork, EscapeAndADropOutsidePutTheObjectBack) {
    open(ProjectBuilder().object(1, 3, 5, 100, 120));
    QWidget& object = animation(3);
    QTest::mousePress(&object, Qt::LeftButton, {}, {5, 5});
    QTest::keyClick(&main(), Qt::Key_Escape);
    QTest::mouseRelease(&object, Qt::LeftButton, {}, {5, 5});
    EXPECT_TRUE(object.isVisible());
    carry(object, {5, 5}, {-60, 300});
    EXPECT_TRUE(object.isVisible());
    EXPECT_EQ(object.pos(), QPoint(100, 120));
    EXPECT_EQ(slot(3).SlotInt(2), 100);
}

TEST_F(CanvasWork, ALinkIsStoredWhereItWasDropped) {
    open(ProjectBuilder().scenes(2));
    carry(link(2), {10, 10}, {110, 210});
    EXPECT_EQ(shell->scene().LinkUp.left, 100);
    EXPECT_EQ(shell->scene().LinkUp.top, 200);
    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_EQ(readInt(files.storePath(1), 223), 200);
    EXPECT_EQ(readInt(files.storePath(1), 225), 100);
}

TEST_F(CanvasWork, ArrowKeysNudgeTheFocusedObject) {
    open(ProjectBuilder().object(1, 3, 5, 100, 120));
    QWidget& object = animation(3);
    object.setFocus();
    QTest::keyClick(&object, Qt::Key_Left);
    QTest::keyClick(&object, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(slot(3).SlotInt(2), 99);
    EXPECT_EQ(slot(3).SlotInt(3), 130);
}

TEST_F(CanvasWork, InsertsAnObjectAtTheFirstFreeIndex) {
    open(ProjectBuilder().object(1, 1, 5, 0, 0).object(1, 2, 5, 0, 0));
    withWindow(
        QStringLiteral("newlink"), [this] { action(QStringLiteral("scnmen(3)")).trigger(); },
        [](QWidget& window) {
            EXPECT_EQ(control<QComboBox>(window, QStringLiteral("Combo1")).currentText(),
                      QStringLiteral("3"));
            auto& go = control<QPushButton>(window, QStringLiteral("Command3"));
            go.click();
            EXPECT_TRUE(window.isVisible()) << "no type was chosen yet";
            control<QRadioButton>(window, QStringLiteral("Option1(8)")).click();
            go.click();
        });
    EXPECT_EQ(slot(3).SlotInt(1), 8);
    EXPECT_EQ(slot(3).SlotInt(9), 4);
    EXPECT_TRUE(animation(3).isVisible());
    EXPECT_EQ(control<QLabel>(main(), QStringLiteral("StatusBar2(1)")).text(),
              QStringLiteral("Objects: 3 / 20"));
}

TEST_F(CanvasWork, RemovesAnObjectWhenTheAuthorAgrees) {
    open(ProjectBuilder().object(1, 7, 2, 10, 20));
    slot(7).SlotInt(25) = 5;
    boxes.answer(forms::Answer::no).answer(forms::Answer::yes);
    shell->actions().RemoveObject(7);
    EXPECT_EQ(slot(7).SlotInt(1), 2);
    shell->actions().RemoveObject(7);
    EXPECT_EQ(slot(7).SlotInt(1), -1);
    EXPECT_EQ(slot(7).SlotInt(25), 5) << "only the type goes";
    EXPECT_FALSE(animation(7).isVisible());
    EXPECT_EQ(boxes.shown().front().title, QStringLiteral("Remove Object"));
}

TEST_F(CanvasWork, TheMenuOfAHotSpotJumpsToItsScene) {
    open(ProjectBuilder()
             .scene(2, "Hall")
             .object(1, 1, 1, 50, 60)
             .editSlot(1, 1, [](store::ObjectSlotRecord& record) {
                 record.SlotInt4To29[15 - 4] = 1;
                 record.SlotInt4To29[16 - 4] = 2;
             }));
    QTest::mousePress(&animation(1), Qt::RightButton);
    QTest::mouseRelease(&animation(1), Qt::RightButton);
    auto& menus = shell->actions().popups();
    auto& jump = control<QAction>(menus, QStringLiteral("JumpToLink"));
    EXPECT_EQ(jump.text(), QStringLiteral("Jump To <2 (Hall)>"));
    EXPECT_TRUE(control<QAction>(menus, QStringLiteral("linkprops")).isEnabled());
    jump.trigger();
    EXPECT_EQ(shell->project().CurrentScene, 2);
}

TEST_F(CanvasWork, BordersAreDrawnAnewWhenTheWindowComesForward) {
    open(ProjectBuilder().object(1, 7, 5, 100, 120));
    main().view().ToggleBorders(true);
    QWidget& border = element("hilite", 7);
    const QRect place = border.geometry();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    border.move(0, 0);
    main().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main()));
    EXPECT_EQ(border.geometry(), place);
}

TEST_F(CanvasWork, SizesALinkAndRestoresTheLowerOneToItsOwnPlace) {
    open(ProjectBuilder());
    dragging().CurrentLink = 4;
    withWindow(
        QStringLiteral("ResizeD"), [this] { shell->actions().showResize(); },
        [this](QWidget& window) {
            auto& apply = control<QPushButton>(window, QStringLiteral("Command1"));
            EXPECT_FALSE(apply.isEnabled());
            control<QRadioButton>(window, QStringLiteral("Option1(3)")).click();
            QTest::keyClicks(&control<QLineEdit>(window, QStringLiteral("Text1(0)")),
                             QStringLiteral("4"));
            QTest::keyClicks(&control<QLineEdit>(window, QStringLiteral("Text1(1)")),
                             QStringLiteral("5"));
            apply.click();
            EXPECT_EQ(
                boxes.texts(),
                QStringList{QStringLiteral("Custom size is too small!  Minimum size is 5h X 5w.")});
            control<QRadioButton>(window, QStringLiteral("Option1(4)")).click();
            control<QPushButton>(window, QStringLiteral("Command3")).click();
        });
    const canvas::Place place = main().view().linkPlace(store::LinkSide::down);
    EXPECT_EQ(place, (canvas::Place{.left = 442, .top = 32, .width = 636, .height = 33}));
    EXPECT_EQ(shell->scene().LinkDown.top, 442) << "in the scene with the next save alone";
}

}  // namespace
}  // namespace quorvel::test
