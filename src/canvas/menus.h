/// The pop-up menus of the canvas, the map and the mouse pointers.
///
/// All of them are made from one table. The form that owns them is never shown; whoever opens a
/// menu prepares its jump entries first and answers `chosen`.
#pragma once

#include <cstdint>
#include <map>

#include <QString>
#include <QWidget>

class QAction;
class QMenu;
class QWindow;

namespace quorvel::canvas {

/// The menus, by what they are opened on.
enum class PopupMenu : std::uint8_t {
    ambient,
    link,
    hotSpot,
    scene,
    location,
    pointer,
    goodie,
    switchObject,
    reactor,
    responder,
    delay,
    multiTrigger,
    conversation,
    flagConjunction,
};

/// What an entry asks for.
enum class PopupAction : std::uint8_t {
    none,
    properties,
    remove,
    jump,
    jumpSecond,
    jumpThird,
    resizeLink,
    insertObject,
    chooseFile,
    setDefault,
};

class menus : public QWidget {  // NOLINT(readability-identifier-naming): the window's system name
    Q_OBJECT
  public:
    explicit menus(QWidget* parent);

    [[nodiscard]] QMenu& menu(PopupMenu which) const { return *menus_.at(which); }

    /// Opens a menu at a point of the screen. `over` is the window that it belongs to there; the
    /// form itself never gets one.
    void open(PopupMenu which, QPoint screen, QWindow* over);

    /// Caption and state of a jump entry: the text of the scene it leads to, empty for none.
    void prepareJump(PopupMenu which, PopupAction jump, const QString& scene);

    /// Enables the entries that somebody answers. Jumps follow `prepareJump`. `whyOff` is what the
    /// status line says of an entry that is off.
    void setAvailable(PopupMenu which, PopupAction entry, bool available,
                      const QString& whyOff = {});

  protected:
    /// What a menu says in the status line belongs to the window that it was opened in.
    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    void chosen(quorvel::canvas::PopupMenu menu, quorvel::canvas::PopupAction entry);

  private:
    void build();
    QAction* entryOf(PopupMenu which, PopupAction entry) const;

    std::map<PopupMenu, QMenu*> menus_;
    std::map<std::pair<PopupMenu, PopupAction>, QAction*> entries_;
};

}  // namespace quorvel::canvas
