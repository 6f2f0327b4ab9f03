// The buttons of message boxes and file dialogs beside those of the editor's own windows.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

#include "forms/boxes.h"
#include "forms/file_dialogs.h"
#include "forms/form.h"
#include "forms/look.h"
#include "support/windows/played_author.h"
#include "support/windows/virtual_screen.h"

namespace quorvel::forms {
namespace {

/// A window with the two buttons of most windows.
class TwoButtons : public Form {
  public:
    TwoButtons() : Form(QStringLiteral("Two"), QStringLiteral("Two"), nullptr) {
        const auto row = addButtonRow(makeColumn(), {{"Ok", "OK", [] {}}, {"No", "Cancel", [] {}}});
        ok = row[0];
        cancel = row[1];
    }
    QPushButton* ok;
    QPushButton* cancel;
};

class BoxButtons : public testing::Test {
  protected:
    BoxButtons() {
        applyLook(*qApp, Look::light);
        usual.show();
    }
    void expectAsUsual(const QPushButton& button) const {
        EXPECT_TRUE(button.icon().isNull()) << button.text().toStdString();
        EXPECT_EQ(button.height(), usual.ok->height()) << button.text().toStdString();
    }
    /// What goes on stands at the left, or above, of what goes back.
    static void expectBefore(const QPushButton& on, const QPushButton& back) {
        EXPECT_TRUE(on.y() == back.y() ? on.x() < back.x() : on.y() < back.y());
    }
    void showBox(const Box& box, const std::function<void(QMessageBox&)>& look) const {
        MessageBoxes boxes;
        test::withWindow(
            QStringLiteral("Box"), [&] { boxes.show(box); },
            [&](QWidget& window) {
                auto& shown = dynamic_cast<QMessageBox&>(window);
                for (const auto* button : shown.findChildren<QPushButton*>()) {
                    expectAsUsual(*button);
                }
                look(shown);
                shown.close();
            });
    }
    TwoButtons usual;
};

QPushButton& of(const QMessageBox& box, QMessageBox::StandardButton which) {
    return dynamic_cast<QPushButton&>(*box.button(which));
}

TEST_F(BoxButtons, OfAMessageAreThoseOfWindows) {
    expectBefore(*usual.ok, *usual.cancel);
    showBox({.text = QStringLiteral("t"), .buttons = Box::Buttons::okCancel}, [](QMessageBox& box) {
        expectBefore(of(box, QMessageBox::Ok), of(box, QMessageBox::Cancel));
    });
    showBox({.text = QStringLiteral("t"), .buttons = Box::Buttons::yesNo}, [](QMessageBox& box) {
        expectBefore(of(box, QMessageBox::Yes), of(box, QMessageBox::No));
    });
    showBox({.text = QStringLiteral("t"), .other = QStringLiteral("Use \"a.gif\"")},
            [](QMessageBox& box) {
                expectBefore(of(box, QMessageBox::Ok),
                             test::control<QPushButton>(box, QStringLiteral("Other")));
            });
}

TEST_F(BoxButtons, OfAFileDialogAreThoseOfWindows) {
    SystemFileDialogs dialogs;
    const auto look = [this](QWidget& window) {
        auto& dialog = dynamic_cast<QFileDialog&>(window);
        int buttons = 0;
        for (const auto* button : dialog.findChildren<QPushButton*>()) {
            expectAsUsual(*button);
            ++buttons;
        }
        EXPECT_GE(buttons, 2);
        dialog.reject();
    };
    test::withWindow(
        QStringLiteral("QFileDialog"),
        [&] { dialogs.openFile({.title = {}, .filter = {}, .folder = {}, .fileName = {}}); }, look);
    test::withWindow(
        QStringLiteral("QFileDialog"),
        [&] { dialogs.chooseFolder({.title = {}, .filter = {}, .folder = {}, .fileName = {}}); },
        look);
}

/// A real screen has a theme of its own, with pictures on such buttons.
TEST(BoxButtonsOnAScreen, AreThoseOfWindows) {
    const test::VirtualScreen screen(QSize(1024, 768));
    if (!screen.whyNot().isEmpty()) {
        GTEST_SKIP() << screen.whyNot().toStdString();
    }
    const auto process = screen.start(QCoreApplication::applicationFilePath(),
                                      {QStringLiteral("--gtest_filter=BoxButtons.*")});
    ASSERT_TRUE(process->waitForFinished(100000));
    EXPECT_EQ(process->exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process->exitCode(), 0) << process->readAll().toStdString();
}

}  // namespace
}  // namespace quorvel::forms
