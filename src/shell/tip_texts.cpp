// The texts of all tips, to the last blank.
#include <array>
#include <cstddef>

#include "shell/day_tip.h"
#include "shell/quick_tip.h"

namespace quorvel::shell {
namespace {

constexpr std::array<const char*, kQuickTips> kQuickTipTexts = {
    // 1: test run
    "When you run your game, the current scene is saved to ensure that your game will be using "
    "the most current properties.  However, if you minimize the player to make some changes to a "
    "scene, you should first switch to a different scene in order to 'save the changes' before "
    "going back to the game.  Otherwise those changes won't be noticable!   If you would like to "
    "rename your game's EXE (to something other than 'Game.exe'), you MUST do so in the 'General "
    "Game Settings' window, not in Windows Explorer.",
    // 2: Project Security
    "Project Security is only used to protect other Quorvel users from editing your game.  "
    "Unless you are publicly releasing a game, and it is not a demo for other Quorvel users to "
    "learn with, it is recommended that you leave it off.  If you do wish to protect your "
    "project, it is recommended that you leave it off until you go to distribute your game.",
    // 3: Goodie
    "Goodie Objects allow you to place things in a scene that the player can pick up.  But did "
    "you know that in order for you to use Goodie Objects, you must first create Inventory "
    "Items?  Until you do, you will be unable to choose an item to add to the player's inventory "
    "in the Goodie Object Properties.",
    // 4: Conversation
    "(HIDDEN OBJECT - NOT VISIBLE WHEN PLAYING THE GAME, BUT MAKES THE CONVERSATION BOX APPEAR "
    "IN THE GAME) Conversation Objects allow you to use multiple-choice conversations in your "
    "game.  But did you know that in order for you to use Conversation Objects, you must first "
    "create Cue Cards?  Cue Cards tell Quorvel what text to display, and what to do when it is "
    "clicked.  Until you create Cue Cards, you will not be able to choose them in the "
    "Conversation Object Properties.",
    // 5: Link
    "Link Objects are the fastest and simplest way for you to 'connect' scenes together, and "
    "allow basic navigation in your game.  All scenes automatically contain four Links, and each "
    "can be moved and resized.  Set properties only for those you need... the others will be "
    "'invisible' in your game.  Should you need more 'links' per scene, or simply more options, "
    "take a look at the HotSpot Object!",
    // 6: Scene Properties
    "The most basic property for Scenes is the 'Scene Image'.  This is what the player sees when "
    "they are in this scene.  Most objects (scenes included) have many properties, but only a "
    "couple are necessary in order to put a basic game together.  For example, there are 'Check "
    "Flag' and 'Set Flag' properties for many objects, but such properties are not always "
    "needed.  Use only what you need to get the job done!",
    // 7: first help hint
    "If you're new to Quorvel, it can sometimes be difficult to figure out all of the "
    "properties, and what they do.  Because of this, much care has been taken to create a Help "
    "File that explains them all.  As you use Quorvel, you will notice that there are 'Help' "
    "buttons just about everywhere.  Be sure to click on them!  There are also these 'Quick Tip' "
    "windows, which appear at various times to help you along.  Good luck with your project!",
    // 8: map
    "Having a map allows the person playing your game to quickly move to different locations "
    "(such as an office, apartment, restaurant, etc).  You can create up to 20 locations for "
    "your map, and they can be available at the start of the game, or using flags, you can add "
    "locations to the map as the player earns them.  By linking an exit on a building to the Map "
    "using a HotSpot object, the player will then be presented with the map where they can then "
    "choose their next destination.",
    // 9: Customize Player
    "Quorvel allows you to customize your game in many ways, but the most obvious ones can be "
    "found in the 'Customize Player' window.  You can edit the button layout in your game, and "
    "even use custom buttons and backgrounds (see Help File for more on using custom buttons and "
    "backgrounds).  For even more options, see 'General Game Settings' as well!",
    // 10: Scene-O-Matic
    "The Scene-O-Matic allows you to quickly create empty scenes by scanning a folder for images "
    "and automatically creating a new scene for each one.  Although it will accept any size "
    "image, it is meant to be used for images that are already 'scene size' (700w X 475h).  The "
    "idea is: Create or capture your images, crop them to the correct size, then create scenes "
    "with them using the Scene-O-Matic.  Note: You can use the included Quorvel Easy Crop "
    "application to easily crop larger images to the correct 'scene size'!",
    // 11: cue cards
    "If you would like to have multiple-choice conversations available in your game, then you "
    "first need to create Cue Cards.  Cue Cards tell the Conversation Object what text to "
    "display, and what to do when the player clicks on it.  Once you've created a Cue Card, "
    "insert a Conversation Object into a scene where you want to have a conversation, then "
    "choose the appropriate Cue Card.",
    // 12: inventory items
    "By creating inventory items, you make it possible to include items in the game that the "
    "player can pick up and use.  You can have audio descriptions and/or graphical 'closeups'.  "
    "Quorvel even supports item combining... the ability to combine two different items to make "
    "an all-new one.  For example, combining string and a stick might create a fishing pole.  "
    "You can also change an item into a different item when it is examined (such as a wallet "
    "turning into an I.D. card).",
    // 13: Ambient
    "Ambient objects cannot be clicked on by the person playing the game.  Instead they are used "
    "to add ambience to a scene.  Some examples of what you would use an Ambient Object for are: "
    "A fire in a fireplace, a slowly moving cloud in the sky, a blinking light, etc.  Naturally, "
    "it is ideal to use an animated GIF for the object (to add some life to it), but it can be "
    "used with non-animated GIFs.  Using flags, you can also make it visible or invisible "
    "depending on the current situation of the game.",
    // 14: HotSpot
    "HotSpot Objects are the most commonly-used 'interactive' objects in a game.  Although "
    "similar to the Link Object, in that they can be used to link to a scene, they are much more "
    "powerful than that!  They are also the only object that can link to the Map (if your game "
    "uses one).  They can require an Inventory Item 'in hand' to work, and can be made visible "
    "or invisible using a flag.",
    // 15: Reactor
    "Reactor Objects were designed to be a simple way to add some interactivity to a game.  When "
    "clicked, reactors can play a sound file, or even an AVI movie.  In the game, they have a "
    "special mousepointer, which tells the person playing the game that it is something "
    "'interactive'.  Some examples of what you would use this object for:  A faucet that runs "
    "for a few seconds when clicked, or a psychic 'impression' that the player gets (in the form "
    "of a sound or movie) when touching the object.",
    // 16: Flag Conjunction
    "(HIDDEN OBJECT - NOT VISIBLE WHEN PLAYING THE GAME) When working with various aspects of a "
    "game, you sometimes need to check the values of several flags to see if or when a certain "
    "condition has been met (such as advancing to a different stage of the game).  Using the "
    "Flag Conjunction Object, you can check the values of up to 6 flags, and if *all conditions "
    "are true*, another flag can be set, which can then trigger another object.",
    // 17: Switch
    "The Switch Object makes it easy to incorporate an object with a toggle switch type behavior "
    "(such as a light switch).  Each click toggles a flag's value between one value and the "
    "other (for example, 0 and 1).  This flag's value can then affect another part of the game.",
    // 18: Responder
    "(HIDDEN OBJECT - NOT VISIBLE WHEN PLAYING THE GAME) Responder Objects can be used for many "
    "purposes (most common is adding to a 'score').  Using them, you can force the player back "
    "to the main menu, change the soundtrack, load a different scene, play a WAV or AVI movie, "
    "add a location to the map, add an item to the player's inventory, and of course, set a flag.",
    // 19: Delay
    "(HIDDEN OBJECT - NOT VISIBLE WHEN PLAYING THE GAME) Using the Delay Object in conjunction "
    "with a second object that shares the same flag properties, you essentially add a delay "
    "property to that second object.  For example, when the second object is clicked, set the "
    "flag that triggers the delay.  For the Delay Object, you can have that set to change the "
    "flag that controls the second object's visibility, making it disappear after a WAV file is "
    "played.",
    // 20: Multi-Trigger
    "(HIDDEN OBJECT - NOT VISIBLE WHEN PLAYING THE GAME) When working with various aspects of a "
    "game, you sometimes need to check the values of several flags to see if or when a certain "
    "condition has been met (such as advancing to a different stage of the game).  Using the "
    "Multi-Trigger Object, you can check the values of up to 3 flags, and *depending on which "
    "equation is true*, a specific flag can be set, which can then trigger another object.",
    // 21: Restore Object Positions
    "Clicking this button allows you to restore the positions (coordinates) of all objects that "
    "were in this scene when it was loaded.  This is very handy if you have overlapping objects, "
    "and need to move some out of the way in order to examine or change some properties.  Simply "
    "click this button after you're done with the properties, and all objects will return to "
    "where they were! Note:  If new objects are inserted after the scene is loaded, those "
    "objects will not be moved when this button is clicked.",
};

constexpr std::array<const char*, kDayTips> kDayTipTexts = {
    // 1
    "You must first open or create a project before you can access most of the items from the "
    "menus or toolbar.",
    // 2
    "You can create your projects in any folder, and even on removable media, such as Zip disks.",
    // 3
    "As you work on your project, you will notice that there are a lot of 'Help' buttons.  These "
    "are there for a reason!  Click them to learn more about the contents of the window you are "
    "using at the time.",
    // 4
    "Many properties can be accessed by RIGHT-CLICKING on objects.",
    // 5
    "Your project is saved as you move along.  There is no need to worry about large amounts of "
    "work lost due to power failure, etc...",
    // 6
    "'Scene 1' is the first scene that will appear when a person plays your game from the "
    "beginning.  Aside from that, scene numbers have very little meaning.",
    // 7
    "Although FLAGS must be between 1 and 255, you can set flag VALUES to any number, including "
    "negative numbers.",
    // 8
    "Objects in Scenes and Locations on the Map can overlap, and using Index #s and Flags wisely "
    "can produce some cool tricks!",
    // 9
    "If you change a file (such as an image) that an object uses on your disk, you won't notice "
    "a change until you 're-load' the scene.",
    // 10
    "The ONLY proper way to change the filename of the Quorvel 'Player' (Originally Game.exe) "
    "for your project is to change it in the 'General Settings' window.",
    // 11
    "You can drastically change the appearance of the 'Player'.  Just click on 'Customize "
    "Player' from the Menus or Toolbar.",
    // 12
    "You can add sound effects to certain 'events' in the 'Player'.  Just click on 'General "
    "Settings' from the Menus or Toolbar.",
    // 13
    "TYPEWRITER is the longest English word that can be typed using only the top row of 'letter "
    "keys' on a QWERTY-Style keyboard.",
    // 14
    "By editing the textfiles in the 'QuorvelDefaults' folder, they will become the default "
    "textfiles for all future projects that you create.",
    // 15
    "You can run your project in the Quorvel Player by clicking on 'Run Quorvel Player' from the "
    "Run-Menu or the Toolbar.",
    // 16
    "If you plan to run your game after editing a SCENE, you will have to switch to a different "
    "scene first in order for the changes to be saved.  Then the Player will recognize the "
    "changes you made.",
    // 17
    "You can access internal functions in the 'Player' that can make troubleshooting and testing "
    "your game much easier!  Just check the 'Enable Debug Window in Player' option in the "
    "'General Settings' window.",
    // 18
    "Since hidden objects are not visible in the finished game, it doesn't matter where in the "
    "scene you put them, or if they overlap.",
    // 19
    "When using hidden objects (such as Responders or Delays) to control other objects, place "
    "them close to the objects they control.  This will make it easier to keep track of what "
    "object they are for.",
    // 20
    "You can change the volume of a 'soundtrack' that is already playing by assigning that same "
    "file to any Soundtrack Property, then giving it a volume setting different from the current "
    "volume.",
    // 21
    "You can stop any 'soundtrack' that might be playing by double-clicking on the empty textbox "
    "of any Soundtrack Property.  This will bring up the '(Stop Sndtrk)' command.",
    // 22
    "Properties containing 'optional' files (such as sound and avi movies) can be cleared out by "
    "double-clicking on the filename in the textbox.  This is not possible with graphics files "
    "that are necessary though.",
    // 23
    "*** This is the last tip! ***",
};

}  // namespace

QString quickTipText(int number) {
    return QString::fromLatin1(kQuickTipTexts.at(static_cast<std::size_t>(number - 1)));
}

QString dayTipText(int number) {
    return QString::fromLatin1(kDayTipTexts.at(static_cast<std::size_t>(number - 1)));
}

}  // namespace quorvel::shell
