#include "forms/wrap_button.h"

#include <algorithm>

#include <QStyleOptionButton>
#include <QStylePainter>

namespace quorvel::forms {
namespace {

constexpr int kPadding = 6;
constexpr int kIconGap = 4;
constexpr QRect kAnywhere(0, 0, 10000, 10000);
constexpr int kTextFlags = Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;

}  // namespace

WrapButton::WrapButton(const QString& caption, QWidget* parent) : QPushButton(caption, parent) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int WrapButton::heightForWidth(int width) const {
    const QRect room(0, 0, width - 2 * kPadding, 1000);
    const int text = fontMetrics().boundingRect(room, kTextFlags, this->text()).height();
    const int picture = icon().isNull() ? 0 : iconSize().height() + kIconGap;
    return text + picture + 2 * kPadding;
}

QSize WrapButton::minimumSizeHint() const {
    int widest = 0;
    for (const QString& word : text().split(QLatin1Char(' '))) {
        // Wider than the advance alone: what a letter draws beside its place counts too.
        widest = std::max(widest, fontMetrics().boundingRect(kAnywhere, kTextFlags, word).width());
    }
    const int width = widest + 2 * kPadding;
    return {width, heightForWidth(width)};
}

QSize WrapButton::sizeHint() const {
    const int width = std::max(minimumSizeHint().width(), this->width());
    return {width, heightForWidth(width)};
}

void WrapButton::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = {};
    painter.drawControl(QStyle::CE_PushButton, option);

    QRect area = rect().adjusted(kPadding, kPadding, -kPadding, -kPadding);
    if (!icon().isNull()) {
        const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
        const QRect place(area.left(), area.top(), area.width(), iconSize().height());
        icon().paint(&painter, place, Qt::AlignCenter, mode);
        area.setTop(place.bottom() + kIconGap);
    }
    painter.drawItemText(area, kTextFlags, palette(), isEnabled(), text(), QPalette::ButtonText);
}

}  // namespace quorvel::forms
