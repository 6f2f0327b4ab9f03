// The Moth and Candle, where the old keeper sits by the fire.
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

const QRectF kInnBack(130, 64, 440, 240);

void paintHearth(QPainter& painter) {
    QPainterPath breast;
    breast.addRect(QRectF(196, 64, 208, 246));
    fillTextured(painter, breast, stonework({210, 250}, hex(0x9a8078), 22, 101));
    painter.fillPath(breast, sideways(196, 404,
                                      {{0, fade(Qt::black, 0.35)},
                                       {0.12, fade(Qt::black, 0)},
                                       {0.88, fade(Qt::black, 0)},
                                       {1, fade(Qt::black, .4)}}));
    QPainterPath mouth(QPointF(228, 312));
    mouth.lineTo(228, 226);
    mouth.quadTo(300, 178, 372, 226);
    mouth.lineTo(372, 312);
    mouth.closeSubpath();
    stroke(painter, mouth, hex(0x5e4a48), 12);
    painter.fillPath(
        mouth, downward(190, 312, {{0, hex(0x120a0c)}, {0.6, hex(0x3a1a12)}, {1, hex(0x6a2c14)}}));
    painter.save();
    painter.setClipPath(mouth);
    fillTextured(painter, mouth, stonework({150, 140}, hex(0x4a2c22), 14, 102));
    painter.fillPath(mouth,
                     downward(190, 312, {{0, fade(Qt::black, 0.8)}, {1, fade(Qt::black, .1)}}));
    glow(painter, {300, 296}, 100, hex(0xff7a28), 0.9);
    painter.restore();
    painter.fillRect(QRectF(180, 158, 240, 15),
                     downward(158, 173, {{0, hex(0xa8744a)}, {1, hex(0x4a2e22)}}));
    painter.fillRect(QRectF(206, 306, 188, 14), hex(0x4c4248));
    for (const auto& [x, angle] : {std::pair{276.0, 8.0}, {318.0, -10.0}, {298.0, 2.0}}) {
        painter.save();
        painter.translate(x, 303);
        painter.rotate(angle);
        QPainterPath log;
        log.addRoundedRect(QRectF(-34, -6, 68, 12), 6, 6);
        painter.fillPath(log, downward(-6, 6, {{0, hex(0x6a3c22)}, {1, hex(0x24120e)}}));
        painter.fillPath(ellipse({32, 0}, 4, 6), hex(0xc07a40));
        painter.restore();
    }
    // On the mantel: a ship in a bottle, a jug and candles.
    paintCandle(painter, {206, 158}, 24);
    paintCandle(painter, {398, 158}, 19);
    painter.fillPath(ellipse({300, 144}, 34, 13), fade(hex(0xbfe0e0), 0.35));
    painter.fillRect(QRectF(330, 139, 16, 10), fade(hex(0xbfe0e0), 0.4));
    painter.fillRect(QRectF(344, 138, 7, 12), hex(0x9a6c40));
    painter.fillPath(polygon({{280, 148}, {318, 148}, {312, 154}, {286, 154}}), hex(0x6a3a26));
    for (const double x : {290.0, 302.0, 311.0}) {
        painter.fillPath(polygon({{x, 135}, {x + 8, 146}, {x - 2, 146}}), hex(0xf4e6c8));
    }
    stroke(painter, ellipse({300, 144}, 34, 13), fade(hex(0xffffff), 0.5), 1);
}

/// The keeper in his chair, half turned to the fire.
void paintKeeper(QPainter& painter) {
    softFill(painter, ellipse({470, 414}, 92, 15), fade(Qt::black, 0.55), 9);
    const QColor leather = hex(0x8a3f36);
    painter.fillPath(
        blob({{440, 250},
              {470, 226},
              {520, 232},
              {548, 264},
              {552, 330},
              {544, 392},
              {452, 392},
              {436, 320}}),
        sideways(436, 552, {{0, shade(leather, 1.3)}, {0.5, leather}, {1, shade(leather, 0.45)}}));
    for (const auto& [x, y] :
         {std::pair{478.0, 262.0}, {508.0, 262.0}, {492.0, 290.0}, {522.0, 292.0}}) {
        painter.fillPath(ellipse({x, y}, 2.6, 2.6), shade(leather, 0.5));
    }
    // Coat, legs and boots.
    const QColor coat = hex(0x31486a);
    painter.fillPath(
        blob({{448, 298}, {464, 278}, {498, 280}, {518, 306}, {522, 376}, {446, 380}, {438, 340}}),
        sideways(438, 522, {{0, shade(coat, 1.7)}, {0.4, coat}, {1, shade(coat, 0.5)}}));
    painter.fillPath(blob({{430, 362}, {486, 352}, {508, 378}, {456, 386}, {432, 396}, {412, 384}}),
                     sideways(412, 508, {{0, hex(0x7a6658)}, {1, hex(0x2e2628)}}));
    painter.fillPath(blob({{412, 378}, {434, 374}, {440, 408}, {402, 412}, {390, 404}}),
                     hex(0x3a2620));
    stroke(painter, {394, 411}, {438, 411}, hex(0x1a1012), 3);
    for (const double y : {312.0, 328.0, 344.0}) {
        painter.fillPath(ellipse({456, y}, 2.4, 2.4), hex(0xf0cc78));
    }
    // Head, beard and the knitted cap.
    painter.fillPath(
        ellipse({474, 258}, 19, 21),
        sideways(455, 493, {{0, hex(0xffcfa0)}, {0.6, hex(0xd08a6a)}, {1, hex(0x7a4a44)}}));
    painter.fillPath(
        blob({{456, 262},
              {466, 268},
              {482, 266},
              {493, 256},
              {496, 282},
              {482, 304},
              {464, 306},
              {454, 286}}),
        sideways(454, 496, {{0, hex(0xfff6ea)}, {0.5, hex(0xd8ccc8)}, {1, hex(0x7c7280)}}));
    painter.fillPath(ellipse({456, 262}, 4.6, 4), hex(0xf0a884));
    stroke(painter, {461, 254}, {467, 255}, hex(0x3a2420), 1.6);
    stroke(painter, {459, 248}, {469, 248}, hex(0xf2eae2), 3);
    painter.fillPath(
        blob({{453, 244}, {458, 224}, {476, 216}, {494, 226}, {497, 246}, {476, 240}}),
        sideways(453, 497, {{0, hex(0xd8604a)}, {0.5, hex(0xa03c3c)}, {1, hex(0x4a1e2a)}}));
    stroke(painter, {453, 245}, {497, 247}, hex(0x7a2a30), 6);
    painter.fillPath(ellipse({477, 215}, 6, 5.4), hex(0xf2e4d4));
    // Arm on the rest, pipe in hand.
    painter.fillPath(
        blob({{482, 300}, {504, 310}, {498, 346}, {458, 356}, {440, 346}, {446, 334}, {474, 330}}),
        sideways(440, 504,
                 {{0, shade(coat, 1.9)}, {0.5, shade(coat, 1.1)}, {1, shade(coat, 0.55)}}));
    painter.fillPath(ellipse({440, 342}, 8, 7), hex(0xf2b48c));
    stroke(painter, {436, 338}, {450, 312}, hex(0x4a2c1e), 2.6);
    painter.fillPath(blob({{426, 330}, {438, 330}, {438, 344}, {428, 344}}), hex(0x6a3e26));
    painter.fillPath(blob({{500, 330}, {548, 330}, {560, 346}, {552, 402}, {512, 404}, {504, 350}}),
                     sideways(500, 560, {{0, shade(leather, 1.1)}, {1, shade(leather, 0.4)}}));
    for (const double x : {458.0, 540.0}) {
        painter.fillRect(QRectF(x, 390, 8, 24), hex(0x2a1814));
    }
}

void paintTaproom(QPainter& painter) {
    // The window on the right, with the night behind it.
    QPainterPath opening;
    opening.addPolygon(quad({588, 120}, {664, 92}, {664, 268}, {588, 244}));
    painter.fillPath(opening, downward(92, 268, {{0, hex(0x141a40)}, {1, hex(0x4a4478)}}));
    painter.save();
    painter.setClipPath(opening);
    paintStars(painter, {588, 90, 76, 120}, 40, 7);
    painter.restore();
    stroke(painter, opening, hex(0x3a251e), 8);
    stroke(painter, {626, 106}, {626, 256}, hex(0x3a251e), 4);
    stroke(painter, {588, 182}, {664, 182}, hex(0x3a251e), 4);
    // Casks with taps on the left.
    for (const auto& [x, y] : {std::pair{52.0, 210.0}, {52.0, 288.0}, {112.0, 252.0}}) {
        painter.fillPath(ellipse({x, y}, 37, 37), hex(0x4a2e20));
        fillTextured(painter, ellipse({x, y}, 32, 32), planks({66, 66}, hex(0x9a6a44), 12, 103));
        stroke(painter, ellipse({x, y}, 34, 34), hex(0x2c262c), 4);
        painter.fillRect(QRectF(x - 3, y + 14, 6, 12), hex(0xd8a850));
    }
    paintShelf(painter, {424, 130, 132, 6}, 36, 104);
    // A round table with the evening's tankards.
    softFill(painter, ellipse({176, 440}, 110, 16), fade(Qt::black, 0.6), 10);
    painter.fillRect(QRectF(168, 392, 18, 50),
                     sideways(168, 186, {{0, hex(0x8a5c3c)}, {1, hex(0x2e1c16)}}));
    painter.fillPath(ellipse({176, 390}, 96, 22), hex(0x3c241a));
    painter.fillPath(
        ellipse({176, 384}, 96, 22),
        sideways(80, 272, {{0, hex(0x8a5a3a)}, {0.7, hex(0xc08a58)}, {1, hex(0x8a5a3a)}}));
    mottle(painter, ellipse({176, 384}, 96, 22), 60, 5, 0.3, 9);
    for (const auto& [x, y] : {std::pair{132.0, 388.0}, {214.0, 392.0}}) {
        painter.fillRect(QRectF(x - 11, y - 32, 22, 32),
                         sideways(x - 11, x + 11,
                                  {{0, hex(0x6a6a76)}, {0.4, hex(0xd8d0c8)}, {1, hex(0x4a4450)}}));
        painter.fillPath(ellipse({x, y - 32}, 11, 4), hex(0xfff0d0));
        stroke(painter, ellipse({x + 15, y - 17}, 6, 9), hex(0x8a8490), 3);
    }
    paintCandle(painter, {174, 384}, 30);
}

void paintHearthFire(QPainter& painter, int frame) {
    const double phase = frame / 10.0;
    glow(painter, {300, 280}, 64, hex(0xff8a30), 0.5 + 0.12 * std::sin(kTurn * phase));
    const double heights[] = {34, 52, 62, 48, 36};
    for (int i = 0; i < 5; ++i) {
        const double sway = std::sin(kTurn * (phase + i * 0.23));
        paintFlame(painter, {268.0 + i * 16, 302}, heights[i] * (1 + 0.13 * sway),
                   phase + i * 0.37);
    }
    for (int i = 0; i < 7; ++i) {
        const double age = std::fmod(phase + i / 7.0, 1.0);
        painter.fillPath(
            ellipse({262 + i * 13 + 7 * std::sin(age * 8 + i), 290 - 84 * age}, 1.2, 1.2),
            fade(hex(0xffc860), 1 - age));
    }
}

void paintPipeSmoke(QPainter& painter, int frame) {
    for (int i = 0; i < 7; ++i) {
        const double age = std::fmod(i / 7.0 + frame / 12.0, 1.0);
        const QPointF at(430 - 12 * age + 6 * std::sin(age * 6 + i), 326 - 96 * age);
        const double r = 3 + 11 * age;
        QRadialGradient puff(at, r);
        puff.setColorAt(0, fade(hex(0xe8d4c4), 0.4 * (1 - age)));
        puff.setColorAt(1, fade(hex(0xc0a8a0), 0));
        painter.fillPath(ellipse(at, r, r), puff);
    }
}

void paintMoth(QPainter& painter, int frame) {
    const double phase = kTurn * frame / 16;
    const double pulse = 0.8 + 0.2 * std::sin(phase * 3);
    glow(painter, {174, 346}, 34, hex(0xffc060), 0.6 * pulse);
    paintFlame(painter, {174, 354}, 15 + pulse * 2, frame / 8.0);
    const QPointF at(174 + 30 * std::cos(phase), 334 + 12 * std::sin(2 * phase));
    const double open = 2 + 3.2 * std::abs(std::sin(frame * 1.3));
    for (const double side : {-1.0, 1.0}) {
        painter.fillPath(ellipse(at + QPointF(side * open, -1), open, 3.2), hex(0xffeccc));
        painter.fillPath(ellipse(at + QPointF(side * open, -1), open * 0.3, 1), hex(0x9a5a34));
    }
    painter.fillPath(ellipse(at, 1.2, 3.4), hex(0x7a543c));
}

}  // namespace

SceneArt innArt() {
    QImage picture = newPicture();
    QPainter painter(&picture);
    makeSmooth(painter);
    paintRoom(painter, {kInnBack, hex(0x9a8070), hex(0x8a5e42), hex(0x5e4234), false, 105});
    paintBeams(painter, kInnBack, 4, hex(0x4a3024));
    paintHearth(painter);
    paintTaproom(painter);
    drape(painter, plaster({300, 120}, hex(0x8a3a3a), 108),
          quad({236, 346}, {392, 346}, {430, 440}, {196, 440}));
    paintKeeper(painter);
    painter.end();
    LightMap light(hex(0x3e3a62));
    light.addLamp({300, 290}, 420, 300, hex(0xff9648), 1.75);
    light.addLamp({174, 340}, 190, 150, hex(0xffb060), 0.8);
    light.addLamp({206, 126}, 120, 100, hex(0xffb060), 0.5);
    light.addLamp({398, 130}, 120, 100, hex(0xffb060), 0.5);
    light.addLamp({640, 180}, 130, 150, hex(0x7a86d0), 0.5);
    light.addShadow(polygon({{520, 400}, {700, 330}, {700, 475}, {560, 475}}), 0.35, 24);
    light.applyTo(picture);
    QPainter over(&picture);
    makeSmooth(over);
    for (const QPointF& wick : {QPointF(206, 134), QPointF(398, 139)}) {
        paintFlame(over, wick, 12, 0.2);
        glow(over, wick - QPointF(0, 6), 50, hex(0xffb050), 0.6);
    }
    glow(over, {300, 280}, 230, hex(0xff8a30), 0.3);
    over.end();
    bloom(picture, 200, 12, 0.5);
    vignette(picture, 0.6);
    paperGrain(picture, 0.05, 9);
    return {
        "MothInn.jpg",
        picture,
        {
            {"Hearth.gif",
             {234, 196, 134, 112},
             10,
             9,
             [](QPainter& p, int f) { paintHearthFire(p, f); }},
            {"Pipe.gif",
             {398, 216, 56, 118},
             12,
             12,
             [](QPainter& p, int f) { paintPipeSmoke(p, f); }},
            {"InnMoth.gif", {130, 308, 88, 66}, 16, 8, [](QPainter& p, int f) { paintMoth(p, f); }},
        }};
}

}  // namespace quorvel::sample
