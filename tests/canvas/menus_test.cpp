// What an entry of a pop-up menu says in the status line of the window that it was opened in.
#include "canvas/menus.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QStatusTipEvent>
#include <QTest>
#include <QWindow>

#include "canvas/texts.h"

namespace quorvel::test {
namespace {

using canvas::PopupAction;
using canvas::PopupMenu;

/// A window with the menus, which notes what it is told to say.
class Listener : public QWidget {
  public:
    QString tip;

  protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::StatusTip) {
            tip = static_cast<QStatusTipEvent*>(event)->tip();
            return true;
        }
        return QWidget::event(event);
    }
};

TEST(Menus, AnEntryThatIsOffSaysWhyInTheWindowBelow) {
    Listener window;
    canvas::menus menus(&window);
    window.show();
    QMenu& menu = menus.menu(PopupMenu::delay);
    const auto pointAt = [&menu](const char* name) {
        auto* action = menu.findChild<QAction*>(QString::fromLatin1(name));
        QTest::mouseMove(&menu, menu.actionGeometry(action).center());
        return QTest::qWaitFor([&] { return menu.activeAction() == action; });
    };
    menus.setAvailable(PopupMenu::delay, PopupAction::properties, false, canvas::windowToCome());
    menus.open(PopupMenu::delay, QPoint(10, 10), window.windowHandle());
    ASSERT_TRUE(pointAt("DelProp(1)"));
    EXPECT_EQ(window.tip, QStringLiteral("This window is not part of this version yet."));
    ASSERT_TRUE(pointAt("DelProp(2)"));
    EXPECT_EQ(window.tip, QString()) << "this one can be used";
    ASSERT_TRUE(pointAt("DelProp(1)"));
    EXPECT_FALSE(window.tip.isEmpty());
    menu.close();
    EXPECT_EQ(window.tip, QString()) << "the menu was left";
}

TEST(Menus, AnEntryThatCanBeUsedSaysNothing) {
    Listener window;
    canvas::menus menus(&window);
    menus.setAvailable(PopupMenu::delay, PopupAction::properties, false, canvas::windowToCome());
    menus.setAvailable(PopupMenu::delay, PopupAction::properties, true, canvas::windowToCome());
    const auto* entry =
        menus.menu(PopupMenu::delay).findChild<QAction*>(QStringLiteral("DelProp(1)"));
    ASSERT_NE(entry, nullptr);
    EXPECT_TRUE(entry->isEnabled());
    EXPECT_EQ(entry->statusTip(), QString());
}

}  // namespace
}  // namespace quorvel::test
