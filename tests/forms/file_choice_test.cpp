#include "forms/file_choice.h"

#include <gtest/gtest.h>

#include "forms/intake_boxes.h"
#include "resources/path_text.h"
#include "support/file_bytes.h"
#include "support/temp_folder.h"
#include "support/windows/played_author.h"

namespace quorvel::forms {
namespace {

namespace fs = std::filesystem;
using store::ResourceFolder;
using test::readBytes;
using test::writeBytes;

QString folderText(const fs::path& path) {
    return resources::pathText(path) + QLatin1Char('/');
}

class FileChoosing : public testing::Test {
  protected:
    FileChoosing() {
        project.ProjectFolder = store::textOf(folder.path() / "game") + "/";
        rules.InstallPath = folderText(folder / "editor");
        rules.WrongFolder = 1;
        writeBytes(pictures / "coin.gif", "new");
    }
    /// The author chooses `file`; what the field gets.
    std::optional<QString> choose(const fs::path& file, const FileField& field) {
        dialogs.choice = resources::pathText(file);
        const auto chosen = choice.choose(field);
        remark = chosen ? chosen->remark : QString();
        return chosen ? std::optional(chosen->name) : std::nullopt;
    }
    std::optional<QString> chooseImage(const fs::path& file, const QString& current = {}) {
        return choose(file, {.title = QStringLiteral("Locate an image for this object"),
                             .filter = filters::kImages,
                             .folder = ResourceFolder::gfx,
                             .current = current});
    }
    std::optional<QString> chooseSound(const fs::path& file, const QString& current = {}) {
        return choose(file, {.filter = filters::kSounds, .current = current});
    }
    [[nodiscard]] QString startedIn() const { return dialogs.asked.back().folder; }

    QString remark;  ///< on the file that was chosen last
    test::TempFolder folder;
    fs::path gfx = folder.makeFolder("game/resource/gfx");
    fs::path mmedia = folder.makeFolder("game/resource/mmedia");
    fs::path incoming = folder.makeFolder("editor/incoming");
    fs::path pictures = folder.makeFolder("pictures");
    store::Project project;
    resources::IntakeRules rules;
    test::PlayedBoxes boxes;
    test::PlayedDialogs dialogs;
    IntakeBoxes questions{boxes};
    resources::Intake intake{project, [this] { return rules; }, questions};
    FileChoice choice{dialogs, intake};
};

TEST_F(FileChoosing, TheDialogBearsTitleFilterAndTheProjectsFolder) {
    EXPECT_EQ(chooseImage({}), std::nullopt);
    const FileQuestion& image = dialogs.asked.back();
    EXPECT_EQ(image.title, QStringLiteral("Locate an image for this object"));
    EXPECT_EQ(image.filter,
              QStringLiteral("GIF Files (*.gif)|*.gif|JPG Files (*.jpg)|*.jpg|Bitmap Files (*.bmp)"
                             "|*.bmp|All supported Files (*.gif;*.jpg;*.bmp)|*.gif;*.jpg;*.bmp|"));
    EXPECT_EQ(image.folder, folderText(gfx));
    EXPECT_EQ(image.fileName, QString());

    EXPECT_EQ(chooseSound({}), std::nullopt);
    const FileQuestion& sound = dialogs.asked.back();
    EXPECT_EQ(sound.title, QStringLiteral("Locate"));
    EXPECT_EQ(sound.filter, QStringLiteral("Wav Files (*.wav)|*.wav|"));
    EXPECT_EQ(sound.folder, folderText(mmedia));
    EXPECT_TRUE(boxes.shown().empty()) << "leaving a dialog is no fault";
}

TEST_F(FileChoosing, TheFieldGetsTheBareNameAndTheProjectTheFile) {
    EXPECT_EQ(chooseImage(pictures / "coin.gif"), QStringLiteral("coin.gif"));
    EXPECT_EQ(readBytes(gfx / "coin.gif"), "new");
    writeBytes(incoming / "ding.wav", "ding");
    EXPECT_EQ(chooseSound(incoming / "ding.wav"), QStringLiteral("ding.wav"));
    EXPECT_EQ(readBytes(mmedia / "ding.wav"), "ding");
    EXPECT_FALSE(fs::exists(incoming / "ding.wav"));
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(FileChoosing, TheFirstDialogOfAKindGoesByTheOption) {
    rules.DefaultFolder = 2;
    chooseImage({});
    EXPECT_EQ(startedIn(), folderText(incoming));
    chooseSound({});
    EXPECT_EQ(startedIn(), folderText(incoming)) << "the first of its kind";
    chooseImage({});
    EXPECT_EQ(startedIn(), folderText(incoming)) << "the author stayed there";
}

TEST_F(FileChoosing, LaterDialogsBeginWhereTheAuthorLastWas) {
    rules.DefaultFolder = 2;
    chooseImage(pictures / "coin.gif");
    chooseImage({});
    EXPECT_EQ(startedIn(), folderText(pictures));
    chooseSound({});
    EXPECT_EQ(startedIn(), folderText(incoming)) << "sounds have a place of their own";
    chooseImage(gfx / "coin.gif");
    chooseImage({});
    EXPECT_EQ(startedIn(), folderText(gfx));
}

TEST_F(FileChoosing, ARefusedFileWasStillALook) {
    writeBytes(pictures / "much_too_long_a_name.gif", "x");
    EXPECT_EQ(chooseImage(pictures / "much_too_long_a_name.gif"), std::nullopt);
    chooseImage({});
    EXPECT_EQ(startedIn(), folderText(pictures));
}

TEST_F(FileChoosing, AFolderThatIsGoneIsNoPlaceToBegin) {
    chooseImage(pictures / "coin.gif");
    fs::remove_all(pictures);
    chooseImage({});
    EXPECT_EQ(startedIn(), folderText(gfx));
    rules.DefaultFolder = 2;
    writeBytes(folder.makeFolder("more") / "key.gif", "x");
    chooseImage(folder / "more/key.gif");
    fs::remove_all(folder / "more");
    chooseImage({});
    EXPECT_EQ(startedIn(), folderText(incoming));
}

TEST_F(FileChoosing, AnotherProjectHasAnotherFolder) {
    chooseImage({});
    const fs::path other = folder.makeFolder("other/resource/gfx");
    project.ProjectFolder = store::textOf(folder.path() / "other") + "/";
    chooseImage({});
    EXPECT_EQ(startedIn(), folderText(other));
}

TEST_F(FileChoosing, ADialogShowsTheFileOfItsField) {
    rules.DefaultFolder = 2;
    writeBytes(gfx / "Coin.gif", "x");
    chooseImage({}, QStringLiteral("coin.GIF"));
    EXPECT_EQ(startedIn(), folderText(gfx)) << "a file in use lies in the project";
    EXPECT_EQ(dialogs.asked.back().fileName, QStringLiteral("Coin.gif")) << "as spelt on disk";
    chooseImage({}, QStringLiteral("gone.gif"));
    EXPECT_EQ(dialogs.asked.back().fileName, QStringLiteral("gone.gif"));
    chooseImage({});
    EXPECT_EQ(startedIn(), folderText(incoming)) << "the first with an empty field";
}

TEST_F(FileChoosing, ADamagedFieldCountsAsEmpty) {
    for (const char* name : {"/etc/passwd", "../secret", "..", "a\\b.gif"}) {
        chooseImage({}, QString::fromLatin1(name));
        EXPECT_EQ(startedIn(), folderText(gfx));
        EXPECT_EQ(dialogs.asked.back().fileName, QString()) << name;
    }
}

TEST_F(FileChoosing, FifteenCharactersAreTheMost) {
    writeBytes(pictures / "elevenchars.gif", "x");
    writeBytes(incoming / "twelve_chars.gif", "x");
    EXPECT_EQ(chooseImage(pictures / "elevenchars.gif"), QStringLiteral("elevenchars.gif"));
    boxes.answer(Answer::ok);
    EXPECT_EQ(chooseImage(incoming / "twelve_chars.gif"), std::nullopt);
    EXPECT_EQ(boxes.texts(),
              QStringList{QStringLiteral(
                  "Quorvel only supports filenames up to 11 characters long (15 including the .xxx "
                  "extension).\n\nThe file you chose exceeds that limit.  Please rename the file "
                  "and try again.")});
    EXPECT_TRUE(fs::exists(incoming / "twelve_chars.gif"))
        << "the name is looked at before the file is taken";
}

TEST_F(FileChoosing, AFileWithALongNameIsTakenUnderAShorterOne) {
    writeBytes(pictures / "twelve_chars.gif", "GIF89a twelve");
    boxes.answer(Answer::other);
    EXPECT_EQ(chooseImage(pictures / "twelve_chars.gif"), QStringLiteral("twelve_char.gif"));
    EXPECT_EQ(boxes.shown().back().other, QStringLiteral("Use \"twelve_char.gif\""));
    EXPECT_EQ(boxes.shown().back().buttons, Box::Buttons::ok);
    EXPECT_EQ(readBytes(gfx / "twelve_char.gif"), "GIF89a twelve");
    EXPECT_TRUE(fs::exists(pictures / "twelve_chars.gif")) << "copied";
    EXPECT_FALSE(fs::exists(gfx / "twelve_chars.gif"));
    EXPECT_EQ(remark, QString());

    writeBytes(incoming / "TWELVE_CHARS.gif", "GIF89a other");
    boxes.answer(Answer::other);
    EXPECT_EQ(chooseImage(incoming / "TWELVE_CHARS.gif"), QStringLiteral("TWELVE_CHA2.gif"));
    EXPECT_EQ(readBytes(gfx / "TWELVE_CHA2.gif"), "GIF89a other");
    EXPECT_EQ(readBytes(gfx / "twelve_char.gif"), "GIF89a twelve") << "nothing is replaced";
    EXPECT_FALSE(fs::exists(incoming / "TWELVE_CHARS.gif")) << "moved out of Incoming";
}

TEST_F(FileChoosing, TheFirstDialogShowsTheFirstKindLaterOnesTheOneChosenLast) {
    writeBytes(gfx / "coin.gif", "GIF89a");
    const auto shown = [this] { return dialogs.asked.back().kind; };
    dialogs.kind = 2;
    chooseImage({});
    EXPECT_EQ(shown(), 0) << "GIF";
    chooseImage({});
    EXPECT_EQ(shown(), 0) << "a dialog that was left has chosen nothing";
    chooseImage(gfx / "coin.gif");
    EXPECT_EQ(shown(), 0);
    chooseImage({});
    EXPECT_EQ(shown(), 2) << "bitmaps";
    chooseSound({});
    EXPECT_EQ(shown(), 0) << "there are no bitmaps among sounds";
    choose({}, {.filter = filters::kBackgrounds, .folder = ResourceFolder::gfx});
    EXPECT_EQ(shown(), 0) << "bitmaps stand first here";
    dialogs.kind = 3;
    chooseImage(gfx / "coin.gif");
    choose({}, {.filter = filters::kBackgrounds, .folder = ResourceFolder::gfx});
    EXPECT_EQ(shown(), 3) << "all of them, though in another order";
}

TEST_F(FileChoosing, AFieldWithAFileOfAnotherKindShowsItsOwn) {
    writeBytes(gfx / "coin.gif", "GIF89a");
    const auto shown = [this] { return dialogs.asked.back().kind; };
    chooseImage({}, QStringLiteral("door.bmp"));
    EXPECT_EQ(shown(), 0) << "the first of all";
    dialogs.kind = 1;
    chooseImage(gfx / "coin.gif");
    chooseImage({}, QStringLiteral("Door.BMP"));
    EXPECT_EQ(shown(), 2);
    chooseImage({}, QStringLiteral("door.jpg"));
    EXPECT_EQ(shown(), 1) << "the one that was chosen last";
    chooseImage({}, QStringLiteral("door.tif"));
    EXPECT_EQ(shown(), 1) << "no kind is its own";
    dialogs.kind = 3;
    chooseImage(gfx / "coin.gif");
    chooseImage({}, QStringLiteral("door.bmp"));
    EXPECT_EQ(shown(), 3) << "it is among all";
}

TEST_F(FileChoosing, WhatIsOddAboutAFileIsSaidAndTheFileTaken) {
    writeBytes(pictures / "coin.tif", "II*");
    EXPECT_EQ(chooseImage(pictures / "coin.tif"), QStringLiteral("coin.tif"));
    EXPECT_TRUE(fs::exists(gfx / "coin.tif"));
    EXPECT_EQ(remark,
              QStringLiteral("\"coin.tif\" was taken, but a player may not know its ending. "
                             " Every player knows .gif, .jpg and .bmp."));
    writeBytes(pictures / "coin.bmp", "GIF89a");
    EXPECT_EQ(chooseImage(pictures / "coin.bmp"), QStringLiteral("coin.bmp"));
    EXPECT_EQ(remark, QStringLiteral("\"coin.bmp\" was taken, but it holds a GIF picture and not a "
                                     "bitmap.  Every player knows .gif, .jpg and .bmp."));
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(FileChoosing, ARefusalLeavesTheField) {
    writeBytes(gfx / "coin.gif", "old");
    boxes.answer(Answer::no);
    EXPECT_EQ(chooseImage(pictures / "coin.gif"), std::nullopt);
    EXPECT_EQ(readBytes(gfx / "coin.gif"), "old");
    boxes.answer(Answer::yes);
    EXPECT_EQ(chooseImage(pictures / "coin.gif"), QStringLiteral("coin.gif"));
    EXPECT_EQ(readBytes(gfx / "coin.gif"), "new");
}

TEST_F(FileChoosing, TheFolderMayFollowFromTheName) {
    writeBytes(pictures / "logo.avi", "film");
    const FileField logo{.filter = filters::kLogos,
                         .folder = ResourceFolder::mmedia,
                         .folderOf = [](const QString& name) {
                             return name.endsWith(QLatin1String("gif")) ? ResourceFolder::gfx
                                                                        : ResourceFolder::mmedia;
                         }};
    EXPECT_EQ(choose(pictures / "logo.avi", logo), QStringLiteral("logo.avi"));
    EXPECT_EQ(choose(pictures / "coin.gif", logo), QStringLiteral("coin.gif"));
    EXPECT_TRUE(fs::exists(mmedia / "logo.avi"));
    EXPECT_TRUE(fs::exists(gfx / "coin.gif"));
    EXPECT_FALSE(fs::exists(mmedia / "coin.gif"));
}

TEST_F(FileChoosing, TheFiltersAreThoseOfTheWindows) {
    EXPECT_EQ(
        filters::kSoundtracks,
        QStringLiteral("MP3 Files (*.mp3)|*.mp3|Wav Files (*.wav)|*.wav|Midi Files (*.mid)|"
                       "*.mid|MP3, Wav and Midi Files (*.mp3;*.wav;*.mid)|*.mp3;*.wav;*.mid|"));
    EXPECT_EQ(toolkitFilter(filters::kSoundtracks),
              QStringLiteral("MP3 Files (*.mp3);;Wav Files (*.wav);;Midi Files (*.mid);;"
                             "MP3, Wav and Midi Files (*.mp3 *.wav *.mid)"));
    EXPECT_EQ(filters::kMovies,
              QStringLiteral("AVI Files (*.avi)|*.avi|MPG Files (*.mpg)|*.mpg|All Supported Files "
                             "(*.avi;*.mpg)|*.avi;*.mpg|"));
    EXPECT_EQ(filters::kBackgrounds,
              QStringLiteral("Bitmap Files (*.bmp)|*.bmp|GIF Files (*.gif)|*.gif|JPG Files (*.jpg)"
                             "|*.jpg|All supported Files (*.bmp;*.gif;*.jpg)|*.bmp;*.gif;*.jpg|"));
    EXPECT_EQ(filters::kSoundsAndMovies,
              QStringLiteral("WAV Files (*.wav)|*.wav|AVI Files (*.avi)|*.avi|MPG Files (*.mpg)|"
                             "*.mpg|All Supported Files (*.wav;*.avi;*.mpg)|*.wav;*.avi;*.mpg|"));
    EXPECT_EQ(filters::kLogos,
              QStringLiteral("GIF Files (*.gif)|*.gif|AVI Files (*.avi)|*.avi|MPG Files (*.mpg)|"
                             "*.mpg|All Supported Files (*.gif;*.avi;*.mpg)|*.gif;*.avi;*.mpg|"));
    EXPECT_EQ(filters::kCursors,
              QStringLiteral("CURSORS (*.cur)|*.cur|ICONS (*.ico)|*.ico|ICONS and CURSORS "
                             "(*.cur;*.ico)|*.cur;*.ico|"));
    EXPECT_EQ(filters::kIcons, QStringLiteral("ICONS (*.ico)|*.ico|"));
    EXPECT_EQ(filters::kTriggerSounds, QStringLiteral("WAV Files (*.wav)|*.wav|"));
}

}  // namespace
}  // namespace quorvel::forms
