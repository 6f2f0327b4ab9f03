/// The two kinds of field that records are made of, as they lie in a file.
///
/// Both are plain bytes of alignment 1, so a struct of them has the exact layout of the file, can
/// be read and written as one block, and a record that is read, changed in one field and written
/// back keeps every other byte.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "store/text_codec.h"

namespace quorvel::store {

/// A fixed-width text. A field that was never assigned holds zero bytes and reads as empty.
template <std::size_t Width>
class TextField {
  public:
    /// Trimmed text in UTF-8.
    [[nodiscard]] std::string text() const { return readField({bytes_.data(), Width}); }

    /// Stores `utf8`, cut to the width and padded with blanks.
    TextField& operator=(std::string_view utf8) {
        writeField(bytes_, utf8);
        return *this;
    }

    /// Back to zero bytes, as if the field had never been assigned.
    void unset() { bytes_.fill('\0'); }

    /// The bytes as they lie in the file.
    [[nodiscard]] std::string_view bytes() const { return {bytes_.data(), Width}; }

    friend bool operator==(const TextField&, const TextField&) = default;

  private:
    std::array<char, Width> bytes_{};
};

/// A signed 16-bit little-endian integer.
class IntField {
  public:
    // Implicit both ways on purpose: the field stands for its number.
    operator std::int16_t() const {  // NOLINT(google-explicit-constructor)
        return static_cast<std::int16_t>(static_cast<std::uint16_t>(bytes_[0] | (bytes_[1] << 8U)));
    }
    IntField& operator=(std::int16_t value) {
        const auto bits = static_cast<std::uint16_t>(value);
        bytes_ = {static_cast<unsigned char>(bits & 0xFFU), static_cast<unsigned char>(bits >> 8U)};
        return *this;
    }

    friend bool operator==(const IntField&, const IntField&) = default;

  private:
    std::array<unsigned char, 2> bytes_{};
};

template <std::size_t Count, std::size_t Width>
using TextFields = std::array<TextField<Width>, Count>;
template <std::size_t Count>
using IntFields = std::array<IntField, Count>;

}  // namespace quorvel::store
