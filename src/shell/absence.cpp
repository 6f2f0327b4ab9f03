#include "shell/absence.h"

#include <utility>

#include <QApplication>
#include <QDialog>
#include <QMessageBox>

#include "groups/property_form.h"

namespace quorvel::shell {
namespace {

using forms::Answer;
using forms::Box;

/// The text of a box as one line.
QString asLine(const QString& title, const QString& text) {
    const QString line = text.simplified();
    return title == forms::kProgramTitle ? line : title + QStringLiteral(": ") + line;
}

void leavePropertyWindow(groups::PropertyForm& window, const Complain& complain) {
    if (!window.saveAndClose()) {
        complain(QStringLiteral("What was changed in the window \"%1\" could not be taken over and "
                                "is lost.")
                     .arg(window.windowTitle()));
        window.done(QDialog::Rejected);
    }
}

void leaveOtherWindow(QWidget& window, const Complain& complain) {
    complain(QStringLiteral("The window \"%1\" was left as by Cancel.").arg(window.windowTitle()));
    // Some windows do not let themselves be closed by anything but their own buttons.
    if (auto* dialog = qobject_cast<QDialog*>(&window)) {
        dialog->done(QDialog::Rejected);
    } else {
        window.close();
    }
}

}  // namespace

AttendedBoxes::AttendedBoxes(forms::Boxes& author, Complain complain)
    : author_(author), complain_(std::move(complain)) {}

Answer AttendedBoxes::show(const Box& box) {
    if (isAttended_) {
        return author_.show(box);
    }
    complain_(asLine(box.title, box.text));
    return forms::answerByEscape(box.buttons);
}

LeftWindow leaveFrontWindow(const Complain& complain) {
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
    }
    QWidget* front = QApplication::activeModalWidget();
    if (front == nullptr) {
        return LeftWindow::none;
    }
    if (const auto* form = qobject_cast<forms::Form*>(front);
        form != nullptr && form->isWorking()) {
        return LeftWindow::working;
    }
    if (auto* box = qobject_cast<QMessageBox*>(front)) {
        complain(asLine(box->windowTitle(), box->text()));
        box->close();
    } else if (auto* window = qobject_cast<groups::PropertyForm*>(front)) {
        leavePropertyWindow(*window, complain);
    } else {
        leaveOtherWindow(*front, complain);
    }
    return LeftWindow::closed;
}

}  // namespace quorvel::shell
