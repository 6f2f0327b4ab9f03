/// Carrying objects and edge links about with the mouse, and moving them with the keyboard.
///
/// Data flow: a press on an element begins a drag; a ghost of it follows the pointer until the
/// button is released over the canvas, which is a drop. Every move, the keyboard's too, ends in
/// `SceneView::DropElement`.
#pragma once

#include <QMouseEvent>
#include <QObject>
#include <QPoint>

#include "canvas/scene_view.h"

namespace quorvel::canvas {

class DragGhost;

/// Part of `ObjectActions`, and of nobody else; the ghost belongs to the canvas. The view may go
/// first.
class Dragging : public QObject {
    Q_OBJECT
  public:
    /// Nothing can be moved in a scene that has no record of its own. The project must outlive it.
    Dragging(SceneView& view, const store::Project& project);

    // The drag that is under way.
    int DraggingObject = 0;  ///< 1 while an object is carried; stays 0 for a link
    int DragIndex = 0;       ///< object carried, 99 for a link
    int DragOffsetX = 0;     ///< where the element was taken hold of, in pixels
    int DragOffsetY = 0;
    int CurrentLink = 0;  ///< link last pressed, 1 to 4

    [[nodiscard]] bool isDragging() const { return carried_ != nullptr; }

    /// Puts the element that is carried back where it was taken.
    void cancel();

    /// The drop on the button `Command4`: the element goes to the corner of the canvas, and its
    /// slot does not change before the next drop. Nothing shows that button.
    void DropOnCommand4();

    /// The drop of a `Sizer` handle, 0 to 3, at a point of the canvas: 0 and 3 move the link
    /// `CurrentLink` there, 1 and 2 give it the size that reaches there. Nothing shows the handles.
    void DropSizer(int index, QPoint at);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void take(SceneElement& element, QPoint global);
    void follow(QPoint global);
    void drop(QPoint global);
    void letGo();
    bool pressed(SceneElement& element, QEvent& event);
    bool whileCarrying(const QObject& watched, QEvent& event);
    bool mouseWhileCarrying(QMouseEvent& mouse);
    /// Where the carried element would be with the pointer at a point of the screen.
    [[nodiscard]] QPoint placeAt(QPoint global) const;
    bool keyPressed(SceneElement& element, QEvent& event);

    SceneView& view_;
    const store::Project& project_;
    SceneElement* carried_ = nullptr;
    DragGhost* ghost_;
};

}  // namespace quorvel::canvas
