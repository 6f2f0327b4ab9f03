#include "shell/help_browser.h"

#include <QEvent>
#include <QImage>
#include <QScrollBar>

namespace quorvel::shell {

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource) {
        return QTextBrowser::loadResource(type, name);
    }
    QImage picture(source().resolved(name).toLocalFile());
    if (picture.isNull()) {
        return {};
    }
    constexpr double kPixels = 2;
    ratio_ = devicePixelRatioF();
    const QSize size = (QSizeF(picture.size()) * ratio_ / kPixels).toSize();
    if (size != picture.size()) {
        picture = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    picture.setDevicePixelRatio(ratio_);
    return picture;
}

bool HelpBrowser::event(QEvent* event) {
    const bool done = QTextBrowser::event(event);
    // The window came to a screen of another scale.
    if (event->type() == QEvent::ScreenChangeInternal && ratio_ != 0 &&
        ratio_ != devicePixelRatioF()) {
        const int place = verticalScrollBar()->value();
        reload();
        verticalScrollBar()->setValue(place);
    }
    return done;
}

}  // namespace quorvel::shell
