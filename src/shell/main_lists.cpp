#include "shell/main_lists.h"

#include <QComboBox>
#include <QListView>

namespace quorvel::shell {

namespace {

constexpr int kVisibleRows = 16;

}  // namespace

MainLists::MainLists(forms::ProjectListModels& models, QWidget* owner) : QObject(owner) {
    Combo1 = add("Combo1", models.scenes, "(Cancel)");
    LocList = add("LocList", models.locations, "(Cancel)");
    LocPointers = add("LocPointers", models.locations, "(Dummy)", forms::SceneRole);
    MapList = add("MapList", models.locations, "(None)");
    InvList = add("InvList", models.items, "(None)");
    CueList = add("CueList", models.cards, "(None)");

    heads_.front().model->setFirstEntry(QStringLiteral("Choose Scene..."));
    Combo1->setCurrentIndex(0);
}

QComboBox* MainLists::add(const char* name, forms::RecordListModel& source, const char* firstEntry,
                          int textRole) {
    auto* owner = qobject_cast<QWidget*>(parent());
    auto* combo = new QComboBox(owner);
    combo->setObjectName(QString::fromLatin1(name));
    // Measuring every entry of a long list would take longer than opening it.
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto* view = new QListView(combo);
    view->setUniformItemSizes(true);
    combo->setView(view);
    // A list with a scroll bar instead of one as high as the screen; and it opens at once, since
    // only what is seen of it is measured.
    combo->setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
    combo->setMaxVisibleItems(kVisibleRows);
    combo->hide();
    auto* model = new forms::HeadedListModel(&source, QString(), combo, textRole);
    combo->setModel(model);
    heads_.push_back({combo, model, QString::fromLatin1(firstEntry)});
    return combo;
}

void MainLists::showProject() {
    for (const Head& head : heads_) {
        head.model->setFirstEntry(head.firstEntry);
        head.combo->setCurrentIndex(0);
    }
}

void MainLists::clear() {
    for (const Head& head : heads_) {
        head.model->setFirstEntry(QString());
    }
}

}  // namespace quorvel::shell
