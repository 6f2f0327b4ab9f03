#include "groups/item_requirement.h"

#include <QBoxLayout>

namespace quorvel::groups {

ItemRequirement::ItemRequirement(Sheet& sheet, const Names& names, QWidget* parent)
    : QObject(parent) {
    const Frame made = makeFrame(names.frame, "Requires an Item", parent);
    frame = made.box;
    needs = makeCheck(names.needs, "Requires an item ", frame);
    item = new ItemChoice(sheet, names.item, frame);
    keeps = makeCheck(names.keeps, "Player keeps this item", frame);
    failure = new SoundSpec(sheet,
                            {.k = names.failure,
                             .spoken = "Failure sound",
                             .frame = names.failureFrame,
                             .frameCaption = "Failure Sound - No Item (Played only when player "
                                             "tries clicking without an item)"},
                            frame);

    auto* label = makeLabel("Item required >", frame);
    label->setBuddy(item->list);
    auto* row = makeRow({needs, label, item->list, item->icon, keeps});
    row->setSpacing(12);
    made.column->addLayout(row);
    made.column->addWidget(failure->frame);

    connect(needs, &QCheckBox::clicked, &sheet, &Sheet::touch);
    connect(item, &ItemChoice::picked, this,
            [this](int number) { needs->setChecked(number != 0); });
    connect(keeps, &QCheckBox::clicked, this, [this, &sheet] {
        needs->setChecked(true);
        sheet.touch();
    });
    connect(failure, &SoundSpec::fileChosen, this, [this] { needs->setChecked(true); });
}

}  // namespace quorvel::groups
