#include "store/settings.h"

#include <algorithm>

namespace quorvel::store {
namespace {

using Settings = GameSettingsRecord;

/// All bytes of a field, of a run those of all its elements.
std::span<char> bytesOfField(Settings& record, const FieldInfo& field) {
    return bytesOf(record).subspan(static_cast<std::size_t>(field.offset),
                                   static_cast<std::size_t>(field.count * field.width));
}

/// The fields of the slice that its form edits.
void copySlice(SettingsSlice slice, Settings& to, Settings from) {
    for (const FieldInfo& field : fieldsOf<Settings>()) {
        if (field.slice == slice && field.use != FieldUse::reserved) {
            std::ranges::copy(bytesOfField(from, field), bytesOfField(to, field).begin());
        }
    }
}

/// The fields of the slice that have no meaning: blank texts, numbers 0.
void clearReserved(SettingsSlice slice, Settings& record) {
    for (const FieldInfo& field : fieldsOf<Settings>()) {
        if (field.slice == slice && field.use == FieldUse::reserved) {
            const char empty = field.kind == FieldInfo::Kind::text ? ' ' : '\0';
            std::ranges::fill(bytesOfField(record, field), empty);
        }
    }
}

bool isSlice(SettingsSlice slice) {
    return slice >= SettingsSlice::genSettings && slice <= SettingsSlice::gameIntro;
}

/// What a save sets beside the fields of the form.
void applySaveRules(SettingsSlice slice, Settings& record) {
    clearReserved(slice, record);
    if (slice == SettingsSlice::edButtons) {
        record.ScoreFlag = boundedScoreFlag(record.ScoreFlag);
        record.CustomLayoutFlag = 1;
    } else if (slice == SettingsSlice::gameIntro) {
        record.IntroLarge = 1;
    }
}

}  // namespace

std::int16_t boundedScoreFlag(int typed) {
    return static_cast<std::int16_t>(typed == 0 ? 255 : std::clamp(typed, 1, 255));
}

GameSettingsRecord LoadSettings(Project& project, SettingsSlice slice) {
    Settings form{};
    if (!isSlice(slice)) {
        return form;
    }
    copySlice(slice, form, project.settingsFile.read(1));
    if (slice == SettingsSlice::edButtons && form.ScoreFlag == 0) {
        form.ScoreFlag = 255;
    }
    if (form.IntroVolume > 100) {
        form.IntroVolume = 100;
    }
    return form;
}

void SaveSettings(Project& project, SettingsSlice slice, const GameSettingsRecord& form) {
    if (!isSlice(slice)) {
        return;
    }
    Settings filled = form;
    blankUnsetTexts(bytesOf(filled), fieldsOf<Settings>());
    Settings record = project.settingsFile.read(1);
    copySlice(slice, record, filled);
    applySaveRules(slice, record);
    project.settingsFile.write(1, record);
    if (slice == SettingsSlice::genSettings) {
        project.GameTitle = record.GameTitle.text();
        project.PlayerName = record.PlayerExeName.text() + ".exe";
    }
}

}  // namespace quorvel::store
