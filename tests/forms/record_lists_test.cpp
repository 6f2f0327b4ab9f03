// The lists of a project as models.
#include "forms/record_lists.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QElapsedTimer>
#include <QSignalSpy>

#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

using forms::HeadedListModel;
using forms::NumberRole;
using forms::SceneRole;

class RecordLists : public ::testing::Test {
  protected:
    RecordLists() {
        lists.scenes = {{1, "Hall", 0}, {2, "", 0}, {3, "A & <b>", 0}};
        lists.locations = {{2, "Harbour", 7}, {5, "Tower", -1}};
        models.refresh();
    }
    static QString rowText(const QAbstractItemModel& model, int row) {
        return model.index(row, 0).data().toString();
    }
    store::ProjectLists lists;
    forms::ProjectListModels models{lists};
};

TEST_F(RecordLists, EntriesShowNumberAndName) {
    EXPECT_EQ(models.scenes.rowCount(), 3);
    EXPECT_EQ(rowText(models.scenes, 0), QStringLiteral("1 (Hall)"));
    EXPECT_EQ(rowText(models.scenes, 1), QStringLiteral("2 ()"));
    EXPECT_EQ(rowText(models.scenes, 2), QStringLiteral("3 (A & <b>)"));
    EXPECT_EQ(models.scenes.index(2).data(NumberRole), 3);
    EXPECT_EQ(models.locations.index(1).data(SceneRole), -1);
    EXPECT_FALSE(models.scenes.index(0).data(Qt::DecorationRole).isValid());
}

TEST_F(RecordLists, AFirstEntryStandsBeforeTheRecords) {
    HeadedListModel headed(&models.scenes, QStringLiteral("(Cancel)"), nullptr);
    EXPECT_EQ(headed.rowCount(), 4);
    EXPECT_EQ(rowText(headed, 0), QStringLiteral("(Cancel)"));
    EXPECT_EQ(headed.index(0).data(NumberRole), 0);
    EXPECT_EQ(rowText(headed, 3), QStringLiteral("3 (A & <b>)"));
    headed.setFirstEntry(QString());
    EXPECT_EQ(headed.rowCount(), 0) << "without a first entry there is no row at all";
}

TEST_F(RecordLists, ARowIsFoundByItsNumber) {
    HeadedListModel scenes(&models.scenes, QStringLiteral("(None)"), nullptr);
    EXPECT_EQ(scenes.rowOf(0), 0);
    EXPECT_EQ(scenes.rowOf(3), 3);
    EXPECT_EQ(scenes.rowOf(4), -1);
    EXPECT_EQ(scenes.rowOf(-1), -1);
    HeadedListModel places(&models.locations, QStringLiteral("(None)"), nullptr);
    EXPECT_EQ(places.rowOf(2), 1);
    EXPECT_EQ(places.rowOf(5), 2);
    EXPECT_EQ(places.rowOf(1), -1) << "removed";
    EXPECT_EQ(places.rowOf(3), -1);
}

TEST_F(RecordLists, AListCanShowTheScenesOfItsLocations) {
    HeadedListModel pointers(&models.locations, QStringLiteral("(Dummy)"), nullptr, SceneRole);
    EXPECT_EQ(rowText(pointers, 0), QStringLiteral("(Dummy)"));
    EXPECT_EQ(rowText(pointers, 1), QStringLiteral("7"));
    EXPECT_EQ(rowText(pointers, 2), QStringLiteral("-1"));
}

TEST_F(RecordLists, ARefreshReachesEveryBox) {
    QComboBox one;
    QComboBox two;
    one.setModel(new HeadedListModel(&models.scenes, QStringLiteral("(Cancel)"), &one));
    two.setModel(new HeadedListModel(&models.scenes, QStringLiteral("(None)"), &two));
    lists.scenes.push_back({4, "New", 0});
    EXPECT_EQ(models.scenes.rowCount(), 3) << "until it is told";
    models.refresh();
    EXPECT_EQ(one.count(), 5);
    EXPECT_EQ(two.itemText(4), QStringLiteral("4 (New)"));
    lists.scenes.clear();
    models.refresh();
    EXPECT_EQ(one.count(), 1);
}

TEST_F(RecordLists, ModelsKeepTheRulesOfTheToolkit) {
    HeadedListModel headed(&models.scenes, QStringLiteral("(Cancel)"), nullptr);
    const QAbstractItemModelTester source(&models.scenes,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QAbstractItemModelTester front(&headed,
                                         QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy resets(&headed, &QAbstractItemModel::modelReset);
    lists.scenes.resize(1);
    models.refresh();
    headed.setFirstEntry(QStringLiteral("Choose Scene..."));
    EXPECT_EQ(resets.count(), 2);
    EXPECT_EQ(headed.rowCount(), 2);
}

TEST_F(RecordLists, ALongListCostsNothingUntilItIsShown) {
    constexpr int kMost = 32767;
    lists.scenes.clear();
    for (int n = 1; n <= kMost; ++n) {
        lists.scenes.push_back({n, "Scene", 0});
    }
    std::vector<std::unique_ptr<HeadedListModel>> fronts;
    for (int i = 0; i < 200; ++i) {
        fronts.push_back(
            std::make_unique<HeadedListModel>(&models.scenes, QStringLiteral("(None)"), nullptr));
    }
    QElapsedTimer clock;
    clock.start();
    models.refresh();
    for (const auto& front : fronts) {
        EXPECT_EQ(front->rowOf(kMost), kMost);
    }
    EXPECT_LT(clock.elapsed(), 200) << "no texts are made and no rows are walked";
    EXPECT_EQ(rowText(*fronts.front(), kMost), QStringLiteral("32767 (Scene)"));
}

}  // namespace
}  // namespace quorvel::test
