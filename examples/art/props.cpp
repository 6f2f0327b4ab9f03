#include "art/props.h"

#include <cmath>

#include <QPen>
#include <QTransform>

#include "art/materials.h"
#include "art/noise.h"
#include "art/turn.h"

namespace quorvel::sample {
namespace {

void paintTimbers(QPainter& painter, const QRectF& wall) {
    const QColor wood = hex(0x3a2620);
    const double beam = 3.2;
    for (const double part : {0.0, 0.34, 0.68, 1.0}) {
        const double y = wall.top() + (wall.height() - beam) * part;
        painter.fillRect(QRectF(wall.left(), y, wall.width(), beam), wood);
    }
    for (const double part : {0.0, 0.5, 1.0}) {
        const double x = wall.left() + (wall.width() - beam) * part;
        painter.fillRect(QRectF(x, wall.top(), beam, wall.height()), wood);
    }
    const double third = wall.height() * 0.34;
    for (const double side : {0.0, 0.5}) {
        const double x = wall.left() + wall.width() * side;
        stroke(painter, {x + 2, wall.top() + third}, {x + wall.width() * 0.18, wall.top() + 2},
               wood, beam * 0.8);
    }
}

}  // namespace

void paintWindow(QPainter& painter, const QRectF& box, double light, unsigned seed) {
    const QRectF frame = box.adjusted(-1.6, -1.6, 1.6, 1.6);
    painter.fillRect(frame, hex(0x2a1d20));
    if (light > 0) {
        const QColor warm = mix(hex(0xd9792f), hex(0xffd98a), 0.4 + 0.6 * noise(seed, 3, seed));
        painter.fillRect(box, downward(box.top(), box.bottom(),
                                       {{0, mix(hex(0x3b2a33), warm, light * 0.8)},
                                        {0.55, mix(hex(0x3b2a33), shade(warm, 1.1), light)},
                                        {1, mix(hex(0x3b2a33), shade(warm, 0.75), light)}}));
    } else {
        painter.fillRect(box,
                         downward(box.top(), box.bottom(),
                                  {{0, hex(0x3d3f63)}, {0.5, hex(0x23243f)}, {1, hex(0x1a1a2c)}}));
    }
    const QColor bar = hex(0x2a1d20);
    const double line = std::max(0.9, box.width() * 0.07);
    painter.fillRect(QRectF(box.center().x() - line / 2, box.top(), line, box.height()), bar);
    for (const double part : {0.36, 0.7}) {
        painter.fillRect(QRectF(box.left(), box.top() + box.height() * part, box.width(), line),
                         bar);
    }
    painter.fillRect(QRectF(frame.left() - 1.5, frame.bottom() - 0.5, frame.width() + 3, 2.4),
                     hex(0x8d7a72));
    if (light > 0) {
        glow(painter, box.center(), box.width() * 2.2, hex(0xffb054), 0.28 * light);
    }
}

void paintHouse(QPainter& painter, const HouseLook& look) {
    Random random(look.seed);
    const QRectF wall(look.x, look.base - look.height, look.width, look.height);
    QPainterPath body;
    body.addRect(wall);
    const double rise = look.width * random.between(0.5, 0.68);
    const double peak = wall.center().x();
    body.addPath(polygon({wall.topLeft() + QPointF(0, 1),
                          {peak, wall.top() - rise * 0.86},
                          wall.topRight() + QPointF(0, 1)}));
    body = body.simplified();
    const double chimney = wall.left() + look.width * (random.unit() < 0.5 ? 0.2 : 0.72);
    painter.fillRect(QRectF(chimney, wall.top() - rise * 0.95, look.width * 0.12, rise * 0.8),
                     sideways(chimney, chimney + look.width * 0.12,
                              {{0, shade(look.roof, 1.1)}, {1, shade(look.roof, 0.55)}}));
    fillTextured(painter, body,
                 plaster(body.boundingRect().size().toSize() + QSize(2, 2), look.wall, look.seed));
    if (look.timbered) {
        paintTimbers(painter, wall);
    }
    painter.fillPath(body, sideways(wall.left(), wall.right(),
                                    {{0, fade(hex(0xffc890), 0.10)},
                                     {0.5, fade(hex(0x201838), .0)},
                                     {1, fade(hex(0x181430), 0.45)}}));
    // The gable stands back; the roof's slope is seen below its ridge.
    const double over = look.width * 0.08;
    const QPointF ridge(peak, wall.top() - rise);
    const QPointF leftEave(wall.left() - over, wall.top() + over);
    const QPointF rightEave(wall.right() + over, wall.top() + over);
    const double lip = std::max(4.0, look.width * 0.11);
    const QPainterPath band = polygon(
        {ridge, rightEave, rightEave + QPointF(-over * 0.5, lip * 0.7),
         ridge + QPointF(0, lip * 1.7), leftEave + QPointF(over * 0.5, lip * 0.7), leftEave});
    painter.fillPath(band.translated(0, 3), fade(Qt::black, 0.3));
    fillTextured(
        painter, band,
        slates(band.boundingRect().size().toSize() + QSize(2, 2), look.roof, lip * 0.7, look.seed));
    painter.fillPath(band, sideways(leftEave.x(), rightEave.x(),
                                    {{0, fade(hex(0xffb890), 0.38)},
                                     {0.49, fade(hex(0xffb890), 0.12)},
                                     {0.51, fade(hex(0x0c0820), 0.3)},
                                     {1, fade(hex(0x0c0820), 0.55)}}));
    QPainterPath edge(leftEave);
    edge.lineTo(ridge);
    stroke(painter, edge, fade(hex(0xffc8a0), 0.6), 1);
    const int columns = look.width > 52 ? 3 : 2;
    const int rows = std::max(1, static_cast<int>(look.height / 34));
    const double cell = look.width / columns;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const QRectF box(wall.left() + cell * (column + 0.29), wall.top() + 9 + row * 33.0,
                             cell * 0.42, 17);
            const bool lit = random.unit() < look.lit;
            paintWindow(painter, box, lit ? random.between(0.65, 1.0) : 0, look.seed + 5U);
        }
    }
    paintWindow(painter, QRectF(peak - 4.5, wall.top() - rise * 0.42, 9, 11),
                random.unit() < look.lit ? 0.8 : 0, look.seed);
}

void paintDoor(QPainter& painter, const QRectF& box, const QColor& colour, unsigned seed) {
    const auto arch = [](const QRectF& b) {
        QPainterPath path(b.bottomLeft());
        path.lineTo(b.left(), b.top() + b.width() * 0.4);
        path.quadTo(b.left(), b.top(), b.center().x(), b.top());
        path.quadTo(b.right(), b.top(), b.right(), b.top() + b.width() * 0.4);
        path.lineTo(b.bottomRight());
        path.closeSubpath();
        return path;
    };
    painter.fillPath(arch(box.adjusted(-5, -5, 5, 0)), hex(0x4d4350));
    painter.fillPath(arch(box.adjusted(-2, -2, 2, 0)), hex(0x1d1518));
    fillTextured(painter, arch(box), planks(box.size().toSize(), colour, box.width() / 5, seed));
    painter.fillPath(arch(box), downward(box.top(), box.bottom(),
                                         {{0, fade(Qt::black, 0.35)},
                                          {0.4, fade(Qt::black, 0.0)},
                                          {1, fade(Qt::black, 0.3)}}));
    for (const double part : {0.25, 0.78}) {
        const double y = box.top() + box.height() * part;
        stroke(painter, {box.left() + 1, y}, {box.left() + box.width() * 0.7, y}, hex(0x17131a), 3);
    }
    const QPointF knob(box.right() - box.width() * 0.16, box.top() + box.height() * 0.55);
    painter.fillPath(ellipse(knob, 3, 3), hex(0xb98a3e));
    painter.fillPath(ellipse(knob - QPointF(0.8, 0.8), 1.2, 1.2), hex(0xffe2a0));
}

void paintLantern(QPainter& painter, QPointF top, double height, double light) {
    const double w = height * 0.3;
    const QPointF t = top + QPointF(0, height * 0.12);
    if (light > 0) {
        glow(painter, t + QPointF(0, height * 0.45), height * 1.7, hex(0xff9c3c), 0.55 * light);
    }
    const QColor iron = hex(0x1f1a22);
    stroke(painter, ellipse(top + QPointF(0, height * 0.07), height * 0.06, height * 0.06), iron,
           1.6);
    painter.fillPath(polygon({t, t + QPointF(w, height * 0.2), t + QPointF(-w, height * 0.2)}),
                     iron);
    const QPainterPath glass =
        polygon({t + QPointF(-w * 0.85, height * 0.2), t + QPointF(w * 0.85, height * 0.2),
                 t + QPointF(w * 0.6, height * 0.72), t + QPointF(-w * 0.6, height * 0.72)});
    QRadialGradient shine(t + QPointF(0, height * 0.5), height * 0.42);
    shine.setColorAt(0, mix(hex(0x565a7a), hex(0xfffbe0), light));
    shine.setColorAt(0.35, mix(hex(0x484c6c), hex(0xffd57a), light));
    shine.setColorAt(1, mix(hex(0x2c2f4a), hex(0xe07a28), light));
    painter.fillPath(glass, shine);
    stroke(painter, glass, iron, 1.6);
    stroke(painter, t + QPointF(0, height * 0.2), t + QPointF(0, height * 0.72), fade(iron, 0.7),
           1);
    painter.fillRect(QRectF(t.x() - w * 0.75, t.y() + height * 0.71, w * 1.5, height * 0.09), iron);
    stroke(painter, t + QPointF(-w * 0.6, height * 0.22), t + QPointF(-w * 0.4, height * 0.6),
           fade(hex(0xffffff), 0.35), 1);
}

void paintLampPost(QPainter& painter, QPointF foot, double height, double light) {
    const QColor iron = hex(0x1c1824);
    const QPointF head = foot - QPointF(0, height * 0.78);
    painter.fillPath(polygon({foot + QPointF(-height * .045, 0), foot + QPointF(height * .045, 0),
                              foot + QPointF(height * 0.025, -height * 0.12),
                              foot + QPointF(-height * 0.025, -height * 0.12)}),
                     iron);
    stroke(painter, foot, head, iron, height * 0.024);
    stroke(painter, foot - QPointF(height * 0.006, 0), head - QPointF(height * 0.006, 0),
           fade(hex(0xe8a76a), 0.35), 0.8);
    for (const double side : {-1.0, 1.0}) {
        QPainterPath curl(head + QPointF(0, height * 0.06));
        curl.quadTo(head + QPointF(side * height * 0.07, height * 0.05),
                    head + QPointF(side * height * 0.05, 0));
        stroke(painter, curl, iron, 1.5);
    }
    paintLantern(painter, head - QPointF(0, height * 0.24), height * 0.29, light);
}

void paintLighthouse(QPainter& painter, QPointF foot, double height, double light) {
    const double w = height * 0.13;
    const double top = height * 0.78;
    const auto tower = [&](double from, double to) {
        const auto half = [&](double part) { return w * (1 - 0.38 * part); };
        return polygon({foot + QPointF(-half(from), -top * from),
                        foot + QPointF(half(from), -top * from),
                        foot + QPointF(half(to), -top * to), foot + QPointF(-half(to), -top * to)});
    };
    const QBrush white = sideways(foot.x() - w, foot.x() + w,
                                  {{0, hex(0xf6d7bd)}, {0.3, hex(0xd9b9b4)}, {1, hex(0x4e4668)}});
    const QBrush red = sideways(foot.x() - w, foot.x() + w,
                                {{0, hex(0xc65a4e)}, {0.35, hex(0x963f49)}, {1, hex(0x3d2440)}});
    painter.fillPath(tower(0, 1), white);
    for (const double from : {0.14, 0.46, 0.78}) {
        painter.fillPath(tower(from, from + 0.16), red);
    }
    for (const double part : {0.12, 0.40, 0.70}) {
        const QPointF at = foot - QPointF(0, top * part);
        painter.fillRect(QRectF(at.x() - w * 0.1, at.y() - w * 0.3, w * 0.2, w * 0.4),
                         hex(0x2a2038));
    }
    const QPointF deck = foot - QPointF(0, top);
    painter.fillRect(
        QRectF(deck.x() - w * 0.92, deck.y() - height * 0.012, w * 1.84, height * 0.028),
        hex(0x2b2338));
    const double cage = w * 0.5;
    const QRectF glass(deck.x() - cage, deck.y() - height * 0.115, cage * 2, height * 0.105);
    painter.fillRect(glass, sideways(glass.left(), glass.right(),
                                     {{0, mix(hex(0x6a6d92), hex(0xfff2c0), light)},
                                      {0.5, mix(hex(0x4a4a70), hex(0xffffff), light)},
                                      {1, mix(hex(0x2a2a48), hex(0xffc870), light)}}));
    for (int i = 0; i <= 4; ++i) {
        const double x = glass.left() + glass.width() * i / 4;
        stroke(painter, {x, glass.top()}, {x, glass.bottom()}, hex(0x2b2338), w * 0.06);
    }
    QPainterPath dome(glass.topLeft() - QPointF(w * 0.12, 0));
    dome.quadTo(deck.x(), glass.top() - height * 0.13, glass.right() + w * 0.12, glass.top());
    dome.closeSubpath();
    painter.fillPath(dome,
                     sideways(glass.left(), glass.right(),
                              {{0, hex(0xa24a48)}, {0.5, hex(0x6f3342)}, {1, hex(0x33203a)}}));
    stroke(painter, deck - QPointF(0, height * 0.17), deck - QPointF(0, height * 0.21),
           hex(0x2b2338), w * 0.07);
    if (light > 0) {
        glow(painter, glass.center(), height * 0.55, hex(0xffe2a0), 0.95 * light);
    }
}

void paintFlame(QPainter& painter, QPointF foot, double height, double phase) {
    const auto tongue = [&](double scale, double sway) {
        const double h = height * scale;
        const double lean = height * 0.10 * std::sin(kTurn * phase + sway);
        const double w = h * 0.30;
        QPainterPath path(foot);
        path.cubicTo(foot + QPointF(-w * 1.5, -h * 0.25), foot + QPointF(-w * 0.4, -h * 0.6),
                     foot + QPointF(lean, -h * (1 + 0.06 * std::sin(kTurn * 2 * phase + sway))));
        path.cubicTo(foot + QPointF(w * 0.6, -h * 0.6), foot + QPointF(w * 1.5, -h * 0.25), foot);
        return path;
    };
    painter.fillPath(tongue(1.0, 0), fade(hex(0xe8641c), 0.9));
    painter.fillPath(tongue(0.76, 0.7), hex(0xffa834));
    painter.fillPath(tongue(0.5, 1.4), hex(0xfff0b0));
}

}  // namespace quorvel::sample
