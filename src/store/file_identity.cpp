#include "store/file_identity.h"

#include <optional>
#include <system_error>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace quorvel::store {
namespace {

namespace fs = std::filesystem;

/// Whether `path` names the file that is open, by the system's numbers; nothing where the two
/// cannot be compared so.
std::optional<bool> isSameFile([[maybe_unused]] std::FILE* file,
                               [[maybe_unused]] const fs::path& path) {
#ifdef _WIN32
    return std::nullopt;  // the system keeps open files in their places; network disks may not
#else
    struct stat open {};
    struct stat named {};
    if (::fstat(fileno(file), &open) != 0 || ::stat(path.c_str(), &named) != 0) {
        return std::nullopt;
    }
    return named.st_dev == open.st_dev && named.st_ino == open.st_ino;
#endif
}

}  // namespace

FileIdentity::FileIdentity(std::FILE* file, const fs::path& path)
    : isNumbered_(isSameFile(file, path).value_or(false)) {}

FoundFile FileIdentity::find(std::FILE* file, const fs::path& path,
                             std::uintmax_t openLength) const {
    if (isNumbered_) {
        if (const std::optional<bool> same = isSameFile(file, path)) {
            return *same ? FoundFile::same : FoundFile::another;
        }
    }
    return findByLength(path, openLength);
}

FoundFile findByLength(const fs::path& path, std::uintmax_t openLength) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) {
        return FoundFile::nothing;
    }
    if (!fs::status_known(status)) {
        return FoundFile::same;
    }
    const std::uintmax_t length = fs::file_size(path, error);
    return !error && length == openLength ? FoundFile::same : FoundFile::another;
}

}  // namespace quorvel::store
