#include "forms/pictures_playhead.h"

#include <utility>

namespace quorvel::forms {

Playhead::Playhead(QObject* parent) : QObject(parent) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &Playhead::advance);
}

void Playhead::setPicture(PicturePtr picture) {
    stop();
    picture_ = std::move(picture);
    frame_ = picture_ == nullptr ? QImage() : picture_->firstFrame();
    Q_EMIT frameChanged();
}

void Playhead::play() {
    if (playing_ || picture_ == nullptr || !picture_->mayMove()) {
        return;
    }
    stop();
    playing_ = true;
    delay_ = picture_->firstDelay();
    schedule();
}

void Playhead::stop() {
    timer_.stop();
    playing_ = false;
    backward_ = false;
    number_ = 0;
    round_ = 0;
    frames_.reset();
    stream_.reset();
    if (picture_ != nullptr && frame_.cacheKey() != picture_->firstFrame().cacheKey()) {
        frame_ = picture_->firstFrame();
        Q_EMIT frameChanged();
    }
}

void Playhead::setSuspended(bool suspended) {
    suspended_ = suspended;
    if (suspended) {
        timer_.stop();
    } else if (playing_ && !timer_.isActive()) {
        schedule();
    }
}

void Playhead::schedule() {
    if (!suspended_) {
        timer_.start(delay_);
    }
}

void Playhead::advance() {
    if (frames_ == nullptr) {
        frames_ = picture_->frames();
    }
    if (frames_->tooMany() ? advanceStream() : advanceKept()) {
        schedule();
        return;
    }
    // The last frame stays; what was needed to play is given back.
    playing_ = false;
    frames_.reset();
    stream_.reset();
}

/// False when the animation has ended. A picture that turns out not to fit goes on as a stream.
bool Playhead::advanceKept() {
    if (backward_ && number_ == 0) {
        backward_ = false;
    }
    std::size_t next = backward_ ? number_ - 1 : number_ + 1;
    const Frame* frame = frames_->at(next);
    if (frames_->tooMany()) {
        return advanceStream();
    }
    if (frame == nullptr) {
        if (number_ == 0) {
            return false;  // a single frame
        }
        backward_ = mode_ == DisplayMode::pingPong;
        next = backward_ ? number_ - 1 : 0;
        frame = backward_ || beginRound(frames_->loopCount()) ? frames_->at(next) : nullptr;
    }
    if (frame == nullptr) {
        return false;
    }
    number_ = next;
    show(*frame);
    return true;
}

bool Playhead::advanceStream() {
    if (stream_ == nullptr) {
        stream_ = frames_->streamAt(number_ + 1);
    }
    auto frame = stream_->next();
    ++number_;
    if (!frame && (mode_ == DisplayMode::pingPong || beginRound(stream_->loopCount()))) {
        stream_ = frames_->streamAt(0);
        frame = stream_->next();
        number_ = 0;
    }
    if (!frame) {
        return false;
    }
    show(*frame);
    return true;
}

/// Counts the rounds, of which the file asks for `count`; false when the one that has ended was the
/// last.
bool Playhead::beginRound(int count) {
    if (mode_ == DisplayMode::once) {
        return false;
    }
    ++round_;
    return count <= 0 || round_ <= count;
}

void Playhead::show(const Frame& frame) {
    frame_ = frame.image;
    delay_ = frame.delay;
    Q_EMIT frameChanged();
}

}  // namespace quorvel::forms
