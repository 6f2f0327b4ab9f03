/// The two status lines below the canvas.
#pragma once

#include <array>

#include <QWidget>

#include "canvas/texts.h"

class QLabel;

namespace quorvel::shell {

/// `StatusBar1` with four panels about what is under the pointer, `StatusBar2` with the object
/// count. A notice, which an author has to read without having asked, stands in the place of the
/// first while no object is under the pointer.
class StatusLines : public QWidget {
    Q_OBJECT
  public:
    static constexpr int kPanels = 4;

    explicit StatusLines(QWidget* parent);

    /// The four panels of `StatusBar1`.
    void show(const canvas::StatusText& text);
    /// The panel of `StatusBar2`: as it stands, or with the number of objects in the scene.
    void setCount(const QString& text);
    void showCount(int objects);

    /// The notice; an empty text takes it away.
    void showNotice(const QString& text);

    /// A line over both, about the entry that is under the pointer; an empty one goes away.
    void showTip(const QString& text);

  private:
    std::array<QLabel*, kPanels> panels_{};
    QLabel* count_ = nullptr;
    QLabel* notice_ = nullptr;
    QLabel* tip_ = nullptr;
};

}  // namespace quorvel::shell
