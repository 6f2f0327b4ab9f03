/// What an editor that was ended in the middle of its work has left in a project.
#pragma once

#include <QString>

#include "store/project.h"

namespace quorvel::shell {

/// Removes unfinished copies of files from the folders that files are brought into, as far as they
/// lie in the project. Returns a line for the author that names them; empty when there was none, or
/// when another editor may be copying at this moment.
QString removeUnfinishedCopies(const store::Project& project);

}  // namespace quorvel::shell
