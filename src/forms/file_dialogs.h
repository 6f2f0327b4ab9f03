/// The common file dialog behind an interface, so that a test can choose for the author.
#pragma once

#include <QString>

namespace quorvel::forms {

struct FileQuestion {
    QString title;
    QString filter;  ///< pairs of text and patterns, as in "Projects (*.qvl)|*.qvl|"
    QString folder;  ///< where the dialog starts
    QString fileName;
};

class FileDialogs {
  public:
    FileDialogs() = default;
    FileDialogs(const FileDialogs&) = delete;
    FileDialogs& operator=(const FileDialogs&) = delete;
    virtual ~FileDialogs() = default;

    /// Lets the author choose an existing file. The full path, or empty when the dialog was left.
    virtual QString openFile(const FileQuestion& question) = 0;

    /// Lets the author choose a folder, or make one. Its path with a separator at the end, or empty
    /// when the dialog was left. Of `question` the file name is what stands for a choice in dialogs
    /// that know files alone; the filter has no meaning.
    virtual QString chooseFolder(const FileQuestion& question) = 0;
};

/// The dialogs that an author sees.
class SystemFileDialogs : public FileDialogs {
  public:
    QString openFile(const FileQuestion& question) override;
    QString chooseFolder(const FileQuestion& question) override;
};

/// `filter` in the toolkit's own form: "Projects (*.qvl)|*.qvl|" becomes "Projects (*.qvl)".
QString toolkitFilter(const QString& filter);

}  // namespace quorvel::forms
