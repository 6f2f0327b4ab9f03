#include "store/creation.h"

#include <string_view>
#include <system_error>

#include "store/paths.h"
#include "store/runtime_error.h"

namespace quorvel::store {

namespace fs = std::filesystem;

void makeProjectFolders(const Project& project) {
    for (const std::string_view folder : {"resource", "resource/gfx", "resource/mmedia"}) {
        const fs::path path = resolvePath(project.folder(), folder);
        std::error_code error;
        if (fs::exists(path, error)) {
            throw RuntimeError(ErrorNumber::accessError, path);
        }
        if (!fs::create_directory(path, error)) {
            // A folder is not found only when the one above it is missing.
            const ErrorNumber number = errorNumberOf(error);
            throw RuntimeError(
                number == ErrorNumber::fileNotFound ? ErrorNumber::pathNotFound : number, path);
        }
    }
}

void WriteNewStores(const Project& project) {
    RecordFile<SceneRecord> scenes;
    scenes.openOrCreate(project.storePath(1));
    scenes.write(1, newRecord<SceneRecord>());
    scenes.close();

    // The first record has to carry the map's picture, so it exists before any location does.
    auto location = newRecord<LocationRecord>();
    location.LocationImage = "";
    RecordFile<LocationRecord> locations;
    locations.openOrCreate(project.storePath(2));
    locations.write(1, location);
    locations.close();

    RecordFile<ItemRecord> items;
    items.openOrCreate(project.storePath(3));
    items.close();

    RecordFile<GameSettingsRecord> settings;
    settings.openOrCreate(project.storePath(4));
    settings.write(1, newRecord<GameSettingsRecord>());
    settings.close();

    RecordFile<CueCardRecord> cards;
    cards.openOrCreate(project.storePath(5));
    cards.close();
}

}  // namespace quorvel::store
