#include "files/gif_file.h"

#include <gif_lib.h>
#include <memory>
#include <stdexcept>

#include "files/palette.h"

namespace quorvel::sample {
namespace {

void require(bool done, const std::filesystem::path& path) {
    if (!done) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

struct Closer {
    void operator()(GifFileType* gif) const { EGifCloseFile(gif, nullptr); }
};
using Gif = std::unique_ptr<GifFileType, Closer>;

struct MapFreer {
    void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};

std::unique_ptr<ColorMapObject, MapFreer> colourMap(const Palette& palette) {
    std::unique_ptr<ColorMapObject, MapFreer> map(GifMakeMapObject(kPaletteSize, nullptr));
    for (int i = 0; i < kPaletteSize; ++i) {
        const QRgb colour = palette.colour(i);
        map->Colors[i] = {static_cast<GifByteType>(qRed(colour)),
                          static_cast<GifByteType>(qGreen(colour)),
                          static_cast<GifByteType>(qBlue(colour))};
    }
    return map;
}

bool putLoop(GifFileType* gif) {
    const std::string name = "NETSCAPE2.0";
    const std::array<GifByteType, 3> forever = {1, 0, 0};
    return EGifPutExtensionLeader(gif, APPLICATION_EXT_FUNC_CODE) == GIF_OK &&
           EGifPutExtensionBlock(gif, static_cast<int>(name.size()), name.data()) == GIF_OK &&
           EGifPutExtensionBlock(gif, 3, forever.data()) == GIF_OK &&
           EGifPutExtensionTrailer(gif) == GIF_OK;
}

bool putFrame(GifFileType* gif, std::vector<std::uint8_t> entries, QSize size, int delay) {
    // Entry 0 is clear; each frame is wiped before the next.
    const GraphicsControlBlock control{DISPOSE_BACKGROUND, false, delay, 0};
    std::array<GifByteType, 4> bytes{};
    EGifGCBToExtension(&control, bytes.data());
    if (EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, 4, bytes.data()) != GIF_OK ||
        EGifPutImageDesc(gif, 0, 0, size.width(), size.height(), false, nullptr) != GIF_OK) {
        return false;
    }
    for (int y = 0; y < size.height(); ++y) {
        if (EGifPutLine(gif, entries.data() + std::ptrdiff_t{y} * size.width(), size.width()) !=
            GIF_OK) {
            return false;
        }
    }
    return true;
}

}  // namespace

void writeGif(const std::filesystem::path& path, const std::vector<QImage>& frames, int delay) {
    const QSize size = frames.front().size();
    Palette palette(frames);
    const auto map = colourMap(palette);
    Gif gif(EGifOpenFileName(path.string().c_str(), false, nullptr));
    require(gif != nullptr, path);
    EGifSetGifVersion(gif.get(), true);
    require(EGifPutScreenDesc(gif.get(), size.width(), size.height(), 8, 0, map.get()) == GIF_OK,
            path);
    require(frames.size() < 2 || putLoop(gif.get()), path);
    for (const QImage& frame : frames) {
        require(putFrame(gif.get(), palette.entriesOf(frame), size, delay), path);
    }
    require(EGifCloseFile(gif.release(), nullptr) == GIF_OK, path);
    // The library makes files that only their owner can read.
    using std::filesystem::perms;
    std::filesystem::permissions(
        path, perms::owner_read | perms::owner_write | perms::group_read | perms::others_read);
}

}  // namespace quorvel::sample
