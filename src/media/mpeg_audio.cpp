#include "media/mpeg_audio.h"

#include <array>

#include "media/file_bytes.h"

namespace quorvel::media {

using namespace std::string_view_literals;

std::optional<AudioFrame> audioFrameAt(std::string_view bytes, std::size_t at) {
    static constexpr std::array<std::array<int, 15>, 5> kBitRates{{
        {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448},  // 1, layer I
        {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384},     // 1, layer II
        {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320},      // 1, layer III
        {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256},     // 2, layer I
        {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160},          // 2, II and III
    }};
    static constexpr std::array<int, 3> kRates{44100, 48000, 32000};
    if (at + 4 > bytes.size() || byteAt(bytes, at) != 0xFF ||
        (byteAt(bytes, at + 1) & 0xE0) != 0xE0) {
        return std::nullopt;
    }
    const unsigned version = byteAt(bytes, at + 1) >> 3 & 3;  // 0 is 2.5, 2 is 2, 3 is 1
    const unsigned layer = 4 - (byteAt(bytes, at + 1) >> 1 & 3);
    const unsigned rateIndex = byteAt(bytes, at + 2) >> 4;
    const unsigned frequency = byteAt(bytes, at + 2) >> 2 & 3;
    const unsigned padding = byteAt(bytes, at + 2) >> 1 & 1;
    if (version == 1 || layer == 4 || rateIndex == 0 || rateIndex == 15 || frequency == 3) {
        return std::nullopt;
    }
    const bool first = version == 3;
    const bool mono = (byteAt(bytes, at + 3) >> 6) == 3;
    const std::size_t row = first ? layer - 1 : (layer == 1 ? 3 : 4);
    AudioFrame frame;
    frame.bitRate = kBitRates[row][rateIndex] * 1000;
    frame.rate = kRates[frequency] / (first ? 1 : (version == 2 ? 2 : 4));
    frame.side = 4 + (first ? (mono ? 17 : 32) : (mono ? 9 : 17));
    if (layer == 1) {
        frame.samples = 384;
        frame.length = (static_cast<std::size_t>(12 * frame.bitRate / frame.rate) + padding) * 4;
        return frame;
    }
    frame.samples = layer == 3 && !first ? 576 : 1152;
    frame.length =
        static_cast<std::size_t>(frame.samples / 8 * frame.bitRate / frame.rate) + padding;
    return frame;
}

std::optional<std::size_t> firstAudioFrame(std::string_view bytes, bool whole) {
    for (std::size_t at = 0; at + 4 <= bytes.size(); ++at) {
        const auto frame = audioFrameAt(bytes, at);
        if (!frame || frame->length == 0) {
            continue;
        }
        const std::size_t next = at + frame->length;
        if (audioFrameAt(bytes, next) || (whole && at == 0 && next == bytes.size())) {
            return at;
        }
    }
    return std::nullopt;
}

std::size_t tagLength(std::string_view bytes) {
    if (bytes.size() < 10 || bytes.substr(0, 3) != "ID3"sv) {
        return 0;
    }
    std::size_t length = 0;
    for (std::size_t i = 6; i < 10; ++i) {
        length = length << 7 | (byteAt(bytes, i) & 0x7F);
    }
    const bool footer = (byteAt(bytes, 5) & 0x10) != 0;
    return length + (footer ? 20 : 10);
}

}  // namespace quorvel::media
