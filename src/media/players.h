/// Everything that plays, on the media thread's side.
#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "media/job_thread.h"
#include "media/stream_play.h"
#include "media/wav_voice.h"

namespace quorvel::media {

inline constexpr std::size_t kWavChannels = 16;

/// What there is one of each: the channels of WAV files first, then the others.
enum Slot : std::size_t { midiSlot = kWavChannels, mp3Slot, movieSlot, slotCount };

/// An order to play a file.
struct PlayOrder {
    std::uint64_t id = 0;  ///< tells this play from all others
    std::filesystem::path file;
    double amplitude = 1.0;
    int pan = 0;        ///< -10000 to 10000, hundredths of a decibel
    bool loop = false;  ///< of WAV files only
};

/// Which play is wanted in each slot, by its id, 0 for none. Set on one thread, asked on another.
using WantedPlays = std::array<std::atomic<std::uint64_t>, slotCount>;

/// What Players are given once.
struct PlayersSetup {
    std::string sink;                 ///< in the language of gst-launch
    std::filesystem::path soundFont;  ///< empty: the system's
    std::shared_ptr<FrameBox> frames;
    /// An order whose play is no longer wanted when its turn comes is not begun.
    std::shared_ptr<const WantedPlays> wanted;
    /// Starts the sound library; returns when it can be used, throws when
    /// it cannot.
    std::function<void()> startLibrary;
    /// Called on the media thread when a play has ended by itself: its id, and words for what
    /// went wrong, empty when nothing did.
    std::function<void(std::size_t slot, std::uint64_t id, const std::string& error)> ended;
    /// Called on the media thread when prepare() finds that sounds cannot be played.
    std::function<void(const std::string& reason)> unavailable;
};

/// Made and let go on any thread; everything else only in the jobs of the queue. No routine throws.
class Players : public std::enable_shared_from_this<Players> {
  public:
    Players(std::shared_ptr<JobQueue> queue, PlayersSetup setup);

    /// Starts the library, which the first play does otherwise, and builds what a sound needs.
    /// While nothing plays, nobody has to wait for that.
    void prepare();
    /// Replaces what the slot plays.
    void play(std::size_t slot, const PlayOrder& order);
    void stop(std::size_t slot);
    void stopAll();
    void setAmplitude(std::size_t slot, double factor);
    void setPan(std::size_t slot, int pan);
    /// Seconds of the MP3: position and duration, below 0 where unknown.
    [[nodiscard]] std::pair<double, double> mp3Times() const;

  private:
    /// How long a file may take to the first sound or picture.
    static constexpr std::chrono::seconds kOpening{3};

    struct Play {
        std::uint64_t id = 0;
        std::unique_ptr<WavVoice> voice;     // one of the two,
        std::unique_ptr<StreamPlay> stream;  // or none while the slot is free
    };

    void start();
    void begin(std::size_t slot, const PlayOrder& order);
    [[nodiscard]] std::unique_ptr<JobQueue::Spare> spareWhileSilent();
    [[nodiscard]] bool isWanted(std::size_t slot, const PlayOrder& order) const;
    void beginStream(std::size_t slot, const PlayOrder& order, Pipeline::Report report);
    void end(std::size_t slot, std::uint64_t id, const std::string& error);
    void watch(std::size_t slot, std::uint64_t id);
    [[nodiscard]] Pipeline::Report reportOf(std::size_t slot, std::uint64_t id);
    [[nodiscard]] AudioTail* tailOf(std::size_t slot) const;

    std::shared_ptr<JobQueue> queue_;
    PlayersSetup setup_;
    std::shared_ptr<WavCache> cache_ = std::make_shared<WavCache>();
    std::array<Play, slotCount> plays_;
    bool started_ = false;
};

}  // namespace quorvel::media
