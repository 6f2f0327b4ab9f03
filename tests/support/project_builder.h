/// Projects for tests: complete and valid on disk, made by the store's own routines.
///
///     const TempFolder folder;
///     const TestProject files = ProjectBuilder()
///                                   .title("Castle")
///                                   .scenes(3)
///                                   .items(2)
///                                   .object(1, 1, 2, 100, 120, "coin.gif")
///                                   .securityCode(1234)
///                                   .build(folder.path());
///
/// Without any option it is a new project after its first close: one scene without a name, the
/// first location record that stands for no location, no item, no card, all codes 0.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "store/paths.h"
#include "store/project.h"

namespace quorvel::test {

/// Where the files of a built project lie.
struct TestProject {
    std::filesystem::path folder;
    std::string fileName;

    [[nodiscard]] std::filesystem::path projectPath() const { return folder / fileName; }
    /// Store 1 to 5.
    [[nodiscard]] std::filesystem::path storePath(int number) const;
    [[nodiscard]] std::filesystem::path gfx(std::string_view name) const;
    [[nodiscard]] std::filesystem::path mmedia(std::string_view name) const;

    /// Names the project in `project`, as a file dialog would.
    void nameIn(store::Project& project) const;
    /// Names and opens the project and runs all list readers, without gates and boxes. What fails
    /// is thrown.
    void openIn(store::Project& project) const;
};

/// Collects what a project shall contain; `build` writes it. A builder can be used again for the
/// same project in another folder. Numbers of records and slots begin at 1.
class ProjectBuilder {
  public:
    /// Default "Test.qvl".
    ProjectBuilder& fileName(std::string_view name);
    /// The game's title, "Untitled" by default.
    ProjectBuilder& title(std::string_view text);
    /// Author, mail address and notes of the project file.
    ProjectBuilder& author(std::string_view name, std::string_view mail = "",
                           std::string_view notes = "");
    /// `ProjectVersion`, 300 by default.
    ProjectBuilder& version(std::int16_t number);
    /// The code in all six places, 0 by default.
    ProjectBuilder& securityCode(std::int16_t code);

    ProjectBuilder& currentScene(std::int16_t number);
    ProjectBuilder& currentItem(std::int16_t number);
    ProjectBuilder& currentCueCard(std::int16_t number);

    /// Records of each store, named "Scene 1", "Item 1", "Location 1", "Card 1" and so on. A count
    /// that is not asked for grows with the highest number that another call names.
    ProjectBuilder& scenes(int count);
    ProjectBuilder& items(int count);
    ProjectBuilder& locations(int count);
    ProjectBuilder& cards(int count);

    ProjectBuilder& scene(int number, std::string_view name, std::string_view image = "");
    ProjectBuilder& item(int number, std::string_view name, std::string_view icon = "");
    ProjectBuilder& location(int number, std::string_view name, std::int16_t toScene = 0,
                             std::string_view image = "(None)");
    ProjectBuilder& card(int number, std::string_view name);
    /// Picture of the map, in location record 1.
    ProjectBuilder& mapImage(std::string_view name);

    /// Puts an object into a scene: type 0 to 9 or any other number, place in pixels, `SlotStr1`,
    /// which is the picture of the types that have one.
    ProjectBuilder& object(int scene, int slot, std::int16_t type, std::int16_t left,
                           std::int16_t top, std::string_view image = "");

    // For everything else: changes of the records, made in the order of the calls after the options
    // above have had their effect.
    ProjectBuilder& editScene(int number, std::function<void(store::SceneRecord&)> change);
    ProjectBuilder& editSlot(int scene, int slot,
                             std::function<void(store::ObjectSlotRecord&)> change);
    ProjectBuilder& editItem(int number, std::function<void(store::ItemRecord&)> change);
    ProjectBuilder& editLocation(int number, std::function<void(store::LocationRecord&)> change);
    ProjectBuilder& editCard(int number, std::function<void(store::CueCardRecord&)> change);
    ProjectBuilder& editSettings(std::function<void(store::GameSettingsRecord&)> change);
    ProjectBuilder& editProject(std::function<void(store::ProjectRecord&)> change);

    /// A file in a resource folder.
    ProjectBuilder& gfx(std::string_view name, std::string_view bytes);
    ProjectBuilder& mmedia(std::string_view name, std::string_view bytes);

    /// Leaves out the file "Game.exe", which stands for a player as new as any other.
    ProjectBuilder& withoutPlayer();

    /// Writes the project into `folder`, which has to exist and to hold no project yet.
    TestProject build(const std::filesystem::path& folder) const;

  private:
    template <class Record>
    struct Change {
        int number;
        std::function<void(Record&)> apply;
    };
    struct Resource {
        store::ResourceFolder folder;
        std::string name;
        std::string bytes;
    };
    void writeScenes(store::Project& project) const;
    void writeGameStores(store::Project& project) const;
    void writeProjectFile(store::Project& project) const;
    void writeResources(const std::filesystem::path& folder) const;

    std::string fileName_ = "Test.qvl";
    std::int16_t securityCode_ = 0;
    bool hasPlayer_ = true;
    int scenes_ = 0;  // 0: none was asked for
    int items_ = 0;
    int locations_ = 0;
    int cards_ = 0;
    std::vector<Change<store::SceneRecord>> sceneChanges_;
    std::vector<Change<store::ItemRecord>> itemChanges_;
    std::vector<Change<store::LocationRecord>> locationChanges_;
    std::vector<Change<store::CueCardRecord>> cardChanges_;
    std::vector<std::function<void(store::GameSettingsRecord&)>> settingsChanges_;
    std::vector<std::function<void(store::ProjectRecord&)>> projectChanges_;
    std::vector<Resource> resources_;
};

}  // namespace quorvel::test
