#include "canvas/elements.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <QFocusEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include "canvas/texts.h"

namespace quorvel::canvas {
namespace {

constexpr const char* kTag = "tag";

int tone(int base, int by) {
    return std::clamp(base + by, 0, 255);
}

/// The empty canvas: two tones of the window's own colour, hardly apart.
void paintGround(QPainter& painter, const QRect& area, const QColor& window) {
    constexpr int kSquare = 25;  // divides the canvas evenly
    const bool dark = window.lightness() < 128;
    const auto shade = [&window](int by) {
        return QColor(tone(window.red(), by), tone(window.green(), by), tone(window.blue(), by));
    };
    painter.fillRect(area, shade(dark ? -10 : -12));
    const QColor second = shade(dark ? -5 : -18);
    for (int y = area.top() / kSquare; y <= area.bottom() / kSquare; ++y) {
        for (int x = area.left() / kSquare; x <= area.right() / kSquare; ++x) {
            if ((x + y) % 2 != 0) {
                painter.fillRect(x * kSquare, y * kSquare, kSquare, kSquare, second);
            }
        }
    }
}

/// Degrees by which an arrow to the right is turned.
int angleOf(store::LinkSide side) {
    switch (side) {
        case store::LinkSide::left:
            return 180;
        case store::LinkSide::up:
            return 270;
        case store::LinkSide::right:
            return 0;
        case store::LinkSide::down:
            break;
    }
    return 90;
}

}  // namespace

std::int16_t pixel(int number) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(number, Limits::min(), Limits::max()));
}

SceneElement::SceneElement(Kind kind, int index, QWidget* parent)
    : QWidget(parent), kind_(kind), index_(index) {
    setMouseTracking(true);
    setProperty(kTag, QString());
    hide();
}

void SceneElement::setPlace(const Place& place) {
    place_ = place;
    setGeometry(place.left, place.top, std::max<int>(place.width, 0),
                std::max<int>(place.height, 0));
}

void SceneElement::moveTo(std::int16_t left, std::int16_t top) {
    setPlace({left, top, place_.width, place_.height});
}

void SceneElement::setShown(bool shown) {
    shown_ = shown;
    setVisible(shown);
}

QString SceneElement::tag() const {
    return property(kTag).toString();
}

void SceneElement::setTag(const QString& tag) {
    if (this->tag() != tag) {
        setProperty(kTag, tag);
        setAccessibleName(tag.isEmpty() ? QString() : QStringLiteral("%1 %2").arg(tag).arg(index_));
    }
}

void SceneElement::draw(QPainter& /*painter*/) const {}

void SceneElement::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
        Q_EMIT pointedAt(*this);
    }
}

void SceneElement::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    draw(painter);
}

void SceneElement::enterEvent(QEnterEvent* event) {
    QWidget::enterEvent(event);
    Q_EMIT pointedAt(*this);
}

void SceneElement::mouseMoveEvent(QMouseEvent* event) {
    // Accepted, or the frame below would think that the pointer is over it.
    event->accept();
    Q_EMIT pointedAt(*this);
}

SceneImage::SceneImage(QWidget* parent) : SceneElement(Kind::image, 0, parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void SceneImage::setImage(const QImage& image) {
    image_ = image.copy(image.rect() & rect());
    if (!image_.isNull()) {
        image_.convertTo(image_.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                  : QImage::Format_RGB32);
    }
    update();
}

void SceneImage::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const bool covered = !image_.hasAlphaChannel() && image_.rect().contains(event->rect());
    if (!covered) {
        paintGround(painter, event->rect(), palette().color(QPalette::Window));
    }
    painter.drawImage(0, 0, image_);
}

bool AreaElement::glows() const {
    // While it is carried its place is hidden; what follows the pointer is as clear as can be.
    return underMouse() || isHidden();
}

void AreaElement::enterEvent(QEnterEvent* event) {
    SceneElement::enterEvent(event);
    update();
}

void AreaElement::leaveEvent(QEvent* event) {
    SceneElement::leaveEvent(event);
    update();
}

void AreaElement::draw(QPainter& painter) const {
    if (glows()) {
        painter.fillRect(rect(), QColor(255, 255, 255, 46));
        painter.setPen(QColor(20, 26, 34, 90));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.setPen(QColor(255, 255, 255, 130));
        painter.drawRect(rect().adjusted(1, 1, -2, -2));
    }
}

LinkElement::LinkElement(store::LinkSide side, QWidget* parent)
    : AreaElement(Kind::link, static_cast<int>(side), parent), side_(side) {
    setAccessibleName(QStringLiteral("Link (%1)").arg(directionName(side)));
}

void LinkElement::setLeads(bool leads) {
    leads_ = leads;
    update();
}

void LinkElement::draw(QPainter& painter) const {
    AreaElement::draw(painter);
    // One chevron in the middle, white on a dark shadow, so that it is seen on any picture.
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    painter.rotate(angleOf(side_));
    QPainterPath chevron(QPointF(-3.5, -8));
    chevron.lineTo(4.5, 0);
    chevron.lineTo(-3.5, 8);
    const int strength = glows() ? 255 : (leads_ ? 200 : 130);
    QPen pen(QColor(20, 26, 34, strength * 6 / 10), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.strokePath(chevron, pen);
    pen.setColor(QColor(255, 255, 255, strength));
    pen.setWidthF(2.5);
    painter.strokePath(chevron, pen);
}

PictureElement::PictureElement(int index, QWidget* parent)
    : SceneElement(Kind::object, index, parent), playhead_(nullptr) {
    playhead_.setSuspended(true);
    connect(&playhead_, &forms::Playhead::frameChanged, this, qOverload<>(&QWidget::update));
}

void PictureElement::setPicture(forms::PicturePtr picture) {
    if (picture == nullptr && playhead_.picture() == nullptr) {
        return;
    }
    playhead_.setPicture(std::move(picture));
    const QSize size = naturalSize();
    setPlace({place().left, place().top, static_cast<std::int16_t>(size.width()),
              static_cast<std::int16_t>(size.height())});
    Q_EMIT loaded();
}

QSize PictureElement::naturalSize() const {
    return picture() == nullptr ? QSize(0, 0) : picture()->size();
}

void PictureElement::showEvent(QShowEvent* event) {
    SceneElement::showEvent(event);
    playhead_.setSuspended(false);
}

void PictureElement::hideEvent(QHideEvent* event) {
    SceneElement::hideEvent(event);
    playhead_.setSuspended(true);
}

void PictureElement::draw(QPainter& painter) const {
    painter.drawImage(0, 0, playhead_.frame());
}

Outline::Outline(const QColor& color, QWidget* parent) : QWidget(parent), color_(color) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void Outline::surround(const Place& place) {
    setGeometry(place.left - 1, place.top - 1, std::max(place.width + 2, 0),
                std::max(place.height + 2, 0));
}

void Outline::paintEvent(QPaintEvent* /*event*/) {
    // Bright dashes on a dark line are seen on any picture.
    QPainter painter(this);
    const QRect line = rect().adjusted(0, 0, -1, -1);
    painter.setPen(QColor(16, 20, 26, 220));
    painter.drawRect(line);
    QPen dashes(color_, 1);
    dashes.setDashPattern({5, 3});
    painter.setPen(dashes);
    painter.drawRect(line);
}

}  // namespace quorvel::canvas
