// Where the main window opens, on one screen and on several, with and without a place of last time.
#include "shell/screens.h"

#include <gtest/gtest.h>

#include <QMenuBar>

#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

using shell::placeToOpen;
using shell::ScreenPlace;
using shell::WindowPlace;

constexpr QSize kUsual(800, 560);
const ScreenPlace kLeft{{0, 0, 1920, 1080}, {0, 30, 1920, 1050}};
const ScreenPlace kRight{{1920, 200, 1280, 1024}, {1920, 200, 1280, 984}};
/// 1920 by 1080 device pixels at 200 per cent.
const ScreenPlace kDense{{0, 0, 960, 540}, {0, 0, 960, 540}, 2};

TEST(PlaceToOpen, IsTheMiddleOfThePrimaryScreenWhereverThatLies) {
    const WindowPlace left = placeToOpen({kLeft, kRight}, {}, kUsual);
    EXPECT_EQ(left.normal, QRect(560, 30 + 245, 800, 560));
    EXPECT_FALSE(left.isMaximised);
    const WindowPlace right = placeToOpen({kRight, kLeft}, {}, kUsual);
    EXPECT_EQ(right.normal, QRect(1920 + 240, 200 + 212, 800, 560));
}

TEST(PlaceToOpen, FillsAScreenThatIsNotLarge) {
    for (const QSize size :
         {QSize(800, 600), QSize(1024, 600), QSize(800, 1024), QSize(960, 540)}) {
        const ScreenPlace small{{{100, 50}, size}, {{100, 50}, size}};
        for (const auto& last : {std::optional<WindowPlace>(),
                                 std::optional(WindowPlace{{200, 100, 500, 400}, false})}) {
            const WindowPlace place = placeToOpen({small, kRight}, last, kUsual);
            EXPECT_TRUE(place.isMaximised);
            EXPECT_EQ(place.normal.topLeft(), QPoint(100, 50));
            EXPECT_EQ(place.normal.size(), size.height() < 600 ? size : QSize(800, 600));
        }
    }
    EXPECT_FALSE(placeToOpen({{{0, 0, 801, 601}, {0, 0, 801, 601}}}, {}, kUsual).isMaximised);
}

TEST(PlaceToOpen, IsThatOfTheLastTime) {
    const WindowPlace left{{40, 60, 1000, 700}, false};
    EXPECT_EQ(placeToOpen({kLeft, kRight}, left, kUsual).normal, left.normal);
    const WindowPlace right{{2000, 300, 900, 650}, true};
    const WindowPlace opened = placeToOpen({kLeft, kRight}, right, kUsual);
    EXPECT_EQ(opened.normal, right.normal) << "on the other screen";
    EXPECT_TRUE(opened.isMaximised);
}

TEST(PlaceToOpen, IsBroughtBackOntoAScreen) {
    // The right screen is gone: the size stays, the place is the middle of what there is.
    const WindowPlace gone{{2500, 300, 1000, 700}, false};
    EXPECT_EQ(placeToOpen({kLeft}, gone, kUsual).normal, QRect(460, 30 + 175, 1000, 700));
    // Partly outside of all screens, and larger than its screen.
    for (const QRect& odd : {QRect(-300, 100, 900, 700), QRect(1000, 900, 900, 700),
                             QRect(100, -50, 900, 700), QRect(-10, -10, 5000, 5000)}) {
        const WindowPlace place = placeToOpen({kLeft}, WindowPlace{odd, false}, kUsual);
        EXPECT_TRUE(kLeft.free.contains(place.normal)) << odd.x() << ' ' << odd.y();
        EXPECT_GE(place.normal.top(), kLeft.free.top() + 20) << "its title can be reached";
    }
}

// The whole editor on played screens

class Screens : public ShellFixture {
  protected:
    /// Starts on these screens, the primary one first.
    void startOn(std::vector<ScreenPlace> played) {
        screens = std::move(played);
        start();
    }
};

TEST_F(Screens, ThePrimaryOneGetsTheMainWindow) {
    startOn({kRight, kLeft});
    EXPECT_TRUE(kRight.whole.contains(main().geometry()));
    EXPECT_EQ(main().size(), QSize(800, 540 + main().menuBar()->height()));
}

TEST_F(Screens, DevicePixelsAreWhatHasToBeEnough) {
    screens = {kDense};
    shell = std::make_unique<shell::Shell>(surroundings());
    EXPECT_TRUE(shell->CheckRes());
    EXPECT_TRUE(boxes.shown().empty());
    boxes.answer(forms::Answer::cancel);
    screens = {{{0, 0, 500, 290}, {0, 0, 500, 290}, 2}};
    EXPECT_FALSE(shell->CheckRes());
    EXPECT_TRUE(boxes.texts().front().contains(QStringLiteral("is 1000x580.")));
}

TEST_F(Screens, ADenseOneIsFilledByTheMainWindow) {
    startOn({kDense});
    EXPECT_TRUE(main().isMaximized());
    EXPECT_TRUE(boxes.shown().empty());
}

// What is remembered

TEST_F(Screens, SizeAndPlaceAreThoseOfTheLastTime) {
    startOn({kLeft, kRight});
    const QRect place(2000, 260, 1010, 720);
    main().setGeometry(place);
    leave();
    start();
    EXPECT_EQ(main().geometry(), place);
    EXPECT_FALSE(main().isMaximized());
    shell->endByRequest();
    ASSERT_TRUE(waitUntil([this] { return quits == 2; }));
    shell.reset();
    start();
    EXPECT_EQ(main().geometry(), place) << "also when the system ended the editor";
}

TEST_F(Screens, AMaximisedWindowIsMaximisedAgain) {
    startOn({kLeft});
    const QRect place(200, 160, 1010, 720);
    main().setGeometry(place);
    main().showMaximized();
    leave();
    start();
    EXPECT_TRUE(main().isMaximized());
    EXPECT_EQ(main().normalGeometry(), place);
}

TEST_F(Screens, ASmallOneDoesNotChangeWhatIsRemembered) {
    startOn({kLeft});
    const QRect place(200, 160, 1010, 720);
    main().setGeometry(place);
    leave();
    startOn({{{0, 0, 800, 600}, {0, 0, 800, 600}}});
    EXPECT_TRUE(main().isMaximized());
    leave();
    startOn({kLeft});
    EXPECT_EQ(main().geometry(), place);
}

TEST_F(Screens, AWindowThatWasNeverSeenLeavesNoPlace) {
    screens = {kLeft};
    shell = std::make_unique<shell::Shell>(surroundings());
    for (const auto& loadForm : shell->loadForms()) {
        loadForm();
    }
    leave();
    EXPECT_EQ(quits, 1);
    EXPECT_FALSE(shell::EditorSettings().lastMainWindow().has_value());
}

TEST_F(Screens, APlaceThatMakesNoSenseIsNone) {
    for (const char* text : {"", "1 2 3", "1 2 3 4 5", "a b c d", "0 0 0 500", "0 0 500 -1",
                             "0 0 99999999999 5", "-2147483648 0 500 500", "100,100,500,500"}) {
        shell::EditorSettings().WriteRegValue(QStringLiteral("MainWindowPlace"),
                                              QString::fromLatin1(text));
        EXPECT_FALSE(shell::EditorSettings().lastMainWindow().has_value()) << text;
        startOn({kLeft});
        EXPECT_TRUE(kLeft.free.contains(main().geometry())) << text;
        leave();
    }
}

}  // namespace
}  // namespace quorvel::test
