#include "support/windows/shell_fixture.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>

#include "resources/path_text.h"
#include "store/paths.h"

namespace quorvel::test {

ShellFixture::ShellFixture() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, text(home.path()));
    QSettings values(QStringLiteral("TessaroonWorks"), QStringLiteral("Quorvel"));
    values.setValue(QStringLiteral("Default Folder"), QStringLiteral("1"));
    values.setValue(QStringLiteral("Wrong Folder"), QStringLiteral("3"));
    values.setValue(QStringLiteral("TOTD"), QStringLiteral("No"));
    values.setValue(QStringLiteral("LastTip"), QStringLiteral("0"));
    values.setValue(shell::kNoTipsAtAll, QStringLiteral("1"));
}

void ShellFixture::forgetSettings() {
    QSettings values(QStringLiteral("TessaroonWorks"), QStringLiteral("Quorvel"));
    values.clear();
    values.sync();
    QFile::remove(values.fileName());
}

shell::Surroundings ShellFixture::surroundings(const QStringList& arguments, QSize screen) {
    return {
        .boxes = boxes,
        .dialogs = dialogs,
        .programs = programs,
        .screens =
            [this, screen] {
                const QRect whole({0, 0}, screen);
                return screens.empty() ? std::vector{shell::ScreenPlace{whole, whole}} : screens;
            },
        .random = [this] { return nextRandom; },
        .quit = [this] { ++quits; },
        .beep = [this] { ++beeps; },
        .complain = [this](const QString& line) { complaints << line; },
        .makePreview =
            [this](const store::Project&, QWidget*) {
                auto made = std::make_unique<RecordedPreview>();
                preview = made.get();
                return shell::PreviewParts{std::move(made), nullptr};
            },
        .machineValue =
            [this](const QString& key, const QString& name) {
                return machineValues.value(key + QLatin1Char('\\') + name);
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
    return resources::pathText(path);
}

}  // namespace quorvel::test
