/// What a field holds and when it counts: the part of a field's description that records and
/// objects share.
#pragma once

#include <cstdint>
#include <string_view>

namespace quorvel::store {

/// What a field holds, which settles the values it may have. Of a field of text whose use is a
/// number, the text is that number in decimal.
enum class FieldUse : std::uint8_t {
    // Texts alone.
    text,            ///< anything that an author types
    place,           ///< "x/y" in pixels
    placeOrFile,     ///< "x/y"; in old settings a file in resource/gfx
    gfxFile,         ///< file in resource/gfx
    mapIconFile,     ///< the same, `kNoIcon`, or `kRemovedIcon`
    mediaFile,       ///< file in resource/mmedia
    soundtrackFile,  ///< the same, or `kStopSoundtrack`
    logoFile,        ///< a GIF in resource/gfx, or a movie in resource/mmedia
    playerName,      ///< program in the project folder, without ".exe"
    // Numbers.
    check,        ///< 0 or 1
    option,       ///< index of an option, from 1
    optionFrom0,  ///< index of an option, from 0
    scene,        ///< number of a scene, 0 for none
    item,
    location,
    card,
    pointer,      ///< index into the mouse pointers
    channel,      ///< 0 to 15
    flag,         ///< 1 to 255
    comparison,   ///< 0 =, 1 <>, 2 <, 3 >
    value,        ///< any number
    pixels,       ///< a place or a size
    volume,       ///< of a sound, -4000 to 0
    movieVolume,  ///< 0 to 100; more counts as 100
    mediaVolume,  ///< that of a sound or of a movie, by the ending of the file
    pan,          ///< -4000 to 4000
    seconds,      ///< 0 to 65
    // What the files need for themselves.
    objectType,    ///< of a slot
    count,         ///< of records
    version,       ///< of the file set
    securityCode,  ///< 0 off, else 1 to 5000
    byType,        ///< what the type of the object says
    objects,       ///< the slots of a scene
    reserved,      ///< no meaning to the editor
};

/// The text of a soundtrack that is no file: the soundtrack stops.
inline constexpr std::string_view kStopSoundtrack = "(Stop Sndtrk)";
/// The picture of a location that has none.
inline constexpr std::string_view kNoIcon = "(None)";
/// The picture of a location that was removed.
inline constexpr std::string_view kRemovedIcon = "Del";

/// The forms that edit the settings, each with its own slice of the record.
enum class SettingsSlice : std::uint8_t {
    none = 0,
    genSettings = 1,
    edButtons = 2,
    edMousePoint = 3,
    openCredits = 4,
    gameIntro = 5,
};

/// A test of another field of the same record, by its name.
struct FieldTest {
    std::string_view field{};  ///< empty: no test
    int low = 0;
    int high = 0;
    bool inside = false;  ///< the number has to lie within the bounds, else outside
};

/// One of two tests has to hold; without a test it always holds.
struct FieldCondition {
    FieldTest either{};
    FieldTest other{};
};

/// The tests that the lists of fields are written with.
constexpr FieldTest isOn(std::string_view field) {
    return {field, 0, 0, false};
}
constexpr FieldTest isEqual(std::string_view field, int number) {
    return {field, number, number, true};
}
constexpr FieldTest isOther(std::string_view field, int number) {
    return {field, number, number, false};
}
constexpr FieldTest isWithin(std::string_view field, int low, int high) {
    return {field, low, high, true};
}

/// What a row of a list says of its field beyond name and place. Fields of the same row of equal
/// fields are meant where there is one.
struct FieldTraits {
    FieldUse use = FieldUse::value;
    std::string_view file{};   ///< of a volume, pan or channel: the field of the sound or movie
    FieldCondition when{};     ///< the field has an effect only while this holds
    int first = 1;             ///< number of the first element of a run
    SettingsSlice slice = {};  ///< of a field of the settings
};

}  // namespace quorvel::store
