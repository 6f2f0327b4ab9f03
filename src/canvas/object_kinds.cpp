#include "canvas/object_kinds.h"

namespace quorvel::canvas {
namespace {

using forms::DisplayMode;
using store::ObjectType;

/// Ambient, HotSpot and Goodie count their styles alike.
DisplayMode modeOfStyle(std::int16_t style) {
    switch (style) {
        case 2:
            return DisplayMode::pingPong;
        case 3:
            return DisplayMode::once;
        default:
            return DisplayMode::loop;
    }
}

DisplayMode modeOfReactor(std::int16_t style) {
    switch (style) {
        case 2:
        case 4:
            return DisplayMode::pingPong;
        case 5:
            return DisplayMode::once;
        default:
            return DisplayMode::loop;
    }
}

}  // namespace

QString tagOf(ObjectType type) {
    const std::string_view name = store::typeName(type);
    return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

QString symbolOf(ObjectType type) {
    switch (type) {
        case ObjectType::responder:
            return QStringLiteral("responder");
        case ObjectType::delay:
            return QStringLiteral("delay");
        case ObjectType::multiTrigger:
            return QStringLiteral("multi-trigger");
        case ObjectType::conversation:
            return QStringLiteral("conversation");
        case ObjectType::flagConjunction:
            return QStringLiteral("flag-conjunction");
        default:
            return store::hasPicture(type) ? QStringLiteral("new-object")
                                           : QStringLiteral("unknown-object");
    }
}

DisplayMode displayModeOf(const store::ObjectSlot& slot) {
    switch (store::typeOf(slot)) {
        case ObjectType::ambient:
            return modeOfStyle(store::number(slot, store::Ambient::Style));
        case ObjectType::goodie:
            return modeOfStyle(store::number(slot, store::Goodie::Style));
        case ObjectType::hotSpot:
            return modeOfStyle(store::number(slot, store::HotSpot::Style));
        case ObjectType::reactor:
            return modeOfReactor(store::number(slot, store::Reactor::Style));
        default:
            // A Switch has two positions and no style.
            return DisplayMode::loop;
    }
}

}  // namespace quorvel::canvas
