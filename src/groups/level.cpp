#include "groups/level.h"

#include <QSignalBlocker>
#include <QStyleOptionSlider>
#include <QStylePainter>

#include "store/numbers.h"

namespace quorvel::groups {
namespace {

/// One that goes to both sides of 0 shows no amount, and one that is off none either: its groove is
/// the same on both sides of the handle.
class AmountSlider : public QSlider {
  public:
    AmountSlider(bool bothSides, QWidget* parent)
        : QSlider(Qt::Horizontal, parent), bothSides_(bothSides) {}

  protected:
    void paintEvent(QPaintEvent* event) override {
        if (!bothSides_ && isEnabled()) {
            QSlider::paintEvent(event);
            return;
        }
        QStylePainter painter(this);
        QStyleOptionSlider option;
        initStyleOption(&option);
        QStyleOptionSlider groove = option;
        groove.subControls = QStyle::SC_SliderGroove;
        groove.sliderPosition = groove.sliderValue = minimum();  // styles fill what is before it
        painter.setOpacity(isEnabled() ? 1.0 : kOff);
        painter.drawComplexControl(QStyle::CC_Slider, groove);
        option.subControls = QStyle::SC_SliderHandle;
        if (isSliderDown()) {
            option.activeSubControls = QStyle::SC_SliderHandle;
            option.state |= QStyle::State_Sunken;
        }
        painter.drawComplexControl(QStyle::CC_Slider, option);
    }

  private:
    static constexpr double kOff = 0.6;
    bool bothSides_;
};

}  // namespace

Level::Level(const QString& slider, const QString& box, const QString& spoken,
             const LevelRange& range, QWidget* parent)
    : QObject(parent),
      slider_(new AmountSlider(range.lowest < 0 && range.highest > 0, parent)),
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

void Level::setLive(bool live) {
    QPalette palette;  // of the application again
    if (live) {
        palette.setColor(QPalette::Disabled, QPalette::Text,
                         box_->palette().color(QPalette::Active, QPalette::Text));
    }
    box_->setPalette(palette);
}

void Level::setEnabled(bool enabled) {
    slider_->setEnabled(enabled);
    box_->setEnabled(enabled);
}

}  // namespace quorvel::groups
