#include "shell/quick_tip.h"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

#include "forms/look.h"
#include "shell/tip_text.h"

namespace quorvel::shell {
namespace {

/// What a tip that is turned off has for its value.
const QString kOff = QStringLiteral("1");

QCheckBox* addCheck(QVBoxLayout* column, const QString& name, const QString& caption) {
    auto* check = new QCheckBox(caption);
    check->setObjectName(name);
    column->addWidget(check);
    return check;
}

}  // namespace

bool isQuickTipOn(const EditorSettings& settings, int number) {
    return settings.ReadRegValue(kNoTipsAtAll) != kOff &&
           settings.ReadRegValue(kNoTip + QString::number(number)) != kOff;
}

QuickTip::QuickTip(int number, EditorSettings& settings, forms::Boxes& boxes, QWidget* parent)
    : Form(QStringLiteral("QuickTip"), QStringLiteral("Quick Tip"), parent),
      number_(number),
      settings_(settings),
      boxes_(boxes) {
    QVBoxLayout* column = makeColumn();
    tipText_ = addTipText(column, QStringLiteral("TipText"));
    showTipText(*tipText_, {quickTipText(number)}, quickTipText(number));
    column->addStretch();
    noMoreTip_ = addCheck(column, QStringLiteral("NoMoreTip"),
                          QStringLiteral("Don't show me this Quick Tip again"));
    tipsOff_ = addCheck(column, QStringLiteral("TipsOFF"),
                        QStringLiteral("Don't show me ANY Quick Tips again"));
    connect(tipsOff_, &QCheckBox::clicked, this, [this](bool on) {
        if (on) {
            TipsOFF_Click();
        }
    });
    addButtonRow(column, {{"Command1", "OK", [this] { Command1_Click(); },
                           forms::FormButton::Role::byEnter}});
}

void QuickTip::TipsOFF_Click() {
    boxes_.show({.text = QStringLiteral(
                     "Choosing this option will turn off all Quick Tips.  If you are new to "
                     "Quorvel, it is recommended that you leave them on for a while.  Should you "
                     "decide to turn them back on later, you can do so in the 'Editor Options' "
                     "window."),
                 .title = QStringLiteral("Quick Tips")});
}

void QuickTip::Command1_Click() {
    if (noMoreTip_->isChecked()) {
        settings_.turnOffQuickTip(number_);
    }
    if (tipsOff_->isChecked()) {
        settings_.turnOffAllQuickTips();
    }
    accept();
}

}  // namespace quorvel::shell
