// How long MIDI music lasts: it has no length of its own, only pauses between notes.
#include <algorithm>
#include <vector>

#include "media/bounds.h"
#include "media/file_claims.h"

namespace quorvel::media {
namespace {

using namespace std::string_view_literals;

constexpr double kUsualTempo = 500000.0;  // microseconds to a quarter
constexpr std::uint32_t kSetTempo = 0x51;
constexpr std::uint32_t kEndOfTrack = 0x2F;

struct TempoChange {
    std::uint64_t tick;
    double tempo;
};

/// What the tracks of a piece say about time; they all run side by side.
struct Times {
    std::vector<TempoChange> tempos;
    std::uint64_t last = 0;  ///< tick of the last event
};

/// Goes over the events of one track.
class Track {
  public:
    Track(std::string_view bytes, Times& times) : bytes_(bytes), times_(times) {}

    void read() {
        while (at_ < bytes_.size() && readEvent()) {
        }
        times_.last = std::max(times_.last, tick_);
    }

  private:
    /// A number of up to four bytes, seven bits in each.
    std::uint32_t number() {
        std::uint32_t value = 0;
        for (int i = 0; i < 4; ++i) {
            const unsigned byte = byteAt(bytes_, at_++);
            value = value << 7 | (byte & 0x7F);
            if (byte < 0x80) {
                break;
            }
        }
        return value;
    }

    /// False at the end of the track, and where it is damaged.
    bool readEvent() {
        tick_ += number();
        if (byteAt(bytes_, at_) >= 0x80) {
            status_ = byteAt(bytes_, at_++);
        }
        if (status_ == 0xFF) {
            return readMeta();
        }
        if (status_ == 0xF0 || status_ == 0xF7) {
            at_ += number();
            return true;
        }
        if (status_ < 0x80 || status_ > 0xEF) {
            return false;
        }
        at_ += status_ >> 4 == 0xC || status_ >> 4 == 0xD ? 1U : 2U;
        return true;
    }

    bool readMeta() {
        const unsigned kind = byteAt(bytes_, at_++);
        const std::uint32_t length = number();
        if (kind == kSetTempo && length == 3) {
            times_.tempos.push_back({tick_, static_cast<double>(big32(bytes_, at_) >> 8)});
        }
        at_ += length;
        return kind != kEndOfTrack;
    }

    std::string_view bytes_;
    Times& times_;
    std::size_t at_ = 0;
    std::uint64_t tick_ = 0;
    unsigned status_ = 0;
};

double secondsOf(Times times, std::uint32_t perQuarter) {
    std::stable_sort(times.tempos.begin(), times.tempos.end(),
                     [](const auto& one, const auto& other) { return one.tick < other.tick; });
    double quarters = 0.0;  // each multiplied by its microseconds
    double tempo = kUsualTempo;
    std::uint64_t tick = 0;
    for (const TempoChange& change : times.tempos) {
        quarters += static_cast<double>(change.tick - tick) * tempo;
        tick = change.tick;
        tempo = change.tempo;
    }
    quarters += static_cast<double>(std::max(times.last, tick) - tick) * tempo;
    return quarters / perQuarter / 1e6;
}

}  // namespace

std::string midiRefusal(FileBytes& file) {
    if (std::string words = sizeRefusal(file.size()); !words.empty()) {
        return words;
    }
    const std::string bytes = file.at(0, static_cast<std::size_t>(file.size()));
    std::size_t at = bytes.find("MThd"sv);  // which may be wrapped
    if (at == std::string::npos) {
        return {};
    }
    const std::uint32_t division = big16(bytes, at + 12);
    const bool ofFilm = (division & 0x8000) != 0;  // pictures a second, negative, and ticks in each
    const std::uint32_t perSecond = (256 - (division >> 8)) * (division & 0xFF);
    if (ofFilm ? perSecond == 0 : division == 0) {
        return "It does not say how fast it is.";
    }
    Times times;
    at += 8 + static_cast<std::size_t>(big32(bytes, at + 4));
    while (at + 8 <= bytes.size()) {
        const std::size_t length = big32(bytes, at + 4);
        if (bytes.compare(at, 4, "MTrk") == 0) {
            Track(std::string_view(bytes).substr(at + 8, length), times).read();
        }
        at += 8 + length;
    }
    return durationRefusal(ofFilm ? static_cast<double>(times.last) / perSecond
                                  : secondsOf(std::move(times), division));
}

}  // namespace quorvel::media
