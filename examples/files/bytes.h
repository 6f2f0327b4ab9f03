/// Bytes of a file in the making.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace quorvel::sample {

/// Collects bytes.
class Bytes {
  public:
    void text(std::string_view value) { bytes_ += value; }
    void number8(unsigned value) { bytes_ += static_cast<char>(value & 0xFFU); }
    void number16(unsigned value) { little(value, 2); }
    void number32(unsigned value) { little(value, 4); }
    void big16(unsigned value) { big(value, 2); }
    void big32(unsigned value) { big(value, 4); }
    [[nodiscard]] std::size_t size() const { return bytes_.size(); }
    [[nodiscard]] const std::string& all() const { return bytes_; }

    /// Throws `std::runtime_error`.
    void writeTo(const std::filesystem::path& path) const;

  private:
    void little(unsigned value, unsigned count) {
        for (unsigned i = 0; i < count; ++i) {
            number8(value >> (8 * i));
        }
    }
    void big(unsigned value, unsigned count) {
        for (unsigned i = count; i > 0; --i) {
            number8(value >> (8 * (i - 1)));
        }
    }

    std::string bytes_;
};

}  // namespace quorvel::sample
