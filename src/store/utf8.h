/// UTF-8, one character at a time.
#pragma once

#include <string_view>

namespace quorvel::store {

/// What `takeCodePoint` returns for a byte that is not well-formed UTF-8.
inline constexpr char32_t kMalformed = 0xFFFFFFFF;

/// Takes one character off the front of `utf8`, which is not empty, and returns its code point. A
/// malformed byte is taken alone.
char32_t takeCodePoint(std::string_view& utf8);

}  // namespace quorvel::store
