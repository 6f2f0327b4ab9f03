// The boxes that an author sees, really shown.
#include "forms/boxes.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

using forms::Answer;
using forms::Box;

const QString kBox = QStringLiteral("Box");

/// Shows `box`, lets `author` use it and returns the answer.
Answer answerOf(const Box& box, const std::function<void(QMessageBox&)>& author) {
    forms::MessageBoxes boxes;
    Answer answer{};
    withWindow(
        kBox, [&] { answer = boxes.show(box); },
        [&](QWidget& window) { author(dynamic_cast<QMessageBox&>(window)); });
    return answer;
}

void escape(QMessageBox& box) {
    QTest::keyClick(&box, Qt::Key_Escape);
}

TEST(Boxes, EscapeAnswersForTheAuthor) {
    EXPECT_EQ(answerOf({.text = QStringLiteral("t")}, escape), Answer::ok);
    EXPECT_EQ(answerOf({.text = QStringLiteral("t"), .buttons = Box::Buttons::okCancel}, escape),
              Answer::cancel);
    EXPECT_EQ(answerOf({.text = QStringLiteral("t"), .buttons = Box::Buttons::yesNo}, escape),
              Answer::no);
}

TEST(Boxes, TheFrameAnswersAsEscapeDoes) {
    const auto close = [](QMessageBox& box) { box.close(); };
    EXPECT_EQ(answerOf({.text = QStringLiteral("t")}, close), Answer::ok);
    EXPECT_EQ(answerOf({.text = QStringLiteral("t"), .buttons = Box::Buttons::okCancel}, close),
              Answer::cancel);
    EXPECT_EQ(answerOf({.text = QStringLiteral("t"), .buttons = Box::Buttons::yesNo}, close),
              Answer::no);
}

TEST(Boxes, EachButtonAnswers) {
    const auto press = [](QMessageBox::StandardButton button) {
        return [button](QMessageBox& box) { box.button(button)->click(); };
    };
    const Box question{.text = QStringLiteral("t"), .buttons = Box::Buttons::yesNo};
    const Box choice{.text = QStringLiteral("t"), .buttons = Box::Buttons::okCancel};
    EXPECT_EQ(answerOf(question, press(QMessageBox::Yes)), Answer::yes);
    EXPECT_EQ(answerOf(question, press(QMessageBox::No)), Answer::no);
    EXPECT_EQ(answerOf(choice, press(QMessageBox::Ok)), Answer::ok);
    EXPECT_EQ(answerOf(choice, press(QMessageBox::Cancel)), Answer::cancel);
    EXPECT_EQ(answerOf({.text = QStringLiteral("t")}, press(QMessageBox::Ok)), Answer::ok);
}

TEST(Boxes, TextIsShownAsItIs) {
    const QString text = QStringLiteral("<b>A & B</b>\n\n%1 &amp; two");
    answerOf({.text = text, .title = QStringLiteral("Old <i>Settings</i>")}, [&](QMessageBox& box) {
        EXPECT_EQ(box.text(), text);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Old <i>Settings</i>"));
        escape(box);
    });
}

TEST(Boxes, AWordTooLongForALineIsBroken) {
    const QString fifty(50, QLatin1Char('x'));
    const QChar place(0x200B);
    answerOf({.text = QStringLiteral("a ") + fifty + QLatin1Char(' ') + fifty + fifty},
             [&](QMessageBox& box) {
                 EXPECT_EQ(box.text(),
                           QStringLiteral("a ") + fifty + QLatin1Char(' ') + fifty + place + fifty);
                 EXPECT_LT(box.width(), 800);
                 escape(box);
             });
}

TEST(Boxes, ABoxWithoutATitleBearsTheProgramsName) {
    forms::MessageBoxes boxes;
    withWindow(
        kBox, [&] { boxes.tell(QStringLiteral("Saved folder exists")); },
        [](QWidget& window) {
            auto& box = dynamic_cast<QMessageBox&>(window);
            EXPECT_EQ(box.windowTitle(), QStringLiteral("Quorvel"));
            EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
            EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
            escape(box);
        });
}

TEST(Boxes, EveryIconIsShown) {
    const std::vector<std::pair<Box::Icon, QMessageBox::Icon>> icons = {
        {Box::Icon::none, QMessageBox::NoIcon},
        {Box::Icon::information, QMessageBox::Information},
        {Box::Icon::question, QMessageBox::Question},
        {Box::Icon::exclamation, QMessageBox::Warning},
        {Box::Icon::critical, QMessageBox::Critical},
    };
    for (const auto& icon : icons) {
        answerOf({.text = QStringLiteral("t"), .icon = icon.first}, [&](QMessageBox& box) {
            EXPECT_EQ(box.icon(), icon.second);
            escape(box);
        });
    }
}

}  // namespace
}  // namespace quorvel::test
