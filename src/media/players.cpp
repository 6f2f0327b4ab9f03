#include "media/players.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "media/file_claims.h"
#include "media/file_kind.h"
#include "media/sound_font.h"

namespace quorvel::media {
namespace {

FileKind kindOfSlot(std::size_t slot) {
    switch (slot) {
        case midiSlot:
            return FileKind::midi;
        case mp3Slot:
            return FileKind::mp3;
        case movieSlot:
            return FileKind::movie;
        default:
            return FileKind::wav;
    }
}

const char* wordOf(FileKind kind) {
    switch (kind) {
        case FileKind::midi:
            return "a MIDI file";
        case FileKind::mp3:
            return "an MP3 file";
        case FileKind::movie:
            return "a movie";
        default:
            return "a WAV file";
    }
}

}  // namespace

Players::Players(std::shared_ptr<JobQueue> queue, PlayersSetup setup)
    : queue_(std::move(queue)), setup_(std::move(setup)) {}

void Players::prepare() {
    const auto spare = spareWhileSilent();
    try {
        start();
        makeElement("appsrc");
        const AudioTail tail(setup_.sink);
    } catch (const std::exception& error) {
        setup_.unavailable(error.what());
    }
}

/// Starts the library, once. It may have to look at all of its plug-ins first, in a program of its
/// own that may hang.
void Players::start() {
    if (started_) {
        return;
    }
    const auto spare = spareWhileSilent();
    setup_.startLibrary();
    started_ = true;
}

/// Who closes the engine waits for what plays and for nothing else.
std::unique_ptr<JobQueue::Spare> Players::spareWhileSilent() {
    const bool silent = std::ranges::none_of(plays_, [](const Play& play) { return play.id != 0; });
    return silent ? std::make_unique<JobQueue::Spare>(*queue_) : nullptr;
}

bool Players::isWanted(std::size_t slot, const PlayOrder& order) const {
    return (*setup_.wanted)[slot] == order.id;
}

void Players::play(std::size_t slot, const PlayOrder& order) {
    stop(slot);
    try {
        start();
        if (isWanted(slot, order)) {
            plays_[slot].id = order.id;
            begin(slot, order);
        }
    } catch (const std::exception& error) {
        plays_[slot].id = order.id;
        end(slot, order.id, error.what());
    }
}

void Players::begin(std::size_t slot, const PlayOrder& order) {
    const FileKind kind = kindOfSlot(slot);
    std::error_code error;
    if (!std::filesystem::exists(order.file, error)) {
        throw MediaError("The file is not there.");
    }
    if (kindOf(order.file) != kind) {
        throw MediaError(std::string("The file is not ") + wordOf(kind) + ".");
    }
    if (const std::string words = refusalOf(order.file, kind); !words.empty()) {
        throw MediaError(words);
    }
    Play& play = plays_[slot];
    if (slot < kWavChannels) {
        play.voice = std::make_unique<WavVoice>(order.file, order.loop, setup_.sink, cache_,
                                                reportOf(slot, order.id));
    } else {
        beginStream(slot, order, reportOf(slot, order.id));
    }
    AudioTail* tail = tailOf(slot);
    tail->setAmplitude(order.amplitude);
    tail->setPan(order.pan);
    if (play.voice != nullptr) {
        play.voice->start();
    } else {
        play.stream->start();
    }
    queue_->postAfter(kOpening, [self = weak_from_this(), slot, id = order.id] {
        if (const auto players = self.lock()) {
            players->watch(slot, id);
        }
    });
}

void Players::beginStream(std::size_t slot, const PlayOrder& order, Pipeline::Report report) {
    std::filesystem::path font;
    StreamPlay::Picture picture;
    if (slot == midiSlot) {
        font = setup_.soundFont.empty() ? systemSoundFont() : setup_.soundFont;
        std::error_code error;
        if (!std::filesystem::is_regular_file(font, error)) {
            throw MediaError(
                "There is no sound font, so MIDI music is silent; the package "
                "timgm6mb-soundfont has one.");
        }
    } else if (slot == movieSlot) {
        picture = {setup_.frames, order.id};
    }
    plays_[slot].stream = std::make_unique<StreamPlay>(order.file, setup_.sink, font,
                                                       std::move(picture), std::move(report));
}

/// GStreamer's threads only leave word. Whatever they say of a play that is over is ignored.
Pipeline::Report Players::reportOf(std::size_t slot, std::uint64_t id) {
    return [queue = queue_, self = weak_from_this(), slot, id](const std::string& error) {
        queue->post([self, slot, id, error] {
            if (const auto players = self.lock()) {
                players->end(slot, id, error);
            }
        });
    };
}

void Players::end(std::size_t slot, std::uint64_t id, const std::string& error) {
    if (plays_[slot].id == id && id != 0) {
        stop(slot);
        setup_.ended(slot, id, error);
    }
}

void Players::watch(std::size_t slot, std::uint64_t id) {
    const Play& play = plays_[slot];
    if (play.id == id && play.stream != nullptr && !play.stream->pipeline().isRunning()) {
        end(slot, id, "It does not begin.");
    }
}

void Players::stop(std::size_t slot) {
    plays_[slot] = Play();
}

void Players::stopAll() {
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        stop(slot);
    }
}

AudioTail* Players::tailOf(std::size_t slot) const {
    const Play& play = plays_[slot];
    if (play.voice != nullptr) {
        return &play.voice->tail();
    }
    return play.stream == nullptr ? nullptr : &play.stream->tail();
}

void Players::setAmplitude(std::size_t slot, double factor) {
    if (AudioTail* tail = tailOf(slot)) {
        tail->setAmplitude(factor);
    }
}

void Players::setPan(std::size_t slot, int pan) {
    if (AudioTail* tail = tailOf(slot)) {
        tail->setPan(pan);
    }
}

std::pair<double, double> Players::mp3Times() const {
    const Play& play = plays_[mp3Slot];
    if (play.stream == nullptr) {
        return {-1.0, -1.0};
    }
    return {play.stream->pipeline().position(), play.stream->pipeline().duration()};
}

}  // namespace quorvel::media
