/// What holds for every window: its controls bear their names, can be read aloud, fit the screen,
/// show their texts whole and are reached by the keyboard.
#pragma once

#include <QSize>
#include <QString>
#include <QWidget>

namespace quorvel::test {

/// What a window manager puts around a window.
inline constexpr QSize kFrame(8, 34);
/// The smallest screen that a window has to fit.
inline constexpr QSize kScreen(800, 600);

/// Class and name of a widget, for messages.
QString nameOf(const QWidget& widget);
/// True for what the toolkit makes inside of its own controls.
bool isInside(const QWidget& widget);

void expectNames(const QWidget& window);
void expectNoCutText(const QWidget& window);
/// Not asked of letters of double size, which need a larger screen.
void expectFits(const QWidget& window);
/// Every control that takes the keyboard is met when Tab is pressed often enough.
void expectTabReachesAll(QWidget& window);

}  // namespace quorvel::test
