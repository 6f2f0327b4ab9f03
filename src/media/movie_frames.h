/// Where the pictures of a movie arrive.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <utility>

#include <QImage>
#include <QObject>

#include "media/outbox.h"

namespace quorvel::media {

/// The newest frame of one play; the threads of the decoder put, the event loop takes.
class FrameBox {
  public:
    explicit FrameBox(QObject* receiver, std::function<void()> changed)
        : outbox_(receiver), changed_(std::move(changed)) {}

    /// Frames are taken from play `id` alone from now on; the frame is emptied. 0 takes none.
    void expect(std::uint64_t id);
    /// A frame of play `id`, which replaces the one before. While the receiver has not heard of an
    /// earlier one it is not told again.
    void put(std::uint64_t id, QImage frame);
    [[nodiscard]] QImage look();
    /// The receiver has been told.
    void heard();
    void close() { outbox_.close(); }

  private:
    void tell();

    std::mutex mutex_;
    QImage frame_;
    std::uint64_t expected_ = 0;
    bool told_ = false;
    Outbox outbox_;
    std::function<void()> changed_;
};

/// What a widget needs to show a movie. Lives in the event loop's thread.
class MovieFrames : public QObject {
    Q_OBJECT
  public:
    explicit MovieFrames(QObject* parent = nullptr);
    MovieFrames(const MovieFrames&) = delete;
    MovieFrames& operator=(const MovieFrames&) = delete;
    ~MovieFrames() override;

    /// The newest frame in square pixels, its size is the movie's; null while no movie plays or
    /// before its first frame.
    [[nodiscard]] QImage frame() const { return box_->look(); }

    /// The other end, for the engine.
    [[nodiscard]] const std::shared_ptr<FrameBox>& box() const { return box_; }

  Q_SIGNALS:
    /// There is another frame, or none any more. Frames that come faster than the event loop runs
    /// give one signal.
    void frameChanged();

  private:
    std::shared_ptr<FrameBox> box_;
};

}  // namespace quorvel::media
