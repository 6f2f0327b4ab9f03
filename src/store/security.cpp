#include "store/security.h"

#include <exception>
#include <filesystem>

#include "store/runtime_error.h"

namespace quorvel::store {
namespace {

/// What an empty store counts as.
enum class Empty { agrees, readsAsZero };

template <class Record>
Record readFirst(const Project& project, int store, Empty empty) {
    RecordFile<Record> file;
    file.open(project.storePath(store));
    Record record = file.read(1);
    if (empty == Empty::agrees && file.count() == 0) {
        record.SecurityCode = project.SecurityCode;
    }
    return record;
}

CueCardRecord readFirstCard(const Project& project) {
    std::error_code error;
    if (!std::filesystem::exists(project.storePath(5), error)) {
        CueCardRecord record{};
        record.SecurityCode = project.SecurityCode;
        return record;
    }
    return readFirst<CueCardRecord>(project, 5, Empty::agrees);
}

template <class Record>
void writeCode(RecordFile<Record>& file, std::int16_t code, std::exception_ptr& firstFailure) {
    try {
        if (file.isOpen() && !file.isEmpty()) {
            Record record = file.read(1);
            record.SecurityCode = code;
            file.write(1, record);
        }
    } catch (const RuntimeError&) {
        firstFailure = firstFailure ? firstFailure : std::current_exception();
    }
}

}  // namespace

SecurityCheck checkSecurity(const Project& project) {
    SecurityCheck result;
    const auto compare = [&](int store, std::int16_t code) {
        if (code != project.SecurityCode) {
            result.mismatches.push_back(store);
        }
    };
    compare(1, readFirst<SceneRecord>(project, 1, Empty::readsAsZero).SecurityCode);
    compare(2, readFirst<LocationRecord>(project, 2, Empty::readsAsZero).SecurityCode);
    compare(3, readFirst<ItemRecord>(project, 3, Empty::agrees).SecurityCode);
    const auto settings = readFirst<GameSettingsRecord>(project, 4, Empty::readsAsZero);
    compare(4, settings.SecurityCode);
    result.oldSettings = settings.CustomLayoutFlag == 0;
    compare(5, readFirstCard(project).SecurityCode);
    return result;
}

void WriteSecurity(Project& project) {
    if (!project.SecurityOn) {
        project.SecurityCode = 0;
    }
    std::exception_ptr firstFailure;
    writeCode(project.sceneFile, project.SecurityCode, firstFailure);
    writeCode(project.locationFile, project.SecurityCode, firstFailure);
    writeCode(project.itemFile, project.SecurityCode, firstFailure);
    writeCode(project.settingsFile, project.SecurityCode, firstFailure);
    writeCode(project.cardFile, project.SecurityCode, firstFailure);
    if (firstFailure) {
        std::rethrow_exception(firstFailure);
    }
}

}  // namespace quorvel::store
