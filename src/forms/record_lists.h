/// The lists of a project as Qt models. Each list is held once: windows show it behind a first
/// entry of their own and keep no copy.
///
/// Data flow: the readers fill `store::ProjectLists`; `ProjectListModels::refresh` tells the shared
/// models; every `HeadedListModel` on them follows.
#pragma once

#include <QAbstractListModel>
#include <QString>

#include "store/record_lists.h"

namespace quorvel::forms {

/// Roles beside the text.
enum ListRole {
    NumberRole = Qt::UserRole,  ///< number of the record, 0 for a first entry
    SceneRole,                  ///< of a location: the scene it leads to
};

/// One list of the project. Texts are made when they are shown, so a long list costs nothing.
class RecordListModel : public QAbstractListModel {
    Q_OBJECT
  public:
    /// `entries` must outlive the model.
    RecordListModel(const std::vector<store::ListEntry>& entries, QObject* parent);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

    /// The entries were filled anew.
    void refresh();
    /// One entry was added at the end. Nothing happens where none was.
    void append();
    /// The name of the entry in `row`, from 0, was changed. Outside of the list nothing happens.
    void renamed(int row);

  private:
    const std::vector<store::ListEntry>& entries_;
    int rows_ = 0;
};

/// A shared list behind a first entry, as one kind of combo box shows it.
class HeadedListModel : public QAbstractListModel {
    Q_OBJECT
  public:
    /// `textRole` is what the rows show: their text, or the number behind `SceneRole`.
    /// Without a first entry the model shows no row at all.
    HeadedListModel(RecordListModel* source, const QString& firstEntry, QObject* parent,
                    int textRole = Qt::DisplayRole);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

    void setFirstEntry(const QString& text);

    /// Row of the record `number`, or -1 when the list does not have it.
    [[nodiscard]] int rowOf(int number) const;

  private:
    [[nodiscard]] bool hasRows() const { return !firstEntry_.isEmpty(); }

    RecordListModel* source_;
    QString firstEntry_;
    int textRole_;
};

/// The four shared models. Owned by the shell.
class ProjectListModels : public QObject {
    Q_OBJECT
  public:
    explicit ProjectListModels(const store::ProjectLists& lists);

    RecordListModel scenes;
    RecordListModel locations;
    RecordListModel items;
    RecordListModel cards;

    /// All lists were filled anew.
    void refresh();
};

}  // namespace quorvel::forms
