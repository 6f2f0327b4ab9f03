#include "shell/navigation.h"

#include <algorithm>
#include <exception>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "store/numbers.h"

namespace quorvel::shell {
namespace {

/// Drops a hidden list down from the button that stands for it.
void dropDown(QComboBox& list, const QPushButton& button) {
    constexpr int kListWidth = 220;
    const QPoint corner = list.parentWidget()->mapFromGlobal(button.mapToGlobal(QPoint(0, 0)));
    list.setGeometry(corner.x() + button.width() - kListWidth, corner.y(), kListWidth,
                     button.height());
    list.showPopup();
}

}  // namespace

Navigation::Navigation(const House& house) : house_(house) {
    const SidePanel& side = house_.side;
    connect(&house_.keeper, &canvas::SceneKeeper::sceneShown, this, &Navigation::follow);
    connect(side.Command5, &QPushButton::clicked, this, [this] { step(-1); });
    connect(side.Command6, &QPushButton::clicked, this, [this] { step(1); });
    connect(side.Command8, &QPushButton::clicked, this,
            [this] { dropDown(*house_.lists.Combo1, *house_.side.Command8); });
    connect(side.Command7, &QPushButton::clicked, this,
            [this] { dropDown(*house_.lists.LocList, *house_.side.Command7); });
    connect(house_.lists.Combo1, &QComboBox::activated, this, &Navigation::Combo1_Click);
    connect(house_.lists.LocList, &QComboBox::activated, this, &Navigation::LocList_Click);
    connect(side.CurScene, &QLineEdit::returnPressed, this, &Navigation::CurScene_Click);
    // A number that was not confirmed is given up.
    connect(side.CurScene, &QLineEdit::editingFinished, this,
            [this] { house_.side.showSceneNumber(house_.project.CurrentScene); });
}

void Navigation::follow(int number) {
    const store::Project& project = house_.project;
    house_.side.showSceneNumber(number);
    house_.side.Command5->setEnabled(number >= 2);
    house_.side.Command6->setEnabled(number < project.NumberOfScenes);
    house_.side.Command7->setEnabled(true);
    house_.side.Command8->setEnabled(true);
    house_.side.CurScene->setReadOnly(false);
    // While a project is being opened the list stays on its first entry.
    if (!project.ProjectLoading) {
        house_.lists.Combo1->setCurrentIndex(number <= project.NumberOfScenes ? number : 0);
    }
}

void Navigation::step(int distance) {
    // A project can name a current scene beyond its store; the way back ends at the last one.
    const int number =
        std::min(house_.project.CurrentScene + distance, house_.project.NumberOfScenes);
    if (number < 1 || number == house_.project.CurrentScene) {
        return;
    }
    try {
        house_.keeper.GoToScene(number);
    } catch (const std::exception&) {
        house_.boxes.tell(QStringLiteral("Unexpected error in procedure: Command5_Click"));
    }
}

void Navigation::tell(const QString& text) {
    house_.boxes.tell(text);
}

void Navigation::Combo1_Click(int row) {
    const store::Project& project = house_.project;
    if (row < 1 || row > project.NumberOfScenes) {
        follow(project.CurrentScene);
        return;
    }
    if (row == project.CurrentScene) {
        tell(QStringLiteral("Scene '%1' is the scene currently being displayed!")
                 .arg(QString::fromStdString(project.lists.sceneName(row))));
        return;
    }
    if (!house_.keeper.GoToScene(row)) {
        follow(project.CurrentScene);
    }
}

void Navigation::LocList_Click(int row) {
    const store::Project& project = house_.project;
    house_.lists.LocList->setCurrentIndex(0);
    if (row < 1 || row > static_cast<int>(project.lists.locations.size())) {
        return;
    }
    const store::ListEntry& location = project.lists.locations[static_cast<std::size_t>(row - 1)];
    const QString name = QString::fromStdString(location.name);
    if (location.scene == 0) {
        tell(QStringLiteral("There is no scene linked to location '%1'!").arg(name));
    } else if (location.scene == project.CurrentScene) {
        tell(QStringLiteral("Location '%1' is linked to the scene currently being displayed!")
                 .arg(name));
    } else if (location.scene >= 1 && location.scene <= project.NumberOfScenes) {
        house_.keeper.GoToScene(location.scene);
    } else {
        tell(QStringLiteral("Location '%1' is linked to a scene that does not exist!").arg(name));
    }
}

void Navigation::CurScene_Click() {
    // The field shows the current number again as soon as its editing has finished.
    const store::Project& project = house_.project;
    const int typed = store::valInt(house_.side.CurScene->text().toStdString());
    if (typed == project.CurrentScene || project.CurrentScene == 0) {
        return;
    }
    if (typed < 1 || typed > project.NumberOfScenes) {
        QApplication::beep();
        return;
    }
    house_.keeper.GoToScene(typed);
}

}  // namespace quorvel::shell
