// The line below a box.
#include "forms/note_line.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "forms/events.h"
#include "forms/form.h"
#include "support/windows/played_author.h"

namespace quorvel::forms {
namespace {

/// A window with a box and the line below it.
class NotedForm : public Form {
  public:
    NotedForm() : Form(QStringLiteral("Noted"), QStringLiteral("Noted"), nullptr) {
        QVBoxLayout* column = makeColumn();
        box = new QLineEdit(this);
        box->setMinimumWidth(300);
        note = new NoteLine(QStringLiteral("NoteOfBox"), this);
        column->addWidget(box);
        column->addWidget(note);
    }
    QLineEdit* box;
    NoteLine* note;
};

TEST(NoteLine, TakesRoomOnlyWhileItSaysSomething) {
    NotedForm form;
    form.show();
    const int before = form.height();
    EXPECT_FALSE(form.note->isVisible());
    form.note->tell(QStringLiteral("Something is odd about this file."));
    EXPECT_TRUE(form.note->isVisible());
    EXPECT_TRUE(test::waitUntil([&] { return form.height() > before; })) << "the window makes room";
    EXPECT_GE(form.note->height(), form.note->heightForWidth(form.note->width()));
    EXPECT_EQ(form.box->height(), form.box->sizeHint().height()) << "nothing is squeezed";
    form.note->tell({});
    EXPECT_FALSE(form.note->isVisible());
}

TEST(NoteLine, WrapsInsideOfAPathToo) {
    NotedForm form;
    form.show();
    form.note->tell(QStringLiteral("short"));
    ASSERT_TRUE(test::waitUntil([&] { return form.note->height() > 0; }));
    const int line = form.note->heightForWidth(300);
    const QString path = QLatin1Char('/') + QString(300, QLatin1Char('x'));
    form.note->tell(path);
    EXPECT_GT(form.note->heightForWidth(300), 3 * line);
    EXPECT_TRUE(test::waitUntil(
        [&] { return form.note->height() >= form.note->heightForWidth(form.note->width()); }));
    EXPECT_EQ(form.width(), form.sizeHint().width()) << "the window is no wider than before";
    EXPECT_EQ(form.note->text(), path) << "no blanks are put in";
}

TEST(NoteLine, CanBeReadAloud) {
    NotedForm form;
    form.show();
    form.note->tell(QStringLiteral("Read me."));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(form.note)->text(QAccessible::Name),
              QStringLiteral("Read me."));
}

TEST(NoteLine, AWindowThatTheAuthorMadeLowStaysLow) {
    NotedForm form;
    form.show();
    letEventsRun();
    form.layout()->setSizeConstraint(QLayout::SetNoConstraint);
    form.setMinimumSize(1, 1);
    letEventsRun();
    form.resize(form.width(), 30);
    form.note->tell(QStringLiteral("One line\nand one more."));
    letEventsRun();
    EXPECT_EQ(form.height(), 30);
}

TEST(NoteLine, AWindowThatFillsTheScreenScrollsForIt) {
    NotedForm form;
    form.show();
    const int screen = form.screen()->availableGeometry().height();
    form.box->setMinimumHeight(screen - kFrameRoom.height() - 2 * kFormMargin - kFormSpacing - 4);
    letEventsRun();
    EXPECT_EQ(form.findChild<QScrollArea*>(QStringLiteral("WindowContent")), nullptr);
    form.note->tell(QStringLiteral("One line\nand one more."));
    EXPECT_TRUE(test::waitUntil(
        [&] { return form.findChild<QScrollArea*>(QStringLiteral("WindowContent")) != nullptr; }));
    letEventsRun();
    EXPECT_LE(form.height(), screen - kFrameRoom.height());
    EXPECT_GE(form.note->height(), form.note->heightForWidth(form.note->width()));
}

}  // namespace
}  // namespace quorvel::forms
