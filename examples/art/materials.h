/// Surfaces as pictures: what walls, floors and roofs are made of. Each is made from a seed.
#pragma once

#include <QColor>
#include <QImage>

namespace quorvel::sample {

/// Rough stones in courses of `course` pixels.
QImage stonework(QSize size, const QColor& colour, double course, unsigned seed);
/// Boards that run downwards, about `board` pixels wide, with grain and nails.
QImage planks(QSize size, const QColor& colour, double board, unsigned seed);
/// Round-ended roof slates in rows.
QImage slates(QSize size, const QColor& colour, double row, unsigned seed);
/// Uneven plaster with stains.
QImage plaster(QSize size, const QColor& colour, unsigned seed);
/// Round-headed cobbles.
QImage cobbles(QSize size, const QColor& colour, double stone, unsigned seed);

}  // namespace quorvel::sample
