// What the author types into the HotSpot window, what it ticks, and what is too large for a field.
#include <gtest/gtest.h>

#include "objects/hotspot_fixture.h"

namespace quorvel::test {
namespace {

using store::HotSpot;

TEST_F(HotSpotEditor, NumbersAndOperatorsTickTheirGroup) {
    openGame();
    edit([](const Hand& hand) {
        const auto back = [&hand] {
            hand.click("Option3(1)");
            hand.check("Check3").setChecked(false);
        };
        hand.type("FlagID(0)", QStringLiteral("7"));
        EXPECT_TRUE(hand.option("Option3(2)").isChecked());
        back();
        hand.type("Text3(0)", QStringLiteral("-"));
        EXPECT_TRUE(hand.option("Option3(2)").isChecked());
        back();
        hand.pick("Combo2", 2);
        EXPECT_TRUE(hand.option("Option3(2)").isChecked());
        back();
        QTest::keyClick(&hand.box("FlagID(0)"), Qt::Key_Backspace);
        EXPECT_TRUE(hand.option("Option3(1)").isChecked()) << "backspace ticks nothing";

        hand.type("FlagID(1)", QStringLiteral("9"));
        EXPECT_TRUE(hand.check("Check3").isChecked());
        back();
        hand.type("Text3(1)", QStringLiteral("1"));
        EXPECT_TRUE(hand.check("Check3").isChecked());
        back();
        hand.click("Check4");
        EXPECT_TRUE(hand.check("Check3").isChecked());
        back();
        hand.click("Check4");
        EXPECT_FALSE(hand.check("Check4").isChecked());
        EXPECT_TRUE(hand.check("Check3").isChecked()) << "even when the click has cleared it";
    });
}

TEST_F(HotSpotEditor, ItemsTickTheRequirement) {
    openGame();
    edit([this](const Hand& hand) {
        hand.turnTo(1);
        hand.pick("Combo", 1);
        EXPECT_TRUE(hand.check("Check1").isChecked());
        ASSERT_NE(hand.picture("IconPrev").picture(), nullptr);
        EXPECT_EQ(hand.picture("IconPrev").picture()->size(), QSize(16, 16));
        hand.pick("Combo", 2);
        EXPECT_EQ(hand.picture("IconPrev").picture(), nullptr) << "an item without an icon";
        hand.pick("Combo", 0);
        EXPECT_FALSE(hand.check("Check1").isChecked());
        hand.click("Check2");
        EXPECT_TRUE(hand.check("Check1").isChecked());
        hand.click("Check1");
        dialogs.choice = text(files.mmedia("bang.wav"));
        hand.click("LSE(2)");
        EXPECT_FALSE(hand.check("Check1").isChecked());
        hand.click("LSE(3)");
        EXPECT_TRUE(hand.check("Check1").isChecked()) << "a failure sound needs an item";
    });
}

TEST_F(HotSpotEditor, FlagsOutOfRangeAreMendedEvenOnTheWayToOk) {
    openGame();
    edit([this](const Hand& hand) {
        hand.type("FlagID(0)", QString());
        hand.box("Text3(0)").setFocus();
        EXPECT_EQ(hand.text("FlagID(0)"), QStringLiteral("1"));
        EXPECT_EQ(beeps, 1);
        hand.type("FlagID(1)", QStringLiteral("256"));
        QTest::keyClick(&hand.box("FlagID(1)"), Qt::Key_Return);
        EXPECT_FALSE(hand.window().isVisible());
    });
    EXPECT_EQ(beeps, 2);
    EXPECT_EQ(number(HotSpot::SetFlag), 1);
    EXPECT_EQ(number(HotSpot::SetFlagOn), 1);
}

TEST_F(HotSpotEditor, NumbersBeyond16BitsAreToldAndNothingIsStored) {
    openGame();
    const store::ObjectSlot before = slot(kSlot);
    edit([&](const Hand& hand) {
        hand.turnTo(1);
        hand.click("Check1");
        for (const char* number : {"32768", "-32769", "70000", "99999999999999999999"}) {
            hand.type("Text3(0)", QString::fromLatin1(number));
            for (const char* button : {"Command1", "Command6"}) {
                boxes.forget();
                hand.turnTo(1);
                hand.click(button);
                ASSERT_EQ(boxes.shown().size(), 1U);
                EXPECT_EQ(boxes.texts().front(),
                          QStringLiteral("The number %1 cannot be saved.\n\nNumbers can be from "
                                         "-32768 to 32767.  Please enter another one.")
                              .arg(QString::fromLatin1(number)));
                EXPECT_TRUE(hand.window().isVisible());
                EXPECT_TRUE(hand.button("Command1").isEnabled());
                EXPECT_TRUE(hand.box("Text3(0)").isVisible()) << "its page is shown";
                EXPECT_EQ(hand.window().focusWidget(), &hand.box("Text3(0)"));
                EXPECT_TRUE(slot(kSlot) == before);
            }
        }
        hand.type("Text3(0)", QStringLiteral("-32768"));
        hand.click("Option4(1)");
        hand.type("Text2(0)", QStringLiteral("40000"));
        boxes.forget();
        hand.click("Command6");
        ASSERT_EQ(boxes.shown().size(), 1U);
        EXPECT_TRUE(boxes.texts().front().startsWith(QStringLiteral("The number 40000 ")));
        EXPECT_TRUE(slot(kSlot) == before);
        hand.type("Text2(0)", QStringLiteral("20"));
        hand.click("Command6");
        EXPECT_FALSE(hand.window().isVisible());
    });
    EXPECT_EQ(number(HotSpot::VisibleValue), -32768);
}

}  // namespace
}  // namespace quorvel::test
