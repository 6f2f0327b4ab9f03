/// Number rules that every routine shares.
#pragma once

#include <cstdint>
#include <string_view>

namespace quorvel::store {

/// The number that `text` begins with: the longest leading decimal number (sign, digits, one
/// point), blanks skipped, else 0.
double val(std::string_view text);

/// `val`, rounded to the nearest whole number (a half goes to the even one) and held within what
/// an int can take.
int valInt(std::string_view text);

/// Records in a file of `bytes` bytes: the nearest whole number, a half going to the even one, and
/// at most 32767, the largest number that a record can have.
int recordCount(std::uintmax_t bytes, std::size_t recordLength);

}  // namespace quorvel::store
