/// Skies, water and hills.
#pragma once

#include <functional>

#include "art/brush.h"

namespace quorvel::sample {

/// Clouds drawn out sideways between two heights; `cover` 0 (clear) to 1 (closed).
struct CloudLook {
    double top;
    double bottom;
    QColor lit;
    QColor shaded;
    double cover;
    unsigned seed;
};
void paintClouds(QImage& picture, const CloudLook& look);
void paintStars(QPainter& painter, const QRectF& area, int count, unsigned seed);
void paintMoon(QPainter& painter, QPointF centre, double radius, double haze);

/// The sea below `horizon`: mirrors what stands above it, broken by ripples that grow towards the
/// viewer.
struct WaterLook {
    int horizon;
    QColor far;
    QColor near;
    double mirror;  ///< 0: only water colour, 1: a perfect mirror
    QColor crest;   ///< light on the ripples
    unsigned seed;
};
void paintWater(QImage& picture, const WaterLook& look);

/// Paints something that floats, and its broken mirror image below `waterline`.
void paintAfloat(QImage& picture, double waterline, double strength,
                 const std::function<void(QPainter&)>& paint);

/// A range of hills from edge to edge. `rough` is the height of its ups and downs in pixels.
struct HillLook {
    double base;
    double rough;
    double length;  ///< distance of the ups and downs in pixels
    QColor top;
    QColor bottom;
    unsigned seed;
};
void paintHills(QPainter& painter, const HillLook& look);

/// Blades of grass along a curve, lit from one side.
void paintGrass(QPainter& painter, const std::vector<QPointF>& roots, double height,
                const QColor& dark, const QColor& light, double lean, unsigned seed);

}  // namespace quorvel::sample
