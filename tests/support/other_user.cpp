#include "support/other_user.h"

#include <cerrno>
#include <cstring>

#ifndef _WIN32
#include <grp.h>
#include <unistd.h>
#endif

namespace quorvel::test {

namespace fs = std::filesystem;

#ifndef _WIN32
namespace {

constexpr uid_t kNobody = 65534;
constexpr gid_t kNobodysGroup = 65534;

bool becomeNobody() {
    return ::setgroups(0, nullptr) == 0 && ::setegid(kNobodysGroup) == 0 && ::seteuid(kNobody) == 0;
}

}  // namespace

OtherUser::OtherUser() {
    if (::geteuid() != 0) {
        whyNot_ = "only the administrator can play another user";
    } else if (!becomeNobody()) {
        whyNot_ =
            std::string("becoming another user is not permitted here: ") + std::strerror(errno);
    }
}

OtherUser::~OtherUser() {
    if (isPlayed()) {
        (void)::seteuid(0);
        (void)::setegid(0);
    }
}

void OtherUser::own(const fs::path& path) {
    (void)::lchown(path.c_str(), kNobody, static_cast<gid_t>(-1));
    if (fs::is_directory(fs::symlink_status(path))) {
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path)) {
            (void)::lchown(entry.path().c_str(), kNobody, static_cast<gid_t>(-1));
        }
    }
}

void OtherUser::leave(const fs::path& path) {
    (void)::lchown(path.c_str(), 0, static_cast<gid_t>(-1));
}
#else
OtherUser::OtherUser() : whyNot_("this system has no user that a test can play") {}
OtherUser::~OtherUser() = default;
void OtherUser::own(const fs::path&) {}
void OtherUser::leave(const fs::path&) {}
#endif

}  // namespace quorvel::test
