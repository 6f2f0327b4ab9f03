#include "groups/number_box.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QTest>

#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

using groups::NumberBox;
using groups::NumberRule;

class NumberBoxes : public ::testing::Test {
  protected:
    NumberBox& make(NumberRule rule) {
        box = std::make_unique<NumberBox>(
            rule, [this] { ++beeps; }, &window);
        QObject::connect(box.get(), &NumberBox::typed, [this] { ++typed; });
        other.setParent(&window);
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
        box->show();
        box->setFocus();
        return *box;
    }
    QWidget window;
    QLineEdit other;
    std::unique_ptr<NumberBox> box;
    int beeps = 0;
    int typed = 0;
};

TEST_F(NumberBoxes, AFlagTakesDigitsAndBackspaceAlone) {
    NumberBox& flag = make(NumberRule::flag);
    QTest::keyClicks(&flag, QStringLiteral("1-a2 .x3"));
    EXPECT_EQ(flag.text(), QStringLiteral("123"));
    EXPECT_EQ(beeps, 5);
    EXPECT_EQ(typed, 3);
    QTest::keyClick(&flag, Qt::Key_Backspace);
    QTest::keyClick(&flag, Qt::Key_Home);
    QTest::keyClick(&flag, Qt::Key_Delete);
    EXPECT_EQ(flag.text(), QStringLiteral("2"));
    EXPECT_EQ(beeps, 5);
    EXPECT_EQ(typed, 3) << "taking away ticks nothing";
}

TEST_F(NumberBoxes, AValueTakesTheMinusAnywhere) {
    NumberBox& value = make(NumberRule::value);
    QTest::keyClicks(&value, QStringLiteral("1-2-"));
    EXPECT_EQ(value.text(), QStringLiteral("1-2-"));
    EXPECT_EQ(value.number(), 1) << "the longest number at the beginning";
    EXPECT_EQ(beeps, 0);
    value.setText(QStringLiteral("-40"));
    EXPECT_EQ(value.number(), -40);
    value.clear();
    EXPECT_EQ(value.number(), 0);
}

TEST_F(NumberBoxes, WhatIsPastedObeysTheRule) {
    NumberBox& flag = make(NumberRule::flag);
    QApplication::clipboard()->setText(QStringLiteral("12"));
    flag.paste();
    EXPECT_EQ(flag.text(), QStringLiteral("12"));
    EXPECT_EQ(typed, 1);
    QApplication::clipboard()->setText(QStringLiteral("a lot"));
    flag.paste();
    EXPECT_EQ(flag.text(), QStringLiteral("12"));
    EXPECT_GE(beeps, 1);
}

TEST_F(NumberBoxes, AFlagOutOfRangeBecomesOneWhenTheBoxIsLeft) {
    NumberBox& flag = make(NumberRule::flag);
    int expected = 0;
    for (const char* text : {"", "0", "256", "99999999999999999999"}) {
        flag.setFocus();
        flag.setText(QString::fromLatin1(text));
        other.setFocus();
        EXPECT_EQ(flag.text(), QStringLiteral("1")) << text;
        EXPECT_EQ(beeps, ++expected) << text;
    }
    for (const char* text : {"1", "255"}) {
        flag.setFocus();
        flag.setText(QString::fromLatin1(text));
        other.setFocus();
        EXPECT_EQ(flag.text(), QString::fromLatin1(text));
    }
    EXPECT_EQ(beeps, expected);
}

TEST_F(NumberBoxes, AMenuAndAnotherProgramDoNotCountAsLeaving) {
    NumberBox& flag = make(NumberRule::flag);
    flag.setText(QStringLiteral("256"));
    for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
        QFocusEvent out(QEvent::FocusOut, reason);
        QApplication::sendEvent(&flag, &out);
        EXPECT_EQ(flag.text(), QStringLiteral("256"));
    }
    EXPECT_EQ(beeps, 0);
}

TEST_F(NumberBoxes, OtherBoxesHaveNoRange) {
    for (const NumberRule rule : {NumberRule::freeFlag, NumberRule::digits, NumberRule::value}) {
        NumberBox& any = make(rule);
        any.setText(QStringLiteral("9999"));
        other.setFocus();
        EXPECT_EQ(any.text(), QStringLiteral("9999"));
    }
    EXPECT_EQ(beeps, 0);
}

}  // namespace
}  // namespace quorvel::test
