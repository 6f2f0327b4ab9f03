// The mouse pointers, brass like the lamp.
#include <cmath>
#include <functional>

#include "art/brush.h"
#include "art/item_art.h"
#include "art/props.h"

namespace quorvel::sample {
namespace {

void paintBrass(QPainter& painter, const QPainterPath& shape) {
    stroke(painter, shape, hex(0x2a160c), 3.4);
    painter.fillPath(
        shape, downward(3, 29, {{0, hex(0xfff0b8)}, {0.45, hex(0xe0a848)}, {1, hex(0x8a5420)}}));
    stroke(painter, shape, fade(hex(0xfff6d0), 0.45), 0.8);
}

QImage drawn(const std::function<void(QPainter&)>& paint) {
    QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    makeSmooth(painter);
    paint(painter);
    return image;
}

/// An arrow that points up when `turn` is 0; degrees clockwise.
PointerArt arrow(const std::string& file, double turn) {
    const QPainterPath shape =
        polygon({{16, 3}, {27, 16}, {20, 16}, {20, 28}, {12, 28}, {12, 16}, {5, 16}});
    QTransform around;
    around.translate(16, 16);
    around.rotate(turn);
    around.translate(-16, -16);
    const QPointF tip = around.map(QPointF(16, 4));
    return {file, drawn([&](QPainter& p) { paintBrass(p, around.map(shape)); }), tip.toPoint()};
}

void paintDoorway(QPainter& painter) {
    paintBrass(painter, polygon({{5, 29}, {5, 4}, {20, 4}, {20, 29}}));
    painter.fillPath(polygon({{8, 27}, {8, 7}, {17, 9}, {17, 29}}), hex(0x3a2012));
    paintBrass(painter,
               polygon({{16, 13}, {22, 13}, {22, 9}, {30, 16}, {22, 23}, {22, 19}, {16, 19}}));
}

void paintEye(QPainter& painter) {
    QPainterPath lid(QPointF(2, 16));
    lid.quadTo(16, 1, 30, 16);
    lid.quadTo(16, 31, 2, 16);
    paintBrass(painter, lid);
    painter.fillPath(ellipse({16, 16}, 7, 7), hex(0x2c5a6a));
    painter.fillPath(ellipse({16, 16}, 3.4, 3.4), hex(0x0c1018));
    painter.fillPath(ellipse({14, 13.6}, 1.7, 1.7), Qt::white);
}

void paintHand(QPainter& painter) {
    QPainterPath hand(QPointF(10, 30));
    hand.cubicTo(4, 24, 3, 20, 3, 16);
    hand.cubicTo(3, 13, 7, 13, 8, 17);
    hand.lineTo(9, 19);
    hand.lineTo(9, 5);
    hand.cubicTo(9, 2, 13, 2, 13, 5);
    hand.lineTo(13.5, 13);
    hand.cubicTo(14, 10, 18, 10, 18, 13);
    hand.cubicTo(19, 11, 22.5, 11.5, 22.5, 15);
    hand.cubicTo(24, 13, 27, 14, 27, 17);
    hand.lineTo(26, 24);
    hand.lineTo(23, 30);
    hand.closeSubpath();
    paintBrass(painter, hand);
}

void paintGrasp(QPainter& painter) {
    paintHand(painter);
    glow(painter, {24, 7}, 10, hex(0xffe890), 1);
    paintFlame(painter, {24, 13}, 12, 0.2);
}

void paintSpark(QPainter& painter) {
    QPainterPath star;
    for (int i = 0; i < 16; ++i) {
        const double a = 0.3926990817 * i;
        const double r = i % 2 == 0 ? (i % 4 == 0 ? 14 : 10) : 4.6;
        const QPointF at(16 + r * std::sin(a), 16 - r * std::cos(a));
        i == 0 ? star.moveTo(at) : star.lineTo(at);
    }
    star.closeSubpath();
    paintBrass(painter, star);
}

void paintNormal(QPainter& painter) {
    paintBrass(painter,
               polygon({{4, 3}, {4, 25}, {10, 20}, {14, 29}, {18, 27}, {14, 18.5}, {22, 18}}));
}

void paintHourglass(QPainter& painter) {
    const QPainterPath glass =
        polygon({{8, 6}, {24, 6}, {17.4, 16}, {24, 26}, {8, 26}, {14.6, 16}});
    stroke(painter, glass, hex(0x2a160c), 3);
    painter.fillPath(glass, hex(0xcfe0ea));
    painter.fillPath(polygon({{11, 10},
                              {21, 10},
                              {16.4, 16},
                              {16.4, 22},
                              {22, 26},
                              {10, 26},
                              {15.6, 22},
                              {15.6, 16}}),
                     hex(0xe0a848));
    for (const double y : {3.0, 25.0}) {
        QPainterPath cap;
        cap.addRoundedRect(QRectF(6, y, 20, 4), 2, 2);
        paintBrass(painter, cap);
    }
}

}  // namespace

std::vector<PointerArt> pointerArt() {
    return {
        arrow("Up.cur", 0),
        arrow("Down.cur", 180),
        arrow("Left.cur", 270),
        arrow("Right.cur", 90),
        arrow("UpLeft.cur", 315),
        arrow("UpRight.cur", 45),
        arrow("DownLeft.cur", 225),
        arrow("DownRight.cur", 135),
        {"Exit.cur", drawn(paintDoorway), {28, 16}},
        {"HotSpot.cur", drawn(paintEye), {16, 16}},
        {"Goodie.cur", drawn(paintGrasp), {11, 3}},
        {"Reactor.cur", drawn(paintSpark), {16, 16}},
        {"Normal.cur", drawn(paintNormal), {4, 3}},
        {"Wait.cur", drawn(paintHourglass), {16, 16}},
        {"Buttons.cur", drawn(paintHand), {11, 3}},
    };
}

}  // namespace quorvel::sample
