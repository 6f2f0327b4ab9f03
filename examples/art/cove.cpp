// The cove below the harbour, at low tide.
#include <cmath>

#include "art/materials.h"
#include "art/noise.h"
#include "art/props.h"
#include "art/scenery.h"
#include "art/sprite.h"
#include "art/turn.h"

namespace quorvel::sample {
namespace {

constexpr int kCoveHorizon = 206;
const QPointF kMoon(232, 84);

void paintNight(QImage& picture) {
    QPainter painter(&picture);
    makeSmooth(painter);
    painter.fillRect(
        picture.rect(),
        downward(
            0, kCoveHorizon,
            {{0, hex(0x0c1434)}, {0.5, hex(0x22306a)}, {0.85, hex(0x56609a)}, {1, hex(0x8a88b0)}}));
    paintStars(painter, {0, 0, 700, 190}, 240, 41);
    paintMoon(painter, kMoon, 30, 0.5);
    painter.end();
    paintClouds(picture, {70, 204, hex(0xb4bce0), hex(0x2a3468), 0.55, 42});
    QPainter hills(&picture);
    makeSmooth(hills);
    paintHills(hills, {198, 16, 120, hex(0x3c467e), hex(0x525a90), 43});
}

QPainterPath cliffLeft() {
    return blob({{-80, 500},
                 {-60, -40},
                 {20, 20},
                 {46, 92},
                 {82, 150},
                 {96, 214},
                 {132, 268},
                 {120, 320},
                 {40, 380}});
}

QPainterPath cliffRight() {
    return blob({{780, 500},
                 {790, -60},
                 {640, 30},
                 {618, 96},
                 {576, 140},
                 {560, 206},
                 {528, 260},
                 {560, 310},
                 {660, 380}});
}

/// Cracked layers of rock, moonlit on their upper edges.
void paintStrata(QPainter& painter, const QPainterPath& cliff, unsigned seed) {
    Random random(seed);
    painter.save();
    painter.setClipPath(cliff);
    const QRectF box = cliff.boundingRect();
    for (double y = box.top(); y < box.bottom(); y += random.between(9, 24)) {
        for (double x = box.left() - random.between(0, 40); x < box.right();) {
            const double width = random.between(22, 74);
            const double height = random.between(8, 24);
            const double drop = random.between(-5, 7);
            const QPainterPath slab = blob({{x, y + drop},
                                            {x + width * 0.5, y - 2},
                                            {x + width, y + drop * 0.3},
                                            {x + width * 0.95, y + height},
                                            {x + width * 0.4, y + height + 3},
                                            {x + 2, y + height}});
            const QColor face = mix(hex(0x1a1e42), hex(0x4a5284), random.unit() * 0.8);
            painter.fillPath(slab, downward(y, y + height,
                                            {{0, fade(shade(face, 1.35), 0.8)},
                                             {1, fade(shade(face, 0.6), 0.8)}}));
            stroke(painter, {x + 3, y + drop}, {x + width * 0.5, y - 2},
                   fade(hex(0xb8c4f4), random.between(0.03, 0.25)), 1);
            x += width * random.between(0.8, 1.1);
        }
    }
    painter.restore();
    mottle(painter, cliff, 60, 24, 0.35, seed + 1);
    mottle(painter, cliff, 12, 30, 0.25, seed + 2);
}

void paintRocks(QPainter& painter) {
    for (const QPainterPath& cliff : {cliffLeft(), cliffRight()}) {
        painter.fillPath(
            cliff,
            downward(0, 400, {{0, hex(0x232848)}, {0.5, hex(0x343a62)}, {1, hex(0x15183a)}}));
        paintStrata(painter, cliff, 45);
    }
    stroke(painter, cliffRight(), fade(hex(0xc8d4ff), 0.28), 2);
    painter.fillPath(cliffLeft(),
                     sideways(40, 130, {{0, fade(Qt::black, 0.4)}, {1, fade(Qt::black, 0)}}));
    // The harbour's pier and its lamps stand behind the right hand rocks.
    Random random(48);
    const auto rock = [&](QPointF at, double size) {
        const QPainterPath shape =
            blob({at + QPointF(-size, 0), at + QPointF(-size * 0.8, -size * random.between(.3, .5)),
                  at + QPointF(-size * 0.1, -size * random.between(0.6, 0.85)),
                  at + QPointF(size * 0.7, -size * random.between(0.4, 0.6)),
                  at + QPointF(size, size * 0.05), at + QPointF(0, size * 0.16)});
        painter.fillPath(shape,
                         downward(at.y() - size * 0.8, at.y() + 4,
                                  {{0, hex(0x7c84b4)}, {0.4, hex(0x3c4270)}, {1, hex(0x14163a)}}));
        mottle(painter, shape, 9, 6, 0.4, 49);
    };
    rock({148, 300}, 36);
    rock({196, 286}, 19);
    rock({512, 288}, 34);
    rock({470, 276}, 15);
    rock({250, 268}, 10);
}

QPainterPath waterEdge() {
    QPainterPath edge(QPointF(-10, 352));
    edge.cubicTo(120, 300, 230, 330, 330, 340);
    edge.cubicTo(440, 350, 560, 300, 710, 330);
    return edge;
}

void paintBeach(QPainter& painter) {
    QPainterPath sand = waterEdge();
    sand.lineTo(710, 480);
    sand.lineTo(-10, 480);
    sand.closeSubpath();
    painter.fillPath(
        sand, downward(310, 475, {{0, hex(0x6a6a90)}, {0.25, hex(0x8a8098)}, {1, hex(0x3c3452)}}));
    mottle(painter, sand, 90, 9, 0.35, 50);
    mottle(painter, sand, 3, 2, 0.16, 51);
    const QPainterPath wet = waterEdge();
    stroke(painter, wet.translated(0, 12), fade(hex(0x20244e), 0.4), 18);
    stroke(painter, wet.translated(0, 2), fade(hex(0xe6ecff), 0.75), 2.6);
    stroke(painter, wet.translated(0, -9), fade(hex(0xd0daff), 0.3), 1.4);
    glow(painter, {260, 390}, 200, hex(0x8ea2e0), 0.35);
    // Ribs of an old wreck.
    for (int i = 0; i < 6; ++i) {
        QPainterPath rib(QPointF(548.0 + i * 21, 420.0 - i * 4));
        rib.cubicTo(526.0 + i * 23, 382.0 - i * 4, 538.0 + i * 22, 344, 566.0 + i * 18,
                    322.0 + i * 5);
        stroke(painter, rib.translated(3, 2), fade(Qt::black, 0.35), 8);
        stroke(painter, rib, hex(0x2e2638), 7);
        stroke(painter, rib.translated(-2, -1), fade(hex(0xb8c0e8), 0.4), 1.3);
    }
    stroke(painter, {528, 424}, {690, 396}, hex(0x2a2234), 9);
    stroke(painter, {528, 421}, {690, 393}, fade(hex(0xa8b0dc), 0.35), 1.4);
    // A tide pool that glows by itself.
    const QPainterPath pool =
        blob({{276, 420}, {322, 398}, {396, 400}, {436, 420}, {394, 446}, {312, 448}});
    softFill(painter, pool, fade(hex(0x0c1030), 0.6), 8);
    painter.fillPath(
        pool, downward(398, 448, {{0, hex(0x2c4a7a)}, {0.5, hex(0x1c6a7e)}, {1, hex(0x163a5c)}}));
    glow(painter, {356, 424}, 84, hex(0x40e0d0), 0.5);
    stroke(painter, pool, fade(hex(0xc8e8ff), 0.4), 1.2);
    Random random(52);
    for (int i = 0; i < 70; ++i) {
        const QPointF at(random.between(20, 680), random.between(372, 468));
        painter.fillPath(ellipse(at, random.between(1, 3.4), random.between(0.8, 2)),
                         fade(mix(hex(0xd8d0e0), hex(0x2a2644), random.unit()), 0.7));
    }
}

void paintSurf(QPainter& painter, int frame) {
    const double t = frame / 14.0;
    const double reach = 6 * std::sin(kTurn * t);
    const QPainterPath edge = waterEdge();
    for (int line = 0; line < 3; ++line) {
        QPainterPath foam;
        for (int step = 0; step <= 90; ++step) {
            const QPointF on = edge.pointAtPercent(0.13 + step * 0.74 / 90);
            const double x = on.x();
            const double y = on.y() + 4 - line * 12 + reach * (1 - line * 0.35) +
                             5 * (noise(x / 14.0, line, 53) - 0.5) +
                             1.6 * std::sin(x / 21.0 + kTurn * t);
            step == 0 ? foam.moveTo(x, y) : foam.lineTo(x, y);
        }
        const double strength =
            (0.75 - 0.2 * line) * (0.75 + 0.25 * std::sin(kTurn * (t + line * .3)));
        stroke(painter, foam, fade(hex(0xe8f0ff), strength), 2.8 - line * 0.7);
        stroke(painter, foam.translated(0, 3.4), fade(hex(0xb8ccf8), strength * 0.4), 3);
    }
}

void paintMoonPath(QPainter& painter, int frame) {
    Random random(54);
    for (int i = 0; i < 130; ++i) {
        const double depth = std::pow(random.unit(), 1.2);
        const double y = kCoveHorizon + 3 + depth * 96;
        const double x = kMoon.x() + (6 + 56 * depth) * (random.unit() + random.unit() - 1) * 1.4;
        const double wave = std::sin(kTurn * (random.unit() + frame / 12.0));
        if (wave > 0.05) {
            painter.fillPath(ellipse({x + 2 * wave, y}, (2 + 9 * depth) * wave, 0.6 + 0.7 * depth),
                             fade(hex(0xf4f4ff), 0.85 * wave));
        }
    }
}

void paintPoolLights(QPainter& painter, int frame) {
    Random random(55);
    for (int i = 0; i < 22; ++i) {
        const double phase = kTurn * (frame / 12.0 + random.unit());
        const QPointF at(random.between(300, 416) + 4 * std::cos(phase),
                         random.between(409, 438) + 2 * std::sin(phase));
        const double light = 0.5 + 0.5 * std::sin(phase);
        glow(painter, at, 8, hex(0x60ffe0), 0.6 * light);
        painter.fillPath(ellipse(at, 1.2, 1.2), fade(hex(0xe0fff8), light));
    }
}

void paintCrab(QPainter& painter, int frame) {
    const double x = 196 + 34 * std::sin(kTurn * frame / 32);
    const QPointF at(x, 428);
    softFill(painter, ellipse(at + QPointF(0, 8), 16, 3), fade(Qt::black, 0.4), 3);
    for (int leg = 0; leg < 3; ++leg) {
        const double step = 2.4 * std::sin(kTurn * (frame / 4.0 + leg * 0.33));
        for (const double side : {-1.0, 1.0}) {
            QPainterPath path(at + QPointF(side * 8, 2));
            path.quadTo(at + QPointF(side * (15 + leg), -3),
                        at + QPointF(side * (14 + leg * 3) + step, 9));
            stroke(painter, path, hex(0xa84a3a), 1.8);
        }
    }
    for (const double side : {-1.0, 1.0}) {
        stroke(painter, at + QPointF(side * 8, -2), at + QPointF(side * 14, -10), hex(0xb8543e),
               2.6);
        painter.fillPath(ellipse(at + QPointF(side * 15, -12), 4.4, 3.4), hex(0xd86a4a));
        stroke(painter, at + QPointF(side * 3, -6), at + QPointF(side * 3.4, -11), hex(0xa84a3a),
               1.2);
        painter.fillPath(ellipse(at + QPointF(side * 3.4, -12), 1.7, 1.7), hex(0xfff4e8));
    }
    painter.fillPath(ellipse(at, 11.5, 7.4),
                     downward(421, 436, {{0, hex(0xe8805a)}, {1, hex(0x8a3430)}}));
}

void paintIronKey(QPainter& painter) {
    painter.save();
    painter.translate(356, 424);
    painter.rotate(-16);
    glow(painter, {0, 0}, 26, hex(0xa0fff0), 0.5);
    const auto key = [&](const QColor& colour, double width) {
        stroke(painter, ellipse({-15, 0}, 6, 6), colour, width);
        stroke(painter, {-9, 0}, {18, 0}, colour, width);
        stroke(painter, {17, 0}, {17, 7}, colour, width);
        stroke(painter, {11, 0}, {11, 5}, colour, width);
    };
    key(hex(0x141428), 5);
    key(hex(0x6a6a86), 3.4);
    painter.translate(-0.5, -0.8);
    key(fade(hex(0xd8e8f4), 0.8), 1.1);
    painter.restore();
}

}  // namespace

SceneArt coveArt() {
    QImage picture = newPicture();
    paintNight(picture);
    paintWater(picture, {kCoveHorizon, hex(0x5a6298), hex(0x141a44), 0.9, hex(0xd8e0ff), 44});
    QPainter painter(&picture);
    makeSmooth(painter);
    paintRocks(painter);
    paintBeach(painter);
    painter.end();
    bloom(picture, 180, 14, 0.6);
    vignette(picture, 0.6);
    paperGrain(picture, 0.05, 12);
    return {
        "Cove.bmp",
        picture,
        {
            {"MoonPath.gif",
             {150, 206, 170, 104},
             12,
             12,
             [](QPainter& p, int f) { paintMoonPath(p, f); }},
            {"Surf.gif", {80, 286, 540, 76}, 14, 12, [](QPainter& p, int f) { paintSurf(p, f); }},
            {"Pool.gif",
             {284, 398, 148, 50},
             12,
             12,
             [](QPainter& p, int f) { paintPoolLights(p, f); }},
            {"Key.gif", {326, 404, 60, 40}, 1, 10, [](QPainter& p, int) { paintIronKey(p); }},
            {"Crab.gif",
             {134, 408, 124, 34},
             16,
             9,
             [](QPainter& p, int f) { paintCrab(p, f - 8); }},
        }};
}

}  // namespace quorvel::sample
