/// What is told of a typed number that no record can hold.
#pragma once

#include <cstdint>
#include <limits>

#include <QString>

namespace quorvel::forms {

/// Why the number that `typed` begins with cannot be stored: it has more than 16 bits. Empty when
/// it can. `least` is what the author is told to be the lowest; whether it is kept is not checked
/// here.
QString numberProblem(const QString& typed, int least = std::numeric_limits<std::int16_t>::min());

}  // namespace quorvel::forms
