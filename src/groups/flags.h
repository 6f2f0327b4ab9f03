/// Game flags: a test of one, the setting of one, and the visibility that hangs on a test.
#pragma once

#include "groups/controls.h"
#include "groups/number_box.h"
#include "groups/sheet.h"

namespace quorvel::groups {

/// A number box of a window: a change of it is one of the window.
NumberBox* makeNumber(Sheet& sheet, NumberRule rule, const char* name, const char* spoken,
                      QWidget* parent);

/// Compares a flag with a value: "Flag", its number, an operator, the value. What it ticks is up to
/// its owner, by `used`.
class FlagTest : public QObject {
    Q_OBJECT
  public:
    struct Names {
        const char* flag = "FlagID(0)";
        const char* comparison = "Combo2";
        const char* value = "Text3(0)";
        const char* caption = "Flag";
        const char* label = "";  ///< name of the caption
        NumberRule rule = NumberRule::flag;
    };
    FlagTest(Sheet& sheet, const Names& names, QWidget* parent);

    NumberBox* flag;
    QComboBox* comparison;
    NumberBox* value;

    /// Puts the controls at the end of `row`.
    void addTo(QBoxLayout* row);

  Q_SIGNALS:
    /// The author has typed a number or picked an operator.
    void used();

  private:
    QLabel* label_;
};

/// Sets a flag to a value or adds the value to it. A check box, where there is one, switches it on.
class FlagSet : public QObject {
    Q_OBJECT
  public:
    /// What ticks the check box.
    enum class Ticking : std::uint8_t { byNumbersAndAdd, never };
    struct Names {
        const char* frame = "Frame9";
        const char* frameCaption = "Set Flag";
        const char* on = "Check3";  ///< empty for none
        const char* caption = "Set Flag";
        const char* flag = "FlagID(1)";
        const char* value = "Text3(1)";
        const char* add = "Check4";
        NumberRule rule = NumberRule::flag;
        Ticking ticking = Ticking::byNumbersAndAdd;
    };
    FlagSet(Sheet& sheet, const Names& names, QWidget* parent);

    QGroupBox* frame;
    QCheckBox* on = nullptr;
    NumberBox* flag;
    NumberBox* value;
    QCheckBox* add;

  Q_SIGNALS:
    /// The author has clicked the switch, or used what ticks it.
    void ticked();

  private:
    void tick();

    Ticking ticking_;
};

/// "Always visible" or "Visible when:" a test holds. The test keeps its values in either case.
class Visibility : public QObject {
    Q_OBJECT
  public:
    struct Names {
        const char* frame = "Frame8";
        const char* caption = "Visibility";
        const char* options = "Option3";
        FlagTest::Names test = {};
    };
    Visibility(Sheet& sheet, const Names& names, QWidget* parent);

    static constexpr int kAlways = 1;
    static constexpr int kWhen = 2;

    QGroupBox* frame;
    OptionGroup* options;
    FlagTest* test;
};

}  // namespace quorvel::groups
