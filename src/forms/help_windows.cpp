#include "forms/help_windows.h"

#include <array>
#include <utility>

namespace quorvel::forms {
namespace {

constexpr std::array<std::pair<const char*, HelpTopic>, 12> kWindows = {{
    {"Main", HelpTopic::Main},
    {"NewProject", HelpTopic::NewProject},
    {"OpenProj", HelpTopic::OpenProj},
    {"EdOptions", HelpTopic::EdOptions},
    {"PickCM", HelpTopic::PickCM},
    {"ProjSecurity", HelpTopic::ProjSecurity},
    {"NewScenefrm", HelpTopic::NewScenefrm},
    {"newlink", HelpTopic::newlink},
    {"ResizeD", HelpTopic::ResizeD},
    {"sceneimage", HelpTopic::sceneimage},
    {"directionprop", HelpTopic::directionprop},
    {"linkPropf", HelpTopic::linkPropf},
}};

}  // namespace

std::function<void()> helpOfWindow(Guide& guide, const QString& name) {
    for (const auto& [window, topic] : kWindows) {
        if (name == QLatin1String(window)) {
            return helpOn(guide, topic);
        }
    }
    return nullptr;
}

}  // namespace quorvel::forms
