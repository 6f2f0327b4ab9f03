#include "shell/leftovers.h"

#include <QStringList>

#include "resources/path_text.h"
#include "resources/safe_copy.h"
#include "store/file_attributes.h"
#include "store/paths.h"

namespace quorvel::shell {

QString removeUnfinishedCopies(const store::Project& project) {
    if (project.InUseElsewhere || project.LookingOn) {
        return {};
    }
    const std::filesystem::path base = project.folder();
    QStringList names;
    for (const std::filesystem::path& folder :
         {base, store::resourceFolder(base, store::ResourceFolder::gfx),
          store::resourceFolder(base, store::ResourceFolder::mmedia)}) {
        if (!store::liesWithin(folder, base)) {
            continue;
        }
        for (const std::filesystem::path& path : resources::removeLeftovers(folder)) {
            names << resources::pathText(path.lexically_relative(base));
        }
    }
    if (names.isEmpty()) {
        return {};
    }
    return QStringLiteral("Quorvel was ended while it copied a file.  What it left was removed: %1")
        .arg(names.join(QStringLiteral(", ")));
}

}  // namespace quorvel::shell
