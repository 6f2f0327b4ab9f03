// The table of the help's pages.
#include "forms/help_topics.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

#include "forms/guide.h"
#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

using forms::HelpTopic;

TEST(HelpTopics, TheFirstPageIsNumberTen) {
    EXPECT_EQ(static_cast<int>(HelpTopic::FirstPage), 10);
    EXPECT_EQ(forms::helpPages().front().topic, HelpTopic::FirstPage);
    EXPECT_STREQ(forms::helpPages().front().file, "index.html");
}

TEST(HelpTopics, NoNumberFileOrTitleIsGivenTwice) {
    std::set<int> numbers;
    std::set<std::string> files;
    std::set<std::string> titles;
    for (const forms::HelpPage& page : forms::helpPages()) {
        EXPECT_TRUE(numbers.insert(static_cast<int>(page.topic)).second) << page.title;
        EXPECT_TRUE(files.insert(page.file).second) << page.file;
        EXPECT_TRUE(titles.insert(page.title).second) << page.title;
    }
}

TEST(HelpTopics, PagesOfAGroupStandTogether) {
    std::set<std::string> done;
    std::string group;
    for (const forms::HelpPage& page : forms::helpPages()) {
        if (page.group != group) {
            EXPECT_TRUE(done.insert(page.group).second) << page.group << " begins again";
            group = page.group;
        }
    }
}

TEST(HelpTopics, APageIsFoundByTopicAndByFile) {
    for (const forms::HelpPage& page : forms::helpPages()) {
        EXPECT_EQ(forms::helpPage(page.topic), &page);
        EXPECT_EQ(forms::helpPage(QString::fromLatin1(page.file)), &page);
    }
    EXPECT_EQ(forms::helpPage(static_cast<HelpTopic>(9999)), nullptr);
    EXPECT_EQ(forms::helpPage(QStringLiteral("none.html")), nullptr);
}

struct Listener : forms::Guide {
    void ShowHelp(HelpTopic topic) override { shown = topic; }
    void ShowQuickTip(int /*number*/) override {}
    HelpTopic shown = HelpTopic::FirstPage;
};

TEST(HelpTopics, AHelpButtonPassesItsNumber) {
    Listener listener;
    forms::helpOn(listener, HelpTopic::ResizeD)();
    EXPECT_EQ(listener.shown, HelpTopic::ResizeD);
}

}  // namespace
}  // namespace quorvel::test
