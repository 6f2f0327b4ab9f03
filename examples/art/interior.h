/// Rooms: a box seen from its open side, and the furniture in it.
#pragma once

#include "art/brush.h"

namespace quorvel::sample {

struct RoomLook {
    QRectF back;  ///< the far wall on the picture
    QColor wall;
    QColor floor;
    QColor ceiling;
    bool stone = false;
    unsigned seed = 1;
};
/// Walls, floor and ceiling in perspective; edges lie in shade.
void paintRoom(QPainter& painter, const RoomLook& look);
/// Beams under the ceiling, from the far wall to the viewer.
void paintBeams(QPainter& painter, const QRectF& back, int count, const QColor& wood);

/// A shelf with jars, tins, books and coils on it.
void paintShelf(QPainter& painter, const QRectF& board, double roomAbove, unsigned seed);
/// A table or counter from the front.
void paintCounter(QPainter& painter, const QRectF& box, double depth, const QColor& wood,
                  unsigned seed);
void paintBook(QPainter& painter, const QRectF& box, const QColor& colour);
void paintBottle(QPainter& painter, QPointF foot, double height, const QColor& glass);
void paintCandle(QPainter& painter, QPointF foot, double height);

}  // namespace quorvel::sample
