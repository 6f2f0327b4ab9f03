/// The game as the player reads it out of its folder.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include <QPoint>
#include <QString>

#include "store/records.h"
#include "store/scene.h"

namespace quorvel::player {

/// Files are opened for each reading and closed again: the editor may work on them meanwhile, and
/// what it has saved is seen with the next scene.
class Game {
  public:
    explicit Game(std::filesystem::path folder);

    /// Why the game cannot be played, for its player to read; empty when it can.
    [[nodiscard]] const QString& fault() const { return fault_; }
    /// The same in the words of the system, where there is more to say.
    [[nodiscard]] const QString& detail() const { return detail_; }

    [[nodiscard]] const std::filesystem::path& folder() const { return folder_; }
    /// Title of the game; empty when it has none.
    [[nodiscard]] QString title() const;
    /// Where the scene window lies, in pixels of the player's window.
    [[nodiscard]] QPoint sceneWindowPlace() const;
    /// File of mouse pointer `index`, 1 to 15; empty for the built-in one.
    [[nodiscard]] std::string pointerFile(int index) const;

    /// Scene `number` as it is on the disk now; nothing where there is no such scene, and where it
    /// cannot be read, which `fault` then tells.
    std::optional<store::Scene> scene(int number);

  private:
    void readSettings();

    std::filesystem::path folder_;
    store::GameSettingsRecord settings_;
    QString fault_;
    QString detail_;
};

}  // namespace quorvel::player
