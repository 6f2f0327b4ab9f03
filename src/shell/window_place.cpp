#include "shell/window_place.h"

#include <algorithm>
#include <array>

namespace quorvel::shell {
namespace {

constexpr std::array kSides = {Qt::RightEdge, Qt::LeftEdge, Qt::BottomEdge, Qt::TopEdge};

/// What `screen` has to offer at a side of `other`.
QRect roomAt(Qt::Edge side, const QRect& other, const QRect& screen) {
    QRect room = screen;
    switch (side) {
        case Qt::RightEdge:
            room.setLeft(other.right() + 1);
            break;
        case Qt::LeftEdge:
            room.setRight(other.left() - 1);
            break;
        case Qt::BottomEdge:
            room.setTop(other.bottom() + 1);
            break;
        case Qt::TopEdge:
            room.setBottom(other.top() - 1);
            break;
    }
    return room;
}

/// `size` in `room`, close to `other`.
QRect closeTo(const QRect& other, QSize size, const QRect& room) {
    QRect place({}, size);
    place.moveTopLeft({std::clamp(other.left(), room.left(), room.right() + 1 - size.width()),
                       std::clamp(other.top(), room.top(), room.bottom() + 1 - size.height())});
    return place;
}

int areaOf(QSize size) {
    return size.width() * size.height();
}

/// The place that has room without covering `other`; empty when there is none.
QRect freePlace(const QRect& other, QSize wanted, QSize least, const QRect& screen) {
    QRect best;
    for (const Qt::Edge side : kSides) {
        const QRect room = roomAt(side, other, screen);
        const QSize size = wanted.boundedTo(room.size());
        if (size.width() >= least.width() && size.height() >= least.height() &&
            areaOf(size) > areaOf(best.size())) {
            best = closeTo(other, size, room);
        }
    }
    return best;
}

/// The corner of the screen where least of `other` is covered.
QRect leastCovering(const QRect& other, QSize wanted, const QRect& screen) {
    const QSize size = wanted.boundedTo(screen.size());
    QRect best;
    int least = -1;
    for (const int x : {screen.right() + 1 - size.width(), screen.left()}) {
        for (const int y : {screen.bottom() + 1 - size.height(), screen.top()}) {
            const QRect place(QPoint(x, y), size);
            const int covered = areaOf(place.intersected(other).size());
            if (least < 0 || covered < least) {
                least = covered;
                best = place;
            }
        }
    }
    return best;
}

}  // namespace

Places placeBeside(const QRect& other, QSize wanted, QSize least, const QRect& screen,
                   bool movable) {
    const QRect place = freePlace(other, wanted, least, screen);
    if (!place.isEmpty()) {
        return {other, place};
    }
    if (movable && other.width() + least.width() <= screen.width()) {
        QRect moved = other;
        moved.moveLeft(std::clamp(other.left(), screen.left(),
                                  screen.right() + 1 - least.width() - other.width()));
        const QRect beside = freePlace(moved, wanted, least, screen);
        if (!beside.isEmpty()) {
            return {moved, beside};
        }
    }
    return {other, leastCovering(other, wanted, screen)};
}

}  // namespace quorvel::shell
