#include "support/windows/clean_desk.h"

#include <QApplication>
#include <QTest>
#include <QWidget>

namespace quorvel::test {
namespace {

void closePopups() {
    while (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
        if (QApplication::activePopupWidget() == popup) {
            return;
        }
    }
}

void releaseButtons() {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        if (QTestPrivate::qtestMouseButtons.testFlag(button)) {
            QTestPrivate::qtestMouseButtons.setFlag(button, false);
            // The window that the press went to is gone, but the toolkit counts buttons for itself.
            qt_handleMouseEvent(nullptr, {}, {}, QTestPrivate::qtestMouseButtons, button,
                                QEvent::MouseButtonRelease, {}, ++QTest::lastMouseTimestamp);
        }
    }
}

}  // namespace

void CleanDesk::OnTestEnd(const ::testing::TestInfo& /*test*/) {
    closePopups();
    releaseButtons();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        EXPECT_FALSE(window->isVisible())
            << window->metaObject()->className() << " \"" << window->objectName().toStdString()
            << "\" is still on the screen";
    }
}

}  // namespace quorvel::test
