#include "store/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <system_error>

namespace quorvel::store {

double val(std::string_view text) {
    std::string number;
    bool point = false;
    bool signSeen = false;
    for (const char c : text) {
        if (c == ' ') {
            continue;
        }
        const bool sign = (c == '-' || c == '+') && number.empty() && !signSeen;
        const bool firstPoint = c == '.' && !point;
        if (!sign && !firstPoint && (c < '0' || c > '9')) {
            break;
        }
        point = point || firstPoint;
        signSeen = signSeen || sign;
        if (c != '+') {
            number += c;
        }
    }
    // Not strtod: its decimal point follows the desktop's language.
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        const bool large = number.find_first_of("123456789") < number.find('.');
        value = large ? std::numeric_limits<double>::max() : 0;
        return number.front() == '-' ? -value : value;
    }
    return value;
}

int valInt(std::string_view text) {
    constexpr double kMost = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::nearbyint(val(text)), -kMost, kMost));
}

int recordCount(std::uintmax_t bytes, std::size_t recordLength) {
    const std::uintmax_t whole = bytes / recordLength;
    const std::uintmax_t rest = bytes % recordLength;
    const bool up = rest * 2 > recordLength || (rest * 2 == recordLength && whole % 2 == 1);
    constexpr std::uintmax_t kMost = std::numeric_limits<std::int16_t>::max();
    return static_cast<int>(std::min(whole + (up ? 1 : 0), kMost));
}

}  // namespace quorvel::store
