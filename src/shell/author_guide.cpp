#include "shell/author_guide.h"

#include <utility>

#include <QApplication>
#include <QFileInfo>
#include <QWidget>

#include "shell/day_tip.h"
#include "shell/help_window.h"
#include "shell/quick_tip.h"

namespace quorvel::shell {

AuthorGuide::AuthorGuide(House house) : house_(std::move(house)) {}

AuthorGuide::~AuthorGuide() = default;

QWidget* AuthorGuide::frontWindow() const {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : &house_.main;
}

void AuthorGuide::ShowHelp(forms::HelpTopic topic) {
    const QString folder = QFileInfo(house_.helpFile).path() + QLatin1Char('/');
    if (!help_ || help_->folder() != folder) {
        help_ = std::make_unique<HelpWindow>(
            folder,
            HelpWindow::House{house_.boxes, [this](const QString& address) { OpenUrl(address); },
                              &house_.main});
    }
    const forms::HelpPage* page = forms::helpPage(topic);
    help_->showPage(page != nullptr ? *page : forms::helpPages().front());
}

void AuthorGuide::ShowQuickTip(int number) {
    if (!isQuickTipOn(house_.settings, number)) {
        return;
    }
    QuickTip window(number, house_.settings, house_.boxes, frontWindow());
    window.exec();
}

frmTip& AuthorGuide::tip() {
    if (!tip_) {
        tip_ = std::make_unique<frmTip>(house_.settings, &house_.main);
        QObject::connect(tip_.get(), &QDialog::finished, tip_.get(),
                         [this] { tip_.release()->deleteLater(); });
    }
    return *tip_;
}

void AuthorGuide::showTipAtStart() {
    tip().showBeside();
}

void AuthorGuide::showTipOfTheDay() {
    tip().showModal();
}

void AuthorGuide::showAbout() {
    frmAbout window(house_.boxes, house_.programs, house_.machineValue, frontWindow());
    window.exec();
}

void AuthorGuide::OpenUrl(const QString& address) {
    if (!house_.programs.openUrl(address)) {
        house_.boxes.show({.text = QStringLiteral("No program could be started to show this "
                                                  "address:\n\n%1")
                                       .arg(address),
                           .icon = forms::Box::Icon::exclamation});
    }
}

void AuthorGuide::closeWindows() {
    if (help_) {
        help_->close();
    }
    if (tip_) {
        tip_->close();
    }
}

}  // namespace quorvel::shell
