// The sounds of a HotSpot: what each row plays, where its dialog begins, what stops it.
#include <gtest/gtest.h>

#include "objects/hotspot_fixture.h"

namespace quorvel::test {
namespace {

using store::HotSpot;

class HotSpotPreviews : public HotSpotEditor {
  protected:
    HotSpotPreviews() {
        openGame();
        put(HotSpot::Sound, "wind.wav");
        put(HotSpot::SuccessSound, "bang.wav");
        put(HotSpot::FailureSound, "wind.wav");
        put(HotSpot::FailureVolume, -300);
        put(HotSpot::FailurePan, 120);
    }
    void listen(const std::function<void(const Hand&)>& author) {
        edit([&](const Hand& hand) {
            hand.turnTo(1);
            heard();
            author(hand);
        });
    }
    static QString element(const char* name, int k) {
        return QStringLiteral("%1(%2)").arg(QString::fromLatin1(name)).arg(k);
    }
};

TEST_F(HotSpotPreviews, TheFailureSoundPlaysOnce) {
    listen([this](const Hand& hand) {
        hand.click("Playwav(1)");
        hand.click("Playwav(2)");
        heard();
        for (int again = 0; again < 2; ++again) {
            hand.click("Playwav(3)");
            EXPECT_EQ(heard(), (QStringList{QStringLiteral("StopAllWavs"),
                                            QStringLiteral("PlayWav wind.wav -300 120 3")}));
            EXPECT_EQ(hand.button("Playwav(3)").text(), QStringLiteral(">"));
            EXPECT_EQ(hand.button("Playwav(2)").text(), QStringLiteral(">"));
            EXPECT_EQ(hand.button("Playwav(1)").text(), QStringLiteral("[]"))
                << "the looping sound's button goes on showing what it did";
        }
        hand.slider("Hscroll1(3)").setValue(-310);
        hand.click("HRight(3)");
        EXPECT_EQ(heard(), (QStringList{QStringLiteral("SetWavVolume 3 -310"),
                                        QStringLiteral("SetWavPan 3 4000")}));
        hand.click("Playwav(1)");
        EXPECT_EQ(hand.button("Playwav(1)").text(), QStringLiteral(">"));
        EXPECT_EQ(heard(), QStringList(QStringLiteral("StopWav 1")));
    });
}

TEST_F(HotSpotPreviews, OpeningTheWindowPlaysAndStopsNothing) {
    heard();
    edit([this](const Hand&) { EXPECT_EQ(heard(), QStringList()); });
}

TEST_F(HotSpotPreviews, AnotherFileStopsTheSoundOfItsRow) {
    listen([this](const Hand& hand) {
        hand.click("Playwav(1)");
        heard();
        dialogs.choice = text(files.mmedia("bang.wav"));
        hand.click("LSE(1)");
        EXPECT_EQ(hand.text("SE(1)"), QStringLiteral("bang.wav"));
        EXPECT_EQ(heard(), QStringList(QStringLiteral("StopWav 1")));
        EXPECT_EQ(hand.button("Playwav(1)").text(), QStringLiteral(">"));
        EXPECT_TRUE(hand.slider("Hscroll1(1)").isEnabled());
        hand.click("Playwav(3)");
        heard();
        hand.click("LSE(3)");
        EXPECT_EQ(heard(), QStringList(QStringLiteral("StopWav 3")));
        hand.click("Command6");
    });
    EXPECT_EQ(word(HotSpot::Sound), "bang.wav");
    EXPECT_EQ(word(HotSpot::FailureSound), "bang.wav");
    EXPECT_EQ(number(HotSpot::FailureVolume), -300) << "another WAV keeps the levels";
}

TEST_F(HotSpotPreviews, EachRowAsksForAWav) {
    listen([this](const Hand& hand) {
        for (int k = 1; k <= 3; ++k) {
            hand.click(element("LSE", k).toLatin1());
            const forms::FileQuestion& asked = dialogs.asked.back();
            EXPECT_EQ(asked.title, QStringLiteral("Locate"));
            EXPECT_EQ(asked.filter, QStringLiteral("Wav Files (*.wav)|*.wav|"));
            EXPECT_EQ(asked.folder, text(files.mmedia("")));
            EXPECT_EQ(asked.fileName, hand.text(element("SE", k).toLatin1()));
        }
        EXPECT_FALSE(hand.button("Command1").isEnabled());
        dialogs.choice = QStringLiteral("/tmp/averylongname12.wav");
        hand.click("LSE(2)");
        ASSERT_EQ(boxes.texts().size(), 1);
        EXPECT_TRUE(boxes.texts().front().startsWith(
            QStringLiteral("Quorvel only supports filenames up to 11 characters long (15 "
                           "including the .xxx extension).")));
        EXPECT_EQ(hand.text("SE(2)"), QStringLiteral("bang.wav"));
        hand.turnTo(0);
        dialogs.choice.clear();
        hand.click("Command7");
        EXPECT_EQ(dialogs.asked.back().folder, text(files.gfx("")));
        EXPECT_FALSE(hand.button("Command1").isEnabled());
    });
}

TEST_F(HotSpotPreviews, ADoubleClickOnAnEmptyBoxCountsAsAChange) {
    put(HotSpot::Sound, "");
    listen([this](const Hand& hand) {
        hand.doubleClick("SE(1)");
        EXPECT_TRUE(hand.button("Command1").isEnabled());
        EXPECT_TRUE(hand.text("SE(1)").isEmpty());
        hand.click("Playwav(1)");
        EXPECT_EQ(heard(), QStringList()) << "nothing to play";
    });
}

TEST_F(HotSpotPreviews, RowsLookAlike) {
    listen([](const Hand& hand) {
        for (int k = 1; k <= 3; ++k) {
            SCOPED_TRACE(k);
            const auto named = [k](const char* name) { return element(name, k).toLatin1(); };
            EXPECT_TRUE(hand.box(named("SE")).isReadOnly());
            EXPECT_EQ(hand.button(named("LSE")).text(), QStringLiteral("..."));
            EXPECT_EQ(hand.button(named("LSE")).toolTip(), QStringLiteral("Locate"));
            const QSlider& volume = hand.slider(named("Hscroll1"));
            EXPECT_EQ(volume.minimum(), -4000);
            EXPECT_EQ(volume.maximum(), 0);
            EXPECT_EQ(volume.tickInterval(), 160);
            const QSlider& pan = hand.slider(named("Hscroll2"));
            EXPECT_EQ(pan.minimum(), -4000);
            EXPECT_EQ(pan.maximum(), 4000);
            EXPECT_EQ(pan.tickInterval(), 160);
            for (const auto& [box, tip] :
                 {std::pair{"SV", "-4000 to 0 (Full Volume)"}, std::pair{"SP", "-4000 to 4000"}}) {
                EXPECT_FALSE(hand.box(named(box)).isEnabled()) << box;
                EXPECT_EQ(hand.box(named(box)).toolTip(), QString::fromLatin1(tip));
            }
            for (const auto& [name, caption, tip] :
                 {std::tuple{"HLeft", "L", "Hard-Left"}, std::tuple{"Centr", "C", "Center"},
                  std::tuple{"HRight", "R", "Hard-Right"}}) {
                EXPECT_EQ(hand.button(named(name)).text(), QString::fromLatin1(caption));
                EXPECT_EQ(hand.button(named(name)).toolTip(), QString::fromLatin1(tip));
            }
            QStringList channels;
            for (int i = 0; i < hand.list(named("sChannelNum")).count(); ++i) {
                channels << hand.list(named("sChannelNum")).itemText(i);
            }
            EXPECT_EQ(channels.join(QLatin1Char(' ')),
                      QStringLiteral("(Auto/Index) Ch1 Ch2 Ch3 Ch4 Ch5 Ch6 Ch7 Ch8 Ch9 Ch10 Ch11 "
                                     "Ch12 Ch13 (Persistent) (Dialogue)"));
        }
    });
}

TEST_F(HotSpotPreviews, EscapeAndTheTitleBarStopWhatPlaysAndStoreNothing) {
    const store::ObjectSlot before = slot(kSlot);
    for (const bool byKey : {true, false}) {
        listen([&](const Hand& hand) {
            hand.click("Playwav(1)");
            hand.doubleClick("SE(2)");
            heard();
            hand.leave(byKey);
            EXPECT_EQ(hand.button("Playwav(1)").text(), QStringLiteral(">"));
        });
        const QStringList stopped = heard();
        for (const char* order : {"StopWav 1", "StopWav 2", "StopWav 3"}) {
            EXPECT_TRUE(stopped.contains(QString::fromLatin1(order))) << order;
        }
        EXPECT_TRUE(slot(kSlot) == before);
    }
}

}  // namespace
}  // namespace quorvel::test
