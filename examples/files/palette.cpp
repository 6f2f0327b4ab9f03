#include "files/palette.h"

#include <algorithm>
#include <limits>

namespace quorvel::sample {
namespace {

/// Colours of 6 bits a channel.
constexpr std::size_t kColours = 262144;

/// A set of colours with how often each occurs; it is cut in two until the palette is full.
struct Box {
    struct Entry {
        std::array<int, 3> channel;
        std::int64_t count;
    };
    std::vector<Entry> entries;

    [[nodiscard]] std::pair<int, int> widest() const {
        int best = 0;
        int bestSpan = -1;
        for (std::size_t c = 0; c < 3; ++c) {
            int low = 255;
            int high = 0;
            for (const Entry& entry : entries) {
                low = std::min(low, entry.channel[c]);
                high = std::max(high, entry.channel[c]);
            }
            if (high - low > bestSpan) {
                bestSpan = high - low;
                best = static_cast<int>(c);
            }
        }
        return {best, bestSpan};
    }
    [[nodiscard]] std::int64_t pixels() const {
        std::int64_t sum = 0;
        for (const Entry& entry : entries) {
            sum += entry.count;
        }
        return sum;
    }
    [[nodiscard]] QRgb mean() const {
        std::array<std::int64_t, 3> sum{};
        for (const Entry& entry : entries) {
            for (std::size_t c = 0; c < 3; ++c) {
                sum[c] += entry.channel[c] * entry.count;
            }
        }
        const std::int64_t total = std::max<std::int64_t>(1, pixels());
        return qRgb(static_cast<int>(sum[0] / total), static_cast<int>(sum[1] / total),
                    static_cast<int>(sum[2] / total));
    }
};

Box colourCounts(const std::vector<QImage>& pictures) {
    std::vector<std::int64_t> counts(kColours);
    for (const QImage& picture : pictures) {
        for (int y = 0; y < picture.height(); ++y) {
            const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
            for (int x = 0; x < picture.width(); ++x) {
                if (qAlpha(line[x]) != 0) {
                    const int key = (qRed(line[x]) >> 2) << 12 | (qGreen(line[x]) >> 2) << 6 |
                                    (qBlue(line[x]) >> 2);
                    ++counts[static_cast<std::size_t>(key)];
                }
            }
        }
    }
    Box all;
    for (int key = 0; key < static_cast<int>(kColours); ++key) {
        if (const auto count = counts[static_cast<std::size_t>(key)]; count > 0) {
            all.entries.push_back(
                {{(key >> 12) * 4 + 2, ((key >> 6) & 63) * 4 + 2, (key & 63) * 4 + 2}, count});
        }
    }
    return all;
}

/// Cuts the box at the middle of its pixels along its widest channel; returns the upper half.
Box cut(Box& box) {
    const auto channel = static_cast<std::size_t>(box.widest().first);
    std::ranges::stable_sort(box.entries, {},
                             [channel](const Box::Entry& e) { return e.channel[channel]; });
    const std::int64_t half = box.pixels() / 2;
    std::int64_t sum = 0;
    std::size_t at = 0;
    while (at + 1 < box.entries.size() - 1 && sum + box.entries[at].count <= half) {
        sum += box.entries[at++].count;
    }
    const auto middle = box.entries.begin() + static_cast<std::ptrdiff_t>(at) + 1;
    Box upper{{middle, box.entries.end()}};
    box.entries.erase(middle, box.entries.end());
    return upper;
}

double weight(const Box& box) {
    if (box.entries.size() < 2) {
        return -1;
    }
    const double span = box.widest().second;
    return span * span * static_cast<double>(std::min<std::int64_t>(box.pixels(), 4000));
}

}  // namespace

Palette::Palette(const std::vector<QImage>& pictures) : known_(kColours, -1) {
    std::vector<Box> boxes{colourCounts(pictures)};
    while (boxes.size() < kPaletteSize - 1) {
        const auto widest = std::ranges::max_element(boxes, {}, weight);
        if (weight(*widest) < 0) {
            break;
        }
        Box upper = cut(*widest);
        boxes.push_back(std::move(upper));
    }
    for (const Box& box : boxes) {
        colours_[static_cast<std::size_t>(count_++)] = box.mean();
    }
}

std::uint8_t Palette::nearest(int red, int green, int blue) {
    std::int16_t& known =
        known_[static_cast<std::size_t>((red >> 2) << 12 | (green >> 2) << 6 | (blue >> 2))];
    if (known < 0) {
        int best = std::numeric_limits<int>::max();
        for (int i = 1; i < count_; ++i) {
            const int r = qRed(colour(i)) - red;
            const int g = qGreen(colour(i)) - green;
            const int b = qBlue(colour(i)) - blue;
            const int distance = 3 * r * r + 4 * g * g + 2 * b * b;
            if (distance < best) {
                best = distance;
                known = static_cast<std::int16_t>(i);
            }
        }
    }
    return static_cast<std::uint8_t>(known);
}

std::vector<std::uint8_t> Palette::entriesOf(const QImage& picture) {
    constexpr std::array<int, 16> pattern = {0, 8, 2, 10, 12, 4, 14, 6, 3, 11, 1, 9, 15, 7, 13, 5};
    std::vector<std::uint8_t> entries;
    entries.reserve(static_cast<std::size_t>(picture.width() * picture.height()));
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(line[x]) == 0) {
                entries.push_back(0);
                continue;
            }
            const int push = (pattern[static_cast<std::size_t>((y & 3) * 4 + (x & 3))] - 8) / 2;
            const auto pushed = [push](int value) { return std::clamp(value + push, 0, 255); };
            entries.push_back(
                nearest(pushed(qRed(line[x])), pushed(qGreen(line[x])), pushed(qBlue(line[x]))));
        }
    }
    return entries;
}

}  // namespace quorvel::sample
