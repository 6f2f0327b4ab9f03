/// What the shell is given from outside, so that a test can play the author and the machine.
#pragma once

#include <functional>

#include <QSize>
#include <QString>
#include <QStringList>

#include "forms/boxes.h"
#include "forms/file_dialogs.h"
#include "resources/programs.h"

namespace quorvel::shell {

/// Everything named here must outlive the shell.
struct Surroundings {
    forms::Boxes& boxes;
    forms::FileDialogs& dialogs;
    resources::Programs& programs;
    std::function<QSize()> screenSize;  ///< in pixels
    std::function<double()> random;     ///< from 0 up to but not including 1
    std::function<void()> quit;         ///< ends the event loop
    QString programFolder;              ///< folder of the running program
    QString userFolder;                 ///< per-user data folder, made at need
    QStringList arguments;              ///< project files of the command line
};

}  // namespace quorvel::shell
