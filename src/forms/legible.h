/// Palettes in which every text can be read.
#pragma once

#include <QColor>
#include <QPalette>

namespace quorvel::forms {

/// The contrast from which on a text can be read by people with poor sight; the least there is is
/// 1, black on white has 21.
inline constexpr double kLegible = 4.5;

/// Contrast of two colours without transparency, 1 to 21.
double contrastOf(const QColor& one, const QColor& other);

/// `palette` with its texts, those that are off too, moved away from their grounds until they can
/// be read. Of a selection it is the ground that moves. All its colours are set, so that a desktop
/// that changes its own later does not change half of it.
QPalette legible(const QPalette& palette);

}  // namespace quorvel::forms
