#include "groups/flags.h"

#include <QBoxLayout>

#include "forms/form.h"

namespace quorvel::groups {
namespace {

NumberBox* makeNumber(Sheet& sheet, NumberRule rule, const char* name, const QString& spoken,
                      QWidget* parent) {
    auto* box = new NumberBox(rule, sheet.tools().beep, parent);
    box->setObjectName(QString::fromLatin1(name));
    box->setAccessibleName(spoken);
    QObject::connect(box, &QLineEdit::textChanged, &sheet, &Sheet::touch);
    return box;
}

}  // namespace

FlagTest::FlagTest(Sheet& sheet, const Names& names, QWidget* parent)
    : QObject(parent),
      flag(makeNumber(sheet, names.rule, names.flag, QStringLiteral("Flag"), parent)),
      comparison(makeList(QString::fromLatin1(names.comparison), QStringLiteral("Comparison"),
                          comparisons(), parent)),
      value(makeNumber(sheet, NumberRule::value, names.value, QStringLiteral("Value"), parent)),
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
    : QObject(parent),
      flag(makeNumber(sheet, names.rule, names.flag, QStringLiteral("Flag"), parent)),
      value(makeNumber(sheet, NumberRule::value, names.value, QStringLiteral("Value"), parent)),
      add(makeCheck(names.add, "ADD value to flag", parent)),
      ticking_(names.ticking) {
    if (*names.on != '\0') {
        on = makeWrapCheck(names.on, names.caption, parent);
        connect(on, &QCheckBox::clicked, this, [this, &sheet] {
            sheet.touch();
            Q_EMIT ticked();
        });
    }
    flag->setToolTip(QStringLiteral("(1-255)"));
    flag->setText(QStringLiteral("1"));
    value->setText(QStringLiteral("0"));
    labels_ = {makeLabel("Flag", parent), makeLabel("Value", parent)};
    labels_[0]->setBuddy(flag);
    labels_[1]->setBuddy(value);
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

void FlagSet::addTo(QVBoxLayout* column) {
    if (on != nullptr) {
        column->addWidget(on);
    }
    auto* row = new QHBoxLayout;
    row->addWidget(labels_[0]);
    row->addWidget(flag);
    row->addWidget(labels_[1]);
    row->addWidget(value);
    row->addSpacing(forms::kFormSpacing);
    row->addWidget(add);
    row->addStretch();
    column->addLayout(row);
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
