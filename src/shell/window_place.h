/// Where a window opens that is to be read beside another.
#pragma once

#include <QRect>
#include <QSize>

namespace quorvel::shell {

/// Places of two windows on one screen, their frames included.
struct Places {
    QRect other;   ///< of the window that was there; it may have to make room
    QRect beside;  ///< of the new one
};

/// A place for a window of size `wanted` beside `other`, inside of `screen`: to the right of it, to
/// the left, below, above, whichever has the room; with less than is wanted, but never less than
/// `least`. Without such a place `other` moves to a side when `movable` and that makes one. Else
/// the new window covers as little of it as can be.
Places placeBeside(const QRect& other, QSize wanted, QSize least, const QRect& screen,
                   bool movable);

}  // namespace quorvel::shell
