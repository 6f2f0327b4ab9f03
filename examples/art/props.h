/// Things that stand about in the pictures.
#pragma once

#include "art/brush.h"

namespace quorvel::sample {

struct HouseLook {
    double x;
    double base;
    double width;
    double height;  ///< of the wall
    QColor wall;
    QColor roof;
    unsigned seed;
    double lit = 0.5;  ///< share of the windows with a light behind them
    bool timbered = false;
};
/// A town house seen from the front, with a gable, windows and a chimney.
void paintHouse(QPainter& painter, const HouseLook& look);

/// A window with panes. `light` 0 dark to 1 bright.
void paintWindow(QPainter& painter, const QRectF& box, double light, unsigned seed);
/// A door with an arched head.
void paintDoor(QPainter& painter, const QRectF& box, const QColor& colour, unsigned seed);

/// A lantern hanging from its top centre. `light` 0 out to 1 bright.
void paintLantern(QPainter& painter, QPointF top, double height, double light);
/// A street lamp standing on `foot`.
void paintLampPost(QPainter& painter, QPointF foot, double height, double light);

/// The lighthouse, standing on `foot`. `light` is the lamp's.
void paintLighthouse(QPainter& painter, QPointF foot, double height, double light);

/// A fishing boat; `at` is the middle of the waterline, `length` may be negative to turn it.
void paintFishingBoat(QPainter& painter, QPointF at, double length, const QColor& hull,
                      double light);
/// A rowing boat, drawn up or afloat.
void paintRowboat(QPainter& painter, QPointF at, double length, const QColor& hull);

void paintBarrel(QPainter& painter, QPointF foot, double height);
void paintCrate(QPainter& painter, const QRectF& box, unsigned seed);
void paintBollard(QPainter& painter, QPointF foot, double height);
void paintRopeCoil(QPainter& painter, QPointF foot, double radius);
/// A rope that sags between two points.
void paintRope(QPainter& painter, QPointF from, QPointF to, double sag, double width);

/// A gull in flight. `wing` -1 down to 1 up.
void paintGull(QPainter& painter, QPointF at, double span, double wing, const QColor& colour);
/// A sitting cat seen from behind; `tail` -1 to 1 sways.
void paintCat(QPainter& painter, QPointF foot, double height, double tail, const QColor& colour);
/// A puffin seen from the side; `tilt` of the head in degrees.
void paintPuffin(QPainter& painter, QPointF foot, double height, double tilt, bool blink);
/// A flame standing on `foot`; `phase` 0 to 1 is one flicker.
void paintFlame(QPainter& painter, QPointF foot, double height, double phase);

}  // namespace quorvel::sample
