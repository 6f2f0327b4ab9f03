/// A drop-down list of the project's scenes, items, locations or cue cards behind "(None)".
#pragma once

#include <optional>

#include <QComboBox>

#include "forms/record_lists.h"

namespace quorvel::groups {

/// Its value is the number of a record, 0 for none. It shows the project's one list and follows it.
class RecordList : public QComboBox {
    Q_OBJECT
  public:
    RecordList(const QString& name, const QString& spoken, forms::RecordListModel& records,
               QWidget* parent);

    /// The number of the record, or nothing while the list shows none of its entries.
    [[nodiscard]] std::optional<int> chosen() const;
    /// Shows the record, or nothing when there is none of that number.
    void choose(int number);

  private:
    forms::HeadedListModel* model_;
};

}  // namespace quorvel::groups
