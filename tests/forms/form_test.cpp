#include "forms/form.h"

#include <gtest/gtest.h>

#include <QBoxLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTest>

namespace quorvel::test {
namespace {

class Window : public forms::Form {
  public:
    Window() : Form(QStringLiteral("someform"), QStringLiteral("Some Form"), nullptr) {
        auto* row = new QHBoxLayout(this);
        row->addWidget(new QLabel(QStringLiteral("A label of some length"), this));
        ok = addButton(row, QStringLiteral("Command1"), QStringLiteral("OK"));
    }
    QPushButton* ok = nullptr;
};

TEST(Form, BearsItsSystemName) {
    const Window window;
    EXPECT_EQ(window.objectName(), QStringLiteral("someform"));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Some Form"));
    EXPECT_TRUE(window.isModal());
    EXPECT_EQ(window.ok->objectName(), QStringLiteral("Command1"));
    EXPECT_EQ(window.ok->text(), QStringLiteral("OK"));
}

TEST(Form, IsCentredOnItsScreen) {
    Window window;
    window.show();
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect frame = window.frameGeometry();
    EXPECT_NEAR(frame.center().x(), area.center().x(), 1);
    if (area.width() > 800 && area.height() > 600) {
        EXPECT_NEAR(frame.center().y(), area.center().y(), 1);
    } else {
        EXPECT_EQ(frame.top(), area.top());
    }
}

TEST(Form, ATallWindowGetsTheHeightThatItsRowsNeed) {
    Window window;
    const int screen = QGuiApplication::primaryScreen()->availableGeometry().height();
    auto* tall = new QLabel(QStringLiteral("A picture"), &window);
    tall->setMinimumHeight(10);
    QString rows;
    while (tall->sizeHint().height() < screen * 3 / 4) {
        rows += QStringLiteral("a row\n");
        tall->setText(rows);
    }
    window.layout()->addWidget(tall);
    window.show();
    EXPECT_GE(tall->height(), tall->sizeHint().height());
    EXPECT_LE(window.height(), screen);
}

TEST(Form, ElementsAreNamedByIndex) {
    EXPECT_EQ(forms::elementName(QStringLiteral("Option1"), 2), QStringLiteral("Option1(2)"));
    EXPECT_EQ(forms::elementName(QStringLiteral("%2"), 0), QStringLiteral("%2(0)"));
}

}  // namespace
}  // namespace quorvel::test
