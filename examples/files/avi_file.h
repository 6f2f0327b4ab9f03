/// Writes movies.
#pragma once

#include <filesystem>
#include <functional>

#include <QImage>

#include "sound/wave.h"

namespace quorvel::sample {

/// A movie in the making: its pictures, painted one after the other, and its sound.
struct Movie {
    QSize size;
    int frames = 0;
    int perSecond = 12;
    std::function<QImage(int frame)> paint;
    Wave sound;
};

/// Writes an AVI movie whose pictures are JPEG and whose sound is plain samples. Throws
/// `std::runtime_error`.
void writeAvi(const std::filesystem::path& path, const Movie& movie);

}  // namespace quorvel::sample
