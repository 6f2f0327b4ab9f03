#include "store/settings.h"

#include <gtest/gtest.h>

#include "store/golden_records.h"
#include "store/project_stage.h"
#include "support/file_bytes.h"

namespace quorvel::store {
namespace {

using test::ProjectBuilder;
using test::readBytes;
using test::readInt;

using Bytes = std::vector<std::pair<std::size_t, std::size_t>>;

/// Bytes of the record that a slice takes from its form: offset and length.
Bytes fieldsOfSlice(int slice) {
    switch (slice) {
        case 1:
            return {{0, 217}, {219, 45}, {445, 2}};
        case 2:
            return {{264, 12}, {284, 79}, {367, 42}, {411, 15}, {428, 15}, {447, 6}, {453, 30}};
        case 3:
            return {{498, 225}};
        case 4:
            return {{789, 15}, {851, 2}};
        default:
            return {{853, 23}};
    }
}

/// Bytes that a save of the slice sets whatever the form says, with what they become.
std::vector<std::pair<std::size_t, std::string>> fixedBySlice(int slice) {
    switch (slice) {
        case 2:
            return {{363, std::string(4, '\0')}, {409, std::string(2, '\0')},
                    {426, std::string(2, '\0')}, {443, std::string(2, '\0')},
                    {451, golden::intBytes(1)},  {483, std::string(15, ' ')}};
        case 3:
            return {{723, std::string(45, ' ')}};
        case 5:
            return {{857, golden::intBytes(1)},
                    {876, std::string(30, ' ')},
                    {906, std::string(2, '\0')}};
        default:
            return {};
    }
}

GameSettingsRecord settingsOf(const std::string& bytes) {
    GameSettingsRecord record{};
    std::copy(bytes.begin(), bytes.end(), bytesOf(record).begin());
    return record;
}

class Settings : public ProjectStage {
  protected:
    void SetUp() override { open(ProjectBuilder()); }
    std::string stored() const { return readBytes(files_.storePath(4)); }
    /// The project as it opens with a store of `length` bytes.
    void openCutTo(std::uintmax_t length) {
        project_.closeFiles();
        test::truncateFile(files_.storePath(4), length);
        files_.openIn(project_);
    }
};

class EachSlice : public Settings, public ::testing::WithParamInterface<int> {
  protected:
    SettingsSlice slice() const { return static_cast<SettingsSlice>(GetParam()); }
};
INSTANTIATE_TEST_SUITE_P(Settings, EachSlice, ::testing::Range(1, 6));

TEST_P(EachSlice, SavesItsFieldsAndKeepsAllOthers) {
    const std::string old(908, 'o');
    test::writeBytes(files_.storePath(4), old);
    std::string form(908, 'n');
    form.replace(403, 2, golden::intBytes(7));  // a score flag within its bounds
    SaveSettings(project_, slice(), settingsOf(form));
    std::string expected = old;
    for (const auto& [offset, length] : fieldsOfSlice(GetParam())) {
        expected.replace(offset, length, form.substr(offset, length));
    }
    for (const auto& [offset, bytes] : fixedBySlice(GetParam())) {
        expected.replace(offset, bytes.size(), bytes);
    }
    EXPECT_EQ(stored(), expected);
}

TEST_P(EachSlice, LoadsItsFieldsAlone) {
    std::string bytes(908, 'o');
    bytes.replace(874, 2, golden::intBytes(80));
    test::writeBytes(files_.storePath(4), bytes);
    const GameSettingsRecord form = LoadSettings(project_, slice());
    std::string expected(908, '\0');
    for (const auto& [offset, length] : fieldsOfSlice(GetParam())) {
        expected.replace(offset, length, bytes.substr(offset, length));
    }
    const auto loaded = bytesOf(form);
    EXPECT_EQ(std::string(loaded.begin(), loaded.end()), expected);
}

TEST_P(EachSlice, ALoadAndASaveOfANewGameChangeNothing) {
    const std::string before = stored();
    GameSettingsRecord form = LoadSettings(project_, slice());
    if (GetParam() == 5) {
        EXPECT_EQ(form.IntroVolume, 100);
        form.IntroVolume = 10000;
    }
    SaveSettings(project_, slice(), form);
    EXPECT_EQ(stored(), before);
}

TEST_P(EachSlice, TextsThatTheFormNeverSetAreWrittenBlank) {
    SaveSettings(project_, slice(), GameSettingsRecord{});
    for (const FieldInfo& field : fieldsOf<GameSettingsRecord>()) {
        for (int i = 0; i < field.count && field.kind == FieldInfo::Kind::text; ++i) {
            const auto at = static_cast<std::size_t>(field.offset + i * field.width);
            EXPECT_NE(stored()[at], '\0') << field.name;
        }
    }
}

TEST_F(Settings, ASliceThatDoesNotExistDoesNothing) {
    openCutTo(907);
    const std::string before = stored();
    for (const int slice : {0, 6, -1, 99}) {
        SaveSettings(project_, static_cast<SettingsSlice>(slice),
                     settingsOf(std::string(908, 'n')));
        EXPECT_EQ(stored(), before);
        const auto form = LoadSettings(project_, static_cast<SettingsSlice>(slice));
        const auto bytes = bytesOf(form);
        EXPECT_EQ(std::string(bytes.begin(), bytes.end()), std::string(908, '\0'));
    }
}

TEST_F(Settings, ARenamedGameShowsAtOnce) {
    GameSettingsRecord form = LoadSettings(project_, SettingsSlice::genSettings);
    form.GameTitle = " Castle ";
    form.PlayerExeName = "Castle";
    SaveSettings(project_, SettingsSlice::genSettings, form);
    EXPECT_EQ(project_.GameTitle, "Castle");
    EXPECT_EQ(project_.PlayerName, "Castle.exe");
}

TEST_F(Settings, TheScoreFlagStaysWithinItsBounds) {
    for (const auto& [typed, kept] : {std::pair{0, 255},
                                      {-1, 1},
                                      {-32768, 1},
                                      {1, 1},
                                      {255, 255},
                                      {256, 255},
                                      {300, 255},
                                      {32767, 255},
                                      {40, 40}}) {
        EXPECT_EQ(boundedScoreFlag(typed), kept) << typed;
        GameSettingsRecord form = LoadSettings(project_, SettingsSlice::edButtons);
        form.ScoreFlag = static_cast<std::int16_t>(typed);
        SaveSettings(project_, SettingsSlice::edButtons, form);
        EXPECT_EQ(readInt(files_.storePath(4), 403), kept) << typed;
    }
    EXPECT_EQ(boundedScoreFlag(100000), 255);
}

TEST_F(Settings, AScoreFlagOfZeroIsShownAs255) {
    test::patchInt(files_.storePath(4), 403, 0);
    EXPECT_EQ(LoadSettings(project_, SettingsSlice::edButtons).ScoreFlag, 255);
    EXPECT_EQ(readInt(files_.storePath(4), 403), 0);
}

TEST_F(Settings, CustomizingCompletesTheSchemeChange) {
    test::patchInt(files_.storePath(4), 451, 0);
    const auto form = LoadSettings(project_, SettingsSlice::edButtons);
    EXPECT_EQ(form.CustomLayoutFlag, 0);
    SaveSettings(project_, SettingsSlice::edButtons, form);
    EXPECT_EQ(readInt(files_.storePath(4), 451), 1);
}

TEST_F(Settings, AnIntroVolumeAboveOneHundredLoadsAsOneHundred) {
    for (const auto& [inFile, shown] :
         {std::pair{10000, 100}, {101, 100}, {100, 100}, {0, 0}, {-5, -5}}) {
        test::patchInt(files_.storePath(4), 874, static_cast<std::int16_t>(inFile));
        EXPECT_EQ(LoadSettings(project_, SettingsSlice::gameIntro).IntroVolume, shown);
        EXPECT_EQ(readInt(files_.storePath(4), 874), inFile);
    }
}

TEST_F(Settings, OfAStoreOfAnotherLengthTheRestIsZero) {
    openCutTo(20);
    EXPECT_EQ(LoadSettings(project_, SettingsSlice::genSettings).GameTitle.text(), "Untitled");
    EXPECT_EQ(LoadSettings(project_, SettingsSlice::genSettings).PlayerExeName.text(), "");
    EXPECT_EQ(LoadSettings(project_, SettingsSlice::openCredits).CreditsScene, 0);
    EXPECT_EQ(stored().size(), 20U);
}

}  // namespace
}  // namespace quorvel::store
