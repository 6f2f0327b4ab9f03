#include "support/file_bytes.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const fs::path& path, const char* what) {
    throw std::runtime_error(std::string(what) + ": " + path.string());
}

}  // namespace

OpenFile openFile(const std::filesystem::path& path, const char* mode) {
    OpenFile file(std::fopen(path.string().c_str(), mode));
    if (file == nullptr) {
        throw std::runtime_error("cannot open " + path.string());
    }
    return file;
}

std::string readBytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        fail(path, "cannot read");
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string readBytes(const fs::path& path, std::uintmax_t offset, std::size_t count) {
    std::ifstream file(path, std::ios::binary);
    file.seekg(static_cast<std::streamoff>(offset));
    std::string bytes(count, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(count));
    if (!file) {
        fail(path, "is shorter than expected");
    }
    return bytes;
}

std::int16_t readInt(const fs::path& path, std::uintmax_t offset) {
    const std::string bytes = readBytes(path, offset, 2);
    const auto low = static_cast<unsigned char>(bytes[0]);
    const auto high = static_cast<unsigned char>(bytes[1]);
    return static_cast<std::int16_t>(low | (high << 8U));
}

void writeBytes(const fs::path& path, std::string_view bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        fail(path, "cannot write");
    }
}

void patchBytes(const fs::path& path, std::uintmax_t offset, std::string_view bytes) {
    std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(static_cast<std::streamoff>(offset));
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        fail(path, "cannot patch");
    }
}

void patchInt(const fs::path& path, std::uintmax_t offset, std::int16_t number) {
    const auto bits = static_cast<std::uint16_t>(number);
    patchBytes(path, offset,
               std::string{static_cast<char>(bits & 0xFFU), static_cast<char>(bits >> 8U)});
}

void truncateFile(const fs::path& path, std::uintmax_t length) {
    fs::resize_file(path, length);
}

void cutTail(const fs::path& path, std::uintmax_t count) {
    fs::resize_file(path, fs::file_size(path) - count);
}

void appendBytes(const fs::path& path, std::string_view bytes) {
    patchBytes(path, fs::file_size(path), bytes);
}

void flipBits(const fs::path& path, std::uintmax_t offset, unsigned char mask) {
    const auto byte = static_cast<unsigned char>(readBytes(path, offset, 1)[0]);
    patchBytes(path, offset, std::string(1, static_cast<char>(byte ^ mask)));
}

std::string randomBytes(std::size_t count, std::uint32_t seed) {
    std::mt19937 random(seed);
    std::string bytes(count, '\0');
    for (char& byte : bytes) {
        byte = static_cast<char>(random() >> 24U);
    }
    return bytes;
}

FolderSnapshot snapshotOf(const fs::path& folder) {
    FolderSnapshot snapshot;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).generic_string();
        if (entry.is_directory()) {
            snapshot[name + "/"] = {};
        } else {
            snapshot[name] = entry.is_regular_file() ? readBytes(entry.path()) : "(special)";
        }
    }
    return snapshot;
}

std::string differences(const FolderSnapshot& before, const FolderSnapshot& after) {
    std::string text;
    for (const auto& [name, bytes] : before) {
        const auto found = after.find(name);
        if (found == after.end()) {
            text += name + " is gone\n";
        } else if (found->second != bytes) {
            const auto [here, there] = std::ranges::mismatch(bytes, found->second);
            text += name + " differs at byte " + std::to_string(here - bytes.begin()) +
                    ", lengths " + std::to_string(bytes.size()) + " and " +
                    std::to_string(found->second.size()) + "\n";
        }
    }
    for (const auto& [name, bytes] : after) {
        if (!before.contains(name)) {
            text += name + " is new\n";
        }
    }
    return text;
}

}  // namespace quorvel::test
