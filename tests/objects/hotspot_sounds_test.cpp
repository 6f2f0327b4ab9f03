// The three sounds of a HotSpot: files, levels and previews.
#include <gtest/gtest.h>

#include "objects/editor_author.h"

namespace quorvel::test {
namespace {

using store::HotSpot;

class HotSpotSounds : public EditorAuthor {
  protected:
    HotSpotSounds() {
        open(ProjectBuilder()
                 .mmedia("wind.wav", "w")
                 .mmedia("bang.WAV", "b")
                 .mmedia("film.avi", "f"));
        store::ObjectSlot& hotSpot = slot(1);
        store::ResetSlot(hotSpot, store::ObjectType::hotSpot);
        store::word(hotSpot, HotSpot::Sound) = "wind.wav";
        store::word(hotSpot, HotSpot::SuccessSound) = "bang.WAV";
        store::number(hotSpot, HotSpot::SoundVolume) = -600;
        store::number(hotSpot, HotSpot::SoundPan) = 250;
        main().view().ShowObject(1);
    }
    void edit(const std::function<void(const Hand&)>& author) {
        editObject(1, QStringLiteral("linkPropf"), [&](const Hand& hand) {
            hand.turnTo(1);
            heard();
            author(hand);
        });
    }
};

TEST_F(HotSpotSounds, TheLoopingSoundIsSwitchedOnAndOff) {
    edit([this](const Hand& hand) {
        EXPECT_EQ(hand.button("Playwav(1)").text(), QStringLiteral(">"));
        hand.click("Playwav(1)");
        EXPECT_EQ(hand.button("Playwav(1)").text(), QStringLiteral("[]"));
        EXPECT_EQ(heard(), orders({"PlayWav wind.wav -600 250 1 loop"}));
        hand.click("Playwav(1)");
        EXPECT_EQ(hand.button("Playwav(1)").text(), QStringLiteral(">"));
        EXPECT_EQ(heard(), orders({"StopWav 1"}));
    });
}

TEST_F(HotSpotSounds, ASoundPlayedOnceStopsAllAndTheLoopGoesOnShowingItsState) {
    edit([this](const Hand& hand) {
        hand.click("Playwav(1)");
        heard();
        hand.click("Playwav(2)");
        EXPECT_EQ(heard(), orders({"StopAllWavs", "PlayWav bang.WAV 0 0 2"}));
        EXPECT_EQ(hand.button("Playwav(2)").text(), QStringLiteral(">"));
        EXPECT_EQ(hand.button("Playwav(1)").text(), QStringLiteral("[]"));
        EXPECT_FALSE(hand.button("Playwav(3)").isEnabled()) << "it has no file";
    });
}

TEST_F(HotSpotSounds, LevelsAreShownAndFollowedByThePreview) {
    edit([this](const Hand& hand) {
        EXPECT_FALSE(hand.button("Command1").isEnabled());
        hand.slider("Hscroll1(1)").setValue(-1000);
        EXPECT_EQ(hand.text("SV(1)"), QStringLiteral("-1000"));
        EXPECT_TRUE(hand.button("Command1").isEnabled());
        EXPECT_EQ(heard(), QStringList()) << "the looping sound is silent";
        hand.click("Playwav(1)");
        heard();
        hand.slider("Hscroll1(1)").setValue(-900);
        hand.click("HLeft(1)");
        hand.click("Centr(1)");
        hand.click("HRight(1)");
        EXPECT_EQ(heard(), orders({"SetWavVolume 1 -900", "SetWavPan 1 -4000", "SetWavPan 1 0",
                                   "SetWavPan 1 4000"}));
        EXPECT_EQ(hand.text("SP(1)"), QStringLiteral("4000"));
        hand.slider("Hscroll1(2)").setValue(-50);
        EXPECT_EQ(heard(), orders({"SetWavVolume 2 -50"})) << "a sound played once always follows";
        hand.click("Command6");
    });
    EXPECT_EQ(store::number(slot(1), HotSpot::SoundVolume), -900);
    EXPECT_EQ(store::number(slot(1), HotSpot::SoundPan), 4000);
    EXPECT_EQ(store::number(slot(1), HotSpot::SuccessVolume), -50);
}

TEST_F(HotSpotSounds, ADoubleClickTakesTheFileAway) {
    edit([this](const Hand& hand) {
        hand.click("Playwav(1)");
        heard();
        hand.doubleClick("SE(1)");
        EXPECT_EQ(heard(), orders({"StopWav 1"}));
        EXPECT_EQ(hand.text("SE(1)"), QString());
        EXPECT_EQ(hand.text("SV(1)"), QStringLiteral("0"));
        EXPECT_EQ(hand.text("SP(1)"), QStringLiteral("0"));
        for (const char* control :
             {"Playwav(1)", "Hscroll1(1)", "Hscroll2(1)", "HLeft(1)", "sChannelNum(1)"}) {
            EXPECT_FALSE(hand.get<QWidget>(control).isEnabled()) << control;
        }
        for (const char* slider : {"Hscroll1(1)", "Hscroll2(1)"}) {
            EXPECT_EQ(hand.slider(slider).minimum(), -4000) << slider;
            EXPECT_EQ(hand.slider(slider).maximum(), 0) << slider;
            EXPECT_EQ(hand.slider(slider).value(), 0) << slider;
        }
        EXPECT_EQ(hand.box("SV(1)").toolTip(), QStringLiteral("-4000 to 0 (Full Volume)"));
        EXPECT_EQ(hand.box("SP(1)").toolTip(), QStringLiteral("-4000 to 4000"));
        EXPECT_EQ(hand.button("Playwav(1)").text(), QStringLiteral(">"));
        EXPECT_TRUE(hand.button("Command1").isEnabled());
        hand.click("Command6");
    });
    EXPECT_EQ(store::word(slot(1), HotSpot::Sound), "");
    EXPECT_EQ(store::number(slot(1), HotSpot::SoundVolume), 0);
}

TEST_F(HotSpotSounds, AFileThatIsNoWavHasAVolumeOfAHundredAndNoPan) {
    store::word(slot(1), HotSpot::Sound) = "film.avi";
    store::number(slot(1), HotSpot::SoundVolume) = 40;
    edit([](const Hand& hand) {
        EXPECT_EQ(hand.slider("Hscroll1(1)").minimum(), 0);
        EXPECT_EQ(hand.slider("Hscroll1(1)").maximum(), 100);
        EXPECT_EQ(hand.slider("Hscroll1(1)").tickInterval(), 5);
        EXPECT_EQ(hand.text("SV(1)"), QStringLiteral("40"));
        EXPECT_EQ(hand.box("SV(1)").toolTip(), QStringLiteral("0 to 100 (Full Volume)"));
        EXPECT_TRUE(hand.slider("Hscroll1(1)").isEnabled());
        EXPECT_FALSE(hand.slider("Hscroll2(1)").isEnabled());
        EXPECT_FALSE(hand.list("sChannelNum(1)").isEnabled());
        EXPECT_EQ(hand.slider("Hscroll1(2)").minimum(), -4000) << "letter case does not matter";
        EXPECT_EQ(hand.slider("Hscroll1(2)").tickInterval(), 160);
    });
}

TEST_F(HotSpotSounds, AChosenFileIsBroughtIn) {
    edit([this](const Hand& hand) {
        dialogs.choice = text(files.mmedia("wind.wav"));
        hand.click("LSE(3)");
        EXPECT_EQ(dialogs.asked.back().title, QStringLiteral("Locate"));
        EXPECT_EQ(dialogs.asked.back().filter, QStringLiteral("Wav Files (*.wav)|*.wav|"));
        EXPECT_EQ(hand.text("SE(3)"), QStringLiteral("wind.wav"));
        EXPECT_TRUE(hand.button("Playwav(3)").isEnabled());
        EXPECT_TRUE(hand.slider("Hscroll2(3)").isEnabled());
        hand.click("LSE(1)");
        EXPECT_EQ(dialogs.asked.back().fileName, QStringLiteral("wind.wav"))
            << "the dialog begins with the file of the field";
    });
}

TEST_F(HotSpotSounds, ClosingStopsWhatPlays) {
    for (const char* button : {"Command6", "Command3"}) {
        edit([this, button](const Hand& hand) {
            hand.click("Playwav(1)");
            heard();
            hand.click(button);
        });
        EXPECT_TRUE(heard().contains(QStringLiteral("StopWav 1"))) << button;
    }
}

}  // namespace
}  // namespace quorvel::test
