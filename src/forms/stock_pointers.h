/// The drawings that stand for the mouse pointers of a game.
#pragma once

#include <QString>

namespace quorvel::forms {

/// The stock picture that stands for mouse pointer `number` where a game has no file of its own for
/// it. Pointers are 1 to 15 as the settings of a game number them; empty where there is no drawing.
[[nodiscard]] QString stockPointer(int number);

}  // namespace quorvel::forms
