#include "objects/editor_sweep.h"

namespace quorvel::test {
namespace {

using store::FieldUse;
using store::LinkSide;

std::string nameOf(LinkSide side) {
    return std::array{"Left", "Up", "Right", "Down"}.at(static_cast<std::size_t>(side) - 1);
}

/// The pointer that a link takes that leads somewhere and has none yet.
std::string ownPointer(LinkSide side) {
    return std::array{"3", "1", "4", "2"}.at(static_cast<std::size_t>(side) - 1);
}

Fields linkFields(store::Scene& scene) {
    Fields fields;
    for (const LinkSide side : store::kLinkSides) {
        fields[nameOf(side) + "Pointer"] = std::to_string(scene.link(side).pointer);
        fields[nameOf(side) + "Target"] = std::to_string(scene.link(side).target);
    }
    return fields;
}

SweepTable linkTable(LinkSide side) {
    SweepTable table;
    const std::string pointer = nameOf(side) + "Pointer";
    const std::string target = nameOf(side) + "Target";
    table.add("Combo1", {.field = pointer});
    table.add("combo2", {.field = target, .follows = [=](const Fields& before, Fields& then) {
                             if (then.at(target) == "0") {
                                 then[pointer] = "0";
                             } else if (before.at(pointer) == "0") {
                                 then[pointer] = ownPointer(side);
                             }
                         }});
    table.leave("TabStrip1", "turns to another link");
    return table;
}

}  // namespace

SweptWindow sweptLink(SweepStage& stage, Dice& dice, LinkSide side) {
    store::Scene start = stage.scene();
    for (const LinkSide each : store::kLinkSides) {
        start.link(each).pointer = static_cast<std::int16_t>(dice.number(FieldUse::pointer));
        start.link(each).target =
            static_cast<std::int16_t>(dice.pick({0, 1, SweepStage::kScenes, 500, -1}));
    }
    // The window may have been opened on another link.
    const int opened = dice.pick({1, 2, 3, 4});
    return {
        .open =
            [&stage, side, opened](const auto& author) {
                stage.editLink(opened, [&](const Hand& hand) {
                    hand.get<QTabBar>("TabStrip1").setCurrentIndex(static_cast<int>(side) - 1);
                    author(hand);
                });
            },
        .fields = [&stage] { return linkFields(stage.scene()); },
        .others =
            [&stage] {
                return stage.sceneBytes([](store::Scene& scene) {
                    for (const LinkSide each : store::kLinkSides) {
                        scene.link(each).pointer = scene.link(each).target = 0;
                    }
                });
            },
        .reset = [&stage, start] { stage.scene() = start; },
        .table = linkTable(side),
        .buttons = {.ok = "Command1", .help = "Command3"},
    };
}

}  // namespace quorvel::test
