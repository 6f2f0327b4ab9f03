// The map: a chart of the town on old paper, and the pictures of its places.
#include <cmath>

#include "art/materials.h"
#include "art/noise.h"
#include "art/props.h"
#include "art/scenery.h"
#include "art/sprite.h"
#include "art/turn.h"

namespace quorvel::sample {
namespace {

const QColor kInk = hex(0x5a3a2a);

QPainterPath coast() {
    return blob({{-60, 520},
                 {-60, 40},
                 {60, 60},
                 {150, 120},
                 {210, 200},
                 {300, 262},
                 {352, 270},
                 {420, 250},
                 {470, 190},
                 {540, 150},
                 {620, 96},
                 {780, 60},
                 {780, 200},
                 {640, 250},
                 {580, 330},
                 {600, 420},
                 {700, 520}});
}

void paintSheet(QPainter& painter) {
    QPainterPath sheet;
    sheet.addRect(0, 0, kWidth, kHeight);
    painter.fillPath(sheet, hex(0xe2c894));
    mottle(painter, sheet, 120, 90, 0.24, 251);
    mottle(painter, sheet, 9, 9, 0.08, 252);
    const QPainterPath sea = sheet.subtracted(coast());
    painter.fillPath(sea, fade(hex(0x6a9a9a), 0.42));
    for (int ring = 1; ring <= 4; ++ring) {
        painter.save();
        painter.setClipPath(sea);
        stroke(painter, coast(), fade(hex(0x3a6a74), 0.16), ring * 14);
        painter.restore();
    }
    painter.fillPath(coast(), fade(hex(0xb89a58), 0.35));
    stroke(painter, coast(), kInk, 2.2);
    Random random(253);
    for (int i = 0; i < 150; ++i) {
        const QPointF at(random.between(20, 680), random.between(20, 455));
        if (sea.contains(at) && sea.contains(at + QPointF(16, 8))) {
            QPainterPath wave(at);
            wave.quadTo(at + QPointF(4, -4), at + QPointF(8, 0));
            wave.quadTo(at + QPointF(12, -4), at + QPointF(16, 0));
            stroke(painter, wave, fade(hex(0x2e5a66), 0.4), 1);
        }
    }
}

void paintLand(QPainter& painter) {
    Random random(254);
    for (int i = 0; i < 26; ++i) {  // hills
        const QPointF at(random.between(560, 690), random.between(120, 420));
        if (coast().contains(at)) {
            QPainterPath hill(at);
            hill.quadTo(at + QPointF(12, -16), at + QPointF(25, 0));
            stroke(painter, hill, fade(kInk, 0.65), 1.3);
            for (int line = 0; line < 4; ++line) {
                stroke(painter, at + QPointF(14 + line * 2.6, -7 + line * 1.8),
                       at + QPointF(17 + line * 2.2, -1), fade(kInk, 0.4), 0.8);
            }
        }
    }
    for (int i = 0; i < 60; ++i) {  // trees
        const QPointF at(random.between(8, 240), random.between(90, 465));
        if (coast().contains(at) && (at.x() < 60 || at.y() > 400)) {
            stroke(painter, at, at + QPointF(0, 6), fade(kInk, 0.7), 1);
            painter.fillPath(ellipse(at - QPointF(0, 3), 5, 6), fade(hex(0x6a7a3c), 0.75));
            stroke(painter, ellipse(at - QPointF(0, 3), 5, 6), fade(kInk, 0.5), 0.8);
        }
    }
    QPainterPath way(QPointF(150, 262));
    way.cubicTo(170, 320, 240, 330, 300, 312);
    way.cubicTo(370, 330, 430, 330, 470, 280);
    way.cubicTo(520, 220, 560, 190, 600, 140);
    painter.strokePath(way, QPen(hex(0xa03828), 2.6, Qt::DashLine, Qt::RoundCap));
    QPainterPath spur(QPointF(282, 316));
    spur.cubicTo(250, 280, 230, 250, 212, 214);
    painter.strokePath(spur, QPen(hex(0xa03828), 2.2, Qt::DashLine, Qt::RoundCap));
}

void paintCompass(QPainter& painter, QPointF at) {
    stroke(painter, ellipse(at, 40, 40), kInk, 1.4);
    stroke(painter, ellipse(at, 36, 36), fade(kInk, 0.6), 0.8);
    for (int i = 0; i < 8; ++i) {
        const double a = kTurn * i / 8;
        const double length = i % 2 == 0 ? 46 : 26;
        const QPointF tip = at + length * QPointF(std::sin(a), -std::cos(a));
        const QPointF side = 6 * QPointF(std::cos(a), std::sin(a));
        painter.fillPath(polygon({at, at + side + (tip - at) * 0.24, tip}), hex(0x8a3428));
        painter.fillPath(polygon({at, at - side + (tip - at) * 0.24, tip}), hex(0xf0d8a0));
        stroke(painter,
               polygon({at, at + side + (tip - at) * 0.24, tip, at - side + (tip - at) * 0.24}),
               kInk, 0.9);
    }
}

void paintFrame(QPainter& painter) {
    for (int i = 0; i < 2; ++i) {
        QPainterPath frame;
        frame.addRect(QRectF(14 + i * 7, 14 + i * 7, kWidth - 28 - i * 14, kHeight - 28 - i * 14));
        stroke(painter, frame, kInk, i == 0 ? 3 : 1.2);
    }
    // Sea serpent and folds.
    for (int i = 0; i < 3; ++i) {
        QPainterPath hump(QPointF(288.0 + i * 34, 120));
        hump.quadTo(302.0 + i * 34, 92.0 + i * 6, 316.0 + i * 34, 120);
        stroke(painter, hump, hex(0x2e5a5a), 6.0 - i);
        stroke(painter, hump.translated(0, -1), hex(0x7aa89a), 2);
    }
    painter.fillPath(blob({{262, 104}, {268, 92}, {282, 92}, {284, 104}, {276, 122}, {270, 112}}),
                     hex(0x2e5a5a));
    painter.fillPath(ellipse({270, 97}, 1.8, 1.8), hex(0xffe8a0));
    for (const double x : {233.0, 466.0}) {
        painter.fillRect(QRectF(x, 0, 10, kHeight), sideways(x, x + 10,
                                                             {{0, fade(Qt::black, 0.16)},
                                                              {0.5, fade(Qt::white, 0.14)},
                                                              {1, fade(Qt::black, 0)}}));
    }
}

/// A round medallion that marks a place.
void paintMedal(QPainter& painter, QPointF at, const std::function<void(QPainter&)>& inside) {
    softFill(painter, ellipse(at + QPointF(2, 3), 25, 25), fade(Qt::black, 0.4), 3);
    painter.fillPath(ellipse(at, 26, 26), hex(0x7a4a28));
    painter.fillPath(ellipse(at, 24, 24), hex(0xe8c070));
    const QPainterPath field = ellipse(at, 21, 21);
    painter.fillPath(field,
                     downward(at.y() - 21, at.y() + 21,
                              {{0, hex(0x2c3470)}, {0.65, hex(0xd07a7a)}, {1, hex(0xf0b878)}}));
    QImage content(60, 60, QImage::Format_ARGB32_Premultiplied);
    content.fill(Qt::transparent);
    QPainter inner(&content);
    makeSmooth(inner);
    inner.translate(30, 30);
    inside(inner);
    inner.end();
    QBrush brush(content);
    brush.setTransform(QTransform::fromTranslate(at.x() - 30, at.y() - 30));
    painter.fillPath(field, brush);
    stroke(painter, field, hex(0x5a3420), 1.6);
}

Sprite medal(const std::string& file, QPoint at, int frames,
             const std::function<void(QPainter&, int)>& inside) {
    return {file, QRect(at.x() - 30, at.y() - 30, 60, 60), frames, 14,
            [at, inside](QPainter& painter, int frame) {
                paintMedal(painter, at, [&](QPainter& p) { inside(p, frame); });
            }};
}

}  // namespace

SceneArt mapArt() {
    QImage picture = newPicture();
    QPainter painter(&picture);
    makeSmooth(painter);
    paintSheet(painter);
    paintLand(painter);
    paintCompass(painter, {118, 404});
    paintFrame(painter);
    painter.end();
    vignette(picture, 0.5);
    paperGrain(picture, 0.06, 24);
    return {
        "TownMap.bmp",
        picture,
        {
            medal("MapHarb.gif", {312, 292}, 8,
                  [](QPainter& p, int f) {
                      const double bob = std::sin(kTurn * f / 8);
                      p.fillRect(QRectF(-30, 8, 60, 30), hex(0x2a5a7a));
                      paintFishingBoat(p, {0, 10 + bob}, 26, hex(0x9a4038), 1);
                  }),
            medal("MapLane.gif", {130, 272}, 1,
                  [](QPainter& p, int) {
                      p.fillRect(QRectF(-30, 14, 60, 30), hex(0x3a2c48));
                      paintHouse(p, {-20, 16, 19, 16, hex(0xc09a80), hex(0x6a3a44), 3, 1.0});
                      paintHouse(p, {1, 16, 19, 20, hex(0xa88a90), hex(0x4a3458), 5, 1.0});
                  }),
            medal("MapCove.gif", {204, 190}, 8,
                  [](QPainter& p, int f) {
                      paintMoon(p, {5, -7}, 6, 0.4);
                      p.fillRect(QRectF(-30, 4, 60, 30), hex(0x28386c));
                      for (int i = 0; i < 4; ++i) {
                          const double w = 6 + 3 * std::sin(kTurn * f / 8 + i);
                          stroke(p, {5 - w, 7.0 + i * 3}, {5 + w, 7.0 + i * 3}, hex(0xf0e8d0), 1.2);
                      }
                  }),
            medal("MapCliff.gif", {468, 262}, 1,
                  [](QPainter& p, int) {
                      p.fillPath(
                          polygon({{-30, 6}, {-4, 4}, {8, -8}, {30, -10}, {30, 30}, {-30, 30}}),
                          hex(0x3c5a4c));
                      p.fillPath(
                          polygon({{-14, 30}, {2, 10}, {16, -8}, {19, -8}, {10, 12}, {2, 30}}),
                          hex(0xc8b090));
                      paintGull(p, {-8, -8}, 14, 0.7, hex(0xfff0e4));
                  }),
            medal("MapLight.gif", {590, 128}, 8,
                  [](QPainter& p, int f) {
                      p.fillPath(ellipse({0, 24}, 26, 12), hex(0x3c4a58));
                      paintLighthouse(p, {0, 16}, 34, 0.6 + 0.4 * std::sin(kTurn * f / 8));
                  }),
        }};
}

}  // namespace quorvel::sample
