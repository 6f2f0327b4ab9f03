/// What the shell is given from outside, so that a test can play the author and the machine.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QString>
#include <QStringList>

#include "forms/boxes.h"
#include "forms/file_dialogs.h"
#include "forms/preview.h"
#include "resources/programs.h"
#include "shell/about_box.h"
#include "shell/screens.h"
#include "store/project.h"

namespace quorvel::shell {

/// What plays sounds and movies, and the widget in which its movies are seen.
struct PreviewParts {
    std::unique_ptr<forms::Preview> preview;
    QWidget* moviePlayer = nullptr;  ///< a child of the area that it was made for; null for none
};

/// Everything named here must outlive the shell.
struct Surroundings {
    forms::Boxes& boxes;
    forms::FileDialogs& dialogs;
    resources::Programs& programs;
    std::function<std::vector<ScreenPlace>()> screens;  ///< the primary one first; never empty
    std::function<double()> random;                     ///< from 0 up to but not including 1
    std::function<void()> quit;                         ///< ends the event loop
    std::function<void()> beep;  ///< the desktop's sound for a key that is not taken
    /// Tells a line to whoever started the program, for what no box can tell.
    std::function<void(const QString&)> complain;
    /// Makes the preview of a project, with its movies in the middle of a widget.
    std::function<PreviewParts(const store::Project&, QWidget* movieArea)> makePreview;
    MachineValue machineValue;  ///< reads the registry of the machine
    QString programFolder;      ///< folder of the running program
    QString userFolder;         ///< per-user data folder, made at need
    QStringList arguments;      ///< project files of the command line
};

}  // namespace quorvel::shell
