// A project in a folder whose name is no valid text: bytes of another code page, as an archive of
// another system leaves them.
#include <gtest/gtest.h>

#include <QSettings>

#include "canvas/scene_view.h"
#include "resources/path_text.h"
#include "support/gif_bytes.h"
#include "support/windows/shell_fixture.h"

#ifndef _WIN32  // where names are made of 16-bit characters

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

class StrangeFolder : public ShellFixture {
  protected:
    StrangeFolder() {
        files = ProjectBuilder()
                    .fileName("Jeu \xE9t\xE9.qvl")
                    .title("Castle")
                    .scene(1, "Gate", "gate.gif")
                    .scenes(2)
                    .object(1, 1, 5, 100, 120, "coin.gif")
                    .gfx("gate.gif", stillGif(700, 475, 7))
                    .gfx("coin.gif", gifBytes(20, 20, {{1}, {2}}))
                    .build(projects.makeFolder("caf\xE9 100% \xFF"));
    }
    QString path() { return text(files.projectPath()); }
    TestProject files;
};

TEST_F(StrangeFolder, OpensIsEditedAndOpensAgainThroughTheRecentList) {
    start({path()});
    EXPECT_TRUE(boxes.shown().empty()) << boxes.texts().join(u'|').toStdString();
    ASSERT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(shell->project().ProjectFolder, files.folder.string() + "/");
    EXPECT_EQ(shell->project().ProjectFileName, files.fileName);
    EXPECT_EQ(action(QStringLiteral("projfolder")).text(),
              QStringLiteral("Project Folder is ") + text(files.folder) + QLatin1Char('/'));
    // The picture of the scene and that of an object.
    EXPECT_EQ(main().view().canvas().grab().toImage().pixel(300, 300), gifColour(7));
    EXPECT_TRUE(control<QWidget>(main(), QStringLiteral("Animation(1)")).isVisible());
    shell->scene().header(store::HeaderString::SceneName) = "Great Gate";
    leave();
    EXPECT_TRUE(boxes.shown().empty()) << boxes.texts().join(u'|').toStdString();
    EXPECT_EQ(readBytes(files.storePath(1), 0, 10), "Great Gate");

    start();
    EXPECT_EQ(shell->settings().RecentProj.front(), path());
    action(QStringLiteral("Filemen(9)")).trigger();
    EXPECT_TRUE(boxes.shown().empty()) << boxes.texts().join(u'|').toStdString();
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(shell->scene().header(store::HeaderString::SceneName), "Great Gate");
}

TEST_F(StrangeFolder, OpensFromTheDialogWithTheNextDialogInIt) {
    start();
    dialogs.choice = path();
    shell->ChooseProject();
    EXPECT_TRUE(shell->project().ProjectOpen);
    shell->CloseProject();
    dialogs.choice.clear();
    shell->ChooseProject();
    EXPECT_EQ(resources::pathOf(dialogs.asked.back().folder), files.folder / "");
}

TEST_F(StrangeFolder, StandsInTheSettingsAsPlainText) {
    start({path()});
    leave();
    const QSettings values(QStringLiteral("TessaroonWorks"), QStringLiteral("Quorvel"));
    const QString stored = values.value(QStringLiteral("RecentProj 1")).toString();
    EXPECT_TRUE(stored.startsWith(QStringLiteral("file:///")));
    EXPECT_TRUE(stored.endsWith(QStringLiteral("/caf%E9%20100%25%20%FF/Jeu%20%E9t%E9.qvl")));
}

TEST_F(StrangeFolder, ItsPlayerIsStartedThere) {
    start({path()});
    action(QStringLiteral("runmen(0)")).trigger();
    ASSERT_EQ(programs.started.size(), 1);
    EXPECT_EQ(resources::pathOf(programs.started[0]), files.folder / "Game.exe");
    EXPECT_EQ(resources::pathOf(programs.folders[0]), files.folder / "");
}

TEST_F(StrangeFolder, AMissingProjectInItIsToldByItsName) {
    fs::remove(files.projectPath());
    start({path()});
    EXPECT_EQ(boxes.texts(), QStringList{QStringLiteral("Error 53 (File not found: ") + path() +
                                         QStringLiteral(") in procedure GetProjData of Module "
                                                        "SceneData")});
}

}  // namespace
}  // namespace quorvel::test

#endif
