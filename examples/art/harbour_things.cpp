// Boats, tackle and the animals of the harbour.
#include <cmath>

#include "art/materials.h"
#include "art/noise.h"
#include "art/props.h"

namespace quorvel::sample {

void paintFishingBoat(QPainter& painter, QPointF at, double length, const QColor& hull,
                      double light) {
    painter.save();
    painter.translate(at);
    painter.scale(length < 0 ? -1 : 1, 1);
    const double s = std::abs(length) / 100;
    painter.scale(s, s);
    const QColor spar = hex(0x2e2026);
    stroke(painter, {-4, -16}, {-6, -112}, spar, 2.6);
    stroke(painter, {34, -18}, {35, -78}, spar, 2);
    stroke(painter, {-6, -100}, {62, -24}, fade(spar, 0.8), 0.8);
    stroke(painter, {-6, -104}, {-52, -20}, fade(spar, 0.8), 0.8);
    stroke(painter, {35, -76}, {-6, -104}, fade(spar, 0.7), 0.7);
    // The sail is brailed up along its gaff.
    QPainterPath sail(QPointF(-5, -34));
    sail.cubicTo(8, -44, 22, -58, 30, -70);
    sail.cubicTo(33, -64, 32, -56, 26, -48);
    sail.cubicTo(18, -38, 6, -29, -4, -27);
    sail.closeSubpath();
    painter.fillPath(sail, downward(-70, -27, {{0, hex(0xb4593f)}, {1, hex(0x5a2c38)}}));
    for (int i = 0; i < 4; ++i) {
        stroke(painter, {2.0 + i * 7, -42.0 - i * 7}, {6.0 + i * 7, -33.0 - i * 8.2},
               fade(hex(0x2a1620), 0.6), 0.8);
    }
    QPainterPath body(QPointF(-56, -24));
    body.cubicTo(-40, -15, 30, -14, 54, -20);
    body.lineTo(48, 1);
    body.cubicTo(20, 5, -24, 5, -42, 2);
    body.cubicTo(-50, -6, -54, -16, -56, -24);
    painter.fillPath(
        body, downward(-24, 4, {{0, shade(hull, 1.25)}, {0.5, hull}, {1, shade(hull, 0.4)}}));
    painter.fillPath(body, sideways(-56, 54,
                                    {{0, fade(hex(0xffc890), 0.25)},
                                     {0.4, fade(Qt::black, 0)},
                                     {1, fade(Qt::black, .45)}}));
    QPainterPath rail(QPointF(-56, -24));
    rail.cubicTo(-40, -15, 30, -14, 54, -20);
    stroke(painter, rail, hex(0xe0b88a), 1.8);
    QPainterPath strake(QPointF(-52, -13));
    strake.cubicTo(-36, -6, 28, -5, 51, -10);
    stroke(painter, strake, fade(hex(0x140c14), 0.6), 1);
    painter.fillRect(QRectF(12, -36, 24, 19),
                     sideways(12, 36, {{0, hex(0xd8b48e)}, {1, hex(0x54404e)}}));
    painter.fillRect(QRectF(9, -39, 30, 3.5), hex(0x3a2832));
    painter.fillRect(QRectF(16, -32, 6, 7), mix(hex(0x2d2a44), hex(0xffd070), light));
    painter.fillRect(QRectF(26, -32, 6, 7), mix(hex(0x2d2a44), hex(0xffd070), light));
    if (light > 0) {
        glow(painter, {24, -28}, 34, hex(0xffb050), 0.6 * light);
        glow(painter, {-6, -112}, 16, hex(0xfff0b8), 0.9 * light);
    }
    for (const double x : {-30.0, -12.0, 40.0}) {
        painter.fillPath(ellipse({x, -9}, 3.2, 4.6), hex(0x241a22));
        painter.fillPath(ellipse({x - 0.8, -10}, 1.6, 2.4), hex(0x6a4a44));
    }
    painter.restore();
}

void paintRowboat(QPainter& painter, QPointF at, double length, const QColor& hull) {
    painter.save();
    painter.translate(at);
    painter.scale(length / 100, std::abs(length) / 100);
    QPainterPath inside(QPointF(-50, -17));
    inside.cubicTo(-20, -24, 25, -24, 48, -19);
    inside.cubicTo(26, -11, -24, -9, -50, -17);
    QPainterPath body(QPointF(-50, -17));
    body.cubicTo(-24, -9, 26, -11, 48, -19);
    body.lineTo(42, 0);
    body.cubicTo(20, 5, -18, 5, -36, 1);
    body.closeSubpath();
    painter.fillPath(inside, hex(0x2c1d22));
    painter.fillPath(polygon({{-16, -20}, {-9, -20.6}, {-8, -12}, {-16, -12}}), hex(0x7a5440));
    painter.fillPath(polygon({{16, -21}, {23, -21}, {22, -13}, {15, -12.4}}), hex(0x7a5440));
    painter.fillPath(
        body, downward(-18, 4, {{0, shade(hull, 1.3)}, {0.45, hull}, {1, shade(hull, 0.45)}}));
    for (const double drop : {5.0, 10.0}) {
        QPainterPath strake(QPointF(-47 + drop * 0.7, -17 + drop));
        strake.cubicTo(-22, -9 + drop, 26, -11 + drop, 47 - drop * 0.3, -19 + drop);
        stroke(painter, strake, fade(hex(0x120c14), 0.45), 0.9);
    }
    stroke(painter, body, fade(hex(0x1c1218), 0.5), 0.7);
    QPainterPath rim(QPointF(-50, -17));
    rim.cubicTo(-24, -9, 26, -11, 48, -19);
    stroke(painter, rim, hex(0xd6aa7c), 1.7);
    stroke(painter, inside, fade(hex(0xd6aa7c), 0.6), 0.9);
    painter.restore();
}

void paintBarrel(QPainter& painter, QPointF foot, double height) {
    const double w = height * 0.36;
    QPainterPath body(foot + QPointF(-w * 0.82, 0));
    body.quadTo(foot + QPointF(-w * 1.25, -height * 0.5), foot + QPointF(-w * 0.82, -height));
    body.lineTo(foot + QPointF(w * 0.82, -height));
    body.quadTo(foot + QPointF(w * 1.25, -height * 0.5), foot + QPointF(w * 0.82, 0));
    body.quadTo(foot + QPointF(0, height * 0.1), foot + QPointF(-w * 0.82, 0));
    fillTextured(
        painter, body,
        planks(body.boundingRect().size().toSize() + QSize(2, 2), hex(0x8a5b3c), w * 0.42, 11));
    painter.fillPath(body, sideways(foot.x() - w, foot.x() + w,
                                    {{0, fade(hex(0xffd09a), 0.28)},
                                     {0.35, fade(Qt::black, 0.0)},
                                     {1, fade(hex(0x0c0818), 0.72)}}));
    painter.fillPath(ellipse(foot - QPointF(0, height), w * 0.82, height * 0.09), hex(0x55382c));
    stroke(painter, ellipse(foot - QPointF(0, height), w * 0.82, height * 0.09), hex(0x2c1c1c),
           1.4);
    for (const double part : {0.2, 0.78}) {
        QPainterPath hoop(foot + QPointF(-w * 0.97, -height * part));
        hoop.quadTo(foot + QPointF(0, -height * part + height * 0.12),
                    foot + QPointF(w * 0.97, -height * part));
        stroke(painter, hoop, hex(0x2a242e), height * 0.055);
        stroke(painter, hoop.translated(0, -height * 0.012), fade(hex(0xb09a92), 0.4), 0.8);
    }
}

void paintCrate(QPainter& painter, const QRectF& box, unsigned seed) {
    QPainterPath front;
    front.addRect(box);
    const double depth = box.width() * 0.16;
    painter.fillPath(polygon({box.topLeft(), box.topLeft() + QPointF(depth, -depth * 0.7),
                              box.topRight() + QPointF(depth * 0.6, -depth * 0.7), box.topRight()}),
                     hex(0x9a6f4c));
    painter.save();
    painter.translate(box.topLeft());
    painter.rotate(90);
    painter.translate(0, -box.width());
    const QImage boards = planks({qRound(box.height()), qRound(box.width())}, hex(0x8a6144),
                                 box.height() / 3.4, seed);
    painter.drawImage(QRectF(0, 0, box.height(), box.width()), boards);
    painter.restore();
    painter.fillRect(box, sideways(box.left(), box.right(),
                                   {{0, fade(hex(0xffd09a), 0.2)}, {1, fade(hex(0x0c0818), 0.5)}}));
    const double edge = box.width() * 0.1;
    for (const double x : {box.left(), box.right() - edge}) {
        painter.fillRect(QRectF(x, box.top(), edge, box.height()), hex(0x6a4734));
        painter.fillRect(QRectF(x, box.top(), 1, box.height()), fade(hex(0xffd8a8), 0.4));
    }
    stroke(painter, front, fade(hex(0x1a1014), 0.7), 1);
}

void paintBollard(QPainter& painter, QPointF foot, double height) {
    const double w = height * 0.26;
    painter.fillPath(ellipse(foot, w * 1.5, height * 0.1), fade(Qt::black, 0.4));
    const QBrush iron = sideways(foot.x() - w, foot.x() + w,
                                 {{0, hex(0x8a6468)}, {0.3, hex(0x4a3c4e)}, {1, hex(0x17131f)}});
    painter.fillPath(
        polygon({foot + QPointF(-w, 0), foot + QPointF(w, 0),
                 foot + QPointF(w * 0.7, -height * 0.8), foot + QPointF(-w * 0.7, -height * 0.8)}),
        iron);
    painter.fillPath(ellipse(foot - QPointF(0, height * 0.84), w * 1.25, height * 0.2), iron);
    painter.fillPath(ellipse(foot - QPointF(w * 0.3, height * 0.92), w * 0.6, height * 0.06),
                     fade(hex(0xffc8a0), 0.35));
}

void paintRopeCoil(QPainter& painter, QPointF foot, double radius) {
    painter.fillPath(ellipse(foot, radius * 1.15, radius * 0.42), fade(Qt::black, 0.4));
    for (int turn = 0; turn < 4; ++turn) {
        const QPointF centre = foot - QPointF(0, radius * (0.1 + 0.16 * turn));
        const double r = radius * (1 - 0.07 * turn);
        const QPainterPath ring = ellipse(centre, r, r * 0.36);
        stroke(painter, ring, hex(0x4c3830), radius * 0.24);
        stroke(painter, ring.translated(-0.5, -0.8), hex(0xb08a5e), radius * 0.13);
        Random random(static_cast<std::uint64_t>(turn) + 3);
        for (int i = 0; i < 26; ++i) {
            const double a = i * 0.2417 + random.unit() * 0.05;
            const QPointF on = centre + QPointF(r * std::cos(a), r * 0.36 * std::sin(a));
            stroke(painter, on + QPointF(-1, 1.4), on + QPointF(1.2, -1.4), fade(hex(0x3a2a22), .6),
                   0.8);
        }
    }
}

void paintRope(QPainter& painter, QPointF from, QPointF to, double sag, double width) {
    QPainterPath path(from);
    path.quadTo((from + to) / 2 + QPointF(0, sag * 2), to);
    stroke(painter, path, hex(0x33262a), width * 1.5);
    stroke(painter, path.translated(-0.3, -0.5), hex(0x9a7855), width * 0.8);
}

void paintGull(QPainter& painter, QPointF at, double span, double wing, const QColor& colour) {
    painter.save();
    painter.translate(at);
    painter.scale(span / 40, span / 40);
    const double lift = -9 * wing;
    for (const double side : {-1.0, 1.0}) {
        QPainterPath feather(QPointF(side * 1.0, -1));
        feather.quadTo(side * 9, lift * 1.5 - 3, side * 20, lift * 0.6);
        feather.quadTo(side * 10, lift * 1.1 + 0.5, side * 1.5, 2.2);
        feather.closeSubpath();
        painter.fillPath(feather, side < 0 ? colour : shade(colour, 0.82));
        QPainterPath tip(QPointF(side * 15, lift * 1.0 - 0.6));
        tip.lineTo(side * 20, lift * 0.6);
        tip.lineTo(side * 14.5, lift * 1.0 + 0.8);
        painter.fillPath(tip, hex(0x3a3448));
    }
    painter.fillPath(ellipse({0, 0.8}, 2.2, 3), shade(colour, 1.05));
    painter.fillPath(ellipse({0.2, -2.4}, 1.7, 1.6), shade(colour, 1.1));
    painter.fillPath(polygon({{1.4, -3}, {4.2, -2}, {1.4, -1.5}}), hex(0xe39a3a));
    painter.restore();
}

void paintCat(QPainter& painter, QPointF foot, double height, double tail, const QColor& colour) {
    painter.save();
    painter.translate(foot);
    painter.scale(height / 60, height / 60);
    QPainterPath curl(QPointF(10, -5));
    curl.cubicTo(26, -1, 30 + 3 * tail, -12, 26 + 7 * tail, -24);
    curl.quadTo(24 + 9 * tail, -31, 28 + 11 * tail, -33);
    stroke(painter, curl, shade(colour, 0.85), 5);
    QPainterPath body(QPointF(-15, 0));
    body.cubicTo(-19, -18, -12, -34, -6, -38);
    body.cubicTo(-1, -40, 3, -40, 7, -37);
    body.cubicTo(15, -28, 20, -14, 16, 0);
    body.closeSubpath();
    painter.fillPath(
        body,
        sideways(-18, 18, {{0, shade(colour, 1.9)}, {0.25, colour}, {1, shade(colour, 0.55)}}));
    painter.fillPath(polygon({{-10, -50}, {-9.5, -61}, {-2, -54}}), shade(colour, 1.3));
    painter.fillPath(polygon({{10, -50}, {9.5, -61}, {2, -54}}), shade(colour, 0.8));
    painter.fillPath(
        ellipse({0, -47}, 11.5, 9.6),
        sideways(-12, 12, {{0, shade(colour, 1.9)}, {0.3, colour}, {1, shade(colour, 0.55)}}));
    for (const double side : {-1.0, 1.0}) {
        stroke(painter, {side * 9, -44}, {side * 17, -46}, fade(hex(0xfff0e0), 0.35), 0.5);
        stroke(painter, {side * 9, -42}, {side * 17, -41}, fade(hex(0xfff0e0), 0.35), 0.5);
    }
    painter.restore();
}

void paintPuffin(QPainter& painter, QPointF foot, double height, double tilt, bool blink) {
    painter.save();
    painter.translate(foot);
    painter.scale(height / 80, height / 80);
    for (const double x : {-4.0, 8.0}) {
        painter.fillPath(polygon({{x - 3, -8}, {x + 3, -8}, {x + 9, 0}, {x - 6, 0}}),
                         hex(0xe8742c));
    }
    painter.fillPath(
        blob({{-18, -12}, {-24, -30}, {-15, -52}, {4, -56}, {16, -40}, {15, -18}, {2, -5}}),
        sideways(-24, 16, {{0, hex(0x17151f)}, {0.7, hex(0x2d2a38)}, {1, hex(0x4a4656)}}));
    painter.fillPath(blob({{-2, -10}, {0, -34}, {8, -50}, {16, -38}, {15, -18}, {6, -7}}),
                     downward(-52, -6, {{0, hex(0xfff6e4)}, {1, hex(0xcbb9b0)}}));
    QPainterPath wing(QPointF(-4, -46));
    wing.cubicTo(-20, -40, -24, -22, -21, -6);
    wing.cubicTo(-10, -14, 0, -26, -4, -46);
    painter.fillPath(wing, downward(-46, -6, {{0, hex(0x3a3746)}, {1, hex(0x121018)}}));
    painter.translate(3, -58);
    painter.rotate(tilt);
    painter.fillPath(ellipse({0, -4}, 14, 13), hex(0x1d1b26));
    painter.fillPath(blob({{-4, -1}, {-1, -12}, {9, -12}, {13, -3}, {6, 6}}), hex(0xf7ede0));
    QPainterPath beak(QPointF(9, -11));
    beak.quadTo(24, -10, 27, 2);
    beak.quadTo(18, 6, 9, 4);
    beak.closeSubpath();
    painter.fillPath(beak, sideways(9, 27,
                                    {{0, hex(0x5a6a86)},
                                     {0.32, hex(0x5a6a86)},
                                     {0.36, hex(0xf2c24c)},
                                     {0.44, hex(0xe8642c)},
                                     {1, hex(0xc8401c)}}));
    stroke(painter, {11, -2}, {25, 0}, fade(hex(0x401408), 0.6), 0.8);
    if (blink) {
        stroke(painter, {1, -6}, {6, -6}, hex(0x2a1c20), 1.2);
    } else {
        painter.fillPath(ellipse({3.5, -6}, 2.4, 2.4), hex(0xd2482c));
        painter.fillPath(ellipse({3.5, -6}, 1.5, 1.5), hex(0x120c10));
        painter.fillPath(ellipse({4, -6.6}, 0.6, 0.6), hex(0xffffff));
    }
    painter.restore();
}

}  // namespace quorvel::sample
