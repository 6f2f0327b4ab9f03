#include "sound/wave.h"

#include <algorithm>
#include <cmath>

#include "art/noise.h"
#include "art/turn.h"
#include "files/bytes.h"

namespace quorvel::sample {
namespace {

std::size_t samplesIn(double seconds) {
    return static_cast<std::size_t>(std::max(0.0, seconds) * kSampleRate);
}

}  // namespace

Wave::Wave(double seconds) : samples_(samplesIn(seconds)) {}

double Wave::seconds() const {
    return static_cast<double>(samples_.size()) / kSampleRate;
}

void Wave::add(double start, double length, const std::function<double(double)>& value) {
    const std::size_t first = samplesIn(start);
    const std::size_t last = std::min(samples_.size(), first + samplesIn(length));
    for (std::size_t i = first; i < last; ++i) {
        samples_[i] += value(static_cast<double>(i - first) / kSampleRate);
    }
}

void Wave::addTone(double start, double frequency, double decay, double level) {
    add(start, decay * 6, [=](double t) {
        const double attack = std::min(1.0, t / 0.004);
        return level * attack * std::exp(-t / decay) * std::sin(kTurn * frequency * t);
    });
}

void Wave::addNoise(double start, double length, double cutoff, std::uint64_t seed,
                    const std::function<double(double)>& envelope) {
    Random random(seed);
    const double keep = std::exp(-kTurn * cutoff / kSampleRate);
    double low = 0;
    double lower = 0;
    add(start, length, [&](double t) {
        low = low * keep + (1 - keep) * random.between(-1, 1);
        lower = lower * keep + (1 - keep) * low;
        return lower * 2 * envelope(t);
    });
}

void Wave::makeLoop(double overlap) {
    const std::size_t count = std::min(samplesIn(overlap), samples_.size() / 2);
    const std::size_t kept = samples_.size() - count;
    for (std::size_t i = 0; i < count; ++i) {
        const double t = static_cast<double>(i) / static_cast<double>(count);
        samples_[i] = samples_[i] * std::sqrt(t) + samples_[kept + i] * std::sqrt(1 - t);
    }
    samples_.resize(kept);
}

void Wave::normalise(double level) {
    double loudest = 1e-9;
    for (const double sample : samples_) {
        loudest = std::max(loudest, std::abs(sample));
    }
    for (double& sample : samples_) {
        sample *= level / loudest;
    }
}

std::vector<std::int16_t> Wave::samples() const {
    std::vector<std::int16_t> numbers;
    numbers.reserve(samples_.size());
    for (const double sample : samples_) {
        numbers.push_back(
            static_cast<std::int16_t>(std::lround(std::clamp(sample, -1.0, 1.0) * 32767)));
    }
    return numbers;
}

void Wave::writeTo(const std::filesystem::path& path) const {
    const auto dataBytes = static_cast<unsigned>(samples_.size() * 2);
    Bytes bytes;
    bytes.text("RIFF");
    bytes.number32(36 + dataBytes);
    bytes.text("WAVEfmt ");
    bytes.number32(16);
    bytes.number16(1);  // plain samples
    bytes.number16(1);  // mono
    bytes.number32(kSampleRate);
    bytes.number32(kSampleRate * 2);
    bytes.number16(2);
    bytes.number16(16);
    bytes.text("data");
    bytes.number32(dataBytes);
    for (const std::int16_t sample : samples()) {
        bytes.number16(static_cast<unsigned>(sample) & 0xFFFFU);
    }
    bytes.writeTo(path);
}

}  // namespace quorvel::sample
