#include "forms/file_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QStringList>

#include "forms/readable_folder.h"

namespace quorvel::forms {

QString toolkitFilter(const QString& filter) {
    const QStringList fields = filter.split(QLatin1Char('|'), Qt::SkipEmptyParts);
    QStringList rows;
    for (qsizetype i = 0; i + 1 < fields.size(); i += 2) {
        QString patterns = fields[i + 1];
        patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
        const QString caption = fields[i].section(QStringLiteral(" ("), 0, 0);
        rows << QStringLiteral("%1 (%2)").arg(caption, patterns);
    }
    return rows.join(QStringLiteral(";;"));
}

QString SystemFileDialogs::openFile(const FileQuestion& question) {
    const ReadableFolder folder(question.folder);
    return folder.real(QFileDialog::getOpenFileName(QApplication::activeWindow(), question.title,
                                                    QDir(folder.path()).filePath(question.fileName),
                                                    toolkitFilter(question.filter)));
}

QString SystemFileDialogs::chooseFolder(const FileQuestion& question) {
    // Files are shown, so that the author sees whether a folder is empty.
    const ReadableFolder start(question.folder.isEmpty() ? QDir::homePath() : question.folder);
    QString folder = start.real(QFileDialog::getExistingDirectory(
        QApplication::activeWindow(), question.title, start.path(), QFileDialog::Options()));
    if (!folder.isEmpty() && !folder.endsWith(QLatin1Char('/'))) {
        folder += QLatin1Char('/');
    }
    return folder;
}

}  // namespace quorvel::forms
