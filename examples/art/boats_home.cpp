// The end of the game: the light burns and the boats come home.
#include <cmath>

#include "art/materials.h"
#include "art/noise.h"
#include "art/props.h"
#include "art/scenery.h"
#include "art/sprite.h"
#include "art/turn.h"

namespace quorvel::sample {
namespace {

constexpr int kBoatsHomeHorizon = 262;
const QPointF kLight(520, 73);

void paintBeam(QPainter& painter, const QPointF& a, const QPointF& b, double strength) {
    const QPainterPath cone = polygon({kLight, a, b});
    QRadialGradient light(kLight, 560);
    light.setColorAt(0, fade(hex(0xfff0c0), strength));
    light.setColorAt(0.25, fade(hex(0xffe0a0), strength * 0.5));
    light.setColorAt(1, fade(hex(0xffd890), 0));
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Screen);
    painter.fillPath(cone, light);
    painter.restore();
}

void paintNightSky(QImage& picture) {
    QPainter painter(&picture);
    makeSmooth(painter);
    painter.fillRect(
        picture.rect(),
        downward(
            0, kBoatsHomeHorizon,
            {{0, hex(0x0c1236)}, {0.45, hex(0x2a2c6c)}, {0.8, hex(0x6a4f8c)}, {1, hex(0xb8708c)}}));
    paintStars(painter, {0, 0, 700, 230}, 260, 221);
    painter.end();
    paintClouds(picture, {50, 220, hex(0x8a7ac0), hex(0x26265e), 0.6, 222});
    paintClouds(picture, {190, 260, hex(0xf0a09a), hex(0x5a4480), 0.55, 223});
    QPainter beams(&picture);
    makeSmooth(beams);
    for (const double spread : {1.0, 0.55}) {
        paintBeam(beams, {-60, 120 - 70 * spread}, {-60, 120 + 70 * spread}, 0.5);
        paintBeam(beams, {860, 20 - 40 * spread}, {860, 20 + 40 * spread}, 0.4);
    }
}

void paintPoint(QPainter& painter) {
    const QPainterPath cliff = blob({{396, 276},
                                     {420, 234},
                                     {448, 216},
                                     {480, 190},
                                     {520, 178},
                                     {570, 182},
                                     {640, 204},
                                     {760, 214},
                                     {760, 300}});
    painter.fillPath(cliff, downward(178, 276, {{0, hex(0x4c3c68)}, {1, hex(0x1e1c40)}}));
    mottle(painter, cliff, 14, 40, 0.22, 224);
    stroke(painter, cliff, fade(hex(0xffc890), 0.3), 1.4);
    paintLighthouse(painter, {520, 182}, 132, 1);
    painter.fillPath(polygon({{544, 184}, {544, 168}, {558, 158}, {574, 168}, {574, 186}}),
                     hex(0x4a3a5e));
    paintWindow(painter, {552, 171, 7, 8}, 1, 4);
    const QPainterPath town =
        blob({{760, 300}, {596, 286}, {622, 252}, {656, 222}, {700, 206}, {780, 180}});
    painter.fillPath(town, hex(0x2a2448));
    for (int i = 0; i < 5; ++i) {
        paintHouse(painter, {600.0 + i * 27, 284.0 - i % 2 * 12, 30, 26, hex(0x7a5c72),
                             hex(0x4a3050), 230U + static_cast<unsigned>(i), 0.9});
    }
}

void paintFleet(QImage& picture) {
    struct Boat {
        double x, y, length;
        unsigned hull;
    };
    const Boat boats[] = {{360, 274, 34, 0x5a3a58},  {282, 280, -42, 0x4a4a6a},
                          {420, 288, 52, 0x6a3a48},  {96, 292, 62, 0x3a4a68},
                          {214, 322, 108, 0x34587a}, {424, 366, 148, 0x8a3f40}};
    for (const Boat& boat : boats) {
        paintAfloat(picture, boat.y, 0.8, [&boat](QPainter& p) {
            paintFishingBoat(p, {boat.x, boat.y}, boat.length, hex(boat.hull), 1);
        });
    }
}

void paintPier(QPainter& painter) {
    drape(painter, planks({400, 120}, hex(0x8a6450), 18, 225),
          quad({-40, 416}, {300, 416}, {420, 490}, {-80, 490}));
    for (int i = 0; i < 6; ++i) {
        const double x = 12 + i * 62;
        painter.fillRect(QRectF(x, 396, 11, 50),
                         sideways(x, x + 11, {{0, hex(0x9a6a54)}, {1, hex(0x20161e)}}));
        painter.fillPath(ellipse({x + 5.5, 396}, 5.5, 2.4), hex(0xb08668));
        if (i < 5) {
            paintRope(painter, {x + 6, 402}, {x + 68, 402}, 9, 2);
        }
    }
    painter.fillPath(
        polygon({{-40, 416}, {300, 416}, {420, 490}, {-80, 490}}),
        downward(416, 475, {{0, fade(hex(0xffc080), 0.12)}, {1, fade(hex(0x0c0a20), .55)}}));
    // Wren, the cat and the puffin look on.
    const QColor coat = hex(0x2c3a5a);
    softFill(painter, ellipse({150, 450}, 40, 6), fade(Qt::black, 0.6), 5);
    painter.fillPath(blob({{128, 450}, {132, 408}, {142, 382}, {158, 382}, {168, 408}, {174, 450}}),
                     sideways(128, 174, {{0, shade(coat, 0.6)}, {0.75, coat}, {1, hex(0xe0a070)}}));
    painter.fillPath(
        blob({{140, 384}, {138, 366}, {150, 356}, {162, 366}, {161, 384}, {150, 390}}),
        sideways(138, 162, {{0, hex(0x4a2a24)}, {0.8, hex(0x7a4632)}, {1, hex(0xf0b080)}}));
    painter.fillPath(blob({{135, 368}, {142, 352}, {158, 352}, {166, 368}, {150, 363}}),
                     hex(0xa83c3c));
    stroke(painter, {140, 390}, {162, 392}, hex(0xc84a44), 6);
    stroke(painter, {164, 404}, {176, 422}, shade(coat, 1.3), 7);
    paintPuffin(painter, {96, 448}, 48, -8, false);
    glow(painter, {178, 432}, 100, hex(0xffa850), 0.5);
    paintLantern(painter, {178, 420}, 34, 1);
}

void paintLanterns(QPainter& painter, int frame) {
    for (int i = 0; i < 7; ++i) {
        const double phase = kTurn * (frame / 16.0 + i * 0.21);
        const QPointF at(60 + i * 44 + 4 * std::sin(phase),
                         60 + (i * 53) % 120 + 5 * std::cos(phase));
        const double s = 0.7 + (i % 3) * 0.25;
        glow(painter, at, 26 * s, hex(0xff9a48), 0.6);
        const QPainterPath paper =
            blob({at + QPointF(-7, -9) * s, at + QPointF(7, -9) * s, at + QPointF(8, 2) * s,
                  at + QPointF(4, 9) * s, at + QPointF(-4, 9) * s, at + QPointF(-8, 2) * s});
        painter.fillPath(paper, downward(at.y() - 9 * s, at.y() + 9 * s,
                                         {{0, hex(0xd8703a)}, {1, hex(0xfff0b0)}}));
    }
}

void paintRipples(QPainter& painter, int frame) {
    Random random(226);
    for (int i = 0; i < 120; ++i) {
        const double depth = random.unit();
        const double y = kBoatsHomeHorizon + 6 + depth * 120;
        const double x = 540 + depth * 30 + (8 + 34 * depth) * (random.unit() + random.unit() - 1);
        const double wave = std::sin(kTurn * (random.unit() + frame / 12.0));
        if (wave > 0.1) {
            painter.fillPath(ellipse({x, y}, (2 + 9 * depth) * wave, 0.6 + 0.8 * depth),
                             fade(hex(0xffe6b0), 0.8 * wave));
        }
    }
}

}  // namespace

SceneArt boatsHomeArt() {
    QImage picture = newPicture();
    paintNightSky(picture);
    QPainter point(&picture);
    makeSmooth(point);
    paintHills(point, {254, 12, 130, hex(0x6a4a80), hex(0x8a5a84), 227});
    paintPoint(point);
    point.end();
    paintWater(picture,
               {kBoatsHomeHorizon, hex(0x9a6484), hex(0x141a48), 0.95, hex(0xffd8b0), 228});
    QPainter again(&picture);
    makeSmooth(again);
    paintPoint(again);
    again.end();
    paintFleet(picture);
    QPainter painter(&picture);
    makeSmooth(painter);
    paintPier(painter);
    painter.end();
    bloom(picture, 185, 16, 0.65);
    vignette(picture, 0.55);
    paperGrain(picture, 0.05, 22);
    return {"BoatsHome.jpg",
            picture,
            {
                {"Lanterns.gif",
                 {40, 36, 310, 160},
                 16,
                 11,
                 [](QPainter& p, int f) { paintLanterns(p, f); }},
                {"Ripples.gif",
                 {510, 264, 120, 128},
                 12,
                 11,
                 [](QPainter& p, int f) { paintRipples(p, f); }},
                {"EndCat.gif",
                 {208, 398, 56, 50},
                 12,
                 10,
                 [](QPainter& p, int f) {
                     paintCat(p, {226, 446}, 40, std::sin(kTurn * f / 24), hex(0x3a2a34));
                 }},
            }};
}

}  // namespace quorvel::sample
