// File dialogs in folders that the toolkit cannot name.
#include "forms/readable_folder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>

#include "resources/path_text.h"
#include "support/file_bytes.h"
#include "support/temp_folder.h"
#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

using forms::ReadableFolder;
using resources::pathText;

TEST(ReadableFolder, AReadableFolderStandsForItself) {
    const TempFolder folder;
    const QString path = pathText(folder.path()) + QLatin1Char('/');
    const ReadableFolder readable(path);
    EXPECT_EQ(readable.path(), path);
    EXPECT_EQ(readable.real(path + QStringLiteral("a.gif")), path + QStringLiteral("a.gif"));
    EXPECT_EQ(readable.real(QString()), QString());
    EXPECT_EQ(ReadableFolder(QString()).path(), QString());
}

TEST(ReadableFolder, AnyOtherIsReachedByALink) {
    const TempFolder parent;
    const std::filesystem::path folder = parent.makeFolder("caf\xE9/gfx\xFF");
    writeBytes(folder / "a.gif", "x");
    const QString path = pathText(folder);
    QString link;
    {
        const ReadableFolder readable(path + QLatin1Char('/'));
        link = readable.path();
        EXPECT_TRUE(link.isValidUtf16());
        EXPECT_TRUE(link.endsWith(QStringLiteral("/gfx\uFFFD/")));
        EXPECT_EQ(QDir(link).entryList(QDir::Files), QStringList{QStringLiteral("a.gif")});
        EXPECT_EQ(readable.real(link + QStringLiteral("a.gif")), path + QStringLiteral("/a.gif"));
        EXPECT_EQ(readable.real(link), path + QLatin1Char('/'));
        EXPECT_EQ(readable.real(link.chopped(1)), path);
        EXPECT_EQ(readable.real(QStringLiteral("/elsewhere/a.gif")),
                  QStringLiteral("/elsewhere/a.gif"));
        EXPECT_EQ(readable.real(QString()), QString());
    }
    EXPECT_FALSE(QFileInfo::exists(link)) << "the link is gone";
    EXPECT_EQ(readBytes(folder / "a.gif"), "x") << "what it led to is not";
}

}  // namespace
}  // namespace quorvel::test
