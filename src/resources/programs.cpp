#include "resources/programs.h"

#include <QFileInfo>
#include <QProcess>
#include <QStringList>

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

}  // namespace quorvel::resources
