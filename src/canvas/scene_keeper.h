/// The scene between the canvas, the memory and the store: saving, loading, moving on, adding.
///
/// Data flow: whoever wants another scene calls `GoToScene` or `AddScene`; the window follows
/// `sceneShown` and `sceneAdded`.
#pragma once

#include <cstdint>
#include <optional>

#include <QObject>

#include "canvas/scene_rescue.h"
#include "canvas/scene_view.h"
#include "forms/traps.h"
#include "store/scene_store.h"

namespace quorvel::canvas {

/// How a save ended. The author has been told of a failure when it is one.
enum class SaveOutcome : std::uint8_t {
    saved,
    nothingToSave,  ///< the scene has no record of its own, or others changed it and the author not
    readOnly,
    failed,
};

/// What an added scene begins as.
enum class NewScene : std::uint8_t { empty, closeup, exactCopy };

/// Owned by the shell; all references must outlive it.
class SceneKeeper : public QObject {
    Q_OBJECT
  public:
    SceneKeeper(store::Project& project, store::Scene& scene, SceneView& view, forms::Boxes& boxes,
                forms::Traps& traps);

    /// Writes the scene in memory to its record, the edge links as they stand on the canvas. A
    /// record that others wrote meanwhile, and a store that is not the one that was opened any
    /// more, are written only when the author agrees.
    SaveOutcome SaveScene();

    /// True when the scene has a record of its own. One without cannot be edited.
    [[nodiscard]] bool isSceneStored() const { return project_.currentSceneStored(); }

    /// True when the scene in memory, as it was last tried to save, differs from its record.
    [[nodiscard]] bool holdsUnsaved() const { return store::holdsUnsaved(project_, scene_); }

    /// Reads scene `number` into memory and makes it the current one; alerts go off and, unless a
    /// project is being opened, the canvas is emptied. It goes on looking as it did until
    /// `showScene`. Throws `store::RuntimeError`, and nothing has changed then.
    void LoadScene(int number);

    /// Shows the scene in memory: its picture, or none, then its links and objects. A picture that
    /// cannot be shown is told when the objects have appeared.
    void showScene();

    /// The project was closed; the next one begins without its failures.
    void projectClosed();

    /// Shows the picture of the scene in memory, or none. One that cannot be shown is told.
    void ShowPicture();

    /// Saves the current scene and shows scene `number`. The author stays where the current scene
    /// could not be written, for another reason than that the project is read-only, and where the
    /// other one could not be read or was lost meanwhile; false then, and the author has been told.
    bool GoToScene(int number);

    /// Saves the current scene, appends a scene to the store and shows it. A closeup's lower edge
    /// link leads back, in memory, to the scene that was current. False when nothing was added; the
    /// author has been told. A scene without a record can be followed by an empty one alone.
    bool AddScene(NewScene mode);

  Q_SIGNALS:
    /// A scene has been read and is about to be shown.
    void sceneLoading();
    /// Scene `number` is on the canvas.
    void sceneShown(int number);
    /// The list of scenes has got a last entry.
    void sceneAdded();
    /// The list of scenes was read anew, for others had changed the store.
    void scenesRead();
    /// Whether the scene that is shown can be written, as far as is known.
    void savingPossible(bool possible);

  private:
    /// Saves before leaving; false when the author has to stay.
    bool leave();
    /// The steps of a save, each with all that may stand in its way.
    SaveOutcome write();
    SaveOutcome writeOver();
    SaveOutcome writeAfter(const store::LostFileError& loss);
    void takeScenesOfOthers();
    /// Loads and shows scene `number`. With `wayBack` its lower edge link leads to that scene.
    bool arrive(int number, int wayBack = 0);
    bool writeNewScene(int number, NewScene mode);
    /// What went wrong with the scene's picture, if anything did.
    std::optional<store::RuntimeError> loadPicture();
    void tellPicture(const std::optional<store::RuntimeError>& failure);

    store::Project& project_;
    store::Scene& scene_;
    SceneView& view_;
    forms::Boxes& boxes_;
    forms::Traps& traps_;
    SceneRescue rescue_;
    bool canSave_ = true;
    std::optional<SceneView::Hold> hold_;  // from loading to showing
};

}  // namespace quorvel::canvas
