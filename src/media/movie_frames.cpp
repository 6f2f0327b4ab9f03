#include "media/movie_frames.h"

#include <utility>

namespace quorvel::media {

void FrameBox::expect(std::uint64_t id) {
    const std::lock_guard lock(mutex_);
    expected_ = id;
    if (!frame_.isNull()) {
        frame_ = {};
        tell();
    }
}

void FrameBox::put(std::uint64_t id, QImage frame) {
    const std::lock_guard lock(mutex_);
    if (id == 0 || id != expected_) {
        return;
    }
    frame_ = std::move(frame);
    tell();
}

QImage FrameBox::look() {
    const std::lock_guard lock(mutex_);
    return frame_;
}

void FrameBox::heard() {
    const std::lock_guard lock(mutex_);
    told_ = false;
}

void FrameBox::tell() {
    if (!std::exchange(told_, true)) {
        outbox_.post(changed_);
    }
}

MovieFrames::MovieFrames(QObject* parent)
    : QObject(parent), box_(std::make_shared<FrameBox>(this, [this] {
          box_->heard();
          Q_EMIT frameChanged();
      })) {}

MovieFrames::~MovieFrames() {
    box_->close();
}

}  // namespace quorvel::media
