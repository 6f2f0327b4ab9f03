#include "canvas/texts.h"

namespace quorvel::canvas {

StatusText emptyStatus() {
    return {QStringLiteral("Object: ---"), QStringLiteral("Index: ---"), QStringLiteral("Pos: ---"),
            QStringLiteral("Size: ---")};
}

QString signedText(int number) {
    const QString digits = QString::number(number);
    return number < 0 ? digits : QLatin1Char(' ') + digits;
}

QString directionName(store::LinkSide side) {
    switch (side) {
        case store::LinkSide::left:
            return QStringLiteral("Left");
        case store::LinkSide::up:
            return QStringLiteral("Up");
        case store::LinkSide::right:
            return QStringLiteral("Right");
        case store::LinkSide::down:
            break;
    }
    return QStringLiteral("Down");
}

QString windowToCome() {
    return QStringLiteral("This window is not part of this version yet.");
}

forms::Box sceneSizeAlert(QSize size) {
    return {.text = QStringLiteral("The dimensions of the image file for this scene are incorrect."
                                   "\nAs a result, it may not appear correctly in the game."
                                   "\n\nScene images should be 700 wide X 475 high."
                                   "\n\nThis scene image is%1 wide X%2 high."
                                   "\n\nA difference of a few pixels may not be too noticable, but "
                                   "a major difference is.")
                        .arg(signedText(size.width()), signedText(size.height())),
            .title = QStringLiteral("Scene Size Alert")};
}

}  // namespace quorvel::canvas
