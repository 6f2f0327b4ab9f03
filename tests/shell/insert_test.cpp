// Inserting and removing objects through the real window, with the bytes in the store.
#include <gtest/gtest.h>
#include <map>

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>

#include "shell/canvas_author.h"

namespace quorvel::test {
namespace {

using forms::Answer;

/// Numbers of a fresh object that are not 0, by type; `SlotInt1` is the type.
const std::vector<std::map<int, std::int16_t>> kFresh = {
    {{4, 1}, {5, 1}, {8, 1}, {9, 1}, {13, 1}},
    {{4, 10}, {5, 1}, {15, 1}, {17, 1}, {18, 1}, {22, 1}, {28, 15}},
    {{4, 1}, {15, 2}, {16, 1}, {19, 1}, {20, 1}, {25, 15}},
    {{4, 1}, {8, 1}, {16, 1}, {17, 1}, {21, 15}},
    {{4, 1}, {5, 10000}, {9, 1}, {13, 1}},
    {{4, 1}, {5, 1}, {17, 1}},
    {{4, 1}, {5, 1}, {9, 1}},
    {{5, 1}, {9, 1}, {13, 1}, {17, 1}, {21, 1}, {25, 1}},
    {{5, 1}, {6, 1}, {9, 4}},
    {{6, 1}, {10, 1}, {14, 1}, {18, 1}, {22, 1}, {26, 1}},
};

class InsertTest : public CanvasAuthor {
  protected:
    /// What the window offers, after it was used to insert `type` at the `row`th free index; -1
    /// leaves it.
    QStringList insert(QAction& command, int type, int row = 0) {
        QStringList offered;
        withWindow(
            QStringLiteral("newlink"), [&command] { command.trigger(); },
            [&](QWidget& window) {
                auto& list = control<QComboBox>(window, QStringLiteral("Combo1"));
                for (int i = 0; i < list.count(); ++i) {
                    offered << list.itemText(i);
                }
                EXPECT_EQ(list.currentIndex(), 0);
                for (int i = 0; i < 10; ++i) {
                    EXPECT_FALSE(control<QRadioButton>(window, QStringLiteral("Option1(%1)").arg(i))
                                     .isChecked());
                }
                if (type < 0) {
                    control<QPushButton>(window, QStringLiteral("Command2")).click();
                    return;
                }
                list.setCurrentIndex(row);
                control<QRadioButton>(window, QStringLiteral("Option1(%1)").arg(type)).click();
                control<QPushButton>(window, QStringLiteral("Command3")).click();
            });
        return offered;
    }
    QStringList insert(int type, int row = 0) {
        return insert(action(QStringLiteral("scnmen(3)")), type, row);
    }
    QAction& insertLink() {
        return control<QAction>(shell->actions().popups(), QStringLiteral("InsertLink"));
    }
    void openSceneMenu(QPoint at) {
        QTest::mousePress(&main().view().imageElement(), Qt::RightButton, {}, at);
        shell->actions().popups().menu(canvas::PopupMenu::scene).close();
    }
    QString count() { return control<QLabel>(main(), QStringLiteral("StatusBar2(1)")).text(); }
    static ProjectBuilder withObjects(int last) {
        ProjectBuilder builder = ProjectBuilder().scenes(2);
        for (int k = 1; k <= last; ++k) {
            builder.object(1, k, 6, static_cast<std::int16_t>(20 * k), 100);
        }
        return builder;
    }
};

TEST_F(InsertTest, EveryTypeIsWrittenWithItsOwnNumbers) {
    ProjectBuilder builder = ProjectBuilder().scenes(2);
    for (int k = 1; k <= 10; ++k) {
        builder.editSlot(1, k, [](auto& record) {
            for (auto& number : record.SlotInt4To29) {
                number = 9;
            }
            for (auto& text : record.SlotStr) {
                text = "old";
            }
        });
    }
    open(builder);
    // What counts here is the slot before anybody edits it.
    shell->actions().registerEditor(store::ObjectType::hotSpot, [] {});
    for (int type = 0; type < 10; ++type) {
        for (int field = 30; field <= 36; ++field) {
            slot(type + 1).SlotInt(field) = static_cast<std::int16_t>(1000 * type + field);
        }
        insert(type);
    }
    leaveScene();
    for (int type = 0; type < 10; ++type) {
        const int k = type + 1;
        EXPECT_EQ(stored(1, k, 0), type);
        EXPECT_EQ(storedPlace(1, k), QPoint(0, 0));
        for (int word = 1; word <= 9; ++word) {
            const std::string expected = type == 9 && word == 1 ? "1" : "";
            EXPECT_EQ(storedSlot(1, k).substr(static_cast<std::size_t>(6 + 15 * (word - 1)), 15),
                      expected + std::string(15 - expected.size(), ' '))
                << type << ", text " << word;
        }
        for (int field = 4; field <= 36; ++field) {
            const auto& fresh = kFresh[static_cast<std::size_t>(type)];
            const auto at = fresh.find(field);
            int expected = at == fresh.end() ? 0 : at->second;
            if (field >= 30) {
                expected = 1000 * type + field;  // insertion leaves these alone
            }
            EXPECT_EQ(stored(1, k, 141 + 2 * (field - 4)), expected)
                << type << ", number " << field;
        }
    }
}

TEST_F(InsertTest, AnyFreeIndexCanBeTaken) {
    open(withObjects(5));
    EXPECT_EQ(insert(6, 1).mid(0, 3),
              (QStringList{QStringLiteral("6"), QStringLiteral("7"), QStringLiteral("8")}));
    EXPECT_EQ(slot(7).SlotInt(1), 6);
    EXPECT_EQ(insert(-1).mid(0, 2), (QStringList{QStringLiteral("6"), QStringLiteral("8")}));
    EXPECT_EQ(slot(6).SlotInt(1), -1) << "the window was left";
    boxes.answer(Answer::yes);
    shell->actions().RemoveObject(3);
    EXPECT_EQ(insert(-1).front(), QStringLiteral("3"));
}

TEST_F(InsertTest, TheObjectComesWhereTheClickWas) {
    open(withObjects(0));
    openSceneMenu({321, 234});
    insert(insertLink(), 0);
    EXPECT_EQ(placeInSlot(1), QPoint(321, 234));
    EXPECT_EQ(animation(1).pos(), QPoint(321, 234));
    insert(5);
    EXPECT_EQ(placeInSlot(2), QPoint(0, 0)) << "from the menu in the corner";
    openSceneMenu({100, 101});
    insert(action(QStringLiteral("Toolbar1(23)")), 6);
    EXPECT_EQ(placeInSlot(3), QPoint(0, 0)) << "from the tool bar too";
    leaveScene();
    EXPECT_EQ(storedPlace(1, 1), QPoint(321, 234));
}

TEST_F(InsertTest, AFreshObjectIsShownAndItsPropertiesOpen) {
    open(withObjects(2));
    int opened = 0;
    shell->actions().registerEditor(store::ObjectType::reactor,
                                    [&] { opened = shell->actions().CurObj; });
    main().view().ToggleBorders(true);
    insert(4);
    EXPECT_EQ(opened, 3);
    EXPECT_EQ(shell->actions().PopupObject, 3);
    EXPECT_TRUE(animation(3).isVisible());
    EXPECT_EQ(animation(3).property("tag").toString(), QStringLiteral("Reactor"));
    EXPECT_EQ(element("hilite", 3).geometry(), animation(3).geometry().adjusted(-1, -1, 1, 1));
    EXPECT_TRUE(element("hilite", 3).isVisible());
    EXPECT_EQ(count(), QStringLiteral("Objects: 3 / 20"));
    boxes.answer(Answer::yes);
    shell->actions().RemoveObject(3);
    EXPECT_FALSE(element("hilite", 3).isVisible());
    EXPECT_EQ(animation(3).property("tag").toString(), QString());
    EXPECT_EQ(count(), QStringLiteral("Objects: 2 / 20"));
}

TEST_F(InsertTest, TheTwentiethObjectEndsInsertingUntilOneIsRemoved) {
    open(withObjects(19));
    const auto expectRoom = [this](bool room) {
        EXPECT_EQ(action(QStringLiteral("scnmen(3)")).isEnabled(), room);
        EXPECT_EQ(action(QStringLiteral("Toolbar1(23)")).isEnabled(), room);
        EXPECT_EQ(insertLink().isEnabled(), room);
    };
    expectRoom(true);
    EXPECT_EQ(insert(2), QStringList{QStringLiteral("20")});
    EXPECT_EQ(count(), QStringLiteral("Objects: 20 / 20"));
    expectRoom(false);
    openSceneMenu({10, 460});
    expectRoom(false);
    boxes.answer(Answer::no).answer(Answer::yes);
    shell->actions().RemoveObject(11);
    expectRoom(false);
    shell->actions().RemoveObject(11);
    expectRoom(true);
    EXPECT_EQ(insert(-1), QStringList{QStringLiteral("11")});
    leaveScene();
    EXPECT_EQ(stored(1, 11, 0), -1);
    EXPECT_EQ(stored(1, 20, 0), 2);
}

TEST_F(InsertTest, AFullSceneIsToldShouldTheWindowOpenAllTheSame) {
    open(withObjects(20));
    shell->actions().showNewLink();  // closes by itself
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.texts()[0],
              QStringLiteral("According to calculations, all 20 objects are used.  This window "
                             "shouldn't have opened.  Please Report this error."));
    EXPECT_EQ(boxes.shown()[0].title, QStringLiteral("Quorvel"));
    EXPECT_EQ(visibleWindow(QStringLiteral("newlink")), nullptr);
}

TEST_F(InsertTest, RemovingTheLostObjectTakesTheAlertAway) {
    open(withObjects(3).object(1, 9, 6, -400, 10));
    EXPECT_TRUE(button("ObjAlert").isVisible());
    boxes.answer(Answer::yes);
    shell->actions().RemoveObject(9);
    EXPECT_FALSE(button("ObjAlert").isVisible());
    EXPECT_EQ(boxes.texts(),
              QStringList{QStringLiteral("Are you sure you want to remove this object?")});
    EXPECT_TRUE(boxes.shown().front().destroys);
}

}  // namespace
}  // namespace quorvel::test
