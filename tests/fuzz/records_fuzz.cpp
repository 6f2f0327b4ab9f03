/// Feeds arbitrary bytes to everything in the store that parses bytes or texts: records, the scene,
/// the text codec, numbers and paths. A broken promise ends the process.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "store/numbers.h"
#include "store/paths.h"
#include "store/records.h"
#include "store/references.h"
#include "store/scene.h"
#include "store/text_codec.h"

namespace {

using namespace quorvel::store;

void require(bool holds, const char* promise) {
    if (!holds) {
        std::fprintf(stderr, "broken promise: %s\n", promise);
        std::abort();
    }
}

/// A record that begins with `bytes`, the rest zero.
template <class Record>
Record recordOf(std::string_view bytes) {
    Record record{};
    std::copy_n(bytes.begin(), std::min(bytes.size(), sizeof(Record)), bytesOf(record).begin());
    return record;
}

template <class Record>
void tryRecord(std::string_view bytes) {
    auto record = recordOf<Record>(bytes);
    const std::string dump = dumpRecord(bytesOf(record), fieldsOf<Record>());
    require(!dump.empty() && dump.back() == '\n', "a dump is whole lines");
    blankUnsetTexts(bytesOf(record), fieldsOf<Record>());
    require(dumpRecord(bytesOf(record), fieldsOf<Record>()) == dump,
            "an unset text reads like an empty one");
}

void tryScene(std::string_view bytes) {
    auto record = recordOf<SceneRecord>(bytes);
    Scene scene;
    scene.take(record);
    const SceneRecord saved = scene.toRecord();
    require(saved.SecurityCode == 0, "a saved scene has no code");
    require(scene.objectCount() >= 0 && scene.objectCount() <= kSlotCount, "20 slots");
    Scene again;
    again.take(saved);
    scene.header(HeaderInt::SecurityCode) = 0;
    require(again == scene, "a saved scene loads as it was");
    require(std::ranges::equal(bytesOf(again.toRecord()), bytesOf(saved)),
            "a scene that was saved once is saved the same again");
    record.SecurityCode = 0;
    require(dumpRecord(bytesOf(record), fieldsOf<SceneRecord>()) ==
                dumpRecord(bytesOf(saved), fieldsOf<SceneRecord>()),
            "a load and a save change no value");
}

/// Whatever is named, its place and its text are within bounds.
void tryReferences(std::string_view bytes) {
    const auto visit = [](const Reference& each) {
        require(each.slot >= 0 && each.slot <= kSlotCount, "a slot of the scene");
        require(isFile(each.kind) == !each.file.empty(), "a file has a name");
        require(each.file.size() <= 3 * 15 + 4, "a name is no longer than its field");
    };
    forEachReference(recordOf<SceneRecord>(bytes), 1, visit);
    forEachReference(recordOf<LocationRecord>(bytes), 1, visit);
    forEachReference(recordOf<ItemRecord>(bytes), 1, visit);
    forEachReference(recordOf<CueCardRecord>(bytes), 1, visit);
    forEachReference(recordOf<GameSettingsRecord>(bytes), visit);
    forEachReference(recordOf<ProjectRecord>(bytes), visit);
}

void tryText(std::string_view bytes) {
    const std::string text = decodeText(bytes);
    require(encodeText(text) == bytes, "all bytes come back");
    require(fitsCodePage(text), "what was read can be written");
    const std::string encoded = encodeText(bytes);
    require(encoded.size() <= bytes.size(), "one byte for a character");
    require(!fitsCodePage(bytes) || decodeText(encoded) == bytes, "what fits comes back");
    const std::string_view trimmed = trimBlanks(bytes);
    require(trimmed.empty() || (trimmed.front() != ' ' && trimmed.back() != ' '), "trimmed");
    std::string field(15, '#');
    writeField(field, text);
    const std::string kept = readField(field);
    std::string second(15, '#');
    writeField(second, kept);
    require(readField(second) == kept, "a text that was read is written the same");
}

void tryNumbers(std::string_view bytes) {
    require(std::isfinite(val(bytes)), "a number is finite");
    require(std::abs(static_cast<double>(valInt(bytes))) <= 2147483647.0, "an int is an int");
    std::uintmax_t length = 0;
    for (const char c : bytes.substr(0, 8)) {
        length = length * 256 + static_cast<unsigned char>(c);
    }
    for (const std::size_t record : {112U, 209U, 342U, 908U, 1712U, 4395U}) {
        const int count = recordCount(length, record);
        require(count >= 0 && count <= 32767, "a count is a record number");
    }
}

void tryPaths(std::string_view bytes) {
    namespace fs = std::filesystem;
    const fs::path base = "/nonexistent folder of a test";
    const std::string_view name = bytes.substr(0, 200);
    require(sameName(name, name), "a name is its own");
    (void)resolvePath(base, name);
    require(!findResource(base, ResourceFolder::gfx, name), "nothing is found where nothing is");
    if (isBareName(name)) {
        const fs::path path = (base / pathOf(name)).lexically_normal();
        require(path.parent_path() == base, "a bare name stays in its folder");
        require(textOf(path.filename()) == name, "a bare name is a file name");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    tryRecord<ProjectRecord>(bytes);
    tryRecord<SceneRecord>(bytes);
    tryRecord<ObjectSlotRecord>(bytes);
    tryRecord<GameSettingsRecord>(bytes);
    tryRecord<ItemRecord>(bytes);
    tryRecord<LocationRecord>(bytes);
    tryRecord<CueCardRecord>(bytes);
    tryRecord<SkinRecord>(bytes);
    tryScene(bytes);
    tryReferences(bytes);
    tryText(bytes);
    tryNumbers(bytes);
    tryPaths(bytes);
    return 0;
}
