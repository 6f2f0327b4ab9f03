// How the scene in memory becomes the canvas.

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "canvas/canvas_fixture.h"

namespace quorvel::canvas {
namespace {

using Showing = CanvasTest;

/// Makes a slot a QuickSpot with these texts.
auto quickSpotOf(const char* height, const char* width, std::int16_t style = 1) {
    return [=](store::ObjectSlotRecord& slot) {
        slot.SlotInt4To29[25] = style;
        slot.SlotStr[4] = height;
        slot.SlotStr[5] = width;
    };
}

TEST_F(Showing, EveryTypeBearsItsTag) {
    const std::array tags = {"Ambient",      "HotSpot",         "Goodie", "Switch",
                             "Reactor",      "Responder",       "Delay",  "Multi-Trigger",
                             "Conversation", "Flag Conjunction"};
    for (std::size_t i = 0; i < tags.size(); ++i) {
        builder_.object(1, static_cast<int>(i) + 1, static_cast<std::int16_t>(i), 0, 0);
    }
    open();
    for (std::size_t i = 0; i < tags.size(); ++i) {
        const int k = static_cast<int>(i) + 1;
        EXPECT_EQ(animation(k).property("tag").toString(), QString::fromLatin1(tags[i]));
        EXPECT_TRUE(animation(k).isShown());
        EXPECT_EQ(quickSpot(k).property("tag").toString(),
                  i == 1 ? QStringLiteral("HotSpot") : QString());
    }
    EXPECT_TRUE(animation(11).property("tag").toString().isEmpty());
    EXPECT_FALSE(animation(11).isShown());
}

TEST_F(Showing, TypesWithoutAPictureOfTheirOwnShowStockPictures) {
    for (int k = 1; k <= 10; ++k) {
        builder_.object(1, k, static_cast<std::int16_t>(k - 1), 0, 0);
    }
    open();
    for (int k = 1; k <= 5; ++k) {
        EXPECT_TRUE(showsStock(k, "new-object")) << k;
    }
    EXPECT_TRUE(showsStock(6, "responder"));
    EXPECT_TRUE(showsStock(7, "delay"));
    EXPECT_TRUE(showsStock(8, "multi-trigger"));
    EXPECT_TRUE(showsStock(9, "conversation"));
    EXPECT_TRUE(showsStock(10, "flag-conjunction"));
}

TEST_F(Showing, ATypeWithASymbolNeverLoadsItsText) {
    builder_.gfx("a.gif", test::stillGif(9, 9)).object(1, 1, 5, 0, 0, "a.gif");
    open();
    EXPECT_TRUE(showsStock(1, "responder")) << "its first text is a sound";
}

TEST_F(Showing, UnknownTypesAreObjects) {
    const std::array<std::int16_t, 5> types = {10, 99, -2, -7, 32767};
    for (std::size_t i = 0; i < types.size(); ++i) {
        builder_.object(1, static_cast<int>(i) + 1, types[i], 5, 6, "a.gif");
    }
    open();
    EXPECT_EQ(view_.objectCount(), 5);
    for (int k = 1; k <= 5; ++k) {
        EXPECT_TRUE(showsStock(k, "unknown-object")) << k;
        EXPECT_EQ(animation(k).tag(), QStringLiteral(">>> Unknown <<<"));
    }
    const auto before = test::readBytes(files_.storePath(1));
    save();
    EXPECT_EQ(test::readBytes(files_.storePath(1)), before) << "kept byte for byte";
}

TEST_F(Showing, PicturesAreShownAtTheirPlaceAndSize) {
    builder_.gfx("a.gif", test::stillGif(40, 30, 9)).object(1, 7, 2, 123, 45, "a.gif");
    open();
    EXPECT_EQ(animation(7).geometry(), QRect(123, 45, 40, 30));
    EXPECT_EQ(animation(7).grab().toImage().pixel(20, 20), test::gifColour(9));
    EXPECT_EQ(quickSpot(7).place().left, 123);
    EXPECT_EQ(quickSpot(7).place().top, 45);
}

TEST_F(Showing, APictureIsFoundInAnyLetterCase) {
    builder_.gfx("Coin.GIF", test::stillGif(40, 30)).object(1, 1, 2, 0, 0, "coin.gif");
    open();
    EXPECT_EQ(animation(1).naturalSize(), QSize(40, 30));
}

TEST_F(Showing, AMissingPictureIsReportedByThePictureAlone) {
    builder_.object(1, 1, 0, 3, 4, "gone.gif");
    QSignalSpy loading(&view_, &SceneView::loadingChanged);
    open();
    EXPECT_TRUE(showsStock(1, "file-not-found"));
    EXPECT_EQ(animation(1).geometry().topLeft(), QPoint(3, 4));
    ASSERT_EQ(loading.size(), 2) << "it does not hold the wait cursor";
    EXPECT_FALSE(loading.at(1).at(0).toBool());
}

TEST_F(Showing, BadPicturesShowAsMissingOnes) {
    std::string huge = test::stillGif(8, 8);
    huge.replace(6, 4, "\x30\x75\x30\x75");
    builder_.gfx("text.gif", "no picture").gfx("empty.gif", "").gfx("huge.gif", huge);
    builder_.gfx("cut.gif", test::stillGif(8, 8).substr(0, 12));
    const std::array names = {"text.gif", "empty.gif", "huge.gif", "cut.gif"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        builder_.object(1, static_cast<int>(i) + 1, 0, 0, 0, names[i]);
    }
    open();
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_TRUE(showsStock(static_cast<int>(i) + 1, "file-not-found")) << names[i];
    }
    EXPECT_EQ(view_.window()->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Showing, NamesThatLeaveTheFolderAreNeverOpened) {
    test::writeBytes(folder_ / "out.gif", test::stillGif(7, 7));
    const std::array names = {"../../out.gif", "..\\..\\out.gif", "..", ".", "sub/in.gif"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        builder_.object(1, static_cast<int>(i) + 1, 0, 0, 0, names[i]);
    }
    open();
    static_cast<void>(folder_.makeFolder("resource/gfx/sub"));
    test::writeBytes(folder_ / "resource/gfx/sub/in.gif", test::stillGif(7, 7));
    enter(1);
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_TRUE(showsStock(static_cast<int>(i) + 1, "file-not-found")) << names[i];
    }
}

TEST_F(Showing, AnImageSpotShowsItsPicture) {
    builder_.gfx("a.gif", test::stillGif(40, 30)).object(1, 1, 1, 0, 0, "a.gif");
    builder_.editSlot(1, 1, quickSpotOf("1", "2", 0));
    open();
    EXPECT_TRUE(animation(1).isShown());
    EXPECT_FALSE(quickSpot(1).isShown());
    EXPECT_EQ(scene_.slot(1).SlotStr(5), "1") << "only a QuickSpot is mended";
}

TEST_F(Showing, AQuickSpotShowsItsRectangle) {
    builder_.gfx("a.gif", test::stillGif(40, 30)).object(1, 1, 1, 11, 22, "a.gif");
    builder_.editSlot(1, 1, quickSpotOf("60", "90"));
    open();
    EXPECT_FALSE(animation(1).isShown());
    EXPECT_TRUE(quickSpot(1).isShown());
    EXPECT_EQ(quickSpot(1).geometry(), QRect(11, 22, 90, 60)) << "the first text is the height";
    EXPECT_EQ(quickSpot(1).tag(), QStringLiteral("HotSpot"));
    EXPECT_EQ(view_.objectCount(), 1);
}

TEST_F(Showing, ASmallQuickSpotComesUpAsFiveByFive) {
    builder_.object(1, 1, 1, 0, 0);
    builder_.object(1, 2, 1, 0, 0);
    builder_.object(1, 3, 1, 0, 0);
    builder_.editSlot(1, 1, quickSpotOf("4", "-3"));
    builder_.editSlot(1, 2, quickSpotOf("", "wide"));
    builder_.editSlot(1, 3, quickSpotOf("5", " 05 "));
    open();
    for (int k = 1; k <= 3; ++k) {
        EXPECT_EQ(quickSpot(k).size(), QSize(5, 5)) << k;
    }
    save();
    store::Scene saved;
    store::LoadScene(project_, saved, 1);
    for (int k = 1; k <= 2; ++k) {
        EXPECT_EQ(saved.slot(k).SlotStr(5), "5");
        EXPECT_EQ(saved.slot(k).SlotStr(6), "5");
    }
    EXPECT_EQ(saved.slot(3).SlotStr(6), "05") << "what is large enough is left alone";
}

TEST_F(Showing, AQuickSpotOfAnySizeIsSurvived) {
    builder_.object(1, 1, 1, 0, 0);
    builder_.editSlot(1, 1, quickSpotOf("999999999999999", "32768"));
    open();
    EXPECT_EQ(quickSpot(1).place().height, 32767);
    EXPECT_EQ(quickSpot(1).place().width, 32767);
    EXPECT_EQ(scene_.slot(1).SlotStr(5), "999999999999999");
}

TEST_F(Showing, AnyStyleButZeroIsAQuickSpotAndStoredAsOne) {
    const std::array<std::int16_t, 3> styles = {7, -1, 2};
    for (std::size_t i = 0; i < styles.size(); ++i) {
        builder_.object(1, static_cast<int>(i) + 1, 1, 0, 0);
        builder_.editSlot(1, static_cast<int>(i) + 1, quickSpotOf("10", "10", styles[i]));
    }
    open();
    for (int k = 1; k <= 3; ++k) {
        EXPECT_TRUE(quickSpot(k).isShown());
        EXPECT_FALSE(animation(k).isShown());
        EXPECT_EQ(scene_.slot(k).SlotInt(29), 1);
    }
}

TEST_F(Showing, TheStyleOfOtherTypesIsLeftAlone) {
    builder_.object(1, 1, 0, 0, 0).editSlot(1, 1, quickSpotOf("1", "1", 7));
    open();
    EXPECT_EQ(scene_.slot(1).SlotInt(29), 7);
    EXPECT_EQ(scene_.slot(1).SlotStr(5), "1");
    EXPECT_FALSE(quickSpot(1).isShown());
}

TEST_F(Showing, ObjectsAreCounted) {
    for (int k = 1; k <= 20; ++k) {
        builder_.object(1, k, 0, 0, 0);
    }
    builder_.scenes(2).object(2, 20, 5, 0, 0);
    QSignalSpy counts(&view_, &SceneView::objectCountChanged);
    open();
    EXPECT_EQ(view_.objectCount(), 20);
    ASSERT_FALSE(counts.isEmpty());
    EXPECT_EQ(counts.last().at(0).toInt(), 20);
    counts.clear();
    enter(2);
    ASSERT_FALSE(counts.isEmpty());
    EXPECT_EQ(counts.last().at(0).toInt(), 1);
}

TEST_F(Showing, AZeroedRecordIsTwentyAmbients) {
    builder_.scenes(1);
    open();
    enter(9);  // beyond the store
    EXPECT_EQ(view_.objectCount(), 20);
    EXPECT_TRUE(showsStock(20, "new-object"));
    EXPECT_EQ(link(1).size(), QSize(0, 0));
}

TEST_F(Showing, AnotherSceneLeavesNothingOfTheFirst) {
    builder_.gfx("a.gif", test::stillGif(40, 30)).scenes(2);
    builder_.object(1, 1, 0, 5, 5, "a.gif").object(1, 2, 1, 0, 0);
    builder_.editSlot(1, 2, quickSpotOf("9", "9"));
    open();
    enter(2);
    EXPECT_EQ(view_.objectCount(), 0);
    for (int k = 1; k <= 20; ++k) {
        EXPECT_FALSE(animation(k).isShown());
        EXPECT_EQ(animation(k).picture(), nullptr);
        EXPECT_TRUE(animation(k).tag().isEmpty());
        EXPECT_FALSE(quickSpot(k).isShown());
        EXPECT_TRUE(quickSpot(k).tag().isEmpty());
    }
}

TEST_F(Showing, TheWaitCursorStandsWhilePicturesLoad) {
    builder_.gfx("a.gif", test::stillGif(40, 30)).object(1, 1, 0, 0, 0, "a.gif");
    builder_.object(1, 2, 0, 0, 0, "a.gif").object(1, 3, 5, 0, 0);
    Qt::CursorShape during = Qt::ArrowCursor;
    QStringList order;
    QObject::connect(&view_, &SceneView::loadingChanged, &view_, [&](bool loading) {
        order << (loading ? QStringLiteral("wait") : QStringLiteral("normal"));
        if (loading) {
            during = view_.window()->cursor().shape();
        }
    });
    QObject::connect(&view_, &SceneView::objectCountChanged, &view_,
                     [&] { order << QStringLiteral("counted"); });
    open();
    EXPECT_EQ(during, Qt::WaitCursor);
    EXPECT_EQ(order.mid(0, 3), (QStringList{QStringLiteral("wait"), QStringLiteral("normal"),
                                            QStringLiteral("counted")}))
        << "the last picture gives the cursor back";
    EXPECT_EQ(view_.window()->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Showing, WithoutPicturesTheCursorComesBackToo) {
    builder_.object(1, 1, 5, 0, 0);
    QSignalSpy loading(&view_, &SceneView::loadingChanged);
    open();
    EXPECT_EQ(loading.size(), 2);
    EXPECT_EQ(view_.window()->cursor().shape(), Qt::ArrowCursor);
}

/// Counts the paintings of the canvas.
class PaintCounter : public QObject {
  public:
    bool eventFilter(QObject* /*object*/, QEvent* event) override {
        paints_ += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    [[nodiscard]] int paints() const { return paints_; }

  private:
    int paints_ = 0;
};

TEST_F(Showing, HalfASceneIsNeverPainted) {
    for (int k = 1; k <= 20; ++k) {
        builder_.object(1, k, 0, static_cast<std::int16_t>(k * 20), 50);
    }
    PaintCounter counter;
    view_.show();
    open();
    QCoreApplication::processEvents();
    child("Image1")->installEventFilter(&counter);
    view_.ClearCanvas();
    view_.ShowSceneObjects();
    EXPECT_EQ(counter.paints(), 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(counter.paints(), 1);
}

TEST_F(Showing, AChangedFileIsSeenWithTheNextScene) {
    builder_.gfx("a.gif", test::stillGif(40, 30)).object(1, 1, 0, 0, 0, "a.gif");
    open();
    test::writeBytes(files_.gfx("a.gif"), test::stillGif(41, 31));
    EXPECT_EQ(animation(1).naturalSize(), QSize(40, 30));
    enter(1);
    EXPECT_EQ(animation(1).naturalSize(), QSize(41, 31));
}

TEST_F(Showing, ElementsTakeTheirDisplayMode) {
    builder_.object(1, 1, 0, 0, 0).object(1, 2, 1, 0, 0);
    builder_.editSlot(1, 1, [](store::ObjectSlotRecord& slot) { slot.SlotInt4To29[0] = 2; });
    builder_.editSlot(1, 2, [](store::ObjectSlotRecord& slot) { slot.SlotInt4To29[1] = 3; });
    open();
    EXPECT_EQ(animation(1).playhead().mode(), forms::DisplayMode::pingPong);
    EXPECT_EQ(animation(2).playhead().mode(), forms::DisplayMode::once);
}

TEST_F(Showing, ClearingTheCanvasLosesNothingOfTheScene) {
    builder_.object(1, 1, 0, 0, 0, "a.gif");
    open();
    const store::Scene before = scene_;
    view_.ClearCanvas();
    EXPECT_FALSE(animation(1).isShown());
    EXPECT_EQ(animation(1).picture(), nullptr);
    EXPECT_EQ(scene_, before) << "a load that fails then leaves the scene as it was";
}

TEST_F(Showing, WhileAProjectLoadsTheCanvasIsLeftAlone) {
    builder_.object(1, 1, 0, 0, 0, "");
    open();
    project_.ProjectLoading = true;
    view_.ClearCanvas();
    EXPECT_TRUE(animation(1).isShown());
}

}  // namespace
}  // namespace quorvel::canvas
