/// The gate through which every file that an author chooses comes into the project.
///
/// What it has to ask or tell goes through `IntakeQuestions`, so that it stands below the windows.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>

#include <QString>

#include "resources/file_names.h"
#include "store/paths.h"
#include "store/project.h"
#include "store/runtime_error.h"

namespace quorvel::resources {

/// True when `path`, in any letter case, is a file that can be read as one: no folder, pipe or
/// device. "*" and "?" are characters like others; an empty name does not exist, nor does a file
/// that cannot be asked for.
bool FileExists(const QString& path);

/// The one form of a path by which two spellings of the same place are known: without links and
/// detours. The path itself where there is no such place.
std::filesystem::path GetShortName(const std::filesystem::path& path);

/// The author's answer to the question whether to copy or to move a file.
enum class Pick : std::int16_t { none = 0, copy = 1, move = 2 };

/// What the author chose in the editor options, as it is now.
struct IntakeRules {
    int DefaultFolder = 1;       ///< 1 the project's resource folder, 2 Incoming
    int WrongFolder = 3;         ///< 1 copy, 2 move, 3 ask
    QString InstallPath;         ///< with a separator at its end
    bool DebugMessages = false;  ///< tells too when nothing had to be done
};

/// Something that the author has to know.
struct IntakeNotice {
    enum class What : std::uint8_t {
        nameTooLong,         ///< `name`
        nameUnfit,           ///< `name`, `fault`
        sourceMissing,       ///< `file`
        sourceIsLink,        ///< `file`
        sourceIsFolder,      ///< `file`
        sourceIsDevice,      ///< `file`, a pipe or a device
        targetIsFolder,      ///< `file` stands where a file shall go
        onlyLooking,         ///< `name` cannot be taken in: the author only looks on
        notCopied,           ///< `name`; `file` refused with `error`
        sourceNotDeleted,    ///< `name` was copied, `file` could not be deleted, `error`
        wrongFolderUnknown,  ///< no such choice in the editor options
        correctFolder,       ///< `folder` is where the file lay
    };

    What what = What::notCopied;
    QString name = {};
    NameFault fault = NameFault::none;
    std::filesystem::path file = {};
    store::ErrorNumber error = store::ErrorNumber::deviceError;
    store::ResourceFolder folder = store::ResourceFolder::gfx;
};

/// The author, as the gate sees them.
class IntakeQuestions {
  public:
    IntakeQuestions() = default;
    IntakeQuestions(const IntakeQuestions&) = delete;
    IntakeQuestions& operator=(const IntakeQuestions&) = delete;
    virtual ~IntakeQuestions() = default;

    virtual void tell(const IntakeNotice& notice) = 0;
    /// May the file `name`, which exists, be replaced?
    virtual bool mayReplace(const QString& name) = 0;
    /// `name` is too long. Shall the file be taken in under the name `shorter`, which is free?
    virtual bool useShorter(const QString& name, const QString& shorter) = 0;
    virtual Pick copyOrMove() = 0;
    /// Called while `name` is copied, with bytes done and in all, and once more before the source
    /// of a move is deleted. Lets pending events run.
    virtual void working(const QString& name, std::uintmax_t done, std::uintmax_t total) = 0;
};

/// Everything named in the constructor must outlive the gate.
class Intake {
  public:
    /// `rules` is asked each time, so that a change of the options counts at once.
    Intake(const store::Project& project, std::function<IntakeRules()> rules,
           IntakeQuestions& questions);

    /// True when a field can hold the bare name `name`. What is wrong with it is told.
    bool CheckFileName(const QString& name);

    /// The name under which a field of the folder `kind` can hold the file `name`: its own, or
    /// where that is too long a shorter one that the author agrees to. Empty when there is none;
    /// the author knows why.
    QString nameInField(const QString& name, store::ResourceFolder kind);

    /// Brings the file `fullPath` into the project's folder `kind`, where it does not lie there
    /// already: out of Incoming it is moved without a question, out of any other folder it goes as
    /// the editor options say. True when the bare name may be used; otherwise the author has been
    /// told or has refused, and all files are as before.
    ///
    /// `as` gives it another name there, under which nothing is replaced without a question; a file
    /// that lies there already is copied to it.
    bool CheckFileLoc(const QString& fullPath, store::ResourceFolder kind, const QString& as = {});

    /// True when nothing stands at `target` in any letter case, or when the author lets it go.
    bool CheckReplace(const std::filesystem::path& target);

    [[nodiscard]] IntakeRules rules() const { return rules_(); }
    [[nodiscard]] std::filesystem::path projectFolder() const { return project_.folder(); }
    /// The project's folder for files of that kind, as spelt on disk.
    [[nodiscard]] std::filesystem::path targetFolder(store::ResourceFolder kind) const;
    /// The folder "incoming" beside the editor, as spelt on disk.
    [[nodiscard]] std::filesystem::path incomingFolder() const;

  private:
    /// One file on its way.
    struct Way {
        std::filesystem::path source;
        std::filesystem::path target;
        QString name;
    };

    [[nodiscard]] bool isIncoming(const std::filesystem::path& folder) const;
    bool checkFitness(const QString& name);
    bool checkSource(const std::filesystem::path& source);
    bool takeByRules(const Way& way);
    bool takeAsChosen(const Way& way, Pick pick);
    bool copy(const Way& way);
    bool move(const Way& way);

    const store::Project& project_;
    std::function<IntakeRules()> rules_;
    IntakeQuestions& questions_;
};

}  // namespace quorvel::resources
