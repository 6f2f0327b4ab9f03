// Lantern Lane, the street from the harbour up to the attic.
#include <cmath>

#include "art/materials.h"
#include "art/noise.h"
#include "art/props.h"
#include "art/scenery.h"
#include "art/sprite.h"
#include "art/turn.h"

namespace quorvel::sample {
namespace {

struct FrontLook {
    QColor wall;
    bool timbered;
    bool shop;
    unsigned seed;
};

/// A row of two houses as a flat picture, to be draped along the street.
QImage streetFront(const FrontLook& left, const FrontLook& right) {
    QImage image(640, 420, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    makeSmooth(painter);
    int index = 0;
    for (const FrontLook& look : {left, right}) {
        const QRectF wall(index * 320, index == 0 ? 0 : 30, 320, 420);
        QPainterPath path;
        path.addRect(wall);
        fillTextured(painter, path, plaster({320, 420}, look.wall, look.seed));
        painter.fillRect(QRectF(wall.left(), 345, 320, 75),
                         QBrush(stonework({640, 420}, hex(0x6a6072), 20, look.seed)));
        const QColor wood = hex(0x35221f);
        for (const double y : {wall.top() + 4, wall.top() + 120.0, 232.0}) {
            painter.fillRect(QRectF(wall.left(), y, 320, 10), wood);
        }
        for (int i = 0; i <= 4 && look.timbered; ++i) {
            painter.fillRect(QRectF(wall.left() + i * 77.5, wall.top(), 10, 232), wood);
            if (i < 4) {
                stroke(painter, {wall.left() + i * 77.5 + 5, 232},
                       {wall.left() + i * 77.5 + 70, 130}, wood, 7);
            }
        }
        Random random(look.seed);
        for (int row = 0; row < 2; ++row) {
            for (int column = 0; column < 3; ++column) {
                const QRectF box(wall.left() + 34 + column * 100, wall.top() + 30 + row * 112, 50,
                                 66);
                paintWindow(painter, box, random.unit() < 0.65 ? random.between(0.7, 1) : 0,
                            look.seed + static_cast<unsigned>(column));
                painter.fillRect(QRectF(box.left() - 6, box.bottom() + 4, 62, 9), hex(0x5a3a2a));
                for (int leaf = 0; leaf < 16; ++leaf) {
                    painter.fillPath(ellipse({box.left() - 4 + random.unit() * 60,
                                              box.bottom() + random.between(-4, 5)},
                                             3.4, 2.6),
                                     leaf % 4 == 0 ? hex(0xd2566a) : hex(0x3f5a40));
                }
            }
        }
        if (look.shop) {
            painter.fillRect(QRectF(wall.left() + 24, 262, 130, 12), hex(0x3a4a52));
            paintWindow(painter, {wall.left() + 30, 278, 118, 84}, 1.0, look.seed);
        } else {
            paintWindow(painter, {wall.left() + 44, 284, 60, 66}, 0.8, look.seed);
        }
        paintDoor(painter, {wall.left() + 200, 274, 66, 140},
                  look.shop ? hex(0x3f6a66) : hex(0x8a4038), look.seed);
        ++index;
    }
    return image;
}

void paintEndOfLane(QPainter& painter) {
    painter.fillPath(polygon({{258, 300}, {258, 205}, {302, 150}, {346, 205}, {346, 300}}),
                     hex(0x4c4566));
    paintHouse(painter, {268, 268, 66, 78, hex(0x6e6282), hex(0x3c3050), 31, 0.8, true});
    paintHouse(painter, {336, 266, 62, 66, hex(0x7a6a84), hex(0x443458), 32, 0.7});
    paintHouse(painter, {398, 270, 58, 84, hex(0x685c7c), hex(0x3a2e50), 33, 0.7, true});
    // Stairs climb to the upper town.
    for (int i = 0; i < 8; ++i) {
        const double y = 292 - i * 5.2;
        const double half = 46 - i * 3.4;
        painter.fillRect(
            QRectF(352 - half, y, half * 2, 5.4),
            downward(y, y + 5.4, {{0, hex(0x8c809c)}, {0.4, hex(0x5e5474)}, {1, hex(0x3a3250)}}));
    }
}

void paintStreet(QImage& picture) {
    QPainter painter(&picture);
    makeSmooth(painter);
    painter.fillRect(
        picture.rect(),
        downward(
            0, 300,
            {{0, hex(0x141a3c)}, {0.5, hex(0x34346a)}, {0.85, hex(0x7a5a88)}, {1, hex(0xa87a90)}}));
    paintStars(painter, {120, 0, 460, 190}, 110, 17);
    paintMoon(painter, {438, 64}, 21, 0.35);
    painter.end();
    paintClouds(picture, {40, 230, hex(0x8a7ab0), hex(0x2c2c58), 0.5, 44});
    QPainter front(&picture);
    makeSmooth(front);
    paintEndOfLane(front);
    front.fillRect(
        QRectF(180, 200, 340, 110),
        downward(200, 310, {{0, fade(hex(0x8a7ab0), 0)}, {1, fade(hex(0x9a80a8), 0.4)}}));
    drape(front, cobbles({520, 520}, hex(0x8a8298), 22, 51),
          quad({286, 296}, {420, 296}, {900, 520}, {-200, 520}));
    drape(front, streetFront({hex(0xb09080), true, true, 61}, {hex(0x8a7a8a), false, false, 62}),
          quad({-70, -150}, {282, 138}, {282, 300}, {-70, 452}));
    drape(front, streetFront({hex(0x9a8084), false, false, 63}, {hex(0xb89878), true, true, 64}),
          quad({424, 138}, {770, -150}, {770, 452}, {424, 300}));
    // Eaves throw the roofs' shadow on the fronts.
    for (const auto& [near, far] : {std::pair{QPointF(-70, -150), QPointF(282, 138)},
                                    {QPointF(770, -150), QPointF(424, 138)}}) {
        stroke(front, near, far, hex(0x1c1526), 16);
        stroke(front, near + QPointF(0, 16), far + QPointF(0, 6), fade(Qt::black, 0.3), 18);
    }
}

void paintLines(QPainter& painter) {
    const unsigned flags[] = {0xc8504a, 0xe0a848, 0x4a7a8a, 0xd8c8a8, 0x7a4a78};
    const QPointF from(160, 90);
    const QPointF to(560, 70);
    paintRope(painter, from, to, 38, 1.1);
    for (int i = 1; i < 15; ++i) {
        const double t = i / 15.0;
        const QPointF at = from * (1 - t) + to * t + QPointF(0, 38 * 4 * t * (1 - t));
        painter.fillPath(
            polygon({at + QPointF(-7, 0), at + QPointF(7, 0.4), at + QPointF(0.5, 17)}),
            hex(flags[i % 5]));
    }
}

void paintLaneThings(QPainter& painter) {
    paintBarrel(painter, {212, 352}, 38);
    paintBarrel(painter, {236, 346}, 34);
    paintCrate(painter, {474, 330, 34, 24}, 71);
    paintCrate(painter, {482, 308, 26, 21}, 72);
    // Iron arms for the two signs.
    stroke(painter, {150, 176}, {206, 186}, hex(0x1a1420), 4);
    stroke(painter, {560, 168}, {500, 180}, hex(0x1a1420), 4);
    paintLampPost(painter, {330, 330}, 122, 0.9);
    paintLampPost(painter, {568, 448}, 262, 0);
}

void lightLane(QImage& picture) {
    LightMap light(hex(0x8088c0));
    light.addLamp({330, 238}, 250, 180, hex(0xff9a48), 1.0);
    light.addLamp({70, 300}, 190, 160, hex(0xff9a50), 0.9);
    light.addLamp({660, 300}, 200, 170, hex(0xffa050), 0.8);
    light.addLamp({330, 338}, 160, 50, hex(0xffb060), 0.6);
    light.addShadow(polygon({{0, 475}, {0, 420}, {250, 340}, {300, 475}}), 0.25, 30);
    light.applyTo(picture);
}

void paintSign(QPainter& painter, QPointF hook, double angle, bool moth) {
    painter.save();
    painter.translate(hook);
    painter.rotate(angle);
    for (const double x : {-14.0, 14.0}) {
        stroke(painter, {x, 0}, {x, 10}, hex(0x1a1420), 1.4);
    }
    QPainterPath board;
    board.addRoundedRect(QRectF(-24, 10, 48, 46), 7, 7);
    painter.fillPath(board, downward(10, 56, {{0, hex(0xb07844)}, {1, hex(0x5e3a2a)}}));
    stroke(painter, board, hex(0x2a1a18), 2.4);
    if (moth) {
        painter.fillRect(QRectF(-3, 34, 6, 16), hex(0xf6e2b0));
        paintFlame(painter, {0, 34}, 12, 0.2);
        for (const double side : {-1.0, 1.0}) {
            painter.fillPath(
                polygon({{side * 1.5, 15}, {side * 17, 13}, {side * 13, 23}, {side * 2, 22}}),
                hex(0xf4ead0));
            painter.fillPath(polygon({{side * 1.5, 21}, {side * 10, 23}, {side * 6, 28}}),
                             hex(0xd0b890));
            stroke(painter, {side * 1, 15}, {side * 4, 11}, hex(0xf4ead0), 1);
        }
        painter.fillPath(ellipse({0, 21}, 2, 5), hex(0x6a4a3a));
    } else {
        const QColor gold = hex(0xf0d080);
        stroke(painter, {0, 18}, {0, 48}, gold, 3);
        stroke(painter, {-8, 24}, {8, 24}, gold, 2.6);
        stroke(painter, ellipse({0, 17}, 3, 3), gold, 2);
        QPainterPath fluke(QPointF(-13, 38));
        fluke.quadTo(-10, 50, 0, 49);
        fluke.quadTo(10, 50, 13, 38);
        stroke(painter, fluke, gold, 2.8);
    }
    painter.restore();
}

/// The switch of the scene: the near lamp, out in the first frame and lit in the last.
void paintNearLamp(QPainter& painter, int frame) {
    const double light = frame / 3.0;
    paintLantern(painter, {568, 181}, 76, light);
    if (frame > 0) {
        paintFlame(painter, {568, 238}, 22 * light, 0.3);
        glow(painter, {568, 226}, 80, hex(0xffb050), 0.5 * light);
    }
}

void paintMoths(QPainter& painter, int frame, int frames) {
    for (int i = 0; i < 3; ++i) {
        const double phase = kTurn * (frame / double(frames) + i / 3.0);
        const QPointF at(330 + 26 * std::cos(phase) + 6 * std::sin(3 * phase),
                         226 + 13 * std::sin(phase * 2 + i));
        const double open = 1.5 + 2 * std::abs(std::sin(frame * 1.57 + i));
        painter.fillPath(ellipse(at - QPointF(open, 0), open, 1.7), hex(0xffe8c0));
        painter.fillPath(ellipse(at + QPointF(open, 0), open, 1.7), hex(0xe0bc90));
    }
}

std::vector<Sprite> laneSprites() {
    return {
        {"AnchorSign.gif",
         {172, 180, 64, 66},
         10,
         13,
         [](QPainter& p, int f) {
             paintSign(p, {204, 186}, 7 * std::sin(kTurn * f / 20), false);
         }},
        {"MothSign.gif",
         {470, 174, 64, 68},
         10,
         15,
         [](QPainter& p, int f) {
             paintSign(p, {503, 180}, -6 * std::sin(kTurn * f / 20 + .6), true);
         }},
        {"LaneLamp.gif",
         {520, 156, 100, 120},
         4,
         9,
         [](QPainter& p, int f) { paintNearLamp(p, f); }},
        {"Moths.gif", {294, 206, 74, 42}, 16, 8, [](QPainter& p, int f) { paintMoths(p, f, 16); }},
        {"LaneCat.gif",
         {470, 268, 66, 42},
         12,
         11,
         [](QPainter& p, int f) {
             paintCat(p, {493, 308}, 34, std::sin(kTurn * f / 24), hex(0x6a4430));
         }},
        {"Puddle.gif",
         {236, 400, 150, 44},
         12,
         12,
         [](QPainter& p, int f) {
             p.fillPath(
                 blob({{246, 424}, {290, 406}, {350, 410}, {378, 424}, {330, 438}, {270, 438}}),
                 downward(404, 440,
                          {{0, fade(hex(0x6a5a80), 0.8)}, {1, fade(hex(0x20224a), 0.9)}}));
             glow(p, {318, 420}, 34, hex(0xffb868), 0.5 + 0.15 * std::sin(kTurn * f / 12));
             for (int ring = 0; ring < 2; ++ring) {
                 const double age = std::fmod(f / 12.0 + ring * 0.5, 1.0);
                 stroke(p,
                        ellipse({290.0 + ring * 52, 422.0 + ring * 5}, 2 + 20 * age, 0.8 + 6 * age),
                        fade(hex(0xffe0c0), 0.5 * (1 - age)), 0.9);
             }
         }},
    };
}

}  // namespace

SceneArt laneArt() {
    QImage picture = newPicture();
    paintStreet(picture);
    QPainter painter(&picture);
    makeSmooth(painter);
    paintLaneThings(painter);
    painter.end();
    lightLane(picture);
    QPainter over(&picture);
    makeSmooth(over);
    paintLines(over);
    glow(over, {330, 238}, 120, hex(0xffa850), 0.6);
    over.end();
    bloom(picture, 200, 12, 0.6);
    vignette(picture, 0.6);
    paperGrain(picture, 0.05, 6);
    return {"Lane.jpg", picture, laneSprites()};
}

}  // namespace quorvel::sample
