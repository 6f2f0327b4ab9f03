#include "shell/help_window.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QTextBlock>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>
#include <QWindow>

#include "forms/form.h"
#include "forms/look.h"
#include "shell/help_browser.h"
#include "shell/result_delegate.h"
#include "shell/window_place.h"

namespace quorvel::shell {
namespace {

constexpr QSize kSize(784, 540);
/// The narrowest that shows a page with its pictures; below the second width the contents stand
/// above the page and not beside it, which takes height.
constexpr QSize kLeast(540, 420);
constexpr int kNarrow = 700;
constexpr int kNarrowHeight = 720;
constexpr int kIndentation = 14;
/// Indentation, scroll bar and frame beside a title of the contents.
constexpr int kBesideTitle = 2 * kIndentation + 30;
constexpr int kIconSize = 20;
constexpr int kRowPadding = 4;
constexpr int kFileRole = Qt::UserRole;

}  // namespace

HelpWindow::HelpWindow(const QString& folder, House house)
    : QWidget(nullptr, Qt::Window), house_(std::move(house)), pages_(folder) {
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(QStringLiteral("Quorvel Help"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(forms::kFormSpacing, forms::kFormSpacing, forms::kFormSpacing,
                               forms::kFormSpacing);
    column->setSpacing(forms::kFormSpacing);
    column->addWidget(buildBar());
    splitter_ = new QSplitter(this);
    splitter_->setChildrenCollapsible(false);
    splitter_->addWidget(buildContents());
    splitter_->addWidget(buildPage());
    splitter_->setStretchFactor(1, 1);
    column->addWidget(splitter_, 1);
    divide();
    addShortcuts();
    resize(kSize.boundedTo(screen()->availableSize() - forms::kFrameRoom));
}

QToolButton* HelpWindow::addButton(QWidget* bar, const QString& name, const QString& icon,
                                   const QString& toolTip) {
    auto* button = new QToolButton(bar);
    button->setObjectName(name);
    button->setIcon(forms::buttonIcon(icon));
    button->setIconSize(QSize(kIconSize, kIconSize));
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    bar->layout()->addWidget(button);
    return button;
}

QWidget* HelpWindow::buildBar() {
    auto* bar = new QWidget(this);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    back_ = addButton(bar, QStringLiteral("Back"), QStringLiteral("help-back"),
                      QStringLiteral("Back (Alt+Left)"));
    forward_ = addButton(bar, QStringLiteral("Forward"), QStringLiteral("help-forward"),
                         QStringLiteral("Forward (Alt+Right)"));
    QToolButton* home = addButton(bar, QStringLiteral("FirstPage"), QStringLiteral("help-home"),
                                  QStringLiteral("First page"));
    connect(home, &QToolButton::clicked, this,
            [this] { open(QUrl::fromLocalFile(pages_.pathOf(forms::helpPages().front()))); });
    question_ = new QLineEdit(bar);
    question_->setObjectName(QStringLiteral("Search"));
    question_->setPlaceholderText(QStringLiteral("Search all pages (Ctrl+F)"));
    question_->setAccessibleName(QStringLiteral("Search all pages"));
    question_->setClearButtonEnabled(true);
    for (auto* clear : question_->findChildren<QToolButton*>()) {
        clear->setAccessibleName(QStringLiteral("Clear the search"));
    }
    row->addStretch(1);
    row->addWidget(question_, 2);
    connect(question_, &QLineEdit::textChanged, this, &HelpWindow::search);
    connect(question_, &QLineEdit::returnPressed, this, [this] { openResult(0); });
    return bar;
}

QWidget* HelpWindow::buildContents() {
    left_ = new QStackedWidget(this);
    contents_ = new QTreeWidget(left_);
    contents_->setObjectName(QStringLiteral("Contents"));
    contents_->setAccessibleName(QStringLiteral("Contents"));
    contents_->setHeaderHidden(true);
    contents_->setRootIsDecorated(true);
    contents_->setIndentation(kIndentation);
    const QSize rowSize(0, fontMetrics().height() + kRowPadding);
    QTreeWidgetItem* group = nullptr;
    for (const forms::HelpPage& page : forms::helpPages()) {
        const QString name = QString::fromLatin1(page.group);
        if (group == nullptr || group->text(0) != name) {
            group = new QTreeWidgetItem(contents_, {name});
            QFont bold = contents_->font();
            bold.setBold(true);
            group->setFont(0, bold);
            group->setSizeHint(0, rowSize);
        }
        auto* item = new QTreeWidgetItem(group, {QString::fromLatin1(page.title)});
        item->setData(0, kFileRole, QString::fromLatin1(page.file));
        item->setSizeHint(0, rowSize);
    }
    contents_->expandAll();
    connect(contents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        const QString file = item == nullptr ? QString() : item->data(0, kFileRole).toString();
        if (!file.isEmpty() && page_->source().fileName() != file) {
            open(QUrl::fromLocalFile(pages_.folder() + file));
        }
    });

    results_ = new QListWidget(left_);
    results_->setObjectName(QStringLiteral("Results"));
    results_->setAccessibleName(QStringLiteral("Pages found"));
    results_->setItemDelegate(new ResultDelegate(results_));
    results_->setResizeMode(QListView::Adjust);
    results_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(results_, &QListWidget::currentRowChanged, this, &HelpWindow::openResult);
    left_->addWidget(contents_);
    left_->addWidget(results_);
    return left_;
}

QWidget* HelpWindow::buildPage() {
    page_ = new HelpBrowser(this);
    page_->setObjectName(QStringLiteral("Page"));
    page_->setAccessibleName(QStringLiteral("Page"));
    page_->setOpenLinks(false);
    page_->document()->setDocumentMargin(forms::kFormMargin);
    // Inside the document headings and lists take their sizes from its own style.
    page_->document()->setDefaultStyleSheet(QStringLiteral(
        "h1 { font-size: x-large; } h2 { font-size: large; } p, li, dd { line-height: 125%; } "
        "dt { margin-top: 6px; } "
        "table { border-collapse: collapse; border-color: gray; margin-top: 8px; } "
        ".caption { font-style: italic; margin-top: 4px; margin-bottom: 14px; }"));
    connect(page_, &QTextBrowser::anchorClicked, this, &HelpWindow::followLink);
    connect(page_, &QTextBrowser::sourceChanged, this, &HelpWindow::pageChanged);
    connect(page_, &QTextBrowser::backwardAvailable, back_, &QToolButton::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, forward_, &QToolButton::setEnabled);
    connect(back_, &QToolButton::clicked, page_, &QTextBrowser::backward);
    connect(forward_, &QToolButton::clicked, page_, &QTextBrowser::forward);
    back_->setEnabled(false);
    forward_->setEnabled(false);
    return page_;
}

void HelpWindow::addShortcuts() {
    const auto add = [this](const QKeySequence& keys, const std::function<void()>& routine) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, routine);
    };
    add(QKeySequence(Qt::ALT | Qt::Key_Left), [this] { page_->backward(); });
    add(QKeySequence(Qt::ALT | Qt::Key_Right), [this] { page_->forward(); });
    add(QKeySequence(QKeySequence::Find), [this] {
        question_->setFocus();
        question_->selectAll();
    });
}

/// The contents take the width of their longest title, or the upper part of a narrow window.
void HelpWindow::divide() {
    int left = kBesideTitle;
    for (const forms::HelpPage& page : forms::helpPages()) {
        left = std::max(
            left, kBesideTitle + fontMetrics().horizontalAdvance(QString::fromLatin1(page.title)));
    }
    const bool beside = splitter_->orientation() == Qt::Horizontal;
    const int all = beside ? kSize.width() : kNarrowHeight;
    const int first = beside ? left : kNarrowHeight / 4;
    splitter_->setSizes({first, all - first});
}

void HelpWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const Qt::Orientation wanted = width() < kNarrow ? Qt::Vertical : Qt::Horizontal;
    if (splitter_->orientation() != wanted) {
        splitter_->setOrientation(wanted);
        divide();
    }
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) {
        QWidget::keyPressEvent(event);
    } else if (!question_->text().isEmpty()) {
        question_->clear();
    } else {
        close();
    }
}

void HelpWindow::showPage(const forms::HelpPage& page) {
    if (!open(QUrl::fromLocalFile(pages_.pathOf(page)))) {
        return;
    }
    standBesideModalWindow();
    if (isMinimized()) {
        showNormal();
    }
    standAside();
    show();
    raise();
    activateWindow();
    page_->setFocus();  // the arrow keys scroll
}

bool HelpWindow::open(const QUrl& address) {
    const QString path = address.toLocalFile();
    if (!QFileInfo(path).isFile()) {
        house_.boxes.show(
            {.text =
                 QStringLiteral("The help page could not be found:\n\n%1\n\nThe folder \"help\" "
                                "belongs to Quorvel.  Please install Quorvel again, or put the "
                                "folder back.")
                     .arg(path),
             .title = QStringLiteral("Quorvel Help"),
             .icon = forms::Box::Icon::exclamation});
        return false;
    }
    page_->setSource(address, QTextDocument::HtmlResource);
    return true;
}

void HelpWindow::followLink(const QUrl& link) {
    const QUrl address = page_->source().resolved(link);
    if (address.isLocalFile()) {
        open(address);
    } else {
        house_.openUrl(address.toString());
    }
}

void HelpWindow::pageChanged(const QUrl& address) {
    const forms::HelpPage* page = forms::helpPage(address.fileName());
    if (page == nullptr) {
        return;
    }
    setWindowTitle(QString::fromLatin1(page->title) + QStringLiteral(" - Quorvel Help"));
    const auto items = contents_->findItems(QString::fromLatin1(page->title),
                                            Qt::MatchExactly | Qt::MatchRecursive);
    if (!items.isEmpty()) {
        contents_->setCurrentItem(items.front());
    }
    markWords();
}

void HelpWindow::search(const QString& question) {
    const QSignalBlocker quiet(results_);
    results_->clear();
    const bool asked = !searchWords(question).isEmpty();
    left_->setCurrentWidget(asked ? static_cast<QWidget*>(results_) : contents_);
    if (asked) {
        for (const HelpMatch& match : pages_.search(question)) {
            auto* item = new QListWidgetItem(
                QString::fromLatin1(match.page->title) + QLatin1Char('\n') + match.passage,
                results_);
            item->setData(kFileRole, QString::fromLatin1(match.page->file));
        }
        if (results_->count() == 0) {
            auto* none =
                new QListWidgetItem(QStringLiteral("No page has all of these words."), results_);
            none->setFlags(Qt::NoItemFlags);
        }
    }
    markWords();
}

void HelpWindow::openResult(int row) {
    const QListWidgetItem* item = results_->item(row);
    const QString file = item == nullptr ? QString() : item->data(kFileRole).toString();
    if (file.isEmpty()) {
        return;
    }
    open(QUrl::fromLocalFile(pages_.folder() + file));
    markWords();
    // The first of the words is brought into view.
    const auto marks = page_->extraSelections();
    if (!marks.isEmpty()) {
        QTextCursor place = marks.front().cursor;
        place.clearSelection();
        page_->setTextCursor(place);
        page_->ensureCursorVisible();
    }
}

void HelpWindow::markWords() {
    QList<QTextEdit::ExtraSelection> marks;
    for (const QString& word : searchWords(question_->text())) {
        QTextCursor found(page_->document());
        while (!(found = page_->document()->find(word, found)).isNull()) {
            QTextEdit::ExtraSelection mark;
            mark.cursor = found;
            mark.format.setBackground(palette().highlight());
            mark.format.setForeground(palette().highlightedText());
            marks << mark;
        }
    }
    std::sort(marks.begin(), marks.end(), [](const auto& a, const auto& b) {
        return a.cursor.position() < b.cursor.position();
    });
    page_->setExtraSelections(marks);
}

// A modal window blocks all others but its children, so that is what this one becomes.

bool HelpWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) {
        // Not from within the change that blocks it.
        QTimer::singleShot(0, this, &HelpWindow::standBesideModalWindow);
    }
    return QWidget::event(event);
}

/// Opens beside the window that it is about; where the author has moved it, it stays.
void HelpWindow::standAside() {
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* other = modal != nullptr ? modal : house_.main;
    if (other == nullptr || !other->isVisible() || (isVisible() && other == aside_)) {
        return;
    }
    const QRect screen = other->screen()->availableGeometry();
    const QRect theirs = other->frameGeometry();
    // Ours is unknown before the first time, and a maximised window has none.
    const QSize frame = (theirs.size() - other->size()).expandedTo(forms::kFrameRoom);
    if (isVisible() && aside_ != nullptr && screen.contains(frameGeometry().center()) &&
        !frameGeometry().intersects(theirs)) {
        aside_ = other;
        return;
    }
    aside_ = other;
    QSize wanted = kSize + frame;
    const auto place = [&] {
        return placeBeside(theirs, wanted, kLeast + frame, screen, modal != nullptr);
    };
    Places places = place();
    if (places.beside.width() < kNarrow) {
        wanted.setHeight(kNarrowHeight + frame.height());
        places = place();
    }
    if (places.other != theirs) {
        other->move(places.other.topLeft());
    }
    resize(places.beside.size() - frame);
    move(places.beside.topLeft());
}

void HelpWindow::standBesideModalWindow() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || modal == modal_ || modal->windowHandle() == nullptr) {
        return;
    }
    leaveModalWindow();
    modal_ = modal;
    modal->installEventFilter(this);
    winId();  // makes the window of the system that is to be told
    windowHandle()->setTransientParent(modal->windowHandle());
}

void HelpWindow::leaveModalWindow() {
    if (modal_ != nullptr) {
        modal_->removeEventFilter(this);
        modal_ = nullptr;
    }
    if (windowHandle() != nullptr) {
        windowHandle()->setTransientParent(nullptr);
    }
}

bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == modal_ && event->type() == QEvent::Hide) {
        // Some systems take the children of a window away with it.
        leaveModalWindow();
        QTimer::singleShot(0, this, &HelpWindow::standBesideModalWindow);
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace quorvel::shell
