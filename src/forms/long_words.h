/// Words that are too long for a line of a box, as names of files may be.
#pragma once

#include <QObject>
#include <QTextLayout>

class QLabel;
class QMessageBox;

namespace quorvel::forms {

/// Paints the text of a label so that a word wider than a line is broken where the line ends; the
/// toolkit's labels break between words alone. The text stays as it is, for those who copy or read
/// it. Belongs to the label.
class LongWordText : public QObject {
    Q_OBJECT
  public:
    /// Lines are `width` wide at most; the label gets the size of its text.
    LongWordText(QLabel* label, int width);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void layOut();
    void paint();
    /// Where the label begins its text.
    [[nodiscard]] int left() const;

    QLabel* label_;
    int width_;
    QTextLayout layout_;
};

/// Lets the text of `box` break inside a word if it has one that is too long.
void breakLongWords(QMessageBox& box);

}  // namespace quorvel::forms
