#include "resources/programs.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>

namespace quorvel::resources {

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
    return QFileInfo(program).isFile() && QProcess::startDetached(program, arguments, folder);
}

QString SystemPrograms::find(const QString& name) {
    return QStandardPaths::findExecutable(name);
}

bool SystemPrograms::openUrl(const QString& address) {
    return QDesktopServices::openUrl(QUrl(address));
}

}  // namespace quorvel::resources
