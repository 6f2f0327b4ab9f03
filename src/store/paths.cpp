#include "store/paths.h"

#include <algorithm>
#include <system_error>

#include "store/text_codec.h"

namespace quorvel::store {
namespace {

namespace fs = std::filesystem;

char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

/// Lower case of one byte of the code page.
char lower(char c) {
    const auto byte = static_cast<unsigned char>(c);
    const bool latinCapital = byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;
    if (latinCapital) {
        return static_cast<char>(byte + 0x20U);
    }
    switch (byte) {
        case 0x8A:
        case 0x8C:
        case 0x8E:
            return static_cast<char>(byte + 0x10U);
        case 0x9F:
            return static_cast<char>(0xFFU);
        default:
            return lowerAscii(c);
    }
}

/// The entry of `folder` that is `name`, as it is spelt on disk; nothing when there is none.
std::optional<fs::path> findEntry(const fs::path& folder, std::string_view name) {
    std::error_code error;
    fs::path exact = folder / pathOf(name);
    if (fs::exists(fs::symlink_status(exact, error))) {
        return exact;
    }
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (sameName(textOf(entry->path().filename()), name)) {
            return entry->path();
        }
    }
    return std::nullopt;
}

/// The first step of `relative`, which does not begin with a separator, below `folder`; takes it
/// off `relative`. A backslash may be a letter of a name, so a longer name goes before a shorter.
fs::path takeStep(const fs::path& folder, std::string_view& relative) {
    std::string_view step = relative.substr(0, relative.find('/'));
    std::optional<fs::path> found = findEntry(folder, step);
    for (auto end = step.rfind('\\'); !found && end != std::string_view::npos;
         end = step.rfind('\\')) {
        step = step.substr(0, end);
        found = findEntry(folder, step);
    }
    relative.remove_prefix(step.size());
    return found.value_or(folder / pathOf(step));
}

}  // namespace

fs::path pathOf(std::string_view utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

std::string textOf(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

bool sameName(std::string_view a, std::string_view b) {
    if (a == b) {
        return true;
    }
    if (!fitsCodePage(a) || !fitsCodePage(b)) {
        return std::ranges::equal(a, b,
                                  [](char x, char y) { return lowerAscii(x) == lowerAscii(y); });
    }
    return std::ranges::equal(encodeText(a), encodeText(b),
                              [](char x, char y) { return lower(x) == lower(y); });
}

fs::path resolvePath(const fs::path& base, std::string_view relative) {
    fs::path path = base;
    for (;;) {
        relative.remove_prefix(std::min(relative.find_first_not_of("/\\"), relative.size()));
        if (relative.empty()) {
            return path;
        }
        path = takeStep(path, relative);
    }
}

bool isBareName(std::string_view name) {
    const auto forbidden = [](char c) {
        return static_cast<unsigned char>(c) < 0x20 || c == 0x7F || c == '/' || c == '\\' ||
               c == ':';
    };
    return !name.empty() && name != "." && name != ".." && std::ranges::none_of(name, forbidden);
}

fs::path resourceFolder(const fs::path& projectFolder, ResourceFolder kind) {
    return resolvePath(projectFolder,
                       kind == ResourceFolder::gfx ? "resource/gfx" : "resource/mmedia");
}

std::optional<fs::path> findResource(const fs::path& projectFolder, ResourceFolder kind,
                                     std::string_view name) {
    if (!isBareName(name)) {
        return std::nullopt;
    }
    std::optional<fs::path> path = findEntry(resourceFolder(projectFolder, kind), name);
    std::error_code error;
    return path && fs::is_regular_file(*path, error) ? path : std::nullopt;
}

}  // namespace quorvel::store
