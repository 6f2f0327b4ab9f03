// The path over the cliffs, between the harbour and the lighthouse.
#include <algorithm>
#include <cmath>

#include "art/materials.h"
#include "art/noise.h"
#include "art/props.h"
#include "art/scenery.h"
#include "art/sprite.h"
#include "art/turn.h"

namespace quorvel::sample {
namespace {

constexpr int kCliffHorizon = 268;

void paintLastLight(QImage& picture) {
    QPainter painter(&picture);
    makeSmooth(painter);
    painter.fillRect(picture.rect(), downward(0, kCliffHorizon,
                                              {{0, hex(0x111a42)},
                                               {0.4, hex(0x2c3a78)},
                                               {0.7, hex(0x6a5a94)},
                                               {0.88, hex(0xc8788a)},
                                               {1, hex(0xf0b08a)}}));
    paintStars(painter, {0, 0, 700, 200}, 190, 141);
    glow(painter, {90, 262}, 300, hex(0xff9a70), 0.55);
    painter.end();
    paintClouds(picture, {30, 180, hex(0x7a7ac0), hex(0x22265a), 0.6, 142});
    paintClouds(picture, {170, 264, hex(0xffb490), hex(0x5a4a86), 0.55, 143});
    paintWater(picture, {kCliffHorizon, hex(0xb87888), hex(0x1a2050), 0.9, hex(0xffd0b0), 144});
}

QPainterPath headland() {
    QPainterPath path(QPointF(306, 480));
    path.cubicTo(300, 420, 348, 380, 340, 330);
    path.cubicTo(336, 290, 380, 270, 400, 228);
    path.cubicTo(430, 190, 500, 186, 548, 178);
    path.cubicTo(600, 168, 650, 172, 710, 160);
    path.lineTo(710, 480);
    path.closeSubpath();
    return path;
}

void paintHeadland(QPainter& painter) {
    const QPainterPath cliff = headland();
    painter.fillPath(
        cliff, downward(170, 475, {{0, hex(0x4a4e72)}, {0.4, hex(0x3a3a62)}, {1, hex(0x181a3a)}}));
    mottle(painter, cliff, 16, 60, 0.42, 145);
    mottle(painter, cliff, 70, 14, 0.30, 146);
    Random random(147);
    painter.save();
    painter.setClipPath(cliff);
    for (int i = 0; i < 40; ++i) {
        const QPointF at(random.between(310, 560), random.between(220, 470));
        stroke(painter, at, at + QPointF(random.between(-10, 10), random.between(14, 44)),
               fade(hex(0x12142e), 0.5), random.between(0.8, 2));
        stroke(painter, at + QPointF(-1.5, 0), at + QPointF(random.between(-10, 4), 20),
               fade(hex(0xf0a890), 0.22), 1);
    }
    painter.restore();
    paintLighthouse(painter, {592, 176}, 168, 0);
    painter.fillPath(polygon({{612, 174}, {612, 154}, {630, 140}, {650, 152}, {650, 170}}),
                     hex(0x6a5a78));
    painter.fillPath(
        polygon({{607, 156}, {630, 136}, {655, 153}, {650, 156}, {630, 143}, {612, 159}}),
        hex(0x38284a));
    paintWindow(painter, {624, 156, 8, 9}, 0.9, 1);
}

void paintMeadow(QPainter& painter) {
    QPainterPath ground(QPointF(-10, 330));
    ground.cubicTo(90, 312, 170, 336, 250, 372);
    ground.cubicTo(330, 398, 380, 330, 430, 280);
    ground.cubicTo(480, 230, 520, 196, 560, 182);
    ground.cubicTo(620, 170, 660, 172, 710, 162);
    ground.lineTo(710, 480);
    ground.lineTo(-10, 480);
    ground.closeSubpath();
    painter.fillPath(
        ground,
        downward(
            170, 475,
            {{0, hex(0x5a6a6a)}, {0.35, hex(0x36524e)}, {0.7, hex(0x22383c)}, {1, hex(0x0e1a26)}}));
    mottle(painter, ground, 40, 10, 0.4, 148);
    mottle(painter, ground, 5, 12, 0.2, 149);
    // The path narrows as it climbs.
    const std::vector<QPointF> left = {{150, 480}, {250, 430}, {330, 396}, {400, 340},
                                       {448, 296}, {500, 250}, {534, 214}, {566, 188}};
    const std::vector<QPointF> right = {{572, 185}, {548, 216}, {524, 254}, {488, 302},
                                        {452, 350}, {404, 408}, {360, 446}, {350, 480}};
    QPainterPath path(left.front());
    for (const auto* side : {&left, &right}) {
        for (std::size_t i = side == &left ? 1 : 0; i < side->size(); ++i) {
            path.lineTo((*side)[i]);
        }
    }
    path.closeSubpath();
    painter.fillPath(
        path, downward(185, 480, {{0, hex(0xb0a098)}, {0.5, hex(0x8a7c80)}, {1, hex(0x4c4254)}}));
    mottle(painter, path, 22, 6, 0.35, 150);
    Random random(151);
    painter.save();
    painter.setClipPath(path);
    for (int i = 0; i < 90; ++i) {
        const double t = random.unit();
        const QPointF at(random.between(150, 570), 190 + 290 * t);
        painter.fillPath(ellipse(at, 1 + 6 * t, 0.6 + 2.6 * t), fade(hex(0x2a2434), 0.5));
        painter.fillPath(ellipse(at - QPointF(0.5, 1), 1 + 5.4 * t, 0.5 + 2.2 * t),
                         fade(hex(0xb8a8a8), 0.6));
    }
    painter.restore();
}

void paintGrassAndFence(QPainter& painter) {
    Random random(152);
    for (int band = 0; band < 9; ++band) {
        std::vector<QPointF> roots;
        const double depth = band / 8.0;
        for (int i = 0; i < 150 + band * 20; ++i) {
            const double x = random.between(-10, 710);
            const double top = x < 420 ? 344 + 30 * std::sin(x / 90) : 330 - (x - 420) * 0.52;
            const QPointF at(x, std::max(top, 200.0) + depth * 150 + random.between(-8, 8));
            const double middle = 572 - (at.y() - 185) * 1.12 + 10;
            if (std::abs(at.x() - middle) > 14 + (at.y() - 185) * 0.34) {
                roots.push_back(at);
            }
        }
        paintGrass(painter, roots, 7 + 18 * depth, mix(hex(0x3c5a56), hex(0x0c1c22), depth),
                   mix(hex(0x8aa08a), hex(0x3a5c50), depth), 0.3,
                   153U + static_cast<unsigned>(band));
    }
    // A fence keeps walkers from the edge.
    const std::vector<QPointF> posts = {{22, 452},  {118, 420}, {204, 396}, {282, 372}, {346, 338},
                                        {398, 296}, {444, 258}, {486, 226}, {520, 202}};
    for (std::size_t i = 0; i < posts.size(); ++i) {
        const double h = 62 - static_cast<double>(i) * 6.2;
        if (i + 1 < posts.size()) {
            paintRope(painter, posts[i] - QPointF(0, h * 0.8),
                      posts[i + 1] - QPointF(0, (h - 6) * 0.8), h * 0.13, h * 0.05);
            paintRope(painter, posts[i] - QPointF(0, h * 0.4),
                      posts[i + 1] - QPointF(0, (h - 6) * 0.4), h * 0.12, h * 0.045);
        }
        stroke(painter, posts[i], posts[i] - QPointF(-1, h), hex(0x1e1824), h * 0.12);
        stroke(painter, posts[i] - QPointF(h * 0.03, 0), posts[i] - QPointF(h * 0.02 - 1, h),
               fade(hex(0xe0a088), 0.55), h * 0.03);
    }
    for (int i = 0; i < 60; ++i) {
        const QPointF at(random.between(430, 700), random.between(350, 470));
        painter.fillPath(ellipse(at, 1.8, 1.5), i % 3 == 0 ? hex(0xe8a0c0) : hex(0xd8c8f0));
    }
}

void paintWindGrass(QPainter& painter, int frame) {
    Random random(160);
    for (int i = 0; i < 110; ++i) {
        const double x = random.between(440, 694);
        const double y = random.between(448, 474);
        const double h = random.between(22, 46);
        const double bend = h * (0.3 + 0.2 * std::sin(kTurn * frame / 12 - x / 60));
        QPainterPath blade(QPointF(x - 1.6, y));
        blade.quadTo(x + bend * 0.2, y - h * 0.6, x + bend, y - h);
        blade.quadTo(x + bend * 0.3 + 1.6, y - h * 0.5, x + 1.6, y);
        painter.fillPath(blade, mix(hex(0x0e2428), hex(0x4c7464), random.unit()));
    }
}

void paintFireflies(QPainter& painter, int frame) {
    Random random(161);
    for (int i = 0; i < 14; ++i) {
        const double phase = kTurn * (frame / 16.0 + random.unit());
        const QPointF at(random.between(470, 680) + 10 * std::cos(phase),
                         random.between(296, 410) + 7 * std::sin(2 * phase));
        const double light = std::max(0.0, std::sin(phase + i));
        glow(painter, at, 11, hex(0xe8ff80), 0.7 * light);
        painter.fillPath(ellipse(at, 1.3, 1.3), fade(hex(0xfcffd8), light));
    }
}

void paintKite(QPainter& painter, int frame) {
    const double phase = kTurn * frame / 14;
    const QPointF at(176 + 10 * std::sin(phase), 108 + 7 * std::sin(2 * phase));
    paintGull(painter, at, 42, std::sin(phase * 2), hex(0xf4dcd8));
    paintGull(painter, at + QPointF(58, 26 + 3 * std::cos(phase)), 27, std::sin(phase * 2 + 1),
              hex(0xe8ccd4));
}

}  // namespace

SceneArt cliffArt() {
    QImage picture = newPicture();
    paintLastLight(picture);
    QPainter painter(&picture);
    makeSmooth(painter);
    paintHeadland(painter);
    paintMeadow(painter);
    paintGrassAndFence(painter);
    painter.end();
    bloom(picture, 190, 14, 0.5);
    vignette(picture, 0.55);
    paperGrain(picture, 0.05, 14);
    return {"CliffPath.jpg",
            picture,
            {
                {"WindGrass.gif",
                 {430, 396, 270, 79},
                 12,
                 10,
                 [](QPainter& p, int f) { paintWindGrass(p, f); }},
                {"Fireflies.gif",
                 {450, 278, 246, 148},
                 16,
                 11,
                 [](QPainter& p, int f) { paintFireflies(p, f); }},
                {"CliffGulls.gif",
                 {138, 78, 136, 80},
                 14,
                 9,
                 [](QPainter& p, int f) { paintKite(p, f); }},
            }};
}

}  // namespace quorvel::sample
