// Movies, music and sounds of a scene, through its window.
#include <gtest/gtest.h>

#include "objects/editor_author.h"

namespace quorvel::test {
namespace {

using store::HeaderInt;
using store::HeaderString;

class SceneMedia : public EditorAuthor {
  protected:
    SceneMedia() {
        open(ProjectBuilder()
                 .mmedia("a.wav", "a")
                 .mmedia("b.wav", "b")
                 .mmedia("in.avi", "i")
                 .mmedia("out.avi", "o")
                 .mmedia("waltz.MP3", "w")
                 .mmedia("jig.mid", "j"));
    }
    void put(HeaderString field, const char* text) { scene().header(field) = text; }
};

TEST_F(SceneMedia, AStoredMovieVolumeOfTenThousandLoadsAsAHundred) {
    put(HeaderString::SceneEnterMovie, "in.avi");
    scene().header(HeaderInt::SceneEnterMovieVolume) = 10000;
    scene().header(HeaderInt::SceneExitMovieVolume) = 101;
    editSceneMedia([](const Hand& hand) {
        EXPECT_EQ(hand.text("SV(4)"), QStringLiteral("100"));
        EXPECT_EQ(hand.slider("Hscroll1(4)").value(), 100);
        EXPECT_FALSE(hand.button("Command1").isEnabled());
        hand.click("Command2");
    });
    EXPECT_EQ(scene().header(HeaderInt::SceneEnterMovieVolume), 100) << "in memory, by opening";
    EXPECT_EQ(scene().header(HeaderInt::SceneExitMovieVolume), 100);
}

TEST_F(SceneMedia, AMovieChosenInAFreshSceneKeepsVolumeZero) {
    editSceneMedia([this](const Hand& hand) {
        EXPECT_FALSE(hand.button("Playmov(4)").isEnabled());
        EXPECT_FALSE(hand.slider("Hscroll1(4)").isEnabled());
        EXPECT_FALSE(hand.box("SV(4)").isEnabled());
        dialogs.choice = text(files.mmedia("in.avi"));
        hand.click("LME(4)");
        EXPECT_EQ(dialogs.asked.back().title, QStringLiteral("Locate"));
        EXPECT_EQ(dialogs.asked.back().filter,
                  QStringLiteral("AVI Files (*.avi)|*.avi|MPG Files (*.mpg)|*.mpg|All Supported "
                                 "Files (*.avi;*.mpg)|*.avi;*.mpg|"));
        EXPECT_TRUE(hand.button("Playmov(4)").isEnabled());
        EXPECT_TRUE(hand.slider("Hscroll1(4)").isEnabled());
        EXPECT_EQ(hand.slider("Hscroll1(4)").maximum(), 100);
        hand.click("Command4");
    });
    EXPECT_EQ(scene().header(HeaderString::SceneEnterMovie), "in.avi");
    EXPECT_EQ(scene().header(HeaderInt::SceneEnterMovieVolume), 0);
}

TEST_F(SceneMedia, AMoviePlaysWhileTheWindowMakesRoom) {
    put(HeaderString::SceneEnterMovie, "in.avi");
    put(HeaderString::SceneExitMovie, "out.avi");
    scene().header(HeaderInt::SceneEnterMovieVolume) = 70;
    editSceneMedia([this](const Hand& hand) {
        const QSize full = hand.window().size();
        hand.click("Playmov(4)");
        EXPECT_EQ(heard(), orders({"PlayMovie in.avi Scene 70"}));
        EXPECT_EQ(hand.button("Playmov(4)").text(), QStringLiteral("[]"));
        EXPECT_TRUE(hand.button("RestoreIt").isVisible());
        EXPECT_LE(hand.window().height(), 55);
        hand.click("Playmov(5)");
        EXPECT_EQ(heard(), QStringList()) << "one movie at a time";
        hand.click("RestoreIt");
        EXPECT_FALSE(hand.button("RestoreIt").isVisible());
        EXPECT_EQ(hand.window().size(), full);
        EXPECT_EQ(heard(), QStringList()) << "the movie goes on";
        hand.slider("Hscroll1(4)").setValue(30);
        EXPECT_EQ(heard(), orders({"SetMovieVolume 30"}));
        hand.click("Playmov(4)");
        EXPECT_EQ(heard(), orders({"StopMovie"}));
        EXPECT_EQ(hand.button("Playmov(4)").text(), QStringLiteral(">"));
        EXPECT_EQ(hand.window().size(), full);

        hand.click("Playmov(5)");
        Q_EMIT preview->movieEnded(QStringLiteral("Intro"));
        EXPECT_EQ(hand.button("Playmov(5)").text(), QStringLiteral("[]")) << "another's movie";
        Q_EMIT preview->movieEnded(QStringLiteral("Scene"));
        EXPECT_EQ(hand.button("Playmov(5)").text(), QStringLiteral(">"));
        EXPECT_EQ(hand.window().size(), full);
    });
}

TEST_F(SceneMedia, AMovieThatIsNotThereIsTold) {
    put(HeaderString::SceneExitMovie, "gone.avi");
    editSceneMedia([this](const Hand& hand) {
        hand.click("Playmov(5)");
        EXPECT_EQ(boxes.texts(),
                  QStringList(QStringLiteral("Could not play AVI Movie.  File not found.")));
        EXPECT_EQ(hand.button("Playmov(5)").text(), QStringLiteral(">"));
        EXPECT_FALSE(hand.button("RestoreIt").isVisible());
        hand.doubleClick("MEN(5)");
        EXPECT_EQ(hand.text("MEN(5)"), QString());
        EXPECT_FALSE(hand.button("Playmov(5)").isEnabled());
        EXPECT_TRUE(hand.button("Command1").isEnabled());
    });
}

TEST_F(SceneMedia, TheOrderToStopDisablesPreviewAndVolume) {
    put(HeaderString::SceneSoundtrack, "waltz.MP3");
    scene().header(HeaderInt::SceneSoundtrackVolume) = -800;
    editSceneMedia([](const Hand& hand) {
        EXPECT_EQ(hand.text("SV(0)"), QStringLiteral("-800"));
        hand.doubleClick("MidiFile");
        EXPECT_EQ(hand.text("MidiFile"), QString());
        EXPECT_EQ(hand.text("SV(0)"), QStringLiteral("0"));
        EXPECT_TRUE(hand.button("Command1").isEnabled());
        hand.click("Command1");
        hand.doubleClick("MidiFile");
        EXPECT_EQ(hand.text("MidiFile"), QStringLiteral("(Stop Sndtrk)"));
        EXPECT_FALSE(hand.button("PlayMidfile").isEnabled());
        EXPECT_FALSE(hand.slider("Hscroll1(0)").isEnabled());
        EXPECT_FALSE(hand.box("SV(0)").isEnabled());
        EXPECT_TRUE(hand.button("Command1").isEnabled());
        hand.click("Command4");
    });
    ASSERT_TRUE(shell->CloseProject());
    EXPECT_EQ(record(1).SceneSoundtrack.text(), "(Stop Sndtrk)");
}

TEST_F(SceneMedia, MusicIsHeardByItsKindAndFollowsItsVolume) {
    editSceneMedia([this](const Hand& hand) {
        const auto choose = [&](const char* name) {
            dialogs.choice = text(files.mmedia(name));
            hand.click("locatebutton(1)");
            heard();
        };
        choose("waltz.MP3");
        EXPECT_EQ(dialogs.asked.back().filter, forms::filters::kSoundtracks);
        hand.slider("Hscroll1(0)").setValue(-100);
        EXPECT_EQ(heard(), QStringList()) << "nothing plays";
        hand.click("PlayMidfile");
        EXPECT_EQ(hand.button("PlayMidfile").text(), QStringLiteral("[]"));
        hand.slider("Hscroll1(0)").setValue(-200);
        EXPECT_EQ(heard(), orders({"PlayMp3 waltz.MP3 -100 0", "SetMp3Volume -200"}));
        hand.click("PlayMidfile");
        EXPECT_TRUE(heard().contains(QStringLiteral("StopMp3")));
        EXPECT_EQ(hand.button("PlayMidfile").text(), QStringLiteral(">"));
        choose("a.wav");
        EXPECT_EQ(hand.text("SV(0)"), QStringLiteral("0")) << "another file is at full volume";
        hand.click("PlayMidfile");
        EXPECT_EQ(heard(), orders({"PlayWav a.wav 0 0 0"}));
        EXPECT_EQ(hand.button("PlayMidfile").text(), QStringLiteral("[]"));
        hand.get<QLineEdit>("SE(1)").setText(QStringLiteral("a.wav"));
        hand.click("Playwav(1)");
        EXPECT_EQ(hand.button("PlayMidfile").text(), QStringLiteral(">"))
            << "the sound has stopped all others";
        heard();
        choose("jig.mid");
        EXPECT_EQ(hand.button("PlayMidfile").text(), QStringLiteral(">"));
        hand.slider("Hscroll1(0)").setValue(-300);
        EXPECT_EQ(heard(), QStringList()) << "nothing plays";
        hand.click("PlayMidfile");
        hand.slider("Hscroll1(0)").setValue(-400);
        EXPECT_EQ(heard(), orders({"PlayMidi jig.mid -300", "SetMidiVolume -400"}));
        Q_EMIT preview->midiEnded();
        EXPECT_EQ(hand.button("PlayMidfile").text(), QStringLiteral(">"));
    });
}

TEST_F(SceneMedia, SoundsPlayOnceOrLoopAndEachStopsTheOthers) {
    put(HeaderString::SceneSound1File, "a.wav");
    put(HeaderString::SceneSound2File, "b.wav");
    put(HeaderString::SceneSound3File, "a.wav");
    scene().header(HeaderInt::SceneSound3Pan) = -4000;
    editSceneMedia([this](const Hand& hand) {
        hand.click("Playwav(1)");
        EXPECT_EQ(heard(), orders({"StopAllWavs", "PlayWav a.wav 0 0 1"}));
        hand.slider("Hscroll1(2)").setValue(-7);
        EXPECT_EQ(heard(), orders({"SetWavVolume 2 -7"}));
        hand.slider("Hscroll1(3)").setValue(-9);
        EXPECT_EQ(heard(), QStringList());
        hand.click("Playwav(3)");
        EXPECT_EQ(heard(), orders({"StopAllWavs", "PlayWav a.wav -9 -4000 3 loop"}));
        EXPECT_EQ(hand.button("Playwav(3)").text(), QStringLiteral("[]"));
        hand.slider("Hscroll1(3)").setValue(-10);
        EXPECT_EQ(heard(), orders({"SetWavVolume 3 -10"}));
    });
}

TEST_F(SceneMedia, ClosingStopsEverything) {
    put(HeaderString::SceneEnterMovie, "in.avi");
    put(HeaderString::SceneSoundtrack, "waltz.MP3");
    put(HeaderString::SceneSound3File, "a.wav");
    for (const char* button : {"Command4", "Command2"}) {
        editSceneMedia([this, button](const Hand& hand) {
            hand.click("Playwav(3)");
            hand.click("PlayMidfile");
            hand.click("Playmov(4)");
            hand.click("RestoreIt");
            heard();
            hand.click(button);
            const QStringList stopped = heard();
            for (const char* order : {"StopWav 3", "StopMp3", "StopMidi", "StopMovie"}) {
                EXPECT_TRUE(stopped.contains(QString::fromLatin1(order))) << order;
            }
        });
    }
}

}  // namespace
}  // namespace quorvel::test
