#include "store/scene.h"

#include <gtest/gtest.h>

#include "store/golden_records.h"
#include "support/file_bytes.h"

namespace quorvel::store {
namespace {

std::string bytesAsText(const SceneRecord& record) {
    const auto bytes = bytesOf(record);
    return {bytes.begin(), bytes.end()};
}

SceneRecord recordOf(const std::string& bytes) {
    SceneRecord record{};
    std::copy(bytes.begin(), bytes.end(), bytesOf(record).begin());
    return record;
}

/// A scene record in which every number is its own offset and every text says its own.
SceneRecord patternRecord() {
    std::string bytes(sizeof(SceneRecord), '\0');
    const auto put = [&bytes](std::size_t at, int width, bool isText) {
        const std::string element = isText ? golden::padded("t" + std::to_string(at), width)
                                           : golden::intBytes(static_cast<std::int16_t>(at));
        bytes.replace(at, element.size(), element);
    };
    for (const auto& row : golden::rows<SceneRecord>()) {
        for (int i = 0; i < row.count; ++i) {
            put(row.at(i), row.width, row.isText);
        }
    }
    for (std::size_t slot = 0; slot < 20; ++slot) {
        for (const auto& row : golden::rows<ObjectSlotRecord>()) {
            for (int i = 0; i < row.count; ++i) {
                put(255 + 207 * slot + row.at(i), row.width, row.isText);
            }
        }
    }
    return recordOf(bytes);
}

TEST(Scene, HeaderTextsAreInFileOrder) {
    Scene scene;
    scene.take(patternRecord());
    const std::pair<HeaderString, int> all[] = {
        {HeaderString::SceneName, 0},         {HeaderString::SceneImage, 25},
        {HeaderString::SceneSoundtrack, 40},  {HeaderString::SceneSound1File, 57},
        {HeaderString::SceneSound2File, 76},  {HeaderString::SceneSound3File, 95},
        {HeaderString::SceneEnterMovie, 114}, {HeaderString::SceneExitMovie, 131},
        {HeaderString::Reserved156, 156},
    };
    for (std::size_t i = 0; i < std::size(all); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(all[i].first), i);
        EXPECT_EQ(scene.header(all[i].first), "t" + std::to_string(all[i].second));
    }
    EXPECT_EQ(scene.HeaderStrings[9], "t171");
    EXPECT_EQ(scene.HeaderStrings[10], "t186");
    EXPECT_EQ(scene.HeaderStrings.size(), 11U);
}

TEST(Scene, HeaderNumbersAreInFileOrder) {
    Scene scene;
    scene.take(patternRecord());
    const std::pair<HeaderInt, int> all[] = {
        {HeaderInt::SceneCheckFlagOn, 15},       {HeaderInt::SceneCheckFlagId, 17},
        {HeaderInt::SceneCheckFlagTest, 19},     {HeaderInt::SceneCheckFlagValue, 21},
        {HeaderInt::SceneCheckFlagTarget, 23},   {HeaderInt::SceneSoundtrackVolume, 55},
        {HeaderInt::SceneSound1Volume, 72},      {HeaderInt::SceneSound1Pan, 74},
        {HeaderInt::SceneSound2Volume, 91},      {HeaderInt::SceneSound2Pan, 93},
        {HeaderInt::SceneSound3Volume, 110},     {HeaderInt::SceneSound3Pan, 112},
        {HeaderInt::SceneEnterMovieVolume, 129}, {HeaderInt::SceneExitMovieVolume, 146},
        {HeaderInt::SceneSetFlagOn, 148},        {HeaderInt::SceneSetFlagId, 150},
        {HeaderInt::SceneSetFlagValue, 152},     {HeaderInt::SceneSetFlagAdd, 154},
        {HeaderInt::Reserved201, 201},
    };
    for (std::size_t i = 0; i < std::size(all); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(all[i].first), i);
        EXPECT_EQ(scene.header(all[i].first), all[i].second);
    }
    EXPECT_EQ(scene.HeaderInts[19], 203);
    EXPECT_EQ(scene.header(HeaderInt::SecurityCode), 205);
    EXPECT_EQ(static_cast<std::size_t>(HeaderInt::SecurityCode), 20U);
    EXPECT_EQ(scene.HeaderInts.size(), 21U);
}

TEST(Scene, EdgeLinksTakeTheirFields) {
    Scene scene;
    scene.take(patternRecord());
    EXPECT_EQ(scene.LinkUp, (EdgeLink{207, 209, 223, 225, 227, 229}));
    EXPECT_EQ(scene.LinkDown, (EdgeLink{211, 213, 231, 233, 235, 237}));
    EXPECT_EQ(scene.LinkLeft, (EdgeLink{215, 217, 239, 241, 243, 245}));
    EXPECT_EQ(scene.LinkRight, (EdgeLink{219, 221, 247, 249, 251, 253}));
}

TEST(Scene, EdgeLinksAreNumberedAsOnTheCanvas) {
    Scene scene;
    EXPECT_EQ(&scene.link(static_cast<LinkSide>(1)), &scene.LinkLeft);
    EXPECT_EQ(&scene.link(static_cast<LinkSide>(2)), &scene.LinkUp);
    EXPECT_EQ(&scene.link(static_cast<LinkSide>(3)), &scene.LinkRight);
    EXPECT_EQ(&scene.link(static_cast<LinkSide>(4)), &scene.LinkDown);
}

TEST(Scene, SlotsTakeTheirFields) {
    Scene scene;
    scene.take(patternRecord());
    for (int number = 1; number <= 20; ++number) {
        const int base = 255 + 207 * (number - 1);
        const ObjectSlot& slot = scene.slot(number);
        EXPECT_EQ(slot.SlotInt(1), base);
        EXPECT_EQ(slot.SlotInt(2), base + 2);
        EXPECT_EQ(slot.SlotInt(3), base + 4);
        for (int k = 1; k <= 9; ++k) {
            EXPECT_EQ(slot.SlotStr(k), "t" + std::to_string(base + 6 + 15 * (k - 1)));
        }
        for (int k = 4; k <= 36; ++k) {
            EXPECT_EQ(slot.SlotInt(k), base + 141 + 2 * (k - 4)) << k;
        }
    }
}

TEST(Scene, FieldNumbersOutsideTheSlotAreRefused) {
    Scene scene;
    EXPECT_THROW((void)scene.slot(0), std::out_of_range);
    EXPECT_THROW((void)scene.slot(21), std::out_of_range);
    EXPECT_THROW((void)scene.slot(1).SlotInt(0), std::out_of_range);
    EXPECT_THROW((void)scene.slot(1).SlotInt(37), std::out_of_range);
    EXPECT_THROW((void)scene.slot(1).SlotStr(10), std::out_of_range);
}

TEST(Scene, ARecordComesBackWholeButForItsSecurityCode) {
    SceneRecord record = patternRecord();
    Scene scene;
    scene.take(record);
    record.SecurityCode = 0;
    EXPECT_EQ(bytesAsText(scene.toRecord()), bytesAsText(record));
    EXPECT_EQ(scene.header(HeaderInt::SecurityCode), 205);
}

TEST(Scene, ANewSceneComesBackWhole) {
    const auto record = newRecord<SceneRecord>();
    Scene scene;
    scene.take(record);
    EXPECT_EQ(bytesAsText(scene.toRecord()), bytesAsText(record));
}

TEST(Scene, EveryNumberAndEveryByteOfATextComesBack) {
    std::string bytes = bytesAsText(newRecord<SceneRecord>());
    for (const int value : {-32768, -7, -1, 0, 10, 99, 32767}) {
        for (int k = 0; k < 20; ++k) {
            const auto slot = 255 + 207 * static_cast<std::size_t>(k);
            for (std::size_t at = 0; at < 207; at += (at == 4 ? 137U : 2U)) {
                bytes.replace(slot + at, 2, golden::intBytes(static_cast<std::int16_t>(value)));
            }
        }
        Scene scene;
        scene.take(recordOf(bytes));
        EXPECT_EQ(bytesAsText(scene.toRecord()), bytes) << value;
    }
    for (int first = 0; first < 256; ++first) {
        std::string text = "x";
        for (int i = 0; i < 13; ++i) {
            text += static_cast<char>((first + i) % 256);
        }
        text += "x";
        bytes.replace(0, 15, text);
        bytes.replace(255 + 6, 15, text);
        Scene scene;
        scene.take(recordOf(bytes));
        EXPECT_EQ(bytesAsText(scene.toRecord()), bytes) << first;
    }
}

TEST(Scene, RandomBytesAreTakenAndStayTheSameFromThenOn) {
    for (std::uint32_t seed = 0; seed < 50; ++seed) {
        Scene scene;
        scene.take(recordOf(test::randomBytes(sizeof(SceneRecord), seed)));
        const SceneRecord once = scene.toRecord();
        scene.take(once);
        EXPECT_EQ(bytesAsText(scene.toRecord()), bytesAsText(once)) << seed;
        EXPECT_EQ(once.SecurityCode, 0);
    }
}

TEST(Scene, TheZeroedRecordGivesTypeZeroInEverySlot) {
    Scene scene;
    scene.take(SceneRecord{});
    for (int number = 1; number <= 20; ++number) {
        EXPECT_EQ(scene.slot(number), ObjectSlot());
        EXPECT_EQ(scene.slot(number).SlotInt(1), 0);
    }
    EXPECT_EQ(scene.objectCount(), 20);
    EXPECT_EQ(scene.header(HeaderString::SceneName), "");
}

TEST(Scene, SixteenCharactersInASlotComeBackAsFifteen) {
    Scene scene;
    scene.ResetScene();
    scene.slot(7).SlotStr(3) = "1234567890abcdef";
    EXPECT_EQ(scene.slot(7).SlotStr(3), "1234567890abcdef");
    Scene saved;
    saved.take(scene.toRecord());
    EXPECT_EQ(saved.slot(7).SlotStr(3), "1234567890abcde");
}

TEST(Scene, TextsComeTrimmed) {
    auto record = newRecord<SceneRecord>();
    record.SceneName = "  Hall ";
    record.Slots[0].SlotStr[0] = "   ";
    Scene scene;
    scene.take(record);
    EXPECT_EQ(scene.header(HeaderString::SceneName), "Hall");
    EXPECT_EQ(scene.slot(1).SlotStr(1), "");
}

TEST(Scene, ResetSceneLeavesNothing) {
    Scene scene;
    scene.take(patternRecord());
    scene.ResetScene();
    for (const std::string& text : scene.HeaderStrings) {
        EXPECT_EQ(text, "");
    }
    for (const std::int16_t number : scene.HeaderInts) {
        EXPECT_EQ(number, 0);  // the flag numbers too, which are 1 in a new record
    }
    EXPECT_EQ(scene.LinkUp, (EdgeLink{0, 0, 0, 32, 636, 33}));
    EXPECT_EQ(scene.LinkDown, (EdgeLink{0, 0, 442, 32, 636, 33}));
    EXPECT_EQ(scene.LinkLeft, (EdgeLink{0, 0, 33, 0, 33, 410}));
    EXPECT_EQ(scene.LinkRight, (EdgeLink{0, 0, 33, 667, 33, 410}));
    ObjectSlot freeSlot;
    freeSlot.SlotInt(1) = -1;
    for (int number = 1; number <= 20; ++number) {
        EXPECT_EQ(scene.slot(number), freeSlot);
    }
    EXPECT_EQ(scene.objectCount(), 0);
}

TEST(Scene, UnknownTypesCountAsObjects) {
    Scene scene;
    scene.ResetScene();
    scene.slot(1).SlotInt(1) = 0;
    scene.slot(2).SlotInt(1) = 99;
    scene.slot(20).SlotInt(1) = -7;
    EXPECT_EQ(scene.objectCount(), 3);
}

}  // namespace
}  // namespace quorvel::store
