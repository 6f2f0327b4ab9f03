/// What an author waits for in the store, beside its floor.
///
/// Opening: the largest project there can be, 32,767 scenes in 144 MB, from the project file to the
/// filled lists and the first scene. Its floor reads the same files once in blocks of a megabyte.
/// The files are in the page cache: what is compared is our work, not the disk.
///
///     bench_store                 all benchmarks, then the ratio
///     bench_store --check         the ratio alone; exits with 1 when it is above its limit
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <string_view>
#include <vector>

#include "store/file_handle.h"
#include "store/game_stores.h"
#include "store/scene_store.h"
#include "store/security.h"
#include "support/project_builder.h"
#include "support/temp_folder.h"

namespace {

using namespace quorvel::store;
using quorvel::test::ProjectBuilder;
using quorvel::test::TempFolder;
using quorvel::test::TestProject;

constexpr int kScenes = 32767;
constexpr double kMostTimesTheFloor = 2.0;

ProjectBuilder largeProject() {
    return ProjectBuilder().scenes(kScenes).items(500).locations(20).cards(500);
}

/// The store part of opening: the project file, the security pass, the five readers and the first
/// scene. Returns something of each, so that nothing is left out.
std::size_t openProject(const TestProject& files) {
    Project project;
    files.nameIn(project);
    project.takeProjectRecord(project.openProjectFile());
    const SecurityCheck security = checkSecurity(project);
    project.ReadSceneList();
    project.ReadLocationList();
    project.ReadItemList();
    project.ReadGameInfo();
    project.ReadCueCardList();
    Scene scene;
    LoadScene(project, scene, 1);
    const std::size_t entries = project.lists.scenes.size() + project.lists.items.size() +
                                project.lists.locations.size() + project.lists.cards.size();
    return entries + security.mismatches.size() + static_cast<std::size_t>(scene.objectCount());
}

/// The floor: every byte of the six files once, in blocks of a megabyte.
std::size_t readFiles(const TestProject& files) {
    std::vector<char> block(1U << 20U);
    std::size_t total = 0;
    for (int number = 0; number <= 5; ++number) {
        FileHandle file =
            FileHandle::open(number == 0 ? files.projectPath() : files.storePath(number));
        std::size_t got = 0;
        for (std::uintmax_t at = 0; (got = file.readAt(at, block)) > 0; at += got) {
            total += got;
        }
    }
    return total;
}

template <class Action>
double secondsOf(Action action) {
    const auto begin = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(action());
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

double medianOf(std::vector<double> times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::ranges::nth_element(times, middle);
    return *middle;
}

/// Prints the ratio of opening to its floor; false when it is above the limit. The two take turns,
/// so that a busy machine slows both.
bool compareOpenWithFloor(const TestProject& files) {
    constexpr int kRepetitions = 15;
    benchmark::DoNotOptimize(readFiles(files));
    benchmark::DoNotOptimize(openProject(files));
    std::vector<double> opens;
    std::vector<double> floors;
    for (int i = 0; i < kRepetitions; ++i) {
        floors.push_back(secondsOf([&] { return readFiles(files); }));
        opens.push_back(secondsOf([&] { return openProject(files); }));
    }
    const double open = medianOf(opens);
    const double floor = medianOf(floors);
    const double ratio = open / floor;
    std::printf("open %d scenes: %.1f ms, floor %.1f ms (medians of %d)\n", kScenes, open * 1e3,
                floor * 1e3, kRepetitions);
    std::printf("ratio open/floor = %.2f (limit %.2f)\n", ratio, kMostTimesTheFloor);
    return ratio <= kMostTimesTheFloor;
}

/// A small project that is open, for the benchmarks of single records.
struct OpenProject {
    TempFolder folder;
    Project project;
    Scene scene;

    OpenProject() {
        ProjectBuilder builder;
        builder.scenes(100);
        for (int slot = 1; slot <= 20; ++slot) {
            builder.object(1, slot, 0, 10, 10, "picture.gif");
        }
        builder.build(folder.path()).openIn(project);
        LoadScene(project, scene, 1);
    }
};

void loadScene(benchmark::State& state) {
    OpenProject open;
    for ([[maybe_unused]] auto _ : state) {
        LoadScene(open.project, open.scene, 1);
    }
}

/// The floor of loading: the bytes of the record alone.
void loadSceneFloor(benchmark::State& state) {
    OpenProject open;
    FileHandle file = FileHandle::open(open.project.storePath(1));
    std::vector<char> bytes(sizeof(SceneRecord));
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(file.readAt(0, bytes));
    }
}

void saveScene(benchmark::State& state) {
    OpenProject open;
    for ([[maybe_unused]] auto _ : state) {
        SaveScene(open.project, open.scene, 1);
    }
}

/// The floor of saving: the bytes of the record alone.
void saveSceneFloor(benchmark::State& state) {
    OpenProject open;
    FileHandle file = FileHandle::open(open.project.storePath(1));
    const std::vector<char> bytes(sizeof(SceneRecord));
    for ([[maybe_unused]] auto _ : state) {
        file.writeAt(0, bytes);
    }
}

/// A thousand new scenes, as bulk creation appends them.
void appendScenes(benchmark::State& state) {
    constexpr int kNewScenes = 1000;
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        {
            OpenProject open;
            state.ResumeTiming();
            for (int i = 1; i <= kNewScenes; ++i) {
                WriteBlankScene(open.project, 100 + i, "New scene", "picture.bmp");
            }
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * kNewScenes);
}

BENCHMARK(loadScene);
BENCHMARK(loadSceneFloor);
BENCHMARK(saveScene);
BENCHMARK(saveSceneFloor);
BENCHMARK(appendScenes)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    bool check = false;
    std::vector<char*> rest;
    for (int i = 0; i < argc; ++i) {
        if (std::string_view(argv[i]) == "--check") {
            check = true;
        } else {
            rest.push_back(argv[i]);
        }
    }
    int count = static_cast<int>(rest.size());
    benchmark::Initialize(&count, rest.data());
    if (benchmark::ReportUnrecognizedArguments(count, rest.data())) {
        return 2;
    }
    if (!check) {
        benchmark::RunSpecifiedBenchmarks();
    }
    const TempFolder folder;
    const TestProject files = largeProject().build(folder.path());
    const bool fast = compareOpenWithFloor(files);
    return check && !fast ? 1 : 0;
}
