#include "shell/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QStatusTipEvent>
#include <QToolBar>

#include "canvas/texts.h"
#include "forms/form.h"
#include "forms/look.h"
#include "shell/path_text.h"

namespace quorvel::shell {
namespace {

/// The working area below the menu bar on a larger screen.
constexpr QSize kWorkingArea(800, 540);
constexpr int kToolIcon = 20;

/// A caption that a menu shows letter by letter.
QString literal(QString text) {
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

}  // namespace

Main::Main(store::Project& project, store::Scene& scene, forms::PictureStore& pictures,
           forms::ProjectListModels& models) {
    setObjectName(QStringLiteral("Main"));
    setContextMenuPolicy(Qt::NoContextMenu);
    showProgramTitle();
    buildMenus();
    buildToolBar();
    buildCentre(project, scene, pictures);
    lists_ = new MainLists(models, this);
    auto* help = new QShortcut(Qt::Key_F1, this);
    connect(help, &QShortcut::activated, this,
            [this] { Q_EMIT commandChosen(Command::helpContents); });
}

QAction* Main::addEntry(const QString& name, const QString& text, Command command,
                        Availability availability, EntryKind kind) {
    auto* action = new QAction(text, this);
    action->setObjectName(name);
    action->setSeparator(kind == EntryKind::separator);
    action->setVisible(kind != EntryKind::hidden);
    action->setCheckable(kind == EntryKind::toggle);
    action->setEnabled(false);
    if (command != Command::none) {
        connect(action, &QAction::triggered, this,
                [this, command] { Q_EMIT commandChosen(command); });
    }
    entries_.push_back({action, command, availability});
    return action;
}

void Main::buildMenus() {
    for (const MenuHead& head : menuHeads()) {
        QMenu* menu = menuBar()->addMenu(QString::fromLatin1(head.caption));
        menu->setObjectName(QString::fromLatin1(head.name));
        menu->menuAction()->setObjectName(QString::fromLatin1(head.name));
        for (const MenuEntry& row : menuEntries()) {
            if (QLatin1String(row.menu) != QLatin1String(head.entries)) {
                continue;
            }
            const bool isLine = row.kind == EntryKind::separator;
            QAction* action = addEntry(forms::elementName(QString::fromLatin1(row.menu), row.index),
                                       isLine ? QString() : QString::fromLatin1(row.caption),
                                       row.command, row.availability, row.kind);
            action->setShortcut(QKeySequence(QString::fromLatin1(row.shortcut)));
            menu->addAction(action);
        }
    }
    folder_ = menuBar()->addAction(QString());
    folder_->setObjectName(QStringLiteral("projfolder"));
    showProjectFolder(QString());
}

void Main::buildToolBar() {
    toolBar_ = new QToolBar(QStringLiteral("Tool bar"), this);
    toolBar_->setObjectName(QStringLiteral("Toolbar1"));
    toolBar_->setMovable(false);
    toolBar_->setFloatable(false);
    toolBar_->setIconSize({kToolIcon, kToolIcon});
    for (const ToolPosition& row : toolPositions()) {
        const QString tip = QString::fromLatin1(row.toolTip);
        QAction* action = addEntry(forms::elementName(QStringLiteral("Toolbar1"), row.position),
                                   tip, row.command, row.availability, row.kind);
        action->setToolTip(tip);
        action->setProperty("key", QString::fromLatin1(row.key));
        if (*row.icon != '\0') {
            action->setIcon(forms::buttonIcon(QString::fromLatin1(row.icon)));
        }
        toolBar_->addAction(action);
    }
    addToolBar(toolBar_);
}

void Main::buildCentre(store::Project& project, store::Scene& scene,
                       forms::PictureStore& pictures) {
    auto* centre = new QWidget(this);
    auto* scroll = new QScrollArea(centre);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setAlignment(Qt::AlignCenter);
    view_ = new canvas::SceneView(project, scene, pictures, scroll);
    scroll->setWidget(view_);
    movieArea_ = scroll->viewport();
    side_ = new SidePanel(centre);
    status_ = new StatusLines(centre);

    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    row->addWidget(scroll, 1);
    row->addWidget(side_);
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(2, 2, 2, 0);
    column->setSpacing(2);
    column->addLayout(row, 1);
    column->addWidget(status_);
    setCentralWidget(centre);
    connect(view_, &canvas::SceneView::statusChanged, status_, &StatusLines::show);
    connect(view_, &canvas::SceneView::objectAlertChanged, side_->ObjAlert, &QWidget::setVisible);
    connect(view_, &canvas::SceneView::sceneAlertChanged, side_->ScnAlert, &QWidget::setVisible);
    connect(view_, &canvas::SceneView::objectCountChanged, status_, &StatusLines::showCount);

    shutDwn_ = new QLabel(this);
    shutDwn_->setObjectName(QStringLiteral("ShutDwn"));
    shutDwn_->setText(QStringLiteral("Shutting down Quorvel.   Please wait..."));
    shutDwn_->setAlignment(Qt::AlignCenter);
    shutDwn_->setAutoFillBackground(true);
    shutDwn_->setFrameStyle(QFrame::Panel | QFrame::Raised);
    shutDwn_->hide();
}

QSize Main::usualSize() const {
    return {kWorkingArea.width(), kWorkingArea.height() + menuBar()->sizeHint().height()};
}

void Main::showAt(const WindowPlace& place) {
    setGeometry(place.normal);
    if (place.isMaximised) {
        showMaximized();
    } else {
        showNormal();
    }
}

WindowPlace Main::place() const {
    return {normalGeometry(), isMaximized()};
}

bool Main::isTime(const Entry& entry, const CommandState& state,
                  const EditorSettings& settings) const {
    switch (entry.availability) {
        case Availability::always:
            return true;
        case Availability::never:
            return false;
        case Availability::project:
            return state.projectOpen;
        case Availability::scene:
            return state.sceneStored;
        case Availability::noProject:
            return !state.projectOpen;
        case Availability::roomForObject:
            return state.sceneStored && state.roomForObject;
        case Availability::recentProject:
            return settings.hasRecent(recentNumber(entry.command));
        case Availability::tool:
            return settings.hasProgram(toolNumber(entry.command));
    }
    return false;
}

void Main::applyCommandState(const CommandState& state, const EditorSettings& settings) {
    for (const Entry& entry : entries_) {
        entry.action->setEnabled(state.available.contains(entry.command) &&
                                 isTime(entry, state, settings));
        entry.action->setStatusTip(whyOff(entry, state));
    }
}

QString Main::whyOff(const Entry& entry, const CommandState& state) {
    if (entry.command != Command::none && !state.available.contains(entry.command)) {
        return canvas::windowToCome();
    }
    return entry.availability == Availability::noProject && state.projectOpen
               ? QStringLiteral("Close the project first.")
               : QString();
}

void Main::showRecentProjects(const EditorSettings& settings) {
    for (int n = 1; n <= static_cast<int>(EditorSettings::kRecent); ++n) {
        QString caption = QString::number(n);
        if (settings.hasRecent(n)) {
            const QString& path = settings.RecentProj[static_cast<std::size_t>(n - 1)];
            caption += QLatin1Char(' ') + literal(ShrinkPath(path));
        }
        action(forms::elementName(QStringLiteral("Filemen"), 8 + n))->setText(caption);
    }
}

void Main::showProjectFolder(const QString& folder) {
    folder_->setText(folder.isEmpty() ? QStringLiteral("(No Project Loaded)")
                                      : QStringLiteral("Project Folder is ") + literal(folder));
}

void Main::showProgramTitle() {
    setWindowTitle(QStringLiteral("Quorvel"));
}

void Main::showGameTitle(const QString& gameTitle) {
    // The toolkit takes "[*]" for the place of a mark unless it stands there twice.
    QString shown = gameTitle;
    shown.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
    setWindowTitle(QStringLiteral("Quorvel - ") + shown);
}

void Main::ToggleAnimations(bool on) {
    action(forms::elementName(QStringLiteral("Toolbar1"), 6))->setChecked(on);
    view_->ToggleAnimations(on);
}

void Main::ToggleBorders(bool on) {
    action(forms::elementName(QStringLiteral("Toolbar1"), 7))->setChecked(on);
    view_->ToggleBorders(on);
}

void Main::showShutdown() {
    shutDwn_->resize(shutDwn_->sizeHint() + QSize(60, 40));
    shutDwn_->move((width() - shutDwn_->width()) / 2, (height() - shutDwn_->height()) / 2);
    shutDwn_->show();
    shutDwn_->raise();
}

QAction* Main::action(const QString& name) const {
    return findChild<QAction*>(name);
}

void Main::closeEvent(QCloseEvent* event) {
    event->ignore();
    Q_EMIT closeAsked();
}

bool Main::event(QEvent* event) {
    if (event->type() == QEvent::StatusTip) {
        status_->showTip(static_cast<QStatusTipEvent*>(event)->tip());
        return true;
    }
    return QMainWindow::event(event);
}

void Main::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        // Back from a paint program, for one.
        view_->followPictureFiles();
        if (view_->bordersOn()) {
            view_->ToggleBorders(true);
        }
    }
}

}  // namespace quorvel::shell
