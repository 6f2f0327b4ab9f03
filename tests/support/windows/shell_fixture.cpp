#include "support/windows/shell_fixture.h"

#include <QCoreApplication>
#include <QSettings>

#include "store/paths.h"

namespace quorvel::test {

ShellFixture::ShellFixture() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, text(home.path()));
}

shell::Surroundings ShellFixture::surroundings(const QStringList& arguments, QSize screen) {
    return {
        .boxes = boxes,
        .dialogs = dialogs,
        .programs = programs,
        .screenSize = [screen] { return screen; },
        .random = [this] { return nextRandom; },
        .quit = [this] { ++quits; },
        .beep = [this] { ++beeps; },
        .makePreview =
            [this](const store::Project&, QWidget*) {
                auto made = std::make_unique<RecordedPreview>();
                preview = made.get();
                return shell::PreviewParts{std::move(made), nullptr};
            },
        .programFolder = QCoreApplication::applicationDirPath(),
        .userFolder = text(home.path() / "data"),
        .arguments = arguments,
    };
}

void ShellFixture::start(const QStringList& arguments, QSize screen) {
    shell = std::make_unique<shell::Shell>(surroundings(arguments, screen));
    for (const auto& loadForm : shell->loadForms()) {
        loadForm();
    }
    shell->InitializeEditor();
}

void ShellFixture::leave() {
    shell->ExitProgram();
    shell.reset();
}

QString ShellFixture::text(const std::filesystem::path& path) {
    return QString::fromStdString(store::textOf(path));
}

}  // namespace quorvel::test
