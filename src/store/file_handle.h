/// An open file, portable: the one unit that opens, reads and writes files by position.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <span>
#include <string>

#include "store/file_identity.h"
#include "store/file_lock.h"

namespace quorvel::store {

/// What a file is opened for.
enum class FileUse : std::uint8_t { readAndWrite, readAlone };

/// Owns an open file; closing may also be left to the destructor, which cannot report an error.
/// Every failure is thrown as `RuntimeError`. There is no buffer of its own: each read and each
/// write is one call to the system. Programs that are started do not inherit the file.
///
/// Others can work on the same files. What would be lost for the author is refused as
/// `LostFileError`: a write to a file that its path does not name any more, and reading or writing
/// once the file is shorter than it was here.
class FileHandle {
  public:
    FileHandle() = default;

    /// Opens an existing regular file for reading and writing, or for reading alone where writing
    /// is refused or not wanted. Anything that is not a regular file (a folder, a pipe, a device)
    /// is refused.
    static FileHandle open(const std::filesystem::path& path, FileUse use = FileUse::readAndWrite);
    /// Creates the file if it is missing, then as `open`.
    static FileHandle openOrCreate(const std::filesystem::path& path);

    [[nodiscard]] bool isOpen() const { return file_ != nullptr; }
    [[nodiscard]] bool isWritable() const { return writable_; }
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    /// Length of the open file in bytes, whatever became of its name.
    [[nodiscard]] std::uintmax_t size() const;
    /// Length of the file as it was opened and written here; it is shorter when others cut it.
    [[nodiscard]] std::uintmax_t lengthHere() const { return length_; }

    /// Reads at `offset` bytes from the start; returns the bytes read, fewer than asked only at the
    /// end of the file, and never fewer than the file once had there. Never makes the file longer.
    std::size_t readAt(std::uintmax_t offset, std::span<char> into);

    /// Writes all of `bytes` at `offset` in one call. When that fails the file keeps its length,
    /// and its last bytes where the write would have crossed its end.
    void writeAt(std::uintmax_t offset, std::span<const char> bytes);

    /// Makes the file anew where its path names nothing any more, with all that the open one holds,
    /// and goes on with that. What is there meanwhile is not touched; a failure leaves nothing.
    void putBack();

    /// Tells other editors that the file is in use until it is closed, unless one of them does.
    FileLock lock() { return tryLock(file_.get()); }

    /// Closes the file and reports an error of it. Closing a closed handle does nothing.
    void close();

  private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    FileHandle(std::FILE* file, std::filesystem::path path, bool writable);
    void seek(std::uintmax_t offset) const;
    /// Length of the file, when it is still the one to write to.
    [[nodiscard]] std::uintmax_t lengthToWrite() const;
    /// Writes all that the file holds to `copy`; false when that failed.
    bool copyTo(std::FILE* copy);
    [[nodiscard]] std::string tailFrom(std::uintmax_t offset, std::uintmax_t end);
    void restore(std::uintmax_t length, std::uintmax_t offset, std::span<const char> tail);

    std::unique_ptr<std::FILE, Closer> file_;
    std::filesystem::path path_;
    FileIdentity identity_;
    std::uintmax_t length_ = 0;  ///< at the opening and after what was written here since
    bool writable_ = false;
};

}  // namespace quorvel::store
