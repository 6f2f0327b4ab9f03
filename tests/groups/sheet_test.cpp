#include "groups/sheet.h"

#include <gtest/gtest.h>

#include "forms/record_list.h"
#include "groups/controls.h"
#include "groups/level.h"
#include "groups/number_box.h"
#include "groups/tools_fixture.h"

namespace quorvel::test {
namespace {

using namespace groups;

/// A sheet binds controls to plain numbers; of what it is given from outside it uses nothing.
class Sheets : public ToolsFixture {
  protected:
    Sheets() {
        open(ProjectBuilder());
        sheet = std::make_unique<Sheet>(*tools);
        QObject::connect(sheet.get(), &Sheet::touched, [this] { ++touches; });
    }
    store::ProjectLists records;
    forms::ProjectListModels lists{records};
    std::unique_ptr<Sheet> sheet;
    QWidget window;
    int touches = 0;
};

TEST_F(Sheets, ALevelIsStoredByItsBoxOrByItsSlider) {
    std::array<std::int16_t, 4> numbers = {500, 500, -300, -300};
    std::vector<std::unique_ptr<Level>> levels;
    for (std::int16_t& number : numbers) {
        levels.push_back(std::make_unique<Level>(QStringLiteral("s"), QStringLiteral("b"),
                                                 QString(), kWavVolume, &window));
        if (levels.size() % 2 == 1) {
            sheet->bind(number, levels.back().get());
        } else {
            sheet->bindSlider(number, levels.back().get());
        }
    }
    sheet->load();
    EXPECT_EQ(levels[0]->box()->text(), QStringLiteral("500")) << "the box is what counts";
    EXPECT_EQ(levels[1]->box()->text(), QStringLiteral("0")) << "the box follows the slider";
    EXPECT_EQ(touches, 0);
    sheet->store();
    EXPECT_EQ(numbers, (std::array<std::int16_t, 4>{500, 0, -300, -300}));
    levels[1]->setValue(-10);
    levels[3]->setValue(-20);
    sheet->store();
    EXPECT_EQ(numbers, (std::array<std::int16_t, 4>{500, -10, -300, -20}));
}

TEST_F(Sheets, EachKindOfControlCarriesItsNumberBothWays) {
    records.scenes = {{1, "One"}, {2, "Two"}};
    lists.refresh();
    std::array<std::int16_t, 7> numbers = {1, -77, 2, -300, 2, 15, 3};
    std::string name = "door.wav";
    std::string group = "4";
    QCheckBox check;
    NumberBox box(
        NumberRule::value, [] {}, nullptr);
    OptionGroup options("Option1", 1, {"A", "B", "C"}, &window);
    Level level(QStringLiteral("s"), QStringLiteral("b"), QString(), kWavVolume, &window);
    forms::RecordList scenes(QStringLiteral("l"), lists.scenes, QStringLiteral("(None)"), &window);
    ChannelList channel(QStringLiteral("c"), &window);
    QComboBox list;
    list.addItems(comparisons());
    QLineEdit file;
    QComboBox groups;
    groups.addItems({QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2"),
                     QStringLiteral("3"), QStringLiteral("4")});
    sheet->bind(name, &file);
    sheet->bindText(group, &groups);
    sheet->bind(numbers[0], &check);
    sheet->bind(numbers[1], &box);
    sheet->bind(numbers[2], &options);
    sheet->bind(numbers[3], &level);
    sheet->bind(numbers[4], &scenes);
    sheet->bind(numbers[5], &channel);
    sheet->bind(numbers[6], &list);
    sheet->load();
    EXPECT_TRUE(check.isChecked());
    EXPECT_EQ(box.text(), QStringLiteral("-77"));
    EXPECT_EQ(options.chosen(), 2);
    EXPECT_EQ(level.slider()->value(), -300);
    EXPECT_EQ(level.box()->text(), QStringLiteral("-300"));
    EXPECT_EQ(scenes.currentText(), QStringLiteral("2 (Two)"));
    EXPECT_EQ(channel.currentText(), QStringLiteral("(Dialogue)"));
    EXPECT_EQ(list.currentText(), QStringLiteral(">"));
    EXPECT_EQ(file.text(), QStringLiteral("door.wav"));
    EXPECT_EQ(groups.currentIndex(), 4);

    check.setChecked(false);
    box.setText(QStringLiteral("12"));
    options.choose(3);
    level.setValue(-4000);
    scenes.choose(1);
    channel.setCurrentIndex(7);
    list.setCurrentIndex(0);
    file.clear();
    groups.setCurrentIndex(-1);
    sheet->store();
    EXPECT_EQ(numbers, (std::array<std::int16_t, 7>{0, 12, 3, -4000, 1, 7, 0}));
    EXPECT_EQ(name, "");
    EXPECT_EQ(group, "0") << "a list that was put on no entry counts as on the first";
}

TEST_F(Sheets, WhatAControlCannotShowStaysUntilTheAuthorChooses) {
    records.scenes = {{1, "One"}};
    lists.refresh();
    std::array<std::int16_t, 5> numbers = {500, 9, 7, 1234, 99};
    const auto before = numbers;
    forms::RecordList scenes(QStringLiteral("l"), lists.scenes, QStringLiteral("(None)"), &window);
    OptionGroup options("Option1", 1, {"A", "B"}, &window);
    QCheckBox check;
    Level level(QStringLiteral("s"), QStringLiteral("b"), QString(), kWavVolume, &window);
    QComboBox list;
    list.addItems(comparisons());
    sheet->bind(numbers[0], &scenes);
    sheet->bind(numbers[1], &options);
    sheet->bind(numbers[2], &check);
    sheet->bind(numbers[3], &level);
    sheet->bind(numbers[4], &list);
    sheet->load();
    sheet->store();
    EXPECT_EQ(numbers, before);
    scenes.choose(1);
    options.choose(2);
    check.setChecked(false);
    level.setValue(-1);
    list.setCurrentIndex(2);
    sheet->store();
    EXPECT_EQ(numbers, (std::array<std::int16_t, 5>{1, 2, 0, -1, 2}));
}

TEST_F(Sheets, ATextThatTheListHasNoEntryForStaysUntilTheAuthorChooses) {
    const QStringList entries = {QStringLiteral("Independent"), QStringLiteral("Group 1")};
    for (const char* kept : {"99", "2", "-1", "-99", "99999999999", "7 and more"}) {
        SCOPED_TRACE(kept);
        std::string text = kept;
        Sheet one(*tools);
        QComboBox list;
        list.addItems(entries);
        one.bindText(text, &list);
        one.load();
        EXPECT_EQ(list.currentIndex(), -1);
        one.store();
        EXPECT_EQ(text, kept) << "stored without a change";
        list.setCurrentIndex(1);
        one.store();
        EXPECT_EQ(text, "1");
        list.setCurrentIndex(0);
        one.store();
        EXPECT_EQ(text, "0");
    }
    std::string empty;
    QComboBox list;
    list.addItems(entries);
    sheet->bindText(empty, &list);
    sheet->load();
    EXPECT_EQ(list.currentIndex(), 0);
    sheet->store();
    EXPECT_EQ(empty, "0");
}

TEST_F(Sheets, AStoredZeroStandsForTheFirstOptionAndAWrongChannelForTheFirstEntry) {
    std::int16_t option = 0;
    std::int16_t channel = 99;
    OptionGroup options("Option1", 1, {"A", "B"}, &window);
    ChannelList channels(QStringLiteral("c"), &window);
    sheet->bind(option, &options);
    sheet->bind(channel, &channels);
    sheet->load();
    EXPECT_EQ(options.chosen(), 1);
    sheet->store();
    EXPECT_EQ(option, 1);
    EXPECT_EQ(channel, 0);
}

TEST_F(Sheets, ANumberOfMoreThan16BitsIsAProblemOfItsBox) {
    std::int16_t number = 5;
    NumberBox box(
        NumberRule::value, [] {}, nullptr);
    sheet->bind(number, &box);
    sheet->load();
    for (const char* fits : {"32767", "-32768", "", "-"}) {
        box.setText(QString::fromLatin1(fits));
        EXPECT_EQ(sheet->problem(), nullptr) << fits;
    }
    for (const char* not16 : {"32768", "-32769", "65536", "99999999999999999999"}) {
        box.setText(QString::fromLatin1(not16));
        ASSERT_NE(sheet->problem(), nullptr) << not16;
        EXPECT_EQ(sheet->problem()->control(), &box);
        EXPECT_EQ(sheet->problem()->problem(),
                  QStringLiteral("The number %1 cannot be saved.\n\nNumbers can be from -32768 to "
                                 "32767.  Please enter another one.")
                      .arg(QString::fromLatin1(not16)));
    }
}

TEST_F(Sheets, FillingIsNoChangeOfTheAuthor) {
    std::int16_t on = 1;
    QCheckBox check;
    QObject::connect(&check, &QCheckBox::toggled, sheet.get(), &Sheet::touch);
    sheet->bind(on, &check);
    sheet->load();
    EXPECT_TRUE(check.isChecked());
    EXPECT_EQ(touches, 0);
    check.click();
    EXPECT_EQ(touches, 1);
}

}  // namespace
}  // namespace quorvel::test
