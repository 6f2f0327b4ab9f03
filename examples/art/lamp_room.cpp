// The lamp room at the top of the tower.
#include <cmath>

#include "art/materials.h"
#include "art/noise.h"
#include "art/props.h"
#include "art/scenery.h"
#include "art/sprite.h"
#include "art/turn.h"

namespace quorvel::sample {
namespace {

const QPointF kLens(350, 214);

void paintView(QImage& picture) {
    QPainter painter(&picture);
    makeSmooth(painter);
    painter.fillRect(
        picture.rect(),
        downward(
            0, 290,
            {{0, hex(0x0a1234)}, {0.5, hex(0x222e6c)}, {0.85, hex(0x565c9c)}, {1, hex(0x9088b4)}}));
    paintStars(painter, {0, 0, 700, 250}, 280, 201);
    paintMoon(painter, {586, 92}, 22, 0.5);
    painter.end();
    paintClouds(picture, {90, 286, hex(0xb0b4e0), hex(0x2a3270), 0.58, 202});
    QPainter hills(&picture);
    makeSmooth(hills);
    paintHills(hills, {282, 14, 140, hex(0x3a407a), hex(0x565a92), 203});
    hills.end();
    paintWater(picture, {290, hex(0x5a5e96), hex(0x141a44), 0.9, hex(0xd0d8ff), 204});
    QPainter town(&picture);
    makeSmooth(town);
    Random random(205);
    for (int i = 0; i < 46; ++i) {  // the town's windows, far below
        const QPointF at(random.between(18, 150), random.between(266, 296));
        town.fillPath(ellipse(at, 1.4, 1.6), hex(0xffc870));
        glow(town, at, 7, hex(0xffb050), 0.4);
    }
}

void paintCage(QPainter& painter) {
    const QColor iron = hex(0x2a2638);
    const double columns[] = {-20, 96, 214, 486, 604, 720};
    for (const double x : columns) {
        const double w = std::abs(x - 350) / 60 + 5;
        painter.fillRect(
            QRectF(x - w / 2, -10, w, 390),
            sideways(x - w / 2, x + w / 2, {{0, hex(0x7a6a78)}, {0.3, iron}, {1, hex(0x14101e)}}));
    }
    for (const double y : {62.0, 196.0}) {
        QPainterPath bar(QPointF(-10, y - 26));
        bar.quadTo(350, y + 30, 710, y - 26);
        stroke(painter, bar, iron, 5);
        stroke(painter, bar.translated(0, -1.6), fade(hex(0xc0b0c0), 0.35), 1.2);
    }
    // Shine on the panes.
    for (const double x : {30.0, 130.0, 520.0, 636.0}) {
        painter.fillPath(polygon({{x, 80}, {x + 26, 82}, {x + 4, 190}, {x - 14, 188}}),
                         fade(hex(0xe0e8ff), 0.07));
    }
    const QPainterPath roof =
        blob({{-80, -60}, {780, -60}, {720, 34}, {520, 58}, {350, 64}, {180, 58}, {-20, 34}});
    painter.fillPath(
        roof, downward(-40, 64, {{0, hex(0x2a1a20)}, {0.7, hex(0x6a3a3c)}, {1, hex(0x3a2028)}}));
    for (int i = -4; i <= 4; ++i) {
        stroke(painter, {350.0 + i * 20, -10}, {350.0 + i * 84, 58}, fade(hex(0x1a1016), 0.7), 4);
        stroke(painter, {349.0 + i * 20, -10}, {349.0 + i * 84, 57}, fade(hex(0xc88a70), 0.3), 1.2);
    }
}

void paintParapet(QPainter& painter) {
    QPainterPath wall(QPointF(-10, 324));
    wall.quadTo(350, 384, 710, 324);
    wall.lineTo(710, 480);
    wall.lineTo(-10, 480);
    wall.closeSubpath();
    fillTextured(painter, wall, planks({724, 160}, hex(0x7a5a48), 26, 206));
    painter.fillPath(wall,
                     downward(330, 470, {{0, fade(Qt::black, 0.15)}, {1, fade(Qt::black, 0.5)}}));
    QPainterPath sill(QPointF(-10, 324));
    sill.quadTo(350, 384, 710, 324);
    stroke(painter, sill, hex(0x3a2620), 15);
    stroke(painter, sill.translated(0, -4), hex(0xb88a60), 5);
    QPainterPath floor(QPointF(-10, 440));
    floor.quadTo(350, 400, 710, 440);
    floor.lineTo(710, 480);
    floor.lineTo(-10, 480);
    floor.closeSubpath();
    fillTextured(painter, floor, planks({724, 70}, hex(0x9a7050), 44, 207));
    painter.fillPath(floor,
                     downward(410, 475, {{0, fade(Qt::black, 0.4)}, {1, fade(Qt::black, .15)}}));
}

/// The great lens: rings of prisms around the place of the lamp.
void paintLens(QPainter& painter) {
    softFill(painter, ellipse({350, 438}, 130, 15), fade(Qt::black, 0.6), 10);
    const QBrush brass = sideways(
        250, 450,
        {{0, hex(0x5a3818)}, {0.22, hex(0xffe0a0)}, {0.45, hex(0xc08a40)}, {1, hex(0x3a2014)}});
    painter.fillPath(polygon({{286, 438}, {414, 438}, {398, 402}, {302, 402}}), brass);
    painter.fillRect(QRectF(318, 346, 64, 60), brass);
    painter.fillPath(polygon({{268, 350}, {432, 350}, {420, 332}, {280, 332}}), brass);
    for (const double y : {360.0, 392.0}) {
        painter.fillRect(QRectF(312, y, 76, 5), hex(0x4a2c16));
    }
    const QPainterPath body = blob({{258, 214},
                                    {272, 134},
                                    {318, 88},
                                    {350, 80},
                                    {382, 88},
                                    {428, 134},
                                    {442, 214},
                                    {430, 292},
                                    {392, 332},
                                    {308, 332},
                                    {270, 292}});
    QRadialGradient glass(kLens, 130);
    glass.setColorAt(0, fade(hex(0xf0fff4), 0.55));
    glass.setColorAt(0.5, fade(hex(0x7ab0b8), 0.5));
    glass.setColorAt(1, fade(hex(0x2a4a6a), 0.75));
    painter.fillPath(body, glass);
    painter.save();
    painter.setClipPath(body);
    for (int i = 10; i >= 1; --i) {
        const double r = i * 13.0;
        QRadialGradient prism(kLens + QPointF(-r * 0.3, -r * 0.4), r * 1.6);
        prism.setColorAt(0, fade(hex(0xffffff), 0.34));
        prism.setColorAt(0.5, fade(hex(0x8ad0d0), 0.14));
        prism.setColorAt(1, fade(hex(0x1a3050), 0.30));
        painter.fillPath(ellipse(kLens, r * 0.86, r), prism);
        stroke(painter, ellipse(kLens, r * 0.86, r), fade(hex(0xd8fff4), 0.5), 1.5);
        stroke(painter, ellipse(kLens + QPointF(1, 1.4), r * 0.86, r), fade(hex(0x0c2038), 0.5),
               1.1);
    }
    painter.restore();
    stroke(painter, body, hex(0x6a4622), 7);
    stroke(painter, body.translated(-0.8, -1), hex(0xe0b468), 2.4);
    for (const double side : {-1.0, 1.0}) {
        QPainterPath rib(QPointF(350 + side * 14, 80));
        rib.cubicTo(350 + side * 66, 130, 350 + side * 66, 290, 350 + side * 16, 332);
        stroke(painter, rib, hex(0x6a4622), 4);
        stroke(painter, rib.translated(-0.6, 0), hex(0xd8a858), 1.4);
    }
    painter.fillPath(ellipse(kLens, 19, 23), fade(hex(0x10203a), 0.55));
    painter.fillRect(QRectF(342, 226, 16, 12), hex(0xb88a44));
}

void paintLever(QPainter& painter, int frame) {
    const double angle = -36 + 24 * frame;
    softFill(painter, ellipse({544, 428}, 24, 5), fade(Qt::black, 0.5), 4);
    painter.fillPath(
        polygon({{524, 426}, {566, 426}, {558, 386}, {532, 386}}),
        sideways(524, 566, {{0, hex(0x5a5468)}, {0.3, hex(0x9a94a8)}, {1, hex(0x242032)}}));
    painter.save();
    painter.translate(545, 390);
    painter.rotate(angle);
    stroke(painter, {0, 0}, {0, -58}, hex(0x1c1824), 6);
    stroke(painter, {-1.4, 0}, {-1.4, -56}, hex(0xb8b0c0), 1.6);
    painter.fillPath(ellipse({0, -60}, 8, 8), hex(0xa83430));
    painter.fillPath(ellipse({-2, -63}, 2.8, 2.4), hex(0xff9a80));
    painter.restore();
    painter.fillPath(ellipse({545, 390}, 6, 6), hex(0xd8a850));
}

void paintLensGlint(QPainter& painter, int frame) {
    for (int i = 0; i < 6; ++i) {
        const double phase = kTurn * (frame / 12.0 + i / 6.0);
        const double a = i * 1.04 + 0.4;
        const QPointF at = kLens + QPointF(62 * std::cos(a), 84 * std::sin(a));
        const double light = std::pow(0.5 + 0.5 * std::sin(phase), 3);
        if (light < 0.05) {
            continue;
        }
        for (const double turn : {0.0, 1.5708}) {
            const QPointF ray(12 * light * std::cos(turn), 12 * light * std::sin(turn));
            stroke(painter, at - ray, at + ray, fade(hex(0xf4fffa), 0.9 * light), 1.2);
        }
        glow(painter, at, 15, hex(0xc8fff0), 0.7 * light);
    }
}

void paintBeacon(QPainter& painter, int frame) {
    const double pulse = 0.75 + 0.25 * std::sin(kTurn * frame / 12);
    glow(painter, kLens, 84, hex(0xffd080), 0.95 * pulse);
    painter.fillPath(ellipse(kLens, 12, 15), fade(hex(0xfff8dc), pulse));
    for (int i = 0; i < 12; ++i) {
        const double a = kTurn * (i / 12.0 + frame / 144.0);
        const QPointF ray(std::cos(a), std::sin(a));
        stroke(painter, kLens + 22 * ray, kLens + (42 + (i % 2) * 18) * pulse * ray,
               fade(hex(0xffe8a8), 0.6), 2);
    }
}

void paintLampMoth(QPainter& painter, int frame) {
    const double phase = kTurn * frame / 16;
    const QPointF at(158 + 30 * std::sin(phase), 246 + 16 * std::sin(2 * phase));
    const double open = 2 + 4 * std::abs(std::sin(frame * 1.25));
    for (const double side : {-1.0, 1.0}) {
        painter.fillPath(ellipse(at + QPointF(side * open, -1), open, 4), hex(0xe8e0f4));
        painter.fillPath(ellipse(at + QPointF(side * open, 2), open * 0.7, 3), hex(0xb0a4cc));
    }
    painter.fillPath(ellipse(at, 1.3, 4.4), hex(0x5a4a6a));
}

}  // namespace

SceneArt lampRoomArt() {
    QImage picture = newPicture();
    paintView(picture);
    QPainter painter(&picture);
    makeSmooth(painter);
    paintParapet(painter);
    paintCage(painter);
    paintLens(painter);
    paintBarrel(painter, {96, 446}, 74);
    paintRopeCoil(painter, {168, 446}, 26);
    paintCrate(painter, {604, 394, 62, 48}, 208);
    painter.end();
    QPainter over(&picture);
    makeSmooth(over);
    glow(over, kLens, 240, hex(0xa0c8ff), 0.3);
    over.end();
    bloom(picture, 190, 13, 0.5);
    vignette(picture, 0.6);
    paperGrain(picture, 0.05, 20);
    return {
        "LampRoom.bmp",
        picture,
        {
            {"Lever.gif", {480, 320, 104, 116}, 4, 8, [](QPainter& p, int f) { paintLever(p, f); }},
            {"LensShine.gif",
             {270, 112, 160, 204},
             12,
             11,
             [](QPainter& p, int f) { paintLensGlint(p, f); }},
            {"Beacon.gif",
             {262, 126, 176, 176},
             12,
             9,
             [](QPainter& p, int f) { paintBeacon(p, f); }},
            {"LampMoth.gif",
             {110, 218, 96, 58},
             16,
             8,
             [](QPainter& p, int f) { paintLampMoth(p, f); }},
        }};
}

}  // namespace quorvel::sample
