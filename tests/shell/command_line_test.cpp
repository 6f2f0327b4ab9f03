// What the editor is started with: its own options, those of the toolkit, projects.
#include "shell/command_line.h"

#include <gtest/gtest.h>
#include <string>

#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

using shell::CommandLine;
using Wish = CommandLine::Wish;

/// A command line that lives as long as its arguments.
class Given {
  public:
    Given(std::initializer_list<const char*> arguments)
        : texts_(arguments.begin(), arguments.end()) {
        texts_.insert(texts_.begin(), "quorvel");
        for (std::string& text : texts_) {
            pointers_.push_back(text.data());
        }
        line = shell::readCommandLine(static_cast<int>(pointers_.size()), pointers_.data());
    }
    [[nodiscard]] std::string toolkit() const {
        std::string joined;
        for (const char* argument : line.toolkit) {
            joined += joined.empty() ? "" : " ";
            joined += argument;
        }
        return joined;
    }
    CommandLine line;

  private:
    std::vector<std::string> texts_;
    std::vector<char*> pointers_;
};

TEST(CommandLine, NamesProjects) {
    const Given given{"/a b/One.qvl", "Two.qvl"};
    EXPECT_EQ(given.line.wish, Wish::run);
    EXPECT_EQ(given.line.projects,
              (QStringList{QStringLiteral("/a b/One.qvl"), QStringLiteral("Two.qvl")}));
    EXPECT_EQ(given.toolkit(), "quorvel");
}

TEST(CommandLine, AsksForHelpOrVersion) {
    EXPECT_EQ(Given({"--help"}).line.wish, Wish::help);
    EXPECT_EQ(Given({"a.qvl", "-h"}).line.wish, Wish::help);
    EXPECT_EQ(Given({"--version"}).line.wish, Wish::version);
    EXPECT_EQ(Given({"-v"}).line.wish, Wish::version);
    EXPECT_EQ(shell::versionText(), QStringLiteral("Quorvel 3.03.0001\n"));
    for (const char* option : {"--help", "--version", "--"}) {
        EXPECT_TRUE(shell::usageText().contains(QString::fromLatin1(option))) << option;
    }
}

TEST(CommandLine, RefusesWhatNobodyKnows) {
    for (const char* option : {"--wrong", "-x", "--Help", "-platforms", "--reverse=1", "-s=1"}) {
        const Given given{"a.qvl", option};
        EXPECT_EQ(given.line.wish, Wish::unknownOption) << option;
        EXPECT_EQ(given.line.unknown, QString::fromLatin1(option));
    }
    EXPECT_EQ(Given({"-platform"}).line.wish, Wish::unknownOption) << "its value is missing";
}

TEST(CommandLine, LeavesTheToolkitItsOwn) {
    const Given given{"-platform", "offscreen", "--style",  "fusion", "-style=windows",
                      "-reverse",  "a.qvl",     "-session", "42_1"};
    EXPECT_EQ(given.line.wish, Wish::run);
    EXPECT_EQ(given.toolkit(),
              "quorvel -platform offscreen --style fusion -style=windows -reverse -session 42_1");
    EXPECT_EQ(given.line.projects, QStringList{QStringLiteral("a.qvl")});
}

TEST(CommandLine, TakesEverythingForAProjectBehindTwoDashes) {
    const Given given{"--", "--help", "-x", "-platform", "--", "-"};
    EXPECT_EQ(given.line.wish, Wish::run);
    EXPECT_EQ(given.toolkit(), "quorvel");
    EXPECT_EQ(given.line.projects, (QStringList{QStringLiteral("--help"), QStringLiteral("-x"),
                                                QStringLiteral("-platform"), QStringLiteral("--"),
                                                QStringLiteral("-")}));
}

TEST(CommandLine, MayBeEmpty) {
    const CommandLine line = shell::readCommandLine(0, nullptr);
    EXPECT_EQ(line.wish, Wish::run);
    EXPECT_TRUE(line.toolkit.empty());
}

}  // namespace
}  // namespace quorvel::test
