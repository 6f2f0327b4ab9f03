// What the HotSpot window shows and does between opening and closing, control by control.
#include <gtest/gtest.h>

#include "objects/hotspot_fixture.h"

namespace quorvel::test {
namespace {

using store::HotSpot;

constexpr int kNormalPointer = 13;  // among the game's pointers, counted from 1

class HotSpotBehaviour : public HotSpotEditor {
  protected:
    /// A game whose pointer n is n + 10 wide, and a HotSpot in it.
    void openGameWithPointers() {
        ProjectBuilder builder;
        for (int n = 1; n <= kNormalPointer; ++n) {
            builder.gfx(pointerFile(n), stillGif(n + 10, 20));
        }
        open(builder.editSettings([](store::GameSettingsRecord& settings) {
            for (int n = 1; n <= kNormalPointer; ++n) {
                settings.GamePointer[static_cast<std::size_t>(n - 1)] = pointerFile(n);
            }
        }));
        store::ResetSlot(slot(kSlot), store::ObjectType::hotSpot, 100, 120);
        main().view().ShowObject(kSlot);
    }
    static std::string pointerFile(int n) { return "p" + std::to_string(n) + ".gif"; }
    static int pointerShown(const Hand& hand) {
        const auto& picture = hand.picture("Image1").picture();
        return picture == nullptr ? 0 : picture->size().width() - 10;
    }
    /// The size of the picture that a place shows, or none.
    static QSize sizeShown(const Hand& hand, const char* name) {
        const auto& picture = hand.picture(name).picture();
        return picture == nullptr ? QSize() : picture->size();
    }
    canvas::PictureElement& object() { return dynamic_cast<canvas::PictureElement&>(animation()); }
    static void lookAgain(const Hand& hand) {
        QEvent again(QEvent::WindowActivate);
        QApplication::sendEvent(&hand.window(), &again);
    }
};

TEST_F(HotSpotBehaviour, ThePictureOfThePointerIsThatOfItsElement) {
    openGameWithPointers();
    for (int pointer = 0; pointer <= 10; ++pointer) {
        const int element = pointer == 0 ? kNormalPointer : pointer;
        put(HotSpot::Pointer, pointer);
        edit([&](const Hand& hand) {
            EXPECT_EQ(hand.list("Combo1(1)").count(), 11);
            EXPECT_EQ(hand.list("Combo1(1)").currentIndex(), pointer);
            EXPECT_EQ(pointerShown(hand), element) << "on opening, " << pointer;
        });
    }
    edit([](const Hand& hand) {
        for (const int pointer : {0, 1, 9, 10, 0}) {
            hand.pick("Combo1(1)", pointer);
            EXPECT_EQ(pointerShown(hand), pointer == 0 ? kNormalPointer : pointer)
                << "on a pick, " << pointer;
        }
        EXPECT_TRUE(hand.button("Command1").isEnabled());
        hand.click("Command6");
    });
    EXPECT_EQ(number(HotSpot::Pointer), 0);
}

TEST_F(HotSpotBehaviour, TheQuestionAboutTheImageComesWithEachReleaseOfTheMouse) {
    openGame();
    put(HotSpot::Image, "door.gif");
    edit([this](const Hand& hand) {
        boxes.answer(forms::Answer::no).answer(forms::Answer::yes);
        QRadioButton& quick = hand.option("Option4(1)");
        const auto release = [&quick] {
            QTest::mouseClick(&quick, Qt::LeftButton, {}, QPoint(8, quick.height() / 2));
        };
        release();
        ASSERT_EQ(boxes.shown().size(), 1U);
        const forms::Box box = boxes.shown().back();
        EXPECT_EQ(box.text,
                  QStringLiteral("The style is set to QuickSpot (no image), but there is an image "
                                 "file chosen.  Would you like to remove the image from this "
                                 "object's Image Property?"));
        EXPECT_EQ(box.buttons, forms::Box::Buttons::yesNo);
        EXPECT_TRUE(box.destroys);
        EXPECT_EQ(box.icon, forms::Box::Icon::question);
        EXPECT_EQ(hand.text("Text1"), QStringLiteral("door.gif"));
        EXPECT_NE(hand.picture("SampleGfx").picture(), nullptr);
        release();
        ASSERT_EQ(boxes.shown().size(), 2U) << "the option is on already, the image still there";
        EXPECT_EQ(hand.text("Text1"), QString());
        EXPECT_EQ(hand.picture("SampleGfx").picture(), nullptr);
        release();
        EXPECT_EQ(boxes.shown().size(), 2U) << "there is no image any more";
    });
}

TEST_F(HotSpotBehaviour, ThePassToImageSpotShowsTheSizeOfItsImage) {
    openGame();
    put(HotSpot::Image, "door.gif");
    put(HotSpot::QuickSpot, 1);
    put(HotSpot::QuickHeight, "50");
    put(HotSpot::QuickWidth, "60");
    edit([this](const Hand& hand) {
        EXPECT_TRUE(hand.box("Text2(0)").isEnabled());
        EXPECT_EQ(hand.text("Text2(1)"), QStringLiteral("60")) << "a QuickSpot has its own size";
        EXPECT_NE(hand.picture("SampleGfx").picture(), nullptr) << "though it has an image";
        hand.click("Option4(0)");
        EXPECT_TRUE(hand.button("Command1").isEnabled());
        EXPECT_FALSE(hand.box("Text2(0)").isEnabled());
        EXPECT_FALSE(hand.box("Text2(1)").isEnabled());
        EXPECT_EQ(hand.text("Text2(0)"), QStringLiteral("30"));
        EXPECT_EQ(hand.text("Text2(1)"), QStringLiteral("40"));
        EXPECT_TRUE(quickSpot().isVisible()) << "the canvas waits for Apply";
        hand.click("Command1");
        EXPECT_FALSE(quickSpot().isVisible());
        EXPECT_EQ(object().geometry(), QRect(100, 120, 40, 30));
        EXPECT_TRUE(object().isVisible());
    });
    EXPECT_EQ(word(HotSpot::QuickHeight), "30");
    EXPECT_EQ(number(HotSpot::QuickSpot), 0);
}

TEST_F(HotSpotBehaviour, AQuickSpotWithoutAnImageHasAnEmptySample) {
    openGame();
    put(HotSpot::QuickSpot, 1);
    edit([](const Hand& hand) { EXPECT_EQ(hand.picture("SampleGfx").picture(), nullptr); });
}

TEST_F(HotSpotBehaviour, AQuickSpotNeedsBothOfItsSides) {
    openGame();
    edit([this](const Hand& hand) {
        hand.click("Option4(1)");
        const store::ObjectSlot before = slot(kSlot);
        for (const auto& [height, width, wrong] :
             {std::tuple{"20", "", "Text2(1)"}, std::tuple{"", "20", "Text2(0)"},
              std::tuple{"", "", "Text2(0)"}}) {
            boxes.forget();
            hand.type("Text2(0)", QString::fromLatin1(height));
            hand.type("Text2(1)", QString::fromLatin1(width));
            for (const char* button : {"Command1", "Command6"}) {
                hand.click(button);
                ASSERT_FALSE(boxes.shown().empty());
                EXPECT_EQ(boxes.texts().back(),
                          QStringLiteral("HotSpot size is too small!  Minimum size is 5h X 5w."));
                EXPECT_TRUE(hand.window().isVisible());
                EXPECT_TRUE(hand.button("Command1").isEnabled());
                EXPECT_EQ(hand.window().focusWidget(), &hand.box(wrong));
            }
            EXPECT_EQ(boxes.shown().size(), 2U);
            EXPECT_TRUE(slot(kSlot) == before);
        }
    });
}

TEST_F(HotSpotBehaviour, AnImageSpotMayBeSmallerThanAQuickSpot) {
    openGame();
    writeBytes(files.gfx("dot.gif"), stillGif(3, 2));
    edit([this](const Hand& hand) {
        dialogs.choice = text(files.gfx("dot.gif"));
        hand.click("Command7");
        EXPECT_EQ(hand.text("Text2(0)"), QStringLiteral("2"));
        EXPECT_EQ(hand.text("Text2(1)"), QStringLiteral("3"));
        hand.click("Command6");
        EXPECT_FALSE(hand.window().isVisible());
        EXPECT_TRUE(boxes.shown().empty());
    });
    EXPECT_EQ(word(HotSpot::Image), "dot.gif");
    EXPECT_EQ(object().size(), QSize(3, 2));
}

TEST_F(HotSpotBehaviour, ADigitOfTheSizeEnablesApply) {
    openGame();
    put(HotSpot::QuickSpot, 1);
    put(HotSpot::QuickHeight, "50");
    put(HotSpot::QuickWidth, "60");
    edit([this](const Hand& hand) {
        hand.box("Text2(0)").setFocus();
        QTest::keyClicks(&hand.box("Text2(0)"), QStringLiteral("x-"));
        EXPECT_EQ(beeps, 2);
        EXPECT_FALSE(hand.button("Command1").isEnabled()) << "dropped keys change nothing";
        QTest::keyClick(&hand.box("Text2(0)"), Qt::Key_1);
        EXPECT_TRUE(hand.button("Command1").isEnabled());
    });
}

TEST_F(HotSpotBehaviour, ApplyStartsTheAnimationOnTheCanvasAnew) {
    openGame();
    writeBytes(files.gfx("wink.gif"),
               gifBytes(20, 20, {{.colour = 1}, {.colour = 2, .delay = 900}}));
    put(HotSpot::Image, "wink.gif");
    shell->ToggleAnimations(true);
    const auto atFirst = [this] {
        return object().playhead().frame().cacheKey() ==
               object().picture()->firstFrame().cacheKey();
    };
    edit([&](const Hand& hand) {
        ASSERT_TRUE(waitUntil([&] { return !atFirst(); }));
        hand.click("Check5");
        hand.click("Command1");
        EXPECT_TRUE(atFirst());
        EXPECT_TRUE(object().playhead().isPlaying());
        EXPECT_TRUE(waitUntil([&] { return !atFirst(); })) << "and goes on";
    });
}

TEST_F(HotSpotBehaviour, TheSamplePlaysFromTheOpeningOn) {
    openGame();
    writeBytes(files.gfx("wink.gif"),
               gifBytes(20, 20, {{.colour = 1}, {.colour = 2, .delay = 900}}));
    put(HotSpot::Image, "wink.gif");
    edit([](const Hand& hand) {
        const forms::Playhead& sample = hand.picture("SampleGfx").playhead();
        EXPECT_TRUE(sample.isPlaying());
        EXPECT_TRUE(waitUntil([&sample] {
            return sample.frame().cacheKey() != sample.picture()->firstFrame().cacheKey();
        }));
    });
}

TEST_F(HotSpotBehaviour, TheSampleStandsStillWhileItsPageIsTurned) {
    openGame();
    writeBytes(files.gfx("wink.gif"),
               gifBytes(20, 20, {{.colour = 1, .delay = 10}, {.colour = 2, .delay = 10}}));
    put(HotSpot::Image, "wink.gif");
    edit([](const Hand& hand) {
        const forms::Playhead& sample = hand.picture("SampleGfx").playhead();
        const auto moves = [&sample] {
            const qint64 frame = sample.frame().cacheKey();
            return waitUntil([&] { return sample.frame().cacheKey() != frame; }, 500);
        };
        EXPECT_TRUE(moves());
        hand.turnTo(1);
        EXPECT_FALSE(moves());
        hand.turnTo(0);
        EXPECT_TRUE(moves());
    });
}

TEST_F(HotSpotBehaviour, AnotherLookAtTheWindowRefreshesItsPreviewsAlone) {
    openGameWithPointers();
    writeBytes(files.gfx("hall.gif"), stillGif(50, 40));
    scene().header(store::HeaderString::SceneImage) = "hall.gif";
    put(HotSpot::TargetScene, 1);
    edit([this](const Hand& hand) {
        EXPECT_EQ(sizeShown(hand, "Image2"), QSize(50, 40));
        EXPECT_EQ(pointerShown(hand), 10);
        hand.type("Text3(1)", QStringLiteral("12"));
        writeBytes(files.gfx("hall.gif"), stillGif(70, 60));
        writeBytes(files.gfx(pointerFile(10)), stillGif(40, 40));
        lookAgain(hand);
        EXPECT_EQ(sizeShown(hand, "Image2"), QSize(70, 60));
        EXPECT_EQ(pointerShown(hand), 30);
        EXPECT_EQ(hand.text("Text3(1)"), QStringLiteral("12"));
    });
}

TEST_F(HotSpotBehaviour, AnotherLookAtTheWindowRefreshesTheItemsIcon) {
    openGame();
    put(HotSpot::NeededItem, 1);
    edit([this](const Hand& hand) {
        EXPECT_EQ(sizeShown(hand, "IconPrev"), QSize(16, 16));
        writeBytes(files.gfx("key.gif"), stillGif(24, 20));
        lookAgain(hand);
        EXPECT_EQ(sizeShown(hand, "IconPrev"), QSize(24, 20));
    });
}

TEST_F(HotSpotBehaviour, TypesWithoutAnEditorOpenNothing) {
    openGame();
    shell->actions().PopupObject = kSlot;
    for (const int type : {10, 99, -1}) {
        shell->actions().ShowObjectProps(type);
        EXPECT_EQ(shell->actions().CurObj, 0);
    }
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(HotSpotBehaviour, AFreshTestIsFlagOneEqualsNought) {
    openGame();
    edit([](const Hand& hand) {
        for (const auto& [box, text] : {std::pair{"FlagID(0)", "1"}, std::pair{"FlagID(1)", "1"},
                                        std::pair{"Text3(0)", "0"}, std::pair{"Text3(1)", "0"}}) {
            EXPECT_EQ(hand.text(box), QString::fromLatin1(text)) << box;
        }
        EXPECT_EQ(hand.list("Combo2").currentText(), QStringLiteral("="));
        for (const char* box : {"FlagID(0)", "FlagID(1)"}) {
            EXPECT_EQ(hand.box(box).toolTip(), QStringLiteral("(1-255)"));
        }
    });
}

TEST_F(HotSpotBehaviour, OptionsOfZeroAreTheFirst) {
    openGame();
    put(HotSpot::Style, 0);
    put(HotSpot::TargetKind, 0);
    put(HotSpot::Visibility, 0);
    edit([](const Hand& hand) {
        for (const char* first : {"Option1(1)", "Option2(1)", "Option3(1)"}) {
            EXPECT_TRUE(hand.option(first).isChecked()) << first;
        }
        EXPECT_TRUE(hand.picture("Image2").isEnabled());
        hand.click("Check5");
        hand.click("Command6");
    });
    EXPECT_EQ(number(HotSpot::Style), 1);
    EXPECT_EQ(number(HotSpot::TargetKind), 1);
    EXPECT_EQ(number(HotSpot::Visibility), 1);
}

TEST_F(HotSpotBehaviour, AlwaysVisibleKeepsTheTest) {
    openGame();
    put(HotSpot::Visibility, 2);
    put(HotSpot::VisibleFlag, 44);
    put(HotSpot::VisibleTest, 3);
    put(HotSpot::VisibleValue, -5);
    edit([](const Hand& hand) {
        hand.click("Option3(1)");
        hand.click("Command6");
    });
    EXPECT_EQ(number(HotSpot::Visibility), 1);
    EXPECT_EQ(number(HotSpot::VisibleFlag), 44);
    EXPECT_EQ(number(HotSpot::VisibleTest), 3);
    EXPECT_EQ(number(HotSpot::VisibleValue), -5);
}

TEST_F(HotSpotBehaviour, ValuesAreReadAsFarAsTheyAreNumbers) {
    openGame();
    for (const auto& [typed, stored] :
         {std::pair{"", 0}, std::pair{"-", 0}, std::pair{"12-3", 12}, std::pair{"-7", -7},
          std::pair{"--7", 0}, std::pair{"0009", 9}}) {
        put(HotSpot::VisibleValue, 77);
        edit([typed = typed](const Hand& hand) {
            hand.type("Text3(0)", QString::fromLatin1(typed));
            hand.click("Command6");
            EXPECT_FALSE(hand.window().isVisible());
        });
        EXPECT_EQ(number(HotSpot::VisibleValue), stored) << typed;
    }
    EXPECT_EQ(beeps, 0);
}

TEST_F(HotSpotBehaviour, AListThatShowsNothingIsStoredAsItsFirstEntry) {
    openGame();
    put(HotSpot::FailureSound, "bang.wav");
    edit([](const Hand& hand) {
        EXPECT_EQ(hand.list("sChannelNum(3)").currentIndex(), 15);
        hand.list("sChannelNum(3)").setCurrentIndex(-1);
        hand.list("Combo3").setCurrentIndex(-1);
        hand.click("Check5");
        hand.click("Command6");
    });
    EXPECT_EQ(number(HotSpot::FailureChannel), 0);
    EXPECT_EQ(word(HotSpot::Group), "0");
}

TEST_F(HotSpotBehaviour, AGroupThatTheListDoesNotHaveStaysUntilTheAuthorChoosesOne) {
    openGame();
    for (const char* kept : {"99", "11", "-1", "12345678901"}) {
        SCOPED_TRACE(kept);
        put(HotSpot::Group, kept);
        edit([](const Hand& hand) {
            EXPECT_EQ(hand.list("Combo3").currentIndex(), -1);
            hand.click("Check5");
            hand.click("Command1");
            hand.click("Check5");
            hand.click("Command6");
        });
        EXPECT_EQ(word(HotSpot::Group), kept);
    }
    put(HotSpot::Group, "99");
    edit([](const Hand& hand) {
        hand.click("Check5");
        hand.click("Command6");
    });
    action(QStringLiteral("Filemen(3)")).trigger();  // closes the project
    EXPECT_EQ(record(1).Slots[kSlot - 1].SlotStr[6].text(), "99") << "and so the file has it";
}

TEST_F(HotSpotBehaviour, AnyGroupCanFollowOneThatTheListDoesNotHave) {
    openGame();
    put(HotSpot::Group, "99");
    edit([](const Hand& hand) {
        hand.pick("Combo3", 0);
        hand.click("Command6");
    });
    EXPECT_EQ(word(HotSpot::Group), "0");
}

TEST_F(HotSpotBehaviour, GroupsAreStoredAsDecimalText) {
    openGame();
    edit([](const Hand& hand) {
        hand.pick("Combo3", 10);
        hand.click("Command6");
    });
    EXPECT_EQ(word(HotSpot::Group), "10");
    edit([](const Hand& hand) {
        EXPECT_EQ(hand.list("Combo3").currentText(), QStringLiteral("Group 10"));
    });
}

TEST_F(HotSpotBehaviour, EscapeAndTheTitleBarCancelAndEnterIsOk) {
    openGame();
    const store::ObjectSlot before = slot(kSlot);
    for (const bool byKey : {true, false}) {
        edit([&](const Hand& hand) {
            hand.type("Text3(0)", QStringLiteral("9"));
            if (byKey) {
                QTest::keyClick(&hand.box("Text3(0)"), Qt::Key_Escape);
            } else {
                hand.window().close();
            }
            EXPECT_FALSE(hand.window().isVisible());
        });
        EXPECT_TRUE(slot(kSlot) == before);
        EXPECT_EQ(shell->actions().CurObj, 0);
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            EXPECT_NE(window->objectName(), QStringLiteral("linkPropf")) << "it is unloaded";
        }
    }
    edit([](const Hand& hand) {
        hand.type("Text3(0)", QStringLiteral("9"));
        QTest::keyClick(&hand.box("Text3(0)"), Qt::Key_Enter);
        EXPECT_FALSE(hand.window().isVisible());
    });
    EXPECT_EQ(number(HotSpot::VisibleValue), 9);
}

TEST_F(HotSpotBehaviour, ApplyGoesByWhatHasChangedAndOkOfACleanWindowStoresNothing) {
    openGame();
    put(HotSpot::TargetKind, 0);
    edit([this](const Hand& hand) {
        hand.click("Check5");
        EXPECT_TRUE(hand.button("Command1").isEnabled());
        hand.click("Command1");
        EXPECT_FALSE(hand.button("Command1").isEnabled());
        EXPECT_EQ(number(HotSpot::OncePerView), 1);
        EXPECT_TRUE(hand.window().isVisible());
        put(HotSpot::OncePerView, 0);
        hand.click("Command6");
    });
    EXPECT_EQ(number(HotSpot::OncePerView), 0);
}

}  // namespace
}  // namespace quorvel::test
