// The lists of a project as models.
#include "forms/record_lists.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QComboBox>
#include <QSignalSpy>

#include "forms/record_list.h"
#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

using forms::HeadedListModel;
using forms::NumberRole;
using forms::RecordList;
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

// What is outside of a list.

TEST_F(RecordLists, RowsOutsideHoldNothing) {
    HeadedListModel headed(&models.scenes, QStringLiteral("(None)"), nullptr);
    for (const int row : {-1, 3, 4, 32767, std::numeric_limits<int>::max()}) {
        for (const int role : {int{Qt::DisplayRole}, int{NumberRole}, int{SceneRole}}) {
            EXPECT_FALSE(models.scenes.index(row).data(role).isValid()) << row;
        }
    }
    for (const int row : {-1, 4, 32767}) {
        EXPECT_FALSE(headed.index(row).data(NumberRole).isValid()) << row;
    }
}

TEST_F(RecordLists, AListThatGotShorterWithoutAWordGivesNothingForTheRowsThatAreGone) {
    const QPersistentModelIndex last = models.scenes.index(2);
    RecordList box(QStringLiteral("b"), models.scenes, QStringLiteral("(None)"), nullptr);
    box.choose(3);
    ASSERT_EQ(box.chosen(), 3);
    lists.scenes.resize(1);
    EXPECT_FALSE(last.data(NumberRole).isValid());
    EXPECT_EQ(box.chosen(), std::nullopt) << "not 0, which would be stored as none";
    lists.scenes.clear();
    EXPECT_FALSE(models.scenes.index(0).data().isValid());
    box.choose(1);
    EXPECT_EQ(box.chosen(), std::nullopt);
}

TEST_F(RecordLists, NewsOfRowsOutsideAreNoNews) {
    HeadedListModel headed(&models.scenes, QStringLiteral("(None)"), nullptr);
    QSignalSpy source(&models.scenes, &QAbstractItemModel::dataChanged);
    QSignalSpy front(&headed, &QAbstractItemModel::dataChanged);
    QSignalSpy inserted(&headed, &QAbstractItemModel::rowsInserted);
    for (const int row : {-1, 3, 32767}) {
        models.scenes.renamed(row);
    }
    models.scenes.append();
    EXPECT_EQ(source.count() + front.count() + inserted.count(), 0);
    EXPECT_EQ(models.scenes.rowCount(), 3) << "nothing was added";
    models.scenes.renamed(0);
    ASSERT_EQ(front.count(), 1);
    EXPECT_EQ(front.front().front().toModelIndex().row(), 1);
    lists.scenes.push_back({4, "New", 0});
    models.scenes.append();
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(headed.rowCount(), 5);
}

TEST_F(RecordLists, AListWithoutAFirstEntryHearsNothingOfItsRows) {
    HeadedListModel headed(&models.scenes, QString(), nullptr);
    const QAbstractItemModelTester rules(&headed,
                                         QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy changes(&headed, &QAbstractItemModel::dataChanged);
    QSignalSpy inserted(&headed, &QAbstractItemModel::rowsInserted);
    lists.scenes.push_back({4, "New", 0});
    models.scenes.append();
    models.scenes.renamed(0);
    EXPECT_EQ(changes.count() + inserted.count(), 0) << "it has no row";
    headed.setFirstEntry(QStringLiteral("(None)"));
    EXPECT_EQ(headed.rowCount(), 5);
}

TEST_F(RecordLists, ABoxShowsNothingForANumberThatItDoesNotHave) {
    RecordList box(QStringLiteral("b"), models.locations, QStringLiteral("(None)"), nullptr);
    EXPECT_EQ(box.chosen(), 0) << "the first entry stands for none";
    for (const int number : {-1, 1, 3, 6, 32767, -32768}) {
        box.choose(number);
        EXPECT_EQ(box.currentIndex(), -1) << number;
        EXPECT_EQ(box.chosen(), std::nullopt) << number;
    }
    box.choose(5);
    EXPECT_EQ(box.chosen(), 5);
    RecordList empty(QStringLiteral("e"), models.locations, QString(), nullptr);
    EXPECT_EQ(empty.count(), 0);
    EXPECT_EQ(empty.chosen(), std::nullopt);
    empty.choose(0);
    EXPECT_EQ(empty.chosen(), std::nullopt);
}

// A list as long as a project can have it.

/// Counts how often it is asked for what stands in a row.
class CountedList : public forms::RecordListModel {
  public:
    explicit CountedList(const std::vector<store::ListEntry>& entries)
        : RecordListModel(entries, nullptr) {}
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        ++asked;
        return RecordListModel::data(index, role);
    }
    mutable int asked = 0;
};

class LongList : public ::testing::Test {
  protected:
    static constexpr int kMost = 32767;
    LongList() {
        for (int n = 1; n <= kMost; ++n) {
            scenes.push_back({n, "Scene", 0});
        }
    }
    std::vector<store::ListEntry> scenes;
    CountedList model{scenes};
};

TEST_F(LongList, CostsNothingUntilItIsShown) {
    std::vector<std::unique_ptr<HeadedListModel>> fronts;
    for (int i = 0; i < 200; ++i) {
        fronts.push_back(
            std::make_unique<HeadedListModel>(&model, QStringLiteral("(None)"), nullptr));
    }
    RecordList box(QStringLiteral("b"), model, QStringLiteral("(None)"), nullptr);
    model.refresh();
    EXPECT_EQ(model.asked, 0) << "no text is made and no row is walked";
    for (const auto& front : fronts) {
        EXPECT_EQ(front->rowOf(kMost), kMost);
    }
    box.choose(kMost);
    box.sizeHint();
    EXPECT_LE(model.asked, 300);
    EXPECT_EQ(fronts.front()->index(kMost).data().toString(), QStringLiteral("32767 (Scene)"));
}

TEST_F(LongList, DropsDownWithoutWalkingThroughItsRows) {
    model.refresh();
    QWidget window;
    RecordList box(QStringLiteral("b"), model, QStringLiteral("(None)"), &window);
    window.show();
    box.choose(20000);
    QCoreApplication::processEvents();
    model.asked = 0;
    box.showPopup();
    QCoreApplication::processEvents();
    ASSERT_TRUE(box.view()->isVisible());
    // What is seen of it is painted, a row asks for a dozen things.
    EXPECT_LT(model.asked, 2000);
    EXPECT_GT(model.asked, 0);
    const int rows = box.view()->viewport()->height() / std::max(1, box.view()->sizeHintForRow(0));
    EXPECT_GT(rows, 5);
    EXPECT_LE(rows, 17) << "and it has a scroll bar";
    box.hidePopup();
}

}  // namespace
}  // namespace quorvel::test
