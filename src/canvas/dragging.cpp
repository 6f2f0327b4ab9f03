#include "canvas/dragging.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace quorvel::canvas {

/// What follows the pointer while an element is carried.
class DragGhost : public QWidget {
  public:
    explicit DragGhost(QWidget* canvas) : QWidget(canvas) {
        setObjectName(QStringLiteral("DragGhost"));
        hide();
    }

    void showAs(const SceneElement& element) {
        element_ = &element;
        setGeometry(element.geometry());
        raise();
        show();
        setCursor(Qt::ClosedHandCursor);
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        // Drawn anew each time: an edge link can be as large as a number goes.
        QPainter painter(this);
        painter.save();
        painter.setOpacity(0.75);
        element_->draw(painter);
        painter.restore();
        painter.setPen(QPen(QColor(0, 0, 0, 140), 1));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.setPen(QPen(QColor(255, 255, 255, 220), 1, Qt::DashLine));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

  private:
    const SceneElement* element_ = nullptr;
};

namespace {

constexpr int kLinkIndex = 99;

bool isObject(const SceneElement& element) {
    return element.kind() == SceneElement::Kind::object ||
           element.kind() == SceneElement::Kind::quickSpot;
}

}  // namespace

Dragging::Dragging(SceneView& view, const store::Project& project)
    : view_(view), project_(project), ghost_(new DragGhost(&view.canvas())) {
    for (SceneElement* element : view.movableElements()) {
        element->installEventFilter(this);
    }
    connect(&view, &SceneView::leaving, this, &Dragging::cancel);
}

bool Dragging::eventFilter(QObject* watched, QEvent* event) {
    if (carried_ != nullptr) {
        return whileCarrying(*watched, *event);
    }
    auto* element = qobject_cast<SceneElement*>(watched);
    if (element == nullptr || !project_.currentSceneStored()) {
        return false;
    }
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        // The press of a drag that follows quickly upon another is a double click to the system.
        case QEvent::MouseButtonDblClick:
            return pressed(*element, *event);
        case QEvent::KeyPress:
            return keyPressed(*element, *event);
        default:
            return false;
    }
}

bool Dragging::pressed(SceneElement& element, QEvent& event) {
    const auto& mouse = static_cast<QMouseEvent&>(event);
    if (element.kind() == SceneElement::Kind::link) {
        CurrentLink = element.index();
    }
    if (mouse.button() != Qt::LeftButton) {
        return false;
    }
    take(element, mouse.globalPosition().toPoint());
    return true;
}

void Dragging::take(SceneElement& element, QPoint global) {
    const QPoint grip = element.mapFromGlobal(global);
    DraggingObject = isObject(element) ? 1 : 0;
    DragIndex = isObject(element) ? element.index() : kLinkIndex;
    DragOffsetX = grip.x();
    DragOffsetY = grip.y();
    carried_ = &element;
    ghost_->showAs(element);
    // Taken over, or hiding the element would hand the focus to the next one.
    ghost_->setFocus(Qt::MouseFocusReason);
    element.hide();
    view_.hideBorderOf(element);
    // The pointer may leave the window and come back.
    ghost_->grabMouse();
    qApp->installEventFilter(this);
}

bool Dragging::whileCarrying(const QObject& watched, QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            // On its way through the window's handle the toolkit keeps count of the buttons.
            return watched.isWidgetType() && mouseWhileCarrying(static_cast<QMouseEvent&>(event));
        case QEvent::Wheel:
        case QEvent::ContextMenu:
            return true;
        case QEvent::ShortcutOverride:
            // No shortcut runs meanwhile.
            event.accept();
            return true;
        case QEvent::KeyPress:
            if (static_cast<QKeyEvent&>(event).key() == Qt::Key_Escape) {
                cancel();
            }
            return true;
        case QEvent::ApplicationStateChange:
            if (QGuiApplication::applicationState() != Qt::ApplicationActive) {
                cancel();
            }
            return false;
        case QEvent::WindowDeactivate:
        case QEvent::WindowBlocked:
            if (&watched == view_.window()) {
                cancel();
            }
            return false;
        default:
            return false;
    }
}

bool Dragging::mouseWhileCarrying(QMouseEvent& mouse) {
    const QPoint global = mouse.globalPosition().toPoint();
    if (mouse.type() == QEvent::MouseMove) {
        follow(global);
    } else if (mouse.type() == QEvent::MouseButtonRelease && mouse.button() == Qt::LeftButton) {
        drop(global);
    }
    return true;
}

QPoint Dragging::placeAt(QPoint global) const {
    return view_.canvas().mapFromGlobal(global) - QPoint(DragOffsetX, DragOffsetY);
}

void Dragging::follow(QPoint global) {
    const QPoint place = placeAt(global);
    ghost_->move(place);
    view_.tellCarried(*carried_, place.x(), place.y());
}

void Dragging::drop(QPoint global) {
    // Nothing but the canvas takes a drop; elsewhere the element goes back.
    if (!view_.takesDropAt(global)) {
        cancel();
        return;
    }
    const QPoint place = placeAt(global);
    SceneElement& element = *carried_;
    letGo();
    view_.DropElement(element, place.x(), place.y());
}

void Dragging::letGo() {
    qApp->removeEventFilter(this);
    ghost_->releaseMouse();
    SceneElement* element = carried_;
    carried_ = nullptr;
    DraggingObject = 0;
    element->setShown(true);
    element->setFocus(Qt::MouseFocusReason);
    ghost_->hide();
}

void Dragging::cancel() {
    if (carried_ != nullptr) {
        const SceneElement& element = *carried_;
        letGo();
        view_.redrawBorders();
        view_.tellCarried(element, element.place().left, element.place().top);
    }
}

bool Dragging::keyPressed(SceneElement& element, QEvent& event) {
    const auto& key = static_cast<QKeyEvent&>(event);
    if ((key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::NoModifier) {
        return false;
    }
    const int step = key.modifiers().testFlag(Qt::ShiftModifier) ? 10 : 1;
    QPoint by;
    switch (key.key()) {
        case Qt::Key_Left:
            by = {-step, 0};
            break;
        case Qt::Key_Right:
            by = {step, 0};
            break;
        case Qt::Key_Up:
            by = {0, -step};
            break;
        case Qt::Key_Down:
            by = {0, step};
            break;
        default:
            return false;
    }
    view_.DropElement(element, element.place().left + by.x(), element.place().top + by.y());
    return true;
}

void Dragging::DropOnCommand4() {
    if (carried_ == nullptr) {
        return;
    }
    SceneElement& element = *carried_;
    letGo();
    QApplication::beep();
    element.moveTo(0, 0);
}

void Dragging::DropSizer(int index, QPoint at) {
    if (CurrentLink == 0) {
        return;
    }
    const auto side = static_cast<store::LinkSide>(CurrentLink);
    Place place = view_.linkPlace(side);
    if (index == 0 || index == 3) {
        place.left = pixel(at.x());
        place.top = pixel(at.y());
    } else {
        place.width = pixel(at.x() - place.left);
        place.height = pixel(at.y() - place.top);
    }
    view_.setLinkPlace(side, place);
    view_.showLinkBorder(side);
}

}  // namespace quorvel::canvas
