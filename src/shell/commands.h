/// The commands of the main window: each menu entry and each tool bar position, described once.
#pragma once

#include <cstdint>
#include <span>

namespace quorvel::shell {

/// What an entry runs. An entry whose command nobody has given a routine stays disabled.
enum class Command : std::uint8_t {
    none,
    newProject,
    openProject,
    closeProject,
    recentProject1,
    recentProject2,
    recentProject3,
    recentProject4,
    exitProgram,
    sceneOMatic,
    addScene,
    editMap,
    editItems,
    editCueCards,
    editPointers,
    editText,
    generalSettings,
    customizePlayer,
    logoCredits,
    gameIntro,
    projectSecurity,
    projectInfo,
    projectReports,
    sceneProperties,
    insertObject,
    runPlayer,
    runPlayerByButton,  ///< the same, told in other words when it fails
    runTool1,
    runTool2,
    runTool3,
    runTool4,
    runTool5,
    runTool6,
    editorOptions,
    runMenuSetup,
    tipOfTheDay,
    helpContents,
    visitWebsite,
    about,
    toggleAnimations,
    toggleBorders,
};

/// When an entry can be used.
enum class Availability : std::uint8_t {
    always,
    never,
    project,        ///< while a project is open
    noProject,      ///< while none is open
    scene,          ///< while the scene that is shown has a record of its own
    roomForObject,  ///< as `scene`, while it holds fewer than 20 objects
    recentProject,  ///< where the recent list has a project
    tool,           ///< where the Run menu has a program
};

enum class EntryKind : std::uint8_t { command, toggle, separator, hidden };

/// One entry of a menu.
struct MenuEntry {
    const char* menu;  ///< system name of the menu's control array
    int index;
    const char* caption;
    Command command = Command::none;
    Availability availability = Availability::never;
    EntryKind kind = EntryKind::command;
    const char* shortcut = "";
};

/// A menu of the menu bar.
struct MenuHead {
    const char* name;
    const char* caption;
    const char* entries;  ///< control array of its entries
};

/// One position of the tool bar, 1 to 33.
struct ToolPosition {
    int position;
    const char* key;  ///< system name of the button, empty for none
    const char* toolTip;
    const char* icon;
    Command command = Command::none;
    Availability availability = Availability::never;
    EntryKind kind = EntryKind::command;
};

std::span<const MenuHead> menuHeads();
std::span<const MenuEntry> menuEntries();
std::span<const ToolPosition> toolPositions();

/// Number 1 to 4 of a recent-project command, 1 to 6 of a tool command, else 0.
int recentNumber(Command command);
int toolNumber(Command command);

}  // namespace quorvel::shell
