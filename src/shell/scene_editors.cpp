#include "shell/scene_editors.h"

#include <utility>

#include "forms/events.h"
#include "objects/hotspot_editor.h"
#include "objects/link_editor.h"
#include "objects/scene_editor.h"

namespace quorvel::shell {

using forms::HelpTopic;
using forms::TipBefore;

SceneEditors::SceneEditors(groups::Tools tools, store::Scene& scene, canvas::SceneView& view,
                           canvas::SceneKeeper& keeper, canvas::ObjectActions& actions,
                           forms::Guide& guide)
    : tools_(std::move(tools)),
      view_(view),
      actions_(actions),
      house_{tools_, scene, view, keeper, actions.CurObj},
      guide_(guide) {
    actions.registerLinkEditor([this] {
        open<objects::directionprop>(HelpTopic::directionprop, TipBefore::link,
                                     actions_.PopupObject);
    });
    actions.registerSceneEditor([this] { showSceneProperties(); });
    actions.registerEditor(store::ObjectType::hotSpot, [this] {
        open<objects::linkPropf>(HelpTopic::linkPropf, TipBefore::hotSpot, actions_.PopupObject);
    });
}

void SceneEditors::showSceneProperties() {
    open<objects::sceneimage>(HelpTopic::sceneimage, TipBefore::sceneProperties, 0);
}

template <class Window>
void SceneEditors::open(HelpTopic topic, int quickTip, int object) {
    guide_.ShowQuickTip(quickTip);
    actions_.CurObj = object;
    Window window(house_, forms::helpOn(guide_, topic), view_.window());
    forms::letEventsRun();
    window.exec();
    actions_.CurObj = 0;
    // A file can have been replaced though the window was left by Cancel.
    view_.followPictureFiles();
}

}  // namespace quorvel::shell
