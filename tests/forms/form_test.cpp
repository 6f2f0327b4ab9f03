#include "forms/form.h"

#include <gtest/gtest.h>

#include <QBoxLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
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

/// A window with more rows than any screen has room for.
class HighWindow : public forms::Form {
  public:
    explicit HighWindow(int rows) : Form(QStringLiteral("high"), QStringLiteral("High"), nullptr) {
        QVBoxLayout* column = makeColumn();
        for (int i = 0; i < rows; ++i) {
            boxes.push_back(new QLineEdit(this));
            column->addWidget(boxes.back());
        }
        buttons = addButtonRow(
            column, {{"Command1", "OK", [this] { accept(); }, forms::FormButton::Role::byEnter},
                     {"Command2", "Cancel", [this] { reject(); }}});
    }
    /// Whether the author sees all of `widget`.
    [[nodiscard]] bool isInSight(const QWidget& widget) const {
        return widget.isVisible() && widget.visibleRegion().boundingRect().size() == widget.size();
    }
    std::vector<QLineEdit*> boxes;
    std::vector<QPushButton*> buttons;
};

TEST(Form, OneThatItsScreenHasNoRoomForScrollsButItsButtonsStay) {
    HighWindow window(100);
    // The second time it scrolls already.
    for (int time = 0; time < 2; ++time) {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        const QRect area = window.screen()->availableGeometry();
        EXPECT_TRUE(area.contains(window.frameGeometry()));
        for (const QPushButton* button : window.buttons) {
            EXPECT_TRUE(window.isInSight(*button));
        }
        EXPECT_TRUE(window.buttons.front()->isDefault());
        EXPECT_EQ(window.findChildren<QScrollArea*>().size(), 1);
        EXPECT_GE(window.boxes.front()->height(), window.boxes.front()->sizeHint().height());
        EXPECT_TRUE(window.isInSight(*window.boxes.front()));
        EXPECT_FALSE(window.isInSight(*window.boxes.back()));
        const auto* scroll = window.findChild<QScrollArea*>();
        EXPECT_EQ(scroll->horizontalScrollBar()->maximum(), 0);

        QTest::keyClick(window.focusWidget(), Qt::Key_PageDown);
        EXPECT_FALSE(window.isInSight(*window.boxes.front()));
        QTest::keyClick(window.focusWidget(), Qt::Key_PageUp);
        EXPECT_TRUE(window.isInSight(*window.boxes.front()));
        // Who goes through the window by Tab sees where he is.
        window.boxes.front()->setFocus();
        for (std::size_t i = 1; i < window.boxes.size(); ++i) {
            QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
            ASSERT_EQ(window.focusWidget(), window.boxes[i]);
            ASSERT_TRUE(window.isInSight(*window.boxes[i])) << i;
        }
        window.buttons.front()->click();
        EXPECT_FALSE(window.isVisible());
        scroll->verticalScrollBar()->setValue(0);
    }
}

TEST(Form, OneThatFitsDoesNotScroll) {
    HighWindow window(5);
    window.show();
    EXPECT_TRUE(window.findChildren<QScrollArea*>().isEmpty());
}

TEST(Form, ElementsAreNamedByIndex) {
    EXPECT_EQ(forms::elementName(QStringLiteral("Option1"), 2), QStringLiteral("Option1(2)"));
    EXPECT_EQ(forms::elementName(QStringLiteral("%2"), 0), QStringLiteral("%2(0)"));
}

}  // namespace
}  // namespace quorvel::test
