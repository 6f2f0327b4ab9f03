#include <filesystem>
#include <system_error>

#include <QApplication>

#include "forms/look.h"
#include "player/marker.h"
#include "player/player_window.h"
#include "resources/path_text.h"

namespace {

/// The folder that this program lies in. Where the system tells, the library is not asked, which
/// knows no path that is no valid text.
std::filesystem::path ownFolder() {
    std::error_code error;
    const std::filesystem::path program = std::filesystem::canonical("/proc/self/exe", error);
    return error ? quorvel::resources::pathOf(QCoreApplication::applicationDirPath())
                 : program.parent_path();
}

}  // namespace

int main(int argc, char** argv) {
    using namespace quorvel;
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quorvel Player"));
    QApplication::setApplicationVersion(player::playerInfo().text("FileVersion"));
    forms::applyLook(application, forms::Look::dark);
    // The folder that the player lies in is the game.
    player::PlayerWindow window(ownFolder());
    window.showOn(*window.screen());
    window.begin();
    return QApplication::exec();
}
