#include "store/golden_records.h"

namespace quorvel::store::golden {
namespace {

template <std::size_t Width>
const TextField<Width>& element(const TextField<Width>& field, int) {
    return field;
}
template <std::size_t Count, std::size_t Width>
const TextField<Width>& element(const TextFields<Count, Width>& fields, int i) {
    return fields.at(static_cast<std::size_t>(i));
}
const IntField& element(const IntField& field, int) {
    return field;
}
template <std::size_t Count>
const IntField& element(const IntFields<Count>& fields, int i) {
    return fields.at(static_cast<std::size_t>(i));
}
template <class Field>
auto& changeable(Field& field, int i) {
    return const_cast<std::remove_cvref_t<decltype(element(field, i))>&>(element(field, i));
}

template <class Record, class Field>
Row<Record> textRow(int offset, int count, int width, const char* name, Field Record::*member,
                    std::vector<std::string> newTexts) {
    Row<Record> row{offset, count, width, true, name, std::move(newTexts), 0, {}, {}, {}, {}};
    row.setText = [member](Record& record, int i, const std::string& text) {
        changeable(record.*member, i) = text;
    };
    row.getText = [member](const Record& record, int i) {
        return element(record.*member, i).text();
    };
    return row;
}

template <class Record, class Field>
Row<Record> intRow(int offset, int count, const char* name, Field Record::*member,
                   std::int16_t newNumber) {
    Row<Record> row{offset, count, 2, false, name, {}, newNumber, {}, {}, {}, {}};
    row.setNumber = [member](Record& record, int i, std::int16_t number) {
        changeable(record.*member, i) = number;
    };
    row.getNumber = [member](const Record& record, int i) -> std::int16_t {
        return element(record.*member, i);
    };
    return row;
}

}  // namespace

std::string intBytes(std::int16_t number) {
    const int bits = number < 0 ? number + 65536 : number;
    return {static_cast<char>(bits % 256), static_cast<char>(bits / 256)};
}

std::string padded(const std::string& text, int width) {
    return text + std::string(static_cast<std::size_t>(width) - text.size(), ' ');
}

// clang-format off
#define STR(offset, width, field, ...) \
    textRow<R>(offset, 1, width, #field, &R::field, {__VA_ARGS__})
#define STRS(offset, count, width, field, ...) \
    textRow<R>(offset, count, width, #field, &R::field, {__VA_ARGS__})
#define INT(offset, field, value) intRow<R>(offset, 1, #field, &R::field, value)
#define INTS(offset, count, field, value) intRow<R>(offset, count, #field, &R::field, value)

template <>
std::vector<Row<ProjectRecord>> rows() {
    using R = ProjectRecord;
    return {
        STR(0, 50, Author, "Your Name Here"),
        STR(50, 50, AuthorEmail, ""),
        STR(100, 200, ProjectNotes, ""),
        INT(300, CurrentScene, 1),
        INT(302, CurrentItem, 0),
        INT(304, SecurityCode, 1),
        INT(306, ItemCount, 0),
        INT(308, LocationCount, 0),
        INT(310, ProjectVersion, 300),
        INT(312, CurrentCueCard, 0),
        INT(314, CueCardCount, 0),
        INTS(316, 10, Reserved316, 0),
        INT(336, ViewBorders, 1),
        INT(338, ViewAnimations, 0),
        INT(340, ViewLockObjects, 1),
    };
}

template <>
std::vector<Row<SceneRecord>> rows() {
    using R = SceneRecord;
    return {
        STR(0, 15, SceneName, ""),
        INT(15, SceneCheckFlagOn, 0),
        INT(17, SceneCheckFlagId, 1),
        INT(19, SceneCheckFlagTest, 0),
        INT(21, SceneCheckFlagValue, 0),
        INT(23, SceneCheckFlagTarget, 0),
        STR(25, 15, SceneImage, ""),
        STR(40, 15, SceneSoundtrack, ""),
        INT(55, SceneSoundtrackVolume, 0),
        STR(57, 15, SceneSound1File, ""),
        INT(72, SceneSound1Volume, 0),
        INT(74, SceneSound1Pan, 0),
        STR(76, 15, SceneSound2File, ""),
        INT(91, SceneSound2Volume, 0),
        INT(93, SceneSound2Pan, 0),
        STR(95, 15, SceneSound3File, ""),
        INT(110, SceneSound3Volume, 0),
        INT(112, SceneSound3Pan, 0),
        STR(114, 15, SceneEnterMovie, ""),
        INT(129, SceneEnterMovieVolume, 0),
        STR(131, 15, SceneExitMovie, ""),
        INT(146, SceneExitMovieVolume, 0),
        INT(148, SceneSetFlagOn, 0),
        INT(150, SceneSetFlagId, 1),
        INT(152, SceneSetFlagValue, 0),
        INT(154, SceneSetFlagAdd, 0),
        STRS(156, 3, 15, Reserved156, ""),
        INTS(201, 2, Reserved201, 0),
        INT(205, SecurityCode, 0),
        INT(207, LinkUpPointer, 0),
        INT(209, LinkUpTarget, 0),
        INT(211, LinkDownPointer, 0),
        INT(213, LinkDownTarget, 0),
        INT(215, LinkLeftPointer, 0),
        INT(217, LinkLeftTarget, 0),
        INT(219, LinkRightPointer, 0),
        INT(221, LinkRightTarget, 0),
        INT(223, LinkUpTop, 0),
        INT(225, LinkUpLeft, 32),
        INT(227, LinkUpWidth, 636),
        INT(229, LinkUpHeight, 33),
        INT(231, LinkDownTop, 442),
        INT(233, LinkDownLeft, 32),
        INT(235, LinkDownWidth, 636),
        INT(237, LinkDownHeight, 33),
        INT(239, LinkLeftTop, 33),
        INT(241, LinkLeftLeft, 0),
        INT(243, LinkLeftWidth, 33),
        INT(245, LinkLeftHeight, 410),
        INT(247, LinkRightTop, 33),
        INT(249, LinkRightLeft, 667),
        INT(251, LinkRightWidth, 33),
        INT(253, LinkRightHeight, 410),
    };
}

template <>
std::vector<Row<ObjectSlotRecord>> rows() {
    using R = ObjectSlotRecord;
    return {
        INT(0, SlotInt1, -1),
        INT(2, SlotInt2, 0),
        INT(4, SlotInt3, 0),
        STRS(6, 9, 15, SlotStr, ""),
        INTS(141, 26, SlotInt4To29, 0),
        INT(193, SlotInt30, 1),
        INTS(195, 6, SlotInt31To36, 0),  // in a scene the number of the slot
    };
}

template <>
std::vector<Row<GameSettingsRecord>> rows() {
    using R = GameSettingsRecord;
    return {
        STR(0, 20, GameTitle, "Untitled"),
        STR(20, 15, ClickSoundFile, ""),
        INT(35, ClickSoundVolume, 0),
        INT(37, ClickSoundPan, 0),
        STR(39, 15, InventoryFullSoundFile, ""),
        INT(54, InventoryFullSoundVolume, 0),
        INT(56, InventoryFullSoundPan, 0),
        STR(58, 15, WrongTargetSoundFile, ""),
        INT(73, WrongTargetSoundVolume, 0),
        INT(75, WrongTargetSoundPan, 0),
        INT(77, NagScreenOn, 0),
        STR(79, 15, NagImage, ""),
        INT(94, DebugWindowOn, 1),
        STR(96, 15, PlayerExeName, "Game"),
        INT(111, PlayFromCd, 0),
        STRS(113, 4, 20, DiscLabel, ""),
        INTS(193, 4, DiscFromScene, 0),
        INTS(201, 4, DiscToScene, 0),
        INT(209, MenuMusicVolume, 0),
        INT(211, MenuMusicPan, 0),
        INT(213, ButtonOverSoundVolume, 0),
        INT(215, ButtonOverSoundPan, 0),
        INT(217, SecurityCode, 0),
        STR(219, 15, MenuMusicFile, ""),
        STR(234, 15, ButtonOverSoundFile, ""),
        STR(249, 15, LogoSuppressed, ""),
        INTS(264, 5, MenuButtonOn, 1),
        INT(274, ItemToolTips, 1),
        INTS(276, 4, Reserved276, 0),
        STRS(284, 5, 15, MenuButtonPos, "240/272", "240/328", "240/384", "240/440", "240/496"),
        INTS(359, 2, GameButtonOn, 1),
        INTS(363, 2, Reserved363, 0),
        STR(367, 15, LayoutPos5, "48/56"),
        STR(382, 15, LayoutPos6, "675/0"),
        INT(397, SaveLoadOn, 1),
        INT(399, InventoryBarOn, 1),
        INT(401, ScoreOn, 0),
        INT(403, ScoreFlag, 255),
        INT(405, MaxScore, 0),
        INT(407, CloseupSizeSmall, 1),
        INT(409, Reserved409, 0),
        STR(411, 15, LayoutPos8, "48/0"),
        INT(426, Reserved426, 0),
        STR(428, 15, LayoutPos9, "610/24"),
        INT(443, Reserved443, 0),
        INT(445, ChangeResolution, 0),
        INT(447, MovieSize, 0),
        INT(449, CloseupMode, 0),
        INT(451, CustomLayoutFlag, 1),
        STR(453, 15, LayoutPos7, "688/534"),
        STR(468, 15, LayoutPos10, "48/531"),
        STR(483, 15, Reserved483, ""),
        STRS(498, 15, 15, GamePointer, ""),
        STRS(723, 3, 15, Reserved723, ""),
        INT(768, Reserved768, 2),
        INT(770, Reserved770, 0),
        STR(772, 15, Reserved772, ""),
        INT(787, Reserved787, 10000),
        STR(789, 15, OpeningLogo, ""),
        STR(804, 15, Reserved804, ""),
        INT(819, Reserved819, 0),
        STRS(821, 2, 15, Reserved821, ""),
        INT(851, CreditsScene, 0),
        INT(853, IntroOnNewGame, 1),
        INT(855, IntroOnStart, 1),
        INT(857, IntroLarge, 1),
        STR(859, 15, IntroMovie, ""),
        INT(874, IntroVolume, 10000),
        STRS(876, 2, 15, Reserved876, ""),
        INT(906, Reserved906, 0),
    };
}

template <>
std::vector<Row<ItemRecord>> rows() {
    using R = ItemRecord;
    return {
        STR(0, 15, ItemName, ""),
        STR(15, 15, ItemIcon, ""),
        STR(30, 15, ItemCursorHi, ""),
        INT(45, ItemAtStart, 0),
        INT(47, ItemCombines, 0),
        INT(49, ItemOtherItem, 0),
        INT(51, ItemNewItem, 0),
        STR(53, 15, ItemWrongSound, ""),
        INT(68, ItemWrongVolume, 0),
        INT(70, ItemWrongPan, 0),
        STR(72, 15, ItemExamineSound, ""),
        INT(87, ItemExamineVolume, 0),
        INT(89, ItemExaminePan, 0),
        INT(91, ItemCloseupOn, 0),
        STR(93, 30, ItemCloseupCaption, "Item Closeup"),
        INT(123, ItemCloseupStyle, 1),
        STR(125, 15, ItemCloseupImage, ""),
        INT(140, ItemMultiple, 1),
        INT(142, ItemReplaceOn, 0),
        INT(144, ItemReplaceWith, 0),
        INT(146, ItemAddMapOn, 0),
        INT(148, ItemMapLocation, 0),
        INT(150, ItemSetFlagOn, 0),
        INT(152, ItemSetFlagId, 1),
        INT(154, ItemSetFlagValue, 0),
        INT(156, ItemSetFlagAdd, 0),
        STR(158, 15, ItemCursor, ""),
        STR(173, 15, ItemCombineSound, ""),
        STR(188, 15, Reserved188),
        INT(203, ItemCombineVolume, 0),
        INT(205, ItemCombinePan, 0),
        INT(207, SecurityCode, 0),
    };
}

template <>
std::vector<Row<LocationRecord>> rows() {
    using R = LocationRecord;
    return {
        STR(0, 15, LocationName, ""),
        STR(15, 15, LocationImage, "(None)"),
        INT(30, LocationX, 0),
        INT(32, LocationY, 0),
        INT(34, LocationInUse, 1),
        INT(36, LocationScene, 0),
        INT(38, LocationAtStart, 0),
        INT(40, LocationPlayOn, 0),
        STR(42, 15, LocationMedia, ""),
        INT(57, LocationVolume, 0),
        INT(59, LocationPan, 0),
        STR(61, 15, MapImage, ""),
        STRS(76, 2, 15, Reserved76, ""),
        INTS(106, 2, Reserved106, 0),
        INT(110, SecurityCode, 0),
    };
}

template <>
std::vector<Row<CueCardRecord>> rows() {
    using R = CueCardRecord;
    return {
        INT(0, SecurityCode, 0),
        STR(2, 15, CardName, ""),
        STRS(17, 5, 50, ChoiceText, ""),
        INTS(267, 5, ChoiceSetFlagOn, 0),
        INTS(277, 5, ChoiceFlagId, 1),
        INTS(287, 5, ChoiceFlagValue, 0),
        INTS(297, 5, ChoiceFlagAdd, 0),
        INTS(307, 5, ChoicePlayOn, 0),
        STRS(317, 5, 15, ChoiceMedia, ""),
        INTS(392, 5, ChoiceVolume, 0),
        INTS(402, 5, ChoicePan, 0),
        STRS(412, 25, 50, Reserved412),
        INTS(1662, 25, Reserved1662, 0),
    };
}

template <>
std::vector<Row<SkinRecord>> rows() {
    using R = SkinRecord;
    return {
        INT(0, SkinVersion, 1),
        STRS(2, 10, 15, Coords, ""),
        STR(152, 15, Coords10, ""),
        STRS(167, 5, 15, Reserved167, ""),
        STRS(242, 14, 15, PointerFile, ""),
        STRS(452, 10, 15, Reserved452, ""),
        INTS(602, 5, Reserved602, 0),
    };
}
#undef STR
#undef STRS
#undef INT
#undef INTS
// clang-format on

}  // namespace quorvel::store::golden
