// The About box, the system's information, the product's page: what the Help menu opens besides.
#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>

#include "shell/about_box.h"
#include "shell/author_guide.h"
#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

using forms::Box;

const QString kMsInfo = QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO\\PATH");
const QString kLocation = QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location\\MSINFO");

class About : public ShellFixture {
  protected:
    void use(const std::function<void(QWidget&)>& author) {
        withWindow(
            QStringLiteral("frmAbout"), [this] { action(QStringLiteral("helpmen(9)")).trigger(); },
            author);
    }
    void clickSystemInfo() {
        use([](QWidget& window) {
            control<QPushButton>(window, QStringLiteral("cmdSysInfo")).click();
            window.close();
        });
    }
    QString makeProgram(const std::string& name) {
        writeBytes(projects / name, "MZ");
        return text(projects / name);
    }
    static const inline QString kUnavailable =
        QStringLiteral("System Information is unavailable at this time.");
};

TEST_F(About, TheTextsAreExact) {
    start();
    EXPECT_TRUE(action(QStringLiteral("helpmen(9)")).isEnabled());
    use([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("About Quorvel"));
        const auto label = [&window](const char* name) {
            return control<QLabel>(window, QString::fromLatin1(name)).text();
        };
        EXPECT_EQ(label("lblTitle"), QStringLiteral("Quorvel"));
        EXPECT_EQ(label("lblVersion"), QStringLiteral("Version 3.03.0001"));
        EXPECT_EQ(label("lblDescription"),
                  QStringLiteral("Object-Oriented Adventure Game Development System"));
        EXPECT_EQ(control<QPushButton>(window, QStringLiteral("cmdSysInfo")).text(),
                  QStringLiteral("&System Info..."));
        auto& ok = control<QPushButton>(window, QStringLiteral("cmdOK"));
        EXPECT_EQ(ok.text(), QStringLiteral("OK"));
        EXPECT_TRUE(ok.isDefault());
        EXPECT_TRUE(window.isModal());
        ok.click();
    });
    EXPECT_EQ(visibleWindow(QStringLiteral("frmAbout")), nullptr);
}

TEST_F(About, WithoutTheProgramSystemInformationIsUnavailable) {
    start();
    clickSystemInfo();
    EXPECT_EQ(boxes.texts(), QStringList{kUnavailable});
    EXPECT_TRUE(programs.started.isEmpty());
}

TEST_F(About, ThePathOfTheProgramIsStarted) {
    const QString program = makeProgram("my info.exe");
    machineValues[kMsInfo] = program;
    machineValues[kLocation] = text(projects.path());
    start();
    clickSystemInfo();
    EXPECT_EQ(programs.started, QStringList{program});
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(About, ElseTheProgramInTheFolderOfSharedTools) {
    makeProgram("MSINFO32.EXE");
    machineValues[kLocation] = text(projects.path());
    start();
    clickSystemInfo();
    EXPECT_EQ(programs.started,
              QStringList{text(projects.path()) + QStringLiteral("/MSINFO32.EXE")});
}

TEST_F(About, ValuesThatLeadNowhereCountAsNone) {
    machineValues[kMsInfo] = text(projects.path()) + QStringLiteral("/gone.exe");
    machineValues[kLocation] = text(projects.path());
    start();
    clickSystemInfo();
    EXPECT_EQ(boxes.texts(), QStringList{kUnavailable});
    machineValues[kMsInfo] = text(projects.path());  // a folder
    clickSystemInfo();
    EXPECT_EQ(boxes.texts(), (QStringList{kUnavailable, kUnavailable}));
    EXPECT_TRUE(programs.started.isEmpty());
}

TEST_F(About, AProgramThatDoesNotStartIsUnavailableToo) {
    machineValues[kMsInfo] = makeProgram("info.exe");
    programs.succeed = false;
    start();
    clickSystemInfo();
    EXPECT_EQ(boxes.texts(), QStringList{kUnavailable});
}

TEST_F(About, TheWebsiteOpensInTheBrowser) {
    start();
    EXPECT_TRUE(action(QStringLiteral("helpmen(5)")).isEnabled());
    action(QStringLiteral("helpmen(5)")).trigger();
    EXPECT_EQ(programs.visited,
              QStringList{QStringLiteral("https://quorvel.example/quorvel/index.htm")});
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(About, WithoutABrowserTheAddressIsTold) {
    programs.succeed = false;
    start();
    action(QStringLiteral("helpmen(5)")).trigger();
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown().front().icon, Box::Icon::exclamation);
    EXPECT_EQ(boxes.shown().front().text,
              QStringLiteral("No program could be started to show this address:\n\n"
                             "https://quorvel.example/quorvel/index.htm"));
}

TEST_F(About, AFailureInTheHelpMenuIsToldAndTheEditorGoesOn) {
    struct Failing : PlayedPrograms {
        bool openUrl(const QString& /*address*/) override {
            throw store::RuntimeError(store::ErrorNumber::deviceError);
        }
    } failing;
    shell::Surroundings around = surroundings();
    shell =
        std::make_unique<shell::Shell>(shell::Surroundings{.boxes = boxes,
                                                           .dialogs = dialogs,
                                                           .programs = failing,
                                                           .screens = around.screens,
                                                           .random = around.random,
                                                           .quit = around.quit,
                                                           .beep = around.beep,
                                                           .complain = around.complain,
                                                           .makePreview = around.makePreview,
                                                           .machineValue = around.machineValue,
                                                           .programFolder = around.programFolder,
                                                           .userFolder = around.userFolder,
                                                           .arguments = {}});
    for (const auto& loadForm : shell->loadForms()) {
        loadForm();
    }
    shell->InitializeEditor();
    action(QStringLiteral("helpmen(5)")).trigger();
    EXPECT_EQ(boxes.texts(), QStringList{QStringLiteral("Error 57 (Device I/O error)")});
    EXPECT_TRUE(main().isVisible());
}

}  // namespace
}  // namespace quorvel::test
