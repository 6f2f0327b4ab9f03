// What is asked of the running editor from outside: that it comes forward and opens a project, and
// that it ends.
#include <filesystem>

#include <QApplication>

#include "forms/events.h"
#include "groups/property_form.h"
#include "resources/path_text.h"
#include "shell/shell.h"

namespace quorvel::shell {

using forms::Answer;
using forms::Box;

namespace {

/// The property window that stands, with or without others before it, or null.
groups::PropertyForm* standingPropertyWindow() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* form = qobject_cast<groups::PropertyForm*>(window);
        if (form != nullptr && form->isVisible()) {
            return form;
        }
    }
    return nullptr;
}

}  // namespace

void Shell::endByRequest() {
    constexpr int kAgainMs = 100;
    isUnattended_ = true;
    boxes_.setAttended(false);
    switch (leaveFrontWindow(surroundings_.complain)) {
        case LeftWindow::closed:
            // Its own routine goes on before the next one's turn.
            QTimer::singleShot(0, this, &Shell::endByRequest);
            return;
        case LeftWindow::working:
            break;
        case LeftWindow::none:
            if (!project_.ProjectLoading) {  // an open cannot be cut off
                ExitProgram();
            }
            break;
    }
    QTimer::singleShot(kAgainMs, this, &Shell::endByRequest);
}

bool Shell::saveForSession(bool mayAsk) {
    boxes_.setAttended(mayAsk && !isUnattended_);
    bool goesOn = true;
    groups::PropertyForm* window = standingPropertyWindow();
    if (window != nullptr && window->isChanged()) {
        Answer answer = Answer::yes;
        if (mayAsk) {
            answer = boxes_.show({.text = QStringLiteral("The window \"%1\" holds changes that are "
                                                         "not saved yet.\n\nDo you want to save "
                                                         "them before the session ends?")
                                              .arg(window->windowTitle()),
                                  .icon = Box::Icon::question,
                                  .buttons = Box::Buttons::yesNoCancel});
        }
        goesOn = answer == Answer::no || (answer == Answer::yes && window->SaveProps());
    }
    if (goesOn && project_.ProjectOpen && !project_.ProjectLoading) {
        goesOn = keeper_->SaveScene() != canvas::SaveOutcome::failed;
    }
    boxes_.setAttended(!isUnattended_);
    return goesOn || !mayAsk;
}

void Shell::activate() {
    if (!main_ || !main_->isVisible()) {
        return;
    }
    if (main_->isMinimized()) {
        main_->setWindowState(main_->windowState() & ~Qt::WindowMinimized);
    }
    main_->raise();
    main_->activateWindow();
}

void Shell::openWhenFree(const QStringList& projects) {
    activate();
    // What stands before the main window stays there.
    if (QWidget* front = QApplication::activeModalWidget()) {
        front->raise();
        front->activateWindow();
    }
    waiting_ += projects;
    openWaiting();
}

bool Shell::isFree() const {
    return EditorRunning && !isStarting_ && !shuttingDown_ && !isUnattended_ && !isOpening_ &&
           !forms::isWithinRoutine() && !project_.ProjectLoading &&
           !actions_->dragging().isDragging() && QApplication::activeModalWidget() == nullptr &&
           QApplication::activePopupWidget() == nullptr;
}

bool Shell::isOpen(const QString& path) const {
    std::error_code error;
    return project_.ProjectOpen &&
           std::filesystem::equivalent(project_.projectPath(), resources::pathOf(path), error);
}

void Shell::openWaiting() {
    constexpr int kAgainMs = 100;
    if (!waiting_.isEmpty() && isFree()) {
        const QString path = waiting_.takeFirst();
        if (!isOpen(path)) {
            isOpening_ = true;
            openProject(path);
            isOpening_ = false;
        }
    }
    if (!waiting_.isEmpty() && !askAgain_.isActive()) {
        askAgain_.start(kAgainMs);
    } else if (waiting_.isEmpty()) {
        askAgain_.stop();
    }
}

}  // namespace quorvel::shell
