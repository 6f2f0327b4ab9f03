/// An author who works on the canvas of the real window, for the tests of this folder.
#pragma once

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>

#include "support/gif_bytes.h"
#include "support/windows/project_fixture.h"

inline void PrintTo(const QPoint& point, std::ostream* out) {
    *out << point.x() << ", " << point.y();
}
inline void PrintTo(const QRect& rect, std::ostream* out) {
    *out << rect.x() << ", " << rect.y() << ", " << rect.width() << " by " << rect.height();
}

namespace quorvel::test {

class CanvasAuthor : public ProjectFixture {
  protected:
    /// Two scenes, and pictures of 40 by 30 pixels for the first.
    static ProjectBuilder scenes() {
        return ProjectBuilder()
            .scenes(2)
            .gfx("a.gif", stillGif(40, 30))
            .gfx("dot.gif", stillGif(1, 1));
    }
    static ProjectBuilder withQuickSpot() {
        return scenes().object(1, 4, 1, 200, 150).editSlot(1, 4, [](auto& record) {
            record.SlotInt4To29[29 - 4] = 1;
            record.SlotStr[5 - 1] = "50";
            record.SlotStr[6 - 1] = "60";
        });
    }
    bool alertShown() { return button("ObjAlert").isVisible(); }
    QStringList status() {
        QStringList panels;
        for (int i = 1; i <= 4; ++i) {
            panels << control<QLabel>(main(), QStringLiteral("StatusBar1(%1)").arg(i)).text();
        }
        return panels;
    }
    QPoint placeInSlot(int k) { return {slot(k).SlotInt(2), slot(k).SlotInt(3)}; }

    /// A point of the canvas as the ghost sees it.
    QPoint underGhost(QPoint canvas) {
        return ghost().mapFrom(&main().view(),
                               main().view().canvas().mapTo(&main().view(), canvas));
    }
    void take(QWidget& carried, QPoint grip) {
        mouse(carried, QEvent::MouseButtonPress, grip, Qt::LeftButton);
    }
    void moveTo(QPoint canvas) {
        mouse(ghost(), QEvent::MouseMove, underGhost(canvas), Qt::NoButton);
    }
    void letGo(QPoint canvas) {
        mouse(ghost(), QEvent::MouseButtonRelease, underGhost(canvas), Qt::LeftButton);
    }
    /// Takes `carried` at `grip` and lets go at a point of the canvas.
    void carry(QWidget& carried, QPoint grip, QPoint to) {
        take(carried, grip);
        moveTo(to);
        letGo(to);
    }

    /// Leaves scene 1 for the next one, which writes it.
    void leaveScene() { button("Command6").click(); }
    /// A number of the object in slot `k` of a scene as the store has it, by its offset.
    [[nodiscard]] std::int16_t stored(int scene, int k, int offset) const {
        return readInt(files.storePath(1),
                       static_cast<std::uintmax_t>((scene - 1) * 4395 + 255 + (k - 1) * 207) +
                           static_cast<std::uintmax_t>(offset));
    }
    [[nodiscard]] QPoint storedPlace(int scene, int k) const {
        return {stored(scene, k, 2), stored(scene, k, 4)};
    }
    [[nodiscard]] std::string storedSlot(int scene, int k) const {
        return readBytes(files.storePath(1),
                         static_cast<std::uintmax_t>((scene - 1) * 4395 + 255 + (k - 1) * 207),
                         207);
    }
    /// Top, left, width and height of the edge link whose rectangle begins at `offset`.
    [[nodiscard]] std::array<int, 4> storedLink(int scene, int offset) const {
        std::array<int, 4> sides{};
        for (std::size_t i = 0; i < sides.size(); ++i) {
            sides[i] = readInt(files.storePath(1),
                               static_cast<std::uintmax_t>((scene - 1) * 4395 + offset) + 2 * i);
        }
        return sides;
    }
    static constexpr int kUp = 223;
    static constexpr int kDown = 231;
    static constexpr int kLeft = 239;
    static constexpr int kRight = 247;

  private:
    /// Sent to the widget itself: the functions of QTest take a point 0, 0 for the middle.
    static void mouse(QWidget& widget, QEvent::Type type, QPoint at, Qt::MouseButton button) {
        const Qt::MouseButtons held =
            type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, QPointF(at), QPointF(widget.mapToGlobal(at)), button, held, {});
        QApplication::sendEvent(&widget, &event);
    }
};

}  // namespace quorvel::test
