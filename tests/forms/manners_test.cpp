// What all controls and windows do alike. The program's style teaches it, so no window here asks
// for it.
#include "forms/manners.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>

#include "forms/events.h"
#include "forms/form.h"
#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

/// A modal window with controls in a part that scrolls, and a button below it.
class LongWindow : public forms::Form {
  public:
    LongWindow() : Form(QStringLiteral("long"), QStringLiteral("Long"), nullptr) {
        auto* column = new QVBoxLayout(this);
        auto* inside = new QWidget;
        auto* rows = new QVBoxLayout(inside);
        list->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        list->setCurrentIndex(1);
        slider->setValue(50);
        number->setValue(50);
        for (QWidget* one : std::initializer_list<QWidget*>{list, slider, number, line}) {
            one->setMinimumHeight(100);
            rows->addWidget(one);
        }
        area->setWidget(inside);
        area->setWidgetResizable(true);
        area->setFixedHeight(150);
        column->addWidget(area);
        column->addWidget(foot);
        foot->setAutoDefault(false);
    }
    QComboBox* list = new QComboBox;
    QSlider* slider = new QSlider(Qt::Horizontal);
    QSpinBox* number = new QSpinBox;
    QLineEdit* line = new QLineEdit(QStringLiteral("text"));
    QScrollArea* area = new QScrollArea;
    QPushButton* foot = new QPushButton(QStringLiteral("Foot"));
};

class Manners : public ::testing::Test {
  protected:
    Manners() {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(waitUntil([this] { return window.isActiveWindow(); }));
    }
    [[nodiscard]] int scrolled() const { return window.area->verticalScrollBar()->value(); }
    /// Turns the wheel towards the author over `widget`, in the way that the system tells it.
    void turnWheel(QWidget* widget) {
        const QPoint at = widget->rect().center();
        const QPoint inWindow = widget->mapTo(&window, at);
        QWheelEvent wheel(inWindow, window.mapToGlobal(inWindow), {}, QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        // Only what comes from the system goes on to what lies below.
        QSpontaneKeyEvent::setSpontaneous(&wheel);
        qApp->notify(widget, &wheel);
    }
    LongWindow window;
};

TEST_F(Manners, AWheelOverAControlInPassingScrollsTheWindow) {
    window.foot->setFocus();
    int before = scrolled();
    turnWheel(window.list);
    EXPECT_EQ(window.list->currentIndex(), 1);
    EXPECT_GT(scrolled(), before);
    before = scrolled();
    turnWheel(window.slider);
    EXPECT_EQ(window.slider->value(), 50);
    EXPECT_GT(scrolled(), before);
    before = scrolled();
    turnWheel(window.number);
    EXPECT_EQ(window.number->value(), 50);
    EXPECT_GT(scrolled(), before);
    for (const QWidget* one : std::initializer_list<QWidget*>{window.list, window.number}) {
        EXPECT_EQ(one->focusPolicy(), Qt::StrongFocus) << "a wheel does not give it the keyboard";
    }
}

TEST_F(Manners, AControlWithTheKeyboardFollowsTheWheel) {
    window.list->setFocus();
    turnWheel(window.list);
    EXPECT_EQ(window.list->currentIndex(), 2);
    window.slider->setFocus();
    turnWheel(window.slider);
    EXPECT_NE(window.slider->value(), 50);
    window.number->setFocus();
    turnWheel(window.number);
    EXPECT_NE(window.number->value(), 50);
}

TEST_F(Manners, PageKeysScrollFromWhereverTheKeyboardIs) {
    for (QWidget* one : std::initializer_list<QWidget*>{window.line, window.foot}) {
        window.area->verticalScrollBar()->setValue(0);
        one->setFocus();
        window.area->verticalScrollBar()->setValue(0);
        QTest::keyClick(one, Qt::Key_PageDown);
        EXPECT_GT(scrolled(), 0);
        QTest::keyClick(one, Qt::Key_PageUp);
        EXPECT_EQ(scrolled(), 0);
    }
    window.foot->setFocus();
    QTest::keyClick(window.foot, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(scrolled(), 0) << "another key";
}

TEST_F(Manners, PageKeysThatAControlTakesAreItsOwn) {
    window.slider->setFocus();
    window.area->verticalScrollBar()->setValue(0);
    QTest::keyClick(window.slider, Qt::Key_PageUp);
    EXPECT_NE(window.slider->value(), 50);
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(Manners, ABoxThatIsOnlyReadIsNoStopOfTheTabKey) {
    EXPECT_EQ(window.line->focusPolicy(), Qt::StrongFocus);
    window.line->setReadOnly(true);
    window.number->setFocus();
    QTest::keyClick(window.number, Qt::Key_Tab);
    EXPECT_TRUE(window.foot->hasFocus());
    QTest::mouseClick(window.line, Qt::LeftButton);
    EXPECT_TRUE(window.line->hasFocus());
    EXPECT_EQ(window.line->selectedText(), QStringLiteral("text"));
    window.line->setReadOnly(false);
    window.number->setFocus();
    QTest::keyClick(window.number, Qt::Key_Tab);
    EXPECT_TRUE(window.line->hasFocus());
}

TEST_F(Manners, AClickLeavesWhatIsWrittenInAnyOtherBox) {
    QTest::mouseClick(window.line, Qt::LeftButton);
    EXPECT_FALSE(window.line->hasSelectedText());
}

TEST_F(Manners, PartOfAReadOnlyTextCanBeSelected) {
    window.line->setReadOnly(true);
    window.area->ensureWidgetVisible(window.line);
    const QPoint from(window.line->fontMetrics().horizontalAdvance(QStringLiteral("te")) + 6, 50);
    QTest::mousePress(window.line, Qt::LeftButton, {}, from);
    QTest::mouseMove(window.line, QPoint(window.line->width() - 4, 50));
    QTest::mouseRelease(window.line, Qt::LeftButton, {}, QPoint(window.line->width() - 4, 50));
    EXPECT_EQ(window.line->selectedText(), QStringLiteral("xt"));
}

TEST_F(Manners, AModalWindowDoesNotStayMinimised) {
    EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    window.setWindowState(Qt::WindowMinimized);
    EXPECT_TRUE(waitUntil([this] { return !window.isMinimized(); }));
    EXPECT_TRUE(window.isVisible());

    QMessageBox box(QMessageBox::Warning, QStringLiteral("Title"), QStringLiteral("Text"));
    box.setModal(true);
    box.show();
    EXPECT_FALSE(box.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    box.setWindowState(Qt::WindowMinimized);
    EXPECT_TRUE(waitUntil([&box] { return !box.isMinimized(); }));
}

TEST_F(Manners, OtherWindowsCanBeMinimised) {
    QWidget other;
    other.show();
    other.setWindowState(Qt::WindowMinimized);
    forms::letEventsRun();
    EXPECT_TRUE(other.isMinimized());
}

TEST_F(Manners, AModalWindowGoesWithTheOneBelowIt) {
    QWidget below;
    below.show();
    QDialog above(&below);
    above.setModal(true);
    above.show();
    below.setWindowState(Qt::WindowMinimized);
    above.setWindowState(Qt::WindowMinimized);
    forms::letEventsRun();
    EXPECT_TRUE(above.isMinimized());
    above.close();
}

}  // namespace
}  // namespace quorvel::test
