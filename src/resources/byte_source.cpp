#include "resources/byte_source.h"

#include <algorithm>

namespace quorvel::resources {

ByteSource sourceOf(std::string_view bytes) {
    return {bytes.size(), [bytes](std::uintmax_t offset, std::span<char> into) {
                const auto from = std::min<std::uintmax_t>(offset, bytes.size());
                const std::string_view rest = bytes.substr(static_cast<std::size_t>(from));
                const std::size_t count = std::min(rest.size(), into.size());
                std::copy_n(rest.begin(), count, into.begin());
                return count;
            }};
}

}  // namespace quorvel::resources
