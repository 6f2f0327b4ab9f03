// Movies, music and sounds of a scene while the author changes files and closes the window.
#include <gtest/gtest.h>

#include "objects/editor_author.h"

namespace quorvel::test {
namespace {

using store::HeaderInt;
using store::HeaderString;

class ScenePreviews : public EditorAuthor {
  protected:
    ScenePreviews() {
        open(ProjectBuilder()
                 .mmedia("a.wav", "a")
                 .mmedia("b.wav", "b")
                 .mmedia("in.avi", "i")
                 .mmedia("out.mpg", std::string("\0\0\1\xBA", 4))
                 .mmedia("waltz.mp3", "w")
                 .mmedia("JIG.MID", "j")
                 .mmedia("noise.ogg", "n"));
        put(HeaderString::SceneEnterMovie, "in.avi");
        put(HeaderString::SceneSoundtrack, "waltz.mp3");
        put(HeaderString::SceneSound1File, "b.wav");
        put(HeaderString::SceneSound2File, "b.wav");
        put(HeaderString::SceneSound3File, "a.wav");
        scene().header(HeaderInt::SceneSound2Volume) = -20;
        scene().header(HeaderInt::SceneSound2Pan) = 30;
        scene().header(HeaderInt::SceneEnterMovieVolume) = 60;
    }
    void put(HeaderString field, const char* text) { scene().header(field) = text; }
};

TEST_F(ScenePreviews, AnExitSoundLeavesTheLoopingButtonAsItIs) {
    editSceneMedia([this](const Hand& hand) {
        hand.click("Playwav(3)");
        heard();
        hand.click("Playwav(2)");
        EXPECT_EQ(heard(), orders({"StopAllWavs", "PlayWav b.wav -20 30 2"}));
        EXPECT_EQ(hand.button("Playwav(2)").text(), QStringLiteral(">"));
        EXPECT_EQ(hand.button("Playwav(3)").text(), QStringLiteral("[]"))
            << "though its sound has been stopped";
        hand.click("Playwav(3)");
        EXPECT_EQ(heard(), orders({"StopWav 3"}));
        EXPECT_EQ(hand.button("Playwav(3)").text(), QStringLiteral(">"));
        hand.click("Playwav(3)");
        EXPECT_EQ(heard(), orders({"StopAllWavs", "PlayWav a.wav 0 0 3 loop"}));
    });
}

TEST_F(ScenePreviews, OpeningTheWindowPlaysAndStopsNothing) {
    scene().header(HeaderInt::SceneSound1Volume) = 500;
    heard();
    editScene([this](const Hand&) { EXPECT_EQ(heard(), QStringList()); });
}

TEST_F(ScenePreviews, MusicThatHasEndedCanBeStartedAgain) {
    editSceneMedia([this](const Hand& hand) {
        const auto caption = [&hand] { return hand.button("PlayMidfile").text(); };
        hand.click("PlayMidfile");
        EXPECT_EQ(caption(), QStringLiteral("[]"));
        Q_EMIT preview->mp3Ended();
        EXPECT_EQ(caption(), QStringLiteral(">"));
        choose(hand, "locatebutton(1)", "a.wav");
        hand.click("PlayMidfile");
        Q_EMIT preview->wavEnded(1);
        EXPECT_EQ(caption(), QStringLiteral("[]")) << "the end of a sound";
        Q_EMIT preview->wavEnded(0);
        EXPECT_EQ(caption(), QStringLiteral(">"));
    });
}

TEST_F(ScenePreviews, MusicThatIsAWavStopsByItsButtonAndWithAllSounds) {
    put(HeaderString::SceneSoundtrack, "a.wav");
    editSceneMedia([this](const Hand& hand) {
        hand.click("PlayMidfile");
        heard();
        hand.click("PlayMidfile");
        EXPECT_TRUE(heard().contains(QStringLiteral("StopWav 0")));
        hand.click("PlayMidfile");
        EXPECT_EQ(hand.button("PlayMidfile").text(), QStringLiteral("[]"));
        hand.click("Playwav(3)");
        EXPECT_EQ(hand.button("PlayMidfile").text(), QStringLiteral(">"));
    });
}

TEST_F(ScenePreviews, PansAreHeardAsVolumesAre) {
    editSceneMedia([this](const Hand& hand) {
        hand.click("HLeft(2)");
        hand.click("Centr(1)");
        EXPECT_EQ(heard(), orders({"SetWavPan 2 -4000"})) << "what stands there already is no move";
        hand.click("HRight(3)");
        EXPECT_EQ(heard(), QStringList()) << "the looping sound is silent";
        EXPECT_EQ(hand.text("SP(3)"), QStringLiteral("4000"));
        hand.click("Playwav(3)");
        heard();
        hand.click("Centr(3)");
        EXPECT_EQ(heard(), orders({"SetWavPan 3 0"}));
    });
}

TEST_F(ScenePreviews, EachDialogBearsItsFilterAndTitle) {
    constexpr const char* kWavs = "Wav Files (*.wav)|*.wav|";
    constexpr const char* kMusic =
        "MP3 Files (*.mp3)|*.mp3|Wav Files (*.wav)|*.wav|Midi Files (*.mid)|*.mid|MP3, Wav and "
        "Midi Files (*.mp3;*.wav;*.mid)|*.mp3;*.wav;*.mid|";
    constexpr const char* kFilms =
        "AVI Files (*.avi)|*.avi|MPG Files (*.mpg)|*.mpg|All Supported Files (*.avi;*.mpg)|*.avi;"
        "*.mpg|";
    struct Dialog {
        const char* button;
        const char* filter;
        const char* file;
    };
    editSceneMedia([&](const Hand& hand) {
        for (const Dialog& one :
             {Dialog{"LSE(1)", kWavs, "b.wav"}, Dialog{"LSE(2)", kWavs, "b.wav"},
              Dialog{"LSE(3)", kWavs, "a.wav"}, Dialog{"LME(4)", kFilms, "in.avi"},
              Dialog{"LME(5)", kFilms, ""}, Dialog{"locatebutton(1)", kMusic, "waltz.mp3"}}) {
            SCOPED_TRACE(one.button);
            EXPECT_EQ(hand.button(one.button).text(), QStringLiteral("..."));
            hand.click(one.button);
            EXPECT_EQ(dialogs.asked.back().title, QStringLiteral("Locate"));
            EXPECT_EQ(dialogs.asked.back().filter, QString::fromLatin1(one.filter));
            EXPECT_EQ(dialogs.asked.back().folder, text(files.mmedia("")));
            EXPECT_EQ(dialogs.asked.back().fileName, QString::fromLatin1(one.file));
        }
        EXPECT_FALSE(hand.button("Command1").isEnabled()) << "all of them were left";
    });
}

TEST_F(ScenePreviews, ButtonsAndLevelsSayWhatTheyAre) {
    editSceneMedia([](const Hand& hand) {
        for (const auto& [name, tip] :
             {std::pair{"Playmov(4)", "Play/ Stop"}, std::pair{"Playmov(5)", "Play/ Stop"},
              std::pair{"Playwav(1)", "Play"}, std::pair{"Playwav(2)", "Play"},
              std::pair{"Playwav(3)", "Play/ Stop"}, std::pair{"SV(0)", "-4000 to 0 (Full Volume)"},
              std::pair{"SV(1)", "-4000 to 0 (Full Volume)"}, std::pair{"SP(1)", "-4000 to 4000"},
              std::pair{"SV(4)", "0 to 100 (Full Volume)"},
              std::pair{"SV(5)", "0 to 100 (Full Volume)"}}) {
            EXPECT_EQ(hand.get<QWidget>(name).toolTip(), QString::fromLatin1(tip)) << name;
        }
        for (const auto& [name, lowest, highest, tick] :
             {std::tuple{"Hscroll1(0)", -4000, 0, 160}, std::tuple{"Hscroll1(1)", -4000, 0, 160},
              std::tuple{"Hscroll2(3)", -4000, 4000, 160}, std::tuple{"Hscroll1(4)", 0, 100, 5},
              std::tuple{"Hscroll1(5)", 0, 100, 5}}) {
            EXPECT_EQ(hand.slider(name).minimum(), lowest) << name;
            EXPECT_EQ(hand.slider(name).maximum(), highest) << name;
            EXPECT_EQ(hand.slider(name).tickInterval(), tick) << name;
        }
    });
}

TEST_F(ScenePreviews, AnotherFileStopsTheSoundOfItsRow) {
    editSceneMedia([this](const Hand& hand) {
        hand.click("Playwav(3)");
        heard();
        choose(hand, "LSE(3)", "b.wav");
        EXPECT_EQ(heard(), orders({"StopWav 3"}));
        EXPECT_EQ(hand.button("Playwav(3)").text(), QStringLiteral(">"));
        hand.click("Playwav(1)");
        heard();
        choose(hand, "LSE(1)", "a.wav");
        EXPECT_EQ(heard(), orders({"StopWav 1"}));
        hand.doubleClick("SE(2)");
        EXPECT_EQ(hand.text("SV(2)"), QStringLiteral("0"));
        EXPECT_FALSE(hand.button("Playwav(2)").isEnabled());
    });
}

TEST_F(ScenePreviews, AnotherFileStopsTheMovieOfItsRowAlone) {
    put(HeaderString::SceneExitMovie, "in.avi");
    editSceneMedia([this](const Hand& hand) {
        const QSize full = hand.window().size();
        hand.click("Playmov(4)");
        hand.click("RestoreIt");
        heard();
        choose(hand, "LME(5)", "out.mpg");
        EXPECT_EQ(heard(), QStringList());
        EXPECT_EQ(hand.button("Playmov(4)").text(), QStringLiteral("[]"));
        hand.slider("Hscroll1(5)").setValue(33);
        EXPECT_EQ(heard(), QStringList()) << "the volume of a movie that does not play";
        choose(hand, "LME(4)", "out.mpg");
        EXPECT_EQ(heard(), orders({"StopMovie"}));
        EXPECT_EQ(hand.button("Playmov(4)").text(), QStringLiteral(">"));
        EXPECT_EQ(hand.text("SV(4)"), QStringLiteral("60")) << "another movie, as loud";
        EXPECT_EQ(hand.window().size(), full);
        hand.click("Playmov(4)");
        EXPECT_EQ(heard(), orders({"PlayMovie out.mpg Scene 60"}));
        hand.click("RestoreIt");
        hand.doubleClick("MEN(4)");
        EXPECT_EQ(heard(), orders({"StopMovie"}));
        EXPECT_FALSE(hand.slider("Hscroll1(4)").isEnabled());
        EXPECT_FALSE(hand.box("SV(4)").isEnabled());
    });
}

TEST_F(ScenePreviews, AnotherSoundtrackStopsMusicAndSounds) {
    editSceneMedia([this](const Hand& hand) {
        hand.click("PlayMidfile");
        heard();
        choose(hand, "locatebutton(1)", "JIG.MID");
        const QStringList stopped = heard();
        for (const char* order : {"StopMp3", "StopMidi", "StopAllWavs"}) {
            EXPECT_TRUE(stopped.contains(QString::fromLatin1(order))) << order;
        }
        EXPECT_EQ(hand.button("PlayMidfile").text(), QStringLiteral(">"));
        EXPECT_TRUE(hand.button("Command1").isEnabled());
        hand.click("PlayMidfile");
        EXPECT_EQ(heard(), orders({"PlayMidi JIG.MID 0"})) << "letter case does not matter";
    });
}

TEST_F(ScenePreviews, AWheelTurnedOverASliderInPassingChangesNothing) {
    editSceneMedia([](const Hand& hand) {
        QSlider& slider = hand.slider("Hscroll1(4)");
        hand.box("MEN(4)").setFocus();
        const auto turn = [&hand] { hand.turnWheel("Hscroll1(4)"); };
        turn();
        EXPECT_EQ(slider.value(), 60);
        EXPECT_FALSE(hand.button("Command1").isEnabled());
        slider.setFocus();
        turn();
        EXPECT_LT(slider.value(), 60) << "a slider that has the keyboard follows the wheel";
        EXPECT_TRUE(hand.button("Command1").isEnabled());
    });
}

TEST_F(ScenePreviews, MusicOfAnotherKindStaysSilent) {
    put(HeaderString::SceneSoundtrack, "noise.ogg");
    editSceneMedia([this](const Hand& hand) {
        hand.click("PlayMidfile");
        EXPECT_EQ(heard(), QStringList());
        EXPECT_EQ(hand.button("PlayMidfile").text(), QStringLiteral(">"));
    });
}

TEST_F(ScenePreviews, TheOrderToStopIsOpenedWithTheVolumeThatIsStored) {
    put(HeaderString::SceneSoundtrack, "(Stop Sndtrk)");
    scene().header(HeaderInt::SceneSoundtrackVolume) = -800;
    editSceneMedia([this](const Hand& hand) {
        EXPECT_EQ(hand.text("MidiFile"), QStringLiteral("(Stop Sndtrk)"));
        EXPECT_EQ(hand.text("SV(0)"), QStringLiteral("-800"));
        for (const char* control : {"PlayMidfile", "Hscroll1(0)", "SV(0)"}) {
            EXPECT_FALSE(hand.get<QWidget>(control).isEnabled()) << control;
        }
        EXPECT_FALSE(hand.button("Command1").isEnabled());
        hand.click("locatebutton(1)");
        EXPECT_EQ(dialogs.asked.back().fileName, QString()) << "the order is no file";
        hand.turnTo(0);
        hand.click("Check1");
        hand.click("Command1");
        EXPECT_EQ(scene().header(HeaderInt::SceneSoundtrackVolume), -800);
        hand.turnTo(1);
        hand.doubleClick("MidiFile");
        EXPECT_EQ(hand.text("MidiFile"), QString());
        EXPECT_EQ(hand.text("SV(0)"), QStringLiteral("0"));
        EXPECT_TRUE(hand.button("Command1").isEnabled());
        hand.click("Command4");
    });
    EXPECT_EQ(scene().header(HeaderString::SceneSoundtrack), "");
    EXPECT_EQ(scene().header(HeaderInt::SceneSoundtrackVolume), 0);
}

TEST_F(ScenePreviews, ClosingWhileAMovieHasTheRoomStopsAllStoresNothingAndReturnsTheRoom) {
    const store::Scene before = scene();
    QSize full;
    editSceneMedia([&full](const Hand& hand) { full = hand.window().size(); });
    for (const bool byKey : {true, false}) {
        editSceneMedia([&](const Hand& hand) {
            hand.slider("Hscroll1(4)").setValue(10);
            hand.click("Playwav(3)");
            hand.click("PlayMidfile");
            hand.click("Playmov(4)");
            EXPECT_LE(hand.window().height(), 55);
            heard();
            hand.leave(byKey);
            for (const char* button : {"Playwav(3)", "PlayMidfile", "Playmov(4)"}) {
                EXPECT_EQ(hand.button(button).text(), QStringLiteral(">")) << button;
            }
        });
        const QStringList stopped = heard();
        for (const char* order :
             {"StopWav 1", "StopWav 2", "StopWav 3", "StopMp3", "StopMidi", "StopMovie"}) {
            EXPECT_TRUE(stopped.contains(QString::fromLatin1(order))) << order;
        }
        EXPECT_TRUE(scene() == before);
        editSceneMedia([&](const Hand& hand) {
            EXPECT_EQ(hand.window().size(), full);
            EXPECT_FALSE(hand.button("RestoreIt").isVisible());
            EXPECT_TRUE(hand.button("Playmov(4)").isVisible());
            EXPECT_EQ(hand.text("SV(4)"), QStringLiteral("60"));
        });
        heard();
    }
}

TEST_F(ScenePreviews, EnterWhileAMovieHasTheRoomClosesNothing) {
    editSceneMedia([](const Hand& hand) {
        hand.slider("Hscroll1(4)").setValue(10);
        hand.click("Playmov(4)");
        QTest::keyClick(&hand.window(), Qt::Key_Return);
        EXPECT_TRUE(hand.window().isVisible()) << "the author does not see what would be stored";
    });
    EXPECT_EQ(scene().header(HeaderInt::SceneEnterMovieVolume), 60);
}

}  // namespace
}  // namespace quorvel::test
