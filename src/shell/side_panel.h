/// The column beside the canvas: scene number, navigation, alerts.
#pragma once

#include <QFrame>

class QLabel;
class QLineEdit;
class QPushButton;

namespace quorvel::shell {

class SidePanel : public QFrame {
    Q_OBJECT
  public:
    explicit SidePanel(QWidget* parent);

    // The controls, which live as long as the panel.
    QLineEdit* CurScene = nullptr;    ///< number of the scene on the canvas, or "---"
    QPushButton* Command5 = nullptr;  ///< previous scene
    QPushButton* Command6 = nullptr;  ///< next scene
    QPushButton* Command7 = nullptr;  ///< jump to a location
    QPushButton* Command8 = nullptr;  ///< jump to a scene
    QPushButton* RestoreObjs = nullptr;
    QPushButton* ObjAlert = nullptr;
    QPushButton* ScnAlert = nullptr;
    QLabel* SaveSign = nullptr;  ///< stands there while the scene cannot be saved

    /// Shows the number of the current scene, "---" for 0.
    void showSceneNumber(int number);
    /// Takes the sign away, or puts it up.
    void showSavingPossible(bool possible);
    /// The navigation as it stands without a project.
    void disableNavigation();
};

}  // namespace quorvel::shell
