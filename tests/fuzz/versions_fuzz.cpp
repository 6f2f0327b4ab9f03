/// Feeds arbitrary bytes to the readers of versions: as a whole program file, as the version block
/// of a well-formed Windows program, and around a player's block. A broken promise ends the
/// process.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "resources/player_marker.h"
#include "resources/version_resource.h"
#include "support/pe_bytes.h"

namespace {

using namespace quorvel::resources;

void require(bool holds, const char* promise) {
    if (!holds) {
        std::fprintf(stderr, "broken promise: %s\n", promise);
        std::abort();
    }
}

void tryTexts(const VersionInfo& info) {
    for (const QString& text : info.texts) {
        require(text.size() <= 0x8000, "a text is no longer than its block");
        require(!text.contains(QChar(0)), "a text ends at its zero");
    }
}

void tryFile(std::string_view bytes) {
    const ByteSource source = sourceOf(bytes);
    const bool isProgram = isWindowsProgram(source);
    if (const auto info = readVersionResource(source)) {
        require(isProgram, "only a Windows program has a version resource");
        tryTexts(*info);
    }
    if (const auto info = findPlayerMarker(source)) {
        require(info->version.has_value(), "a player has a version");
        tryTexts(*info);
    }
}

/// The headers and the resource tree stay whole, so that the bytes reach the reader of the block.
void tryBlock(std::string_view bytes) {
    static const std::string program = quorvel::test::peBytes({.tables = {{}}});
    std::string file = program.substr(0, quorvel::test::kPeBlock);
    file += bytes;
    file.resize(std::max(file.size(), program.size()), '\0');
    tryFile(file);
}

void tryMarker(std::string_view bytes) {
    static constexpr auto kMarker = makePlayerMarker({1, 2, 3, 4}, {"Somebody", "A player"});
    const std::string_view marker(kMarker.data(), kMarker.size());
    const std::size_t half = bytes.size() / 2;
    std::string file(bytes.substr(0, half));
    file += marker;
    file += bytes.substr(half);
    const auto info = findPlayerMarker(sourceOf(file));
    require(info.has_value(), "a whole block is found, whatever stands around it");
    tryTexts(*info);
    // The same with the bytes over it.
    std::string damaged(marker);
    for (std::size_t i = 0; i < bytes.size() && i < damaged.size(); ++i) {
        damaged[i] = bytes[i];
    }
    tryFile(damaged);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    tryFile(bytes);
    tryBlock(bytes);
    tryMarker(bytes);
    return 0;
}
