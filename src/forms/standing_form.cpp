#include "forms/standing_form.h"

#include <QCloseEvent>

namespace quorvel::forms {

StandingForm::StandingForm(const QString& name, const QString& title, QWidget* parent)
    : Form(name, title, parent) {
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
}

void StandingForm::closeEvent(QCloseEvent* event) {
    event->ignore();
}

}  // namespace quorvel::forms
