/// Paths between the standard library and Qt, without loss.
///
/// A name on disk may hold bytes that are no UTF-8. In a `QString` such a byte stands as a half of
/// a surrogate pair, U+DC80 to U+DCFF, which no valid text holds, and on its way back it is the
/// same byte again. Qt's own classes for files cannot reach such a path: what may lie in a project
/// goes through the routines here and the standard library.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include <QFile>
#include <QString>
#include <QStringList>

namespace quorvel::resources {

/// A path as Qt takes it and as an author reads it.
QString pathText(const std::filesystem::path& path);
/// The same for the bytes of a path, as the store keeps them.
QString bytesText(std::string_view path);

/// The path of such a text, and the same as the store keeps it.
std::filesystem::path pathOf(const QString& text);
std::string pathBytes(const QString& text);

/// `path` as plain text for places that keep no halves of pairs, and back: a path that is no valid
/// text becomes a "file" URL, all others stay as they are.
QString storedPath(const QString& path);
QString fromStoredPath(const QString& stored);

/// Opens the file at `path` for reading alone; `file` has no file yet. False when that failed.
bool openToRead(QFile& file, const std::filesystem::path& path);

}  // namespace quorvel::resources
