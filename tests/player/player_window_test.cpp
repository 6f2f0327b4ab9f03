// The player's window as the player of a game sees and uses it.
#include "player/player_window.h"

#include "canvas/elements.h"
#include "player/player_fixture.h"

namespace quorvel::test {
namespace {

using store::HotSpot;
using store::SceneRecord;

constexpr std::uint32_t kRed = 0xC02020;
constexpr std::uint32_t kGreen = 0x20A040;
constexpr std::uint32_t kBlue = 0x2040C0;

class PlayerWindow : public PlayerFixture {
  protected:
    /// Three scenes, each of one colour.
    PlayerWindow() {
        builder.scene(1, "One", "one.bmp").scene(2, "Two", "two.bmp").scene(3, "Three", "3.bmp");
        builder.gfx("one.bmp", bmpBytes(700, 475, kRed))
            .gfx("two.bmp", bmpBytes(700, 475, kGreen))
            .gfx("3.bmp", bmpBytes(700, 475, kBlue));
    }
    /// A HotSpot of 40 by 30 pixels without a picture.
    ProjectBuilder& quickSpot(int slot, std::int16_t left, std::int16_t top, std::int16_t target) {
        return builder.editScene(1, [=](SceneRecord& record) {
            store::Scene scene;
            scene.take(record);
            store::ObjectSlot& spot = scene.slot(slot);
            store::ResetSlot(spot, store::ObjectType::hotSpot, left, top);
            store::number(spot, HotSpot::QuickSpot) = 1;
            store::word(spot, HotSpot::QuickWidth) = "40";
            store::word(spot, HotSpot::QuickHeight) = "30";
            store::number(spot, HotSpot::TargetScene) = target;
            record = scene.toRecord();
        });
    }
};

TEST_F(PlayerWindow, ShowsTheFirstSceneAtItsPlace) {
    builder.title("The Castle").currentScene(3);
    buildAndPlay();
    EXPECT_EQ(window->size(), QSize(800, 600));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("The Castle"));
    EXPECT_EQ(window->currentScene(), 1) << "a game begins with scene 1, wherever the author is";
    EXPECT_EQ(sceneWindow().geometry(), QRect(48, 56, 700, 475));
    EXPECT_EQ(colourAt({0, 0}), QColor(kRed));
    EXPECT_EQ(colourAt({699, 474}), QColor(kRed));
    EXPECT_EQ(message(), QString());
}

TEST_F(PlayerWindow, PlaysInAFolderWhoseNameIsNoText) {
    const auto strange = folder.makeFolder("caf\xE9");
    builder.build(strange);
    window = std::make_unique<player::PlayerWindow>(strange);
    window->show();
    window->begin();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    EXPECT_EQ(message(), QString());
    EXPECT_EQ(colourAt({0, 0}), QColor(kRed));
}

TEST_F(PlayerWindow, TheSceneWindowLiesWhereTheLayoutSays) {
    builder.editSettings([](store::GameSettingsRecord& record) { record.LayoutPos5 = "48/10"; });
    buildAndPlay();
    EXPECT_EQ(sceneWindow().pos(), QPoint(48, 10));
}

TEST_F(PlayerWindow, AnOddLayoutIsNoReasonToStop) {
    build();
    for (const char* text : {"", "/", "abc", "12", "-9/99999999", "1/2/3", "\xFF\xFF"}) {
        patchBytes(files.storePath(4), 367, std::string(15, ' '));
        patchBytes(files.storePath(4), 367, text);
        play();
        EXPECT_EQ(window->currentScene(), 1) << text;
    }
}

TEST_F(PlayerWindow, TheBackgroundIsTheGamesOwn) {
    builder.gfx("BgGame.jpg", bmpBytes(800, 600, kBlue));
    build();
    play();
    const auto ground = [this] { return window->grab().toImage().pixelColor(5, 5); };
    EXPECT_EQ(ground(), QColor(kBlue)) << "a file is known in any letter case, and by its content";
    writeBytes(files.gfx("bggame.bmp"), bmpBytes(800, 600, kGreen));
    play();
    EXPECT_EQ(ground(), QColor(kGreen)) << "the BMP comes first";
    writeBytes(files.gfx("bggame.bmp"), "no picture");
    play();
    EXPECT_EQ(ground(), QColor(kBlue));
}

TEST_F(PlayerWindow, ObjectsAreStackedByTheirNumbers) {
    builder.object(1, 5, 0, 100, 100, "five.gif").gfx("five.gif", stillGif(40, 40, 5));
    builder.object(1, 2, 0, 120, 120, "two.gif").gfx("two.gif", stillGif(40, 40, 2));
    buildAndPlay();
    EXPECT_EQ(colourAt({130, 130}), QColor::fromRgba(gifColour(5)));
    EXPECT_EQ(colourAt({150, 150}), QColor::fromRgba(gifColour(2)));
    EXPECT_EQ(colourAt({161, 161}), QColor(kRed));
}

TEST_F(PlayerWindow, WhatIsHiddenAtTheStartIsNotShown) {
    builder.gfx("it.gif", stillGif(40, 40, 7));
    builder.object(1, 1, 0, 0, 0, "it.gif").editSlot(1, 1, [](store::ObjectSlotRecord& slot) {
        slot.SlotInt4To29[4] = 2;  // Ambient: visible when ...
        slot.SlotInt4To29[7] = 1;  // ... flag 0 equals 1
    });
    builder.object(1, 2, 5, 50, 0, "it.gif");    // a Responder has no picture
    builder.object(1, 3, 42, 100, 0, "it.gif");  // of a newer version
    builder.object(1, 4, 0, 150, 0, "gone.gif");
    builder.object(1, 5, 0, 200, 0);
    buildAndPlay();
    for (int k = 1; k <= 5; ++k) {
        EXPECT_FALSE(animation(k).isVisible()) << k;
        EXPECT_EQ(colourAt({(k - 1) * 50 + 10, 10}), QColor(kRed)) << k;
    }
}

TEST_F(PlayerWindow, AnimationsPlayUnlessTheyWaitForAClick) {
    builder.gfx("moves.gif", gifBytes(20, 20, {{1, 2}, {2, 2}, {3, 2}}, 0));
    builder.object(1, 1, 0, 0, 0, "moves.gif").object(1, 2, 3, 50, 0, "moves.gif");
    buildAndPlay();
    auto& ambient = dynamic_cast<canvas::PictureElement&>(animation(1));
    auto& lever = dynamic_cast<canvas::PictureElement&>(animation(2));
    EXPECT_TRUE(ambient.playhead().isPlaying());
    EXPECT_FALSE(lever.playhead().isPlaying());
    EXPECT_TRUE(waitUntil([&] {
        return colourAt({5, 5}) == QColor::fromRgba(gifColour(3));
    })) << "the last frame comes";
    EXPECT_EQ(colourAt({55, 5}), QColor::fromRgba(gifColour(1))) << "a switch rests on its first";
}

TEST_F(PlayerWindow, ALinkLeadsToItsScene) {
    builder.editScene(1, [](SceneRecord& record) { record.LinkUpTarget = 2; });
    builder.editScene(2, [](SceneRecord& record) { record.LinkLeftTarget = 3; });
    buildAndPlay();
    EXPECT_TRUE(link(2).isVisible());
    EXPECT_FALSE(link(1).isVisible()) << "a link without a scene is not there";
    click({300, 10});
    EXPECT_EQ(window->currentScene(), 2);
    EXPECT_EQ(colourAt({350, 200}), QColor(kGreen));
    click({300, 10});
    EXPECT_EQ(window->currentScene(), 2) << "the upper link of scene 2 leads nowhere";
    click({10, 200});
    EXPECT_EQ(window->currentScene(), 3);
}

TEST_F(PlayerWindow, ALinkBeyondTheLastSceneLeadsNowhere) {
    builder.editScene(1, [](SceneRecord& record) {
        record.LinkUpTarget = 4;
        record.LinkDownTarget = -3;
        record.LinkLeftTarget = 32767;
    });
    buildAndPlay();
    for (const QPoint at : {QPoint(300, 10), QPoint(300, 460), QPoint(10, 200)}) {
        click(at);
        EXPECT_EQ(window->currentScene(), 1);
    }
}

TEST_F(PlayerWindow, AHotSpotLeadsToItsScene) {
    builder.object(1, 1, 1, 100, 100, "door.gif").gfx("door.gif", stillGif(40, 40, 3));
    builder.editSlot(1, 1, [](store::ObjectSlotRecord& slot) { slot.SlotInt4To29[12] = 2; });
    quickSpot(2, 300, 300, 3);
    buildAndPlay();
    click({99, 99});
    click({120, 120}, Qt::RightButton);
    EXPECT_EQ(window->currentScene(), 1);
    click({120, 120});
    EXPECT_EQ(window->currentScene(), 2);
    play();
    click({339, 329});
    EXPECT_EQ(window->currentScene(), 3) << "a QuickSpot is as large as it says";
    play();
    click({340, 330});
    EXPECT_EQ(window->currentScene(), 1);
}

TEST_F(PlayerWindow, SceneryLetsClicksThroughAndOtherObjectsDoNot) {
    quickSpot(1, 0, 0, 2);
    builder.object(1, 2, 0, 0, 0, "front.gif").gfx("front.gif", stillGif(20, 30, 3));
    builder.object(1, 3, 4, 20, 0, "front.gif");
    buildAndPlay();
    click({30, 10});
    EXPECT_EQ(window->currentScene(), 1) << "a Reactor stands before the HotSpot";
    click({10, 10});
    EXPECT_EQ(window->currentScene(), 2) << "an Ambient cannot be clicked";
}

TEST_F(PlayerWindow, ATinyQuickSpotIsFivePixelsLarge) {
    quickSpot(1, 10, 10, 2);
    builder.editSlot(1, 1, [](store::ObjectSlotRecord& slot) {
        slot.SlotStr[4] = "0";
        slot.SlotStr[5] = "";
    });
    buildAndPlay();
    EXPECT_EQ(area(1).geometry(), QRect(10, 10, 5, 5));
}

TEST_F(PlayerWindow, WhatTheEditorSavesIsSeenWithTheNextScene) {
    builder.editScene(1, [](SceneRecord& record) { record.LinkUpTarget = 2; });
    builder.editScene(2, [](SceneRecord& record) { record.LinkUpTarget = 1; });
    buildAndPlay();
    store::Project project;
    files.openIn(project);
    SceneRecord record = project.sceneFile.read(1);
    record.SceneImage = "3.bmp";
    project.sceneFile.write(1, record);
    EXPECT_EQ(colourAt({350, 200}), QColor(kRed)) << "the scene on show is the old one";
    click({300, 10});
    click({300, 10});
    EXPECT_EQ(window->currentScene(), 1);
    EXPECT_EQ(colourAt({350, 200}), QColor(kBlue));
}

TEST_F(PlayerWindow, AProjectThatIsMissingIsTold) {
    play();
    EXPECT_EQ(window->currentScene(), 0);
    EXPECT_FALSE(sceneWindow().isVisible());
    EXPECT_THAT(message().toStdString(),
                ::testing::HasSubstr("There is no game in the folder of this player."));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Quorvel Player"));
}

TEST_F(PlayerWindow, AStoreWithoutASceneIsTold) {
    build();
    truncateFile(files.storePath(1), 0);
    play();
    EXPECT_EQ(window->currentScene(), 0);
    EXPECT_THAT(message().toStdString(), ::testing::HasSubstr("holds no scene"));
}

TEST_F(PlayerWindow, AStoreThatIsNoFileIsTold) {
    build();
    std::filesystem::remove(files.storePath(1));
    std::filesystem::create_directory(files.storePath(1));
    play();
    EXPECT_EQ(window->currentScene(), 0);
    EXPECT_THAT(message().toStdString(),
                ::testing::HasSubstr("The scenes of this game cannot be read."));
}

TEST_F(PlayerWindow, AGameThatLosesItsScenesWhileItIsPlayedIsTold) {
    builder.editScene(1, [](SceneRecord& record) { record.LinkUpTarget = 2; });
    buildAndPlay();
    std::filesystem::remove(files.storePath(1));
    click({300, 10});
    EXPECT_EQ(window->currentScene(), 0);
    EXPECT_NE(message(), QString());
}

TEST_F(PlayerWindow, DamagedScenesAndSettingsAreSurvived) {
    build();
    for (std::uint32_t seed = 0; seed < 40; ++seed) {
        writeBytes(files.storePath(1), randomBytes(seed % 2 == 0 ? 4395 : 4000, seed));
        writeBytes(files.storePath(4), randomBytes(seed % 3 == 0 ? 908 : 500, seed + 1000));
        window = std::make_unique<player::PlayerWindow>(folder.path());
        window->show();
        window->begin();
        (void)window->grab();
    }
}

TEST_F(PlayerWindow, SettingsOfAnotherLengthAreThoseOfANewGame) {
    builder.title("Never read");
    build();
    cutTail(files.storePath(4), 1);
    play();
    EXPECT_EQ(window->currentScene(), 1);
    EXPECT_EQ(sceneWindow().pos(), QPoint(48, 56));
}

TEST_F(PlayerWindow, EscapeLeavesTheGame) {
    buildAndPlay();
    QTest::keyClick(window.get(), Qt::Key_A);
    EXPECT_TRUE(window->isVisible());
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(PlayerWindow, ASmallScreenIsFilled) {
    build();
    window = std::make_unique<player::PlayerWindow>(folder.path());
    window->showOn(*window->screen());
    window->begin();
    const QSize screen = window->screen()->size();
    EXPECT_EQ(window->isFullScreen(), screen.width() <= 800 || screen.height() <= 600);
    EXPECT_EQ(child(QStringLiteral("Stage")).size(), QSize(800, 600));
}

}  // namespace
}  // namespace quorvel::test
