/// What the help has a page on.
#pragma once

#include <span>

#include <QString>

namespace quorvel::forms {

/// The number that a Help button passes. Numbers stay what they are; a new page takes a new one.
enum class HelpTopic : int {
    FirstPage = 10,

    // How it all hangs together
    Projects = 20,
    Objects = 21,
    Flags = 22,
    SoundsAndMovies = 23,
    Words = 24,
    Backup = 25,

    // The main window and what it opens
    Main = 30,
    Canvas = 31,
    Moving = 32,
    TestRun = 33,
    Tips = 34,
    Shortcuts = 35,

    // A window each
    NewProject = 40,
    OpenProj = 41,
    EdOptions = 42,
    PickCM = 43,
    ProjSecurity = 44,
    NewScenefrm = 45,
    newlink = 46,
    ResizeD = 47,
    sceneimage = 48,
    directionprop = 49,
    linkPropf = 50,
};

/// A page of the help.
struct HelpPage {
    HelpTopic topic;
    const char* file;   ///< in the folder of the help
    const char* title;  ///< in the contents, and on the page
    const char* group;  ///< heading in the contents
};

/// All pages in the order of the contents; the first page comes first.
std::span<const HelpPage> helpPages();

/// The page on `topic`, or null when there is none.
const HelpPage* helpPage(HelpTopic topic);
/// The page in `file`, or null when no topic has it.
const HelpPage* helpPage(const QString& file);

}  // namespace quorvel::forms
