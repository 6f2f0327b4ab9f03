#include "shell/folder_tip.h"

#include <algorithm>

#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include "forms/text_lines.h"

namespace quorvel::shell {
namespace {

const QString kGap(12, QLatin1Char(' '));
/// A blank that no line ends at.
constexpr QChar kHardBlank(0x00A0);

}  // namespace

FolderTip::FolderTip(const QString& text, QWidget* parent) : QLabel(text, parent) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int FolderTip::pictureBlanks() const {
    const int blank = std::max(1, fontMetrics().horizontalAdvance(kHardBlank));
    return (pictureSide() + blank - 1) / blank;
}

QString FolderTip::drawn() const {
    QString shown = text();
    const auto at = shown.indexOf(kGap);
    if (at >= 0) {
        // An ordinary blank at both sides.
        shown.replace(at + 1, kGap.size() - 2, QString(pictureBlanks(), kHardBlank));
    }
    return shown.replace(kGap, QStringLiteral(" "));
}

int FolderTip::heightForWidth(int width) const {
    QTextLayout layout(drawn(), font());
    return forms::breakLines(layout, width);
}

QSize FolderTip::sizeHint() const {
    return {minimumWidth(), heightForWidth(std::max(minimumWidth(), width()))};
}

void FolderTip::paintEvent(QPaintEvent* /*event*/) {
    const QString shown = drawn();
    QTextLayout layout(shown, font());
    forms::breakLines(layout, width());
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    layout.draw(&painter, {0, 0});
    const auto at = static_cast<int>(shown.indexOf(kHardBlank));
    const QTextLine line = at < 0 ? QTextLine() : layout.lineForTextPosition(at);
    if (!line.isValid()) {
        return;
    }
    const qreal left = line.cursorToX(at);
    const qreal room = line.cursorToX(at + pictureBlanks()) - left;
    const int side = pictureSide();
    style()
        ->standardIcon(QStyle::SP_FileDialogNewFolder)
        .paint(&painter, QRect(qRound(left + (room - side) / 2), qRound(line.y()), side, side));
}

}  // namespace quorvel::shell
