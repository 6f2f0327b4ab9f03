// All controls of the window of a scene over headers of random content.
#include <gtest/gtest.h>

#include "objects/editor_sweep.h"

namespace quorvel::test {
namespace {

using store::HeaderInt;
using store::HeaderString;

constexpr std::array kTextNames = {"Name",       "Image",      "Soundtrack", "Sound1File",
                                   "Sound2File", "Sound3File", "EnterMovie", "ExitMovie"};
constexpr std::array kNumberNames = {
    "CheckFlagOn",      "CheckFlagId",  "CheckFlagTest", "CheckFlagValue", "CheckFlagTarget",
    "SoundtrackVolume", "Sound1Volume", "Sound1Pan",     "Sound2Volume",   "Sound2Pan",
    "Sound3Volume",     "Sound3Pan",    "EnterVolume",   "ExitVolume",     "SetFlagOn",
    "SetFlagId",        "SetFlagValue", "SetFlagAdd"};

class SceneSweep : public EditorAuthor, public ::testing::WithParamInterface<unsigned> {
  protected:
    SceneSweep() {
        open(ProjectBuilder()
                 .scenes(4)
                 .gfx("one.gif", stillGif(40, 30))
                 .gfx("two.gif", stillGif(12, 16))
                 .mmedia("a.wav", "a")
                 .mmedia("b.wav", "b")
                 .mmedia("c.mid", "c")
                 .mmedia("d.avi", "d")
                 .mmedia("e.avi", "e"));
    }
    template <class Value>
    Value pick(std::initializer_list<Value> values) {
        std::uniform_int_distribution<std::size_t> at(0, values.size() - 1);
        return *(values.begin() + at(random));
    }

    store::Scene randomScene() {
        store::Scene made = scene();
        using T = const char*;
        made.header(HeaderString::SceneName) = pick<T>({"", "Hall", "fifteen letters"});
        made.header(HeaderString::SceneImage) = pick<T>({"", "one.gif"});
        made.header(HeaderString::SceneSoundtrack) = pick<T>({"", "a.wav", "(Stop Sndtrk)", "odd"});
        for (const auto field : {HeaderString::SceneSound1File, HeaderString::SceneSound2File,
                                 HeaderString::SceneSound3File}) {
            made.header(field) = pick<T>({"", "a.wav", "gone.wav", "d.avi"});
        }
        made.header(HeaderString::SceneEnterMovie) = pick<T>({"", "d.avi"});
        made.header(HeaderString::SceneExitMovie) = pick<T>({"", "gone.avi"});
        for (std::size_t i = 0; i < kNumberNames.size(); ++i) {
            const std::string name = kNumberNames.at(i);
            int value = 0;
            if (name.ends_with("On") || name.ends_with("Add")) {
                value = pick({0, 1});
            } else if (name.ends_with("Id")) {
                value = pick({1, 100, 255, 0, 256, -5});
            } else if (name.ends_with("Test") || name.ends_with("Target")) {
                value = pick({0, 1, 3, 77, -1});
            } else if (name.ends_with("Value")) {
                value = pick({0, 1, -1, 32767, -32768});
            } else if (name.ends_with("Pan")) {
                value = pick({0, -4000, 4000, 9000});
            } else {
                value = pick({0, -1, -4000, 500, 60});
            }
            made.HeaderInts.at(i) = static_cast<std::int16_t>(value);
        }
        return made;
    }

    static Fields fieldsOf(const store::Scene& scene) {
        Fields fields;
        for (std::size_t i = 0; i < scene.HeaderStrings.size(); ++i) {
            const std::string name =
                i < kTextNames.size() ? kTextNames.at(i) : "text" + std::to_string(i);
            fields[name] = scene.HeaderStrings.at(i);
        }
        for (std::size_t i = 0; i < scene.HeaderInts.size(); ++i) {
            const std::string name =
                i < kNumberNames.size() ? kNumberNames.at(i) : "number" + std::to_string(i);
            fields[name] = std::to_string(scene.HeaderInts.at(i));
        }
        return fields;
    }

    static std::map<QString, std::vector<std::string>> table() {
        std::map<QString, std::vector<std::string>> rows;
        const auto add = [&rows](const char* control, std::vector<std::string> fields) {
            rows[QString::fromLatin1(control)] = std::move(fields);
        };
        add("Text2", {"Name"});
        add("Command3", {"Image"});
        add("Check2", {"CheckFlagOn"});
        add("FlagID(0)", {"CheckFlagId", "CheckFlagOn"});
        add("Combo2", {"CheckFlagTest", "CheckFlagOn"});
        add("Text3(0)", {"CheckFlagValue", "CheckFlagOn"});
        add("tags", {"CheckFlagTarget", "CheckFlagOn"});
        add("Check1", {"SetFlagOn"});
        add("FlagID(1)", {"SetFlagId", "SetFlagOn"});
        add("Text3(1)", {"SetFlagValue", "SetFlagOn"});
        add("Check3", {"SetFlagAdd", "SetFlagOn"});
        add("MEN(4)", {"EnterMovie", "EnterVolume"});
        add("LME(4)", {"EnterMovie", "EnterVolume"});
        add("Hscroll1(4)", {"EnterVolume"});
        add("MEN(5)", {"ExitMovie", "ExitVolume"});
        add("LME(5)", {"ExitMovie", "ExitVolume"});
        add("Hscroll1(5)", {"ExitVolume"});
        add("MidiFile", {"Soundtrack", "SoundtrackVolume"});
        add("locatebutton(1)", {"Soundtrack", "SoundtrackVolume"});
        add("Hscroll1(0)", {"SoundtrackVolume"});
        for (int k = 1; k <= 3; ++k) {
            const std::string sound = "Sound" + std::to_string(k);
            const auto element = [k](const char* name) {
                return QStringLiteral("%1(%2)").arg(QString::fromLatin1(name)).arg(k);
            };
            rows[element("SE")] = {sound + "File", sound + "Volume", sound + "Pan"};
            rows[element("LSE")] = {sound + "File", sound + "Volume"};
            rows[element("Hscroll1")] = {sound + "Volume"};
            for (const char* name : {"Hscroll2", "HLeft", "Centr", "HRight"}) {
                rows[element(name)] = {sound + "Pan"};
            }
        }
        return rows;
    }

    void answerDialogs(const Hand& hand) {
        const auto answer = [&](const char* button, const std::filesystem::path& file) {
            QObject::connect(&hand.button(button), &QPushButton::pressed,
                             [this, file] { dialogs.choice = text(file); });
        };
        answer("Command3", files.gfx("two.gif"));
        answer("LME(4)", files.mmedia("e.avi"));
        answer("LME(5)", files.mmedia("e.avi"));
        answer("locatebutton(1)", files.mmedia("c.mid"));
        for (const char* button : {"LSE(1)", "LSE(2)", "LSE(3)"}) {
            answer(button, files.mmedia("b.wav"));
        }
    }

    std::mt19937 random{GetParam()};
};

TEST_P(SceneSweep, EachControlChangesItsFieldAndNoOther) {
    store::Scene start = randomScene();
    // The window itself puts a movie's volume to 100 when it opens: see its own test.
    for (const HeaderInt field :
         {HeaderInt::SceneEnterMovieVolume, HeaderInt::SceneExitMovieVolume}) {
        start.header(field) = std::min<std::int16_t>(start.header(field), 100);
    }
    QStringList still;
    for (const char* name :
         {"Text1", "Command1", "Command2", "Command4", "Command5", "RestoreIt", "PlayMidfile",
          "Playmov(4)", "Playmov(5)", "Playwav(1)", "Playwav(2)", "Playwav(3)"}) {
        still << QString::fromLatin1(name);
    }
    // What would set a pan to what it is.
    for (int k = 1; k <= 3; ++k) {
        const int pan = start.HeaderInts.at(static_cast<std::size_t>(5 + 2 * k));
        still << QStringLiteral("%1(%2)")
                     .arg(pan < 0 ? QStringLiteral("HLeft")
                                  : (pan == 0 ? QStringLiteral("Centr") : QStringLiteral("HRight")))
                     .arg(k);
    }
    const SweptWindow window{
        .open =
            [this](const std::function<void(const Hand&)>& author) {
                editScene([&](const Hand& hand) {
                    answerDialogs(hand);
                    author(hand);
                });
            },
        .fields = [this] { return fieldsOf(scene()); },
        .reset = [this, start] { scene() = start; },
        .settled = [](const Fields& fields) { return fields; },
        .table = table(),
        .ok = "Command4",
        .cancel = "Command2",
    };
    sweep(window, still);
}

INSTANTIATE_TEST_SUITE_P(Headers, SceneSweep, ::testing::Range(1U, 7U));

}  // namespace
}  // namespace quorvel::test
