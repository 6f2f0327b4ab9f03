/// What teaches the author, behind an interface: windows on every floor have a Help button or a
/// Quick Tip, the help itself belongs to the shell.
#pragma once

#include <functional>

#include "forms/help_topics.h"

namespace quorvel::forms {

/// Numbers of the Quick Tips, each named after what it comes before.
struct TipBefore {
    static constexpr int testRun = 1;
    static constexpr int projectSecurity = 2;
    static constexpr int goodie = 3;
    static constexpr int conversation = 4;
    static constexpr int link = 5;
    static constexpr int sceneProperties = 6;
    static constexpr int newProject = 7;
    static constexpr int map = 8;
    static constexpr int customizePlayer = 9;
    static constexpr int sceneOMatic = 10;
    static constexpr int cueCards = 11;
    static constexpr int items = 12;
    static constexpr int ambient = 13;
    static constexpr int hotSpot = 14;
    static constexpr int reactor = 15;
    static constexpr int flagConjunction = 16;
    static constexpr int switchObject = 17;
    static constexpr int responder = 18;
    static constexpr int delay = 19;
    static constexpr int multiTrigger = 20;
    static constexpr int restorePositions = 21;
};

class Guide {
  public:
    Guide() = default;
    Guide(const Guide&) = delete;
    Guide& operator=(const Guide&) = delete;
    virtual ~Guide() = default;

    /// Shows the help on `topic` in its own window and returns at once. Works from modal windows
    /// too.
    virtual void ShowHelp(HelpTopic topic) = 0;

    /// Shows Quick Tip `number`, 1 to 21, modally, unless the author has turned it off.
    virtual void ShowQuickTip(int number) = 0;
};

/// What a Help button runs. `guide` must outlive it.
inline std::function<void()> helpOn(Guide& guide, HelpTopic topic) {
    return [&guide, topic] { guide.ShowHelp(topic); };
}

}  // namespace quorvel::forms
