#include "forms/file_dialogs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>

#include "resources/path_text.h"
#include "store/paths.h"
#include "support/file_bytes.h"
#include "support/temp_folder.h"
#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

QString filter(const char* text) {
    return forms::toolkitFilter(QString::fromLatin1(text));
}

TEST(ToolkitFilter, TranslatesPairs) {
    EXPECT_EQ(filter("Quorvel Projects (*.qvl)|*.qvl|"),
              QStringLiteral("Quorvel Projects (*.qvl)"));
    EXPECT_EQ(filter("Quorvel Projects (*.qvl)|*.qvl"), QStringLiteral("Quorvel Projects (*.qvl)"));
    EXPECT_EQ(filter("Pictures (bmp, jpg)|*.bmp;*.jpg|All Files|*.*"),
              QStringLiteral("Pictures (*.bmp *.jpg);;All Files (*.*)"));
}

TEST(ToolkitFilter, TakesWhatIsIncomplete) {
    EXPECT_EQ(filter(""), QString());
    EXPECT_EQ(filter("Pictures"), QString());
    EXPECT_EQ(filter("|"), QString());
}

TEST(FileDialog, ReturnsTheFileThatWasChosen) {
    const TempFolder folder;
    writeBytes(folder / "A Game.QVL", "x");
    const QString path = resources::pathText(folder / "A Game.QVL");
    forms::SystemFileDialogs dialogs;
    QString chosen;
    withWindow(
        QStringLiteral("QFileDialog"),
        [&] {
            chosen = dialogs
                         .openFile({.title = QStringLiteral("Choose a project to open"),
                                    .filter = QStringLiteral("Quorvel Projects (*.qvl)|*.qvl|"),
                                    .folder = resources::pathText(folder.path()),
                                    .fileName = {}})
                         .path;
        },
        [&](QWidget& window) {
            auto& dialog = dynamic_cast<QFileDialog&>(window);
            EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Choose a project to open"));
            EXPECT_EQ(dialog.directory().absolutePath(), resources::pathText(folder.path()));
            control<QLineEdit>(dialog, QStringLiteral("fileNameEdit"))
                .setText(QStringLiteral("A Game.QVL"));
            QMetaObject::invokeMethod(&dialog, "accept");
        });
    EXPECT_EQ(chosen, path);
}

TEST(FileDialog, ShowsTheKindThatItIsGivenAndTellsTheOneThatWasChosen) {
    const TempFolder folder;
    writeBytes(folder / "coin.gif", "x");
    forms::SystemFileDialogs dialogs;
    forms::FileAnswer answer;
    withWindow(
        QStringLiteral("QFileDialog"),
        [&] {
            answer = dialogs.openFile(
                {.title = {},
                 .filter = QStringLiteral("Bitmap Files (*.bmp)|*.bmp|GIF Files (*.gif)|*.gif|"
                                          "All supported Files (*.bmp;*.gif)|*.bmp;*.gif|"),
                 .folder = resources::pathText(folder.path()),
                 .fileName = {},
                 .kind = 1});
        },
        [&](QWidget& window) {
            auto& dialog = dynamic_cast<QFileDialog&>(window);
            EXPECT_EQ(dialog.selectedNameFilter(), QStringLiteral("GIF Files (*.gif)"));
            dialog.selectNameFilter(dialog.nameFilters().at(2));
            control<QLineEdit>(dialog, QStringLiteral("fileNameEdit"))
                .setText(QStringLiteral("coin.gif"));
            QMetaObject::invokeMethod(&dialog, "accept");
        });
    EXPECT_EQ(answer.path, resources::pathText(folder / "coin.gif"));
    EXPECT_EQ(answer.kind, 2);
}

TEST(FileDialog, ReturnsNothingWhenItIsLeft) {
    forms::SystemFileDialogs dialogs;
    QString chosen = QStringLiteral("untouched");
    withWindow(
        QStringLiteral("QFileDialog"),
        [&] {
            chosen =
                dialogs.openFile({.title = {}, .filter = {}, .folder = {}, .fileName = {}}).path;
        },
        [](QWidget& window) { dynamic_cast<QFileDialog&>(window).reject(); });
    EXPECT_EQ(chosen, QString());
}

TEST(FolderDialog, ReturnsTheFolderWithItsSeparator) {
    const TempFolder folder;
    const QString start = resources::pathText(folder.path());
    const QString game = resources::pathText(folder.makeFolder("A Game"));
    forms::SystemFileDialogs dialogs;
    const auto choose = [&](const std::function<void(QFileDialog&)>& author) {
        QString chosen;
        withWindow(
            QStringLiteral("QFileDialog"),
            [&] {
                chosen = dialogs.chooseFolder(
                    {.title = QStringLiteral("Choose a folder for your new project"),
                     .filter = {},
                     .folder = start,
                     .fileName = QStringLiteral("-Choose an empty folder-")});
            },
            [&](QWidget& window) {
                auto& dialog = dynamic_cast<QFileDialog&>(window);
                EXPECT_EQ(dialog.windowTitle(),
                          QStringLiteral("Choose a folder for your new project"));
                EXPECT_EQ(dialog.directory().absolutePath(), start);
                author(dialog);
            });
        return chosen;
    };
    EXPECT_EQ(choose([&](QFileDialog& dialog) {
                  dialog.setDirectory(game);
                  QMetaObject::invokeMethod(&dialog, "accept");
              }),
              game + QLatin1Char('/'));
    EXPECT_EQ(choose([](QFileDialog& dialog) { dialog.reject(); }), QString());
}

}  // namespace
}  // namespace quorvel::test
