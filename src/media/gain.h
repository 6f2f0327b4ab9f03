/// What volumes and pans do to sound.
#pragma once

namespace quorvel::media {

/// The factor of a volume in hundredths of a decibel, 0 is full; 1.0 to 0.0. What is louder is
/// taken as 0, what is below -10000 as -10000, and that is silent.
double amplitude(int volume);

/// Where a balance element has to stand for a pan of -10000 (left) to 10000 (right) hundredths of a
/// decibel, by which the other side is turned down; -1.0 to 1.0.
double panorama(int pan);

}  // namespace quorvel::media
