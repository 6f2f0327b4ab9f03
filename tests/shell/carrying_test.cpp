// Carrying with the pointer as the desktop sends it, through the window: what disturbs a drag, and
// what the author sees of it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>

#include "shell/scene_fixture.h"
#include "support/gif_bytes.h"

namespace quorvel::test {
namespace {

/// Counts how often a widget is painted.
class PaintCount : public QObject {
  public:
    PaintCount(QWidget& widget, int& count) : count_(count) { widget.installEventFilter(this); }

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        count_ += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

  private:
    int& count_;
};

class Carrying : public SceneFixture {
  protected:
    static ProjectBuilder twoScenes() {
        return ProjectBuilder()
            .scenes(2)
            .gfx("a.gif", stillGif(40, 30))
            .object(1, 3, 0, 100, 120, "a.gif")
            .object(1, 4, 5, 300, 200);
    }
    void expectAt(int k, QPoint place) {
        EXPECT_EQ(animation(k).pos(), place);
        EXPECT_TRUE(animation(k).isVisible());
        EXPECT_EQ(QPoint(slot(k).SlotInt(2), slot(k).SlotInt(3)), place);
    }
    void expectUntouched(int k, QPoint place) {
        EXPECT_FALSE(ghost().isVisible());
        EXPECT_FALSE(dragging().isDragging());
        EXPECT_EQ(dragging().DraggingObject, 0);
        expectAt(k, place);
    }
};

TEST_F(Carrying, OverALinkThePlaceCountsOnTheCanvas) {
    open(twoScenes());
    ASSERT_EQ(link(1).geometry(), QRect(0, 33, 33, 410));
    carry({110, 125}, {12, 200});
    expectAt(3, {2, 195});
}

TEST_F(Carrying, TheStatusLineTellsWhereTheObjectIsCarried) {
    open(twoScenes());
    moveTo({110, 130});
    EXPECT_EQ(panel(1), QStringLiteral("Object: Ambient"));
    press({110, 130});
    moveTo({5, 130});
    EXPECT_EQ(panel(1), QStringLiteral("Object: Ambient"));
    EXPECT_EQ(panel(2), QStringLiteral("Index: 3"));
    EXPECT_EQ(panel(3), QStringLiteral("Pos: x=-5 , y= 120"));
    EXPECT_EQ(panel(4), QStringLiteral("Size: 30h X 40w"));
    QTest::keyClick(&main(), Qt::Key_Escape);
    EXPECT_EQ(panel(3), QStringLiteral("Pos: x= 100 , y= 120"));
}

TEST_F(Carrying, AQuickSpotGlowsUnderThePointerAsALinkDoes) {
    open(ProjectBuilder()
             .scenes(2)
             .object(1, 4, 1, 300, 200)
             .editSlot(1, 4, [](store::ObjectSlotRecord& slot) {
                 slot.SlotInt4To29[25] = 1;
                 slot.SlotStr[4] = "60";
                 slot.SlotStr[5] = "80";
             }));
    ASSERT_EQ(quickSpot(4).geometry(), QRect(300, 200, 80, 60));
    const auto seen = [this](QPoint at) {
        return main().view().canvas().grab().toImage().pixelColor(at);
    };
    const QPoint inSpot(310, 210);
    const QPoint inLink(5, 60);
    moveTo({500, 400});
    const QColor ground = seen(inSpot);
    EXPECT_EQ(seen(inSpot), seen(inSpot + QPoint(0, -50))) << "nothing is seen of it";
    int drawn = 0;
    const PaintCount count(quickSpot(4), drawn);
    moveTo(inSpot);
    EXPECT_NE(seen(inSpot), ground);
    EXPECT_GT(drawn, 0) << "at once";
    drawn = 0;
    moveTo(inLink);
    EXPECT_EQ(seen(inSpot), ground);
    EXPECT_GT(drawn, 0);
    const QColor glowing = seen(inLink);
    moveTo({500, 400});
    EXPECT_NE(seen(inLink), glowing);
}

TEST_F(Carrying, EscapePutsItBack) {
    open(twoScenes());
    press({110, 130});
    moveTo({400, 400});
    QTest::keyClick(main().windowHandle(), Qt::Key_Escape);
    expectUntouched(3, {100, 120});
    release({400, 400});
    expectUntouched(3, {100, 120});
    carry({110, 130}, {210, 230});
    expectAt(3, {200, 220});
}

TEST_F(Carrying, ADropBesideTheCanvasPutsItBack) {
    open(twoScenes());
    for (const QPoint beside : {QPoint(-2, 100), QPoint(720, 100), QPoint(300, 476)}) {
        carry({110, 130}, beside);
        expectUntouched(3, {100, 120});
    }
}

TEST_F(Carrying, WhatIsCutOffOfTheCanvasTakesNoDrop) {
    open(twoScenes());
    main().setMinimumSize(1, 1);
    main().resize(500, 400);
    QCoreApplication::processEvents();
    const QWidget& side = element(QStringLiteral("Picture1"));
    const QPoint onSide =
        main().view().canvas().mapFromGlobal(side.mapToGlobal(side.rect().center()));
    ASSERT_LT(onSide.x(), 700) << "the canvas goes on below the column beside it";
    carry({110, 130}, onSide);
    expectUntouched(3, {100, 120});
    carry({110, 130}, {210, 230});
    expectAt(3, {200, 220});
}

TEST_F(Carrying, NoShortcutRunsMeanwhile) {
    open(twoScenes());
    press({110, 130});
    QTest::keyClick(main().windowHandle(), Qt::Key_X, Qt::ControlModifier);
    QTest::keyClick(main().windowHandle(), Qt::Key_Right);
    EXPECT_EQ(quits, 0);
    EXPECT_TRUE(dragging().isDragging());
    release({110, 130});
    expectUntouched(3, {100, 120});
}

TEST_F(Carrying, AnotherWindowInFrontPutsItBack) {
    open(twoScenes());
    for (const QEvent::Type lost : {QEvent::WindowDeactivate, QEvent::WindowBlocked}) {
        press({110, 130});
        moveTo({300, 300});
        QEvent event(lost);
        QApplication::sendEvent(&main(), &event);
        expectUntouched(3, {100, 120});
        release({300, 300});
    }
}

TEST_F(Carrying, TheStackKeepsItsOrder) {
    open(twoScenes());
    QWidget& canvas = main().view().canvas();
    const auto names = [&canvas] {
        QStringList list;
        for (const QObject* child : canvas.children()) {
            if (child->objectName() != QStringLiteral("DragGhost")) {
                list << child->objectName();
            }
        }
        return list;
    };
    const QStringList before = names();
    carry({110, 130}, {310, 210});
    EXPECT_EQ(names(), before);
    EXPECT_EQ(canvas.childAt(310, 210), &animation(4)) << "index 4 lies above index 3";
}

TEST_F(Carrying, ALinkThatWasMovedAndRestoredIsStoredWithTheNextSave) {
    open(twoScenes());
    const std::string before = recordBytes(1);
    carry({110, 10}, {118, 210});
    boxes.answer(forms::Answer::yes);
    control<QPushButton>(main(), QStringLiteral("RestoreObjs")).click();
    EXPECT_EQ(link(2).pos(), QPoint(32, 0));
    EXPECT_EQ(shell->scene().LinkUp.top, 200) << "memory follows with the save";
    EXPECT_EQ(slot(3).SlotInt(2), 100);
    next();
    EXPECT_EQ(recordBytes(1), before);
}

TEST_F(Carrying, ALinkAsLargeAsNumbersGoCostsNoMemory) {
    open(twoScenes().editScene(1, [](store::SceneRecord& record) {
        record.LinkUpWidth = 32767;
        record.LinkUpHeight = 32767;
    }));
    carry({500, 300}, {510, 320});
    EXPECT_EQ(main().view().linkPlace(store::LinkSide::up),
              (canvas::Place{.left = 42, .top = 20, .width = 32767, .height = 32767}));
}

TEST_F(Carrying, AnObjectThatCameLaterDoesNotInheritAPlace) {
    open(twoScenes());
    boxes.answer(forms::Answer::yes).answer(forms::Answer::yes);
    shell->actions().RemoveObject(4);
    shell->actions().InsertObject(store::ObjectType::conversation, 4);
    control<QPushButton>(main(), QStringLiteral("RestoreObjs")).click();
    expectAt(4, {0, 0});
}

TEST_F(Carrying, TheMenuOfTheSceneFollowsTheProject) {
    open(twoScenes());
    const auto& insert = control<QAction>(shell->actions().popups(), QStringLiteral("InsertLink"));
    EXPECT_TRUE(insert.isEnabled());
    QMenu* menu = menuAt({500, 100});
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->windowHandle()->transientParent(), main().windowHandle());
    EXPECT_TRUE(shell->CloseProject());
    EXPECT_FALSE(insert.isEnabled());
    EXPECT_EQ(menuAt({500, 100}), nullptr);
}

TEST_F(Carrying, NumbersEndWhereTheRecordEnds) {
    open(ProjectBuilder().scenes(2).object(1, 3, 5, -32768, 32767));
    QTest::keyClick(&animation(3), Qt::Key_Left);
    QTest::keyClick(&animation(3), Qt::Key_Down, Qt::ShiftModifier);
    next();
    EXPECT_EQ(stored(1, 3, 2), -32768);
    EXPECT_EQ(stored(1, 3, 3), 32767);
}

TEST_F(Carrying, AScreenReaderIsToldWhatIsWhat) {
    open(twoScenes());
    EXPECT_EQ(animation(4).accessibleName(), QStringLiteral("Responder 4"));
    EXPECT_EQ(link(4).accessibleName(), QStringLiteral("Link (Down)"));
}

}  // namespace
}  // namespace quorvel::test
