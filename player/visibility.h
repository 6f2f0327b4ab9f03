/// Which objects a scene begins with.
#pragma once

#include "store/objects.h"

namespace quorvel::player {

/// Whether the comparison, 0 "=", 1 "<>", 2 "<", 3 ">", holds between a flag's value and another.
/// A comparison that does not exist never holds.
[[nodiscard]] bool holds(int flag, int comparison, int value);

/// True when the object is seen at the start of a game, when all flags are 0. Objects without a
/// picture or a rectangle of their own are never seen.
[[nodiscard]] bool isVisibleAtStart(const store::ObjectSlot& slot);

/// True when the picture of the object moves by itself; otherwise it rests on its first frame until
/// something happens to it.
[[nodiscard]] bool movesByItself(const store::ObjectSlot& slot);

/// The scene that a click on the object leads to at the start of a game; 0 when it leads to none.
/// Where an item is required, nobody has it yet.
[[nodiscard]] int sceneBehind(const store::ObjectSlot& slot);

/// The mouse pointer over the object, 0 for the normal one.
[[nodiscard]] int pointerOver(const store::ObjectSlot& slot);

}  // namespace quorvel::player
