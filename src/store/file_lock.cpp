#include "store/file_lock.h"

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <cerrno>
#include <sys/file.h>
#endif

namespace quorvel::store {

#ifdef _WIN32
FileLock tryLock(std::FILE* file) {
    // Locks of this system hinder reading and writing, so the byte lies where no record ever is.
    OVERLAPPED place{};
    place.OffsetHigh = 0x7FFFFFFF;
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(file)));
    if (LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place)) {
        return FileLock::taken;
    }
    const DWORD error = GetLastError();
    return error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING ? FileLock::heldByAnother
                                                                      : FileLock::unavailable;
}
#else
FileLock tryLock(std::FILE* file) {
    // The lock belongs to this opening of the file. One of the process would end as soon as any
    // part of the program closed the same file.
    int result = 0;
    do {
        result = ::flock(fileno(file), LOCK_EX | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    if (result == 0) {
        return FileLock::taken;
    }
    return errno == EWOULDBLOCK ? FileLock::heldByAnother : FileLock::unavailable;
}
#endif

}  // namespace quorvel::store
