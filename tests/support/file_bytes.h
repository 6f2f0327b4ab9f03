/// Looking at the bytes of files, and damaging them. Offsets and lengths are in bytes. All
/// functions throw when the file cannot be read or written: a test that cannot set its stage fails.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace quorvel::test {

/// A file of the C library, closed with its owner.
struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, FileCloser>;
OpenFile openFile(const std::filesystem::path& path, const char* mode);

/// The whole file.
std::string readBytes(const std::filesystem::path& path);
/// `count` bytes at `offset`; throws when the file is shorter.
std::string readBytes(const std::filesystem::path& path, std::uintmax_t offset, std::size_t count);
/// The signed 16-bit little-endian number at `offset`.
std::int16_t readInt(const std::filesystem::path& path, std::uintmax_t offset);

/// Makes the file consist of `bytes`, creating it if it is missing.
void writeBytes(const std::filesystem::path& path, std::string_view bytes);
/// Overwrites bytes in place; the file grows only when the patch goes beyond its end.
void patchBytes(const std::filesystem::path& path, std::uintmax_t offset, std::string_view bytes);
/// Overwrites a 16-bit number in place.
void patchInt(const std::filesystem::path& path, std::uintmax_t offset, std::int16_t number);

/// Cuts the file to `length`.
void truncateFile(const std::filesystem::path& path, std::uintmax_t length);
/// Takes `count` bytes off the end.
void cutTail(const std::filesystem::path& path, std::uintmax_t count);
/// Adds bytes at the end.
void appendBytes(const std::filesystem::path& path, std::string_view bytes);
/// Turns over the bits of `mask` in one byte.
void flipBits(const std::filesystem::path& path, std::uintmax_t offset, unsigned char mask = 0xFF);

/// `count` bytes that look random and are the same for the same seed on every machine.
std::string randomBytes(std::size_t count, std::uint32_t seed);

/// Every file below a folder with its bytes, every folder as an entry that ends in "/". Two
/// snapshots compare with ==.
using FolderSnapshot = std::map<std::string, std::string>;
FolderSnapshot snapshotOf(const std::filesystem::path& folder);

/// What differs between two snapshots, one line for each entry, for a test's message; empty when
/// nothing does.
std::string differences(const FolderSnapshot& before, const FolderSnapshot& after);

}  // namespace quorvel::test
