/// The security code that ties a project file to its stores.
#pragma once

#include <vector>

#include "store/project.h"

namespace quorvel::store {

/// The highest security code; the lowest is 1, and 0 is off.
inline constexpr int kHighestSecurityCode = 5000;

/// What the five stores say.
struct SecurityCheck {
    std::vector<int> mismatches;  ///< numbers of the stores whose code differs, ascending
    bool oldSettings = false;     ///< the settings predate the custom-files scheme
};

/// Opens, reads and closes each store in turn and compares its code with the project's. An empty
/// item or card store agrees with any code, and so does a missing card store. Nothing is written
/// or created; a missing store of another kind is thrown as `RuntimeError`.
SecurityCheck checkSecurity(const Project& project);

/// Writes the project's code into record 1 of every store that has one; 0 when security is off.
/// All stores are tried; the first failure is thrown at the end.
void WriteSecurity(Project& project);

}  // namespace quorvel::store
