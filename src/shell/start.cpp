#include "shell/start.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include <QApplication>
#include <QRandomGenerator>
#include <QSessionManager>
#include <QStandardPaths>

#include "forms/look.h"
#include "forms/movie_player.h"
#include "forms/project_preview.h"
#include "resources/path_text.h"
#include "shell/command_line.h"
#include "shell/termination_signals.h"

namespace quorvel::shell {
namespace {

void writeLine(const QString& line) {
    // Names on disk are written as they are.
    const std::string bytes = resources::pathBytes(line) + '\n';
    std::fwrite(bytes.data(), 1, bytes.size(), stderr);
    std::fflush(stderr);
}

/// A line for whoever started the program.
void complain(const QString& line) {
    writeLine(QStringLiteral("quorvel: ") + line);
}

}  // namespace

StartForm::StartForm(Shell& shell, SingleInstance& instance) : shell_(shell), instance_(instance) {}

bool StartForm::begin(const QStringList& projects) {
    switch (instance_.claim(projects)) {
        case SingleInstance::Claim::first:
            break;
        case SingleInstance::Claim::notAll:
            shell_.complain(
                QStringLiteral("The editor that runs already opens some of the projects "
                               "only: their paths are too long."));
            return false;
        case SingleInstance::Claim::handed:
            return false;
    }
    // From here on others may hand over their projects, also while the author is asked something.
    connect(&instance_, &SingleInstance::activationAsked, &shell_, &Shell::openWhenFree);
    if (!shell_.CheckRes()) {
        return false;
    }
    splash_ = std::make_unique<InitQV>(
        InitQV::Work{shell_.loadForms(), [this] { shell_.InitializeEditor(); }});
    connect(splash_.get(), &InitQV::finished, this, [this] { splash_.release()->deleteLater(); });
    splash_->show();
    return true;
}

namespace {

PreviewParts makePreview(const store::Project& project, QWidget* movieArea,
                         const std::function<void()>& leftBehind) {
    auto preview = std::make_unique<forms::ProjectPreview>(
        project, media::PreviewOptions{.leftBehind = leftBehind});
    // Movies end before the widget does: the shell lets the preview go first.
    auto* player = new forms::MoviePlayer(preview->movieFrames(), movieArea);
    return {std::move(preview), player};
}

/// Stands in for the toolkit's own way of telling while it looks for a display: it would write a
/// dozen lines and a memory image.
void tellOfTheDisplay(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) {
        const QString display = qEnvironmentVariable("DISPLAY", QStringLiteral("not set"));
        complain(QStringLiteral("No window can be opened: there is no display that answers "
                                "(DISPLAY is %1).")
                     .arg(display));
        std::_Exit(1);
    }
    if (!QLatin1String(context.category).startsWith(QLatin1String("qt.qpa."))) {
        writeLine(text);
    }
}

/// The paths as another process understands them, which may stand in another folder.
QStringList absolute(QStringList paths) {
    for (QString& path : paths) {
        std::error_code error;
        const auto full = std::filesystem::absolute(resources::pathOf(path), error);
        if (!error) {
            path = resources::pathText(full);
        }
    }
    return paths;
}

/// `soundHangs` becomes true when a thread of the sound system was left behind.
int runEditor(const CommandLine& line, QApplication& application, bool& soundHangs) {
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
                 .screens = screensOfTheMachine,
                 .random = [] { return QRandomGenerator::global()->generateDouble(); },
                 .quit = [] { QCoreApplication::quit(); },
                 .beep = [] { QApplication::beep(); },
                 .complain = complain,
                 .makePreview =
                     [&soundHangs](const store::Project& project, QWidget* movieArea) {
                         return makePreview(project, movieArea,
                                            [&soundHangs] { soundHangs = true; });
                     },
                 .machineValue = readMachineValue,
                 .programFolder = QCoreApplication::applicationDirPath(),
                 .userFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation),
                 .arguments = line.projects});
    const TerminationSignals signalsOfTheSystem([&shell] { shell.endByRequest(); });
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &shell,
        [&shell](QSessionManager& session) {
            const bool mayAsk = session.allowsInteraction();
            if (!shell.saveForSession(mayAsk)) {
                session.cancel();
            }
            if (mayAsk) {
                session.release();
            }
        },
        Qt::DirectConnection);
    SingleInstance instance(SingleInstance::nameForUser());
    StartForm start(shell, instance);
    return start.begin(absolute(line.projects)) ? QApplication::exec() : 0;
}

}  // namespace

int runEditor(int argc, char** argv) {
    CommandLine line = readCommandLine(argc, argv);
    switch (line.wish) {
        case CommandLine::Wish::help:
            std::fputs(usageText().toUtf8().constData(), stdout);
            return 0;
        case CommandLine::Wish::version:
            std::fputs(versionText().toUtf8().constData(), stdout);
            return 0;
        case CommandLine::Wish::unknownOption:
            complain(QStringLiteral("There is no option %1. See --help.").arg(line.unknown));
            return 2;
        case CommandLine::Wish::run:
            break;
    }
    // A library behind the sound devices talks to the console about each one that is not there.
    if (!qEnvironmentVariableIsSet("ALSOFT_LOGLEVEL")) {
        qputenv("ALSOFT_LOGLEVEL", "0");
    }
    auto count = static_cast<int>(line.toolkit.size());
    line.toolkit.push_back(nullptr);
    const QtMessageHandler usual = qInstallMessageHandler(tellOfTheDisplay);
    QApplication application(count, line.toolkit.data());
    qInstallMessageHandler(usual);
    bool soundHangs = false;
    const int code = runEditor(line, application, soundHangs);
    if (soundHangs) {
        // All is saved and closed. The thread may hold locks of the libraries that an ordinary end
        // would take down.
        std::fflush(nullptr);
        std::_Exit(code);
    }
    return code;
}

}  // namespace quorvel::shell
