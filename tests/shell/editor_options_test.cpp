// The editor options, opened from the menu, and what they mean for files that are chosen.
#include "shell/editor_options.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTest>

#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

class EditorOptions : public ShellFixture {
  protected:
    static QString nameOf(const std::optional<forms::ChosenFile>& chosen) {
        return chosen ? chosen->name : QString();
    }
    /// Opens the window by its menu entry and lets the author use it.
    void use(const std::function<void(QWidget&)>& author) {
        withWindow(
            QStringLiteral("EdOptions"), [this] { action(QStringLiteral("options(1)")).trigger(); },
            author);
    }
    static QPushButton& button(const QWidget& window, const char* name) {
        return control<QPushButton>(window, QString::fromLatin1(name));
    }
    static QRadioButton& option(const QWidget& window, const char* name) {
        return control<QRadioButton>(window, QString::fromLatin1(name));
    }
    /// The checked options, as "2(0) 1(2)".
    static std::string checked(const QWidget& window) {
        std::string names;
        for (const char* name : {"2(0)", "2(1)", "1(0)", "1(1)", "1(2)"}) {
            if (option(window, ("Option" + std::string(name)).c_str()).isChecked()) {
                names += (names.empty() ? "" : " ") + std::string(name);
            }
        }
        return names;
    }
    /// A value as it lies on the disk.
    static QString stored(const char* name) {
        const QSettings values(QStringLiteral("TessaroonWorks"), QStringLiteral("Quorvel"));
        return values.value(QString::fromLatin1(name)).toString();
    }
    static constexpr auto kApply = "Command3";
    static constexpr auto kOk = "Command4";
    static constexpr auto kCancel = "Command2";
    static constexpr auto kHelp = "Command5";
};

TEST_F(EditorOptions, TheTextsAreExact) {
    start();
    EXPECT_TRUE(action(QStringLiteral("options(1)")).isEnabled());
    use([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Editor Options"));
        const auto expectGroup = [&](const char* name, const char* title) {
            EXPECT_EQ(control<QGroupBox>(window, QString::fromLatin1(name)).title(),
                      QString::fromLatin1(title));
        };
        expectGroup("Frame1", "Initial 'Locate' Folder");
        expectGroup("Frame2", "Game-related files (Graphics, sound, etc)");
        expectGroup("Frame3", "'Incorrect' source folders");
        expectGroup("Frame4", "Quick Tips");
        const auto expectLabel = [&](const char* frame, const char* name, const char* text) {
            const auto& box = control<QGroupBox>(window, QString::fromLatin1(frame));
            EXPECT_EQ(control<QLabel>(box, QString::fromLatin1(name)).text(),
                      QString::fromLatin1(text));
        };
        expectLabel("Frame1", "Label4",
                    "When choosing game-related files for the first time, make the default "
                    "'Locate' folder...");
        expectLabel("Frame3", "Label4",
                    "When choosing game-related files from a folder other than the project's "
                    "\"Resource\" folders or the Quorvel \"Incoming\" folder...");
        expectLabel("Frame2", "Label3",
                    "Files chosen from the 'Incoming' Folder are ALWAYS moved.\nPlease consult "
                    "the Help File for more information");
        expectLabel("Frame4", "Label1",
                    "Clicking this button will enable Quick Tips if you have turned them off via "
                    "a Quick Tip window.");
        const auto expectOption = [&](const char* name, const char* text) {
            EXPECT_EQ(option(window, name).text(), QString::fromLatin1(text));
        };
        expectOption("Option2(0)",
                     "The project's appropriate \"Resource\" folder (\"Gfx\" or \"MMedia\")");
        expectOption("Option2(1)", "The Quorvel \"Incoming\" folder");
        expectOption("Option1(0)", "COPY them to the project's appropriate \"Resource\" folder");
        expectOption("Option1(1)", "MOVE them to the project's appropriate \"Resource\" folder");
        expectOption("Option1(2)", "ASK ME each time the situation arises");
        EXPECT_EQ(button(window, "Command1").text(), QStringLiteral("Restore Quick Tips"));
        EXPECT_EQ(button(window, kApply).text(), QStringLiteral("Apply"));
        EXPECT_EQ(button(window, kOk).text(), QStringLiteral("OK"));
        EXPECT_EQ(button(window, kCancel).text(), QStringLiteral("Cancel"));
        EXPECT_EQ(button(window, kHelp).text(), QStringLiteral("Help"));
        window.close();
    });
}

TEST_F(EditorOptions, ItOpensCleanWithWhatIsSet) {
    start();
    use([](QWidget& window) {
        EXPECT_EQ(checked(window), "2(0) 1(2)") << "as after a first run";
        EXPECT_FALSE(button(window, kApply).isEnabled());
        EXPECT_TRUE(button(window, kOk).isDefault());
        window.close();
    });
    shell->settings().DefaultFolder = 2;
    shell->settings().WrongFolder = 1;
    use([](QWidget& window) {
        EXPECT_EQ(checked(window), "2(1) 1(0)");
        EXPECT_FALSE(button(window, kApply).isEnabled());
        window.close();
    });
}

TEST_F(EditorOptions, AnyOptionMakesItDirtyAndApplyStores) {
    start();
    use([this](QWidget& window) {
        for (const char* name :
             {"Option2(1)", "Option2(0)", "Option1(0)", "Option1(1)", "Option1(2)", "Option1(2)"}) {
            option(window, name).click();
            EXPECT_TRUE(button(window, kApply).isEnabled()) << name;
            button(window, kApply).click();
            EXPECT_FALSE(button(window, kApply).isEnabled()) << name;
            EXPECT_TRUE(window.isVisible());
        }
        option(window, "Option2(1)").click();
        option(window, "Option1(1)").click();
        EXPECT_EQ(shell->settings().DefaultFolder, 1) << "not before Apply";
        EXPECT_EQ(shell->settings().WrongFolder, 3);
        button(window, kApply).click();
        EXPECT_EQ(shell->settings().DefaultFolder, 2);
        EXPECT_EQ(shell->settings().WrongFolder, 2);
        EXPECT_EQ(stored("Default Folder"), QStringLiteral("2"));
        EXPECT_EQ(stored("Wrong Folder"), QStringLiteral("2"));
        button(window, kCancel).click();
    });
    EXPECT_EQ(shell->settings().WrongFolder, 2) << "what was applied stays";
}

TEST_F(EditorOptions, OkStoresWhatIsDirty) {
    start();
    use([](QWidget& window) {
        option(window, "Option1(0)").click();
        QTest::keyClick(&window, Qt::Key_Return);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(shell->settings().WrongFolder, 1);
    EXPECT_EQ(stored("Wrong Folder"), QStringLiteral("1"));
    leave();
    start();
    EXPECT_EQ(shell->settings().WrongFolder, 1) << "in the next run too";
}

TEST_F(EditorOptions, OkWithoutAChangeWritesNothing) {
    start();
    shell->settings().LastTip = 17;
    use([](QWidget& window) { button(window, kOk).click(); });
    EXPECT_EQ(stored("LastTip"), QStringLiteral("0"));
}

TEST_F(EditorOptions, CancelAndEscapeForget) {
    start();
    use([](QWidget& window) {
        option(window, "Option2(1)").click();
        button(window, kCancel).click();
        EXPECT_FALSE(window.isVisible());
    });
    use([](QWidget& window) {
        EXPECT_EQ(checked(window), "2(0) 1(2)");
        option(window, "Option1(0)").click();
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(shell->settings().DefaultFolder, 1);
    EXPECT_EQ(shell->settings().WrongFolder, 3);
    EXPECT_EQ(stored("Wrong Folder"), QStringLiteral("3"));
}

TEST_F(EditorOptions, AStrangeValueShowsNoOptionAndStays) {
    start();
    shell->settings().WrongFolder = 9;
    use([](QWidget& window) {
        EXPECT_EQ(checked(window), "2(0)");
        option(window, "Option2(1)").click();
        button(window, kOk).click();
    });
    EXPECT_EQ(shell->settings().WrongFolder, 9);
    EXPECT_EQ(shell->settings().DefaultFolder, 2);
}

TEST_F(EditorOptions, TheWindowCanBeOpenedAgainAfterEachWayOut) {
    start();
    shell::EdOptions window(shell->settings(), nullptr, nullptr);
    window.show();
    option(window, "Option1(0)").click();
    window.reject();
    window.show();
    EXPECT_EQ(checked(window), "2(0) 1(2)");
    EXPECT_FALSE(button(window, kApply).isEnabled());
}

TEST_F(EditorOptions, HelpIsDisabledWithoutHelp) {
    start();
    use([](QWidget& window) {
        EXPECT_TRUE(button(window, kHelp).isEnabled());
        window.close();
    });
    const shell::EdOptions without(shell->settings(), nullptr, nullptr);
    EXPECT_FALSE(button(without, kHelp).isEnabled());
    int helped = 0;
    const shell::EdOptions window(
        shell->settings(), [&] { ++helped; }, nullptr);
    EXPECT_TRUE(button(window, kHelp).isEnabled());
    button(window, kHelp).click();
    EXPECT_EQ(helped, 1);
}

TEST_F(EditorOptions, TheButtonBringsBackAllQuickTips) {
    start();
    shell->settings().WriteRegValue(QStringLiteral("NoTipsAtAll"), QStringLiteral("1"));
    for (int tip = 1; tip <= 21; ++tip) {
        shell->settings().WriteRegValue(QStringLiteral("NoTip%1").arg(tip), QStringLiteral("1"));
    }
    use([](QWidget& window) {
        button(window, "Command1").click();
        EXPECT_FALSE(button(window, kApply).isEnabled()) << "done at once, nothing to apply";
        EXPECT_TRUE(window.isVisible());
        window.close();
    });
    EXPECT_EQ(stored("NoTipsAtAll"), QString());
    for (int tip = 1; tip <= 21; ++tip) {
        EXPECT_EQ(stored(("NoTip" + std::to_string(tip)).c_str()), QString()) << tip;
    }
    EXPECT_EQ(stored("Wrong Folder"), QStringLiteral("3")) << "other values stay";
}

TEST_F(EditorOptions, TheChoiceCountsForTheNextFile) {
    const TestProject files = ProjectBuilder().build(projects.path());
    const TempFolder pictures;
    writeBytes(pictures / "coin.gif", "new");
    start({text(files.projectPath())});
    dialogs.choice = text(pictures / "coin.gif");
    const forms::FileField field{.filter = forms::filters::kImages,
                                 .folder = store::ResourceFolder::gfx};
    withWindow(
        QStringLiteral("PickCM"),
        [&] { EXPECT_EQ(nameOf(shell->fileChoice().choose(field)), QStringLiteral("coin.gif")); },
        [](QWidget& window) { button(window, "Command1(0)").click(); });
    EXPECT_EQ(dialogs.asked.back().folder, text(files.folder / "resource/gfx/"));
    EXPECT_TRUE(fs::exists(pictures / "coin.gif"));

    use([](QWidget& window) {
        option(window, "Option1(1)").click();
        option(window, "Option2(1)").click();
        button(window, kOk).click();
    });
    boxes.answer(forms::Answer::yes);
    EXPECT_EQ(nameOf(shell->fileChoice().choose(field)), QStringLiteral("coin.gif"));
    EXPECT_FALSE(fs::exists(pictures / "coin.gif")) << "moved without the window";
    EXPECT_EQ(readBytes(files.gfx("coin.gif")), "new");

    dialogs.choice.clear();
    EXPECT_EQ(nameOf(shell->fileChoice().choose({.filter = forms::filters::kSounds})), QString());
    EXPECT_EQ(dialogs.asked.back().folder, shell->InstallPath + QStringLiteral("incoming/"));
}

}  // namespace
}  // namespace quorvel::test
