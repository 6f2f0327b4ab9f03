#include "groups/pages.h"

#include "forms/form.h"

namespace quorvel::groups {

Pages::Pages(QWidget* parent)
    : QWidget(parent), bar_(new QTabBar(this)), stack_(new QStackedWidget(this)) {
    bar_->setObjectName(QStringLiteral("Pages"));
    bar_->setAccessibleName(QStringLiteral("Pages"));
    bar_->setExpanding(false);
    bar_->setDrawBase(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(forms::kFormSpacing);
    column->addWidget(bar_);
    column->addWidget(stack_, 1);
    connect(bar_, &QTabBar::currentChanged, stack_, &QStackedWidget::setCurrentIndex);
}

QVBoxLayout* Pages::addPage(const char* caption) {
    auto* page = new QWidget(stack_);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(forms::kFormSpacing);
    stack_->addWidget(page);
    bar_->addTab(QString::fromLatin1(caption));
    return column;
}

void Pages::reveal(const QWidget& widget) {
    for (int i = 0; i < stack_->count(); ++i) {
        if (stack_->widget(i)->isAncestorOf(&widget)) {
            bar_->setCurrentIndex(i);
        }
    }
}

}  // namespace quorvel::groups
