/// Whether another editor has a file open: an advisory lock, for nothing may be written to tell so.
#pragma once

#include <cstdint>
#include <cstdio>

namespace quorvel::store {

/// What the attempt to lock a file came to.
enum class FileLock : std::uint8_t {
    taken,          ///< until the file is closed
    heldByAnother,  ///< an editor of any user, on any machine that this file system knows of
    unavailable,    ///< this file system has no locks, or none for a file open in this way
};

/// Locks an open file without waiting. Whoever does not ask is not hindered by the lock.
FileLock tryLock(std::FILE* file);

}  // namespace quorvel::store
