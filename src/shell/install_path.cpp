#include "shell/install_path.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "resources/player_file.h"
#include "resources/versions.h"
#include "shell/path_text.h"
#include "store/runtime_error.h"

namespace quorvel::shell {
namespace {

QString withSeparator(QString folder) {
    if (!folder.endsWith(QLatin1Char('/'))) {
        folder += QLatin1Char('/');
    }
    return folder;
}

/// Copies what is missing; what is there stays as the author left it.
void copyMissing(const QString& from, const QString& to) {
    QDir().mkpath(to);
    const QDir source(from);
    const auto entries = source.entryInfoList(QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot);
    for (const QFileInfo& entry : entries) {
        const QString target = QDir(to).filePath(entry.fileName());
        if (entry.isDir()) {
            copyMissing(entry.filePath(), target);
        } else if (!QFileInfo::exists(target) && QFile::copy(entry.filePath(), target)) {
            QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
        }
    }
}

/// A newer editor brings a newer player. One that the author has put there is replaced by a higher
/// version only.
void renewPlayer(const QString& program, const QString& userFolder) {
    const auto from = resources::defaultPlayerPath(withSeparator(program));
    const auto to = resources::defaultPlayerPath(withSeparator(userFolder));
    if (resources::CompareVersions(to, from)) {
        try {
            resources::copyPlayer(from, to);
        } catch (const store::RuntimeError&) {
            return;  // the older one plays as well
        }
    }
}

}  // namespace

QString ResolveInstallPath(const QString& programFolder, const QString& userFolder) {
    const QString full = GetLongFileName(programFolder);
    const QString program = full.isEmpty() ? programFolder : full;
    if (QFileInfo(program).isWritable()) {
        return withSeparator(program);
    }
    for (const char* folder : {"QuorvelDefaults", "incoming", "Skins"}) {
        const QString name = QString::fromLatin1(folder);
        copyMissing(QDir(program).filePath(name), QDir(userFolder).filePath(name));
    }
    // The help tells about the program that runs: its pages replace those of an older one.
    const QString help = QStringLiteral("help");
    QDir(QDir(userFolder).filePath(help)).removeRecursively();
    copyMissing(QDir(program).filePath(help), QDir(userFolder).filePath(help));
    renewPlayer(program, userFolder);
    return withSeparator(userFolder);
}

}  // namespace quorvel::shell
