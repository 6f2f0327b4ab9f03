/// What becomes of the scene in memory when others worked on the scene store meanwhile.
#pragma once

#include <cstdint>

#include "forms/boxes.h"
#include "store/project.h"
#include "store/runtime_error.h"
#include "store/scene.h"

namespace quorvel::canvas {

/// Asks the author; nothing of his, and nothing of the others', is overwritten without a Yes. All
/// references must outlive it.
class SceneRescue {
  public:
    SceneRescue(store::Project& project, const store::Scene& scene, forms::Boxes& boxes)
        : project_(project), scene_(scene), boxes_(boxes) {}

    /// Somebody else wrote the record of the current scene after it was read: true when the author
    /// wants his scene over it.
    [[nodiscard]] bool mayOverwrite() const;

    enum class Way : std::uint8_t {
        stay,   ///< nothing is written; the scene stays in memory
        goOn,   ///< the store is open again and holds all that the author made
        write,  ///< the store is open again, and the current scene is to be written to it
    };

    /// The scene store is not the file that was opened any more. The author is told what happened
    /// and offered a way that keeps the scene: the store put back with all its scenes, or the file
    /// that is there now taken in its stead. When he takes it the list of scenes is that of the
    /// file, and the current scene has the number that it gets there: its own, or the one behind
    /// the last. What fails is thrown.
    Way takeStore(const store::LostFileError& loss);

  private:
    Way putBack(const store::LostFileError& loss);
    Way takeOther(const store::LostFileError& loss);
    /// The number that the scene can have in another store; 0 for none.
    [[nodiscard]] int placeIn(const store::RecordFile<store::SceneRecord>& file) const;
    /// `overwrites`: Yes writes over a scene that somebody else has made.
    [[nodiscard]] bool ask(const QString& text, bool overwrites) const;

    store::Project& project_;
    const store::Scene& scene_;
    forms::Boxes& boxes_;
};

}  // namespace quorvel::canvas
