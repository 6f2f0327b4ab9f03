// All controls of the HotSpot window over slots of random content.
#include <gtest/gtest.h>

#include "objects/editor_sweep.h"
#include "store/numbers.h"

namespace quorvel::test {
namespace {

using store::FieldUse;
using store::ObjectFieldInfo;
using store::ObjectType;

class HotSpotSweep : public EditorAuthor, public ::testing::WithParamInterface<unsigned> {
  protected:
    HotSpotSweep() {
        open(ProjectBuilder()
                 .scenes(4)
                 .items(3)
                 .gfx("one.gif", stillGif(40, 30))
                 .gfx("two.gif", stillGif(12, 16))
                 .mmedia("a.wav", "a")
                 .mmedia("b.wav", "b")
                 .object(1, 7, 1, 10, 20));
    }

    int pick(std::initializer_list<int> values) {
        std::uniform_int_distribution<std::size_t> at(0, values.size() - 1);
        return *(values.begin() + at(random));
    }
    int randomNumber(FieldUse use) {
        switch (use) {
            case FieldUse::check:
                return pick({0, 1});
            case FieldUse::option:
                return pick({0, 1, 2, 9, -3});
            case FieldUse::scene:
            case FieldUse::item:
                return pick({0, 1, 2, 3, 500, -1});
            case FieldUse::pointer:
                return pick({0, 5, 10, 11, -1});
            case FieldUse::channel:
                return pick({0, 7, 15, 16, -1, 999});
            case FieldUse::comparison:
                return pick({0, 3, 4, -1});
            case FieldUse::flag:
                return pick({1, 100, 255, 0, 256, -5});
            case FieldUse::volume:
                return pick({0, -1, -4000, -4001, 500});
            case FieldUse::pan:
                return pick({0, -4000, 4000, 9000, -32768});
            default:
                return pick({0, 1, -1, 32767, -32768});
        }
    }
    std::string randomText(const ObjectFieldInfo& field) {
        switch (field.use) {
            case FieldUse::gfxFile:
                return std::array<std::string, 4>{"", "one.gif", "gone.gif", "odd name"}[at(4)];
            case FieldUse::mediaFile:
                return std::array<std::string, 4>{"", "a.wav", "gone.WAV", "odd.avi"}[at(4)];
            default:
                return field.number == store::HotSpot::Group.number
                           ? std::array<std::string, 5>{"", "0", "10", "77", "x"}[at(5)]
                           : std::array<std::string, 3>{"5", "40", "32767"}[at(3)];
        }
    }
    std::size_t at(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    }

    store::ObjectSlot randomSlot() {
        store::ObjectSlot made = slot(7);
        for (const ObjectFieldInfo& field : store::objectFields(ObjectType::hotSpot)) {
            if (field.isText) {
                made.SlotStr(field.number) = randomText(field);
            } else {
                made.SlotInt(field.number) = static_cast<std::int16_t>(randomNumber(field.use));
            }
        }
        // Fields without a meaning.
        for (int k = 30; k <= 36; ++k) {
            made.SlotInt(k) = static_cast<std::int16_t>(randomNumber(FieldUse::value));
        }
        made.SlotStr(8) = "eight";
        return made;
    }

    static Fields fieldsOf(const store::ObjectSlot& slot) {
        Fields fields;
        for (const ObjectFieldInfo& field : store::objectFields(ObjectType::hotSpot)) {
            fields[std::string(field.name)] = field.isText
                                                  ? slot.SlotStr(field.number)
                                                  : std::to_string(slot.SlotInt(field.number));
        }
        for (int k : {1, 2, 3, 30, 31, 32, 33, 34, 35, 36}) {
            fields["SlotInt" + std::to_string(k)] = std::to_string(slot.SlotInt(k));
        }
        fields["SlotStr8"] = slot.SlotStr(8);
        fields["SlotStr9"] = slot.SlotStr(9);
        return fields;
    }

    /// What every save writes otherwise than it was: a 0 for the first option, what is no channel
    /// or no group as the first, and the size of the picture.
    Fields settled(Fields fields) {
        for (const char* option : {"Style", "TargetKind", "Visibility"}) {
            if (fields[option] == "0") {
                fields[option] = "1";
            }
        }
        for (const char* channel : {"SoundChannel", "SuccessChannel", "FailureChannel"}) {
            const int number = std::stoi(fields[channel]);
            fields[channel] = number < 0 || number > 15 ? "0" : fields[channel];
        }
        const int group = store::valInt(fields["Group"]);
        fields["Group"] = group > 10 ? "0" : std::to_string(group);
        if (fields["QuickSpot"] == "0") {
            const bool small = fields["Image"] == "one.gif";
            fields["QuickHeight"] = small ? "30" : "64";
            fields["QuickWidth"] = small ? "40" : "64";
        }
        return fields;
    }

    static std::map<QString, std::vector<std::string>> table() {
        std::map<QString, std::vector<std::string>> rows;
        const auto add = [&rows](const char* control, std::vector<std::string> fields) {
            rows[QString::fromLatin1(control)] = std::move(fields);
        };
        add("Command7", {"Image", "QuickSpot", "QuickHeight", "QuickWidth"});
        add("Option4(0)", {"QuickSpot", "QuickHeight", "QuickWidth"});
        add("Option4(1)", {"QuickSpot"});
        add("Text2(0)", {"QuickHeight"});
        add("Text2(1)", {"QuickWidth"});
        for (const char* option : {"Option1(1)", "Option1(2)", "Option1(3)"}) {
            add(option, {"Style"});
        }
        add("Check5", {"OncePerView"});
        add("Option2(1)", {"TargetKind"});
        add("Option2(2)", {"TargetKind"});
        add("LnkScn", {"TargetScene", "TargetKind"});
        add("Combo1(1)", {"Pointer"});
        add("Combo3", {"Group"});
        add("Option3(1)", {"Visibility"});
        add("Option3(2)", {"Visibility"});
        add("FlagID(0)", {"VisibleFlag", "Visibility"});
        add("Combo2", {"VisibleTest", "Visibility"});
        add("Text3(0)", {"VisibleValue", "Visibility"});
        add("Check3", {"SetFlagOn"});
        add("FlagID(1)", {"SetFlag", "SetFlagOn"});
        add("Text3(1)", {"SetValue", "SetFlagOn"});
        add("Check4", {"SetAdd", "SetFlagOn"});
        add("Check1", {"NeedsItem"});
        add("Combo", {"NeededItem", "NeedsItem"});
        add("Check2", {"KeepsItem", "NeedsItem"});
        int k = 0;
        for (const std::string sound : {"Sound", "Success", "Failure"}) {
            ++k;
            const std::string file = sound == "Sound" ? sound : sound + "Sound";
            const auto element = [k](const char* name) {
                return QStringLiteral("%1(%2)").arg(QString::fromLatin1(name)).arg(k);
            };
            rows[element("SE")] = {file, sound + "Volume", sound + "Pan"};
            rows[element("LSE")] = {file, sound + "Volume"};
            if (k == 3) {
                rows[element("LSE")].emplace_back("NeedsItem");
            }
            rows[element("Hscroll1")] = {sound + "Volume"};
            for (const char* name : {"Hscroll2", "HLeft", "Centr", "HRight"}) {
                rows[element(name)] = {sound + "Pan"};
            }
            rows[element("sChannelNum")] = {sound + "Channel"};
        }
        return rows;
    }

    std::mt19937 random{GetParam()};
};

TEST_P(HotSpotSweep, EachControlChangesItsFieldAndNoOther) {
    const store::ObjectSlot start = randomSlot();
    // Whatever is asked is answered with No.
    for (int i = 0; i < 20; ++i) {
        boxes.answer(forms::Answer::no);
    }
    QStringList still = {QStringLiteral("Text1"),      QStringLiteral("Command1"),
                         QStringLiteral("Command3"),   QStringLiteral("Command5"),
                         QStringLiteral("Command6"),   QStringLiteral("Playwav(1)"),
                         QStringLiteral("Playwav(2)"), QStringLiteral("Playwav(3)")};
    // What would set a pan to what it is.
    for (int k = 1; k <= 3; ++k) {
        const int pan = start.SlotInt(std::array{7, 9, 14}.at(static_cast<std::size_t>(k - 1)));
        still << QStringLiteral("%1(%2)")
                     .arg(pan < 0 ? QStringLiteral("HLeft")
                                  : (pan == 0 ? QStringLiteral("Centr") : QStringLiteral("HRight")))
                     .arg(k);
    }
    const SweptWindow window{
        .open =
            [this](const std::function<void(const Hand&)>& author) {
                editObject(7, QStringLiteral("linkPropf"), [&](const Hand& hand) {
                    QObject::connect(
                        hand.window().findChild<QPushButton*>(QStringLiteral("Command7")),
                        &QPushButton::pressed,
                        [this] { dialogs.choice = text(files.gfx("two.gif")); });
                    for (int k = 1; k <= 3; ++k) {
                        QObject::connect(
                            hand.window().findChild<QPushButton*>(QStringLiteral("LSE(%1)").arg(k)),
                            &QPushButton::pressed,
                            [this] { dialogs.choice = text(files.mmedia("b.wav")); });
                    }
                    author(hand);
                });
            },
        .fields = [this] { return fieldsOf(slot(7)); },
        .reset =
            [this, start] {
                slot(7) = start;
                main().view().ShowObject(7);
            },
        .settled = [this](const Fields& fields) { return settled(fields); },
        .table = table(),
        .ok = "Command6",
        .cancel = "Command3",
    };
    sweep(window, still);
}

INSTANTIATE_TEST_SUITE_P(Slots, HotSpotSweep, ::testing::Range(1U, 9U));

}  // namespace
}  // namespace quorvel::test
