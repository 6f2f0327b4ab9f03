/// What the numbered fields of an object mean, by type. Only fields that the sample game sets are
/// listed.
#pragma once

namespace quorvel::sample {

enum class ObjectType {
    ambient,
    hotSpot,
    goodie,
    switcher,
    reactor,
    responder,
    delay,
    multiTrigger,
    conversation,
    flagConjunction,
};

/// Comparisons of a flag test.
enum class Compare { equal, notEqual, less, greater };

namespace Ambient {
enum Int { style = 4, volume = 6, pan = 7, visibility = 8, test = 9, setOn = 12, set = 13 };
enum Str { image = 1, sound = 2 };
enum Style { looping = 1, pingPong = 2, oneShot = 3 };
}  // namespace Ambient

namespace HotSpot {
enum Int {
    pointer = 4,
    animation = 5,
    soundVolume = 6,
    needsItem = 10,
    item = 11,
    keepsItem = 12,
    linkKind = 15,
    scene = 16,
    visibility = 17,
    test = 18,
    setOn = 21,
    set = 22,
    once = 25,
    style = 29,
};
enum Str { image = 1, sound = 2, success = 3, failure = 4, height = 5, width = 6, group = 7 };
enum LinkKind { toScene = 1, toMap = 2 };
enum Style { imageSpot = 0, quickSpot = 1 };
}  // namespace HotSpot

namespace Goodie {
enum Int {
    style = 4,
    item = 9,
    needsItem = 10,
    requiredItem = 11,
    keepsItem = 12,
    visibility = 15,
    test = 16,
    setOn = 19,
    set = 20,
};
enum Str { image = 1, sound = 2, success = 3, failure = 4 };
}  // namespace Goodie

namespace Switcher {
enum Int { flag = 4, valueA = 5, valueB = 8, visibility = 16, test = 17 };
enum Str { image = 1, soundA = 2, soundB = 3, failure = 4 };
}  // namespace Switcher

namespace Reactor {
enum Int {
    style = 4,
    volume = 6,
    pan = 7,
    visibility = 8,
    test = 9,
    setOn = 12,
    set = 13,
    once = 18
};
enum Str { image = 1, movie = 2, sound = 3 };
enum Style { loop = 1, pingPong = 2, onClick = 5 };
}  // namespace Reactor

namespace Responder {
enum Int {
    activation = 4,
    test = 5,
    onlyHere = 8,
    trackOn = 9,
    playOn = 11,
    jumpOn = 14,
    jumpTo = 15,
    setOn = 16,
    set = 17,
    mapOn = 20,
    location = 21,
    itemOn = 22,
    item = 23,
};
enum Str { triggerWav = 1, track = 2, media = 3 };
}  // namespace Responder

namespace Delay {
enum Int { onlyHere = 4, test = 5, seconds = 8, set = 9, waitPointer = 12 };
}

namespace MultiTrigger {
/// Trigger t (0 to 2) begins at `first` + 8 t: test, then these offsets.
enum Int { onlyHere = 4, first = 5, setOn = 3, set = 4, scene = 7, each = 8 };
}  // namespace MultiTrigger

namespace Conversation {
enum Int { card = 4, visibility = 5, test = 6, corner = 9, onlyHere = 10, exclusive = 11 };
enum Corner { upperLeft = 1, lowerLeft = 2, upperRight = 3, lowerRight = 4 };
}  // namespace Conversation

namespace FlagConjunction {
/// Condition c (0 to 5) begins at `first` + 4 c: selected, then its test.
enum Int { onlyHere = 4, first = 5, each = 4 };
enum Str { flag = 1, value = 2, add = 3 };
}  // namespace FlagConjunction

/// "Always visible" and "Visible when:".
enum Visibility { always = 1, when = 2 };

/// Mouse pointers over links and hot spots.
enum Pointer { up = 1, down = 2, left = 3, right = 4, exitDoor = 9, eye = 10 };

}  // namespace quorvel::sample
