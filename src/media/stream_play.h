/// A file that is decoded while it is played: MIDI, MP3, a movie.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "media/audio_tail.h"
#include "media/movie_frames.h"
#include "media/pipeline.h"

namespace quorvel::media {

/// Plays one file once. Destroying it is silence, and no frame comes any more.
class StreamPlay {
  public:
    struct Picture {
        std::shared_ptr<FrameBox> box;  ///< null: sound alone, pictures are not even decoded
        std::uint64_t id = 0;           ///< under which the box expects the frames
    };

    /// `soundFont` is for MIDI and may be empty otherwise. Throws MediaError. Nothing is heard or
    /// shown before start().
    StreamPlay(const std::filesystem::path& file, const std::string& sink,
               const std::filesystem::path& soundFont, Picture picture, Pipeline::Report report);
    StreamPlay(const StreamPlay&) = delete;
    StreamPlay& operator=(const StreamPlay&) = delete;
    ~StreamPlay();

    void start() { pipeline_->start(); }
    [[nodiscard]] AudioTail& tail() { return tail_; }
    [[nodiscard]] const Pipeline& pipeline() const { return *pipeline_; }

  private:
    void takePictures();

    AudioTail tail_;
    std::string soundFont_;
    Picture picture_;
    std::unique_ptr<Pipeline> pipeline_;
};

}  // namespace quorvel::media
