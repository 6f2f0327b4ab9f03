#include "forms/pictures_frames.h"

#include <utility>

namespace quorvel::forms {

int frameDelay(int delay) {
    constexpr int kShortest = 20;
    constexpr int kUsual = 100;
    return delay < kShortest ? kUsual : delay;
}

FrameStream::FrameStream(const std::filesystem::path& file) : file_(file) {
    if (file_.openToRead()) {
        reader_.setDevice(&file_);
    }
}

std::optional<Frame> FrameStream::next() {
    QImage image;
    if (!file_.isOpen() || !reader_.read(&image) || image.isNull()) {
        return std::nullopt;
    }
    return Frame{image, frameDelay(reader_.nextImageDelay())};
}

PictureFrames::PictureFrames(std::filesystem::path file) : file_(std::move(file)) {}

const Frame* PictureFrames::at(std::size_t number) {
    while (!tooMany_ && !complete_ && number >= frames_.size()) {
        if (stream_ == nullptr) {
            stream_ = std::make_unique<FrameStream>(file_);
        }
        if (auto frame = stream_->next()) {
            bytes_ += frame->image.sizeInBytes();
            frames_.push_back(std::move(*frame));
        } else {
            complete_ = true;
        }
        tooMany_ = bytes_ > kMostBytes;
        if (complete_ || tooMany_) {
            loopCount_ = stream_->loopCount();
            stream_.reset();
        }
    }
    if (tooMany_) {
        frames_.clear();
        frames_.shrink_to_fit();
    }
    return number < frames_.size() ? &frames_[number] : nullptr;
}

std::unique_ptr<FrameStream> PictureFrames::streamAt(std::size_t number) const {
    auto stream = std::make_unique<FrameStream>(file_);
    for (std::size_t i = 0; i < number && stream->next(); ++i) {
    }
    return stream;
}

}  // namespace quorvel::forms
