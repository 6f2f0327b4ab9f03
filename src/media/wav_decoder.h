/// The samples of a WAV file, whatever its coding.
#pragma once

#include <atomic>
#include <filesystem>
#include <vector>

#include "media/gst_tools.h"

namespace quorvel::media {

/// Samples as they lie in memory and go to the device: left and right in turns.
inline constexpr int kSampleRate = 44100;
inline constexpr std::size_t kSides = 2;
using Samples = std::vector<float>;

/// Decodes a file from its beginning, somewhat ahead of who reads. For one thread at a time.
class WavDecoder {
  public:
    /// Begins to decode. Throws MediaError when an element is missing; what is wrong with the file
    /// shows as an early end.
    explicit WavDecoder(const std::filesystem::path& file);
    WavDecoder(const WavDecoder&) = delete;
    WavDecoder& operator=(const WavDecoder&) = delete;
    ~WavDecoder();

    /// Appends what comes next to `samples`, a few thousand; false at the end, which a fault or
    /// three seconds without any also are. A true `giveUp` ends the waiting.
    bool next(Samples& samples, const std::atomic<bool>& giveUp);

  private:
    bool hasFailed();

    GstPtr<GstElement> pipeline_;
    GstPtr<GstElement> out_;
    GstPtr<GstBus> bus_;
};

}  // namespace quorvel::media
