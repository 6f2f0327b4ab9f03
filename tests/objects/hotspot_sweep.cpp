#include "objects/editor_sweep.h"
#include "store/numbers.h"

namespace quorvel::test {
namespace {

constexpr store::ObjectType kType = store::ObjectType::hotSpot;
constexpr int kSlot = SweepStage::kSlot;

SweepTable hotSpotTable() {
    SweepTable table;
    table.add("Command7", {.field = "Image",
                           .value = "two.gif",
                           .sets = {{"QuickSpot", "0"}},
                           .file = Effect::File::gfx});
    table.leave("Text1", "shows the file of Command7");
    table.options("Option4", 0, 1, "QuickSpot");
    table.add("Text2(0)", {.field = "QuickHeight"});
    table.add("Text2(1)", {.field = "QuickWidth"});
    table.options("Option1", 1, 3, "Style");
    table.options("Option3", 1, 2, "Visibility");
    table.flagTest({.flag = "VisibleFlag", .comparison = "VisibleTest", .value = "VisibleValue"},
                   {{"Visibility", "2"}});

    table.options("Option2", 1, 2, "TargetKind");
    table.add("LnkScn", {.field = "TargetScene", .sets = {{"TargetKind", "1"}}});
    table.add("Combo1(1)", {.field = "Pointer"});
    table.add("Check5", {.field = "OncePerView"});
    table.add("Combo3", {.field = "Group"});
    table.flagSet({.on = "SetFlagOn", .flag = "SetFlag", .value = "SetValue", .add = "SetAdd"});

    table.sound(
        1, {.file = "Sound", .volume = "SoundVolume", .pan = "SoundPan", .channel = "SoundChannel"},
        "b.wav");
    table.sound(2,
                {.file = "SuccessSound",
                 .volume = "SuccessVolume",
                 .pan = "SuccessPan",
                 .channel = "SuccessChannel"},
                "b.wav");
    table.add("Check1", {.field = "NeedsItem"});
    table.tickedList("Combo", "NeededItem", "NeedsItem");
    table.add("Check2", {.field = "KeepsItem", .sets = {{"NeedsItem", "1"}}});
    table.sound(3,
                {.file = "FailureSound",
                 .volume = "FailureVolume",
                 .pan = "FailurePan",
                 .channel = "FailureChannel"},
                "b.wav", {{"NeedsItem", "1"}});

    return table;
}

/// A picture gives its HotSpot its size; an empty group is the first, what is no group stays.
Fields settled(Fields fields) {
    fields = settledSlot(std::move(fields), kType);
    const int group = store::valInt(fields["Group"]);
    if (group >= 0 && group <= 10) {
        fields["Group"] = std::to_string(group);
    }
    if (fields["QuickSpot"] == "0") {
        const std::string image = fields["Image"];
        fields["QuickHeight"] = image == "one.gif" ? "30" : image == "two.gif" ? "16" : "64";
        fields["QuickWidth"] = image == "one.gif" ? "40" : image == "two.gif" ? "12" : "64";
    }
    return fields;
}

}  // namespace

SweptWindow sweptHotSpot(SweepStage& stage, Dice& dice) {
    store::ObjectSlot start = randomSlot(kType, dice);
    // Smaller ones are refused.
    for (const auto side : {store::HotSpot::QuickHeight, store::HotSpot::QuickWidth}) {
        store::word(start, side) = dice.pick({"5", "40", "32767"});
    }
    // Whether the image of a QuickSpot is to go.
    constexpr int kQuestions = 20;
    for (int i = 0; i < kQuestions; ++i) {
        stage.boxes.answer(forms::Answer::no);
    }
    return {
        .open =
            [&stage](const auto& author) {
                stage.editObject(kSlot, QStringLiteral("linkPropf"), author);
            },
        .fields = [&stage] { return slotFields(stage.slot(kSlot), kType); },
        .others =
            [&stage] {
                return stage.sceneBytes([](store::Scene& scene) { scene.slot(kSlot) = {}; });
            },
        .reset =
            [&stage, start] {
                stage.slot(kSlot) = start;
                stage.main().view().ShowObject(kSlot);
            },
        .settled = settled,
        .table = hotSpotTable(),
        .buttons = {.apply = "Command1",
                    .cancel = "Command3",
                    .ok = "Command6",
                    .help = "Command5"},
    };
}

}  // namespace quorvel::test
