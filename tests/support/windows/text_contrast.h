/// How well the texts of a window can be read: what is painted, not what a palette promises.
#pragma once

#include <vector>

#include <QColor>
#include <QString>
#include <QWidget>

namespace quorvel::test {

/// The least contrast of a text, 1 to 21, that people with poor sight can read.
inline constexpr double kReadable = 4.5;

/// Contrast of two colours, 1 (none) to 21 (black on white).
double contrast(const QColor& one, const QColor& other);

/// A text as a window paints it.
struct PaintedText {
    QString text;
    QColor pen;
    QColor ground;    ///< the worst that lies behind it
    double contrast;  ///< of the two
};

/// All texts that `widget` paints now, its children's too.
std::vector<PaintedText> paintedTexts(QWidget& widget);

/// Every text of `widget`, also of what is off, stands out from what lies behind it.
void expectReadable(QWidget& widget);

}  // namespace quorvel::test
