/// What the editor remembers between runs.
#pragma once

#include <array>
#include <functional>
#include <optional>

#include <QSettings>
#include <QString>

#include "shell/screens.h"

namespace quorvel::shell {

/// The version of this editor, as it is shown and remembered.
inline const QString kEditorVersion = QStringLiteral("3.03.0001");

/// A slot of the Run menu without a program.
inline const QString kUndefinedProgram = QStringLiteral("Undefined");

// Quick Tips that were turned off: these values are "1". A tip's number, 1 to 21, follows the
// second name.
inline constexpr int kQuickTips = 21;
inline const QString kNoTipsAtAll = QStringLiteral("NoTipsAtAll");
inline const QString kNoTip = QStringLiteral("NoTip");

/// Named string values under organisation "TessaroonWorks", application "Quorvel": a registry key
/// on Windows, an ini file elsewhere. Numbers are stored as decimal text.
class EditorSettings {
  public:
    static constexpr std::size_t kRecent = 4;
    static constexpr std::size_t kPrograms = 6;

    EditorSettings();

    int DefaultFolder = 0;  ///< 1 the project's resource folder, 2 Incoming; 0 before a first run
    int WrongFolder = 0;    ///< 1 copy, 2 move, 3 ask; 0 before a first run
    QString TipsAtStart;    ///< only "Yes" shows a tip at the start
    int LastTip = 0;
    std::array<QString, kRecent> RecentProj;    ///< full paths, newest first
    std::array<QString, kPrograms> RunProgram;  ///< command lines

    /// Runs the first time that the values do not reach `file`.
    std::function<void(const QString& file)> whenNotWritten;

    /// Reads all values; a missing one is empty or 0.
    void GetEditorSettings();
    /// Writes all values, the running version among them.
    void SaveEditorSettings();

    /// True before the editor ever ran: neither folder choice is set.
    [[nodiscard]] bool isFirstRun() const { return DefaultFolder == 0 && WrongFolder == 0; }
    void setFirstRunDefaults();

    /// Brings back all Quick Tips, those turned off one by one and those turned off together.
    void RestoreQuickTips();
    /// Turns off one Quick Tip, 1 to `kQuickTips`, or all.
    void turnOffQuickTip(int number);
    void turnOffAllQuickTips();

    /// The value, or an empty text when there is none.
    [[nodiscard]] QString ReadRegValue(const QString& name) const;
    void WriteRegValue(const QString& name, const QString& value);

    /// Where the main window was left the last time; nothing before that, or when what is stored
    /// makes no sense.
    [[nodiscard]] std::optional<WindowPlace> lastMainWindow() const;
    /// Writes it, unless it is what is stored.
    void rememberMainWindow(const WindowPlace& place);

    /// Puts a project to the head of the recent list; one that is on it moves up.
    void rememberProject(const QString& path);

    /// True when slot `number`, 1 to 4, of the recent list holds a project.
    [[nodiscard]] bool hasRecent(int number) const;
    /// True when slot `number`, 1 to 6, of the Run menu holds a program.
    [[nodiscard]] bool hasProgram(int number) const;

  private:
    void sync();

    QSettings values_;
    bool isRefused_ = false;
};

}  // namespace quorvel::shell
