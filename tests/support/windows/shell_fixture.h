/// A whole editor for a test: real windows, real settings in a folder of its own, a played author.
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <optional>

#include <QAction>
#include <QMap>

#include "shell/shell.h"
#include "support/file_bytes.h"
#include "support/project_builder.h"
#include "support/temp_folder.h"
#include "support/windows/played_author.h"
#include "support/windows/recorded_preview.h"

namespace quorvel::test {

class ShellFixture : public ::testing::Test {
  protected:
    ShellFixture();

    /// Starts the editor as after the splash, on a screen of `screen` pixels, with the projects of
    /// the command line.
    void start(const QStringList& arguments = {}, QSize screen = {1280, 800});

    /// What the editor is given; a test may change it and make a shell of its own.
    shell::Surroundings surroundings(const QStringList& arguments = {}, QSize screen = {1280, 800});

    /// Ends the editor of this test and forgets it; `start` begins another with the same settings.
    void leave();

    [[nodiscard]] shell::Main& main() { return shell->mainWindow(); }
    [[nodiscard]] QAction& action(const QString& name) { return control<QAction>(main(), name); }

    /// An editor that never ran. Without this the author has turned off all tips, so that none
    /// stands in the way of a test.
    static void forgetSettings();

    static QString text(const std::filesystem::path& path);

    TempFolder home;      ///< settings and user data of the played author
    TempFolder projects;  ///< for the projects of the test
    PlayedBoxes boxes;
    PlayedDialogs dialogs;
    PlayedPrograms programs;
    QMap<QString, QString> machineValues;  ///< by key, backslash and name
    double nextRandom = 0.5;
    /// The screens of the machine, instead of the one that `start` is given.
    std::vector<shell::ScreenPlace> screens;
    QStringList complaints;  ///< lines for whoever started the program
    int quits = 0;
    int beeps = 0;
    /// What the editor previews; it belongs to the shell.
    RecordedPreview* preview = nullptr;
    std::unique_ptr<shell::Shell> shell;
};

}  // namespace quorvel::test
