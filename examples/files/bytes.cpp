#include "files/bytes.h"

#include <fstream>
#include <stdexcept>

namespace quorvel::sample {

void Bytes::writeTo(const std::filesystem::path& path) const {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes_.data(), static_cast<std::streamsize>(bytes_.size()));
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

}  // namespace quorvel::sample
