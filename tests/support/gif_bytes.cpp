#include "support/gif_bytes.h"

#include <algorithm>
#include <cstddef>

namespace quorvel::test {
namespace {

constexpr int kPalette = 128;

void putInt(std::string& out, int number) {
    out += static_cast<char>(number & 0xFF);
    out += static_cast<char>(number >> 8 & 0xFF);
}

void putLong(std::string& out, int number) {
    putInt(out, number & 0xFFFF);
    putInt(out, number >> 16);
}

/// The pixels as codes of 8 bits: with a table of 128 colours the codes keep that width as long as
/// the table is emptied often enough, so that each pixel is one byte.
std::string pixelCodes(std::size_t pixels, int colour) {
    constexpr char kEmptyTable = '\x80';
    constexpr char kEnd = '\x81';
    constexpr std::size_t kRun = 100;
    std::string codes;
    for (std::size_t done = 0; done < pixels; done += kRun) {
        codes += kEmptyTable;
        codes.append(std::min(kRun, pixels - done), static_cast<char>(colour));
    }
    return codes + kEnd;
}

void putFrame(std::string& out, int width, int height, const GifFrame& frame) {
    out.append("\x21\xF9\x04\x00", 4);
    putInt(out, frame.delay);
    out.append("\0\0", 2);
    out += ',';
    putInt(out, 0);
    putInt(out, 0);
    putInt(out, width);
    putInt(out, height);
    out += '\0';
    out += '\x07';
    const std::string codes = pixelCodes(
        static_cast<std::size_t>(width) * static_cast<std::size_t>(height), frame.colour);
    constexpr std::size_t kBlock = 255;
    for (std::size_t at = 0; at < codes.size(); at += kBlock) {
        const std::size_t length = std::min(kBlock, codes.size() - at);
        out += static_cast<char>(length);
        out.append(codes, at, length);
    }
    out += '\0';
}

}  // namespace

std::uint32_t gifColour(int colour) {
    const auto c = static_cast<std::uint32_t>(colour);
    return 0xFF000000U | (c * 2) << 16 | (255 - c) << 8 | c;
}

std::string gifBytes(int width, int height, const std::vector<GifFrame>& frames,
                     std::optional<int> loops) {
    std::string out = "GIF89a";
    putInt(out, width);
    putInt(out, height);
    out.append("\xF6\x00\x00", 3);
    for (int i = 0; i < kPalette; ++i) {
        const std::uint32_t rgb = gifColour(i);
        out += static_cast<char>(rgb >> 16 & 0xFF);
        out += static_cast<char>(rgb >> 8 & 0xFF);
        out += static_cast<char>(rgb & 0xFF);
    }
    if (loops) {
        out.append("\x21\xFF\x0BNETSCAPE2.0\x03\x01", 16);
        putInt(out, *loops);
        out += '\0';
    }
    for (const GifFrame& frame : frames) {
        putFrame(out, width, height, frame);
    }
    return out + ';';
}

std::string stillGif(int width, int height, int colour) {
    return gifBytes(width, height, {{.colour = colour}});
}

std::string bmpBytes(int width, int height, std::uint32_t rgb) {
    constexpr int kHeader = 54;
    const int stride = (width * 3 + 3) / 4 * 4;
    std::string out = "BM";
    putLong(out, kHeader + stride * height);
    putLong(out, 0);
    putLong(out, kHeader);
    putLong(out, 40);
    putLong(out, width);
    putLong(out, height);
    putInt(out, 1);
    putInt(out, 24);
    out.append(24, '\0');
    std::string row;
    for (int x = 0; x < width; ++x) {
        row += static_cast<char>(rgb & 0xFF);
        row += static_cast<char>(rgb >> 8 & 0xFF);
        row += static_cast<char>(rgb >> 16 & 0xFF);
    }
    row.resize(static_cast<std::size_t>(stride), '\0');
    for (int y = 0; y < height; ++y) {
        out += row;
    }
    return out;
}

}  // namespace quorvel::test
