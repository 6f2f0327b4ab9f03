/// What all windows of the editor share.
#pragma once

#include <functional>
#include <vector>

#include <QDialog>
#include <QString>

class QBoxLayout;
class QKeyEvent;
class QLayout;
class QPushButton;
class QScrollArea;
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
/// one at the top. One that its screen has no room for scrolls, but for the row of buttons at its
/// foot.
class Form : public QDialog {
    Q_OBJECT
  public:
    /// `name` is the window's system name, which is its Qt object name too.
    Form(const QString& name, const QString& title, QWidget* parent);

    /// True when the window shows how work goes on that must not be cut off.
    [[nodiscard]] virtual bool isWorking() const { return false; }

  protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

    /// The column that a window's groups stand in, from top to bottom.
    QVBoxLayout* makeColumn();
    /// The row of buttons at the foot of a window. Returns them in the order given.
    std::vector<QPushButton*> addButtonRow(QVBoxLayout* column,
                                           const std::vector<FormButton>& buttons);

    /// A button with its system name and caption, at the end of `row`.
    QPushButton* addButton(QBoxLayout* row, const QString& name, const QString& caption);

    /// What stays in sight when the window has to scroll: the last row of buttons, unless this says
    /// that it stands in a larger layout.
    void setFoot(QLayout* foot) { foot_ = foot; }
    /// The widget around the foot while the window scrolls, else null.
    [[nodiscard]] QWidget* standingFoot() const { return standingFoot_; }

  private:
    void letContentScroll();
    [[nodiscard]] int heightOfContent() const;
    void growWithContent();

    QLayout* foot_ = nullptr;
    QWidget* standingFoot_ = nullptr;
    QScrollArea* scroll_ = nullptr;
    int contentHeight_ = 0;  // the most that the content has needed since the window was shown
    int givenHeight_ = 0;    // of the window, as it was last made here
};

/// The standard distance between a window's frame and its content, and between groups, in pixels.
inline constexpr int kFormMargin = 12;
inline constexpr int kFormSpacing = 8;

/// What a desktop usually puts around a window, in logical pixels.
inline constexpr QSize kFrameRoom(8, 34);

/// The text `name(index)`, the object name of a control array's element.
QString elementName(const QString& name, int index);

}  // namespace quorvel::forms
