// The groups in a small window of their own: above all what no window of today has yet.
#include <gtest/gtest.h>

#include <QGridLayout>
#include <QTest>

#include "groups/choices.h"
#include "groups/flags.h"
#include "groups/movie_row.h"
#include "groups/property_form.h"
#include "groups/sound_spec.h"
#include "groups/soundtrack_row.h"
#include "groups/tools_fixture.h"
#include "support/gif_bytes.h"

namespace quorvel::test {
namespace {

using namespace groups;

/// What the window edits.
struct Record {
    std::string sound;
    std::string music;
    std::int16_t volume = 0;
    std::int16_t pan = 0;
    std::int16_t musicVolume = 0;
    std::int16_t addLocation = 0;
    std::int16_t location = 0;
    std::int16_t item = 0;
    std::int16_t startFlag = 1;
    std::int16_t startTest = 0;
    std::int16_t startValue = 0;
    std::int16_t setFlag = 1;
    std::int16_t setValue = 0;
    std::int16_t setAdd = 0;
    std::int16_t style = 0;
};

class SmallForm : public PropertyForm {
  public:
    SmallForm(const Tools& tools, Record& record)
        : PropertyForm(QStringLiteral("SmallForm"), QStringLiteral("Small"), tools, nullptr),
          movies(sheet(), QStringLiteral("Goodie"), nullptr) {
        map = new MapLocation(sheet(), {}, this);
        item = new ItemChoice(sheet(), {.list = "Combo(1)", .icon = "IconPrev(1)"}, this);
        test = new FlagTest(sheet(), {.rule = NumberRule::freeFlag}, this);
        set = new FlagSet(sheet(), {.ticking = FlagSet::Ticking::never}, this);
        bare = new FlagSet(sheet(),
                           {.frame = "Frame9(1)",
                            .on = "",
                            .flag = "FlagID(6)",
                            .value = "Text3(6)",
                            .add = "Check4(1)"},
                           this);
        style = new OptionGroup("Option1", 1, {"One", "Two"}, this);
        sound = new SoundSpec(sheet(),
                              {.k = 2,
                               .spoken = "Success",
                               .frame = "Frame4",
                               .frameCaption = "Success",
                               .label = "Wav -OR- Movie >",
                               .movies = &movies},
                              this);
        music = new SoundtrackRow(sheet(),
                                  {.locate = "SndTrkSrch",
                                   .play = "Playmidfile",
                                   .slider = "Hscroll1(1)",
                                   .value = "SV(1)"},
                                  this);
        auto* grid = new QGridLayout;
        music->addTo(grid, 0);
        auto* row = new QHBoxLayout;
        test->addTo(row);
        map->addTo(column());
        column()->addLayout(makeRow({item->list, item->icon}));
        column()->addLayout(row);
        column()->addLayout(grid);
        addAll(column(), {set->frame, bare->frame, sound->frame});
        addAll(column(), style->widgets());
        addButtons({.apply = "Command1",
                    .cancel = "Command2",
                    .ok = "Command3",
                    .help = "Command4",
                    .restore = "RestoreIt"},
                   {});
        connect(style, &OptionGroup::clicked, &sheet(), &Sheet::touch);
        sheet().bind(record.sound, sound->file);
        sheet().bind(record.music, music->file);
        sheet().bind(record.volume, sound->volume);
        sheet().bind(record.pan, sound->pan);
        sheet().bind(record.musicVolume, music->volume);
        sheet().bind(record.addLocation, map->check);
        sheet().bind(record.location, map->list);
        sheet().bind(record.item, item->list);
        sheet().bind(record.startFlag, test->flag);
        sheet().bind(record.startTest, test->comparison);
        sheet().bind(record.startValue, test->value);
        sheet().bind(record.setFlag, set->flag);
        sheet().bind(record.setValue, set->value);
        sheet().bind(record.setAdd, set->add);
        sheet().bind(record.style, style);
    }
    MoviePlay movies;
    MapLocation* map;
    ItemChoice* item;
    FlagTest* test;
    FlagSet* set;
    FlagSet* bare;
    OptionGroup* style;
    SoundSpec* sound;
    SoundtrackRow* music;
};

class Groups : public ToolsFixture {
  protected:
    Groups() {
        open(ProjectBuilder()
                 .location(1, "Quay")
                 .location(2, "Gone")
                 .location(3, "Cove")
                 .editLocation(2,
                               [](store::LocationRecord& gone) {
                                   gone.LocationInUse = 0;
                                   gone.LocationImage = "Del";
                               })
                 .items(2)
                 .item(1, "Key", "key.gif")
                 .gfx("key.gif", stillGif(10, 12))
                 .mmedia("a.wav", "a")
                 .mmedia("film.avi", "f")
                 .mmedia("waltz.mp3", "w"));
    }
    SmallForm& show() {
        form = std::make_unique<SmallForm>(*tools, record);
        form->show();
        form->activateWindow();
        QCoreApplication::processEvents();
        preview->orders.clear();
        return *form;
    }
    template <class List>
    static void pick(List* list, int index) {
        list->setCurrentIndex(index);
        Q_EMIT list->activated(index);
    }
    QPushButton& button(const char* name) {
        return control<QPushButton>(*form, QString::fromLatin1(name));
    }
    bool dirty() { return button("Command1").isEnabled(); }

    Record record;
    std::unique_ptr<SmallForm> form;
};

/// A window with whatever a test puts into it.
class OpenForm : public PropertyForm {
  public:
    using PropertyForm::sheet;
    explicit OpenForm(const Tools& tools)
        : PropertyForm(QStringLiteral("OpenForm"), QStringLiteral("Open"), tools, nullptr) {}
};

TEST_F(Groups, SoundIsPreparedByTheWindowsInWhichItCanBeHeard) {
    const auto preparedBy = [this](const std::function<void(OpenForm&)>& build) {
        preview->prepared = 0;
        OpenForm window(*tools);
        build(window);
        EXPECT_EQ(preview->prepared, 0) << "not before it opens";
        window.show();
        QCoreApplication::processEvents();
        return preview->prepared > 0;
    };
    EXPECT_FALSE(preparedBy([](OpenForm& window) {
        new FlagTest(window.sheet(), {.rule = NumberRule::freeFlag}, &window);
    }));
    EXPECT_TRUE(preparedBy([](OpenForm& window) {
        new SoundSpec(window.sheet(), {.k = 1, .spoken = "Door", .frame = "Frame1"}, &window);
    }));
    EXPECT_TRUE(preparedBy([](OpenForm& window) {
        new SoundtrackRow(window.sheet(), {.locate = "L", .play = "P", .slider = "S", .value = "V"},
                          &window);
    }));
    EXPECT_TRUE(preparedBy([](OpenForm& window) {
        new MoviePlay(window.sheet(), QStringLiteral("Goodie"), &window);
    }));
}

TEST_F(Groups, AMapLocationTicksItsCheckAndIsStoredByItsNumber) {
    SmallForm& small = show();
    EXPECT_EQ(small.map->check->text(), QStringLiteral("Add a map location"));
    ASSERT_EQ(small.map->list->count(), 3) << "(None), and what is not removed";
    int ticks = 0;
    QObject::connect(small.map, &MapLocation::ticked, [&ticks] { ++ticks; });
    pick(small.map->list, 2);
    EXPECT_TRUE(small.map->check->isChecked());
    EXPECT_EQ(ticks, 1) << "as a click would";
    EXPECT_TRUE(dirty());
    button("Command1").click();
    EXPECT_EQ(record.location, 3);
    EXPECT_EQ(record.addLocation, 1);
    pick(small.map->list, 0);
    EXPECT_FALSE(small.map->check->isChecked());
    small.map->check->click();
    EXPECT_EQ(ticks, 3);
    button("Command3").click();
    EXPECT_EQ(record.location, 0);
    EXPECT_EQ(record.addLocation, 1);
}

TEST_F(Groups, AnItemAloneHasItsIcon) {
    SmallForm& small = show();
    EXPECT_EQ(small.item->icon->picture(), nullptr);
    pick(small.item->list, 1);
    ASSERT_NE(small.item->icon->picture(), nullptr);
    EXPECT_EQ(small.item->icon->picture()->size(), QSize(10, 12));
    EXPECT_TRUE(dirty());
    pick(small.item->list, 2);
    EXPECT_EQ(small.item->icon->picture(), nullptr);
    button("Command3").click();
    EXPECT_EQ(record.item, 2);
}

TEST_F(Groups, AFreeFlagTakesAnyNumber) {
    SmallForm& small = show();
    small.test->flag->setFocus();
    small.test->flag->selectAll();
    QTest::keyClicks(small.test->flag, QStringLiteral("300"));
    small.set->flag->setFocus();
    EXPECT_EQ(small.test->flag->text(), QStringLiteral("300"));
    EXPECT_EQ(beeps, 0);
    button("Command3").click();
    EXPECT_EQ(record.startFlag, 300);
}

TEST_F(Groups, AFlagIsSetWithoutATickWhereNothingTicks) {
    SmallForm& small = show();
    QTest::keyClicks(small.set->value, QStringLiteral("5"));
    small.set->add->click();
    EXPECT_FALSE(small.set->on->isChecked());
    EXPECT_TRUE(dirty());
    EXPECT_EQ(small.bare->on, nullptr);
    small.bare->add->click();
    button("Command3").click();
    EXPECT_EQ(record.setAdd, 1);
}

TEST_F(Groups, ASoundMayBeAMovie) {
    SmallForm& small = show();
    dialogs.choice = text(files.mmedia("film.avi"));
    int chosen = 0;
    QObject::connect(small.sound, &SoundSpec::fileChosen, [&chosen] { ++chosen; });
    button("LSE(2)").click();
    EXPECT_EQ(dialogs.asked.back().filter, forms::filters::kSoundsAndMovies);
    EXPECT_EQ(chosen, 1);
    EXPECT_EQ(small.sound->volume->slider()->maximum(), 100);
    small.sound->volume->setValue(40);
    preview->orders.clear();
    button("Playwav(2)").click();
    EXPECT_EQ(preview->orders, QStringList(QStringLiteral("PlayMovie film.avi Goodie 40")));
    EXPECT_TRUE(button("RestoreIt").isVisible());
    small.sound->volume->setValue(50);
    EXPECT_EQ(preview->orders.back(), QStringLiteral("SetMovieVolume 50"));
    button("Playwav(2)").click();
    EXPECT_EQ(preview->orders.back(), QStringLiteral("StopMovie"));
    EXPECT_FALSE(button("RestoreIt").isVisible());

    dialogs.choice = text(files.mmedia("a.wav"));
    button("LSE(2)").click();
    EXPECT_EQ(small.sound->volume->slider()->minimum(), -4000);
    button("Playwav(2)").click();
    EXPECT_EQ(preview->orders.back(), QStringLiteral("PlayWav a.wav 0 0 2"));
    button("Command3").click();
    EXPECT_EQ(record.sound, "a.wav");
}

TEST_F(Groups, ASoundLoopsOrNotByAnotherProperty) {
    record.sound = "a.wav";
    SmallForm& small = show();
    small.sound->setPlay(SoundSpec::Play::loop);
    button("Playwav(2)").click();
    EXPECT_EQ(preview->orders.back(), QStringLiteral("PlayWav a.wav 0 0 2 loop"));
    EXPECT_EQ(button("Playwav(2)").text(), QStringLiteral("[]"));
}

TEST_F(Groups, MusicTellsWhetherThereIsAny) {
    SmallForm& small = show();
    QList<bool> told;
    QObject::connect(small.music, &SoundtrackRow::changed, [&told](bool any) { told << any; });
    QTest::mouseDClick(small.music->file, Qt::LeftButton);
    QTest::mouseDClick(small.music->file, Qt::LeftButton);
    dialogs.choice = text(files.mmedia("waltz.mp3"));
    button("SndTrkSrch").click();
    QTest::mouseDClick(small.music->file, Qt::LeftButton);
    EXPECT_EQ(told, (QList<bool>{true, false, true, false}));
    QTest::mouseDClick(small.music->file, Qt::LeftButton);
    button("SndTrkSrch").click();
    EXPECT_EQ(dialogs.asked.back().fileName, QString()) << "the order to stop is no file";
}

TEST_F(Groups, OkOfACleanWindowStoresNothing) {
    show();
    EXPECT_TRUE(form->FormLoaded);
    QTest::keyClick(form.get(), Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_FALSE(form->FormLoaded);
    EXPECT_EQ(record.style, 0) << "though the first option is lit";
    SmallForm& again = show();
    EXPECT_EQ(again.style->chosen(), 1);
    again.style->option(2)->click();
    QTest::keyClick(&again, Qt::Key_Escape);
    EXPECT_FALSE(again.isVisible());
    EXPECT_EQ(record.style, 0) << "Escape is Cancel";
}

TEST_F(Groups, AClosedWindowIsFilledAnew) {
    SmallForm& small = show();
    small.set->flag->setText(QStringLiteral("77"));
    small.close();
    record.setFlag = 5;
    small.show();
    EXPECT_EQ(small.set->flag->text(), QStringLiteral("5"));
    EXPECT_FALSE(dirty());
}

}  // namespace
}  // namespace quorvel::test
