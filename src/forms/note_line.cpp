#include "forms/note_line.h"

#include <QAccessible>
#include <QPainter>
#include <QTextLayout>

#include "forms/text_lines.h"

namespace quorvel::forms {
namespace {

/// The coloured bar at the left, and how far the text stands from it, in pixels.
constexpr int kBar = 3;
constexpr int kTextLeft = 8;
constexpr int kAbove = 1;
/// What the text asks for where nothing else gives it a width, in pixels.
constexpr int kNarrow = 120;

/// As a layout wants it: a line break is a character of its own there.
QString laidOut(QString text) {
    return text.replace(QLatin1Char('\n'), QChar::LineSeparator);
}

}  // namespace

NoteLine::NoteLine(const QString& name, QWidget* parent) : QLabel(parent) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    hide();
}

void NoteLine::tell(const QString& text) {
    if (text == this->text() && isHidden() == text.isEmpty()) {
        return;
    }
    setText(text);
    setVisible(!text.isEmpty());
    if (!text.isEmpty()) {
        QAccessibleEvent told(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&told);
    }
}

int NoteLine::heightForWidth(int width) const {
    QTextLayout layout(laidOut(text()), font());
    return breakLines(layout, width - kTextLeft) + 2 * kAbove;
}

QSize NoteLine::minimumSizeHint() const {
    // Layouts ask for the height by the width that they give; what is asked here is asked before.
    return {kNarrow, heightForWidth(QWIDGETSIZE_MAX)};
}

QSize NoteLine::sizeHint() const {
    return minimumSizeHint();
}

void NoteLine::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(0, kAbove, kBar, height() - 2 * kAbove, palette().color(QPalette::Link));
    QTextLayout layout(laidOut(text()), font());
    breakLines(layout, width() - kTextLeft);
    painter.setPen(palette().color(QPalette::WindowText));
    layout.draw(&painter, {kTextLeft, kAbove});
}

}  // namespace quorvel::forms
