/// Opens the windows over the scene, its links and its objects.
#pragma once

#include "canvas/object_actions.h"
#include "forms/guide.h"
#include "objects/house.h"

namespace quorvel::shell {

/// Registers the editors with the canvas. Owned by the shell; all references must outlive it.
class SceneEditors {
  public:
    SceneEditors(groups::Tools tools, store::Scene& scene, canvas::SceneView& view,
                 canvas::SceneKeeper& keeper, canvas::ObjectActions& actions, forms::Guide& guide);

    void showSceneProperties();

  private:
    /// Shows a window modally after its Quick Tip. `object` is what is edited meanwhile.
    template <class Window>
    void open(forms::HelpTopic topic, int quickTip, int object);

    groups::Tools tools_;
    canvas::SceneView& view_;
    canvas::ObjectActions& actions_;
    objects::House house_;
    forms::Guide& guide_;
};

}  // namespace quorvel::shell
