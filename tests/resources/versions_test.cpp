// Versions of programs, of files that are made here byte for byte. None of them could be run.
#include "resources/versions.h"

#include <gtest/gtest.h>

#include "resources/player_marker.h"
#include "resources/version_resource.h"
#include "support/file_bytes.h"
#include "support/pe_bytes.h"
#include "support/temp_folder.h"
#include "support/windows/played_author.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;
using resources::CompareVersions;
using resources::FourPartVersion;
using resources::GetFileVersionText;
using resources::isOlderVersion;
using resources::VersionInfo;

/// All eight texts, each with a letter of its own.
PeTable fullTable(const std::string& key, char16_t mark) {
    PeTable table{.key = key, .texts = {}};
    for (const std::string_view name : resources::kVersionTexts) {
        table.texts.emplace_back(std::string(name),
                                 std::u16string(name.begin(), name.end()) + u' ' + mark);
    }
    table.texts.emplace_back("Comments", u"not one of the eight");
    return table;
}

std::string marker(const FourPartVersion& version, const resources::MarkerTexts& texts = {}) {
    const auto bytes = resources::makePlayerMarker(version, texts);
    return {bytes.begin(), bytes.end()};
}

class Versions : public ::testing::Test {
  protected:
    fs::path file(const std::string& bytes, const char* name = "Game.exe") {
        writeBytes(folder / name, bytes);
        return folder / name;
    }
    VersionInfo of(const std::string& bytes) { return GetFileVersionText(file(bytes)); }

    TempFolder folder;
};

TEST_F(Versions, AWindowsProgramTellsItsVersionAndEightTexts) {
    for (const bool wide : {false, true}) {
        const VersionInfo info = of(peBytes({.version = {3, 3, 1, 65535},
                                             .wide = wide,
                                             .tables = {fullTable("040904B0", u'\u00e9')}}));
        EXPECT_EQ(info.version, (FourPartVersion{3, 3, 1, 65535}));
        for (std::size_t i = 0; i < info.texts.size(); ++i) {
            const std::string name(resources::kVersionTexts[i]);
            EXPECT_EQ(info.texts[i], QString::fromStdString(name + " \xC3\xA9"));
            EXPECT_EQ(info.text(name), info.texts[i]);
        }
        EXPECT_EQ(info.text("Comments"), QString());
    }
}

TEST_F(Versions, TheTextsAreThoseOfTheTranslation) {
    const std::vector<PeTable> tables = {fullTable("040704E4", u'd'), fullTable("040904e4", u'e')};
    EXPECT_EQ(
        of(peBytes({.language = 0x0409, .codePage = 0x04E4, .tables = tables})).text("CompanyName"),
        QStringLiteral("CompanyName e"))
        << "the key may be in either case";
    EXPECT_EQ(
        of(peBytes({.language = 0x0407, .codePage = 0x04E4, .tables = tables})).text("CompanyName"),
        QStringLiteral("CompanyName d"));
    EXPECT_EQ(of(peBytes({.hasTranslation = false, .tables = tables})).text("CompanyName"),
              QStringLiteral("CompanyName d"))
        << "without a translation the first table";
    EXPECT_EQ(of(peBytes({.language = 0x0C0A, .tables = tables})).text("CompanyName"), QString());
}

TEST_F(Versions, AProgramWithoutAVersionHasNone) {
    EXPECT_EQ(of(peBytes({.hasResources = false})), VersionInfo{});
    EXPECT_EQ(of(peBytes({.hasVersion = false})), VersionInfo{});
    EXPECT_EQ(of(peBytes({.hasFixedInfo = false})).version, std::nullopt);
    EXPECT_EQ(of(""), VersionInfo{});
    EXPECT_EQ(of("MZ"), VersionInfo{});
    EXPECT_EQ(of("#!/bin/sh\nexit 1\n"), VersionInfo{});
}

TEST_F(Versions, ACutFileGivesWhatStandsBeforeTheCut) {
    const std::string whole = peBytes({.tables = {fullTable("040904B0", u'x')}});
    const VersionInfo info = of(whole);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string head = whole.substr(0, length);
        const auto cut = resources::readVersionResource(resources::sourceOf(head));
        EXPECT_TRUE(!cut || !cut->version || cut->version == info.version) << length;
    }
}

TEST_F(Versions, EveryDamagedByteIsSurvived) {
    const std::string whole = peBytes({.tables = {fullTable("040904B0", u'x')}});
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (const char value : {'\0', '\x7F', '\xFF'}) {
            std::string damaged = whole;
            damaged[at] = value;
            (void)resources::readVersionResource(resources::sourceOf(damaged));
        }
    }
}

TEST_F(Versions, ATreeThatLeadsBackIsLeft) {
    std::string loop = peBytes({});
    loop[kPeResources + 0x2C] = '\0';  // the name level leads to the root
    EXPECT_EQ(of(loop), VersionInfo{});
    std::string backwards = peBytes({.tables = {fullTable("040904B0", u'x')}});
    backwards[kPeBlock + 92] = '\0';  // a child of length 0
    backwards[kPeBlock + 93] = '\0';
    EXPECT_EQ(of(backwards).version, (FourPartVersion{1, 2, 3, 4}));
    EXPECT_EQ(of(backwards).text("CompanyName"), QString());
}

TEST_F(Versions, TheSystemsOwnPlayerIsKnownByItsBlock) {
    const std::string before =
        "\x7F"
        "ELF and much more";
    const VersionInfo info = of(before + marker({1, 0, 2, 7}, {"Company", "A player", "1.0"}));
    EXPECT_EQ(info.version, (FourPartVersion{1, 0, 2, 7}));
    EXPECT_EQ(info.text("CompanyName"), QStringLiteral("Company"));
    EXPECT_EQ(info.text("FileDescription"), QStringLiteral("A player"));
    EXPECT_EQ(info.text("FileVersion"), QStringLiteral("1.0"));
    EXPECT_EQ(info.text("ProductVersion"), QString());
}

TEST_F(Versions, TheBlockIsFoundWhereverItLies) {
    constexpr std::size_t kMegabyte = std::size_t{1} << 20;
    for (const std::size_t at : {std::size_t{0}, kMegabyte - 540, kMegabyte - 539, kMegabyte - 1,
                                 kMegabyte, 2 * kMegabyte - 20}) {
        std::string bytes(at, 'x');
        bytes += marker({9, 8, 7, 6});
        EXPECT_EQ(of(bytes).version, (FourPartVersion{9, 8, 7, 6})) << at;
        EXPECT_EQ(of(bytes + "tail").version, (FourPartVersion{9, 8, 7, 6})) << at;
    }
}

TEST_F(Versions, ADamagedBlockIsNone) {
    const std::string whole = marker({1, 2, 3, 4}, {"Company"});
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 1);
        EXPECT_FALSE(resources::findPlayerMarker(resources::sourceOf(damaged))) << at;
        EXPECT_FALSE(resources::findPlayerMarker(resources::sourceOf(whole.substr(0, at)))) << at;
    }
    std::string behind = whole;
    behind[20] = 'x';
    EXPECT_EQ(of(behind + marker({5, 5, 5, 5})).version, (FourPartVersion{5, 5, 5, 5}))
        << "a block that is none does not hide the one behind it";
}

TEST_F(Versions, AFileFullOfBeginningsIsGivenUp) {
    std::string beginnings;
    for (int i = 0; i < 999; ++i) {
        beginnings += resources::kMarkerBegin;
    }
    EXPECT_EQ(of(beginnings + marker({5, 5, 5, 5})).version, (FourPartVersion{5, 5, 5, 5}));
    beginnings += resources::kMarkerBegin;
    EXPECT_EQ(of(beginnings + marker({5, 5, 5, 5})), VersionInfo{});
}

TEST_F(Versions, ALongTextOfTheBlockIsCut) {
    const std::string text(100, 'x');
    EXPECT_EQ(of(marker({1, 2, 3, 4}, {text})).text("CompanyName").size(), 63);
}

TEST_F(Versions, AFileThatIsNoneHasNoVersion) {
    EXPECT_EQ(GetFileVersionText(folder / "nothing"), VersionInfo{});
    EXPECT_EQ(GetFileVersionText(folder.path()), VersionInfo{});
#ifndef _WIN32
    const fs::path pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(GetFileVersionText(pipe), VersionInfo{}) << "nobody waits for a pipe";
#endif
}

TEST_F(Versions, AnEnormousFileIsNotSearched) {
    const fs::path path = file(marker({1, 2, 3, 4}));
    fs::resize_file(path, std::uintmax_t{1} << 40);
    EXPECT_EQ(GetFileVersionText(path), VersionInfo{});
}

TEST_F(Versions, ReadingAFileNeverRunsIt) {
    const fs::path script = file("#!/bin/sh\ntouch \"$0.ran\"\n");
    fs::permissions(script, fs::perms::owner_all);
    (void)GetFileVersionText(script);
    (void)CompareVersions(script, script);
    EXPECT_FALSE(fs::exists(folder / "Game.exe.ran"));
}

TEST(OlderVersion, TheFirstDifferenceDecides) {
    const auto older = [](const char* a, const char* b) {
        return isOlderVersion(QString::fromLatin1(a), QString::fromLatin1(b));
    };
    EXPECT_TRUE(older("3.3.0.9", "3.3.1.0"));
    EXPECT_FALSE(older("3.3.1.0", "3.3.0.9"));
    EXPECT_TRUE(older("2.9.9.9", "3.0.0.0"));
    EXPECT_FALSE(older("4.0.0.0", "3.9.9.9"));
    EXPECT_TRUE(older("1.2.3.4", "1.2.3.5"));
    EXPECT_FALSE(older("1.2.3.4", "1.2.3.4")) << "equal is not older";
    EXPECT_TRUE(older("1.9.0.0", "1.10.0.0")) << "as numbers, not as texts";
}

TEST(OlderVersion, AMissingPartMakesThemEqual) {
    const auto differ = [](const char* a, const char* b) {
        return isOlderVersion(QString::fromLatin1(a), QString::fromLatin1(b)) ||
               isOlderVersion(QString::fromLatin1(b), QString::fromLatin1(a));
    };
    EXPECT_FALSE(differ("1.2.3", "1.2.3.4"));
    EXPECT_FALSE(differ("1.2.3", "9.9.9.9"));
    EXPECT_FALSE(differ("", "1.2.3.4"));
    EXPECT_FALSE(differ("1.2.x.4", "1.2.3.4"));
    EXPECT_FALSE(differ("1.2..4", "1.2.3.4"));
}

TEST_F(Versions, PlayersOfBothKindsCompare) {
    const fs::path windows = file(peBytes({.version = {1, 0, 0, 1}}), "windows.exe");
    const fs::path own = file(marker({1, 0, 0, 2}), "own.exe");
    const fs::path unknown = file("no version", "unknown.exe");
    EXPECT_TRUE(CompareVersions(windows, own));
    EXPECT_FALSE(CompareVersions(own, windows));
    EXPECT_FALSE(CompareVersions(own, own));
    EXPECT_FALSE(CompareVersions(unknown, own));
    EXPECT_FALSE(CompareVersions(own, unknown));
    EXPECT_FALSE(CompareVersions(folder / "missing", own));
}

TEST_F(Versions, AWindowsProgramIsKnownByItsHeader) {
    EXPECT_TRUE(resources::isWindowsProgram(file(peBytes({}))));
    EXPECT_FALSE(resources::isWindowsProgram(file(marker({1, 2, 3, 4}))));
    EXPECT_FALSE(resources::isWindowsProgram(file("MZ is how a text can begin")));
    EXPECT_FALSE(resources::isWindowsProgram(folder / "nothing"));
}

}  // namespace
}  // namespace quorvel::test
