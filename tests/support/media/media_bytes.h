/// Small sound and movie files for tests, byte for byte.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace quorvel::test {

/// Frames in one second of the sounds made here.
inline constexpr int kSecond = 44100;

/// The value of a sample, -1.0 to 1.0, by frame and side (0 left, 1 right).
using Wave = std::function<double(int frame, int side)>;

/// A sine of `hertz` at 44,100 Hz with the given peak, the same on both sides.
Wave tone(double hertz, double peak = 0.5);
/// Sample n is n / 32768 on the left and its negative on the right, so each tells its place.
Wave counter();

/// A WAV file of 16 bits, stereo.
std::string wavBytes(int frames, const Wave& wave, int rate = kSecond);
/// A WAV file in IMA ADPCM, mono, 22,050 Hz, `blocks` of 505 samples: a buzz.
std::string adpcmBytes(int blocks);

/// A MIDI file: one loud note of organ for `milliseconds`.
std::string midiBytes(int milliseconds, int note = 69);

struct MovieShape {
    int width = 32;
    int height = 24;
    int frames = 10;
    int perSecond = 20;
    bool sound = false;  ///< a tone of 441 Hz, peak 0.5, as long as the pictures
    /// Every picture, ready in the coding that is named; empty for uncompressed ones.
    std::string picture = {};
    std::string coding = "DIB ";
    std::string properties = {};  ///< a chunk more behind the format of the pictures
};
/// The colour of a frame, as 0xRRGGBB: its number is in the red.
std::uint32_t movieColour(int frame);
/// An AVI movie of uncompressed pictures of one colour each.
std::string aviBytes(const MovieShape& shape);

}  // namespace quorvel::test
