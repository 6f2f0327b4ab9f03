#include "groups/choices.h"

#include <QBoxLayout>

#include "groups/project_pictures.h"

namespace quorvel::groups {
namespace {

constexpr int kGroups = 10;

QStringList pointers(bool hotSpot) {
    QStringList names;
    for (const char* one : {"(NORMAL)", "UP", "DOWN", "LEFT", "RIGHT", "UP-LEFT", "UP-RIGHT",
                            "DOWN-LEFT", "DOWN-RIGHT", "EXIT"}) {
        names << name(one);
    }
    if (hotSpot) {
        names << QStringLiteral("HOTSPOT");
    }
    return names;
}

forms::RecordList* makeRecordList(const char* list, const QString& spoken,
                                  forms::RecordListModel& records, QWidget* parent) {
    auto* made = new forms::RecordList(name(list), records, QStringLiteral("(None)"), parent);
    made->setAccessibleName(spoken);
    return made;
}

}  // namespace

SceneChoice::SceneChoice(Sheet& sheet, const Names& names, QWidget* parent)
    : QObject(parent),
      list(makeRecordList(names.list, QStringLiteral("Scene"), sheet.tools().lists.scenes, parent)),
      thumbnail(new PictureBox(name(names.thumbnail), QStringLiteral("Picture of the scene"),
                               kThumbnail, parent)),
      sheet_(sheet) {
    connect(list, &QComboBox::activated, this, [this, onCanvas = names.canvasOnPick] {
        refresh(onCanvas);
        Q_EMIT picked(list->chosen().value_or(0));
        sheet_.touch();
        tellMissing();
    });
    connect(&sheet, &Sheet::activated, this,
            [this, onCanvas = names.canvasOnOpening] { refresh(onCanvas); });
    connect(&sheet, &Sheet::opened, this, &SceneChoice::tellMissing);
}

void SceneChoice::refresh(bool onCanvas) {
    thumbnail->setPicture(scenePicture(sheet_.tools(), list->chosen().value_or(0), onCanvas));
}

void SceneChoice::tellMissing() {
    if (linkedPictureMissing(sheet_.tools(), list->chosen().value_or(0))) {
        sheet_.tools().boxes.tell(
            QStringLiteral("Could not show preview of linked scene.  The file is missing."));
    }
}

PointerChoice::PointerChoice(Sheet& sheet, const Names& names, QWidget* parent)
    : QObject(parent), sheet_(sheet) {
    const Frame made = makeFrame(names.frame, "Mousepointer", parent);
    frame = made.box;
    list =
        makeList(name(names.list), QStringLiteral("Mousepointer"), pointers(names.hotSpot), frame);
    preview = new PictureBox(name(names.preview), QStringLiteral("Picture of the mousepointer"),
                             kIcon, frame);
    made.column->addLayout(makeRow({list, preview}, list));
    connect(list, &QComboBox::activated, this, [this](int index) {
        refresh();
        Q_EMIT picked(index);
        sheet_.touch();
    });
    connect(&sheet, &Sheet::activated, this, &PointerChoice::refresh);
}

void PointerChoice::choose(int index) {
    list->setCurrentIndex(index);
    refresh();
}

void PointerChoice::refresh() {
    preview->setPicture(pointerPicture(sheet_.tools(), list->currentIndex()));
}

ItemChoice::ItemChoice(Sheet& sheet, const Names& names, QWidget* parent)
    : QObject(parent),
      list(makeRecordList(names.list, QStringLiteral("Item"), sheet.tools().lists.items, parent)),
      icon(new PictureBox(name(names.icon), QStringLiteral("Icon of the item"), kIcon, parent)),
      sheet_(sheet) {
    connect(list, &QComboBox::activated, this, [this] {
        refresh();
        Q_EMIT picked(list->chosen().value_or(0));
        sheet_.touch();
    });
    connect(&sheet, &Sheet::activated, this, &ItemChoice::refresh);
}

void ItemChoice::refresh() {
    icon->setPicture(itemIcon(sheet_.tools(), list->chosen().value_or(0)));
}

MapLocation::MapLocation(Sheet& sheet, const Names& names, QWidget* parent)
    : QObject(parent),
      check(makeWrapCheck(names.check, names.caption, parent)),
      list(makeRecordList(names.list, QStringLiteral("Location"), sheet.tools().lists.locations,
                          parent)),
      label_(makeLabel("Location #", parent)) {
    label_->setBuddy(list);
    connect(check, &QCheckBox::clicked, this, [this, &sheet] {
        sheet.touch();
        Q_EMIT ticked();
    });
    connect(list, &QComboBox::activated, this, [this, &sheet] {
        check->setChecked(list->chosen().value_or(0) != 0);
        sheet.touch();
        Q_EMIT ticked();
    });
}

void MapLocation::addTo(QVBoxLayout* column) {
    column->addWidget(check);
    auto* row = new QHBoxLayout;
    row->addWidget(label_);
    row->addWidget(list, 1);
    column->addLayout(row);
}

Grouping::Grouping(Sheet& sheet, QWidget* parent)
    : QObject(parent), label(makeLabel("Grouping >", parent, "Label4")) {
    QStringList entries{QStringLiteral("Independent")};
    for (int group = 1; group <= kGroups; ++group) {
        entries << QStringLiteral("Group %1").arg(group);
    }
    list = makeList(QStringLiteral("Combo3"), QStringLiteral("Grouping"), entries, parent);
    label->setBuddy(list);
    connect(list, &QComboBox::activated, &sheet, &Sheet::touch);
}

}  // namespace quorvel::groups
