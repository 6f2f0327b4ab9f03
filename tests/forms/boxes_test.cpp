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

TEST(Boxes, EnterDestroysNothing) {
    const auto enter = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); };
    for (const bool destroys : {false, true}) {
        SCOPED_TRACE(destroys);
        EXPECT_EQ(
            answerOf(
                {.text = QStringLiteral("t"), .buttons = Box::Buttons::yesNo, .destroys = destroys},
                enter),
            destroys ? Answer::no : Answer::yes);
        EXPECT_EQ(answerOf({.text = QStringLiteral("t"),
                            .buttons = Box::Buttons::okCancel,
                            .destroys = destroys},
                           enter),
                  destroys ? Answer::cancel : Answer::ok);
    }
}

TEST(Boxes, OneMoreButtonIsNoneOfTheOthers) {
    const Box box{.text = QStringLiteral("t"), .other = QStringLiteral("Use \"a&b.gif\"")};
    const auto enter = [](QMessageBox& shown) { QTest::keyClick(&shown, Qt::Key_Return); };
    EXPECT_EQ(answerOf(box, enter), Answer::ok) << "OK is the default";
    EXPECT_EQ(answerOf(box, escape), Answer::ok);
    EXPECT_EQ(answerOf(box, [](QMessageBox& shown) { shown.close(); }), Answer::ok);
    EXPECT_EQ(answerOf(box,
                       [](QMessageBox& shown) {
                           auto& other = test::control<QPushButton>(shown, QStringLiteral("Other"));
                           EXPECT_EQ(other.text(), QStringLiteral("Use \"a&&b.gif\""));
                           EXPECT_FALSE(other.isDefault());
                           other.click();
                       }),
              Answer::other);
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

/// Where something is painted in the label of a box, in its coordinates.
QRect inkOf(QLabel& label) {
    const QImage image = label.grab().toImage();
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != image.pixel(0, image.height() - 1)) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

TEST(Boxes, AWordTooLongForALineIsBrokenAndTheTextStaysAsItIs) {
    const QString text = QStringLiteral("Could not locate:\n\n/") + QString(200, QLatin1Char('x')) +
                         QStringLiteral("/end.qvl\n\nPlease look.");
    answerOf({.text = text}, [&](QMessageBox& box) {
        auto& label = control<QLabel>(box, QStringLiteral("qt_msgbox_label"));
        EXPECT_EQ(box.text(), text);
        EXPECT_EQ(label.text(), text);
        EXPECT_LT(box.width(), 800);
        const int line = label.fontMetrics().lineSpacing();
        const QRect ink = inkOf(label);
        EXPECT_GT(ink.height(), 6 * line) << "the name takes several lines";
        EXPECT_GT(ink.width(), 300);
        EXPECT_TRUE(label.rect().contains(ink));
        EXPECT_TRUE(box.rect().contains(label.geometry()));
        escape(box);
    });
}

TEST(Boxes, AWordThatFitsIsLeftToTheToolkit) {
    answerOf({.text = QStringLiteral("Saved folder exists")}, [&](QMessageBox& box) {
        auto& label = control<QLabel>(box, QStringLiteral("qt_msgbox_label"));
        EXPECT_GT(label.maximumWidth(), 10000);
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
