/// The common file dialog behind an interface, so that a test can choose for the author.
#pragma once

#include <vector>

#include <QString>
#include <QStringList>

namespace quorvel::forms {

struct FileQuestion {
    QString title;
    QString filter;  ///< pairs of text and patterns, as in "Projects (*.qvl)|*.qvl|"
    QString folder;  ///< where the dialog starts
    QString fileName;
    int kind = 0;  ///< which of the pairs is chosen at first, from 0
};

struct FileAnswer {
    QString path;  ///< the full path, or empty when the dialog was left
    int kind = 0;  ///< the pair that was chosen when it was left
};

/// One pair of a filter, as "Projects (*.qvl)|*.qvl|" has one.
struct FileKind {
    QString caption;       ///< without its patterns
    QStringList patterns;  ///< such as "*.qvl"

    /// Whether a file of this name is of the kind, in any letter case.
    [[nodiscard]] bool matches(const QString& name) const;
};
std::vector<FileKind> kindsOf(const QString& filter);

class FileDialogs {
  public:
    FileDialogs() = default;
    FileDialogs(const FileDialogs&) = delete;
    FileDialogs& operator=(const FileDialogs&) = delete;
    virtual ~FileDialogs() = default;

    /// Lets the author choose an existing file.
    virtual FileAnswer openFile(const FileQuestion& question) = 0;

    /// Lets the author choose a folder, or make one. Its path with a separator at the end, or empty
    /// when the dialog was left. Of `question` the file name is what stands for a choice in dialogs
    /// that know files alone; the filter has no meaning.
    virtual QString chooseFolder(const FileQuestion& question) = 0;
};

/// The dialogs that an author sees.
class SystemFileDialogs : public FileDialogs {
  public:
    FileAnswer openFile(const FileQuestion& question) override;
    QString chooseFolder(const FileQuestion& question) override;
};

/// `filter` in the toolkit's own form: "Projects (*.qvl)|*.qvl|" becomes "Projects (*.qvl)".
QString toolkitFilter(const QString& filter);

}  // namespace quorvel::forms
