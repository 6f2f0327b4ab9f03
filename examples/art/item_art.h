/// Pictures of what the player can carry, and the mouse pointers.
#pragma once

#include <string>
#include <vector>

#include <QImage>
#include <QPoint>

namespace quorvel::sample {

enum class Item { brassLamp = 1, oilCan, filledLamp, matches, litLamp, ironKey, herring, letter };

/// The number that the records of the game know an item by.
constexpr int number(Item item) {
    return static_cast<int>(item);
}

/// 32 by 32, clear around the item. With `shining` a light lies behind it.
QImage itemIcon(Item item, bool shining);
/// A view from near, 320 by 240; `frame` of `kCloseupFrames` moves what burns.
inline constexpr int kCloseupFrames = 8;
QImage itemCloseup(Item item, int frame);

struct PointerArt {
    std::string file;
    QImage picture;
    QPoint hotSpot;
};
/// The fifteen pointers in the order of the game settings.
std::vector<PointerArt> pointerArt();

}  // namespace quorvel::sample
