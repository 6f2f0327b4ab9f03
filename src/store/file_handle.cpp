#include "store/file_handle.h"

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

std::FILE* openFile(const fs::path& path, const char* mode) {
    errno = 0;
#ifdef _WIN32
    const std::string narrow = mode;
    return _wfopen(path.c_str(), std::wstring(narrow.begin(), narrow.end()).c_str());
#else
    return std::fopen(path.c_str(), mode);
#endif
}

}  // namespace

FileHandle::FileHandle(std::FILE* file, fs::path path, bool writable)
    : file_(file), path_(std::move(path)), writable_(writable) {
    std::setvbuf(file, nullptr, _IONBF, 0);
}

FileHandle FileHandle::open(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) {
        throw RuntimeError(error ? errorNumberOf(error) : ErrorNumber::fileNotFound, path);
    }
    // Opening a pipe would wait for its other end, a device might answer without an end.
    if (!fs::is_regular_file(status)) {
        throw RuntimeError(ErrorNumber::accessError, path);
    }
    if (std::FILE* file = openFile(path, "r+b")) {
        return {file, path, true};
    }
    if (std::FILE* file = openFile(path, "rb")) {
        return {file, path, false};
    }
    fail(path, errno);
}

FileHandle FileHandle::openOrCreate(const fs::path& path) {
    std::error_code error;
    if (!fs::exists(path, error)) {
        std::FILE* file = openFile(path, "ab");
        if (file == nullptr) {
            fail(path, errno);
        }
        std::fclose(file);
    }
    return open(path);
}

std::uintmax_t FileHandle::size() const {
    std::error_code error;
    const std::uintmax_t bytes = fs::file_size(path_, error);
    if (error) {
        throw RuntimeError(errorNumberOf(error), path_);
    }
    return bytes;
}

void FileHandle::seek(std::uintmax_t offset) {
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
    return count;
}

void FileHandle::writeAt(std::uintmax_t offset, std::span<const char> bytes) {
    if (!writable_) {
        throw RuntimeError(ErrorNumber::accessError, path_);
    }
    const std::uintmax_t before = size();
    seek(offset);
    errno = 0;
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) == bytes.size() &&
        std::fflush(file_.get()) == 0) {
        return;
    }
    const int systemError = errno;
    std::clearerr(file_.get());
    std::error_code ignored;
    if (fs::file_size(path_, ignored) > before) {
        fs::resize_file(path_, before, ignored);
    }
    fail(path_, systemError);
}

void FileHandle::close() {
    if (std::FILE* file = file_.release()) {
        errno = 0;
        if (std::fclose(file) != 0) {
            fail(path_, errno);
        }
    }
}

std::string readWholeFile(const fs::path& path) {
    FileHandle file = FileHandle::open(path);
    std::string bytes(static_cast<std::size_t>(file.size()), '\0');
    bytes.resize(file.readAt(0, bytes));
    return bytes;
}

}  // namespace quorvel::store
