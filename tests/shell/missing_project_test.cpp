// A project that is not there, as a command line or another editor may name it.
#include <gtest/gtest.h>

#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;
using forms::Box;

class MissingProject : public ShellFixture {
  protected:
    static QString sentence(const fs::path& path) {
        return QStringLiteral(
                   "Error 53 (File not found: %1) in procedure GetProjData of Module "
                   "SceneData")
            .arg(text(path));
    }
    void expectNothingOpen() {
        EXPECT_FALSE(shell->project().ProjectOpen);
        EXPECT_FALSE(shell->project().projectFile.isOpen());
        EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel"));
        EXPECT_EQ(action(QStringLiteral("projfolder")).text(),
                  QStringLiteral("(No Project Loaded)"));
        EXPECT_FALSE(action(QStringLiteral("Filemen(3)")).isEnabled());
        EXPECT_EQ(visibleWindow(QStringLiteral("OpenProj")), nullptr);
    }
};

TEST_F(MissingProject, IsToldByItsPathAndTheEditorStays) {
    start({text(projects / "none.qvl")});
    EXPECT_EQ(boxes.texts(), QStringList{sentence(projects / "none.qvl")});
    EXPECT_EQ(boxes.shown()[0].icon, Box::Icon::information);
    expectNothingOpen();
    EXPECT_TRUE(main().isVisible());
    EXPECT_EQ(quits, 0);
    EXPECT_TRUE(fs::is_empty(projects.path()));
}

TEST_F(MissingProject, IsToldByItsFullPath) {
    const fs::path here = fs::current_path();
    fs::current_path(projects.path());
    start({QStringLiteral("no folder/../gone/none.qvl"), QStringLiteral("none.qvl")});
    fs::current_path(here);
    EXPECT_EQ(boxes.texts(),
              (QStringList{sentence(projects / "gone/none.qvl"), sentence(projects / "none.qvl")}));
    expectNothingOpen();
}

TEST_F(MissingProject, LeavesTheOpenOneOpen) {
    start({text(ProjectBuilder().build(projects.path()).projectPath())});
    EXPECT_FALSE(shell->openProject(text(projects / "none.qvl")));
    EXPECT_EQ(boxes.texts(), QStringList{sentence(projects / "none.qvl")});
    EXPECT_TRUE(shell->project().ProjectOpen);
}

TEST_F(MissingProject, DoesNotKeepTheNextFromOpening) {
    const TestProject a = ProjectBuilder().build(projects.makeFolder("a"));
    const TestProject b = ProjectBuilder().build(projects.makeFolder("b"));
    start({text(a.projectPath()), text(projects / "none.qvl"), text(b.projectPath())});
    EXPECT_EQ(boxes.texts(), QStringList{sentence(projects / "none.qvl")});
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(QString::fromStdString(shell->project().ProjectFolder),
              text(b.folder) + QLatin1Char('/'));
}

TEST_F(MissingProject, BehindALinkIsNotMade) {
    fs::create_symlink(projects / "none.qvl", projects / "link.qvl");
    start({text(projects / "link.qvl")});
    EXPECT_EQ(boxes.shown().size(), 2U) << "the attributes and the file itself";
    expectNothingOpen();
    EXPECT_FALSE(fs::exists(projects / "none.qvl"));
}

}  // namespace
}  // namespace quorvel::test
