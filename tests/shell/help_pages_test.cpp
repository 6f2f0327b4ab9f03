// The pages that are delivered: each exists, all links and pictures lead somewhere, no Help button
// leads nowhere, and the search finds what an author asks for.
#include "shell/help_pages.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTextBrowser>
#include <QTextDocumentFragment>
#include <QTimer>

#include "forms/file_choice.h"
#include "forms/file_dialogs.h"
#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

using forms::HelpPage;

QDir pagesOfTheSource() {
    return QDir(QStringLiteral(QUORVEL_HELP_PAGES));
}

QString read(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

QString htmlOf(const HelpPage& page) {
    return read(pagesOfTheSource().filePath(QString::fromLatin1(page.file)));
}

/// What `pattern` catches in `text`, blanks simplified.
QStringList caught(const QString& text, const char* pattern) {
    QStringList all;
    const QRegularExpression expression(QString::fromLatin1(pattern),
                                        QRegularExpression::DotMatchesEverythingOption);
    auto matches = expression.globalMatch(text);
    while (matches.hasNext()) {
        all << matches.next().captured(1).simplified();
    }
    return all;
}

QStringList linksOf(const QString& html) {
    return caught(html, "<a\\s+href=\"([^\"]*)\"");
}

TEST(HelpPages, EachTopicHasItsPageWithItsTitle) {
    for (const HelpPage& page : forms::helpPages()) {
        SCOPED_TRACE(page.file);
        const QString html = htmlOf(page);
        const QStringList title{QString::fromLatin1(page.title)};
        EXPECT_EQ(caught(html, "<title>(.*?)</title>"), title);
        EXPECT_EQ(caught(html, "<h1>(.*?)</h1>"), title);
        EXPECT_GT(html.size(), 700) << "a page says something";
        EXPECT_TRUE(html.endsWith(QStringLiteral("</html>\n")));
    }
}

TEST(HelpPages, EachFileBelongsToATopic) {
    const QStringList files = pagesOfTheSource().entryList({QStringLiteral("*.html")});
    EXPECT_EQ(static_cast<std::size_t>(files.size()), forms::helpPages().size());
    for (const QString& file : files) {
        EXPECT_NE(forms::helpPage(file), nullptr) << file.toStdString();
    }
}

TEST(HelpPages, EachLinkLeadsToAPage) {
    int links = 0;
    for (const HelpPage& page : forms::helpPages()) {
        for (const QString& link : linksOf(htmlOf(page))) {
            ++links;
            EXPECT_NE(forms::helpPage(link), nullptr) << page.file << ": " << link.toStdString();
            EXPECT_NE(link, QString::fromLatin1(page.file)) << "a page links itself";
        }
    }
    EXPECT_GT(links, 40);
}

TEST(HelpPages, EachPageIsReachedByLinksFromTheFirst) {
    std::set<QString> met;
    QStringList open{QStringLiteral("index.html")};
    while (!open.isEmpty()) {
        const QString file = open.takeLast();
        if (met.insert(file).second) {
            open << linksOf(read(pagesOfTheSource().filePath(file)));
        }
    }
    for (const HelpPage& page : forms::helpPages()) {
        EXPECT_TRUE(met.contains(QString::fromLatin1(page.file))) << page.file;
    }
}

TEST(HelpPages, EachPictureIsThereFitsAndIsUsed) {
    // Two pixels for each on the page, so that they are sharp on a screen of double scale.
    constexpr int kWidest = 2 * 480;
    constexpr int kLargest = 400 * 1024;
    bool sharp = false;
    std::set<QString> used;
    for (const HelpPage& page : forms::helpPages()) {
        const QString html = htmlOf(page);
        const QStringList pictures = caught(html, "<img\\s+src=\"([^\"]*)\"\\s+alt=\"[^\"]+\">");
        EXPECT_EQ(pictures.size(), html.count(QStringLiteral("<img")))
            << page.file << ": a picture without a text for those who cannot see it";
        EXPECT_EQ(pictures.size(),
                  caught(html, "<img[^>]*></div>\n<div class=\"caption\">([^<]+)</div>").size())
            << page.file << ": a picture without a caption";
        for (const QString& picture : pictures) {
            const QImage image(pagesOfTheSource().filePath(picture));
            EXPECT_FALSE(image.isNull()) << page.file << ": " << picture.toStdString();
            EXPECT_LE(image.width(), kWidest) << picture.toStdString();
            EXPECT_EQ(image.width() % 2 + image.height() % 2, 0) << picture.toStdString();
            sharp = sharp || image.width() == kWidest;
            EXPECT_LE(QFileInfo(pagesOfTheSource().filePath(picture)).size(), kLargest)
                << picture.toStdString();
            used.insert(picture);
        }
    }
    EXPECT_GE(used.size(), 8U);
    EXPECT_TRUE(sharp) << "they have half of their pixels";
    const QDir folder(pagesOfTheSource().filePath(QStringLiteral("pictures")));
    for (const QString& file : folder.entryList(QDir::Files)) {
        EXPECT_TRUE(used.contains(QStringLiteral("pictures/") + file)) << file.toStdString();
    }
}

TEST(HelpPages, AllThatIsWrittenIsDeliveredBesideTheProgram) {
    const QDir delivered(QCoreApplication::applicationDirPath() + QStringLiteral("/help"));
    for (const QString& folder : {QString(), QStringLiteral("pictures/")}) {
        const QStringList files = QDir(pagesOfTheSource().filePath(folder)).entryList(QDir::Files);
        EXPECT_FALSE(files.isEmpty());
        for (const QString& file : files) {
            const QString name = folder + file;
            QFile ours(pagesOfTheSource().filePath(name));
            QFile theirs(delivered.filePath(name));
            ASSERT_TRUE(ours.open(QIODevice::ReadOnly));
            ASSERT_TRUE(theirs.open(QIODevice::ReadOnly)) << name.toStdString();
            EXPECT_TRUE(ours.readAll() == theirs.readAll()) << name.toStdString();
        }
    }
}

TEST(HelpPages, TheSearchFindsWhatAnAuthorAsksFor) {
    shell::HelpPages pages(pagesOfTheSource().path() + QLatin1Char('/'));
    const auto first = [&pages](const char* question) {
        const auto found = pages.search(QString::fromLatin1(question));
        return found.empty() ? std::string("nothing") : std::string(found.front().page->file);
    };
    EXPECT_EQ(first("project security"), "project-security.html");
    EXPECT_EQ(first("quickspot"), "hotspot.html");
    EXPECT_EQ(first("overlap"), "canvas.html");
    EXPECT_EQ(first("wine"), "test-run.html");
    EXPECT_EQ(first("tip of the day"), "tips.html");
    EXPECT_EQ(first("incoming"), "files.html");
    EXPECT_EQ(first("a word that is nowhere xyzzy"), "nothing");
    EXPECT_EQ(pages.search(QStringLiteral("the")).size(), forms::helpPages().size());

    // What authors bring from elsewhere and may miss: the page says what there is instead.
    struct Answer {
        const char* question;
        const char* page;
        std::initializer_list<const char*> says;
    };
    for (const Answer& one : std::initializer_list<Answer>{
             {"PNG", "sounds.html", {"BMP, GIF, JPG", "save them as JPG for a scene"}},
             {"ogg", "sounds.html", {"save them as WAV for a sound effect", "MP3, WAV, MID"}},
             {"shortcut", "shortcuts.html", {"Ctrl+A", "Ctrl+X", "F1", "Ctrl+Tab", "Shift+F10"}},
             {"shortcuts", "shortcuts.html", {}},
             {"zoom", "canvas.html", {"There is no zoom", "by one pixel"}},
             {"export", "backup.html", {"there is no export", "what you hand on"}},
             {"backup", "backup.html", {"Copy the whole folder", "To go back"}},
             {"undo", "projects.html", {"There is no general undo", "Cancel", "Escape"}}}) {
        SCOPED_TRACE(one.question);
        EXPECT_EQ(first(one.question), one.page);
        const HelpPage* page = forms::helpPage(QString::fromLatin1(one.page));
        ASSERT_NE(page, nullptr);
        const QString text =
            QTextDocumentFragment::fromHtml(htmlOf(*page)).toPlainText().simplified();
        for (const char* words : one.says) {
            EXPECT_TRUE(text.contains(QString::fromLatin1(words))) << words;
        }
    }
}

// The Help buttons

struct WindowWithHelp {
    const char* name;
    const char* entry;  ///< of a menu; empty where `open` shows it
    const char* page;
    std::function<void(shell::Shell&)> open = nullptr;
};

const std::vector<WindowWithHelp>& windowsWithHelp() {
    static const std::vector<WindowWithHelp> all = {
        {"EdOptions", "options(1)", "editor-options.html"},
        {"NewScenefrm", "projmen(1)", "add-scene.html"},
        {"ProjSecurity", "projmen(12)", "project-security.html"},
        {"newlink", "scnmen(3)", "insert-object.html"},
        {"ResizeD", "", "resize-link.html",
         [](shell::Shell& shell) {
             shell.actions().dragging().CurrentLink = 2;
             shell.actions().showResize();
         }},
        {"sceneimage", "scnmen(1)", "scene-properties.html"},
        {"directionprop", "", "link-properties.html",
         [](shell::Shell& shell) {
             shell.actions().PopupObject = 2;
             Q_EMIT shell.actions().popups().chosen(canvas::PopupMenu::link,
                                                    canvas::PopupAction::properties);
         }},
        {"linkPropf", "", "hotspot.html",
         [](shell::Shell& shell) {
             shell.actions().InsertObject(store::ObjectType::hotSpot, 1);
             shell.actions().ShowObjectProps(1);
         }},
        {"NewProject", "Filemen(1)", "new-project.html",
         [](shell::Shell& shell) {
             EXPECT_TRUE(shell.CloseProject());
             auto* entry = shell.mainWindow().findChild<QAction*>(QStringLiteral("Filemen(1)"));
             ASSERT_TRUE(entry != nullptr && entry->isEnabled());
             entry->trigger();
         }},
    };
    return all;
}

class HelpButtons : public ShellFixture {
  protected:
    void showWindow(const WindowWithHelp& one, const std::function<void(QWidget&)>& author) {
        withWindow(
            QString::fromLatin1(one.name),
            [&] {
                if (one.open) {
                    one.open(*shell);
                } else {
                    action(QString::fromLatin1(one.entry)).trigger();
                }
            },
            author);
    }
    /// The page that the help shows; empty when it is not open. Closes it.
    static QString pageShown() {
        QWidget* help = visibleWindow(QStringLiteral("HelpWindow"));
        if (help == nullptr) {
            return {};
        }
        const QString page =
            control<QTextBrowser>(*help, QStringLiteral("Page")).source().fileName();
        help->close();
        return page;
    }
    static void pressF1(QWidget& window) {
        window.activateWindow();
        ASSERT_TRUE(waitUntil([&window] { return window.isActiveWindow(); }));
        QTest::keyClick(&window, Qt::Key_F1);
        // A button that is clicked by a key goes down for a moment first.
        waitUntil([] { return visibleWindow(QStringLiteral("HelpWindow")) != nullptr; });
    }
    static QList<QPushButton*> helpButtons(const QWidget& window) {
        QList<QPushButton*> found;
        for (auto* button : window.findChildren<QPushButton*>()) {
            if (button->text() == QStringLiteral("Help")) {
                found << button;
            }
        }
        return found;
    }
};

TEST_F(HelpButtons, NoneLeadsNowhere) {
    const TestProject game = ProjectBuilder().scenes(2).build(projects.makeFolder("game"));
    start({text(game.projectPath())});
    for (const WindowWithHelp& one : windowsWithHelp()) {
        SCOPED_TRACE(one.name);
        showWindow(one, [&](QWidget& window) {
            const auto buttons = helpButtons(window);
            ASSERT_EQ(buttons.size(), 1);
            EXPECT_TRUE(buttons.front()->isEnabled());
            buttons.front()->click();
            EXPECT_EQ(pageShown(), QString::fromLatin1(one.page));
            EXPECT_TRUE(window.isVisible());
            EXPECT_EQ(pageShown(), QString()) << "the help is closed";
            pressF1(window);
            EXPECT_EQ(pageShown(), QString::fromLatin1(one.page)) << "F1 leads there too";
            EXPECT_TRUE(window.isVisible());
            window.close();
        });
    }
    EXPECT_TRUE(boxes.shown().empty()) << boxes.texts().join(QLatin1Char('|')).toStdString();
}

TEST_F(HelpButtons, F1OpensTheContentsOverTheMainWindow) {
    start();
    EXPECT_EQ(pageShown(), QString());
    pressF1(main());
    EXPECT_EQ(pageShown(), QStringLiteral("index.html"));
}

// The first steps

/// A text as the eye sees it.
QString seen(QString caption) {
    caption.replace(QStringLiteral("&&"), QStringLiteral("\n"));
    caption.remove(QLatin1Char('&'));
    caption.replace(QLatin1Char('\n'), QLatin1Char('&'));
    return caption.simplified();
}

/// All that can be read on `window` and its menus.
QStringList captionsOf(const QWidget& window) {
    QStringList all{window.windowTitle()};
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        all << seen(button->text());
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        all << seen(label->text());
    }
    for (const auto* frame : window.findChildren<QGroupBox*>()) {
        all << seen(frame->title());
    }
    for (const auto* entry : window.findChildren<QAction*>()) {
        all << seen(entry->text()) << seen(entry->toolTip());
    }
    return all;
}

/// What a page tells the reader to look for: its bold texts, and the entries of a menu one by one.
QStringList toBeFound(const QString& text, const char* pattern) {
    QStringList all;
    for (const QString& bold : caught(text, pattern)) {
        all << bold.split(QStringLiteral(", "));
    }
    all.replaceInStrings(QStringLiteral("&lt;"), QStringLiteral("<"));
    all.replaceInStrings(QStringLiteral("&gt;"), QStringLiteral(">"));
    return all;
}

TEST_F(HelpButtons, WhatTheFirstStepsNameCanBeFound) {
    const TestProject game = ProjectBuilder().scenes(2).build(projects.makeFolder("game"));
    start({text(game.projectPath())});
    QStringList captions =
        captionsOf(main()) + captionsOf(shell->actions().popups()) +
        forms::toolkitFilter(forms::filters::kBackgrounds).split(QStringLiteral(";;"));
    for (const WindowWithHelp& one : windowsWithHelp()) {
        showWindow(one, [&](QWidget& window) {
            captions += captionsOf(window);
            window.close();
        });
    }
    const QString readMe = read(pagesOfTheSource().filePath(QStringLiteral("../README.md")));
    const QString steps = readMe.section(QStringLiteral("## Your first game"), 1, 1)
                              .section(QStringLiteral("\n## "), 0, 0);
    const QStringList named =
        toBeFound(read(pagesOfTheSource().filePath(QStringLiteral("index.html"))), "<b>(.*?)</b>") +
        toBeFound(steps, "\\*\\*(.*?)\\*\\*");
    EXPECT_GT(named.size(), 40);
    for (const QString& name : named) {
        const bool found = std::ranges::any_of(captions, [&name](const QString& caption) {
            return caption == name || caption.startsWith(name + QLatin1Char(' '));
        });
        EXPECT_TRUE(found) << name.toStdString();
    }
}

TEST_F(HelpButtons, EveryWindowOfTheMenusIsLookedAt) {
    // Whatever entry of the menus opens a window with a Help button stands in the table above.
    const TestProject game = ProjectBuilder().scenes(2).build(projects.makeFolder("game"));
    start({text(game.projectPath())});
    std::set<QString> known;
    for (const WindowWithHelp& one : windowsWithHelp()) {
        known.insert(QString::fromLatin1(one.name));
    }
    std::set<QString> seen;
    for (QAction* entry : main().findChildren<QAction*>()) {
        const QString name = entry->objectName();
        const bool opens = name.startsWith(QStringLiteral("projmen(")) ||
                           name.startsWith(QStringLiteral("scnmen(")) ||
                           name.startsWith(QStringLiteral("options(")) ||
                           name.startsWith(QStringLiteral("helpmen("));
        if (!opens || !entry->isEnabled() || entry->isSeparator()) {
            continue;
        }
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            if (QWidget* window = QApplication::activeModalWidget()) {
                if (!helpButtons(*window).isEmpty()) {
                    seen.insert(window->objectName());
                }
                window->close();
            }
        });
        look.start(5);
        entry->trigger();
    }
    EXPECT_GE(seen.size(), 4U);
    for (const QString& name : seen) {
        EXPECT_TRUE(known.contains(name)) << name.toStdString();
    }
}

}  // namespace
}  // namespace quorvel::test
