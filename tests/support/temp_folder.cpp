#include "support/temp_folder.h"

#include <random>
#include <stdexcept>
#include <string>
#include <system_error>

namespace quorvel::test {

namespace fs = std::filesystem;

TempFolder::TempFolder() {
    std::random_device random;
    for (int attempt = 0; attempt < 100; ++attempt) {
        const fs::path path = fs::temp_directory_path() / ("quorvel-" + std::to_string(random()));
        if (fs::create_directory(path)) {
            path_ = path;
            return;
        }
    }
    throw std::runtime_error("no temporary folder could be made");
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    for (fs::recursive_directory_iterator entry(path_, ignored), end; !ignored && entry != end;
         entry.increment(ignored)) {
        if (entry->is_directory(ignored) && !entry->is_symlink(ignored)) {
            fs::permissions(entry->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
        }
    }
    fs::remove_all(path_, ignored);
}

fs::path TempFolder::makeFolder(std::string_view relative) const {
    const fs::path folder = path_ / relative;
    fs::create_directories(folder);
    return folder;
}

}  // namespace quorvel::test
