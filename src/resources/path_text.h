/// Paths between the standard library and Qt.
#pragma once

#include <filesystem>

#include <QString>

#include "store/paths.h"

namespace quorvel::resources {

/// `path` as Qt takes it and as an author reads it.
inline QString pathText(const std::filesystem::path& path) {
    return QString::fromStdString(store::textOf(path));
}

}  // namespace quorvel::resources
