#include "shell/side_panel.h"

#include <algorithm>

#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QVBoxLayout>

#include "forms/wrap_button.h"

namespace quorvel::shell {
namespace {

constexpr int kWidth = 92;

QPushButton* wrapButton(QWidget* parent, const char* name, const char* caption,
                        const char* toolTip) {
    auto* button = new forms::WrapButton(QString::fromLatin1(caption), parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(QString::fromLatin1(toolTip));
    button->setEnabled(false);
    return button;
}

QPushButton* arrowButton(QWidget* parent, const char* name, const char* caption,
                         const char* toolTip) {
    auto* button = new QPushButton(QString::fromLatin1(caption), parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(QString::fromLatin1(toolTip));
    button->setAccessibleName(QString::fromLatin1(toolTip));
    button->setEnabled(false);
    // The style's minimum width would not let two of them stand side by side.
    button->setMinimumWidth(16);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return button;
}

QPushButton* alertButton(QWidget* parent, const char* name, const char* caption) {
    QPushButton* button = wrapButton(parent, name, caption, "Click for details...");
    button->setIcon(parent->style()->standardIcon(QStyle::SP_MessageBoxWarning));
    button->setIconSize({20, 20});
    button->setEnabled(true);
    button->hide();
    return button;
}

/// Dark on amber, in any look.
QLabel* warningSign(QWidget* parent, const char* name, const char* caption, const char* toolTip) {
    auto* sign = new QLabel(QString::fromLatin1(caption), parent);
    sign->setObjectName(QString::fromLatin1(name));
    sign->setToolTip(QString::fromLatin1(toolTip));
    sign->setAlignment(Qt::AlignCenter);
    sign->setWordWrap(true);
    sign->setMargin(4);
    sign->setAutoFillBackground(true);
    QPalette palette = sign->palette();
    palette.setColor(QPalette::Window, QColor(0xf2, 0xb6, 0x3c));
    palette.setColor(QPalette::WindowText, QColor(0x20, 0x1a, 0x0c));
    sign->setPalette(palette);
    QFont bold = sign->font();
    bold.setBold(true);
    sign->setFont(bold);
    sign->hide();
    return sign;
}

}  // namespace

SidePanel::SidePanel(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("Picture1"));

    auto* caption = new QLabel(QStringLiteral("Scene #"), this);
    caption->setObjectName(QStringLiteral("Label1"));
    caption->setAlignment(Qt::AlignHCenter);
    CurScene = new QLineEdit(this);
    CurScene->setObjectName(QStringLiteral("CurScene"));
    CurScene->setAlignment(Qt::AlignCenter);
    CurScene->setToolTip(QStringLiteral("Type the number of a scene to jump to it"));
    CurScene->setAccessibleName(QStringLiteral("Scene #"));
    CurScene->setReadOnly(true);
    caption->setBuddy(CurScene);
    QFont large = CurScene->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.4);
    CurScene->setFont(large);

    Command5 = arrowButton(this, "Command5", "<", "Previous Scene");
    Command6 = arrowButton(this, "Command6", ">", "Next Scene");
    Command8 = wrapButton(this, "Command8", "Jump To Scene >", "Drop-Down Scenes List");
    Command7 = wrapButton(this, "Command7", "Jump To Location >", "Drop-Down Locations List");
    RestoreObjs = wrapButton(this, "RestoreObjs", "Restore Object Positions",
                             "Restore objects to their positions when scene was loaded");
    ObjAlert = alertButton(this, "ObjAlert", "Object Position");
    ScnAlert = alertButton(this, "ScnAlert", "Scene Size");
    SaveSign = warningSign(this, "SaveSign", "Scene is not saved",
                           "This scene cannot be saved at the moment: its changes will be lost "
                           "when you leave it or close the project");

    auto* arrows = new QHBoxLayout;
    arrows->setSpacing(4);
    arrows->addWidget(Command5);
    arrows->addWidget(Command6);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 6, 4, 4);
    column->setSpacing(6);
    column->addWidget(caption);
    column->addWidget(CurScene);
    column->addLayout(arrows);
    column->addSpacing(6);
    column->addWidget(Command8);
    column->addWidget(Command7);
    column->addSpacing(6);
    column->addWidget(RestoreObjs);
    column->addStretch();
    column->addWidget(SaveSign);
    column->addWidget(ObjAlert);
    column->addWidget(ScnAlert);
    // Large letters need more than the usual width.
    setFixedWidth(std::max(kWidth, column->minimumSize().width()));
    showSceneNumber(0);
}

void SidePanel::showSceneNumber(int number) {
    CurScene->setText(number == 0 ? QStringLiteral("---") : QString::number(number));
}

void SidePanel::showSavingPossible(bool possible) {
    SaveSign->setVisible(!possible);
}

void SidePanel::disableNavigation() {
    for (QPushButton* button : {Command5, Command6, Command7, Command8}) {
        button->setEnabled(false);
    }
    CurScene->setReadOnly(true);
}

}  // namespace quorvel::shell
