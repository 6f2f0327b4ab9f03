// The listener that clears away what a test of windows leaves behind.
#include "support/windows/clean_desk.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QWidget>

namespace quorvel::test {
namespace {

void endTest() {
    CleanDesk().OnTestEnd(*::testing::UnitTest::GetInstance()->current_test_info());
}

TEST(CleanDesk, LetsGoOfButtonsThatAreHeld) {
    QWidget window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QTest::mousePress(window.windowHandle(), Qt::RightButton);
    ASSERT_EQ(QApplication::mouseButtons(), Qt::RightButton);
    window.hide();
    endTest();
    EXPECT_EQ(QApplication::mouseButtons(), Qt::NoButton);
    EXPECT_EQ(QTestPrivate::qtestMouseButtons, Qt::NoButton);
}

TEST(CleanDesk, ClosesPopUps) {
    QMenu outer;
    QMenu* inner = outer.addMenu(QStringLiteral("More"));
    inner->addAction(QStringLiteral("One"));
    outer.popup({10, 10});
    inner->popup({20, 20});
    ASSERT_EQ(QApplication::activePopupWidget(), inner);
    endTest();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST(CleanDesk, FailsATestThatLeavesAWindow) {
    QWidget window;
    window.setObjectName(QStringLiteral("Forgotten"));
    window.show();
    EXPECT_NONFATAL_FAILURE(endTest(), "QWidget \"Forgotten\" is still on the screen");
}

}  // namespace
}  // namespace quorvel::test
