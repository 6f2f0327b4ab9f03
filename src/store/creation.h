/// The files of a new project.
#pragma once

#include "store/project.h"

namespace quorvel::store {

/// Makes the folders `resource`, `resource/gfx` and `resource/mmedia` in the project folder. One
/// that exists, in any letter case, is an error.
void makeProjectFolders(const Project& project);

/// Creates the five stores with their first records: one new scene, one blank location record
/// without a picture, no item, the settings of a new game, no card. They are closed again.
void WriteNewStores(const Project& project);

}  // namespace quorvel::store
