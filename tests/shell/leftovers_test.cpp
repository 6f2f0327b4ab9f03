// Unfinished copies of an editor that was killed: the next opening removes them and says so.
#include "shell/leftovers.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>

#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

class Leftovers : public ShellFixture {
  protected:
    Leftovers() {
        files = ProjectBuilder().scenes(2).build(projects.path());
        for (const char* name :
             {"~quorvel3.tmp", "resource/gfx/~quorvel0.tmp", "resource/mmedia/~quorvel12.tmp"}) {
            writeBytes(projects / name, "half of a file");
        }
    }
    QLabel& notice() { return control<QLabel>(main(), QStringLiteral("Notice")); }
    TestProject files;
};

TEST_F(Leftovers, AreRemovedAndNamedUntilTheNextScene) {
    start({text(files.projectPath())});
    EXPECT_TRUE(boxes.shown().empty()) << boxes.texts().join(u'|').toStdString();
    EXPECT_FALSE(fs::exists(projects / "~quorvel3.tmp"));
    EXPECT_FALSE(fs::exists(projects / "resource/gfx/~quorvel0.tmp"));
    EXPECT_FALSE(fs::exists(projects / "resource/mmedia/~quorvel12.tmp"));
    EXPECT_TRUE(notice().isVisible());
    EXPECT_EQ(notice().text(),
              QStringLiteral("Quorvel was ended while it copied a file.  What it left was removed: "
                             "~quorvel3.tmp, resource/gfx/~quorvel0.tmp, "
                             "resource/mmedia/~quorvel12.tmp"));
    // What is under the pointer comes first; nothing else in the window moves.
    canvas::StatusText object = canvas::emptyStatus();
    object.index = QStringLiteral("Index: 3");
    main().status().show(object);
    EXPECT_FALSE(notice().isVisible());
    main().status().show(canvas::emptyStatus());
    EXPECT_TRUE(notice().isVisible());
    EXPECT_EQ(notice().geometry(),
              control<QWidget>(main(), QStringLiteral("StatusBar1")).geometry());
    control<QComboBox>(main(), QStringLiteral("Combo1")).setCurrentIndex(2);
    Q_EMIT control<QComboBox>(main(), QStringLiteral("Combo1")).activated(2);
    EXPECT_EQ(shell->project().CurrentScene, 2);
    EXPECT_FALSE(notice().isVisible());
}

TEST_F(Leftovers, ThatAreGoneAreNotTold) {
    start({text(files.projectPath())});
    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_FALSE(notice().isVisible());
    shell->openProject(text(files.projectPath()));
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_FALSE(notice().isVisible());
}

TEST_F(Leftovers, OutsideTheProjectAreNotTouched) {
    const TempFolder elsewhere;
    writeBytes(elsewhere / "~quorvel0.tmp", "x");
    fs::remove_all(projects / "resource/gfx");
    fs::create_directory_symlink(elsewhere.path(), projects / "resource/gfx");
    start({text(files.projectPath())});
    EXPECT_EQ(readBytes(elsewhere / "~quorvel0.tmp"), "x");
    EXPECT_FALSE(fs::exists(projects / "resource/mmedia/~quorvel12.tmp"));
}

TEST_F(Leftovers, OfAnEditorThatMayBeCopyingNowAreNotTouched) {
    store::Project other;
    files.openIn(other);
    boxes.answer(forms::Answer::yes);
    start({text(files.projectPath())});
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(fs::exists(projects / "resource/gfx/~quorvel0.tmp"));
    EXPECT_FALSE(notice().isVisible());
}

}  // namespace
}  // namespace quorvel::test
