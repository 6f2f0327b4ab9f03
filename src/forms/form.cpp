#include "forms/form.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>

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
