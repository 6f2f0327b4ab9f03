/// Plays the frames of one shown picture.
#pragma once

#include <cstdint>
#include <memory>

#include <QImage>
#include <QObject>
#include <QTimer>

#include "forms/pictures.h"
#include "forms/pictures_frames.h"

namespace quorvel::forms {

/// How an animation runs.
enum class DisplayMode : std::uint8_t {
    loop,  ///< from the first frame to the last, for as many rounds as the file names, else ever
    pingPong,  ///< to the last frame and back, for ever
    once,      ///< to the last frame, where it stays
};

/// A place in an animation and the timer that moves it. The timer runs only while the playhead
/// plays, is not suspended, and has another frame to come: everything else costs nothing.
///
/// An animation whose frames do not fit into memory is read as a stream, which runs forward only.
class Playhead : public QObject {
    Q_OBJECT
  public:
    explicit Playhead(QObject* parent);

    /// Stops and shows the first frame of `picture`, which may be null.
    void setPicture(PicturePtr picture);
    [[nodiscard]] const PicturePtr& picture() const { return picture_; }

    /// Takes effect with the next frame.
    void setMode(DisplayMode mode) { mode_ = mode; }
    [[nodiscard]] DisplayMode mode() const { return mode_; }

    /// Plays from the first frame; while it plays, nothing changes.
    void play();
    /// Stops and goes back to the first frame.
    void stop();
    [[nodiscard]] bool isPlaying() const { return playing_; }

    /// Holds the animation where it is while nobody can see it.
    void setSuspended(bool suspended);

    /// The frame to be shown; null without a picture.
    [[nodiscard]] const QImage& frame() const { return frame_; }
    /// True while a frame is to come.
    [[nodiscard]] bool isTicking() const { return timer_.isActive(); }

  Q_SIGNALS:
    void frameChanged();

  private:
    void advance();
    bool advanceKept();
    bool advanceStream();
    bool beginRound(int count);
    void show(const Frame& frame);
    void schedule();

    PicturePtr picture_;
    std::shared_ptr<PictureFrames> frames_;  // while playing
    std::unique_ptr<FrameStream> stream_;    // when the frames do not fit
    QTimer timer_;
    QImage frame_;
    std::size_t number_ = 0;
    int delay_ = 0;
    int round_ = 0;
    DisplayMode mode_ = DisplayMode::loop;
    bool backward_ = false;
    bool playing_ = false;
    bool suspended_ = false;
};

}  // namespace quorvel::forms
