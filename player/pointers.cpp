#include "player/pointers.h"

#include <algorithm>
#include <array>

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include "resources/byte_source.h"
#include "store/paths.h"

namespace quorvel::player {
namespace {

constexpr int kNormal = 13;
constexpr int kPointers = 15;
constexpr int kSide = 32;
/// A pointer larger than that is a mistake, and no system shows it.
constexpr int kLargestSide = 256;

/// Degrees by which the arrow of pointers 1 to 8 is turned; it points to the right at 0.
constexpr std::array kAngles = {270, 90, 180, 0, 225, 315, 135, 45};

QCursor arrow(int angle) {
    QPixmap pixmap(kSide, kSide);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(kSide / 2.0, kSide / 2.0);
    painter.rotate(angle);
    QPainterPath shape(QPointF(14, 0));
    for (const QPointF point : {QPointF(2, -11), QPointF(2, -5), QPointF(-13, -5), QPointF(-13, 5),
                                QPointF(2, 5), QPointF(2, 11)}) {
        shape.lineTo(point);
    }
    shape.closeSubpath();
    painter.setPen(QPen(QColor(20, 26, 34), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(250, 247, 236));
    painter.drawPath(shape);
    painter.end();
    return QCursor(pixmap, kSide / 2, kSide / 2);
}

QCursor builtIn(int index) {
    if (index >= 1 && index <= static_cast<int>(kAngles.size())) {
        return arrow(kAngles[static_cast<std::size_t>(index - 1)]);
    }
    switch (index) {
        case 9:   // exit
        case 10:  // hotspot
        case 15:  // buttons
            return Qt::PointingHandCursor;
        case 11:  // goodie
            return Qt::OpenHandCursor;
        case 12:  // reactor
            return Qt::WhatsThisCursor;
        case 14:
            return Qt::WaitCursor;
        default:
            return Qt::ArrowCursor;
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
    const QString path = QString::fromStdString(store::textOf(file));
    QImageReader reader(path);
    const QSize size = reader.size();
    if (size.width() > kLargestSide || size.height() > kLargestSide) {
        return Qt::ArrowCursor;
    }
    const QImage image = reader.read();
    if (image.isNull() || image.width() > kLargestSide || image.height() > kLargestSide) {
        return Qt::ArrowCursor;
    }
    QFile bytes(path);
    constexpr qint64 kHeader = 22;  // of the file and of its first picture
    const QPoint at =
        bytes.open(QIODevice::ReadOnly) ? hotSpotOf(bytes.read(kHeader)) : QPoint(0, 0);
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
