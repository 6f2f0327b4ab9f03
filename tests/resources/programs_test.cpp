// Starting real programs: a small script in a folder of its own.
#include "resources/programs.h"

#include <gtest/gtest.h>

#include "resources/path_text.h"
#include "store/paths.h"
#include "support/file_bytes.h"
#include "support/temp_folder.h"
#include "support/windows/played_author.h"

#ifndef _WIN32

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

class Programs : public ::testing::Test {
  protected:
    /// A script at `relative` that writes its arguments, one a line, beside itself.
    QString script(const char* relative) {
        const fs::path path = folder / relative;
        fs::create_directories(path.parent_path());
        writeBytes(path,
                   "#!/bin/sh\nprintf '%s\\n' \"$#\" \"$@\" > \"$0.tmp\"\n"
                   "mv \"$0.tmp\" \"$0.out\"\n");
        fs::permissions(path, fs::perms::owner_all);
        out = path;
        out += ".out";
        return resources::pathText(path);
    }
    /// What the script wrote; waits for it.
    std::string written() {
        return waitUntil([this] { return fs::exists(out); }) ? readBytes(out) : "nothing";
    }
    TempFolder folder;
    fs::path out;
    resources::SystemPrograms programs;
};

TEST_F(Programs, ABarePathIsStarted) {
    EXPECT_TRUE(programs.start(script("tool")));
    EXPECT_EQ(written(), "0\n");
}

TEST_F(Programs, ABarePathWithBlanksIsStarted) {
    EXPECT_TRUE(
        programs.start(QStringLiteral("  ") + script("My Tools/a tool") + QStringLiteral(" ")));
    EXPECT_EQ(written(), "0\n");
}

TEST_F(Programs, AQuotedPathTakesArguments) {
    const QString path = script("My Tools/tool");
    EXPECT_TRUE(programs.start(QStringLiteral("\"%1\" -x \"two words\" $HOME;ls").arg(path)));
    EXPECT_EQ(written(), "3\n-x\ntwo words\n$HOME;ls\n") << "no shell looks at the line";
}

TEST_F(Programs, AnUnquotedPathTakesArguments) {
    const QString path = script("tool");
    EXPECT_TRUE(programs.start(path + QStringLiteral(" one two")));
    EXPECT_EQ(written(), "2\none\ntwo\n");
}

TEST_F(Programs, AProgramIsRunWithItsArgumentsInItsFolder) {
    const QString path = script("My Tools/a \"tool\"");
    const QString here = resources::pathText(folder.path());
    EXPECT_TRUE(programs.run(path, {QStringLiteral("a b"), QStringLiteral("\"c\"")}, here));
    EXPECT_EQ(written(), "2\na b\n\"c\"\n");
    EXPECT_FALSE(programs.run(here + QStringLiteral("/nothing"), {}, here));
    EXPECT_FALSE(programs.run(here, {}, here));
    const fs::path plain = folder / "plain";
    writeBytes(plain, "no program");
    EXPECT_FALSE(programs.run(resources::pathText(plain), {}, here));
}

TEST_F(Programs, AProgramIsRunInAFolderWhoseNameIsNoText) {
    const fs::path before = fs::current_path();
    const QString path = script("caf\xE9/tool");
    const QString here = resources::pathText(out.parent_path()) + QLatin1Char('/');
    const QString other = here + QStringLiteral("other.exe");
    EXPECT_TRUE(programs.run(path, {QStringLiteral("a b"), other}, here));
    EXPECT_EQ(written(), "2\na b\n./other.exe\n");
    EXPECT_FALSE(programs.run(other, {}, here));
    EXPECT_EQ(fs::current_path(), before);
}

TEST_F(Programs, AProgramIsFoundByItsName) {
    EXPECT_TRUE(programs.find(QStringLiteral("sh")).endsWith(QStringLiteral("/sh")));
    EXPECT_EQ(programs.find(QStringLiteral("no-such-program-anywhere")), QString());
}

TEST_F(Programs, WhatCannotBeStartedIsReported) {
    EXPECT_FALSE(programs.start(QString()));
    EXPECT_FALSE(programs.start(QStringLiteral("   ")));
    EXPECT_FALSE(programs.start(QStringLiteral("/no/such/program")));
    EXPECT_FALSE(programs.start(resources::pathText(folder.path())));
    const fs::path plain = folder / "plain";
    writeBytes(plain, "no program");
    EXPECT_FALSE(programs.start(resources::pathText(plain)));
}

}  // namespace
}  // namespace quorvel::test

#endif
