// At the foot of the lighthouse.
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

constexpr int kLighthouseHorizon = 296;

void paintSeaAtNight(QImage& picture) {
    QPainter painter(&picture);
    makeSmooth(painter);
    painter.fillRect(
        picture.rect(),
        downward(
            0, kLighthouseHorizon,
            {{0, hex(0x0a1230)}, {0.5, hex(0x1e2c64)}, {0.85, hex(0x4c5492)}, {1, hex(0x7a74a8)}}));
    paintStars(painter, {0, 0, 700, 260}, 260, 171);
    paintMoon(painter, {118, 96}, 38, 0.45);
    painter.end();
    paintClouds(picture, {110, 294, hex(0xa8b0dc), hex(0x242e62), 0.58, 172});
    paintWater(picture,
               {kLighthouseHorizon, hex(0x50588e), hex(0x10163c), 0.9, hex(0xd8e0ff), 173});
}

QPainterPath towerShape() {
    return polygon({{300, -20}, {494, -20}, {536, 396}, {258, 396}});
}

void paintTower(QPainter& painter) {
    const QPainterPath tower = towerShape();
    fillTextured(painter, tower, stonework({290, 430}, hex(0xc8c0c4), 22, 174));
    painter.save();
    painter.setClipPath(tower);
    for (const double y : {-30.0, 132.0}) {
        QPainterPath ring(QPointF(240, y));
        ring.quadTo(397, y + 22, 560, y);
        ring.lineTo(560, y + 84);
        ring.quadTo(397, y + 106, 240, y + 84);
        painter.fillPath(ring, fade(hex(0xb03c3c), 0.72));
    }
    painter.restore();
    painter.fillPath(tower, sideways(258, 536,
                                     {{0, fade(hex(0xc8d4ff), 0.35)},
                                      {0.2, fade(hex(0x10143a), 0.1)},
                                      {0.6, fade(hex(0x0c1030), 0.5)},
                                      {1, fade(hex(0x06081c), 0.88)}}));
    for (const double y : {64.0, 240.0}) {
        painter.fillPath(ellipse({396, y}, 17, 24), hex(0x3a3450));
        painter.fillPath(ellipse({396, y}, 12, 19), hex(0x101430));
        stroke(painter, {396, y - 19}, {396, y + 19}, hex(0x3a3450), 2);
        stroke(painter, {384, y}, {408, y}, hex(0x3a3450), 2);
    }
}

void paintIsland(QPainter& painter) {
    QPainterPath ground(QPointF(-10, 420));
    ground.cubicTo(80, 372, 160, 386, 240, 384);
    ground.cubicTo(380, 380, 540, 376, 710, 366);
    ground.lineTo(710, 480);
    ground.lineTo(-10, 480);
    ground.closeSubpath();
    painter.fillPath(
        ground, downward(366, 475, {{0, hex(0x4c5c6c)}, {0.4, hex(0x2c3c4a)}, {1, hex(0x101824)}}));
    mottle(painter, ground, 30, 8, 0.4, 175);
    drape(painter, cobbles({240, 200}, hex(0x7a7690), 22, 176),
          quad({354, 394}, {440, 394}, {470, 500}, {250, 500}));
    Random random(177);
    std::vector<QPointF> roots;
    for (int i = 0; i < 700; ++i) {
        const QPointF at(random.between(-10, 710), random.between(384, 480));
        const double left = 354 - (at.y() - 394) * 0.98;
        const double right = 440 + (at.y() - 394) * 0.29;
        const bool shore = at.x() < 150 && at.y() < 420 - at.x() * 0.24 + 8;
        if ((at.x() < left - 3 || at.x() > right + 3) && !shore) {
            roots.push_back(at);
        }
    }
    std::ranges::sort(roots, {}, [](const QPointF& p) { return p.y(); });
    paintGrass(painter, roots, 13, hex(0x12222c), hex(0x50706c), 0.3, 178);
}

void paintCottage(QPainter& painter) {
    QPainterPath wall;
    wall.addRect(QRectF(528, 282, 190, 106));
    fillTextured(painter, wall, plaster({190, 106}, hex(0xb0a6b0), 179));
    painter.fillPath(wall, sideways(528, 718,
                                    {{0, fade(hex(0x0c1030), 0.62)},
                                     {0.3, fade(hex(0x0c1030), 0.3)},
                                     {1, fade(hex(0x0c1030), 0.5)}}));
    const QPainterPath roof = polygon({{510, 288}, {552, 214}, {720, 208}, {720, 290}});
    fillTextured(painter, roof, slates({212, 84}, hex(0x5a4c66), 14, 180));
    painter.fillPath(
        roof, downward(208, 290, {{0, fade(hex(0xb8c4f0), 0.16)}, {1, fade(Qt::black, .4)}}));
    painter.fillRect(QRectF(640, 172, 30, 52),
                     sideways(640, 670, {{0, hex(0x7a6a7c)}, {1, hex(0x2c2438)}}));
    painter.fillRect(QRectF(636, 168, 38, 8), hex(0x4a4056));
    paintWindow(painter, {584, 308, 36, 40}, 1, 2);
    paintWindow(painter, {654, 308, 36, 40}, 0.8, 3);
    paintBarrel(painter, {560, 398}, 44);
    painter.fillPath(ellipse({602, 400}, 70, 8), fade(hex(0xffb060), 0.25));
}

void paintEntrance(QPainter& painter) {
    for (int i = 0; i < 3; ++i) {
        const double half = 44 + i * 9;
        const double y = 384 + i * 7;
        painter.fillRect(
            QRectF(397 - half, y, half * 2, 8),
            downward(y, y + 8, {{0, hex(0xa8a0b4)}, {0.3, hex(0x6a647c)}, {1, hex(0x2e2a44)}}));
    }
    paintDoor(painter, {363, 290, 68, 95}, hex(0x46707a), 181);
    painter.fillPath(ellipse({417, 346}, 4, 5), hex(0x1a1418));
    stroke(painter, {466, 262}, {466, 276}, hex(0x1a1622), 4);
    stroke(painter, {456, 262}, {474, 262}, hex(0x1a1622), 4);
}

void paintSpray(QPainter& painter, int frame) {
    const double t = frame / 16.0;
    const double burst = std::pow(std::max(0.0, std::sin(kTurn * t)), 0.7);
    Random random(182);
    for (int i = 0; i < 150; ++i) {
        const double age = std::fmod(t + random.unit() * 0.4, 1.0);
        const double speed = random.between(20, 86);
        const double side = random.between(-46, 66);
        const double rise = speed * std::sin(3.14159 * std::min(1.0, age * 1.9));
        const QPointF at(70 + side * (0.5 + age), 410 - rise);
        const double strength = burst * (1 - age * 0.6) * random.between(0.3, 0.85);
        painter.fillPath(ellipse(at, random.between(0.8, 3), random.between(0.8, 2.6)),
                         fade(hex(0xe8f0ff), strength));
    }
    for (int line = 0; line < 3; ++line) {
        QPainterPath foam;
        for (int x = 0; x <= 165; x += 5) {
            const double y = 375 + 33 * std::exp(-x / 55.0) - line * 6 +
                             3 * std::sin(x / 15.0 + kTurn * t + line);
            x == 0 ? foam.moveTo(x, y) : foam.lineTo(x, y);
        }
        stroke(painter, foam, fade(hex(0xe8f0ff), 0.6 - line * 0.15), 2.4 - line * 0.5);
    }
}

void paintVane(QPainter& painter, int frame) {
    const double turn = std::cos(0.6 * std::sin(kTurn * frame / 24) + 0.4);
    stroke(painter, {690, 210}, {690, 150}, hex(0x1c1a2c), 3);
    stroke(painter, {676, 176}, {704, 176}, hex(0x1c1a2c), 1.6);
    painter.save();
    painter.translate(690, 156);
    painter.scale(turn, 1);
    QPainterPath fish = blob({{-20, 0}, {-6, -8}, {10, -4}, {16, 0}, {10, 4}, {-6, 8}});
    painter.fillPath(fish, hex(0x2c2a44));
    painter.fillPath(polygon({{14, 0}, {26, -8}, {22, 0}, {26, 8}}), hex(0x2c2a44));
    stroke(painter, fish, fade(hex(0xc8d4ff), 0.5), 1);
    painter.restore();
}

void paintDoorLamp(QPainter& painter, int frame) {
    const double pulse = 0.8 + 0.2 * std::sin(kTurn * frame / 8) * std::cos(kTurn * frame / 4 + 1);
    glow(painter, {466, 302}, 60, hex(0xffb050), 0.55 * pulse);
    paintLantern(painter, {466, 274}, 50, pulse);
    paintFlame(painter, {466, 311}, 13, frame / 8.0);
}

void paintSmokeTrail(QPainter& painter, int frame) {
    for (int i = 0; i < 9; ++i) {
        const double age = std::fmod(i / 9.0 + frame / 12.0, 1.0);
        const QPointF at(655 - 46 * age * age + 5 * std::sin(age * 7 + i), 166 - 74 * age);
        const double r = 4 + 13 * age;
        QRadialGradient puff(at, r);
        puff.setColorAt(0, fade(hex(0xb8b8dc), 0.36 * (1 - age)));
        puff.setColorAt(1, fade(hex(0x9a9ac8), 0));
        painter.fillPath(ellipse(at, r, r), puff);
    }
}

}  // namespace

SceneArt lighthouseArt() {
    QImage picture = newPicture();
    paintSeaAtNight(picture);
    QPainter painter(&picture);
    makeSmooth(painter);
    paintTower(painter);
    paintCottage(painter);
    paintIsland(painter);
    paintEntrance(painter);
    glow(painter, {466, 302}, 210, hex(0xff9c48), 0.34);
    glow(painter, {602, 328}, 90, hex(0xffa850), 0.3);
    painter.end();
    bloom(picture, 190, 13, 0.5);
    vignette(picture, 0.55);
    paperGrain(picture, 0.05, 16);
    return {
        "Lightho.jpg",
        picture,
        {
            {"Spray.gif", {0, 318, 200, 106}, 16, 9, [](QPainter& p, int f) { paintSpray(p, f); }},
            {"Vane.gif", {660, 140, 40, 72}, 12, 12, [](QPainter& p, int f) { paintVane(p, f); }},
            {"DoorLamp.gif",
             {406, 242, 120, 120},
             8,
             11,
             [](QPainter& p, int f) { paintDoorLamp(p, f); }},
            {"Chimney.gif",
             {588, 80, 84, 92},
             12,
             12,
             [](QPainter& p, int f) { paintSmokeTrail(p, f); }},
        }};
}

}  // namespace quorvel::sample
