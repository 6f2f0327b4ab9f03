#include "groups/pages.h"

#include <QShortcut>

#include "forms/form.h"

namespace quorvel::groups {

void turnByKeys(QTabBar* bar) {
    const auto turn = [bar](std::initializer_list<QKeyCombination> keys, int step) {
        auto* shortcut = new QShortcut(bar);
        shortcut->setKeys({keys.begin(), keys.end()});
        QObject::connect(shortcut, &QShortcut::activated, bar, [bar, step] {
            bar->setCurrentIndex((bar->currentIndex() + step + bar->count()) % bar->count());
        });
    };
    turn({Qt::CTRL | Qt::Key_Tab}, 1);
    // Which of the two it is hangs on the keyboard's driver.
    turn({Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, Qt::CTRL | Qt::SHIFT | Qt::Key_Tab}, -1);
}

Pages::Pages(QWidget* parent)
    : QWidget(parent), bar_(new QTabBar(this)), stack_(new QStackedWidget(this)) {
    bar_->setObjectName(QStringLiteral("Pages"));
    bar_->setAccessibleName(QStringLiteral("Pages"));
    bar_->setExpanding(false);
    bar_->setDrawBase(true);
    turnByKeys(bar_);
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
