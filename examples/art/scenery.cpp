#include "art/scenery.h"

#include <algorithm>
#include <cmath>

#include "art/noise.h"

namespace quorvel::sample {
namespace {

QRgb blend(QRgb under, const QColor& over, double t) {
    const auto channel = [t](int a, int b) { return qRound(a + (b - a) * t); };
    return qRgb(channel(qRed(under), over.red()), channel(qGreen(under), over.green()),
                channel(qBlue(under), over.blue()));
}

double smooth(double low, double high, double value) {
    const double t = std::clamp((value - low) / (high - low), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

}  // namespace

void paintClouds(QImage& picture, const CloudLook& look) {
    for (int y = qRound(look.top); y < qRound(look.bottom); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        const double depth = (y - look.top) / (look.bottom - look.top);
        // Clouds near the horizon are seen flat from the side.
        const double stretch = 1 + 2.6 * depth;
        const double edge = std::sin(depth * 3.14159265);
        for (int x = 0; x < picture.width(); ++x) {
            const double nx = x / 150.0;
            const double ny = y * stretch / 70.0;
            const double body = cloudNoise(nx, ny, 5, look.seed);
            const double below = cloudNoise(nx, ny + 0.16, 5, look.seed);
            const double cover = smooth(0.62 - look.cover * 0.3, 0.86 - look.cover * 0.25, body);
            const double light = std::clamp(0.5 + (body - below) * 4.5, 0.0, 1.0);
            line[x] = blend(line[x], mix(look.shaded, look.lit, light), cover * edge * 0.9);
        }
    }
}

void paintStars(QPainter& painter, const QRectF& area, int count, unsigned seed) {
    Random random(seed);
    for (int i = 0; i < count; ++i) {
        const QPointF at(area.x() + area.width() * random.unit(),
                         area.y() + area.height() * std::pow(random.unit(), 1.4));
        const double size = random.between(0.3, 1.0);
        const QColor colour = mix(hex(0xfff2d8), hex(0xbcd0ff), random.unit());
        const double low = 1 - (at.y() - area.y()) / area.height();
        painter.fillPath(ellipse(at, size, size), fade(colour, (0.25 + 0.7 * low) * size));
        if (size > 0.9) {
            glow(painter, at, 7, colour, 0.5);
        }
    }
}

void paintMoon(QPainter& painter, QPointF centre, double radius, double haze) {
    glow(painter, centre, radius * 9, hex(0x9fb4e8), haze);
    glow(painter, centre, radius * 3, hex(0xdfe6ff), haze);
    QRadialGradient face(centre + QPointF(-radius * 0.3, -radius * 0.3), radius * 1.5);
    face.setColorAt(0, hex(0xfffdf0));
    face.setColorAt(0.7, hex(0xf2ecd2));
    face.setColorAt(1, hex(0xc9c3b4));
    painter.fillPath(ellipse(centre, radius, radius), face);
    Random random(77);
    for (int i = 0; i < 9; ++i) {
        const double angle = random.between(0, 6.28);
        const double distance = radius * 0.75 * std::sqrt(random.unit());
        const double size = radius * random.between(0.06, 0.22);
        painter.fillPath(
            ellipse(centre + distance * QPointF(std::cos(angle), std::sin(angle)), size, size * .9),
            fade(hex(0xa7a294), 0.28));
    }
}

void paintWater(QImage& picture, const WaterLook& look) {
    const QImage above = picture.copy();
    const double depth = picture.height() - look.horizon;
    for (int y = look.horizon; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        const double d = y - look.horizon;
        const double near = d / depth;
        const double wave = 5 + 70 * near;
        for (int x = 0; x < picture.width(); ++x) {
            const double n =
                cloudNoise(x / (10 + 60 * near), d * d / (420 + d * 12) + d / 14.0, 3, look.seed);
            const int mx = std::clamp(qRound(x + (n - 0.5) * wave * 0.5), 0, picture.width() - 1);
            const double up = d * 0.92 + (n - 0.5) * wave * 0.8;
            const int my = std::clamp(qRound(look.horizon - up), 0, look.horizon - 1);
            const QRgb mirrored = above.pixel(mx, my);
            const QColor own = mix(look.far, look.near, near);
            QRgb pixel = blend(mirrored, own, 1 - look.mirror * (1 - 0.45 * near));
            pixel = blend(pixel, look.near, 0.5 * smooth(0.45, 0.25, n));
            const double glint = smooth(0.66, 0.8, n);
            pixel = blend(pixel, look.crest, glint * 0.3 * (1 - near * 0.5));
            line[x] = pixel;
        }
    }
}

void paintAfloat(QImage& picture, double waterline, double strength,
                 const std::function<void(QPainter&)>& paint) {
    QImage layer(picture.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter inner(&layer);
    makeSmooth(inner);
    paint(inner);
    inner.end();
    QPainter painter(&picture);
    makeSmooth(painter);
    painter.setOpacity(strength);
    const int foot = qRound(waterline);
    for (int d = 0; d < 150 && foot + d < picture.height() && foot - d > 0; ++d) {
        const double shift = (noise(d / 3.0, foot, 5) - 0.5) * (2 + d * 0.14);
        painter.setOpacity(strength * (1 - d / 150.0));
        painter.drawImage(QRectF(shift, foot + d, picture.width(), 1), layer,
                          QRectF(0, foot - 1 - d * 0.85, picture.width(), 1));
    }
    painter.setOpacity(1);
    painter.drawImage(0, 0, layer);
}

void paintHills(QPainter& painter, const HillLook& look) {
    QPainterPath path(QPointF(-5, kHeight + 5));
    for (int x = -5; x <= kWidth + 5; x += 2) {
        const double n = cloudNoise(x / look.length, look.seed * 3.7, 5, look.seed);
        path.lineTo(x, look.base - look.rough * (n - 0.5) * 2);
    }
    path.lineTo(kWidth + 5, kHeight + 5);
    path.closeSubpath();
    painter.fillPath(path, downward(look.base - look.rough, look.base + look.rough * 1.5,
                                    {{0, look.top}, {1, look.bottom}}));
}

void paintGrass(QPainter& painter, const std::vector<QPointF>& roots, double height,
                const QColor& dark, const QColor& light, double lean, unsigned seed) {
    Random random(seed);
    for (const QPointF& root : roots) {
        const double h = height * random.between(0.5, 1.2);
        const double bend = lean * h + h * random.between(-0.35, 0.35);
        const double width = random.between(0.8, 2.0);
        QPainterPath blade(root - QPointF(width, 0));
        blade.quadTo(root + QPointF(bend * 0.25, -h * 0.6), root + QPointF(bend, -h));
        blade.quadTo(root + QPointF(bend * 0.3 + width, -h * 0.5), root + QPointF(width, 0));
        painter.fillPath(blade, mix(dark, light, random.unit()));
    }
}

}  // namespace quorvel::sample
