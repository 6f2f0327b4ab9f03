/// The movie of the game: the beacon burns again.
#pragma once

#include <QImage>

#include "files/avi_file.h"

namespace quorvel::sample {

/// `harbour` is the picture of the last scene, in which the movie begins at the lamp and ends with
/// all of it.
Movie beaconMovie(const QImage& harbour);

}  // namespace quorvel::sample
