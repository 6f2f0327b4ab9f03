// Two editors on one project: the second author is told and may look on or go on.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>

#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;
using forms::Answer;
using forms::Box;
using store::HeaderString;

class TwoEditors : public ShellFixture {
  protected:
    TwoEditors() { files = ProjectBuilder().scenes(2).items(1).cards(1).build(projects.path()); }
    void openWith(Answer answer) {
        boxes.answer(answer);
        start({text(files.projectPath())});
        ASSERT_TRUE(shell->project().ProjectOpen);
    }
    void rename(const char* name) { shell->scene().header(HeaderString::SceneName) = name; }
    QLabel& notice() { return control<QLabel>(main(), QStringLiteral("Notice")); }

    TestProject files;
};

TEST_F(TwoEditors, TheSecondIsToldAndTheFirstIsNot) {
    start({text(files.projectPath())});
    EXPECT_TRUE(boxes.shown().empty());
    const auto first = std::move(shell);
    openWith(Answer::no);
    ASSERT_EQ(boxes.shown().size(), 1U);
    const Box& box = boxes.shown()[0];
    EXPECT_EQ(box.text,
              QStringLiteral("This project is open in another Quorvel already, perhaps of another "
                             "user or on another computer:\n\n%1\n\nIf both of you change it, each "
                             "writes over what the other has changed.\n\nDo you want to edit it "
                             "all the same?  Click 'No' to look at it only; nothing is saved then.")
                  .arg(text(files.projectPath())));
    EXPECT_EQ(box.title, QStringLiteral("Project in use"));
    EXPECT_TRUE(box.destroys) << "each writes over what the other has changed";
    EXPECT_EQ(box.icon, Box::Icon::exclamation);
    EXPECT_EQ(box.buttons, Box::Buttons::yesNo);
    shell.reset();
    first->CloseProject();
}

TEST_F(TwoEditors, WhoLooksOnChangesNothing) {
    store::Project other;
    files.openIn(other);
    const FolderSnapshot before = snapshotOf(projects.path());
    openWith(Answer::no);
    EXPECT_TRUE(shell->project().LookingOn);
    EXPECT_TRUE(shell->project().ReadOnlyProject);
    EXPECT_TRUE(notice().isVisible());
    EXPECT_EQ(notice().text(), QStringLiteral("You only look at this project, which is open in "
                                              "another Quorvel.  Nothing is saved."));
    rename("Mine");
    Q_EMIT control<QComboBox>(main(), QStringLiteral("Combo1")).activated(2);
    EXPECT_EQ(shell->project().CurrentScene, 2) << "browsing goes on";
    EXPECT_TRUE(notice().isVisible());
    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_FALSE(shell->project().ProjectOpen);
    EXPECT_FALSE(shell->project().LookingOn);
    EXPECT_FALSE(notice().isVisible());
    EXPECT_EQ(boxes.shown().size(), 1U) << boxes.texts().join(u'|').toStdString();
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
}

TEST_F(TwoEditors, WhoLooksOnIsNotAskedAboutTheOthersScenes) {
    store::Project other;
    files.openIn(other);
    openWith(Answer::no);
    rename("Mine");
    store::SceneRecord theirs = other.sceneFile.read(1);
    theirs.SceneName = "Theirs";
    other.sceneFile.write(1, theirs);
    Q_EMIT control<QComboBox>(main(), QStringLiteral("Combo1")).activated(2);
    Q_EMIT control<QComboBox>(main(), QStringLiteral("Combo1")).activated(1);
    EXPECT_EQ(shell->scene().header(HeaderString::SceneName), "Theirs");
    rename("Mine again");
    boxes.answer(Answer::no);
    EXPECT_FALSE(shell->CloseProject());
    EXPECT_EQ(boxes.shown().size(), 2U) << "that the change of this scene will be lost";
    boxes.answer(Answer::yes);
    EXPECT_TRUE(shell->CloseProject());
    EXPECT_EQ(readBytes(files.storePath(1), 0, 7), "Theirs ");
}

TEST_F(TwoEditors, WhoLooksOnMakesNoFileAndChangesNoRight) {
    fs::remove(files.storePath(5));
    fs::remove(projects / "Game.exe");
    writeBytes(projects / "resource/gfx/~quorvel0.tmp", "the other one copies");
    fs::permissions(files.storePath(2), fs::perms::owner_read);
    store::Project other;
    files.nameIn(other);
    other.openProjectFile();
    const FolderSnapshot before = snapshotOf(projects.path());
    openWith(Answer::no);
    EXPECT_EQ(shell->project().CueCardCount, 0);
    const fs::path picture = home / "a.gif";
    writeBytes(picture, "x");
    dialogs.choice = text(picture);
    EXPECT_FALSE(shell->fileChoice().choose(
        {.filter = forms::filters::kImages, .folder = store::ResourceFolder::gfx}));
    EXPECT_EQ(boxes.shown().size(), 2U);
    EXPECT_EQ(boxes.texts().back(),
              QStringLiteral("The file \"a.gif\" was not brought into the project, which you only "
                             "look at: it is open in another Quorvel."));
    action(QStringLiteral("runmen(0)")).trigger();
    leave();
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
    EXPECT_EQ(fs::status(files.storePath(2)).permissions(), fs::perms::owner_read);
}

TEST_F(TwoEditors, WhoGoesOnEditsAsEver) {
    store::Project other;
    files.openIn(other);
    openWith(Answer::yes);
    EXPECT_FALSE(shell->project().LookingOn);
    EXPECT_FALSE(shell->project().ReadOnlyProject);
    EXPECT_FALSE(notice().isVisible());
    rename("Mine");
    leave();
    EXPECT_EQ(readBytes(files.storePath(1), 0, 5), "Mine ");
    EXPECT_EQ(boxes.shown().size(), 1U);
}

TEST_F(TwoEditors, NobodyIsToldOnceTheFirstHasClosed) {
    store::Project other;
    files.openIn(other);
    other.closeFiles();
    start({text(files.projectPath())});
    EXPECT_TRUE(boxes.shown().empty());
    // Nor of an open that was given up, nor of this editor itself.
    action(QStringLiteral("Filemen(3)")).trigger();
    fs::remove(files.storePath(3));
    shell->openProject(text(files.projectPath()));
    EXPECT_FALSE(shell->project().ProjectOpen);
    boxes.forget();
    store::Project third;
    files.nameIn(third);
    third.openProjectFile();
    EXPECT_FALSE(third.InUseElsewhere);
}

}  // namespace
}  // namespace quorvel::test
