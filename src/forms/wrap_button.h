/// A push button whose caption may take several lines.
#pragma once

#include <QPushButton>

namespace quorvel::forms {

/// Its width is given from outside; the caption wraps at blanks and the height follows.
class WrapButton : public QPushButton {
    Q_OBJECT
  public:
    explicit WrapButton(const QString& caption, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace quorvel::forms
