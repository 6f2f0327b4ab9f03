/// Where a movie is seen.
#pragma once

#include <QWidget>

#include "media/movie_frames.h"

namespace quorvel::forms {

/// Shows the frames of a movie in the middle of its parent, in their own size or as large as fits.
/// It is seen while a movie plays and at no other time.
class MoviePlayer : public QWidget {
    Q_OBJECT
  public:
    /// `frames` must outlive the widget. `area` is the parent, whose middle the movie takes.
    MoviePlayer(const media::MovieFrames& frames, QWidget* area);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void followFrame();
    void place();

    const media::MovieFrames& frames_;
    QSize size_;  ///< of the movie, in its own pixels
};

}  // namespace quorvel::forms
