// What the window of the scene shows and does between opening and closing, control by control.
#include <gtest/gtest.h>

#include <QTextBrowser>

#include "objects/editor_author.h"

namespace quorvel::test {
namespace {

using store::HeaderInt;
using store::HeaderString;

class SceneBehaviour : public EditorAuthor {
  protected:
    SceneBehaviour() {
        open(ProjectBuilder()
                 .scenes(3)
                 .scene(1, "Hall", "hall.gif")
                 .scene(2, "Cellar", "cellar.gif")
                 .gfx("hall.gif", stillGif(70, 50))
                 .gfx("attic.gif", stillGif(80, 55))
                 .gfx("cellar.gif", stillGif(60, 40)));
    }
    /// The size of the picture that a place shows, or none.
    static QSize sizeShown(const Hand& hand, const char* name) {
        const auto& picture = hand.picture(name).picture();
        return picture == nullptr ? QSize() : picture->size();
    }
    static QString label(const Hand& hand, const char* name) {
        return hand.get<QLabel>(name).text();
    }
};

TEST_F(SceneBehaviour, ItsCaptionsBearTheirNames) {
    editScene([](const Hand& hand) {
        EXPECT_EQ(label(hand, "Label3(0)"), QStringLiteral("Scene #"));
        EXPECT_EQ(label(hand, "Label2(1)"), QStringLiteral("Internal Name >"));
        EXPECT_EQ(label(hand, "Label1"), QStringLiteral("If Flag"));
        EXPECT_EQ(label(hand, "Label12"), QStringLiteral("then switch to scene"));
        EXPECT_EQ(hand.check("Check2").text(), QStringLiteral("Check Flag"));
        EXPECT_EQ(hand.check("Check3").text(), QStringLiteral("ADD value to flag"));
        EXPECT_EQ(hand.box("FlagID(0)").toolTip(), QStringLiteral("(1-255)"));
        EXPECT_EQ(hand.box("FlagID(1)").toolTip(), QStringLiteral("(1-255)"));
        QStringList operators;
        for (int i = 0; i < hand.list("Combo2").count(); ++i) {
            operators << hand.list("Combo2").itemText(i);
        }
        EXPECT_EQ(operators.join(QLatin1Char(' ')), QStringLiteral("= <> < >"));
        EXPECT_EQ(hand.list("tags").currentText(), QStringLiteral("(None)"));
        EXPECT_EQ(hand.list("tags").count(), 4);
        for (const char* group : {"Frame1", "Frame2", "Frame3", "Frame4(1)", "Frame4(2)"}) {
            EXPECT_FALSE(hand.get<QGroupBox>(group).title().isEmpty()) << group;
        }
    });
}

TEST_F(SceneBehaviour, TheAddOfTheSetFlagTicksItEvenWhenCleared) {
    editScene([](const Hand& hand) {
        hand.click("Check3");
        hand.click("Check1");
        EXPECT_FALSE(hand.check("Check1").isChecked());
        hand.click("Check3");
        EXPECT_FALSE(hand.check("Check3").isChecked());
        EXPECT_TRUE(hand.check("Check1").isChecked());
        EXPECT_FALSE(hand.check("Check2").isChecked()) << "the other group";
    });
}

TEST_F(SceneBehaviour, EachControlOfTheFlagsEnablesApply) {
    const std::vector<std::function<void(const Hand&)>> changes = {
        [](const Hand& hand) { hand.click("Check1"); },
        [](const Hand& hand) { hand.click("Check2"); },
        [](const Hand& hand) { hand.click("Check3"); },
        [](const Hand& hand) { hand.pick("Combo2", 0); },
        [](const Hand& hand) { hand.pick("tags", 2); },
        [](const Hand& hand) { hand.type("FlagID(0)", QStringLiteral("3")); },
        [](const Hand& hand) { hand.type("Text3(1)", QStringLiteral("-")); },
    };
    for (const auto& change : changes) {
        editScene([&](const Hand& hand) {
            EXPECT_FALSE(hand.button("Command1").isEnabled());
            change(hand);
            EXPECT_TRUE(hand.button("Command1").isEnabled());
        });
    }
}

TEST_F(SceneBehaviour, FlagsTakeDigitsAndValuesAMinusAndFlagsHaveARange) {
    editScene([this](const Hand& hand) {
        for (const char* flag : {"FlagID(0)", "FlagID(1)"}) {
            beeps = 0;
            hand.type(flag, QStringLiteral("-a2"));
            EXPECT_EQ(hand.text(flag), QStringLiteral("2"));
            EXPECT_EQ(beeps, 2);
            hand.type(flag, QString());
            hand.box("Text2").setFocus();
            EXPECT_EQ(hand.text(flag), QStringLiteral("1"));
            EXPECT_EQ(beeps, 3) << "no flag has no number";
        }
        beeps = 0;
        for (const char* value : {"Text3(0)", "Text3(1)"}) {
            hand.type(value, QStringLiteral("-3.x"));
            EXPECT_EQ(hand.text(value), QStringLiteral("-3"));
        }
        EXPECT_EQ(beeps, 4);
        EXPECT_TRUE(boxes.shown().empty()) << "a beep says it all";
        hand.click("Command4");
    });
    EXPECT_EQ(scene().header(HeaderInt::SceneCheckFlagValue), -3);
    EXPECT_EQ(scene().header(HeaderInt::SceneSetFlagValue), -3);
    EXPECT_EQ(scene().header(HeaderInt::SceneCheckFlagId), 1);
}

TEST_F(SceneBehaviour, BackspaceTicksNothing) {
    editScene([](const Hand& hand) {
        for (const char* box : {"FlagID(0)", "Text3(0)", "FlagID(1)", "Text3(1)"}) {
            hand.box(box).setFocus();
            QTest::keyClick(&hand.box(box), Qt::Key_Backspace);
        }
        EXPECT_FALSE(hand.check("Check1").isChecked());
        EXPECT_FALSE(hand.check("Check2").isChecked());
    });
}

TEST_F(SceneBehaviour, AnotherLookAtTheWindowRefreshesTheThumbnailAlone) {
    scene().header(HeaderInt::SceneCheckFlagTarget) = 2;
    editScene([this](const Hand& hand) {
        EXPECT_EQ(sizeShown(hand, "thumbnail"), QSize(60, 40));
        hand.type("Text2", QStringLiteral("Great"));
        writeBytes(files.gfx("cellar.gif"), stillGif(90, 70));
        QEvent again(QEvent::WindowActivate);
        QApplication::sendEvent(&hand.window(), &again);
        EXPECT_EQ(sizeShown(hand, "thumbnail"), QSize(90, 70));
        EXPECT_EQ(hand.text("Text2"), QStringLiteral("Great")) << "no change is lost";
        EXPECT_TRUE(hand.button("Command1").isEnabled());
        hand.pick("tags", 3);
        EXPECT_EQ(hand.picture("thumbnail").picture(), nullptr) << "a scene without an image";
    });
}

TEST_F(SceneBehaviour, AChosenImageIsShownAndKeptByNameAlone) {
    editScene([this](const Hand& hand) {
        hand.click("Command3");
        EXPECT_FALSE(hand.button("Command1").isEnabled()) << "the dialog was left";
        EXPECT_EQ(dialogs.asked.back().folder, text(files.gfx("")));
        EXPECT_EQ(dialogs.asked.back().fileName, QStringLiteral("hall.gif"));
        dialogs.choice = text(files.gfx("attic.gif"));
        hand.click("Command3");
        EXPECT_EQ(hand.text("Text1"), QStringLiteral("attic.gif"));
        EXPECT_EQ(sizeShown(hand, "Image1"), QSize(80, 55));
        EXPECT_TRUE(hand.button("Command1").isEnabled());
        hand.click("Command2");
    });
    EXPECT_EQ(scene().header(HeaderString::SceneImage), "hall.gif");
    EXPECT_EQ(main().view().sceneImageSize(), QSize(70, 50));
}

TEST_F(SceneBehaviour, ASceneWithoutAnImageHasAnEmptyCanvas) {
    scene().header(HeaderString::SceneImage) = "";
    EXPECT_EQ(main().view().sceneImageSize(), QSize(70, 50));
    editScene([](const Hand& hand) {
        EXPECT_EQ(hand.picture("Image1").picture(), nullptr);
        hand.click("Check1");
        hand.click("Command1");
    });
    EXPECT_TRUE(main().view().sceneImageSize().isEmpty());
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(SceneBehaviour, EscapeAndTheTitleBarCancelAndEnterIsOk) {
    const store::Scene before = scene();
    for (const bool byKey : {true, false}) {
        editScene([&](const Hand& hand) {
            hand.type("Text2", QStringLiteral("Attic"));
            hand.pick("tags", 2);
            if (byKey) {
                QTest::keyClick(&hand.box("Text2"), Qt::Key_Escape);
            } else {
                hand.window().close();
            }
            EXPECT_FALSE(hand.window().isVisible());
        });
        EXPECT_TRUE(scene() == before);
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            EXPECT_NE(window->objectName(), QStringLiteral("sceneimage")) << "it is unloaded";
        }
    }
    editScene([](const Hand& hand) {
        hand.type("Text2", QStringLiteral("Attic"));
        QTest::keyClick(&hand.box("Text2"), Qt::Key_Return);
        EXPECT_FALSE(hand.window().isVisible());
    });
    EXPECT_EQ(scene().header(HeaderString::SceneName), "Attic");
}

TEST_F(SceneBehaviour, OkOfACleanWindowStoresNothing) {
    scene().header(HeaderInt::SceneCheckFlagOn) = 7;
    const store::Scene before = scene();
    editScene([](const Hand& hand) {
        EXPECT_TRUE(hand.check("Check2").isChecked());
        hand.click("Command4");
    });
    EXPECT_TRUE(scene() == before);
}

TEST_F(SceneBehaviour, NothingIsWrittenBeforeTheSceneIsSaved) {
    const std::string bytes = recordBytes(1);
    editScene([](const Hand& hand) {
        hand.type("Text2", QStringLiteral("Attic"));
        hand.click("Command4");
    });
    EXPECT_EQ(recordBytes(1), bytes);
    ASSERT_TRUE(shell->CloseProject());
    EXPECT_EQ(record(1).SceneName.text(), "Attic");
}

TEST_F(SceneBehaviour, ItsHelpIsThatOfTheScene) {
    editScene([](const Hand& hand) { hand.click("Command5"); });
    QWidget* help = visibleWindow(QStringLiteral("HelpWindow"));
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(control<QTextBrowser>(*help, QStringLiteral("Page")).source().fileName(),
              QStringLiteral("scene-properties.html"));
}

}  // namespace
}  // namespace quorvel::test
