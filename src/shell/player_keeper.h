/// Looks after the player of the project that is open, and starts it for a test run.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>

#include "canvas/scene_keeper.h"
#include "forms/boxes.h"
#include "forms/guide.h"
#include "resources/programs.h"
#include "store/project.h"

namespace quorvel::shell {

/// Owned by the shell; all references must outlive it.
class PlayerKeeper {
  public:
    /// Where the author asked for the test run.
    enum class AskedBy : std::uint8_t { menu, toolBar };

    struct House {
        store::Project& project;
        canvas::SceneKeeper& keeper;
        forms::Boxes& boxes;
        resources::Programs& programs;
        std::function<QString()> installPath;  ///< with a separator at its end
        forms::Guide& guide;
    };
    explicit PlayerKeeper(House house);

    /// Sees to it that the project has its player, at least as new as the master copy. The author
    /// is told what was done and what could not be done. Nothing is ever run.
    void VerifyPlayer();

    /// Saves the scene and starts the player, which then lives on its own.
    void RunPlayer(AskedBy asked);

  private:
    /// False when the player is missing still.
    bool replaceMissing(const std::filesystem::path& player, const std::filesystem::path& master);
    void upgrade(const std::filesystem::path& player, const std::filesystem::path& master);
    /// Copies the master; what went wrong is told, and false then.
    bool copyMaster(const std::filesystem::path& player, const std::filesystem::path& master);
    bool startPlayer();
    void tellMasterMissing(const QString& occasion);

    House house_;
};

}  // namespace quorvel::shell
