#include "art/materials.h"

#include <cmath>

#include "art/brush.h"
#include "art/noise.h"

namespace quorvel::sample {
namespace {

QImage surface(QSize size, const QColor& colour) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return image;
}

QPainterPath whole(const QImage& image) {
    QPainterPath path;
    path.addRect(image.rect());
    return path;
}

QPainterPath roundedBlock(const QRectF& box, Random& random) {
    const auto wobble = [&](double x, double y) {
        return QPointF(x + random.between(-1, 1), y + random.between(-1, 1));
    };
    const QRectF b = box.adjusted(0.8, 0.8, -0.8, -0.8);
    return blob({wobble(b.left(), b.top() + 2), wobble(b.left() + 3, b.top()),
                 wobble(b.right() - 3, b.top()), wobble(b.right(), b.top() + 2),
                 wobble(b.right(), b.bottom() - 2), wobble(b.right() - 3, b.bottom()),
                 wobble(b.left() + 3, b.bottom()), wobble(b.left(), b.bottom() - 2)});
}

}  // namespace

QImage stonework(QSize size, const QColor& colour, double course, unsigned seed) {
    QImage image = surface(size, shade(colour, 0.5));
    QPainter painter(&image);
    makeSmooth(painter);
    Random random(seed);
    double y = -random.between(0, course);
    while (y < size.height()) {
        const double height = course * random.between(0.8, 1.25);
        double x = -random.between(0, course * 2);
        while (x < size.width()) {
            const double width = course * random.between(1.0, 2.6);
            const QRectF box(x, y, width, height);
            const QColor face = mix(shade(colour, random.between(0.78, 1.18)), hex(0x7a6f80),
                                    random.between(0, .25));
            painter.fillPath(
                roundedBlock(box, random),
                downward(y, y + height,
                         {{0, shade(face, 1.16)}, {0.3, face}, {1, shade(face, 0.72)}}));
            x += width;
        }
        y += height;
    }
    mottle(painter, whole(image), 9, 7, 0.22, seed + 7);
    mottle(painter, whole(image), 70, 50, 0.25, seed + 8);
    return image;
}

QImage planks(QSize size, const QColor& colour, double board, unsigned seed) {
    QImage image = surface(size, shade(colour, 0.35));
    QPainter painter(&image);
    makeSmooth(painter);
    Random random(seed);
    double x = -random.between(0, board * 0.6);
    while (x < size.width()) {
        const double width = board * random.between(0.85, 1.2);
        const QColor face = shade(colour, random.between(0.8, 1.15));
        painter.fillRect(QRectF(x, 0, width - 1.2, size.height()),
                         sideways(x, x + width,
                                  {{0, shade(face, 1.18)},
                                   {0.15, face},
                                   {0.85, shade(face, 0.9)},
                                   {1, shade(face, 0.6)}}));
        for (int line = 0; line < 4; ++line) {
            const double lx = x + width * random.between(0.1, 0.9);
            QPainterPath grain(QPointF(lx, 0));
            for (double y = 0; y <= size.height() + 20; y += 20) {
                grain.lineTo(lx + 3 * (noise(lx, y / 60, seed) - 0.5), y);
            }
            stroke(painter, grain, fade(shade(colour, 0.4), 0.3), 0.8);
        }
        const double joint = random.between(0, size.height());
        painter.fillRect(QRectF(x, joint, width, 1.3), shade(colour, 0.35));
        for (const double nail : {joint - 4, joint + 5}) {
            painter.fillPath(ellipse({x + width / 2, nail}, 1.1, 1.1), shade(colour, 0.3));
        }
        x += width;
    }
    mottle(painter, whole(image), 12, 60, 0.25, seed + 3);
    return image;
}

QImage slates(QSize size, const QColor& colour, double row, unsigned seed) {
    QImage image = surface(size, shade(colour, 0.5));
    QPainter painter(&image);
    makeSmooth(painter);
    Random random(seed);
    bool shifted = false;
    const double width = row * 1.05;
    for (double y = -row; y < size.height(); y += row * 0.72, shifted = !shifted) {
        for (double x = shifted ? -width : -width / 2; x < size.width(); x += width) {
            const QColor face = mix(shade(colour, random.between(0.72, 1.2)), hex(0x3b5a5e),
                                    random.between(0, 0.2));
            QPainterPath slate;
            slate.addRoundedRect(QRectF(x, y - row * 0.5, width - 0.8, row * 1.5), row * 0.35,
                                 row * 0.35);
            painter.fillPath(slate, shade(face, 0.5));
            painter.fillPath(slate.translated(0, -1.4),
                             downward(y, y + row, {{0, shade(face, 0.75)}, {1, shade(face, 1.1)}}));
        }
    }
    mottle(painter, whole(image), 40, 30, 0.3, seed + 5);
    return image;
}

QImage plaster(QSize size, const QColor& colour, unsigned seed) {
    QImage image = surface(size, colour);
    QPainter painter(&image);
    makeSmooth(painter);
    mottle(painter, whole(image), 5, 5, 0.10, seed);
    mottle(painter, whole(image), 60, 80, 0.28, seed + 1);
    mottle(painter, whole(image), 7, 120, 0.14, seed + 2);
    return image;
}

QImage cobbles(QSize size, const QColor& colour, double stone, unsigned seed) {
    QImage image = surface(size, shade(colour, 0.42));
    QPainter painter(&image);
    makeSmooth(painter);
    Random random(seed);
    bool shifted = false;
    for (double y = -stone; y < size.height() + stone; y += stone * 0.82, shifted = !shifted) {
        for (double x = shifted ? -stone : -stone / 2; x < size.width() + stone; x += stone * 1.1) {
            const QColor face = shade(colour, random.between(0.7, 1.2));
            const QPointF centre(x + random.between(-1.5, 1.5), y + random.between(-1.5, 1.5));
            const double rx = stone * random.between(0.46, 0.56);
            const double ry = stone * random.between(0.36, 0.44);
            painter.fillPath(ellipse(centre + QPointF(0, 1.2), rx, ry), shade(face, 0.5));
            painter.fillPath(
                ellipse(centre, rx, ry),
                downward(centre.y() - ry, centre.y() + ry,
                         {{0, shade(face, 1.3)}, {0.45, face}, {1, shade(face, .68)}}));
        }
    }
    mottle(painter, whole(image), 80, 60, 0.28, seed + 9);
    return image;
}

}  // namespace quorvel::sample
