/// Opens the windows over the scene, its links and its objects.
#pragma once

#include <functional>

#include "canvas/object_actions.h"
#include "objects/house.h"

namespace quorvel::shell {

/// Registers the editors with the canvas. Owned by the shell; all references must outlive it.
class SceneEditors {
  public:
    /// What is shown beside the windows.
    struct Guide {
        std::function<void(int number)> quickTip;
        /// What the Help button of a window shows, by the window's name; nothing disables it.
        std::function<std::function<void()>(const QString& window)> help;
    };
    SceneEditors(groups::Tools tools, store::Scene& scene, canvas::SceneView& view,
                 canvas::SceneKeeper& keeper, canvas::ObjectActions& actions, Guide guide);

    void showSceneProperties();

  private:
    /// Shows a window modally after its Quick Tip. `object` is what is edited meanwhile.
    template <class Window>
    void open(const char* name, int quickTip, int object);

    groups::Tools tools_;
    canvas::SceneView& view_;
    canvas::ObjectActions& actions_;
    objects::House house_;
    Guide guide_;
};

}  // namespace quorvel::shell
