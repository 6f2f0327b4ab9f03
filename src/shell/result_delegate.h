/// How a page that a search found stands in the list: its title, and below it some of its words.
#pragma once

#include <QStyledItemDelegate>

namespace quorvel::shell {

/// The first line of an item's text is painted bold, the rest in as many lines as it needs.
class ResultDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;
};

}  // namespace quorvel::shell
