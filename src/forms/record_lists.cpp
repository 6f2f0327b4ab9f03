#include "forms/record_lists.h"

namespace quorvel::forms {

RecordListModel::RecordListModel(const std::vector<store::ListEntry>& entries, QObject* parent)
    : QAbstractListModel(parent), entries_(entries) {}

int RecordListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

QVariant RecordListModel::data(const QModelIndex& index, int role) const {
    // The list may have become shorter without the model having been told yet.
    const store::ListEntry* entry =
        index.isValid() ? store::entryAt(entries_, index.row()) : nullptr;
    if (entry == nullptr) {
        return {};
    }
    switch (role) {
        case Qt::DisplayRole:
            return QString::fromStdString(store::listText(entry->number, entry->name));
        case NumberRole:
            return entry->number;
        case SceneRole:
            return int{entry->scene};
        default:
            return {};
    }
}

void RecordListModel::refresh() {
    beginResetModel();
    rows_ = static_cast<int>(entries_.size());
    endResetModel();
}

void RecordListModel::append() {
    if (store::entryAt(entries_, rows_) == nullptr) {
        return;
    }
    beginInsertRows({}, rows_, rows_);
    ++rows_;
    endInsertRows();
}

void RecordListModel::renamed(int row) {
    if (const QModelIndex changed = index(row); changed.isValid()) {
        Q_EMIT dataChanged(changed, changed);
    }
}

HeadedListModel::HeadedListModel(RecordListModel* source, const QString& firstEntry,
                                 QObject* parent, int textRole)
    : QAbstractListModel(parent), source_(source), firstEntry_(firstEntry), textRole_(textRole) {
    connect(source, &QAbstractItemModel::modelAboutToBeReset, this, [this] { beginResetModel(); });
    connect(source, &QAbstractItemModel::modelReset, this, [this] { endResetModel(); });
    connect(source, &QAbstractItemModel::rowsAboutToBeInserted, this,
            [this](const QModelIndex&, int first, int last) {
                if (hasRows()) {
                    beginInsertRows({}, first + 1, last + 1);
                }
            });
    connect(source, &QAbstractItemModel::rowsInserted, this, [this] {
        if (hasRows()) {
            endInsertRows();
        }
    });
    connect(source, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& first, const QModelIndex& last) {
                if (hasRows()) {
                    Q_EMIT dataChanged(index(first.row() + 1), index(last.row() + 1));
                }
            });
}

int HeadedListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || !hasRows() ? 0 : source_->rowCount() + 1;
}

QVariant HeadedListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    if (index.row() > 0) {
        return source_->index(index.row() - 1).data(role == Qt::DisplayRole ? textRole_ : role);
    }
    switch (role) {
        case Qt::DisplayRole:
            return firstEntry_;
        case NumberRole:
        case SceneRole:
            return 0;
        default:
            return {};
    }
}

void HeadedListModel::setFirstEntry(const QString& text) {
    beginResetModel();
    firstEntry_ = text;
    endResetModel();
}

int HeadedListModel::rowOf(int number) const {
    // All lists but that of the locations have record n at row n.
    if (number >= 0 && number < rowCount() && index(number).data(NumberRole) == number) {
        return number;
    }
    for (int row = 0; row < rowCount(); ++row) {
        if (index(row).data(NumberRole) == number) {
            return row;
        }
    }
    return -1;
}

ProjectListModels::ProjectListModels(const store::ProjectLists& lists)
    : scenes(lists.scenes, this),
      locations(lists.locations, this),
      items(lists.items, this),
      cards(lists.cards, this) {}

void ProjectListModels::refresh() {
    scenes.refresh();
    locations.refresh();
    items.refresh();
    cards.refresh();
}

}  // namespace quorvel::forms
