/// Puts a scene together: its picture, links and objects.
#pragma once

#include <string>
#include <vector>

#include "art/sprite.h"
#include "store/objects.h"
#include "store/scene.h"

namespace quorvel::sample {

// Values of option fields.
inline constexpr int kLooping = 1;
inline constexpr int kPingPong = 2;
inline constexpr int kOneShot = 3;     ///< of an Ambient
inline constexpr int kOnClick = 5;     ///< of a Reactor
inline constexpr int kToMap = 2;       ///< of a HotSpot
inline constexpr int kLowerLeft = 2;   ///< of a Conversation
inline constexpr int kUpperRight = 3;  ///< of a Conversation

// Mouse pointers over links and hot spots.
inline constexpr int kPointerUp = 1;
inline constexpr int kPointerDown = 2;
inline constexpr int kPointerLeft = 3;
inline constexpr int kPointerRight = 4;
inline constexpr int kPointerExit = 9;

/// Comparisons of a flag test.
enum class Compare { equal, notEqual, less, greater };

/// A flag with a value: what is tested, or what is set.
struct FlagValue {
    int flag;
    int value;
    Compare compare = Compare::equal;
    bool add = false;
};

/// An object of the scene under construction. It refers to the builder's scene, which must outlive
/// it.
class ObjectRef {
  public:
    explicit ObjectRef(store::ObjectSlot& slot) : slot_(slot) {}

    ObjectRef& number(store::NumberField field, int value);
    ObjectRef& text(store::WordField field, const std::string& value);
    /// Three fields from `field` on: flag, comparison, value.
    ObjectRef& test(store::NumberField field, const FlagValue& value);
    /// Three fields from `field` on: flag, value, add.
    ObjectRef& set(store::NumberField field, const FlagValue& value);
    /// The object exists only while the test holds; the test follows the visibility.
    ObjectRef& visibleWhen(store::NumberField visibility, const FlagValue& value);

  private:
    store::ObjectSlot& slot_;
};

/// Starts from a new scene and a picture with its sprites; `art` must outlive the builder.
class SceneBuilder {
  public:
    SceneBuilder(const std::string& name, const SceneArt& art);

    /// Object `index` of a type without a picture, or with one to come, at a place.
    ObjectRef insert(int index, store::ObjectType type, int x, int y);
    /// Object `index` shown by a sprite of the scene's art, where the sprite was painted.
    ObjectRef insert(int index, store::ObjectType type, const std::string& sprite);
    /// A QuickSpot: a hot spot without a picture.
    ObjectRef insertQuickSpot(int index, const QRect& area);

    void link(store::LinkSide side, int scene);
    void soundtrack(const std::string& file, int volume);
    void sound(const std::string& file, int volume, int pan);
    void movieOnEnter(const std::string& file, int volume);
    void setFlagOnEnter(const FlagValue& value);
    void switchSceneWhen(const FlagValue& value, int scene);

    [[nodiscard]] const store::Scene& scene() const { return scene_; }

  private:
    const SceneArt& art_;
    store::Scene scene_;
};

}  // namespace quorvel::sample
