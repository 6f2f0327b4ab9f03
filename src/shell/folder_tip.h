/// The text that speaks of a button of the folder dialog.
#pragma once

#include <QLabel>

namespace quorvel::shell {

/// Its first long gap is where the picture of that button stands. A later one is drawn as one
/// blank. The text itself keeps its gaps.
class FolderTip : public QLabel {
    Q_OBJECT
  public:
    FolderTip(const QString& text, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    /// What is drawn: the text, the first gap as long as the picture and its distances.
    [[nodiscard]] QString drawn() const;
    [[nodiscard]] int pictureSide() const { return fontMetrics().height(); }
    /// Blanks that the picture takes.
    [[nodiscard]] int pictureBlanks() const;
};

}  // namespace quorvel::shell
