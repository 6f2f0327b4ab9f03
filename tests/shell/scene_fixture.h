/// The whole editor with a project open, and a pointer that works on its canvas the way the
/// desktop's would: through the window, not through the widget below it.
#pragma once

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTest>
#include <QWindow>

#include "support/windows/project_fixture.h"

namespace quorvel::test {

class SceneFixture : public ProjectFixture {
  protected:
    QWidget& alert() { return element(QStringLiteral("ObjAlert")); }
    QString panel(int number) {
        return control<QLabel>(main(), QStringLiteral("StatusBar1(%1)").arg(number)).text();
    }
    /// The field for the number of a scene.
    QLineEdit& number() { return control<QLineEdit>(main(), QStringLiteral("CurScene")); }
    int current() { return shell->project().CurrentScene; }
    void next() { button("Command6").click(); }
    void previous() { button("Command5").click(); }
    /// Adds a scene as the option of the window says: 0 empty, 1 a close-up, 2 a copy.
    void addScene(int option) {
        withWindow(
            QStringLiteral("NewScenefrm"),
            [this] { action(QStringLiteral("projmen(1)")).trigger(); },
            [option](QWidget& window) {
                control<QRadioButton>(window, QStringLiteral("Option1(%1)").arg(option)).click();
                control<QPushButton>(window, QStringLiteral("Command3")).click();
            });
    }

    // The pointer, at points of the canvas.
    void press(QPoint at, Qt::MouseButton pressed = Qt::LeftButton) {
        QTest::mousePress(main().windowHandle(), pressed, {}, inWindow(at));
        QCoreApplication::processEvents();
    }
    void moveTo(QPoint at) {
        QTest::mouseMove(main().windowHandle(), inWindow(at));
        QCoreApplication::processEvents();
    }
    void release(QPoint at, Qt::MouseButton released = Qt::LeftButton) {
        QTest::mouseRelease(main().windowHandle(), released, {}, inWindow(at));
        QCoreApplication::processEvents();
    }
    /// Takes what lies at `from` and lets go of it at `to`.
    void carry(QPoint from, QPoint to) {
        press(from);
        EXPECT_TRUE(ghost().isVisible());
        moveTo((from + to) / 2);
        moveTo(to);
        release(to);
        EXPECT_FALSE(ghost().isVisible());
    }
    void showBorders() {
        if (!main().view().bordersOn()) {
            action(QStringLiteral("Toolbar1(7)")).trigger();
        }
    }
    QPoint onScreen(QPoint canvas) { return main().view().canvas().mapToGlobal(canvas); }

    /// The pop-up that is open, or null; closes it.
    static QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    /// Presses the right button at a point and returns the menu that opens, closed again.
    QMenu* menuAt(QPoint at) {
        press(at, Qt::RightButton);
        QMenu* menu = openMenu();
        if (menu != nullptr) {
            menu->close();
        }
        release(at, Qt::RightButton);
        return menu;
    }

    /// Number `field` of a slot in the scene store.
    std::int16_t stored(int scene, int k, int field) {
        const int offset = field <= 3 ? 2 * (field - 1) : 141 + 2 * (field - 4);
        return readInt(files.storePath(1), recordAt(scene) + 255 +
                                               207 * static_cast<std::uintmax_t>(k - 1) +
                                               static_cast<std::uintmax_t>(offset));
    }
    static std::uintmax_t recordAt(int scene) {
        return static_cast<std::uintmax_t>(scene - 1) * sizeof(store::SceneRecord);
    }
    std::string recordBytes(int scene) {
        return readBytes(files.storePath(1), recordAt(scene), sizeof(store::SceneRecord));
    }

  private:
    QPoint inWindow(QPoint canvas) {
        return main().windowHandle()->mapFromGlobal(onScreen(canvas));
    }
};

}  // namespace quorvel::test
