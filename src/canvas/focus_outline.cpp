#include "canvas/focus_outline.h"

#include <algorithm>

#include <QFocusEvent>
#include <QPainter>

namespace quorvel::canvas {
namespace {

constexpr int kDistance = 3;   // from the element, in pixels
constexpr int kLeastMark = 9;  // of the mark for what lies off the canvas

}  // namespace

FocusOutline::FocusOutline(const std::vector<SceneElement*>& elements, QWidget* canvas)
    : QWidget(canvas) {
    setObjectName(QStringLiteral("FocusOutline"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    for (SceneElement* element : elements) {
        element->installEventFilter(this);
    }
}

bool FocusOutline::eventFilter(QObject* watched, QEvent* event) {
    auto* element = qobject_cast<SceneElement*>(watched);
    if (element == nullptr) {
        return false;
    }
    switch (event->type()) {
        case QEvent::FocusIn:
            gotFocus(*element, static_cast<QFocusEvent*>(event)->reason());
            break;
        case QEvent::FocusOut:
            lostFocus(static_cast<QFocusEvent*>(event)->reason());
            break;
        case QEvent::KeyPress:
            byKeyboard_ = true;
            follow();
            break;
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
            if (element == focused_) {
                follow();
            }
            break;
        default:
            break;
    }
    return false;
}

void FocusOutline::gotFocus(SceneElement& element, Qt::FocusReason reason) {
    // Back from a menu or another window nothing has changed about how the author works.
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) {
        byKeyboard_ = reason != Qt::MouseFocusReason;
    }
    focused_ = &element;
    follow();
}

void FocusOutline::lostFocus(Qt::FocusReason reason) {
    // While its menu is open the element stays marked.
    if (reason != Qt::PopupFocusReason) {
        focused_ = nullptr;
        follow();
    }
}

void FocusOutline::follow() {
    if (focused_ == nullptr || !byKeyboard_ || !focused_->isVisible()) {
        hide();
        return;
    }
    // Within the canvas on all sides, so that an element that reaches out, or is out, is found.
    const QRect around =
        focused_->geometry().adjusted(-kDistance, -kDistance, kDistance, kDistance);
    const QRect canvas = parentWidget()->rect();
    const int left = std::clamp(around.left(), 0, canvas.right() - kLeastMark + 1);
    const int top = std::clamp(around.top(), 0, canvas.bottom() - kLeastMark + 1);
    const int right = std::clamp(around.right(), left + kLeastMark - 1, canvas.right());
    const int bottom = std::clamp(around.bottom(), top + kLeastMark - 1, canvas.bottom());
    setGeometry(QRect(QPoint(left, top), QPoint(right, bottom)));
    raise();
    show();
}

void FocusOutline::paintEvent(QPaintEvent* /*event*/) {
    // A bright line between two dark ones is seen on any picture.
    QPainter painter(this);
    const QRect outer = rect().adjusted(0, 0, -1, -1);
    painter.setPen(QColor(16, 20, 26));
    painter.drawRect(outer);
    painter.drawRect(outer.adjusted(2, 2, -2, -2));
    painter.setPen(QColor(255, 255, 255));
    painter.drawRect(outer.adjusted(1, 1, -1, -1));
}

}  // namespace quorvel::canvas
