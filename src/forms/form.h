/// What all windows of the editor share.
#pragma once

#include <functional>
#include <vector>

#include <QDialog>
#include <QString>

class QBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace quorvel::forms {

/// A button at the foot of a window. Without an answer it is disabled.
struct FormButton {
    /// `byEnter`: Enter clicks it. `help`: F1 does.
    enum class Role : std::uint8_t { ordinary, byEnter, help };

    const char* name;
    const char* caption;
    std::function<void()> onClick;
    Role role = Role::ordinary;
};

/// A modal window. On a screen over 800 wide and over 600 high it opens in the middle, on a smaller
/// one at the top.
class Form : public QDialog {
    Q_OBJECT
  public:
    /// `name` is the window's system name, which is its Qt object name too.
    Form(const QString& name, const QString& title, QWidget* parent);

  protected:
    void showEvent(QShowEvent* event) override;

    /// The column that a window's groups stand in, from top to bottom.
    QVBoxLayout* makeColumn();
    /// The row of buttons at the foot of a window. Returns them in the order given.
    std::vector<QPushButton*> addButtonRow(QVBoxLayout* column,
                                           const std::vector<FormButton>& buttons);

    /// A button with its system name and caption, at the end of `row`.
    QPushButton* addButton(QBoxLayout* row, const QString& name, const QString& caption);
};

/// The standard distance between a window's frame and its content, and between groups, in pixels.
inline constexpr int kFormMargin = 12;
inline constexpr int kFormSpacing = 8;

/// The text `name(index)`, the object name of a control array's element.
QString elementName(const QString& name, int index);

}  // namespace quorvel::forms
