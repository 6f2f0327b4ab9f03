/// Error traps: a routine that fails is told to the author and its caller goes on.
#pragma once

#include <utility>

#include <QString>

#include "forms/boxes.h"
#include "store/project.h"
#include "store/runtime_error.h"

namespace quorvel::forms {

/// What others did to a file that is open, and which file it is.
QString lossText(const store::LostFileError& error);

/// The words of a write that failed for another reason than refused access.
QString writeFailureText(const store::RuntimeError& error);

/// Owned by the shell; boxes and project must outlive it.
class Traps {
  public:
    Traps(Boxes& boxes, store::Project& project) : boxes_(boxes), project_(project) {}

    /// Runs `routine` under the trap of readers: the box names `procedure`. False when it failed.
    template <class Routine>
    bool reading(const QString& procedure, Routine&& routine) {
        try {
            std::forward<Routine>(routine)();
            return true;
        } catch (const store::RuntimeError& error) {
            tellReadFailure(procedure, error);
            return false;
        }
    }

    /// Runs `routine` under the trap of writers: refused access is told once for each project and
    /// marks it as read-only. False when it failed.
    template <class Routine>
    bool writing(Routine&& routine) {
        try {
            std::forward<Routine>(routine)();
            return true;
        } catch (const store::RuntimeError& error) {
            tellWriteFailure(error);
            return false;
        }
    }

    void tellReadFailure(const QString& procedure, const store::RuntimeError& error);
    /// The same with the file in the description, where that says more than its kind.
    void tellReadFailure(const QString& procedure, store::ErrorNumber number, const QString& file);
    void tellWriteFailure(const store::RuntimeError& error);

  private:
    Boxes& boxes_;
    store::Project& project_;
};

}  // namespace quorvel::forms
