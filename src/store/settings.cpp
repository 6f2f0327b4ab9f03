#include "store/settings.h"

#include <algorithm>

namespace quorvel::store {
namespace {

using Settings = GameSettingsRecord;

template <class... Fields>
void copyFields(Settings& to, const Settings& from, Fields... fields) {
    ((to.*fields = from.*fields), ...);
}

void copyGenSettings(Settings& to, const Settings& from) {
    copyFields(
        to, from, &Settings::GameTitle, &Settings::ClickSoundFile, &Settings::ClickSoundVolume,
        &Settings::ClickSoundPan, &Settings::InventoryFullSoundFile,
        &Settings::InventoryFullSoundVolume, &Settings::InventoryFullSoundPan,
        &Settings::WrongTargetSoundFile, &Settings::WrongTargetSoundVolume,
        &Settings::WrongTargetSoundPan, &Settings::NagScreenOn, &Settings::NagImage,
        &Settings::DebugWindowOn, &Settings::PlayerExeName, &Settings::PlayFromCd,
        &Settings::DiscLabel, &Settings::DiscFromScene, &Settings::DiscToScene,
        &Settings::MenuMusicVolume, &Settings::MenuMusicPan, &Settings::ButtonOverSoundVolume,
        &Settings::ButtonOverSoundPan, &Settings::MenuMusicFile, &Settings::ButtonOverSoundFile,
        &Settings::LogoSuppressed, &Settings::ChangeResolution);
}

void copyEdButtons(Settings& to, const Settings& from) {
    copyFields(to, from, &Settings::MenuButtonOn, &Settings::ItemToolTips, &Settings::MenuButtonPos,
               &Settings::GameButtonOn, &Settings::LayoutPos5, &Settings::LayoutPos6,
               &Settings::LayoutPos7, &Settings::LayoutPos8, &Settings::LayoutPos9,
               &Settings::LayoutPos10, &Settings::SaveLoadOn, &Settings::InventoryBarOn,
               &Settings::ScoreOn, &Settings::ScoreFlag, &Settings::MaxScore,
               &Settings::CloseupSizeSmall, &Settings::MovieSize, &Settings::CloseupMode,
               &Settings::CustomLayoutFlag);
}

void copyGameIntro(Settings& to, const Settings& from) {
    copyFields(to, from, &Settings::IntroOnNewGame, &Settings::IntroOnStart, &Settings::IntroLarge,
               &Settings::IntroMovie, &Settings::IntroVolume);
}

void copySlice(SettingsSlice slice, Settings& to, const Settings& from) {
    switch (slice) {
        case SettingsSlice::genSettings:
            copyGenSettings(to, from);
            break;
        case SettingsSlice::edButtons:
            copyEdButtons(to, from);
            break;
        case SettingsSlice::edMousePoint:
            copyFields(to, from, &Settings::GamePointer);
            break;
        case SettingsSlice::openCredits:
            copyFields(to, from, &Settings::OpeningLogo, &Settings::CreditsScene);
            break;
        case SettingsSlice::gameIntro:
            copyGameIntro(to, from);
            break;
    }
}

bool isSlice(SettingsSlice slice) {
    return slice >= SettingsSlice::genSettings && slice <= SettingsSlice::gameIntro;
}

/// What a save sets beside the fields of the form.
void applySaveRules(SettingsSlice slice, Settings& record) {
    if (slice == SettingsSlice::edButtons) {
        record.ScoreFlag = boundedScoreFlag(record.ScoreFlag);
        record.CustomLayoutFlag = 1;
        record.Reserved363.fill(IntField{});
        record.Reserved409 = 0;
        record.Reserved426 = 0;
        record.Reserved443 = 0;
        record.Reserved483 = "";
    } else if (slice == SettingsSlice::edMousePoint) {
        for (auto& text : record.Reserved723) {
            text = "";
        }
    } else if (slice == SettingsSlice::gameIntro) {
        record.IntroLarge = 1;
        for (auto& text : record.Reserved876) {
            text = "";
        }
        record.Reserved906 = 0;
    }
}

}  // namespace

std::int16_t boundedScoreFlag(int typed) {
    return static_cast<std::int16_t>(typed == 0 ? 255 : std::clamp(typed, 1, 255));
}

GameSettingsRecord LoadSettings(Project& project, SettingsSlice slice) {
    Settings form{};
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
