/// What an author does to the objects of a scene: pop-up menus, insertion, removal, properties,
/// alerts.
///
/// Data flow: the elements of the canvas report presses here; what changes goes into the scene in
/// memory and from there to the canvas. Editors are not known here: whoever has one registers it.
#pragma once

#include <functional>
#include <map>

#include <QObject>
#include <QPoint>

#include "canvas/dragging.h"
#include "canvas/menus.h"
#include "canvas/scene_keeper.h"
#include "canvas/scene_view.h"
#include "forms/boxes.h"
#include "forms/guide.h"
#include "store/objects.h"

namespace quorvel::canvas {

/// Owned by the shell; all references must outlive it.
class ObjectActions : public QObject {
    Q_OBJECT
  public:
    struct House {
        store::Project& project;
        store::Scene& scene;
        SceneView& view;
        SceneKeeper& keeper;
        forms::Boxes& boxes;
        forms::Guide& guide;
    };
    explicit ObjectActions(const House& house);

    // What the author works on, by the system's names.
    int CurObj = 0;            ///< slot in the editor that is open, 0 when none
    int PopupObject = 0;       ///< element last right-clicked
    int JumpTarget = 0;        ///< scene behind the jump entry of the pop-up, 0 for none
    std::int16_t InsertX = 0;  ///< where an inserted object goes, canvas pixels
    std::int16_t InsertY = 0;

    [[nodiscard]] Dragging& dragging() { return dragging_; }
    /// The form that owns the pop-up menus.
    [[nodiscard]] menus& popups() { return menus_; }

    /// Editors by what they edit; an entry without one stays disabled.
    void registerEditor(store::ObjectType type, std::function<void()> editor);
    void registerLinkEditor(std::function<void()> editor) { linkEditor_ = std::move(editor); }
    void registerSceneEditor(std::function<void()> editor) { sceneEditor_ = std::move(editor); }

    /// Whether the scene's own menu offers its properties and an insertion. The menus of its
    /// objects and links ask for themselves: a scene without a record of its own is not edited.
    void setSceneEntries(bool sceneStored, bool roomForObject);

    /// Opens the editor of object `PopupObject` by its type code; codes above 9, and types without
    /// an editor, do nothing.
    void ShowObjectProps(int type);

    /// Lets the author choose a type and an index, inserts the object at `InsertX`, `InsertY` and
    /// opens its properties.
    void showNewLink();
    /// Makes slot `index` a fresh object of `type` and shows it.
    void InsertObject(store::ObjectType type, int index);
    /// Frees slot `index` when the author agrees.
    void RemoveObject(int index);
    /// The window that sizes the edge link last pressed.
    void showResize();

    /// Opens the menu of an element at a point of the screen; `at` is the same point on the canvas.
    void openMenu(SceneElement& element, QPoint screen, QPoint at);

    // The buttons beside the canvas.
    void ObjAlert_Click();
    void ScnAlert_Click();
    void RestoreObjs_Click();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void openObjectMenu(int k, QPoint screen);
    void openLinkMenu(int n, QPoint screen);
    void openSceneMenu(QPoint screen, QPoint at);
    void prepareObjectJumps(const store::ObjectSlot& slot, PopupMenu menu);
    void prepareJump(PopupMenu menu, PopupAction jump, int target);
    void answer(PopupMenu menu, PopupAction entry);
    void jumpTo(PopupAction entry);
    void tellUnknownType();
    [[nodiscard]] QString sceneText(int number) const;

    House house_;
    Dragging dragging_;
    menus menus_;
    std::map<store::ObjectType, std::function<void()>> editors_;
    std::function<void()> linkEditor_;
    std::function<void()> sceneEditor_;
    std::map<PopupAction, int> jumps_;
};

}  // namespace quorvel::canvas
