#include "shell/main_lists.h"

namespace quorvel::shell {

MainLists::MainLists(forms::ProjectListModels& models, QWidget* owner) : QObject(owner) {
    Combo1 = add("Combo1", models.scenes, "(Cancel)");
    LocList = add("LocList", models.locations, "(Cancel)");
    LocPointers = add("LocPointers", models.locations, "(Dummy)", forms::SceneRole);
    MapList = add("MapList", models.locations, "(None)");
    InvList = add("InvList", models.items, "(None)");
    CueList = add("CueList", models.cards, "(None)");

    heads_.front().combo->setFirstEntry(QStringLiteral("Choose Scene..."));
    Combo1->setCurrentIndex(0);
}

QComboBox* MainLists::add(const char* name, forms::RecordListModel& source, const char* firstEntry,
                          int textRole) {
    auto* combo = new forms::RecordList(QString::fromLatin1(name), source, QString(),
                                        qobject_cast<QWidget*>(parent()), textRole);
    combo->hide();
    heads_.push_back({combo, QString::fromLatin1(firstEntry)});
    return combo;
}

void MainLists::showProject() {
    for (const Head& head : heads_) {
        head.combo->setFirstEntry(head.firstEntry);
        head.combo->setCurrentIndex(0);
    }
}

void MainLists::clear() {
    for (const Head& head : heads_) {
        head.combo->setFirstEntry(QString());
    }
}

}  // namespace quorvel::shell
