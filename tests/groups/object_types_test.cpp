// Groups over the fields of object types that have no window yet: what is peculiar to their values.
#include <gtest/gtest.h>

#include <QGridLayout>

#include "groups/flags.h"
#include "groups/movie_row.h"
#include "groups/property_form.h"
#include "groups/sound_spec.h"
#include "groups/tools_fixture.h"
#include "store/objects.h"

namespace quorvel::test {
namespace {

using namespace groups;
using store::Ambient;
using store::Goodie;
using store::ObjectSlot;
using store::ObjectType;
using store::Reactor;

class TypeForm : public PropertyForm {
  public:
    explicit TypeForm(const Tools& tools)
        : PropertyForm(QStringLiteral("TypeForm"), QStringLiteral("Type"), tools, nullptr) {}

  protected:
    void addFoot() {
        addButtons(
            {.apply = "Command1", .cancel = "Command2", .ok = "Command3", .help = "Command4"}, {});
    }
};

/// The style, and what is on offer with one of the three styles only.
class AmbientForm : public TypeForm {
  public:
    AmbientForm(const Tools& tools, ObjectSlot& slot) : TypeForm(tools) {
        style = new OptionGroup("Option2", 1, {"Looping", "Ping-Pong", "1-Shot"}, this);
        holds = makeCheck("Check2", "Holds", this);
        addAll(column(), style->widgets());
        column()->addWidget(holds);
        addFoot();
        connect(style, &OptionGroup::clicked, this, [this] {
            offer();
            sheet().touch();
        });
        connect(holds, &QCheckBox::clicked, &sheet(), &Sheet::touch);
        sheet().bind(store::number(slot, Ambient::Style), style);
        sheet().bind(store::number(slot, Ambient::HoldsPlayer), holds);
    }
    OptionGroup* style;
    QCheckBox* holds;

  protected:
    void filled() override { offer(); }

  private:
    void offer() { holds->setVisible(style->chosen() == 3); }
};

/// The visibility and the movie.
class ReactorForm : public TypeForm {
  public:
    ReactorForm(const Tools& tools, ObjectSlot& slot)
        : TypeForm(tools), movies(sheet(), QStringLiteral("Reactor"), nullptr) {
        visibility = new Visibility(sheet(), {.options = "Option1"}, this);
        movie = new MovieRow(sheet(), movies,
                             {.spoken = "Movie",
                              .label = "Movie File >",
                              .file = QStringLiteral("Text4"),
                              .locate = QStringLiteral("Command5"),
                              .play = QStringLiteral("Command6"),
                              .slider = QStringLiteral("MovVol"),
                              .value = QStringLiteral("MVol")},
                             this);
        auto* grid = new QGridLayout;
        movie->addTo(grid, 0);
        column()->addLayout(grid);
        column()->addWidget(visibility->frame);
        addFoot();
        sheet().bind(store::word(slot, Reactor::Movie), movie->file);
        sheet().bindMovieVolume(store::number(slot, Reactor::MovieVolume), movie->volume);
        sheet().bind(store::number(slot, Reactor::Visibility), visibility->options);
        sheet().bind(store::number(slot, Reactor::VisibleFlag), visibility->test->flag);
        sheet().bind(store::number(slot, Reactor::VisibleTest), visibility->test->comparison);
        sheet().bind(store::number(slot, Reactor::VisibleValue), visibility->test->value);
    }
    MoviePlay movies;
    Visibility* visibility;
    MovieRow* movie;
};

/// What is played when it is picked up: a sound or a movie.
class GoodieForm : public TypeForm {
  public:
    GoodieForm(const Tools& tools, ObjectSlot& slot)
        : TypeForm(tools), movies(sheet(), QStringLiteral("Goodie"), nullptr) {
        success = new SoundSpec(
            sheet(), {.k = 2, .spoken = "Success", .hasChannel = false, .movies = &movies}, this);
        auto* grid = new QGridLayout;
        success->addTo(grid, 0);
        column()->addLayout(grid);
        addFoot();
        sheet().bind(store::word(slot, Goodie::SuccessMedia), success->file);
        sheet().bindMovieVolume(store::number(slot, Goodie::SuccessVolume), success->volume);
        sheet().bind(store::number(slot, Goodie::SuccessPan), success->pan);
    }
    MoviePlay movies;
    SoundSpec* success;
};

class ObjectTypes : public ToolsFixture {
  protected:
    ObjectTypes() { open(ProjectBuilder().mmedia("a.wav", "a").mmedia("film.avi", "f")); }
    /// A fresh object of `type` in the slot.
    void insert(ObjectType type) {
        slot = {};
        store::ResetSlot(slot, type);
    }
    template <class Form>
    std::unique_ptr<Form> show() {
        auto form = std::make_unique<Form>(*tools, slot);
        form->show();
        QCoreApplication::processEvents();
        return form;
    }
    static void click(const QWidget& form, const char* name) {
        control<QAbstractButton>(form, QString::fromLatin1(name)).click();
    }
    void choose(const QWidget& form, const char* button, const char* file) {
        dialogs.choice = text(files.mmedia(file));
        click(form, button);
    }

    ObjectSlot slot;
};

TEST_F(ObjectTypes, AnAmbientKeepsWhatIsNotOnOffer) {
    insert(ObjectType::ambient);
    ASSERT_EQ(store::number(slot, Ambient::Style), 1);
    ASSERT_EQ(store::number(slot, Ambient::HoldsPlayer), 1);
    const auto form = show<AmbientForm>();
    EXPECT_FALSE(form->holds->isVisible());
    click(*form, "Option2(2)");
    click(*form, "Command1");
    EXPECT_EQ(store::number(slot, Ambient::Style), 2);
    EXPECT_EQ(store::number(slot, Ambient::HoldsPlayer), 1);
    click(*form, "Option2(3)");
    EXPECT_TRUE(form->holds->isVisible());
    EXPECT_TRUE(form->holds->isChecked());
    click(*form, "Check2");
    click(*form, "Option2(1)");
    EXPECT_FALSE(form->holds->isVisible());
    click(*form, "Command3");
    EXPECT_EQ(store::number(slot, Ambient::Style), 1);
    EXPECT_EQ(store::number(slot, Ambient::HoldsPlayer), 0) << "what was chosen while it was there";
}

TEST_F(ObjectTypes, AFreshReactorIsReadAsAlwaysVisibleAndSaysSoOnceItIsSaved) {
    insert(ObjectType::reactor);
    ASSERT_EQ(store::number(slot, Reactor::Visibility), 0);
    auto form = show<ReactorForm>();
    EXPECT_EQ(form->visibility->options->chosen(), Visibility::kAlways);
    click(*form, "Command3");
    EXPECT_EQ(store::number(slot, Reactor::Visibility), 0) << "nothing was changed, nothing saved";
    form = show<ReactorForm>();
    choose(*form, "Command5", "film.avi");
    click(*form, "Command3");
    EXPECT_EQ(store::number(slot, Reactor::Visibility), 1);
    EXPECT_EQ(store::word(slot, Reactor::Movie), "film.avi");
}

TEST_F(ObjectTypes, AFreshReactorHasItsMovieAtFullVolumeFromItsFirstOpening) {
    insert(ObjectType::reactor);
    ASSERT_EQ(store::number(slot, Reactor::MovieVolume), 10000);
    const auto form = show<ReactorForm>();
    EXPECT_EQ(form->movie->volume->box()->text(), QStringLiteral("100"));
    EXPECT_EQ(form->movie->volume->slider()->value(), 100);
    click(*form, "Command2");
    EXPECT_EQ(store::number(slot, Reactor::MovieVolume), 100);
}

TEST_F(ObjectTypes, TheVolumeOfAGoodieIsReadTogetherWithItsFile) {
    insert(ObjectType::goodie);
    const auto open = [this](const char* file, int volume) {
        store::word(slot, Goodie::SuccessMedia) = file;
        store::number(slot, Goodie::SuccessVolume) = static_cast<std::int16_t>(volume);
        return show<GoodieForm>();
    };
    const auto shown = [](const GoodieForm& form) { return form.success->volume->value(); };
    const auto stored = [this] { return int{store::number(slot, Goodie::SuccessVolume)}; };
    EXPECT_EQ(shown(*open("film.avi", 10000)), 100);
    EXPECT_EQ(stored(), 100) << "by opening";
    EXPECT_EQ(shown(*open("film.avi", 35)), 35);

    auto form = open("a.wav", -600);
    EXPECT_EQ(shown(*form), -600);
    EXPECT_EQ(form->success->volume->slider()->minimum(), -4000);
    choose(*form, "LSE(2)", "film.avi");
    EXPECT_EQ(shown(*form), 0);
    EXPECT_EQ(form->success->volume->slider()->maximum(), 100);
    form->success->volume->slider()->setValue(80);
    click(*form, "Command1");
    EXPECT_EQ(stored(), 80);
    choose(*form, "LSE(2)", "a.wav");
    click(*form, "Command3");
    EXPECT_EQ(stored(), 0) << "80 is no volume of a WAV";
}

}  // namespace
}  // namespace quorvel::test
