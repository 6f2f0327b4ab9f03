// What the status line says while the pointer moves.

#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>

#include "canvas/canvas_fixture.h"

namespace quorvel::canvas {
namespace {

class Status : public CanvasTest {
  protected:
    Status() {
        QObject::connect(&view_, &SceneView::statusChanged, &view_, [this](const StatusText& text) {
            said_ = text;
            ++times_;
        });
    }
    static void point(QWidget* widget) {
        const QPointF at(1, 1);
        QMouseEvent move(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(widget, &move);
    }
    void expect(const char* object, const char* index, const char* position, const char* size) {
        EXPECT_EQ(said_.object, QString::fromLatin1(object));
        EXPECT_EQ(said_.index, QString::fromLatin1(index));
        EXPECT_EQ(said_.position, QString::fromLatin1(position));
        EXPECT_EQ(said_.size, QString::fromLatin1(size));
    }

    StatusText said_;
    int times_ = 0;
};

TEST_F(Status, OverAnObject) {
    builder_.gfx("a.gif", test::stillGif(40, 30)).object(1, 3, 2, 123, -4, "a.gif");
    open();
    point(&animation(3));
    expect("Object: Goodie", "Index: 3", "Pos: x= 123 , y=-4", "Size: 30h X 40w");
}

TEST_F(Status, OverAQuickSpot) {
    builder_.object(1, 12, 1, 0, 7);
    builder_.editSlot(1, 12, [](store::ObjectSlotRecord& slot) {
        slot.SlotInt4To29[25] = 1;
        slot.SlotStr[4] = "60";
        slot.SlotStr[5] = "90";
    });
    open();
    point(&quickSpot(12));
    expect("Object: HotSpot  (QuickSpot)", "Index: 12", "Pos: x= 0 , y= 7", "Size: 60h X 90w");
}

TEST_F(Status, OverAnUnknownObject) {
    builder_.object(1, 1, 99, 0, 0);
    open();
    point(&animation(1));
    EXPECT_EQ(said_.object, QStringLiteral("Object: >>> Unknown <<<"));
}

TEST_F(Status, OverALink) {
    open();
    point(&link(1));
    expect("Object: Link(Left)", "Index: 1", "Pos: x= 0 , y= 33", "Size: 410h X 33w");
    point(&link(2));
    expect("Object: Link(Up)", "Index: 2", "Pos: x= 32 , y= 0", "Size: 33h X 636w");
    point(&link(3));
    EXPECT_EQ(said_.object, QStringLiteral("Object: Link(Right)"));
    point(&link(4));
    EXPECT_EQ(said_.object, QStringLiteral("Object: Link(Down)"));
}

TEST_F(Status, OverALinkThatLeadsSomewhere) {
    builder_.scene(2, "Cellar").editScene(1, [](store::SceneRecord& scene) {
        scene.LinkDownTarget = 2;
        scene.LinkUpTarget = 99;
        scene.LinkLeftTarget = -1;
    });
    open();
    point(&link(4));
    EXPECT_EQ(said_.object, QStringLiteral("Object: Link <Cellar>"));
    point(&link(2));
    EXPECT_EQ(said_.object, QStringLiteral("Object: Link(Up)")) << "there is no scene 99";
    point(&link(1));
    EXPECT_EQ(said_.object, QStringLiteral("Object: Link(Left)"));
}

TEST_F(Status, OverTheScene) {
    builder_.scene(1, "Hall");
    open();
    point(child("Image1"));
    expect("Object: Scene Hall(1)", "Index: ---", "Pos: ---", "Size: ---");
}

TEST_F(Status, OverTheFrame) {
    open();
    point(child("Image1"));
    point(&view_);
    expect("Object: ---", "Index: ---", "Pos: ---", "Size: ---");
    EXPECT_EQ(said_, emptyStatus());
}

TEST_F(Status, OverTheCanvasOfNoProject) {
    point(child("Image1"));
    EXPECT_EQ(times_, 0) << "it reads empty from the start";
}

TEST_F(Status, LeavingTheFrameEmptiesIt) {
    open();
    point(&link(1));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&view_, &leave);
    EXPECT_EQ(said_, emptyStatus());
}

TEST_F(Status, ItIsToldOnlyWhenItChanges) {
    open();
    point(&link(1));
    point(&link(1));
    EXPECT_EQ(times_, 1);
    point(&link(2));
    EXPECT_EQ(times_, 2);
}

TEST_F(Status, AnObjectThatMovedIsToldWhereItIs) {
    builder_.object(1, 1, 5, 0, 0);
    open();
    point(&animation(1));
    animation(1).moveTo(-1, 2);
    point(&animation(1));
    EXPECT_EQ(said_.position, QStringLiteral("Pos: x=-1 , y= 2"));
}

TEST(SignedText, KeepsAPlaceForTheSign) {
    EXPECT_EQ(signedText(0), QStringLiteral(" 0"));
    EXPECT_EQ(signedText(15), QStringLiteral(" 15"));
    EXPECT_EQ(signedText(-32768), QStringLiteral("-32768"));
}

}  // namespace
}  // namespace quorvel::canvas
