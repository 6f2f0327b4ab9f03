#include "media/preview_engine.h"

#include <algorithm>
#include <utility>

#include "media/gain.h"
#include "media/gst_tools.h"
#include "media/players.h"

namespace quorvel::media {
namespace {

constexpr int kTick = 100;  // ms

bool isChannel(int channel) {
    return channel >= 0 && channel < PreviewEngine::kChannels;
}

double movieAmplitude(int volume) {
    return std::clamp(volume, 0, 100) / 100.0;
}

}  // namespace

PreviewEngine::PreviewEngine(PreviewOptions options, QObject* parent)
    : QObject(parent),
      options_(std::move(options)),
      outbox_(std::make_shared<Outbox>(this)),
      playing_(std::make_shared<WantedPlays>()) {
    static_assert(kSlots == slotCount);
    PlayersSetup setup;
    setup.sink = options_.sink;
    setup.soundFont = options_.soundFont;
    setup.frames = frames_.box();
    setup.wanted = playing_;
    setup.startLibrary = options_.startLibrary ? options_.startLibrary : startGStreamer;
    setup.ended = [this, outbox = outbox_](std::size_t slot, std::uint64_t id,
                                           const std::string& error) {
        outbox->post(
            [this, slot, id, words = QString::fromStdString(error)] { onEnded(slot, id, words); });
    };
    setup.unavailable = [this, outbox = outbox_](const std::string& reason) {
        outbox->post([this, words = QString::fromStdString(reason)] { Q_EMIT unavailable(words); });
    };
    players_ = std::make_shared<Players>(thread_.queue(), std::move(setup));
    MP3Timer_.setObjectName(QStringLiteral("MP3Timer"));
    MP3Timer_.setInterval(kTick);
    connect(&MP3Timer_, &QTimer::timeout, this, &PreviewEngine::onTick);
}

PreviewEngine::~PreviewEngine() {
    outbox_->close();
    frames_.box()->close();
    for (auto& id : *playing_) {
        id = 0;
    }
    if (!thread_.finish([players = players_] { players->stopAll(); }, options_.patience) &&
        options_.leftBehind) {
        options_.leftBehind();
    }
}

void PreviewEngine::post(std::function<void(Players&)> job) {
    thread_.start();
    thread_.queue()->post([players = players_, job = std::move(job)] { job(*players); });
}

void PreviewEngine::prepare() {
    if (!std::exchange(prepared_, true)) {
        post([](Players& players) { players.prepare(); });
    }
}

void PreviewEngine::play(std::size_t slot, PlayOrder order) {
    lastError_.clear();
    order.id = ++lastId_;
    (*playing_)[slot] = order.id;
    if (slot == movieSlot) {
        frames_.box()->expect(order.id);
    }
    post([slot, order = std::move(order)](Players& players) { players.play(slot, order); });
}

/// What is still on its way from the play is ignored from now on.
void PreviewEngine::stop(std::size_t slot) {
    if ((*playing_)[slot].exchange(0) != 0) {
        post([slot](Players& players) { players.stop(slot); });
    }
}

void PreviewEngine::setAmplitude(std::size_t slot, double factor) {
    if (isPlaying(slot)) {
        post([slot, factor](Players& players) { players.setAmplitude(slot, factor); });
    }
}

void PreviewEngine::setPan(std::size_t slot, int pan) {
    if (isPlaying(slot)) {
        post([slot, pan](Players& players) { players.setPan(slot, pan); });
    }
}

void PreviewEngine::onEnded(std::size_t slot, std::uint64_t id, const QString& error) {
    if ((*playing_)[slot] != id) {
        return;
    }
    lastError_ = error;
    if (slot == mp3Slot) {
        mp3Position_ = mp3Duration_;
        mp3AtEnd_ = true;
        return;  // the timer finds it
    }
    (*playing_)[slot] = 0;
    if (slot < kChannels) {
        Q_EMIT wavEnded(static_cast<int>(slot));
    } else if (slot == midiSlot) {
        Q_EMIT midiEnded();
    } else {
        frames_.box()->expect(0);
        Q_EMIT movieEnded(std::exchange(movieOwner_, {}));
    }
}

// -- WAV
// -------------------------------------------------------------------------------------------

void PreviewEngine::PlayWav(const std::filesystem::path& file, int volume, int pan, int channel,
                            bool loop) {
    if (isChannel(channel)) {
        play(static_cast<std::size_t>(channel),
             {.file = file, .amplitude = amplitude(volume), .pan = pan, .loop = loop});
    }
}

void PreviewEngine::SetWavVolume(int channel, int volume) {
    if (isChannel(channel)) {
        setAmplitude(static_cast<std::size_t>(channel), amplitude(volume));
    }
}

void PreviewEngine::SetWavPan(int channel, int pan) {
    if (isChannel(channel)) {
        setPan(static_cast<std::size_t>(channel), pan);
    }
}

void PreviewEngine::StopWav(int channel) {
    if (isChannel(channel)) {
        stop(static_cast<std::size_t>(channel));
    }
}

void PreviewEngine::StopAllWavs() {
    for (int channel = 0; channel < kChannels; ++channel) {
        StopWav(channel);
    }
}

bool PreviewEngine::isWavPlaying(int channel) const {
    return isChannel(channel) && isPlaying(static_cast<std::size_t>(channel));
}

// -- MIDI
// ------------------------------------------------------------------------------------------

void PreviewEngine::PlayMidi(const std::filesystem::path& file, int volume) {
    play(midiSlot, {.file = file, .amplitude = amplitude(volume)});
}

void PreviewEngine::SetMidiVolume(int volume) {
    setAmplitude(midiSlot, amplitude(volume));
}

void PreviewEngine::StopMidi() {
    stop(midiSlot);
}

bool PreviewEngine::isMidiPlaying() const {
    return isPlaying(midiSlot);
}

// -- MP3
// -------------------------------------------------------------------------------------------

void PreviewEngine::PlayMp3(const std::filesystem::path& file, int volume, int pan) {
    mp3Position_ = 0.0;
    mp3Duration_ = 0.0;
    mp3AtEnd_ = false;
    play(mp3Slot, {.file = file, .amplitude = amplitude(volume), .pan = pan});
    if (!MP3Timer_.isActive()) {
        MP3Timer_.start();
    }
}

void PreviewEngine::StopMp3() {
    MP3Timer_.stop();
    mp3Position_ = 0.0;
    mp3Duration_ = 0.0;
    mp3AtEnd_ = false;
    stop(mp3Slot);
}

void PreviewEngine::SetMp3Volume(int volume) {
    setAmplitude(mp3Slot, amplitude(volume));
}

void PreviewEngine::SetMp3Balance(int pan) {
    setPan(mp3Slot, pan);
}

bool PreviewEngine::isMp3Playing() const {
    return isPlaying(mp3Slot);
}

void PreviewEngine::onTick() {
    if (mp3AtEnd_) {
        StopMp3();
        Q_EMIT mp3Ended();
    } else if (!mp3Asked_) {
        askMp3Times();
    }
}

void PreviewEngine::askMp3Times() {
    mp3Asked_ = true;
    post([this, outbox = outbox_, id = (*playing_)[mp3Slot].load()](Players& players) {
        const auto [position, duration] = players.mp3Times();
        outbox->post([this, id, position = position, duration = duration] {
            mp3Asked_ = false;
            if (id == (*playing_)[mp3Slot] && !mp3AtEnd_) {
                mp3Duration_ = std::max(duration, 0.0);
                // Until it is over the position stays behind the duration, which is a guess for
                // some files.
                mp3Position_ = std::clamp(position, 0.0, std::max(mp3Duration_ - 0.001, 0.0));
            }
        });
    });
}

bool PreviewEngine::CloseMediaEngine() {
    StopMp3();
    if (!thread_.isStarted()) {
        return true;
    }
    return thread_.queue()->postAndWait([players = players_] { players->stop(mp3Slot); },
                                        options_.patience) != JobQueue::Wait::late;
}

// -- movies
// ----------------------------------------------------------------------------------------

void PreviewEngine::PlayMovie(const std::filesystem::path& file, const QString& owner, int volume) {
    movieOwner_ = owner;
    play(movieSlot, {.file = file, .amplitude = movieAmplitude(volume)});
}

void PreviewEngine::SetMovieVolume(int volume) {
    setAmplitude(movieSlot, movieAmplitude(volume));
}

void PreviewEngine::StopMovie() {
    movieOwner_.clear();
    frames_.box()->expect(0);
    stop(movieSlot);
}

bool PreviewEngine::isMoviePlaying() const {
    return isPlaying(movieSlot);
}

}  // namespace quorvel::media
