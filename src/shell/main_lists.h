/// The lists of the main window that stand for project data.
#pragma once

#include <vector>

#include <QObject>
#include <QString>

#include "forms/record_list.h"

namespace quorvel::shell {

/// Hidden combo boxes over the shared models, each behind its own first entry. Owned by the main
/// window.
class MainLists : public QObject {
    Q_OBJECT
  public:
    MainLists(forms::ProjectListModels& models, QWidget* owner);

    QComboBox* Combo1 = nullptr;       ///< scenes
    QComboBox* LocList = nullptr;      ///< locations to jump to
    QComboBox* LocPointers = nullptr;  ///< the scenes that the locations lead to
    QComboBox* MapList = nullptr;      ///< locations for the map
    QComboBox* InvList = nullptr;      ///< inventory items
    QComboBox* CueList = nullptr;      ///< cue cards

    /// The lists of a project that is open.
    void showProject();
    /// No entry at all, as after a project was closed.
    void clear();

  private:
    struct Head {
        forms::RecordList* combo;
        QString firstEntry;
    };
    QComboBox* add(const char* name, forms::RecordListModel& source, const char* firstEntry,
                   int textRole = Qt::DisplayRole);

    std::vector<Head> heads_;
};

}  // namespace quorvel::shell
