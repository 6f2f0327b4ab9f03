// All controls of all property windows of a scene, over records of random content.
#include "objects/editor_sweep.h"

#include <gtest/gtest.h>

namespace quorvel::test {
namespace {

using store::LinkSide;

struct SweptKind {
    const char* name;
    std::function<SweptWindow(SweepStage&, Dice&)> over;
};

// Names the tests.
void PrintTo(const SweptKind& kind, std::ostream* out) {
    *out << kind.name;
}

std::function<SweptWindow(SweepStage&, Dice&)> link(LinkSide side) {
    return [side](SweepStage& stage, Dice& dice) { return sweptLink(stage, dice, side); };
}

const std::vector<SweptKind>& windows() {
    static const std::vector<SweptKind> kinds = {
        {"LinkLeft", link(LinkSide::left)},
        {"LinkUp", link(LinkSide::up)},
        {"LinkRight", link(LinkSide::right)},
        {"LinkDown", link(LinkSide::down)},
        {"HotSpot", sweptHotSpot},
        {"Scene", sweptScene},
    };
    return kinds;
}

constexpr unsigned kRecords = 8;

class EditorCoverage : public SweepStage, public ::testing::WithParamInterface<SweptKind> {};

TEST_P(EditorCoverage, EveryControlIsInTheTableAndIsChangedInSomeRecord) {
    std::set<std::string> changed;
    for (unsigned record = 0; record < kRecords; ++record) {
        Dice dice(record);
        const SweptWindow window = GetParam().over(*this, dice);
        if (record == 0) {
            expectCovered(window);
        }
        for (const Move& move : moves(window)) {
            changed.insert(move.control);
        }
    }
    Dice dice(0);
    const SweptWindow window = GetParam().over(*this, dice);
    for (const auto& [control, effect] : window.table.effects()) {
        EXPECT_TRUE(changed.contains(control)) << control << " is never changed";
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, EditorCoverage, ::testing::ValuesIn(windows()),
                         ::testing::PrintToStringParamName());

using Swept = std::tuple<SweptKind, unsigned>;

std::string nameOf(const ::testing::TestParamInfo<Swept>& swept) {
    const auto& [kind, record] = swept.param;
    return kind.name + std::to_string(record);
}

class EditorSweep : public SweepStage, public ::testing::WithParamInterface<Swept> {};

TEST_P(EditorSweep, EachControlChangesItsFieldAndNoOther) {
    const auto& [kind, record] = GetParam();
    Dice dice(record);
    sweep(kind.over(*this, dice));
}

INSTANTIATE_TEST_SUITE_P(Windows, EditorSweep,
                         ::testing::Combine(::testing::ValuesIn(windows()),
                                            ::testing::Range(0U, kRecords)),
                         nameOf);

}  // namespace
}  // namespace quorvel::test
