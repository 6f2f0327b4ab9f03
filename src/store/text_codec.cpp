#include "store/text_codec.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "store/utf8.h"

namespace quorvel::store {
namespace {

/// Code points of the bytes 0x80 to 0x9F; all other bytes are their own code point.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t codePointOf(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80U] : byte;
}

/// The byte of a code point, or -1 when the page has none.
int byteOf(char32_t point) {
    if (point < 0x80 || (point >= 0xA0 && point < 0x100)) {
        return static_cast<int>(point);
    }
    const auto* found = std::find(kHighControls.begin(), kHighControls.end(), point);
    return found == kHighControls.end() ? -1
                                        : 0x80 + static_cast<int>(found - kHighControls.begin());
}

void appendUtf8(std::string& out, char32_t point) {
    if (point < 0x80) {
        out += static_cast<char>(point);
    } else if (point < 0x800) {
        out += static_cast<char>(0xC0 | (point >> 6U));
        out += static_cast<char>(0x80 | (point & 0x3FU));
    } else {
        out += static_cast<char>(0xE0 | (point >> 12U));
        out += static_cast<char>(0x80 | ((point >> 6U) & 0x3FU));
        out += static_cast<char>(0x80 | (point & 0x3FU));
    }
}

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

std::string decodeText(std::string_view bytes) {
    if (isAscii(bytes)) {
        return std::string(bytes);
    }
    std::string text;
    text.reserve(bytes.size() * 2);
    for (const char byte : bytes) {
        appendUtf8(text, codePointOf(static_cast<unsigned char>(byte)));
    }
    return text;
}

std::string encodeText(std::string_view utf8) {
    if (isAscii(utf8)) {
        return std::string(utf8);
    }
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        const int byte = byteOf(takeCodePoint(utf8));
        bytes += byte < 0 ? '?' : static_cast<char>(byte);
    }
    return bytes;
}

bool fitsCodePage(std::string_view utf8) {
    while (!utf8.empty()) {
        if (byteOf(takeCodePoint(utf8)) < 0) {
            return false;
        }
    }
    return true;
}

std::string_view trimBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string readField(std::string_view bytes) {
    if (bytes.find_first_not_of('\0') == std::string_view::npos) {
        return {};
    }
    return decodeText(trimBlanks(bytes));
}

void writeField(std::span<char> field, std::string_view utf8) {
    const std::string bytes = encodeText(utf8);
    const std::size_t used = std::min(bytes.size(), field.size());
    std::copy_n(bytes.begin(), used, field.begin());
    std::fill(field.begin() + static_cast<std::ptrdiff_t>(used), field.end(), ' ');
}

}  // namespace quorvel::store
