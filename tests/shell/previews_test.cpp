// Sounds and movies from the start of the editor to its end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
};

TEST_F(Previews, SoundIsPreparedOnceTheWindowStands) {
    start();
    EXPECT_EQ(preview->orders, QStringList{QStringLiteral("prepare")});
    EXPECT_TRUE(boxes.shown().empty());
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
