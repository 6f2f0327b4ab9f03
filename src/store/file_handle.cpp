#include "store/file_handle.h"

#include <algorithm>
#include <cerrno>
#include <string>
#include <utility>

#include "store/runtime_error.h"

namespace quorvel::store {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const fs::path& path, int systemError) {
    throw RuntimeError(errorNumberOf({systemError, std::generic_category()}), path);
}

std::FILE* openFile(const fs::path& path, std::string mode) {
    errno = 0;
#ifdef _WIN32
    mode += "N";
    return _wfopen(path.c_str(), std::wstring(mode.begin(), mode.end()).c_str());
#else
    mode += "e";
    return std::fopen(path.c_str(), mode.c_str());
#endif
}

/// The system would take a path with a zero byte for a shorter one.
void refuseZeroBytes(const fs::path& path) {
    if (path.native().find(fs::path::value_type{}) != fs::path::string_type::npos) {
        throw RuntimeError(ErrorNumber::badFileName, path);
    }
}

/// Why `path` is not there.
ErrorNumber missing(const fs::path& path, std::error_code error) {
    const ErrorNumber number = error ? errorNumberOf(error) : ErrorNumber::fileNotFound;
    std::error_code ignored;
    const bool hasFolder = !path.has_parent_path() || fs::exists(path.parent_path(), ignored);
    return number == ErrorNumber::fileNotFound && !hasFolder ? ErrorNumber::pathNotFound : number;
}

}  // namespace

FileHandle::FileHandle(std::FILE* file, fs::path path, bool writable)
    : file_(file), path_(std::move(path)), identity_(file, path_), writable_(writable) {
    std::setvbuf(file, nullptr, _IONBF, 0);
    length_ = size();
}

FileHandle FileHandle::open(const fs::path& path, FileUse use) {
    refuseZeroBytes(path);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) {
        throw RuntimeError(missing(path, error), path);
    }
    // Opening a pipe would wait for its other end, a device might answer without an end.
    if (!fs::is_regular_file(status)) {
        throw RuntimeError(ErrorNumber::accessError, path);
    }
    if (use == FileUse::readAndWrite) {
        if (std::FILE* file = openFile(path, "r+b")) {
            return {file, path, true};
        }
    }
    if (std::FILE* file = openFile(path, "rb")) {
        return {file, path, false};
    }
    fail(path, errno);
}

FileHandle FileHandle::openOrCreate(const fs::path& path) {
    refuseZeroBytes(path);
    std::error_code error;
    if (!fs::exists(path, error)) {
        std::FILE* file = openFile(path, "ab");
        if (file == nullptr) {
            const std::error_code reason(errno, std::generic_category());
            throw RuntimeError(missing(path, reason), path);
        }
        std::fclose(file);
    }
    return open(path);
}

std::uintmax_t FileHandle::size() const {
    seek(0);
    long end = -1;
    if (std::fseek(file_.get(), 0, SEEK_END) != 0 || (end = std::ftell(file_.get())) < 0) {
        fail(path_, errno);
    }
    return static_cast<std::uintmax_t>(end);
}

void FileHandle::seek(std::uintmax_t offset) const {
    if (file_ == nullptr) {
        throw RuntimeError(ErrorNumber::badFileName, path_);
    }
    if (std::fseek(file_.get(), static_cast<long>(offset), SEEK_SET) != 0) {
        fail(path_, errno);
    }
}

std::size_t FileHandle::readAt(std::uintmax_t offset, std::span<char> into) {
    seek(offset);
    errno = 0;
    const std::size_t count = std::fread(into.data(), 1, into.size(), file_.get());
    if (std::ferror(file_.get()) != 0) {
        const int systemError = errno;
        std::clearerr(file_.get());
        fail(path_, systemError);
    }
    const std::uintmax_t end = std::min<std::uintmax_t>(offset + into.size(), length_);
    if (offset + count < end) {
        throw LostFileError(FileLoss::shortened, path_);
    }
    return count;
}

std::uintmax_t FileHandle::lengthToWrite() const {
    const std::uintmax_t now = size();
    switch (identity_.find(file_.get(), path_, now)) {
        case FoundFile::nothing:
            throw LostFileError(FileLoss::gone, path_);
        case FoundFile::another:
            throw LostFileError(FileLoss::replaced, path_);
        case FoundFile::same:
            break;
    }
    if (now < length_) {
        throw LostFileError(FileLoss::shortened, path_);
    }
    return now;
}

void FileHandle::writeAt(std::uintmax_t offset, std::span<const char> bytes) {
    seek(offset);
    if (!writable_) {
        throw RuntimeError(ErrorNumber::accessError, path_);
    }
    const std::uintmax_t before = lengthToWrite();
    const bool acrossTheEnd = offset < before && before - offset < bytes.size();
    const std::string tail = acrossTheEnd ? tailFrom(offset, before) : std::string();
    seek(offset);
    errno = 0;
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) == bytes.size() &&
        std::fflush(file_.get()) == 0) {
        length_ = std::max<std::uintmax_t>(length_, offset + bytes.size());
        return;
    }
    const int systemError = errno;
    restore(before, offset, tail);
    fail(path_, systemError);
}

std::string FileHandle::tailFrom(std::uintmax_t offset, std::uintmax_t end) {
    std::string tail(static_cast<std::size_t>(end - offset), '\0');
    tail.resize(readAt(offset, tail));
    return tail;
}

void FileHandle::restore(std::uintmax_t length, std::uintmax_t offset, std::span<const char> tail) {
    // An error here adds nothing to the one that is about to be thrown.
    std::clearerr(file_.get());
    std::error_code ignored;
    if (fs::file_size(path_, ignored) > length && !ignored) {
        fs::resize_file(path_, length, ignored);
    }
    if (!tail.empty() && std::fseek(file_.get(), static_cast<long>(offset), SEEK_SET) == 0) {
        (void)std::fwrite(tail.data(), 1, tail.size(), file_.get());
        (void)std::fflush(file_.get());
    }
    std::clearerr(file_.get());
}

bool FileHandle::copyTo(std::FILE* copy) {
    constexpr std::size_t kBlockBytes = 1U << 20U;
    std::string block(kBlockBytes, '\0');
    seek(0);
    std::size_t count = 0;
    do {
        count = std::fread(block.data(), 1, block.size(), file_.get());
        if (std::fwrite(block.data(), 1, count, copy) != count) {
            return false;
        }
    } while (count == block.size());
    return std::ferror(file_.get()) == 0;
}

void FileHandle::putBack() {
    errno = 0;
    std::FILE* copy = openFile(path_, "wbx");  // fails where something lies
    if (copy == nullptr) {
        fail(path_, errno);
    }
    bool written = copyTo(copy);
    int systemError = errno;
    if (std::fclose(copy) != 0 && written) {
        written = false;
        systemError = errno;
    }
    if (!written) {
        std::error_code ignored;
        fs::remove(path_, ignored);
        fail(path_, systemError);
    }
    *this = open(fs::path(path_));
}

void FileHandle::close() {
    if (std::FILE* file = file_.release()) {
        errno = 0;
        if (std::fclose(file) != 0) {
            fail(path_, errno);
        }
    }
}

}  // namespace quorvel::store
