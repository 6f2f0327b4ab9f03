#include "art/beacon_movie.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "art/brush.h"
#include "art/turn.h"

namespace quorvel::sample {
namespace {

constexpr QSize kSize(350, 238);
constexpr int kFrames = 54;
constexpr int kPerSecond = 12;
constexpr double kSeconds = double(kFrames) / kPerSecond;
constexpr QPointF kLamp(518, 72);
constexpr double kFirstWidth = 150;

/// 0 to 1, gently at both ends.
double ease(double t) {
    const double x = std::clamp(t, 0.0, 1.0);
    return x * x * (3 - 2 * x);
}

/// What the camera sees, within the picture.
QRectF view(double way) {
    const double width = kFirstWidth + (kWidth - kFirstWidth) * way;
    const double height = width * kSize.height() / kSize.width();
    const QPointF centre = kLamp * (1 - way) + QPointF(kWidth / 2.0, kHeight / 2.0) * way;
    const double left = std::clamp(centre.x() - width / 2, 0.0, std::max(0.0, kWidth - width));
    const double top = std::clamp(centre.y() - height / 2, 0.0, std::max(0.0, kHeight - height));
    return {left, top, width, height};
}

QImage paintFrame(const QImage& harbour, int frame) {
    const double time = double(frame) / kFrames;
    const double light = ease(time * 3.2 - 0.3);
    const QRectF seen = view(ease(time * 1.5 - 0.42));
    QImage picture(kSize, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    painter.drawImage(QRectF(QPointF(), kSize), harbour, seen);
    // The night before the lamp is lit.
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.fillRect(picture.rect(), mix(hex(0x1c1c38), hex(0xffffff), light));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    const double scale = kSize.width() / seen.width();
    const QPointF lamp = (kLamp - seen.topLeft()) * scale;
    const double flicker = 0.85 + 0.15 * std::sin(kTurn * time * 13);
    glow(painter, lamp, 46 * scale, hex(0xffe9b0), 0.9 * ease(time * 5) * flicker);
    return picture;
}

/// The sea, the horn of the first boat, and the bell of the harbour.
Wave sound() {
    Wave wave(kSeconds);
    wave.addNoise(0, kSeconds, 800, 11,
                  [](double t) { return 0.25 + 0.2 * std::sin(kTurn * t / 3.0); });
    for (const double start : {1.2, 2.3}) {
        wave.add(start, 0.9, [](double t) {
            const double body = std::sin(kTurn * 98 * t) + 0.6 * std::sin(kTurn * 196 * t) +
                                0.35 * std::sin(kTurn * 294 * t);
            return 0.3 * body * std::sin(kTurn / 2 * t / 0.9);
        });
    }
    for (const double partial : {1.0, 2.4, 3.9}) {
        wave.addTone(3.3, 620 * partial, 0.5 / partial, 0.25 / partial);
    }
    wave.normalise(0.7);
    return wave;
}

}  // namespace

Movie beaconMovie(const QImage& harbour) {
    return {.size = kSize,
            .frames = kFrames,
            .perSecond = kPerSecond,
            .paint = [harbour](int frame) { return paintFrame(harbour, frame); },
            .sound = sound()};
}

}  // namespace quorvel::sample
