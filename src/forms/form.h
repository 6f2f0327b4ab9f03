/// What all windows of the editor share.
#pragma once

#include <QDialog>
#include <QString>

class QBoxLayout;
class QPushButton;

namespace quorvel::forms {

/// A modal window. On a screen over 800 wide and over 600 high it opens in the middle, on a smaller
/// one at the top.
class Form : public QDialog {
    Q_OBJECT
  public:
    /// `name` is the window's system name, which is its Qt object name too.
    Form(const QString& name, const QString& title, QWidget* parent);

  protected:
    void showEvent(QShowEvent* event) override;

    /// A button with its system name and caption, at the end of `row`.
    QPushButton* addButton(QBoxLayout* row, const QString& name, const QString& caption);
};

/// The standard distance between a window's frame and its content, and between groups, in pixels.
inline constexpr int kFormMargin = 12;
inline constexpr int kFormSpacing = 8;

/// The text `name(index)`, the object name of a control array's element.
QString elementName(const QString& name, int index);

}  // namespace quorvel::forms
