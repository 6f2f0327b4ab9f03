#include "store/references.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "store/paths.h"

namespace quorvel::store {
namespace {

/// What a field of this use names; nothing for the uses that name nothing. Of a file that can be of
/// two kinds the more frequent one.
std::optional<ReferenceKind> kindOfUse(FieldUse use) {
    switch (use) {
        case FieldUse::gfxFile:
        case FieldUse::mapIconFile:
        case FieldUse::placeOrFile:
            return ReferenceKind::gfxFile;
        case FieldUse::mediaFile:
        case FieldUse::soundtrackFile:
        case FieldUse::logoFile:
            return ReferenceKind::mediaFile;
        case FieldUse::playerName:
            return ReferenceKind::playerFile;
        case FieldUse::scene:
            return ReferenceKind::scene;
        case FieldUse::item:
            return ReferenceKind::item;
        case FieldUse::location:
            return ReferenceKind::location;
        case FieldUse::card:
            return ReferenceKind::card;
        case FieldUse::flag:
            return ReferenceKind::flag;
        default:
            return std::nullopt;
    }
}

struct PlanRow {
    const FieldRef* field;
    ReferenceKind kind;
};
/// The fields of a dictionary that name something.
using Plan = std::vector<PlanRow>;

Plan planOf(std::span<const FieldRef> fields) {
    Plan plan;
    for (const FieldRef& field : fields) {
        if (const auto kind = kindOfUse(field.use)) {
            plan.push_back({&field, *kind});
        }
    }
    return plan;
}

/// The plans of the dictionaries of the first `count` keys.
template <class Key>
std::vector<Plan> plansOf(int count) {
    std::vector<Plan> plans;
    plans.reserve(static_cast<std::size_t>(count));
    for (int key = 0; key < count; ++key) {
        plans.push_back(planOf(dictionary(static_cast<Key>(key))));
    }
    return plans;
}

const Plan& planOf(RecordKind kind) {
    static const std::vector<Plan> all = plansOf<RecordKind>(kRecordKinds);
    return all[static_cast<std::size_t>(kind)];
}

const Plan& planOf(ObjectType type) {
    static const std::vector<Plan> all = plansOf<ObjectType>(kObjectTypes);
    return all[static_cast<std::size_t>(type)];
}

bool isBlank(std::span<const char> text) {
    return std::ranges::all_of(text, [](char c) { return c == ' ' || c == '\0'; });
}

/// The last three letters settle the kind of a file.
bool endsInGif(std::string_view name) {
    constexpr std::string_view gif = "gif";
    return name.size() >= gif.size() && sameName(name.substr(name.size() - gif.size()), gif);
}

/// One record on its way through.
class Walk {
  public:
    Walk(const ReferenceVisitor& visit, RecordKind record, int number)
        : visit_(visit), record_(record), number_(number) {}

    /// Which fields have an effect at all; without, those whose own switches are on.
    std::function<bool(const FieldRef&)> allows;
    /// The texts of places still name files.
    bool oldSettings = false;

    void fields(const Plan& plan, std::span<const char> bytes, int slot = 0) const {
        for (const PlanRow& row : plan) {
            Reference reference{row.kind, {}, 0, false, record_, number_, slot, row.field};
            reference.inEffect = hasEffect(bytes, *row.field) && (!allows || allows(*row.field));
            if (isFile(row.kind)) {
                file(bytes, reference);
            } else {
                reference.number = readNumber(bytes, *row.field);
                const bool testsFlag = row.kind == ReferenceKind::flag && reference.inEffect;
                if (reference.number != 0 || testsFlag) {
                    visit_(reference);
                }
            }
        }
    }

  private:
    void file(std::span<const char> bytes, Reference& reference) const {
        const FieldRef& field = *reference.field;
        if (isBlank(bytes.subspan(static_cast<std::size_t>(field.offset),
                                  static_cast<std::size_t>(field.width)))) {
            return;
        }
        std::string name = readText(bytes, field);
        if (!isFileName(field.use, name)) {
            return;
        }
        if (field.use == FieldUse::logoFile && endsInGif(name)) {
            reference.kind = ReferenceKind::gfxFile;
        } else if (field.use == FieldUse::playerName) {
            name += ".exe";
        }
        reference.file = name;
        visit_(reference);
    }

    [[nodiscard]] bool isFileName(FieldUse use, std::string_view text) const {
        switch (use) {
            case FieldUse::soundtrackFile:
                return text != kStopSoundtrack;
            case FieldUse::mapIconFile:
                return text != kNoIcon && text != kRemovedIcon;
            case FieldUse::placeOrFile:
                return oldSettings && text.find('/') == std::string_view::npos;
            default:
                return true;
        }
    }

    const ReferenceVisitor& visit_;
    RecordKind record_;
    int number_;
};

template <class Record>
void forEachStored(RecordFile<Record>& file, const ReferenceVisitor& visit) {
    file.readAll([&](int first, int count, std::span<const char> block) {
        const auto* records = reinterpret_cast<const Record*>(block.data());
        for (int i = 0; i < count; ++i) {
            forEachReference(records[i], first + i, visit);
        }
    });
}

}  // namespace

void forEachReference(const SceneRecord& record, int number, const ReferenceVisitor& visit) {
    const Walk walk(visit, RecordKind::scene, number);
    walk.fields(planOf(RecordKind::scene), bytesOf(record));
    int slot = 0;
    for (const ObjectSlotRecord& object : record.Slots) {
        ++slot;
        const auto type = static_cast<ObjectType>(std::int16_t{object.SlotInt1});
        if (isKnownType(type)) {
            walk.fields(planOf(type), bytesOf(object), slot);
        }
    }
}

void forEachReference(const LocationRecord& record, int number, const ReferenceVisitor& visit) {
    Walk walk(visit, RecordKind::location, number);
    const FieldRef* map = &fieldRef(&LocationRecord::MapImage);
    const bool there = isLocation(number, record);
    walk.allows = [=](const FieldRef& field) { return &field == map ? number == 1 : there; };
    walk.fields(planOf(RecordKind::location), bytesOf(record));
}

void forEachReference(const ItemRecord& record, int number, const ReferenceVisitor& visit) {
    const Walk walk(visit, RecordKind::item, number);
    walk.fields(planOf(RecordKind::item), bytesOf(record));
}

void forEachReference(const CueCardRecord& record, int number, const ReferenceVisitor& visit) {
    const Walk walk(visit, RecordKind::card, number);
    walk.fields(planOf(RecordKind::card), bytesOf(record));
}

void forEachReference(const GameSettingsRecord& record, const ReferenceVisitor& visit) {
    Walk walk(visit, RecordKind::settings, 1);
    walk.oldSettings = record.CustomLayoutFlag == 0;
    walk.fields(planOf(RecordKind::settings), bytesOf(record));
}

void forEachReference(const ProjectRecord& record, const ReferenceVisitor& visit) {
    const Walk walk(visit, RecordKind::project, 1);
    walk.fields(planOf(RecordKind::project), bytesOf(record));
}

void forEachReference(Project& project, const Scene* onCanvas, const ReferenceVisitor& visit) {
    if (project.projectFile.isOpen()) {
        forEachReference(project.projectFile.read(1), visit);
    }
    if (project.sceneFile.isOpen()) {
        project.sceneFile.readAll([&](int first, int count, std::span<const char> block) {
            const auto* records = reinterpret_cast<const SceneRecord*>(block.data());
            for (int i = 0; i < count; ++i) {
                if (onCanvas != nullptr && first + i == project.CurrentScene) {
                    forEachReference(onCanvas->toRecord(), first + i, visit);
                } else {
                    forEachReference(records[i], first + i, visit);
                }
            }
        });
    }
    if (project.locationFile.isOpen()) {
        forEachStored(project.locationFile, visit);
    }
    if (project.itemFile.isOpen()) {
        forEachStored(project.itemFile, visit);
    }
    if (project.settingsFile.isOpen()) {
        forEachReference(project.settingsFile.read(1), visit);
    }
    if (project.cardFile.isOpen()) {
        forEachStored(project.cardFile, visit);
    }
}

}  // namespace quorvel::store
