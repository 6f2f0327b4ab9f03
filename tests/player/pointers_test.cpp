// The mouse pointers of a game: its own files, and what stands for them.
#include "player/pointers.h"

#include <QBuffer>
#include <QPixmap>

#include "forms/stock_pointers.h"
#include "player/player_fixture.h"

namespace quorvel::test {
namespace {

/// An icon (1) or cursor (2) file with one picture of 32 by 32 red pixels. Where a cursor has the
/// place that is pressed, an icon has planes and bits.
std::string iconBytes(char kind, char hotX, char hotY) {
    std::string bytes = {0, 0, kind, 0, 1, 0, 32, 32, 0, 0, hotX, 0, hotY, 0};
    QImage image(32, 32, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    for (const qsizetype number : {png.size(), qsizetype{22}}) {
        for (unsigned shift = 0; shift < 32; shift += 8) {
            bytes += static_cast<char>(static_cast<std::size_t>(number) >> shift & 0xFFU);
        }
    }
    return bytes + png.toStdString();
}

class Pointers : public PlayerFixture {
  protected:
    ProjectBuilder& pointer(int index, const char* name) {
        return builder.editSettings([=](store::GameSettingsRecord& record) {
            record.GamePointer.at(static_cast<std::size_t>(index - 1)) = name;
        });
    }
    static bool isRed(const QCursor& cursor) {
        return !cursor.pixmap().isNull() &&
               cursor.pixmap().toImage().pixelColor(10, 10) == QColor(Qt::red);
    }
};

TEST_F(Pointers, EachPlaceHasItsOwn) {
    builder.editScene(1, [](store::SceneRecord& record) {
        record.LinkUpTarget = 1;
        record.LinkUpPointer = 1;
        record.LinkLeftTarget = 1;
        record.LinkLeftPointer = 0;
    });
    builder.object(1, 1, 1, 0, 0, "it.gif").gfx("it.gif", stillGif(20, 20));
    builder.editSlot(1, 1, [](store::ObjectSlotRecord& slot) { slot.SlotInt4To29[0] = 10; });
    buildAndPlay();
    EXPECT_EQ(sceneWindow().cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(link(2).cursor().shape(), Qt::BitmapCursor) << "an arrow upwards";
    EXPECT_EQ(link(1).cursor().shape(), Qt::ArrowCursor) << "0 is the normal one";
    EXPECT_EQ(area(1).cursor().shape(), Qt::BitmapCursor) << "the eye of a HotSpot";
}

TEST_F(Pointers, LookAsTheEditorShowsThem) {
    build();
    const player::Game game(folder.path());
    player::Pointers pointers(game);
    forms::PictureStore drawings;
    for (int index = 1; index <= 12; ++index) {
        const forms::PicturePtr drawing = drawings.stock(forms::stockPointer(index));
        const QCursor& cursor = pointers.pointer(index);
        const QImage image =
            cursor.pixmap().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
        EXPECT_EQ(image.size(), QSize(32, 32)) << index;
        EXPECT_EQ(image.devicePixelRatio(), 1) << index;
        EXPECT_EQ(cursor.hotSpot(), QPoint(16, 16)) << "pressed in the middle, pointer " << index;
        if (qGuiApp->devicePixelRatio() == 1) {
            EXPECT_EQ(image, drawing->firstFrame()) << index;
        }
    }
}

TEST_F(Pointers, FilesOfTheGameReplaceThem) {
    pointer(13, "Normal.cur").gfx("normal.cur", iconBytes(2, 7, 9));
    pointer(10, "hot.ico").gfx("hot.ico", iconBytes(1, 1, 32));
    builder.object(1, 1, 1, 0, 0, "it.gif").gfx("it.gif", stillGif(20, 20));
    builder.editSlot(1, 1, [](store::ObjectSlotRecord& slot) { slot.SlotInt4To29[0] = 10; });
    buildAndPlay();
    EXPECT_TRUE(isRed(sceneWindow().cursor()));
    EXPECT_EQ(sceneWindow().cursor().hotSpot(), QPoint(7, 9));
    EXPECT_TRUE(isRed(area(1).cursor()));
    EXPECT_EQ(area(1).cursor().hotSpot(), QPoint(0, 0)) << "an icon is pressed in its corner";
}

TEST_F(Pointers, AMissingOrDamagedFileIsNoReasonToStop) {
    pointer(13, "gone.cur");
    pointer(10, "bad.cur").gfx("bad.cur", "no pointer");
    pointer(1, "../../secret.cur");
    builder.object(1, 1, 1, 0, 0, "it.gif").gfx("it.gif", stillGif(20, 20));
    builder.editSlot(1, 1, [](store::ObjectSlotRecord& slot) { slot.SlotInt4To29[0] = 10; });
    buildAndPlay();
    EXPECT_EQ(sceneWindow().cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(area(1).cursor().shape(), Qt::ArrowCursor);
    const std::string whole = iconBytes(2, 7, 9);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        writeBytes(folder / "cut.cur", whole.substr(0, length));
        (void)player::pointerFromFile(folder / "cut.cur");
    }
}

TEST_F(Pointers, ADrawingOrAnEnormousPictureIsNone) {
    // Drawings can name other files, which a game has no business with.
    writeBytes(folder / "drawing.cur",
               "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"32\" height=\"32\">"
               "<rect width=\"32\" height=\"32\" fill=\"red\"/></svg>");
    std::filesystem::copy_file(folder / "drawing.cur", folder / "drawing.svg");
    writeBytes(folder / "large.cur", bmpBytes(257, 20, 0xFF0000));
    for (const char* name : {"drawing.cur", "drawing.svg", "large.cur"}) {
        EXPECT_EQ(player::pointerFromFile(folder / name).shape(), Qt::ArrowCursor) << name;
    }
    writeBytes(folder / "fits.cur", bmpBytes(256, 20, 0xFF0000));
    EXPECT_TRUE(isRed(player::pointerFromFile(folder / "fits.cur")));
}

TEST_F(Pointers, AHotSpotBeyondThePictureIsItsLastPixel) {
    writeBytes(folder / "odd.cur", iconBytes(2, 100, 100));
    EXPECT_EQ(player::pointerFromFile(folder / "odd.cur").hotSpot(), QPoint(31, 31));
}

TEST_F(Pointers, EveryNumberHasAPointer) {
    build();
    const player::Game game(folder.path());
    player::Pointers pointers(game);
    for (const int index : {-32768, -1, 0, 13, 16, 32767}) {
        EXPECT_EQ(pointers.pointer(index).shape(), Qt::ArrowCursor) << index;
    }
    for (int index = 1; index <= 8; ++index) {
        EXPECT_FALSE(pointers.pointer(index).pixmap().isNull()) << index;
    }
    EXPECT_EQ(pointers.pointer(14).shape(), Qt::WaitCursor);
}

}  // namespace
}  // namespace quorvel::test
