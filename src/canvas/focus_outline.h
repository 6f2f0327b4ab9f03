/// The mark around the element of the canvas that the keyboard works on.
#pragma once

#include <vector>

#include <QPointer>
#include <QWidget>

#include "canvas/elements.h"

namespace quorvel::canvas {

/// Follows the focus among `elements` and lies over all of them. It appears when the focus came by
/// the keyboard or a key is pressed, and leaves when the mouse takes over. The mouse does not
/// notice it. Owned by the canvas, its parent.
class FocusOutline : public QWidget {
    Q_OBJECT
  public:
    FocusOutline(const std::vector<SceneElement*>& elements, QWidget* canvas);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void gotFocus(SceneElement& element, Qt::FocusReason reason);
    void lostFocus(Qt::FocusReason reason);
    void follow();

    QPointer<SceneElement> focused_;
    bool byKeyboard_ = false;
};

}  // namespace quorvel::canvas
