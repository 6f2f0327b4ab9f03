#include "support/windows/window_checks.h"

#include <gtest/gtest.h>
#include <set>
#include <vector>

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

#include "forms/wrap_button.h"
#include "groups/controls.h"

namespace quorvel::test {

QString nameOf(const QWidget& widget) {
    return QStringLiteral("%1 \"%2\"")
        .arg(QString::fromLatin1(widget.metaObject()->className()), widget.objectName());
}

bool isInside(const QWidget& widget) {
    if (widget.objectName().startsWith(QStringLiteral("qt_"))) {
        return true;
    }
    for (const QWidget* parent = widget.parentWidget(); parent != nullptr;
         parent = parent->parentWidget()) {
        if (qobject_cast<const QComboBox*>(parent) != nullptr ||
            parent->objectName().startsWith(QStringLiteral("qt_"))) {
            return true;
        }
    }
    return false;
}

namespace {

std::vector<QWidget*> visibleControls(const QWidget& window) {
    std::vector<QWidget*> controls;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->window() == &window && !isInside(*widget)) {
            controls.push_back(widget);
        }
    }
    return controls;
}

/// The room that a text needs in `widget`, or an empty size when it shows none.
QSize roomForText(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (label->text().isEmpty()) {
            return {};
        }
        if (label->wordWrap()) {
            return {0, label->heightForWidth(label->width())};
        }
        return label->minimumSizeHint();
    }
    if (qobject_cast<const forms::WrapButton*>(&widget) != nullptr ||
        qobject_cast<const groups::WrapCheck*>(&widget) != nullptr) {
        return {widget.minimumSizeHint().width(), widget.heightForWidth(widget.width())};
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return button->text().isEmpty() || qobject_cast<const QToolButton*>(button) != nullptr
                   ? QSize()
                   : button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
    }
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
        return {group->fontMetrics().horizontalAdvance(group->title()), 0};
    }
    return {};
}

}  // namespace

void expectNames(const QWidget& window) {
    for (const QWidget* widget : visibleControls(window)) {
        const bool isControl = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                               qobject_cast<const QComboBox*>(widget) != nullptr ||
                               qobject_cast<const QLineEdit*>(widget) != nullptr ||
                               qobject_cast<const QGroupBox*>(widget) != nullptr;
        const bool ofToolkit = qobject_cast<const QToolButton*>(widget) != nullptr ||
                               qobject_cast<const QMessageBox*>(&window) != nullptr;
        if (isControl && !ofToolkit) {
            EXPECT_FALSE(widget->objectName().isEmpty()) << nameOf(*widget).toStdString();
        }
        if (isControl) {
            QAccessibleInterface* reader =
                QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
            ASSERT_NE(reader, nullptr);
            EXPECT_FALSE(reader->text(QAccessible::Name).trimmed().isEmpty())
                << nameOf(*widget).toStdString() << " says nothing to a screen reader";
        }
    }
}

void expectNoCutText(const QWidget& window) {
    for (const QWidget* widget : visibleControls(window)) {
        const QSize room = roomForText(*widget);
        // The first panel of the status line gives way on purpose.
        if (widget->objectName() == QStringLiteral("StatusBar1(1)")) {
            continue;
        }
        EXPECT_LE(room.width(), widget->width()) << nameOf(*widget).toStdString();
        EXPECT_LE(room.height(), widget->height()) << nameOf(*widget).toStdString();
        const QRect inWindow(widget->mapTo(&window, QPoint()), widget->size());
        bool scrolls = false;
        for (const QWidget* parent = widget->parentWidget(); parent != nullptr;
             parent = parent->parentWidget()) {
            scrolls = scrolls || qobject_cast<const QScrollArea*>(parent) != nullptr;
        }
        if (!scrolls && !room.isEmpty()) {
            EXPECT_TRUE(window.rect().contains(inWindow)) << nameOf(*widget).toStdString();
        }
    }
    // A bar that has no room hides its last entries behind an arrow.
    for (const auto* bar : window.findChildren<QToolBar*>()) {
        const auto* more = bar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
        EXPECT_TRUE(more == nullptr || !more->isVisible()) << "the tool bar is cut";
    }
    for (const auto* bar : window.findChildren<QMenuBar*>()) {
        const auto* more = bar->findChild<QToolButton*>(QStringLiteral("qt_menubar_ext_button"));
        // The folder of the project, the last entry, moves behind the arrow with large letters.
        EXPECT_TRUE(more == nullptr || !more->isVisible() ||
                    qEnvironmentVariableIsSet("QUORVEL_DOUBLE_LETTERS"))
            << "the menu bar is cut";
    }
}

void expectFits(const QWidget& window) {
    const bool isMain = window.objectName() == QStringLiteral("Main");
    if (qEnvironmentVariableIsSet("QUORVEL_DOUBLE_LETTERS")) {
        // Letters that grow while all else stays need a larger screen; there the texts are whole.
        return;
    }
    const QSize screen = kScreen.boundedTo(window.screen()->size());
    const QSize smallest = window.minimumSize().expandedTo(window.minimumSizeHint());
    const QSize size = window.size();
    // The main window fills a small screen and has no frame then.
    const QSize frame = isMain ? QSize(0, kFrame.height()) : kFrame;
    EXPECT_LE(size.width() + frame.width(), screen.width()) << nameOf(window).toStdString();
    EXPECT_LE(size.height() + frame.height(), screen.height()) << nameOf(window).toStdString();
    EXPECT_LE(smallest.width(), screen.width()) << nameOf(window).toStdString();
    EXPECT_LE(smallest.height(), screen.height()) << nameOf(window).toStdString();
    // A window that scrolls keeps the buttons at its foot in sight.
    for (const QPushButton* button : window.findChildren<QPushButton*>()) {
        if (button->isVisible() && button->isDefault()) {
            EXPECT_EQ(button->visibleRegion().boundingRect().size(), button->size())
                << nameOf(*button).toStdString();
        }
    }
}

void expectTabReachesAll(QWidget& window) {
    std::set<const QWidget*> wanted;
    for (const QWidget* widget : visibleControls(window)) {
        if (widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0 &&
            qobject_cast<const QScrollArea*>(widget) == nullptr) {
            const auto* radio = qobject_cast<const QAbstractButton*>(widget);
            // Of a group of options the one that is on takes the Tab key, the arrows do the rest.
            if (radio == nullptr || !radio->autoExclusive() || radio->isChecked()) {
                wanted.insert(widget);
            }
        }
    }
    window.activateWindow();
    std::set<const QWidget*> met;
    const QWidget* first = nullptr;
    for (int i = 0; i < 200; ++i) {
        QTest::keyClick(window.focusWidget() != nullptr ? window.focusWidget() : &window,
                        Qt::Key_Tab);
        const QWidget* now = window.focusWidget();
        if (now == nullptr || now == first) {
            break;
        }
        first = first == nullptr ? now : first;
        met.insert(now);
    }
    for (const QWidget* widget : wanted) {
        EXPECT_TRUE(met.contains(widget)) << nameOf(*widget).toStdString() << " is never reached";
    }
}

}  // namespace quorvel::test
