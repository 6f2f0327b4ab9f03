#include "forms/option_text.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QRadioButton>

namespace quorvel::forms {

OptionText::OptionText(const QString& caption, QWidget* parent)
    : QWidget(parent), button_(new QRadioButton(this)), label_(new QLabel(caption, this)) {
    button_->setAccessibleName(caption);
    label_->setWordWrap(true);
    label_->setBuddy(button_);
    label_->installEventFilter(this);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(button_, 0, Qt::AlignTop);
    row->addWidget(label_, 1);
}

bool OptionText::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        button_->setFocus();
        button_->click();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void OptionText::group(QObject* owner, const std::vector<QRadioButton*>& options) {
    auto* group = new QButtonGroup(owner);
    for (QRadioButton* option : options) {
        group->addButton(option);
    }
}

void OptionText::clear(const std::vector<QRadioButton*>& options) {
    QButtonGroup* group = options.empty() ? nullptr : options.front()->group();
    if (group == nullptr) {
        return;
    }
    // An exclusive group would keep one option on.
    group->setExclusive(false);
    for (QRadioButton* option : options) {
        option->setChecked(false);
    }
    group->setExclusive(true);
}

}  // namespace quorvel::forms
