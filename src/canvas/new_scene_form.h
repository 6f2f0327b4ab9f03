/// The window that adds a scene to the project.
#pragma once

#include <array>
#include <functional>

#include "canvas/scene_keeper.h"
#include "forms/form.h"

class QRadioButton;

namespace quorvel::canvas {

class NewScenefrm : public forms::Form {
    Q_OBJECT
  public:
    /// `keeper` must outlive the window. Without `help` the Help button is disabled.
    NewScenefrm(SceneKeeper& keeper, const std::function<void()>& help, QWidget* parent);

  private:
    void Command3_Click();

    SceneKeeper& keeper_;
    std::array<QRadioButton*, 3> options_{};
};

}  // namespace quorvel::canvas
