/// A window that stands until the program or one of its own buttons takes it away.
#pragma once

#include "forms/form.h"

namespace quorvel::forms {

/// Escape and the frame do nothing; there is no button in the title bar. A derived window closes
/// itself by `done` or `hide`.
class StandingForm : public Form {
    Q_OBJECT
  public:
    StandingForm(const QString& name, const QString& title, QWidget* parent);

    void reject() override {}

  protected:
    void closeEvent(QCloseEvent* event) override;
};

}  // namespace quorvel::forms
