// Volumes and pans that were stored outside their range: what is shown is what is stored.
#include <gtest/gtest.h>

#include "objects/editor_author.h"

namespace quorvel::test {
namespace {

using store::HeaderInt;
using store::HeaderString;
using store::HotSpot;

class Levels : public EditorAuthor {
  protected:
    Levels() {
        open(ProjectBuilder()
                 .mmedia("a.wav", "a")
                 .mmedia("b.wav", "b")
                 .mmedia("tune.mid", "t")
                 .mmedia("d.avi", "d")
                 .mmedia("e.avi", "e"));
        store::ResetSlot(slot(1), store::ObjectType::hotSpot);
        main().view().ShowObject(1);
    }
    void putSound(const char* file, int volume, int pan = 0) {
        store::word(slot(1), HotSpot::Sound) = file;
        store::number(slot(1), HotSpot::SoundVolume) = static_cast<std::int16_t>(volume);
        store::number(slot(1), HotSpot::SoundPan) = static_cast<std::int16_t>(pan);
    }
    /// The author acts on the sounds of the HotSpot, then confirms.
    void edit(const std::function<void(const Hand&)>& author) {
        editObject(1, QStringLiteral("linkPropf"), [&](const Hand& hand) {
            hand.turnTo(1);
            author(hand);
            hand.click("Command6");
        });
    }
    int volume() { return store::number(slot(1), HotSpot::SoundVolume); }
    int pan() { return store::number(slot(1), HotSpot::SoundPan); }
};

TEST_F(Levels, AValueOutsideTheRangeIsShownAndStaysWhenAnotherFieldIsSaved) {
    putSound("a.wav", 500, -32768);
    edit([this](const Hand& hand) {
        EXPECT_EQ(hand.text("SV(1)"), QStringLiteral("500"));
        EXPECT_EQ(hand.slider("Hscroll1(1)").value(), 0) << "the nearest";
        EXPECT_EQ(hand.text("SP(1)"), QStringLiteral("-32768"));
        EXPECT_EQ(hand.slider("Hscroll2(1)").value(), -4000);
        EXPECT_FALSE(hand.button("Command1").isEnabled());
        heard();
        hand.click("Playwav(1)");
        EXPECT_EQ(heard(), QStringList(QStringLiteral("PlayWav a.wav 500 -32768 1 loop")));
        hand.click("Check1");
    });
    EXPECT_EQ(store::number(slot(1), HotSpot::NeedsItem), 1);
    EXPECT_EQ(volume(), 500);
    EXPECT_EQ(pan(), -32768);
}

TEST_F(Levels, NumbersOfASoundAreOffAndInFullColourWhileThereIsAFile) {
    const auto colourOf = [](const Hand& hand, const char* name) {
        const QLineEdit& box = hand.box(name);
        EXPECT_FALSE(box.isEnabled()) << name;
        return box.palette().color(QPalette::Disabled, QPalette::Text);
    };
    const QColor full = QApplication::palette().color(QPalette::Active, QPalette::Text);
    const QColor quiet = QApplication::palette().color(QPalette::Disabled, QPalette::Text);
    ASSERT_NE(full, quiet);
    putSound("a.wav", -400);
    edit([&](const Hand& hand) {
        for (const char* name : {"SV(1)", "SP(1)"}) {
            EXPECT_EQ(colourOf(hand, name), full) << name;
        }
        for (const char* name : {"SV(2)", "SP(2)"}) {
            EXPECT_EQ(colourOf(hand, name), quiet) << name << ": no file";
        }
        hand.doubleClick("SE(1)");
        for (const char* name : {"SV(1)", "SP(1)"}) {
            EXPECT_EQ(colourOf(hand, name), quiet) << name << ": the file was taken away";
        }
    });
}

TEST_F(Levels, AMovedSliderStoresWhereItStands) {
    putSound("a.wav", 500, 9000);
    edit([](const Hand& hand) {
        hand.slider("Hscroll1(1)").setValue(-1);
        EXPECT_EQ(hand.text("SV(1)"), QStringLiteral("-1"));
        hand.click("HRight(1)");
        EXPECT_EQ(hand.text("SP(1)"), QStringLiteral("4000")) << "though the slider stood there";
        EXPECT_TRUE(hand.button("Command1").isEnabled());
    });
    EXPECT_EQ(volume(), -1);
    EXPECT_EQ(pan(), 4000);
}

TEST_F(Levels, TakingTheFileAwayStoresZero) {
    putSound("a.wav", 500, 9000);
    edit([](const Hand& hand) {
        hand.doubleClick("SE(1)");
        EXPECT_EQ(hand.text("SV(1)"), QStringLiteral("0"));
        EXPECT_EQ(hand.text("SP(1)"), QStringLiteral("0"));
    });
    EXPECT_EQ(store::word(slot(1), HotSpot::Sound), "");
    EXPECT_EQ(volume(), 0);
    EXPECT_EQ(pan(), 0);
}

TEST_F(Levels, AVolumeShowsHowMuchItIsAndAPanHasTwoSidesAlike) {
    putSound("a.wav", -2000);
    edit([](const Hand& hand) {
        const auto sidesAlike = [&hand](const char* name) {
            QSlider& slider = hand.slider(name);
            const QImage seen = slider.grab().toImage();
            const auto at = [&seen](int eighths) {
                return seen.pixel(seen.width() * eighths / 8, seen.height() / 2);
            };
            return at(2) == at(6);
        };
        EXPECT_TRUE(sidesAlike("Hscroll2(1)"));
        EXPECT_FALSE(sidesAlike("Hscroll1(1)"));
    });
}

TEST_F(Levels, AnotherFileGivesThePanBothOfItsSidesBack) {
    putSound("", 0, 2500);
    edit([this](const Hand& hand) {
        QSlider& pan = hand.slider("Hscroll2(1)");
        EXPECT_EQ(pan.maximum(), 4000);
        choose(hand, "LSE(1)", "a.wav");
        EXPECT_EQ(pan.value(), 2500) << "as it is stored";
        hand.doubleClick("SE(1)");
        EXPECT_EQ(pan.maximum(), 0);
        choose(hand, "LSE(1)", "a.wav");
        EXPECT_EQ(pan.maximum(), 4000);
        EXPECT_EQ(hand.text("SP(1)"), QStringLiteral("0"));
        hand.click("HRight(1)");
    });
    EXPECT_EQ(pan(), 4000);
}

TEST_F(Levels, AnotherKindOfFileBringsTheVolumeIntoItsRange) {
    // The volume of a movie, beside a WAV.
    putSound("film.avi", 60);
    edit([this](const Hand& hand) {
        EXPECT_EQ(hand.text("SV(1)"), QStringLiteral("60"));
        choose(hand, "LSE(1)", "a.wav");
        EXPECT_EQ(hand.text("SV(1)"), QStringLiteral("0"));
    });
    EXPECT_EQ(volume(), 0);

    // It had been stored beside a WAV already.
    putSound("a.wav", 60);
    edit([this](const Hand& hand) {
        EXPECT_EQ(hand.text("SV(1)"), QStringLiteral("60"));
        choose(hand, "LSE(1)", "b.wav");
        EXPECT_EQ(hand.text("SV(1)"), QStringLiteral("0"));
    });
    EXPECT_EQ(volume(), 0);
    EXPECT_EQ(store::word(slot(1), HotSpot::Sound), "b.wav");
}

TEST_F(Levels, MusicOfAnyKindBeginsAtFullVolume) {
    for (const char* file : {"b.wav", "tune.mid"}) {
        scene().header(HeaderString::SceneSoundtrack) = "a.wav";
        scene().header(HeaderInt::SceneSoundtrackVolume) = 500;
        editScene([&](const Hand& hand) {
            EXPECT_EQ(hand.text("SV(0)"), QStringLiteral("500"));
            choose(hand, "locatebutton(1)", file);
            EXPECT_EQ(hand.text("SV(0)"), QStringLiteral("0"));
            hand.click("Command4");
        });
        EXPECT_EQ(scene().header(HeaderInt::SceneSoundtrackVolume), 0) << file;
    }
}

TEST_F(Levels, AMovieVolumeBelowItsRangeStaysUntilAnotherMovieIsChosen) {
    scene().header(HeaderString::SceneExitMovie) = "d.avi";
    scene().header(HeaderInt::SceneExitMovieVolume) = -600;
    editScene([](const Hand& hand) {
        EXPECT_EQ(hand.text("SV(5)"), QStringLiteral("-600"));
        EXPECT_EQ(hand.slider("Hscroll1(5)").value(), 0);
        hand.click("Check1");
        hand.click("Command4");
    });
    EXPECT_EQ(scene().header(HeaderInt::SceneExitMovieVolume), -600);
    editScene([this](const Hand& hand) {
        choose(hand, "LME(5)", "e.avi");
        EXPECT_EQ(hand.text("SV(5)"), QStringLiteral("0"));
        hand.click("Command4");
    });
    EXPECT_EQ(scene().header(HeaderInt::SceneExitMovieVolume), 0);
}

}  // namespace
}  // namespace quorvel::test
