/// A line that says something about the control above it.
#pragma once

#include <QLabel>

namespace quorvel::forms {

/// Takes room only while it says something. It wraps, between words where it can and inside of them
/// where it must, as in a path; screen readers are told when it comes.
class NoteLine : public QLabel {
    Q_OBJECT
  public:
    NoteLine(const QString& name, QWidget* parent);

    /// Says `text`; an empty one takes the line away.
    void tell(const QString& text);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace quorvel::forms
