// How the window of the help looks with the pages that are delivered: where it opens, how it
// divides its room, what its pictures are made of, what Page keys do.
#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeWidget>

#include "forms/events.h"
#include "support/windows/other_screen.h"
#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

class HelpLayout : public ShellFixture {
  protected:
    static QString q(const char* latin) { return QString::fromLatin1(latin); }
    static QWidget* window() { return visibleWindow(q("HelpWindow")); }
    static QTextBrowser& page() { return control<QTextBrowser>(*window(), q("Page")); }
    static QTreeWidget& contents() { return control<QTreeWidget>(*window(), q("Contents")); }

    /// A picture of the page has a pixel for each of the screen, and half the size of its file.
    /// Returns how many there are.
    static int expectSharpPictures() {
        int pictures = 0;
        const QTextBrowser& page = HelpLayout::page();
        for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextImageFormat format = part.fragment().charFormat().toImageFormat();
                if (!format.isValid()) {
                    continue;
                }
                SCOPED_TRACE(format.name().toStdString());
                ++pictures;
                const QUrl name(format.name());
                const QImage file(page.source().resolved(name).toLocalFile());
                const auto shown =
                    page.document()->resource(QTextDocument::ImageResource, name).value<QImage>();
                const double ratio = page.devicePixelRatioF();
                EXPECT_DOUBLE_EQ(shown.devicePixelRatio(), ratio);
                EXPECT_EQ(shown.size(), (QSizeF(file.size()) * ratio / 2).toSize());
                if (ratio == 2) {
                    EXPECT_EQ(shown.convertToFormat(QImage::Format_RGB32),
                              file.convertToFormat(QImage::Format_RGB32));
                }
                const QRectF place = page.document()->documentLayout()->blockBoundingRect(block);
                EXPECT_NEAR(place.height(), file.height() / 2.0, 12) << "the height on the page";
            }
        }
        return pictures;
    }
};

TEST_F(HelpLayout, PicturesAreMadeOfThePixelsOfTheScreen) {
    start();
    int pictures = 0;
    for (const forms::HelpPage& one : forms::helpPages()) {
        SCOPED_TRACE(one.file);
        shell->ShowHelp(one.topic);
        pictures += expectSharpPictures();
    }
    EXPECT_GE(pictures, 15);
}

TEST(HelpAtDoubleScale, PicturesAreMadeOfThePixelsOfTheScreen) {
    for (const char* scale : {"2", "1.5"}) {
        expectTestsPass(QStringLiteral("HelpLayout.PicturesAreMadeOfThePixelsOfTheScreen"),
                        {1600, 1200},
                        {{QStringLiteral("QT_SCALE_FACTOR"), QString::fromLatin1(scale)}});
    }
}

TEST_F(HelpLayout, NoTitleOfTheContentsIsCut) {
    start();
    shell->ShowHelp(forms::HelpTopic::FirstPage);
    forms::letEventsRun();
    const QTreeWidget& tree = contents();
    for (int g = 0; g < tree.topLevelItemCount(); ++g) {
        for (int i = 0; i < tree.topLevelItem(g)->childCount(); ++i) {
            const QTreeWidgetItem* item = tree.topLevelItem(g)->child(i);
            const int text = tree.fontMetrics().horizontalAdvance(item->text(0));
            // The style leaves a little before and after a text.
            EXPECT_LE(text + 6, tree.visualItemRect(item).width()) << item->text(0).toStdString();
        }
    }
}

TEST_F(HelpLayout, PageKeysTurnThePageFromTheSearchToo) {
    start();
    shell->ShowHelp(forms::HelpTopic::FirstPage);
    ASSERT_TRUE(waitUntil([] { return window()->isActiveWindow(); }));
    const QScrollBar& bar = *page().verticalScrollBar();
    for (QWidget* one :
         std::initializer_list<QWidget*>{&page(), &control<QLineEdit>(*window(), q("Search")),
                                         &control<QToolButton>(*window(), q("FirstPage"))}) {
        one->setFocus();
        const int before = bar.value();
        QTest::keyClick(one, Qt::Key_PageDown);
        EXPECT_GT(bar.value(), before);
        QTest::keyClick(one, Qt::Key_PageUp);
        EXPECT_EQ(bar.value(), before);
    }
}

TEST_F(HelpLayout, InANarrowWindowTheContentsStandAboveThePage) {
    start();
    shell->ShowHelp(forms::HelpTopic::FirstPage);
    const QSplitter& splitter = *window()->findChild<QSplitter*>();
    window()->resize(784, 540);
    forms::letEventsRun();
    EXPECT_EQ(splitter.orientation(), Qt::Horizontal);
    window()->resize(540, 540);
    forms::letEventsRun();
    EXPECT_EQ(splitter.orientation(), Qt::Vertical);
    EXPECT_GT(page().height(), contents().height());
    EXPECT_EQ(page().horizontalScrollBar()->maximum(), 0) << "the pictures fit";
}

TEST_F(HelpLayout, OpensBesideTheWindowThatAsks) {
    start();
    withWindow(
        q("EdOptions"), [this] { action(q("options(1)")).trigger(); },
        [&](QWidget& modal) {
            const QRect screen = modal.screen()->availableGeometry();
            control<QPushButton>(modal, q("Command5")).click();
            ASSERT_NE(window(), nullptr);
            EXPECT_TRUE(screen.contains(window()->frameGeometry()));
            EXPECT_TRUE(screen.contains(modal.frameGeometry()));
            constexpr int kNarrowest = 540;
            if (modal.frameGeometry().width() + kNarrowest <= screen.width()) {
                EXPECT_FALSE(window()->frameGeometry().intersects(modal.frameGeometry()));
            }
            window()->move(3, 4);
            control<QPushButton>(modal, q("Command5")).click();
            EXPECT_EQ(window()->pos(), QPoint(3, 4)) << "where the author has put it, it stays";
            modal.close();
        });
}

TEST(HelpOnOtherScreens, OpensBesideTheWindowThatAsks) {
    for (const QSize screen : {QSize(1280, 800), QSize(1366, 768), QSize(1920, 1080)}) {
        expectTestsPass(QStringLiteral("HelpLayout.OpensBesideTheWindowThatAsks"), screen);
    }
}

}  // namespace
}  // namespace quorvel::test
