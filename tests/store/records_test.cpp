#include "store/records.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "store/golden_records.h"

namespace quorvel::store {
namespace {

std::string bytesAsText(std::span<const char> bytes) {
    return {bytes.begin(), bytes.end()};
}

/// Each format against its golden lines.
template <class Record>
class RecordFormat : public ::testing::Test {};

using AllRecords =
    ::testing::Types<ProjectRecord, SceneRecord, ObjectSlotRecord, GameSettingsRecord, ItemRecord,
                     LocationRecord, CueCardRecord, SkinRecord>;
TYPED_TEST_SUITE(RecordFormat, AllRecords);

TYPED_TEST(RecordFormat, TheGoldenLinesFillTheRecord) {
    int end = 0;
    for (const auto& row : golden::rows<TypeParam>()) {
        EXPECT_EQ(row.offset, end) << row.name;
        end += row.count * row.width;
    }
    constexpr bool isScene = std::is_same_v<TypeParam, SceneRecord>;
    EXPECT_EQ(end, isScene ? 255 : static_cast<int>(sizeof(TypeParam)));
}

TYPED_TEST(RecordFormat, TheFieldTableIsTheGoldenOne) {
    const auto rows = golden::rows<TypeParam>();
    auto fields = fieldsOf<TypeParam>();
    if (std::is_same_v<TypeParam, SceneRecord>) {
        const FieldInfo& slots = fields.back();
        EXPECT_EQ(slots.kind, FieldInfo::Kind::slots);
        EXPECT_EQ(slots.offset, 255);
        EXPECT_EQ(slots.count, 20);
        EXPECT_EQ(slots.width, 207);
        fields = fields.first(fields.size() - 1);
    }
    ASSERT_EQ(fields.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(fields[i].name, rows[i].name);
        EXPECT_EQ(fields[i].offset, rows[i].offset) << rows[i].name;
        EXPECT_EQ(fields[i].count, rows[i].count) << rows[i].name;
        EXPECT_EQ(fields[i].width, rows[i].width) << rows[i].name;
        EXPECT_EQ(fields[i].kind == FieldInfo::Kind::text, rows[i].isText) << rows[i].name;
    }
}

TYPED_TEST(RecordFormat, EachMemberWritesItsOwnBytesAndNoOther) {
    for (const auto& row : golden::rows<TypeParam>()) {
        for (int i = 0; i < row.count; ++i) {
            TypeParam record{};
            std::string expected(sizeof(TypeParam), '\0');
            if (row.isText) {
                row.setText(record, i, "Ab" + std::to_string(i));
                const std::string text = golden::padded("Ab" + std::to_string(i), row.width);
                expected.replace(row.at(i), text.size(), text);
            } else {
                row.setNumber(record, i, static_cast<std::int16_t>(-2 - i));
                expected.replace(row.at(i), 2, golden::intBytes(static_cast<std::int16_t>(-2 - i)));
            }
            EXPECT_EQ(bytesAsText(bytesOf(record)), expected) << row.name << " " << i;
        }
    }
}

TYPED_TEST(RecordFormat, EachMemberReadsItsOwnBytes) {
    const auto rows = golden::rows<TypeParam>();
    std::string bytes(sizeof(TypeParam), '#');
    for (const auto& row : rows) {
        for (int i = 0; i < row.count; ++i) {
            const auto place = static_cast<std::int16_t>(row.at(i));
            const std::string element = row.isText
                                            ? golden::padded("t" + std::to_string(place), row.width)
                                            : golden::intBytes(place);
            bytes.replace(row.at(i), element.size(), element);
        }
    }
    TypeParam record{};
    std::copy(bytes.begin(), bytes.end(), bytesOf(record).begin());
    for (const auto& row : rows) {
        for (int i = 0; i < row.count; ++i) {
            if (row.isText) {
                EXPECT_EQ(row.getText(record, i), "t" + std::to_string(row.at(i))) << row.name;
            } else {
                EXPECT_EQ(row.getNumber(record, i), static_cast<int>(row.at(i))) << row.name;
            }
        }
    }
}

TYPED_TEST(RecordFormat, EveryIntHoldsItsWholeRange) {
    for (const auto& row : golden::rows<TypeParam>()) {
        for (const int number : {-32768, -4000, -1, 0, 1, 255, 256, 32767}) {
            if (!row.isText) {
                TypeParam record{};
                row.setNumber(record, 0, static_cast<std::int16_t>(number));
                EXPECT_EQ(row.getNumber(record, 0), number) << row.name;
            }
        }
    }
}

TYPED_TEST(RecordFormat, EveryTextTakesItsWidthAndNoMore) {
    for (const auto& row : golden::rows<TypeParam>()) {
        if (row.isText) {
            TypeParam record{};
            const std::string exact =
                std::string(static_cast<std::size_t>(row.width) - 1, 'x') + "y";
            row.setText(record, row.count - 1, exact);
            EXPECT_EQ(row.getText(record, row.count - 1), exact) << row.name;
            row.setText(record, row.count - 1, exact + "z");
            EXPECT_EQ(row.getText(record, row.count - 1), exact) << row.name;
        }
    }
}

template <class Record>
std::string expectedNewRecord() {
    return golden::newBytes<Record>();
}

template <>
std::string expectedNewRecord<SceneRecord>() {
    std::string bytes = golden::newBytes<SceneRecord>();
    for (int slot = 1; slot <= 20; ++slot) {
        std::string slotBytes = golden::newBytes<ObjectSlotRecord>();
        for (std::size_t field = 31; field <= 36; ++field) {
            slotBytes.replace(141 + 2 * (field - 4), 2,
                              golden::intBytes(static_cast<std::int16_t>(slot)));
        }
        bytes += slotBytes;
    }
    return bytes;
}

TYPED_TEST(RecordFormat, ANewRecordHasTheGoldenBytes) {
    const auto record = newRecord<TypeParam>();
    EXPECT_EQ(bytesAsText(bytesOf(record)), expectedNewRecord<TypeParam>());
}

TYPED_TEST(RecordFormat, TheDumpHasALineForEveryElement) {
    const std::string dump = dumpRecord(bytesOf(newRecord<TypeParam>()), fieldsOf<TypeParam>());
    const auto rows = golden::rows<TypeParam>();
    for (std::size_t k = 0; k < rows.size(); ++k) {
        for (int i = 0; i < rows[k].count; ++i) {
            const std::string name = elementName(fieldsOf<TypeParam>()[k], i);
            const auto first = ("\n" + dump).find("\n" + name + " = ");
            EXPECT_NE(first, std::string::npos) << name;
        }
    }
}

TEST(Records, LengthsAreThoseOfTheFiles) {
    EXPECT_EQ(sizeof(ProjectRecord), 342U);
    EXPECT_EQ(sizeof(SceneRecord), 4395U);
    EXPECT_EQ(sizeof(GameSettingsRecord), 908U);
    EXPECT_EQ(sizeof(ItemRecord), 209U);
    EXPECT_EQ(sizeof(LocationRecord), 112U);
    EXPECT_EQ(sizeof(CueCardRecord), 1712U);
    EXPECT_EQ(sizeof(SkinRecord), 612U);
    EXPECT_EQ(sizeof(ObjectSlotRecord), 207U);
}

TEST(Records, AllAreListedWithTheirFiles) {
    std::string listed;
    for (const RecordInfo& record : allRecords()) {
        listed += std::string(record.name) + " " + std::string(record.file) + " " +
                  std::to_string(record.length) + "\n";
        EXPECT_FALSE(record.fields.empty());
    }
    EXPECT_EQ(listed,
              "ProjectRecord <name>.qvl 342\n"
              "SceneRecord resource/Quorvel1.dat 4395\n"
              "ObjectSlot inside SceneRecord 207\n"
              "LocationRecord resource/Quorvel2.dat 112\n"
              "ItemRecord resource/Quorvel3.dat 209\n"
              "GameSettingsRecord resource/Quorvel4.dat 908\n"
              "CueCardRecord resource/Quorvel5.dat 1712\n"
              "SkinRecord skindata.ias 612\n");
}

TEST(Records, EveryFieldSaysWhatItMeans) {
    for (const RecordInfo& record : allRecords()) {
        for (const FieldInfo& field : record.fields) {
            EXPECT_FALSE(field.meaning.empty()) << record.name << "::" << field.name;
        }
    }
}

TEST(Records, TheZeroedRecordIsEmptyTextsAndZeros) {
    const SceneRecord scene{};
    EXPECT_EQ(bytesAsText(bytesOf(scene)), std::string(4395, '\0'));
    EXPECT_EQ(scene.SceneName.text(), "");
    EXPECT_EQ(scene.Slots[19].SlotInt1, 0);
}

TEST(Records, RunsOfSlotNumbersAreNamedOneByOne) {
    const auto fields = fieldsOf<ObjectSlotRecord>();
    EXPECT_EQ(elementName(fields[0], 0), "SlotInt1");
    EXPECT_EQ(elementName(fields[3], 8), "SlotStr9");
    EXPECT_EQ(elementName(fields[4], 0), "SlotInt4");
    EXPECT_EQ(elementName(fields[4], 25), "SlotInt29");
    EXPECT_EQ(elementName(fields[6], 5), "SlotInt36");
    EXPECT_EQ(elementName(fieldsOf<SceneRecord>()[26], 1), "Reserved156(2)");
}

TEST(Records, RunsAreNumberedAsTheSystemNumbersThem) {
    const auto settings = fieldsOf<GameSettingsRecord>();
    const auto namesOf = [](std::span<const FieldInfo> fields, std::string_view name) {
        const auto field = std::ranges::find(fields, name, &FieldInfo::name);
        return elementName(*field, 0) + " to " + elementName(*field, field->count - 1);
    };
    EXPECT_EQ(namesOf(settings, "DiscLabel"), "DiscLabel1 to DiscLabel4");
    EXPECT_EQ(namesOf(settings, "GamePointer"), "GamePointer1 to GamePointer15");
    EXPECT_EQ(namesOf(settings, "MenuButtonOn"), "MenuButtonOn0 to MenuButtonOn4");
    EXPECT_EQ(namesOf(settings, "GameButtonOn"), "GameButtonOn0 to GameButtonOn1");
    EXPECT_EQ(namesOf(fieldsOf<SkinRecord>(), "Coords"), "Coords0 to Coords9");
}

TEST(Records, TheDumpOfASceneShowsItsSlots) {
    auto scene = newRecord<SceneRecord>();
    scene.SceneName = "Hall";
    scene.Slots[19].SlotInt1 = 2;
    scene.Slots[19].SlotStr[0] = "coin.gif";
    const std::string dump = dumpRecord(bytesOf(scene), fieldsOf<SceneRecord>());
    EXPECT_TRUE(dump.starts_with("SceneName = \"Hall\"\nSceneCheckFlagOn = 0\n"));
    EXPECT_NE(dump.find("Slots20:\nSlotInt1 = 2\nSlotInt2 = 0\nSlotInt3 = 0\n"
                        "SlotStr1 = \"coin.gif\"\n"),
              std::string::npos);
    EXPECT_NE(dump.find("SlotInt36 = 20\n"), std::string::npos);
}

}  // namespace
}  // namespace quorvel::store
