#include "store/file_attributes.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

#include "store/runtime_error.h"

namespace quorvel::store {
namespace {

namespace fs = std::filesystem;

/// Why this user cannot write `path`; no error when he can. The rights alone do not tell: they may
/// be another owner's, and a disk may refuse whatever they say.
std::error_code whyNotWritable(const fs::path& path) {
    errno = 0;
#ifdef _WIN32
    constexpr int kMayWrite = 2;
    const bool refused = ::_waccess(path.c_str(), kMayWrite) != 0;
#else
    const bool refused = ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0;
#endif
    return refused ? std::error_code(errno, std::generic_category()) : std::error_code();
}

}  // namespace

bool liesWithin(const fs::path& path, const fs::path& folder) {
    std::error_code error;
    const fs::path inner = fs::canonical(path, error);
    if (error) {
        return false;
    }
    const fs::path outer = fs::canonical(folder, error);
    return !error && std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first ==
                         outer.end();
}

void clearReadOnlyAttribute(const fs::path& path, const fs::path& project) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) {
        throw RuntimeError(ErrorNumber::fileNotFound, path);
    }
    const bool isMissing = (status.permissions() & fs::perms::owner_write) == fs::perms::none;
    if (isMissing && liesWithin(path, project)) {
        // Where the right cannot be given, the question that follows says what that means.
        fs::permissions(path, fs::perms::owner_write, fs::perm_options::add, error);
    }
    if (const std::error_code reason = whyNotWritable(path)) {
        throw RuntimeError(errorNumberOf(reason), path);
    }
}

}  // namespace quorvel::store
