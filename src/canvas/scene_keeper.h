/// The scene between the canvas, the memory and the store.
#pragma once

#include <cstdint>

#include "canvas/scene_view.h"
#include "forms/traps.h"
#include "store/scene_store.h"

namespace quorvel::canvas {

/// How a save ended. The author has been told of a failure when it is one.
enum class SaveOutcome : std::uint8_t { saved, readOnly, failed };

/// Owned by the shell; all references must outlive it.
class SceneKeeper {
  public:
    SceneKeeper(store::Project& project, store::Scene& scene, SceneView& view, forms::Traps& traps)
        : project_(project), scene_(scene), view_(view), traps_(traps) {}

    /// Writes the scene in memory to its record, the edge links as they stand on the canvas. A
    /// scene without a record of its own is not written and counts as saved.
    SaveOutcome SaveScene();

    /// Reads scene `number` into memory and makes it the current one; alerts go off. The canvas is
    /// emptied first unless a project is being opened. Throws `store::RuntimeError`.
    void LoadScene(int number);

    /// Shows the scene in memory: its picture, or none, then its links and objects. A picture that
    /// cannot be shown is told, and the objects appear all the same.
    void showScene();

  private:
    store::Project& project_;
    store::Scene& scene_;
    SceneView& view_;
    forms::Traps& traps_;
};

}  // namespace quorvel::canvas
