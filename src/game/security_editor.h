/// The window that turns Project Security on and off.
#pragma once

#include <functional>

#include "forms/boxes.h"
#include "forms/form.h"
#include "store/project.h"

class QRadioButton;

namespace quorvel::game {

/// Choosing ON draws a new code at once; nothing of it reaches the files before the project is
/// closed, so the window needs no way back.
class ProjSecurity : public forms::Form {
    Q_OBJECT
  public:
    /// `random` gives numbers from 0 up to but not including 1. `help` shows the window's help
    /// topic; without it the Help button is disabled.
    ProjSecurity(store::Project& project, forms::Boxes& boxes, std::function<double()> random,
                 const std::function<void()>& help, QWidget* parent);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void build(const std::function<void()>& help);
    void Option1_Click(int index);
    void Command1_Click();

    store::Project& project_;
    forms::Boxes& boxes_;
    std::function<double()> random_;
    QRadioButton* on_ = nullptr;
    QRadioButton* off_ = nullptr;
};

}  // namespace quorvel::game
