/// The start of the process.
#pragma once

#include "shell/shell.h"
#include "shell/single_instance.h"
#include "shell/splash.h"

namespace quorvel::shell {

/// Runs before any window is seen: one editor at a time, a screen that is large enough, then the
/// splash. Owns the splash while it stands.
class StartForm : public QObject {
    Q_OBJECT
  public:
    StartForm(Shell& shell, SingleInstance& instance);

    /// False when the process has to end at once: another editor runs, was given `projects` and
    /// came to the front, or the author does not go on with a small screen.
    bool begin(const QStringList& projects = {});

  private:
    Shell& shell_;
    SingleInstance& instance_;
    std::unique_ptr<InitQV> splash_;
};

/// Runs the editor until the author leaves it, or does what an option asks instead. The process's
/// exit code: 0, also after a project that could not be opened; 1 without a display; 2 after an
/// option that nobody knows.
int runEditor(int argc, char** argv);

}  // namespace quorvel::shell
