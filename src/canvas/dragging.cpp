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

    void showAs(SceneElement& element) {
        resize(element.size());
        picture_ = QPixmap(element.size());
        picture_.fill(Qt::transparent);
        element.render(&picture_, {}, {}, QWidget::DrawChildren);
        move(element.pos());
        raise();
        show();
        setCursor(Qt::ClosedHandCursor);
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setOpacity(0.75);
        painter.drawPixmap(0, 0, picture_);
        painter.setOpacity(1.0);
        painter.setPen(QPen(QColor(0, 0, 0, 140), 1));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.setPen(QPen(QColor(255, 255, 255, 220), 1, Qt::DashLine));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

  private:
    QPixmap picture_;
};

namespace {

constexpr int kLinkIndex = 99;

bool isObject(const SceneElement& element) {
    return element.kind() == SceneElement::Kind::object ||
           element.kind() == SceneElement::Kind::quickSpot;
}

}  // namespace

Dragging::Dragging(SceneView& view)
    : QObject(&view), view_(view), ghost_(new DragGhost(&view.canvas())) {
    for (SceneElement* element : view.movableElements()) {
        element->installEventFilter(this);
    }
    connect(&view_, &SceneView::leaving, this, &Dragging::cancel);
}

bool Dragging::eventFilter(QObject* watched, QEvent* event) {
    if (carried_ != nullptr) {
        return whileCarrying(*event);
    }
    auto* element = qobject_cast<SceneElement*>(watched);
    if (element == nullptr) {
        return false;
    }
    // The press of a drag that follows quickly upon another is a double click to the system.
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        return pressed(*element, *event);
    }
    return event->type() == QEvent::KeyPress && keyPressed(*element, *event);
}

bool Dragging::pressed(SceneElement& element, QEvent& event) {
    const auto& mouse = static_cast<QMouseEvent&>(event);
    if (element.kind() == SceneElement::Kind::link) {
        CurrentLink = element.index();
    }
    if (mouse.button() != Qt::LeftButton) {
        return false;
    }
    take(element, mouse.position().toPoint());
    return true;
}

void Dragging::take(SceneElement& element, QPoint grip) {
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

bool Dragging::whileCarrying(QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseMove:
            follow(static_cast<QMouseEvent&>(event).globalPosition().toPoint());
            return true;
        case QEvent::MouseButtonRelease:
            if (static_cast<QMouseEvent&>(event).button() == Qt::LeftButton) {
                drop(static_cast<QMouseEvent&>(event).globalPosition().toPoint());
            }
            return true;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
            return true;
        case QEvent::ShortcutOverride:
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
        default:
            return false;
    }
}

void Dragging::follow(QPoint global) {
    const QPoint at = view_.canvas().mapFromGlobal(global);
    ghost_->move(at.x() - DragOffsetX, at.y() - DragOffsetY);
}

void Dragging::drop(QPoint global) {
    const QPoint at = view_.canvas().mapFromGlobal(global);
    // Nothing but the canvas takes a drop; elsewhere the element goes back.
    if (!view_.canvas().rect().contains(at)) {
        cancel();
        return;
    }
    SceneElement& element = *carried_;
    letGo();
    view_.DropElement(element, at.x() - DragOffsetX, at.y() - DragOffsetY);
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
        letGo();
        view_.redrawBorders();
    }
}

bool Dragging::keyPressed(SceneElement& element, QEvent& event) {
    const auto& key = static_cast<QKeyEvent&>(event);
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
    const auto pixel = [](int value) { return static_cast<std::int16_t>(value); };
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
