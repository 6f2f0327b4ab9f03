/// The part of the player's window that shows a scene.
#pragma once

#include <array>

#include <QImage>
#include <QWidget>

#include "canvas/elements.h"
#include "forms/pictures.h"
#include "player/pointers.h"
#include "store/scene.h"

namespace quorvel::player {

/// A place in the scene that a click can do something in. It looks like nothing. Owned by the
/// scene window.
class ClickArea : public QWidget {
    Q_OBJECT
  public:
    explicit ClickArea(QWidget* parent);

    int target = 0;  ///< scene that a click leads to, 0 for none

  Q_SIGNALS:
    void leadsTo(int scene);

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};

/// 700 by 475 pixels: the scene's picture, then the areas of the edge links, then the objects, each
/// above the one with the lower number.
class SceneWindow : public QWidget {
    Q_OBJECT
  public:
    static constexpr int kWidth = 700;
    static constexpr int kHeight = 475;

    /// All references must outlive the window.
    SceneWindow(const Game& game, forms::PictureStore& pictures, Pointers& pointers,
                QWidget* parent);

    /// Shows `scene` as it is at the start of a game.
    void showScene(const store::Scene& scene);

  Q_SIGNALS:
    void leadsTo(int scene);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] forms::PicturePtr picture(const std::string& name) const;
    void showLink(const store::Scene& scene, store::LinkSide side);
    void showObject(const store::ObjectSlot& slot, int k);
    void showArea(ClickArea& area, const canvas::Place& place, int target, int pointer);

    const Game& game_;
    forms::PictureStore& pictures_;
    Pointers& pointers_;
    QImage image_;
    // The arrays begin at 1, as the names do; element 0 is not there.
    std::array<ClickArea*, store::kLinkSides.size() + 1> links_{};
    std::array<canvas::PictureElement*, store::kSlotCount + 1> objects_{};
    std::array<ClickArea*, store::kSlotCount + 1> areas_{};
};

}  // namespace quorvel::player
