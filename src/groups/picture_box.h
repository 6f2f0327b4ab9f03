/// A small place that shows a picture, still or playing.
#pragma once

#include <QWidget>

#include "forms/pictures_playhead.h"

namespace quorvel::groups {

/// A picture larger than the place is made smaller, keeping its shape; one that is smaller stays as
/// it is, in the middle. Drawn in the pixels of the screen, so that it is sharp at every scale.
class PictureBox : public QWidget {
    Q_OBJECT
  public:
    /// `size` in logical pixels, without the frame.
    PictureBox(const QString& name, const QString& spoken, QSize size, QWidget* parent);

    /// Null empties the place. An animation plays.
    void setPicture(forms::PicturePtr picture);
    [[nodiscard]] const forms::PicturePtr& picture() const { return playhead_.picture(); }

    void setMode(forms::DisplayMode mode);
    [[nodiscard]] const forms::Playhead& playhead() const { return playhead_; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    forms::Playhead playhead_;
};

/// Sizes of pictures in property windows.
inline constexpr QSize kThumbnail(112, 76);  // the shape of a scene
inline constexpr QSize kIcon(36, 36);

}  // namespace quorvel::groups
