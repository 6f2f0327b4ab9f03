#include "forms/form.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>

namespace quorvel::forms {

Form::Form(const QString& name, const QString& title, QWidget* parent) : QDialog(parent) {
    setObjectName(name);
    setWindowTitle(title);
    setModal(true);
}

void Form::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (event->spontaneous() || screen() == nullptr) {
        return;
    }
    const QRect area = screen()->availableGeometry();
    // Not adjustSize: that gives a window at most two thirds of the screen and squeezes its rows.
    resize(sizeHint().expandedTo(minimumSize()).boundedTo(area.size()));
    const QSize size = frameGeometry().size();
    const bool large = area.width() > 800 && area.height() > 600;
    move(area.left() + (area.width() - size.width()) / 2,
         large ? area.top() + (area.height() - size.height()) / 2 : area.top());
}

QVBoxLayout* Form::makeColumn() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kFormMargin, kFormMargin, kFormMargin, kFormMargin);
    column->setSpacing(kFormSpacing);
    return column;
}

std::vector<QPushButton*> Form::addButtonRow(QVBoxLayout* column,
                                             const std::vector<FormButton>& buttons) {
    auto* row = new QHBoxLayout;
    row->addStretch();
    std::vector<QPushButton*> made;
    for (const FormButton& spec : buttons) {
        QPushButton* button =
            addButton(row, QString::fromLatin1(spec.name), QString::fromLatin1(spec.caption));
        const bool byEnter = spec.role == FormButton::Role::byEnter;
        button->setAutoDefault(byEnter);
        button->setDefault(byEnter);
        if (spec.role == FormButton::Role::help) {
            button->setShortcut(Qt::Key_F1);
        }
        button->setEnabled(spec.onClick != nullptr);
        if (spec.onClick) {
            connect(button, &QPushButton::clicked, this, spec.onClick);
        }
        made.push_back(button);
    }
    column->addLayout(row);
    return made;
}

QPushButton* Form::addButton(QBoxLayout* row, const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    row->addWidget(button);
    return button;
}

QString elementName(const QString& name, int index) {
    return QStringLiteral("%1(%2)").arg(name, QString::number(index));
}

}  // namespace quorvel::forms
