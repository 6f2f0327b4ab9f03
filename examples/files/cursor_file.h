/// Writes mouse pointers.
#pragma once

#include <filesystem>

#include <QImage>
#include <QPoint>

namespace quorvel::sample {

/// Writes `picture`, at most 255 pixels each way, as a pointer whose active point is `hotSpot`.
/// Throws `std::runtime_error`.
void writeCursor(const std::filesystem::path& path, const QImage& picture, QPoint hotSpot);

}  // namespace quorvel::sample
