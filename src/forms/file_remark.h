/// What an author should know of a file that a field has taken all the same.
#pragma once

#include <filesystem>

#include <QString>

namespace quorvel::forms {

/// What is odd about `file`: its ending stands in no pair of `filter`, or what it holds does not
/// fit its ending. Empty when nothing is. Reads the beginning of the file and never throws.
QString remarkOn(const std::filesystem::path& file, const QString& filter);

/// What to say when the preview cannot `verb`, play or show, the file `name` because of `reason`, a
/// sentence.
QString previewRemark(const QString& verb, const QString& name, const QString& reason,
                      const QString& filter);

}  // namespace quorvel::forms
