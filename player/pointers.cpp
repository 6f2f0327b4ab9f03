#include "player/pointers.h"

#include <algorithm>

#include <QFile>
#include <QImage>
#include <QPixmap>

#include "forms/pictures.h"
#include "forms/stock_pointers.h"
#include "resources/byte_source.h"
#include "resources/path_text.h"
#include "store/paths.h"

namespace quorvel::player {
namespace {

constexpr int kNormal = 13;
constexpr int kPointers = 15;
/// A pointer larger than that is a mistake, and no system shows it.
constexpr int kLargestSide = 256;

/// The drawing that the editor shows for the pointer; it is pressed in its middle. It has the
/// pixels that a pointer file would have, at every scale: not all desktops scale the place that is
/// pressed.
QCursor drawn(int index) {
    forms::PictureStore drawings;
    const forms::PicturePtr drawing = drawings.stock(forms::stockPointer(index));
    QImage image = drawing->firstFrame().scaled(drawing->size(), Qt::IgnoreAspectRatio,
                                                Qt::SmoothTransformation);
    image.setDevicePixelRatio(1);
    return QCursor(QPixmap::fromImage(image), image.width() / 2, image.height() / 2);
}

QCursor builtIn(int index) {
    constexpr int kWait = 14;
    constexpr int kButtons = 15;
    switch (index) {
        // Those that every desktop has are its own.
        case kNormal:
            return Qt::ArrowCursor;
        case kWait:
            return Qt::WaitCursor;
        case kButtons:
            return Qt::PointingHandCursor;
        default:
            return drawn(index);
    }
}

/// Where a cursor file says that it is pressed; the corner for every other file.
QPoint hotSpotOf(const QByteArray& bytes) {
    try {
        const resources::BoundedBytes file(
            {bytes.constData(), static_cast<std::size_t>(bytes.size())});
        constexpr int kCursor = 2;
        return file.number16(2) == kCursor ? QPoint(file.number16(10), file.number16(12))
                                           : QPoint(0, 0);
    } catch (const resources::DamagedBytes&) {
        return {0, 0};
    }
}

}  // namespace

QCursor pointerFromFile(const std::filesystem::path& file) {
    forms::PictureStore pictures;
    const forms::PicturePtr picture = pictures.load(file);
    const QImage& image = picture->firstFrame();
    if (!picture->ok() || image.width() > kLargestSide || image.height() > kLargestSide) {
        return Qt::ArrowCursor;
    }
    QFile bytes;
    constexpr qint64 kHeader = 22;  // of the file and of its first picture
    const QPoint at =
        resources::openToRead(bytes, file) ? hotSpotOf(bytes.read(kHeader)) : QPoint(0, 0);
    return QCursor(QPixmap::fromImage(image), std::min(at.x(), image.width() - 1),
                   std::min(at.y(), image.height() - 1));
}

QCursor Pointers::make(int index) const {
    const auto file =
        store::findResource(game_.folder(), store::ResourceFolder::gfx, game_.pointerFile(index));
    return file ? pointerFromFile(*file) : builtIn(index);
}

const QCursor& Pointers::pointer(int index) {
    const int known = index >= 1 && index <= kPointers ? index : kNormal;
    const auto found = made_.find(known);
    return found != made_.end() ? found->second : made_.emplace(known, make(known)).first->second;
}

}  // namespace quorvel::player
