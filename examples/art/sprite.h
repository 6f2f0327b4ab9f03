/// A moving or still thing of a scene that becomes a picture file of its own.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QImage>
#include <QPainter>
#include <QRect>

namespace quorvel::sample {

/// `paint` draws frame `frame` of `frames` in the coordinates of the scene; what it draws outside
/// `box` is cut. Half-transparent edges are melted into the scene's picture, because the file
/// format knows only clear and solid.
struct Sprite {
    std::string file;
    QRect box;
    int frames;
    int delay;  ///< of a frame in hundredths of a second
    std::function<void(QPainter& painter, int frame)> paint;
};

/// A scene's picture with the sprites that belong on it.
struct SceneArt {
    std::string file;
    QImage picture;
    std::vector<Sprite> sprites;
};

/// Frame `frame` of `sprite` over `picture`: solid where the sprite is, clear elsewhere.
QImage renderFrame(const Sprite& sprite, const QImage& picture, int frame);

// The scenes, each painted by the unit of its place.
SceneArt harbourArt();
SceneArt laneArt();
SceneArt chandleryArt();
SceneArt innArt();
SceneArt atticArt();
SceneArt coveArt();
SceneArt cliffArt();
SceneArt lighthouseArt();
SceneArt stairArt();
SceneArt lampRoomArt();
SceneArt boatsHomeArt();

/// The map of the town, with the pictures of its locations as sprites.
SceneArt mapArt();

}  // namespace quorvel::sample
