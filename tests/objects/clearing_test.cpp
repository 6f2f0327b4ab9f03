// Taking the file of a row away: by a double click, by the key Delete, and how the author learns of
// it.
#include <gtest/gtest.h>

#include "objects/hotspot_fixture.h"

namespace quorvel::test {
namespace {

using store::HeaderInt;
using store::HeaderString;
using store::HotSpot;

const QString kTip = QStringLiteral("Double-click or press Delete to take the file away");

class Clearing : public HotSpotEditor {
  protected:
    Clearing() {
        openGame();
        put(HotSpot::Image, "door.gif");
        put(HotSpot::Sound, "wind.wav");
        put(HotSpot::SuccessSound, "bang.wav");
        put(HotSpot::FailureSound, "wind.wav");
        for (const HeaderString file :
             {HeaderString::SceneSound1File, HeaderString::SceneSound2File,
              HeaderString::SceneSound3File, HeaderString::SceneSoundtrack}) {
            scene().header(file) = "wind.wav";
        }
        scene().header(HeaderString::SceneImage) = "cellar.gif";
        scene().header(HeaderString::SceneEnterMovie) = "in.avi";
        scene().header(HeaderString::SceneExitMovie) = "out.avi";
        scene().header(HeaderInt::SceneSound1Volume) = -700;
    }
    /// Presses a key in a box that a click has chosen.
    static void press(const Hand& hand, const char* name, Qt::Key key,
                      Qt::KeyboardModifiers with = {}) {
        QLineEdit& box = hand.box(name);
        QTest::mouseClick(&box, Qt::LeftButton);
        QTest::keyClick(&box, key, with);
    }
    static void expectCleared(const Hand& hand, const char* name) {
        SCOPED_TRACE(name);
        EXPECT_EQ(hand.box(name).toolTip().section(QLatin1Char('.'), 0, 0), kTip);
        EXPECT_FALSE(hand.button("Command1").isEnabled());
        press(hand, name, Qt::Key_Backspace);
        press(hand, name, Qt::Key_X);
        EXPECT_FALSE(hand.text(name).isEmpty()) << "no other key";
        EXPECT_FALSE(hand.button("Command1").isEnabled());
        press(hand, name, Qt::Key_Delete);
        EXPECT_EQ(hand.text(name), QString());
        EXPECT_TRUE(hand.button("Command1").isEnabled());
        hand.click("Command1");
        press(hand, name, Qt::Key_Delete);
        EXPECT_EQ(hand.text(name), QString());
        EXPECT_FALSE(hand.button("Command1").isEnabled()) << "there was nothing to take away";
    }
};

TEST_F(Clearing, DeleteTakesTheSoundsOfAHotSpotAway) {
    edit([](const Hand& hand) {
        hand.turnTo(1);
        for (const char* box : {"SE(1)", "SE(2)", "SE(3)"}) {
            expectCleared(hand, box);
        }
    });
    EXPECT_EQ(word(HotSpot::Sound), "");
    EXPECT_EQ(word(HotSpot::SuccessSound), "");
    EXPECT_EQ(word(HotSpot::FailureSound), "");
    EXPECT_EQ(word(HotSpot::Image), "door.gif");
}

TEST_F(Clearing, DeleteTakesTheFilesOfASceneAway) {
    editSceneMedia([](const Hand& hand) {
        for (const char* box : {"SE(1)", "SE(2)", "SE(3)", "MEN(4)", "MEN(5)", "MidiFile"}) {
            expectCleared(hand, box);
        }
        EXPECT_EQ(hand.text("SV(1)"), QStringLiteral("0"));
        EXPECT_TRUE(hand.box("MidiFile")
                        .toolTip()
                        .endsWith(QStringLiteral("to stop the soundtrack instead")));
    });
    action(QStringLiteral("Filemen(3)")).trigger();  // closes the project
    const store::SceneRecord stored = record(1);
    for (const std::string& file : {stored.SceneSound1File.text(), stored.SceneSound2File.text(),
                                    stored.SceneSound3File.text(), stored.SceneEnterMovie.text(),
                                    stored.SceneExitMovie.text(), stored.SceneSoundtrack.text()}) {
        EXPECT_EQ(file, "");
    }
    EXPECT_EQ(stored.SceneSound1Volume, 0);
    EXPECT_EQ(stored.SceneImage.text(), "cellar.gif");
}

TEST_F(Clearing, DeleteTakesTheOrderToStopAwayAndNeverGivesIt) {
    scene().header(HeaderString::SceneSoundtrack) = "(Stop Sndtrk)";
    editSceneMedia([](const Hand& hand) {
        press(hand, "MidiFile", Qt::Key_Delete);
        EXPECT_EQ(hand.text("MidiFile"), QString());
        press(hand, "MidiFile", Qt::Key_Delete);
        EXPECT_EQ(hand.text("MidiFile"), QString());
        hand.doubleClick("MidiFile");
        EXPECT_EQ(hand.text("MidiFile"), QStringLiteral("(Stop Sndtrk)"));
    });
}

TEST_F(Clearing, APictureIsNotTakenAway) {
    const auto expectKept = [](const Hand& hand) {
        EXPECT_EQ(hand.box("Text1").toolTip(), QString());
        const QString before = hand.text("Text1");
        press(hand, "Text1", Qt::Key_Delete);
        hand.doubleClick("Text1");
        EXPECT_EQ(hand.text("Text1"), before);
        EXPECT_FALSE(hand.button("Command1").isEnabled());
    };
    edit(expectKept);
    editScene(expectKept);
}

TEST_F(Clearing, AFileThatReplacesAnotherIsShownByAllObjectsThatHaveIt) {
    constexpr int kOther = 5;
    slot(kOther) = slot(kSlot);
    main().view().ShowObject(kOther);
    ASSERT_EQ(main().view().objectElement(kOther).size(), QSize(40, 30));
    const TempFolder pictures;
    shell->settings().WrongFolder = 1;  // copies
    const auto replaceBy = [&](int width, const Hand& hand) {
        writeBytes(pictures / "door.gif", stillGif(width, 50));
        dialogs.choice = text(pictures / "door.gif");
        boxes.answer(forms::Answer::yes);
        hand.click("Command7");
    };
    edit([&](const Hand& hand) {
        replaceBy(80, hand);
        hand.click("Command1");
        EXPECT_EQ(main().view().objectElement(kSlot).size(), QSize(80, 50));
        EXPECT_EQ(main().view().objectElement(kOther).size(), QSize(80, 50));
        replaceBy(70, hand);
        hand.click("Command3");
    });
    EXPECT_EQ(main().view().objectElement(kSlot).size(), QSize(70, 50))
        << "left by Cancel, but the file was replaced";
    EXPECT_EQ(main().view().objectElement(kOther).size(), QSize(70, 50));
    writeBytes(files.gfx("door.gif"), stillGif(60, 20));
    QEvent back(QEvent::ActivationChange);
    main().activateWindow();
    ASSERT_TRUE(waitUntil([this] { return main().isActiveWindow(); }));
    QApplication::sendEvent(&main(), &back);
    EXPECT_EQ(main().view().objectElement(kOther).size(), QSize(60, 20))
        << "the author comes back from a paint program";
}

}  // namespace
}  // namespace quorvel::test
