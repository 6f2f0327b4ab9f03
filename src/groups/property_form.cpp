#include "groups/property_form.h"

#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>

#include "forms/events.h"

namespace quorvel::groups {

using forms::FormButton;

PropertyForm::PropertyForm(const QString& name, const QString& title, const Tools& tools,
                           QWidget* parent)
    : Form(name, title, parent), sheet_(tools) {
    QVBoxLayout* outer = makeColumn();
    content_ = new QWidget(this);
    column_ = new QVBoxLayout(content_);
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(forms::kFormSpacing);
    outer->addWidget(content_, 1);
    connect(&sheet_, &Sheet::roomWanted, this, &PropertyForm::makeRoom);
    connect(&sheet_, &Sheet::roomReturned, this, &PropertyForm::returnRoom);
    connect(&sheet_, &Sheet::touched, this, [this] {
        if (apply_ != nullptr) {
            apply_->setEnabled(true);
        }
    });
}

Pages* PropertyForm::addPages() {
    pages_ = new Pages(content_);
    column_->addWidget(pages_, 1);
    return pages_;
}

void PropertyForm::addButtons(const Buttons& names, const std::function<void()>& help,
                              QLayout* before) {
    auto* row = new QVBoxLayout;
    const auto made =
        addButtonRow(row, {{names.apply, "Apply", [this] { SaveProps(); }},
                           {names.ok, "OK", [this] { saveAndClose(); }, FormButton::Role::byEnter},
                           {names.cancel, "Cancel", [this] { reject(); }},
                           {names.help, "Help", help, FormButton::Role::help}});
    apply_ = made.front();
    apply_->setEnabled(false);
    if (names.restore != nullptr) {
        restoreIt_ = new QPushButton(QStringLiteral("Restore Window"), this);
        restoreIt_->setObjectName(QString::fromLatin1(names.restore));
        restoreIt_->setAutoDefault(false);
        restoreIt_->hide();
        static_cast<QBoxLayout*>(layout())->insertWidget(0, restoreIt_);
        connect(restoreIt_, &QPushButton::clicked, this, &PropertyForm::returnRoom);
    }
    auto* foot = new QHBoxLayout;
    if (before != nullptr) {
        foot->addLayout(before);
    }
    foot->addLayout(row, 1);
    column_->addLayout(foot);
    setFoot(foot);
}

void PropertyForm::showEvent(QShowEvent* event) {
    if (!FormLoaded && !event->spontaneous()) {
        sheet_.load([this] { filled(); });
        Q_EMIT sheet_.activated();
        FormLoaded = true;
        if (apply_ != nullptr) {
            apply_->setEnabled(false);
        }
        // A box that comes now has to lie over the window, which is not on the screen yet.
        QMetaObject::invokeMethod(this, &PropertyForm::tellOpened, Qt::QueuedConnection);
    }
    Form::showEvent(event);
}

void PropertyForm::tellOpened() {
    if (FormLoaded && isVisible()) {
        Q_EMIT sheet_.opened();
    }
}

bool PropertyForm::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && FormLoaded) {
        Q_EMIT sheet_.activated();
    }
    return Form::event(event);
}

bool PropertyForm::SaveProps() {
    sheet_.finishEditing(focusWidget());
    if (const Binding* binding = sheet_.problem()) {
        tellProblem(*binding);
        return false;
    }
    if (!check()) {
        return false;
    }
    if (apply_ != nullptr) {
        apply_->setEnabled(false);
    }
    sheet_.store();
    stored();
    return true;
}

bool PropertyForm::isChanged() {
    // A number that is still being typed counts.
    sheet_.finishEditing(focusWidget());
    return apply_ != nullptr && apply_->isEnabled();
}

bool PropertyForm::saveAndClose() {
    if (isChanged() && !SaveProps()) {
        return false;
    }
    accept();
    return true;
}

void PropertyForm::tellProblem(const Binding& binding) {
    sheet_.tools().boxes.show({.text = binding.problem(), .icon = forms::Box::Icon::exclamation});
    lead(*binding.control());
}

void PropertyForm::lead(QWidget& control) {
    if (pages_ != nullptr) {
        pages_->reveal(control);
    }
    control.setFocus();
    if (auto* box = qobject_cast<QLineEdit*>(&control)) {
        box->selectAll();
    }
}

void PropertyForm::makeRoom() {
    if (restoreIt_ == nullptr) {
        return;
    }
    constexpr int kLowHeight = 55;
    full_ = geometry();
    content_->hide();
    if (standingFoot() != nullptr) {
        standingFoot()->hide();
    }
    restoreIt_->show();
    layout()->activate();
    resize(width(), kLowHeight);
}

void PropertyForm::returnRoom() {
    if (full_.isNull()) {
        return;
    }
    restoreIt_->hide();
    content_->show();
    if (standingFoot() != nullptr) {
        standingFoot()->show();
    }
    resize(full_.size());
    full_ = {};
}

void PropertyForm::done(int result) {
    StopPreviews();
    returnRoom();
    FormLoaded = false;
    Form::done(result);
    closed();
    forms::letEventsRun();
}

}  // namespace quorvel::groups
