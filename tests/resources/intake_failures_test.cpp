// What the gate refuses, and what a failed copy leaves.
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "resources/intake_stage.h"
#include "support/mounts.h"

namespace quorvel::resources {
namespace {

namespace fs = std::filesystem;
using store::ErrorNumber;
using test::readBytes;
using test::snapshotOf;
using test::writeBytes;

class IntakeFailures : public test::IntakeStage {
  protected:
    IntakeFailures() { rules.WrongFolder = 2; }
    /// Checks `path` and expects a refusal that changes nothing; what was told comes back.
    IntakeNotice refusalOf(const fs::path& path) {
        questions.told.clear();
        const auto before = snapshotOf(gfx);
        EXPECT_FALSE(check(path)) << path;
        EXPECT_EQ(snapshotOf(gfx), before) << path;
        EXPECT_TRUE(questions.asked.empty()) << path;
        return notice();
    }
};

TEST_F(IntakeFailures, OnlyOrdinaryFilesAreSources) {
    for (const fs::path& place : {pictures, incoming, gfx}) {
        ASSERT_EQ(::mkfifo((place / "pipe.wav").c_str(), 0600), 0);
        writeBytes(place / "real.gif", "x");
        fs::create_symlink(place / "real.gif", place / "link.gif");
        fs::create_symlink(place / "nowhere", place / "torn.gif");
        fs::create_directory(place / "folder.gif");
        EXPECT_EQ(refusalOf(place / "pipe.wav").what, What::sourceIsDevice);
        EXPECT_EQ(refusalOf(place / "link.gif").what, What::sourceIsLink);
        EXPECT_EQ(refusalOf(place / "link.gif").file, place / "link.gif");
        EXPECT_EQ(refusalOf(place / "torn.gif").what, What::sourceIsLink);
        EXPECT_EQ(refusalOf(place / "folder.gif").what, What::sourceIsFolder);
        EXPECT_EQ(refusalOf(place / "missing.gif").what, What::sourceMissing);
        EXPECT_TRUE(fs::exists(place / "real.gif"));
        EXPECT_TRUE(fs::is_symlink(fs::symlink_status(place / "link.gif")));
    }
    EXPECT_EQ(refusalOf("/dev/null").what, What::sourceIsDevice);
    EXPECT_EQ(refusalOf(folder / "nowhere/a.gif").what, What::sourceMissing);
}

TEST_F(IntakeFailures, ASocketIsNoSource) {
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_GE(socket, 0);
    const fs::path path = pictures / "socket.wav";
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(path.native().size(), sizeof address.sun_path);
    path.native().copy(static_cast<char*>(address.sun_path), path.native().size());
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(refusalOf(path).what, What::sourceIsDevice);
    ::close(socket);
}

TEST_F(IntakeFailures, AnUnfitNameIsRefusedBeforeAnythingIsCopied) {
    const std::vector<std::pair<std::string, NameFault>> names = {
        {"what?.gif", NameFault::reservedCharacter},
        {"a*b.gif", NameFault::reservedCharacter},
        {"back\\slash.gif", NameFault::reservedCharacter},
        {"c:d.gif", NameFault::reservedCharacter},
        {"\xD1\x81.gif", NameFault::outsideCodePage},
        {"aux.gif", NameFault::deviceName},
        {"a.gif.", NameFault::dotAtTheEnd},
        {"a.gif ", NameFault::blankAtAnEnd},
        {" a.gif", NameFault::blankAtAnEnd},
    };
    for (const auto& [name, fault] : names) {
        for (const fs::path& place : {pictures, incoming}) {
            writeBytes(place / name, "x");
            const IntakeNotice told = refusalOf(place / name);
            EXPECT_EQ(told.what, What::nameUnfit) << name;
            EXPECT_EQ(told.fault, fault) << name;
            EXPECT_TRUE(fs::exists(place / name)) << name;
        }
    }
    EXPECT_EQ(refusalOf(fs::path(pictures.native() + "/")).fault, NameFault::empty);
}

TEST_F(IntakeFailures, AFolderWhereTheFileShallGoIsTold) {
    writeBytes(pictures / "coin.gif", "new");
    writeBytes(incoming / "coin.gif", "new");
    fs::create_directory(gfx / "Coin.gif");
    EXPECT_EQ(refusalOf(pictures / "coin.gif").what, What::targetIsFolder);
    EXPECT_EQ(notice().file, gfx / "Coin.gif");
    EXPECT_EQ(refusalOf(incoming / "coin.gif").what, What::targetIsFolder);
    EXPECT_TRUE(fs::exists(incoming / "coin.gif"));
    EXPECT_TRUE(fs::exists(pictures / "coin.gif"));
}

TEST_F(IntakeFailures, AMissingResourceFolderIsTold) {
    fs::remove_all(gfx);
    writeBytes(incoming / "coin.gif", "new");
    EXPECT_FALSE(check(incoming / "coin.gif"));
    EXPECT_EQ(notice().what, What::notCopied);
    EXPECT_EQ(notice().error, ErrorNumber::pathNotFound);
    EXPECT_TRUE(fs::exists(incoming / "coin.gif"));
}

TEST_F(IntakeFailures, AFullDiskLeavesSourceAndTargetAsTheyWere) {
    const test::SmallDisk disk(256);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    project.ProjectFolder = store::textOf(disk.path()) + "/";
    fs::create_directories(disk.path() / "resource/gfx");
    writeBytes(disk.path() / "resource/gfx/coin.gif", "old");
    disk.fill();
    const auto before = snapshotOf(disk.path());
    questions.replace = true;
    for (const fs::path& place : {pictures, incoming}) {
        questions.told.clear();
        writeBytes(place / "coin.gif", std::string(20'000, 'n'));
        EXPECT_FALSE(check(place / "coin.gif"));
        EXPECT_EQ(notice().what, What::notCopied);
        EXPECT_EQ(notice().error, ErrorNumber::diskFull);
        EXPECT_EQ(readBytes(place / "coin.gif").size(), 20'000U) << "a move deletes nothing";
        EXPECT_EQ(test::differences(before, snapshotOf(disk.path())), "");
    }
    disk.makeRoom();
    EXPECT_TRUE(check(incoming / "coin.gif")) << "with room it goes";
    EXPECT_FALSE(fs::exists(incoming / "coin.gif"));
}

TEST_F(IntakeFailures, AReadOnlyProjectLeavesTheSource) {
    writeBytes(incoming / "coin.gif", "new");
    const test::ReadOnlyMount disc(gfx);
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    EXPECT_FALSE(check(incoming / "coin.gif"));
    EXPECT_EQ(notice().what, What::notCopied);
    EXPECT_EQ(notice().error, ErrorNumber::accessError);
    EXPECT_TRUE(fs::exists(incoming / "coin.gif"));
}

TEST_F(IntakeFailures, ASourceThatCannotBeDeletedIsToldAndTheCopyIsUsable) {
    writeBytes(incoming / "coin.gif", "new");
    const test::ReadOnlyMount disc(incoming);
    if (!disc.isMounted()) {
        GTEST_SKIP() << disc.whyNot();
    }
    EXPECT_TRUE(check(incoming / "coin.gif"));
    EXPECT_EQ(readBytes(gfx / "coin.gif"), "new");
    EXPECT_EQ(notice().what, What::sourceNotDeleted);
    EXPECT_EQ(notice().file, incoming / "coin.gif");
    EXPECT_EQ(notice().error, ErrorNumber::accessError);
}

TEST_F(IntakeFailures, ASourceThatGoesAwayMeanwhileWasWholeAllTheSame) {
    writeBytes(incoming / "coin.gif", "new");
    questions.whileWorking = [&] { fs::remove(incoming / "coin.gif"); };
    EXPECT_TRUE(check(incoming / "coin.gif"));
    EXPECT_EQ(readBytes(gfx / "coin.gif"), "new");
    EXPECT_TRUE(questions.told.empty());
}

#ifdef __linux__
TEST_F(IntakeFailures, AnUnreadableSourceLeavesTheTarget) {
    writeBytes(gfx / "mem", "old");
    questions.replace = true;
    EXPECT_FALSE(check("/proc/self/mem"));
    EXPECT_EQ(notice().what, What::notCopied);
    EXPECT_EQ(notice().error, ErrorNumber::deviceError);
    EXPECT_EQ(notice().file, "/proc/self/mem");
    EXPECT_EQ(snapshotOf(gfx), (test::FolderSnapshot{{"mem", "old"}}));
}
#endif

}  // namespace
}  // namespace quorvel::resources
