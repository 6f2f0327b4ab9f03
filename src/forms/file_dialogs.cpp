#include "forms/file_dialogs.h"

#include <algorithm>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QStringList>

#include "forms/readable_folder.h"

namespace quorvel::forms {

namespace {

/// The pairs of a filter as the toolkit wants them.
QStringList toolkitRows(const QString& filter) {
    QStringList rows;
    for (const FileKind& kind : kindsOf(filter)) {
        rows << QStringLiteral("%1 (%2)").arg(kind.caption, kind.patterns.join(QLatin1Char(' ')));
    }
    return rows;
}

}  // namespace

bool FileKind::matches(const QString& name) const {
    return QDir::match(patterns, name);
}

std::vector<FileKind> kindsOf(const QString& filter) {
    const QStringList fields = filter.split(QLatin1Char('|'), Qt::SkipEmptyParts);
    std::vector<FileKind> kinds;
    for (qsizetype i = 0; i + 1 < fields.size(); i += 2) {
        kinds.push_back({fields[i].section(QStringLiteral(" ("), 0, 0),
                         fields[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts)});
    }
    return kinds;
}

QString toolkitFilter(const QString& filter) {
    return toolkitRows(filter).join(QStringLiteral(";;"));
}

FileAnswer SystemFileDialogs::openFile(const FileQuestion& question) {
    const QStringList rows = toolkitRows(question.filter);
    QString row = rows.value(question.kind);
    const ReadableFolder folder(question.folder);
    const QString path = folder.real(QFileDialog::getOpenFileName(
        QApplication::activeWindow(), question.title,
        QDir(folder.path()).filePath(question.fileName), rows.join(QStringLiteral(";;")), &row));
    return {path, std::max(0, static_cast<int>(rows.indexOf(row)))};
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
