#include "store/utf8.h"

#include <array>
#include <cstddef>

namespace quorvel::store {

char32_t takeCodePoint(std::string_view& utf8) {
    const auto lead = static_cast<unsigned char>(utf8.front());
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    char32_t point = length < 2 ? lead : lead & (0x7FU >> length);
    bool valid = length > 0 && utf8.size() >= length;
    for (std::size_t i = 1; valid && i < length; ++i) {
        const auto next = static_cast<unsigned char>(utf8[i]);
        valid = (next & 0xC0U) == 0x80U;
        point = (point << 6U) | (next & 0x3FU);
    }
    constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
    valid = valid && point >= kSmallest[length] && point <= 0x10FFFF &&
            (point < 0xD800 || point > 0xDFFF);
    utf8.remove_prefix(valid ? length : 1);
    return valid ? point : kMalformed;
}

}  // namespace quorvel::store
