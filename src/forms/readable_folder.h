/// A folder for file dialogs, which cannot name or list one whose name is no valid text.
#pragma once

#include <memory>

#include <QString>
#include <QTemporaryDir>

namespace quorvel::forms {

/// Stands in for a folder while a dialog is open. A folder with a readable path stands for itself;
/// any other is reached through a link in a temporary folder.
class ReadableFolder {
  public:
    /// `folder` as a text of `resources/path_text.h`.
    explicit ReadableFolder(const QString& folder);

    /// Where a dialog finds the folder.
    [[nodiscard]] const QString& path() const { return path_; }
    /// The path of what was chosen in a dialog that began at `path()`.
    [[nodiscard]] QString real(const QString& chosen) const;

  private:
    QString folder_;
    QString path_;
    std::unique_ptr<QTemporaryDir> linkFolder_;
};

}  // namespace quorvel::forms
