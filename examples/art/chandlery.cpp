// The ship chandler's shop, minded by a puffin.
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

const QRectF kChandleryBack(150, 70, 400, 230);

void paintShopWindow(QPainter& painter) {
    const QPolygonF opening = quad({30, 96}, {122, 116}, {122, 262}, {30, 300});
    QPainterPath path;
    path.addPolygon(opening);
    painter.fillPath(
        path,
        downward(
            96, 300,
            {{0, hex(0x2c2c66)}, {0.45, hex(0x9a5a86)}, {0.7, hex(0xf0946a)}, {1, hex(0x6a4a70)}}));
    painter.save();
    painter.setClipPath(path);
    glow(painter, {84, 214}, 80, hex(0xffc880), 0.8);
    for (int i = 0; i < 4; ++i) {
        stroke(painter, {46.0 + i * 20, 262}, {44.0 + i * 20, 190.0 - i % 2 * 20}, hex(0x3a2440),
               2);
        stroke(painter, {40.0 + i * 20, 232}, {58.0 + i * 20, 212}, hex(0x3a2440), 1);
    }
    painter.restore();
    stroke(painter, path, hex(0x3a251e), 9);
    stroke(painter, {76, 106}, {76, 281}, hex(0x3a251e), 5);
    stroke(painter, {30, 164}, {122, 164}, hex(0x3a251e), 4);
    stroke(painter, {30, 232}, {122, 214}, hex(0x3a251e), 4);
}

void paintWares(QPainter& painter) {
    for (int i = 0; i < 3; ++i) {
        paintShelf(painter, {176, 138.0 + i * 52, 216, 7}, 42, 80U + static_cast<unsigned>(i));
    }
    for (const double x : {176.0, 284.0, 388.0}) {
        painter.fillRect(QRectF(x - 3, 84, 6, 204),
                         sideways(x - 3, x + 3, {{0, hex(0x9a6c48)}, {1, hex(0x3c261e)}}));
    }
    // A ship's wheel and a lifebelt on the wall.
    const QPointF wheel(472, 148);
    for (int i = 0; i < 8; ++i) {
        const double a = kTurn * i / 8;
        stroke(painter, wheel, wheel + 46 * QPointF(std::cos(a), std::sin(a)), hex(0x5e3a26), 4.5);
        stroke(painter, wheel, wheel + 44 * QPointF(std::cos(a), std::sin(a)), hex(0xb07a4c), 2);
    }
    stroke(painter, ellipse(wheel, 32, 32), hex(0x4c2e20), 9);
    stroke(painter, ellipse(wheel, 32, 32), hex(0xa06c42), 5.5);
    painter.fillPath(ellipse(wheel, 8, 8), hex(0xd8a850));
    const QPointF belt(472, 248);
    stroke(painter, ellipse(belt, 24, 24), hex(0xe8dcc8), 12);
    for (int i = 0; i < 4; ++i) {
        QPainterPath band;
        band.arcMoveTo(QRectF(belt.x() - 24, belt.y() - 24, 48, 48), i * 90 + 30);
        band.arcTo(QRectF(belt.x() - 24, belt.y() - 24, 48, 48), i * 90 + 30, 30);
        painter.strokePath(band, QPen(hex(0xb8443a), 12, Qt::SolidLine, Qt::FlatCap));
    }
    for (int i = 0; i < 5; ++i) {
        const double x = 572 + i * 24;
        paintRope(painter, {x, 40.0 - i * 14}, {x + 2, 190.0 + i * 22}, 0, 3);
        paintRopeCoil(painter, {x + 2, 214.0 + i * 26}, 12.0 + i * 1.6);
    }
}

void paintPuffinScene(QPainter& painter, int frame) {
    const double tilts[] = {0, 0, 0, 3, 8, 12, 12, 12, 8, 3, 0, 0, -4, -8, -8, -4};
    softFill(painter, ellipse({356, 311}, 26, 4), fade(Qt::black, 0.5), 4);
    paintPuffin(painter, {356, 310}, 84, tilts[frame], frame == 7 || frame == 13);
}

void paintOilCan(QPainter& painter) {
    softFill(painter, ellipse({462, 314}, 26, 4), fade(Qt::black, 0.55), 4);
    const QBrush brass = sideways(
        440, 484,
        {{0, hex(0x6a4420)}, {0.25, hex(0xffe0a0)}, {0.45, hex(0xc8904a)}, {1, hex(0x48281a)}});
    QPainterPath spout(QPointF(478, 300));
    spout.quadTo(490, 288, 504, 264);
    stroke(painter, spout, hex(0x7a4e26), 5);
    stroke(painter, spout.translated(-0.8, -0.6), hex(0xf0c080), 2);
    QPainterPath body(QPointF(442, 312));
    body.lineTo(440, 288);
    body.quadTo(442, 274, 456, 268);
    body.lineTo(456, 262);
    body.lineTo(468, 262);
    body.lineTo(468, 268);
    body.quadTo(482, 274, 484, 288);
    body.lineTo(482, 312);
    body.closeSubpath();
    painter.fillPath(body, brass);
    stroke(painter, {440, 290}, {484, 290}, fade(hex(0x4a2814), 0.7), 1.4);
    QPainterPath handle(QPointF(446, 274));
    handle.cubicTo(424, 270, 424, 300, 441, 302);
    stroke(painter, handle, hex(0x7a4e26), 4);
    stroke(painter, handle, hex(0xe0ac6c), 1.6);
    painter.fillPath(ellipse({462, 296}, 7, 9), hex(0x2c3a56));
    paintFlame(painter, {462, 303}, 13, 0.1);
}

void paintHangingLamp(QPainter& painter, int frame) {
    const double swing = 5 * std::sin(kTurn * frame / 24);
    painter.save();
    painter.translate(300, -4);
    painter.rotate(swing);
    stroke(painter, {0, 0}, {0, 42}, hex(0x1f1720), 2);
    paintLantern(painter, {0, 40}, 62, 1);
    paintFlame(painter, {0, 86}, 17, frame / 12.0);
    painter.restore();
}

void paintClock(QPainter& painter, int frame) {
    const double a = 14 * std::sin(kTurn * frame / 16);
    painter.save();
    painter.translate(424, 118);
    QPainterPath box;
    box.addRoundedRect(QRectF(-14, -24, 28, 30), 5, 5);
    painter.fillPath(box, hex(0x6a3f28));
    painter.fillPath(ellipse({0, -9}, 10, 10), hex(0xf6e6c0));
    stroke(painter, ellipse({0, -9}, 10, 10), hex(0xb8863c), 1.6);
    stroke(painter, {0, -9}, {0, -16}, hex(0x2a1a18), 1.4);
    stroke(painter, {0, -9}, {5, -6}, hex(0x2a1a18), 1.4);
    painter.rotate(a);
    stroke(painter, {0, 4}, {0, 34}, hex(0x8a6030), 1.6);
    painter.fillPath(ellipse({0, 36}, 5, 5), hex(0xe8bc58));
    painter.restore();
}

}  // namespace

SceneArt chandleryArt() {
    QImage picture = newPicture();
    QPainter painter(&picture);
    makeSmooth(painter);
    paintRoom(painter, {kChandleryBack, hex(0x8c7466), hex(0x96694a), hex(0x6a4a3a), false, 81});
    paintBeams(painter, kChandleryBack, 5, hex(0x5a3c2c));
    paintShopWindow(painter);
    paintWares(painter);
    paintCounter(painter, {196, 318, 380, 104}, 22, hex(0x8a5a3a), 83);
    paintBarrel(painter, {96, 424}, 92);
    paintBarrel(painter, {160, 444}, 82);
    paintCrate(painter, {598, 372, 84, 64}, 84);
    // The till, scales and the ledger.
    paintBook(painter, {236, 306, 54, 8}, hex(0x6a2e2e));
    paintBottle(painter, {316, 313}, 30, hex(0x3a5a86));
    paintCandle(painter, {540, 313}, 24);
    painter.end();
    LightMap light(hex(0x5c5278));
    light.addLamp({640, 330}, 200, 180, hex(0xc07850), 0.5);
    light.addLamp({300, 84}, 420, 330, hex(0xffae60), 1.5);
    light.addLamp({300, 110}, 170, 130, hex(0xffd090), 0.6);
    light.addLamp({540, 282}, 150, 110, hex(0xff9c50), 0.8);
    light.addLamp({70, 200}, 190, 190, hex(0xe08a90), 0.9);
    light.addShape(polygon({{40, 330}, {130, 300}, {300, 475}, {90, 475}}), hex(0xd87a80), 0.35,
                   24);
    light.addShadow(polygon({{180, 424}, {600, 424}, {680, 475}, {120, 475}}), 0.4, 16);
    light.applyTo(picture);
    QPainter over(&picture);
    makeSmooth(over);
    glow(over, {300, 84}, 190, hex(0xffa850), 0.45);
    glow(over, {540, 284}, 70, hex(0xffa850), 0.6);
    paintFlame(over, {540, 289}, 13, 0.3);
    over.end();
    bloom(picture, 200, 12, 0.5);
    vignette(picture, 0.6);
    paperGrain(picture, 0.05, 8);
    return {
        "Chandlery.jpg",
        picture,
        {
            {"Puffin.gif",
             {316, 218, 84, 98},
             16,
             14,
             [](QPainter& p, int f) { paintPuffinScene(p, f); }},
            {"OilCan.gif", {422, 254, 90, 66}, 1, 10, [](QPainter& p, int) { paintOilCan(p); }},
            {"ShopLamp.gif",
             {236, 0, 128, 150},
             12,
             12,
             [](QPainter& p, int f) { paintHangingLamp(p, f * 2); }},
            {"Clock.gif", {404, 90, 40, 72}, 16, 10, [](QPainter& p, int f) { paintClock(p, f); }},
        }};
}

}  // namespace quorvel::sample
