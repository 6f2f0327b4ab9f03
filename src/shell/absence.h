/// What is told and what stands open when nobody is there any more: the system ends the editor.
#pragma once

#include <cstdint>
#include <functional>

#include <QString>

#include "forms/boxes.h"

class QWidget;

namespace quorvel::shell {

/// Takes a line of text for whoever started the program.
using Complain = std::function<void(const QString&)>;

/// The author's boxes as long as the author is there. Afterwards a box becomes a line and is
/// answered as by Escape.
class AttendedBoxes : public forms::Boxes {
  public:
    /// `author` must outlive this.
    AttendedBoxes(forms::Boxes& author, Complain complain);

    forms::Answer show(const forms::Box& box) override;

    void setAttended(bool on) { isAttended_ = on; }

  private:
    forms::Boxes& author_;
    Complain complain_;
    bool isAttended_ = true;
};

enum class LeftWindow : std::uint8_t {
    none,     ///< none stood before the others
    closed,   ///< one is closed; those behind it are next
    working,  ///< the one in front shows work that has to be waited for
};

/// Closes the modal window that is in front. A property window is left as by OK; when it refuses,
/// and for every other window, a line says what was dropped.
LeftWindow leaveFrontWindow(const Complain& complain);

}  // namespace quorvel::shell
