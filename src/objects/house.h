/// What the editors of a scene work on.
#pragma once

#include "canvas/scene_keeper.h"
#include "canvas/scene_view.h"
#include "groups/sheet.h"

namespace quorvel::objects {

/// Everything named here must outlive the editors.
struct House {
    const groups::Tools& tools;
    store::Scene& scene;
    canvas::SceneView& view;
    canvas::SceneKeeper& keeper;
    int& CurObj;  ///< what is being edited: a slot, a direction; 0 while no editor is open
};

}  // namespace quorvel::objects
