/// The window that a game is played in.
#pragma once

#include <filesystem>

#include <QImage>
#include <QWidget>

#include "forms/pictures.h"
#include "player/game.h"
#include "player/pointers.h"
#include "player/scene_window.h"

class QLabel;
class QScreen;

namespace quorvel::player {

/// 800 by 600 pixels: the background of the game, and the scene window at its place on it. A game
/// that cannot be played is told in the window itself.
class PlayerWindow : public QWidget {
    Q_OBJECT
  public:
    static constexpr int kWidth = 800;
    static constexpr int kHeight = 600;

    explicit PlayerWindow(const std::filesystem::path& folder);

    /// Shows the window: in the middle of `screen`, or all over one that has no room for its frame.
    void showOn(const QScreen& screen);

    /// Begins the game with its first scene.
    void begin();

    /// The scene that is shown, 0 for none.
    [[nodiscard]] int currentScene() const { return currentScene_; }

  protected:
    /// Escape leaves the game: on a small screen there is no frame to close it by.
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void build();
    void goTo(int number);
    void tellFault();

    Game game_;
    forms::PictureStore pictures_;
    Pointers pointers_;
    QImage background_;
    QWidget* stage_ = nullptr;  // 800 by 600, wherever the window is larger
    SceneWindow* scene_ = nullptr;
    QLabel* message_ = nullptr;
    int currentScene_ = 0;
};

}  // namespace quorvel::player
