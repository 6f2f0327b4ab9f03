#include "store/file_attributes.h"

#include <system_error>

#include "store/runtime_error.h"

namespace quorvel::store {

namespace fs = std::filesystem;

void clearReadOnlyAttribute(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) {
        throw RuntimeError(ErrorNumber::fileNotFound, path);
    }
    if ((status.permissions() & fs::perms::owner_write) != fs::perms::none) {
        return;
    }
    fs::permissions(path, fs::perms::owner_write, fs::perm_options::add, error);
    if (error) {
        throw RuntimeError(errorNumberOf(error), path);
    }
}

}  // namespace quorvel::store
