/// Hearing and seeing the sounds and movies of a project before they are saved.
#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include <QObject>
#include <QString>
#include <QTimer>

#include "media/job_thread.h"
#include "media/movie_frames.h"

namespace quorvel::media {

class Players;
struct PlayOrder;

/// What a test, or a machine of another kind, gives the engine.
struct PreviewOptions {
    /// Where sound goes, in the language of gst-launch; each play has one of its own.
    std::string sink = "autoaudiosink";
    /// The instruments of MIDI; empty for the first that the system has.
    std::filesystem::path soundFont = {};
    /// How long CloseMediaEngine() and the destructor wait for what plays on a device that hangs.
    std::chrono::milliseconds patience{2000};
    /// Starts the sound library; called on the engine's thread until it has succeeded, and may take
    /// as long as it wants. Throws when it cannot. Empty for the library's own start.
    std::function<void()> startLibrary = {};
    /// Called by the destructor when it has left its thread behind: the process must not end by
    /// taking down what that thread uses.
    std::function<void()> leftBehind = {};
};

/// The one preview engine. The shell owns it; it lives in the event loop's thread, and so does who
/// calls it.
///
/// A play is an order: every routine returns at once, and a thread of its own does the rest, which
/// begins with the first order. So a file that is missing, damaged, empty, mislabelled or a pipe is
/// silent; its end is signalled and lastError() has the reason. A device that is missing is
/// silence that lasts as long as the sound would. Starting one preview does not stop another, but
/// for the one in the same channel, or of the same kind where there are no channels.
///
/// An end is signalled when a play ended by itself, never when it was stopped or replaced, and
/// always from the event loop.
///
/// Volumes of sounds are -10000 (silent) to 0 (full), in hundredths of a decibel; what is louder
/// counts as 0. Pans are -10000 (left) to 10000 (right): by so much the other side is turned down.
class PreviewEngine : public QObject {
    Q_OBJECT
  public:
    /// Channels are 0 to 15. An order for another is ignored.
    static constexpr int kChannels = 16;

    explicit PreviewEngine(PreviewOptions options = {}, QObject* parent = nullptr);
    PreviewEngine(const PreviewEngine&) = delete;
    PreviewEngine& operator=(const PreviewEngine&) = delete;
    /// Stops everything. Waits for the thread as long as the options say, and leaves one behind
    /// that hangs; one that is preparing is left behind at once.
    ~PreviewEngine() override;

    /// Starts the sound library ahead of the first order, so that this is heard without delay, and
    /// looks whether all is there that sounds need; if not, unavailable() tells. The first call
    /// counts. To be called when an order can be expected: nothing is loaded before.
    void prepare();

    /// Plays `file` once, or round and round without a gap, in place of what the channel played.
    void PlayWav(const std::filesystem::path& file, int volume, int pan, int channel,
                 bool loop = false);
    /// Take effect while the channel plays; later plays have values of their own.
    void SetWavVolume(int channel, int volume);
    void SetWavPan(int channel, int pan);
    void StopWav(int channel);
    void StopAllWavs();
    [[nodiscard]] bool isWavPlaying(int channel) const;

    void PlayMidi(const std::filesystem::path& file, int volume = 0);
    void SetMidiVolume(int volume);
    void StopMidi();
    [[nodiscard]] bool isMidiPlaying() const;

    /// Its end is found by MP3Timer, a timer of this engine with 100 ms: at each tick position and
    /// duration are compared, and they are equal when the file has been played to its end.
    void PlayMp3(const std::filesystem::path& file, int volume, int pan);
    void StopMp3();
    void SetMp3Volume(int volume);
    void SetMp3Balance(int pan);
    [[nodiscard]] bool isMp3Playing() const;
    /// In seconds, as of the last tick; 0 at the beginning, after the end, and while nothing plays.
    [[nodiscard]] double mp3Position() const { return mp3Position_; }
    /// In seconds; 0 until it is known and while nothing plays.
    [[nodiscard]] double mp3Duration() const { return mp3Duration_; }
    /// Gives back what plays the MP3 and waits until that is done; false when what plays cannot be
    /// stopped in the time that the options say. What is being prepared plays nothing yet, and
    /// nobody waits for it. A later PlayMp3() builds it anew.
    bool CloseMediaEngine();

    /// Plays a movie; `owner` says who started it. `volume` is 0 (silent) to 100 (full), the factor
    /// of the amplitude in hundredths; what is outside counts as the nearest.
    void PlayMovie(const std::filesystem::path& file, const QString& owner, int volume);
    void SetMovieVolume(int volume);
    void StopMovie();
    [[nodiscard]] bool isMoviePlaying() const;
    /// Who started the movie that plays; empty when none does.
    [[nodiscard]] QString movieOwner() const { return movieOwner_; }
    /// Where its pictures arrive.
    [[nodiscard]] MovieFrames& movieFrames() { return frames_; }

    /// Why the last play that ended was silent or cut short, in words; empty when it was neither,
    /// and after each order to play.
    [[nodiscard]] QString lastError() const { return lastError_; }

  Q_SIGNALS:
    /// After prepare(): sounds will be silent; why, in words. A machine without a device is no
    /// reason.
    void unavailable(const QString& reason);
    void wavEnded(int channel);
    void midiEnded();
    void mp3Ended();
    void movieEnded(const QString& owner);

  private:
    static constexpr std::size_t kSlots = kChannels + 3;

    void play(std::size_t slot, PlayOrder order);
    void stop(std::size_t slot);
    void setAmplitude(std::size_t slot, double factor);
    void setPan(std::size_t slot, int pan);
    void post(std::function<void(Players&)> job);
    [[nodiscard]] bool isPlaying(std::size_t slot) const { return (*playing_)[slot] != 0; }
    void onEnded(std::size_t slot, std::uint64_t id, const QString& error);
    void onTick();
    void askMp3Times();

    PreviewOptions options_;
    MovieFrames frames_;
    std::shared_ptr<Outbox> outbox_;
    JobThread thread_;
    /// Ids of the plays, 0 where there is none; the engine's thread asks it.
    std::shared_ptr<std::array<std::atomic<std::uint64_t>, kSlots>> playing_;
    std::shared_ptr<Players> players_;
    bool prepared_ = false;
    std::uint64_t lastId_ = 0;
    QTimer MP3Timer_{this};
    double mp3Position_ = 0.0;
    double mp3Duration_ = 0.0;
    bool mp3Asked_ = false;
    bool mp3AtEnd_ = false;
    QString movieOwner_;
    QString lastError_;
};

}  // namespace quorvel::media
