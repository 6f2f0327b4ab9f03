// What the lines below the boxes of files say in the windows that have such boxes.
#include <gtest/gtest.h>

#include "forms/events.h"
#include "forms/note_line.h"
#include "objects/editor_author.h"

namespace quorvel::test {
namespace {

using store::HeaderString;

const std::string kMidi = "MThd....";
const QString kSoundKinds = QStringLiteral("  Every player knows .wav.");
const QString kMusicKinds = QStringLiteral("  Every player knows .mp3, .wav and .mid.");

class FileNotes : public EditorAuthor {
  protected:
    FileNotes() {
        open(ProjectBuilder()
                 .mmedia("a.wav", "RIFF....WAVEfmt ")
                 .mmedia("b.wav", kMidi)
                 .mmedia("noise.ogg", "OggS")
                 .mmedia("in.avi", "RIFF....AVI LIST")
                 .mmedia("waltz.mp3", "w")
                 .gfx("a.gif", "GIF89a")
                 .gfx("b.tif", "II*"));
    }
    static forms::NoteLine& note(const Hand& hand, const char* box) {
        return hand.get<forms::NoteLine>(("NoteOf" + std::string(box)).c_str());
    }
    /// What is said below a box; empty when nothing is.
    static QString said(const Hand& hand, const char* box) {
        const forms::NoteLine& line = note(hand, box);
        EXPECT_EQ(line.isVisibleTo(&hand.window()), !line.text().isEmpty());
        return line.text();
    }
    void chooseImage(const Hand& hand, const char* button, const char* file) {
        dialogs.choice = text(files.gfx(file));
        hand.click(button);
    }
};

TEST_F(FileNotes, AChosenSoundThatIsNoneIsToldBelowItsBoxAndTaken) {
    editSceneMedia([this](const Hand& hand) {
        choose(hand, "LSE(1)", "b.wav");
        EXPECT_EQ(hand.text("SE(1)"), QStringLiteral("b.wav"));
        EXPECT_EQ(
            said(hand, "SE(1)"),
            QStringLiteral("\"b.wav\" was taken, but it holds MIDI music and not a WAV sound.") +
                kSoundKinds);
        EXPECT_EQ(said(hand, "SE(2)"), QString());
        choose(hand, "LSE(1)", "a.wav");
        EXPECT_EQ(said(hand, "SE(1)"), QString()) << "this one is as it should be";
        choose(hand, "LSE(1)", "noise.ogg");
        EXPECT_NE(said(hand, "SE(1)"), QString());
        hand.doubleClick("SE(1)");
        EXPECT_EQ(said(hand, "SE(1)"), QString()) << "the file is gone";
        hand.click("Command4");
    });
    EXPECT_EQ(boxes.texts(), QStringList());
}

TEST_F(FileNotes, EveryBoxOfTheWindowHasItsLine) {
    editSceneMedia([this](const Hand& hand) {
        choose(hand, "locatebutton(1)", "noise.ogg");
        EXPECT_EQ(said(hand, "MidiFile"),
                  QStringLiteral("\"noise.ogg\" was taken, but a player may not know its ending.") +
                      kMusicKinds);
        choose(hand, "LME(4)", "waltz.mp3");
        EXPECT_EQ(said(hand, "MEN(4)"),
                  QStringLiteral("\"waltz.mp3\" was taken, but a player may not know its ending.  "
                                 "Every player knows .avi and .mpg."));
        hand.turnTo(0);
        chooseImage(hand, "Command3", "b.tif");
        EXPECT_EQ(
            said(hand, "Text1"),
            QStringLiteral("\"b.tif\" was taken, but a player may not know its ending.  Every "
                           "player knows .bmp, .gif and .jpg."));
        chooseImage(hand, "Command3", "a.gif");
        EXPECT_EQ(said(hand, "Text1"),
                  QStringLiteral("The preview cannot show \"a.gif\".  It is damaged.  Every player "
                                 "knows .bmp, .gif and .jpg."));
        hand.click("Command4");
    });
}

TEST_F(FileNotes, TheRowsStandUnderEachOtherWithLinesAndWithout) {
    editSceneMedia([this](const Hand& hand) {
        const auto place = [&hand](const char* name) {
            const auto& widget = hand.get<QWidget>(name);
            return std::pair(widget.mapTo(&hand.window(), QPoint()).x(), widget.width());
        };
        const auto expectAligned = [&] {
            for (const char* file : {"MEN(4)", "MEN(5)", "MidiFile"}) {
                EXPECT_EQ(place(file), place("SE(1)")) << file;
            }
            for (const char* slider : {"Hscroll1(4)", "Hscroll1(5)", "Hscroll1(0)"}) {
                EXPECT_EQ(place(slider), place("Hscroll1(1)")) << slider;
            }
        };
        expectAligned();
        const int height = hand.window().height();
        choose(hand, "LME(4)", "waltz.mp3");
        choose(hand, "locatebutton(1)", "noise.ogg");
        forms::letEventsRun();
        expectAligned();
        EXPECT_EQ(hand.window().height(), height) << "there is room on this page";
        hand.click("Command2");
    });
}

TEST_F(FileNotes, APreviewThatCannotPlaySaysWhy) {
    scene().header(HeaderString::SceneSound1File) = "b.wav";
    scene().header(HeaderString::SceneSound2File) = "a.wav";
    scene().header(HeaderString::SceneSound3File) = "b.wav";
    scene().header(HeaderString::SceneSoundtrack) = "waltz.mp3";
    scene().header(HeaderString::SceneEnterMovie) = "in.avi";
    editSceneMedia([this](const Hand& hand) {
        preview->error = QStringLiteral("The file is not a sound.");
        Q_EMIT preview->wavEnded(1);
        EXPECT_EQ(said(hand, "SE(1)"), QString()) << "it was not this window that played";
        hand.click("Playwav(1)");
        Q_EMIT preview->wavEnded(1);
        EXPECT_EQ(said(hand, "SE(1)"),
                  QStringLiteral("The preview cannot play \"b.wav\".  The file is not a sound.") +
                      kSoundKinds);
        hand.click("Playwav(1)");
        EXPECT_EQ(said(hand, "SE(1)"), QString()) << "it is tried again";
        hand.click("Playwav(3)");
        Q_EMIT preview->wavEnded(3);
        EXPECT_NE(said(hand, "SE(3)"), QString());
        preview->error.clear();
        hand.click("Playwav(2)");
        Q_EMIT preview->wavEnded(2);
        EXPECT_EQ(said(hand, "SE(2)"), QString()) << "it was heard to its end";

        preview->error = QStringLiteral("It does not begin.");
        hand.click("PlayMidfile");
        Q_EMIT preview->mp3Ended();
        EXPECT_EQ(said(hand, "MidiFile"),
                  QStringLiteral("The preview cannot play \"waltz.mp3\".  It does not begin.") +
                      kMusicKinds);
        hand.click("Playmov(4)");
        Q_EMIT preview->movieEnded(QStringLiteral("Scene"));
        EXPECT_EQ(said(hand, "MEN(4)"),
                  QStringLiteral("The preview cannot play \"in.avi\".  It does not begin.  Every "
                                 "player knows .avi and .mpg."));
        EXPECT_EQ(said(hand, "MEN(5)"), QString());
        hand.click("Command4");
    });
}

TEST_F(FileNotes, MusicWithAnEndingThatNobodyKnowsIsToldByItsPreview) {
    scene().header(HeaderString::SceneSoundtrack) = "noise.ogg";
    editSceneMedia([](const Hand& hand) {
        hand.click("PlayMidfile");
        EXPECT_EQ(said(hand, "MidiFile"),
                  QStringLiteral("The preview cannot play \"noise.ogg\".  It does not know this "
                                 "ending.") +
                      kMusicKinds);
        hand.doubleClick("MidiFile");
        hand.doubleClick("MidiFile");
        EXPECT_EQ(hand.text("MidiFile"), QStringLiteral("(Stop Sndtrk)"));
        EXPECT_EQ(said(hand, "MidiFile"), QString());
    });
}

TEST_F(FileNotes, ThePreviewBringsBackWhatWasSaidOfTheFile) {
    editSceneMedia([this](const Hand& hand) {
        choose(hand, "LSE(1)", "b.wav");
        const QString remark = said(hand, "SE(1)");
        preview->error = QStringLiteral("There is no sound in it.");
        hand.click("Playwav(1)");
        Q_EMIT preview->wavEnded(1);
        EXPECT_NE(said(hand, "SE(1)"), remark);
        hand.click("Playwav(1)");
        EXPECT_EQ(said(hand, "SE(1)"), remark);
        hand.click("Command4");
    });
}

TEST_F(FileNotes, AWindowThatIsOpenedAgainSaysNothing) {
    editSceneMedia([this](const Hand& hand) {
        choose(hand, "LSE(1)", "b.wav");
        EXPECT_NE(said(hand, "SE(1)"), QString());
        hand.click("Command4");
    });
    editSceneMedia([](const Hand& hand) {
        EXPECT_EQ(hand.text("SE(1)"), QStringLiteral("b.wav"));
        EXPECT_EQ(said(hand, "SE(1)"), QString());
    });
}

TEST_F(FileNotes, AHotSpotTellsTheSame) {
    shell->actions().InsertObject(store::ObjectType::hotSpot, 1);
    editObject(1, QStringLiteral("linkPropf"), [this](const Hand& hand) {
        chooseImage(hand, "Command7", "b.tif");
        EXPECT_EQ(
            said(hand, "Text1"),
            QStringLiteral("\"b.tif\" was taken, but a player may not know its ending.  Every "
                           "player knows .gif, .jpg and .bmp."));
        hand.turnTo(1);
        choose(hand, "LSE(3)", "b.wav");
        EXPECT_NE(said(hand, "SE(3)"), QString());
        EXPECT_TRUE(note(hand, "SE(3)").isVisible());
        hand.click("Command6");
    });
}

}  // namespace
}  // namespace quorvel::test
