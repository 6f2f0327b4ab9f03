// Inside the tower: the stair, seen from below.
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

const QPointF kTop(392, 176);

/// The round wall: stones laid along circles that shrink towards the top of the tower.
void paintShaft(QImage& picture) {
    const QImage stones = stonework({1024, 512}, hex(0x9a8e96), 30, 191);
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const double dx = x - kTop.x();
            const double dy = (y - kTop.y()) * 1.08;
            const double r = std::max(8.0, std::hypot(dx, dy));
            const double turn = std::atan2(dy, dx) / kTurn + 0.5;
            const double height = std::log(r / 8) * 150;
            const int sx = static_cast<int>(turn * 1023);
            const int sy = std::clamp(511 - static_cast<int>(height) % 512, 0, 511);
            const double bright = 0.25 + 0.75 * std::exp(-r / 190) + 0.12 * (r / 400);
            const QRgb stone = stones.pixel(sx, sy);
            line[x] = qRgb(qRound(qRed(stone) * bright), qRound(qGreen(stone) * bright),
                           qRound(qBlue(stone) * bright));
        }
    }
}

QPointF onCircle(double angle, double radius) {
    return kTop + QPointF(radius * std::cos(angle), radius * std::sin(angle) / 1.08);
}

/// One step of the spiral: a wedge between the wall and the open well.
void paintStep(QPainter& painter, int number, int count) {
    const auto radiusAt = [&](double n) { return 470 * std::pow(0.957, n); };
    const double angle = 0.55 - number * 0.30;
    const double next = angle - 0.30;
    const double outer = radiusAt(number);
    const double inner = outer * 0.60;
    const double outerNext = radiusAt(number + 1);
    const double innerNext = outerNext * 0.60;
    const double lift = outer * 0.085;
    const QPainterPath under = polygon({onCircle(angle, outer), onCircle(next, outerNext),
                                        onCircle(next, innerNext), onCircle(angle, inner)});
    const double far = number / double(count);
    const double side = 0.5 + 0.5 * std::cos(angle - 2.4);
    const QColor wood = mix(hex(0x8a5e42), hex(0xe0b884), far * 0.8);
    const QColor face = shade(wood, 0.35 + 0.55 * side + 0.3 * far);
    painter.fillPath(under.translated(0, lift * 0.9), fade(Qt::black, 0.35));
    const QPainterPath edge = polygon({onCircle(angle, inner), onCircle(next, innerNext),
                                       onCircle(next, innerNext) + QPointF(0, lift * 0.7),
                                       onCircle(angle, inner) + QPointF(0, lift * 0.7)});
    painter.fillPath(edge, shade(face, 0.55));
    painter.fillPath(polygon({onCircle(angle, outer), onCircle(angle, inner),
                              onCircle(angle, inner) + QPointF(0, lift * 0.7),
                              onCircle(angle, outer) + QPointF(0, lift * 0.7)}),
                     shade(face, 0.7));
    painter.fillPath(under, face);
    mottle(painter, under, 30, 6, 0.2, 192U + static_cast<unsigned>(number));
    stroke(painter, onCircle(angle, outer), onCircle(angle, inner), shade(face, 1.5),
           std::max(0.7, outer * 0.006));
}

void paintRail(QPainter& painter, int count) {
    QPainterPath rail;
    for (int i = 0; i <= count; ++i) {
        const double outer = 470 * std::pow(0.957, i);
        const double angle = 0.55 - i * 0.30;
        const QPointF foot = onCircle(angle, outer * 0.61);
        const QPointF head = foot - QPointF(0, outer * 0.17);
        stroke(painter, foot, head, hex(0x1a141c), std::max(0.6, outer * 0.010));
        stroke(painter, foot - QPointF(outer * 0.002, 0), head - QPointF(outer * 0.002, 0),
               fade(hex(0xe8b070), 0.3), std::max(0.4, outer * 0.003));
        i == 0 ? rail.moveTo(head) : rail.lineTo(head);
    }
    stroke(painter, rail, hex(0x1a141c), 5);
    stroke(painter, rail.translated(-0.6, -1), fade(hex(0xe8b878), 0.6), 1.4);
}

void paintFloor(QPainter& painter) {
    QPainterPath floor(QPointF(-10, 478));
    floor.cubicTo(80, 424, 300, 410, 470, 430);
    floor.cubicTo(560, 440, 640, 458, 710, 478);
    floor.closeSubpath();
    fillTextured(painter, floor, cobbles({730, 80}, hex(0x7a7078), 24, 240));
    painter.fillPath(floor,
                     downward(414, 475, {{0, fade(Qt::black, 0.45)}, {1, fade(Qt::black, .1)}}));
    paintBarrel(painter, {70, 452}, 74);
    paintRopeCoil(painter, {152, 452}, 30);
    // A slit in the wall lets the moon in.
    const QPainterPath slit = polygon({{92, 122}, {116, 132}, {112, 236}, {86, 232}});
    painter.fillPath(slit, downward(122, 236, {{0, hex(0x8aa0f0)}, {1, hex(0xd8e4ff)}}));
    stroke(painter, slit, hex(0x3a3440), 7);
    glow(painter, {101, 180}, 110, hex(0x90a8ff), 0.6);
}

void paintBeamDust(QPainter& painter, int frame) {
    Random random(241);
    for (int i = 0; i < 34; ++i) {
        const double along = random.unit();
        const double phase = kTurn * (frame / 16.0 + random.unit());
        const QPointF at(112 + 200 * along + 4 * std::sin(phase),
                         190 + 190 * along + random.between(-24, 24) + 4 * std::cos(phase));
        painter.fillPath(ellipse(at, 1.2, 1.2), fade(hex(0xd8e4ff), 0.35 + 0.35 * std::sin(phase)));
    }
}

void paintSpider(QPainter& painter, int frame) {
    const double y = 96 + 34 * std::sin(kTurn * frame / 32);
    stroke(painter, {214, 0}, {214, y}, fade(hex(0xe0e4ff), 0.5), 0.8);
    for (int leg = 0; leg < 4; ++leg) {
        for (const double side : {-1.0, 1.0}) {
            QPainterPath path(QPointF(214, y + 3));
            path.quadTo(214 + side * (6 + leg), y - 4 + leg * 3, 214 + side * (8 + leg),
                        y + 2 + leg * 4);
            stroke(painter, path, hex(0x140e14), 1);
        }
    }
    painter.fillPath(ellipse({214, y + 5}, 5, 6), hex(0x221820));
    painter.fillPath(ellipse({212.4, y + 3}, 1.4, 1.8), fade(hex(0xffd0a0), 0.5));
}

void paintWallLamp(QPainter& painter, int frame) {
    const double pulse =
        0.8 + 0.2 * std::sin(kTurn * frame / 8 + 0.6) * std::cos(kTurn * frame / 4);
    glow(painter, {612, 190}, 62, hex(0xffa848), 0.6 * pulse);
    paintLantern(painter, {612, 158}, 58, pulse);
    paintFlame(painter, {612, 202}, 15, frame / 8.0);
}

}  // namespace

SceneArt stairArt() {
    QImage picture = newPicture();
    paintShaft(picture);
    QPainter painter(&picture);
    makeSmooth(painter);
    glow(painter, kTop, 130, hex(0xfff0c8), 0.9);
    painter.fillPath(ellipse(kTop, 16, 15), hex(0xfffbe8));
    constexpr int steps = 62;
    for (int i = steps; i >= 0; --i) {
        paintStep(painter, i, steps);
    }
    paintRail(painter, steps);
    paintFloor(painter);
    painter.end();
    LightMap light(hex(0x6c6c98));
    light.addLamp({612, 190}, 300, 260, hex(0xff9a48), 1.3);
    light.addLamp(kTop, 230, 210, hex(0xffdca8), 0.8);
    light.addShape(polygon({{92, 130}, {112, 230}, {240, 440}, {380, 400}}), hex(0x90a8ff), 0.45,
                   26);
    light.applyTo(picture);
    QPainter over(&picture);
    makeSmooth(over);
    stroke(over, {612, 150}, {640, 140}, hex(0x17121a), 5);
    stroke(over, {612, 150}, {612, 162}, hex(0x17121a), 3);
    over.end();
    bloom(picture, 195, 13, 0.5);
    vignette(picture, 0.6);
    paperGrain(picture, 0.05, 18);
    return {"Stair.bmp",
            picture,
            {
                {"StairDust.gif",
                 {104, 150, 220, 262},
                 16,
                 12,
                 [](QPainter& p, int f) { paintBeamDust(p, f); }},
                {"Spider.gif",
                 {200, 0, 28, 152},
                 16,
                 10,
                 [](QPainter& p, int f) { paintSpider(p, f - 8); }},
                {"WallLamp.gif",
                 {552, 130, 122, 122},
                 8,
                 11,
                 [](QPainter& p, int f) { paintWallLamp(p, f); }},
            }};
}

}  // namespace quorvel::sample
