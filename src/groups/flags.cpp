#include "groups/flags.h"

#include <QBoxLayout>

namespace quorvel::groups {
NumberBox* makeNumber(Sheet& sheet, NumberRule rule, const char* name, const char* spoken,
                      QWidget* parent) {
    auto* box = new NumberBox(rule, sheet.tools().beep, parent);
    box->setObjectName(QString::fromLatin1(name));
    box->setAccessibleName(QString::fromLatin1(spoken));
    QObject::connect(box, &QLineEdit::textChanged, &sheet, &Sheet::touch);
    return box;
}

FlagTest::FlagTest(Sheet& sheet, const Names& names, QWidget* parent)
    : QObject(parent),
      flag(makeNumber(sheet, names.rule, names.flag, "Flag", parent)),
      comparison(makeList(QString::fromLatin1(names.comparison), QStringLiteral("Comparison"),
                          comparisons(), parent)),
      value(makeNumber(sheet, NumberRule::value, names.value, "Value", parent)),
      label_(makeLabel(names.caption, parent, names.label)) {
    label_->setBuddy(flag);
    flag->setToolTip(QStringLiteral("(1-255)"));
    flag->setText(QStringLiteral("1"));
    value->setText(QStringLiteral("0"));
    connect(flag, &NumberBox::typed, this, &FlagTest::used);
    connect(value, &NumberBox::typed, this, &FlagTest::used);
    connect(comparison, &QComboBox::activated, this, [this, &sheet] {
        Q_EMIT used();
        sheet.touch();
    });
}

void FlagTest::addTo(QBoxLayout* row) {
    row->addWidget(label_);
    row->addWidget(flag);
    row->addWidget(comparison);
    row->addWidget(value);
}

FlagSet::FlagSet(Sheet& sheet, const Names& names, QWidget* parent)
    : QObject(parent), ticking_(names.ticking) {
    const Frame made = makeFrame(names.frame, names.frameCaption, parent);
    frame = made.box;
    if (*names.on != '\0') {
        on = makeWrapCheck(names.on, names.caption, frame);
        made.column->addWidget(on);
        connect(on, &QCheckBox::clicked, this, [this, &sheet] {
            sheet.touch();
            Q_EMIT ticked();
        });
    }
    flag = makeNumber(sheet, names.rule, names.flag, "Flag", frame);
    flag->setToolTip(QStringLiteral("(1-255)"));
    flag->setText(QStringLiteral("1"));
    value = makeNumber(sheet, NumberRule::value, names.value, "Value", frame);
    value->setText(QStringLiteral("0"));
    add = makeCheck(names.add, "ADD value to flag", frame);
    QLabel* flagLabel = makeLabel("Flag", frame);
    flagLabel->setBuddy(flag);
    QLabel* valueLabel = makeLabel("Value", frame);
    valueLabel->setBuddy(value);
    made.column->addLayout(makeRow({flagLabel, flag, valueLabel, value, add}));
    connect(flag, &NumberBox::typed, this, &FlagSet::tick);
    connect(value, &NumberBox::typed, this, &FlagSet::tick);
    connect(add, &QCheckBox::clicked, this, [this, &sheet] {
        tick();
        sheet.touch();
    });
}

void FlagSet::tick() {
    if (on != nullptr && ticking_ == Ticking::byNumbersAndAdd) {
        on->setChecked(true);
        Q_EMIT ticked();
    }
}

Visibility::Visibility(Sheet& sheet, const Names& names, QWidget* parent) : QObject(parent) {
    const Frame made = makeFrame(names.frame, names.caption, parent);
    frame = made.box;
    options = new OptionGroup(names.options, kAlways, {"Always visible", "Visible when:"}, frame);
    test = new FlagTest(sheet, names.test, frame);
    made.column->addWidget(options->option(kAlways));
    auto* row = new QHBoxLayout;
    row->addWidget(options->option(kWhen));
    test->addTo(row);
    row->addStretch();
    made.column->addLayout(row);
    connect(options, &OptionGroup::clicked, &sheet, &Sheet::touch);
    connect(test, &FlagTest::used, this, [this] { options->choose(kWhen); });
}

}  // namespace quorvel::groups
