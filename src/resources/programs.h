/// Starting other programs, behind an interface so that a test can watch it.
#pragma once

#include <QString>

namespace quorvel::resources {

class Programs {
  public:
    Programs() = default;
    Programs(const Programs&) = delete;
    Programs& operator=(const Programs&) = delete;
    virtual ~Programs() = default;

    /// Starts `commandLine` and returns at once; the program lives on its own. The line is the path
    /// of a program, or such a path with arguments, blanks quoted by double quotes. False when
    /// nothing was started.
    virtual bool start(const QString& commandLine) = 0;
};

/// Starts real programs.
class SystemPrograms : public Programs {
  public:
    bool start(const QString& commandLine) override;
};

}  // namespace quorvel::resources
