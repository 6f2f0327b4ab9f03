// What the window of the edge links shows and does between opening and closing.
#include <gtest/gtest.h>

#include "objects/editor_author.h"

namespace quorvel::test {
namespace {

using store::LinkSide;

class LinkBehaviour : public EditorAuthor {
  protected:
    /// Pointer n of the game is n + 10 wide.
    LinkBehaviour() {
        ProjectBuilder builder;
        builder.scenes(3)
            .scene(1, "Hall", "hall.gif")
            .scene(2, "Cellar", "cellar.gif")
            .gfx("hall.gif", stillGif(70, 50))
            .gfx("cellar.gif", stillGif(60, 40));
        for (int n = 1; n <= 13; ++n) {
            builder.gfx(pointerFile(n), stillGif(n + 10, 20));
        }
        open(builder.editSettings([](store::GameSettingsRecord& settings) {
            for (int n = 1; n <= 13; ++n) {
                settings.GamePointer[static_cast<std::size_t>(n - 1)] = pointerFile(n);
            }
        }));
    }
    static std::string pointerFile(int n) { return "p" + std::to_string(n) + ".gif"; }
    static int pointerShown(const Hand& hand) {
        const auto& picture = hand.picture("Picture1").picture();
        return picture == nullptr ? 0 : picture->size().width() - 10;
    }
    /// The size of the picture that a place shows, or none.
    static QSize sizeShown(const Hand& hand, const char* name) {
        const auto& picture = hand.picture(name).picture();
        return picture == nullptr ? QSize() : picture->size();
    }
    store::EdgeLink& link(LinkSide side) { return scene().link(side); }
};

TEST_F(LinkBehaviour, ThePictureOfThePointerFollowsEveryWayOfChoosingIt) {
    link(LinkSide::up) = {.pointer = 9, .target = 2};
    editLink(1, [](const Hand& hand) {
        EXPECT_EQ(pointerShown(hand), 13) << "(NORMAL)";
        hand.pick("combo2", 3);
        EXPECT_EQ(pointerShown(hand), 3) << "the tab's own";
        hand.pick("Combo1", 5);
        EXPECT_EQ(pointerShown(hand), 5);
        hand.pick("combo2", 0);
        EXPECT_EQ(pointerShown(hand), 13);
        hand.get<QTabBar>("TabStrip1").setCurrentIndex(1);
        EXPECT_EQ(pointerShown(hand), 9);
        EXPECT_EQ(sizeShown(hand, "thumbnail"), QSize(60, 40));
        hand.get<QTabBar>("TabStrip1").setCurrentIndex(2);
        EXPECT_EQ(pointerShown(hand), 13);
        EXPECT_EQ(hand.picture("thumbnail").picture(), nullptr);
    });
}

TEST_F(LinkBehaviour, AChoiceGoesIntoTheLinkOfItsTabAtOnceAndStaysHoweverTheWindowCloses) {
    for (const bool byKey : {true, false}) {
        link(LinkSide::right) = {};
        editLink(1, [&](const Hand& hand) {
            hand.get<QTabBar>("TabStrip1").setCurrentIndex(2);
            hand.pick("combo2", 2);
            EXPECT_EQ(link(LinkSide::right).target, 2) << "without a button";
            hand.pick("Combo1", 7);
            EXPECT_EQ(link(LinkSide::right).pointer, 7);
            EXPECT_EQ(link(LinkSide::left).target, 0) << "of no other tab";
            if (byKey) {
                QTest::keyClick(&hand.window(), Qt::Key_Escape);
            } else {
                hand.window().close();
            }
            EXPECT_FALSE(hand.window().isVisible());
        });
        EXPECT_EQ(link(LinkSide::right).target, 2);
        EXPECT_EQ(link(LinkSide::right).pointer, 7);
        EXPECT_EQ(shell->actions().CurObj, 0);
    }
}

TEST_F(LinkBehaviour, WithoutADirectionNothingIsShownOrChanged) {
    link(LinkSide::down) = {.pointer = 9, .target = 2};
    const store::Scene before = scene();
    editLink(0, [](const Hand& hand) {
        EXPECT_EQ(hand.list("Combo1").currentIndex(), 0);
        EXPECT_EQ(hand.list("combo2").currentIndex(), 0);
        hand.pick("Combo1", 3);
        hand.pick("combo2", 1);
        hand.click("Command1");
    });
    EXPECT_TRUE(scene() == before);
}

TEST_F(LinkBehaviour, ItsGroupsBearTheirCaptions) {
    editLink(1, [](const Hand& hand) {
        EXPECT_EQ(hand.get<QGroupBox>("Frame1(1)").title(), QStringLiteral("Mousepointer"));
        EXPECT_EQ(hand.get<QGroupBox>("Frame1(2)").title(), QStringLiteral("Linked Scene"));
    });
}

TEST_F(LinkBehaviour, EnterIsOk) {
    editLink(2, [](const Hand& hand) {
        QTest::keyClick(&hand.window(), Qt::Key_Return);
        EXPECT_FALSE(hand.window().isVisible());
    });
}

TEST_F(LinkBehaviour, AnotherLookAtTheWindowRefreshesItsPreviews) {
    link(LinkSide::up) = {.pointer = 9, .target = 2};
    link(LinkSide::down) = {.pointer = 2, .target = 1};
    const auto lookAgain = [](const Hand& hand) {
        QEvent again(QEvent::WindowActivate);
        QApplication::sendEvent(&hand.window(), &again);
    };
    editLink(2, [&](const Hand& hand) {
        writeBytes(files.gfx("cellar.gif"), stillGif(90, 80));
        writeBytes(files.gfx(pointerFile(9)), stillGif(40, 40));
        lookAgain(hand);
        EXPECT_EQ(sizeShown(hand, "thumbnail"), QSize(90, 80));
        EXPECT_EQ(pointerShown(hand), 30);
    });
    scene().header(store::HeaderString::SceneImage) = "cellar.gif";
    editLink(4, [&](const Hand& hand) {
        EXPECT_EQ(sizeShown(hand, "thumbnail"), QSize(90, 80))
            << "the scene on the canvas as the canvas shows it";
        lookAgain(hand);
        EXPECT_EQ(sizeShown(hand, "thumbnail"), QSize(90, 80));
    });
}

TEST_F(LinkBehaviour, NothingIsShownWhileAProjectIsBeingLoaded) {
    link(LinkSide::up) = {.pointer = 9, .target = 2};
    const store::Scene before = scene();
    shell->project().ProjectLoading = true;
    editLink(2, [](const Hand& hand) {
        EXPECT_EQ(hand.list("Combo1").currentIndex(), 0);
        EXPECT_EQ(hand.list("combo2").currentIndex(), 0);
    });
    shell->project().ProjectLoading = false;
    EXPECT_TRUE(scene() == before);
}

}  // namespace
}  // namespace quorvel::test
