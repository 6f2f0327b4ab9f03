/// Every way in which the files of a project can be wrong: nothing crashes, nothing grows by being
/// opened, and what an edit does not touch is kept byte for byte.
#include <gtest/gtest.h>

#include "store/game_stores.h"
#include "store/golden_records.h"
#include "store/runtime_error.h"
#include "store/scene_store.h"
#include "store/security.h"
#include "store/settings.h"
#include "support/file_bytes.h"
#include "support/project_builder.h"
#include "support/temp_folder.h"

namespace quorvel::store {
namespace {

namespace fs = std::filesystem;
using test::differences;
using test::ProjectBuilder;
using test::randomBytes;
using test::readBytes;
using test::snapshotOf;
using test::TempFolder;
using test::TestProject;
using test::writeBytes;

constexpr int kLengths[] = {0, 4395, 112, 209, 908, 1712};

/// Opens the project and looks at everything that an author can look at. What cannot be opened is
/// thrown.
void lookAtEverything(const TestProject& files) {
    Project project;
    files.nameIn(project);
    project.takeProjectRecord(project.openProjectFile());
    (void)checkSecurity(project);
    files.openIn(project);
    Scene scene;
    for (int number = 1; number <= project.NumberOfScenes + 1; ++number) {
        LoadScene(project, scene, number);
        (void)LookupSceneImage(project, scene, number + 1);
        (void)scene.objectCount();
    }
    for (int number = 1; number <= project.ItemCount + 1; ++number) {
        (void)LoadItem(project, number);
        (void)GetItemIcon(project, number);
    }
    for (int number = 1; number <= project.LocationCount + 1; ++number) {
        (void)LoadLocation(project, number);
    }
    for (int number = 1; number <= project.CueCardCount + 1; ++number) {
        (void)LoadCard(project, number);
    }
    for (int slice = 1; slice <= 5; ++slice) {
        (void)LoadSettings(project, static_cast<SettingsSlice>(slice));
    }
}

class DamagedFiles : public ::testing::Test {
  protected:
    DamagedFiles()
        : files_(ProjectBuilder().scenes(3).items(3).locations(3).cards(3).build(folder_.path())) {}

    /// Looking at a damaged project leaves all its files as they are.
    void expectHarmless(const std::string& damage) {
        const auto before = snapshotOf(folder_.path());
        EXPECT_NO_THROW(lookAtEverything(files_)) << damage;
        EXPECT_EQ(differences(before, snapshotOf(folder_.path())), "") << damage;
    }

    TempFolder folder_;
    TestProject files_;
};

class EachStore : public DamagedFiles, public ::testing::WithParamInterface<int> {
  protected:
    fs::path path() const { return files_.storePath(GetParam()); }
    std::uintmax_t length() const { return static_cast<std::uintmax_t>(kLengths[GetParam()]); }
    /// A save of the second record, or of the settings, by the routine of this store.
    static void writeSecond(Project& project) {
        switch (GetParam()) {
            case 1:
                SaveScene(project, Scene(), 2);
                break;
            case 2:
                SaveLocation(project, 2, newRecord<LocationRecord>());
                break;
            case 3:
                SaveItem(project, 2, newRecord<ItemRecord>());
                break;
            case 4:
                SaveSettings(project, SettingsSlice::gameIntro, newRecord<GameSettingsRecord>());
                break;
            default:
                SaveCard(project, 2, newRecord<CueCardRecord>());
        }
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, EachStore, ::testing::Range(1, 6));

TEST_P(EachStore, CutAnywhere) {
    const std::string whole = readBytes(path());
    for (const std::uintmax_t cut :
         {std::uintmax_t{0}, std::uintmax_t{1}, length() / 2, length() / 2 + 1, length() - 1,
          length() + 1, whole.size() - 1}) {
        writeBytes(path(), whole.substr(0, cut));
        expectHarmless("cut to " + std::to_string(cut));
    }
}

TEST_P(EachStore, LongerThanItsRecords) {
    for (const std::size_t extra : {1U, 7U, 100U}) {
        test::appendBytes(path(), randomBytes(extra, 1));
        expectHarmless("longer by " + std::to_string(extra));
    }
}

TEST_P(EachStore, RandomBytes) {
    for (std::uint32_t seed = 0; seed < 20; ++seed) {
        writeBytes(path(), randomBytes(static_cast<std::size_t>(3 * length()) + seed, seed));
        expectHarmless("random " + std::to_string(seed));
    }
}

TEST_P(EachStore, ZeroBytes) {
    writeBytes(path(), std::string(static_cast<std::size_t>(2 * length()), '\0'));
    expectHarmless("zero bytes");
}

TEST_P(EachStore, AFolderInItsPlaceIsTold) {
    fs::remove(path());
    fs::create_directory(path());
    const auto before = snapshotOf(folder_.path());
    EXPECT_THROW(lookAtEverything(files_), RuntimeError);
    EXPECT_EQ(differences(before, snapshotOf(folder_.path())), "");
}

TEST_P(EachStore, AnEditOfOneRecordKeepsTheBytesOfAllOthers) {
    writeBytes(path(), randomBytes(static_cast<std::size_t>(3 * length()), 11));
    const std::string before = readBytes(path());
    Project project;
    files_.openIn(project);
    writeSecond(project);
    const std::string after = readBytes(path());
    ASSERT_EQ(after.size(), before.size());
    const auto begin = static_cast<std::size_t>(GetParam() == 4 ? 0 : length());
    const auto end = begin + static_cast<std::size_t>(length());
    EXPECT_EQ(after.substr(0, begin), before.substr(0, begin));
    EXPECT_EQ(after.substr(end), before.substr(end));
    EXPECT_NE(after, before);
}

TEST_P(EachStore, AFileThatTookItsPlaceIsNotWritten) {
    Project project;
    files_.openIn(project);
    fs::create_hard_link(path(), folder_ / "aside");
    fs::copy_file(path(), folder_ / "other");
    fs::rename(folder_ / "other", path());
    const auto before = snapshotOf(folder_.path());
    EXPECT_THROW(writeSecond(project), LostFileError);
    project.SecurityOn = true;
    project.SecurityCode = 77;
    EXPECT_THROW(WriteSecurity(project), LostFileError);
    const std::string name = "resource/Quorvel" + std::to_string(GetParam()) + ".dat";
    const auto after = snapshotOf(folder_.path());
    EXPECT_EQ(after.at(name), before.at(name));
    EXPECT_EQ(after.at("aside"), before.at("aside"));
}

TEST_P(EachStore, OneThatBecameShorterIsNotFilledUp) {
    writeBytes(path(), randomBytes(static_cast<std::size_t>(3 * length()), 12));
    Project project;
    files_.openIn(project);
    for (const std::uintmax_t left : {length() + 1, length() / 2, std::uintmax_t{0}}) {
        test::truncateFile(path(), left);
        const std::string before = readBytes(path());
        EXPECT_THROW(writeSecond(project), LostFileError) << left;
        EXPECT_THROW(WriteSecurity(project), LostFileError) << left;
        EXPECT_EQ(readBytes(path()), before) << left;
    }
}

TEST_F(DamagedFiles, AProjectFileThatTookTheOpenOnesPlaceIsNotWritten) {
    Project project;
    files_.openIn(project);
    fs::copy_file(files_.projectPath(), folder_ / "other");
    fs::rename(folder_ / "other", files_.projectPath());
    const std::string before = readBytes(files_.projectPath());
    project.Author = "Somebody else";
    EXPECT_THROW(project.SaveProjectFile(), LostFileError);
    EXPECT_EQ(readBytes(files_.projectPath()), before);
}

TEST_F(DamagedFiles, AProjectFileOfAnotherLength) {
    const std::string whole = readBytes(files_.projectPath());
    for (const std::size_t length : {0U, 1U, 49U, 200U, 301U, 341U}) {
        writeBytes(files_.projectPath(), whole.substr(0, length));
        expectHarmless("project file of " + std::to_string(length));
    }
    writeBytes(files_.projectPath(), whole + "more");
    expectHarmless("a longer project file");
    Project project;
    files_.openIn(project);
    project.SaveProjectFile();
    EXPECT_EQ(readBytes(files_.projectPath(), 342, 4), "more");
}

TEST_F(DamagedFiles, AShortProjectFileIsTooOldToOpen) {
    test::truncateFile(files_.projectPath(), 310);
    Project project;
    files_.nameIn(project);
    EXPECT_EQ(versionGate(project.openProjectFile().ProjectVersion), VersionGate::tooOld);
}

TEST_F(DamagedFiles, ARandomProjectFile) {
    for (std::uint32_t seed = 0; seed < 50; ++seed) {
        writeBytes(files_.projectPath(), randomBytes(342, seed));
        expectHarmless("random " + std::to_string(seed));
    }
}

/// Every element of a kind in the first record of a file, set to one value after the other.
template <class Record>
void eachElement(bool texts, const std::function<void(std::size_t offset, int width)>& visit) {
    for (const auto& row : golden::rows<Record>()) {
        for (int i = 0; i < row.count && row.isText == texts; ++i) {
            visit(row.at(i), row.width);
        }
    }
}

class EveryField : public DamagedFiles {
  protected:
    void visitAll(bool texts,
                  const std::function<void(const fs::path&, std::size_t, int)>& visit) const {
        const auto in = [&](const fs::path& file, std::size_t base) {
            return [&visit, file, base](std::size_t offset, int width) {
                visit(file, base + offset, width);
            };
        };
        eachElement<ProjectRecord>(texts, in(files_.projectPath(), 0));
        eachElement<SceneRecord>(texts, in(files_.storePath(1), 0));
        eachElement<ObjectSlotRecord>(texts, in(files_.storePath(1), 255 + 19 * 207));
        eachElement<LocationRecord>(texts, in(files_.storePath(2), 0));
        eachElement<ItemRecord>(texts, in(files_.storePath(3), 0));
        eachElement<GameSettingsRecord>(texts, in(files_.storePath(4), 0));
        eachElement<CueCardRecord>(texts, in(files_.storePath(5), 0));
    }
};

TEST_F(EveryField, HoldsAnyNumber) {
    for (const int number : {-32768, -1, 0, 32767}) {
        visitAll(false, [&](const fs::path& file, std::size_t offset, int) {
            test::patchInt(file, offset, static_cast<std::int16_t>(number));
        });
        expectHarmless("all numbers " + std::to_string(number));
    }
}

TEST_F(EveryField, HoldsAnyByteInItsText) {
    for (const char byte : {'\0', '\1', '\n', '\r', '\x1F', '\x7F', '\x80', '\x81', '\xFF', '/'}) {
        visitAll(true, [&](const fs::path& file, std::size_t offset, int width) {
            test::patchBytes(file, offset, std::string(static_cast<std::size_t>(width), byte));
        });
        expectHarmless("all texts " + std::to_string(static_cast<unsigned char>(byte)));
    }
}

TEST_F(EveryField, OneFieldAtATimeIsKeptByASaveOfItsRecord) {
    // Texts with a control, a high and a zero byte in them, numbers at the ends of their range.
    visitAll(true, [&](const fs::path& file, std::size_t offset, int) {
        test::patchBytes(file, offset, std::string("a\0\x01\x81\xFF z", 7));
    });
    bool low = false;
    visitAll(false, [&](const fs::path& file, std::size_t offset, int) {
        low = !low;
        test::patchInt(file, offset, low ? std::int16_t{-32768} : std::int16_t{32767});
    });
    test::patchInt(files_.storePath(3), 49, 0);  // no partner
    const auto before = snapshotOf(folder_.path());
    Project project;
    files_.openIn(project);
    Scene scene;
    LoadScene(project, scene, 1);
    SaveScene(project, scene, 1);
    auto expected = before;
    expected["resource/Quorvel1.dat"].replace(205, 2, std::string(2, '\0'));
    EXPECT_EQ(differences(expected, snapshotOf(folder_.path())), "");

    SaveItem(project, 1, LoadItem(project, 1));
    expected["resource/Quorvel3.dat"].replace(188, 15, std::string(15, '\0'));
    expected["resource/Quorvel3.dat"].replace(207, 2, std::string(2, '\0'));
    EXPECT_EQ(differences(expected, snapshotOf(folder_.path())), "");

    for (const auto slice : {SettingsSlice::genSettings, SettingsSlice::openCredits}) {
        SaveSettings(project, slice, LoadSettings(project, slice));
    }
    EXPECT_EQ(differences(expected, snapshotOf(folder_.path())), "");
}

TEST_F(DamagedFiles, NamesThatAreNoNamesReachNothing) {
    writeBytes(folder_ / "secret.bmp", "x");
    for (const char* name : {"../../secret", "..\\..\\secret", "/etc/passwd", "..", ".", "\x01"}) {
        Project project;
        files_.openIn(project);
        SceneRecord record = project.sceneFile.read(2);
        record.SceneImage = name;
        project.sceneFile.write(2, record);
        Scene scene;
        LoadScene(project, scene, 1);
        EXPECT_EQ(LookupSceneImage(project, scene, 2).image, "") << name;
        EXPECT_TRUE(LookupSceneImage(project, scene, 2).fileMissing) << name;
    }
}

}  // namespace
}  // namespace quorvel::store
