/// The one scene that is in memory, which the canvas and the editors read and write.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "store/records.h"

namespace quorvel::store {

/// Places of the header's texts in `Scene::HeaderStrings`, in the order of the file.
enum class HeaderString : std::size_t {
    SceneName,
    SceneImage,
    SceneSoundtrack,
    SceneSound1File,
    SceneSound2File,
    SceneSound3File,
    SceneEnterMovie,
    SceneExitMovie,
    Reserved156,
};
inline constexpr std::size_t kHeaderStrings = 11;

/// Places of the header's numbers in `Scene::HeaderInts`, in the order of the file.
enum class HeaderInt : std::size_t {
    SceneCheckFlagOn,
    SceneCheckFlagId,
    SceneCheckFlagTest,
    SceneCheckFlagValue,
    SceneCheckFlagTarget,
    SceneSoundtrackVolume,
    SceneSound1Volume,
    SceneSound1Pan,
    SceneSound2Volume,
    SceneSound2Pan,
    SceneSound3Volume,
    SceneSound3Pan,
    SceneEnterMovieVolume,
    SceneExitMovieVolume,
    SceneSetFlagOn,
    SceneSetFlagId,
    SceneSetFlagValue,
    SceneSetFlagAdd,
    Reserved201,
    SecurityCode = 20,
};
inline constexpr std::size_t kHeaderInts = 21;

/// One of the four exits along a scene's edges. Geometry is in canvas pixels.
struct EdgeLink {
    std::int16_t pointer = 0;  ///< index into the mouse pointers
    std::int16_t target = 0;   ///< scene, 0 for none
    std::int16_t top = 0;
    std::int16_t left = 0;
    std::int16_t width = 0;
    std::int16_t height = 0;

    friend bool operator==(const EdgeLink&, const EdgeLink&) = default;
};

/// The edge links as the canvas and the link editor number them.
enum class LinkSide { left = 1, up = 2, right = 3, down = 4 };
inline constexpr std::array kLinkSides = {LinkSide::left, LinkSide::up, LinkSide::right,
                                          LinkSide::down};

/// Where an edge link lies in `SceneRecord`: bytes from its start.
struct LinkOffsets {
    std::size_t pointer;
    std::size_t target;
    std::size_t top;
    std::size_t left;
    std::size_t width;
    std::size_t height;
};
/// Of the four links the record holds the ways of all first, then the areas of all, each in the
/// order up, down, left, right.
LinkOffsets linkOffsets(LinkSide side);

/// The default place of an edge link in a new scene; pointer and target are 0.
EdgeLink defaultLink(LinkSide side);

/// One object: a row of 36 numbers and 9 texts. Fields are numbered as in the file, from 1; the
/// first number is the type. Texts are UTF-8, trimmed, and may be longer in memory than the file
/// takes.
class ObjectSlot {
  public:
    static constexpr int kInts = 36;
    static constexpr int kStrs = 9;
    static constexpr int kStrWidth = 15;  ///< characters of a text that the file takes

    [[nodiscard]] std::int16_t SlotInt(int field) const { return ints_.at(index(field)); }
    std::int16_t& SlotInt(int field) { return ints_.at(index(field)); }
    [[nodiscard]] const std::string& SlotStr(int field) const { return strs_.at(index(field)); }
    std::string& SlotStr(int field) { return strs_.at(index(field)); }

    friend bool operator==(const ObjectSlot&, const ObjectSlot&) = default;

  private:
    static std::size_t index(int field) { return static_cast<std::size_t>(field - 1); }

    std::array<std::int16_t, kInts> ints_{};
    std::array<std::string, kStrs> strs_;
};

/// The scene in memory. Owned by the shell; there is one for the life of the process.
class Scene {
  public:
    std::array<std::string, kHeaderStrings> HeaderStrings;
    std::array<std::int16_t, kHeaderInts> HeaderInts{};
    EdgeLink LinkUp;
    EdgeLink LinkDown;
    EdgeLink LinkLeft;
    EdgeLink LinkRight;

    /// Puts the scene to an empty one: no text, all header numbers 0, default edge links, all slots
    /// free with every other number 0.
    void ResetScene();

    [[nodiscard]] const std::string& header(HeaderString field) const {
        return HeaderStrings[static_cast<std::size_t>(field)];
    }
    std::string& header(HeaderString field) {
        return HeaderStrings[static_cast<std::size_t>(field)];
    }
    [[nodiscard]] std::int16_t header(HeaderInt field) const {
        return HeaderInts[static_cast<std::size_t>(field)];
    }
    std::int16_t& header(HeaderInt field) { return HeaderInts[static_cast<std::size_t>(field)]; }

    /// Object `number`, 1 to 20.
    [[nodiscard]] const ObjectSlot& slot(int number) const {
        return slots_.at(static_cast<std::size_t>(number - 1));
    }
    ObjectSlot& slot(int number) { return slots_.at(static_cast<std::size_t>(number - 1)); }

    [[nodiscard]] const EdgeLink& link(LinkSide side) const;
    EdgeLink& link(LinkSide side);

    /// Objects that are there, unknown types included.
    [[nodiscard]] int objectCount() const;

    /// Takes every field of `record`; nothing of its content is checked.
    void take(const SceneRecord& record);
    /// The scene as a record, its security code 0. Texts are cut to the widths of the file.
    [[nodiscard]] SceneRecord toRecord() const;

    friend bool operator==(const Scene&, const Scene&) = default;

  private:
    std::array<ObjectSlot, kSlotCount> slots_;
};

}  // namespace quorvel::store
