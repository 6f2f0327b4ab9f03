// The pop-up menus of the real window: what is in them, what is enabled, where the jumps lead.
#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>

#include "shell/canvas_author.h"

namespace quorvel::test {
namespace {

using canvas::PopupMenu;
using forms::Answer;

struct MenuText {
    PopupMenu menu;
    const char* name;
    const char* header;
    /// "name|caption", "-" for a separator, "> name|caption" for an entry of a menu in the menu.
    std::vector<const char*> entries;
};

const std::vector<MenuText> kMenus = {
    {PopupMenu::ambient,
     "Animmenu",
     "Edit Ambient",
     {"animprops|Ambient Properties", "removeAnim|Remove Object"}},
    {PopupMenu::link,
     "dirmenu",
     "Edit HotSpot",
     {"dirprop|Link Properties", "JumpToDir|Jump to (No Link Defined)", "-",
      "ResD|Resize / Set Defaults"}},
    {PopupMenu::hotSpot,
     "linkmenu",
     "Edit Link",
     {"linkprops|HotSpot Properties", "JumpToLink|Jump To Linked Scene",
      "removelink|Remove Object"}},
    {PopupMenu::scene,
     "SceneMenu",
     "SceneMenu",
     {"scnimage|Scene Properties", "JumpToScn|Jump To Linked Scene", "-",
      "InsertLink|Insert New Object"}},
    {PopupMenu::location,
     "LocEdMen",
     "LocationMenu",
     {"LocProps(1)|Location Properties", "LocProps(2)|Remove Location"}},
    {PopupMenu::pointer,
     "pointmenu",
     "PointMenu",
     {"pointmen(1)|Choose file...", "pointmen(2)|Set default"}},
    {PopupMenu::goodie,
     "EdGoodie",
     "Edit Goodie",
     {"GoodProps(1)|Goodie Properties", "GoodProps(2)|Remove Object"}},
    {PopupMenu::switchObject,
     "EdSwitch",
     "Edit Switch",
     {"Switprop(1)|Switch Properties", "Switprop(2)|Remove Object"}},
    {PopupMenu::reactor,
     "EdReact",
     "Edit Reactor",
     {"ReactProp(1)|Reactor Properties", "ReactProp(2)|Remove Object"}},
    {PopupMenu::responder,
     "EdRespond",
     "Edit Responder",
     {"RespProp|Responder Properties", "JumpToResp|Jump To Linked Scene", "RemResp|Remove Object"}},
    {PopupMenu::delay,
     "EdDelay",
     "Edit Delay",
     {"DelProp(1)|Delay Properties", "DelProp(2)|Remove Object"}},
    {PopupMenu::multiTrigger,
     "EdEndGame",
     "Edit MultiTrigger",
     {"EndProp|Multi-Trigger Properties", "JumpEnd|Jump To Linked Scene", "> JumpToEnd(1)|---",
      "> JumpToEnd(2)|---", "> JumpToEnd(3)|---", "RemProp|Remove Object"}},
    {PopupMenu::conversation,
     "edConv",
     "Edit Conversation",
     {"convProp|Conversation Properties", "remConv|Remove Object"}},
    {PopupMenu::flagConjunction,
     "edFC",
     "Edit Flag Conjunction",
     {"FCProp|Flag Conjunction Properties", "remFC|Remove Object"}},
};

QStringList textsOf(const QMenu& menu, const QString& indent = {}) {
    QStringList texts;
    for (const QAction* action : menu.actions()) {
        texts << (action->isSeparator()
                      ? QStringLiteral("-")
                      : indent + action->objectName() + QLatin1Char('|') + action->text());
        if (action->menu() != nullptr) {
            texts += textsOf(*action->menu(), QStringLiteral("> "));
        }
    }
    return texts;
}

class PopupMenus : public CanvasAuthor {
  protected:
    ~PopupMenus() override { closeMenu(); }
    canvas::menus& popups() { return shell->actions().popups(); }
    QMenu* shownMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    void closeMenu() {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
        }
    }
    /// Opens the menu of an element; empty when there is none.
    QString menuOf(QWidget& element, QPoint at = {2, 2}) {
        closeMenu();
        QTest::mousePress(&element, Qt::RightButton, {}, at);
        return shownMenu() == nullptr ? QString() : shownMenu()->objectName();
    }
    QAction& entry(const char* name) {
        return control<QAction>(popups(), QString::fromLatin1(name));
    }
    static ProjectBuilder scenes() { return ProjectBuilder().scene(2, "Hall").scene(3, "R & D"); }
};

TEST_F(PopupMenus, HoldWhatTheirTableSays) {
    start();
    EXPECT_EQ(popups().objectName(), QStringLiteral("menus"));
    EXPECT_EQ(popups().windowTitle(), QStringLiteral("Pop-Up Menu form (Hidden)"));
    EXPECT_FALSE(popups().isVisible());
    ASSERT_EQ(kMenus.size(), 14U);
    for (const MenuText& expected : kMenus) {
        const QMenu& menu = popups().menu(expected.menu);
        EXPECT_EQ(menu.objectName(), QString::fromLatin1(expected.name));
        EXPECT_EQ(menu.title(), QString::fromLatin1(expected.header));
        QStringList entries;
        for (const char* text : expected.entries) {
            entries << QString::fromLatin1(text);
        }
        entries << QStringLiteral("-") << QStringLiteral("EdCancel|Cancel Menu");
        EXPECT_EQ(textsOf(menu), entries) << expected.name;
    }
}

TEST_F(PopupMenus, EachTypeOpensItsOwn) {
    constexpr std::array kByType = {"Animmenu",  "linkmenu", "EdGoodie",  "EdSwitch", "EdReact",
                                    "EdRespond", "EdDelay",  "EdEndGame", "edConv",   "edFC"};
    ProjectBuilder builder = scenes();
    for (int type = 0; type < 10; ++type) {
        builder.object(1, type + 1, static_cast<std::int16_t>(type),
                       static_cast<std::int16_t>(40 + 60 * type), 200);
    }
    open(builder);
    for (int type = 0; type < 10; ++type) {
        EXPECT_EQ(menuOf(animation(type + 1)),
                  QString::fromLatin1(kByType.at(static_cast<std::size_t>(type))));
        EXPECT_EQ(shell->actions().PopupObject, type + 1);
        const QList<QAction*> entries = shownMenu()->actions();
        EXPECT_EQ(entries.front()->isEnabled(),
                  static_cast<store::ObjectType>(type) == store::ObjectType::hotSpot)
            << "no other type has a window yet: " << type;
        EXPECT_EQ(entries.front()->statusTip().isEmpty(), entries.front()->isEnabled());
        EXPECT_TRUE(entries.back()->isEnabled());
        EXPECT_TRUE(entries[entries.size() - 3]->isEnabled()) << "removal";
    }
    EXPECT_EQ(menuOf(main().view().imageElement(), {300, 400}), QStringLiteral("SceneMenu"));
    EXPECT_EQ(menuOf(link(3)), QStringLiteral("dirmenu"));
    EXPECT_EQ(shell->actions().PopupObject, 3);
    EXPECT_EQ(dragging().CurrentLink, 3);
}

TEST_F(PopupMenus, AQuickSpotOpensTheMenuOfAHotSpot) {
    open(scenes().object(1, 4, 1, 200, 150).editSlot(1, 4, [](auto& record) {
        record.SlotInt4To29[29 - 4] = 1;
    }));
    EXPECT_EQ(menuOf(quickSpot(4), {1, 1}), QStringLiteral("linkmenu"));
}

TEST_F(PopupMenus, CancelDoesNothing) {
    open(scenes().object(1, 3, 0, 100, 120));
    const store::Scene before = shell->scene();
    for (const MenuText& menu : kMenus) {
        popups().menu(menu.menu).actions().back()->trigger();
    }
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(shell->scene().slot(3), before.slot(3));
    EXPECT_EQ(shell->project().CurrentScene, 1);
}

TEST_F(PopupMenus, AnEditorThatIsThereIsOpenedOnTheObject) {
    open(scenes().object(1, 3, 6, 100, 120));
    int opened = 0;
    shell->actions().registerEditor(store::ObjectType::delay,
                                    [&] { opened = shell->actions().CurObj; });
    menuOf(animation(3));
    ASSERT_TRUE(entry("DelProp(1)").isEnabled());
    entry("DelProp(1)").trigger();
    EXPECT_EQ(opened, 3);
    EXPECT_EQ(shell->actions().CurObj, 0);
}

TEST_F(PopupMenus, AnEntryRemovesTheObject) {
    open(scenes().object(1, 3, 9, 100, 120).object(1, 5, 6, 200, 120));
    boxes.answer(Answer::yes).answer(Answer::yes);
    menuOf(animation(3));
    entry("remFC").trigger();
    menuOf(animation(5));
    entry("DelProp(2)").trigger();
    leaveScene();
    EXPECT_EQ(stored(1, 3, 0), -1);
    EXPECT_EQ(stored(1, 5, 0), -1);
    EXPECT_EQ(storedPlace(1, 3), QPoint(100, 120)) << "the rest stays until it is used again";
}

TEST_F(PopupMenus, AnUnknownTypeHasABoxInstead) {
    open(scenes().object(1, 3, 42, 100, 120).object(1, 4, -2, 300, 120));
    for (int k = 3; k <= 4; ++k) {
        boxes.forget();
        EXPECT_EQ(menuOf(animation(k)), QString());
        ASSERT_EQ(boxes.shown().size(), 1U);
        EXPECT_EQ(boxes.shown()[0].title, QStringLiteral("Unknown Object Type!"));
        EXPECT_EQ(boxes.texts()[0],
                  QStringLiteral("This object type is unknown, and was apparently made with a "
                                 "newer version of Quorvel.\n\nUnknown objects cannot be edited. "
                                 "Please upgrade to the latest version of Quorvel."));
    }
}

TEST_F(PopupMenus, TheMenuKeyOpensTheMenuOfTheFocusedObject) {
    open(scenes().object(1, 3, 6, 100, 120));
    animation(3).setFocus();
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {1, 1},
                          animation(3).mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(&animation(3), &key);
    ASSERT_NE(shownMenu(), nullptr);
    EXPECT_EQ(shownMenu()->objectName(), QStringLiteral("EdDelay"));
}

// Jumps.

TEST_F(PopupMenus, AJumpWithoutATargetIsDisabledAndSaysSo) {
    open(scenes().object(1, 1, 1, 100, 120).object(1, 2, 5, 200, 120).object(1, 3, 7, 300, 120));
    const auto expectNone = [this](const char* name) {
        EXPECT_EQ(entry(name).text(), QStringLiteral("(No Link Defined)")) << name;
        EXPECT_FALSE(entry(name).isEnabled()) << name;
    };
    menuOf(animation(1));
    expectNone("JumpToLink");
    EXPECT_EQ(shell->actions().JumpTarget, 0);
    menuOf(animation(2));
    expectNone("JumpToResp");
    menuOf(animation(3));
    expectNone("JumpToEnd(1)");
    expectNone("JumpToEnd(2)");
    expectNone("JumpToEnd(3)");
    menuOf(link(1));
    expectNone("JumpToDir");
    menuOf(main().view().imageElement(), {300, 400});
    expectNone("JumpToScn");
}

TEST_F(PopupMenus, AJumpNamesItsSceneAndSavesTheOneThatIsLeft) {
    open(scenes()
             .object(1, 1, 5, 100, 120)
             .editSlot(1, 1, [](auto& record) { record.SlotInt4To29[15 - 4] = 3; })
             .editScene(1, [](store::SceneRecord& record) { record.SceneCheckFlagTarget = 2; }));
    shell->scene().LinkRight.target = 3;
    menuOf(main().view().imageElement(), {300, 400});
    EXPECT_EQ(entry("JumpToScn").text(), QStringLiteral("Jump To <2 (Hall)>"));
    EXPECT_EQ(shell->actions().JumpTarget, 2) << "prepared when the menu opens";
    menuOf(link(3));
    EXPECT_EQ(entry("JumpToDir").text(), QStringLiteral("Jump To <3 (R && D)>"));
    EXPECT_TRUE(entry("JumpToDir").isEnabled());
    menuOf(animation(1));
    EXPECT_EQ(entry("JumpToResp").text(), QStringLiteral("Jump To <3 (R && D)>"));
    slot(1).SlotInt(36) = 77;
    entry("JumpToResp").trigger();
    EXPECT_EQ(shell->project().CurrentScene, 3);
    EXPECT_EQ(stored(1, 1, 141 + 2 * (36 - 4)), 77);
    EXPECT_EQ(readInt(files.storePath(1), 221), 3) << "the target of the link Right";
    EXPECT_EQ(control<QComboBox>(main(), QStringLiteral("Combo1")).currentIndex(), 3);
}

TEST_F(PopupMenus, TheThreeJumpsOfAMultiTriggerLeadToTheirOwnScenes) {
    const auto three = [](auto& record) {
        record.SlotInt4To29[12 - 4] = 2;
        record.SlotInt4To29[20 - 4] = 0;
        record.SlotInt4To29[28 - 4] = 3;
    };
    open(scenes()
             .object(1, 1, 7, 100, 120)
             .editSlot(1, 1, three)
             .object(2, 1, 7, 100, 120)
             .editSlot(2, 1, three));
    menuOf(animation(1));
    EXPECT_EQ(entry("JumpToEnd(1)").text(), QStringLiteral("Jump To <2 (Hall)>"));
    EXPECT_FALSE(entry("JumpToEnd(2)").isEnabled());
    EXPECT_EQ(entry("JumpToEnd(3)").text(), QStringLiteral("Jump To <3 (R && D)>"));
    entry("JumpToEnd(1)").trigger();
    EXPECT_EQ(shell->project().CurrentScene, 2);
    menuOf(animation(1));
    entry("JumpToEnd(3)").trigger();
    EXPECT_EQ(shell->project().CurrentScene, 3);
}

TEST_F(PopupMenus, ATargetThatIsNoSceneIsNone) {
    open(scenes().object(1, 1, 5, 100, 120));
    for (const int target : {4, -1, 32767, -32768}) {
        slot(1).SlotInt(15) = static_cast<std::int16_t>(target);
        menuOf(animation(1));
        EXPECT_FALSE(entry("JumpToResp").isEnabled()) << target;
    }
}

TEST_F(PopupMenus, AHotSpotToTheMapHasNoJump) {
    open(scenes().object(1, 1, 1, 100, 120));
    slot(1).SlotInt(15) = 2;
    slot(1).SlotInt(16) = 2;
    menuOf(animation(1));
    EXPECT_FALSE(entry("JumpToLink").isEnabled());
}

}  // namespace
}  // namespace quorvel::test
