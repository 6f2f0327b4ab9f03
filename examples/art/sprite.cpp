#include "art/sprite.h"

#include "art/brush.h"

namespace quorvel::sample {

QImage renderFrame(const Sprite& sprite, const QImage& picture, int frame) {
    QImage layer(sprite.box.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter inner(&layer);
    makeSmooth(inner);
    inner.translate(-sprite.box.topLeft());
    sprite.paint(inner, frame);
    inner.end();

    QImage result = picture.copy(sprite.box).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&result);
    painter.drawImage(0, 0, layer);
    painter.end();
    // Fainter than this nobody sees, and it would only tie the sprite to its background.
    constexpr int faint = 9;
    for (int y = 0; y < result.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        const auto* mask = reinterpret_cast<const QRgb*>(layer.constScanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            line[x] = qAlpha(mask[x]) < faint ? 0 : (line[x] | 0xFF000000U);
        }
    }
    return result;
}

}  // namespace quorvel::sample
