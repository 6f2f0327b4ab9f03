/// Files that are read here and there, and the numbers in their bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace quorvel::media {

/// A file of which only what is asked for is read. Never throws; what cannot be read is missing.
class FileBytes {
  public:
    explicit FileBytes(const std::filesystem::path& file);

    /// In bytes; 0 for a file that cannot be read.
    [[nodiscard]] std::uint64_t size() const { return size_; }
    /// `count` bytes from `offset` on, fewer where the file ends.
    [[nodiscard]] std::string at(std::uint64_t offset, std::size_t count);

  private:
    std::ifstream in_;
    std::uint64_t size_ = 0;
};

/// The byte at `at`; 0 behind the end, as for all numbers here.
inline unsigned byteAt(std::string_view bytes, std::size_t at) {
    return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

inline std::uint32_t little16(std::string_view bytes, std::size_t at) {
    return byteAt(bytes, at) | byteAt(bytes, at + 1) << 8;
}

inline std::uint32_t little32(std::string_view bytes, std::size_t at) {
    return little16(bytes, at) | little16(bytes, at + 2) << 16;
}

inline std::uint32_t big16(std::string_view bytes, std::size_t at) {
    return byteAt(bytes, at) << 8 | byteAt(bytes, at + 1);
}

inline std::uint32_t big32(std::string_view bytes, std::size_t at) {
    return big16(bytes, at) << 16 | big16(bytes, at + 2);
}

}  // namespace quorvel::media
