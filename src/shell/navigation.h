/// Moving between scenes by the controls beside the canvas.
#pragma once

#include <QObject>

#include "canvas/scene_keeper.h"
#include "forms/boxes.h"
#include "shell/main_lists.h"
#include "shell/side_panel.h"

namespace quorvel::shell {

/// Owned by the shell; all references must outlive it.
class Navigation : public QObject {
    Q_OBJECT
  public:
    struct House {
        store::Project& project;
        canvas::SceneKeeper& keeper;
        forms::Boxes& boxes;
        SidePanel& side;
        MainLists& lists;
    };
    explicit Navigation(const House& house);

  private:
    void follow(int number);
    void step(int distance);
    void Combo1_Click(int row);
    void LocList_Click(int row);
    void CurScene_Click();
    void tell(const QString& text);

    House house_;
};

}  // namespace quorvel::shell
