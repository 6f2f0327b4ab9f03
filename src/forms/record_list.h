/// The one drop-down list for records of the project: scenes, items, locations, cue cards.
#pragma once

#include <optional>

#include <QComboBox>

#include "forms/record_lists.h"

namespace quorvel::forms {

/// Shows the project's one list behind a first entry of its own, and follows it. Its value is the
/// number of a record, 0 for the first entry. Dropping it down makes the texts of the rows that are
/// seen and of no others, however long the list is.
class RecordList : public QComboBox {
    Q_OBJECT
  public:
    /// `records` must outlive the box. Without a first entry the box is empty. `textRole` is what
    /// the rows show, as in `HeadedListModel`.
    RecordList(const QString& name, RecordListModel& records, const QString& firstEntry,
               QWidget* parent, int textRole = Qt::DisplayRole);

    void setFirstEntry(const QString& text) { model_->setFirstEntry(text); }

    /// The number of the record, or nothing while the box shows none of its entries.
    [[nodiscard]] std::optional<int> chosen() const;
    /// Shows the record, or nothing when there is none of that number.
    void choose(int number);

  private:
    HeadedListModel* model_;
};

}  // namespace quorvel::forms
