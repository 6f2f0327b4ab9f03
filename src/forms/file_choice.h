/// The one way in which a window lets the author choose a file for a field.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>

#include <QString>

#include "forms/file_dialogs.h"
#include "resources/intake.h"
#include "store/paths.h"

namespace quorvel::forms {

// The filters of the dialogs, by what a field takes.
namespace filters {
inline const QString kSounds = QStringLiteral("Wav Files (*.wav)|*.wav|");
inline const QString kTriggerSounds = QStringLiteral("WAV Files (*.wav)|*.wav|");
inline const QString kSoundtracks = QStringLiteral(
    "MP3 Files (*.mp3)|*.mp3|Wav Files (*.wav)|*.wav|Midi Files (*.mid)|*.mid|"
    "MP3, Wav and Midi Files (*.mp3;*.wav;*.mid)|*.mp3;*.wav;*.mid|");
inline const QString kMovies = QStringLiteral(
    "AVI Files (*.avi)|*.avi|MPG Files (*.mpg)|*.mpg|"
    "All Supported Files (*.avi;*.mpg)|*.avi;*.mpg|");
inline const QString kSoundsAndMovies = QStringLiteral(
    "WAV Files (*.wav)|*.wav|AVI Files (*.avi)|*.avi|MPG Files (*.mpg)|*.mpg|"
    "All Supported Files (*.wav;*.avi;*.mpg)|*.wav;*.avi;*.mpg|");
inline const QString kImages = QStringLiteral(
    "GIF Files (*.gif)|*.gif|JPG Files (*.jpg)|*.jpg|Bitmap Files (*.bmp)|*.bmp|"
    "All supported Files (*.gif;*.jpg;*.bmp)|*.gif;*.jpg;*.bmp|");
/// The pictures of scenes and of the map, bitmaps first.
inline const QString kBackgrounds = QStringLiteral(
    "Bitmap Files (*.bmp)|*.bmp|GIF Files (*.gif)|*.gif|JPG Files (*.jpg)|*.jpg|"
    "All supported Files (*.bmp;*.gif;*.jpg)|*.bmp;*.gif;*.jpg|");
inline const QString kLogos = QStringLiteral(
    "GIF Files (*.gif)|*.gif|AVI Files (*.avi)|*.avi|MPG Files (*.mpg)|*.mpg|"
    "All Supported Files (*.gif;*.avi;*.mpg)|*.gif;*.avi;*.mpg|");
inline const QString kIcons = QStringLiteral("ICONS (*.ico)|*.ico|");
inline const QString kCursors = QStringLiteral(
    "CURSORS (*.cur)|*.cur|ICONS (*.ico)|*.ico|ICONS and CURSORS (*.cur;*.ico)|*.cur;*.ico|");
}  // namespace filters

/// The title of the dialogs that have none of their own.
inline const QString kLocate = QStringLiteral("Locate");

/// What a window asks for.
struct FileField {
    QString title = kLocate;
    QString filter;
    /// Where the file has to lie: the dialog's starting folder, and the file's way into the
    /// project.
    store::ResourceFolder folder = store::ResourceFolder::mmedia;
    QString current =
        {};  ///< what the field holds; a text that is no file's name is given as empty
    /// For a field that takes files of both folders: the folder of the chosen name. Optional.
    std::function<store::ResourceFolder(const QString& name)> folderOf = {};
};

/// What the author has chosen.
struct ChosenFile {
    QString name;         ///< the bare name for the field
    QString remark = {};  ///< what is odd about the file; it was taken all the same
};

/// Owned by the shell, for the life of the process: it knows where the author last was. Dialogs and
/// gate must outlive it.
///
/// A dialog begins where the file lies that its field holds. For an empty field the first dialog
/// for a folder begins where the editor options say, each later one where the author last chose.
///
/// The first dialog of all shows the first kind of files of its filter, each later one the kind
/// that was chosen last. Where its filter has no such kind, or the file in the field is of another,
/// it shows the field's own.
class FileChoice {
  public:
    FileChoice(FileDialogs& dialogs, resources::Intake& intake)
        : dialogs_(dialogs), intake_(intake) {}

    /// Lets the author choose a file, checks its name and brings it into the project. Nothing when
    /// the field keeps what it holds: the author either has left the dialog or knows why.
    std::optional<ChosenFile> choose(const FileField& field);

  private:
    /// The project's folder is no fixed place: it is another one for each project.
    struct Place {
        bool inProject = false;
        std::filesystem::path folder;
    };
    [[nodiscard]] std::filesystem::path startingFolder(store::ResourceFolder kind,
                                                       bool empty) const;
    void remember(store::ResourceFolder kind, const std::filesystem::path& folder);
    [[nodiscard]] int firstKind(const FileField& field, const QString& current) const;
    std::optional<ChosenFile> take(const FileField& field, const QString& path);

    FileDialogs& dialogs_;
    resources::Intake& intake_;
    std::map<store::ResourceFolder, Place> last_;
    bool hasAsked_ = false;  // a dialog was shown in this run
    QStringList lastKind_;   // the patterns of the kind that was chosen last, sorted
};

}  // namespace quorvel::forms
