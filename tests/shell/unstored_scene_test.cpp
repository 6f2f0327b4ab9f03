// A scene without a record of its own: a project may name one beyond its store, and a store may be
// empty. It is looked at, left and followed by a new scene, but not edited.
#include <algorithm>
#include <gtest/gtest.h>

#include "shell/scene_fixture.h"

namespace quorvel::test {
namespace {

struct Case {
    const char* name;
    int scenes;  ///< in the store
    int current;
};
constexpr Case kCases[] = {{"beyondTheStore", 3, 9}, {"rightBehindTheLast", 2, 3}, {"empty", 0, 1}};

class UnstoredScene : public SceneFixture, public ::testing::WithParamInterface<Case> {
  protected:
    void openUnstored(const ProjectBuilder& builder = {}) {
        files = ProjectBuilder(builder)
                    .scenes(std::max(GetParam().scenes, 1))
                    .currentScene(static_cast<std::int16_t>(GetParam().current))
                    .build(projects.path());
        if (GetParam().scenes == 0) {
            truncateFile(files.storePath(1), 0);
        }
        before = readBytes(files.storePath(1));
        start({text(files.projectPath())});
        ASSERT_TRUE(shell->project().ProjectOpen);
        ASSERT_EQ(current(), GetParam().current);
    }
    bool isOn(const char* name) { return action(QString::fromLatin1(name)).isEnabled(); }
    /// Whether an entry can be chosen in the menu of an element.
    bool offers(QWidget& element, const char* entry) {
        auto& pressed = dynamic_cast<canvas::SceneElement&>(element);
        shell->actions().openMenu(pressed, onScreen({5, 5}), {5, 5});
        QMenu* menu = openMenu();
        if (menu == nullptr) {
            ADD_FAILURE() << "no menu";
            return false;
        }
        const bool on = control<QAction>(*menu, QString::fromLatin1(entry)).isEnabled();
        menu->close();
        return on;
    }
    void expectStoreAsItWas() { EXPECT_EQ(readBytes(files.storePath(1)), before); }

    std::string before;
};
INSTANTIATE_TEST_SUITE_P(Scenes, UnstoredScene, ::testing::ValuesIn(kCases),
                         [](const auto& each) { return std::string(each.param.name); });

TEST_P(UnstoredScene, OffersNothingThatEditsIt) {
    openUnstored();
    for (const char* name : {"scnmen(1)", "scnmen(3)", "Toolbar1(22)", "Toolbar1(23)"}) {
        EXPECT_FALSE(isOn(name)) << name;
    }
    for (const char* name : {"projmen(1)", "Toolbar1(10)", "runmen(0)", "Toolbar1(25)",
                             "Filemen(3)", "Toolbar1(6)", "Toolbar1(7)"}) {
        EXPECT_TRUE(isOn(name)) << name;
    }
    EXPECT_FALSE(offers(element(QStringLiteral("Image1")), "scnimage"));
    EXPECT_FALSE(offers(element(QStringLiteral("Image1")), "InsertLink"));
    EXPECT_TRUE(offers(element(QStringLiteral("Image1")), "EdCancel"));
    EXPECT_FALSE(offers(link(4), "dirprop"));
    EXPECT_FALSE(offers(link(4), "ResD"));
    // The zeroed record has an Ambient object in each slot.
    EXPECT_FALSE(offers(animation(7), "animprops"));
    EXPECT_FALSE(offers(animation(7), "removeAnim"));
    EXPECT_FALSE(element(QStringLiteral("ObjAlert")).isVisible());
}

TEST_P(UnstoredScene, NothingInItCanBeMoved) {
    openUnstored();
    ASSERT_TRUE(animation(20).isVisible());
    press({5, 5});
    EXPECT_FALSE(dragging().isDragging());
    release({50, 50});
    animation(20).setFocus();
    QTest::keyClick(&animation(20), Qt::Key_Right);
    EXPECT_EQ(animation(20).pos(), QPoint(0, 0));
    EXPECT_EQ(slot(20).SlotInt(2), 0);
}

TEST_P(UnstoredScene, ATestRunAndClosingGoOnAndWriteNothing) {
    openUnstored();
    action(QStringLiteral("runmen(0)")).trigger();
    EXPECT_EQ(programs.started.size(), 1);
    expectStoreAsItWas();
    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_FALSE(shell->project().ProjectOpen);
    EXPECT_TRUE(boxes.shown().empty()) << boxes.texts().join(u'|').toStdString();
    expectStoreAsItWas();
}

TEST_P(UnstoredScene, IsLeftWithoutASave) {
    openUnstored();
    previous();
    EXPECT_EQ(current(), std::max(GetParam().scenes, 1));
    EXPECT_TRUE(boxes.shown().empty());
    expectStoreAsItWas();
    EXPECT_EQ(isOn("scnmen(1)"), GetParam().scenes > 0) << "the other one has a record";
    EXPECT_EQ(isOn("Toolbar1(23)"), GetParam().scenes > 0);
}

TEST_P(UnstoredScene, IsFollowedByAnEmptySceneAlone) {
    openUnstored();
    withWindow(
        QStringLiteral("NewScenefrm"), [this] { action(QStringLiteral("projmen(1)")).trigger(); },
        [](QWidget& window) {
            const auto option = [&window](int number) -> QRadioButton& {
                return control<QRadioButton>(window, QStringLiteral("Option1(%1)").arg(number));
            };
            EXPECT_TRUE(option(0).isEnabled());
            EXPECT_TRUE(option(0).isChecked());
            EXPECT_FALSE(option(1).isEnabled());
            EXPECT_FALSE(option(2).isEnabled());
            control<QPushButton>(window, QStringLiteral("Command3")).click();
        });
    EXPECT_TRUE(boxes.shown().empty()) << boxes.texts().join(u'|').toStdString();
    const int added = GetParam().scenes + 1;
    EXPECT_EQ(current(), added);
    EXPECT_EQ(shell->project().NumberOfScenes, added);
    EXPECT_EQ(list("Combo1").count(), added + 1);
    EXPECT_TRUE(isOn("scnmen(1)"));
    EXPECT_TRUE(isOn("Toolbar1(23)"));
    const std::string after = readBytes(files.storePath(1));
    EXPECT_EQ(after.size(), before.size() + sizeof(store::SceneRecord));
    EXPECT_EQ(after.substr(0, before.size()), before);
}

class StoredScene : public SceneFixture {};

TEST_F(StoredScene, CanBeCopiedAndEdited) {
    open(ProjectBuilder().scenes(2).object(1, 3, 5, 100, 100));
    for (const char* name : {"scnmen(1)", "scnmen(3)", "Toolbar1(22)", "Toolbar1(23)"}) {
        EXPECT_TRUE(action(QString::fromLatin1(name)).isEnabled()) << name;
    }
    addScene(2);
    EXPECT_EQ(current(), 3);
    EXPECT_EQ(slot(3).SlotInt(2), 100);
}

}  // namespace
}  // namespace quorvel::test
