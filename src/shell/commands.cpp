#include "shell/commands.h"

#include <array>

namespace quorvel::shell {
namespace {

using enum Command;
using A = Availability;
using K = EntryKind;

constexpr std::array kMenuHeads = {
    MenuHead{"FileMenu", "&File", "Filemen"},      MenuHead{"projectmenu", "&Project", "projmen"},
    MenuHead{"scnmenu", "&Scene", "scnmen"},       MenuHead{"runmenu", "&Run", "runmen"},
    MenuHead{"Optionsmen", "&Options", "options"}, MenuHead{"helpmenu", "&Help", "helpmen"},
};

// clang-format off
constexpr std::array kMenuEntries = {
    MenuEntry{"Filemen", 1, "&New Project", newProject, A::noProject},
    MenuEntry{"Filemen", 2, "&Open Project", openProject, A::noProject},
    MenuEntry{"Filemen", 3, "&Close Project", closeProject, A::project},
    MenuEntry{"Filemen", 8, "-", none, A::never, K::separator},
    MenuEntry{"Filemen", 9, "1", recentProject1, A::recentProject, K::command, "Ctrl+A"},
    MenuEntry{"Filemen", 10, "2", recentProject2, A::recentProject, K::command, "Ctrl+B"},
    MenuEntry{"Filemen", 11, "3", recentProject3, A::recentProject, K::command, "Ctrl+C"},
    MenuEntry{"Filemen", 12, "4", recentProject4, A::recentProject, K::command, "Ctrl+D"},
    MenuEntry{"Filemen", 13, "-", none, A::never, K::separator},
    MenuEntry{"Filemen", 14, "E&xit", exitProgram, A::always, K::command, "Ctrl+X"},

    MenuEntry{"projmen", 0, "&Scene-O-Matic", sceneOMatic, A::project},
    MenuEntry{"projmen", 1, "Add &New Scene", addScene, A::project},
    MenuEntry{"projmen", 2, "Edit &Locations/ Map", editMap, A::project},
    MenuEntry{"projmen", 3, "Edit Inventory &Items", editItems, A::project},
    MenuEntry{"projmen", 4, "Edit C&ue Cards", editCueCards, A::project},
    MenuEntry{"projmen", 5, "Edit &Mousepointers", editPointers, A::project, K::hidden},
    MenuEntry{"projmen", 6, "Edit &Text Files", editText, A::project},
    MenuEntry{"projmen", 7, "&General Game Settings", generalSettings, A::project},
    MenuEntry{"projmen", 8, "&Customize Player", customizePlayer, A::project},
    MenuEntry{"projmen", 9, "Opening Logo/ \"Credits\" Scene", logoCredits, A::project},
    MenuEntry{"projmen", 10, "Game \"Intro\"", gameIntro, A::project},
    MenuEntry{"projmen", 11, "-", none, A::never, K::separator},
    MenuEntry{"projmen", 12, "Project Security", projectSecurity, A::project},
    MenuEntry{"projmen", 13, "View/ Edit Project In&fo", projectInfo, A::project},

    MenuEntry{"scnmen", 1, "Scene &Properties", sceneProperties, A::scene},
    MenuEntry{"scnmen", 2, "-", none, A::never, K::separator},
    MenuEntry{"scnmen", 3, "Insert New &Object", insertObject, A::roomForObject},

    MenuEntry{"runmen", 0, ">> Quorvel &Player <<", runPlayer, A::project},
    MenuEntry{"runmen", 1, "&Animated GIF Editor", runTool1, A::tool},
    MenuEntry{"runmen", 2, "&Graphics Editor", runTool2, A::tool},
    MenuEntry{"runmen", 3, "&Icon / Cursor Editor", runTool3, A::tool},
    MenuEntry{"runmen", 4, "&Wav Editor", runTool4, A::tool},
    MenuEntry{"runmen", 5, "&Midi Editor", runTool5, A::tool},
    MenuEntry{"runmen", 6, "&Video Editor", runTool6, A::tool},

    MenuEntry{"options", 1, "&Editor Options", editorOptions, A::always},
    MenuEntry{"options", 2, "&Run-Menu Setup", runMenuSetup, A::always},

    MenuEntry{"helpmen", 1, "&Tip Of The Day", tipOfTheDay, A::always},
    MenuEntry{"helpmen", 2, "skip", none, A::never, K::hidden},
    MenuEntry{"helpmen", 3, "Help &Contents / Overview", helpContents, A::always},
    MenuEntry{"helpmen", 4, "-", none, A::never, K::separator},
    MenuEntry{"helpmen", 5, "Visit Website", visitWebsite, A::always},
    MenuEntry{"helpmen", 8, "-", none, A::never, K::separator},
    MenuEntry{"helpmen", 9, "&About", about, A::always},
};

constexpr std::array kToolPositions = {
    ToolPosition{1, "Open", "Open Project", "open", openProject, A::always},
    ToolPosition{2, "Close", "Close Project", "close", closeProject, A::project},
    ToolPosition{3, "", "", "", none, A::never, K::separator},
    ToolPosition{4, "ProjInformation", "View/ Edit Project Information",
                 "project-info", projectInfo, A::project},
    ToolPosition{5, "ProjSec", "Project Security", "security", projectSecurity, A::project},
    ToolPosition{6, "", "Toggle Animations", "toggle-animations", toggleAnimations, A::project,
                 K::toggle},
    ToolPosition{7, "", "Toggle Borders", "toggle-borders", toggleBorders, A::project, K::toggle},
    ToolPosition{8, "", "", "", none, A::never, K::separator},
    ToolPosition{9, "SceneMatic", "Scene-O-Matic", "scene-o-matic", sceneOMatic, A::project},
    ToolPosition{10, "addscene", "Add New Scene", "add-scene", addScene, A::project},
    ToolPosition{11, "editlocations", "Edit Locations/ Map", "edit-locations", editMap, A::project},
    ToolPosition{12, "edititems", "Edit Inventory Items", "edit-items", editItems, A::project},
    ToolPosition{13, "editcues", "Edit Cue Cards", "edit-cue-cards", editCueCards, A::project},
    ToolPosition{14, "editmp", "Edit Mousepointers",
                 "edit-pointers", editPointers, A::project, K::hidden},
    ToolPosition{15, "edtext", "Edit Text Files", "edit-text", editText, A::project},
    ToolPosition{16, "gengamesettings", "General Game Settings",
                 "general-settings", generalSettings, A::project},
    ToolPosition{17, "customplayer", "Customize Player",
                 "customize-player", customizePlayer, A::project},
    ToolPosition{18, "LogCred", "Opening Logo/ \"Credits\" Scene",
                 "logo-credits", logoCredits, A::project},
    ToolPosition{19, "GameInt", "Game \"Intro\"", "game-intro", gameIntro, A::project},
    ToolPosition{20, "projrep", "Project Reports",
                 "project-reports", projectReports, A::project, K::hidden},
    ToolPosition{21, "", "", "", none, A::never, K::separator},
    ToolPosition{22, "scnproperts", "Scene Properties",
                 "scene-properties", sceneProperties, A::scene},
    ToolPosition{23, "newob", "Insert New Object", "insert-object", insertObject, A::roomForObject},
    ToolPosition{24, "", "", "", none, A::never, K::separator},
    ToolPosition{25, "runPlayer", "Run Quorvel Player", "run-player", runPlayerByButton, A::project},
    ToolPosition{26, "runANIM", "Run Animated GIF Editor", "run-anim", runTool1, A::tool},
    ToolPosition{27, "rungrafix", "Run Graphics Editor", "run-graphics", runTool2, A::tool},
    ToolPosition{28, "runicon", "Run Icon / Cursor Editor", "run-icon", runTool3, A::tool},
    ToolPosition{29, "runwav", "Run WAV Editor", "run-wav", runTool4, A::tool},
    ToolPosition{30, "runmidi", "Run MIDI Editor", "run-midi", runTool5, A::tool},
    ToolPosition{31, "runavi", "Run Video Editor", "run-video", runTool6, A::tool},
    ToolPosition{32, "", "", "", none, A::never, K::hidden},
    ToolPosition{33, "", "Help Pointer", "help-pointer", none, A::never},
};
// clang-format on

int numberWithin(Command command, Command first, Command last) {
    return command < first || command > last
               ? 0
               : static_cast<int>(command) - static_cast<int>(first) + 1;
}

}  // namespace

std::span<const MenuHead> menuHeads() {
    return kMenuHeads;
}
std::span<const MenuEntry> menuEntries() {
    return kMenuEntries;
}
std::span<const ToolPosition> toolPositions() {
    return kToolPositions;
}

int recentNumber(Command command) {
    return numberWithin(command, recentProject1, recentProject4);
}

int toolNumber(Command command) {
    return numberWithin(command, runTool1, runTool6);
}

}  // namespace quorvel::shell
