#include "files/cursor_file.h"

#include "files/bytes.h"

namespace quorvel::sample {
namespace {

constexpr unsigned kDirectoryBytes = 6 + 16;
constexpr unsigned kHeaderBytes = 40;

}  // namespace

void writeCursor(const std::filesystem::path& path, const QImage& picture, QPoint hotSpot) {
    const QImage image = picture.convertToFormat(QImage::Format_ARGB32);
    const auto width = static_cast<unsigned>(image.width());
    const auto height = static_cast<unsigned>(image.height());
    const unsigned maskRow = (width + 31) / 32 * 4;
    const unsigned imageBytes = kHeaderBytes + width * height * 4 + maskRow * height;
    Bytes bytes;
    bytes.number16(0);
    bytes.number16(2);  // a pointer, not an icon
    bytes.number16(1);
    bytes.number8(width);
    bytes.number8(height);
    bytes.number16(0);
    bytes.number16(static_cast<unsigned>(hotSpot.x()));
    bytes.number16(static_cast<unsigned>(hotSpot.y()));
    bytes.number32(imageBytes);
    bytes.number32(kDirectoryBytes);
    // The height counts the colours and the mask below them.
    bytes.number32(kHeaderBytes);
    bytes.number32(width);
    bytes.number32(height * 2);
    bytes.number16(1);
    bytes.number16(32);
    for (int i = 0; i < 6; ++i) {
        bytes.number32(0);
    }
    for (int y = image.height() - 1; y >= 0; --y) {
        for (int x = 0; x < image.width(); ++x) {
            bytes.number32(image.pixel(x, y));
        }
    }
    for (int y = image.height() - 1; y >= 0; --y) {
        for (unsigned byte = 0; byte < maskRow; ++byte) {
            unsigned bits = 0;
            for (unsigned bit = 0; bit < 8; ++bit) {
                const unsigned x = byte * 8 + bit;
                const bool clear = x >= width || qAlpha(image.pixel(static_cast<int>(x), y)) < 128;
                bits = bits << 1U | (clear ? 1U : 0U);
            }
            bytes.number8(bits);
        }
    }
    bytes.writeTo(path);
}

}  // namespace quorvel::sample
