/// An author who wants Quick Tips, reads each and leaves it with OK.
#pragma once

#include <functional>
#include <vector>

#include <QTimer>

#include "shell/shell.h"

namespace quorvel::test {

class TipReader {
  public:
    /// Turns the Quick Tips of `shell` on and reads them as long as this lives.
    explicit TipReader(shell::Shell& shell);

    std::vector<int> tips;            ///< numbers of the tips so far
    std::function<void()> whileRead;  ///< runs while a tip is on the screen

  private:
    void read();

    QTimer look_;
};

}  // namespace quorvel::test
