/// Windows programs for tests: headers and a resource section with a version block, and not one
/// instruction to run.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace quorvel::test {

struct PeTable {
    std::string key = "040904B0";  ///< language and code page in hexadecimal
    std::vector<std::pair<std::string, std::u16string>> texts;
};

struct PeProgram {
    std::array<std::uint16_t, 4> version = {1, 2, 3, 4};
    bool wide = false;  ///< a 64-bit program
    bool hasResources = true;
    bool hasVersion = true;  ///< else its only resource is of another type
    bool hasFixedInfo = true;
    bool hasTranslation = true;
    std::uint16_t language = 0x0409;  ///< of the translation
    std::uint16_t codePage = 0x04B0;
    std::vector<PeTable> tables = {};
};

/// The bytes of such a file.
std::string peBytes(const PeProgram& program);

/// The version block alone, as it lies in the resource section.
std::string versionBlock(const PeProgram& program);

/// Where the resource section and the version block begin in the bytes of `peBytes`.
inline constexpr std::size_t kPeResources = 0x400;
inline constexpr std::size_t kPeBlock = kPeResources + 0x80;

}  // namespace quorvel::test
