#include "groups/level.h"

#include <QSignalBlocker>
#include <QWheelEvent>

#include "store/numbers.h"

namespace quorvel::groups {
namespace {

/// Left alone by a wheel that is turned over it in passing.
class CalmSlider : public QSlider {
  public:
    using QSlider::QSlider;

  protected:
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus()) {
            QSlider::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

}  // namespace

Level::Level(const QString& slider, const QString& box, const QString& spoken,
             const LevelRange& range, QWidget* parent)
    : QObject(parent),
      slider_(new CalmSlider(Qt::Horizontal, parent)),
      box_(new QLineEdit(parent)) {
    slider_->setObjectName(slider);
    slider_->setAccessibleName(spoken);
    slider_->setMinimumWidth(70);
    box_->setObjectName(box);
    box_->setAccessibleName(spoken);
    box_->setReadOnly(true);
    box_->setFocusPolicy(Qt::NoFocus);
    box_->setAlignment(Qt::AlignRight);
    box_->setFixedWidth(box_->fontMetrics().horizontalAdvance(QStringLiteral("-40000")) + 8);
    connect(slider_, &QSlider::valueChanged, this, &Level::followSlider);
    setRange(range);
    show(0);
    setEnabled(false);
}

int Level::value() const {
    return store::valInt(box_->text().toStdString());
}

void Level::show(int stored) {
    const QSignalBlocker quiet(slider_);
    slider_->setValue(stored);
    box_->setText(QString::number(stored));
}

void Level::setValue(int value) {
    slider_->setValue(value);
    followSlider();  // the slider may have stood there already, beside another value in the box
}

void Level::followSlider() {
    const int now = slider_->value();
    if (value() != now) {
        box_->setText(QString::number(now));
        Q_EMIT moved(now);
    }
}

void Level::setRange(const LevelRange& range) {
    slider_->setRange(range.lowest, range.highest);
    followSlider();
    slider_->setTickInterval(range.tick);
    slider_->setPageStep(range.tick);
    slider_->setSingleStep(range.tick >= 100 ? range.tick / 8 : 1);
    box_->setToolTip(QString::fromLatin1(range.toolTip));
}

void Level::setEnabled(bool enabled) {
    slider_->setEnabled(enabled);
    box_->setEnabled(enabled);
}

}  // namespace quorvel::groups
