#include "objects/link_editor.h"

#include <array>

#include <QBoxLayout>
#include <QTabBar>

namespace quorvel::objects {
namespace {

using groups::makeFrame;

/// The tabs, in the order in which directions are numbered, and the pointer that a link gets that
/// leads somewhere and has none yet.
struct Direction {
    const char* caption;
    std::int16_t pointer;
};
constexpr std::array kDirections = {Direction{"LEFT", 3}, Direction{"UP", 1}, Direction{"RIGHT", 4},
                                    Direction{"DOWN", 2}};

}  // namespace

directionprop::directionprop(const House& house, const std::function<void()>& help, QWidget* parent)
    : PropertyForm(QStringLiteral("directionprop"), QStringLiteral("\"Link\" Object Properties"),
                   house.tools, parent),
      house_(house),
      CurObj_(house.CurObj) {
    tabs_ = new QTabBar(this);
    tabs_->setObjectName(QStringLiteral("TabStrip1"));
    tabs_->setAccessibleName(QStringLiteral("Direction"));
    for (const Direction& direction : kDirections) {
        tabs_->addTab(QString::fromLatin1(direction.caption));
    }
    groups::turnByKeys(tabs_);

    pointer_ = new groups::PointerChoice(
        sheet(), {.frame = "Frame1(1)", .list = "Combo1", .preview = "Picture1"}, this);

    const auto scene = makeFrame("Frame1(2)", "Linked Scene", this);
    scene_ = new groups::SceneChoice(
        sheet(), {.list = "combo2", .canvasOnPick = true, .canvasOnOpening = true}, scene.box);
    scene.column->addLayout(groups::makeRow(
        {groups::makeLabel("Scene >", scene.box, "label3"), scene_->list, scene_->thumbnail},
        scene_->list));

    column()->addWidget(tabs_);
    column()->addWidget(pointer_->frame);
    column()->addWidget(scene.box);
    addButtonRow(column(),
                 {{"Command1", "OK", [this] { accept(); }, forms::FormButton::Role::byEnter},
                  {"Command3", "Help", help, forms::FormButton::Role::help}});

    connect(pointer_, &groups::PointerChoice::picked, this, &directionprop::Combo1_Click);
    connect(scene_, &groups::SceneChoice::picked, this, &directionprop::combo2_Click);
}

void directionprop::filled() {
    if (CurObj_ == 0 || house_.tools.project.ProjectLoading) {
        return;
    }
    tabs_->setCurrentIndex(CurObj_ - 1);
    ShowDirection(tabs_->tabText(CurObj_ - 1));
    connect(tabs_, &QTabBar::currentChanged, this, [this](int tab) {
        ShowDirection(tabs_->tabText(tab));
        scene_->tellMissing();
    });
}

void directionprop::ShowDirection(const QString& direction) {
    for (int tab = 0; tab < tabs_->count(); ++tab) {
        if (tabs_->tabText(tab) == direction) {
            CurObj_ = tab + 1;
        }
    }
    const store::EdgeLink& link = house_.scene.link(side());
    pointer_->choose(link.pointer);
    scene_->list->choose(link.target);
    scene_->refresh(true);
}

void directionprop::Combo1_Click(int pointer) {
    if (CurObj_ == 0) {
        return;
    }
    house_.scene.link(side()).pointer = static_cast<std::int16_t>(pointer);
}

void directionprop::combo2_Click(int scene) {
    if (CurObj_ == 0) {
        return;
    }
    store::EdgeLink& link = house_.scene.link(side());
    link.target = static_cast<std::int16_t>(scene);
    if (scene == 0) {
        link.pointer = 0;
    } else if (link.pointer == 0) {
        link.pointer = kDirections.at(static_cast<std::size_t>(CurObj_ - 1)).pointer;
    }
    pointer_->choose(link.pointer);
    house_.view.followLinkTarget(side());
}

}  // namespace quorvel::objects
