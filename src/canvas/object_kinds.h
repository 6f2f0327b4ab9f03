/// What the canvas has to know of the types of objects.
#pragma once

#include <cstdint>

#include <QString>

#include "forms/pictures_playhead.h"
#include "store/scene.h"

namespace quorvel::canvas {

/// The values of `SlotInt1`. Every other number is a type that a newer version made.
enum class ObjectType : std::int16_t {
    free = -1,
    ambient,
    hotSpot,
    goodie,
    switchObject,
    reactor,
    responder,
    delay,
    multiTrigger,
    conversation,
    flagConjunction,
};

// Fields that all types have.
inline constexpr int kTypeField = 1;
inline constexpr int kLeftField = 2;     ///< canvas pixels
inline constexpr int kTopField = 3;      ///< canvas pixels
inline constexpr int kPictureField = 1;  ///< a text: file in resource/gfx, of types with a picture

/// Fields of a HotSpot, by what they mean.
namespace hot_spot {
inline constexpr int kHeightField = 5;  ///< a text: height of a QuickSpot as decimal number
inline constexpr int kWidthField = 6;   ///< a text: its width
inline constexpr int kStyleField = 29;
inline constexpr std::int16_t kImageSpot = 0;
inline constexpr std::int16_t kQuickSpot = 1;
/// The lowest height and width of a QuickSpot, in pixels.
inline constexpr int kLeastSide = 5;
}  // namespace hot_spot

[[nodiscard]] inline ObjectType typeOf(const store::ObjectSlot& slot) {
    return static_cast<ObjectType>(slot.SlotInt(kTypeField));
}
[[nodiscard]] inline bool isPresent(const store::ObjectSlot& slot) {
    return typeOf(slot) != ObjectType::free;
}
[[nodiscard]] bool isQuickSpot(const store::ObjectSlot& slot);

/// The tag that elements of this type bear; empty for a free slot.
[[nodiscard]] QString tagOf(ObjectType type);

/// True for the types that an author gives a picture to, Ambient to Reactor.
[[nodiscard]] bool hasPicture(ObjectType type);

/// The stock picture of a type that has none of its own.
[[nodiscard]] QString symbolOf(ObjectType type);

/// How the picture of the object runs in the preview.
[[nodiscard]] forms::DisplayMode displayModeOf(const store::ObjectSlot& slot);

}  // namespace quorvel::canvas
