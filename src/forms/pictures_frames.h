/// The frames of an animated picture, decoded when they are needed.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include <QImage>
#include <QImageReader>

#include "forms/picture_file.h"

namespace quorvel::forms {

/// How long a frame stands that asks for `delay` milliseconds: 0 and 10, which no player takes
/// literally, become 100.
int frameDelay(int delay);

struct Frame {
    QImage image;
    int delay = 0;  ///< milliseconds
};

/// Reads the frames of a file one after the other.
class FrameStream {
  public:
    explicit FrameStream(const std::filesystem::path& file);

    /// The next frame; nothing behind the last one or where the file is damaged.
    std::optional<Frame> next();

    /// Rounds that the file asks for beyond the first, 0 when it says nothing, -1 for ever: as far
    /// as it was read, so for certain behind the last frame.
    [[nodiscard]] int loopCount() const { return file_.loopCount(); }

  private:
    PictureFile file_;
    QImageReader reader_;
};

/// The frames of one file for all who play it, kept while they fit into `kMostBytes`.
class PictureFrames {
  public:
    static constexpr qsizetype kMostBytes = 16LL * 1024 * 1024;

    explicit PictureFrames(std::filesystem::path file);

    /// Frame `number` from 0; decodes what is missing up to it. Null behind the last frame, and
    /// for all frames once `tooMany` holds.
    [[nodiscard]] const Frame* at(std::size_t number);
    /// The frames do not fit; who plays them reads a stream of its own.
    [[nodiscard]] bool tooMany() const { return tooMany_; }
    /// A stream whose next frame is `number`.
    [[nodiscard]] std::unique_ptr<FrameStream> streamAt(std::size_t number) const;
    /// As of `FrameStream`; to be asked when the last frame was read.
    [[nodiscard]] int loopCount() const { return loopCount_; }

  private:
    std::filesystem::path file_;
    std::unique_ptr<FrameStream> stream_;  // until the last frame was read
    std::vector<Frame> frames_;
    int loopCount_ = 0;
    qsizetype bytes_ = 0;
    bool complete_ = false;
    bool tooMany_ = false;
};

}  // namespace quorvel::forms
