/// One channel's sound.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "media/audio_tail.h"
#include "media/pipeline.h"
#include "media/wav_source.h"

namespace quorvel::media {

/// Plays one WAV file through a pipeline of its own. Destroying it is silence.
class WavVoice {
  public:
    /// Throws MediaError. Nothing is heard before start().
    WavVoice(const std::filesystem::path& file, bool loop, const std::string& sink,
             std::shared_ptr<WavCache> cache, Pipeline::Report report);
    WavVoice(const WavVoice&) = delete;
    WavVoice& operator=(const WavVoice&) = delete;
    ~WavVoice();

    void start();
    [[nodiscard]] AudioTail& tail() { return tail_; }

  private:
    struct Feed;

    AudioTail tail_;
    std::shared_ptr<Feed> feed_;
    std::unique_ptr<Pipeline> pipeline_;
};

}  // namespace quorvel::media
