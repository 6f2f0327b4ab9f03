#include "support/mounts.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <system_error>
#include <utility>

#ifdef __linux__
#include <sys/mount.h>
#endif

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

#ifdef __linux__
std::string reason(const std::string& what) {
    return what + " is not permitted here: " + std::strerror(errno);
}

std::string mountMemory(const fs::path& folder, std::size_t kilobytes) {
    const std::string options = "size=" + std::to_string(kilobytes) + "k";
    const bool done = ::mount("tmpfs", folder.c_str(), "tmpfs", 0, options.c_str()) == 0;
    return done ? std::string() : reason("mounting a disk in memory");
}

std::string mountReadOnly(const fs::path& folder) {
    if (::mount(folder.c_str(), folder.c_str(), nullptr, MS_BIND, nullptr) != 0) {
        return reason("mounting a folder on itself");
    }
    if (::mount(nullptr, folder.c_str(), nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr) != 0) {
        const std::string text = reason("making a mount read-only");
        ::umount2(folder.c_str(), MNT_DETACH);
        return text;
    }
    return {};
}

void unmount(const fs::path& folder) {
    ::umount2(folder.c_str(), MNT_DETACH);
}
#else
std::string mountMemory(const fs::path&, std::size_t) {
    return "this system has no mounts that a test can make";
}
std::string mountReadOnly(const fs::path&) {
    return "this system has no mounts that a test can make";
}
void unmount(const fs::path&) {}
#endif

}  // namespace

SmallDisk::SmallDisk(std::size_t kilobytes) : whyNot_(mountMemory(folder_.path(), kilobytes)) {}

SmallDisk::~SmallDisk() {
    if (isMounted()) {
        unmount(folder_.path());
    }
}

void SmallDisk::fill() const {
    std::ofstream file(path() / "filler", std::ios::binary | std::ios::app);
    const std::string block(512, 'x');
    while (file.write(block.data(), static_cast<std::streamsize>(block.size())).flush()) {
    }
}

void SmallDisk::makeRoom() const {
    std::error_code ignored;
    fs::remove(path() / "filler", ignored);
}

ReadOnlyMount::ReadOnlyMount(fs::path folder)
    : folder_(std::move(folder)), whyNot_(mountReadOnly(folder_)) {}

ReadOnlyMount::~ReadOnlyMount() {
    if (isMounted()) {
        unmount(folder_);
    }
}

}  // namespace quorvel::test
