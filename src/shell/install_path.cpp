#include "shell/install_path.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "shell/path_text.h"

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

}  // namespace

QString ResolveInstallPath(const QString& programFolder, const QString& userFolder) {
    const QString full = GetLongFileName(programFolder);
    const QString program = full.isEmpty() ? programFolder : full;
    if (QFileInfo(program).isWritable()) {
        return withSeparator(program);
    }
    for (const char* folder : {"QuorvelDefaults", "incoming", "Skins", "help"}) {
        const QString name = QString::fromLatin1(folder);
        copyMissing(QDir(program).filePath(name), QDir(userFolder).filePath(name));
    }
    return withSeparator(userFolder);
}

}  // namespace quorvel::shell
