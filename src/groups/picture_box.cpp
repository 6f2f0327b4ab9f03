#include "groups/picture_box.h"

#include <utility>

#include <QPainter>

namespace quorvel::groups {

PictureBox::PictureBox(const QString& name, const QString& spoken, QSize size, QWidget* parent)
    : QWidget(parent), playhead_(nullptr) {
    setObjectName(name);
    setAccessibleName(spoken);
    setFixedSize(size + QSize(2, 2));
    playhead_.setSuspended(true);
    connect(&playhead_, &forms::Playhead::frameChanged, this, [this] { update(); });
}

void PictureBox::setPicture(forms::PicturePtr picture) {
    if (picture == playhead_.picture()) {
        return;
    }
    playhead_.setPicture(std::move(picture));
    playhead_.play();
}

void PictureBox::setMode(forms::DisplayMode mode) {
    playhead_.setMode(mode);
}

void PictureBox::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    playhead_.setSuspended(false);
}

void PictureBox::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    playhead_.setSuspended(true);
}

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1.0 : 0.45);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    const QImage& frame = playhead_.frame();
    if (!frame.isNull()) {
        const QRect room = rect().adjusted(1, 1, -1, -1);
        QSize size = playhead_.picture()->size();
        if (size.width() > room.width() || size.height() > room.height()) {
            size = size.scaled(room.size(), Qt::KeepAspectRatio).expandedTo({1, 1});
        }
        QRect place({}, size);
        place.moveCenter(room.center());
        // In two steps: one that leaves pixels out would make a large picture grainy.
        const QSize pixels = size * devicePixelRatioF();
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(
            place, frame.width() > 2 * pixels.width()
                       ? frame.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       : frame);
    }
    QColor line = palette().color(QPalette::WindowText);
    line.setAlpha(70);
    painter.setPen(line);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace quorvel::groups
