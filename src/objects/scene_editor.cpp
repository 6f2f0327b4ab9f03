#include "objects/scene_editor.h"

#include <algorithm>

#include <QGridLayout>
#include <QLineEdit>

#include "forms/events.h"
#include "groups/project_pictures.h"

namespace quorvel::objects {

using groups::makeFrame;
using groups::makeLabel;
using groups::makeRow;
using store::HeaderInt;
using store::HeaderString;

namespace {

/// The columns of a row of a sound that give way: caption, file, volume, pan.
constexpr int kFile = 1;
constexpr int kVolume = 5;
constexpr int kPan = 8;

QGridLayout* addGrid(const groups::Frame& frame) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(4);
    grid->setColumnStretch(kFile, 3);
    grid->setColumnStretch(kVolume, 2);
    grid->setColumnStretch(kPan, 2);
    frame.column->addLayout(grid);
    return grid;
}

/// Movies and music have no pan; their rows stand under each other with those of the sounds.
void alignWith(const QGridLayout& sounds, QGridLayout* grid) {
    for (int column = 0; column < sounds.columnCount(); ++column) {
        int width = 0;
        for (int row = 0; row < sounds.rowCount(); ++row) {
            if (QLayoutItem* item = sounds.itemAtPosition(row, column)) {
                width = std::max(width, item->sizeHint().width());
            }
        }
        // The lines below the boxes reach over all columns, so that even an empty one has a
        // distance to the next.
        grid->setColumnMinimumWidth(column, width);
    }
}

}  // namespace

sceneimage::sceneimage(const House& house, const std::function<void()>& help, QWidget* parent)
    : PropertyForm(QStringLiteral("sceneimage"), QStringLiteral("Scene Properties"), house.tools,
                   parent),
      house_(house),
      movies_(sheet(), QStringLiteral("Scene"), nullptr) {
    groups::Pages* pages = addPages();
    buildScene(pages->addPage("Scene"));
    buildMedia(pages->addPage("Movies and Sounds"));
    addButtons({.apply = "Command1",
                .cancel = "Command2",
                .ok = "Command4",
                .help = "Command5",
                .restore = "RestoreIt"},
               help);
    bindFields();
}

void sceneimage::buildScene(QVBoxLayout* column) {
    number_ = makeLabel("###", this, "SceneIDX");
    name_ = new QLineEdit(this);
    name_->setObjectName(QStringLiteral("Text2"));
    name_->setAccessibleName(QStringLiteral("Internal Name"));
    constexpr int kLongestName = 15;  // what the record takes
    name_->setMaxLength(kLongestName);
    QLabel* caption = makeLabel("Internal Name >", this, "Label2(1)");
    caption->setBuddy(name_);
    auto* identity = makeRow({makeLabel("Scene #", this, "Label3(0)"), number_, caption, name_});
    identity->setSpacing(forms::kFormSpacing);
    identity->insertSpacing(2, forms::kFormMargin);
    column->addLayout(identity);
    connect(name_, &QLineEdit::textChanged, &sheet(), &groups::Sheet::touch);

    image_ =
        new groups::ImageChoice(sheet(),
                                {.frame = "Frame1",
                                 .caption = "Scene Image",
                                 .locate = "Command3",
                                 .sample = "Image1",
                                 .title = QStringLiteral("Locate background image for this scene"),
                                 .filter = forms::filters::kBackgrounds,
                                 .size = {168, 114}},
                                this);
    column->addWidget(image_->frame);
    connect(image_, &groups::ImageChoice::chosen, this, [this] {
        image_->sample->setPicture(gfxPicture(sheet().tools(), image_->file->text()));
    });

    buildCheckFlag(column);
    set_ = new groups::FlagSet(
        sheet(),
        {.frame = "Frame4(1)",
         .on = "Check1",
         .caption = "Set Flag (Occurs immediately when player enters this scene, unless the "
                    "'Check Flag' option above switches the scene)",
         .add = "Check3"},
        this);
    column->addWidget(set_->frame);
    column->addStretch();
}

void sceneimage::buildCheckFlag(QVBoxLayout* column) {
    const auto check = makeFrame("Frame5", "Check Flag", this);
    checkOn_ = groups::makeCheck("Check2", "Check Flag", check.box);
    check_ = new groups::FlagTest(sheet(), {.caption = "If Flag", .label = "Label1"}, check.box);
    target_ = new groups::SceneChoice(sheet(), {.list = "tags"}, check.box);

    auto* test = new QHBoxLayout;
    check_->addTo(test);
    test->addStretch();
    auto* rows = new QVBoxLayout;
    rows->addWidget(checkOn_);
    rows->addLayout(test);
    rows->addLayout(makeRow(
        {makeLabel("then switch to scene", check.box, "Label12"), target_->list}, target_->list));
    auto* row = new QHBoxLayout;
    row->addLayout(rows, 1);
    row->addWidget(target_->thumbnail);
    check.column->addLayout(row);
    column->addWidget(check.box);

    connect(checkOn_, &QCheckBox::clicked, &sheet(), &groups::Sheet::touch);
    connect(check_, &groups::FlagTest::used, this, [this] { checkOn_->setChecked(true); });
    connect(target_, &groups::SceneChoice::picked, this,
            [this](int scene) { checkOn_->setChecked(scene != 0); });
}

void sceneimage::buildMedia(QVBoxLayout* column) {
    const auto movies = makeFrame("Frame3", "Movies", this);
    QGridLayout* movieGrid = addGrid(movies);
    enterMovie_ = makeMovie(kEnter, "Enter movie", "Enter >", movies.box);
    exitMovie_ = makeMovie(kExit, "Exit movie", "Exit >", movies.box);
    enterMovie_->addTo(movieGrid, 0);
    exitMovie_->addTo(movieGrid, 1);

    const auto soundtrack = makeFrame("Frame4(2)", "Soundtrack", this);
    soundtrack_ = new groups::SoundtrackRow(sheet(),
                                            {.locate = "locatebutton(1)",
                                             .play = "PlayMidfile",
                                             .slider = "Hscroll1(0)",
                                             .value = "SV(0)"},
                                            soundtrack.box);
    QGridLayout* soundtrackGrid = addGrid(soundtrack);
    soundtrack_->addTo(soundtrackGrid, 0);

    const auto sounds = makeFrame("Frame2", "Sound Effects", this);
    QGridLayout* soundGrid = addGrid(sounds);
    using groups::SoundSpec;
    struct Row {
        const char* spoken;
        const char* label;
        SoundSpec::Play play;
        const char* tip;
    };
    constexpr std::array kRows = {
        Row{"Enter sound", "Enter >", SoundSpec::Play::once, "Play"},
        Row{"Exit sound", "Exit >", SoundSpec::Play::once, "Play"},
        Row{"Looping sound", "Looping >", SoundSpec::Play::loop, "Play/ Stop"}};
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        const int k = static_cast<int>(i) + 1;
        sounds_[i] = new SoundSpec(sheet(),
                                   {.k = k,
                                    .spoken = kRows[i].spoken,
                                    .label = kRows[i].label,
                                    .play = kRows[i].play,
                                    .hasChannel = false,
                                    .alone = true,
                                    .playTip = kRows[i].tip},
                                   sounds.box);
        sounds_[i]->addTo(soundGrid, k);
    }
    alignWith(*soundGrid, movieGrid);
    alignWith(*soundGrid, soundtrackGrid);
    groups::addAll(column, {movies.box, soundtrack.box, sounds.box});
    column->addStretch();
}

groups::MovieRow* sceneimage::makeMovie(int index, const char* spoken, const char* label,
                                        QWidget* parent) {
    const auto element = [index](const char* name) {
        return forms::elementName(QString::fromLatin1(name), index);
    };
    return new groups::MovieRow(sheet(), movies_,
                                {.spoken = spoken,
                                 .label = label,
                                 .file = element("MEN"),
                                 .locate = element("LME"),
                                 .play = element("Playmov"),
                                 .slider = element("Hscroll1"),
                                 .value = element("SV")},
                                parent);
}

void sceneimage::bindFields() {
    groups::Sheet& to = sheet();
    to.bind(field(HeaderString::SceneName), name_);
    to.bind(field(HeaderInt::SceneCheckFlagOn), checkOn_);
    to.bind(field(HeaderInt::SceneCheckFlagId), check_->flag);
    to.bind(field(HeaderInt::SceneCheckFlagTest), check_->comparison);
    to.bind(field(HeaderInt::SceneCheckFlagValue), check_->value);
    to.bind(field(HeaderInt::SceneCheckFlagTarget), target_->list);
    to.bind(field(HeaderString::SceneImage), image_->file);
    to.bind(field(HeaderString::SceneSoundtrack), soundtrack_->file);
    to.bind(field(HeaderInt::SceneSoundtrackVolume), soundtrack_->volume);
    to.bind(field(HeaderString::SceneSound1File), sounds_[0]->file);
    to.bind(field(HeaderInt::SceneSound1Volume), sounds_[0]->volume);
    to.bind(field(HeaderInt::SceneSound1Pan), sounds_[0]->pan);
    to.bind(field(HeaderString::SceneSound2File), sounds_[1]->file);
    to.bind(field(HeaderInt::SceneSound2Volume), sounds_[1]->volume);
    to.bind(field(HeaderInt::SceneSound2Pan), sounds_[1]->pan);
    to.bind(field(HeaderString::SceneSound3File), sounds_[2]->file);
    to.bind(field(HeaderInt::SceneSound3Volume), sounds_[2]->volume);
    to.bind(field(HeaderInt::SceneSound3Pan), sounds_[2]->pan);
    to.bind(field(HeaderString::SceneEnterMovie), enterMovie_->file);
    to.bindMovieVolume(field(HeaderInt::SceneEnterMovieVolume), enterMovie_->volume);
    to.bind(field(HeaderString::SceneExitMovie), exitMovie_->file);
    to.bindMovieVolume(field(HeaderInt::SceneExitMovieVolume), exitMovie_->volume);
    to.bind(field(HeaderInt::SceneSetFlagOn), set_->on);
    to.bind(field(HeaderInt::SceneSetFlagId), set_->flag);
    to.bind(field(HeaderInt::SceneSetFlagValue), set_->value);
    to.bind(field(HeaderInt::SceneSetFlagAdd), set_->add);
}

void sceneimage::filled() {
    const groups::Tools& tools = sheet().tools();
    number_->setText(QString::number(tools.project.CurrentScene));
    image_->sample->setPicture(scenePicture(tools, tools.project.CurrentScene, true));
}

void sceneimage::stored() {
    const groups::Tools& tools = sheet().tools();
    const int number = tools.project.CurrentScene;
    if (tools.project.lists.renameScene(number, house_.scene.header(HeaderString::SceneName))) {
        tools.lists.scenes.renamed(number - 1);
    }
    house_.keeper.ShowPicture();
    house_.view.followPictureFiles();
    forms::letEventsRun();
}

}  // namespace quorvel::objects
