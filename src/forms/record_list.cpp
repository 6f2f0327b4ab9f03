#include "forms/record_list.h"

#include <QListView>

namespace quorvel::forms {

RecordList::RecordList(const QString& name, RecordListModel& records, const QString& firstEntry,
                       QWidget* parent, int textRole)
    : QComboBox(parent), model_(new HeadedListModel(&records, firstEntry, this, textRole)) {
    constexpr int kLetters = 16;
    constexpr int kVisibleRows = 16;
    setObjectName(name);
    // A project may have thousands of scenes: nobody measures them, neither for the width of the
    // box nor for the height of what drops down. That is a list with a scroll bar instead of a menu
    // as high as the screen, which would measure row after row.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kLetters);
    setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
    setMaxVisibleItems(kVisibleRows);
    auto* rows = new QListView(this);
    rows->setUniformItemSizes(true);
    setView(rows);
    setModel(model_);
    setCurrentIndex(model_->rowOf(0));
}

std::optional<int> RecordList::chosen() const {
    const QVariant number = currentData(NumberRole);
    return number.isValid() ? std::optional(number.toInt()) : std::nullopt;
}

void RecordList::choose(int number) {
    setCurrentIndex(model_->rowOf(number));
}

}  // namespace quorvel::forms
