#include "forms/help_topics.h"

#include <algorithm>
#include <array>

namespace quorvel::forms {
namespace {

constexpr const char* kBegin = "How to begin";
constexpr const char* kMain = "The main window";
constexpr const char* kWindows = "Windows";
constexpr const char* kBackground = "How games work";

constexpr std::array kPages = {
    HelpPage{HelpTopic::FirstPage, "index.html", "Your first game", kBegin},
    HelpPage{HelpTopic::Projects, "projects.html", "Projects and their folders", kBegin},
    HelpPage{HelpTopic::NewProject, "new-project.html", "New Project", kBegin},
    HelpPage{HelpTopic::OpenProj, "open-project.html", "Opening and closing", kBegin},
    HelpPage{HelpTopic::Backup, "backup.html", "Backup and export", kBegin},
    HelpPage{HelpTopic::Tips, "tips.html", "Tips and help", kBegin},

    HelpPage{HelpTopic::Main, "main-window.html", "Menus and tool bar", kMain},
    HelpPage{HelpTopic::Canvas, "canvas.html", "Working on a scene", kMain},
    HelpPage{HelpTopic::Moving, "moving.html", "From scene to scene", kMain},
    HelpPage{HelpTopic::TestRun, "test-run.html", "The test run", kMain},
    HelpPage{HelpTopic::Shortcuts, "shortcuts.html", "Keyboard shortcuts", kMain},

    HelpPage{HelpTopic::NewScenefrm, "add-scene.html", "Add New Scene", kWindows},
    HelpPage{HelpTopic::sceneimage, "scene-properties.html", "Scene Properties", kWindows},
    HelpPage{HelpTopic::directionprop, "link-properties.html", "Link Properties", kWindows},
    HelpPage{HelpTopic::ResizeD, "resize-link.html", "Resize Link", kWindows},
    HelpPage{HelpTopic::newlink, "insert-object.html", "Insert New Object", kWindows},
    HelpPage{HelpTopic::linkPropf, "hotspot.html", "HotSpot Properties", kWindows},
    HelpPage{HelpTopic::PickCM, "files.html", "Bringing files in", kWindows},
    HelpPage{HelpTopic::EdOptions, "editor-options.html", "Editor Options", kWindows},
    HelpPage{HelpTopic::ProjSecurity, "project-security.html", "Project Security", kWindows},

    HelpPage{HelpTopic::Objects, "objects.html", "The ten kinds of objects", kBackground},
    HelpPage{HelpTopic::Flags, "flags.html", "Flags", kBackground},
    HelpPage{HelpTopic::SoundsAndMovies, "sounds.html", "Pictures, sounds and movies", kBackground},
    HelpPage{HelpTopic::Words, "words.html", "Words", kBackground},
};

template <class Condition>
const HelpPage* find(Condition&& condition) {
    const auto* const found =
        std::find_if(kPages.begin(), kPages.end(), std::forward<Condition>(condition));
    return found == kPages.end() ? nullptr : found;
}

}  // namespace

std::span<const HelpPage> helpPages() {
    return kPages;
}

const HelpPage* helpPage(HelpTopic topic) {
    return find([topic](const HelpPage& page) { return page.topic == topic; });
}

const HelpPage* helpPage(const QString& file) {
    return find([&file](const HelpPage& page) { return file == QLatin1String(page.file); });
}

}  // namespace quorvel::forms
