// A move deletes its source only when the name of the copy is down on the disk.
#ifdef __linux__

#include <cerrno>
#include <functional>
#include <sys/syscall.h>
#include <unistd.h>

#include "resources/intake_stage.h"
#include "resources/safe_copy.h"
#include "store/runtime_error.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

/// What a test sees of each call of `fsync`, and what the call answers: 0, or the error.
using Watch = std::function<int(const fs::path&)>;
Watch& watch() {
    static Watch watch;
    return watch;
}

}  // namespace
}  // namespace quorvel::test

/// Stands before the one of the system for the whole test program.
extern "C" int fsync(int handle) {
    const auto& watch = quorvel::test::watch();
    if (watch) {
        std::error_code ignored;
        const auto file =
            std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(handle), ignored);
        if (const int error = watch(file); error != 0) {
            errno = error;
            return -1;
        }
    }
    return static_cast<int>(syscall(SYS_fsync, handle));
}

namespace quorvel::test {
namespace {

class IntakeSettling : public IntakeStage {
  protected:
    IntakeSettling() { writeBytes(incoming / "coin.gif", "new"); }
    ~IntakeSettling() override { watch() = nullptr; }
    IntakeSettling(const IntakeSettling&) = delete;
    IntakeSettling& operator=(const IntakeSettling&) = delete;
};

TEST_F(IntakeSettling, TheFolderOfTheCopyIsSettledBeforeTheSourceGoes) {
    int settled = 0;
    watch() = [&](const fs::path& file) {
        if (file == gfx) {
            ++settled;
            EXPECT_EQ(readBytes(gfx / "coin.gif"), "new") << "not before the copy has its name";
            EXPECT_TRUE(fs::exists(incoming / "coin.gif"));
        }
        return 0;
    };
    EXPECT_TRUE(check(incoming / "coin.gif"));
    EXPECT_EQ(settled, 1);
    EXPECT_FALSE(fs::exists(incoming / "coin.gif"));
    expectSilence();
}

TEST_F(IntakeSettling, AFolderThatCannotBeSettledKeepsTheSourceAndTellsWhy) {
    watch() = [&](const fs::path& file) { return file == gfx ? EIO : 0; };
    EXPECT_TRUE(check(incoming / "coin.gif")) << "the copy can be used";
    EXPECT_EQ(readBytes(gfx / "coin.gif"), "new");
    EXPECT_EQ(readBytes(incoming / "coin.gif"), "new");
    EXPECT_EQ(notice().what, What::sourceNotDeleted);
    EXPECT_EQ(notice().file, incoming / "coin.gif");
    EXPECT_EQ(notice().error, store::ErrorNumber::deviceError);
}

TEST_F(IntakeSettling, AFileSystemThatKnowsNoSuchThingLetsTheSourceGo) {
    watch() = [&](const fs::path& file) { return file == gfx ? EINVAL : 0; };
    EXPECT_TRUE(check(incoming / "coin.gif"));
    EXPECT_FALSE(fs::exists(incoming / "coin.gif"));
    expectSilence();
}

TEST_F(IntakeSettling, AFolderThatIsGoneIsAnError) {
    EXPECT_THROW(resources::settleNames(folder / "nowhere"), store::RuntimeError);
}

}  // namespace
}  // namespace quorvel::test

#endif
