/// The built sample game, opened through the store.
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include <QImageReader>

#include "store/objects.h"
#include "store/paths.h"
#include "store/project.h"
#include "store/scene_store.h"

namespace quorvel::test {

inline constexpr int kSceneWidth = 700;
inline constexpr int kSceneHeight = 475;
inline constexpr int kMostPointers = 15;

/// All scenes are loaded; helpers check that what a record names is there.
class SampleGame : public testing::Test {
  protected:
    void SetUp() override {
        project_.ProjectFolder = std::string(QUORVEL_SAMPLE_GAME) + "/";
        project_.ProjectFileName = "Lantern.qvl";
        record_ = project_.openProjectFile();
        project_.takeProjectRecord(record_);
        project_.ReadSceneList();
        project_.NumberOfScenes = project_.sceneFile.count();
        project_.ReadLocationList();
        project_.ReadItemList();
        ASSERT_TRUE(project_.ReadGameInfo());
        project_.ReadCueCardList();
        for (int number = 1; number <= project_.NumberOfScenes; ++number) {
            store::LoadScene(project_, scenes_.emplace_back(), number);
        }
    }

    void TearDown() override { project_.closeFiles(); }

    std::filesystem::path find(store::ResourceFolder kind, const std::string& name) const {
        const auto found = store::findResource(project_.folder(), kind, name);
        EXPECT_TRUE(found.has_value()) << "no file " << name;
        EXPECT_LE(name.size(), 15U) << name;
        EXPECT_LE(std::filesystem::path(name).stem().string().size(), 11U) << name;
        return found.value_or(std::filesystem::path());
    }
    void expectFile(store::ResourceFolder kind, const std::string& name) const {
        if (!name.empty()) {
            find(kind, name);
        }
    }
    [[nodiscard]] QImageReader picture(const std::string& name) const {
        return QImageReader(
            QString::fromStdString(find(store::ResourceFolder::gfx, name).string()));
    }

    /// Calls `visit(scene number, slot number, slot)` for each object.
    template <class Visit>
    void forEachObject(Visit visit) const {
        for (int scene = 1; scene <= project_.NumberOfScenes; ++scene) {
            for (int number = 1; number <= store::kSlotCount; ++number) {
                const store::ObjectSlot& slot =
                    scenes_[static_cast<std::size_t>(scene - 1)].slot(number);
                if (store::typeOf(slot) != store::ObjectType::free) {
                    visit(scene, number, slot);
                }
            }
        }
    }

    [[nodiscard]] testing::AssertionResult inRange(const std::string& what, int value, int low,
                                                   int high) const {
        if (value >= low && value <= high) {
            return testing::AssertionSuccess();
        }
        return testing::AssertionFailure()
               << what << " is " << value << ", not within " << low << " to " << high;
    }

    [[nodiscard]] testing::AssertionResult validNumber(const store::ObjectFieldInfo& field,
                                                       int value) const {
        const std::string what(field.name);
        switch (field.use) {
            case store::FieldUse::check:
                return inRange(what, value, 0, 1);
            case store::FieldUse::option:
                return inRange(what, value, 1, 5);
            case store::FieldUse::scene:
                return inRange(what, value, 0, project_.NumberOfScenes);
            case store::FieldUse::item:
                return inRange(what, value, 0, project_.ItemCount);
            case store::FieldUse::location:
                return inRange(what, value, 0, project_.LocationCount);
            case store::FieldUse::card:
                return inRange(what, value, 0, project_.CueCardCount);
            case store::FieldUse::pointer:
                return inRange(what, value, 0, 10);
            case store::FieldUse::channel:
                return inRange(what, value, 0, 15);
            case store::FieldUse::flag:
                return inRange(what, value, 1, 255);
            case store::FieldUse::comparison:
                return inRange(what, value, 0, 3);
            case store::FieldUse::optionFrom0:
                return inRange(what, value, 0, 1);
            case store::FieldUse::volume:
            case store::FieldUse::mediaVolume:
                return inRange(what, value, -4000, 0);
            case store::FieldUse::pan:
                return inRange(what, value, -4000, 4000);
            case store::FieldUse::seconds:
                return inRange(what, value, 0, 65);
            default:
                return testing::AssertionSuccess();
        }
    }

    store::Project project_;
    store::ProjectRecord record_{};
    std::vector<store::Scene> scenes_;
};

}  // namespace quorvel::test
