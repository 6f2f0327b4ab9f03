// Paths as texts.
#include "shell/path_text.h"

#include <gtest/gtest.h>

#include <QDir>

#include "resources/path_text.h"
#include "store/paths.h"
#include "support/file_bytes.h"
#include "support/temp_folder.h"

namespace quorvel::test {
namespace {

using shell::GetLongFileName;
using shell::ShrinkPath;
using shell::splitPath;

QString letters(int count) {
    QString all;
    for (int i = 0; i < count; ++i) {
        all += QLatin1Char(static_cast<char>('a' + i % 26));
    }
    return all;
}

TEST(ShrinkPath, KeepsFiftyCharacters) {
    EXPECT_EQ(ShrinkPath(QString()), QString());
    EXPECT_EQ(ShrinkPath(letters(50)), letters(50));
}

TEST(ShrinkPath, MakesFiftyOutOfFiftyOne) {
    const QString path = letters(51);
    const QString shrunk = ShrinkPath(path);
    EXPECT_EQ(shrunk.size(), 50);
    EXPECT_EQ(shrunk, path.left(24) + QStringLiteral("...") + path.mid(28));
}

TEST(ShrinkPath, KeepsBothEndsOfALongPath) {
    const QString path = letters(400);
    EXPECT_EQ(ShrinkPath(path), path.left(24) + QStringLiteral("...") + path.right(23));
}

TEST(GetLongFileName, IsEmptyForWhatDoesNotExist) {
    const TempFolder folder;
    EXPECT_EQ(GetLongFileName(resources::pathText(folder / "none")), QString());
    EXPECT_EQ(GetLongFileName(QString()), QString());
}

TEST(GetLongFileName, TakesDetoursOutOfAPath) {
    const TempFolder folder;
    const QString inner = resources::pathText(folder.makeFolder("A Game"));
    EXPECT_EQ(GetLongFileName(inner + QStringLiteral("/../A Game/")), QDir(inner).canonicalPath());
}

TEST(SplitPath, SplitsAtTheLastSeparator) {
    const auto split = splitPath(QStringLiteral("/no/such folder/Castle.qvl"));
    EXPECT_EQ(split.folder, QStringLiteral("/no/such folder/"));
    EXPECT_EQ(split.name, QStringLiteral("Castle.qvl"));
    EXPECT_EQ(splitPath(QStringLiteral("/no/such/")).folder, QStringLiteral("/no/such/"));
    EXPECT_EQ(splitPath(QStringLiteral("/no/such/")).name, QString());
}

TEST(SplitPath, FindsAPathWithBackslashes) {
    const TempFolder folder;
    writeBytes(folder.makeFolder("My Game") / "Castle.qvl", "x");
    QString typed = resources::pathText(folder / "My Game/Castle.qvl");
    typed.replace(QLatin1Char('/'), QLatin1Char('\\'));
    const auto split = splitPath(typed);
    EXPECT_EQ(split.folder, resources::pathText(folder.path()) + QStringLiteral("/My Game/"));
    EXPECT_EQ(split.name, QStringLiteral("Castle.qvl"));
}

TEST(SplitPath, FindsAPathInOtherLetterCase) {
    const TempFolder folder;
    writeBytes(folder.makeFolder("My Game") / "Castle.qvl", "x");
    const auto split =
        splitPath(resources::pathText(folder.path()) + QStringLiteral("/MY GAME/castle.QVL"));
    EXPECT_EQ(split.folder, resources::pathText(folder.path()) + QStringLiteral("/My Game/"));
    EXPECT_EQ(split.name, QStringLiteral("Castle.qvl"));
}

TEST(SplitPath, TakesAFileWhoseNameHoldsABackslash) {
    const TempFolder folder;
    const auto odd = folder.path() / "odd\\name.qvl";
    writeBytes(odd, "x");
    if (!QFileInfo::exists(resources::pathText(odd)) || QDir::separator() != QLatin1Char('/')) {
        GTEST_SKIP() << "a backslash cannot be part of a name here";
    }
    EXPECT_EQ(splitPath(resources::pathText(odd)).name, QStringLiteral("odd\\name.qvl"));
    const QString folderText = resources::pathText(folder.path()) + QLatin1Char('/');
    EXPECT_EQ(splitPath(folderText + QStringLiteral("ODD\\Name.QVL")).name,
              QStringLiteral("odd\\name.qvl"))
        << "in any letter case too";
}

TEST(SplitPath, KeepsABareNameAndAnEmptyPath) {
    EXPECT_EQ(splitPath(QStringLiteral("none.qvl")).name, QStringLiteral("none.qvl"));
    EXPECT_EQ(splitPath(QString()).folder, QString());
    EXPECT_EQ(splitPath(QString()).name, QString());
}

}  // namespace
}  // namespace quorvel::test
