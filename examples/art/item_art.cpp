#include "art/item_art.h"

#include <cmath>

#include "art/brush.h"
#include "art/materials.h"
#include "art/props.h"

namespace quorvel::sample {
namespace {

// Every item is painted around the origin, within 30 pixels each way.

QBrush brass(double left, double right) {
    return sideways(
        left, right,
        {{0, hex(0x5a3a1c)}, {0.28, hex(0xffe4a0)}, {0.5, hex(0xc08a3c)}, {1, hex(0x40261a)}});
}

void paintLamp(QPainter& painter, double oil, bool lit, double phase) {
    if (lit) {
        glow(painter, {0, 2}, 44, hex(0xffb050), 0.8);
    }
    painter.fillPath(polygon({{-16, 27}, {16, 27}, {11, 15}, {-11, 15}}), brass(-16, 16));
    painter.fillRect(
        QRectF(-13, -15, 26, 30),
        sideways(-13, 13, {{0, hex(0x46507a)}, {0.3, hex(0xc4d0ec)}, {1, hex(0x2a2c4c)}}));
    if (oil > 0) {
        painter.fillRect(QRectF(-13, 15 - 9 * oil, 26, 9 * oil), fade(hex(0xe8a83c), 0.85));
    }
    stroke(painter, {0, 15}, {0, 5}, hex(0x2a1c18), 2.4);
    if (lit) {
        painter.fillRect(QRectF(-13, -15, 26, 30), fade(hex(0xffc860), 0.4));
        paintFlame(painter, {0, 8}, 19, phase);
    }
    for (const double x : {-13.0, 13.0}) {
        stroke(painter, {x, -15}, {x, 16}, hex(0x8a6026), 2);
    }
    QPainterPath hood(QPointF(-17, -14));
    hood.quadTo(0, -36, 17, -14);
    hood.closeSubpath();
    painter.fillPath(hood, brass(-17, 17));
    QPainterPath handle(QPointF(-13, -18));
    handle.cubicTo(-18, -36, 18, -36, 13, -18);
    stroke(painter, handle, hex(0xb88a40), 2.2);
}

void paintOil(QPainter& painter) {
    stroke(painter, {12, 8}, {27, -20}, hex(0x7a4e26), 5);
    stroke(painter, {11.4, 7}, {26, -20}, hex(0xf0c080), 1.8);
    painter.fillPath(blob({{-20, 26}, {-21, 4}, {-12, -10}, {2, -10}, {14, 4}, {13, 26}}),
                     brass(-21, 14));
    painter.fillRect(QRectF(-9, -18, 10, 10), brass(-9, 1));
    QPainterPath handle(QPointF(-16, -2));
    handle.cubicTo(-34, -4, -32, 20, -20, 20);
    stroke(painter, handle, hex(0x9a6a34), 3.4);
    painter.fillPath(ellipse({-4, 10}, 8, 10), hex(0x2c3a56));
    paintFlame(painter, {-4, 18}, 15, 0.1);
}

void paintMatchBox(QPainter& painter) {
    painter.rotate(-18);
    painter.fillRect(QRectF(-22, -10, 44, 24),
                     downward(-10, 14, {{0, hex(0xe86a50)}, {1, hex(0x8a2e2e)}}));
    painter.fillRect(QRectF(-22, 9, 44, 6), hex(0x4a3a3a));
    painter.fillRect(QRectF(-15, -6, 30, 12), hex(0xf6e0a8));
    paintFlame(painter, {0, 5}, 11, 0.3);
    for (int i = 0; i < 3; ++i) {
        stroke(painter, {-8.0 + i * 9, -10}, {-12.0 + i * 11, -24}, hex(0xecd09c), 2.4);
        painter.fillPath(ellipse({-12.0 + i * 11, -25}, 2.8, 3), hex(0xc03a2c));
    }
}

void paintKey(QPainter& painter) {
    painter.rotate(-40);
    const auto key = [&](const QColor& colour, double width) {
        stroke(painter, ellipse({-17, 0}, 8.5, 8.5), colour, width);
        stroke(painter, {-8, 0}, {26, 0}, colour, width);
        stroke(painter, {24, 0}, {24, 11}, colour, width);
        stroke(painter, {16, 0}, {16, 8}, colour, width);
    };
    key(hex(0x14121c), 7.5);
    key(hex(0x5c5c70), 5);
    painter.translate(-0.8, -1.2);
    key(fade(hex(0xdce8f0), 0.8), 1.4);
}

void paintFish(QPainter& painter) {
    painter.rotate(-20);
    painter.fillPath(
        blob({{-26, 0}, {-8, -10}, {12, -5}, {18, 0}, {12, 5}, {-8, 10}}),
        downward(-10, 10, {{0, hex(0x3e6a86)}, {0.45, hex(0xc8dce0)}, {1, hex(0xfff0e0)}}));
    painter.fillPath(polygon({{15, 0}, {29, -10}, {25, 0}, {29, 10}}), hex(0x4a7a90));
    painter.fillPath(polygon({{-4, -9}, {8, -14}, {8, -6}}), hex(0x3e6a86));
    painter.fillPath(ellipse({-18, -2}, 2.4, 2.4), hex(0xfff4d0));
    painter.fillPath(ellipse({-18, -2}, 1.3, 1.3), hex(0x101018));
    stroke(painter, {-12, -6}, {-12, 6}, fade(hex(0x2a4a60), 0.6), 1);
}

void paintLetter(QPainter& painter) {
    painter.rotate(-7);
    painter.fillPath(polygon({{-24, -26}, {22, -28}, {25, 24}, {-22, 27}}),
                     downward(-28, 27, {{0, hex(0xfff2d0)}, {1, hex(0xd0a870)}}));
    for (int i = 0; i < 5; ++i) {
        QPainterPath line(QPointF(-17, -18.0 + i * 6));
        for (int x = -14; x < 16 - (i == 4 ? 12 : 0); x += 3) {
            line.lineTo(x, -18.0 + i * 6 + ((x / 3 + i) % 2 == 0 ? -1.1 : 1.1));
        }
        stroke(painter, line, hex(0x4a3a5a), 1);
    }
    paintLighthouse(painter, {10, 23}, 20, 0);
    painter.fillPath(ellipse({-12, 18}, 5, 5), hex(0xb03430));
    painter.fillPath(ellipse({-13, 17}, 2, 2), hex(0xe87a68));
}

void paintItem(QPainter& painter, Item item, double phase) {
    switch (item) {
        case Item::brassLamp:
            return paintLamp(painter, 0, false, phase);
        case Item::oilCan:
            return paintOil(painter);
        case Item::filledLamp:
            return paintLamp(painter, 1, false, phase);
        case Item::matches:
            return paintMatchBox(painter);
        case Item::litLamp:
            return paintLamp(painter, 1, true, phase);
        case Item::ironKey:
            return paintKey(painter);
        case Item::herring:
            return paintFish(painter);
        case Item::letter:
            return paintLetter(painter);
    }
}

}  // namespace

QImage itemIcon(Item item, bool shining) {
    QImage icon(32, 32, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    makeSmooth(painter);
    painter.translate(16, 16);
    painter.scale(0.5, 0.5);
    if (shining) {
        glow(painter, {0, 0}, 32, hex(0xfff0b0), 1);
    }
    paintItem(painter, item, 0.2);
    return icon;
}

QImage itemCloseup(Item item, int frame) {
    QImage image(320, 240, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    makeSmooth(painter);
    painter.drawImage(0, 0, planks({320, 240}, hex(0x7a5640), 54, 301));
    softFill(painter, ellipse({166, 204}, 96, 18), fade(Qt::black, 0.6), 12);
    QRadialGradient pool(QPointF(160, 110), 210);
    pool.setColorAt(0, fade(hex(0x000000), 0));
    pool.setColorAt(1, fade(hex(0x0a0614), 0.88));
    painter.fillRect(image.rect(), pool);
    glow(painter, {160, 116}, 170, hex(0xffb868), 0.4);
    painter.translate(160, 118);
    painter.scale(3.1, 3.1);
    paintItem(painter, item, frame / double(kCloseupFrames));
    painter.end();
    return image;
}

}  // namespace quorvel::sample
