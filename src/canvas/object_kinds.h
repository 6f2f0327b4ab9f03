/// How the canvas shows the types of objects.
#pragma once

#include <QString>

#include "forms/pictures_playhead.h"
#include "store/objects.h"

namespace quorvel::canvas {

[[nodiscard]] inline bool isPresent(const store::ObjectSlot& slot) {
    return store::typeOf(slot) != store::ObjectType::free;
}

/// The tag that elements of this type bear; empty for a free slot.
[[nodiscard]] QString tagOf(store::ObjectType type);

/// The stock picture of a type that has none of its own.
[[nodiscard]] QString symbolOf(store::ObjectType type);

/// How the picture of the object runs in the preview.
[[nodiscard]] forms::DisplayMode displayModeOf(const store::ObjectSlot& slot);

}  // namespace quorvel::canvas
