#include "resources/programs.h"

#include <filesystem>
#include <system_error>

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>

#include "resources/path_text.h"

namespace quorvel::resources {

namespace {

/// The working folder of this process is another while this stands.
class StandingIn {
  public:
    explicit StandingIn(const std::filesystem::path& folder)
        : before_(std::filesystem::current_path(error_)) {
        if (!error_) {
            std::filesystem::current_path(folder, error_);
        }
    }
    ~StandingIn() {
        std::error_code ignored;
        std::filesystem::current_path(before_, ignored);
    }
    StandingIn(const StandingIn&) = delete;
    StandingIn& operator=(const StandingIn&) = delete;

    [[nodiscard]] bool isThere() const { return !error_; }

  private:
    std::error_code error_;
    std::filesystem::path before_;
};

/// `path` from within `folder`, which ends in a separator; a path that lies elsewhere as it is.
QString seenFrom(const QString& folder, const QString& path) {
    return path.startsWith(folder) ? QStringLiteral("./") + path.mid(folder.size()) : path;
}

}  // namespace

bool SystemPrograms::start(const QString& commandLine) {
    const QString line = commandLine.trimmed();
    // A bare path may hold blanks without quotes.
    if (QFileInfo(line).isFile()) {
        return QProcess::startDetached(line, {});
    }
    QStringList words = QProcess::splitCommand(line);
    if (words.isEmpty()) {
        return false;
    }
    const QString program = words.takeFirst();
    return QProcess::startDetached(program, words);
}

bool SystemPrograms::run(const QString& program, const QStringList& arguments,
                         const QString& folder) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(pathOf(program), error)) {
        return false;
    }
    if (folder.isValidUtf16()) {
        return QProcess::startDetached(program, arguments, folder);
    }
    // Qt cannot name such a folder, but a process begins where its parent is.
    const StandingIn here(pathOf(folder));
    QStringList shortened;
    for (const QString& argument : arguments) {
        shortened << seenFrom(folder, argument);
    }
    return here.isThere() && QProcess::startDetached(seenFrom(folder, program), shortened);
}

QString SystemPrograms::find(const QString& name) {
    return QStandardPaths::findExecutable(name);
}

bool SystemPrograms::openUrl(const QString& address) {
    return QDesktopServices::openUrl(QUrl(address));
}

}  // namespace quorvel::resources
