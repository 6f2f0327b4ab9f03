#include "shell/tip_text.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "forms/form.h"
#include "forms/look.h"

namespace quorvel::shell {
namespace {

constexpr int kTipWidth = 440;
constexpr int kLampSize = 40;

}  // namespace

QLabel* addTipText(QVBoxLayout* column, const QString& name) {
    auto* lamp = new QLabel;
    lamp->setPixmap(forms::icon(QStringLiteral("tip")).pixmap(QSize(kLampSize, kLampSize)));
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setFixedWidth(kTipWidth);
    auto* row = new QHBoxLayout;
    row->setSpacing(forms::kFormMargin);
    row->addWidget(lamp, 0, Qt::AlignTop);
    row->addWidget(label, 1);
    column->addLayout(row);
    return label;
}

void showTipText(QLabel& label, const QStringList& all, const QString& text) {
    int height = 0;
    for (const QString& one : all) {
        label.setText(one);
        height = std::max(height, label.heightForWidth(kTipWidth));
    }
    label.setText(text);
    label.setMinimumHeight(height);
}

}  // namespace quorvel::shell
