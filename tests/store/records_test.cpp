#include "store/records.h"

#include <gtest/gtest.h>

namespace quorvel::store {
namespace {

TEST(Records, FieldsFollowOneAnotherWithoutGaps) {
    for (const RecordInfo& record : allRecords()) {
        int end = 0;
        for (const FieldInfo& field : record.fields) {
            EXPECT_EQ(field.offset, end) << record.name << "::" << field.name;
            end += field.count * field.width;
        }
        EXPECT_EQ(end, record.length) << record.name;
    }
}

TEST(Records, ANewSceneHasFreeSlotsThatKnowTheirNumber) {
    const auto scene = newRecord<SceneRecord>();
    for (int i = 0; i < kSlotCount; ++i) {
        const ObjectSlotRecord& slot = scene.Slots[static_cast<std::size_t>(i)];
        EXPECT_EQ(slot.SlotInt1, -1);
        EXPECT_EQ(slot.SlotInt30, 1);
        for (const IntField& number : slot.SlotInt31To36) {
            EXPECT_EQ(number, i + 1);
        }
    }
    EXPECT_EQ(scene.SceneCheckFlagId, 1);
    EXPECT_EQ(scene.LinkDownTop, 442);
    EXPECT_EQ(scene.SceneName.bytes(), std::string(15, ' '));
}

}  // namespace
}  // namespace quorvel::store
