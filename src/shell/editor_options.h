/// The window with the editor's own settings.
#pragma once

#include <array>
#include <functional>

#include "forms/form.h"
#include "shell/editor_settings.h"

class QLabel;
class QPushButton;
class QRadioButton;

namespace quorvel::shell {

/// Takes the two folder choices each time it is opened. Apply is the dirty flag; what was not
/// applied is forgotten with Cancel.
class EdOptions : public forms::Form {
    Q_OBJECT
  public:
    /// `settings` must outlive the window. `help` shows the window's help topic; without it the
    /// Help button is disabled.
    EdOptions(EditorSettings& settings, const std::function<void()>& help, QWidget* parent);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    QWidget* initialFolder();
    QWidget* wrongFolders();
    QWidget* quickTips();
    /// An option that makes the window dirty.
    QRadioButton* addOption(QWidget* frame, const QString& name, int index, const QString& caption);
    QLabel* addText(QWidget* frame, const QString& name, const QString& text);

    void Command3_Click();
    void Command4_Click();

    EditorSettings& settings_;
    std::array<QRadioButton*, 2> defaultFolder_{};  // `Option2`
    std::array<QRadioButton*, 3> wrongFolder_{};    // `Option1`
    QPushButton* apply_ = nullptr;
};

}  // namespace quorvel::shell
