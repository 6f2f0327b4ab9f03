// Sounds and movies from the start of the editor to its end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/project_preview.h"
#include "support/gate.h"
#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

class Previews : public ShellFixture {
  protected:
    void startWithAProject() {
        start({text(ProjectBuilder().scenes(2).build(projects.makeFolder("game")).projectPath())});
        ASSERT_TRUE(shell->project().ProjectOpen);
        preview->orders.clear();
    }
    void run(shell::Surroundings given) {
        shell = std::make_unique<shell::Shell>(std::move(given));
        for (const auto& loadForm : shell->loadForms()) {
            loadForm();
        }
        shell->InitializeEditor();
    }
    void openSceneProperties() {
        withWindow(
            QStringLiteral("sceneimage"), [this] { action(QStringLiteral("scnmen(1)")).trigger(); },
            [](QWidget& window) { window.close(); });
    }
};

TEST_F(Previews, NothingIsLoadedBeforeAWindowWithSoundOpens) {
    startWithAProject();
    EXPECT_TRUE(boxes.shown().empty());
    withWindow(
        QStringLiteral("frmAbout"), [this] { action(QStringLiteral("helpmen(9)")).trigger(); },
        [](QWidget& window) { window.close(); });
    EXPECT_EQ(preview->prepared, 0);
    openSceneProperties();
    EXPECT_GE(preview->prepared, 1);
}

/// The real preview, whose library does not start: as with a scanner that sleeps.
TEST_F(Previews, LeavingWhileSoundIsPreparedIsNoFault) {
    Gate gate;
    int left = 0;
    auto token = std::make_shared<int>(0);
    const std::weak_ptr<int> alive = token;
    media::PreviewOptions options;
    options.patience = std::chrono::hours(24);
    options.leftBehind = [&left] { ++left; };
    options.startLibrary = [&gate, token = std::move(token)] {
        gate.pass();
        throw std::runtime_error("too late");
    };
    auto given =
        surroundings({text(ProjectBuilder().build(projects.makeFolder("game")).projectPath())});
    given.makePreview = [options = std::move(options)](const store::Project& project, QWidget*) {
        return shell::PreviewParts{std::make_unique<forms::ProjectPreview>(project, options),
                                   nullptr};
    };
    run(std::move(given));
    ASSERT_TRUE(shell->project().ProjectOpen);
    openSceneProperties();
    gate.waitForGuest();
    shell->ExitProgram();
    EXPECT_EQ(quits, 1);
    shell.reset();
    EXPECT_EQ(left, 1);
    gate.open();
    EXPECT_TRUE(waitUntil([&] { return alive.expired(); }));
    EXPECT_TRUE(boxes.shown().empty()) << "nothing is told after the end";
}

TEST_F(Previews, WhatPreparingFindsIsToldOnce) {
    auto given =
        surroundings({text(ProjectBuilder().build(projects.makeFolder("game")).projectPath())});
    given.makePreview = [](const store::Project& project, QWidget*) {
        return shell::PreviewParts{std::make_unique<forms::ProjectPreview>(
                                       project, media::PreviewOptions{.sink = "nosuchsink"}),
                                   nullptr};
    };
    run(std::move(given));
    EXPECT_TRUE(boxes.shown().empty());
    openSceneProperties();
    ASSERT_TRUE(waitUntil([this] { return !boxes.shown().empty(); }));
    openSceneProperties();
    EXPECT_TRUE(shell->preview().CloseMediaEngine()) << "all that was ordered is done";
    QCoreApplication::processEvents();
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_TRUE(boxes.shown().front().text.startsWith(QStringLiteral(
        "Error intializing DirectSound for WAV audio (form_Main)\n\nThe sound system lacks "
        "\"nosuchsink\"")));
}

TEST_F(Previews, AMachineWithoutSoundIsToldAndGoesOn) {
    start();
    Q_EMIT preview->unavailable(QStringLiteral("There is no \"volume\"."));
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown().front().text,
              QStringLiteral("Error intializing DirectSound for WAV audio (form_Main)\n\nThere is "
                             "no \"volume\"."));
    EXPECT_TRUE(main().isVisible());
}

TEST_F(Previews, NothingOfAClosedProjectGoesOnPlaying) {
    startWithAProject();
    action(QStringLiteral("Filemen(3)")).trigger();
    ASSERT_FALSE(shell->project().ProjectOpen);
    EXPECT_THAT(preview->orders, testing::UnorderedElementsAre(
                                     QStringLiteral("StopMp3"), QStringLiteral("StopAllWavs"),
                                     QStringLiteral("StopMidi"), QStringLiteral("StopMovie")));
}

TEST_F(Previews, LeavingTheEditorStopsSoundsFirstAndMoviesLast) {
    startWithAProject();
    shell->ExitProgram();
    ASSERT_GE(preview->orders.size(), 5);
    EXPECT_EQ(preview->orders.mid(0, 2),
              (QStringList{QStringLiteral("StopMp3"), QStringLiteral("StopAllWavs")}));
    EXPECT_EQ(preview->orders.mid(preview->orders.size() - 2),
              (QStringList{QStringLiteral("StopMovie"), QStringLiteral("CloseMediaEngine")}));
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(quits, 1);
}

TEST_F(Previews, WithNobodyThereASoundSystemThatHangsIsALine) {
    startWithAProject();
    preview->closes = false;
    shell->endByRequest();
    EXPECT_TRUE(waitUntil([this] { return quits == 1; }));
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_TRUE(complaints.contains(
        QStringLiteral("Warning: Unable to Terminate DirectShow Engine Successfully.")))
        << complaints.join(QLatin1Char('|')).toStdString();
}

TEST_F(Previews, ASoundSystemThatHangsIsToldAndTheEditorEndsAllTheSame) {
    startWithAProject();
    preview->closes = false;
    shell->ExitProgram();
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown().front().title, QStringLiteral("Warning"));
    EXPECT_EQ(boxes.shown().front().text,
              QStringLiteral("Unable to Terminate DirectShow Engine Successfully."));
    EXPECT_EQ(quits, 1);
}

}  // namespace
}  // namespace quorvel::test
