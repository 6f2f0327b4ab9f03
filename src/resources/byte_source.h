/// Bounds-checked reading of bytes that nobody vouches for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace quorvel::resources {

/// Thrown by the readers here where the bytes do not hold what they promise. It never leaves the
/// unit that reads a format.
struct DamagedBytes {};

/// A row of bytes in memory; all numbers in it are little-endian. What lies beyond the end is
/// answered with `DamagedBytes`.
class BoundedBytes {
  public:
    explicit BoundedBytes(std::string_view bytes) : bytes_(bytes) {}

    [[nodiscard]] std::size_t size() const { return bytes_.size(); }
    [[nodiscard]] std::string_view part(std::size_t offset, std::size_t count) const {
        if (offset > bytes_.size() || count > bytes_.size() - offset) {
            throw DamagedBytes{};
        }
        return bytes_.substr(offset, count);
    }
    [[nodiscard]] std::uint16_t number16(std::size_t offset) const {
        const std::string_view two = part(offset, 2);
        return static_cast<std::uint16_t>(byte(two[0]) | byte(two[1]) << 8U);
    }
    [[nodiscard]] std::uint32_t number32(std::size_t offset) const {
        return number16(offset) | static_cast<std::uint32_t>(number16(offset + 2)) << 16U;
    }

  private:
    static unsigned byte(char c) { return static_cast<unsigned char>(c); }

    std::string_view bytes_;
};

/// A file, or what stands for one, that is read in pieces.
class ByteSource {
  public:
    /// Reads at an offset and returns how many bytes came, fewer than asked only at the end.
    using Reader = std::function<std::size_t(std::uintmax_t offset, std::span<char> into)>;

    ByteSource(std::uintmax_t size, Reader reader) : size_(size), reader_(std::move(reader)) {}

    [[nodiscard]] std::uintmax_t size() const { return size_; }

    /// Exactly `count` bytes at `offset`; `DamagedBytes` where there are fewer.
    [[nodiscard]] std::string read(std::uintmax_t offset, std::size_t count) const {
        if (offset > size_ || count > size_ - offset) {
            throw DamagedBytes{};
        }
        std::string bytes(count, '\0');
        if (reader_(offset, bytes) != count) {
            throw DamagedBytes{};
        }
        return bytes;
    }

  private:
    std::uintmax_t size_;
    Reader reader_;
};

/// Bytes in memory as a source; they must outlive it.
ByteSource sourceOf(std::string_view bytes);

}  // namespace quorvel::resources
