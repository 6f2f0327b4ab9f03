#include "shell/day_tip.h"

#include <QCheckBox>
#include <QLabel>
#include <QShowEvent>
#include <QVBoxLayout>

#include "shell/tip_text.h"

namespace quorvel::shell {
namespace {

const QString kYes = QStringLiteral("Yes");
const QString kNo = QStringLiteral("No");

QStringList allTips() {
    QStringList all;
    for (int tip = 1; tip <= kDayTips; ++tip) {
        all << dayTipText(tip);
    }
    return all;
}

}  // namespace

int nextDayTip(int last) {
    return last < 0 || last >= kDayTips ? 1 : last + 1;
}

frmTip::frmTip(EditorSettings& settings, QWidget* parent)
    : Form(QStringLiteral("frmTip"), QStringLiteral("Tip of the Day"), parent),
      settings_(settings) {
    QVBoxLayout* column = makeColumn();
    auto* heading = new QLabel(QStringLiteral("Did you know..."), this);
    heading->setObjectName(QStringLiteral("Label1"));
    QFont large = heading->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.2);
    heading->setFont(large);
    column->addWidget(heading);
    tipText_ = addTipText(column, QStringLiteral("lblTipText"));
    column->addStretch();
    atStartup_ = new QCheckBox(QStringLiteral("&Show Tips at Startup"), this);
    atStartup_->setObjectName(QStringLiteral("chkLoadTipsAtStartup"));
    column->addWidget(atStartup_);
    connect(atStartup_, &QCheckBox::clicked, this, &frmTip::chkLoadTipsAtStartup_Click);
    addButtonRow(column,
                 {{"cmdNextTip", "&Next Tip", [this] { showTip(nextDayTip(tip_)); }},
                  {"cmdOK", "OK", [this] { cmdOK_Click(); }, forms::FormButton::Role::byEnter}});
}

void frmTip::showBeside() {
    setModal(false);
    show();
    raise();
    activateWindow();
}

void frmTip::showModal() {
    if (isVisible()) {
        raise();
        activateWindow();
        return;
    }
    setModal(true);
    exec();
}

void frmTip::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        atStartup_->setChecked(settings_.TipsAtStart == kYes);
        showTip(nextDayTip(settings_.LastTip));
    }
    Form::showEvent(event);
}

void frmTip::showTip(int number) {
    tip_ = number;
    showTipText(*tipText_, allTips(), dayTipText(number));
}

void frmTip::chkLoadTipsAtStartup_Click(bool on) {
    settings_.TipsAtStart = on ? kYes : kNo;
    settings_.SaveEditorSettings();
}

void frmTip::cmdOK_Click() {
    settings_.LastTip = tip_;
    settings_.SaveEditorSettings();
    accept();
}

}  // namespace quorvel::shell
