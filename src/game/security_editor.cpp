#include "game/security_editor.h"

#include <utility>

#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QShowEvent>
#include <QVBoxLayout>

#include "store/security.h"

namespace quorvel::game {

ProjSecurity::ProjSecurity(store::Project& project, forms::Boxes& boxes,
                           std::function<double()> random, const std::function<void()>& help,
                           QWidget* parent)
    : Form(QStringLiteral("ProjSecurity"), QStringLiteral("Project Security"), parent),
      project_(project),
      boxes_(boxes),
      random_(std::move(random)) {
    build(help);
}

void ProjSecurity::build(const std::function<void()>& help) {
    auto* frame = new QGroupBox(QStringLiteral("Project Security"), this);
    frame->setObjectName(QStringLiteral("Frame1"));
    on_ = new QRadioButton(QStringLiteral("Project Security ON"), frame);
    on_->setObjectName(forms::elementName(QStringLiteral("Option1"), 0));
    off_ = new QRadioButton(QStringLiteral("Project Security OFF"), frame);
    off_->setObjectName(forms::elementName(QStringLiteral("Option1"), 1));
    auto* options = new QVBoxLayout(frame);
    options->addWidget(on_);
    options->addWidget(off_);

    auto* hint = new QLabel(QStringLiteral("For details on what Project Security is, please "
                                           "consult the Help File."),
                            this);
    hint->setObjectName(QStringLiteral("Label1"));
    hint->setWordWrap(true);

    QVBoxLayout* column = makeColumn();
    column->addWidget(frame);
    column->addWidget(hint);
    addButtonRow(
        column, {{"Command1", "OK", [this] { Command1_Click(); }, forms::FormButton::Role::byEnter},
                 {"Command2", "Help", help, forms::FormButton::Role::help}});
    setMinimumWidth(360);

    connect(on_, &QRadioButton::clicked, this, [this] { Option1_Click(0); });
    connect(off_, &QRadioButton::clicked, this, [this] { Option1_Click(1); });
}

void ProjSecurity::showEvent(QShowEvent* event) {
    Form::showEvent(event);
    if (event->spontaneous()) {
        return;
    }
    // Setting a button counts as a click on it, with all that follows.
    const int index = project_.SecurityOn ? 0 : 1;
    (index == 0 ? on_ : off_)->setChecked(true);
    Option1_Click(index);
}

void ProjSecurity::Option1_Click(int index) {
    if (index == 1) {
        project_.SecurityCode = 0;
        return;
    }
    boxes_.show(
        {.text = QStringLiteral(
             "Project Security should only be turned on when you are ready to distribute your "
             "game, and you wish to prevent other Quorvel users from editing your game.  Leaving "
             "it on for no reason at all is not recommended.  Please click the [Help] button for "
             "more information."),
         .title = QStringLiteral("Just so you know..."),
         .icon = forms::Box::Icon::exclamation});
    project_.SecurityCode = static_cast<std::int16_t>(store::kHighestSecurityCode * random_() + 1);
}

void ProjSecurity::Command1_Click() {
    project_.SecurityOn = on_->isChecked();
    accept();
}

}  // namespace quorvel::game
