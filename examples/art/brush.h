/// Painting helpers shared by all pictures: colours, gradients, light, and what is done to a whole
/// picture at the end.
#pragma once

#include <initializer_list>
#include <vector>

#include <QBrush>
#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPolygonF>
#include <QRadialGradient>

namespace quorvel::sample {

/// Size of a scene in pixels.
inline constexpr int kWidth = 700;
inline constexpr int kHeight = 475;

/// A colour written as 0xrrggbb.
inline QColor hex(unsigned rgb) {
    return QColor::fromRgb(rgb);
}
/// `a` at 0, `b` at 1.
QColor mix(const QColor& a, const QColor& b, double t);
/// The same colour with an opacity from 0 to 1.
QColor fade(const QColor& colour, double opacity);
/// The colour times `factor`: below 1 darker, above 1 lighter.
QColor shade(const QColor& colour, double factor);

/// A canvas of scene size.
QImage newPicture();
/// Prepares a painter for smooth edges, without outlines.
void makeSmooth(QPainter& painter);

struct Stop {
    double at;
    QColor colour;
};
/// A gradient from y `top` to y `bottom`.
QBrush downward(double top, double bottom, std::initializer_list<Stop> stops);
/// A gradient from x `left` to x `right`.
QBrush sideways(double left, double right, std::initializer_list<Stop> stops);

QPainterPath polygon(std::initializer_list<QPointF> points);
/// A closed shape whose edge is a smooth curve through the points.
QPainterPath blob(const std::vector<QPointF>& points);
QPainterPath ellipse(QPointF centre, double rx, double ry);

/// A round light that brightens what lies under it.
void glow(QPainter& painter, QPointF centre, double radius, const QColor& colour, double strength);
/// A line with round ends.
void stroke(QPainter& painter, const QPainterPath& path, const QColor& colour, double width);
void stroke(QPainter& painter, QPointF from, QPointF to, const QColor& colour, double width);

/// Fills `path` with a picture that starts at the path's upper left corner.
void fillTextured(QPainter& painter, const QPainterPath& path, const QImage& texture);
/// Stretches a picture over four corners: upper left, upper right, lower right, lower left.
void drape(QPainter& painter, const QImage& texture, const QPolygonF& corners);
QPolygonF quad(QPointF a, QPointF b, QPointF c, QPointF d);

/// Light and dark mottling over a shape; `grainX`, `grainY` are the sizes of the patches in pixels.
void mottle(QPainter& painter, const QPainterPath& path, double grainX, double grainY,
            double strength, unsigned seed);
/// A soft shape: painted, then blurred by `radius` pixels.
void softFill(QPainter& painter, const QPainterPath& path, const QColor& colour, int radius);

void blur(QImage& image, int radius);
/// Lets bright places shine over their surroundings.
void bloom(QImage& picture, int threshold, int radius, double strength);
/// Darkens the corners.
void vignette(QImage& picture, double strength);
/// The grain of the paper.
void paperGrain(QImage& picture, double strength, unsigned seed);

/// The light in a picture: painted apart, then multiplied into it, so that a lamp also shows what
/// it shines on.
class LightMap {
  public:
    explicit LightMap(const QColor& ambient);
    /// Light is added; 1 is the brightness at which a picture shows its own colours, 2 the most.
    void addLamp(QPointF centre, double radiusX, double radiusY, const QColor& colour,
                 double strength);
    void addShape(const QPainterPath& shape, const QColor& colour, double strength, int softness);
    /// Takes light away.
    void addShadow(const QPainterPath& shape, double strength, int softness);
    void applyTo(QImage& picture) const;

  private:
    QImage map_;
};

}  // namespace quorvel::sample
