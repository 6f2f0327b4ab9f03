#include "forms/long_words.h"

#include <algorithm>
#include <cmath>

#include <QEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>

namespace quorvel::forms {
namespace {

/// Width of a line in a box with a long word.
constexpr int kLineWidth = 440;

/// The widest run without a blank.
int widestWord(const QString& text, const QFontMetrics& metrics) {
    int widest = 0;
    qsizetype begin = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i == text.size() || text[i].isSpace()) {
            widest = std::max(widest, metrics.horizontalAdvance(text.mid(begin, i - begin)));
            begin = i + 1;
        }
    }
    return widest;
}

}  // namespace

LongWordText::LongWordText(QLabel* label, int width)
    : QObject(label), label_(label), width_(width) {
    label->installEventFilter(this);
    layOut();
}

void LongWordText::layOut() {
    QString text = label_->text();
    text.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout_.setText(text);
    layout_.setFont(label_->font());
    layout_.setTextOption(option);
    layout_.beginLayout();
    qreal y = 0;
    qreal widest = 0;
    for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
        line.setLineWidth(width_);
        line.setPosition({0, y});
        y += line.height();
        widest = std::max(widest, line.naturalTextWidth());
    }
    layout_.endLayout();
    label_->setFixedSize(left() + static_cast<int>(std::ceil(widest)),
                         static_cast<int>(std::ceil(y)));
}

int LongWordText::left() const {
    return label_->contentsMargins().left() + std::max(0, label_->indent());
}

void LongWordText::paint() {
    QPainter painter(label_);
    painter.setPen(label_->palette().color(label_->foregroundRole()));
    layout_.draw(&painter, QPointF(left(), 0));
}

bool LongWordText::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::FontChange:
            layOut();
            break;
        case QEvent::Paint:
            paint();
            return true;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

void breakLongWords(QMessageBox& box) {
    auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (label != nullptr && widestWord(box.text(), label->fontMetrics()) > kLineWidth) {
        new LongWordText(label, kLineWidth);
    }
}

}  // namespace quorvel::forms
