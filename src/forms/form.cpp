#include "forms/form.h"

#include <algorithm>

#include <QBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QShowEvent>
#include <QStyle>
#include <QVBoxLayout>

namespace quorvel::forms {

Form::Form(const QString& name, const QString& title, QWidget* parent) : QDialog(parent) {
    setObjectName(name);
    setWindowTitle(title);
    setModal(true);
}

bool Form::event(QEvent* event) {
    const bool isDone = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest && isVisible()) {
        growWithContent();
    }
    return isDone;
}

int Form::heightOfContent() const {
    const QLayout* content = layout();
    if (content == nullptr) {
        return 0;
    }
    return content->hasHeightForWidth() ? content->totalHeightForWidth(width())
                                        : content->totalMinimumSize().height();
}

/// Something came into the window that was not in it before, such as a line below a box. A window
/// that is lower than it was made here, by the author or for a movie, stays as it is; one that the
/// screen has no room for scrolls from then on, also where its layout has made it higher already.
void Form::growWithContent() {
    const int needed = heightOfContent();
    const bool isMore = needed > contentHeight_;
    contentHeight_ = std::max(contentHeight_, needed);
    if (!isMore || height() < givenHeight_ || screen() == nullptr) {
        return;
    }
    const QRect area = screen()->availableGeometry();
    const QSize room = area.size() - kFrameRoom;
    QSize wanted(width(), std::max(needed, height()));
    if (scroll_ == nullptr && needed > room.height()) {
        letContentScroll();
        wanted.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, scroll_);
    }
    resize(wanted.boundedTo(room));
    givenHeight_ = height();
    const int below = frameGeometry().bottom() - area.bottom();
    if (below > 0) {
        move(x(), std::max(area.top(), y() - below));
    }
}

void Form::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    // The screen of the window that opened it; its own is where it was seen last.
    const QScreen* home = parentWidget() != nullptr ? parentWidget()->screen() : screen();
    if (event->spontaneous() || home == nullptr) {
        return;
    }
    const QRect area = home->availableGeometry();
    const QSize room = area.size() - kFrameRoom;
    // Not adjustSize: that gives a window at most two thirds of the screen and squeezes its rows.
    QSize wanted = sizeHint().expandedTo(minimumSize());
    if (scroll_ == nullptr && wanted != wanted.boundedTo(room)) {
        letContentScroll();
    }
    if (scroll_ != nullptr) {
        const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, scroll_);
        const QSize content = scroll_->widget()->sizeHint() + QSize(bar, 0);
        wanted = QSize(std::max(content.width(), standingFoot_->sizeHint().width()),
                       content.height() + standingFoot_->sizeHint().height());
    }
    resize(wanted.boundedTo(room));
    contentHeight_ = heightOfContent();
    givenHeight_ = height();
    const QSize size = frameGeometry().size();
    const bool large = area.width() > 800 && area.height() > 600;
    move(area.left() + (area.width() - size.width()) / 2,
         large ? area.top() + (area.height() - size.height()) / 2 : area.top());
}

void Form::letContentScroll() {
    QWidget* keyboard = focusWidget();
    standingFoot_ = new QWidget(this);
    auto* foot = new QVBoxLayout(standingFoot_);
    foot->setContentsMargins(kFormMargin, kFormSpacing, kFormMargin, kFormMargin);
    if (foot_ != nullptr) {
        static_cast<QLayout*>(foot_->parent())->removeItem(foot_);
        foot->addLayout(foot_);
    } else {
        foot->setContentsMargins({});
    }
    scroll_ = new QScrollArea(this);
    scroll_->setObjectName(QStringLiteral("WindowContent"));
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setWidgetResizable(true);
    auto* content = new QWidget;
    content->setLayout(layout());
    scroll_->setWidget(content);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(scroll_, 1);
    column->addWidget(standingFoot_);
    setMinimumSize(0, 0);
    scroll_->show();
    standingFoot_->show();
    if (keyboard != nullptr) {
        keyboard->setFocus();
    }
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
    setFoot(row);
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
