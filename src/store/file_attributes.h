/// The "Read only" attribute of files and folders: whether the author's user can write them.
#pragma once

#include <filesystem>

namespace quorvel::store {

/// Takes the "Read only" attribute off `path`: the owner's right to write is given back where it is
/// missing, but only to what lies in the folder `project` with all links followed. Throws
/// `RuntimeError` when the path does not exist, or when this user cannot write it then, be it by
/// the rights, by the owner or by the disk.
void clearReadOnlyAttribute(const std::filesystem::path& path,
                            const std::filesystem::path& project);

/// True when `path` lies below the folder `folder`, or is that folder, with all links followed.
/// False where one of them does not exist.
bool liesWithin(const std::filesystem::path& path, const std::filesystem::path& folder);

}  // namespace quorvel::store
