#include "art/brush.h"

#include <algorithm>
#include <cmath>

#include <QLinearGradient>
#include <QPen>
#include <QRadialGradient>
#include <QTransform>

#include "art/noise.h"

namespace quorvel::sample {
namespace {

int mixByte(int a, int b, double t) {
    return std::clamp(qRound(a + (b - a) * t), 0, 255);
}

QBrush withStops(QLinearGradient gradient, std::initializer_list<Stop> stops) {
    for (const Stop& stop : stops) {
        gradient.setColorAt(stop.at, stop.colour);
    }
    return gradient;
}

QImage clearImage(QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

}  // namespace

QColor mix(const QColor& a, const QColor& b, double t) {
    return {mixByte(a.red(), b.red(), t), mixByte(a.green(), b.green(), t),
            mixByte(a.blue(), b.blue(), t), mixByte(a.alpha(), b.alpha(), t)};
}

QColor fade(const QColor& colour, double opacity) {
    QColor result = colour;
    result.setAlpha(std::clamp(qRound(opacity * 255), 0, 255));
    return result;
}

QColor shade(const QColor& colour, double factor) {
    return {mixByte(0, colour.red(), factor), mixByte(0, colour.green(), factor),
            mixByte(0, colour.blue(), factor), colour.alpha()};
}

QImage newPicture() {
    QImage image(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    return image;
}

void makeSmooth(QPainter& painter) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
}

QBrush downward(double top, double bottom, std::initializer_list<Stop> stops) {
    return withStops(QLinearGradient(0, top, 0, bottom), stops);
}

QBrush sideways(double left, double right, std::initializer_list<Stop> stops) {
    return withStops(QLinearGradient(left, 0, right, 0), stops);
}

QPainterPath polygon(std::initializer_list<QPointF> points) {
    QPainterPath path;
    path.addPolygon(QPolygonF(QList<QPointF>(points)));
    path.closeSubpath();
    return path;
}

QPainterPath blob(const std::vector<QPointF>& points) {
    QPainterPath path;
    const std::size_t count = points.size();
    const auto at = [&](std::size_t i) { return points[i % count]; };
    path.moveTo(at(0));
    for (std::size_t i = 0; i < count; ++i) {
        const QPointF out = (at(i + 1) - at(i + count - 1)) / 6;
        const QPointF in = (at(i + 2) - at(i)) / 6;
        path.cubicTo(at(i) + out, at(i + 1) - in, at(i + 1));
    }
    path.closeSubpath();
    return path;
}

QPainterPath ellipse(QPointF centre, double rx, double ry) {
    QPainterPath path;
    path.addEllipse(centre, rx, ry);
    return path;
}

void glow(QPainter& painter, QPointF centre, double radius, const QColor& colour, double strength) {
    QRadialGradient gradient(centre, radius);
    gradient.setColorAt(0, fade(colour, strength));
    gradient.setColorAt(0.18, fade(colour, strength * 0.62));
    gradient.setColorAt(0.45, fade(colour, strength * 0.22));
    gradient.setColorAt(0.75, fade(colour, strength * 0.05));
    gradient.setColorAt(1, fade(colour, 0));
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Screen);
    painter.fillPath(ellipse(centre, radius, radius), gradient);
    painter.restore();
}

void stroke(QPainter& painter, const QPainterPath& path, const QColor& colour, double width) {
    painter.strokePath(path, QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void stroke(QPainter& painter, QPointF from, QPointF to, const QColor& colour, double width) {
    QPainterPath path(from);
    path.lineTo(to);
    stroke(painter, path, colour, width);
}

void fillTextured(QPainter& painter, const QPainterPath& path, const QImage& texture) {
    QBrush brush(texture);
    const QPointF corner = path.boundingRect().topLeft();
    brush.setTransform(QTransform::fromTranslate(corner.x(), corner.y()));
    painter.fillPath(path, brush);
}

QPolygonF quad(QPointF a, QPointF b, QPointF c, QPointF d) {
    return QPolygonF(QList<QPointF>{a, b, c, d});
}

void drape(QPainter& painter, const QImage& texture, const QPolygonF& corners) {
    const double w = texture.width();
    const double h = texture.height();
    QTransform onto;
    QTransform::quadToQuad(quad({0, 0}, {w, 0}, {w, h}, {0, h}), corners, onto);
    painter.save();
    painter.setTransform(onto, true);
    painter.drawImage(0, 0, texture);
    painter.restore();
}

void mottle(QPainter& painter, const QPainterPath& path, double grainX, double grainY,
            double strength, unsigned seed) {
    const QRect box = path.boundingRect().toAlignedRect().intersected({-50, -50, 800, 575});
    if (box.isEmpty()) {
        return;
    }
    QImage image = clearImage(box.size());
    for (int y = 0; y < box.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < box.width(); ++x) {
            const double n =
                cloudNoise((box.x() + x) / grainX, (box.y() + y) / grainY, 4, seed) * 2 - 1;
            const int opacity = std::clamp(qRound(std::abs(n) * strength * 255), 0, 255);
            const int grey = n > 0 ? opacity : 0;
            line[x] = qRgba(grey, grey, grey, opacity);
        }
    }
    QBrush brush(image);
    brush.setTransform(QTransform::fromTranslate(box.x(), box.y()));
    painter.fillPath(path, brush);
}

void softFill(QPainter& painter, const QPainterPath& path, const QColor& colour, int radius) {
    const QRect box = path.boundingRect().toAlignedRect().adjusted(-radius * 2, -radius * 2,
                                                                   radius * 2, radius * 2);
    QImage image = clearImage(box.size());
    QPainter inner(&image);
    makeSmooth(inner);
    inner.translate(-box.topLeft());
    inner.fillPath(path, colour);
    inner.end();
    blur(image, radius);
    painter.drawImage(box.topLeft(), image);
}

namespace {

/// One pass of a running mean over `count` pixels that lie `step` apart.
void blurLine(QRgb* pixels, int count, std::ptrdiff_t step, int radius, std::vector<QRgb>& copy) {
    copy.resize(static_cast<std::size_t>(count));
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        copy[static_cast<std::size_t>(i)] = pixels[i * step];
    }
    const auto at = [&](int i) {
        return copy[static_cast<std::size_t>(std::clamp(i, 0, count - 1))];
    };
    int r = 0;
    int g = 0;
    int b = 0;
    int a = 0;
    const auto add = [&](QRgb p, int sign) {
        r += sign * qRed(p);
        g += sign * qGreen(p);
        b += sign * qBlue(p);
        a += sign * qAlpha(p);
    };
    for (int i = -radius; i <= radius; ++i) {
        add(at(i), 1);
    }
    const int span = 2 * radius + 1;
    for (int i = 0; i < count; ++i) {
        pixels[i * step] = qRgba(r / span, g / span, b / span, a / span);
        add(at(i + radius + 1), 1);
        add(at(i - radius), -1);
    }
}

}  // namespace

void blur(QImage& image, int radius) {
    if (radius < 1) {
        return;
    }
    std::vector<QRgb> copy;
    const std::ptrdiff_t step = image.bytesPerLine() / 4;
    auto* pixels = reinterpret_cast<QRgb*>(image.bits());
    const int box = std::max(1, radius / 2);
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < image.height(); ++y) {
            blurLine(pixels + y * step, image.width(), 1, box, copy);
        }
        for (int x = 0; x < image.width(); ++x) {
            blurLine(pixels + x, image.height(), step, box, copy);
        }
    }
}

void bloom(QImage& picture, int threshold, int radius, double strength) {
    QImage bright = picture.copy();
    for (int y = 0; y < bright.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(bright.scanLine(y));
        for (int x = 0; x < bright.width(); ++x) {
            const int level = std::max({qRed(line[x]), qGreen(line[x]), qBlue(line[x])});
            const double keep = std::clamp((level - threshold) / double(256 - threshold), 0.0, 1.0);
            line[x] = qRgb(qRound(qRed(line[x]) * keep), qRound(qGreen(line[x]) * keep),
                           qRound(qBlue(line[x]) * keep));
        }
    }
    blur(bright, radius);
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_Screen);
    painter.setOpacity(strength);
    painter.drawImage(0, 0, bright);
}

void vignette(QImage& picture, double strength) {
    QRadialGradient gradient(QPointF(picture.width() / 2.0, picture.height() * 0.48),
                             picture.width() * 0.66);
    gradient.setColorAt(0.45, fade(hex(0x060616), 0));
    gradient.setColorAt(1, fade(hex(0x060616), strength));
    QPainter painter(&picture);
    painter.fillRect(picture.rect(), gradient);
}

void paperGrain(QImage& picture, double strength, unsigned seed) {
    Random random(seed);
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const double patch = cloudNoise(x / 46.0, y / 30.0, 3, seed) - 0.5;
            const double factor = 1 + strength * (random.unit() - 0.5) + strength * 1.4 * patch;
            line[x] = qRgb(mixByte(0, qRed(line[x]), factor), mixByte(0, qGreen(line[x]), factor),
                           mixByte(0, qBlue(line[x]), factor));
        }
    }
}

// Half of a byte is brightness 1, so that lamps can go beyond it.
LightMap::LightMap(const QColor& ambient) : map_(newPicture()) {
    map_.fill(shade(ambient, 0.5));
}

void LightMap::addLamp(QPointF centre, double radiusX, double radiusY, const QColor& colour,
                       double strength) {
    QPainter painter(&map_);
    makeSmooth(painter);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    painter.translate(centre);
    painter.scale(1, radiusY / radiusX);
    QRadialGradient gradient(QPointF(0, 0), radiusX);
    for (int i = 0; i <= 10; ++i) {
        const double falloff = std::pow(1 - i / 10.0, 2.0);
        gradient.setColorAt(i / 10.0, fade(colour, strength * 0.5 * falloff));
    }
    painter.fillPath(ellipse({0, 0}, radiusX, radiusX), gradient);
}

void LightMap::addShape(const QPainterPath& shape, const QColor& colour, double strength,
                        int softness) {
    QPainter painter(&map_);
    makeSmooth(painter);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    softFill(painter, shape, fade(colour, strength * 0.5), softness);
}

void LightMap::addShadow(const QPainterPath& shape, double strength, int softness) {
    QPainter painter(&map_);
    makeSmooth(painter);
    softFill(painter, shape, fade(Qt::black, strength), softness);
}

void LightMap::applyTo(QImage& picture) const {
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        const auto* light = reinterpret_cast<const QRgb*>(map_.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            line[x] = qRgb(std::min(255, qRed(line[x]) * qRed(light[x]) / 128),
                           std::min(255, qGreen(line[x]) * qGreen(light[x]) / 128),
                           std::min(255, qBlue(line[x]) * qBlue(light[x]) / 128));
        }
    }
}

}  // namespace quorvel::sample
