#include "shell/start.h"

#include <QApplication>
#include <QRandomGenerator>
#include <QScreen>
#include <QStandardPaths>

#include "forms/look.h"
#include "forms/movie_player.h"
#include "forms/project_preview.h"
#include "resources/path_text.h"
#include "shell/termination_signals.h"

namespace quorvel::shell {

StartForm::StartForm(Shell& shell, SingleInstance& instance) : shell_(shell), instance_(instance) {}

bool StartForm::begin() {
    if (!instance_.claim() || !shell_.CheckRes()) {
        return false;
    }
    connect(&instance_, &SingleInstance::activationAsked, &shell_, &Shell::activate);
    splash_ = std::make_unique<InitQV>(
        InitQV::Work{shell_.loadForms(), [this] { shell_.InitializeEditor(); }});
    connect(splash_.get(), &InitQV::finished, this, [this] { splash_.release()->deleteLater(); });
    splash_->show();
    return true;
}

namespace {

PreviewParts makePreview(const store::Project& project, QWidget* movieArea) {
    auto preview = std::make_unique<forms::ProjectPreview>(project, media::PreviewOptions{});
    // Movies end before the widget does: the shell lets the preview go first.
    auto* player = new forms::MoviePlayer(preview->movieFrames(), movieArea);
    return {std::move(preview), player};
}

}  // namespace

int runEditor(int argc, char** argv) {
    // A library behind the sound devices talks to the console about each one that is not there.
    if (!qEnvironmentVariableIsSet("ALSOFT_LOGLEVEL")) {
        qputenv("ALSOFT_LOGLEVEL", "0");
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quorvel"));
    QApplication::setOrganizationName(QStringLiteral("TessaroonWorks"));
    QApplication::setApplicationVersion(kEditorVersion);
    // The shell ends the loop itself: the splash must not, when it is the last window that closes.
    QApplication::setQuitOnLastWindowClosed(false);
    forms::applyLook(application, forms::lookFromEnvironment());

    forms::MessageBoxes boxes;
    forms::SystemFileDialogs dialogs;
    resources::SystemPrograms programs;
    Shell shell({.boxes = boxes,
                 .dialogs = dialogs,
                 .programs = programs,
                 .screenSize = [] { return QGuiApplication::primaryScreen()->size(); },
                 .random = [] { return QRandomGenerator::global()->generateDouble(); },
                 .quit = [] { QCoreApplication::quit(); },
                 .beep = [] { QApplication::beep(); },
                 .makePreview = makePreview,
                 .machineValue = readMachineValue,
                 .programFolder = QCoreApplication::applicationDirPath(),
                 .userFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation),
                 .arguments = resources::argumentTexts(argc, argv)});
    SingleInstance instance(SingleInstance::nameForUser());
    StartForm start(shell, instance);
    if (!start.begin()) {
        return 0;
    }
    const TerminationSignals signalsOfTheSystem([&shell] { shell.endByRequest(); });
    return QApplication::exec();
}

}  // namespace quorvel::shell
