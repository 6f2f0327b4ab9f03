#include <QApplication>

#include "forms/look.h"
#include "player/marker.h"
#include "player/player_window.h"
#include "store/paths.h"

int main(int argc, char** argv) {
    using namespace quorvel;
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quorvel Player"));
    QApplication::setApplicationVersion(player::playerInfo().text("FileVersion"));
    forms::applyLook(application, forms::Look::dark);
    // The folder that the player lies in is the game.
    const auto folder = store::pathOf(QCoreApplication::applicationDirPath().toStdString());
    player::PlayerWindow window(folder);
    window.showOn(*window.screen());
    window.begin();
    return QApplication::exec();
}
