// The harbour at dusk, where the game begins.
#include <cmath>

#include "art/materials.h"
#include "art/noise.h"
#include "art/props.h"
#include "art/scenery.h"
#include "art/sprite.h"
#include "art/turn.h"

namespace quorvel::sample {
namespace {

constexpr int kHarbourHorizon = 246;
const QPointF kSun(330, 236);

void paintSky(QImage& picture) {
    QPainter painter(&picture);
    makeSmooth(painter);
    painter.fillRect(picture.rect(), downward(0, kHarbourHorizon,
                                              {{0, hex(0x1e2450)},
                                               {0.28, hex(0x4b3f78)},
                                               {0.52, hex(0x9a5684)},
                                               {0.74, hex(0xe27b6c)},
                                               {0.9, hex(0xf9b56a)},
                                               {1, hex(0xffe0a0)}}));
    glow(painter, kSun, 330, hex(0xffb060), 0.75);
    paintStars(painter, QRectF(0, 0, kWidth, 120), 60, 4);
    painter.end();
    paintClouds(picture, {20, 150, hex(0xf09a86), hex(0x4a3a70), 0.62, 21});
    paintClouds(picture, {120, 240, hex(0xffd08a), hex(0xa4506c), 0.55, 8});
    QPainter sun(&picture);
    makeSmooth(sun);
    glow(sun, kSun, 150, hex(0xffd890), 0.8);
    sun.fillPath(ellipse(kSun, 19, 19), hex(0xfff6d8));
}

void paintFarShore(QImage& picture) {
    QPainter painter(&picture);
    makeSmooth(painter);
    paintHills(painter, {232, 20, 150, hex(0xb4687c), hex(0xd88a78), 3});
    QPainterPath cliff(QPointF(470, 248));
    cliff.cubicTo(500, 236, 505, 214, 530, 206);
    cliff.cubicTo(552, 196, 570, 190, 596, 186);
    cliff.cubicTo(640, 176, 668, 178, 702, 168);
    cliff.lineTo(702, 250);
    cliff.closeSubpath();
    painter.fillPath(
        cliff, downward(170, 248, {{0, hex(0x53375f)}, {0.5, hex(0x6a4064)}, {1, hex(0x8c5268)}}));
    mottle(painter, cliff, 26, 9, 0.34, 61);
    QPainterPath rim(QPointF(530, 206));
    rim.cubicTo(552, 196, 570, 190, 596, 186);
    rim.cubicTo(640, 176, 668, 178, 702, 168);
    stroke(painter, rim, fade(hex(0xf0a080), 0.6), 1.3);
    paintLighthouse(painter, {588, 190}, 132, 0);
    painter.fillPath(polygon({{606, 188}, {606, 174}, {618, 165}, {630, 173}, {630, 186}}),
                     hex(0x4e3458));
    painter.fillRect(QRectF(614, 175, 4, 5), hex(0xffc870));
    painter.fillRect(
        QRect(0, 176, kWidth, 74),
        downward(176, 250, {{0, fade(hex(0xf0a080), 0)}, {1, fade(hex(0xf6b080), .42)}}));
}

void paintTown(QImage& picture) {
    QPainter painter(&picture);
    makeSmooth(painter);
    const QPainterPath hill = blob({{-60, 330},
                                    {-60, 128},
                                    {30, 118},
                                    {110, 150},
                                    {180, 205},
                                    {232, 268},
                                    {238, 306},
                                    {120, 330}});
    painter.fillPath(hill, downward(120, 300, {{0, hex(0x3a2c56)}, {1, hex(0x2a2040)}}));
    mottle(painter, hill, 18, 12, 0.3, 12);
    const std::vector<HouseLook> rows = {
        {-14, 158, 40, 36, hex(0x7a5a70), hex(0x4c3452), 1, 0.4},
        {28, 156, 36, 30, hex(0x84606e), hex(0x583a50), 2, 0.5},
        {64, 172, 38, 34, hex(0x76586e), hex(0x44304e), 3, 0.5, true},
        {106, 192, 38, 34, hex(0x8a646c), hex(0x5c3c4e), 4, 0.4},
        {-18, 212, 50, 46, hex(0x9a7272), hex(0x5a3a4a), 5, 0.6, true},
        {34, 214, 48, 40, hex(0x8e6a76), hex(0x4a3450), 6, 0.5},
        {84, 226, 46, 44, hex(0xa87a70), hex(0x643f48), 7, 0.6},
        {136, 236, 44, 40, hex(0x94707a), hex(0x4e3650), 8, 0.5, true},
        {182, 252, 42, 38, hex(0xa27a76), hex(0x5e3d4a), 9, 0.6},
        {-24, 292, 66, 66, hex(0xb88c78), hex(0x5a3644), 10, 0.7, true},
        {44, 294, 60, 58, hex(0xa47e80), hex(0x4a3048), 11, 0.6},
        {106, 296, 62, 62, hex(0xc09278), hex(0x683e44), 12, 0.7, true},
        {170, 298, 54, 48, hex(0xa8807c), hex(0x50344a), 13, 0.6},
    };
    int row = 0;
    for (const HouseLook& house : rows) {
        paintHouse(painter, house);
        if (++row == 4 || row == 9) {  // evening haze between the rows
            softFill(painter, polygon({{-20, 150}, {60, 140}, {230, 240}, {230, 290}, {-20, 270}}),
                     fade(hex(0x8a5a80), 0.22), 18);
        }
    }
}

void paintBoats(QImage& picture) {
    paintAfloat(picture, 268, 0.75, [](QPainter& p) {
        paintFishingBoat(p, {268, 268}, 52, hex(0x5a3a50), 0.7);
    });
    paintAfloat(picture, 260, 0.7, [](QPainter& p) {
        paintFishingBoat(p, {404, 260}, -34, hex(0x6a4258), 0.6);
    });
    paintAfloat(picture, 322, 0.8, [](QPainter& p) {
        paintFishingBoat(p, {524, 322}, -150, hex(0x35506a), 0.9);
    });
}

void paintQuay(QImage& picture) {
    QPainter painter(&picture);
    makeSmooth(painter);
    // The wall of the quay runs from the town towards the viewer.
    const QPolygonF wall = quad({-10, 298}, {236, 298}, {402, 408}, {-10, 440});
    drape(painter, stonework({420, 130}, hex(0x6a5468), 17, 31), wall);
    painter.fillPath(polygon({{-10, 298}, {236, 298}, {702, 414}, {702, 480}, {-10, 480}}),
                     hex(0x4a3c50));
    drape(painter, cobbles({700, 420}, hex(0x8a7080), 17, 14),
          quad({-130, 298}, {222, 298}, {706, 420}, {-200, 640}));
    drape(painter, cobbles({700, 160}, hex(0x86707e), 20, 15),
          quad({-40, 392}, {560, 392}, {760, 500}, {-90, 500}));
    // Its edge, towards the water.
    drape(painter, stonework({600, 30}, hex(0xb08c88), 26, 33),
          quad({218, 296}, {240, 296}, {706, 408}, {706, 436}));
    QPainterPath edge(QPointF(240, 296));
    edge.lineTo(706, 408);
    stroke(painter, edge, hex(0xffc890), 1.6);
    painter.fillPath(polygon({{-10, 298}, {222, 298}, {706, 436}, {706, 480}, {-10, 480}}),
                     downward(298, 475,
                              {{0, fade(hex(0xf09a70), 0.22)},
                               {0.4, fade(hex(0x2a1c40), 0.28)},
                               {1, fade(hex(0x0e0a20), 0.78)}}));
    softFill(painter, ellipse({118, 402}, 130, 34), fade(hex(0xffb060), 0.30), 26);
}

void paintQuayThings(QImage& picture) {
    QPainter painter(&picture);
    makeSmooth(painter);
    softFill(painter, ellipse({70, 432}, 70, 14), fade(Qt::black, 0.5), 8);
    paintBarrel(painter, {36, 424}, 62);
    paintBarrel(painter, {76, 434}, 66);
    paintCrate(painter, {98, 396, 58, 42}, 41);
    paintBollard(painter, {352, 352}, 26);
    paintBollard(painter, {520, 402}, 36);
    paintRope(painter, {352, 334}, {470, 310}, 10, 1.6);
    paintRope(painter, {520, 376}, {584, 316}, 14, 1.8);
    paintRopeCoil(painter, {470, 424}, 22);
    // Nets hung up to dry, and the post that carries the bell.
    paintLampPost(painter, {196, 420}, 190, 0.85);
    softFill(painter, ellipse({232, 424}, 44, 5), fade(Qt::black, 0.4), 5);
    glow(painter, {196, 272}, 170, hex(0xff9a40), 0.34);
    stroke(painter, {648, 452}, {648, 330}, hex(0x2a1c22), 9);
    stroke(painter, {645, 452}, {645, 332}, fade(hex(0xd08a6a), 0.5), 2);
    stroke(painter, {648, 336}, {608, 336}, hex(0x2a1c22), 6);
    stroke(painter, {648, 364}, {624, 338}, hex(0x2a1c22), 4);
}

/// Glints of the sun on the water, more under the sun than elsewhere.
void paintGlints(QPainter& painter, int frame, int frames) {
    Random random(91);
    for (int i = 0; i < 190; ++i) {
        const double depth = std::pow(random.unit(), 1.4);
        const double y = kHarbourHorizon + 3 + depth * 100;
        const double spread = 14 + depth * 150;
        const double x = kSun.x() + spread * (random.unit() + random.unit() - 1) * 1.3;
        const double start = random.unit();
        const double wave = std::sin(kTurn * (start + frame / double(frames)));
        const double width = (2 + 12 * depth) * random.between(0.6, 1.4);
        if (wave > 0.1) {
            painter.fillPath(ellipse({x + 3 * wave, y}, width * wave, 0.6 + 0.8 * depth),
                             fade(hex(0xffe2a8), 0.75 * wave));
        }
    }
}

void paintGulls(QPainter& painter, int frame, int frames) {
    for (int i = 0; i < 4; ++i) {
        const double phase = kTurn * frame / frames;
        const double beat = std::sin(phase * 2 + i * 1.7);
        const QPointF at(404 + i * 37 + 9 * std::sin(phase + i),
                         74 - i * 13 + (i % 2) * 34 + 5 * std::cos(phase + i * 0.8));
        paintGull(painter, at, 25 - i * 3.5, beat, hex(0xf6dccb));
    }
}

void paintSmoke(QPainter& painter, QPointF from, int frame, int frames) {
    for (int i = 0; i < 9; ++i) {
        const double age = std::fmod(i / 9.0 + frame / double(frames), 1.0);
        const QPointF at = from + QPointF(34 * age * age + 5 * std::sin(age * 7 + i), -60 * age);
        const double r = 3 + 11 * age;
        QRadialGradient puff(at, r);
        puff.setColorAt(0, fade(hex(0xd8b0b4), 0.42 * (1 - age)));
        puff.setColorAt(1, fade(hex(0xb090a4), 0));
        painter.fillPath(ellipse(at, r, r), puff);
    }
}

void paintBell(QPainter& painter, double swing) {
    painter.save();
    painter.translate(612, 338);
    painter.rotate(swing);
    stroke(painter, {0, 24}, {2, 34}, hex(0x3a2a1c), 2.4);
    painter.fillPath(ellipse({2, 34}, 3.4, 3.4), hex(0x6a4a2a));
    QPainterPath bell(QPointF(-4, 2));
    bell.cubicTo(-12, 6, -9, 20, -16, 28);
    bell.lineTo(16, 28);
    bell.cubicTo(9, 20, 12, 6, 4, 2);
    bell.closeSubpath();
    painter.fillPath(
        bell,
        sideways(
            -16, 16,
            {{0, hex(0x8a5a22)}, {0.3, hex(0xffdf90)}, {0.5, hex(0xd09a3c)}, {1, hex(0x4a2c1c)}}));
    painter.fillRect(QRectF(-16, 26, 32, 3), hex(0x8a5c28));
    stroke(painter, {0, -2}, {0, 3}, hex(0x2a1c22), 3);
    painter.restore();
}

/// The basket of herring that the boats left behind.
void paintHerring(QPainter& painter) {
    softFill(painter, ellipse({416, 389}, 26, 5), fade(Qt::black, 0.5), 4);
    const auto fish = [&](QPointF at, double angle) {
        painter.save();
        painter.translate(at);
        painter.rotate(angle);
        painter.fillPath(
            blob({{-14, 0}, {-4, -4.6}, {8, -2.6}, {12, 0}, {8, 2.6}, {-4, 4.6}}),
            downward(-5, 5, {{0, hex(0x4a7088)}, {0.5, hex(0xc8d8d8)}, {1, hex(0xf2d8c4)}}));
        painter.fillPath(polygon({{11, 0}, {18, -4.5}, {16, 0}, {18, 4.5}}), hex(0x5a8094));
        painter.fillPath(ellipse({-9, -0.8}, 1.1, 1.1), hex(0x1a1a24));
        painter.restore();
    };
    fish({408, 366}, -18);
    fish({424, 365}, 196);
    fish({415, 362}, 8);
    QPainterPath basket(QPointF(392, 368));
    basket.quadTo(416, 376, 440, 368);
    basket.lineTo(434, 388);
    basket.quadTo(416, 394, 398, 388);
    basket.closeSubpath();
    painter.fillPath(
        basket, sideways(392, 440, {{0, hex(0xc8935a)}, {0.5, hex(0x96683e)}, {1, hex(0x4a3028)}}));
    for (int i = 0; i < 8; ++i) {
        stroke(painter, {395.0 + i * 6, 371}, {400.0 + i * 4.6, 390}, fade(hex(0x3a2418), .55), 1);
    }
    for (const double y : {376.0, 382.0}) {
        QPainterPath weave(QPointF(394, y));
        weave.quadTo(416, y + 7, 438, y);
        stroke(painter, weave, fade(hex(0x3a2418), 0.5), 1);
    }
}

/// The ferry stage's sign board with its chart: the way to the map.
void paintChartBoard(QPainter& painter) {
    softFill(painter, ellipse({292, 420}, 34, 5), fade(Qt::black, 0.45), 5);
    for (const double x : {268.0, 316.0}) {
        stroke(painter, {x, 418}, {x, 352}, hex(0x3a2622), 5);
        stroke(painter, {x - 1.5, 418}, {x - 1.5, 354}, fade(hex(0xe0a070), 0.5), 1.2);
    }
    painter.fillPath(polygon({{256, 350}, {292, 336}, {328, 350}, {328, 356}, {256, 356}}),
                     hex(0x53302c));
    stroke(painter, {256, 350}, {292, 336}, hex(0xd88a60), 1.4);
    painter.fillRect(QRectF(260, 356, 64, 44), hex(0x4a2f26));
    painter.fillRect(QRectF(264, 360, 56, 36),
                     downward(360, 396, {{0, hex(0xf6dfae)}, {1, hex(0xc89a68)}}));
    painter.fillPath(blob({{264, 396}, {266, 376}, {278, 370}, {288, 380}, {300, 384}, {296, 396}}),
                     fade(hex(0x7a6a3c), 0.7));
    painter.fillPath(blob({{304, 362}, {314, 366}, {318, 376}, {308, 372}}),
                     fade(hex(0x7a6a3c), .7));
    for (int i = 0; i < 6; ++i) {
        stroke(painter, {280.0 + i * 5, 377.0 - i * 1.6}, {282.0 + i * 5, 376.4 - i * 1.6},
               hex(0xa8321e), 1.4);
    }
    stroke(painter, {273, 364}, {273, 372}, hex(0x4a3a5a), 1);
    stroke(painter, {269, 368}, {277, 368}, hex(0x4a3a5a), 1);
}

void paintLampFlicker(QPainter& painter, int frame, int frames) {
    const double phase = frame / double(frames);
    const double pulse = 0.75 + 0.25 * std::sin(kTurn * phase) * std::cos(kTurn * 2 * phase + 1);
    glow(painter, {196, 253}, 46, hex(0xffc060), 0.75 * pulse);
    paintFlame(painter, {196, 262}, 17 + 2 * pulse, phase);
}

std::vector<Sprite> harbourSprites() {
    return {
        {"Glints.gif",
         {180, 248, 300, 100},
         12,
         12,
         [](QPainter& p, int f) { paintGlints(p, f, 12); }},
        {"Gulls.gif", {378, 12, 170, 96}, 16, 9, [](QPainter& p, int f) { paintGulls(p, f, 16); }},
        {"Smoke.gif",
         {86, 96, 74, 80},
         12,
         13,
         [](QPainter& p, int f) {
             paintSmoke(p, {96, 166}, f, 12);
         }},
        {"QuayLamp.gif",
         {150, 207, 92, 92},
         8,
         11,
         [](QPainter& p, int f) { paintLampFlicker(p, f, 8); }},
        {"Rowboat.gif",
         {354, 286, 104, 54},
         10,
         14,
         [](QPainter& p, int f) {
             const double bob = std::sin(kTurn * f / 20);
             p.fillPath(ellipse({405, 322}, 44 + 2 * bob, 4), fade(hex(0x1c1834), 0.5));
             p.translate(405, 318 + 2.4 * bob);
             p.rotate(1.8 * bob);
             paintRowboat(p, {0, 0}, 88, hex(0x9a4a40));
         }},
        {"Bell.gif",
         {588, 332, 50, 46},
         12,
         8,
         [](QPainter& p, int f) { paintBell(p, 17 * std::sin(kTurn * f / 6) * (1 - f / 12.0)); }},
        {"Herring.gif", {384, 352, 64, 46}, 1, 10, [](QPainter& p, int) { paintHerring(p); }},
        {"ChartBoard.gif", {250, 332, 86, 96}, 1, 10, [](QPainter& p, int) { paintChartBoard(p); }},
        {"Pilchard.gif",
         {100, 350, 66, 54},
         12,
         10,
         [](QPainter& p, int f) {
             paintCat(p, {126, 398}, 44, std::sin(kTurn * f / 24), hex(0x3a2a34));
         }},
    };
}

}  // namespace

SceneArt harbourArt() {
    QImage picture = newPicture();
    paintSky(picture);
    paintFarShore(picture);
    paintTown(picture);
    paintWater(picture, {kHarbourHorizon, hex(0xd8806c), hex(0x1e2248), 0.95, hex(0xffd8a0), 5});
    QPainter painter(&picture);
    makeSmooth(painter);
    painter.end();
    paintBoats(picture);
    paintQuay(picture);
    paintTown(picture);
    paintQuayThings(picture);
    bloom(picture, 190, 14, 0.55);
    vignette(picture, 0.55);
    paperGrain(picture, 0.05, 3);
    return {"Harbour.bmp", picture, harbourSprites()};
}

}  // namespace quorvel::sample
