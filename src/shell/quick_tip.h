/// Quick Tips: what an author is told once, before a feature is first used.
#pragma once

#include "forms/boxes.h"
#include "forms/form.h"
#include "shell/editor_settings.h"

class QCheckBox;
class QLabel;

namespace quorvel::shell {

/// The text of Quick Tip `number`, 1 to `kQuickTips`. Another number is a fault of the program.
QString quickTipText(int number);

/// False when the author has turned off Quick Tip `number`, or all of them.
bool isQuickTipOn(const EditorSettings& settings, int number);

class QuickTip : public forms::Form {
    Q_OBJECT
  public:
    /// The window for Quick Tip `number`. `settings` and `boxes` must outlive it.
    QuickTip(int number, EditorSettings& settings, forms::Boxes& boxes, QWidget* parent);

  private:
    void TipsOFF_Click();
    void Command1_Click();

    int number_;
    EditorSettings& settings_;
    forms::Boxes& boxes_;
    QLabel* tipText_ = nullptr;
    QCheckBox* noMoreTip_ = nullptr;
    QCheckBox* tipsOff_ = nullptr;
};

}  // namespace quorvel::shell
