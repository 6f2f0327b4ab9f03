/// What a voice plays: the samples of one file, once or round and round.
#pragma once

#include <atomic>
#include <filesystem>
#include <list>
#include <memory>
#include <mutex>
#include <string>

#include "media/wav_decoder.h"

namespace quorvel::media {

/// Decoded sounds, by path, size and time of their files. For all threads.
class WavCache {
  public:
    /// The largest sound that is kept, one minute, and the most of all, in samples.
    static constexpr std::size_t kMostOfOne = std::size_t{60} * kSampleRate * kSides;
    static constexpr std::size_t kMostOfAll = 3 * kMostOfOne;

    /// What a file looks like now; a changed one has another key. Empty when it can't be told.
    static std::string keyOf(const std::filesystem::path& file);

    /// Null when it isn't there.
    std::shared_ptr<const Samples> find(const std::string& key);
    /// Keeps a sound, and lets go those that were not asked for the longest.
    void keep(const std::string& key, std::shared_ptr<const Samples> samples);

  private:
    struct Entry {
        std::string key;
        std::shared_ptr<const Samples> samples;
    };
    std::mutex mutex_;
    std::list<Entry> entries_;  // the last asked for is first
    std::size_t size_ = 0;
};

/// The samples of one play, in order. A sound is decoded while it is played the first time; up to
/// a minute is kept on the way, and what is longer is decoded again for each round.
class WavSource {
  public:
    /// Throws MediaError.
    WavSource(std::filesystem::path file, bool loop, std::shared_ptr<WavCache> cache);

    /// Writes the next samples to `to`, at most `count`, a multiple of two; less only at the end.
    std::size_t read(float* to, std::size_t count);
    /// Makes read() come back soon. From every thread.
    void giveUp() { givenUp_ = true; }
    /// True when not one sample was found.
    [[nodiscard]] bool isEmpty() const { return !found_; }

  private:
    const Samples& samples() const { return complete_ != nullptr ? *complete_ : decoded_; }
    bool more();
    bool moreOfFile();
    void endOfFile();

    std::filesystem::path file_;
    bool loop_;
    std::shared_ptr<WavCache> cache_;
    std::string key_;
    std::unique_ptr<WavDecoder> decoder_;
    std::shared_ptr<const Samples> complete_;  // once all of it is in memory
    Samples decoded_;                          // until then: the first minute, or a piece
    std::size_t at_ = 0;
    bool tooLong_ = false;
    bool found_ = false;
    std::atomic<bool> givenUp_ = false;
};

}  // namespace quorvel::media
