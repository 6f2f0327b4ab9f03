/// An editor with files of its own in `QuorvelDefaults`, and an author at the window New Project.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "shell/scene_fixture.h"
#include "support/windows/tip_reader.h"

namespace quorvel::test {

class NewProjectStage : public SceneFixture {
  protected:
    NewProjectStage() {
        for (const char* name : {"Game.exe", "ReadMe.txt", "Manual.txt"}) {
            writeBytes(install.makeFolder("QuorvelDefaults") / name, std::string("the ") + name);
        }
        std::filesystem::permissions(install / "QuorvelDefaults/Game.exe",
                                     std::filesystem::perms::owner_exec,
                                     std::filesystem::perm_options::add);
    }
    void begin() {
        start();
        shell->InstallPath = text(install.path()) + QLatin1Char('/');
        reader = std::make_unique<TipReader>(*shell);
    }
    /// Opens the window and lets the author use it. What the author leaves open is closed.
    void withNewProject(const std::function<void(QWidget&)>& author) {
        withWindow(
            QStringLiteral("NewProject"),
            [this] { action(QStringLiteral("Filemen(1)")).trigger(); },
            [&](QWidget& window) {
                author(window);
                if (window.isVisible()) {
                    button(window, "Command3").click();
                }
            });
    }
    static QPushButton& button(const QWidget& window, const char* name) {
        return control<QPushButton>(window, QString::fromLatin1(name));
    }
    static QLineEdit& field(const QWidget& window, const char* name) {
        return control<QLineEdit>(window, QString::fromLatin1(name));
    }
    void choose(const QWidget& window, const std::filesystem::path& folder) {
        dialogs.choice = text(folder) + QLatin1Char('/');
        button(window, "Command1").click();
    }
    /// Makes a project in the folder, as an author does who needs no other name.
    void create(const std::filesystem::path& folder, const char* name = nullptr) {
        withNewProject([&](QWidget& window) {
            choose(window, folder);
            if (name != nullptr) {
                field(window, "Text2").setText(QString::fromUtf8(name));
            }
            button(window, "Command2").click();
        });
    }
    /// Tries to make a project; the window must be usable afterwards, and no project open.
    void createInVain(const std::filesystem::path& folder, const char* name = nullptr) {
        withNewProject([&](QWidget& window) {
            choose(window, folder);
            if (name != nullptr) {
                field(window, "Text2").setText(QString::fromUtf8(name));
            }
            button(window, "Command2").click();
            EXPECT_TRUE(window.isVisible());
            EXPECT_TRUE(button(window, "Command2").isEnabled());
            EXPECT_TRUE(button(window, "Command3").isEnabled());
            EXPECT_FALSE(control<QLabel>(window, QStringLiteral("Label6")).isVisible());
        });
        EXPECT_FALSE(shell->project().ProjectOpen);
        EXPECT_EQ(control<QAction>(main(), QStringLiteral("projfolder")).text(),
                  QStringLiteral("(No Project Loaded)"));
        EXPECT_FALSE(action(QStringLiteral("runmen(0)")).isEnabled());
        EXPECT_EQ(reader->tips, std::vector<int>());
    }
    QString step() {
        EXPECT_EQ(boxes.shown().size(), 1U);
        const forms::Box& box = boxes.shown().back();
        EXPECT_EQ(box.title, QStringLiteral("New Project"));
        EXPECT_EQ(box.icon, forms::Box::Icon::exclamation);
        return box.text;
    }

    TempFolder install;
    std::unique_ptr<TipReader> reader;
};

}  // namespace quorvel::test
