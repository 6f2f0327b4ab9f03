/// A text box for a number: the key rule and the range rule.
#pragma once

#include <cstdint>
#include <functional>

#include <QLineEdit>

namespace quorvel::groups {

/// What a number box takes.
enum class NumberRule : std::uint8_t {
    flag,      ///< digits; a value outside 1 to 255 becomes 1 when the box is left
    freeFlag,  ///< digits, of any value
    digits,    ///< digits, of any value
    value,     ///< digits and the minus sign, wherever it stands
};

/// Backspace and what moves about pass; a key that the rule does not take beeps and is dropped. The
/// text may be longer than any number: what reads it decides.
class NumberBox : public QLineEdit {
    Q_OBJECT
  public:
    NumberBox(NumberRule rule, std::function<void()> beep, QWidget* parent);

    /// The number that the text begins with, rounded; 0 of an empty box. May lie outside 16 bits.
    [[nodiscard]] int number() const;

    /// Why the number cannot be stored: it has more than 16 bits. Empty when it can.
    [[nodiscard]] QString problem() const;

    /// The range rule, as when the box is left.
    void mend();

  Q_SIGNALS:
    /// The author put a character in that the rule takes.
    void typed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    NumberRule rule_;
    std::function<void()> beep_;
    bool takingAway_ = false;
};

}  // namespace quorvel::groups
