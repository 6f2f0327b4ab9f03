// What an author waits for when a large project opens: the whole of it, windows included. With
// --check the exit code says whether it is within its limit.
#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include "forms/look.h"
#include "forms/project_preview.h"
#include "resources/player_file.h"
#include "shell/shell.h"
#include "store/creation.h"
#include "store/scene_store.h"

namespace {

namespace store = quorvel::store;
using quorvel::forms::Answer;
using quorvel::forms::Box;

constexpr int kScenes = 32767;
constexpr double kLimitSeconds = 1.5;

class NoBoxes : public quorvel::forms::Boxes {
  public:
    Answer show(const Box& box) override {
        throw std::runtime_error("unexpected box: " + box.text.toStdString());
    }
};

class NoDialogs : public quorvel::forms::FileDialogs {
  public:
    quorvel::forms::FileAnswer openFile(const quorvel::forms::FileQuestion& /*question*/) override {
        return {};
    }
    QString chooseFolder(const quorvel::forms::FileQuestion& /*question*/) override { return {}; }
};

class NoPrograms : public quorvel::resources::Programs {
  public:
    bool start(const QString& /*commandLine*/) override { return false; }
    bool run(const QString& /*program*/, const QStringList& /*arguments*/,
             const QString& /*folder*/) override {
        return false;
    }
    QString find(const QString& /*name*/) override { return {}; }
    bool openUrl(const QString& /*address*/) override { return false; }
};

void writeLargeProject(const QString& folder) {
    store::Project project;
    project.ProjectFolder = folder.toStdString() + "/";
    project.ProjectFileName = "Large.qvl";
    store::makeProjectFolders(project);
    store::WriteNewStores(project);
    project.WriteNewProjectFile();
    auto record = project.projectFile.read(1);
    record.SecurityCode = 0;
    project.projectFile.write(1, record);
    project.sceneFile.open(project.storePath(1));
    for (int n = 1; n <= kScenes; ++n) {
        store::WriteBlankScene(project, n, "Scene " + std::to_string(n), "");
    }
    project.closeFiles();
    // Its player is looked at with each opening.
    const QString installed = QCoreApplication::applicationDirPath() + QLatin1Char('/');
    quorvel::resources::copyPlayer(quorvel::resources::defaultPlayerPath(installed),
                                   project.folder() / "Game.exe");
}

double cpuSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// The real preview without a sound device.
quorvel::shell::PreviewParts preview(const quorvel::store::Project& project, QWidget* /*area*/) {
    const quorvel::media::PreviewOptions options{.sink = "fakesink sync=true"};
    return {std::make_unique<quorvel::forms::ProjectPreview>(project, options), nullptr};
}

int run(bool check) {
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    writeLargeProject(folder.path());

    NoBoxes boxes;
    NoDialogs dialogs;
    NoPrograms programs;
    quorvel::shell::Shell shell(
        {.boxes = boxes,
         .dialogs = dialogs,
         .programs = programs,
         .screens =
             [] {
                 const QRect whole(0, 0, 1280, 800);
                 return std::vector{quorvel::shell::ScreenPlace{whole, whole}};
             },
         .random = [] { return 0.5; },
         .quit = [] {},
         .beep = [] {},
         .complain = [](const QString& /*line*/) {},
         .makePreview = preview,
         .machineValue = quorvel::shell::readMachineValue,
         .programFolder = QCoreApplication::applicationDirPath(),
         .userFolder = folder.path(),
         .arguments = {}});
    for (const auto& loadForm : shell.loadForms()) {
        loadForm();
    }
    shell.InitializeEditor();

    const double before = cpuSeconds();
    const bool open = shell.openProject(folder.filePath(QStringLiteral("Large.qvl")));
    const double seconds = cpuSeconds() - before;
    if (!open || shell.project().NumberOfScenes != kScenes) {
        std::puts("the project did not open");
        return 1;
    }
    std::printf("whole open of %d scenes: %.3f s of CPU (limit %.2f)\n", kScenes, seconds,
                kLimitSeconds);
    return check && seconds > kLimitSeconds ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    quorvel::forms::applyLook(application, quorvel::forms::Look::light);
    return run(argc > 1 && std::strcmp(argv[1], "--check") == 0);
}
