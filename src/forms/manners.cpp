#include "forms/manners.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSlider>
#include <QTimer>

namespace quorvel::forms {
namespace {

bool followsWheel(const QWidget* widget) {
    return qobject_cast<const QComboBox*>(widget) != nullptr ||
           qobject_cast<const QSlider*>(widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(widget) != nullptr;
}

/// A line of text that is no part of another control.
QLineEdit* lineOf(QObject* object) {
    auto* line = qobject_cast<QLineEdit*>(object);
    const bool part =
        line != nullptr && (qobject_cast<QComboBox*>(line->parent()) != nullptr ||
                            qobject_cast<QAbstractSpinBox*>(line->parent()) != nullptr);
    return part ? nullptr : line;
}

/// What only shows takes the keyboard by a click alone.
void followReadOnly(QLineEdit& line) {
    if (line.focusPolicy() != Qt::NoFocus) {
        line.setFocusPolicy(line.isReadOnly() ? Qt::ClickFocus : Qt::StrongFocus);
    }
}

/// The largest of what scrolls up and down in `window`, or null.
QScrollBar* scrollBarOf(const QWidget& window) {
    QScrollBar* bar = nullptr;
    int largest = 0;
    for (auto* area : window.findChildren<QAbstractScrollArea*>()) {
        const int size = area->width() * area->height();
        QScrollBar* own = area->verticalScrollBar();
        if (area->isVisible() && area->window() == &window && own->maximum() > own->minimum() &&
            size > largest) {
            bar = own;
            largest = size;
        }
    }
    return bar;
}

bool pageKeyScrolls(const QWidget& window, const QKeyEvent& key) {
    if ((key.key() != Qt::Key_PageUp && key.key() != Qt::Key_PageDown) ||
        (key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
        return false;
    }
    QScrollBar* bar = scrollBarOf(window);
    if (bar != nullptr) {
        bar->triggerAction(key.key() == Qt::Key_PageUp ? QAbstractSlider::SliderPageStepSub
                                                       : QAbstractSlider::SliderPageStepAdd);
    }
    return bar != nullptr;
}

/// A window that goes with the one below it comes back with that.
void bringBack(QWidget& window) {
    const QWidget* below = window.parentWidget();
    if (window.isModal() && window.isVisible() && window.isMinimized() &&
        (below == nullptr || !below->window()->isMinimized())) {
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    }
}

}  // namespace

void Manners::teach(QWidget& widget) {
    QLineEdit* line = lineOf(&widget);
    if (!followsWheel(&widget) && line == nullptr && !widget.isWindow()) {
        return;
    }
    if (line != nullptr) {
        followReadOnly(*line);
    } else if (widget.focusPolicy() == Qt::WheelFocus) {
        widget.setFocusPolicy(Qt::StrongFocus);
    }
    widget.removeEventFilter(this);
    widget.installEventFilter(this);
}

bool Manners::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = static_cast<QWidget*>(watched);
    switch (event->type()) {
        case QEvent::Wheel:
            if (followsWheel(widget) && !widget->hasFocus()) {
                event->ignore();
                return true;
            }
            break;
        case QEvent::KeyPress:
            return widget->isWindow() && pageKeyScrolls(*widget, *static_cast<QKeyEvent*>(event));
        case QEvent::ReadOnlyChange:
            if (QLineEdit* line = lineOf(watched)) {
                followReadOnly(*line);
            }
            break;
        case QEvent::MouseButtonRelease:
            if (QLineEdit* line = lineOf(watched);
                line != nullptr && line->isReadOnly() && line->isEnabled() &&
                line->focusPolicy() != Qt::NoFocus &&
                static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton &&
                !line->hasSelectedText()) {
                line->selectAll();
            }
            break;
        case QEvent::WindowStateChange:
            if (widget->isModal() && widget->isMinimized()) {
                // Not from within the change.
                QTimer::singleShot(0, widget, [widget] { bringBack(*widget); });
            }
            break;
        default:
            break;
    }
    return false;
}

}  // namespace quorvel::forms
