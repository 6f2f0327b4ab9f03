// The rules of the HotSpot window, through the window and the bytes.
#include <gtest/gtest.h>

#include "objects/hotspot_fixture.h"
#include "support/windows/tip_reader.h"

namespace quorvel::test {
namespace {

using store::HotSpot;

const QString kTooSmall = QStringLiteral("HotSpot size is too small!  Minimum size is 5h X 5w.");

TEST_F(HotSpotEditor, AFreshHotSpotShowsItsDefaults) {
    openGame();
    edit([this](const Hand& hand) {
        EXPECT_EQ(hand.window().windowTitle(), QStringLiteral("\"HotSpot\" Object Properties"));
        EXPECT_EQ(shell->actions().CurObj, kSlot);
        EXPECT_EQ(hand.get<QLabel>("numbr").text(), QStringLiteral("3"));
        EXPECT_EQ(hand.list("Combo1(1)").currentText(), QStringLiteral("HOTSPOT"));
        EXPECT_TRUE(hand.option("Option1(1)").isChecked());
        EXPECT_TRUE(hand.option("Option2(1)").isChecked());
        EXPECT_EQ(hand.list("LnkScn").currentText(), QStringLiteral("(None)"));
        EXPECT_TRUE(hand.option("Option3(1)").isChecked());
        EXPECT_TRUE(hand.option("Option4(0)").isChecked());
        EXPECT_EQ(hand.list("sChannelNum(3)").currentText(), QStringLiteral("(Dialogue)"));
        EXPECT_EQ(hand.list("sChannelNum(1)").currentText(), QStringLiteral("(Auto/Index)"));
        EXPECT_EQ(hand.list("Combo3").currentText(), QStringLiteral("Independent"))
            << "an empty group is read as 0";
        EXPECT_FALSE(hand.button("Command1").isEnabled());
        EXPECT_EQ(hand.text("FlagID(0)"), QStringLiteral("1"));
        for (const char* control : {"Playwav(1)", "Hscroll1(1)", "Hscroll2(1)", "sChannelNum(1)",
                                    "HLeft(1)", "Text2(0)", "Text2(1)"}) {
            EXPECT_FALSE(hand.get<QWidget>(control).isEnabled()) << control;
        }
    });
    EXPECT_EQ(shell->actions().CurObj, 0);
}

TEST_F(HotSpotEditor, SaysTheWholeOfItsTexts) {
    openGame();
    edit([](const Hand& hand) {
        hand.expectTexts(
            {"Object Image",
             "HotSpot Style",
             "ImageSpot  (Use Image)",
             "QuickSpot  (No Image)",
             "Height >",
             "Width >",
             "Animation Style (Applies only if object is animated)",
             "Looping",
             "Ping-Pong",
             "Responsive",
             "Click Control",
             "Can only be clicked once (per scene view)",
             "Link To:",
             "Scene",
             "Map",
             "Mousepointer",
             "Visibility",
             "Always visible",
             "Visible when:",
             "Flag",
             "Set Flag",
             "Set Flag (Occurs immediately when link is clicked)",
             "ADD value to flag",
             "Sound Effects (Loops until player clicks on the HotSpot)",
             "Success Sound (Played when player successfully clicks on the HotSpot)",
             "Requires an Item",
             "Requires an item ",
             "Item required >",
             "Player keeps this item",
             "Failure Sound - No Item (Played only when player tries clicking without an item)",
             "Grouping >",
             "Apply",
             "Cancel",
             "OK",
             "Help",
             "Wav File >",
             "Vol >",
             "Pan >",
             "Wav Ch>",
             "L",
             "C",
             "R",
             "...",
             ">",
             "Object Index #"});
        EXPECT_EQ(hand.box("SV(1)").toolTip(), QStringLiteral("-4000 to 0 (Full Volume)"));
        EXPECT_EQ(hand.box("SP(2)").toolTip(), QStringLiteral("-4000 to 4000"));
        EXPECT_EQ(hand.button("LSE(3)").toolTip(), QStringLiteral("Locate"));
        EXPECT_EQ(hand.box("FlagID(0)").toolTip(), QStringLiteral("(1-255)"));
        EXPECT_EQ(hand.list("Combo3").itemText(10), QStringLiteral("Group 10"));
        EXPECT_EQ(hand.list("sChannelNum(2)").count(), 16);
        EXPECT_EQ(hand.list("sChannelNum(2)").itemText(13), QStringLiteral("Ch13"));
        EXPECT_EQ(hand.list("sChannelNum(2)").itemText(14), QStringLiteral("(Persistent)"));
    });
}

TEST_F(HotSpotEditor, AQuickSpotOfFiveByFiveIsSavedAndASmallerOneRefused) {
    openGame();
    edit([this](const Hand& hand) {
        hand.click("Option4(1)");
        const store::ObjectSlot before = slot(kSlot);
        std::size_t refused = 0;
        for (const auto& [height, width] :
             {std::pair{"4", "100"}, std::pair{"100", "4"}, std::pair{"", "5"}}) {
            hand.type("Text2(0)", QString::fromLatin1(height));
            hand.type("Text2(1)", QString::fromLatin1(width));
            hand.click("Command6");
            EXPECT_TRUE(hand.window().isVisible());
            EXPECT_EQ(
                hand.window().focusWidget(),
                &hand.get<QLineEdit>(*height == '4' || *height == '\0' ? "Text2(0)" : "Text2(1)"))
                << "the box that has to be corrected";
            EXPECT_TRUE(hand.button("Command1").isEnabled());
            ASSERT_EQ(boxes.shown().size(), ++refused);
            EXPECT_EQ(boxes.texts().back(), kTooSmall);
            EXPECT_EQ(boxes.shown().back().icon, forms::Box::Icon::exclamation);
            EXPECT_TRUE(slot(kSlot) == before);
        }
        hand.type("Text2(0)", QStringLiteral("5"));
        hand.type("Text2(1)", QStringLiteral("5"));
        hand.click("Command6");
        EXPECT_FALSE(hand.window().isVisible());
    });
    EXPECT_EQ(number(HotSpot::QuickSpot), 1);
    EXPECT_EQ(word(HotSpot::QuickHeight), "5");
    EXPECT_EQ(quickSpot().geometry(), QRect(100, 120, 5, 5));
    EXPECT_TRUE(quickSpot().isVisible());
    EXPECT_FALSE(animation().isVisible());
}

TEST_F(HotSpotEditor, TheSizeTakesDigitsAlone) {
    openGame();
    edit([this](const Hand& hand) {
        hand.click("Option4(1)");
        hand.type("Text2(0)", QStringLiteral("-1x2"));
        EXPECT_EQ(hand.text("Text2(0)"), QStringLiteral("12"));
        EXPECT_EQ(beeps, 2);
    });
}

TEST_F(HotSpotEditor, AnImageSpotWithoutAFileShowsThePlaceholderAndSavesAnEmptyName) {
    openGame();
    put(HotSpot::Image, "door.gif");
    put(HotSpot::QuickSpot, 1);
    edit([this](const Hand& hand) {
        boxes.answer(forms::Answer::yes);
        hand.click("Option4(1)");
        EXPECT_EQ(hand.text("Text1"), QString());
        EXPECT_EQ(hand.picture("SampleGfx").picture(), nullptr);
        hand.click("Option4(0)");
        EXPECT_EQ(hand.text("Text2(0)"), QStringLiteral("64"));
        EXPECT_EQ(hand.text("Text2(1)"), QStringLiteral("64"));
        hand.click("Command6");
    });
    EXPECT_EQ(word(HotSpot::Image), "");
    EXPECT_TRUE(animation().isVisible());
    EXPECT_EQ(animation().size(), QSize(64, 64));
}

TEST_F(HotSpotEditor, ChoosingAQuickSpotAsksWhatBecomesOfTheImage) {
    openGame();
    put(HotSpot::Image, "door.gif");
    edit([this](const Hand& hand) {
        EXPECT_EQ(hand.text("Text2(0)"), QStringLiteral("30")) << "the size of its image";
        EXPECT_EQ(hand.text("Text2(1)"), QStringLiteral("40"));
        boxes.answer(forms::Answer::no);
        hand.click("Option4(1)");
        EXPECT_EQ(boxes.texts().back(),
                  QStringLiteral("The style is set to QuickSpot (no image), but there is an image "
                                 "file chosen.  Would you like to remove the image from this "
                                 "object's Image Property?"));
        EXPECT_EQ(hand.text("Text1"), QStringLiteral("door.gif"));
        EXPECT_TRUE(hand.box("Text2(0)").isEnabled());
        hand.click("Command6");
    });
    EXPECT_EQ(word(HotSpot::Image), "door.gif") << "it stays while the style is QuickSpot";
    EXPECT_EQ(number(HotSpot::QuickSpot), 1);
    EXPECT_EQ(quickSpot().size(), QSize(40, 30));
}

TEST_F(HotSpotEditor, AChosenImageMakesItAnImageSpotOfThatSize) {
    openGame();
    put(HotSpot::QuickSpot, 1);
    put(HotSpot::QuickHeight, "50");
    put(HotSpot::QuickWidth, "60");
    edit([this](const Hand& hand) {
        EXPECT_EQ(hand.text("Text2(0)"), QStringLiteral("50"));
        dialogs.choice = text(files.gfx("flag.gif"));
        hand.click("Command7");
        ASSERT_EQ(dialogs.asked.size(), 1U);
        EXPECT_EQ(dialogs.asked[0].title, QStringLiteral("Locate an image for this object"));
        EXPECT_EQ(dialogs.asked[0].filter,
                  QStringLiteral("GIF Files (*.gif)|*.gif|JPG Files (*.jpg)|*.jpg|Bitmap Files "
                                 "(*.bmp)|*.bmp|All supported Files (*.gif;*.jpg;*.bmp)|*.gif;"
                                 "*.jpg;*.bmp|"));
        EXPECT_EQ(hand.text("Text1"), QStringLiteral("flag.gif"));
        EXPECT_TRUE(hand.option("Option4(0)").isChecked());
        EXPECT_EQ(hand.text("Text2(0)"), QStringLiteral("25"));
        EXPECT_EQ(hand.text("Text2(1)"), QStringLiteral("20"));
        EXPECT_FALSE(hand.box("Text2(0)").isEnabled());
        EXPECT_TRUE(hand.button("Command1").isEnabled());
        hand.click("Command1");
        EXPECT_TRUE(animation().isVisible()) << "Apply shows it at once";
        EXPECT_EQ(animation().size(), QSize(20, 25));
        EXPECT_FALSE(hand.button("Command1").isEnabled());
        hand.click("Command3");
    });
    EXPECT_EQ(word(HotSpot::Image), "flag.gif") << "Cancel after Apply takes nothing back";
}

TEST_F(HotSpotEditor, ALeftDialogAndARefusedNameChangeNothing) {
    openGame();
    edit([this](const Hand& hand) {
        hand.click("Command7");
        hand.click("LSE(1)");
        dialogs.choice = QStringLiteral("/tmp/averylongname12.wav");
        hand.click("LSE(1)");
        EXPECT_EQ(boxes.texts().size(), 1);
        EXPECT_EQ(hand.text("SE(1)"), QString());
        EXPECT_FALSE(hand.button("Command1").isEnabled());
    });
}

TEST_F(HotSpotEditor, AHotSpotToTheMapKeepsItsScene) {
    openGame();
    put(HotSpot::TargetScene, 2);
    edit([](const Hand& hand) {
        EXPECT_TRUE(hand.picture("Image2").isEnabled());
        hand.click("Option2(2)");
        EXPECT_FALSE(hand.picture("Image2").isEnabled());
        EXPECT_TRUE(hand.list("LnkScn").isEnabled());
        hand.click("Command6");
    });
    EXPECT_EQ(number(HotSpot::TargetKind), 2);
    EXPECT_EQ(number(HotSpot::TargetScene), 2);
    ASSERT_TRUE(shell->CloseProject());
    EXPECT_EQ(record(1).Slots[kSlot - 1].SlotInt4To29[16 - 4], 2);
}

TEST_F(HotSpotEditor, APickedSceneIsShownAndMakesItTheTarget) {
    openGame();
    put(HotSpot::TargetKind, 2);
    scene().header(store::HeaderString::SceneImage) = "door.gif";
    put(HotSpot::TargetScene, 1);
    edit([](const Hand& hand) {
        EXPECT_NE(hand.picture("Image2").picture(), nullptr) << "the canvas, not the store";
        EXPECT_FALSE(hand.picture("Image2").isEnabled()) << "it leads to the map";
        hand.pick("LnkScn", 2);
        EXPECT_TRUE(hand.option("Option2(1)").isChecked());
        EXPECT_TRUE(hand.picture("Image2").isEnabled());
        ASSERT_NE(hand.picture("Image2").picture(), nullptr);
        EXPECT_EQ(hand.picture("Image2").picture()->size(), QSize(60, 40));
        hand.pick("LnkScn", 1);
        EXPECT_EQ(hand.picture("Image2").picture(), nullptr) << "the store has no picture yet";
        hand.pick("LnkScn", 0);
        EXPECT_EQ(hand.picture("Image2").picture(), nullptr);
    });
}

TEST_F(HotSpotEditor, TheStyleRunsOnTheSampleAndOnTheCanvas) {
    openGame();
    put(HotSpot::Image, "door.gif");
    edit([](const Hand& hand) {
        const auto mode = [&hand] { return hand.picture("SampleGfx").playhead().mode(); };
        EXPECT_EQ(mode(), forms::DisplayMode::loop);
        hand.click("Option1(2)");
        EXPECT_EQ(mode(), forms::DisplayMode::pingPong);
        hand.click("Option1(3)");
        EXPECT_EQ(mode(), forms::DisplayMode::loop);
        hand.click("Option1(2)");
        hand.click("Command6");
    });
    auto& object = dynamic_cast<canvas::PictureElement&>(animation());
    EXPECT_EQ(object.playhead().mode(), forms::DisplayMode::pingPong);
    edit([](const Hand& hand) {
        EXPECT_EQ(hand.picture("SampleGfx").playhead().mode(), forms::DisplayMode::pingPong)
            << "from the opening on";
    });
}

TEST_F(HotSpotEditor, BordersFollowASavedSize) {
    openGame();
    put(HotSpot::QuickSpot, 1);
    put(HotSpot::QuickHeight, "50");
    put(HotSpot::QuickWidth, "60");
    shell->ToggleBorders(true);
    edit([](const Hand& hand) {
        hand.type("Text2(1)", QStringLiteral("70"));
        hand.click("Command6");
    });
    EXPECT_EQ(control<QWidget>(main(), QStringLiteral("hilite(3)")).geometry(),
              QRect(99, 119, 72, 52));
}

TEST_F(HotSpotEditor, ASecondActivationLosesNoChange) {
    openGame();
    edit([](const Hand& hand) {
        hand.type("FlagID(0)", QStringLiteral("77"));
        QEvent again(QEvent::WindowActivate);
        QApplication::sendEvent(&hand.window(), &again);
        EXPECT_EQ(hand.text("FlagID(0)"), QStringLiteral("77"));
        EXPECT_TRUE(hand.button("Command1").isEnabled());
    });
}

TEST_F(HotSpotEditor, AnInsertedHotSpotIsFilledInAtOnceAfterItsQuickTip) {
    openGame();
    const TipReader reader(*shell);
    bool filled = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (QWidget* window = visibleWindow(QStringLiteral("linkPropf"))) {
            filled = true;
            EXPECT_EQ(Hand(*window).get<QLabel>("numbr").text(), QStringLiteral("1"));
            window->close();
        }
    });
    look.start(5);
    withWindow(
        QStringLiteral("newlink"), [this] { action(QStringLiteral("scnmen(3)")).trigger(); },
        [](QWidget& window) {
            control<QRadioButton>(window, QStringLiteral("Option1(1)")).click();
            control<QPushButton>(window, QStringLiteral("Command3")).click();
        });
    EXPECT_TRUE(filled);
    EXPECT_EQ(reader.tips, std::vector{14});
}

}  // namespace
}  // namespace quorvel::test
