#include "objects/editor_sweep.h"

namespace quorvel::test {
namespace {

using store::FieldUse;
using store::HeaderString;

constexpr std::array kHeaderTexts = {"Name",       "Image",      "Soundtrack", "Sound1File",
                                     "Sound2File", "Sound3File", "EnterMovie", "ExitMovie"};

struct HeaderNumber {
    const char* name;
    FieldUse use;
};
constexpr std::array kHeaderNumbers = {HeaderNumber{"CheckFlagOn", FieldUse::check},
                                       HeaderNumber{"CheckFlagId", FieldUse::flag},
                                       HeaderNumber{"CheckFlagTest", FieldUse::comparison},
                                       HeaderNumber{"CheckFlagValue", FieldUse::value},
                                       HeaderNumber{"CheckFlagTarget", FieldUse::scene},
                                       HeaderNumber{"SoundtrackVolume", FieldUse::volume},
                                       HeaderNumber{"Sound1Volume", FieldUse::volume},
                                       HeaderNumber{"Sound1Pan", FieldUse::pan},
                                       HeaderNumber{"Sound2Volume", FieldUse::volume},
                                       HeaderNumber{"Sound2Pan", FieldUse::pan},
                                       HeaderNumber{"Sound3Volume", FieldUse::volume},
                                       HeaderNumber{"Sound3Pan", FieldUse::pan},
                                       HeaderNumber{"EnterVolume", FieldUse::movieVolume},
                                       HeaderNumber{"ExitVolume", FieldUse::movieVolume},
                                       HeaderNumber{"SetFlagOn", FieldUse::check},
                                       HeaderNumber{"SetFlagId", FieldUse::flag},
                                       HeaderNumber{"SetFlagValue", FieldUse::value},
                                       HeaderNumber{"SetFlagAdd", FieldUse::check}};

store::Scene randomHeader(store::Scene scene, Dice& dice) {
    using Text = const char*;
    scene.header(HeaderString::SceneName) = dice.pick<Text>({"", "Hall", "fifteen letters"});
    // The canvas would tell of a picture that is not there.
    scene.header(HeaderString::SceneImage) = dice.pick<Text>({"", "one.gif"});
    scene.header(HeaderString::SceneSoundtrack) =
        dice.pick<Text>({"", "a.wav", "(Stop Sndtrk)", "odd"});
    for (const auto file : {HeaderString::SceneSound1File, HeaderString::SceneSound2File,
                            HeaderString::SceneSound3File, HeaderString::SceneEnterMovie,
                            HeaderString::SceneExitMovie}) {
        scene.header(file) = dice.text(FieldUse::mediaFile);
    }
    for (std::size_t i = 0; i < kHeaderNumbers.size(); ++i) {
        scene.HeaderInts.at(i) = static_cast<std::int16_t>(dice.number(kHeaderNumbers.at(i).use));
    }
    return scene;
}

/// The fields of the header that have a meaning.
Fields headerFields(const store::Scene& scene) {
    Fields fields;
    for (std::size_t i = 0; i < kHeaderTexts.size(); ++i) {
        fields[kHeaderTexts.at(i)] = scene.HeaderStrings.at(i);
    }
    for (std::size_t i = 0; i < kHeaderNumbers.size(); ++i) {
        fields[kHeaderNumbers.at(i).name] = std::to_string(scene.HeaderInts.at(i));
    }
    return fields;
}

void blankHeader(store::Scene& scene) {
    for (std::size_t i = 0; i < kHeaderTexts.size(); ++i) {
        scene.HeaderStrings.at(i).clear();
    }
    for (std::size_t i = 0; i < kHeaderNumbers.size(); ++i) {
        scene.HeaderInts.at(i) = 0;
    }
}

/// The volume of a movie is put right when the window opens.
Fields opened(Fields fields) {
    for (const char* volume : {"EnterVolume", "ExitVolume"}) {
        if (std::stoi(fields[volume]) > 100) {
            fields[volume] = "100";
        }
    }
    return fields;
}

SweepTable sceneTable() {
    SweepTable table;
    table.add("Text2", {.field = "Name"});
    table.add("Command3", {.field = "Image", .value = "two.gif", .file = Effect::File::gfx});
    table.leave("Text1", "shows the file of Command3");
    table.add("Check2", {.field = "CheckFlagOn"});
    table.flagTest(
        {.flag = "CheckFlagId", .comparison = "CheckFlagTest", .value = "CheckFlagValue"},
        {{"CheckFlagOn", "1"}});
    table.tickedList("tags", "CheckFlagTarget", "CheckFlagOn");
    table.flagSet(
        {.on = "SetFlagOn", .flag = "SetFlagId", .value = "SetFlagValue", .add = "SetFlagAdd"},
        {.on = "Check1", .add = "Check3"});

    table.movie(4, "EnterMovie", "EnterVolume", "e.avi");
    table.movie(5, "ExitMovie", "ExitVolume", "e.avi");
    table.add("MidiFile", {.field = "Soundtrack", .sets = {{"SoundtrackVolume", "0"}}});
    table.add("locatebutton(1)", {.field = "Soundtrack",
                                  .value = "c.mid",
                                  .sets = {{"SoundtrackVolume", "0"}},
                                  .file = Effect::File::mmedia});
    table.add("Hscroll1(0)", {.field = "SoundtrackVolume"});
    table.leave("SV(0)", "shows what Hscroll1 is set to");
    table.leave("PlayMidfile", "plays");
    for (int k = 1; k <= 3; ++k) {
        const std::string sound = "Sound" + std::to_string(k);
        table.sound(k, {.file = sound + "File", .volume = sound + "Volume", .pan = sound + "Pan"},
                    "b.wav");
    }

    table.leave("RestoreIt", "makes the window large again");
    return table;
}

}  // namespace

SweptWindow sweptScene(SweepStage& stage, Dice& dice) {
    const store::Scene start = randomHeader(stage.scene(), dice);
    return {
        .open = [&stage](const auto& author) { stage.editScene(author); },
        .fields = [&stage] { return headerFields(stage.scene()); },
        .others = [&stage] { return stage.sceneBytes(blankHeader); },
        .reset = [&stage, start] { stage.scene() = start; },
        .opened = opened,
        .table = sceneTable(),
        .buttons = {.apply = "Command1",
                    .cancel = "Command2",
                    .ok = "Command4",
                    .help = "Command5"},
    };
}

}  // namespace quorvel::test
