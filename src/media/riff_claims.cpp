// The headers of WAV files and AVI movies, which are made of chunks: a name, a length, the
// contents.
#include <algorithm>
#include <functional>

#include "media/bounds.h"
#include "media/file_claims.h"

namespace quorvel::media {
namespace {

using namespace std::string_view_literals;

constexpr std::uint64_t kChunkHead = 8;
constexpr std::uint64_t kListHead = 12;
/// No header has more; what comes behind them is not read.
constexpr int kMostChunks = 10000;

struct Chunk {
    std::string name;
    std::uint64_t at = 0;      ///< of its contents
    std::uint64_t length = 0;  ///< of its contents, as far as the file goes
    std::uint64_t claimed = 0;
};

/// Shows the chunks from `from` to `to` one after the other, until one gives words.
std::string walk(FileBytes& file, std::uint64_t from, std::uint64_t to,
                 const std::function<std::string(const Chunk&)>& look) {
    for (int i = 0; i < kMostChunks && from + kChunkHead <= to; ++i) {
        const std::string head = file.at(from, kChunkHead);
        if (head.size() < kChunkHead) {
            break;
        }
        const std::uint64_t claimed = little32(head, 4);
        const std::uint64_t at = from + kChunkHead;
        const std::uint64_t rest = file.size() - at;
        if (std::string words = look({head.substr(0, 4), at, std::min(claimed, rest), claimed});
            !words.empty()) {
            return words;
        }
        from = at + claimed + claimed % 2;
    }
    return {};
}

/// The description of a sound, which WAV files and AVI movies have in common.
struct SoundFormat {
    std::uint32_t channels;
    std::uint32_t rate;
    std::uint32_t bytesPerSecond;
};

SoundFormat soundFormat(std::string_view bytes) {
    const std::uint32_t channels = little16(bytes, 2);
    const std::uint32_t rate = little32(bytes, 4);
    const std::uint32_t told = little32(bytes, 8);
    return {channels, rate, told != 0 ? told : rate * std::max(1U, little16(bytes, 12))};
}

constexpr std::size_t kSoundFormat = 16;
constexpr std::size_t kPictureFormat = 16;
constexpr std::size_t kStreamHeader = 48;

/// One stream of a movie: its header first, then its format.
class AviStream {
  public:
    std::string look(FileBytes& file, const Chunk& chunk) {
        if (chunk.name == "strh"sv) {
            return takeHeader(file.at(chunk.at, kStreamHeader));
        }
        if (chunk.name != "strf"sv) {
            return {};
        }
        if (kind_ == "vids"sv) {
            const std::string format = file.at(chunk.at, kPictureFormat);
            return pictureRefusal(static_cast<std::int32_t>(little32(format, 4)),
                                  static_cast<std::int32_t>(little32(format, 8)));
        }
        if (kind_ == "auds"sv) {
            const SoundFormat format = soundFormat(file.at(chunk.at, kSoundFormat));
            return soundRefusal(format.channels, format.rate);
        }
        return {};
    }

  private:
    std::string takeHeader(std::string_view header) {
        kind_ = header.substr(0, 4);
        const double scale = little32(header, 20);
        const double rate = little32(header, 24);
        if (scale == 0.0 || rate == 0.0) {
            return {};
        }
        const double units = little32(header, 28) + static_cast<double>(little32(header, 32));
        std::string words = durationRefusal(units * scale / rate);
        if (words.empty() && kind_ == "vids"sv) {
            words = pictureRateRefusal(rate / scale);
        }
        return words;
    }

    std::string kind_;
};

/// The list of all headers of a movie.
std::string headersRefusal(FileBytes& file, const Chunk& list) {
    if (std::string words = sizeRefusal(list.length); !words.empty()) {
        return words;
    }
    const std::uint64_t end = list.at + list.length;
    return walk(file, list.at + 4, end, [&](const Chunk& chunk) -> std::string {
        if (chunk.name == "avih"sv) {
            const std::string head = file.at(chunk.at, 20);
            return durationRefusal(little32(head, 0) / 1e6 * little32(head, 16));
        }
        if (chunk.name != "LIST"sv || file.at(chunk.at, 4) != "strl"sv) {
            return {};
        }
        AviStream stream;
        return walk(file, chunk.at + 4, std::min(end, chunk.at + chunk.length),
                    [&](const Chunk& part) { return stream.look(file, part); });
    });
}

}  // namespace

std::string wavRefusal(FileBytes& file) {
    double perSecond = 0.0;
    return walk(file, kListHead, file.size(), [&](const Chunk& chunk) -> std::string {
        if (chunk.name == "fmt "sv) {
            const SoundFormat format = soundFormat(file.at(chunk.at, kSoundFormat));
            perSecond = format.bytesPerSecond;
            return soundRefusal(format.channels, format.rate);
        }
        if (chunk.name == "data"sv) {
            // Programs that do not know the length in advance write the largest there is.
            return perSecond == 0.0
                       ? std::string()
                       : durationRefusal(static_cast<double>(chunk.length) / perSecond);
        }
        return sizeRefusal(chunk.length);
    });
}

std::string aviRefusal(FileBytes& file) {
    return walk(file, kListHead, file.size(), [&](const Chunk& chunk) -> std::string {
        if (chunk.name == "LIST"sv) {
            const std::string kind = file.at(chunk.at, 4);
            if (kind == "hdrl"sv) {
                return headersRefusal(file, chunk);
            }
            return kind == "movi"sv ? std::string() : sizeRefusal(chunk.length);
        }
        return chunk.name == "RIFF"sv ? std::string() : sizeRefusal(chunk.length);
    });
}

}  // namespace quorvel::media
