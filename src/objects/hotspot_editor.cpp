#include "objects/hotspot_editor.h"

#include <algorithm>

#include <QBoxLayout>

#include "groups/project_pictures.h"

namespace quorvel::objects {

using groups::addAll;
using groups::addHalves;
using groups::makeFrame;
using groups::makeLabel;
using groups::makeNumber;
using groups::makeRow;
using groups::NumberRule;
using store::HotSpot;

linkPropf::linkPropf(const House& house, const std::function<void()>& help, QWidget* parent)
    : ObjectEditor(QStringLiteral("linkPropf"), store::ObjectType::hotSpot, house, parent) {
    groups::Pages* pages = addPages();
    const auto [left, right] = addHalves(pages->addPage("Appearance and Link"));
    buildAppearance(left);
    buildTarget(right);
    buildSounds(pages->addPage("Sounds and Item"));
    addButtons({.apply = "Command1", .cancel = "Command3", .ok = "Command6", .help = "Command5"},
               help, indexRow("numbr"));
    bindFields();
}

void linkPropf::buildAppearance(QVBoxLayout* column) {
    image_ = new groups::ImageChoice(sheet(), {}, this);
    connect(image_, &groups::ImageChoice::chosen, this, &linkPropf::Command7_Click);

    const auto style = makeFrame("Frame10", "HotSpot Style", this);
    style_ = new groups::OptionGroup(
        "Option4", kImageSpot, {"ImageSpot  (Use Image)", "QuickSpot  (No Image)"}, style.box);
    height_ = makeNumber(sheet(), NumberRule::digits, "Text2(0)", "Height", style.box);
    width_ = makeNumber(sheet(), NumberRule::digits, "Text2(1)", "Width", style.box);
    QHBoxLayout* size = makeRow(
        {makeLabel("Height >", style.box), height_, makeLabel("Width >", style.box), width_});
    size->insertSpacing(0, groups::kIndent);
    addAll(style.column, style_->widgets());
    style.column->addLayout(size);
    connect(style_, &groups::OptionGroup::clicked, this, &linkPropf::Option4_Click);

    const auto animation =
        makeFrame("Frame1(1)", "Animation Style (Applies only if object is animated)", this);
    animation_ = new groups::OptionGroup("Option1", 1, {"Looping", "Ping-Pong", "Responsive"},
                                         animation.box);
    animation.column->addLayout(makeRow(animation_->widgets()));
    connect(animation_, &groups::OptionGroup::clicked, this, &linkPropf::followAnimation);
    connect(animation_, &groups::OptionGroup::clicked, &sheet(), &groups::Sheet::touch);

    visibility_ = new groups::Visibility(sheet(), {}, this);
    addAll(column, {image_->frame, style.box, animation.box, visibility_->frame});
}

void linkPropf::buildTarget(QVBoxLayout* column) {
    const auto link = makeFrame("Frame3", "Link To:", this);
    targetKind_ = new groups::OptionGroup("Option2", kToScene, {"Scene", "Map"}, link.box);
    target_ = new groups::SceneChoice(
        sheet(), {.list = "LnkScn", .thumbnail = "Image2", .canvasOnOpening = true}, link.box);
    link.column->addLayout(makeRow(targetKind_->widgets()));
    link.column->addLayout(makeRow({target_->list, target_->thumbnail}, target_->list));
    connect(targetKind_, &groups::OptionGroup::clicked, this, &linkPropf::followTarget);
    connect(targetKind_, &groups::OptionGroup::clicked, &sheet(), &groups::Sheet::touch);
    connect(target_, &groups::SceneChoice::picked, this, [this] {
        targetKind_->choose(kToScene);
        followTarget();
    });

    pointer_ = new groups::PointerChoice(
        sheet(), {.frame = "Frame1(2)", .list = "Combo1(1)", .preview = "Image1", .hotSpot = true},
        this);
    const auto click = makeFrame("Frame2", "Click Control", this);
    once_ = groups::makeCheck("Check5", "Can only be clicked once (per scene view)", click.box);
    click.column->addWidget(once_);
    connect(once_, &QCheckBox::clicked, &sheet(), &groups::Sheet::touch);

    grouping_ = new groups::Grouping(sheet(), this);
    addAll(column, {link.box, pointer_->frame, click.box});
    set_ = new groups::FlagSet(
        sheet(), {.caption = "Set Flag (Occurs immediately when link is clicked)"}, this);
    column->addLayout(makeRow({grouping_->label, grouping_->list}, grouping_->list));
    column->addStretch();
    column->addWidget(set_->frame);
}

void linkPropf::buildSounds(QVBoxLayout* column) {
    using groups::SoundSpec;
    sound_ =
        new SoundSpec(sheet(),
                      {.k = 1,
                       .spoken = "Looping sound",
                       .frame = "Frame6",
                       .frameCaption = "Sound Effects (Loops until player clicks on the HotSpot)",
                       .play = SoundSpec::Play::loop},
                      this);
    success_ = new SoundSpec(
        sheet(),
        {.k = 2,
         .spoken = "Success sound",
         .frame = "Frame4",
         .frameCaption = "Success Sound (Played when player successfully clicks on the HotSpot)"},
        this);
    item_ = new groups::ItemRequirement(sheet(), {}, this);
    addAll(column, {sound_->frame, success_->frame, item_->frame});
    column->addStretch();
}

void linkPropf::bindFields() {
    groups::Sheet& to = sheet();
    to.bind(field(HotSpot::Image), image_->file);
    to.bind(field(HotSpot::Sound), sound_->file);
    to.bind(field(HotSpot::SuccessSound), success_->file);
    to.bind(field(HotSpot::FailureSound), item_->failure->file);
    to.bind(field(HotSpot::QuickHeight), height_);
    to.bind(field(HotSpot::QuickWidth), width_);
    to.bindText(field(HotSpot::Group), grouping_->list);
    to.bind(field(HotSpot::Pointer), pointer_->list);
    to.bind(field(HotSpot::Style), animation_);
    to.bind(field(HotSpot::SoundVolume), sound_->volume);
    to.bind(field(HotSpot::SoundPan), sound_->pan);
    to.bind(field(HotSpot::SuccessVolume), success_->volume);
    to.bind(field(HotSpot::SuccessPan), success_->pan);
    to.bind(field(HotSpot::NeedsItem), item_->needs);
    to.bind(field(HotSpot::NeededItem), item_->item->list);
    to.bind(field(HotSpot::KeepsItem), item_->keeps);
    to.bind(field(HotSpot::FailureVolume), item_->failure->volume);
    to.bind(field(HotSpot::FailurePan), item_->failure->pan);
    to.bind(field(HotSpot::TargetKind), targetKind_);
    to.bind(field(HotSpot::TargetScene), target_->list);
    to.bind(field(HotSpot::Visibility), visibility_->options);
    to.bind(field(HotSpot::VisibleFlag), visibility_->test->flag);
    to.bind(field(HotSpot::VisibleTest), visibility_->test->comparison);
    to.bind(field(HotSpot::VisibleValue), visibility_->test->value);
    to.bind(field(HotSpot::SetFlagOn), set_->on);
    to.bind(field(HotSpot::SetFlag), set_->flag);
    to.bind(field(HotSpot::SetValue), set_->value);
    to.bind(field(HotSpot::SetAdd), set_->add);
    to.bind(field(HotSpot::OncePerView), once_);
    to.bind(field(HotSpot::SoundChannel), sound_->channel);
    to.bind(field(HotSpot::SuccessChannel), success_->channel);
    to.bind(field(HotSpot::FailureChannel), item_->failure->channel);
    to.bind(field(HotSpot::QuickSpot), style_);
}

void linkPropf::filled() {
    if (style_->chosen() == kImageSpot || !image_->file->text().isEmpty()) {
        image_->sample->setPicture(objectPicture(sheet().tools(), image_->file->text()));
    }
    followStyle();
    followAnimation();
    followTarget();
}

void linkPropf::Option4_Click(int style) {
    followStyle();
    sheet().touch();
    if (style == kQuickSpot && !image_->file->text().isEmpty()) {
        askAboutImage();
    }
}

void linkPropf::followStyle() {
    const bool quick = style_->chosen() == kQuickSpot;
    height_->setEnabled(quick);
    width_->setEnabled(quick);
    if (quick) {
        return;
    }
    if (image_->file->text().isEmpty()) {
        image_->sample->setPicture(objectPicture(sheet().tools(), {}));
    }
    showSize();
}

void linkPropf::showSize() {
    const QSize size = image_->sample->picture()->size();
    height_->setText(QString::number(size.height()));
    width_->setText(QString::number(size.width()));
}

void linkPropf::askAboutImage() {
    const auto answer = sheet().tools().boxes.show(
        {.text = QStringLiteral("The style is set to QuickSpot (no image), but there is an image "
                                "file chosen.  Would you like to remove the image from this "
                                "object's Image Property?"),
         .icon = forms::Box::Icon::question,
         .buttons = forms::Box::Buttons::yesNo,
         .destroys = true});
    if (answer == forms::Answer::yes) {
        image_->file->clear();
        image_->sample->setPicture(nullptr);
    }
}

void linkPropf::Command7_Click() {
    image_->sample->setPicture(objectPicture(sheet().tools(), image_->file->text()));
    style_->choose(kImageSpot);
    followStyle();
}

void linkPropf::followAnimation() {
    image_->sample->setMode(animation_->chosen() == kPingPong ? forms::DisplayMode::pingPong
                                                              : forms::DisplayMode::loop);
}

void linkPropf::followTarget() {
    target_->thumbnail->setEnabled(targetKind_->chosen() == kToScene);
}

bool linkPropf::check() {
    if (style_->chosen() != kQuickSpot) {
        return true;
    }
    const int smaller = std::min(height_->number(), width_->number());
    if (smaller < HotSpot::kLeastSide) {
        sheet().tools().boxes.show(
            {.text = QStringLiteral("HotSpot size is too small!  Minimum size is 5h X 5w."),
             .icon = forms::Box::Icon::exclamation});
        lead(height_->number() < HotSpot::kLeastSide ? *height_ : *width_);
        return false;
    }
    return true;
}

}  // namespace quorvel::objects
