/// An option button whose caption may take several lines.
#pragma once

#include <vector>

#include <QWidget>

class QLabel;
class QRadioButton;

namespace quorvel::forms {

/// A radio button with a label beside it that wraps; a click on the label is a click on the
/// button. The caption is the button's accessible name.
class OptionText : public QWidget {
    Q_OBJECT
  public:
    OptionText(const QString& caption, QWidget* parent);

    [[nodiscard]] QRadioButton* button() const { return button_; }

    /// Makes the options exclude each other though they lie in different widgets. `owner` owns the
    /// group.
    static void group(QObject* owner, const std::vector<QRadioButton*>& options);
    /// No option of the group is chosen any more.
    static void clear(const std::vector<QRadioButton*>& options);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QRadioButton* button_;
    QLabel* label_;
};

}  // namespace quorvel::forms
