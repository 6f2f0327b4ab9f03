/// The Tip of the Day.
#pragma once

#include "forms/form.h"
#include "shell/editor_settings.h"

class QCheckBox;
class QLabel;

namespace quorvel::shell {

inline constexpr int kDayTips = 23;

/// The text of tip `number`, 1 to `kDayTips`. Another number is a fault of the program.
QString dayTipText(int number);

/// The tip that follows tip `last`: 1 after the final one, and after a number that no tip has.
int nextDayTip(int last);

class frmTip : public forms::Form {
    Q_OBJECT
  public:
    /// `settings` must outlive the window.
    frmTip(EditorSettings& settings, QWidget* parent);

    /// Shows the window without waiting for it.
    void showBeside();
    /// Shows the window modally, or brings it to the front when it is on the screen.
    void showModal();

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void showTip(int number);
    void chkLoadTipsAtStartup_Click(bool on);
    void cmdOK_Click();

    EditorSettings& settings_;
    int tip_ = 0;
    QLabel* tipText_ = nullptr;
    QCheckBox* atStartup_ = nullptr;
};

}  // namespace quorvel::shell
