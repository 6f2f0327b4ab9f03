/// The page of the help window.
#pragma once

#include <QTextBrowser>

namespace quorvel::shell {

/// Shows pictures sharp on every screen: their files hold two pixels for each on the page, in both
/// directions.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT
  public:
    using QTextBrowser::QTextBrowser;

    /// A picture comes in the pixels of the screen that the page is on.
    QVariant loadResource(int type, const QUrl& name) override;

  protected:
    bool event(QEvent* event) override;

  private:
    double ratio_ = 0;  ///< pixels of the screen for each on the page, of the pictures on show
};

}  // namespace quorvel::shell
