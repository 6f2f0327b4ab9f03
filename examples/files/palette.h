/// Reduces the colours of pictures to what one palette holds.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include <QImage>

namespace quorvel::sample {

/// The most colours of a palette; entry 0 is kept for clear pixels.
inline constexpr int kPaletteSize = 256;

/// A palette made for the solid pixels of a set of pictures.
class Palette {
  public:
    explicit Palette(const std::vector<QImage>& pictures);

    [[nodiscard]] QRgb colour(int entry) const { return colours_[static_cast<std::size_t>(entry)]; }
    /// The palette entries of a picture, row after row; neighbouring pixels are rounded up and down
    /// in turn, so that gradients show no steps.
    [[nodiscard]] std::vector<std::uint8_t> entriesOf(const QImage& picture);

  private:
    std::uint8_t nearest(int red, int green, int blue);

    std::array<QRgb, kPaletteSize> colours_{};
    int count_ = 1;
    std::vector<std::int16_t> known_;  ///< nearest entry by colour of 6 bits a channel, -1 unknown
};

}  // namespace quorvel::sample
