/// The mouse pointers of a game.
#pragma once

#include <map>

#include <QCursor>

#include "player/game.h"

namespace quorvel::player {

/// The game's own pointer files, and built-in pointers where it has none.
class Pointers {
  public:
    /// `game` must outlive it.
    explicit Pointers(const Game& game) : game_(game) {}

    /// Pointer `index`, 1 to 15 as the settings number them; 0 and every other number are the
    /// normal one.
    [[nodiscard]] const QCursor& pointer(int index);

  private:
    [[nodiscard]] QCursor make(int index) const;

    const Game& game_;
    std::map<int, QCursor> made_;
};

/// The pointer in the cursor or icon file `file`: its first picture, pressed where a cursor file
/// says and else in its upper left corner. The arrow when the file holds none.
QCursor pointerFromFile(const std::filesystem::path& file);

}  // namespace quorvel::player
