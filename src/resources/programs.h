/// Starting other programs, behind an interface so that a test can watch it.
#pragma once

#include <QString>
#include <QStringList>

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

    /// The same for a program by its path, with arguments as they are, in the working folder
    /// `folder`, which ends in a separator. Program, folder and arguments may be texts of paths
    /// that are no valid text (`path_text.h`), but only below `folder`.
    virtual bool run(const QString& program, const QStringList& arguments,
                     const QString& folder) = 0;

    /// The path of the program that the system knows as `name`; empty when it knows none.
    virtual QString find(const QString& name) = 0;

    /// Hands a web address to the default browser and returns at once. False when there is none.
    virtual bool openUrl(const QString& address) = 0;
};

/// Starts real programs.
class SystemPrograms : public Programs {
  public:
    bool start(const QString& commandLine) override;
    bool run(const QString& program, const QStringList& arguments, const QString& folder) override;
    QString find(const QString& name) override;
    bool openUrl(const QString& address) override;
};

}  // namespace quorvel::resources
