/// What all controls and windows do alike, whoever made them.
#pragma once

#include <QObject>

class QWidget;

namespace quorvel::forms {

/// Four habits, each taught to a widget when it gets its style:
///
/// - A list, slider or number field without the keyboard is left alone by a wheel that is turned
///   over it in passing; what lies below it scrolls. A wheel does not give it the keyboard.
/// - Page keys that nobody else takes scroll what scrolls in the window.
/// - A box that is only read is no stop of the Tab key. A click in it selects what it holds.
/// - A modal window does not stay minimised: the windows behind it would seem dead.
class Manners : public QObject {
    Q_OBJECT
  public:
    using QObject::QObject;

    /// May be called more than once for a widget.
    void teach(QWidget& widget);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace quorvel::forms
