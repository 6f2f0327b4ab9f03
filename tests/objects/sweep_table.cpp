#include "objects/sweep_table.h"

#include <algorithm>
#include <utility>

namespace quorvel::test {
namespace {

struct Range {
    int lowest;
    int highest;
};
constexpr Range kHundred{0, 100};

/// What a slider can show of the volume of `file`.
Range volumeRange(const std::string& file) {
    std::string ending = file.size() < 3 ? file : file.substr(file.size() - 3);
    std::ranges::transform(ending, ending.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return file.empty() || ending == "wav" ? Range{-4000, 0} : kHundred;
}

std::string nearest(const std::string& value, Range range) {
    return std::to_string(std::clamp(std::stoi(value), range.lowest, range.highest));
}

}  // namespace

std::string element(const std::string& array, int index) {
    return array + "(" + std::to_string(index) + ")";
}

void SweepTable::enter(const std::string& control) {
    if (effects_.contains(control) || left_.contains(control)) {
        faults_.push_back(control + " is named twice");
    }
}

void SweepTable::add(const std::string& control, Effect effect) {
    enter(control);
    effects_[control] = std::move(effect);
}

void SweepTable::leave(const std::string& control, const std::string& reason) {
    enter(control);
    left_[control] = reason;
}

void SweepTable::options(const std::string& array, int first, int last, const std::string& field) {
    for (int index = first; index <= last; ++index) {
        add(element(array, index), {.field = field, .value = std::to_string(index)});
    }
}

void SweepTable::flagTest(const TestFields& fields, const Fields& ticks, const TestBoxes& boxes) {
    add(boxes.flag, {.field = fields.flag, .sets = ticks});
    add(boxes.comparison, {.field = fields.comparison, .sets = ticks});
    add(boxes.value, {.field = fields.value, .sets = ticks});
}

void SweepTable::flagSet(const SetFields& fields, const SetBoxes& boxes) {
    const Fields ticks = {{fields.on, "1"}};
    add(boxes.on, {.field = fields.on});
    add(boxes.flag, {.field = fields.flag, .sets = ticks});
    add(boxes.value, {.field = fields.value, .sets = ticks});
    add(boxes.add, {.field = fields.add, .sets = ticks});
}

void SweepTable::sound(int k, const SoundFields& fields, const std::string& chosen,
                       const Fields& ticks) {
    add(element("SE", k), {.field = fields.file,
                           .value = "",
                           .follows = [fields](const Fields& before, Fields& then) {
                               if (!before.at(fields.file).empty()) {
                                   then[fields.volume] = "0";
                                   then[fields.pan] = "0";
                               }
                           }});
    add(element("LSE", k), {.field = fields.file,
                            .value = chosen,
                            .sets = ticks,
                            .follows =
                                [fields](const Fields& before, Fields& then) {
                                    const auto from = volumeRange(before.at(fields.file));
                                    then[fields.volume] =
                                        nearest(nearest(before.at(fields.volume), from),
                                                volumeRange(then.at(fields.file)));
                                },
                            .file = Effect::File::mmedia});
    add(element("Hscroll1", k), {.field = fields.volume});
    add(element("Hscroll2", k), {.field = fields.pan});
    add(element("HLeft", k), {.field = fields.pan, .value = "-4000"});
    add(element("Centr", k), {.field = fields.pan, .value = "0"});
    add(element("HRight", k), {.field = fields.pan, .value = "4000"});
    if (!fields.channel.empty()) {
        add(element("sChannelNum", k), {.field = fields.channel});
    }
    leave(element("SV", k), "shows what Hscroll1 is set to");
    leave(element("SP", k), "shows what Hscroll2 is set to");
    leave(element("Playwav", k), "plays");
}

void SweepTable::movie(int k, const std::string& file, const std::string& volume,
                       const std::string& chosen) {
    const Follows inRange = [file, volume](const Fields& before, Fields& then) {
        if (before.at(file) != then.at(file)) {
            then[volume] = nearest(before.at(volume), kHundred);
        }
    };
    add(element("MEN", k), {.field = file, .value = "", .follows = inRange});
    add(element("LME", k),
        {.field = file, .value = chosen, .follows = inRange, .file = Effect::File::mmedia});
    add(element("Hscroll1", k), {.field = volume});
    leave(element("SV", k), "shows what Hscroll1 is set to");
    leave(element("Playmov", k), "plays");
}

void SweepTable::tickedList(const std::string& list, const std::string& field,
                            const std::string& check) {
    add(list, {.field = field, .follows = [field, check](const Fields&, Fields& then) {
                   then[check] = then.at(field) == "0" ? "0" : "1";
               }});
}

}  // namespace quorvel::test
