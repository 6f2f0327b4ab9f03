/// Texts that the canvas says.
#pragma once

#include <QSize>
#include <QString>

#include "forms/boxes.h"
#include "store/scene.h"

namespace quorvel::canvas {

/// The four panels of the status line.
struct StatusText {
    QString object;
    QString index;
    QString position;
    QString size;

    friend bool operator==(const StatusText&, const StatusText&) = default;
};

/// What the panels read while the pointer is over nothing.
[[nodiscard]] StatusText emptyStatus();

/// A number as text with the place for its sign: a blank, or the minus.
[[nodiscard]] QString signedText(int number);

/// "Left", "Up", "Right" or "Down".
[[nodiscard]] QString directionName(store::LinkSide side);

/// What the status line says of an entry whose window nobody has built yet.
[[nodiscard]] QString windowToCome();

/// The box behind the scene size alert. `size` is that of the scene's picture, in pixels.
[[nodiscard]] forms::Box sceneSizeAlert(QSize size);

}  // namespace quorvel::canvas
