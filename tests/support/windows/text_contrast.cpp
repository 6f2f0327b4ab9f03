#include "support/windows/text_contrast.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include <QHash>
#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QRegion>

#include "support/windows/window_checks.h"

namespace quorvel::test {
namespace {

double luminance(const QColor& color) {
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// A text and where its letters stand, in pixels of the device.
struct Place {
    QString text;
    QColor pen;
    QRect letters;  ///< as far as they are not cut off
};

/// Paints nothing and notes the texts.
class TextNoter : public QPaintEngine {
  public:
    TextNoter() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {
    }
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawRects(const QRectF*, int) override {}
    void drawLines(const QLineF*, int) override {}
    [[nodiscard]] Type type() const override { return User; }

    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        if (item.text().trimmed().isEmpty()) {
            return;
        }
        // The rows between the tops of small letters and the line that they stand on.
        const double high = item.ascent() * 0.6;
        // A single letter, underlined ones are drawn alone, may fill its own place.
        const double beside = item.text().size() == 1 ? 3 : 0;
        const QRectF letters(at.x() - beside, at.y() - high, item.width() + 2 * beside, high);
        QColor pen = painter()->pen().color();
        pen.setAlphaF(static_cast<float>(pen.alphaF() * painter()->opacity()));
        QRect place = painter()->deviceTransform().mapRect(letters).toAlignedRect();
        if (painter()->hasClipping()) {
            // Around a selection all but its text is painted, and inside of it that alone.
            const QRegion seen = painter()->deviceTransform().map(painter()->clipRegion());
            place = (seen & place).boundingRect();
        }
        constexpr int kSeam = 2;
        if (place.width() > kSeam) {
            places.push_back({item.text(), pen, place});
        }
    }

    std::vector<Place> places;
};

class NotingDevice : public QPaintDevice {
  public:
    explicit NotingDevice(QSize size) : size_(size) {}
    [[nodiscard]] QPaintEngine* paintEngine() const override { return &noter; }
    mutable TextNoter noter;

  protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override {
        constexpr int kDotsPerInch = 96;
        constexpr int kColours = 1 << 24;
        constexpr int kDepth = 32;
        switch (metric) {
            case PdmWidth:
            case PdmWidthMM:
                return size_.width();
            case PdmHeight:
            case PdmHeightMM:
                return size_.height();
            case PdmNumColors:
                return kColours;
            case PdmDepth:
                return kDepth;
            case PdmDevicePixelRatio:
                return 1;
            case PdmDevicePixelRatioScaled:
                return static_cast<int>(devicePixelRatioFScale());
            default:
                return kDotsPerInch;
        }
    }

  private:
    QSize size_;
};

/// `over` as it looks on `ground`.
QColor blended(const QColor& over, const QColor& ground) {
    const auto mix = [&](float a, float b) { return a * over.alphaF() + b * (1 - over.alphaF()); };
    return QColor::fromRgbF(mix(over.redF(), ground.redF()), mix(over.greenF(), ground.greenF()),
                            mix(over.blueF(), ground.blueF()));
}

/// What lies behind a row of letters is the pixel there that differs most from them; of all rows
/// the worst counts, for a ground may be a gradient.
PaintedText seen(const Place& place, const QImage& picture) {
    PaintedText result{.text = place.text, .pen = place.pen, .ground = {}, .contrast = 21};
    QHash<QRgb, double> known;
    for (int y = place.letters.top(); y <= place.letters.bottom(); ++y) {
        double best = 0;
        QRgb behind = 0;
        for (int x = place.letters.left(); x <= place.letters.right(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            auto here = known.constFind(pixel);
            if (here == known.constEnd()) {
                const QColor ground(pixel);
                here = known.insert(pixel, contrast(blended(place.pen, ground), ground));
            }
            if (*here > best) {
                best = *here;
                behind = pixel;
            }
        }
        if (best < result.contrast) {
            result.contrast = best;
            result.ground = QColor(behind);
        }
    }
    return result;
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

std::vector<PaintedText> paintedTexts(QWidget& widget) {
    NotingDevice device(widget.size());
    widget.render(&device);
    const double scale = widget.devicePixelRatioF();
    QImage picture = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    picture.setDevicePixelRatio(1);
    std::vector<PaintedText> texts;
    for (Place place : device.noter.places) {
        place.letters = QRect((QPointF(place.letters.topLeft()) * scale).toPoint(),
                              (QSizeF(place.letters.size()) * scale).toSize()) &
                        picture.rect();
        if (!place.letters.isEmpty()) {
            texts.push_back(seen(place, picture));
        }
    }
    return texts;
}

void expectReadable(QWidget& widget) {
    for (const PaintedText& one : paintedTexts(widget)) {
        EXPECT_GE(one.contrast, kReadable)
            << nameOf(widget).toStdString() << ": \"" << one.text.toStdString() << "\" in "
            << one.pen.name().toStdString() << " on " << one.ground.name().toStdString();
    }
}

}  // namespace quorvel::test
