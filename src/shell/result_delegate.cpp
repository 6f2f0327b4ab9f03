#include "shell/result_delegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>

namespace quorvel::shell {
namespace {

constexpr int kPadding = 5;
constexpr int kRoomForText = 10000;  // high enough for any passage

struct Lines {
    QString title;
    QString passage;
};

Lines linesOf(const QModelIndex& index) {
    const QString text = index.data(Qt::DisplayRole).toString();
    const QChar end = QLatin1Char('\n');
    return {.title = text.section(end, 0, 0), .passage = text.section(end, 1)};
}

QFont bold(QFont font) {
    font.setBold(true);
    return font;
}

int heightOf(const QFont& font, const QString& text, int width) {
    return text.isEmpty() ? 0
                          : QFontMetrics(font)
                                .boundingRect(0, 0, width, kRoomForText, Qt::TextWordWrap, text)
                                .height();
}

}  // namespace

void ResultDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    const QStyle* style = row.widget != nullptr ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    const bool selected = row.state.testFlag(QStyle::State_Selected);
    const auto group =
        row.state.testFlag(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
    const auto [title, passage] = linesOf(index);
    const QRect area = row.rect.adjusted(kPadding, kPadding, -kPadding, -kPadding);
    const int titleHeight = heightOf(bold(row.font), title, area.width());
    painter->save();
    painter->setPen(
        row.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    painter->setFont(passage.isEmpty() ? row.font : bold(row.font));
    painter->drawText(area, Qt::TextWordWrap, title);
    painter->setFont(row.font);
    painter->drawText(area.adjusted(0, titleHeight, 0, 0), Qt::TextWordWrap, passage);
    painter->restore();
}

QSize ResultDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    const int width = (view != nullptr ? view->viewport()->width() : option.rect.width());
    const auto [title, passage] = linesOf(index);
    const int room = width - 2 * kPadding;
    return {width, heightOf(bold(option.font), title, room) + heightOf(option.font, passage, room) +
                       2 * kPadding};
}

}  // namespace quorvel::shell
