#include "player/game.h"

#include <utility>

#include "canvas/elements.h"
#include "resources/path_text.h"
#include "store/numbers.h"
#include "store/paths.h"
#include "store/record_file.h"
#include "store/runtime_error.h"

namespace quorvel::player {

Game::Game(std::filesystem::path folder)
    : folder_(std::move(folder)), settings_(store::newRecord<store::GameSettingsRecord>()) {
    readSettings();
    if (!scene(1) && fault_.isEmpty()) {
        fault_ = QStringLiteral("The file “Quorvel1.dat” in the folder “resource” holds no scene.");
    }
}

void Game::readSettings() {
    // Without its settings a game looks like a new one, and can be played all the same.
    try {
        store::RecordFile<store::GameSettingsRecord> file;
        file.open(store::resolvePath(folder_, "resource/Quorvel4.dat"));
        if (file.size() == sizeof(store::GameSettingsRecord)) {
            settings_ = file.read(1);
        }
    } catch (const store::RuntimeError&) {
        return;
    }
}

std::optional<store::Scene> Game::scene(int number) {
    try {
        store::RecordFile<store::SceneRecord> file;
        file.open(store::resolvePath(folder_, "resource/Quorvel1.dat"));
        if (number < 1 || number > file.count()) {
            return std::nullopt;
        }
        store::Scene scene;
        scene.take(file.read(number));
        return scene;
    } catch (const store::RuntimeError& error) {
        fault_ = error.code() == store::ErrorNumber::fileNotFound ||
                         error.code() == store::ErrorNumber::pathNotFound
                     ? QStringLiteral("There is no game in the folder of this player.")
                     : QStringLiteral("The scenes of this game cannot be read.");
        detail_ = QStringLiteral("%1: %2").arg(resources::pathText(error.file()),
                                               QString::fromStdString(error.description()));
        return std::nullopt;
    }
}

QString Game::title() const {
    return QString::fromStdString(settings_.GameTitle.text());
}

QPoint Game::sceneWindowPlace() const {
    const std::string text = settings_.LayoutPos5.text();
    const auto slash = text.find('/');
    const auto side = [](std::string_view number) { return canvas::pixel(store::valInt(number)); };
    return {side(std::string_view(text).substr(0, slash)),
            slash == std::string::npos ? 0 : side(std::string_view(text).substr(slash + 1))};
}

std::string Game::pointerFile(int index) const {
    const auto& files = settings_.GamePointer;
    return index < 1 || index > static_cast<int>(files.size())
               ? std::string()
               : files[static_cast<std::size_t>(index - 1)].text();
}

}  // namespace quorvel::player
