// Palettes, icons and stock pictures.
#include "forms/look.h"

#include <algorithm>
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPalette>
#include <QRadioButton>
#include <QTabBar>
#include <QToolTip>
#include <QVBoxLayout>

#include "forms/events.h"
#include "forms/wrap_button.h"
#include "support/windows/played_author.h"
#include "support/windows/text_contrast.h"

namespace quorvel::test {
namespace {

using forms::Look;

class LookOfTheProgram : public ::testing::Test {
  protected:
    void TearDown() override {
        qunsetenv("QUORVEL_LOOK");
        QApplication::setPalette(before);
    }
    static QPalette paletteOf(Look look) {
        forms::applyLook(*qApp, look);
        return QApplication::palette();
    }
    QPalette before = QApplication::palette();
};

TEST_F(LookOfTheProgram, FollowsTheEnvironment) {
    EXPECT_EQ(forms::lookFromEnvironment(), Look::desktop);
    qputenv("QUORVEL_LOOK", "Light");
    EXPECT_EQ(forms::lookFromEnvironment(), Look::light);
    qputenv("QUORVEL_LOOK", "dark");
    EXPECT_EQ(forms::lookFromEnvironment(), Look::dark);
    qputenv("QUORVEL_LOOK", "plaid");
    EXPECT_EQ(forms::lookFromEnvironment(), Look::desktop);
}

TEST_F(LookOfTheProgram, LightAndDarkDiffer) {
    const QPalette light = paletteOf(Look::light);
    const QPalette dark = paletteOf(Look::dark);
    EXPECT_GT(contrast(light.color(QPalette::Window), Qt::black), 15);
    EXPECT_GT(contrast(dark.color(QPalette::Window), Qt::white), 7);
    EXPECT_FALSE(QApplication::windowIcon().isNull());
}

TEST_F(LookOfTheProgram, TextStandsOutFromItsGround) {
    using P = QPalette;
    struct Pair {
        P::ColorRole text;
        std::vector<P::ColorRole> grounds;
    };
    const std::vector<Pair> pairs = {
        {P::WindowText, {P::Window, P::Base, P::AlternateBase}},
        {P::Text, {P::Base, P::AlternateBase, P::Window}},
        {P::ButtonText, {P::Button, P::Window}},
        {P::PlaceholderText, {P::Base}},
        {P::ToolTipText, {P::ToolTipBase}},
        {P::HighlightedText, {P::Highlight}},
        {P::Link, {P::Base, P::Window}},
        {P::LinkVisited, {P::Base, P::Window}},
    };
    for (const Look look : {Look::light, Look::dark, Look::desktop}) {
        const QPalette palette = paletteOf(look);
        for (const auto group : {P::Active, P::Inactive, P::Disabled}) {
            for (const Pair& pair : pairs) {
                for (const auto ground : pair.grounds) {
                    EXPECT_GE(
                        contrast(palette.color(group, pair.text), palette.color(group, ground)),
                        kReadable)
                        << "look " << static_cast<int>(look) << ", group " << group << ": "
                        << pair.text << " on " << ground;
                }
            }
        }
        EXPECT_GE(contrast(palette.color(P::WindowText), palette.color(P::Window)), 7.0);
        EXPECT_NE(palette.color(P::Disabled, P::ButtonText),
                  palette.color(P::Active, P::ButtonText));
        EXPECT_EQ(QToolTip::palette().color(P::ToolTipText), palette.color(P::ToolTipText));
        EXPECT_EQ(QToolTip::palette().color(P::ToolTipBase), palette.color(P::ToolTipBase));
    }
}

/// A window with a text of each kind, once as it is and once off.
class Gallery : public QWidget {
  public:
    Gallery() {
        auto* column = new QVBoxLayout(this);
        for (const bool on : {true, false}) {
            auto* half = new QGroupBox(QStringLiteral("Group"));
            auto* rows = new QVBoxLayout(half);
            auto* empty = new QLineEdit;
            empty->setPlaceholderText(QStringLiteral("Placeholder"));
            auto* link = new QLabel(QStringLiteral("<a href=\"x\">Link</a>"));
            auto* chosen = new QLineEdit(QStringLiteral("Chosen"));
            chosen->selectAll();
            auto* check = new QCheckBox(QStringLiteral("Check"));
            check->setChecked(true);
            auto* list = new QComboBox;
            list->addItem(QStringLiteral("List"));
            auto* tabs = new QTabBar;
            tabs->addTab(QStringLiteral("First"));
            tabs->addTab(QStringLiteral("Second"));
            auto* rowsOfList = new QListWidget;
            rowsOfList->setMaximumHeight(60);
            rowsOfList->addItems({QStringLiteral("Row"), QStringLiteral("Row that is on")});
            rowsOfList->setCurrentRow(1);
            auto* bar = new QMenuBar;
            bar->addAction(QStringLiteral("Entry"))->setEnabled(on);
            for (QWidget* one : std::initializer_list<QWidget*>{
                     new QLabel(QStringLiteral("Label")), link,
                     new QLineEdit(QStringLiteral("Typed")), empty, chosen, check,
                     new QRadioButton(QStringLiteral("Option")),
                     new QPushButton(QStringLiteral("Button")),
                     new forms::WrapButton(QStringLiteral("Wrapped")), list, tabs, rowsOfList,
                     bar}) {
                rows->addWidget(one);
            }
            half->setEnabled(on);
            column->addWidget(half);
        }
    }
};

TEST_F(LookOfTheProgram, PaintedTextsCanBeRead) {
    for (const Look look : {Look::light, Look::dark, Look::desktop}) {
        SCOPED_TRACE(static_cast<int>(look));
        paletteOf(look);
        Gallery gallery;
        gallery.show();
        forms::letEventsRun();
        EXPECT_GE(paintedTexts(gallery).size(), 28U);
        expectReadable(gallery);
    }
}

TEST_F(LookOfTheProgram, EntriesOfAMenuAreDrawnOnceAndCanBeRead) {
    for (const Look look : {Look::light, Look::dark, Look::desktop}) {
        SCOPED_TRACE(static_cast<int>(look));
        paletteOf(look);
        QMenu menu;
        menu.addAction(QStringLiteral("On"))->setShortcut(QKeySequence(QStringLiteral("Ctrl+A")));
        QAction* off = menu.addAction(QStringLiteral("Off"));
        off->setShortcut(QKeySequence(QStringLiteral("Ctrl+B")));
        off->setEnabled(false);
        menu.addAction(QStringLiteral("Under&lined"))->setEnabled(false);
        menu.popup(QPoint(0, 0));
        forms::letEventsRun();
        for (QAction* marked : {static_cast<QAction*>(nullptr), menu.actions().front(), off}) {
            menu.setActiveAction(marked);
            QStringList texts;
            for (const PaintedText& one : paintedTexts(menu)) {
                texts << one.text;
            }
            EXPECT_EQ(texts.count(QStringLiteral("Off")), 1);
            EXPECT_EQ(texts.count(QStringLiteral("Ctrl+B")), 1);
            EXPECT_EQ(texts.count(QStringLiteral("On")), 1);
            expectReadable(menu);
        }
        menu.close();
    }
}

TEST_F(LookOfTheProgram, ToolTipsCanBeRead) {
    for (const Look look : {Look::light, Look::dark, Look::desktop}) {
        paletteOf(look);
        QWidget owner;
        owner.show();
        QToolTip::showText(QPoint(5, 5), QStringLiteral("Locate"), &owner);
        QWidget* tip = visibleWindow(QStringLiteral("qtooltip_label"));
        ASSERT_NE(tip, nullptr);
        EXPECT_FALSE(paintedTexts(*tip).empty());
        expectReadable(*tip);
        QToolTip::hideText();
        EXPECT_TRUE(
            waitUntil([] { return visibleWindow(QStringLiteral("qtooltip_label")) == nullptr; }));
    }
}

TEST_F(LookOfTheProgram, ADisabledSliderIsQuieterThanItsText) {
    for (const Look look : {Look::light, Look::dark}) {
        const QPalette palette = paletteOf(look);
        const QColor ground = palette.color(QPalette::Window);
        const auto distance = [&](QPalette::ColorRole role) {
            return contrast(palette.color(QPalette::Disabled, role), ground);
        };
        EXPECT_LT(distance(QPalette::Highlight), distance(QPalette::WindowText));
        EXPECT_GT(distance(QPalette::Highlight), 1.2) << "but it is seen";
    }
}

TEST_F(LookOfTheProgram, TheEdgesOfOptionsAndChecksStandOut) {
    for (const Look look : {Look::light, Look::dark}) {
        const QPalette palette = paletteOf(look);
        QRadioButton option;
        QCheckBox check;
        for (QAbstractButton* button :
             {static_cast<QAbstractButton*>(&option), static_cast<QAbstractButton*>(&check)}) {
            button->resize(button->sizeHint());
            const QImage image = button->grab().toImage();
            double most = 1;
            for (int x = 0; x < image.width(); ++x) {
                most = std::max(most, contrast(image.pixelColor(x, image.height() / 2),
                                               palette.color(QPalette::Window)));
            }
            EXPECT_GE(most, look == Look::dark ? 2.5 : 1.5) << button->metaObject()->className();
        }
    }
}

TEST_F(LookOfTheProgram, EveryIconOfTheMainWindowIsThere) {
    for (const char* name : {"open",
                             "close",
                             "project-info",
                             "security",
                             "toggle-animations",
                             "toggle-borders",
                             "scene-o-matic",
                             "add-scene",
                             "edit-locations",
                             "edit-items",
                             "edit-cue-cards",
                             "edit-pointers",
                             "edit-text",
                             "general-settings",
                             "customize-player",
                             "logo-credits",
                             "game-intro",
                             "project-reports",
                             "scene-properties",
                             "insert-object",
                             "run-player",
                             "run-anim",
                             "run-graphics",
                             "run-icon",
                             "run-wav",
                             "run-midi",
                             "run-video",
                             "help-pointer",
                             "previous-scene",
                             "next-scene",
                             "quorvel"}) {
        SCOPED_TRACE(name);
        EXPECT_TRUE(QFile::exists(QStringLiteral(":/icons/%1.svg").arg(QString::fromLatin1(name))));
        const QImage image = forms::icon(QString::fromLatin1(name)).pixmap(20, 20).toImage();
        ASSERT_FALSE(image.isNull());
        int drawn = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                drawn += qAlpha(image.pixel(x, y)) > 64 ? 1 : 0;
            }
        }
        EXPECT_GT(drawn, 20) << "something is drawn";
    }
}

TEST_F(LookOfTheProgram, EveryStockPictureCanBeRead) {
    for (const char* name : {"file-not-found", "new-object", "responder", "delay", "multi-trigger",
                             "conversation", "flag-conjunction", "unknown-object"}) {
        SCOPED_TRACE(name);
        const QImage image = QImageReader(forms::stockPicture(QString::fromLatin1(name))).read();
        EXPECT_GE(image.width(), 16);
        EXPECT_GE(image.height(), 16);
    }
}

}  // namespace
}  // namespace quorvel::test
