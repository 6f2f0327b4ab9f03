/// The window of the help: contents, search, pages, the way back.
#pragma once

#include <functional>

#include <QPointer>
#include <QWidget>

#include "forms/boxes.h"
#include "shell/help_pages.h"

class QLineEdit;
class QListWidget;
class QSplitter;
class QStackedWidget;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class QUrl;
class QVBoxLayout;

namespace quorvel::shell {

class HelpBrowser;

/// Opens beside the window that it is asked from, on the same screen, covering none of it where the
/// screen has the room. Stands beside the other windows and is usable while a modal window is open:
/// it counts as that window's child then.
///
/// Data flow: contents, results, links and topics all end in `open`; the page's address tells the
/// contents and the title what is on show.
class HelpWindow : public QWidget {
    Q_OBJECT
  public:
    struct House {
        forms::Boxes& boxes;
        std::function<void(const QString&)> openUrl;  ///< for addresses of the web
        QWidget* main = nullptr;                      ///< beside which it opens
    };
    /// `folder` holds the pages, with a separator at its end.
    HelpWindow(const QString& folder, House house);

    /// Shows a page and brings the window to the front. When the page cannot be read, the author
    /// is told and nothing else happens.
    void showPage(const forms::HelpPage& page);

    [[nodiscard]] const QString& folder() const { return pages_.folder(); }

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QWidget* buildBar();
    QWidget* buildContents();
    QWidget* buildPage();
    QToolButton* addButton(QWidget* bar, const QString& name, const QString& icon,
                           const QString& toolTip);
    void addShortcuts();
    bool open(const QUrl& address);
    void followLink(const QUrl& link);
    void pageChanged(const QUrl& address);
    void search(const QString& question);
    void openResult(int row);
    void markWords();
    void divide();
    void standAside();
    void standBesideModalWindow();
    void leaveModalWindow();

    House house_;
    HelpPages pages_;
    QToolButton* back_ = nullptr;
    QToolButton* forward_ = nullptr;
    QLineEdit* question_ = nullptr;
    QSplitter* splitter_ = nullptr;
    QStackedWidget* left_ = nullptr;
    QTreeWidget* contents_ = nullptr;
    QListWidget* results_ = nullptr;
    HelpBrowser* page_ = nullptr;
    QPointer<QWidget> modal_;  ///< the window that this one counts as a child of
    QPointer<QWidget> aside_;  ///< the window that this one was put beside
};

}  // namespace quorvel::shell
