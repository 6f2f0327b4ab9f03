#include "media/file_bytes.h"

#include <algorithm>
#include <system_error>

namespace quorvel::media {

FileBytes::FileBytes(const std::filesystem::path& file) {
    std::error_code error;
    const auto size = std::filesystem::file_size(file, error);
    if (!error) {
        in_.open(file, std::ios::binary);
        size_ = in_ ? size : 0;
    }
}

std::string FileBytes::at(std::uint64_t offset, std::size_t count) {
    if (offset >= size_) {
        return {};
    }
    std::string bytes(static_cast<std::size_t>(std::min<std::uint64_t>(count, size_ - offset)),
                      '\0');
    in_.clear();
    in_.seekg(static_cast<std::streamoff>(offset));
    in_.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(in_.gcount(), 0)));
    return bytes;
}

}  // namespace quorvel::media
