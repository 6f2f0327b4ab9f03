/// Where a new project is to be made: its name as an author types it, and what lies there already.
#pragma once

#include <array>
#include <filesystem>
#include <vector>

#include <QString>

namespace quorvel::shell {

/// The longest file name of a project, without its ending.
inline constexpr int kLongestProjectName = 11;

/// What a new project gets from the folder `QuorvelDefaults`, in this order; the first is the
/// player.
inline constexpr std::array kDelivered = {"Game.exe", "ReadMe.txt", "Manual.txt"};

/// `text` as far as it may stand in the box for the name: eleven characters, and behind them ".qvl"
/// or what has been typed of it.
QString typedProjectName(const QString& text);

/// The name that is meant by `text`: without ".qvl" in any letter case, then at most eleven
/// characters.
QString projectName(const QString& text);

/// The full form of `folder`, which the author has chosen, with a separator at its end.
QString fullFolder(const QString& folder);

/// What lies in a folder. One that is not there counts as empty: making the project fails there,
/// and says why.
struct ProjectPlace {
    bool isUnreadable = false;      ///< it is there, and what it holds cannot be told
    bool hasResource = false;       ///< something is called `resource`, in any letter case
    std::vector<QString> replaced;  ///< what a new project would replace, as spelt there
    int others = 0;                 ///< files and folders that would stay

    [[nodiscard]] bool isEmpty() const { return !hasResource && replaced.empty() && others == 0; }
};

/// Looks into `folder`, for a project whose file is `fileName`.
ProjectPlace lookInto(const std::filesystem::path& folder, const QString& fileName);

}  // namespace quorvel::shell
