/// The window that sizes an edge link.
#pragma once

#include <array>
#include <functional>

#include "canvas/elements.h"
#include "forms/boxes.h"
#include "forms/form.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace quorvel::canvas {

class ResizeD : public forms::Form {
    Q_OBJECT
  public:
    /// The link that is sized, as it stands on the canvas. Pixels.
    struct Link {
        store::LinkSide side;
        std::function<Place()> place;
        std::function<void(const Place&)> setPlace;
    };
    /// Without `help` the Help button is disabled.
    ResizeD(Link link, forms::Boxes& boxes, const std::function<void()>& help, QWidget* parent);

  private:
    void build(const std::function<void()>& help);
    QWidget* buildOptions();
    QWidget* buildSizes();
    void Option1_Click(int index);
    void Text1_Change();
    bool apply();
    void Command3_Click();
    [[nodiscard]] int chosen() const;
    [[nodiscard]] Place proposed() const;
    /// What the author typed for the height, 0, or the width, 1. May lie outside 16 bits.
    [[nodiscard]] int customSide(std::size_t side) const;
    bool checkCustom();
    void showSizes();

    Link link_;
    forms::Boxes& boxes_;
    std::array<QRadioButton*, 5> options_{};
    std::array<QLineEdit*, 2> custom_{};  // height, width
    std::array<QLabel*, 4> sizes_{};      // current width, height, proposed width, height
    QLabel* restoreIt_ = nullptr;
    QPushButton* applyButton_ = nullptr;
};

}  // namespace quorvel::canvas
