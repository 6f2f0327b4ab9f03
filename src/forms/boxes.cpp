#include "forms/boxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "forms/long_words.h"

namespace quorvel::forms {
namespace {

QMessageBox::Icon iconOf(Box::Icon icon) {
    switch (icon) {
        case Box::Icon::information:
            return QMessageBox::Information;
        case Box::Icon::question:
            return QMessageBox::Question;
        case Box::Icon::exclamation:
            return QMessageBox::Warning;
        case Box::Icon::critical:
            return QMessageBox::Critical;
        case Box::Icon::none:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons buttonsOf(Box::Buttons buttons) {
    switch (buttons) {
        case Box::Buttons::okCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case Box::Buttons::yesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Box::Buttons::yesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case Box::Buttons::ok:
            break;
    }
    return QMessageBox::Ok;
}

}  // namespace

Answer answerByEscape(Box::Buttons buttons) {
    switch (buttons) {
        case Box::Buttons::okCancel:
        case Box::Buttons::yesNoCancel:
            return Answer::cancel;
        case Box::Buttons::yesNo:
            return Answer::no;
        case Box::Buttons::ok:
            break;
    }
    return Answer::ok;
}

Answer MessageBoxes::show(const Box& box) {
    QMessageBox window(iconOf(box.icon), box.title, box.text, buttonsOf(box.buttons),
                       QApplication::activeWindow());
    window.setObjectName(QStringLiteral("Box"));
    // Names out of a project may look like markup.
    window.setTextFormat(Qt::PlainText);
    breakLongWords(window);
    if (box.buttons == Box::Buttons::yesNo) {
        window.setEscapeButton(QMessageBox::No);
    } else if (box.buttons == Box::Buttons::ok) {
        window.setEscapeButton(QMessageBox::Ok);
        window.setDefaultButton(QMessageBox::Ok);
    }
    QPushButton* other = nullptr;
    if (!box.other.isEmpty()) {
        QString caption = box.other;
        caption.replace(QLatin1Char('&'), QStringLiteral("&&"));
        other = window.addButton(caption, QMessageBox::ActionRole);
        other->setObjectName(QStringLiteral("Other"));
    }
    if (box.destroys) {
        window.setDefaultButton(box.buttons == Box::Buttons::yesNo ? QMessageBox::No
                                                                   : QMessageBox::Cancel);
    }
    const int chosen = window.exec();
    if (other != nullptr && window.clickedButton() == other) {
        return Answer::other;
    }
    switch (chosen) {
        case QMessageBox::Yes:
            return Answer::yes;
        case QMessageBox::No:
            return Answer::no;
        case QMessageBox::Cancel:
            return Answer::cancel;
        default:
            return Answer::ok;
    }
}

}  // namespace quorvel::forms
