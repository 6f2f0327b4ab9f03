// The window of the help: pages, contents, search, the way back, and modal windows beside it. The
// pages here are made by the test; what is delivered has a test of its own.
#include "shell/help_window.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeWidget>
#include <QWindow>

#include "forms/form.h"
#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

using forms::HelpPage;
using forms::HelpTopic;

std::string pageHtml(const HelpPage& page, const std::string& body) {
    return "<html><head><title>x</title></head><body><h1>" + std::string(page.title) + "</h1>" +
           body + "</body></html>";
}

class Help : public ShellFixture {
  protected:
    Help() {
        for (const HelpPage& page : forms::helpPages()) {
            write(page.topic, "<p>About this.</p>");
        }
    }

    void write(HelpTopic topic, const std::string& body) {
        const HelpPage& page = *forms::helpPage(topic);
        writeBytes(folder / page.file, pageHtml(page, body));
    }
    void startWithPages() {
        start();
        shell->HelpFile = text(folder / "index.html");
    }
    static QWidget* window() { return visibleWindow(QStringLiteral("HelpWindow")); }
    static QTextBrowser& page() { return control<QTextBrowser>(*window(), q("Page")); }
    static QTreeWidget& contents() { return control<QTreeWidget>(*window(), q("Contents")); }
    static QListWidget& results() { return control<QListWidget>(*window(), q("Results")); }
    static QLineEdit& search() { return control<QLineEdit>(*window(), q("Search")); }
    static void click(const char* name) { control<QToolButton>(*window(), q(name)).click(); }
    static bool isEnabled(const char* name) {
        return control<QToolButton>(*window(), q(name)).isEnabled();
    }
    static QString q(const char* latin) { return QString::fromLatin1(latin); }
    static QString shownFile() { return page().source().fileName(); }
    /// Titles of the results.
    static QStringList found() {
        QStringList titles;
        for (int row = 0; row < results().count(); ++row) {
            titles << results().item(row)->text().section(QLatin1Char('\n'), 0, 0);
        }
        return titles;
    }
    /// Types into the search field as a keyboard does, through the window.
    static void typeByKeyboard(const QString& keys) {
        search().setFocus();
        for (const QChar one : keys) {
            QTest::keyClick(window()->windowHandle(), one.toLatin1());
        }
    }
    TempFolder folder;
};

TEST_F(Help, TheMenuOpensTheFirstPageBesideTheMainWindow) {
    startWithPages();
    EXPECT_TRUE(action(q("helpmen(3)")).isEnabled());
    action(q("helpmen(3)")).trigger();
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(shownFile(), q("index.html"));
    EXPECT_FALSE(window()->isModal());
    EXPECT_EQ(window()->windowTitle(), q("Your first game - Quorvel Help"));
    EXPECT_TRUE(waitUntil([] { return window()->isActiveWindow(); }));
    main().activateWindow();
    EXPECT_TRUE(waitUntil([this] { return main().isActiveWindow(); })) << "both can be used";
}

TEST_F(Help, EachTopicShowsItsPageInTheOneWindow) {
    startWithPages();
    QWidget* first = nullptr;
    for (const HelpPage& one : forms::helpPages()) {
        shell->ShowHelp(one.topic);
        ASSERT_NE(window(), nullptr);
        first = first == nullptr ? window() : first;
        EXPECT_EQ(window(), first);
        EXPECT_EQ(shownFile(), q(one.file));
        ASSERT_NE(contents().currentItem(), nullptr);
        EXPECT_EQ(contents().currentItem()->text(0), q(one.title));
        EXPECT_TRUE(page().toPlainText().startsWith(q(one.title)));
    }
    shell->ShowHelp(static_cast<HelpTopic>(4711));
    EXPECT_EQ(shownFile(), q("index.html")) << "a number without a page";
}

TEST_F(Help, TheContentsLeadToEveryPage) {
    startWithPages();
    shell->ShowHelp(HelpTopic::FirstPage);
    QStringList met;
    for (int g = 0; g < contents().topLevelItemCount(); ++g) {
        QTreeWidgetItem* group = contents().topLevelItem(g);
        EXPECT_TRUE(group->isExpanded());
        for (int i = 0; i < group->childCount(); ++i) {
            contents().setCurrentItem(group->child(i));
            met << shownFile();
        }
    }
    QStringList all;
    for (const HelpPage& one : forms::helpPages()) {
        all << q(one.file);
    }
    EXPECT_EQ(met, all);
}

TEST_F(Help, LinksAndTheWayBack) {
    write(HelpTopic::FirstPage,
          "<a href=\"flags.html\">flags</a> <a href=\"https://quorvel.example/x\">web</a> "
          "<a href=\"missing.html\">gone</a>");
    startWithPages();
    shell->ShowHelp(HelpTopic::FirstPage);
    EXPECT_FALSE(isEnabled("Back"));
    EXPECT_FALSE(isEnabled("Forward"));
    Q_EMIT page().anchorClicked(QUrl(q("flags.html")));
    EXPECT_EQ(shownFile(), q("flags.html"));
    EXPECT_EQ(contents().currentItem()->text(0), q("Flags"));
    EXPECT_TRUE(isEnabled("Back"));
    click("Back");
    EXPECT_EQ(shownFile(), q("index.html"));
    EXPECT_EQ(contents().currentItem()->text(0), q("Your first game"));
    EXPECT_TRUE(isEnabled("Forward"));
    click("Forward");
    EXPECT_EQ(shownFile(), q("flags.html"));
    ASSERT_TRUE(waitUntil([] { return window()->isActiveWindow(); }));
    QTest::keyClick(window(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(shownFile(), q("index.html"));
    QTest::keyClick(window(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(shownFile(), q("flags.html"));
    click("FirstPage");
    EXPECT_EQ(shownFile(), q("index.html"));

    Q_EMIT page().anchorClicked(QUrl(q("https://quorvel.example/x")));
    EXPECT_EQ(programs.visited, QStringList{q("https://quorvel.example/x")});
    EXPECT_EQ(shownFile(), q("index.html"));
    EXPECT_TRUE(boxes.shown().empty());
    Q_EMIT page().anchorClicked(QUrl(q("missing.html")));
    EXPECT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(shownFile(), q("index.html"));
}

TEST_F(Help, ALinkIsFollowedWithTheMouse) {
    write(HelpTopic::FirstPage, "<p><a href=\"words.html\">WWWWWWWWWW</a></p>");
    startWithPages();
    shell->ShowHelp(HelpTopic::FirstPage);
    const QTextCursor link = page().document()->find(q("WWWW"));
    QTest::mouseClick(page().viewport(), Qt::LeftButton, {}, page().cursorRect(link).center());
    EXPECT_EQ(shownFile(), q("words.html"));
}

TEST_F(Help, TheSearchFindsPagesWithAllWords) {
    write(HelpTopic::Flags, "<p>A <b>number</b> that the game\n remembers &amp; tests.</p>");
    write(HelpTopic::Words, "<p>The number of a scene.</p>");
    startWithPages();
    shell->ShowHelp(HelpTopic::FirstPage);
    EXPECT_TRUE(contents().isVisible());
    search().setText(q("NUMBER"));
    EXPECT_FALSE(contents().isVisible());
    EXPECT_EQ(found(), (QStringList{q("Flags"), q("Words")}));
    EXPECT_EQ(results().item(0)->text().section(QLatin1Char('\n'), 1),
              q("A number that the game remembers & tests."));
    search().setText(q("number game"));
    EXPECT_EQ(found(), QStringList{q("Flags")});
    search().setText(q("rememb"));
    EXPECT_EQ(found(), QStringList{q("Flags")}) << "the beginning of a word";
    search().setText(q("umber"));
    EXPECT_EQ(found(), QStringList{q("No page has all of these words.")});
    EXPECT_FALSE(results().item(0)->flags().testFlag(Qt::ItemIsEnabled));
    search().clear();
    EXPECT_TRUE(contents().isVisible());
}

TEST_F(Help, PagesWithTheWordsInTheirTitleComeFirst) {
    write(HelpTopic::Projects, "<p>Words, words.</p>");
    startWithPages();
    shell->ShowHelp(HelpTopic::FirstPage);
    search().setText(q("words"));
    EXPECT_EQ(found(), (QStringList{q("Words"), q("Projects and their folders")}));
}

TEST_F(Help, AResultOpensItsPageWithTheWordsMarked) {
    write(HelpTopic::Flags, "<p>A number. Another Number.</p>");
    startWithPages();
    shell->ShowHelp(HelpTopic::FirstPage);
    search().setText(q("number"));
    QTest::keyClick(&search(), Qt::Key_Return);
    EXPECT_EQ(shownFile(), q("flags.html"));
    EXPECT_EQ(page().extraSelections().size(), 2);
    search().clear();
    EXPECT_TRUE(page().extraSelections().isEmpty());
}

TEST_F(Help, SignsThatAreNoWordsFindNothingAndDoNoHarm) {
    startWithPages();
    shell->ShowHelp(HelpTopic::FirstPage);
    for (const char* typed : {"   ", "*+?(", "\\", "<>", "%%"}) {
        search().setText(q(typed));
        QTest::keyClick(&search(), Qt::Key_Return);
    }
    EXPECT_EQ(shownFile(), q("index.html"));
    EXPECT_EQ(shell::searchWords(q(" a-b, c's  ")), (QStringList{q("a"), q("b"), q("c's")}));
}

TEST_F(Help, EscapeLeavesTheSearchThenTheWindow) {
    startWithPages();
    shell->ShowHelp(HelpTopic::FirstPage);
    search().setText(q("flags"));
    QTest::keyClick(&search(), Qt::Key_Escape);
    ASSERT_NE(window(), nullptr);
    EXPECT_TRUE(search().text().isEmpty());
    QTest::keyClick(&search(), Qt::Key_Escape);
    EXPECT_EQ(window(), nullptr);
    shell->ShowHelp(HelpTopic::Flags);
    EXPECT_NE(window(), nullptr) << "it can be opened again";
}

TEST_F(Help, WithoutItsFolderTheAuthorIsToldWhatIsMissing) {
    start();
    shell->HelpFile = text(folder.path()) + q("/nowhere/index.html");
    action(q("helpmen(3)")).trigger();
    EXPECT_EQ(window(), nullptr);
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown().front().title, q("Quorvel Help"));
    EXPECT_EQ(boxes.shown().front().icon, forms::Box::Icon::exclamation);
    EXPECT_EQ(boxes.shown().front().text,
              q("The help page could not be found:\n\n") + shell->HelpFile +
                  q("\n\nThe folder \"help\" belongs to Quorvel.  Please install Quorvel again, or "
                    "put the folder back."));
}

TEST_F(Help, APageThatIsMissingIsToldAndTheOthersStay) {
    std::filesystem::remove(folder / "flags.html");
    startWithPages();
    shell->ShowHelp(HelpTopic::Words);
    shell->ShowHelp(HelpTopic::Flags);
    EXPECT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(shownFile(), q("words.html"));
    search().setText(q("about"));
    EXPECT_EQ(static_cast<std::size_t>(results().count()), forms::helpPages().size() - 1);
}

TEST_F(Help, ItGoesWithTheProgram) {
    startWithPages();
    shell->ShowHelp(HelpTopic::FirstPage);
    shell->ExitProgram();
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(quits, 1);
}

// Beside modal windows

TEST_F(Help, WithoutHelpAWindowIsBlockedByAModalOne) {
    // What the tests below rest on: keys that go through the system do not reach a blocked window.
    startWithPages();
    QWidget other(nullptr, Qt::Window);
    QLineEdit field(&other);
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&other));
    QTest::mouseClick(other.windowHandle(), Qt::LeftButton, {}, field.geometry().center());
    QTest::keyClick(other.windowHandle(), 'a');
    EXPECT_EQ(field.text(), q("a"));
    withWindow(
        q("EdOptions"), [this] { action(q("options(1)")).trigger(); },
        [&](QWidget& modal) {
            QTest::mouseClick(other.windowHandle(), Qt::LeftButton, {}, field.geometry().center());
            QTest::keyClick(other.windowHandle(), 'b');
            EXPECT_EQ(field.text(), q("a"));
            modal.close();
        });
}

TEST_F(Help, TheHelpButtonOfAModalWindowOpensAPageThatCanBeUsed) {
    startWithPages();
    withWindow(
        q("EdOptions"), [this] { action(q("options(1)")).trigger(); },
        [&](QWidget& modal) {
            control<QPushButton>(modal, q("Command5")).click();
            ASSERT_NE(window(), nullptr);
            EXPECT_EQ(shownFile(), q("editor-options.html"));
            ASSERT_TRUE(waitUntil([] { return window()->isActiveWindow(); }));
            typeByKeyboard(q("flags"));
            EXPECT_EQ(search().text(), q("flags"));
            modal.activateWindow();
            EXPECT_TRUE(waitUntil([&] { return modal.isActiveWindow(); }));
            modal.close();
        });
    ASSERT_NE(window(), nullptr) << "it stays when the modal window goes";
    EXPECT_EQ(window()->windowHandle()->transientParent(), nullptr);
    typeByKeyboard(q("x"));
    EXPECT_EQ(search().text(), q("flagsx"));
}

TEST_F(Help, AHelpWindowThatIsOpenStaysUsableWhenAModalOneComes) {
    startWithPages();
    shell->ShowHelp(HelpTopic::FirstPage);
    withWindow(
        q("EdOptions"), [this] { action(q("options(1)")).trigger(); },
        [&](QWidget& modal) {
            EXPECT_TRUE(waitUntil([&] {
                return window()->windowHandle()->transientParent() == modal.windowHandle();
            }));
            typeByKeyboard(q("a"));
            EXPECT_EQ(search().text(), q("a"));
            modal.close();
        });
    typeByKeyboard(q("b"));
    EXPECT_EQ(search().text(), q("ab"));
}

TEST_F(Help, OneModalWindowAboveAnother) {
    startWithPages();
    withWindow(
        q("EdOptions"), [this] { action(q("options(1)")).trigger(); },
        [&](QWidget& lower) {
            control<QPushButton>(lower, q("Command5")).click();
            ASSERT_TRUE(waitUntil([] { return window()->isActiveWindow(); }));
            forms::Form upper(q("Upper"), q("Upper"), &lower);
            upper.setMinimumSize(100, 100);
            withWindow(
                q("Upper"), [&] { upper.exec(); },
                [&](QWidget& top) {
                    EXPECT_TRUE(waitUntil([&] {
                        return window()->windowHandle()->transientParent() == top.windowHandle();
                    }));
                    typeByKeyboard(q("a"));
                    top.close();
                });
            EXPECT_TRUE(waitUntil([&] {
                return window()->windowHandle()->transientParent() == lower.windowHandle();
            }));
            typeByKeyboard(q("b"));
            EXPECT_EQ(search().text(), q("ab"));
            lower.close();
        });
    typeByKeyboard(q("c"));
    EXPECT_EQ(search().text(), q("abc"));
}

TEST_F(Help, ClosingItLeavesTheModalWindowAlone) {
    startWithPages();
    withWindow(
        q("EdOptions"), [this] { action(q("options(1)")).trigger(); },
        [&](QWidget& modal) {
            control<QPushButton>(modal, q("Command5")).click();
            window()->close();
            EXPECT_TRUE(modal.isVisible());
            control<QPushButton>(modal, q("Command5")).click();
            EXPECT_NE(window(), nullptr);
            modal.close();
        });
}

}  // namespace
}  // namespace quorvel::test
