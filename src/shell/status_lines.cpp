#include "shell/status_lines.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include "forms/form.h"

namespace quorvel::shell {
namespace {

/// The widest ordinary text of each panel, which gives the panel its width.
constexpr std::array<const char*, StatusLines::kPanels> kWidest = {
    "", "Index: 20", "Pos: x= -8888 , y= -8888", "Size: 8888h X 8888w"};

QLabel* addPanel(QFrame* bar, const QString& name, const QString& widest) {
    auto* panel = new QLabel(bar);
    panel->setObjectName(name);
    panel->setTextFormat(Qt::PlainText);
    panel->setContentsMargins(6, 1, 6, 1);
    if (widest.isEmpty()) {
        panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    } else {
        panel->setMinimumWidth(panel->fontMetrics().horizontalAdvance(widest) + 12);
    }
    return panel;
}

/// A quiet line between two panels.
QFrame* separator(QWidget* parent) {
    auto* line = new QFrame(parent);
    line->setFrameStyle(QFrame::VLine | QFrame::Plain);
    QPalette palette = line->palette();
    QColor color = palette.color(QPalette::WindowText);
    color.setAlpha(70);
    palette.setColor(QPalette::WindowText, color);
    line->setPalette(palette);
    line->setFixedHeight(line->fontMetrics().height());
    return line;
}

/// A text that takes the place of panels while it stands.
QLabel* addCover(QWidget* parent, const char* name) {
    auto* cover = new QLabel(parent);
    cover->setObjectName(QString::fromLatin1(name));
    cover->setTextFormat(Qt::PlainText);
    cover->setContentsMargins(6, 1, 6, 1);
    cover->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    cover->setAutoFillBackground(true);
    cover->hide();
    return cover;
}

}  // namespace

StatusLines::StatusLines(QWidget* parent) : QWidget(parent) {
    auto* first = new QFrame(this);
    first->setObjectName(QStringLiteral("StatusBar1"));
    auto* firstRow = new QHBoxLayout(first);
    firstRow->setContentsMargins(0, 0, 0, 0);
    firstRow->setSpacing(0);
    for (int i = 0; i < kPanels; ++i) {
        const auto at = static_cast<std::size_t>(i);
        panels_[at] = addPanel(first, forms::elementName(QStringLiteral("StatusBar1"), i + 1),
                               QString::fromLatin1(kWidest[at]));
        firstRow->addWidget(panels_[at], i == 0 ? 1 : 0);
        firstRow->addWidget(separator(first));
    }

    auto* second = new QFrame(this);
    second->setObjectName(QStringLiteral("StatusBar2"));
    auto* secondRow = new QHBoxLayout(second);
    secondRow->setContentsMargins(0, 0, 0, 0);
    count_ = addPanel(second, forms::elementName(QStringLiteral("StatusBar2"), 1),
                      QStringLiteral("Objects: 20 / 20"));
    secondRow->addWidget(count_);

    notice_ = addCover(this, "Notice");
    tip_ = addCover(this, "StatusTip");

    auto* row = new QGridLayout(this);
    row->setContentsMargins(0, 1, 0, 1);
    row->setSpacing(0);
    row->setColumnStretch(0, 1);
    row->addWidget(first, 0, 0);
    row->addWidget(notice_, 0, 0);
    row->addWidget(second, 0, 1);
    row->addWidget(tip_, 0, 0, 1, 2);
    show(canvas::emptyStatus());
    setCount(QStringLiteral("Objects:"));
}

void StatusLines::show(const canvas::StatusText& text) {
    const std::array texts = {text.object, text.index, text.position, text.size};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        panels_[i]->setText(texts[i]);
    }
    showNotice(notice_->text());
}

void StatusLines::showNotice(const QString& text) {
    notice_->setText(text);
    notice_->setToolTip(text);
    const bool overObject = panels_[1]->text() != canvas::emptyStatus().index;
    notice_->setVisible(!overObject && !text.isEmpty());
}

void StatusLines::setCount(const QString& text) {
    count_->setText(text);
}

void StatusLines::showCount(int objects) {
    setCount(QStringLiteral("Objects: %1 / 20").arg(objects));
}

void StatusLines::showTip(const QString& text) {
    tip_->setText(text);
    tip_->setVisible(!text.isEmpty());
    tip_->raise();
}

}  // namespace quorvel::shell
