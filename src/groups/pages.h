/// The pages of a window that would not fit on the smallest screen.
#pragma once

#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

namespace quorvel::groups {

/// Ctrl+Tab and Ctrl+Shift+Tab turn `bar` round and round, wherever in its window the keyboard is.
void turnByKeys(QTabBar* bar);

/// A bar of tabs above the pages.
class Pages : public QWidget {
    Q_OBJECT
  public:
    explicit Pages(QWidget* parent);

    /// A new page at the end; what stands on it goes into its column.
    QVBoxLayout* addPage(const char* caption);

    /// Shows the page that `widget` stands on.
    void reveal(const QWidget& widget);

  private:
    QTabBar* bar_;
    QStackedWidget* stack_;
};

}  // namespace quorvel::groups
