/// The window that asks what to do with a file that lies outside the project.
#pragma once

#include "forms/standing_form.h"
#include "resources/intake.h"

namespace quorvel::forms {

/// Can be left by its two buttons only.
class PickCM : public StandingForm {
    Q_OBJECT
  public:
    explicit PickCM(QWidget* parent);

    /// The answer; `none` until a button was clicked.
    resources::Pick PickChoice = resources::Pick::none;

  private:
    void Command1_Click(int index);
};

}  // namespace quorvel::forms
