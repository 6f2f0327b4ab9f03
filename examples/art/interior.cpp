#include "art/interior.h"

#include "art/materials.h"
#include "art/noise.h"
#include "art/props.h"

namespace quorvel::sample {

void paintRoom(QPainter& painter, const RoomLook& look) {
    const QRectF& b = look.back;
    const QRectF out(-90, -70, kWidth + 180, kHeight + 140);
    const auto wall = [&](unsigned seed) {
        return look.stone ? stonework({420, 300}, look.wall, 24, seed)
                          : plaster({420, 300}, look.wall, seed);
    };
    drape(painter, planks({600, 300}, look.floor, 34, look.seed),
          quad(b.bottomLeft(), b.bottomRight(), out.bottomRight(), out.bottomLeft()));
    drape(painter, planks({600, 300}, look.ceiling, 44, look.seed + 1),
          quad(b.topLeft(), b.topRight(), out.topRight(), out.topLeft()));
    drape(painter, wall(look.seed + 2),
          quad(out.topLeft(), b.topLeft(), b.bottomLeft(), out.bottomLeft()));
    drape(painter, wall(look.seed + 3),
          quad(b.topRight(), out.topRight(), out.bottomRight(), b.bottomRight()));
    drape(painter, wall(look.seed + 4),
          quad(b.topLeft(), b.topRight(), b.bottomRight(), b.bottomLeft()));
    QPainterPath corners;
    for (const auto& [from, to] : {std::pair{b.topLeft(), out.topLeft()},
                                   {b.topRight(), out.topRight()},
                                   {b.bottomLeft(), out.bottomLeft()},
                                   {b.bottomRight(), out.bottomRight()}}) {
        corners.moveTo(from);
        corners.lineTo(to);
    }
    corners.addRect(b);
    for (const double width : {30.0, 18.0, 8.0}) {
        stroke(painter, corners, fade(hex(0x0c0812), 0.13), width);
    }
    for (const auto& [from, to] : {std::pair{b.bottomLeft(), b.bottomRight()},
                                   {b.bottomLeft(), out.bottomLeft()},
                                   {b.bottomRight(), out.bottomRight()}}) {
        stroke(painter, from - QPointF(0, 4), to - QPointF(0, 16), shade(look.floor, 0.5), 6);
    }
}

void paintBeams(QPainter& painter, const QRectF& back, int count, const QColor& wood) {
    for (int i = 0; i < count; ++i) {
        const double part = (i + 0.5) / count;
        const double x = back.left() + back.width() * part;
        const double nearX = -90 + (kWidth + 180) * part;
        const double w = back.width() * 0.022;
        const QPainterPath side = polygon({{x - w, back.top()},
                                           {x + w, back.top()},
                                           {nearX + w * 3.4, -40},
                                           {nearX - w * 3.4, -40}});
        painter.fillPath(side.translated(0, 5), fade(Qt::black, 0.35));
        painter.fillPath(side,
                         downward(-40, back.top(), {{0, shade(wood, 0.6)}, {1, shade(wood, 1.1)}}));
        painter.fillPath(polygon({{x - w, back.top()},
                                  {x + w, back.top()},
                                  {x + w, back.top() + 9},
                                  {x - w, back.top() + 9}}),
                         shade(wood, 0.7));
    }
}

void paintBook(QPainter& painter, const QRectF& box, const QColor& colour) {
    painter.fillRect(
        box,
        sideways(box.left(), box.right(),
                 {{0, shade(colour, 0.7)}, {0.4, shade(colour, 1.25)}, {1, shade(colour, 0.6)}}));
    for (const double part : {0.16, 0.8}) {
        painter.fillRect(QRectF(box.left(), box.top() + box.height() * part, box.width(), 1.4),
                         hex(0xd8b25a));
    }
}

void paintBottle(QPainter& painter, QPointF foot, double height, const QColor& glass) {
    const double w = height * 0.21;
    QPainterPath body(foot + QPointF(-w, 0));
    body.lineTo(foot + QPointF(-w, -height * 0.52));
    body.cubicTo(foot + QPointF(-w, -height * 0.68), foot + QPointF(-w * 0.35, -height * 0.66),
                 foot + QPointF(-w * 0.35, -height * 0.9));
    body.lineTo(foot + QPointF(w * 0.35, -height * 0.9));
    body.cubicTo(foot + QPointF(w * 0.35, -height * 0.66), foot + QPointF(w, -height * 0.68),
                 foot + QPointF(w, -height * 0.52));
    body.lineTo(foot + QPointF(w, 0));
    body.closeSubpath();
    painter.fillPath(body, sideways(foot.x() - w, foot.x() + w,
                                    {{0, shade(glass, 0.7)},
                                     {0.25, shade(glass, 1.7)},
                                     {0.45, glass},
                                     {1, shade(glass, 0.4)}}));
    painter.fillRect(QRectF(foot.x() - w * 0.36, foot.y() - height, w * 0.72, height * 0.12),
                     hex(0x9a7048));
    painter.fillRect(QRectF(foot.x() - w * 0.8, foot.y() - height * 0.4, w * 1.6, height * 0.24),
                     hex(0xe8d8b0));
    stroke(painter, foot + QPointF(-w * 0.6, -height * 0.5),
           foot + QPointF(-w * 0.6, -height * 0.1), fade(hex(0xffffff), 0.4), 1);
}

void paintCandle(QPainter& painter, QPointF foot, double height) {
    const double w = height * 0.16;
    painter.fillPath(ellipse(foot, w * 2.6, w * 0.8), hex(0xa07a3a));
    painter.fillPath(ellipse(foot - QPointF(0, 1.5), w * 2.2, w * 0.6), hex(0xe0b860));
    painter.fillRect(QRectF(foot.x() - w, foot.y() - height, w * 2, height - 1),
                     sideways(foot.x() - w, foot.x() + w,
                              {{0, hex(0xfff0cc)}, {0.5, hex(0xf6dca4)}, {1, hex(0xb88a58)}}));
    painter.fillPath(ellipse(foot - QPointF(0, height), w, w * 0.4), hex(0xfff6da));
    stroke(painter, foot - QPointF(0, height), foot - QPointF(0, height + 3), hex(0x30201a), 1);
}

void paintShelf(QPainter& painter, const QRectF& board, double roomAbove, unsigned seed) {
    Random random(seed);
    painter.fillRect(board.translated(0, board.height()).adjusted(0, 0, 0, 8),
                     downward(board.bottom(), board.bottom() + 14,
                              {{0, fade(Qt::black, 0.5)}, {1, fade(Qt::black, 0)}}));
    painter.fillRect(board,
                     downward(board.top(), board.bottom(),
                              {{0, hex(0xa87850)}, {0.25, hex(0x7c5438)}, {1, hex(0x40291f)}}));
    double x = board.left() + 6;
    const unsigned glasses[] = {0x4a7a5a, 0x8a4a2a, 0x3a5a86, 0xa0863a, 0x6a3a5a};
    const unsigned covers[] = {0x7a2e2e, 0x2e4a6a, 0x4a5a2e, 0x6a4a22, 0x4a2e5a};
    while (x < board.right() - 22) {
        const double h = roomAbove * random.between(0.5, 0.85);
        const int kind = random.below(5);
        if (kind == 0) {
            for (int i = 0; i < 3 && x < board.right() - 12; ++i) {
                const double w = random.between(6, 10);
                paintBook(painter, {x, board.top() - h * random.between(0.85, 1.05), w, h},
                          hex(covers[random.below(5)]));
                x += w + 0.6;
            }
        } else if (kind == 1) {
            paintRopeCoil(painter, {x + 13, board.top() - 2}, 12);
            x += 27;
        } else if (kind == 2) {
            const QColor tin = mix(hex(0x8a5a4a), hex(0x5a7a7e), random.unit());
            const double w = random.between(15, 21);
            painter.fillRect(QRectF(x, board.top() - h * 0.8, w, h * 0.8),
                             sideways(x, x + w,
                                      {{0, shade(tin, 0.7)},
                                       {0.3, shade(tin, 1.5)},
                                       {0.5, tin},
                                       {1, shade(tin, 0.45)}}));
            painter.fillRect(QRectF(x, board.top() - h * 0.55, w, h * 0.3), hex(0xe2c890));
            x += w + 3;
        } else {
            paintBottle(painter, {x + 7, board.top()}, h, hex(glasses[random.below(5)]));
            x += 16;
        }
        x += random.between(1, 6);
    }
}

void paintCounter(QPainter& painter, const QRectF& box, double depth, const QColor& wood,
                  unsigned seed) {
    QPainterPath front;
    front.addRect(box);
    softFill(painter, ellipse({box.center().x(), box.bottom()}, box.width() * 0.54, 14),
             fade(Qt::black, 0.5), 10);
    fillTextured(painter, front, planks(box.size().toSize(), wood, 30, seed));
    painter.fillPath(front, downward(box.top(), box.bottom(),
                                     {{0, fade(Qt::black, 0.45)},
                                      {0.15, fade(Qt::black, 0.1)},
                                      {1, fade(Qt::black, 0.5)}}));
    const QImage top = planks({qRound(box.width()), 60}, shade(wood, 1.35), 60, seed + 1);
    drape(painter, top,
          quad(box.topLeft() + QPointF(depth * 0.8, -depth),
               box.topRight() + QPointF(-depth * 0.8, -depth), box.topRight() + QPointF(10, 0),
               box.topLeft() - QPointF(10, 0)));
    painter.fillRect(
        QRectF(box.left() - 10, box.top(), box.width() + 20, 8),
        downward(box.top(), box.top() + 8, {{0, shade(wood, 1.7)}, {1, shade(wood, 0.7)}}));
}

}  // namespace quorvel::sample
