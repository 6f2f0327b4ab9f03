#include "shell/scene_editors.h"

#include <utility>

#include "forms/events.h"
#include "objects/hotspot_editor.h"
#include "objects/link_editor.h"
#include "objects/scene_editor.h"

namespace quorvel::shell {
namespace {

constexpr int kLinkTip = 5;
constexpr int kSceneTip = 6;
constexpr int kHotSpotTip = 14;

}  // namespace

SceneEditors::SceneEditors(groups::Tools tools, store::Scene& scene, canvas::SceneView& view,
                           canvas::SceneKeeper& keeper, canvas::ObjectActions& actions, Guide guide)
    : tools_(std::move(tools)),
      view_(view),
      actions_(actions),
      house_{tools_, scene, view, keeper, actions.CurObj},
      guide_(std::move(guide)) {
    actions.registerLinkEditor(
        [this] { open<objects::directionprop>("directionprop", kLinkTip, actions_.PopupObject); });
    actions.registerSceneEditor([this] { showSceneProperties(); });
    actions.registerEditor(store::ObjectType::hotSpot, [this] {
        open<objects::linkPropf>("linkPropf", kHotSpotTip, actions_.PopupObject);
    });
}

void SceneEditors::showSceneProperties() {
    open<objects::sceneimage>("sceneimage", kSceneTip, 0);
}

template <class Window>
void SceneEditors::open(const char* name, int quickTip, int object) {
    guide_.quickTip(quickTip);
    actions_.CurObj = object;
    Window window(house_, guide_.help(QString::fromLatin1(name)), view_.window());
    forms::letEventsRun();
    window.exec();
    actions_.CurObj = 0;
}

}  // namespace quorvel::shell
