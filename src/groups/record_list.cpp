#include "groups/record_list.h"

#include <QListView>

namespace quorvel::groups {

RecordList::RecordList(const QString& name, const QString& spoken, forms::RecordListModel& records,
                       QWidget* parent)
    : QComboBox(parent),
      model_(new forms::HeadedListModel(&records, QStringLiteral("(None)"), this)) {
    setObjectName(name);
    setAccessibleName(spoken);
    // A project may have thousands of scenes: nobody measures them.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    constexpr int kLetters = 16;
    setMinimumContentsLength(kLetters);
    auto* rows = new QListView(this);
    rows->setUniformItemSizes(true);
    setView(rows);
    setModel(model_);
    setCurrentIndex(0);
}

std::optional<int> RecordList::chosen() const {
    if (currentIndex() < 0) {
        return std::nullopt;
    }
    return currentData(forms::NumberRole).toInt();
}

void RecordList::choose(int number) {
    setCurrentIndex(model_->rowOf(number));
}

}  // namespace quorvel::groups
