#include "forms/movie_player.h"

#include <QEvent>
#include <QPainter>

namespace quorvel::forms {

MoviePlayer::MoviePlayer(const media::MovieFrames& frames, QWidget* area)
    : QWidget(area), frames_(frames) {
    setAccessibleName(QStringLiteral("Movie"));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    hide();
    area->installEventFilter(this);
    connect(&frames_, &media::MovieFrames::frameChanged, this, &MoviePlayer::followFrame);
}

void MoviePlayer::followFrame() {
    const QImage frame = frames_.frame();
    if (frame.isNull()) {
        size_ = {};
        hide();
        return;
    }
    if (frame.size() != size_) {
        size_ = frame.size();
        place();
    }
    if (isHidden()) {
        show();
        raise();
    }
    update();
}

void MoviePlayer::place() {
    const QSize room = parentWidget()->size();
    QSize shown = size_;
    if (shown.width() > room.width() || shown.height() > room.height()) {
        shown.scale(room, Qt::KeepAspectRatio);
    }
    resize(shown);
    move((room.width() - shown.width()) / 2, (room.height() - shown.height()) / 2);
}

void MoviePlayer::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QImage frame = frames_.frame();
    if (frame.isNull()) {
        painter.fillRect(rect(), Qt::black);
    } else {
        painter.drawImage(rect(), frame);
    }
}

bool MoviePlayer::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::Resize && !size_.isEmpty()) {
        place();
    }
    return false;
}

}  // namespace quorvel::forms
