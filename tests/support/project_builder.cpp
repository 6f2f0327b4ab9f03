#include "support/project_builder.h"

#include <algorithm>
#include <utility>

#include "store/creation.h"
#include "store/game_stores.h"
#include "store/scene_store.h"
#include "store/security.h"
#include "support/file_bytes.h"

namespace quorvel::test {

namespace fs = std::filesystem;
using namespace store;

fs::path TestProject::storePath(int number) const {
    return folder / "resource" / ("Quorvel" + std::to_string(number) + ".dat");
}

fs::path TestProject::gfx(std::string_view name) const {
    return folder / "resource" / "gfx" / name;
}

fs::path TestProject::mmedia(std::string_view name) const {
    return folder / "resource" / "mmedia" / name;
}

void TestProject::nameIn(Project& project) const {
    project.ProjectFolder = textOf(folder) + "/";
    project.ProjectFileName = fileName;
}

void TestProject::openIn(Project& project) const {
    nameIn(project);
    const ProjectRecord record = project.openProjectFile();
    project.takeProjectRecord(record);
    project.ReadSceneList();
    project.ReadLocationList();
    project.ReadItemList();
    project.ReadGameInfo();
    project.ReadCueCardList();
    project.ProjectOpen = true;
}

ProjectBuilder& ProjectBuilder::fileName(std::string_view name) {
    fileName_ = name;
    return *this;
}

ProjectBuilder& ProjectBuilder::title(std::string_view text) {
    return editSettings(
        [text = std::string(text)](GameSettingsRecord& record) { record.GameTitle = text; });
}

ProjectBuilder& ProjectBuilder::author(std::string_view name, std::string_view mail,
                                       std::string_view notes) {
    return editProject([name = std::string(name), mail = std::string(mail),
                        notes = std::string(notes)](ProjectRecord& record) {
        record.Author = name;
        record.AuthorEmail = mail;
        record.ProjectNotes = notes;
    });
}

ProjectBuilder& ProjectBuilder::version(std::int16_t number) {
    return editProject([number](ProjectRecord& record) { record.ProjectVersion = number; });
}

ProjectBuilder& ProjectBuilder::securityCode(std::int16_t code) {
    securityCode_ = code;
    return *this;
}

ProjectBuilder& ProjectBuilder::currentScene(std::int16_t number) {
    return editProject([number](ProjectRecord& record) { record.CurrentScene = number; });
}

ProjectBuilder& ProjectBuilder::currentItem(std::int16_t number) {
    return editProject([number](ProjectRecord& record) { record.CurrentItem = number; });
}

ProjectBuilder& ProjectBuilder::currentCueCard(std::int16_t number) {
    return editProject([number](ProjectRecord& record) { record.CurrentCueCard = number; });
}

ProjectBuilder& ProjectBuilder::scenes(int count) {
    scenes_ = std::max(scenes_, count);
    return *this;
}

ProjectBuilder& ProjectBuilder::items(int count) {
    items_ = std::max(items_, count);
    return *this;
}

ProjectBuilder& ProjectBuilder::locations(int count) {
    locations_ = std::max(locations_, count);
    return *this;
}

ProjectBuilder& ProjectBuilder::cards(int count) {
    cards_ = std::max(cards_, count);
    return *this;
}

ProjectBuilder& ProjectBuilder::scene(int number, std::string_view name, std::string_view image) {
    return editScene(number,
                     [name = std::string(name), image = std::string(image)](SceneRecord& record) {
                         record.SceneName = name;
                         record.SceneImage = image;
                     });
}

ProjectBuilder& ProjectBuilder::item(int number, std::string_view name, std::string_view icon) {
    return editItem(number,
                    [name = std::string(name), icon = std::string(icon)](ItemRecord& record) {
                        record.ItemName = name;
                        record.ItemIcon = icon;
                    });
}

ProjectBuilder& ProjectBuilder::location(int number, std::string_view name, std::int16_t toScene,
                                         std::string_view image) {
    return editLocation(number, [name = std::string(name), toScene,
                                 image = std::string(image)](LocationRecord& record) {
        record.LocationName = name;
        record.LocationScene = toScene;
        record.LocationImage = image;
    });
}

ProjectBuilder& ProjectBuilder::card(int number, std::string_view name) {
    return editCard(number,
                    [name = std::string(name)](CueCardRecord& record) { record.CardName = name; });
}

ProjectBuilder& ProjectBuilder::mapImage(std::string_view name) {
    // Not by editLocation: the picture does not make a location 1.
    locationChanges_.push_back(
        {1, [name = std::string(name)](LocationRecord& record) { record.MapImage = name; }});
    return *this;
}

ProjectBuilder& ProjectBuilder::object(int scene, int slot, std::int16_t type, std::int16_t left,
                                       std::int16_t top, std::string_view image) {
    return editSlot(scene, slot,
                    [type, left, top, image = std::string(image)](ObjectSlotRecord& record) {
                        record.SlotInt1 = type;
                        record.SlotInt2 = left;
                        record.SlotInt3 = top;
                        record.SlotStr[0] = image;
                    });
}

ProjectBuilder& ProjectBuilder::editScene(int number, std::function<void(SceneRecord&)> change) {
    sceneChanges_.push_back({number, std::move(change)});
    return scenes(number);
}

ProjectBuilder& ProjectBuilder::editSlot(int scene, int slot,
                                         std::function<void(ObjectSlotRecord&)> change) {
    return editScene(scene, [slot, change = std::move(change)](SceneRecord& record) {
        change(record.Slots.at(static_cast<std::size_t>(slot - 1)));
    });
}

ProjectBuilder& ProjectBuilder::editItem(int number, std::function<void(ItemRecord&)> change) {
    itemChanges_.push_back({number, std::move(change)});
    return items(number);
}

ProjectBuilder& ProjectBuilder::editLocation(int number,
                                             std::function<void(LocationRecord&)> change) {
    locationChanges_.push_back({number, std::move(change)});
    return locations(number);
}

ProjectBuilder& ProjectBuilder::editCard(int number, std::function<void(CueCardRecord&)> change) {
    cardChanges_.push_back({number, std::move(change)});
    return cards(number);
}

ProjectBuilder& ProjectBuilder::editSettings(std::function<void(GameSettingsRecord&)> change) {
    settingsChanges_.push_back(std::move(change));
    return *this;
}

ProjectBuilder& ProjectBuilder::editProject(std::function<void(ProjectRecord&)> change) {
    projectChanges_.push_back(std::move(change));
    return *this;
}

ProjectBuilder& ProjectBuilder::gfx(std::string_view name, std::string_view bytes) {
    resources_.push_back({ResourceFolder::gfx, std::string(name), std::string(bytes)});
    return *this;
}

ProjectBuilder& ProjectBuilder::mmedia(std::string_view name, std::string_view bytes) {
    resources_.push_back({ResourceFolder::mmedia, std::string(name), std::string(bytes)});
    return *this;
}

void ProjectBuilder::writeScenes(Project& project) const {
    for (int number = 1; number <= scenes_; ++number) {
        WriteBlankScene(project, number, "Scene " + std::to_string(number), "");
    }
    for (const auto& change : sceneChanges_) {
        SceneRecord record = project.sceneFile.read(change.number);
        change.apply(record);
        project.sceneFile.write(change.number, record);
    }
}

void ProjectBuilder::writeGameStores(Project& project) const {
    for (int number = 1; number <= locations_; ++number) {
        auto record = newRecord<LocationRecord>();
        record.LocationName = "Location " + std::to_string(number);
        project.locationFile.write(number, record);
    }
    for (int number = 1; number <= items_; ++number) {
        auto record = newRecord<ItemRecord>();
        record.ItemName = "Item " + std::to_string(number);
        project.itemFile.write(number, record);
    }
    for (int number = 1; number <= cards_; ++number) {
        auto record = newRecord<CueCardRecord>();
        record.CardName = "Card " + std::to_string(number);
        SaveCard(project, number, record);
    }
    const auto applyTo = [](auto& file, const auto& changes) {
        for (const auto& change : changes) {
            auto record = file.read(change.number);
            change.apply(record);
            file.write(change.number, record);
        }
    };
    applyTo(project.locationFile, locationChanges_);
    applyTo(project.itemFile, itemChanges_);
    applyTo(project.cardFile, cardChanges_);
    GameSettingsRecord settings = project.settingsFile.read(1);
    for (const auto& change : settingsChanges_) {
        change(settings);
    }
    project.settingsFile.write(1, settings);
}

void ProjectBuilder::writeProjectFile(Project& project) const {
    auto record = newRecord<ProjectRecord>();
    record.SecurityCode = securityCode_;
    record.ItemCount = static_cast<std::int16_t>(project.itemFile.count());
    record.LocationCount = static_cast<std::int16_t>(project.locationFile.count());
    record.CueCardCount = static_cast<std::int16_t>(project.cardFile.count());
    for (const auto& change : projectChanges_) {
        change(record);
    }
    project.projectFile.write(1, record);
}

void ProjectBuilder::writeResources(const fs::path& folder) const {
    for (const Resource& resource : resources_) {
        writeBytes(resourceFolder(folder, resource.folder) / pathOf(resource.name), resource.bytes);
    }
}

ProjectBuilder& ProjectBuilder::withoutPlayer() {
    hasPlayer_ = false;
    return *this;
}

TestProject ProjectBuilder::build(const fs::path& folder) const {
    const TestProject files{folder, fileName_};
    Project project;
    files.nameIn(project);
    makeProjectFolders(project);
    WriteNewStores(project);
    project.WriteNewProjectFile();
    project.sceneFile.open(project.storePath(1));
    project.locationFile.open(project.storePath(2));
    project.itemFile.open(project.storePath(3));
    project.settingsFile.open(project.storePath(4));
    project.cardFile.open(project.storePath(5));
    writeScenes(project);
    writeGameStores(project);
    writeProjectFile(project);
    writeResources(folder);
    if (hasPlayer_) {
        writeBytes(folder / "Game.exe", "a player without a version");
    }
    project.SecurityOn = securityCode_ != 0;
    project.SecurityCode = securityCode_;
    WriteSecurity(project);
    project.closeFiles();
    return files;
}

}  // namespace quorvel::test
