// The attic of Wren, the lamplighter's apprentice.
#include <cmath>

#include "art/interior.h"
#include "art/materials.h"
#include "art/noise.h"
#include "art/props.h"
#include "art/scenery.h"
#include "art/sprite.h"
#include "art/turn.h"

namespace quorvel::sample {
namespace {

const QPointF kWindow(350, 168);

void paintAtticRoom(QPainter& painter) {
    drape(painter, planks({600, 300}, hex(0x8a6248), 38, 121),
          quad({170, 330}, {530, 330}, {820, 540}, {-120, 540}));
    // Low walls, and the roof above them on both sides.
    drape(painter, planks({300, 120}, hex(0x7a5a48), 26, 124),
          quad({-330, 240}, {150, 322}, {174, 338}, {-120, 546}));
    drape(painter, planks({300, 120}, hex(0x7a5a48), 26, 125),
          quad({550, 322}, {1030, 240}, {820, 546}, {526, 338}));
    painter.fillRect(QRectF(280, -10, 140, 110), hex(0x4a3428));

    drape(painter, planks({300, 300}, hex(0x6e5042), 30, 122),
          quad({-330, 250}, {240, -210}, {345, 40}, {150, 332}));
    drape(painter, planks({300, 300}, hex(0x6e5042), 30, 123),
          quad({460, -210}, {1030, 250}, {550, 332}, {355, 40}));
    const QPainterPath gable =
        polygon({{150, 334}, {318, 66}, {345, 36}, {355, 36}, {382, 66}, {550, 334}});
    fillTextured(painter, gable, plaster({410, 310}, hex(0x98826e), 126));
    const QColor wood = hex(0x5e4030);
    for (const auto& [foot, head] : {std::pair{QPointF(150, 334), QPointF(350, 20)},
                                     {QPointF(550, 334), QPointF(350, 20)},
                                     {QPointF(-60, 410), QPointF(300, -80)},
                                     {QPointF(760, 410), QPointF(400, -80)}}) {
        stroke(painter, foot + QPointF(0, 6), head + QPointF(0, 6), fade(Qt::black, 0.35), 18);
        stroke(painter, foot, head, wood, 15);
        stroke(painter, foot - QPointF(0, 3), head - QPointF(0, 3), shade(wood, 1.35), 3);
    }
    painter.fillRect(QRectF(262, 92, 176, 12),
                     downward(92, 104, {{0, shade(wood, 1.3)}, {1, shade(wood, 0.6)}}));
    painter.fillRect(QRectF(140, 326, 420, 8), shade(wood, 0.8));
}

void paintRoundWindow(QPainter& painter) {
    const QPainterPath pane = ellipse(kWindow, 58, 58);
    painter.fillPath(ellipse(kWindow, 68, 68), hex(0x4a3226));
    painter.fillPath(
        pane, downward(110, 226, {{0, hex(0x141c46)}, {0.7, hex(0x3c4484)}, {1, hex(0x6a6498)}}));
    painter.save();
    painter.setClipPath(pane);
    paintStars(painter, {292, 110, 116, 90}, 60, 12);
    paintMoon(painter, {374, 142}, 16, 0.5);
    paintHills(painter, {212, 10, 70, hex(0x23264e), hex(0x161836), 6});
    paintLighthouse(painter, {322, 214}, 62, 0);
    painter.restore();
    stroke(painter, pane, hex(0x6a4a36), 6);
    stroke(painter, kWindow - QPointF(58, 0), kWindow + QPointF(58, 0), hex(0x5a3e2e), 4);
    stroke(painter, kWindow - QPointF(0, 58), kWindow + QPointF(0, 58), hex(0x5a3e2e), 4);
    stroke(painter, ellipse(kWindow - QPointF(1, 2), 61, 61), fade(hex(0xc8a88a), 0.35), 1.4);
}

void paintBed(QPainter& painter) {
    softFill(painter, polygon({{420, 396}, {690, 396}, {700, 470}, {420, 450}}),
             fade(Qt::black, .5), 12);
    painter.fillPath(polygon({{446, 372}, {640, 372}, {730, 440}, {480, 440}}), hex(0xd8c8b4));
    const QPainterPath quilt =
        polygon({{446, 372}, {600, 372}, {690, 440}, {690, 466}, {480, 466}, {480, 440}});
    const QColor patches[] = {hex(0x8a4a4a), hex(0x4a6a7a), hex(0xb88a4a), hex(0x5a5a7a),
                              hex(0x7a8a5a)};
    painter.save();
    painter.setClipPath(quilt);
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column < 8; ++column) {
            const double y = 372 + row * 22;
            const double x = 440 + column * 31 + row * 10;
            painter.fillPath(polygon({{x, y}, {x + 30, y}, {x + 40, y + 21}, {x + 10, y + 21}}),
                             patches[(row * 3 + column * 2) % 5]);
        }
    }
    painter.restore();
    painter.fillPath(quilt, downward(372, 466,
                                     {{0, fade(Qt::black, 0)},
                                      {0.65, fade(Qt::black, 0.1)},
                                      {0.75, fade(Qt::black, 0.4)},
                                      {1, fade(Qt::black, .5)}}));
    painter.fillPath(blob({{606, 366}, {650, 362}, {690, 392}, {676, 410}, {630, 400}}),
                     downward(362, 410, {{0, hex(0xfff4e4)}, {1, hex(0xa89aa0)}}));
    for (const double x : {446.0, 478.0}) {
        painter.fillRect(QRectF(x, x < 460 ? 340 : 402, 9, x < 460 ? 62 : 70), hex(0x5e3c2a));
    }
}

void paintDesk(QPainter& painter) {
    softFill(painter, ellipse({160, 440}, 120, 16), fade(Qt::black, 0.55), 12);
    for (const double x : {62.0, 246.0}) {
        painter.fillRect(QRectF(x, 370, 11, 74),
                         sideways(x, x + 11, {{0, hex(0x9a6a48)}, {1, hex(0x3c261c)}}));
    }
    painter.fillRect(QRectF(60, 372, 200, 24),
                     downward(372, 396, {{0, hex(0x7a5238)}, {1, hex(0x4a3022)}}));
    painter.fillPath(ellipse({160, 384}, 4, 4), hex(0xd8a850));
    drape(painter, planks({200, 40}, hex(0xa87850), 50, 128),
          quad({78, 348}, {244, 348}, {272, 374}, {50, 374}));
    painter.fillPath(polygon({{130, 356}, {176, 354}, {186, 368}, {132, 370}}), hex(0xf2e6c8));
    for (int i = 0; i < 4; ++i) {
        stroke(painter, {138.0, 358.6 + i * 2.6}, {168.0 + i * 2, 357.4 + i * 2.6}, hex(0x6a5a6a),
               .8);
    }
    paintBottle(painter, {196, 362}, 20, hex(0x2a2a4a));
    stroke(painter, {197, 344}, {212, 322}, hex(0xf0e8dc), 2.4);
    for (int i = 0; i < 4; ++i) {
        paintBook(painter, {84.0 + i * 9, 330.0 - i % 2 * 4, 8, 34.0 + i % 2 * 4},
                  hex(i % 2 == 0 ? 0x7a2e2e : 0x2e4a6a));
    }
    paintShelf(painter, {438, 262, 72, 6}, 34, 129);
}

void paintBrassLamp(QPainter& painter) {
    softFill(painter, ellipse({236, 364}, 17, 3.4), fade(Qt::black, 0.5), 3);
    const QBrush brass = sideways(
        220, 252,
        {{0, hex(0x5a3a1c)}, {0.28, hex(0xffe4a0)}, {0.5, hex(0xc08a3c)}, {1, hex(0x40261a)}});
    painter.fillPath(polygon({{222, 363}, {250, 363}, {245, 352}, {227, 352}}), brass);
    painter.fillRect(
        QRectF(225, 320, 22, 32),
        sideways(225, 247, {{0, hex(0x3c4468)}, {0.3, hex(0xb8c4e0)}, {1, hex(0x2a2c4c)}}));
    stroke(painter, {236, 350}, {236, 338}, hex(0x2a1c18), 2);
    for (const double x : {224.0, 236.0, 247.0}) {
        stroke(painter, {x, 320}, {x, 353}, hex(0x8a6026), 1.4);
    }
    QPainterPath hood(QPointF(222, 321));
    hood.quadTo(236, 302, 250, 321);
    hood.closeSubpath();
    painter.fillPath(hood, brass);
    QPainterPath handle(QPointF(225, 322));
    handle.cubicTo(216, 290, 256, 290, 247, 322);
    stroke(painter, handle, hex(0xa87a38), 2);
}

void paintMatches(QPainter& painter) {
    painter.save();
    painter.translate(116, 366);
    painter.rotate(-9);
    painter.fillRect(QRectF(-14, -3, 28, 12), fade(Qt::black, 0.35));
    painter.fillRect(QRectF(-15, -6, 30, 12),
                     downward(-6, 6, {{0, hex(0xe0604a)}, {1, hex(0x8a2e2e)}}));
    painter.fillRect(QRectF(-9, -4, 18, 8), hex(0xf4dca0));
    paintFlame(painter, {0, 3.5}, 7, 0.3);
    for (int i = 0; i < 3; ++i) {
        stroke(painter, {15.0 + i, -3.0 + i * 3}, {26.0 + i * 2, -6.0 + i * 4}, hex(0xe8cc98), 1.5);
        painter.fillPath(ellipse({26.0 + i * 2, -6.0 + i * 4}, 1.8, 1.6), hex(0xb83428));
    }
    painter.restore();
}

void paintTelescope(QPainter& painter, double turn) {
    stroke(painter, {470, 322}, {446, 384}, hex(0x4a2e22), 4);
    stroke(painter, {470, 322}, {494, 384}, hex(0x4a2e22), 4);
    stroke(painter, {470, 322}, {472, 380}, hex(0x6a4632), 4);
    painter.save();
    painter.translate(470, 318);
    painter.rotate(-34 + turn);
    const QBrush brass =
        downward(-8, 8, {{0, hex(0xffe6a8)}, {0.4, hex(0xc08a40)}, {1, hex(0x4a2c1a)}});
    painter.fillRect(QRectF(-34, -5, 34, 10), brass);
    painter.fillRect(QRectF(-2, -7, 30, 14), brass);
    painter.fillRect(QRectF(26, -8.5, 26, 17), brass);
    for (const double x : {-34.0, -3.0, 25.0, 49.0}) {
        painter.fillRect(QRectF(x, -9, 4, 18), hex(0x5e3c22));
    }
    painter.restore();
}

void paintDust(QPainter& painter, int frame) {
    Random random(131);
    for (int i = 0; i < 40; ++i) {
        const double down = random.unit();
        const double across = random.between(-1, 1);
        const double phase = kTurn * (frame / 16.0 + random.unit());
        const QPointF at(350 - 92 * down + across * (40 + 40 * down) + 5 * std::sin(phase),
                         214 + 190 * down + 4 * std::cos(phase));
        const double light = 0.5 + 0.5 * std::sin(phase + i);
        painter.fillPath(ellipse(at, 1.3, 1.3), fade(hex(0xe0e8ff), 0.75 * light));
    }
}

}  // namespace

SceneArt atticArt() {
    QImage picture = newPicture();
    QPainter painter(&picture);
    makeSmooth(painter);
    paintAtticRoom(painter);
    paintRoundWindow(painter);
    drape(painter, plaster({200, 120}, hex(0x4a5a7a), 130),
          quad({236, 372}, {420, 372}, {446, 448}, {196, 448}));
    paintBed(painter);
    paintDesk(painter);
    paintCandle(painter, {70, 362}, 26);
    painter.end();
    LightMap light(hex(0x646898));
    const QPainterPath beam = polygon({{306, 150}, {396, 170}, {420, 440}, {150, 450}});
    light.addShape(beam, hex(0xa0b4f0), 0.75, 26);
    light.addLamp({300, 420}, 170, 60, hex(0xb0c0ff), 0.7);
    light.addLamp({70, 326}, 300, 230, hex(0xff9c50), 1.3);
    light.addLamp(kWindow, 130, 130, hex(0xa0b4f0), 0.7);
    light.applyTo(picture);
    QPainter over(&picture);
    makeSmooth(over);
    softFill(over, beam, fade(hex(0xa8bcff), 0.10), 18);
    paintFlame(over, {70, 334}, 14, 0.2);
    glow(over, {70, 328}, 110, hex(0xffa048), 0.55);
    over.end();
    bloom(picture, 195, 12, 0.55);
    vignette(picture, 0.6);
    paperGrain(picture, 0.05, 10);
    return {
        "Attic.bmp",
        picture,
        {
            {"Dust.gif", {180, 206, 260, 208}, 16, 12, [](QPainter& p, int f) { paintDust(p, f); }},
            {"Lamp.gif", {212, 292, 48, 78}, 1, 10, [](QPainter& p, int) { paintBrassLamp(p); }},
            {"Matches.gif", {96, 350, 54, 30}, 1, 10, [](QPainter& p, int) { paintMatches(p); }},
            {"Telescope.gif",
             {430, 270, 92, 118},
             12,
             9,
             [](QPainter& p, int f) { paintTelescope(p, 16 * std::sin(kTurn * f / 12)); }},
        }};
}

}  // namespace quorvel::sample
