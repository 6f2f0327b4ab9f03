/// The "Read only" attribute of files and folders: the owner's right to write.
#pragma once

#include <filesystem>

namespace quorvel::store {

/// Gives the owner the right to write `path` if it is missing. Throws `RuntimeError` when the path
/// does not exist or the right cannot be given.
void clearReadOnlyAttribute(const std::filesystem::path& path);

}  // namespace quorvel::store
