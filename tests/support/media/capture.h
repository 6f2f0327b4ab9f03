/// Ears for tests: a sound device that keeps what it is given.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <string>
#include <vector>

namespace quorvel::test {

/// What one play sent to the device, 44,100 Hz, left and right in turns.
struct Take {
    std::vector<float> samples;
    std::chrono::steady_clock::time_point first;  ///< when the first sample came
    bool closed = false;                          ///< the device has been given back
};

/// How the device behaves.
enum class Device : std::uint8_t {
    fast,      ///< takes sound as fast as it comes
    realTime,  ///< takes a second of sound in a second
    absent,    ///< can't be opened
    wedged,    ///< opening it hangs until release()
};

/// Level of a stretch of sound in decibels below full scale; -200 for silence.
struct Levels {
    double left = -200.0;
    double right = -200.0;
};

/// Registers the GStreamer element "quorvelcapture" and listens to those that sink() names. Must
/// outlive every engine that uses it.
class Capture {
  public:
    Capture();
    Capture(const Capture&) = delete;
    Capture& operator=(const Capture&) = delete;
    ~Capture() { release(); }

    /// The description of a device that this object listens to.
    [[nodiscard]] std::string sink(Device device) const;

    /// Plays that have been heard so far, in the order of their first samples.
    [[nodiscard]] std::size_t takes() const;
    [[nodiscard]] Take take(std::size_t number) const;
    [[nodiscard]] std::size_t frames(std::size_t number) const;
    /// Devices that are open now.
    [[nodiscard]] int open() const;
    /// True once take `number` has `count` frames; false when that takes over ten seconds.
    bool waitForFrames(std::size_t number, std::size_t count);

    /// Lets go the samples of all takes that are closed.
    void forget();

    /// Devices that have been given back.
    [[nodiscard]] int closes() const;
    /// Until a wedged device hangs.
    void waitForHanging();
    /// Lets a wedged device go on.
    void release();

    // For the element.
    void opened();
    void closed(int take);
    /// Returns the number of the take, a new one for -1.
    int heard(int take, const float* samples, std::size_t count);
    void hang();

  private:
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Take> takes_;
    int open_ = 0;
    int closes_ = 0;
    int hanging_ = 0;
    bool released_ = false;
};

/// Level of frames `from` to `to`.
Levels levels(const std::vector<float>& samples, std::size_t from, std::size_t to);

/// How often the left side crosses zero upwards in a second: the pitch of a pure tone, in Hz.
double pitch(const std::vector<float>& samples, std::size_t from, std::size_t to);

}  // namespace quorvel::test
