#include "canvas/object_kinds.h"

namespace quorvel::canvas {
namespace {

using forms::DisplayMode;

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

bool isQuickSpot(const store::ObjectSlot& slot) {
    return typeOf(slot) == ObjectType::hotSpot &&
           slot.SlotInt(hot_spot::kStyleField) != hot_spot::kImageSpot;
}

QString tagOf(ObjectType type) {
    switch (type) {
        case ObjectType::free:
            return {};
        case ObjectType::ambient:
            return QStringLiteral("Ambient");
        case ObjectType::hotSpot:
            return QStringLiteral("HotSpot");
        case ObjectType::goodie:
            return QStringLiteral("Goodie");
        case ObjectType::switchObject:
            return QStringLiteral("Switch");
        case ObjectType::reactor:
            return QStringLiteral("Reactor");
        case ObjectType::responder:
            return QStringLiteral("Responder");
        case ObjectType::delay:
            return QStringLiteral("Delay");
        case ObjectType::multiTrigger:
            return QStringLiteral("Multi-Trigger");
        case ObjectType::conversation:
            return QStringLiteral("Conversation");
        case ObjectType::flagConjunction:
            return QStringLiteral("Flag Conjunction");
    }
    return QStringLiteral(">>> Unknown <<<");
}

bool hasPicture(ObjectType type) {
    return type >= ObjectType::ambient && type <= ObjectType::reactor;
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
            return hasPicture(type) ? QStringLiteral("new-object")
                                    : QStringLiteral("unknown-object");
    }
}

DisplayMode displayModeOf(const store::ObjectSlot& slot) {
    switch (typeOf(slot)) {
        case ObjectType::ambient:
        case ObjectType::goodie:
            return modeOfStyle(slot.SlotInt(4));
        case ObjectType::hotSpot:
            return modeOfStyle(slot.SlotInt(5));
        case ObjectType::reactor:
            return modeOfReactor(slot.SlotInt(4));
        default:
            // The number at this place in a Switch is a flag, not a style.
            return DisplayMode::loop;
    }
}

}  // namespace quorvel::canvas
