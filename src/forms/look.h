/// The look that all windows share: style, palettes, icons.
#pragma once

#include <QIcon>
#include <QString>

class QApplication;

namespace quorvel::forms {

enum class Look { desktop, light, dark };

/// The look that the environment asks for by QUORVEL_LOOK ("light" or "dark"), else the desktop's.
Look lookFromEnvironment();

/// Gives the application its style, palette and manners. Call it once, before the first window. The
/// desktop's palette is taken over as far as its texts can be read.
void applyLook(QApplication& application, Look look);

/// An icon of the set in assets/icons, by file name without ending. An unknown name is a fault of
/// the program.
QIcon icon(const QString& name);

/// The same for a button of 20 or 24 pixels, at normal and at double scale. Disabled it fades:
/// greyed alone, an icon of few colours looks much the same on a dark bar.
QIcon buttonIcon(const QString& name);

/// The file of a stock picture in assets/stock, by name without ending; readable by Qt's readers.
QString stockPicture(const QString& name);

}  // namespace quorvel::forms
