/// Sounds made from numbers.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <vector>

namespace quorvel::sample {

/// Samples in a second.
inline constexpr int kSampleRate = 22050;

/// A mono sound; samples run from -1 to 1.
class Wave {
  public:
    explicit Wave(double seconds);

    [[nodiscard]] double seconds() const;
    /// Adds `value(t)`, t in seconds from `start`, for `length` seconds.
    void add(double start, double length, const std::function<double(double)>& value);
    /// Adds a tone that dies away: `decay` is the time in seconds to about a third.
    void addTone(double start, double frequency, double decay, double level);
    /// Adds noise through a filter that lets pass what lies below `cutoff` (in hertz), times
    /// `envelope(t)`.
    void addNoise(double start, double length, double cutoff, std::uint64_t seed,
                  const std::function<double(double)>& envelope);
    /// Puts the end and the beginning over each other, so that the sound loops without a click.
    void makeLoop(double overlap);
    /// Makes the loudest sample `level`.
    void normalise(double level);
    /// The samples as 16-bit numbers.
    [[nodiscard]] std::vector<std::int16_t> samples() const;
    /// Writes 16-bit samples. Throws `std::runtime_error`.
    void writeTo(const std::filesystem::path& path) const;

  private:
    std::vector<double> samples_;
};

}  // namespace quorvel::sample
